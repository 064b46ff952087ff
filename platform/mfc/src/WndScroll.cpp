#include "afxwin.h"
#include "afxwin_ctl.h"

namespace {

/// The bar that an operation means: one of the window's own, or a control that stands for it.
struct ScrollTarget {
    HWND window;
    int bar;
};

ScrollTarget targetOf(const CWnd& window, int bar) {
    const CScrollBar* control = window.GetScrollBarCtrl(bar);
    return control != nullptr ? ScrollTarget{control->m_hWnd, SB_CTL} : ScrollTarget{window.m_hWnd, bar};
}

} // namespace

CScrollBar* CWnd::GetScrollBarCtrl(int) const {
    return nullptr;
}

int CWnd::GetScrollPos(int nBar) const {
    const ScrollTarget target = targetOf(*this, nBar);
    return ::GetScrollPos(target.window, target.bar);
}

int CWnd::SetScrollPos(int nBar, int nPos, BOOL bRedraw) {
    const ScrollTarget target = targetOf(*this, nBar);
    return ::SetScrollPos(target.window, target.bar, nPos, bRedraw);
}

void CWnd::GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const {
    const ScrollTarget target = targetOf(*this, nBar);
    ::GetScrollRange(target.window, target.bar, lpMinPos, lpMaxPos);
}

void CWnd::SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw) {
    const ScrollTarget target = targetOf(*this, nBar);
    ::SetScrollRange(target.window, target.bar, nMinPos, nMaxPos, bRedraw);
}

BOOL CWnd::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask) {
    const ScrollTarget target = targetOf(*this, nBar);
    lpScrollInfo->cbSize = sizeof(*lpScrollInfo);
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(target.window, target.bar, lpScrollInfo);
}

BOOL CWnd::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw) {
    const ScrollTarget target = targetOf(*this, nBar);
    lpScrollInfo->cbSize = sizeof(*lpScrollInfo);
    ::SetScrollInfo(target.window, target.bar, lpScrollInfo, bRedraw);
    return TRUE;
}

int CWnd::GetScrollLimit(int nBar) {
    int lowest = 0;
    int highest = 0;
    GetScrollRange(nBar, &lowest, &highest);
    SCROLLINFO info{};
    if (GetScrollInfo(nBar, &info, SIF_PAGE) && info.nPage > 1) {
        highest -= static_cast<int>(info.nPage) - 1;
    }
    return highest;
}

void CWnd::ShowScrollBar(UINT nBar, BOOL bShow) {
    ::ShowScrollBar(m_hWnd, static_cast<int>(nBar), bShow);
}

BOOL CWnd::EnableScrollBar(int nSBFlags, UINT nArrowFlags) {
    return ::EnableScrollBar(m_hWnd, static_cast<UINT>(nSBFlags), nArrowFlags);
}

void CWnd::EnableScrollBarCtrl(int nBar, BOOL bEnable) {
    if (CScrollBar* control = GetScrollBarCtrl(nBar)) {
        control->EnableWindow(bEnable);
    } else {
        EnableScrollBar(nBar, bEnable ? ESB_ENABLE_BOTH : ESB_DISABLE_BOTH);
    }
}

void CWnd::ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect, LPCRECT lpClipRect) {
    ::ScrollWindow(m_hWnd, xAmount, yAmount, lpRect, lpClipRect);
}

int CWnd::ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate,
                         LPRECT lpRectUpdate, UINT flags) {
    HRGN update = prgnUpdate != nullptr ? static_cast<HRGN>(prgnUpdate->GetSafeHandle()) : nullptr;
    return ::ScrollWindowEx(m_hWnd, dx, dy, lpRectScroll, lpRectClip, update, lpRectUpdate, flags);
}
