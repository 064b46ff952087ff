#include "KeyPresses.h"

#include <OrtinFoundation/Keyboard.h>

namespace Desk {

KeyPress keyPressOf(const MSG& message, KeyPlace place) {
    return {static_cast<unsigned int>(message.wParam),
            OrtinTools::Keyboard::IsCtrlPressed() && !OrtinTools::Keyboard::IsAltPressed(),
            OrtinTools::Keyboard::IsShiftPressed(), place};
}

} // namespace Desk
