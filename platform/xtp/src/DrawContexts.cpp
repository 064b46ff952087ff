#include "XTPDrawContexts.h"

namespace {

HWND handleOf(const CWnd* window) {
    return window != nullptr ? window->m_hWnd : nullptr;
}

} // namespace

CXTPClientRect::CXTPClientRect(HWND hWnd) {
    ::GetClientRect(hWnd, this);
}

CXTPClientRect::CXTPClientRect(const CWnd* pWnd) : CXTPClientRect(handleOf(pWnd)) {}

CXTPWindowRect::CXTPWindowRect(HWND hWnd) {
    ::GetWindowRect(hWnd, this);
}

CXTPWindowRect::CXTPWindowRect(const CWnd* pWnd) : CXTPWindowRect(handleOf(pWnd)) {}

CXTPBufferDC::CXTPBufferDC(CPaintDC& paintDC) : CXTPBufferDC(paintDC.m_hDC, CRect(paintDC.m_ps.rcPaint)) {}

CXTPBufferDC::CXTPBufferDC(HDC hDestDC, const CRect& rcPaint)
    : m_target(hDestDC),
      m_part(rcPaint),
      m_bitmap(::CreateCompatibleBitmap(hDestDC, m_part.Width(), m_part.Height())) {
    if (Attach(::CreateCompatibleDC(hDestDC)) && m_bitmap != nullptr) {
        m_previousBitmap = ::SelectObject(m_hDC, m_bitmap);
        SetViewportOrg(-m_part.left, -m_part.top);
    }
}

CXTPBufferDC::~CXTPBufferDC() {
    if (m_previousBitmap != nullptr) {
        // The one who painted may have left clips and origins behind.
        ::SelectClipRgn(m_hDC, nullptr);
        SetMapMode(MM_TEXT);
        SetWindowOrg(0, 0);
        SetViewportOrg(0, 0);
        ::BitBlt(m_target, m_part.left, m_part.top, m_part.Width(), m_part.Height(), m_hDC, 0, 0, SRCCOPY);
        ::SelectObject(m_hDC, m_previousBitmap);
    }
    ::DeleteObject(m_bitmap);
}

CXTPPenDC::CXTPPenDC(HDC hDC, COLORREF crColor, int nPenStyle, int nWidth)
    : m_context(hDC),
      m_pen(nPenStyle, nWidth, crColor),
      m_previousPen(::SelectObject(hDC, m_pen)) {}

CXTPPenDC::~CXTPPenDC() {
    ::SelectObject(m_context, m_previousPen);
}

CXTPBitmapDC::CXTPBitmapDC(CDC* pDC, CBitmap* pBitmap)
    : m_context(pDC->GetSafeHdc()),
      m_previousBitmap(::SelectObject(m_context, *pBitmap)) {}

CXTPBitmapDC::~CXTPBitmapDC() {
    ::SelectObject(m_context, m_previousBitmap);
}
