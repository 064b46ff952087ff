#include <algorithm>
#include <set>

#include "ChartOnHost.h"
#include "DeskColors.h"
#include "chart/ChartContexts.h"
#include "support/Resources.h"

using namespace Desk;

namespace {

using ChartPainted = ChartOnHost;

class CandlesOfAFewPixels : public ChartOnHost, public testing::WithParamInterface<int> {};

std::string textOf(const std::set<unsigned int>& ids) {
    std::string text;
    for (const unsigned int id : ids)
        text += std::to_string(id) + " ";
    return text;
}

} // namespace

TEST_P(CandlesOfAFewPixels, StandOnWholePixelsInTheColoursOfTheirStyles) {
    const int bodyWidth = GetParam();
    open(2000);
    setCandleWidth(bodyWidth + 1);
    const support::Pixels shown = picture();
    const VectorCanvas::IVectorPainter& painter = canvas().picture();
    const ChartStyle& rising = m_pane->model().styleOf(ChartPart::RisingCandles);
    const ChartStyle& falling = m_pane->model().styleOf(ChartPart::FallingCandles);
    const int lastPrice = static_cast<int>(frame().prices.yOf(m_pane->model().candles().back().close));
    std::size_t seen = 0;
    for (const CandleColumn& column : frame().columns) {
        ASSERT_EQ(column.right - column.left, bodyWidth);
        const bool rises = column.candle.rises();
        const ChartStyle& style = rises ? rising : falling;
        const unsigned int id = idOf(objectOf(rises ? ChartPart::RisingCandles : ChartPart::FallingCandles));
        const int top = static_cast<int>(frame().prices.yOf(column.candle.high));
        const int bottom = static_cast<int>(frame().prices.yOf(column.candle.low));
        for (int y = top; y <= bottom; ++y)
            for (int x = column.left - 1; x <= column.right; ++x) {
                // The last price is dotted over all.
                if (painter.GetObjectId(x, y) != id || y == lastPrice)
                    continue;
                ++seen;
                ASSERT_GE(x, column.left) << "beside the body";
                ASSERT_LT(x, column.right) << "beside the body";
                ASSERT_TRUE(shown.at(x, y) == style.fill || shown.at(x, y) == style.pen.Color())
                    << support::describe(shown.at(x, y)) << " at " << x << ", " << y;
            }
        // The body's whole middle line, where nothing lies over it.
        const int middle = static_cast<int>(frame().prices.yOf((column.candle.open + column.candle.close) / 2));
        for (int x = column.left; x < std::min(column.right, frame().layout.prices.right); ++x)
            ASSERT_NE(painter.GetObjectId(x, middle), 0u) << "a hole at " << x << ", " << middle;
    }
    EXPECT_GT(seen, frame().columns.size() * 8);
}

INSTANTIATE_TEST_SUITE_P(ChartPainted, CandlesOfAFewPixels, testing::Values(1, 2, 3));

TEST_F(ChartPainted, VolumesAreAsWideAsTheirCandlesAndStandOnTheAxis) {
    open(2000);
    setCandleWidth(3);
    const support::Pixels shown = picture();
    const COLORREF fill = m_pane->model().styleOf(ChartPart::Volume).fill;
    const int y = frame().layout.volumes.bottom - 1;
    std::set<int> covered;
    for (const CandleColumn& column : frame().columns)
        for (int x = column.left; x < column.right; ++x)
            covered.insert(x);
    for (int x = 0; x < frame().layout.volumes.right; ++x)
        ASSERT_EQ(shown.at(x, y) == fill, covered.contains(x)) << x;
}

TEST_F(ChartPainted, EachPixelOfTheShadowIsAKnownObjectOrNothing) {
    for (const DeskTheme theme : {DeskTheme::White, DeskTheme::Black}) {
        open(2000, theme);
        drawLine();
        drawLine(0.1);
        selectRange();
        std::set<unsigned int> strange;
        std::set<unsigned int> found;
        for (const unsigned int id : ids()) {
            const ChartObject object = objectWithId(id);
            const bool isKnown = object.kind == ChartObject::Kind::Part || object.kind == ChartObject::Kind::LineTool ||
                                 (object.kind == ChartObject::Kind::Line && object.index < 2);
            (id == 0 || isKnown ? found : strange).insert(id);
        }
        EXPECT_EQ(textOf(strange), "");
        // Every part but the style of new lines, both lines, the tool and nothing.
        EXPECT_EQ(found.size(), ChartPartCount - 1 + 2 + 1 + 1) << textOf(found);
    }
}

TEST_F(ChartPainted, WhatIsHoveredStandsOutInThePictureAndChangesNoId) {
    open(2000);
    drawLine();
    selectRange();
    canvas().SendMessage(WM_KEYDOWN, VK_ESCAPE, 0);
    mouse(WM_MOUSELEAVE, {});
    const std::vector<unsigned int> ids = this->ids();
    const support::Pixels plain = picture();
    std::vector<ChartObject> objects{lineObject(0), {ChartObject::Kind::LineTool, 0}};
    for (std::size_t part = 0; part < ChartPartCount; ++part)
        if (static_cast<ChartPart>(part) != ChartPart::NewLine)
            objects.push_back(objectOf(static_cast<ChartPart>(part)));
    for (const ChartObject& object : objects) {
        m_pane->apply(m_pane->gestures().move({{1, 1}, object, false}, frame()));
        EXPECT_TRUE(picture() != plain) << "object " << idOf(object);
        EXPECT_TRUE(this->ids() == ids) << "object " << idOf(object);
        mouse(WM_MOUSELEAVE, {});
        EXPECT_TRUE(picture() == plain) << "object " << idOf(object);
    }
}

TEST_F(ChartPainted, WhatIsSelectedHasPointsToTakeItBy) {
    open(2000);
    drawLine();
    canvas().SendMessage(WM_KEYDOWN, VK_ESCAPE, 0);
    mouse(WM_MOUSELEAVE, {});
    const support::Pixels plain = picture();
    for (const ChartPart part :
         {ChartPart::RisingCandles, ChartPart::FallingCandles, ChartPart::Volume, ChartPart::Average, ChartPart::Grid,
          ChartPart::Labels, ChartPart::ArcMarker, ChartPart::EllipseMarker}) {
        m_pane->apply(m_pane->gestures().select(objectOf(part)));
        EXPECT_GT(picture().count(Colors::accent()), plain.count(Colors::accent())) << static_cast<int>(part);
    }
    m_pane->apply(m_pane->gestures().select(lineObject(0)));
    EXPECT_GT(picture().count(Colors::accent()), plain.count(Colors::accent()));
}

TEST_F(ChartPainted, FollowsTheTheme) {
    for (const DeskTheme theme : {DeskTheme::White, DeskTheme::Black}) {
        open(2000, theme);
        const support::Pixels shown = picture();
        EXPECT_GT(shown.count(Colors::rowBackground()), static_cast<std::size_t>(shown.width() * shown.height() / 3));
        const ChartStyles styles = defaultStyles(theme);
        for (const ChartPart part : {ChartPart::RisingCandles, ChartPart::FallingCandles, ChartPart::Volume})
            EXPECT_GT(shown.count(styles[static_cast<std::size_t>(part)].fill), 50u) << static_cast<int>(part);
    }
}

TEST_F(ChartPainted, ASeriesWithoutCandlesIsASentence) {
    open(100);
    const Instrument other = named("MMM");
    m_pane->show(&other);
    EXPECT_EQ(m_pane->model().missing(), L"Brak świec dla MMM; w pliku są: ABC");
    const support::Pixels shown = picture();
    EXPECT_FALSE(shown.onlyColour({0, shown.height() / 3, shown.width(), shown.height() * 2 / 3}));
    EXPECT_TRUE(shown.onlyColour({0, 0, shown.width(), shown.height() / 3}));
    for (const unsigned int id : ids())
        ASSERT_EQ(id, 0u);
}

TEST_F(ChartPainted, FitsAnyRoom) {
    open(2000);
    drawLine();
    selectRange();
    for (const int size : {0, 1, 2, 20, 40, 70, 150, 400})
        for (const int height : {0, 1, 25, 30, 60, 120, 300}) {
            m_pane->MoveWindow(0, 0, size, height);
            canvas().picture();
            m_pane->UpdateWindow();
        }
    m_pane->MoveWindow(0, 0, scaled(900), scaled(340));
    EXPECT_TRUE(pixelOf(lineObject(0)));
}

TEST_F(ChartPainted, ThePictureOfANewSurfaceIsThatOfAnOldOne) {
    open(2000, DeskTheme::Black);
    const support::Pixels first = picture();
    m_pane->apply({.picture = true});
    EXPECT_TRUE(samePixels(picture(), first));
}

// What a move of the mouse costs

TEST_F(ChartPainted, AMoveOfTheMouseMakesNoPictureButOverAnotherObject) {
    open(2000);
    const CPoint empty = emptyPixel();
    mouse(WM_MOUSEMOVE, empty);
    constexpr COLORREF Sign = RGB(1, 254, 3);
    ::SetPixel(canvas().picture().GetSource(), 0, 0, Sign);
    mouse(WM_MOUSEMOVE, empty + CPoint(1, 1));
    canvas().UpdateWindow();
    EXPECT_EQ(picture().at(0, 0), Sign);
    mouse(WM_MOUSEMOVE, *pixelOf(objectOf(ChartPart::RisingCandles)));
    EXPECT_NE(picture().at(0, 0), Sign);
}

TEST_F(ChartPainted, AMoveOfTheMouseRepaintsTheCrossHairAndTheLegendOnly) {
    open(2000);
    m_host.ShowWindow(SW_SHOWNOACTIVATE);
    const CPoint empty = emptyPixel();
    mouse(WM_MOUSEMOVE, empty);
    canvas().UpdateWindow();
    mouse(WM_MOUSEMOVE, empty + CPoint(2, 2));
    CRgn stale;
    stale.CreateRectRgn(0, 0, 0, 0);
    ASSERT_EQ(::GetUpdateRgn(canvas(), stale, FALSE), COMPLEXREGION);
    const DWORD size = ::GetRegionData(stale, 0, nullptr);
    std::vector<BYTE> bytes(size);
    auto* data = reinterpret_cast<RGNDATA*>(bytes.data());
    ::GetRegionData(stale, size, data);
    long long pixels = 0;
    for (DWORD at = 0; at < data->rdh.nCount; ++at) {
        const RECT& rect = reinterpret_cast<const RECT*>(data->Buffer)[at];
        pixels += static_cast<long long>(rect.right - rect.left) * (rect.bottom - rect.top);
    }
    const support::Pixels shown = picture();
    EXPECT_LT(pixels, static_cast<long long>(shown.width()) * shown.height() / 5);
}

TEST_F(ChartPainted, TheCrossHairLeavesNothingBehind) {
    open(2000);
    m_host.ShowWindow(SW_SHOWNOACTIVATE);
    canvas().UpdateWindow();
    const support::Pixels before = support::Pixels::ofClient(canvas());
    const CPoint empty = emptyPixel();
    for (int step = 0; step < 3; ++step) {
        mouse(WM_MOUSEMOVE, empty + CPoint(step, step));
        canvas().UpdateWindow();
        EXPECT_TRUE(support::Pixels::ofClient(canvas()) != before);
    }
    mouse(WM_MOUSELEAVE, {});
    canvas().UpdateWindow();
    EXPECT_TRUE(samePixels(support::Pixels::ofClient(canvas()), before));
}

TEST_F(ChartPainted, ManyPicturesLeaveNoHandleBehind) {
    open(2000);
    drawLine();
    selectRange();
    const auto draw = [this](int count) {
        for (int at = 0; at < count; ++at) {
            m_pane->apply(m_pane->gestures().key(at % 2 == 0 ? ChartKey::Left : ChartKey::Right));
            m_pane->apply(m_pane->gestures().move({{1, 1}, lineObject(0), false}, frame()));
            canvas().picture();
            mouse(WM_MOUSELEAVE, {});
            canvas().picture();
        }
    };
    draw(5);
    const std::size_t before = support::gdiHandleCount();
    draw(60);
    EXPECT_EQ(support::gdiHandleCount(), before);
}
