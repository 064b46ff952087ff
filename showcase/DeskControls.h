#pragma once

#include <XTToolkitPro.h>

#include "DeskDropList.h"
#include "DeskFonts.h"

namespace Desk {

/// A push button in the colours of the theme.
class DeskButton : public CXTPButton {
public:
    BOOL createIn(CWnd* parent, int id, const wchar_t* text, DeskFonts& fonts);
    /// Draws a button of somebody else as long as that lives.
    void adopt(HWND button, DeskFonts& fonts);
    /// The button that Enter presses, told by its colour.
    void makeDefault() { m_isDefault = true; }
    void OnDraw(CDC* dc) override;

protected:
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    DECLARE_MESSAGE_MAP()

private:
    DeskFonts* m_fonts = nullptr;
    bool m_isDefault = false;
    bool m_isHot = false;
};

/// A radio button or a check box in the colours of the theme; the system's own in all but its looks.
class DeskChoice : public CButton {
public:
    enum class Kind { Radio, Check };

    /// The first radio button of a group has `WS_GROUP` in `style`.
    BOOL createIn(CWnd* parent, int id, const wchar_t* text, Kind kind, DWORD style, DeskFonts& fonts);
    bool isChosen() const { return GetCheck() == BST_CHECKED; }
    void choose(bool chosen = true) { SetCheck(chosen ? BST_CHECKED : BST_UNCHECKED); }
    /// The width that shows all of it.
    int neededWidth() const;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    DECLARE_MESSAGE_MAP()

private:
    void draw(CDC& dc);
    void drawMark(CDC& dc, const CRect& area);

    DeskFonts* m_fonts = nullptr;
    Kind m_kind = Kind::Radio;
};

/// A drop-down list in the colours of the theme, with all that drops down.
class DeskCombo : public CComboBox {
public:
    BOOL createIn(CWnd* parent, int id, DeskFonts& fonts);

    /// An item of the list that drops down; the field draws itself.
    void DrawItem(LPDRAWITEMSTRUCT item) override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    DECLARE_MESSAGE_MAP()

private:
    void draw(CDC& dc);

    DeskFonts* m_fonts = nullptr;
    DeskDropList m_list;
};

} // namespace Desk
