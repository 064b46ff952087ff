#pragma once

#include <memory>

#include <OrtinControls/Export.h>
#include <XTToolkitPro.h>

/// The house style of tool tips, in the colours of the current theme. A context keeps the colours that it was given:
/// a host that changes the theme refreshes them.
namespace OrtinTools::TooltipTools {

/// The Office style and the colours.
ORTIN_CONTROLS_API void SetDefaultStyle(CXTPToolTipContext& context);
ORTIN_CONTROLS_API void RefreshColors(CXTPToolTipContext& context);
/// A new context in the default style.
ORTIN_CONTROLS_API std::unique_ptr<CXTPToolTipContext> CreateTooltipContext();
/// Background and text. A theme that is neither white nor black gives 0xFF00FF for both.
ORTIN_CONTROLS_API COLORREF GetTipBgClr();
ORTIN_CONTROLS_API COLORREF GetTipTxtClr();

} // namespace OrtinTools::TooltipTools
