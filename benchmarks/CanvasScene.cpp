#include "CanvasScene.h"

#include <algorithm>
#include <cmath>

namespace scene {
namespace {

constexpr COLORREF kBackground = RGB(255, 255, 255);
constexpr int kGridLines = 10;
constexpr int kLabelHeight = 16;
constexpr int kColumns = kChartWidth / 2;
constexpr int kRowHeight = 11;
/// The system takes a call's quadrilaterals as one area, in a time that grows with the square of those that stand on
/// one row of pixels: columns side by side are drawn a few at a time.
constexpr std::size_t kRectsOfACall = 10;
constexpr std::size_t kPointsOfARect = 4;

void lines(HDC dc, const Shape& shape) {
    ::PolyPolyline(dc, shape.pixels.data(), shape.lengths.data(), static_cast<DWORD>(shape.lengths.size()));
}

/// Calls `draw` with the first point and the count of the points of each call.
template <typename Draw>
void inCalls(const Shape& shape, const Draw& draw) {
    constexpr std::size_t kPoints = kRectsOfACall * kPointsOfARect;
    for (std::size_t first = 0; first < shape.points.size(); first += kPoints) {
        draw(first, std::min(kPoints, shape.points.size() - first));
    }
}

void rects(HDC dc, const Shape& shape) {
    inCalls(shape, [&](std::size_t first, std::size_t count) {
        ::PolyPolygon(dc, &shape.pixels[first], shape.corners.data(), static_cast<int>(count / kPointsOfARect));
    });
}

void rects(VectorCanvas::IVectorPainter& painter, const Shape& shape, VectorCanvas::DrawContextBase& style) {
    inCalls(shape, [&](std::size_t first, std::size_t count) {
        painter.FillRects(&shape.points[first], count, &style, {0, 0});
    });
}

CRect labelRect(std::size_t index) {
    const int top = static_cast<int>(index) * kChartHeight / kGridLines;
    return {kChartWidth - 60, top, kChartWidth, top + kLabelHeight};
}

} // namespace

void Shape::add(int x, int y) {
    points.push_back({static_cast<float>(x) + 0.25F, static_cast<float>(y) + 0.25F});
    pixels.push_back({x, y});
}

void Shape::addLine(int x1, int y1, int x2, int y2) {
    add(x1, y1);
    add(x2, y2);
    lengths.push_back(2);
}

void Shape::addRect(int left, int top, int right, int bottom) {
    add(left, top);
    add(right, top);
    add(right, bottom);
    add(left, bottom);
    corners.push_back(4);
}

Shape manyLines(int count) {
    Shape shape;
    for (int index = 0; index < count; ++index) {
        const int x = index * 13 % kChartWidth;
        const int y = index * 7 % kChartHeight;
        shape.addLine(x, y, x + index % 5, y + 3 + index % 17);
    }
    return shape;
}

Shape manyRects(int count) {
    Shape shape;
    for (int index = 0; index < count; ++index) {
        const int x = index % kColumns * 2;
        const int y = index / kColumns * kRowHeight;
        shape.addRect(x, y, x + 2, y + 2 + index % (kRowHeight - 4));
    }
    return shape;
}

BareDevice::BareDevice() : m_dc(::CreateCompatibleDC(nullptr)) {
    const HDC screen = ::GetDC(nullptr);
    m_bitmap = ::CreateCompatibleBitmap(screen, kChartWidth, kChartHeight);
    ::ReleaseDC(nullptr, screen);
    ::SelectObject(m_dc, m_bitmap);
}

BareDevice::~BareDevice() {
    ::DeleteDC(m_dc);
    ::DeleteObject(m_bitmap);
}

Candles::Candles(int count) {
    double average = 200;
    for (int index = 0; index < count; ++index) {
        const int x = static_cast<int>(static_cast<long long>(index) * kChartWidth / count);
        const int middle = 200 + static_cast<int>(90 * std::sin(index / 180.0) + 30 * std::sin(index / 11.0));
        const int body = 2 + index * 7 % 12;
        m_wicks.addLine(x, middle - body - 5, x, middle + body + 5);
        (index % 3 != 0 ? m_rising : m_falling).addRect(x, middle - body, x + 2, middle + body);
        m_volume.addRect(x, kChartHeight - 5 - index * 11 % 60, x + 2, kChartHeight);
        average += (middle - average) / 20;
        m_average.add(x, static_cast<int>(average));
    }
    for (int index = 0; index < kGridLines; ++index) {
        m_grid.addLine(0, index * kChartHeight / kGridLines, kChartWidth, index * kChartHeight / kGridLines);
        m_grid.addLine(index * kChartWidth / kGridLines, 0, index * kChartWidth / kGridLines, kChartHeight);
        m_labels.push_back(std::to_wstring(250 - index) + L",50");
    }
    m_wickStyle.UpdateContext(m_wickPen);
    m_wickStyle.ChangeColor(RGB(60, 60, 60));
    m_averageStyle.ChangeColor(RGB(255, 162, 0));
    m_gridStyle.ChangeColor(RGB(220, 220, 220));
    m_risingStyle.ChangeColors(0, RGB(6, 176, 37));
    m_fallingStyle.ChangeColors(0, RGB(255, 46, 0));
    m_volumeStyle.ChangeColors(0, RGB(163, 189, 227));
    unsigned int id = 0x010101;
    for (VectorCanvas::DrawContextBase* style : std::initializer_list<VectorCanvas::DrawContextBase*>{
             &m_wickStyle, &m_averageStyle, &m_risingStyle, &m_fallingStyle, &m_volumeStyle}) {
        style->SetId(++id);
    }
}

void Candles::draw(VectorCanvas::IVectorPainter& painter) {
    painter.InitRender(CSize(kChartWidth, kChartHeight));
    painter.Clear(kBackground);
    painter.DrawLineList(m_grid.points.data(), m_grid.points.size(), m_gridStyle, {0, 0});
    rects(painter, m_volume, m_volumeStyle);
    painter.DrawLineList(m_wicks.points.data(), m_wicks.points.size(), m_wickStyle, {0, 0});
    rects(painter, m_rising, m_risingStyle);
    rects(painter, m_falling, m_fallingStyle);
    painter.DrawPolyline(m_average.points.data(), m_average.points.size(), &m_averageStyle, {0, 0});
    for (std::size_t index = 0; index < m_labels.size(); ++index) {
        const CRect rect = labelRect(index);
        painter.DrawTextW(m_labels[index],
                          {static_cast<float>(rect.left), static_cast<float>(rect.top),
                           static_cast<float>(rect.Width()), static_cast<float>(rect.Height())},
                          m_labelStyle, DT_RIGHT | DT_VCENTER);
    }
    painter.EndRender(false);
}

void Candles::drawBare(BareDevice& device) const {
    const CRect all(0, 0, kChartWidth, kChartHeight);
    ::SetBkColor(device, kBackground);
    ::ExtTextOutW(device, 0, 0, ETO_OPAQUE, all, nullptr, 0, nullptr);
    device.select(m_gridPen);
    lines(device, m_grid);
    device.select(::GetStockObject(NULL_PEN));
    device.select(m_volumeBrush);
    rects(device, m_volume);
    device.select(m_wickPen);
    lines(device, m_wicks);
    device.select(::GetStockObject(NULL_PEN));
    device.select(m_risingBrush);
    rects(device, m_rising);
    device.select(m_fallingBrush);
    rects(device, m_falling);
    device.select(m_averagePen);
    ::Polyline(device, m_average.pixels.data(), static_cast<int>(m_average.pixels.size()));
    device.select(::GetStockObject(DEFAULT_GUI_FONT));
    ::SetBkMode(device, TRANSPARENT);
    for (std::size_t index = 0; index < m_labels.size(); ++index) {
        CRect rect = labelRect(index);
        ::DrawTextW(device, m_labels[index].c_str(), static_cast<int>(m_labels[index].size()), rect,
                    DT_RIGHT | DT_VCENTER | DT_SINGLELINE);
    }
}

} // namespace scene
