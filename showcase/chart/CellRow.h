#pragma once

#include <functional>

#include <afxwin.h>

#include "HotItem.h"

namespace Desk {

/// A field of cells side by side of which one, or none, is chosen: by a press, or with the arrows, Home and End while
/// it has the focus. What a cell shows is its owner's.
class CellRow : public CWnd {
public:
    /// Draws a cell; `area` in client coordinates, its background is there already.
    using DrawCell = std::function<void(CDC& dc, const CRect& area, int cell)>;

    static constexpr int None = -1;

    BOOL createIn(CWnd* parent, int id, int cells, DrawCell draw);
    static int height();

    int chosen() const { return m_chosen; }
    /// Tells nobody. Any number that is no cell's is `None`.
    void choose(int cell);
    CRect cellArea(int cell) const;

    /// The user has chosen another cell. The row may be gone when it returns.
    std::function<void(int cell)> onChosen;

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT repetitions, UINT flags);
    afx_msg void OnSetFocus(CWnd* oldWindow);
    afx_msg void OnKillFocus(CWnd* newWindow);
    DECLARE_MESSAGE_MAP()

private:
    int cellAt(CPoint point) const;
    void userChooses(int cell);

    DrawCell m_draw;
    int m_cells = 0;
    int m_chosen = None;
    HotItem<int> m_hot{*this, None};
};

} // namespace Desk
