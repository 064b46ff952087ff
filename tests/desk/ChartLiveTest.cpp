// The chart while prices tick.
#include "ChartOnHost.h"
#include "QuoteBook.h"
#include "core/chart/MovingAverage.h"
#include "support/Pump.h"

using namespace Desk;

namespace {

class ChartLive : public ChartOnHost {
protected:
    /// Prices in turn, from the last close of the series on.
    static PriceSession sessionOf(std::initializer_list<double> prices) {
        PriceSession session(wavingCandles(200).back().close);
        for (const double price : prices)
            session.take(price);
        return session;
    }
    /// Marks the picture, so that a new one can be told from it.
    void sign() { ::SetPixel(canvas().picture().GetSource(), 0, 0, Sign); }
    bool isSigned() { return ::GetPixel(canvas().picture().GetSource(), 0, 0) == Sign; }

    static constexpr COLORREF Sign = RGB(1, 254, 3);
};

std::string textOf(const Candle& candle) {
    std::string text;
    for (const double value : {candle.open, candle.high, candle.low, candle.close, candle.volume})
        text += std::to_string(std::lround(value)) + " ";
    return text;
}

} // namespace

TEST_F(ChartLive, TheLastCandleFollowsThePriceAndNoOtherDoes) {
    open(200);
    const ChartModel& model = m_pane->model();
    const Candles before = model.candles();
    m_pane->follow(sessionOf({200, 50, 131}));
    const Candle& last = before.back();
    EXPECT_EQ(textOf(model.candles().back()), textOf({last.date, last.open, 200, 50, 131, last.volume}));
    EXPECT_TRUE(std::equal(before.begin(), before.end() - 1, model.candles().begin()));
    EXPECT_NEAR(model.average().back(), movingAverage(model.candles(), AveragePeriod).back(), 1e-9);
    EXPECT_EQ(model.greatestPrice(), 200);
    EXPECT_EQ(frame().columns.back().candle, model.candles().back());
    m_pane->follow(sessionOf({200, 50, 132}));
    EXPECT_EQ(model.candles().back().close, 132);
}

TEST_F(ChartLive, AnInstrumentThatHasTickedUnseenIsShownWithItsLastPriceAndItsOldPast) {
    ChartModel model{CandleSource(std::nullopt), ChartMemory()};
    Instrument a = named("A");
    a.price = 100.0;
    model.show(&a);
    const Candles before = model.candles();
    const Instrument b = named("B");
    model.show(&b);
    PriceSession session(100.0);
    session.take(107);
    a.price = 107;
    model.show(&a, &session);
    EXPECT_EQ(model.candles().back().close, 107);
    EXPECT_EQ(model.candles().size(), before.size());
    EXPECT_TRUE(std::equal(before.begin(), before.end() - 1, model.candles().begin()));
    EXPECT_NEAR(model.average().back(), movingAverage(model.candles(), AveragePeriod).back(), 1e-9);
    model.show(&b);
    model.show(&a);
    EXPECT_NE(model.candles()[0], before[0]) << "another price, as without a session, is another course";
}

TEST_F(ChartLive, WithoutCandlesNothingFollows) {
    open(200);
    ChartModel model(CandleSource(CandleBook{{"A", {}}}), ChartMemory());
    PriceSession session(10);
    session.take(11);
    EXPECT_FALSE(model.follow(session));
    const Instrument a = named("A");
    EXPECT_TRUE(model.show(&a, &session));
    EXPECT_FALSE(model.follow(session));
    EXPECT_TRUE(model.candles().empty());
}

TEST_F(ChartLive, ABurstOfTicksIsOnePicture) {
    open(200);
    sign();
    PriceSession session = sessionOf({});
    for (int tick = 0; tick < 500; ++tick) {
        session.take(120 + tick % 7);
        m_pane->follow(session);
    }
    EXPECT_TRUE(isSigned()) << "before the frame is due";
    EXPECT_TRUE(support::pumpUntil([this] { return !isSigned(); }));
    sign();
    support::pumpFor(std::chrono::milliseconds(150));
    EXPECT_TRUE(isSigned()) << "nothing has ticked since";
}

TEST_F(ChartLive, APriceThatStaysMakesNoPicture) {
    open(200);
    const PriceSession session = sessionOf({131});
    m_pane->follow(session);
    support::pumpFor(std::chrono::milliseconds(150));
    sign();
    m_pane->follow(session);
    support::pumpFor(std::chrono::milliseconds(150));
    EXPECT_TRUE(isSigned());
}

TEST_F(ChartLive, MayEndBeforeItsFrame) {
    open(200);
    m_pane->follow(sessionOf({131}));
    m_pane.reset();
    support::pumpFor(std::chrono::milliseconds(100));
    EXPECT_EQ(m_pane, nullptr);
}

TEST(QuoteBooks, TellWhatHasBecomeOfAPrice) {
    QuoteBook book({{"A", "", "", 10.0, {}, {}, {}, {}, {}, {}}, {"B", "", "", {}, {}, {}, {}, {}, {}, {}}});
    EXPECT_EQ(book.session(0), nullptr);
    for (const double price : {10.5, 9.0, 9.5})
        book.setPrice(0, price);
    PriceSession expected(10.0);
    expected.last = 9.5;
    expected.highest = 10.5;
    expected.lowest = 9.0;
    ASSERT_TRUE(book.session(0));
    EXPECT_EQ(*book.session(0), expected);
    EXPECT_EQ(book.session(1), nullptr);
    book.setPrice(1, 7.0);
    EXPECT_EQ(*book.session(1), PriceSession(7.0));
}
