#include "PainterFixture.h"

PainterFixture::PainterFixture() {
    line.UpdateContext(redPen());
    line.SetId(kId);
    shape.UpdateContext(redPen());
    shape.ChangeColors(kRed, kBlue);
    shape.SetId(kId);
    painter.EnableShadows(1);
}

void PainterFixture::begin(int width, int height) {
    ASSERT_TRUE(painter.InitRender(CSize(width, height)));
    painter.Clear(kWhite);
}

support::Pixels PainterFixture::picture() const {
    const CSize size = painter.GetViewport();
    return support::Pixels::ofDevice(painter.GetSource(), {0, 0, size.cx, size.cy});
}

support::Pixels PainterFixture::shadow() const {
    const CSize size = painter.GetViewport();
    support::Pixels result(size.cx, size.cy);
    for (int y = 0; y < size.cy; ++y) {
        for (int x = 0; x < size.cx; ++x) {
            result.set(x, y, painter.GetObjectId(x, y));
        }
    }
    return result;
}

std::set<unsigned int> PainterFixture::idsInShadow() const {
    const support::Pixels pixels = shadow();
    std::set<unsigned int> ids;
    for (int y = 0; y < pixels.height(); ++y) {
        for (int x = 0; x < pixels.width(); ++x) {
            ids.insert(pixels.at(x, y));
        }
    }
    return ids;
}

void Reference::lines(std::initializer_list<POINT> points, int width, COLORREF color) {
    CPen pen(PS_SOLID, width, color);
    const HGDIOBJ previous = ::SelectObject(dc(), pen);
    const std::vector<POINT> all(points);
    for (std::size_t index = 0; index + 1 < all.size(); index += 2) {
        ::MoveToEx(dc(), all[index].x, all[index].y, nullptr);
        ::LineTo(dc(), all[index + 1].x, all[index + 1].y);
    }
    ::SelectObject(dc(), previous);
}
