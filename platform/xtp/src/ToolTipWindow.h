#pragma once

#include "XTPToolTipContext.h"

#include <functional>

/// What a tip is painted with. CLR_DEFAULT stands for the system's colour.
struct ToolTipLook {
    XTPToolTipStyle style = xtpToolTipStandard;
    COLORREF background = CLR_DEFAULT;
    COLORREF text = CLR_DEFAULT;
};

/// The small window that shows a tip, and the owner of the timers of its context. Made hidden at the first need.
class ToolTipWindow final : public CWnd {
public:
    ToolTipWindow(const ToolTipLook& look, std::function<void(UINT_PTR)> onTimer);
    ~ToolTipWindow() override;

    /// False if there can be no window.
    bool ensureWindow();
    /// Shows the text near a point of the screen, without taking the focus.
    void show(const CString& text, CPoint pointer);
    void hide();

private:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg LRESULT OnNcHitTest(CPoint point);

    void makeFont();
    CSize padding() const;
    COLORREF background() const;
    COLORREF textColor() const;
    COLORREF frameColor() const;
    CSize sizeFor(const CString& text);

    const ToolTipLook& m_look;
    std::function<void(UINT_PTR)> m_onTimer;
    CFont m_font;
};
