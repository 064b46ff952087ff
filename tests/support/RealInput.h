#pragma once

#include <initializer_list>
#include <string_view>

#include <windows.h>

/// The user's hands: mouse and keyboard through SendInput, so that hit tests, capture, focus, hooks and double click
/// times are the system's own. Points are screen pixels. Each function runs the calling thread's messages before it
/// returns. A display that refuses the input ends the test by std::runtime_error.
namespace support {

enum class MouseButton { Left, Right, Middle };

void moveMouse(POINT point);
void pressButton(MouseButton button = MouseButton::Left);
void releaseButton(MouseButton button = MouseButton::Left);
void click(POINT point, MouseButton button = MouseButton::Left);
/// Two clicks without a pause; a third press soon after it counts as a new first one.
void doubleClick(POINT point, MouseButton button = MouseButton::Left);
/// Presses at `from`, moves to `to` in `steps` equal moves and stays there with the button down.
void dragTo(POINT from, POINT to, int steps = 8, MouseButton button = MouseButton::Left);
/// The same, and releases there.
void drag(POINT from, POINT to, int steps = 8, MouseButton button = MouseButton::Left);
/// At `point`; `delta` in units of WHEEL_DELTA (120) a notch, positive away from the user.
void turnWheel(POINT point, int delta);
/// As turnWheel, positive to the right.
void tiltWheel(POINT point, int delta);

void pressKey(WORD virtualKey);
void releaseKey(WORD virtualKey);
/// Press and release.
void typeKey(WORD virtualKey);
/// Presses in order and releases in reverse order: chord({VK_CONTROL, 'C'}).
void chord(std::initializer_list<WORD> virtualKeys);
/// Characters as such, whatever the keyboard layout.
void typeText(std::wstring_view text);

/// Keeps a key down for a scope.
class HeldKey {
public:
    explicit HeldKey(WORD virtualKey) : m_virtualKey(virtualKey) { pressKey(virtualKey); }
    ~HeldKey();
    HeldKey(const HeldKey&) = delete;
    HeldKey& operator=(const HeldKey&) = delete;

private:
    WORD m_virtualKey;
};

} // namespace support
