#include "afxwin_dc.h"

#include <cstdlib>

CPoint CDC::GetViewportOrg() const {
    CPoint origin;
    ::GetViewportOrgEx(m_hAttribDC, &origin);
    return origin;
}

CSize CDC::GetViewportExt() const {
    CSize extent;
    ::GetViewportExtEx(m_hAttribDC, &extent);
    return extent;
}

CPoint CDC::GetWindowOrg() const {
    CPoint origin;
    ::GetWindowOrgEx(m_hAttribDC, &origin);
    return origin;
}

CSize CDC::GetWindowExt() const {
    CSize extent;
    ::GetWindowExtEx(m_hAttribDC, &extent);
    return extent;
}

int CDC::SetMapMode(int nMapMode) {
    const int previous = ::SetMapMode(m_hDC, nMapMode);
    return hasOwnAttributes() ? ::SetMapMode(m_hAttribDC, nMapMode) : previous;
}

CPoint CDC::SetViewportOrg(int x, int y) {
    CPoint previous;
    ::SetViewportOrgEx(m_hDC, x, y, &previous);
    if (hasOwnAttributes()) {
        ::SetViewportOrgEx(m_hAttribDC, x, y, &previous);
    }
    return previous;
}

CPoint CDC::OffsetViewportOrg(int nWidth, int nHeight) {
    CPoint previous;
    ::OffsetViewportOrgEx(m_hDC, nWidth, nHeight, &previous);
    if (hasOwnAttributes()) {
        ::OffsetViewportOrgEx(m_hAttribDC, nWidth, nHeight, &previous);
    }
    return previous;
}

CSize CDC::SetViewportExt(int cx, int cy) {
    CSize previous;
    ::SetViewportExtEx(m_hDC, cx, cy, &previous);
    if (hasOwnAttributes()) {
        ::SetViewportExtEx(m_hAttribDC, cx, cy, &previous);
    }
    return previous;
}

CPoint CDC::SetWindowOrg(int x, int y) {
    CPoint previous;
    ::SetWindowOrgEx(m_hDC, x, y, &previous);
    if (hasOwnAttributes()) {
        ::SetWindowOrgEx(m_hAttribDC, x, y, &previous);
    }
    return previous;
}

CPoint CDC::OffsetWindowOrg(int nWidth, int nHeight) {
    CPoint previous;
    ::OffsetWindowOrgEx(m_hDC, nWidth, nHeight, &previous);
    if (hasOwnAttributes()) {
        ::OffsetWindowOrgEx(m_hAttribDC, nWidth, nHeight, &previous);
    }
    return previous;
}

CSize CDC::SetWindowExt(int cx, int cy) {
    CSize previous;
    ::SetWindowExtEx(m_hDC, cx, cy, &previous);
    if (hasOwnAttributes()) {
        ::SetWindowExtEx(m_hAttribDC, cx, cy, &previous);
    }
    return previous;
}

// A size is the distance of two points, so that origins have no part in it; it has no sign in the other space.

void CDC::DPtoLP(LPSIZE lpSize) const {
    POINT points[2] = {{0, 0}, {lpSize->cx, lpSize->cy}};
    DPtoLP(points, 2);
    *lpSize = {std::abs(points[1].x - points[0].x), std::abs(points[1].y - points[0].y)};
}

void CDC::LPtoDP(LPSIZE lpSize) const {
    POINT points[2] = {{0, 0}, {lpSize->cx, lpSize->cy}};
    LPtoDP(points, 2);
    *lpSize = {std::abs(points[1].x - points[0].x), std::abs(points[1].y - points[0].y)};
}
