#include "TableHeaderCtrl.h"

#include <algorithm>
#include <utility>

#include <OrtinControls/GdiPlusHeaders.h>
#include <OrtinControls/SystemColors.h>

#include "TableMessages.h"

namespace {

constexpr int kMoveCursorId = 3008;
constexpr unsigned int kFlightColor = 32;
constexpr BYTE kFlightAlpha = 0x40;
constexpr float kInsertionLineWidth = 2.0F;

/// The client's own colour, or that of the theme as long as the client has set none.
COLORREF flightColor() {
    const COLORREF own = SystemColors::GetXThemeColor(kFlightColor);
    return own != 0 ? own : SystemColors::GetThemeColor(static_cast<EThemeColorType>(kFlightColor));
}

Gdiplus::Color withAlpha(COLORREF color, BYTE alpha) {
    return {alpha, GetRValue(color), GetGValue(color), GetBValue(color)};
}

HCURSOR moveCursor(bool dropAllowed) {
    if (!dropAllowed) {
        return ::LoadCursorW(nullptr, IDC_NO);
    }
    const HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCEW(kMoveCursorId), RT_GROUP_CURSOR);
    return ::LoadCursorW(module, MAKEINTRESOURCEW(kMoveCursorId));
}

} // namespace

BEGIN_MESSAGE_MAP(TableHeaderCtrl, CHeaderCtrl)
    ON_WM_PAINT()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
END_MESSAGE_MAP()

BOOL TableHeaderCtrl::createIn(CWnd* parent) {
    return Create(WS_CHILD | HDS_DRAGDROP, CRect(), parent, kWindowId);
}

void TableHeaderCtrl::showSortArrow(int id, bool descending, bool show) {
    const int count = itemCount();
    for (int item = 0; item < count; ++item) {
        HDITEMW format{};
        format.mask = HDI_FORMAT;
        GetItem(item, &format);
        format.fmt &= ~(HDF_SORTUP | HDF_SORTDOWN);
        if (item == id && show) {
            format.fmt |= descending ? HDF_SORTDOWN : HDF_SORTUP;
        }
        SetItem(item, &format);
    }
}

void TableHeaderCtrl::insertItem(int id, const wchar_t* title, int width) {
    HDITEMW item{};
    item.mask = HDI_WIDTH | HDI_TEXT | HDI_FORMAT;
    item.cxy = width;
    item.pszText = const_cast<wchar_t*>(title); // only read
    item.fmt = HDF_STRING;
    InsertItem(id, &item);
}

void TableHeaderCtrl::setItemText(int id, const wchar_t* title) {
    HDITEMW item{};
    item.mask = HDI_TEXT;
    item.pszText = const_cast<wchar_t*>(title); // only read
    SetItem(id, &item);
}

void TableHeaderCtrl::keepItemWidth(int id) {
    if (const std::optional<int> width = itemWidth(id)) {
        m_keptWidth = {id, *width};
    }
}

int TableHeaderCtrl::itemCount() const {
    return GetSafeHwnd() == nullptr ? 0 : std::max(0, GetItemCount());
}

std::optional<int> TableHeaderCtrl::itemWidth(int id) const {
    HDITEMW item{};
    item.mask = HDI_WIDTH;
    if (GetSafeHwnd() == nullptr || !GetItem(id, &item)) {
        return std::nullopt;
    }
    return item.cxy;
}

void TableHeaderCtrl::setItemWidth(int id, int width) {
    HDITEMW item{};
    item.mask = HDI_WIDTH;
    item.cxy = width;
    if (GetSafeHwnd() != nullptr) {
        SetItem(id, &item);
    }
}

std::vector<int> TableHeaderCtrl::itemOrder() const {
    std::vector<int> order(static_cast<std::size_t>(itemCount()));
    if (!order.empty() && !Header_GetOrderArray(m_hWnd, order.size(), order.data())) {
        order.clear();
    }
    return order;
}

void TableHeaderCtrl::setItemOrder(const std::vector<int>& order) {
    if (GetSafeHwnd() != nullptr) {
        std::vector<int> ids = order;
        SetOrderArray(static_cast<int>(ids.size()), ids.data());
    }
}

HDHITTESTINFO TableHeaderCtrl::hitTest(CPoint point) const {
    HDHITTESTINFO hit{};
    hit.pt = point;
    ::SendMessageW(m_hWnd, HDM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    return hit;
}

int TableHeaderCtrl::positionOfItem(int id) const {
    const std::vector<int> order = itemOrder();
    const auto found = std::find(order.begin(), order.end(), id);
    return found == order.end() ? 0 : static_cast<int>(found - order.begin());
}

CRect TableHeaderCtrl::rectOfPosition(int position) const {
    const std::vector<int> order = itemOrder();
    CRect rect;
    if (position >= 0 && position < static_cast<int>(order.size())) {
        GetItemRect(order[static_cast<std::size_t>(position)], &rect);
    }
    return rect;
}

LRESULT TableHeaderCtrl::notifyParent(UINT code, int item, UINT button) {
    NMHEADERW notification{};
    notification.hdr.hwndFrom = m_hWnd;
    notification.hdr.idFrom = static_cast<UINT_PTR>(GetDlgCtrlID());
    notification.hdr.code = code;
    notification.iItem = item;
    notification.iButton = static_cast<int>(button);
    return ::SendMessageW(::GetParent(m_hWnd), WM_NOTIFY, notification.hdr.idFrom,
                          reinterpret_cast<LPARAM>(&notification));
}

LRESULT TableHeaderCtrl::sendDragMessage(UINT message) {
    return ::SendMessageW(::GetParent(m_hWnd), message, static_cast<WPARAM>(m_drag.sourcePosition),
                          static_cast<LPARAM>(m_drag.targetPosition));
}

void TableHeaderCtrl::OnLButtonDblClk(UINT /*flags*/, CPoint point) {
    // The native double click is swallowed; only one on a divider is told.
    const HDHITTESTINFO hit = hitTest(point);
    if ((hit.flags & HHT_ONDIVIDER) != 0) {
        notifyParent(HDN_ITEMDBLCLICKW, hit.iItem, 0);
    }
}

void TableHeaderCtrl::OnLButtonDown(UINT flags, CPoint point) {
    const HDHITTESTINFO hit = hitTest(point);
    const bool onHeader = (hit.flags & HHT_ONHEADER) != 0;
    const bool onDivider = (hit.flags & HHT_ONDIVIDER) != 0;
    if (!m_drag.press({point.x, point.y}, {onHeader, onDivider, positionOfItem(hit.iItem)})) {
        CHeaderCtrl::OnLButtonDown(flags, point);
    } else if (m_drag.canMove()) {
        Invalidate(FALSE);
    }
}

void TableHeaderCtrl::OnMouseMove(UINT flags, CPoint point) {
    CHeaderCtrl::OnMouseMove(flags, point);
    if (m_drag.sourcePosition >= 0) {
        const int position = positionOfItem(hitTest(CPoint(point.x, 0)).iItem);
        const HeaderDrag::Motion motion = m_drag.move({point.x, point.y}, position);
        if (motion.targetChanged) {
            m_drag.dropAllowed = sendDragMessage(TableMessages::kCanMoveColumn) == 0;
        }
        if (motion.repaint && GetSafeHwnd() != nullptr) {
            Invalidate(FALSE);
        }
    }
    if (!m_drag.canMove()) {
        m_drag.forgetColumn();
    } else if (m_drag.dragShown && GetSafeHwnd() != nullptr) {
        SetCapture();
        ::SetCursor(moveCursor(m_drag.dropAllowed));
    }
}

void TableHeaderCtrl::OnLButtonUp(UINT flags, CPoint point) {
    m_keptWidth.reset();
    CHeaderCtrl::OnLButtonUp(flags, point);
    if (const std::optional<KeptWidth> kept = std::exchange(m_keptWidth, std::nullopt)) {
        setItemWidth(kept->id, kept->width);
    }
    switch (m_drag.release()) {
    case HeaderDrag::Release::Click:
        notifyParent(HDN_ITEMCLICKW, hitTest(point).iItem, 0);
        break;
    case HeaderDrag::Release::Move:
        // A refused target is told too: the table asks the host again.
        sendDragMessage(TableMessages::kMoveColumn);
        m_drag.forgetColumn();
        break;
    case HeaderDrag::Release::Nothing:
        if (m_drag.moved) {
            m_drag.forgetColumn();
        }
        break;
    }
    ::ReleaseCapture();
    ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW));
    m_drag.finish();
    if (GetSafeHwnd() != nullptr) {
        Invalidate(FALSE);
    }
}

void TableHeaderCtrl::OnPaint() {
    if (m_noPaint) {
        return; // not validated: the paint comes when the widths stand
    }
    CPaintDC paintDC(this);
    CMemDC buffer(paintDC, this);
    CDC& dc = buffer.GetDC();
    DefWindowProc(WM_PAINT, reinterpret_cast<WPARAM>(dc.GetSafeHdc()), 0);
    if (m_drag.inFlight()) {
        drawColumnInFlight(dc);
    }
}

void TableHeaderCtrl::drawColumnInFlight(CDC& dc) {
    const CRect source = rectOfPosition(m_drag.sourcePosition);
    Gdiplus::Graphics graphics(dc.GetSafeHdc());
    const Gdiplus::SolidBrush brush(withAlpha(flightColor(), kFlightAlpha));
    graphics.FillRectangle(&brush, static_cast<INT>(source.left), static_cast<INT>(source.top), source.Width(),
                           source.Height());
    if (!m_drag.dropAllowed) {
        return;
    }
    const CRect target = rectOfPosition(m_drag.targetPosition);
    CRect client;
    GetClientRect(&client);
    const Gdiplus::Pen pen(withAlpha(flightColor(), 0xFF), kInsertionLineWidth);
    int x = m_drag.targetPosition > m_drag.sourcePosition ? target.right : target.left;
    if (x == 0) {
        x = 1;
    } else if (x >= client.Width()) {
        x = client.Width() - 1;
    }
    graphics.DrawLine(&pen, static_cast<INT>(x), static_cast<INT>(target.top), static_cast<INT>(x),
                      static_cast<INT>(target.bottom));
}
