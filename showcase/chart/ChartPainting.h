#pragma once

#include <string>
#include <vector>

#include "chart/ChartContexts.h"
#include "chart/ChartModel.h"
#include "chart/Watermark.h"
#include "core/chart/ChartFrame.h"

namespace Desk {

/// Draws one picture of the chart by a painter, layer upon layer. What it needs for that is kept from picture to
/// picture.
class ChartPainting {
public:
    /// The styles of the next picture; once before it is measured.
    void takeStyles(const ChartModel& model);
    /// What the parts of a canvas of this size need, where the grid of prices has so many decimals.
    ChartMeasures measure(const ChartModel& model, CSize canvas, int priceDecimals);
    /// Between the painter's `InitRender` and `EndRender`.
    void draw(VectorCanvas::IVectorPainter& painter, const ChartModel& model, const ChartFrame& frame);

private:
    static constexpr int LabelPadding = 6; ///< beside a text, at 96 pixels to the inch
    static constexpr const wchar_t* ToolText = L"Linia trendu";

    using Points = std::vector<OrtinPoint<float>>;

    void drawWatermark();
    void drawGrid();
    void drawVolumes();
    void drawSpan();
    void drawSpanTag();
    void drawCandles();
    void drawCandles(bool rising, VectorCanvas::DrawContextGdiLine& edges,
                     VectorCanvas::DrawContextGdiLineAndFill& bodies);
    void drawAverage();
    void drawLastPrice();
    void drawMarkers();
    void drawLines();
    void drawLabels();
    void drawTool();
    void drawControlPoints();
    void fillBars(const Points& points, VectorCanvas::DrawContextGdiLineAndFill& style);
    void drawText(const std::wstring& text, const CRect& area, VectorCanvas::DrawContextGdiText& style,
                  unsigned int format);
    void drawTag(const std::wstring& text, const CRect& area, COLORREF ground, unsigned int id);
    void clipTo(const ChartArea& area);
    bool isHovered(const ChartObject& object) const;
    std::optional<CRect> spanArea() const;
    std::optional<CRect> lastPriceArea() const;
    int textWidth(const std::wstring& text, VectorCanvas::DrawContextGdiText& style) const;

    ChartContexts m_contexts;
    Watermark m_watermark;
    Points m_points;
    Points m_otherPoints;
    int m_labelHeight = 0;

    // Of the picture that is being drawn.
    VectorCanvas::IVectorPainter* m_painter = nullptr;
    const ChartModel* m_model = nullptr;
    const ChartFrame* m_frame = nullptr;
};

} // namespace Desk
