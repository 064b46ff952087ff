#pragma once

#include <memory>

#include <OrtinControls/Export.h>
#include <afxwin.h>

struct AdvancedScrollState;

/// A horizontal bar that shows a window over a range, such as the visible part of a long series: its thumb moves the
/// window (pan), each edge of the thumb changes its width (zoom), a press in the track moves it step by step, and a
/// double click switches between the whole range and the last window.
///
/// The window is a pair of fractions of the range, from 0.0 to 1.0; it has no pixels, and keeps its value when the bar
/// is resized. The bar follows the theme as it paints. The host makes it as a value member, creates it or subclasses a
/// static control of a dialog; GDI+ must be started. It tells of each change through `IScrollHandler`, and counts on
/// the host to answer with `SetCurrent`, above all after a turn of the wheel, a release and a double click, after which
/// the bar does not repaint by itself. Belongs to the user-interface thread; nothing throws.
class ORTIN_CONTROLS_API AdvancedScroll : public CStatic {
    DECLARE_DYNAMIC(AdvancedScroll)
public:
    /// The values of `ChangeMessageInfo::type`.
    enum EChangeType : int {
        MovementInProgress = 0,
        MovementCompleted = 1,
        RangeChangeInProgress = 2,
        RangeChangeCompleted = 3,
    };

    struct ChangeMessageInfo {
        double delta; ///< the step that was asked for, in fractions of the range; 0.0 unless a movement is in progress
        double start; ///< left edge after the change
        double end;   ///< right edge after the change
        int type;
    };

    /// Not owned by the bar, which it outlives. It may set the bar, and destroy it, from inside.
    class ORTIN_CONTROLS_API IScrollHandler {
    public:
        IScrollHandler() = default;
        IScrollHandler(const IScrollHandler&) = default;
        IScrollHandler& operator=(const IScrollHandler&) = default;
        virtual ~IScrollHandler();
        virtual void OnScrollChanged(ChangeMessageInfo info) = 0;
    };

    /// The handler may be null.
    explicit AdvancedScroll(IScrollHandler* handler);
    ~AdvancedScroll() override;
    AdvancedScroll(const AdvancedScroll&) = delete;
    AdvancedScroll& operator=(const AdvancedScroll&) = delete;

    /// Sets the window as it is given, unchecked, and repaints. A drag that goes on is driven from where the thumb or
    /// edge now lies, so that it does not jump.
    void SetCurrent(double start, double end);
    /// For a wheel turn that the host received itself: moves the window by a tenth of its width a notch of 120, away
    /// from the user towards the end. It does not zoom.
    void MoveZoomOnWheel(short delta);

    // CWnd
    void PreSubclassWindow() override;

protected:
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg BOOL OnSetCursor(CWnd* window, UINT hitTest, UINT message);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    void UpdateRects();
    void SetValidCursor();
    void EndDrag();
    void StopDragging();
    // Each tells the handler, and gives false if the bar or its window has gone since: it must not be touched then.
    bool MoveTo(long x);
    bool MoveBy(long dx);
    bool OnMovement(double delta);
    bool OnMovementCompleted();
    bool OnRange();
    bool OnRangeCompleted();
    bool SendChangedMessage(ChangeMessageInfo info);
    bool FollowDrag(CPoint& point);

    /// Shared for the length of a call to the handler, which may delete the bar.
    std::shared_ptr<AdvancedScrollState> m_state;
};
