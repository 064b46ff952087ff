#include "QuotesTable.h"

#include <algorithm>

#include "DeskColors.h"
#include "KeyPresses.h"
#include "QuotesHandler.h"
#include "ScopedSelection.h"

namespace Desk {

namespace {

constexpr int HeaderPadding = 7;
constexpr int ArrowWidth = 7;
constexpr int LongestTitle = 80;

/// Lets the quotes tell the ends of their selection for a scope.
class EndsOfSelection {
public:
    explicit EndsOfSelection(ITableHandler* handler) : m_quotes(dynamic_cast<QuotesHandler*>(handler)) { tell(true); }
    ~EndsOfSelection() { tell(false); }
    EndsOfSelection(const EndsOfSelection&) = delete;
    EndsOfSelection& operator=(const EndsOfSelection&) = delete;

private:
    void tell(bool on) {
        if (m_quotes)
            m_quotes->tellEndsOfSelection(on);
    }

    QuotesHandler* m_quotes;
};

void drawSortArrow(CDC& dc, const CRect& area, bool down) {
    const int half = scaled(ArrowWidth) / 2;
    const int middle = area.left + area.Width() / 2;
    const int top = area.top + (area.Height() - half) / 2;
    dc.SetBkMode(TRANSPARENT);
    for (int line = 0; line <= half; ++line) {
        const int reach = down ? half - line : line;
        const CRect pixels(middle - reach, top + line, middle + reach + 1, top + line + 1);
        dc.FillSolidRect(&pixels, Colors::accent());
    }
}

} // namespace

BEGIN_MESSAGE_MAP(QuotesTable, TableCtrlPrintable)
    ON_WM_CONTEXTMENU()
    ON_NOTIFY(NM_CUSTOMDRAW, QuotesTable::HeaderId, &QuotesTable::OnHeaderCustomDraw)
END_MESSAGE_MAP()

QuotesTable::QuotesTable(DeskFonts& fonts) : m_fonts(fonts) {
    // A bar that is always there keeps its width, and with it what has to be hidden.
    SetVScrollAlwaysVisible();
}

void QuotesTable::layOutHeader() {
    header()->SetFont(&m_fonts.headerStrut());
    UpdateHeaderPos();
    UpdateListPos();
}

void QuotesTable::alignTitleRight(int id) {
    HDITEMW item{};
    item.mask = HDI_FORMAT;
    header()->SendMessage(HDM_GETITEMW, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(&item));
    item.fmt = (item.fmt & ~HDF_JUSTIFYMASK) | HDF_RIGHT;
    header()->SendMessage(HDM_SETITEMW, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(&item));
}

void QuotesTable::leaveRoomOnPaper(const SheetSizes& sizes) {
    m_marginLeft = sizes.edge;
    m_marginRight = sizes.edge;
    m_marginTop = marginAboveRows(sizes);
    m_marginBottom = marginBelowRows(sizes);
}

int QuotesTable::OnPreparePrinting(PrintInfo* info) {
    const EndsOfSelection ends(GetHandler());
    return TableCtrlPrintable::OnPreparePrinting(info);
}

void QuotesTable::OnBeginPrinting(CDC* dc, PrintInfo* info) {
    const EndsOfSelection ends(GetHandler());
    TableCtrlPrintable::OnBeginPrinting(dc, info);
}

int QuotesTable::widthOnPaper() const {
    CRect client;
    GetClientRect(&client);
    return m_marginLeft + client.Width() + m_marginRight;
}

BOOL QuotesTable::PreTranslateMessage(MSG* message) {
    if (message && message->message == WM_KEYDOWN && message->hwnd == body()->GetSafeHwnd() &&
        searchOutlives(keyPressOf(*message, KeyPlace::Rows)))
        return GetParent()->PreTranslateMessage(message);
    return TableCtrlPrintable::PreTranslateMessage(message);
}

void QuotesTable::UpdateListPos() {
    CRect client;
    GetClientRect(&client);
    client.top = std::min(static_cast<LONG>(GetHeaderHeight()), client.bottom);
    client.right += ::GetSystemMetrics(SM_CXVSCROLL);
    if (CWnd* list = body())
        list->MoveWindow(&client);
}

void QuotesTable::OnContextMenu(CWnd* window, CPoint screen) {
    if (onHeaderMenu && window && window->GetSafeHwnd() == header()->GetSafeHwnd())
        onHeaderMenu(screen);
    else
        TableCtrlPrintable::OnContextMenu(window, screen);
}

void QuotesTable::OnHeaderCustomDraw(NMHDR* notification, LRESULT* result) {
    const auto* draw = reinterpret_cast<const NMCUSTOMDRAW*>(notification);
    *result = CDRF_NOTIFYPOSTPAINT;
    // Not every system's header lets itself be skipped; what comes last stays.
    if (draw->dwDrawStage == CDDS_POSTPAINT)
        drawHeader(*CDC::FromHandle(draw->hdc));
}

void QuotesTable::drawHeader(CDC& dc) {
    CRect client;
    header()->GetClientRect(&client);
    dc.FillSolidRect(&client, Colors::headerBackground());
    const CRect edge(client.left, client.bottom - 1, client.right, client.bottom);
    dc.FillSolidRect(&edge, Colors::line());

    const ScopedSelection font(dc, m_fonts.bold());
    for (int id = 0; id < GetColumnCount(); ++id) {
        if (!GetColumnVisibility(id))
            continue;
        CRect rect;
        wchar_t title[LongestTitle] = L"";
        HDITEMW item{};
        item.mask = HDI_TEXT | HDI_FORMAT;
        item.pszText = title;
        item.cchTextMax = LongestTitle;
        header()->SendMessage(HDM_GETITEMRECT, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(&rect));
        header()->SendMessage(HDM_GETITEMW, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(&item));
        rect.right = std::min(rect.right, client.right);
        drawHeaderItem(dc, rect, item);
    }
}

void QuotesTable::drawHeaderItem(CDC& dc, const CRect& rect, HDITEMW& item) {
    const CRect divider(rect.right - 1, rect.top + scaled(3), rect.right, rect.bottom - scaled(3));
    dc.FillSolidRect(&divider, Colors::line());

    CRect area = rect;
    area.DeflateRect(scaled(HeaderPadding), 0);
    if ((item.fmt & (HDF_SORTUP | HDF_SORTDOWN)) != 0) {
        CRect arrow = area;
        arrow.left = std::max(area.left, area.right - scaled(ArrowWidth));
        drawSortArrow(dc, arrow, (item.fmt & HDF_SORTDOWN) != 0);
        area.right = arrow.left - scaled(ArrowWidth) / 2;
    }
    if (area.Width() <= 0)
        return;
    const UINT alignment = (item.fmt & HDF_JUSTIFYMASK) == HDF_RIGHT ? DT_RIGHT : DT_LEFT;
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(Colors::headerText());
    dc.DrawText(item.pszText, -1, &area, alignment | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS | DT_NOPREFIX);
}

} // namespace Desk
