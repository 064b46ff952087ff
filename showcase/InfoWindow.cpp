#include "InfoWindow.h"

#include <OrtinControls/SystemColors.h>

#include <algorithm>

#include "DeskColors.h"
#include "DeskDialog.h"

namespace Desk {

namespace {

constexpr int ViewId = 1;
constexpr int VerticalBarId = 2;
constexpr int HorizontalBarId = 3;

/// At 96 pixels to the inch.
constexpr int StartHeight = 620;
constexpr int LeastWidth = 260;
constexpr int LeastHeight = 160;

constexpr DWORD Style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_CLIPCHILDREN;

} // namespace

BEGIN_MESSAGE_MAP(InfoWindow, CWnd)
    ON_WM_CREATE()
    ON_WM_SIZE()
    ON_WM_GETMINMAXINFO()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

InfoWindow::~InfoWindow() {
    DestroyWindow();
}

BOOL InfoWindow::openOver(CWnd& desk) {
    if (GetSafeHwnd())
        return TRUE;
    CRect rect(0, 0, static_cast<int>(m_view.pageSize().cx) + DeskScrollBar::width(), scaled(StartHeight));
    CalcWindowRect(&rect, Style);
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    ::GetMonitorInfoW(::MonitorFromWindow(desk, MONITOR_DEFAULTTONEAREST), &monitor);
    const int height = std::min(rect.Height(), CRect(monitor.rcWork).Height());
    if (!CreateEx(0, AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW)), L"Informacje", Style, 0, 0,
                  rect.Width(), height, desk.m_hWnd, nullptr))
        return FALSE;
    CenterWindow();
    return TRUE;
}

int InfoWindow::OnCreate(LPCREATESTRUCT create) {
    if (CWnd::OnCreate(create) == -1 || !m_view.createIn(this, ViewId) ||
        !m_verticalBar.createIn(this, VerticalBarId) || !m_horizontalBar.createIn(this, HorizontalBarId))
        return -1;
    m_verticalBar.onScrollTo = [this](int position) { m_view.scrollToY(position); };
    m_horizontalBar.onScrollTo = [this](int position) { m_view.scrollToX(position); };
    m_view.onScrolled = [this] { showState(); };
    setDarkTitleBar(m_hWnd, SystemColors::GetCurrentDomainColor() == EThemeColor::BlackTheme);
    placeWindows();
    return 0;
}

void InfoWindow::repaint() {
    if (!GetSafeHwnd())
        return;
    setDarkTitleBar(m_hWnd, SystemColors::GetCurrentDomainColor() == EThemeColor::BlackTheme);
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

BOOL InfoWindow::PreTranslateMessage(MSG* message) {
    switch (message->message) {
    case WM_MOUSEWHEEL:
        m_view.scrollByWheel(GET_WHEEL_DELTA_WPARAM(message->wParam));
        return TRUE;
    case WM_KEYDOWN:
        return takeKey(message->wParam);
    default:
        return CWnd::PreTranslateMessage(message);
    }
}

/// The desk gets what is left, unless it waits for a dialog.
bool InfoWindow::takeKey(WPARAM key) {
    switch (key) {
    case VK_ESCAPE:
        DestroyWindow();
        return true;
    case VK_TAB:
        return true;
    default:
        return m_view.scrollByKey(key) || !GetParent()->IsWindowEnabled();
    }
}

// Layout

/// Each bar is there only when its axis needs it; the other one takes room from it.
void InfoWindow::placeWindows() {
    CRect client;
    GetClientRect(&client);
    const CSize page = m_view.pageSize();
    const int bar = DeskScrollBar::width();
    bool needsVertical = client.bottom < page.cy;
    const bool needsHorizontal = client.right - (needsVertical ? bar : 0) < page.cx;
    needsVertical = client.bottom - (needsHorizontal ? bar : 0) < page.cy;
    const int right = std::max(0, static_cast<int>(client.right) - (needsVertical ? bar : 0));
    const int bottom = std::max(0, static_cast<int>(client.bottom) - (needsHorizontal ? bar : 0));

    m_verticalBar.MoveWindow(right, 0, client.right - right, bottom);
    m_horizontalBar.MoveWindow(0, bottom, right, client.bottom - bottom);
    m_view.MoveWindow(0, 0, right, bottom);
    showState();
    const CRect corner(right, bottom, client.right, client.bottom);
    InvalidateRect(&corner, FALSE);
}

void InfoWindow::showState() {
    m_verticalBar.setState(m_view.vertical());
    m_horizontalBar.setState(m_view.horizontal());
}

void InfoWindow::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    if (type != SIZE_MINIMIZED && m_view.GetSafeHwnd())
        placeWindows();
}

void InfoWindow::OnGetMinMaxInfo(MINMAXINFO* info) {
    CWnd::OnGetMinMaxInfo(info);
    CRect least(0, 0, scaled(LeastWidth), scaled(LeastHeight));
    CalcWindowRect(&least, Style);
    info->ptMinTrackSize = CPoint(least.Width(), least.Height());
}

/// Where both bars meet the window is its own.
void InfoWindow::OnPaint() {
    CPaintDC dc(this);
    const CRect part(dc.m_ps.rcPaint);
    dc.FillSolidRect(&part, Colors::scrollTrack());
}

BOOL InfoWindow::OnEraseBkgnd(CDC*) {
    return TRUE;
}

} // namespace Desk
