#include "afxwin_dc.h"

namespace {

UINT countOf(LPCWSTR text, int count) {
    return static_cast<UINT>(count < 0 ? lstrlenW(text) : count);
}

HDC handleOf(const CDC* context) {
    return context != nullptr ? context->m_hDC : nullptr;
}

} // namespace

CPoint CDC::GetCurrentPosition() const {
    CPoint position;
    ::GetCurrentPositionEx(m_hAttribDC, &position);
    return position;
}

CPoint CDC::MoveTo(int x, int y) {
    CPoint previous;
    ::MoveToEx(m_hDC, x, y, &previous);
    if (hasOwnAttributes()) {
        ::MoveToEx(m_hAttribDC, x, y, &previous);
    }
    return previous;
}

BOOL CDC::LineTo(int x, int y) {
    if (hasOwnAttributes()) {
        ::MoveToEx(m_hAttribDC, x, y, nullptr);
    }
    return ::LineTo(m_hDC, x, y);
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr) {
    ::SetBkColor(m_hDC, clr);
    ::ExtTextOutW(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr) {
    FillSolidRect(CRect(x, y, x + cx, y + cy), clr);
}

void CDC::Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight) {
    const CRect frame(lpRect);
    FillSolidRect(CRect(frame.left, frame.top, frame.right - 1, frame.top + 1), clrTopLeft);
    FillSolidRect(CRect(frame.left, frame.top, frame.left + 1, frame.bottom - 1), clrTopLeft);
    FillSolidRect(CRect(frame.right - 1, frame.top, frame.right, frame.bottom), clrBottomRight);
    FillSolidRect(CRect(frame.left, frame.bottom - 1, frame.right, frame.bottom), clrBottomRight);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight) {
    Draw3dRect(CRect(x, y, x + cx, y + cy), clrTopLeft, clrBottomRight);
}

BOOL CDC::BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop) {
    return ::BitBlt(m_hDC, x, y, nWidth, nHeight, handleOf(pSrcDC), xSrc, ySrc, dwRop);
}

BOOL CDC::StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                     int nSrcHeight, DWORD dwRop) {
    return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, handleOf(pSrcDC), xSrc, ySrc, nSrcWidth, nSrcHeight, dwRop);
}

BOOL CDC::TransparentBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                         int nSrcHeight, UINT crTransparent) {
    return ::TransparentBlt(m_hDC, x, y, nWidth, nHeight, handleOf(pSrcDC), xSrc, ySrc, nSrcWidth, nSrcHeight,
                            crTransparent);
}

BOOL CDC::AlphaBlend(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                     int nSrcHeight, BLENDFUNCTION blend) {
    return ::AlphaBlend(m_hDC, x, y, nWidth, nHeight, handleOf(pSrcDC), xSrc, ySrc, nSrcWidth, nSrcHeight, blend);
}

BOOL CDC::TextOut(int x, int y, LPCWSTR lpszString, int nCount) {
    return ::TextOutW(m_hDC, x, y, lpszString, static_cast<int>(countOf(lpszString, nCount)));
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCWSTR lpszString, UINT nCount, LPINT lpDxWidths) {
    return ::ExtTextOutW(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
}

int CDC::DrawText(LPCWSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat) {
    return ::DrawTextW(m_hDC, lpszString, nCount, lpRect, nFormat);
}

CSize CDC::GetTextExtent(LPCWSTR lpszString, int nCount) const {
    CSize extent;
    ::GetTextExtentPoint32W(m_hAttribDC, lpszString, static_cast<int>(countOf(lpszString, nCount)), &extent);
    return extent;
}

CSize CDC::GetOutputTextExtent(LPCWSTR lpszString, int nCount) const {
    CSize extent;
    ::GetTextExtentPoint32W(m_hDC, lpszString, static_cast<int>(countOf(lpszString, nCount)), &extent);
    return extent;
}

int CDC::GetTextFace(CString& rString) const {
    const int length = ::GetTextFaceW(m_hAttribDC, 0, nullptr);
    ::GetTextFaceW(m_hAttribDC, length, rString.GetBuffer(length));
    rString.ReleaseBuffer();
    return rString.GetLength();
}
