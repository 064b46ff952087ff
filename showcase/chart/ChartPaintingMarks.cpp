// What the picture of the chart has over its candles and around the plots.
#include "ChartPainting.h"

#include <algorithm>

#include "DeskColors.h"
#include "DeskFonts.h"
#include "chart/ChartShapes.h"
#include "core/PolishFormat.h"
#include "core/chart/ChartTexts.h"

namespace Desk {

namespace {

constexpr int MarkerRadius = 9;
constexpr int ControlPointSize = 7;
/// Beside the plot a line is drawn on for so many pixels, where nobody sees its end.
constexpr double LineMargin = 8;

CRect areaOf(const ChartArea& area) {
    return {area.left, area.top, area.right, area.bottom};
}

} // namespace

// Over the candles

void ChartPainting::drawMarkers() {
    const int radius = scaled(MarkerRadius);
    if (m_frame->highest) {
        const CandleColumn& column = m_frame->columns[*m_frame->highest];
        const OrtinPoint<float> centre{static_cast<float>(column.middle),
                                       static_cast<float>(m_frame->prices.yOf(column.candle.high))};
        const auto draw = [&](const VectorCanvas::DrawContextGdiLine& context) {
            m_painter->DrawArc(centre, radius, radius, 180, 180, &context, {0, 0});
        };
        if (isHovered(objectOf(ChartPart::ArcMarker))) {
            m_contexts.updateHalo(m_model->styleOf(ChartPart::ArcMarker));
            draw(m_contexts.halo);
        }
        draw(m_contexts.arc);
    }
    if (m_frame->busiest && m_frame->layout.volumes.height() > 0) {
        const CRect area = ellipseArea(*m_frame, radius);
        const OrtinPoint<float> first{static_cast<float>(area.left), static_cast<float>(area.top)};
        const OrtinPoint<float> second{static_cast<float>(area.right), static_cast<float>(area.bottom)};
        if (isHovered(objectOf(ChartPart::EllipseMarker))) {
            m_contexts.updateHalo(m_model->styleOf(ChartPart::EllipseMarker));
            m_painter->DrawArc({(first.x + second.x) / 2, (first.y + second.y) / 2}, area.Width() / 2,
                               area.Height() / 2, 0, 360, &m_contexts.halo, {0, 0});
        }
        m_painter->DrawEllipse(first, second, &m_contexts.ellipse, {0, 0});
    }
}

std::optional<CRect> ChartPainting::lastPriceArea() const {
    const ChartArea& axis = m_frame->layout.priceAxis;
    const int y = pixelOf(m_frame->prices.yOf(m_model->candles().back().close));
    if (y < axis.top || y >= axis.bottom)
        return std::nullopt;
    const int half = m_labelHeight / 2 + scaled(2);
    return CRect(axis.left + 1, y - half, axis.right, y + half + 1);
}

void ChartPainting::drawLastPrice() {
    const std::optional<CRect> area = lastPriceArea();
    if (!area)
        return;
    const Candle& last = m_model->candles().back();
    const COLORREF color = m_model->styleOf(last.rises() ? ChartPart::RisingCandles : ChartPart::FallingCandles).fill;
    GdiPenWrapper pen(PS_DOT, 1, color);
    m_contexts.lastPrice.UpdateContext(pen.GetHPEN());
    const int y = area->CenterPoint().y;
    m_points.clear();
    addLine(m_points, m_frame->layout.prices.left, y, m_frame->layout.prices.right, y);
    m_painter->DrawLineList(m_points.data(), m_points.size(), m_contexts.lastPrice, {0, 0});
    drawTag(singlePriceText(last.close, m_frame->priceGrid.decimals), *area, color, 0);
}

void ChartPainting::drawLines() {
    const ChartArea& plot = m_frame->layout.prices;
    clipTo(plot);
    const ChartLines& lines = m_model->lines();
    for (std::size_t index = 0; index < lines.lineCount(); ++index) {
        const TrendLine& line = lines.line(index);
        const std::optional<ClippedLine> seen =
            clipped(Desk::pixelOf(line.from, m_frame->time, m_frame->prices),
                    Desk::pixelOf(line.to, m_frame->time, m_frame->prices), plot, LineMargin);
        if (!seen)
            continue;
        m_contexts.updateLine(*m_model, index);
        if (isHovered(lineObject(index)))
            m_painter->DrawLine(floating(seen->from), floating(seen->to), &m_contexts.halo, {0, 0});
        m_painter->DrawLine(floating(seen->from), floating(seen->to), &m_contexts.line, {0, 0});
    }
    m_painter->SetClipRegion(nullptr);
}

// Around the plots

void ChartPainting::drawLabels() {
    const ChartLayout& layout = m_frame->layout;
    const CRect taken = lastPriceArea().value_or(CRect());
    const int half = m_labelHeight / 2;
    const auto beside = [&](double y, const ChartArea& plot, const std::wstring& text) {
        CRect area(plot.right, pixelOf(y) - half, layout.priceAxis.right - scaled(LabelPadding), 0);
        area.bottom = area.top + m_labelHeight;
        const bool isCut = area.top < plot.top || area.bottom > plot.bottom;
        if (!isCut && (area.bottom <= taken.top || area.top >= taken.bottom))
            drawText(text, area, m_contexts.labels, DT_RIGHT | DT_VCENTER);
    };
    for (const double price : m_frame->priceGrid.values)
        beside(m_frame->prices.yOf(price), layout.prices, priceText(price, m_frame->priceGrid.decimals));
    for (const double volume : m_frame->volumeGrid.values)
        if (volume > 0)
            beside(m_frame->volumes.yOf(volume), layout.volumes, formatLargeSum(volume));
    for (const DateMark& mark : m_frame->dates) {
        const int width = textWidth(mark.label, m_contexts.labels);
        const int left = pixelOf(m_frame->time.xOf(mark.place)) - width / 2;
        if (left >= layout.dateAxis.left && left + width <= layout.dateAxis.right)
            drawText(mark.label, CRect(left, layout.dateAxis.top + 1, left + width, layout.dateAxis.bottom),
                     m_contexts.labels, DT_CENTER | DT_VCENTER);
    }
}

void ChartPainting::drawTool() {
    const CRect area = areaOf(m_frame->lineTool);
    if (area.IsRectEmpty())
        return;
    const bool isHot = isHovered({ChartObject::Kind::LineTool, 0});
    const bool isOn = m_model->state().drawsLine;
    const COLORREF ground = isOn ? Colors::selectedRow() : isHot ? Colors::hotItem() : Colors::strip();
    m_painter->DrawRect(floating(area), isOn || isHot ? Colors::accent() : Colors::inputFrame(), ground,
                        m_contexts.tool.GetId());
    drawText(ToolText, area, m_contexts.tool, DT_CENTER | DT_VCENTER);
}

void ChartPainting::drawControlPoints() {
    const ChartObject& selected = m_model->state().selected;
    controlPoints(*m_frame, *m_model, spanArea(), m_points);
    if (m_points.empty())
        return;
    clipTo({0, m_frame->layout.prices.top, m_frame->layout.priceAxis.right, m_frame->layout.dateAxis.bottom});
    VectorCanvas::DrawControlPointsHelper::PointSettings settings;
    settings.lineColor = Colors::accent();
    settings.lineWidth = std::max(1, scaled(1));
    settings.fillColor = Colors::rowBackground();
    settings.fill = true;
    settings.pointSize = scaled(ControlPointSize);
    settings.circle = selected.kind == ChartObject::Kind::Line;
    settings.opacity = 1;
    settings.smooth = true;
    m_painter->DrawControlPoints(idOf(selected), m_points.data(), m_points.size(), {0, 0}, settings);
    m_painter->SetClipRegion(nullptr);
}

} // namespace Desk
