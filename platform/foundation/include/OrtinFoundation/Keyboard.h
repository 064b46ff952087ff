#pragma once

#include "OrtinFoundation/FoundationApi.h"

/// The modifier keys, left or right, as they were when the message now handled by this thread was sent by the user.
namespace OrtinTools::Keyboard {

ORTIN_FOUNDATION_API bool IsShiftPressed();
ORTIN_FOUNDATION_API bool IsCtrlPressed();
ORTIN_FOUNDATION_API bool IsAltPressed();

} // namespace OrtinTools::Keyboard
