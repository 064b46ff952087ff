#include "support/Pump.h"
#include "support/RealInput.h"
#include "support/TopLevelWindow.h"

#include <random>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <windowsx.h>

namespace support {
namespace {

class RealInput : public testing::Test {
protected:
    RealInput() {
        moveMouse({5, 5});
        host.activate();
        host.onMessage = [this](UINT message, WPARAM wParam, LPARAM lParam) {
            note(message, wParam, lParam);
            return std::optional<LRESULT>();
        };
    }

    POINT onScreen(int x, int y) {
        CPoint point(x, y);
        host.ClientToScreen(&point);
        return point;
    }

    void note(UINT message, WPARAM wParam, LPARAM lParam) {
        const auto at = [&] {
            return " " + std::to_string(GET_X_LPARAM(lParam)) + "," + std::to_string(GET_Y_LPARAM(lParam));
        };
        switch (message) {
        case WM_LBUTTONDOWN:
            seen << "down" << at() << "; ";
            break;
        case WM_LBUTTONUP:
            seen << "up" << at() << "; ";
            break;
        case WM_LBUTTONDBLCLK:
            seen << "double" << at() << "; ";
            break;
        case WM_RBUTTONDOWN:
            seen << "right down" << at() << "; ";
            break;
        case WM_MBUTTONUP:
            seen << "middle up" << at() << "; ";
            break;
        case WM_MOUSEMOVE:
            if ((wParam & MK_LBUTTON) != 0 && path.back() != CPoint(lParam)) {
                path.emplace_back(lParam);
            }
            break;
        case WM_MOUSEWHEEL:
            seen << "wheel " << GET_WHEEL_DELTA_WPARAM(wParam) << "; ";
            break;
        case WM_MOUSEHWHEEL:
            seen << "tilt " << GET_WHEEL_DELTA_WPARAM(wParam) << "; ";
            break;
        case WM_KEYDOWN:
            seen << "key " << wParam << ((::GetKeyState(VK_CONTROL) & 0x8000) != 0 ? " with control" : "")
                 << ((::GetKeyState(VK_SHIFT) & 0x8000) != 0 ? " with shift" : "") << "; ";
            break;
        default:
            break;
        }
    }

    ScopedTopLevelWindow host{CSize(300, 200)};
    std::ostringstream seen;
    std::vector<CPoint> path{CPoint(-1, -1)};
};

TEST_F(RealInput, TheMouseGoesToExactlyThePixelAskedFor) {
    std::mt19937 random(7);
    for (int round = 0; round < 200; ++round) {
        const POINT wanted{static_cast<LONG>(random() % static_cast<unsigned>(::GetSystemMetrics(SM_CXSCREEN))),
                           static_cast<LONG>(random() % static_cast<unsigned>(::GetSystemMetrics(SM_CYSCREEN)))};
        moveMouse(wanted);
        CPoint actual;
        ::GetCursorPos(&actual);
        ASSERT_EQ(CPoint(wanted), actual);
    }
}

TEST_F(RealInput, AClickPressesAndReleasesWhereItPoints) {
    click(onScreen(20, 30));
    EXPECT_EQ("down 20,30; up 20,30; ", seen.str());
}

TEST_F(RealInput, TwoQuickClicksAreADoubleClick) {
    doubleClick(onScreen(40, 30));
    EXPECT_EQ("down 40,30; up 40,30; double 40,30; up 40,30; ", seen.str());
}

TEST_F(RealInput, EachButtonIsItself) {
    click(onScreen(50, 60), MouseButton::Right);
    click(onScreen(51, 61), MouseButton::Middle);
    EXPECT_EQ("right down 50,60; middle up 51,61; ", seen.str());
}

TEST_F(RealInput, ADragMovesInEqualStepsWithTheButtonDown) {
    drag(onScreen(10, 100), onScreen(90, 140), 4);
    EXPECT_EQ("down 10,100; up 90,140; ", seen.str());
    const std::vector<CPoint> expected{{-1, -1}, {30, 110}, {50, 120}, {70, 130}, {90, 140}};
    std::vector<CPoint> moves;
    for (const CPoint& point : path) {
        if (point != CPoint(10, 100)) {
            moves.push_back(point);
        }
    }
    EXPECT_EQ(expected, moves);
}

TEST_F(RealInput, TheWheelTurnsBothWaysAndTilts) {
    turnWheel(onScreen(100, 100), WHEEL_DELTA);
    turnWheel(onScreen(100, 100), -2 * WHEEL_DELTA);
    tiltWheel(onScreen(100, 100), WHEEL_DELTA);
    EXPECT_EQ("wheel 120; wheel -240; tilt 120; ", seen.str());
}

TEST_F(RealInput, AKeyReachesTheActiveWindow) {
    typeKey(VK_DOWN);
    EXPECT_EQ("key 40; ", seen.str());
}

TEST_F(RealInput, AChordHoldsItsFirstKeys) {
    chord({VK_CONTROL, 'C'});
    typeKey(VK_F3);
    EXPECT_EQ("key 17 with control; key 67 with control; key 114; ", seen.str());
}

TEST_F(RealInput, AHeldKeyIsReleasedWithItsScope) {
    {
        const HeldKey shift(VK_SHIFT);
        typeKey(VK_HOME);
    }
    typeKey(VK_HOME);
    EXPECT_EQ("key 16 with shift; key 36 with shift; key 36; ", seen.str());
}

TEST_F(RealInput, TextIsTypedWhateverTheKeyboard) {
    const HWND edit =
        ::CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 10, 10, 200, 20, host, nullptr, nullptr, nullptr);
    ::SetFocus(edit);
    typeText(L"Zażółć 1,5");
    wchar_t text[32]{};
    ::GetWindowTextW(edit, text, 32);
    EXPECT_STREQ(L"Zażółć 1,5", text);
}

} // namespace
} // namespace support
