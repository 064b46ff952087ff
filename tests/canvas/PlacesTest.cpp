// The places of virtual operations in their tables: a host that was built earlier calls by them.

#include "PainterFixture.h"

#include <cstring>

using VectorCanvas::CRect2D;
using VectorCanvas::DrawContextBase;
using VectorCanvas::DrawContextGdiLine;
using VectorCanvas::DrawContextGdiLineAndFill;
using VectorCanvas::DrawContextGdiText;
using VectorCanvas::IVectorPainter;

namespace {

constexpr std::size_t kPlacesOfDestructor = 2; // of this compiler

/// Of this compiler, too: a pointer to a virtual member holds one more than the offset in the table.
template <typename Member>
std::size_t placeOf(Member member) {
    std::size_t offset = 0;
    std::memcpy(&offset, &member, sizeof offset);
    return (offset - 1) / sizeof(void*) - kPlacesOfDestructor;
}

} // namespace

TEST(Places, OfThePaintersOperationsStay) {
    using PlacedText = void (IVectorPainter::*)(Point, std::wstring_view, DrawContextGdiText&, const Point&);
    using TextInRect = void (IVectorPainter::*)(std::wstring_view, const CRect2D&, DrawContextGdiText&, unsigned int);
    using Stretched =
        void (IVectorPainter::*)(const Point&, const Point&, const Point&, const DrawContextBase*, Gdiplus::Bitmap*);
    using NaturalSize = void (IVectorPainter::*)(const Point&, const Point&, const DrawContextBase*, Gdiplus::Bitmap*);
    const std::size_t places[] = {
        placeOf(&IVectorPainter::InitWindowIdAndViewPort),
        placeOf(&IVectorPainter::Release),
        placeOf(&IVectorPainter::InitRender),
        placeOf(&IVectorPainter::EndRender),
        placeOf(&IVectorPainter::Clear),
        placeOf(&IVectorPainter::DrawLineList),
        placeOf(&IVectorPainter::DrawPolyline),
        placeOf(&IVectorPainter::DrawPolygon),
        placeOf(&IVectorPainter::DrawEllipse),
        placeOf(&IVectorPainter::DrawPolyPolyline),
        placeOf(&IVectorPainter::DrawPoint),
        placeOf(&IVectorPainter::FillRects),
        placeOf(&IVectorPainter::DrawLine),
        placeOf(&IVectorPainter::DrawOrdinaryLine),
        placeOf(&IVectorPainter::DrawArc),
        placeOf<PlacedText>(&IVectorPainter::DrawTextW),
        placeOf<TextInRect>(&IVectorPainter::DrawTextW),
        placeOf(&IVectorPainter::GetSource),
        placeOf(&IVectorPainter::DrawIcon),
        placeOf<Stretched>(&IVectorPainter::DrawBitmap),
        placeOf<NaturalSize>(&IVectorPainter::DrawBitmap),
        placeOf(&IVectorPainter::DrawRect),
        placeOf(&IVectorPainter::EnableShadows),
        placeOf(&IVectorPainter::GetObjectId),
        placeOf(&IVectorPainter::SetClipRegion),
        placeOf(&IVectorPainter::GetViewport),
        placeOf(&IVectorPainter::DrawControlPoints),
        placeOf(&IVectorPainter::GetTextHeight),
    };
    std::size_t expected = 0;
    for (const std::size_t place : places) {
        EXPECT_EQ(expected++, place);
    }
}

TEST(Places, OfTheStylesOperationsStay) {
    EXPECT_EQ(0U, placeOf(&DrawContextGdiLine::ReleaseContext));
    EXPECT_EQ(1U, placeOf(&DrawContextGdiLine::SetHollow));
    EXPECT_EQ(0U, placeOf(&DrawContextGdiLineAndFill::ReleaseContext));
    EXPECT_EQ(1U, placeOf(&DrawContextGdiLineAndFill::SetHollow));
    EXPECT_EQ(0U, placeOf(&VectorCanvas::GrObj::Draw));
}
