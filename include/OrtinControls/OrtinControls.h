#pragma once

#include <OrtinControls/CtrlsTools.h>
#include <OrtinControls/FontsObjManager.h>
#include <OrtinControls/GraphicsHelper.h>
#include <OrtinControls/IContextMenuBase.h>
#include <OrtinControls/IPrintable.h>
#include <OrtinControls/ITableHandler.h>
#include <OrtinControls/ITableView.h>
#include <OrtinControls/PrintDialogContext.h>
#include <OrtinControls/PrintInfo.h>
#include <OrtinControls/PrintInfoEx.h>
#include <OrtinControls/SystemColors.h>
#include <OrtinControls/TableCtrl.h>
#include <OrtinControls/TableCtrlPrintable.h>
#include <OrtinControls/TooltipTools.h>
