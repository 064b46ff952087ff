#pragma once

#include <optional>

#include <afxwin.h>

#include "core/ScrollThumb.h"

namespace Desk {

/// The list that drops down from a combo box, in the colours of the theme: its frame, and a scroll bar over its right
/// edge in place of the system's. All else is the system's own. Who draws the items leaves `barWidth()` free.
class DeskDropList : public CWnd {
public:
    /// The list of a combo box that has no bar of the system; for as long as that lives.
    void adopt(CComboBox& combo);

    /// What the bar takes of an item; 0 where all items are in view.
    int barWidth() const;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnNcPaint();
    DECLARE_MESSAGE_MAP()

private:
    bool takesMouse(UINT message, CPoint point);
    void press(int y);
    void endDrag();
    void scrollTo(int top);
    void drawBar();
    CRect barArea() const;
    /// In items.
    ScrollState state() const;
    ThumbSpan thumb() const;

    std::optional<int> m_grip; ///< from the thumb's start to the mouse, while it is dragged
    bool m_hasCaptured = false;
    int m_drawnTop = 0;
};

} // namespace Desk
