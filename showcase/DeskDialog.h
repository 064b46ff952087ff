#pragma once

#include <afxwin.h>

#include "DeskControls.h"
#include "DeskFonts.h"

namespace Desk {

/// A dialog in the colours of the theme whose controls its class makes and places: it has no template. Enter presses
/// the button that has the focus, or else OK; Escape leaves.
class DeskDialog : public CDialog {
public:
    /// `fonts` outlive the dialog; `style` beyond that of a dialog with a title.
    DeskDialog(DeskFonts& fonts, const wchar_t* title, DWORD style = 0);

    /// The same dialog without a loop of its own, for who goes on himself and destroys it.
    BOOL open(CWnd& owner);

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    INT_PTR run(CWnd& owner);
    BOOL OnInitDialog() override;
    /// Makes the controls.
    virtual void createControls() = 0;
    /// The client area that the dialog begins with, and the controls at their places in it.
    virtual CSize firstSize() = 0;
    virtual void placeControls(CSize client) = 0;
    /// Paints what is no control on the background.
    virtual void drawBackground(CDC&) {}

    void makeLabel(CStatic& label, const wchar_t* text);
    void makeField(CEdit& field, int id);
    /// The frame of a field, which the dialog paints around it.
    void placeField(CEdit& field, CRect frame);
    void drawField(CDC& dc, CEdit& field);
    int rowHeight() const;

    DeskFonts& fonts() { return m_fonts; }

    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT kind);
    DECLARE_MESSAGE_MAP()

private:
    /// What the system wants in place of a template: a dialog with nothing in it.
    struct alignas(DWORD) EmptyTemplate {
        DLGTEMPLATE header;
        WORD menu = 0;
        WORD windowClass = 0;
        WORD title = 0;
    };

    DeskFonts& m_fonts;
    const wchar_t* m_title;
    EmptyTemplate m_template{};
    CBrush m_background;
    CBrush m_input;
    bool m_isReady = false;
};

/// Windows 10 and later paint the title bar dark on demand; where there is no such attribute nothing happens.
void setDarkTitleBar(HWND window, bool dark);

} // namespace Desk
