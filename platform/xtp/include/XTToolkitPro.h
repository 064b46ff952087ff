#pragma once

#include "XTPDpi.h"
#include "XTPDrawContexts.h"
#include "XTPSkinManager.h"
#include "XTPToolTipContext.h"
