#include "ChartOverlay.h"

#include <algorithm>

#include "DeskColors.h"
#include "ScopedSelection.h"
#include "chart/ChartPainting.h"
#include "chart/ChartShapes.h"
#include "core/PolishFormat.h"
#include "core/chart/ChartTexts.h"

namespace Desk {

namespace {

constexpr int Padding = 6;
constexpr int LegendMargin = 10;
constexpr int NameGap = 8;
constexpr int ValueGap = 12;
constexpr int LeastName = 60;

/// Writes from left to right, on the middle line of an area, as long as there is room.
class LegendWriter {
public:
    LegendWriter(CDC& dc, const CRect& area) : m_dc(dc), m_room(area) { dc.SetBkMode(TRANSPARENT); }

    int widthOf(const std::wstring& text) const {
        return m_dc.GetTextExtent(text.c_str(), static_cast<int>(text.size())).cx;
    }
    int room() const { return m_room.Width(); }
    void skip(int width) { m_room.left = std::min(m_room.right, m_room.left + width); }
    void write(const std::wstring& text, COLORREF color, int width) {
        CRect area = m_room;
        area.right = std::min<LONG>(area.right, area.left + width);
        m_dc.SetTextColor(color);
        m_dc.DrawText(text.c_str(), static_cast<int>(text.size()), &area,
                      DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
        skip(width);
    }

private:
    CDC& m_dc;
    CRect m_room;
};

} // namespace

ChartOverlay::ChartOverlay(const ChartModel& model, const ChartFrame& frame, DeskFonts& fonts)
    : m_model(model),
      m_frame(frame),
      m_fonts(fonts) {}

/// In the middle of the candle under the mouse, at the mouse's height.
std::optional<CPoint> ChartOverlay::cross() const {
    const std::optional<ChartPosition>& mouse = m_model.state().crossHair;
    const std::optional<std::size_t> column = mouse ? m_frame.columnAt(mouse->x) : std::nullopt;
    if (!column)
        return std::nullopt;
    const ChartArea& plot = m_frame.layout.prices;
    return CPoint(std::clamp(m_frame.columns[*column].middle, plot.left, plot.right - 1), mouse->y);
}

const CandleColumn& ChartOverlay::column() const {
    return m_frame.columns[m_frame.columnAt(m_model.state().crossHair->x).value_or(0)];
}

std::vector<CRect> ChartOverlay::areas() const {
    std::vector<CRect> all{legendArea()};
    if (const std::optional<CPoint> at = cross()) {
        const ChartLayout& layout = m_frame.layout;
        all.emplace_back(at->x, layout.prices.top, at->x + 1, layout.dateAxis.top);
        all.emplace_back(layout.prices.left, at->y, layout.prices.right, at->y + 1);
        all.push_back(dateLabel(*at).area);
        if (const std::optional<Label> value = valueLabel(*at))
            all.push_back(value->area);
    }
    return all;
}

CRect ChartOverlay::legendArea() const {
    const ChartArea& legend = m_frame.layout.legend;
    return {legend.left, legend.top, m_frame.lineTool.left, legend.bottom};
}

std::optional<ChartOverlay::Label> ChartOverlay::valueLabel(CPoint cross) const {
    const ChartLayout& layout = m_frame.layout;
    const bool isPrice = layout.prices.holds(cross.x, cross.y);
    const std::wstring text = isPrice
                                  ? singlePriceText(m_frame.prices.valueAt(cross.y + 0.5), m_frame.priceGrid.decimals)
                                  : formatLargeSum(std::max(0.0, m_frame.volumes.valueAt(cross.y + 0.5)));
    const int half = m_fonts.lineHeight() / 2 + 1;
    return Label{text, CRect(layout.priceAxis.left + 1, cross.y - half, layout.priceAxis.right, cross.y + half + 1)};
}

ChartOverlay::Label ChartOverlay::dateLabel(CPoint cross) const {
    const ChartArea& axis = m_frame.layout.dateAxis;
    Label label{formatShortDate(column().candle.date), {}};
    const int width = m_fonts.widthOf(label.text) + 2 * scaled(Padding);
    const int left = std::clamp<int>(cross.x - width / 2, axis.left, std::max(axis.left, axis.right - width));
    label.area = CRect(left, axis.top + 1, left + width, axis.bottom);
    return label;
}

void ChartOverlay::draw(CDC& dc) {
    if (m_frame.columns.empty())
        return;
    drawLegend(dc);
    if (const std::optional<CPoint> at = cross())
        drawCross(dc, *at);
}

void ChartOverlay::drawCross(CDC& dc, CPoint at) {
    const ChartLayout& layout = m_frame.layout;
    {
        CPen pen(PS_DOT, 1, Colors::mutedText());
        const ScopedSelection selected(dc, pen);
        dc.SetBkMode(TRANSPARENT);
        dc.MoveTo(at.x, layout.prices.top);
        dc.LineTo(at.x, layout.dateAxis.top);
        dc.MoveTo(layout.prices.left, at.y);
        dc.LineTo(layout.prices.right, at.y);
    }
    drawLabel(dc, dateLabel(at));
    if (const std::optional<Label> value = valueLabel(at))
        drawLabel(dc, *value);
}

void ChartOverlay::drawLabel(CDC& dc, const Label& label) {
    const COLORREF ground = Colors::blend(Colors::mutedText(), Colors::text(), 0.4);
    dc.FillSolidRect(&label.area, ground);
    const ScopedSelection font(dc, m_fonts.text());
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(inkOn(ground));
    CRect area = label.area;
    dc.DrawText(label.text.c_str(), static_cast<int>(label.text.size()), &area,
                DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

/// Of the candle under the cross-hair, or else of the last one. Where not all has room the name is shortened, and what
/// is still too much is left out from the right.
void ChartOverlay::drawLegend(CDC& dc) {
    const bool isPointed = cross().has_value();
    const Candle& candle = isPointed ? column().candle : m_model.candles().back();
    const std::size_t behind = isPointed ? column().last : m_model.candles().size();
    const std::optional<double> average =
        behind >= AveragePeriod ? std::optional(m_model.average()[behind - AveragePeriod]) : std::nullopt;
    const auto values = legendOf(candle, average, m_frame.priceGrid.decimals);

    CRect area = legendArea();
    area.left += scaled(LegendMargin);
    LegendWriter writer(dc, area);
    {
        const ScopedSelection bold(dc, m_fonts.bold());
        writer.write(m_model.symbol(), Colors::text(), writer.widthOf(m_model.symbol()));
    }
    const ScopedSelection font(dc, m_fonts.text());
    const int inner = scaled(Padding) - 1;
    int valuesWidth = 0;
    for (const LegendValue& value : values)
        valuesWidth += scaled(ValueGap) + writer.widthOf(value.name) + inner + writer.widthOf(value.value);
    const int nameRoom = writer.room() - valuesWidth - scaled(NameGap);
    if (nameRoom >= scaled(LeastName)) {
        writer.skip(scaled(NameGap));
        writer.write(m_model.name(), Colors::mutedText(), std::min(nameRoom, writer.widthOf(m_model.name())));
    }
    // Of the bare colours little is read in the black theme.
    const COLORREF color = Colors::blend(candle.rises() ? Colors::risen() : Colors::fallen(), Colors::text(), 0.35);
    for (const LegendValue& value : values) {
        const int needed = writer.widthOf(value.name) + inner + writer.widthOf(value.value);
        if (scaled(ValueGap) + needed > writer.room())
            break;
        const bool isPrice = &value - values.data() < 4;
        writer.skip(scaled(ValueGap));
        writer.write(value.name, Colors::mutedText(), writer.widthOf(value.name));
        writer.skip(inner);
        writer.write(value.value, isPrice ? color : Colors::text(), writer.widthOf(value.value));
    }
}

} // namespace Desk
