#include "ChartContexts.h"

#include <algorithm>
#include <vector>

#include "DeskColors.h"
#include "DeskFonts.h"

namespace Desk {

namespace {

constexpr double HoverShare = 0.4;
constexpr double HaloShare = 0.45;
/// A pixel on each side.
constexpr int HaloWidth = 2;

/// A GDI pen for as long as it is described to a context.
void setPen(VectorCanvas::DrawContextGdiLine& context, unsigned int style, int width, COLORREF color) {
    GdiPenWrapper pen(style, width, color);
    context.UpdateContext(pen.GetHPEN());
}

/// The lengths that GDI+ itself gives to these styles, in widths of the pen.
std::vector<float> dashesOf(unsigned int lineStyle) {
    switch (lineStyle) {
    case PS_DASH:
        return {3, 1};
    case PS_DOT:
        return {1, 1};
    case PS_DASHDOT:
        return {3, 1, 1, 1};
    default:
        return {3, 1, 1, 1, 1, 1};
    }
}

void setPen(VectorCanvas::DrawContextGdiLine& context, const ChartStyle& style) {
    const unsigned int lineStyle = style.pen.LineStyle();
    const int width = scaledPen(style.pen.Width(), lineStyle);
    if (lineStyle == PS_SOLID || width == 1) {
        setPen(context, lineStyle, width, style.pen.Color());
        return;
    }
    // A system that has dashes in pens of one pixel only makes a wider pen solid, and the context would copy that.
    setPen(context, PS_SOLID, width, style.pen.Color());
    context.SetCustomDashStyle(dashesOf(lineStyle));
}

void setFont(VectorCanvas::DrawContextGdiText& context, GdiFontWrapper font, COLORREF color) {
    context.UpdateContext(font.GetHFONT(), color);
}

void setDeskFont(VectorCanvas::DrawContextGdiText& context, LONG weight, COLORREF color) {
    LOGFONTW description = deskFont(DeskTextHeight, weight);
    setFont(context, GdiFontWrapper(description, 0), color);
}

} // namespace

int scaledPen(long width, unsigned int lineStyle) {
    const int pixels = std::max(1, scaled(static_cast<int>(width)));
    return lineStyle == PS_SOLID || width > 1 ? pixels : 1;
}

COLORREF inkOn(COLORREF ground) {
    const int brightness = 299 * GetRValue(ground) + 587 * GetGValue(ground) + 114 * GetBValue(ground);
    return brightness > 140 * 1000 ? RGB(0, 0, 0) : RGB(255, 255, 255);
}

COLORREF lighter(COLORREF color) {
    return Colors::blend(color, RGB(255, 255, 255), HoverShare);
}

void ChartContexts::update(const ChartModel& model) {
    const auto isHovered = [&model](ChartPart part) { return isPart(model.state().hovered, part); };
    const auto shown = [&](ChartPart part, COLORREF color) { return isHovered(part) ? lighter(color) : color; };
    const auto setCandles = [&](ChartPart part, VectorCanvas::DrawContextGdiLine& edges,
                                VectorCanvas::DrawContextGdiLineAndFill& bodies) {
        const ChartStyle& style = model.styleOf(part);
        setPen(edges, PS_SOLID, 1, shown(part, style.pen.Color()));
        bodies.ChangeColors(shown(part, style.pen.Color()), shown(part, style.fill));
        edges.SetId(idOf(objectOf(part)));
        bodies.SetId(idOf(objectOf(part)));
    };
    setCandles(ChartPart::RisingCandles, risingEdges, risingBodies);
    setCandles(ChartPart::FallingCandles, fallingEdges, fallingBodies);

    const COLORREF volumeFill = shown(ChartPart::Volume, model.styleOf(ChartPart::Volume).fill);
    volume.ChangeColors(volumeFill, volumeFill);
    volume.SetId(idOf(objectOf(ChartPart::Volume)));

    const auto setLine = [&](ChartPart part, VectorCanvas::DrawContextGdiLine& context) {
        setPen(context, model.styleOf(part));
        context.SetHollow(static_cast<float>(model.styleOf(part).opacity));
        context.SetId(idOf(objectOf(part)));
    };
    setLine(ChartPart::Grid, grid);
    if (isHovered(ChartPart::Grid))
        grid.ChangeColor(Colors::blend(model.styleOf(ChartPart::Grid).pen.Color(), Colors::text(), HoverShare));
    setLine(ChartPart::Average, average);
    setLine(ChartPart::ArcMarker, arc);

    const auto setShape = [&](ChartPart part, VectorCanvas::DrawContextGdiLineAndFill& context) {
        const ChartStyle& style = model.styleOf(part);
        setPen(context, style);
        context.ChangeColors(style.pen.Color(), style.fill);
        context.SetHollow(static_cast<float>(style.opacity));
        context.SetId(idOf(objectOf(part)));
    };
    setShape(ChartPart::Range, range);
    setShape(ChartPart::EllipseMarker, ellipse);

    const ChartStyle& text = model.styleOf(ChartPart::Labels);
    setFont(labels, text.font,
            isHovered(ChartPart::Labels) ? Colors::blend(text.text, Colors::text(), 0.6) : text.text);
    labels.SetId(idOf(objectOf(ChartPart::Labels)));
    setFont(tag, text.font, 0);
    setDeskFont(tool, FW_NORMAL, Colors::text());
    tool.SetId(idOf({ChartObject::Kind::LineTool, 0}));
    setDeskFont(missing, FW_NORMAL, Colors::mutedText());
    setPen(frame, PS_SOLID, 1, Colors::line());
}

void ChartContexts::updateHalo(const ChartStyle& style) {
    setPen(halo, PS_SOLID, scaledPen(style.pen.Width(), PS_SOLID) + HaloWidth,
           Colors::blend(Colors::rowBackground(), style.pen.Color(), HaloShare));
}

void ChartContexts::updateLine(const ChartModel& model, std::size_t index) {
    const ChartStyle& style = model.styleOfLine(index);
    setPen(line, style);
    line.SetHollow(static_cast<float>(style.opacity));
    line.SetId(idOf(lineObject(index)));
    updateHalo(style);
}

} // namespace Desk
