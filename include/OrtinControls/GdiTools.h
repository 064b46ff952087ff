#pragma once

#include <OrtinControls/Export.h>
#include <OrtinControls/GdiFontWrapper.h>
#include <OrtinControls/GdiPenWrapper.h>

/// Merging of value objects. A target that would not change keeps its GDI object.
namespace GdiTools {

/// Makes `target` as `source`, but for what it keeps.
ORTIN_CONTROLS_API void UpdatePen(bool keepStyle, bool keepColor, bool keepWidth, const GdiPenWrapper& source,
                                  GdiPenWrapper& target);
ORTIN_CONTROLS_API void UpdateFont(bool keepHeight, const GdiFontWrapper& source, GdiFontWrapper& target);

} // namespace GdiTools
