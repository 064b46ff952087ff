#pragma once

#include <OrtinControls/Export.h>
#include <afxwin.h>

/// Scrolls a virtual display that is larger than its window with the window's two standard scroll bars.
///
/// A window owns a processor, tells it how large the display is, and forwards `WM_HSCROLL`, `WM_VSCROLL`,
/// `WM_MOUSEWHEEL` and `WM_SIZE` to it. The processor keeps the position on each axis and moves what the window shows
/// by `CWnd::ScrollWindow`; the window paints the rest from the positions of its bars. All values are pixels of the
/// display. The attached window is not owned, and outlives the processor or is detached from it. Without a window
/// nothing moves; position and sizes stay as they are. Belongs to the user-interface thread; nothing throws.
class ORTIN_CONTROLS_API ScrollProcessor {
public:
    /// Detached, and without line steps: set the line offsets.
    ScrollProcessor() = default;
    /// A line step is 60 pixels at 96 DPI.
    explicit ScrollProcessor(CWnd* wnd);

    void AttachWnd(CWnd* wnd) { m_wnd = wnd; }
    void DetachWnd() { m_wnd = nullptr; }
    void SetHorizontalLineOffset(int offset) { m_horizontalLineOffset = offset; }
    void SetVerticalLineOffset(int offset) { m_verticalLineOffset = offset; }
    /// The size of the virtual display. With a live window the bars follow at once.
    void SetDisplaySize(int cx, int cy);

    void ScrollToOrigin(bool horizontal, bool vertical);
    /// Ignores a negative position and an axis that needs no scrolling; one that is too great goes to the end.
    void ScrollHorizontalPosition(long position);
    void ScrollVerticalPosition(long position);

    /// `code` is SB_LINEUP (0) to SB_THUMBTRACK (5), others are ignored. `pos` is never read: it has 16 bits only, so
    /// that the track position is asked of `bar`, or of the window's own bar if `bar` is null.
    void OnHScroll(unsigned code, unsigned pos, CScrollBar* bar);
    void OnVScroll(unsigned code, unsigned pos, CScrollBar* bar);
    /// Moves the vertical bar, with the system's setting of three lines by one line step a notch. Gives 0 if the window
    /// has nothing to scroll, else 1; a `delta` of 0 counts as a turn towards the user.
    int OnMouseWheel(unsigned flags, short delta, CPoint point);
    /// The arguments are not read. A page that grows or shrinks takes the position with it in proportion.
    void OnSize(unsigned type, int cx, int cy);

    /// The client area of a window as it would be without scroll bars, its origin at 0, 0.
    static CRect GetClientRectSB(CWnd const* wnd);

private:
    void ScrollToPosition(int bar, long pos, long display, long page, long& scrollPos);
    void FollowCommand(int bar, unsigned code, CScrollBar* control, long lineOffset);
    long Get32BitScrollPos(int bar, CScrollBar* control);
    void UpdateScrollInfo();
    void UpdateScrollBar(int bar, int windowSize, int displaySize, long& pageSize, long& scrollPos, long& deltaPos);
    void ScrollContent(int bar, int delta);

    CWnd* m_wnd = nullptr;
    CSize m_pageSize;
    CSize m_displaySize;
    CSize m_scrollPos;
    int m_horizontalLineOffset = 0;
    int m_verticalLineOffset = 0;
};
