#pragma once

#include <string>

#include <OrtinControls/GdiFontWrapper.h>
#include <OrtinControls/GdiPenWrapper.h>

bool isAlive(HGDIOBJ object);

/// "style width,unused colour"
std::string describe(const LOGPEN& pen);
std::string describe(const GdiPenWrapper& pen);

/// Tahoma of a height, of normal weight, and otherwise nought.
LOGFONTW tahoma(LONG height = -11);
/// A font whose fields all differ, but for the flags.
LOGFONTW eachFieldItsOwn(LONG height);

/// The thirteen numbers and the face name.
std::string describe(const LOGFONTW& font);
std::string describe(const GdiFontWrapper& font);
