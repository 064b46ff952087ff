#include "DeskProcess.h"
#include "support/RealInput.h"

using Theme = DeskOnScreen;

namespace {

/// The switch stands last in the strip.
constexpr int FromRight = 60;

} // namespace

TEST_F(Theme, TheSwitchPaintsEveryPartOfTheWindowAnewAndIsKept) {
    start();
    support::click(onScreen(strip(), pixelsOf(strip()).width() - scaled(FromRight), scaled(20)));
    EXPECT_TRUE(eventually([&] { return pixelsOf(body()).count(RGB(0x28, 0x28, 0x28)) > 1000; }));
    support::moveMouse(onScreen(statusLine(), scaled(300), 4));
    settle();
    // No part is left in the white theme: nothing but letters and marks is bright.
    for (const HWND window : {strip(), header(), body(), scrollBar(), statusLine()})
        EXPECT_LT(pixelsOf(window).shareBrighterThan(0x90), 0.1) << "window " << ::GetDlgCtrlID(window);
    close();
    EXPECT_NE(settings().find("/theme=black"), std::string::npos);

    start();
    EXPECT_GT(pixelsOf(body()).count(RGB(0x28, 0x28, 0x28)), 1000u);
}

TEST_F(Theme, F8SwitchesItFromTheRowsAndFromTheFindBox) {
    start();
    support::typeKey(VK_F8);
    EXPECT_TRUE(eventually([&] { return pixelsOf(body()).count(RGB(0x28, 0x28, 0x28)) > 1000; }));
    support::chord({VK_CONTROL, 'F'});
    support::typeKey(VK_F8);
    EXPECT_TRUE(eventually([&] { return pixelsOf(body()).count(RGB(0x28, 0x28, 0x28)) < 1000; }));
}

TEST_F(Theme, TheCommandLineGoesBeforeWhatWasKept) {
    start({L"--theme", L"black"});
    EXPECT_GT(pixelsOf(body()).count(RGB(0x28, 0x28, 0x28)), 1000u);
    EXPECT_EQ(pixelsOf(body()).count(RGB(255, 255, 255)), 0u);
}
