#pragma once

#include <afxwin.h>

/// Selects a GDI object into a device context for the length of a scope. Both outlive the scope.
class SelectedObject {
public:
    SelectedObject(CDC& dc, CGdiObject& object)
        : m_dc(dc.GetSafeHdc()),
          m_previous(::SelectObject(m_dc, object.GetSafeHandle())) {}
    SelectedObject(const SelectedObject&) = delete;
    SelectedObject& operator=(const SelectedObject&) = delete;
    ~SelectedObject() { ::SelectObject(m_dc, m_previous); }

private:
    HDC m_dc;
    HGDIOBJ m_previous;
};
