#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>

#include "TableFixture.h"
#include "support/Pump.h"

namespace {

using Ints = std::vector<int>;

constexpr COLORREF kFlightColour = RGB(0x99, 0x99, 0x99);

class TableHeader : public TableFixture {
protected:
    TableHeader() {
        lock(true);
        sizeBody(300, 100);
        setColumns({60.0, 70.0, 80.0});
        table.EnableMouseMovingColumns(true);
        handler.record({"SelectPosition", "SortColumnAvailable", "OnSortByColumn", "GetOptimalColumnWidth",
                        "OnMoveColumn", "IsColumnOrderPossible", "OnColumnWidthChanging", "OnColumnWidthChanged"});
        table.takeMessages();
    }

    int middle() const { return table.GetHeaderHeight() / 2; }
    void press(int x) const { pressHeader(x, middle()); }
    void moveOver(int x) const { moveOnHeader(x, middle()); }
    void release(int x) const { releaseHeader(x, middle()); }

    /// The two pictures of the header: as it stands still, and now.
    support::Pixels headerPixels() const {
        ::RedrawWindow(header(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        return support::Pixels::ofClient(header());
    }

    LRESULT notify(UINT code, int id, int width = -1) const {
        HDITEMW item{};
        item.mask = HDI_WIDTH;
        item.cxy = width;
        NMHEADERW notification{};
        notification.hdr.hwndFrom = header();
        notification.hdr.idFrom = kHeaderId;
        notification.hdr.code = code;
        notification.iItem = id;
        notification.pitem = width < 0 ? nullptr : &item;
        return ::SendMessageW(table.m_hWnd, WM_NOTIFY, kHeaderId, reinterpret_cast<LPARAM>(&notification));
    }

    /// A colour laid over another at the alpha of the mark.
    static COLORREF blended(COLORREF under, COLORREF over) {
        const auto channel = [](int below, int above) { return below + (above - below) * 0x40 / 255; };
        return RGB(channel(GetRValue(under), GetRValue(over)), channel(GetGValue(under), GetGValue(over)),
                   channel(GetBValue(under), GetBValue(over)));
    }

    static bool alike(COLORREF a, COLORREF b) {
        return std::abs(GetRValue(a) - GetRValue(b)) <= 1 && std::abs(GetGValue(a) - GetGValue(b)) <= 1 &&
               std::abs(GetBValue(a) - GetBValue(b)) <= 1;
    }
};

} // namespace

// Clicks.

TEST_F(TableHeader, APressAndAReleaseWithoutMotionIsAClickAlsoWithMovingOff) {
    for (const bool moving : {true, false}) {
        table.EnableMouseMovingColumns(moving);
        press(90);
        release(90);
        EXPECT_EQ("SelectPosition(1,0) SortColumnAvailable(1)", log()) << moving;
        EXPECT_EQ("", table.takeMessages()) << moving;
    }
}

TEST_F(TableHeader, APressThatMovedFivePixelsIsStillAClickAndSixPixelsAreNone) {
    moveOver(90); // a themed header shows what is under the mouse
    const support::Pixels still = headerPixels();
    press(90);
    moveOver(95);
    EXPECT_TRUE(samePixels(headerPixels(), still)) << "no mark";
    release(95);
    EXPECT_EQ("SelectPosition(1,0) SortColumnAvailable(1)", log());

    press(90);
    moveOver(96);
    EXPECT_FALSE(headerPixels() == still);
    release(96);
    EXPECT_EQ("", log());
    EXPECT_EQ("", table.takeMessages());
    EXPECT_TRUE(samePixels(headerPixels(), still)) << "the mark has gone";
}

TEST_F(TableHeader, AReleaseOverTheSourceColumnIsNeitherAMoveNorAClick) {
    press(90);
    moveOver(150);
    moveOver(100);
    table.takeMessages();
    log();
    release(100);
    EXPECT_EQ("", table.takeMessages());
    EXPECT_EQ("", log());
    EXPECT_EQ((Ints{0, 1, 2}), headerOrder());
}

TEST_F(TableHeader, ADoubleClickOnAnItemDoesNothingAndOnADividerFitsTheColumn) {
    handler.optimalWidth = 90;
    ::SendMessageW(header(), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(90, middle()));
    EXPECT_EQ("", log());
    ::SendMessageW(header(), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(130, middle()));
    EXPECT_EQ("GetOptimalColumnWidth(1) OnColumnWidthChanged", log());
    EXPECT_EQ(90, table.GetColumnWidth(1));
    EXPECT_EQ(90, headerWidths()[1]);
}

TEST_F(TableHeader, AReleaseOutsideOfAllColumnsBreaksNothing) {
    table.EnableMouseMovingColumns(false);
    press(90);
    releaseHeader(290, 500);
    press(90);
    release(290);
    EXPECT_EQ(3, table.GetColumnCount());
    EXPECT_TRUE(::IsWindow(header()));
}

// Moving columns.

TEST_F(TableHeader, AnotherColumnUnderThePointerIsAskedForOnce) {
    press(90);
    moveOver(150);
    EXPECT_EQ("8046(1,2)", table.takeMessages());
    EXPECT_EQ("IsColumnOrderPossible(021)", log());
    moveOver(155);
    EXPECT_EQ("", table.takeMessages());
    moveOnHeader(20, 500);
    EXPECT_EQ("8046(1,0)", table.takeMessages()) << "only x counts";
    release(20);
    EXPECT_EQ("8045(1,0)", table.takeMessages());
    EXPECT_EQ((Ints{1, 0, 2}), headerOrder());
}

TEST_F(TableHeader, ADropTellsTheHostFirstAndMovesTheColumn) {
    press(30);
    moveOver(170);
    log();
    table.takeMessages();
    release(170);
    EXPECT_EQ("8045(0,2)", table.takeMessages());
    EXPECT_EQ("OnMoveColumn IsColumnOrderPossible(120)", log());
    EXPECT_EQ((Ints{1, 2, 0}), headerOrder());
    EXPECT_EQ(2, table.GetColumnIdxFromId(0));
    EXPECT_EQ((std::vector<double>{300.0 * 60 / 210, 100.0, 300.0 * 80 / 210}), realWidths()) << "refit";
}

TEST_F(TableHeader, ARefusedDropAsksAgainAndMovesNothing) {
    handler.orderPossible = false;
    press(30);
    moveOver(170);
    EXPECT_EQ(::LoadCursorW(nullptr, IDC_NO), ::GetCursor());
    log();
    release(170);
    EXPECT_EQ("OnMoveColumn IsColumnOrderPossible(120)", log());
    EXPECT_EQ((Ints{0, 1, 2}), headerOrder());
}

TEST_F(TableHeader, WhileAColumnFliesTheMouseIsCapturedWithACursorOfItsOwn) {
    ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW));
    press(30);
    moveOver(33);
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_EQ(::LoadCursorW(nullptr, IDC_ARROW), ::GetCursor());
    moveOver(100);
    EXPECT_EQ(header(), ::GetCapture());
    EXPECT_EQ(::LoadCursorW(::GetModuleHandleW(L"OrtinControls.dll"), MAKEINTRESOURCEW(3008)), ::GetCursor());
    release(100);
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_EQ(::LoadCursorW(nullptr, IDC_ARROW), ::GetCursor());
}

TEST_F(TableHeader, WithMovingOffNoColumnIsTaken) {
    table.EnableMouseMovingColumns(false);
    press(30);
    moveOver(170);
    EXPECT_EQ("", table.takeMessages());
    EXPECT_EQ(nullptr, ::GetCapture());
    release(170);
    EXPECT_EQ("", table.takeMessages());
    EXPECT_EQ((Ints{0, 1, 2}), headerOrder());
}

TEST_F(TableHeader, APressOnADividerBelongsToTheNativeControl) {
    press(60);
    moveOver(170);
    EXPECT_EQ(std::string::npos, table.takeMessages().find("8046"));
    release(170);
    EXPECT_EQ(std::string::npos, table.takeMessages().find("8045"));
    EXPECT_EQ((Ints{0, 1, 2}), headerOrder());
    EXPECT_EQ(170, table.GetColumnWidth(0)) << "and drags the width";
}

TEST_F(TableHeader, PositionsAreMeantAndNotIds) {
    table.SwitchColumnOrder(0, 2, 0);
    const CRect first = headerItem(2);
    const CRect last = headerItem(0);
    table.takeMessages();
    press(first.CenterPoint().x);
    moveOver(last.CenterPoint().x);
    EXPECT_EQ("8046(0,2)", table.takeMessages());
    release(last.CenterPoint().x);
    EXPECT_EQ((Ints{1, 0, 2}), headerOrder());
}

TEST_F(TableHeader, TheTableAnswersWhetherAMoveIsPossible) {
    EXPECT_EQ(0, ::SendMessageW(table.m_hWnd, 0x8046, 0, 2));
    EXPECT_EQ("IsColumnOrderPossible(120)", log());
    handler.orderPossible = false;
    EXPECT_EQ(-1, ::SendMessageW(table.m_hWnd, 0x8046, 2, 0));
    EXPECT_EQ("IsColumnOrderPossible(201)", log());
    EXPECT_EQ(0, ::SendMessageW(table.m_hWnd, 0x8045, 2, 0));
    EXPECT_EQ((Ints{0, 1, 2}), headerOrder());
    handler.orderPossible = true;
    EXPECT_EQ(0, ::SendMessageW(table.m_hWnd, 0x8045, 2, 0));
    EXPECT_EQ((Ints{2, 0, 1}), headerOrder());
}

// The mark of a column in flight.

TEST_F(TableHeader, TheColumnInFlightIsVeiledAndTheLineStandsWhereItWouldLand) {
    moveOver(150); // a themed header shows what is under the mouse
    const support::Pixels still = headerPixels();
    press(90);
    moveOver(150);
    const support::Pixels flying = headerPixels();
    for (int x = 62; x < 128; ++x) {
        const COLORREF expected = blended(still.at(x, 3), kFlightColour);
        ASSERT_TRUE(alike(expected, flying.at(x, 3)))
            << x << ": " << support::describe(flying.at(x, 3)) << " instead of " << support::describe(expected);
    }
    EXPECT_EQ(still.at(30, 3), flying.at(30, 3)) << "other columns are not";
    // The target is the third column, to the right: the line stands at its right edge, 210.
    const CRect line(209, 0, 211, still.height());
    EXPECT_EQ(kFlightColour, flying.onlyColour(line));
    EXPECT_EQ(still.at(207, 3), flying.at(207, 3));
    EXPECT_EQ(still.at(212, 3), flying.at(212, 3));
}

TEST_F(TableHeader, ToTheLeftTheLineStandsAtTheLeftEdgeOfTheTarget) {
    press(150);
    moveOver(90);
    const support::Pixels flying = headerPixels();
    EXPECT_EQ(kFlightColour, flying.onlyColour(CRect(59, 0, 61, flying.height())));
}

TEST_F(TableHeader, AtTheVeryLeftTheLineStandsOnePixelIn) {
    press(150);
    moveOver(20);
    const support::Pixels flying = headerPixels();
    EXPECT_EQ(kFlightColour, flying.onlyColour(CRect(0, 0, 2, flying.height())));
}

TEST_F(TableHeader, PastTheRightEdgeTheLineStandsAtTheLastPixel) {
    setColumns({60.0, 70.0, 300.0});
    press(30);
    moveOver(200);
    const support::Pixels flying = headerPixels();
    EXPECT_EQ(kFlightColour, flying.onlyColour(CRect(298, 0, 300, flying.height())));
}

TEST_F(TableHeader, ARefusedTargetShowsNoLine) {
    handler.orderPossible = false;
    moveOver(150); // a themed header shows what is under the mouse
    const support::Pixels still = headerPixels();
    press(90);
    moveOver(150);
    const support::Pixels flying = headerPixels();
    EXPECT_FALSE(still.at(90, 3) == flying.at(90, 3));
    EXPECT_TRUE(
        samePixels(flying.part(CRect(140, 0, 300, flying.height())), still.part(CRect(140, 0, 300, still.height()))));
}

TEST_F(TableHeader, TheMarkTakesTheColourThatTheClientHasSet) {
    constexpr COLORREF kOwn = RGB(10, 90, 200);
    SystemColors::UpdateColor(32, kOwn);
    press(150);
    moveOver(90);
    const support::Pixels flying = headerPixels();
    SystemColors::UpdateColor(32, 0);
    EXPECT_EQ(kOwn, flying.onlyColour(CRect(59, 0, 61, flying.height())));
}

// Layout.

TEST_F(TableHeader, HiddenItHasNoHeightAndTheBodyTakesTheWholeClient) {
    const int height = table.GetHeaderHeight();
    EXPECT_GT(height, 0);
    table.HideHeader(true);
    EXPECT_EQ(0, table.GetHeaderHeight());
    EXPECT_EQ(CRect(0, 0, 300, height + 100), rectOf(body()));
    table.MoveWindow(0, 0, 310, 90);
    EXPECT_EQ(0, table.GetHeaderHeight());
    EXPECT_EQ(CRect(0, 0, 310, 90), rectOf(body()));
    table.HideHeader(false);
    EXPECT_EQ(height, table.GetHeaderHeight());
    EXPECT_EQ(CRect(0, height, 310, 90), rectOf(body()));
}

// Notifications, in both codes.

TEST_F(TableHeader, TrackingTellsWidthsAndItsAnswerStopsTheNativeControl) {
    for (const UINT code : {HDN_TRACKA, HDN_TRACKW}) {
        EXPECT_EQ(0, notify(code, 0, 66));
        EXPECT_EQ("OnColumnWidthChanging(0,66)", log());
        EXPECT_EQ(66, table.GetColumnWidth(0));
        EXPECT_EQ(-1, notify(code, 0, kMinColumnWidth - 1));
        EXPECT_EQ(66, table.GetColumnWidth(0));
        log();
    }
    for (const UINT code : {HDN_ENDTRACKA, HDN_ENDTRACKW}) {
        EXPECT_EQ(0, notify(code, 1, 77));
        EXPECT_EQ("OnColumnWidthChanging(1,77) OnColumnWidthChanged", log());
        EXPECT_EQ(77, table.GetColumnWidth(1));
    }
}

TEST_F(TableHeader, DoubleClicksAndClicksAreTakenInBothCodes) {
    handler.optimalWidth = 91;
    for (const UINT code : {HDN_ITEMDBLCLICKA, HDN_ITEMDBLCLICKW}) {
        EXPECT_EQ(0, notify(code, 2));
        EXPECT_EQ("GetOptimalColumnWidth(2) OnColumnWidthChanged", log());
    }
    for (const UINT code : {HDN_ITEMCLICKA, HDN_ITEMCLICKW}) {
        notify(code, 2);
        EXPECT_EQ("SelectPosition(2,0) SortColumnAvailable(2)", log());
    }
}

TEST_F(TableHeader, NotificationsOfUnknownColumnsBreakNothing) {
    for (const UINT code : {HDN_TRACKW, HDN_ENDTRACKW, HDN_ITEMDBLCLICKW, HDN_ITEMCLICKW}) {
        for (const int id : {-1, 3, 1000000}) {
            notify(code, id, 80);
            notify(code, id);
        }
    }
    EXPECT_EQ((std::vector<double>{60.0, 70.0, 80.0}), realWidths());
}

// The guard.

TEST_F(TableHeader, PaintsItselfOnlyOnceItsWidthsStand) {
    table.LockColumns(false);
    ::UpdateWindow(header());
    table.UpdateColumnWidths(-1, 0);
    EXPECT_TRUE(::GetUpdateRect(header(), nullptr, FALSE));
    ::UpdateWindow(header());
    EXPECT_FALSE(::GetUpdateRect(header(), nullptr, FALSE));
}
