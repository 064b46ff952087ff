#pragma once

#include <memory>

#include <OrtinControls/Export.h>
#include <XTToolkitPro.h>

/// The house style of tool tips, in the colours of the current theme.
namespace OrtinTools::TooltipTools {

ORTIN_CONTROLS_API void SetDefaultStyle(CXTPToolTipContext& context);
ORTIN_CONTROLS_API void RefreshColors(CXTPToolTipContext& context);
ORTIN_CONTROLS_API std::unique_ptr<CXTPToolTipContext> CreateTooltipContext();
ORTIN_CONTROLS_API COLORREF GetTipBgClr();
ORTIN_CONTROLS_API COLORREF GetTipTxtClr();

} // namespace OrtinTools::TooltipTools
