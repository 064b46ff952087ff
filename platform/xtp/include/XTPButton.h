#pragma once

#include "XtpApi.h"

#include <afxwin.h>

/// A push button with a text, an icon left of it, or one of them, that draws itself alike wherever it stands. A click
/// reaches the parent as BN_CLICKED; so does each press of a quick series.
class ORTIN_XTP_API CXTPButton : public CButton {
    DECLARE_DYNAMIC(CXTPButton)
public:
    using CButton::SetIcon;
    /// The PNG resource `nIDIcon`, looked for by AfxFindResourceHandle, drawn at `iconSize` pixels. FALSE, and the icon
    /// stays, if there is no such picture. GDI+ must be started.
    BOOL SetIcon(CSize iconSize, UINT nIDIcon);

    /// Draws all of the button as it is now. What it leaves out shows the parent.
    virtual void OnDraw(CDC* pDC);

protected:
    void PreSubclassWindow() override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    void drawContent(CDC& dc, CPoint offset);
    void drawIcon(CDC& dc, CPoint place);

    CBitmap m_icon; ///< premultiplied pixels of 32 bits
    CSize m_iconSize;
    bool m_hot = false;
};
