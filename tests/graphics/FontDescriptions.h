#pragma once

#include <string>

#include <OrtinControls/GdiFontWrapper.h>

/// Tahoma of a height, of normal weight, and otherwise nought.
LOGFONTW tahoma(LONG height = -11);

/// The thirteen numbers and the face name.
std::string describe(const LOGFONTW& font);
std::string describe(const GdiFontWrapper& font);
