#include "ToolTipWindow.h"

#include "XTPDpi.h"

#include <algorithm>

namespace {

constexpr const wchar_t* S_className = L"OrtinXtpToolTip";
constexpr UINT S_textFormat = DT_NOPREFIX | DT_EXPANDTABS | DT_WORDBREAK;
constexpr int S_widestText = 600;   // pixels at 96 DPI; longer lines are broken between words
constexpr int S_belowPointer = 20;  // pixels at 96 DPI from the hot spot, so that the usual pointer covers nothing
constexpr int S_cornerDiameter = 8; // pixels at 96 DPI

COLORREF colorOr(COLORREF color, int systemIndex) {
    return color != CLR_DEFAULT ? color : ::GetSysColor(systemIndex);
}

BYTE between(BYTE first, BYTE second) {
    return static_cast<BYTE>((first + second) / 2);
}

int cornerDiameter(XTPToolTipStyle style) {
    return style == xtpToolTipBalloon ? XTPDpiHelper().ScaleX(S_cornerDiameter) : 0;
}

/// Under the pointer if there is room, else above it; inside the work area of the pointer's monitor.
CPoint placeFor(const CSize& size, const CPoint& pointer) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    ::GetMonitorInfoW(::MonitorFromPoint(pointer, MONITOR_DEFAULTTONEAREST), &monitor);
    const RECT& area = monitor.rcWork;
    const int below = pointer.y + XTPDpiHelper().ScaleY(S_belowPointer);
    const int above = pointer.y - size.cy - XTPDpiHelper().ScaleY(2);
    const int left = std::max<int>(area.left, std::min<int>(pointer.x, area.right - size.cx));
    return {left, below + size.cy <= area.bottom ? below : std::max<int>(area.top, above)};
}

class SelectedFont {
public:
    SelectedFont(CDC& dc, CFont& font) : m_dc(dc), m_previous(dc.SelectObject(&font)) {}
    ~SelectedFont() { m_dc.SelectObject(m_previous); }
    SelectedFont(const SelectedFont&) = delete;
    SelectedFont& operator=(const SelectedFont&) = delete;

private:
    CDC& m_dc;
    CFont* m_previous;
};

} // namespace

BEGIN_MESSAGE_MAP(ToolTipWindow, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_TIMER()
    ON_WM_NCHITTEST()
END_MESSAGE_MAP()

ToolTipWindow::ToolTipWindow(const ToolTipLook& look, std::function<void(UINT_PTR)> onTimer)
    : m_look(look),
      m_onTimer(std::move(onTimer)) {}

ToolTipWindow::~ToolTipWindow() {
    DestroyWindow();
}

bool ToolTipWindow::ensureWindow() {
    if (m_hWnd != nullptr) {
        return true;
    }
    WNDCLASSW windowClass{};
    windowClass.style = CS_SAVEBITS | CS_DROPSHADOW;
    windowClass.lpfnWndProc = ::DefWindowProcW;
    windowClass.hInstance = AfxGetInstanceHandle();
    windowClass.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    windowClass.lpszClassName = S_className;
    // Nobody owns the window: it must not end, or come up, with one of the windows that it serves.
    return AfxRegisterClass(&windowClass) && CreateEx(WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, S_className,
                                                      nullptr, WS_POPUP, CRect(), nullptr, 0);
}

void ToolTipWindow::show(const CString& text, CPoint pointer) {
    SetWindowText(text);
    const CSize size = sizeFor(text);
    const CPoint place = placeFor(size, pointer);
    const int corner = cornerDiameter(m_look.style);
    // The system owns the region once it is set.
    ::SetWindowRgn(m_hWnd, corner > 0 ? ::CreateRoundRectRgn(0, 0, size.cx + 1, size.cy + 1, corner, corner) : nullptr,
                   FALSE);
    Invalidate(FALSE);
    ::SetWindowPos(m_hWnd, HWND_TOPMOST, place.x, place.y, size.cx, size.cy,
                   SWP_NOACTIVATE | SWP_SHOWWINDOW | SWP_NOOWNERZORDER);
    UpdateWindow();
}

void ToolTipWindow::hide() {
    if (m_hWnd != nullptr) {
        ShowWindow(SW_HIDE);
    }
}

void ToolTipWindow::makeFont() {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof(metrics);
    if (!::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0) ||
        !m_font.CreateFontIndirect(&metrics.lfStatusFont)) {
        m_font.CreateStockObject(DEFAULT_GUI_FONT);
    }
}

CSize ToolTipWindow::padding() const {
    const bool isAiry = m_look.style == xtpToolTipOffice;
    return {XTPDpiHelper().ScaleX(isAiry ? 8 : 4), XTPDpiHelper().ScaleY(isAiry ? 5 : 2)};
}

COLORREF ToolTipWindow::background() const {
    return colorOr(m_look.background, COLOR_INFOBK);
}

COLORREF ToolTipWindow::textColor() const {
    return colorOr(m_look.text, COLOR_INFOTEXT);
}

COLORREF ToolTipWindow::frameColor() const {
    const COLORREF first = background();
    const COLORREF second = textColor();
    if (m_look.style != xtpToolTipOffice) {
        return second;
    }
    return RGB(between(GetRValue(first), GetRValue(second)), between(GetGValue(first), GetGValue(second)),
               between(GetBValue(first), GetBValue(second)));
}

CSize ToolTipWindow::sizeFor(const CString& text) {
    if (m_font.GetSafeHandle() == nullptr) {
        makeFont();
    }
    CClientDC dc(this);
    const SelectedFont selected(dc, m_font);
    CRect needed(0, 0, XTPDpiHelper().ScaleX(S_widestText), 0);
    dc.DrawText(text, &needed, S_textFormat | DT_CALCRECT);
    needed.InflateRect(padding());
    return needed.Size();
}

void ToolTipWindow::OnPaint() {
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    CBrush brush(background());
    CPen pen(PS_SOLID, 1, frameColor());
    CBrush* previousBrush = dc.SelectObject(&brush);
    CPen* previousPen = dc.SelectObject(&pen);
    const int corner = cornerDiameter(m_look.style);
    dc.RoundRect(client, CPoint(corner, corner));
    dc.SelectObject(previousPen);
    dc.SelectObject(previousBrush);

    CString text;
    GetWindowText(text);
    const SelectedFont selected(dc, m_font);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(textColor());
    client.DeflateRect(padding());
    dc.DrawText(text, &client, S_textFormat);
}

BOOL ToolTipWindow::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void ToolTipWindow::OnTimer(UINT_PTR id) {
    m_onTimer(id);
}

LRESULT ToolTipWindow::OnNcHitTest(CPoint) {
    return HTTRANSPARENT;
}
