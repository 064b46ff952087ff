#pragma once

#include <string>

#include <afxwin.h>

#include "DeskFonts.h"

namespace Desk {

/// The text of the search: an edit control in the colours of the theme, with a hint while it is empty.
class FindBox : public CEdit {
public:
    /// `fonts` outlive the box.
    BOOL createIn(CWnd* parent, int id, DeskFonts& fonts);

    std::wstring text() const;
    /// Takes the focus with all text selected.
    void edit();
    /// Takes the focus with this as the text, to go on typing behind it.
    void editFrom(wchar_t firstLetter);
    void empty();

protected:
    afx_msg void OnPaint();
    afx_msg void OnSetFocus(CWnd* oldWindow);
    afx_msg void OnKillFocus(CWnd* newWindow);
    afx_msg HBRUSH CtlColor(CDC* dc, UINT kind);
    DECLARE_MESSAGE_MAP()

private:
    DeskFonts* m_fonts = nullptr;
    CBrush m_background;
    COLORREF m_backgroundColor = CLR_INVALID;
};

} // namespace Desk
