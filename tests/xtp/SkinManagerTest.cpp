#include <XTToolkitPro.h>

#include <gtest/gtest.h>

namespace {

class PlainWindow : public CWnd {
public:
    explicit PlainWindow(CWnd* parent = nullptr) {
        CreateEx(0, nullptr, L"x", parent != nullptr ? WS_CHILD : WS_POPUP, CRect(0, 0, 10, 10), parent, 0);
    }
    ~PlainWindow() override { DestroyWindow(); }
};

TEST(SkinManager, RemembersWhichWindowsWereRemoved) {
    PlainWindow window;
    PlainWindow child(&window);
    PlainWindow other;
    EXPECT_FALSE(XTPSkinManager()->IsRemoved(window));
    EXPECT_TRUE(XTPSkinManager()->Remove(&window));
    EXPECT_TRUE(XTPSkinManager()->Remove(window.m_hWnd)) << "once more does no harm";
    EXPECT_TRUE(XTPSkinManager()->IsRemoved(window));
    EXPECT_FALSE(XTPSkinManager()->IsRemoved(child));
    EXPECT_FALSE(XTPSkinManager()->IsRemoved(other));
    EXPECT_TRUE(XTPSkinManager()->Remove(other.m_hWnd));
    EXPECT_TRUE(XTPSkinManager()->IsRemoved(other));
}

TEST(SkinManager, RefusesWhatIsNoWindow) {
    CWnd none;
    EXPECT_FALSE(XTPSkinManager()->Remove(&none));
    EXPECT_FALSE(XTPSkinManager()->Remove(static_cast<CWnd*>(nullptr)));
    EXPECT_FALSE(XTPSkinManager()->Remove(static_cast<HWND>(nullptr)));
    EXPECT_FALSE(XTPSkinManager()->IsRemoved(nullptr));
}

TEST(SkinManager, ForgetsAWindowThatIsDestroyed) {
    for (int cycle = 0; cycle < 200; ++cycle) {
        PlainWindow window;
        ASSERT_FALSE(XTPSkinManager()->IsRemoved(window)) << "handles come again in cycle " << cycle;
        XTPSkinManager()->Remove(&window);
        const HWND handle = window;
        window.DestroyWindow();
        ASSERT_FALSE(XTPSkinManager()->IsRemoved(handle));
    }
}

} // namespace
