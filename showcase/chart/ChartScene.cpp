#include "ChartScene.h"

#include <cmath>
#include <cstdint>

#include "PackedPoint.h"
#include "PixelSheet.h"
#include "PngFile.h"

namespace Desk {

namespace {

constexpr double LineBegin = 0.18;
constexpr double LineEnd = 0.82;
constexpr double RangeBegin = 0.45;
constexpr double RangeEnd = 0.68;
constexpr double PointedAt = 0.3;
constexpr int UnderLow = 5;
constexpr int Zooms = 4;

BYTE channel(double share) {
    return static_cast<BYTE>(std::lround(255 * share));
}

} // namespace

CPoint ChartScene::lowOf(double share) const {
    const ChartFrame& frame = m_canvas.frame();
    const CandleColumn& column =
        frame.columns[static_cast<std::size_t>(share * static_cast<double>(frame.columns.size() - 1))];
    return {column.middle, static_cast<int>(frame.prices.yOf(column.candle.low)) + scaled(UnderLow)};
}

void ChartScene::drawTrendLine() {
    m_canvas.picture();
    if (m_canvas.frame().columns.empty())
        return;
    press('L');
    drag(lowOf(LineBegin), lowOf(LineEnd), MK_LBUTTON);
}

void ChartScene::selectRange() {
    m_canvas.picture();
    if (!m_canvas.frame().columns.empty())
        drag(lowOf(RangeBegin), lowOf(RangeEnd), MK_LBUTTON | MK_SHIFT);
}

void ChartScene::pointAtAverage() {
    m_canvas.picture();
    const std::vector<ChartPixel>& average = m_canvas.frame().average;
    if (average.empty())
        return;
    const ChartPixel& at = average[static_cast<std::size_t>(PointedAt * static_cast<double>(average.size()))];
    m_canvas.SendMessage(WM_MOUSEMOVE, 0, packed(CPoint(static_cast<int>(at.x), static_cast<int>(at.y))));
}

void ChartScene::zoomIn() {
    for (int step = 0; step < Zooms; ++step)
        press(VK_ADD);
}

void ChartScene::drag(CPoint from, CPoint to, WPARAM keys) {
    m_canvas.SendMessage(WM_LBUTTONDOWN, keys, packed(from));
    m_canvas.SendMessage(WM_MOUSEMOVE, keys, packed(to));
    m_canvas.SendMessage(WM_LBUTTONUP, keys & ~static_cast<WPARAM>(MK_LBUTTON), packed(to));
    // The mouse is gone again, as if it had never been there.
    m_canvas.SendMessage(WM_MOUSELEAVE, 0, 0);
}

void ChartScene::press(WPARAM key) {
    m_canvas.SendMessage(WM_KEYDOWN, key, 0);
}

COLORREF colorOfId(unsigned int id) {
    if (id == 0)
        return 0;
    // Steps of the golden ratio around the circle of hues come never near each other again.
    const double hue = std::fmod(id * 0.618033988749895, 1.0) * 6;
    const double rest = 1 - std::fabs(std::fmod(hue, 2.0) - 1);
    const double red = hue < 1 || hue >= 5 ? 1 : hue < 2 || hue >= 4 ? rest : 0;
    const double green = hue < 1 ? rest : hue < 3 ? 1 : hue < 4 ? rest : 0;
    const double blue = hue < 2 ? 0 : hue < 3 ? rest : hue < 5 ? 1 : rest;
    return RGB(channel(0.25 + 0.75 * red), channel(0.25 + 0.75 * green), channel(0.25 + 0.75 * blue));
}

bool writeIds(const VectorCanvas::IVectorPainter& picture, const std::wstring& file) {
    const CSize size = picture.GetViewport();
    PixelSheet sheet(size);
    std::uint32_t* pixel = sheet.pixels();
    if (!pixel)
        return false;
    for (int y = 0; y < size.cy; ++y)
        for (int x = 0; x < size.cx; ++x) {
            const COLORREF color = colorOfId(picture.GetObjectId(x, y));
            *pixel++ = static_cast<std::uint32_t>(GetRValue(color)) << 16 |
                       static_cast<std::uint32_t>(GetGValue(color)) << 8 | GetBValue(color);
        }
    return writePng(sheet.bitmap(), file);
}

} // namespace Desk
