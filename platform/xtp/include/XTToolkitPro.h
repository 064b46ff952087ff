#pragma once

#include "XTPButton.h"
#include "XTPDpi.h"
#include "XTPDrawContexts.h"
#include "XTPImageManager.h"
#include "XTPPrintingDialog.h"
#include "XTPSkinManager.h"
#include "XTPToolTipContext.h"
