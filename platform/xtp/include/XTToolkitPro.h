#pragma once

#include "XTPButton.h"
#include "XTPDpi.h"
#include "XTPDrawContexts.h"
#include "XTPImageManager.h"
#include "XTPSkinManager.h"
#include "XTPToolTipContext.h"
