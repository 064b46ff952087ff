#pragma once

#include <OrtinControls/AdvancedScroll.h>
#include <afxwin.h>

#include "DeskFonts.h"
#include "chart/ChartCanvas.h"
#include "chart/ChartModel.h"
#include "chart/StylePanel.h"

namespace Desk {

/// The chart's half of the desk: the canvas, under it the bar that holds the visible range, beside them the styles of
/// what is selected.
class ChartPane : public CWnd, private AdvancedScroll::IScrollHandler {
public:
    /// The children.
    static constexpr int CanvasId = 1;
    static constexpr int BarId = 2;
    static constexpr int PanelId = 3;

    /// `fonts` outlive the pane.
    ChartPane(CandleSource source, ChartMemory memory, DeskFonts& fonts);
    ~ChartPane() override;

    BOOL createIn(CWnd* parent, int id);
    /// The height that it needs at least, in pixels.
    static int leastHeight();

    const ChartModel& model() const { return m_model; }
    ChartCanvas& canvas() { return m_canvas; }
    /// As the model does.
    void show(const Instrument* instrument, const PriceSession* session = nullptr);
    void follow(const PriceSession& session);
    void setTheme(DeskTheme theme);
    /// A wheel turned over the pane or while the focus is in it.
    void turnWheel(const MSG& message);
    /// Whether Escape has something to end in the chart.
    bool takesEscape() { return m_model.gestures().canLeave(); }
    void apply(const ChartChange& change) { m_canvas.apply(change); }
    ChartGestures& gestures() { return m_model.gestures(); }

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSetFocus(CWnd* oldWindow);
    DECLARE_MESSAGE_MAP()

private:
    void OnScrollChanged(AdvancedScroll::ChangeMessageInfo info) override;

    void place();
    void showRange();
    void showSelected();

    ChartModel m_model;
    ChartCanvas m_canvas;
    AdvancedScroll m_bar{this};
    StylePanel m_panel;
};

} // namespace Desk
