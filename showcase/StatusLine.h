#pragma once

#include <array>
#include <string>

#include <afxwin.h>

#include "DeskFonts.h"

namespace Desk {

/// The line under the table: texts from left to right, the last one at the right edge.
class StatusLine : public CWnd {
public:
    static constexpr std::size_t FieldCount = 3;

    /// `fonts` outlive the line.
    explicit StatusLine(DeskFonts& fonts);

    BOOL createIn(CWnd* parent, int id);
    int height() const;
    void setField(std::size_t field, const std::wstring& text);

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    DECLARE_MESSAGE_MAP()

private:
    CRect fieldRect(std::size_t field);

    DeskFonts& m_fonts;
    std::array<std::wstring, FieldCount> m_fields;
};

} // namespace Desk
