#pragma once

#include <vector>

#include <afxwin.h>

#include "DeskFonts.h"
#include "chart/ChartModel.h"
#include "core/chart/ChartFrame.h"

namespace Desk {

/// What lies over the chart's picture and follows the mouse without a new one: the cross-hair, its labels on the axes,
/// and the legend with the values of the candle under it.
class ChartOverlay {
public:
    /// All outlive it.
    ChartOverlay(const ChartModel& model, const ChartFrame& frame, DeskFonts& fonts);

    void draw(CDC& dc);
    /// All that it covers now, and the legend.
    std::vector<CRect> areas() const;

private:
    struct Label {
        std::wstring text;
        CRect area;
    };

    std::optional<CPoint> cross() const;
    const CandleColumn& column() const;
    std::optional<Label> valueLabel(CPoint cross) const;
    Label dateLabel(CPoint cross) const;
    void drawLegend(CDC& dc);
    void drawCross(CDC& dc, CPoint at);
    void drawLabel(CDC& dc, const Label& label);
    CRect legendArea() const;

    const ChartModel& m_model;
    const ChartFrame& m_frame;
    DeskFonts& m_fonts;
};

} // namespace Desk
