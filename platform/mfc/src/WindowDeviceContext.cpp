#include "afxwin.h"

IMPLEMENT_DYNAMIC(CPaintDC, CDC)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)

namespace {

HWND handleOf(const CWnd* window) {
    return window != nullptr ? window->m_hWnd : nullptr;
}

CRect clientRectOf(HWND window) {
    CRect client;
    ::GetClientRect(window, &client);
    return client;
}

void needResource(BOOL obtained) {
    if (!obtained) {
        AfxThrowResourceException();
    }
}

} // namespace

CWnd* CDC::GetWindow() const {
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

CPaintDC::CPaintDC(CWnd* pWnd) : m_hWnd(handleOf(pWnd)) {
    needResource(Attach(::BeginPaint(m_hWnd, &m_ps)));
}

CPaintDC::~CPaintDC() {
    Detach();
    // A destroyed window took its context with it.
    if (::IsWindow(m_hWnd)) {
        ::EndPaint(m_hWnd, &m_ps);
    }
}

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(handleOf(pWnd)) {
    needResource(Attach(::GetDC(m_hWnd)));
}

CClientDC::~CClientDC() {
    ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(handleOf(pWnd)) {
    needResource(Attach(::GetWindowDC(m_hWnd)));
}

CWindowDC::~CWindowDC() {
    ::ReleaseDC(m_hWnd, Detach());
}

CMemDC::CMemDC(CDC& dc, CWnd* pWnd) : m_dc(dc), m_rect(clientRectOf(handleOf(pWnd))) {
    begin();
}

CMemDC::CMemDC(CDC& dc, const CRect& rect) : m_dc(dc), m_rect(rect) {
    begin();
}

void CMemDC::begin() {
    if (m_rect.IsRectEmpty() || !m_dcMem.CreateCompatibleDC(&m_dc) ||
        !m_bmp.CreateCompatibleBitmap(&m_dc, m_rect.Width(), m_rect.Height())) {
        return;
    }
    m_pOldBmp = m_dcMem.SelectObject(&m_bmp);
    m_dcMem.SetViewportOrg(-m_rect.left, -m_rect.top);
    m_bMemDC = TRUE;
}

CMemDC::~CMemDC() {
    if (!m_bMemDC) {
        return;
    }
    // The one who painted may have left clips and origins behind.
    m_dcMem.SelectClipRgn(nullptr);
    m_dcMem.SetMapMode(MM_TEXT);
    m_dcMem.SetWindowOrg(0, 0);
    m_dcMem.SetViewportOrg(-m_rect.left, -m_rect.top);
    m_dc.BitBlt(m_rect.left, m_rect.top, m_rect.Width(), m_rect.Height(), &m_dcMem, m_rect.left, m_rect.top, SRCCOPY);
    m_dcMem.SelectObject(m_pOldBmp);
}
