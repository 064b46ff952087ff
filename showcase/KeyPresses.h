#pragma once

#include <windows.h>

#include "core/Commands.h"

namespace Desk {

/// A WM_KEYDOWN with the keys that are held down now.
KeyPress keyPressOf(const MSG& message, KeyPlace place);

} // namespace Desk
