#include "PainterFixture.h"

#include <random>

namespace {

/// Objects at random, each with an id of its own, drawn by every call that a painter has.
class RandomScene : public PainterFixture {
protected:
    static constexpr int kSceneWidth = 240;
    static constexpr int kSceneHeight = 160;
    static constexpr int kCalls = 16;

    int pick(int from, int to) { return std::uniform_int_distribution<int>(from, to)(m_random); }
    float coordinate(int size) { return static_cast<float>(pick(-80, (size + 20) * 4)) / 4.0F; }
    Point point() { return {coordinate(kSceneWidth), coordinate(kSceneHeight)}; }

    void style(VectorCanvas::DrawContextGdiLine& context) {
        LOGPEN description{static_cast<UINT>(pick(PS_SOLID, PS_DASHDOTDOT)), {pick(0, 4), 0}, color()};
        const HPEN pen = ::CreatePenIndirect(&description);
        context.UpdateContext(pen);
        ::DeleteObject(pen);
        if (pick(0, 3) == 0) {
            context.SetHollow(static_cast<float>(pick(0, 10)) / 10.0F);
        }
        if (pick(0, 3) == 0) {
            context.SetCustomDashStyle({3.0F, 1.5F, 1.0F, 2.0F});
        }
        context.SetId(nextId());
    }
    VectorCanvas::DrawContextGdiText& styledText() {
        LOGFONTW description{};
        description.lfHeight = pick(8, 40);
        description.lfQuality = CLEARTYPE_QUALITY;
        const HFONT font = ::CreateFontIndirectW(&description);
        m_text.UpdateContext(font, color());
        ::DeleteObject(font);
        m_text.SetId(nextId());
        return m_text;
    }
    unsigned int nextId() {
        const auto id = static_cast<unsigned int>(pick(1, 0xFFFFFF));
        m_ids.insert(id);
        return id;
    }
    COLORREF color() { return RGB(pick(0, 255), pick(0, 255), pick(0, 255)); }

    void drawSomething() {
        style(line);
        style(shape);
        shape.FillRequired(pick(0, 1) == 0);
        std::vector<Point> points;
        for (int count = pick(1, 12); count > 0; --count) {
            points.push_back(point());
        }
        const Point offset{static_cast<float>(pick(-8, 8)) / 4.0F, static_cast<float>(pick(-8, 8)) / 4.0F};
        const unsigned long lengths[] = {static_cast<unsigned long>(points.size())};
        switch (pick(0, kCalls - 1)) {
        case 0:
            painter.DrawLineList(points.data(), points.size(), line, offset);
            break;
        case 1:
            painter.DrawPolyline(points.data(), points.size(), &line, offset);
            break;
        case 2:
            painter.DrawPolyPolyline(points.data(), points.size(), lengths, 1, &line, offset);
            break;
        case 3:
            painter.DrawPolygon(points.data(), points.size(), &shape, offset);
            break;
        case 4:
            painter.DrawEllipse(point(), point(), &shape, offset);
            break;
        case 5:
            painter.DrawPoint(point(), &line, offset);
            break;
        case 6:
            painter.FillRects(points.data(), points.size(), &shape, offset);
            break;
        case 7:
            painter.DrawLine(point(), point(), &line, offset);
            break;
        case 8:
            painter.DrawOrdinaryLine(point(), point(), &line);
            break;
        case 9:
            painter.DrawArc(point(), pick(0, 60), pick(0, 60), static_cast<float>(pick(0, 360)),
                            static_cast<float>(pick(-360, 360)), &line, offset);
            break;
        case 10:
            painter.DrawBitmap(point(), offset, {coordinate(60), coordinate(60)}, &line, &m_bitmap);
            break;
        case 11:
            painter.DrawRect({point().x, point().y, coordinate(60), coordinate(60)}, color(), color(), nextId());
            break;
        case 12:
            painter.DrawBitmap(point(), offset, &line, &m_bitmap);
            break;
        case 13:
            painter.DrawTextW(point(), L"Kurs 12,5", styledText(), offset);
            break;
        case 14:
            painter.DrawTextW(L"Kurs 12,5", {point().x, point().y, coordinate(60), coordinate(60)}, styledText(),
                              pick(0, 1) == 0 ? DT_LEFT : DT_RIGHT | DT_BOTTOM | DT_NOCLIP);
            break;
        default:
            painter.DrawControlPoints(nextId(), points.data(), points.size(), offset,
                                      {color(), pick(0, 3), color(), pick(0, 1) == 0, pick(0, 12), pick(0, 1) == 0,
                                       static_cast<float>(pick(0, 10)) / 10.0F, pick(0, 1) == 0});
            break;
        }
    }

    std::mt19937 m_random{20'261'121};
    std::set<unsigned int> m_ids{0};
    Gdiplus::Bitmap m_bitmap{16, 16};
    VectorCanvas::DrawContextGdiText m_text;
};

} // namespace

TEST_F(RandomScene, LeavesNothingButTheIdsOfItsObjectsInTheShadow) {
    std::size_t found = 0;
    for (int frame = 0; frame < 40; ++frame) {
        begin(kSceneWidth, kSceneHeight);
        m_ids = {0};
        for (int object = 0; object < 30; ++object) {
            drawSomething();
        }
        painter.EndRender(false);
        for (const unsigned int id : idsInShadow()) {
            ASSERT_TRUE(m_ids.count(id) != 0) << "frame " << frame << ": nobody has the id " << std::hex << id;
            found += id != 0 ? 1 : 0;
        }
    }
    EXPECT_GT(found, 40U * 10U) << "most objects can be found somewhere";
}

TEST_F(RandomScene, IsTheSamePictureWithAndWithoutAShadow) {
    begin(kSceneWidth, kSceneHeight);
    VectorCanvas::VectorPainterGdi plain;
    ASSERT_TRUE(plain.InitRender(CSize(kSceneWidth, kSceneHeight)));
    plain.Clear(kWhite);
    const std::mt19937 start = m_random;
    for (int object = 0; object < 30; ++object) {
        drawSomething();
    }
    const support::Pixels withShadow = picture();
    std::swap(painter, plain);
    m_random = start;
    for (int object = 0; object < 30; ++object) {
        drawSomething();
    }
    EXPECT_TRUE(support::samePixels(picture(), withShadow));
}
