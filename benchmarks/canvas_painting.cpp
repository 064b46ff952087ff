// How fast the painter draws, beside the bare calls.
#include "CanvasScene.h"
#include "Scenario.h"

#include <cmath>
#include <new>

#include <support/ImportPatch.h>

namespace {

constexpr int kLines = 100'000;
constexpr int kRects = 20'000;
constexpr int kPolygonPoints = 1'000;
constexpr int kSingleLines = 1'000;
constexpr int kCandles = 5'000;
constexpr unsigned int kId = 0x123456;

VectorCanvas::VectorPainterGdi makePainter(bool shadow) {
    VectorCanvas::VectorPainterGdi painter;
    painter.EnableShadows(shadow ? 1 : 0);
    painter.InitRender(CSize(scene::kChartWidth, scene::kChartHeight));
    painter.Clear(RGB(255, 255, 255));
    return painter;
}

void lists(bench::Results& results, bool shadow) {
    const scene::Shape lines = scene::manyLines(kLines);
    const scene::Shape rects = scene::manyRects(kRects);
    const bench::Goals goals{.toLimit = shadow ? 2.2 : 1.10};
    const std::string with = shadow ? ", with id and shadow" : "";
    VectorCanvas::VectorPainterGdi painter = makePainter(shadow);
    VectorCanvas::DrawContextGdiLine line;
    line.ChangeColor(RGB(200, 0, 0));
    line.SetId(shadow ? kId : 0);
    VectorCanvas::DrawContextGdiLineAndFill fill;
    fill.ChangeColors(0, RGB(0, 0, 200));
    fill.SetId(shadow ? kId : 0);
    scene::BareDevice bare;
    const CPen pen(PS_SOLID, 0, RGB(200, 0, 0));
    const CBrush brush(RGB(0, 0, 200));
    results.measure({.what = "DrawLineList, 100,000 lines" + with,
                     .ours = {.run = [&] { painter.DrawLineList(lines.points.data(), lines.points.size(), line, {}); }},
                     .limit = bench::Runner{.run =
                                                [&] {
                                                    bare.select(pen);
                                                    ::PolyPolyline(bare, lines.pixels.data(), lines.lengths.data(),
                                                                   kLines);
                                                }},
                     .goals = goals});
    results.measure({.what = "FillRects, 20,000 quadrilaterals" + with,
                     .ours = {.run = [&] { painter.FillRects(rects.points.data(), rects.points.size(), &fill, {}); }},
                     .limit = bench::Runner{.run =
                                                [&] {
                                                    bare.select(::GetStockObject(NULL_PEN));
                                                    bare.select(brush);
                                                    ::PolyPolygon(bare, rects.pixels.data(), rects.corners.data(),
                                                                  kRects);
                                                }},
                     .goals = goals});
    bare.select(::GetStockObject(BLACK_PEN));
    bare.select(::GetStockObject(WHITE_BRUSH));
}

/// A graphics object of GDI+ in the modes of the painter, for one call.
template <typename Draw>
void bareGdiPlus(HDC device, const Draw& draw) {
    Gdiplus::Graphics graphics(device);
    graphics.SetInterpolationMode(Gdiplus::InterpolationModeHighQuality);
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeHighQuality);
    draw(graphics);
}

void shapes(bench::Results& results) {
    std::vector<OrtinPoint<float>> points;
    std::vector<Gdiplus::Point> pixels;
    for (int index = 0; index < kPolygonPoints; ++index) {
        const double angle = index * 6.283185307179586 / kPolygonPoints;
        const double radius = 120 + 60 * std::sin(index * 0.2);
        pixels.emplace_back(static_cast<int>(590 + radius * std::cos(angle)),
                            static_cast<int>(200 + radius * std::sin(angle)));
        points.push_back({static_cast<float>(pixels.back().X), static_cast<float>(pixels.back().Y)});
    }
    VectorCanvas::VectorPainterGdi painter = makePainter(false);
    VectorCanvas::DrawContextGdiLineAndFill style;
    style.ChangeColors(RGB(200, 0, 0), RGB(0, 0, 200));
    scene::BareDevice bare;
    const Gdiplus::Pen pen(Gdiplus::Color(200, 0, 0), 1.0F);
    const Gdiplus::SolidBrush brush(Gdiplus::Color(0, 0, 200));
    const bench::Goals goals{.toLimit = 1.3};
    results.measure({.what = "DrawPolygon, 1,000 points",
                     .ours = {.run = [&] { painter.DrawPolygon(points.data(), points.size(), &style, {}); }},
                     .limit = bench::Runner{.run =
                                                [&] {
                                                    bareGdiPlus(bare, [&](Gdiplus::Graphics& graphics) {
                                                        graphics.FillPolygon(&brush, pixels.data(), kPolygonPoints,
                                                                             Gdiplus::FillModeAlternate);
                                                        graphics.DrawPolygon(&pen, pixels.data(), kPolygonPoints);
                                                    });
                                                }},
                     .goals = goals});
    const scene::Shape lines = scene::manyLines(kSingleLines);
    results.measure({.what = "DrawLine, 1,000 times",
                     .ours = {.run =
                                  [&] {
                                      for (std::size_t index = 0; index < lines.points.size(); index += 2) {
                                          painter.DrawLine(lines.points[index], lines.points[index + 1], &style, {});
                                      }
                                  }},
                     .limit = bench::Runner{.run =
                                                [&] {
                                                    for (std::size_t index = 0; index < lines.points.size();
                                                         index += 2) {
                                                        const auto& from = lines.points[index];
                                                        const auto& to = lines.points[index + 1];
                                                        bareGdiPlus(bare, [&](Gdiplus::Graphics& graphics) {
                                                            graphics.DrawLine(&pen, from.x, from.y, to.x, to.y);
                                                        });
                                                    }
                                                }},
                     .goals = goals});
}

void lookUps(bench::Results& results) {
    constexpr int kStep = 37;
    constexpr double kNanoseconds = 1e9;
    VectorCanvas::VectorPainterGdi painter = makePainter(true);
    painter.EndRender(false);
    const scene::BareDevice bare;
    volatile unsigned int sink = 0;
    int x = 0;
    const auto next = [&] { return x = (x + kStep) % scene::kChartWidth; };
    const bench::Result took =
        bench::measure({.what = "",
                        .ours = {.run = [&] { sink = painter.GetObjectId(next(), kStep); }},
                        .peer = bench::Runner{.run = [&] { sink = ::GetPixel(bare, next(), kStep); }}});
    results.record({.what = "GetObjectId after a frame, a call (peer: GetPixel)",
                    .ours = took.ours * kNanoseconds,
                    .unit = "ns",
                    .goal = 60,
                    .peer = took.peer.value_or(0) * kNanoseconds});
}

std::size_t allocations = 0;

void* countNew(std::size_t size) {
    ++allocations;
    return ::operator new(size);
}

void frames(bench::Results& results) {
    VectorCanvas::VectorPainterGdi painter;
    painter.EnableShadows(1);
    scene::Candles candles(kCandles);
    scene::BareDevice bare;
    const support::ImportPatch patch(::GetModuleHandleW(L"OrtinControls.dll"), "libstdc++-6.dll", "_Znwy", &countNew);
    results.measure({.what = "a frame of 5,000 candles, shadow on",
                     .ours = {.run = [&] { candles.draw(painter); }, .prepare = [] { allocations = 0; }},
                     .limit = bench::Runner{.run = [&] { candles.drawBare(bare); }},
                     .goals = {.toLimit = 2.0}});
    results.record({.what = "allocations of the painter in such a frame",
                    .ours = static_cast<double>(allocations),
                    .unit = "allocations",
                    .goal = 0});
}

void measureCanvas(bench::Results& results) {
    lists(results, false);
    lists(results, true);
    shapes(results);
    lookUps(results);
    frames(results);
}

const bench::Registered canvas{{"canvas", measureCanvas}};

} // namespace
