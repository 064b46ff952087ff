#include "XTPButton.h"

#include "PngResource.h"
#include "XTPDrawContexts.h"

#include <algorithm>

namespace {

constexpr int S_gap = 4;            // pixels between icon and text
constexpr int S_focusInset = 3;     // pixels
constexpr BYTE S_disabledIcon = 96; // of 255

COLORREF mixed(int first, int second) {
    const COLORREF a = ::GetSysColor(first);
    const COLORREF b = ::GetSysColor(second);
    return RGB((GetRValue(a) + GetRValue(b)) / 2, (GetGValue(a) + GetGValue(b)) / 2, (GetBValue(a) + GetBValue(b)) / 2);
}

} // namespace

IMPLEMENT_DYNAMIC(CXTPButton, CButton)

BEGIN_MESSAGE_MAP(CXTPButton, CButton)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_LBUTTONDBLCLK()
END_MESSAGE_MAP()

BOOL CXTPButton::SetIcon(CSize iconSize, UINT nIDIcon) {
    const HBITMAP icon = loadPngResource(nIDIcon, iconSize);
    if (icon == nullptr) {
        return FALSE;
    }
    m_icon.DeleteObject();
    m_icon.Attach(icon);
    m_iconSize = iconSize;
    if (m_hWnd != nullptr) {
        Invalidate();
    }
    return TRUE;
}

void CXTPButton::PreSubclassWindow() {
    // So the system's button keeps its behaviour and leaves the drawing.
    ModifyStyle(BS_TYPEMASK, BS_OWNERDRAW);
    CButton::PreSubclassWindow();
}

LRESULT CXTPButton::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = CButton::WindowProc(message, wParam, lParam);
    switch (message) {
    case BM_SETSTATE:
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_ENABLE:
    case WM_SETTEXT:
    case WM_SETFONT:
        if (m_hWnd != nullptr) {
            Invalidate();
        }
        break;
    default:
        break;
    }
    return result;
}

void CXTPButton::OnPaint() {
    CPaintDC paint(this);
    CXTPBufferDC buffer(paint);
    const CRect part(paint.m_ps.rcPaint);
    buffer.BitBlt(part.left, part.top, part.Width(), part.Height(), &paint, part.left, part.top, SRCCOPY);
    OnDraw(&buffer);
}

BOOL CXTPButton::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void CXTPButton::OnMouseMove(UINT nFlags, CPoint point) {
    if (!m_hot) {
        TRACKMOUSEEVENT leave{sizeof leave, TME_LEAVE, m_hWnd, 0};
        m_hot = ::TrackMouseEvent(&leave);
        Invalidate();
    }
    CButton::OnMouseMove(nFlags, point);
}

void CXTPButton::OnMouseLeave() {
    m_hot = false;
    Invalidate();
    CButton::OnMouseLeave();
}

void CXTPButton::OnLButtonDblClk(UINT nFlags, CPoint point) {
    // An owner-drawn button would report a double click, and the second press would be lost to who waits for clicks.
    DefWindowProc(WM_LBUTTONDOWN, nFlags, MAKELPARAM(point.x, point.y));
}

void CXTPButton::OnDraw(CDC* pDC) {
    CRect rect = CXTPClientRect(this);
    const UINT state = GetState();
    const bool pressed = (state & BST_PUSHED) != 0;
    const int face = pressed ? COLOR_3DSHADOW : m_hot ? COLOR_3DHIGHLIGHT : COLOR_3DFACE;
    const COLORREF edge = ::GetSysColor(COLOR_3DSHADOW);
    pDC->FillSolidRect(&rect, mixed(COLOR_3DFACE, face));
    pDC->Draw3dRect(&rect, edge, edge);
    drawContent(*pDC, pressed ? CPoint(1, 1) : CPoint(0, 0));
    if ((state & BST_FOCUS) != 0) {
        rect.DeflateRect(S_focusInset, S_focusInset);
        pDC->SetTextColor(RGB(0, 0, 0));
        pDC->SetBkColor(RGB(255, 255, 255));
        pDC->DrawFocusRect(&rect);
    }
}

void CXTPButton::drawContent(CDC& dc, CPoint offset) {
    const CXTPClientRect client(this);
    CString text;
    GetWindowText(text);
    CFont* const font = GetFont();
    CGdiObject* const previous =
        font != nullptr ? dc.SelectObject(static_cast<CGdiObject*>(font)) : dc.SelectStockObject(DEFAULT_GUI_FONT);
    const CSize extent = text.IsEmpty() ? CSize(0, 0) : dc.GetTextExtent(text);
    const int gap = m_iconSize.cx > 0 && extent.cx > 0 ? S_gap : 0;
    int x = (client.Width() - m_iconSize.cx - gap - extent.cx) / 2 + offset.x;
    drawIcon(dc, CPoint(x, (client.Height() - m_iconSize.cy) / 2 + offset.y));
    x += m_iconSize.cx + gap;
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(::GetSysColor(IsWindowEnabled() ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
    dc.TextOut(x, (client.Height() - extent.cy) / 2 + offset.y, text);
    dc.SelectObject(previous);
}

void CXTPButton::drawIcon(CDC& dc, CPoint place) {
    if (m_icon.GetSafeHandle() == nullptr) {
        return;
    }
    CDC source;
    source.CreateCompatibleDC(&dc);
    const CXTPBitmapDC selected(&source, &m_icon);
    const BLENDFUNCTION blend{AC_SRC_OVER, 0, IsWindowEnabled() ? BYTE{255} : S_disabledIcon, AC_SRC_ALPHA};
    dc.AlphaBlend(place.x, place.y, m_iconSize.cx, m_iconSize.cy, &source, 0, 0, m_iconSize.cx, m_iconSize.cy, blend);
}
