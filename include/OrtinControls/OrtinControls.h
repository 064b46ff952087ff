#pragma once

#include <OrtinControls/CtrlsTools.h>
#include <OrtinControls/IContextMenuBase.h>
#include <OrtinControls/ITableHandler.h>
#include <OrtinControls/ITableView.h>
#include <OrtinControls/SystemColors.h>
#include <OrtinControls/TableCtrl.h>
#include <OrtinControls/TooltipTools.h>
