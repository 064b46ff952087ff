#pragma once

#include <afxwin.h>

namespace Desk {

/// A drawing object selected into a context until the end of the scope. Both outlive it.
class ScopedSelection {
public:
    ScopedSelection(CDC& dc, HGDIOBJ object) : m_dc(dc), m_previous(::SelectObject(dc, object)) {}
    ~ScopedSelection() { ::SelectObject(m_dc, m_previous); }
    ScopedSelection(const ScopedSelection&) = delete;
    ScopedSelection& operator=(const ScopedSelection&) = delete;

private:
    HDC m_dc;
    HGDIOBJ m_previous;
};

} // namespace Desk
