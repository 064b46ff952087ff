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
    ::InvalidateRect(m_hWnd, nullptr, bErase);
}

void CWnd::InvalidateRect(LPCRECT lpRect, BOOL bErase) {
    ::InvalidateRect(m_hWnd, lpRect, bErase);
}

void CWnd::InvalidateRgn(CRgn* pRgn, BOOL bErase) {
    ::InvalidateRgn(m_hWnd, handleOf(pRgn), bErase);
}

void CWnd::ValidateRect(LPCRECT lpRect) {
    ::ValidateRect(m_hWnd, lpRect);
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
    return ::RedrawWindow(m_hWnd, lpRectUpdate, handleOf(prgnUpdate), flags);
}

BOOL CWnd::LockWindowUpdate() {
    return ::LockWindowUpdate(m_hWnd);
}

void CWnd::UnlockWindowUpdate() {
    ::LockWindowUpdate(nullptr);
}

void CWnd::SetRedraw(BOOL bRedraw) {
    ::SendMessageW(m_hWnd, WM_SETREDRAW, static_cast<WPARAM>(bRedraw), 0);
}

CDC* CWnd::GetDC() {
    return CDC::FromHandle(::GetDC(m_hWnd));
}

CDC* CWnd::GetDCEx(CRgn* prgnClip, DWORD flags) {
    return CDC::FromHandle(::GetDCEx(m_hWnd, handleOf(prgnClip), flags));
}

CDC* CWnd::GetWindowDC() {
    return CDC::FromHandle(::GetWindowDC(m_hWnd));
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
