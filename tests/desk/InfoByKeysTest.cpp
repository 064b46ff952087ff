#include <functional>

#include "DeskProcess.h"
#include "support/RealInput.h"

namespace {

constexpr int VerticalBarId = 2;
constexpr int HorizontalBarId = 3;
constexpr int LineStep = 60;
constexpr COLORREF BlackBackground = RGB(0x28, 0x28, 0x28);

support::Pixels below(const support::Pixels& view, int by) {
    return view.part({0, by, view.width(), view.height()});
}

support::Pixels withoutLast(const support::Pixels& view, int by) {
    return view.part({0, 0, view.width(), view.height() - by});
}

class Info : public DeskOnScreen {
protected:
    void startWithInfo() {
        start();
        support::typeKey(VK_F1);
        ASSERT_TRUE(eventually([&] { return info() != nullptr && ::GetForegroundWindow() == info(); }));
        settle();
    }

    /// The window, if it is there.
    HWND info() const {
        HWND window = nullptr;
        while ((window = ::FindWindowExW(nullptr, window, nullptr, L"Informacje")) != nullptr)
            if (::GetWindow(window, GW_OWNER) == desk() && ::IsWindowVisible(window))
                return window;
        return nullptr;
    }
    HWND child(int id) const { return ::GetDlgItem(info(), id); }

    /// What is seen of the page: the bars of the theme lie over the rest.
    support::Pixels page() const {
        const support::Pixels window = pixelsOf(info());
        const int right = widthOf(VerticalBarId);
        return window.part({0, 0, window.width() - right, window.height() - heightOf(HorizontalBarId)});
    }
    int widthOf(int id) const { return static_cast<int>(clientOf(id).right); }
    int heightOf(int id) const { return static_cast<int>(clientOf(id).bottom); }

    void resize(int width, int height) const {
        ::SetWindowPos(info(), nullptr, 0, 0, scaled(width), scaled(height), SWP_NOMOVE | SWP_NOZORDER);
        settle();
    }
    POINT inPage() const { return onScreen(info(), scaled(100), scaled(80)); }

private:
    RECT clientOf(int id) const {
        RECT client{};
        ::GetClientRect(child(id), &client);
        return client;
    }
};

} // namespace

TEST_F(Info, F1OpensItAndEscapeGivesTheKeysBackToTheRows) {
    startWithInfo();
    support::typeKey(VK_ESCAPE);
    EXPECT_TRUE(eventually([&] { return info() == nullptr; }));
    EXPECT_TRUE(eventually([&] { return ::GetForegroundWindow() == desk(); }));
    support::click(cell(2, 0));
    EXPECT_EQ(copiedSymbols(), "S02");
    support::typeKey(VK_F1);
    EXPECT_TRUE(eventually([&] { return info() != nullptr; }));
}

TEST_F(Info, IsInTheMenuOfTheRows) {
    start();
    support::click(cell(2, 0), support::MouseButton::Right);
    settle();
    // The last line.
    support::typeKey(VK_UP);
    support::typeKey(VK_RETURN);
    EXPECT_TRUE(eventually([&] { return info() != nullptr; }));
}

TEST_F(Info, KeysMoveThePageAndBringItBack) {
    startWithInfo();
    const support::Pixels before = page();
    const int step = scaled(LineStep);
    support::typeKey(VK_DOWN);
    EXPECT_TRUE(eventually([&] { return withoutLast(page(), step) == below(before, step); }));
    support::typeKey(VK_UP);
    EXPECT_TRUE(eventually([&] { return page() == before; }));
    support::typeKey(VK_NEXT);
    EXPECT_TRUE(eventually([&] { return page() != before; }));
    support::typeKey(VK_PRIOR);
    EXPECT_TRUE(eventually([&] { return page() == before; }));
    support::typeKey(VK_END);
    EXPECT_TRUE(eventually([&] { return page() != before; }));
    settle();
    const support::Pixels end = page();
    support::typeKey(VK_DOWN);
    settle();
    EXPECT_TRUE(support::samePixels(page(), end));
    support::typeKey(VK_HOME);
    EXPECT_TRUE(eventually([&] { return page() == before; }));
}

TEST_F(Info, TheWheelMovesThePageAndNotTheTable) {
    startWithInfo();
    support::moveMouse(inPage());
    settle();
    const support::Pixels before = page();
    const support::Pixels bar = pixelsOf(scrollBar());
    const int step = scaled(LineStep);
    support::turnWheel(inPage(), -WHEEL_DELTA);
    EXPECT_TRUE(eventually([&] { return withoutLast(page(), step) == below(before, step); }));
    support::turnWheel(inPage(), WHEEL_DELTA);
    EXPECT_TRUE(eventually([&] { return page() == before; }));
    support::typeKey(VK_ESCAPE);
    EXPECT_TRUE(eventually([&] { return info() == nullptr; }));
    settle();
    EXPECT_TRUE(support::samePixels(pixelsOf(scrollBar()), bar));
}

TEST_F(Info, ANarrowWindowScrollsSidewaysByKeysAndByItsBar) {
    startWithInfo();
    EXPECT_EQ(heightOf(HorizontalBarId), 0);
    resize(420, 300);
    EXPECT_EQ(heightOf(HorizontalBarId), widthOf(VerticalBarId));
    const support::Pixels before = page();
    const int step = scaled(LineStep);
    support::typeKey(VK_RIGHT);
    EXPECT_TRUE(eventually([&] {
        const support::Pixels now = page();
        return now.part({0, 0, now.width() - step, now.height()}) ==
               before.part({step, 0, before.width(), before.height()});
    }));
    support::typeKey(VK_LEFT);
    EXPECT_TRUE(eventually([&] { return page() == before; }));

    const int middle = heightOf(HorizontalBarId) / 2;
    // The margin at the page's right edge comes into view.
    EXPECT_TRUE(dragUntil(onScreen(child(HorizontalBarId), scaled(10), middle),
                          onScreen(child(HorizontalBarId), widthOf(HorizontalBarId) + 40, middle), [&] {
                              const support::Pixels now = page();
                              const RECT margin{now.width() - scaled(20), 0, now.width(), now.height()};
                              return now.onlyColour(margin).has_value();
                          }));
    settle();
    const support::Pixels right = page();
    support::typeKey(VK_RIGHT);
    settle();
    EXPECT_TRUE(support::samePixels(page(), right));
}

TEST_F(Info, DraggingTheThumbShowsTheEnd) {
    startWithInfo();
    support::typeKey(VK_END);
    settle();
    const support::Pixels end = page();
    support::typeKey(VK_HOME);
    settle();
    const int middle = widthOf(VerticalBarId) / 2;
    EXPECT_TRUE(dragUntil(onScreen(child(VerticalBarId), middle, scaled(10)),
                          onScreen(child(VerticalBarId), middle, heightOf(VerticalBarId) + 40),
                          [&] { return page() == end; }));
}

TEST_F(Info, F8PaintsItInTheOtherTheme) {
    startWithInfo();
    EXPECT_EQ(page().count(BlackBackground), 0u);
    support::typeKey(VK_F8);
    EXPECT_TRUE(eventually([&] { return page().count(BlackBackground) > 10'000; }));
    EXPECT_TRUE(eventually([&] { return pixelsOf(body()).count(BlackBackground) > 1000; }));
    settle();
    EXPECT_EQ(page().count(RGB(255, 255, 255)), 0u);
}

TEST_F(Info, TheDeskGoesOnWorkingBesideItAndClosesItAtTheEnd) {
    startWithInfo();
    support::click(cell(3, 0));
    EXPECT_TRUE(eventually([&] { return ::GetForegroundWindow() == desk(); }));
    EXPECT_EQ(copiedSymbols(), "S03");
    EXPECT_NE(info(), nullptr);
    close();
}
