#pragma once

#include <string>
#include <vector>

#include <OrtinControls/OrtinControls.h>

/// A chart's worth of lines and rectangles, drawn by the painter and by the bare calls that no painter can do without.
namespace scene {

inline constexpr int kChartWidth = 1180;
inline constexpr int kChartHeight = 400;

/// The same points for the painter and, already converted, for the system.
struct Shape {
    std::vector<OrtinPoint<float>> points;
    std::vector<POINT> pixels;
    std::vector<DWORD> lengths; ///< of lines, each 2
    std::vector<int> corners;   ///< of quadrilaterals, each 4

    void add(int x, int y);
    void addLine(int x1, int y1, int x2, int y2);
    void addRect(int left, int top, int right, int bottom);
};

/// Short lines all over the chart.
Shape manyLines(int count);
/// Narrow columns all over the chart, in rows, none over another.
Shape manyRects(int count);

/// A memory device with a picture as the painter has one, or as its shadow.
class BareDevice {
public:
    BareDevice();
    ~BareDevice();
    BareDevice(const BareDevice&) = delete;
    BareDevice& operator=(const BareDevice&) = delete;

    operator HDC() const { return m_dc; }
    void select(HGDIOBJ object) { ::SelectObject(m_dc, object); }

private:
    HDC m_dc;
    HBITMAP m_bitmap;
};

/// Candles with volume, average, grid and labels.
class Candles {
public:
    explicit Candles(int count);

    void draw(VectorCanvas::IVectorPainter& painter);
    void drawBare(BareDevice& device) const;

private:
    Shape m_wicks;
    Shape m_rising;
    Shape m_falling;
    Shape m_volume;
    Shape m_average;
    Shape m_grid;
    VectorCanvas::DrawContextGdiLine m_wickStyle;
    VectorCanvas::DrawContextGdiLine m_averageStyle;
    VectorCanvas::DrawContextGdiLine m_gridStyle;
    VectorCanvas::DrawContextGdiLineAndFill m_risingStyle;
    VectorCanvas::DrawContextGdiLineAndFill m_fallingStyle;
    VectorCanvas::DrawContextGdiLineAndFill m_volumeStyle;
    VectorCanvas::DrawContextGdiText m_labelStyle;
    std::vector<std::wstring> m_labels;
    CPen m_wickPen{PS_SOLID, 1, RGB(60, 60, 60)};
    CPen m_averagePen{PS_SOLID, 1, RGB(255, 162, 0)};
    CPen m_gridPen{PS_SOLID, 1, RGB(220, 220, 220)};
    CBrush m_risingBrush{RGB(6, 176, 37)};
    CBrush m_fallingBrush{RGB(255, 46, 0)};
    CBrush m_volumeBrush{RGB(163, 189, 227)};
};

} // namespace scene
