#include "InfoView.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>

#include "DeskColors.h"
#include "support/Capture.h"
#include "support/Pump.h"
#include "support/ScopedTheme.h"
#include "support/TopLevelWindow.h"

using namespace Desk;

namespace {

constexpr int ViewId = 1;
constexpr int LineStep = 60;

/// A view of 420 x 260 at 96 DPI.
class InfoViewInAWindow : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_view.createIn(&m_host, ViewId));
        resize(m_host, CSize(scaled(420), scaled(260)));
    }

    void resize(CWnd& host, CSize visible) {
        host.SetWindowPos(nullptr, 0, 0, visible.cx, visible.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        m_view.MoveWindow(0, 0, visible.cx, visible.cy);
        support::pumpUntilIdle();
    }

    CPoint position() { return CPoint(m_view.horizontal().position, m_view.vertical().position); }

    support::Pixels shown() {
        support::pumpUntilIdle();
        return support::Pixels::ofClient(m_host);
    }

    support::Pixels shownAfresh() {
        m_view.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        return shown();
    }

    CRect uncovered() {
        CRect rect;
        m_view.GetUpdateRect(&rect);
        return rect;
    }

    DeskFonts m_fonts;
    support::ScopedTopLevelWindow m_host{CSize(scaled(420), scaled(260))};
    InfoView m_view{m_fonts};
};

} // namespace

TEST_F(InfoViewInAWindow, ScrollsByALineOrAPageOnEachAxis) {
    EXPECT_TRUE(m_view.scrollByKey(VK_DOWN));
    EXPECT_TRUE(m_view.scrollByKey(VK_RIGHT));
    EXPECT_EQ(position(), CPoint(scaled(LineStep), scaled(LineStep)));
    EXPECT_TRUE(m_view.scrollByKey(VK_UP));
    EXPECT_TRUE(m_view.scrollByKey(VK_LEFT));
    EXPECT_EQ(position(), CPoint(0, 0));
    // A line of the text before stays in view.
    EXPECT_TRUE(m_view.scrollByKey(VK_NEXT));
    EXPECT_EQ(position(), CPoint(0, scaled(260) - m_fonts.lineHeight()));
    EXPECT_TRUE(m_view.scrollByKey(VK_PRIOR));
    EXPECT_EQ(position(), CPoint(0, 0));
    EXPECT_FALSE(m_view.scrollByKey('A'));
}

TEST_F(InfoViewInAWindow, ReachesTheLastPixelsOfThePageAndStopsThere) {
    m_view.scrollByKey(VK_END);
    m_view.scrollToX(100'000);
    const CPoint last(m_view.pageSize().cx - scaled(420), m_view.pageSize().cy - scaled(260));
    EXPECT_EQ(position(), last);
    m_view.scrollByKey(VK_DOWN);
    m_view.scrollByKey(VK_RIGHT);
    EXPECT_EQ(position(), last);
    m_view.scrollByKey(VK_HOME);
    EXPECT_EQ(position(), CPoint(0, 0));
    m_view.scrollToY(-5);
    EXPECT_EQ(position(), CPoint(0, 0));
}

TEST_F(InfoViewInAWindow, FollowsTheWheelALineStepANotch) {
    m_view.scrollByWheel(-WHEEL_DELTA);
    EXPECT_EQ(position(), CPoint(0, scaled(LineStep)));
    m_view.scrollByWheel(-2 * WHEEL_DELTA);
    EXPECT_EQ(position(), CPoint(0, 3 * scaled(LineStep)));
    m_view.scrollByWheel(WHEEL_DELTA);
    EXPECT_EQ(position(), CPoint(0, 2 * scaled(LineStep)));
}

TEST_F(InfoViewInAWindow, PaintsOnlyWhatAStepUncovers) {
    shown();
    EXPECT_TRUE(uncovered().IsRectEmpty());
    m_view.scrollByKey(VK_DOWN);
    EXPECT_EQ(uncovered(), CRect(0, scaled(260) - scaled(LineStep), scaled(420), scaled(260)));
    shown();
    m_view.scrollByKey(VK_RIGHT);
    EXPECT_EQ(uncovered(), CRect(scaled(420) - scaled(LineStep), 0, scaled(420), scaled(260)));
    shown();
    m_view.scrollByKey(VK_UP);
    EXPECT_EQ(uncovered(), CRect(0, 0, scaled(420), scaled(LineStep)));
}

TEST_F(InfoViewInAWindow, LooksAfterAnyScrollingAsIfPaintedAfresh) {
    std::mt19937 random(7);
    const auto below = [&random](unsigned bound) { return static_cast<int>(random() % bound); };
    constexpr int Keys[]{VK_UP, VK_DOWN, VK_LEFT, VK_RIGHT, VK_PRIOR, VK_NEXT, VK_HOME, VK_END};
    for (const int theme : {0, 1}) {
        const support::ScopedTheme scoped(theme);
        shownAfresh();
        for (int step = 0; step < 60; ++step) {
            // Several steps may come before one paint.
            for (int scroll = 1 + below(3); scroll > 0; --scroll)
                switch (below(4)) {
                case 0:
                    m_view.scrollByKey(static_cast<WPARAM>(Keys[below(8)]));
                    break;
                case 1:
                    m_view.scrollByWheel(static_cast<short>((below(7) - 3) * WHEEL_DELTA));
                    break;
                case 2:
                    m_view.scrollToX(below(static_cast<unsigned>(scaled(400))));
                    break;
                default:
                    m_view.scrollToY(below(static_cast<unsigned>(m_view.pageSize().cy)));
                }
            if (below(10) == 0)
                resize(m_host, CSize(scaled(200 + below(600)), scaled(100 + below(400))));
            const support::Pixels scrolled = shown();
            ASSERT_TRUE(support::samePixels(scrolled, shownAfresh())) << "step " << step;
        }
    }
}

TEST_F(InfoViewInAWindow, TakesItsPlaceWithItWhenThePageInViewGrows) {
    m_view.scrollToY(200);
    resize(m_host, CSize(scaled(420), scaled(260) * 2));
    EXPECT_EQ(position().y, 400);
}

TEST_F(InfoViewInAWindow, HasNothingToScrollWhereAllIsSeen) {
    m_view.scrollToX(50);
    m_view.scrollToY(50);
    resize(m_host, m_view.pageSize());
    EXPECT_EQ(position(), CPoint(0, 0));
    EXPECT_EQ(m_view.horizontal().greatestPosition(), 0);
    EXPECT_EQ(m_view.vertical().greatestPosition(), 0);
    m_view.scrollByKey(VK_END);
    m_view.scrollByKey(VK_RIGHT);
    m_view.scrollByWheel(-WHEEL_DELTA);
    EXPECT_EQ(position(), CPoint(0, 0));
}

TEST_F(InfoViewInAWindow, ShowsTheColoursOfBothThemes) {
    for (const int theme : {0, 1}) {
        const support::ScopedTheme scoped(theme);
        resize(m_host, CSize(m_view.pageSize().cx, scaled(400)));
        m_view.scrollByKey(VK_END);
        const support::Pixels page = shownAfresh();
        for (const COLORREF color : {Colors::risen(), Colors::fallen(), Colors::selectedRow(), Colors::foundPiece(),
                                     Colors::rangeReached(), Colors::rangeMarker()})
            EXPECT_GT(page.count(color), static_cast<std::size_t>(scaled(20) * scaled(8))) << support::describe(color);
        EXPECT_EQ(page.at(1, 1), Colors::rowBackground());
    }
}

TEST_F(InfoViewInAWindow, TellsWhereItStandsAfterEachStep) {
    std::string told;
    m_view.onScrolled = [&] { told += std::to_string(m_view.vertical().position) + ' '; };
    m_view.scrollToY(10);
    m_view.scrollToY(30);
    EXPECT_EQ(told, "10 30 ");
}
