#include "ChartShapes.h"

#include <algorithm>
#include <cmath>

#include "DeskFonts.h"

namespace Desk {

namespace {

constexpr int GripDistance = 90;
constexpr double FarPixel = 1e6;

void add(PaintPoints& points, double x, double y) {
    points.push_back({static_cast<float>(x), static_cast<float>(y)});
}

/// On columns far enough from each other to be told apart.
template <typename Mark>
void markColumns(const ChartFrame& frame, Mark mark) {
    double next = 0;
    for (const CandleColumn& column : frame.columns)
        if (column.middle >= next && mark(column))
            next = column.middle + scaled(GripDistance);
}

void markCandles(const ChartFrame& frame, bool rising, PaintPoints& points) {
    markColumns(frame, [&](const CandleColumn& column) {
        const Candle& candle = column.candle;
        if (candle.rises() == rising)
            add(points, column.middle, frame.prices.yOf((candle.open + candle.close) / 2));
        return candle.rises() == rising;
    });
}

void markAverage(const ChartFrame& frame, PaintPoints& points) {
    double next = 0;
    for (const ChartPixel& pixel : frame.average) {
        if (pixel.x < next)
            continue;
        add(points, pixel.x, pixel.y);
        next = pixel.x + scaled(GripDistance);
    }
}

void markPart(ChartPart part, const ChartFrame& frame, const std::optional<CRect>& span, PaintPoints& points) {
    const ChartLayout& layout = frame.layout;
    switch (part) {
    case ChartPart::RisingCandles:
    case ChartPart::FallingCandles:
        markCandles(frame, part == ChartPart::RisingCandles, points);
        break;
    case ChartPart::Volume:
        markColumns(frame, [&](const CandleColumn& column) {
            add(points, column.middle, frame.volumes.yOf(column.candle.volume));
            return true;
        });
        break;
    case ChartPart::Average:
        markAverage(frame, points);
        break;
    case ChartPart::Grid:
        for (const double price : frame.priceGrid.values)
            add(points, (layout.prices.left + layout.prices.right) * 0.5, frame.prices.yOf(price));
        break;
    case ChartPart::Labels:
        for (const double price : frame.priceGrid.values)
            add(points, layout.priceAxis.left + 1, frame.prices.yOf(price));
        for (const DateMark& mark : frame.dates)
            add(points, frame.time.xOf(mark.place), layout.dateAxis.top);
        break;
    case ChartPart::Range:
        if (span)
            for (const int x : {span->left, span->right})
                for (const int y : {span->top, span->bottom})
                    add(points, x, y);
        break;
    case ChartPart::ArcMarker:
        if (frame.highest) {
            const CandleColumn& column = frame.columns[*frame.highest];
            add(points, column.middle, frame.prices.yOf(column.candle.high));
        }
        break;
    case ChartPart::EllipseMarker:
        if (frame.busiest) {
            const CandleColumn& column = frame.columns[*frame.busiest];
            add(points, column.middle, frame.volumes.yOf(column.candle.volume));
        }
        break;
    case ChartPart::NewLine:
        break;
    }
}

} // namespace

int pixelOf(double place) {
    return static_cast<int>(std::floor(std::clamp(place, -FarPixel, FarPixel)));
}

OrtinPoint<float> floating(const ChartPixel& pixel) {
    return {static_cast<float>(pixel.x), static_cast<float>(pixel.y)};
}

VectorCanvas::CRect2D floating(const CRect& area) {
    return {static_cast<float>(area.left), static_cast<float>(area.top), static_cast<float>(area.Width()),
            static_cast<float>(area.Height())};
}

HFONT fontOf(VectorCanvas::DrawContextGdiText& style) {
    return static_cast<HFONT>(style.GetFont());
}

void addLine(PaintPoints& points, int fromX, int fromY, int toX, int toY) {
    add(points, fromX, fromY);
    add(points, toX, toY);
}

void addRect(PaintPoints& points, int left, int top, int right, int bottom) {
    add(points, left, top);
    add(points, right, top);
    add(points, right, bottom);
    add(points, left, bottom);
}

void addFrame(PaintPoints& points, const OrtinPoint<float>& corner, const OrtinPoint<float>& opposite) {
    const int right = static_cast<int>(opposite.x) - 1;
    const int bottom = static_cast<int>(opposite.y) - 1;
    const int left = static_cast<int>(corner.x);
    const int top = static_cast<int>(corner.y);
    addLine(points, left, top, right + 1, top);
    addLine(points, left, bottom, right + 1, bottom);
    addLine(points, left, top, left, bottom);
    addLine(points, right, top, right, bottom);
}

CRect ellipseArea(const ChartFrame& frame, int radius) {
    const CandleColumn& column = frame.columns[*frame.busiest];
    const int y = pixelOf(frame.volumes.yOf(column.candle.volume));
    return {column.middle - radius, y - radius * 2 / 3, column.middle + radius, y + radius * 2 / 3};
}

void controlPoints(const ChartFrame& frame, const ChartModel& model, const std::optional<CRect>& span,
                   PaintPoints& points) {
    points.clear();
    const ChartObject& selected = model.state().selected;
    if (selected.kind == ChartObject::Kind::Line) {
        const TrendLine& line = model.lines().line(selected.index);
        for (const ChartPoint& end : {line.from, line.to})
            points.push_back(floating(pixelOf(end, frame.time, frame.prices)));
    } else if (selected.kind == ChartObject::Kind::Part) {
        markPart(static_cast<ChartPart>(selected.index), frame, span, points);
    }
}

} // namespace Desk
