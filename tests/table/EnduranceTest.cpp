// What only shows over many rounds: partial paints against full ones, and storms of messages.

#include <random>

#include "TableFixture.h"

namespace {

class Endurance : public TableFixture {
protected:
    static constexpr unsigned kSeed = 20'261'120;

    void SetUp() override {
        handler.record({});
        setColumns({80, 80, 80, 80});
        table.UpdateColumns();
    }

    int pick(int below) { return std::uniform_int_distribution<int>(0, below - 1)(m_random); }

private:
    std::mt19937 m_random{kSeed};
};

class PartialPaint : public Endurance {
protected:
    static constexpr int kRows = 60;

    void SetUp() override {
        Endurance::SetUp();
        handler.optimised = true;
        shades.assign(kRows + 1, 0);
        handler.drawMore = [this](CDC& dc, int row, const CRect& rect) {
            const auto word = static_cast<std::size_t>(table.GetItemData(row));
            dc.FillSolidRect(CRect(rect.left, rect.top, rect.left + 50, rect.bottom), RGB(shades[word], 20, 60));
            dc.FillSolidRect(CRect(50, rect.top, 52, rect.bottom),
                             row == handler.caret ? RGB(255, 0, 0) : RGB(0, 0, 0));
        };
        addManyRows(kRows);
        select(0);
        paint();
    }

    /// As a host does: the row under the old caret and the one under the new are named.
    void moveCaret(int row) {
        const int before = handler.caret;
        handler.caret = row;
        table.InvalidateView(table.GetItemData(before));
        table.InvalidateView(table.GetItemData(row));
    }

    void tick(unsigned __int64 word) {
        shades[word] = static_cast<BYTE>(pick(256));
        table.InvalidateView(word);
    }

    std::vector<BYTE> shades;
};

TEST_F(PartialPaint, ShowsWhatAFullPaintShowsAfterAnySequenceOfMarks) {
    for (int round = 0; round < 400; ++round) {
        for (int change = pick(6); change >= 0; --change) {
            switch (pick(8)) {
            case 0:
                moveCaret(pick(table.GetItemCount()));
                break;
            case 1:
                ::SendMessageW(body(), WM_VSCROLL, static_cast<WPARAM>(pick(4)), 0);
                break;
            case 2:
                table.SetItemHeight(static_cast<unsigned __int64>(pick(table.GetItemCount())), 20);
                break;
            default:
                tick(static_cast<unsigned __int64>(1 + pick(kRows)));
                break;
            }
        }
        paint();
        const support::Pixels partial = bodyPixels();
        table.InvalidateView(0);
        paint();
        ASSERT_TRUE(support::samePixels(partial, bodyPixels())) << "round " << round;
    }
}

class MessageStorm : public Endurance {
protected:
    /// Any message that a window can get, but those that end it, wait for the user or carry pointers that a sender
    /// across the system could not make up.
    UINT anyMessage() {
        static const UINT kOften[] = {
            WM_PAINT,
            WM_SIZE,
            WM_VSCROLL,
            WM_MOUSEWHEEL,
            WM_LBUTTONDOWN,
            WM_LBUTTONUP,
            WM_LBUTTONDBLCLK,
            WM_MOUSEMOVE,
            WM_RBUTTONDOWN,
            WM_RBUTTONUP,
            WM_KEYDOWN,
            WM_KEYUP,
            WM_CHAR,
            WM_TIMER,
            WM_SETCURSOR,
            WM_SETFOCUS,
            WM_KILLFOCUS,
            WM_ERASEBKGND,
            WM_ENABLE,
            WM_SHOWWINDOW,
            WM_CAPTURECHANGED,
            0x488,
            0x489,
            0x490,
            0x8044,
            0x8045,
            0x8046,
            WM_SYSCOLORCHANGE,
            WM_CANCELMODE,
            WM_MOUSELEAVE,
            WM_SETREDRAW,
        };
        return kOften[pick(static_cast<int>(std::size(kOften)))];
    }

    LPARAM anyParameter() {
        switch (pick(5)) {
        case 0:
            return 0;
        case 1:
            return -1;
        case 2:
            return MAKELPARAM(pick(400), pick(300));
        case 3:
            return static_cast<int>(0x80000000U) + pick(100);
        default:
            return pick(0x7FFFFFFF);
        }
    }

    WPARAM parameterFor(UINT message) {
        // A context, a window or a font that is none: the system itself would fall over those.
        if (message == WM_ERASEBKGND || message == WM_PAINT || message == WM_SETCURSOR || message == WM_SETFOCUS ||
            message == WM_KILLFOCUS) {
            return 0;
        }
        return static_cast<WPARAM>(anyParameter());
    }
};

TEST_F(MessageStorm, LeavesAWorkingTable) {
    addManyRows(200);
    table.EnableMouseMovingColumns(true);
    table.EnableSortingOnColumnHeaderClick(true);
    table.EnableColumnWidthTracking(true);
    handler.optimalWidth = 60;
    for (int round = 0; round < 10'000; ++round) {
        const HWND windows[] = {table.m_hWnd, header(), body()};
        const HWND window = windows[pick(3)];
        const UINT message = anyMessage();
        const LPARAM lParam =
            message == WM_TIMER || message == WM_SHOWWINDOW || message == WM_CAPTURECHANGED || message == WM_VSCROLL
                ? 0
                : anyParameter();
        ::SendMessageW(window, message, parameterFor(message), lParam);
        if (round % 500 == 0) {
            MSG waiting;
            for (int taken = 0; taken < 100 && ::PeekMessageW(&waiting, nullptr, 0, 0, PM_REMOVE); ++taken) {
                ::DispatchMessageW(&waiting);
            }
        }
    }
    ::ReleaseCapture();
    ::SendMessageW(body(), WM_SETREDRAW, TRUE, 0);
    ASSERT_TRUE(::IsWindow(table.m_hWnd) && ::IsWindow(header()) && ::IsWindow(body()));
    table.MoveWindow(0, 0, kWidth, 300);
    table.ShowWindow(SW_SHOWNA);
    ::ShowWindow(body(), SW_SHOWNA);
    handler.record({"DrawItem"});
    forget();
    table.SelectItem(0, true);
    paint();
    EXPECT_NE(std::string::npos, log().find("DrawItem(0")) << "the first row is not drawn any more";
    EXPECT_EQ(200, table.GetItemCount());
}

} // namespace
