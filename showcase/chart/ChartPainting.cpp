#include "ChartPainting.h"

#include <OrtinFoundation/TextSizeCalculator.h>

#include <algorithm>
#include <cmath>

#include "DeskColors.h"
#include "DeskFonts.h"
#include "chart/ChartShapes.h"
#include "core/PolishFormat.h"
#include "core/chart/ChartTexts.h"

namespace Desk {

namespace {

constexpr int LegendPadding = 6;
constexpr int PlotGap = 6;
constexpr int PriceDistance = 22;
constexpr int DateDistance = 72;
constexpr int ToolMargin = 6;
constexpr int ToolPadding = 9;

} // namespace

void ChartPainting::takeStyles(const ChartModel& model) {
    m_contexts.update(model);
    m_labelHeight =
        TextSizeCalculator::GetTextSize(std::pair<HDC, HFONT>(nullptr, fontOf(m_contexts.labels)), L"0", false).cy;
}

ChartMeasures ChartPainting::measure(const ChartModel& model, CSize canvas, int priceDecimals) {
    const int widest =
        std::max(textWidth(singlePriceText(model.greatestPrice(), priceDecimals) + L"0", m_contexts.labels),
                 textWidth(formatLargeSum(model.greatestVolume()), m_contexts.labels));
    ChartMeasures measures;
    measures.width = canvas.cx;
    measures.height = canvas.cy;
    measures.parts.legend = scaled(DeskTextHeight) + scaled(DeskTextHeight) / 3 + 2 * scaled(LegendPadding);
    measures.parts.priceAxis = widest + 2 * scaled(LabelPadding);
    measures.parts.dateAxis = m_labelHeight + scaled(LabelPadding);
    measures.parts.gap = scaled(PlotGap);
    measures.lineTool.width = textWidth(ToolText, m_contexts.tool) + 2 * scaled(ToolPadding);
    measures.lineTool.margin = scaled(ToolMargin);
    measures.priceDistance = std::max(scaled(PriceDistance), m_labelHeight * 3 / 2);
    measures.dateDistance = std::max(scaled(DateDistance), 5 * m_labelHeight);
    return measures;
}

void ChartPainting::draw(VectorCanvas::IVectorPainter& painter, const ChartModel& model, const ChartFrame& frame) {
    m_painter = &painter;
    m_model = &model;
    m_frame = &frame;
    painter.Clear(Colors::rowBackground());
    // A device that is new fills the gaps of dashes, and what was drawn before decides on one that is not.
    ::SetBkMode(painter.GetSource(), TRANSPARENT);
    if (model.candles().empty()) {
        const CSize size = painter.GetViewport();
        drawText(model.missing(), CRect(CPoint(0, 0), size), m_contexts.missing,
                 DT_CENTER | DT_VCENTER | DT_END_ELLIPSIS);
        return;
    }
    drawWatermark();
    drawGrid();
    drawVolumes();
    drawSpan();
    clipTo(frame.layout.prices);
    drawCandles();
    drawAverage();
    painter.SetClipRegion(nullptr);
    drawMarkers();
    drawLastPrice();
    drawLines();
    drawSpanTag();
    drawLabels();
    drawTool();
    drawControlPoints();
}

// Behind the candles

void ChartPainting::drawWatermark() {
    const ChartArea& plot = m_frame->layout.prices;
    const CSize room(plot.width() * 4 / 5, plot.height());
    if (Gdiplus::Bitmap* bitmap = m_watermark.bitmap(m_model->symbol(), room, Colors::text())) {
        const CSize free = CSize(plot.width(), plot.height()) - m_watermark.size();
        const int left = plot.left + free.cx / 2;
        const int top = plot.top + free.cy / 2;
        m_painter->DrawBitmap({static_cast<float>(left), static_cast<float>(top)}, {0, 0}, &m_contexts.picture, bitmap);
    }
}

void ChartPainting::drawGrid() {
    const ChartLayout& layout = m_frame->layout;
    m_points.clear();
    const auto across = [this](const PriceGrid& grid, const PriceScale& scale, const ChartArea& plot) {
        for (const double value : grid.values)
            addLine(m_points, plot.left, pixelOf(scale.yOf(value)), plot.right, pixelOf(scale.yOf(value)));
    };
    across(m_frame->priceGrid, m_frame->prices, layout.prices);
    across(m_frame->volumeGrid, m_frame->volumes, layout.volumes);
    for (const DateMark& mark : m_frame->dates) {
        const int x = pixelOf(m_frame->time.xOf(mark.place));
        addLine(m_points, x, layout.prices.top, x, layout.prices.bottom);
        addLine(m_points, x, layout.volumes.top, x, layout.volumes.bottom);
    }
    m_painter->DrawLineList(m_points.data(), m_points.size(), m_contexts.grid, {0, 0});
    m_points.clear();
    addLine(m_points, layout.prices.right, layout.prices.top, layout.prices.right, layout.dateAxis.top);
    addLine(m_points, layout.dateAxis.left, layout.dateAxis.top, layout.prices.right + 1, layout.dateAxis.top);
    m_painter->DrawLineList(m_points.data(), m_points.size(), m_contexts.frame, {0, 0});
}

void ChartPainting::drawVolumes() {
    clipTo(m_frame->layout.volumes);
    m_points.clear();
    for (const CandleColumn& column : m_frame->columns)
        addRect(m_points, column.left, pixelOf(m_frame->volumes.yOf(column.candle.volume)), column.right,
                m_frame->layout.volumes.bottom);
    fillBars(m_points, m_contexts.volume);
    m_painter->SetClipRegion(nullptr);
}

/// The selected range as far as it is seen, over both plots.
std::optional<CRect> ChartPainting::spanArea() const {
    const std::optional<CandleSpan>& span = m_model->state().span;
    if (!span)
        return std::nullopt;
    const ChartLayout& layout = m_frame->layout;
    const double left = m_frame->time.xOf(static_cast<double>(span->first));
    const double right = m_frame->time.xOf(static_cast<double>(span->last));
    if (right < layout.prices.left || left > layout.prices.right)
        return std::nullopt;
    const auto seen = [&](double x) {
        return pixelOf(std::clamp(x, static_cast<double>(layout.prices.left), layout.prices.right - 1.0));
    };
    return CRect(seen(left), layout.prices.top, std::max(seen(right), seen(left) + 1), layout.dateAxis.top - 1);
}

void ChartPainting::drawSpan() {
    const std::optional<CRect> area = spanArea();
    if (!area)
        return;
    m_points.clear();
    addRect(m_points, area->left, area->top, area->right, area->bottom);
    m_painter->DrawPolygon(m_points.data(), m_points.size(), &m_contexts.range, {0, 0});
    if (isHovered(objectOf(ChartPart::Range))) {
        m_contexts.updateHalo(m_model->styleOf(ChartPart::Range));
        m_points.clear();
        addLine(m_points, area->left, area->top, area->left, area->bottom);
        addLine(m_points, area->right, area->top, area->right, area->bottom);
        m_painter->DrawLineList(m_points.data(), m_points.size(), m_contexts.halo, {0, 0});
    }
}

/// What has become of the price in the selected range, over its candles.
void ChartPainting::drawSpanTag() {
    const std::optional<CRect> area = spanArea();
    if (!area)
        return;
    const CandleSpan& span = *m_model->state().span;
    const std::wstring text =
        spanText(m_model->candles()[span.first], m_model->candles()[span.last - 1], span.last - span.first);
    const int width = textWidth(text, m_contexts.tag) + 2 * scaled(LabelPadding);
    const ChartArea& plot = m_frame->layout.prices;
    const int left = std::clamp(static_cast<int>(area->CenterPoint().x) - width / 2, plot.left,
                                std::max(plot.left, plot.right - width));
    const COLORREF ground = m_model->styleOf(ChartPart::Range).fill;
    drawTag(text, CRect(left, area->top, left + width, area->top + m_labelHeight + scaled(4)),
            isHovered(objectOf(ChartPart::Range)) ? lighter(ground) : ground, idOf(objectOf(ChartPart::Range)));
}

// Candles

void ChartPainting::drawCandles() {
    drawCandles(true, m_contexts.risingEdges, m_contexts.risingBodies);
    drawCandles(false, m_contexts.fallingEdges, m_contexts.fallingBodies);
}

void ChartPainting::drawCandles(bool rising, VectorCanvas::DrawContextGdiLine& edges,
                                VectorCanvas::DrawContextGdiLineAndFill& bodies) {
    const PriceScale& scale = m_frame->prices;
    m_points.clear();
    m_otherPoints.clear();
    for (const CandleColumn& column : m_frame->columns) {
        const Candle& candle = column.candle;
        if (candle.rises() != rising)
            continue;
        addLine(m_points, column.middle, pixelOf(scale.yOf(candle.high)), column.middle,
                pixelOf(scale.yOf(candle.low)) + 1);
        const int top = pixelOf(scale.yOf(std::max(candle.open, candle.close)));
        const int bottom = std::max(pixelOf(scale.yOf(std::min(candle.open, candle.close))), top) + 1;
        addRect(m_otherPoints, column.left, top, column.right, bottom);
    }
    m_painter->DrawLineList(m_points.data(), m_points.size(), edges, {0, 0});
    fillBars(m_otherPoints, bodies);
    // Around bodies that have an inside.
    if (m_frame->columns.empty() || m_frame->columns.front().right - m_frame->columns.front().left < 3)
        return;
    m_points.clear();
    for (std::size_t corner = 0; corner + 3 < m_otherPoints.size(); corner += 4)
        addFrame(m_points, m_otherPoints[corner], m_otherPoints[corner + 2]);
    m_painter->DrawLineList(m_points.data(), m_points.size(), edges, {0, 0});
}

void ChartPainting::drawAverage() {
    m_points.clear();
    for (const ChartPixel& pixel : m_frame->average)
        m_points.push_back({static_cast<float>(pixel.x), static_cast<float>(pixelOf(pixel.y))});
    if (isHovered(objectOf(ChartPart::Average))) {
        m_contexts.updateHalo(m_model->styleOf(ChartPart::Average));
        m_painter->DrawPolyline(m_points.data(), m_points.size(), &m_contexts.halo, {0, 0});
    }
    m_painter->DrawPolyline(m_points.data(), m_points.size(), &m_contexts.average, {0, 0});
}

// Tools

/// In handfuls: the system makes a region of all that it is given at once, whose cost grows with the bars that lie on
/// each line of pixels times the lines.
void ChartPainting::fillBars(const Points& points, VectorCanvas::DrawContextGdiLineAndFill& style) {
    constexpr std::size_t Corners = 4;
    constexpr std::size_t Handful = 8 * Corners;
    for (std::size_t at = 0; at < points.size(); at += Handful)
        m_painter->FillRects(points.data() + at, std::min(Handful, points.size() - at), &style, {0, 0});
}

void ChartPainting::drawText(const std::wstring& text, const CRect& area, VectorCanvas::DrawContextGdiText& style,
                             unsigned int format) {
    m_painter->DrawTextW(text, floating(area), style, format | DT_NOPREFIX);
}

void ChartPainting::drawTag(const std::wstring& text, const CRect& area, COLORREF ground, unsigned int id) {
    m_painter->DrawRect(floating(area), ground, ground, id);
    m_contexts.tag.SetId(id);
    m_contexts.tag.UpdateContext(nullptr, inkOn(ground));
    drawText(text, area, m_contexts.tag, DT_CENTER | DT_VCENTER);
}

void ChartPainting::clipTo(const ChartArea& area) {
    const RECT clip{area.left, area.top, area.right, area.bottom};
    m_painter->SetClipRegion(&clip);
}

bool ChartPainting::isHovered(const ChartObject& object) const {
    return m_model->state().hovered == object;
}

int ChartPainting::textWidth(const std::wstring& text, VectorCanvas::DrawContextGdiText& style) const {
    return TextSizeCalculator::GetTextSize(std::pair<HDC, HFONT>(nullptr, fontOf(style)), text, false).cx;
}

} // namespace Desk
