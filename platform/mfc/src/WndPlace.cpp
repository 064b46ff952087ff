#include "afxwin.h"

#include <algorithm>

namespace {

/// Room for a centred window, in the coordinates that SetWindowPos wants for it.
struct CenterArea {
    RECT around;
    RECT limits;
};

RECT workAreaAt(HWND window) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof(monitor);
    GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
    return monitor.rcWork;
}

CenterArea areaForChild(HWND child, HWND center) {
    HWND parent = ::GetParent(child);
    CenterArea area{};
    ::GetClientRect(center, &area.around);
    ::MapWindowPoints(center, parent, reinterpret_cast<POINT*>(&area.around), 2);
    ::GetClientRect(parent, &area.limits);
    return area;
}

CenterArea areaForTopLevel(HWND window, HWND center) {
    if (center == nullptr || !::IsWindowVisible(center) || ::IsIconic(center)) {
        const RECT work = workAreaAt(center != nullptr ? center : window);
        return {work, work};
    }
    CenterArea area{{}, workAreaAt(center)};
    ::GetWindowRect(center, &area.around);
    return area;
}

LONG centered(LONG from, LONG to, LONG extent, LONG lowest, LONG highest) {
    const LONG middle = (from + to) / 2 - extent / 2;
    // A window larger than the room shows its upper left.
    return std::max(std::min(middle, highest - extent), lowest);
}

} // namespace

void CWnd::MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint) {
    ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
}

void CWnd::MoveWindow(LPCRECT lpRect, BOOL bRepaint) {
    MoveWindow(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top, bRepaint);
}

BOOL CWnd::SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags) {
    HWND after = pWndInsertAfter != nullptr ? pWndInsertAfter->m_hWnd : nullptr;
    return ::SetWindowPos(m_hWnd, after, x, y, cx, cy, nFlags);
}

void CWnd::BringWindowToTop() {
    ::BringWindowToTop(m_hWnd);
}

void CWnd::GetWindowRect(LPRECT lpRect) const {
    ::GetWindowRect(m_hWnd, lpRect);
}

void CWnd::GetClientRect(LPRECT lpRect) const {
    ::GetClientRect(m_hWnd, lpRect);
}

BOOL CWnd::GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const {
    lpwndpl->length = sizeof(*lpwndpl);
    return ::GetWindowPlacement(m_hWnd, lpwndpl);
}

BOOL CWnd::SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl) {
    WINDOWPLACEMENT placement = *lpwndpl;
    placement.length = sizeof(placement);
    return ::SetWindowPlacement(m_hWnd, &placement);
}

int CWnd::SetWindowRgn(HRGN hRgn, BOOL bRedraw) {
    return ::SetWindowRgn(m_hWnd, hRgn, bRedraw);
}

void CWnd::ClientToScreen(LPPOINT lpPoint) const {
    ::ClientToScreen(m_hWnd, lpPoint);
}

void CWnd::ClientToScreen(LPRECT lpRect) const {
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<POINT*>(lpRect), 2);
}

void CWnd::ScreenToClient(LPPOINT lpPoint) const {
    ::ScreenToClient(m_hWnd, lpPoint);
}

void CWnd::ScreenToClient(LPRECT lpRect) const {
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<POINT*>(lpRect), 2);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const {
    ::MapWindowPoints(m_hWnd, pwndTo != nullptr ? pwndTo->m_hWnd : nullptr, lpPoint, nCount);
}

void CWnd::MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const {
    MapWindowPoints(pwndTo, reinterpret_cast<POINT*>(lpRect), 2);
}

void CWnd::CenterWindow(CWnd* pAlternateOwner) {
    const bool child = (GetStyle() & WS_CHILD) != 0;
    HWND center = child ? ::GetParent(m_hWnd) : ::GetWindow(m_hWnd, GW_OWNER);
    if (pAlternateOwner != nullptr) {
        center = pAlternateOwner->m_hWnd;
    }
    const auto [around, limits] = child ? areaForChild(m_hWnd, center) : areaForTopLevel(m_hWnd, center);
    RECT own{};
    ::GetWindowRect(m_hWnd, &own);
    const LONG x = centered(around.left, around.right, own.right - own.left, limits.left, limits.right);
    const LONG y = centered(around.top, around.bottom, own.bottom - own.top, limits.top, limits.bottom);
    ::SetWindowPos(m_hWnd, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

BOOL CWnd::CalcWindowRect(LPRECT lpClientRect, DWORD dwStyle, DWORD dwExStyle, BOOL bMenu) {
    return ::AdjustWindowRectEx(lpClientRect, dwStyle, bMenu, dwExStyle);
}
