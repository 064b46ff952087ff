#include "ChartGestures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace Desk {

namespace {

constexpr std::size_t FirstVisibleCandles = 120;
/// What of the visible part an arrow key moves by, and how much more or less a key shows.
constexpr double PanShare = 0.1;
constexpr double ZoomFactor = 1.25;
/// From an end of a line the mouse takes the end, in pixels.
constexpr double GripReach = 7;
/// A press that moves less draws no line, in pixels.
constexpr int LeastLine = 4;

constexpr std::array<std::pair<unsigned int, ChartKey>, 11> Keys{{
    {0x25, ChartKey::Left},
    {0x27, ChartKey::Right},
    {0x24, ChartKey::Start},
    {0x23, ChartKey::End},
    {0x6B, ChartKey::ZoomIn},  // of the number pad
    {0xBB, ChartKey::ZoomIn},  // of the letters
    {0x6D, ChartKey::ZoomOut}, // the same two
    {0xBD, ChartKey::ZoomOut},
    {0x2E, ChartKey::Remove},
    {0x1B, ChartKey::Leave},
    {'L', ChartKey::LineTool},
}};

constexpr ChartChange Picture{.picture = true};

ChartPixel pixelAt(const ChartPosition& at) {
    return {static_cast<double>(at.x), static_cast<double>(at.y)};
}

} // namespace

ChartChange& ChartChange::operator|=(const ChartChange& other) {
    picture |= other.picture;
    crossHair |= other.crossHair;
    range |= other.range;
    selection |= other.selection;
    return *this;
}

std::optional<ChartKey> chartKeyOf(unsigned int key) {
    const auto known = std::find_if(Keys.begin(), Keys.end(), [key](const auto& entry) { return entry.first == key; });
    return known != Keys.end() ? std::optional(known->second) : std::nullopt;
}

ChartRange firstRange(std::size_t candles) {
    if (candles <= FirstVisibleCandles)
        return {};
    return {1 - static_cast<double>(FirstVisibleCandles) / static_cast<double>(candles), 1};
}

// Mouse

ChartChange ChartGestures::press(const ChartMouse& mouse, const ChartFrame& frame) {
    if (isDragging())
        return {};
    if (mouse.over.kind == ChartObject::Kind::LineTool)
        return key(ChartKey::LineTool);
    if (m_state.candles > 0 && frame.layout.prices.holds(mouse.at.x, mouse.at.y) && m_state.drawsLine)
        return beginLine(mouse, frame);
    if (m_state.candles > 0 && frame.inPlots(mouse.at.x, mouse.at.y) && mouse.shift)
        return beginSpan(mouse, frame);
    return pressObject(mouse, frame);
}

ChartChange ChartGestures::pressObject(const ChartMouse& mouse, const ChartFrame& frame) {
    const ChartObject over = known(mouse.over);
    const ChartChange change = select(over);
    if (over.kind == ChartObject::Kind::Line) {
        const TrendLine& line = m_lines.line(over.index);
        const LineGrip grip = gripAt(line, pixelAt(mouse.at), GripReach, frame.time, frame.prices);
        m_drag = Reshaping{over.index, grip, line, pointAt(pixelAt(mouse.at), frame.time, frame.prices)};
    } else if (frame.inPlots(mouse.at.x, mouse.at.y)) {
        m_drag = Panning{mouse.at.x, frame.time.candleWidth(), m_state.range};
    }
    return change;
}

ChartChange ChartGestures::beginLine(const ChartMouse& mouse, const ChartFrame& frame) {
    const ChartPoint point = pointAt(pixelAt(mouse.at), frame.time, frame.prices);
    const TrendLine line{point, point};
    m_lines.addLine(line);
    const std::size_t index = m_lines.lineCount() - 1;
    m_drag = DrawingLine{{index, LineGrip::To, line, point}, mouse.at, mouse.at};
    ChartChange change = Picture;
    change |= select(lineObject(index));
    return change;
}

ChartChange ChartGestures::beginSpan(const ChartMouse& mouse, const ChartFrame& frame) {
    const std::size_t candle = candleAt(mouse.at.x, frame);
    m_drag = Selecting{candle, m_state.span};
    m_state.span = CandleSpan{candle, candle + 1};
    ChartChange change = Picture;
    change |= select(objectOf(ChartPart::Range));
    return change;
}

ChartChange ChartGestures::move(const ChartMouse& mouse, const ChartFrame& frame) {
    ChartChange change = hover(mouse, frame);
    change |= std::visit(
        [&](auto& drag) -> ChartChange {
            if constexpr (std::is_same_v<std::decay_t<decltype(drag)>, std::monostate>)
                return {};
            else
                return follow(drag, mouse, frame);
        },
        m_drag);
    return change;
}

/// In a drag the object under the mouse stays the one that is dragged.
ChartChange ChartGestures::hover(const ChartMouse& mouse, const ChartFrame& frame) {
    ChartChange change;
    const bool isOverPlot = m_state.candles > 0 && frame.inPlots(mouse.at.x, mouse.at.y);
    const std::optional<ChartPosition> crossHair = isOverPlot ? std::optional(mouse.at) : std::nullopt;
    change.crossHair = std::exchange(m_state.crossHair, crossHair) != crossHair;
    if (!isDragging())
        change.picture = hoverOver(known(mouse.over));
    return change;
}

/// Whether the picture is another one then.
bool ChartGestures::hoverOver(const ChartObject& object) {
    return std::exchange(m_state.hovered, object) != object;
}

ChartChange ChartGestures::follow(Panning& drag, const ChartMouse& mouse, const ChartFrame&) {
    const double candles = (drag.start - mouse.at.x) / drag.candleWidth;
    return showRange(moved(drag.range, candles / static_cast<double>(m_state.candles)));
}

ChartChange ChartGestures::follow(Selecting& drag, const ChartMouse& mouse, const ChartFrame& frame) {
    const std::size_t candle = candleAt(mouse.at.x, frame);
    const CandleSpan span{std::min(drag.anchor, candle), std::max(drag.anchor, candle) + 1};
    return std::exchange(m_state.span, span) == span ? ChartChange{} : Picture;
}

ChartChange ChartGestures::follow(Reshaping& drag, const ChartMouse& mouse, const ChartFrame& frame) {
    const ChartPoint now = pointAt(pixelAt(mouse.at), frame.time, frame.prices);
    m_lines.setLine(drag.line, dragged(drag.before, drag.grip, drag.start, now));
    return Picture;
}

ChartChange ChartGestures::follow(DrawingLine& drag, const ChartMouse& mouse, const ChartFrame& frame) {
    drag.last = mouse.at;
    return follow(drag.end, mouse, frame);
}

ChartChange ChartGestures::release() {
    ChartChange change;
    if (const auto* drawn = std::get_if<DrawingLine>(&m_drag)) {
        const int width = std::abs(drawn->last.x - drawn->first.x);
        const int height = std::abs(drawn->last.y - drawn->first.y);
        m_state.drawsLine = false;
        change = Picture;
        if (std::max(width, height) < LeastLine)
            change |= removeLine(drawn->end.line);
    }
    m_drag = {};
    return change;
}

ChartChange ChartGestures::leave() {
    ChartChange change;
    if (isDragging())
        return change;
    change.crossHair = std::exchange(m_state.crossHair, std::nullopt).has_value();
    change.picture = hoverOver({});
    return change;
}

// Keys, wheel and bar

ChartChange ChartGestures::key(ChartKey key) {
    if (key == ChartKey::Leave)
        return leaveOne();
    // What is being dragged stays under the mouse.
    if (isDragging())
        return {};
    switch (key) {
    case ChartKey::Left:
        return pan(-PanShare);
    case ChartKey::Right:
        return pan(PanShare);
    case ChartKey::Start:
        return showRange(moved(m_state.range, -1));
    case ChartKey::End:
        return showRange(moved(m_state.range, 1));
    case ChartKey::ZoomIn:
        return zoom(1 / ZoomFactor, 1);
    case ChartKey::ZoomOut:
        return zoom(ZoomFactor, 1);
    case ChartKey::Remove:
        return removeSelected();
    case ChartKey::LineTool:
        if (m_state.candles == 0)
            return {};
        m_state.drawsLine = !m_state.drawsLine;
        return Picture;
    case ChartKey::Leave:
        break;
    }
    return {};
}

bool ChartGestures::canLeave() const {
    return isDragging() || m_state.drawsLine || m_state.selected != ChartObject{};
}

/// A drag, with all that it has done, or else the tool, or else the selection.
ChartChange ChartGestures::leaveOne() {
    if (isDragging())
        return abandonDrag();
    if (std::exchange(m_state.drawsLine, false))
        return Picture;
    return select({});
}

ChartChange ChartGestures::abandonDrag() {
    ChartChange change = Picture;
    if (const auto* panning = std::get_if<Panning>(&m_drag)) {
        change |= showRange(panning->range);
    } else if (const auto* selecting = std::get_if<Selecting>(&m_drag)) {
        m_state.span = selecting->before;
        if (!m_state.span)
            change |= select({});
    } else if (const auto* reshaping = std::get_if<Reshaping>(&m_drag)) {
        m_lines.setLine(reshaping->line, reshaping->before);
    } else if (const auto* drawing = std::get_if<DrawingLine>(&m_drag)) {
        m_state.drawsLine = false;
        change |= removeLine(drawing->end.line);
    }
    m_drag = {};
    return change;
}

ChartChange ChartGestures::removeSelected() {
    if (m_state.selected.kind == ChartObject::Kind::Line)
        return removeLine(m_state.selected.index);
    if (!isPart(m_state.selected, ChartPart::Range))
        return {};
    m_state.span.reset();
    return select({});
}

ChartChange ChartGestures::removeLine(std::size_t line) {
    m_lines.removeLine(line);
    m_state.hovered = {};
    return select({});
}

ChartChange ChartGestures::zoomAt(int x, double factor, const ChartFrame& frame) {
    const ChartArea& plot = frame.layout.prices;
    if (isDragging() || m_state.candles == 0 || plot.width() <= 0)
        return {};
    return zoom(factor, std::clamp((x - plot.left) / static_cast<double>(plot.width()), 0.0, 1.0));
}

ChartChange ChartGestures::pan(double share) {
    return showRange(moved(m_state.range, share * (m_state.range.end - m_state.range.start)));
}

ChartChange ChartGestures::zoom(double factor, double anchor) {
    return showRange(zoomed(m_state.range, anchor, factor, m_state.candles));
}

ChartChange ChartGestures::setRange(const ChartRange& range) {
    // A range that has lost its width on the way keeps its end.
    return isDragging() ? ChartChange{} : showRange(zoomed(range, 1, 1, m_state.candles));
}

ChartChange ChartGestures::showRange(const ChartRange& range) {
    if (m_state.candles == 0 || range == m_state.range)
        return {};
    m_state.range = range;
    return {.picture = true, .range = true};
}

ChartChange ChartGestures::select(const ChartObject& object) {
    if (std::exchange(m_state.selected, object) == object)
        return {};
    return {.picture = true, .selection = true};
}

ChartChange ChartGestures::startSeries(std::size_t candles) {
    m_drag = {};
    // Series of one length are compared at one part of them.
    if (candles != m_state.candles)
        m_state.range = firstRange(candles);
    m_state.candles = candles;
    m_state.span.reset();
    m_state.hovered = {};
    m_state.crossHair.reset();
    m_state.drawsLine = false;
    if (m_state.selected.kind == ChartObject::Kind::Line || isPart(m_state.selected, ChartPart::Range))
        m_state.selected = {};
    return {.picture = true, .crossHair = true, .range = true, .selection = true};
}

/// The picture may still show a line that is gone.
ChartObject ChartGestures::known(const ChartObject& object) const {
    const bool isGone = object.kind == ChartObject::Kind::Line && object.index >= m_lines.lineCount();
    return isGone ? ChartObject{} : object;
}

std::size_t ChartGestures::candleAt(int x, const ChartFrame& frame) const {
    const double place = std::floor(frame.time.placeAt(x + 0.5));
    return static_cast<std::size_t>(std::clamp(place, 0.0, static_cast<double>(m_state.candles - 1)));
}

} // namespace Desk
