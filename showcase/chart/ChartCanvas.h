#pragma once

#include <functional>
#include <vector>

#include <OrtinControls/OrtinControls.h>

#include "DeskFonts.h"
#include "chart/ChartModel.h"
#include "chart/ChartOverlay.h"
#include "chart/ChartPainting.h"

namespace Desk {

/// The window of the chart. A picture is drawn when it is asked for and what it shows has changed; the overlay is
/// copied onto the screen together with it, and is renewed alone where only the mouse has moved.
class ChartCanvas : public VectorCanvas::VectorCanvasCtrl {
public:
    /// Both outlive the canvas.
    ChartCanvas(ChartModel& model, DeskFonts& fonts);
    ~ChartCanvas() override;

    BOOL createIn(CWnd* parent, int id);
    /// The user has changed the range or the selection.
    std::function<void(const ChartChange& change)> onChanged;
    /// Does what a change asks for, and tells of it.
    void apply(const ChartChange& change);
    /// What is shown has changed without the user: the picture follows with the next frame, however often it does.
    void renewSoon();
    /// For a turn of the wheel with Ctrl, at a point of the canvas.
    void zoomAt(int x, short delta);

    /// The picture as it is now: drawn, if it has changed.
    const VectorCanvas::IVectorPainter& picture();
    const ChartFrame& frame() const { return m_frame; }

protected:
    void Draw(CDC* dc, const CPoint& origin) override;

    afx_msg void OnPaint();
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* window);
    afx_msg BOOL OnSetCursor(CWnd* window, UINT hitTest, UINT message);
    afx_msg void OnKeyDown(UINT key, UINT repeats, UINT flags);
    afx_msg void OnTimer(UINT_PTR timer);
    DECLARE_MESSAGE_MAP()

private:
    void render();
    void layOut(CSize size, int priceDecimals);
    bool fitBack(CDC& dc, CSize size);
    ChartMouse mouseAt(CPoint point, UINT flags);
    void renewOverlay();

    ChartModel& m_model;
    VectorCanvas::VectorPainterGdi m_painter;
    ChartPainting m_painting;
    ChartFrame m_frame;
    ChartOverlay m_overlay;
    bool m_isStale = true;
    bool m_watchesLeaving = false;
    bool m_awaitsFrame = false;
    std::vector<CRect> m_overlayAreas; ///< as they are on the screen
    CDC m_back;                        ///< where picture and overlay come together
    CBitmap m_backPicture;
    CSize m_backSize;
};

} // namespace Desk
