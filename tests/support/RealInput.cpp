#include "support/RealInput.h"

#include "support/Pump.h"

#include <algorithm>
#include <array>
#include <exception>
#include <iterator>
#include <stdexcept>
#include <vector>

namespace support {
namespace {

void send(INPUT input) {
    if (::SendInput(1, &input, sizeof input) != 1) {
        throw std::runtime_error("the display refuses input, error " + std::to_string(::GetLastError()));
    }
    pumpUntilIdle();
}

void sendMouse(DWORD flags, DWORD data = 0, POINT normalised = {}) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dx = normalised.x;
    input.mi.dy = normalised.y;
    input.mi.mouseData = data;
    input.mi.dwFlags = flags;
    send(input);
}

/// SendInput counts the screen in 65536 parts and rounds down, so this rounds up to come back to the same pixel.
LONG normalised(LONG pixel, int extent) {
    return static_cast<LONG>((pixel * 65536LL + extent - 1) / extent);
}

bool isExtendedKey(WORD virtualKey) {
    constexpr std::array<WORD, 14> extended{VK_LEFT, VK_RIGHT,  VK_UP,     VK_DOWN,     VK_PRIOR, VK_NEXT, VK_HOME,
                                            VK_END,  VK_INSERT, VK_DELETE, VK_RCONTROL, VK_RMENU, VK_APPS, VK_DIVIDE};
    return std::find(extended.begin(), extended.end(), virtualKey) != extended.end();
}

void sendKey(WORD virtualKey, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = virtualKey;
    input.ki.wScan = static_cast<WORD>(::MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags | (isExtendedKey(virtualKey) ? KEYEVENTF_EXTENDEDKEY : 0);
    send(input);
}

struct ButtonFlags {
    DWORD down;
    DWORD up;
};

ButtonFlags flagsOf(MouseButton button) {
    switch (button) {
    case MouseButton::Right:
        return {MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP};
    case MouseButton::Middle:
        return {MOUSEEVENTF_MIDDLEDOWN, MOUSEEVENTF_MIDDLEUP};
    case MouseButton::Left:
        break;
    }
    return {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP};
}

} // namespace

void moveMouse(POINT point) {
    sendMouse(
        MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, 0,
        {normalised(point.x, ::GetSystemMetrics(SM_CXSCREEN)), normalised(point.y, ::GetSystemMetrics(SM_CYSCREEN))});
}

void pressButton(MouseButton button) {
    sendMouse(flagsOf(button).down);
}

void releaseButton(MouseButton button) {
    sendMouse(flagsOf(button).up);
}

void click(POINT point, MouseButton button) {
    moveMouse(point);
    pressButton(button);
    releaseButton(button);
}

void doubleClick(POINT point, MouseButton button) {
    click(point, button);
    pressButton(button);
    releaseButton(button);
}

void dragTo(POINT from, POINT to, int steps, MouseButton button) {
    moveMouse(from);
    pressButton(button);
    for (int step = 1; step <= steps; ++step) {
        moveMouse({from.x + (to.x - from.x) * step / steps, from.y + (to.y - from.y) * step / steps});
    }
}

void drag(POINT from, POINT to, int steps, MouseButton button) {
    dragTo(from, to, steps, button);
    releaseButton(button);
}

void turnWheel(POINT point, int delta) {
    moveMouse(point);
    sendMouse(MOUSEEVENTF_WHEEL, static_cast<DWORD>(delta));
}

void tiltWheel(POINT point, int delta) {
    moveMouse(point);
    sendMouse(MOUSEEVENTF_HWHEEL, static_cast<DWORD>(delta));
}

void pressKey(WORD virtualKey) {
    if (virtualKey != VK_CONTROL && virtualKey != VK_SHIFT && virtualKey != VK_MENU) {
        sendKey(virtualKey, 0);
        return;
    }
    // A display server that has just moved the focus tells a moment later which keys are down; told after the press, it
    // releases the key again.
    constexpr std::chrono::milliseconds moment(60);
    constexpr int tries = 5;
    pumpFor(moment);
    for (int press = 0; press < tries; ++press) {
        sendKey(virtualKey, 0);
        pumpFor(moment);
        if (::GetAsyncKeyState(virtualKey) < 0) {
            return;
        }
    }
    throw std::runtime_error("the display does not keep the key down");
}

void releaseKey(WORD virtualKey) {
    sendKey(virtualKey, KEYEVENTF_KEYUP);
}

void typeKey(WORD virtualKey) {
    pressKey(virtualKey);
    releaseKey(virtualKey);
}

void chord(std::initializer_list<WORD> virtualKeys) {
    for (const WORD virtualKey : virtualKeys) {
        pressKey(virtualKey);
    }
    for (auto key = std::rbegin(virtualKeys); key != std::rend(virtualKeys); ++key) {
        releaseKey(*key);
    }
}

void typeText(std::wstring_view text) {
    for (const wchar_t character : text) {
        for (const DWORD flags : {DWORD{KEYEVENTF_UNICODE}, DWORD{KEYEVENTF_UNICODE | KEYEVENTF_KEYUP}}) {
            INPUT input{};
            input.type = INPUT_KEYBOARD;
            input.ki.wScan = character;
            input.ki.dwFlags = flags;
            send(input);
        }
    }
}

HeldKey::~HeldKey() {
    try {
        releaseKey(m_virtualKey);
    } catch (const std::exception&) {
        // The press went through the same display a moment ago; a test that is ending for this reason has said so.
    }
}

} // namespace support
