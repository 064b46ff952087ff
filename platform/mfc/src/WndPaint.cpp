#include "afxwin.h"

namespace {

HRGN handleOf(const CRgn* region) {
    return region != nullptr ? static_cast<HRGN>(region->GetSafeHandle()) : nullptr;
}

HDC handleOf(const CDC* device) {
    return device != nullptr ? device->GetSafeHdc() : nullptr;
}

} // namespace

void CWnd::Invalidate(BOOL bErase) {
    InvalidateRect(nullptr, bErase);
}

void CWnd::InvalidateRect(LPCRECT lpRect, BOOL bErase) {
    if (m_hWnd != nullptr) {
        ::InvalidateRect(m_hWnd, lpRect, bErase);
    }
}

void CWnd::InvalidateRgn(CRgn* pRgn, BOOL bErase) {
    if (m_hWnd != nullptr) {
        ::InvalidateRgn(m_hWnd, handleOf(pRgn), bErase);
    }
}

void CWnd::ValidateRect(LPCRECT lpRect) {
    if (m_hWnd != nullptr) {
        ::ValidateRect(m_hWnd, lpRect);
    }
}

BOOL CWnd::GetUpdateRect(LPRECT lpRect, BOOL bErase) {
    return ::GetUpdateRect(m_hWnd, lpRect, bErase);
}

int CWnd::GetUpdateRgn(CRgn* pRgn, BOOL bErase) {
    return ::GetUpdateRgn(m_hWnd, handleOf(pRgn), bErase);
}

void CWnd::UpdateWindow() {
    ::UpdateWindow(m_hWnd);
}

BOOL CWnd::RedrawWindow(LPCRECT lpRectUpdate, CRgn* prgnUpdate, UINT flags) {
    return m_hWnd != nullptr && ::RedrawWindow(m_hWnd, lpRectUpdate, handleOf(prgnUpdate), flags);
}

BOOL CWnd::LockWindowUpdate() {
    return m_hWnd != nullptr && ::LockWindowUpdate(m_hWnd);
}

void CWnd::UnlockWindowUpdate() {
    ::LockWindowUpdate(nullptr);
}

void CWnd::SetRedraw(BOOL bRedraw) {
    ::SendMessageW(m_hWnd, WM_SETREDRAW, static_cast<WPARAM>(bRedraw), 0);
}

CDC* CWnd::GetDC() {
    return m_hWnd != nullptr ? CDC::FromHandle(::GetDC(m_hWnd)) : nullptr;
}

CDC* CWnd::GetDCEx(CRgn* prgnClip, DWORD flags) {
    return m_hWnd != nullptr ? CDC::FromHandle(::GetDCEx(m_hWnd, handleOf(prgnClip), flags)) : nullptr;
}

CDC* CWnd::GetWindowDC() {
    return m_hWnd != nullptr ? CDC::FromHandle(::GetWindowDC(m_hWnd)) : nullptr;
}

int CWnd::ReleaseDC(CDC* pDC) {
    return ::ReleaseDC(m_hWnd, handleOf(pDC));
}

CDC* CWnd::BeginPaint(LPPAINTSTRUCT lpPaint) {
    return CDC::FromHandle(::BeginPaint(m_hWnd, lpPaint));
}

void CWnd::EndPaint(LPPAINTSTRUCT lpPaint) {
    ::EndPaint(m_hWnd, lpPaint);
}

void CWnd::Print(CDC* pDC, DWORD dwFlags) const {
    ::SendMessageW(m_hWnd, WM_PRINT, reinterpret_cast<WPARAM>(handleOf(pDC)), static_cast<LPARAM>(dwFlags));
}

void CWnd::PrintClient(CDC* pDC, DWORD dwFlags) const {
    ::SendMessageW(m_hWnd, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(handleOf(pDC)), static_cast<LPARAM>(dwFlags));
}
