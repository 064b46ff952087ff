#include <gtest/gtest.h>

#include <cstring>
#include <thread>
#include <utility>
#include <vector>

#include "TableFixture.h"
#include "support/ImportPatch.h"
#include "support/Pump.h"
#include "support/Resources.h"

#include <XTToolkitPro.h>

namespace {

/// A host that supplies what it must and nothing more.
class BareHandler : public ITableHandler {
public:
    BareHandler() = default;
    explicit BareHandler(std::wstring caption) { m_caption = std::move(caption); }

    int DrawItem(CDC&, int, const CRect& rect) override { return rect.Height(); }
    void SetTableView(ITableView*) override {}
    using ITableHandler::OnKey;
    int OnKey(unsigned int key) override {
        keys.push_back(key);
        return -1;
    }
    void OnItemClick(int, const CPoint&, bool, unsigned int) override {}
    int GetSelectedItem() const override { return caret; }
    void PrepareDraw() override {}
    void TableHandlerReservedA() override {}
    int ComputeItemHeight(int) override { return 20; }
    void SetSelectedItem(int row, bool) override { caret = row; }
    void TableHandlerReservedB() override {}
    void RefreshView() override {}
    int GetOptimalColumnWidth(int) override { return -1; }
    void OnElementsSorted() override {}
    bool IsPaintEnabled() override { return true; }
    bool CanPaint() override { return true; }

    int caret = -1;
    std::vector<unsigned int> keys;
};

/// The anchor of a range.
class RangeHandler : public BareHandler {
public:
    RangeHandler(int anchorRow, int caretRow) : m_anchor(anchorRow) { caret = caretRow; }
    int GetSelectedItemStart() const override { return m_anchor; }

private:
    int m_anchor;
};

class PointHandler : public BareHandler {
public:
    CPoint GetSelectedPosition() override { return {3, 4}; }
};

class Menu : public IContextMenuBase {
public:
    using IContextMenuBase::IContextMenuBase;
    void ShowContextMenu(CPoint) override {}
    CWnd* window() const { return m_window; }
};

/// The place of a virtual operation in the table of its class. With this compiler a pointer to a virtual operation
/// holds its offset in that table, plus one.
template <typename Operation>
std::size_t slotOf(Operation operation) {
    std::uintptr_t pointer = 0;
    std::memcpy(&pointer, &operation, sizeof pointer);
    return (pointer - 1) / sizeof(void*);
}

/// Calls an operation through the slot itself, as code does that was compiled against the declaration order alone.
template <typename Result, typename Object>
Result callSlot(Object& object, std::size_t slot) {
    void** const table = *reinterpret_cast<void***>(&object);
    return reinterpret_cast<Result (*)(Object*)>(table[slot])(&object);
}

/// Two entries of a table of operations belong to the destructor.
constexpr std::size_t kFirstOperation = 2;

void expectConsecutive(const std::vector<std::pair<const char*, std::size_t>>& slots, std::size_t first) {
    std::size_t expected = first;
    for (const auto& [name, slot] : slots) {
        EXPECT_EQ(expected, slot) << name;
        ++expected;
    }
}

} // namespace

// Handlers.

TEST(AHandlersCursor, HasAtLeastTwoRingsAndAsManyAsItsThickness) {
    struct Case {
        int thickness;
        int rings;
    };
    constexpr COLORREF kPaper = RGB(255, 255, 255);
    constexpr COLORREF kInk = RGB(10, 200, 30);
    for (const Case& c : {Case{0, 2}, Case{1, 2}, Case{-3, 2}, Case{2, 2}, Case{5, 5}}) {
        support::MemoryDevice device(40, 30, kPaper);
        BareHandler handler;
        const CRect rect(4, 3, 34, 25);
        handler.DrawCursor(*CDC::FromHandle(device.dc()), rect, c.thickness, kInk);
        const support::Pixels pixels = device.pixels();
        CRect inside = rect;
        inside.DeflateRect(c.rings, c.rings);
        for (int y = 0; y < 30; ++y) {
            for (int x = 0; x < 40; ++x) {
                const bool ring = rect.PtInRect(CPoint(x, y)) && !inside.PtInRect(CPoint(x, y));
                ASSERT_EQ(ring ? kInk : kPaper, pixels.at(x, y)) << c.thickness << " at " << x << ':' << y;
            }
        }
    }
}

TEST(AHandlersRange, RunsFromTheSmallerRowToTheGreater) {
    EXPECT_EQ(std::pair(3, 7), RangeHandler(7, 3).GetSelectedItemStartEnd());
    EXPECT_EQ(std::pair(3, 7), RangeHandler(3, 7).GetSelectedItemStartEnd());
    EXPECT_EQ(std::pair(-1, 2), RangeHandler(2, -1).GetSelectedItemStartEnd());
}

TEST(AHandlersCaption, IsEmptyAtFirstAndTravelsWithCopiesAndMoves) {
    const std::wstring longCaption(300, L'n');
    for (const std::wstring& caption : {std::wstring(L"Notowania"), longCaption}) {
        EXPECT_EQ(L"", BareHandler().Caption());
        BareHandler first(caption);
        BareHandler copy(first);
        EXPECT_EQ(caption, copy.Caption());
        EXPECT_EQ(caption, first.Caption());
        BareHandler assigned;
        assigned = first;
        EXPECT_EQ(caption, assigned.Caption());
        BareHandler moved(std::move(first));
        EXPECT_EQ(caption, moved.Caption());
        EXPECT_EQ(L"", first.Caption()); // NOLINT(bugprone-use-after-move): this is what is asked
        BareHandler moveAssigned(L"old");
        moveAssigned = std::move(moved);
        EXPECT_EQ(caption, moveAssigned.Caption());
        EXPECT_EQ(L"", moved.Caption()); // NOLINT(bugprone-use-after-move)
    }
}

TEST(AHandlersDefaults, AreNeutral) {
    BareHandler handler(L"x");
    handler.caret = 6;
    handler.OnSizeTableListCtrl();
    handler.OnMoveColumn();
    handler.OnColumnWidthChanged();
    handler.OnColumnWidthChanging(1, 2);
    handler.SelectPosition(1, 2);
    handler.SetListCtrl(nullptr);
    handler.SetFindMode(1);
    handler.CancelFindMode();
    handler.UpdateItemPosition(1);
    handler.OnDblClick();
    handler.SetCursor();
    handler.BeginDrag();
    handler.OnSortByColumn(1);
    handler.OnTableViewDataChanged();
    EXPECT_EQ(6, handler.GetSelectedItemStart());
    EXPECT_EQ(0, handler.IsActive());
    EXPECT_EQ(CPoint(0, 0), handler.GetSelectedPosition());
    EXPECT_FALSE(handler.IsFindMode());
    EXPECT_EQ(0, handler.SearchPhrase(L"a", 1));
    EXPECT_EQ(-1, handler.SearchNextPrev(1));
    EXPECT_FALSE(handler.SelectCurrentFound());
    EXPECT_TRUE(handler.SortElements(true).empty());
    EXPECT_EQ(-1, handler.ElementsToCompareCount());
    EXPECT_FALSE(handler.CompareElementsViaColumn(1, 2, 0));
    EXPECT_FALSE(handler.IsAutoscrollEnabled());
    EXPECT_FALSE(handler.CopySelectionToClipboard(true));
    EXPECT_EQ(CPoint(0, 0), handler.GetCell(1, CPoint(2, 3)));
    EXPECT_TRUE(handler.IsColumnOrderPossible({1, 0}));
    int top = 5;
    int bottom = 7;
    handler.GetCarretOffset(top, bottom);
    EXPECT_EQ(0, top);
    EXPECT_EQ(0, bottom);
    EXPECT_FALSE(handler.UseOptimalisation());
    EXPECT_FALSE(handler.SortColumnAvailable(0));
    CRect rect(1, 2, 3, 4);
    CString text(L"t");
    EXPECT_EQ(-1, handler.GetToolTip(rect, text));
}

TEST(AHandlersDefaults, BuildOnEachOther) {
    PointHandler point;
    EXPECT_EQ(CPoint(3, 4), point.GetSelectedPositionStart());
    EXPECT_EQ(std::pair(CPoint(3, 4), CPoint(3, 4)), point.GetSelectedPositionStartEnd());
    BareHandler handler;
    EXPECT_EQ(-1, static_cast<ITableHandler&>(handler).OnKey(VK_DOWN, 9));
    EXPECT_EQ(std::vector<unsigned int>{VK_DOWN}, handler.keys);
}

TEST(TheContextMenuHook, CopiesItsWindow) {
    CWnd first;
    CWnd second;
    Menu a(&first);
    Menu b(&second);
    b = a;
    EXPECT_EQ(&first, b.window());
    EXPECT_EQ(&first, a.window());
    EXPECT_EQ(nullptr, Menu(nullptr).window());
}

// The order of declaration, on which hosts compiled elsewhere rely.

TEST(TheSlotsOfTheHandler, FollowTheOrderOfTheContract) {
    using H = ITableHandler;
    expectConsecutive(
        {
            {"OnSizeTableListCtrl", slotOf(&H::OnSizeTableListCtrl)},
            {"OnMoveColumn", slotOf(&H::OnMoveColumn)},
            {"OnDrawFinished", slotOf(&H::OnDrawFinished)},
            {"DrawItem", slotOf(&H::DrawItem)},
            {"DrawPrintRequestedItems", slotOf(&H::DrawPrintRequestedItems)},
            {"SetTableView", slotOf(&H::SetTableView)},
            {"OnKey with the page", slotOf(static_cast<int (H::*)(unsigned int, int)>(&H::OnKey))},
            {"OnKey", slotOf(static_cast<int (H::*)(unsigned int)>(&H::OnKey))},
            {"OnItemClick", slotOf(&H::OnItemClick)},
            {"GetSelectedItem", slotOf(&H::GetSelectedItem)},
            {"GetSelectedItemStart", slotOf(&H::GetSelectedItemStart)},
            {"OnColumnWidthChanged", slotOf(&H::OnColumnWidthChanged)},
            {"OnColumnWidthChanging", slotOf(&H::OnColumnWidthChanging)},
            {"PrepareDraw", slotOf(&H::PrepareDraw)},
            {"TableHandlerReservedA", slotOf(&H::TableHandlerReservedA)},
            {"IsActive", slotOf(&H::IsActive)},
            {"ComputeItemHeight", slotOf(&H::ComputeItemHeight)},
            {"SetSelectedItem", slotOf(&H::SetSelectedItem)},
            {"SelectPosition", slotOf(&H::SelectPosition)},
            {"GetSelectedPosition", slotOf(&H::GetSelectedPosition)},
            {"GetSelectedPositionStart", slotOf(&H::GetSelectedPositionStart)},
            {"GetSelectedPositionStartEnd", slotOf(&H::GetSelectedPositionStartEnd)},
            {"TableHandlerReservedB", slotOf(&H::TableHandlerReservedB)},
            {"RefreshView", slotOf(&H::RefreshView)},
            {"SetListCtrl", slotOf(&H::SetListCtrl)},
            {"SetFindMode", slotOf(&H::SetFindMode)},
            {"IsFindMode", slotOf(&H::IsFindMode)},
            {"CancelFindMode", slotOf(&H::CancelFindMode)},
            {"SearchPhrase", slotOf(&H::SearchPhrase)},
            {"SearchNextPrev", slotOf(&H::SearchNextPrev)},
            {"SelectCurrentFound", slotOf(&H::SelectCurrentFound)},
            {"UpdateItemPosition", slotOf(&H::UpdateItemPosition)},
            {"GetOptimalColumnWidth", slotOf(&H::GetOptimalColumnWidth)},
            {"SortElements", slotOf(&H::SortElements)},
            {"ElementsToCompareCount", slotOf(&H::ElementsToCompareCount)},
            {"CompareElementsViaColumn", slotOf(&H::CompareElementsViaColumn)},
            {"OnElementsSorted", slotOf(&H::OnElementsSorted)},
            {"IsAutoscrollEnabled", slotOf(&H::IsAutoscrollEnabled)},
            {"CopySelectionToClipboard", slotOf(&H::CopySelectionToClipboard)},
            {"OnDblClick", slotOf(&H::OnDblClick)},
            {"SetCursor", slotOf(&H::SetCursor)},
            {"GetCell", slotOf(&H::GetCell)},
            {"IsColumnOrderPossible", slotOf(&H::IsColumnOrderPossible)},
            {"BeginDrag", slotOf(&H::BeginDrag)},
            {"GetCarretOffset", slotOf(&H::GetCarretOffset)},
            {"UseOptimalisation", slotOf(&H::UseOptimalisation)},
            {"OnSortByColumn", slotOf(&H::OnSortByColumn)},
            {"SortColumnAvailable", slotOf(&H::SortColumnAvailable)},
            {"Caption", slotOf(&H::Caption)},
            {"OnTableViewDataChanged", slotOf(&H::OnTableViewDataChanged)},
            {"GetToolTip", slotOf(&H::GetToolTip)},
            {"IsPaintEnabled", slotOf(&H::IsPaintEnabled)},
            {"CanPaint", slotOf(&H::CanPaint)},
        },
        kFirstOperation);
}

TEST(TheSlotsOfTheView, FollowTheOrderOfTheContract) {
    using V = ITableView;
    expectConsecutive(
        {
            {"NotifyTableViewDataChange", slotOf(&V::NotifyTableViewDataChange)},
            {"SetItemHeight", slotOf(&V::SetItemHeight)},
            {"GetColumnWidth", slotOf(&V::GetColumnWidth)},
            {"GetColumnVisibility", slotOf(&V::GetColumnVisibility)},
            {"GetColumnRealWidth", slotOf(&V::GetColumnRealWidth)},
            {"GetItemHeight", slotOf(&V::GetItemHeight)},
            {"GetColumnId", slotOf(&V::GetColumnId)},
            {"GetColumnIdxFromId", slotOf(&V::GetColumnIdxFromId)},
            {"GetColumnCount", slotOf(&V::GetColumnCount)},
            {"GetVisibleColumnCount", slotOf(&V::GetVisibleColumnCount)},
            {"GetItemData", slotOf(&V::GetItemData)},
            {"GetItemCount", slotOf(&V::GetItemCount)},
            {"GetSelectedItem", slotOf(&V::GetSelectedItem)},
            {"SelectItem", slotOf(&V::SelectItem)},
            {"GetSelectedItemStart", slotOf(&V::GetSelectedItemStart)},
            {"AddColumn", slotOf(&V::AddColumn)},
            {"SetColumns", slotOf(&V::SetColumns)},
            {"SetColumnWidth", slotOf(&V::SetColumnWidth)},
            {"UpdateColumns", slotOf(static_cast<void (V::*)()>(&V::UpdateColumns))},
            {"UpdateColumns of widths", slotOf(static_cast<void (V::*)(const std::deque<double>&)>(&V::UpdateColumns))},
            {"LockColumns", slotOf(&V::LockColumns)},
            {"AreColumnsLocked", slotOf(&V::AreColumnsLocked)},
            {"RemoveColumn", slotOf(&V::RemoveColumn)},
            {"AddItem", slotOf(&V::AddItem)},
            {"InsertItem", slotOf(&V::InsertItem)},
            {"InsertItems", slotOf(&V::InsertItems)},
            {"DeleteItem", slotOf(&V::DeleteItem)},
            {"DeleteItems", slotOf(&V::DeleteItems)},
            {"DeleteAllItems", slotOf(&V::DeleteAllItems)},
            {"Select", slotOf(&V::Select)},
            {"GetSelectedPosition", slotOf(&V::GetSelectedPosition)},
            {"GetSelectedPositionStart", slotOf(&V::GetSelectedPositionStart)},
            {"SetColumnHeader", slotOf(&V::SetColumnHeader)},
            {"InvalidateView", slotOf(&V::InvalidateView)},
            {"SetCarretIndex", slotOf(&V::SetCarretIndex)},
            {"SwitchColumnOrder", slotOf(&V::SwitchColumnOrder)},
            {"UpdateAllHeights", slotOf(&V::UpdateAllHeights)},
            {"GetAllItemsHeight", slotOf(&V::GetAllItemsHeight)},
            {"GetListCtrlHeight", slotOf(&V::GetListCtrlHeight)},
            {"Sort", slotOf(&V::Sort)},
            {"SortAsc", slotOf(&V::SortAsc)},
            {"SortDesc", slotOf(&V::SortDesc)},
            {"SortSwitch", slotOf(&V::SortSwitch)},
            {"IsSortAsc", slotOf(&V::IsSortAsc)},
            {"UpdateSortDirection", slotOf(&V::UpdateSortDirection)},
            {"SetSortRowColumnId", slotOf(&V::SetSortRowColumnId)},
            {"MoveElementAt", slotOf(&V::MoveElementAt)},
            {"MoveElement", slotOf(&V::MoveElement)},
            {"ShowColumn", slotOf(&V::ShowColumn)},
            {"ShowScrollbar asked", slotOf(static_cast<bool (V::*)() const>(&V::ShowScrollbar))},
            {"ShowScrollbar set", slotOf(static_cast<void (V::*)(bool)>(&V::ShowScrollbar))},
            {"UpdateVScroll", slotOf(&V::UpdateVScroll)},
            {"GetHandler", slotOf(&V::GetHandler)},
            {"GetWidth", slotOf(&V::GetWidth)},
            {"ItemFromCursor", slotOf(&V::ItemFromCursor)},
            {"BeginUpdate", slotOf(&V::BeginUpdate)},
            {"FinishUpdate", slotOf(&V::FinishUpdate)},
        },
        kFirstOperation);
}

namespace {

/// Takes the places of the protected operations, as a host class that overrides them does.
class TableSlots : public TableCtrl {
public:
    static std::vector<std::pair<const char*, std::size_t>> own() {
        return {
            {"GetTableRealWidth", slotOf(&TableSlots::GetTableRealWidth)},
            {"IsVScrollVisible", slotOf(&TableSlots::IsVScrollVisible)},
            {"SetItemData", slotOf(&TableSlots::SetItemData)},
            {"KeepVScrollToBottomSide", slotOf(&TableSlots::KeepVScrollToBottomSide)},
            {"SetVScrollMaxPos", slotOf(&TableSlots::SetVScrollMaxPos)},
            {"SetVScrollMinPos", slotOf(&TableSlots::SetVScrollMinPos)},
            {"UpdateListPos", slotOf(&TableSlots::UpdateListPos)},
            {"GetCtrlOwner", slotOf(&TableSlots::GetCtrlOwner)},
        };
    }
};

} // namespace

TEST(TheSlotsOfTheTable, FollowThoseOfTheWindowAndOfTheViewInTheOrderOfTheContract) {
    const auto slots = TableSlots::own();
    expectConsecutive(slots, slots.front().second);
    EXPECT_GT(slots.front().second, slotOf(static_cast<void (CWnd::*)(int)>(&CWnd::EndModalLoop)));
}

TEST(TheSlotsOfTheHandler, CanBeCalledByTheirPlaceAlone) {
    RecordingHandler handler;
    handler.caret = 5;
    handler.anchor = 2;
    EXPECT_EQ(5, callSlot<int>(static_cast<ITableHandler&>(handler), kFirstOperation + 9));
    EXPECT_EQ(2, callSlot<int>(static_cast<ITableHandler&>(handler), kFirstOperation + 10));
    EXPECT_TRUE(callSlot<bool>(static_cast<ITableHandler&>(handler), kFirstOperation + 52));
    handler.recordAllBut({});
    callSlot<void>(static_cast<ITableHandler&>(handler), kFirstOperation);
    callSlot<void>(static_cast<ITableHandler&>(handler), kFirstOperation + 23);
    EXPECT_EQ("OnSizeTableListCtrl RefreshView", handler.takeLog());
}

TEST(TheWaysToAddAColumn, HaveTheirStoredValues) {
    EXPECT_EQ(0, ITableView::AddAfterSelected);
    EXPECT_EQ(1, ITableView::AddAtSelected);
    EXPECT_EQ(2, ITableView::AddAtEnd);
    EXPECT_EQ(3, ITableView::AddAtFront);
}

TEST(TheMinimumColumnWidth, IsSixteenAt96PixelsAnInch) {
    const HDC screen = ::GetDC(nullptr);
    const int dpi = ::GetDeviceCaps(screen, LOGPIXELSX);
    ::ReleaseDC(nullptr, screen);
    EXPECT_EQ(16 * dpi / 96, kMinColumnWidth);
}

// Creation.

TEST(ATableWithoutAWindow, AnswersAndLocksItsColumns) {
    ReachableTable table;
    EXPECT_TRUE(table.AreColumnsLocked());
    EXPECT_EQ(0, table.GetItemCount());
    EXPECT_EQ(0, table.GetColumnCount());
    EXPECT_EQ(0, table.GetVisibleColumnCount());
    EXPECT_EQ(0, table.GetListCtrlHeight());
    EXPECT_EQ(0, table.GetHeaderHeight());
    EXPECT_EQ(0, table.GetWidth());
    EXPECT_EQ(nullptr, table.GetHandler());
    EXPECT_EQ(nullptr, table.GetSafeHwnd());
    EXPECT_TRUE(table.IsSortAsc());
    EXPECT_TRUE(table.ShowScrollbar());
    EXPECT_EQ(kMinColumnWidth, table.GetMinWidth());
    EXPECT_EQ(11113, TableCtrl::GetHeaderCtrlId());
}

TEST(CreatingATable, FailsWithoutAParent) {
    ReachableTable table;
    EXPECT_EQ(0, table.Create(1, nullptr, false));
    EXPECT_EQ(0, table.Create(1, nullptr, true));
    EXPECT_EQ(nullptr, table.GetSafeHwnd());
}

TEST(CreatingATable, FailsWithoutTheDialogItem) {
    support::ScopedTopLevelWindow host(CSize(200, 200));
    ReachableTable table;
    EXPECT_EQ(0, table.Create(1234, &host, true));
    EXPECT_EQ(nullptr, table.GetSafeHwnd());
    EXPECT_EQ(nullptr, ::GetWindow(host.m_hWnd, GW_CHILD));
}

TEST(CreatingATable, TakesThePlaceOfTheDialogItem) {
    for (const DWORD visible : {DWORD{WS_VISIBLE}, DWORD{0}}) {
        support::ScopedTopLevelWindow host(CSize(300, 200));
        const HWND item = ::CreateWindowExW(WS_EX_CLIENTEDGE, L"STATIC", L"place", WS_CHILD | WS_BORDER | visible, 20,
                                            30, 150, 90, host.m_hWnd, reinterpret_cast<HMENU>(55), nullptr, nullptr);
        ASSERT_NE(nullptr, item);
        ReachableTable table;
        EXPECT_NE(0, table.Create(55, &host, true));
        EXPECT_FALSE(::IsWindow(item));
        EXPECT_EQ(table.m_hWnd, ::GetDlgItem(host.m_hWnd, 55));
        CRect rect;
        table.GetWindowRect(&rect);
        host.ScreenToClient(&rect);
        EXPECT_EQ(CRect(20, 30, 170, 120), rect);
        EXPECT_EQ(visible | WS_CHILD, table.GetStyle() & ~DWORD{WS_CLIPSIBLINGS});
        EXPECT_EQ(L"", [&] {
            CString text;
            table.GetWindowText(text);
            return std::wstring(text.GetString());
        }());
    }
}

TEST(CreatingATable, OtherwiseMakesATinyVisibleChild) {
    support::ScopedTopLevelWindow host(CSize(300, 200));
    ReachableTable table;
    EXPECT_NE(0, table.Create(55, &host, false));
    CRect rect;
    table.GetWindowRect(&rect);
    host.ScreenToClient(&rect);
    EXPECT_EQ(CRect(0, 0, 10, 10), rect);
    EXPECT_EQ(DWORD{WS_CHILD | WS_VISIBLE}, table.GetStyle() & ~DWORD{WS_CLIPSIBLINGS});
    EXPECT_EQ(55, table.GetDlgCtrlID());
    EXPECT_EQ(&host, table.GetCtrlOwner());
}

namespace {

int S_refusedId = 0;
decltype(&::CreateWindowExW) S_createWindow = nullptr;

HWND WINAPI refuseOneWindow(DWORD exStyle, LPCWSTR windowClass, LPCWSTR title, DWORD style, int x, int y, int width,
                            int height, HWND parent, HMENU id, HINSTANCE instance, LPVOID parameter) {
    if (reinterpret_cast<INT_PTR>(id) == S_refusedId) {
        ::SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return nullptr;
    }
    return S_createWindow(exStyle, windowClass, title, style, x, y, width, height, parent, id, instance, parameter);
}

} // namespace

TEST(CreatingATable, FailsCleanlyIfOneOfItsWindowsCannotBeMade) {
    support::ScopedTopLevelWindow host(CSize(300, 200));
    const HMODULE framework = ::GetModuleHandleW(L"OrtinMfc.dll");
    for (const int refused : {55, 11112, 11113}) {
        ReachableTable table;
        {
            const support::ImportPatch patch(framework, "USER32.dll", "CreateWindowExW", &refuseOneWindow);
            S_createWindow = patch.original<std::remove_pointer_t<decltype(S_createWindow)>>();
            S_refusedId = refused;
            EXPECT_EQ(0, table.Create(55, &host, false)) << refused;
        }
        EXPECT_EQ(nullptr, table.GetSafeHwnd()) << refused;
        EXPECT_EQ(nullptr, ::GetWindow(host.m_hWnd, GW_CHILD)) << refused;
        EXPECT_NE(0, table.Create(55, &host, false)) << "a second try after " << refused;
    }
}

using TheWindowsOfATable = TableFixture;

TEST_F(TheWindowsOfATable, HaveTheirIdsAndStyles) {
    ASSERT_NE(nullptr, body());
    ASSERT_NE(nullptr, header());
    const LONG bodyStyle = ::GetWindowLongW(body(), GWL_STYLE);
    EXPECT_EQ(WS_CHILD | WS_TABSTOP | WS_VISIBLE, bodyStyle & (WS_CHILD | WS_TABSTOP | WS_VISIBLE | WS_BORDER));
    const LONG headerStyle = ::GetWindowLongW(header(), GWL_STYLE);
    EXPECT_EQ(WS_CHILD | WS_VISIBLE | HDS_DRAGDROP,
              headerStyle & (WS_CHILD | WS_VISIBLE | HDS_DRAGDROP | HDS_BUTTONS | WS_BORDER));
}

TEST_F(TheWindowsOfATable, LieOneUnderTheOther) {
    setColumns({100.0});
    const CRect headerRect = rectOf(header());
    const CRect bodyRect = rectOf(body());
    EXPECT_EQ(0, headerRect.top);
    EXPECT_EQ(table.GetHeaderHeight(), headerRect.Height());
    EXPECT_GT(headerRect.Height(), 0);
    EXPECT_EQ(CRect(0, headerRect.bottom, 400, 300), bodyRect);
    EXPECT_EQ(400, table.GetWidth());
    EXPECT_EQ(bodyRect.Height(), table.GetListCtrlHeight());
}

TEST_F(TheWindowsOfATable, HeadTheColumnsInBoldTahoma) {
    const auto font = reinterpret_cast<HFONT>(::SendMessageW(header(), WM_GETFONT, 0, 0));
    LOGFONTW description{};
    ASSERT_NE(0, ::GetObjectW(font, sizeof description, &description));
    LOGFONTW standard{};
    ::GetObjectW(::GetStockObject(DEFAULT_GUI_FONT), sizeof standard, &standard);
    EXPECT_EQ(700, description.lfWeight);
    EXPECT_STREQ(L"Tahoma", description.lfFaceName);
    EXPECT_EQ(standard.lfHeight, description.lfHeight);
    EXPECT_EQ(standard.lfCharSet, description.lfCharSet);
}

TEST_F(TheWindowsOfATable, AreLeftAloneBySkins) {
    EXPECT_TRUE(XTPSkinManager()->IsRemoved(table.m_hWnd));
    EXPECT_FALSE(XTPSkinManager()->IsRemoved(body()));
}

TEST_F(TheWindowsOfATable, GoWithItAndLeaveNothing) {
    const std::size_t windows = support::windowCount();
    {
        ReachableTable second;
        ASSERT_NE(0, second.Create(78, &host, false));
        EXPECT_EQ(windows + 3, support::windowCount());
    }
    EXPECT_EQ(windows, support::windowCount());
}

// Wiring.

TEST_F(TheWindowsOfATable, AreToldToTheHandlerInTurn) {
    ReachableTable second;
    ASSERT_NE(0, second.Create(78, &host, false));
    RecordingHandler other;
    other.recordAllBut({});
    second.SetTableHandler(nullptr);
    EXPECT_EQ(nullptr, second.GetHandler());
    second.SetTableHandler(&other);
    EXPECT_EQ("SetTableView SetListCtrl", other.takeLog());
    EXPECT_EQ(static_cast<ITableView*>(&second), other.view);
    ASSERT_NE(nullptr, other.list);
    EXPECT_EQ(::GetDlgItem(second.m_hWnd, 11112), other.list->m_hWnd);
    EXPECT_EQ(&other, second.GetHandler());
    second.SetTableHandler(nullptr);
    EXPECT_EQ(&other, second.GetHandler());
}

TEST_F(TheWindowsOfATable, SendNavigationKeysToAHandlerThatKnowsNoPage) {
    ReachableTable second;
    ASSERT_NE(0, second.Create(78, &host, false));
    BareHandler bare;
    second.SetTableHandler(&bare);
    const HWND list = ::GetDlgItem(second.m_hWnd, 11112);
    for (const UINT key : {UINT{VK_DOWN}, UINT{VK_NEXT}, UINT{VK_DELETE}}) {
        ::SendMessageW(list, WM_KEYDOWN, key, 1);
    }
    EXPECT_EQ((std::vector<unsigned int>{VK_DOWN, VK_NEXT, VK_DELETE}), bare.keys);
}

using TheSelectedPosition = TableFixture;

TEST_F(TheSelectedPosition, IsThatOfTheHandlerAndBecomesAnIdOnRequest) {
    setColumns({50.0, 60.0, 70.0});
    table.SwitchColumnOrder(0, 2, 0);
    handler.position = {0, 8};
    handler.positionStart = CPoint(1, 9);
    EXPECT_EQ(CPoint(0, 8), table.GetSelectedPosition(0));
    EXPECT_EQ(CPoint(2, 8), table.GetSelectedPosition(1));
    EXPECT_EQ(CPoint(1, 9), table.GetSelectedPositionStart(0));
    EXPECT_EQ(CPoint(1, 9), table.GetSelectedPositionStart(-1));
}

TEST_F(TheSelectedPosition, StaysNegativeWhereTheAnchorBecomesAnId) {
    setColumns({50.0, 60.0});
    handler.position = {-1, 3};
    handler.positionStart = CPoint(-1, 4);
    EXPECT_EQ(CPoint(-1, 3), table.GetSelectedPosition(1));
    EXPECT_EQ(CPoint(0, 4), table.GetSelectedPositionStart(1));
    EXPECT_EQ(CPoint(-1, 4), table.GetSelectedPositionStart(0));
}

TEST_F(TheSelectedPosition, IsTheOriginWithoutAHandler) {
    ReachableTable second;
    EXPECT_EQ(CPoint(0, 0), second.GetSelectedPosition(1));
    EXPECT_EQ(CPoint(0, 0), second.GetSelectedPositionStart(1));
}

TEST_F(TheSelectedPosition, OfRowsIsTheHandlersCaretAndAnchor) {
    handler.caret = 4;
    handler.anchor = 2;
    EXPECT_EQ(4, table.GetSelectedItem());
    EXPECT_EQ(2, table.GetSelectedItemStart());
}

// The notification from other threads.

using TheNotification = TableFixture;

TEST_F(TheNotification, IsARegisteredMessageThatIsAnsweredWithOne) {
    EXPECT_EQ(::RegisterWindowMessageW(L"TableCtrl_TableViewDataChanged_message"),
              static_cast<UINT>(TableCtrl::Sm_tableViewDataChangedMessage));
    EXPECT_EQ(1, ::SendMessageW(table.m_hWnd, TableCtrl::Sm_tableViewDataChangedMessage, 0, 0));
    EXPECT_EQ("OnTableViewDataChanged", log());
}

TEST_F(TheNotification, IsPostedAndNotSent) {
    table.NotifyTableViewDataChange();
    EXPECT_EQ("", log());
    support::pumpUntilIdle();
    EXPECT_EQ("OnTableViewDataChanged", log());
}

TEST_F(TheNotification, OfEightThreadsReachesTheHandlerOncePerPostOnItsOwnThread) {
    constexpr int kThreads = 8;
    constexpr int kPosts = 500;
    int received = 0;
    const std::thread::id own = std::this_thread::get_id();
    bool elsewhere = false;
    handler.record({});
    handler.onCall = [&](const std::string& callback) {
        if (callback == "OnTableViewDataChanged") {
            ++received;
            elsewhere = elsewhere || std::this_thread::get_id() != own;
        }
    };
    std::vector<std::thread> threads;
    for (int thread = 0; thread < kThreads; ++thread) {
        threads.emplace_back([this] {
            for (int post = 0; post < kPosts; ++post) {
                table.NotifyTableViewDataChange();
            }
        });
    }
    support::pumpUntil([&] { return received >= kThreads * kPosts; }, std::chrono::seconds(30));
    for (std::thread& thread : threads) {
        thread.join();
    }
    support::pumpUntilIdle();
    EXPECT_EQ(kThreads * kPosts, received);
    EXPECT_FALSE(elsewhere);
}
