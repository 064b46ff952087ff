#include <OrtinControls/GraphicsHelper.h>

#include <cstdint>

#include "ColorArithmetic.h"
#include "DpiArithmetic.h"

namespace {

double screenScaleFactor() {
    const HDC screen = ::GetDC(nullptr);
    const int pixelsPerInch = ::GetDeviceCaps(screen, LOGPIXELSX);
    ::ReleaseDC(nullptr, screen);
    return DpiArithmetic::scaleFactor(pixelsPerInch);
}

TRIVERTEX vertex(LONG x, LONG y, COLORREF color) {
    const auto highByte = [](BYTE component) { return static_cast<COLOR16>(component << 8); };
    return {x, y, highByte(GetRValue(color)), highByte(GetGValue(color)), highByte(GetBValue(color)), 0};
}

} // namespace

double GraphicsHelper::GetSystemScaleFactor() {
    static const double factor = screenScaleFactor();
    return factor;
}

int GraphicsHelper::CalculateDPIScalingTier(int tierCount) {
    return CalculateDPIScalingTier(tierCount, 2.0);
}

int GraphicsHelper::CalculateDPIScalingTier(int tierCount, double step) {
    return DpiArithmetic::scalingTier(GetSystemScaleFactor(), tierCount, step);
}

double GraphicsHelper::CalculateDpiAwareHeight(double height) {
    return DpiArithmetic::heightAtScale(GetSystemScaleFactor(), height);
}

double GraphicsHelper::CalculateDpiUnawareHeight(double height) {
    return DpiArithmetic::heightWithoutScale(GetSystemScaleFactor(), height);
}

unsigned int GraphicsHelper::PickFrom8GraphicIDs(std::array<unsigned int, 8> ids) {
    return ids[DpiArithmetic::pictureIndex(GetSystemScaleFactor())];
}

std::pair<CSize, CSize> GraphicsHelper::GetDpiRibbinIconsSize() {
    const auto [small, large] = DpiArithmetic::ribbonIconEdges(GetSystemScaleFactor());
    return {CSize(small, small), CSize(large, large)};
}

unsigned int GraphicsHelper::ChooseRibbonIconsBarIdBasingOnSize(CSize size, const std::array<unsigned int, 11>& ids) {
    const auto index = DpiArithmetic::iconStripIndex(size.cx);
    return index ? ids[*index] : 0;
}

void GraphicsHelper::Rgb2Hsl(unsigned long color, unsigned char& h, unsigned char& s, unsigned char& l) {
    const ColorArithmetic::Hsl hsl = ColorArithmetic::toHsl(color);
    h = hsl.hue;
    s = hsl.saturation;
    l = hsl.lightness;
}

unsigned long GraphicsHelper::Hsl2Rgb(unsigned char h, unsigned char s, unsigned char l) {
    return ColorArithmetic::toColor({h, s, l});
}

void GraphicsHelper::ComputeColorFromHue(double& hue, double m1, double m2) {
    hue = ColorArithmetic::componentOfHue(hue, m1, m2);
}

unsigned long GraphicsHelper::MixColor(unsigned long first, unsigned long second, int percent) {
    return ColorArithmetic::mixed(first, second, percent);
}

unsigned long GraphicsHelper::CalcHighlightColor(unsigned long color, int amount) {
    return ColorArithmetic::highlighted(color, amount);
}

void GraphicsHelper::DrawGradientV(CDC& dc, const CRect& rect, unsigned long first, unsigned long second) {
    TRIVERTEX vertices[] = {vertex(rect.left, rect.top, first), vertex(rect.right, rect.bottom, second)};
    GRADIENT_RECT mesh{0, 1};
    dc.GradientFill(vertices, 2, &mesh, 1, GRADIENT_FILL_RECT_V);
}

void GraphicsHelper::DrawGradientH(CDC& dc, const CRect& rect, unsigned long first, unsigned long second) {
    const auto middle = static_cast<LONG>((std::int64_t{rect.left} + rect.right) / 2);
    TRIVERTEX vertices[] = {
        vertex(rect.left, rect.top, first),
        vertex(middle, rect.bottom, second),
        vertex(middle, rect.top, second),
        vertex(rect.right, rect.bottom, first),
    };
    GRADIENT_RECT meshes[] = {{0, 1}, {2, 3}};
    dc.GradientFill(vertices, 4, meshes, 2, GRADIENT_FILL_RECT_H);
}

void GraphicsHelper::DrawRectangleFrame(CDC* dc, const CRect& rect, int width, unsigned long color) {
    CPen pen(PS_SOLID, width, color);
    CPen* previous = dc->SelectObject(&pen);
    const POINT corners[] = {
        {rect.left, rect.top},    {rect.right, rect.top}, {rect.right, rect.bottom},
        {rect.left, rect.bottom}, {rect.left, rect.top},
    };
    dc->Polyline(corners, 5);
    dc->SelectObject(previous);
}
