#pragma once

#include <functional>
#include <optional>

#include <afxwin.h>

#include "HotItem.h"
#include "core/ScrollThumb.h"

namespace Desk {

/// A scroll bar in the colours of the theme, vertical unless it is told otherwise. It keeps no position of its own: it
/// shows the state that it is given and tells what the user wants.
class DeskScrollBar : public CWnd {
public:
    enum class Direction { Vertical, Horizontal };

    explicit DeskScrollBar(Direction direction = Direction::Vertical) : m_direction(direction) {}

    /// Across its direction.
    static int width();
    /// The shortest thumb.
    static int leastThumb();
    /// The looks of a bar that fills `area`.
    static void draw(CDC& dc, const CRect& area, Direction direction, const ThumbSpan& thumb, bool isHot);

    BOOL createIn(CWnd* parent, int id);
    void setState(const ScrollState& state);

    std::function<void(int position)> onScrollTo;

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnCaptureChanged(CWnd* window);
    afx_msg void OnTimer(UINT_PTR timer);
    DECLARE_MESSAGE_MAP()

private:
    /// A press on the thumb: the distance from its start to the mouse.
    struct ThumbDrag {
        int grip;
    };
    /// A press beside the thumb: pages toward the mouse until the thumb is under it.
    struct Paging {
        int target;
    };

    /// How far along the track.
    int along(CPoint point) const { return m_direction == Direction::Vertical ? point.y : point.x; }
    int trackLength() const;
    ThumbSpan thumb() const;
    void turnPage();
    void endGestures();

    Direction m_direction;
    ScrollState m_state;
    std::optional<ThumbDrag> m_drag;
    std::optional<Paging> m_paging;
    HotItem<bool> m_hot{*this, false}; ///< whether the thumb is
};

} // namespace Desk
