#include "OrtinFoundation/Keyboard.h"

#include <windows.h>

namespace {

bool isDown(int virtualKey) {
    return GetKeyState(virtualKey) < 0;
}

} // namespace

bool OrtinTools::Keyboard::IsShiftPressed() {
    return isDown(VK_SHIFT);
}

bool OrtinTools::Keyboard::IsCtrlPressed() {
    return isDown(VK_CONTROL);
}

bool OrtinTools::Keyboard::IsAltPressed() {
    return isDown(VK_MENU);
}
