// The bar and its owner: what the owner sets, and what it does in the middle of being told.

#include <cmath>
#include <functional>
#include <limits>
#include <stdexcept>
#include <vector>

#include "BarFixture.h"
#include "support/Pump.h"
#include "support/Resources.h"

namespace {

class BarOwner : public BarFixture {
protected:
    BarOwner() { show(0.25, 0.75); }

    /// Everything that tells the owner something, each time on a bar that shows 0.25 to 0.75.
    struct Telling {
        const char* what;
        std::function<void(BarOwner&)> run;
    };
    static std::vector<Telling> tellings();

    /// Only while the bar and its window are there.
    void sendIfThere(UINT message, WPARAM flags, int x) {
        if (bar && bar->GetSafeHwnd() != nullptr) {
            send(message, flags, x, kMiddle);
        }
    }

    void renew() {
        owner.onChange = nullptr;
        if (!bar) {
            bar = std::make_unique<WatchedBar>(&owner);
        }
        if (bar->GetSafeHwnd() == nullptr) {
            createBar();
        }
        release(-50);
        show(0.25, 0.75);
    }
};

std::vector<BarOwner::Telling> BarOwner::tellings() {
    const auto gesture = [](int from, int to, UINT last) {
        return [=](BarOwner& test) {
            test.sendIfThere(WM_LBUTTONDOWN, MK_LBUTTON, from);
            test.sendIfThere(WM_MOUSEMOVE, MK_LBUTTON, to);
            test.sendIfThere(last, 0, to);
        };
    };
    return {
        {"drags the thumb", gesture(200, 210, WM_LBUTTONUP)},
        {"drags the left edge", gesture(100, 110, WM_LBUTTONUP)},
        {"drags the right edge", gesture(320, 310, WM_MOUSEMOVE)},
        {"clicks in the track", gesture(380, 381, WM_LBUTTONUP)},
        {"double clicks", gesture(200, 200, WM_LBUTTONDBLCLK)},
        {"turns the wheel", [](BarOwner& test) { test.turnWheel(120); }},
        {"hands over the wheel", [](BarOwner& test) { test.bar->MoveZoomOnWheel(120); }},
        {"holds a click",
         [](BarOwner& test) {
             const ScopedKeys keys({VK_LBUTTON});
             test.point(10);
             test.sendIfThere(WM_TIMER, 2, 0);
         }},
        {"sets the bar in a drag",
         [](BarOwner& test) {
             test.press(200);
             test.point(420);
             test.bar->SetCurrent(0.1, 0.3);
         }},
    };
}

} // namespace

TEST_F(BarOwner, BeginsWithTheWholeRange) {
    bar = std::make_unique<WatchedBar>(&owner);
    createBar();
    press(200);
    dragTo(204);
    EXPECT_EQ("moving 0.01 0-1", log());
}

TEST_F(BarOwner, IsToldTypesByNumber) {
    press(200);
    dragTo(204);
    EXPECT_EQ(0, owner.last.type);
    EXPECT_EQ(0.01, owner.last.delta);
    release(204);
    EXPECT_EQ(1, owner.last.type);
    EXPECT_EQ(0.0, owner.last.delta);
    show(0.25, 0.75);
    press(100);
    dragTo(104);
    EXPECT_EQ(2, owner.last.type);
    release(104);
    EXPECT_EQ(3, owner.last.type);
}

TEST_F(BarOwner, MayBeMissing) {
    bar = std::make_unique<WatchedBar>(nullptr);
    createBar();
    for (const Telling& telling : tellings()) {
        SCOPED_TRACE(telling.what);
        telling.run(*this);
    }
    EXPECT_NE(nullptr, bar->GetSafeHwnd());
}

TEST_F(BarOwner, SetsTheWindowAsItIs) {
    for (const auto& [start, end] : {std::pair(0.1, 0.2), std::pair(-2.0, 0.5), std::pair(0.7, 0.3)}) {
        bar->SetCurrent(start, end);
        EXPECT_EQ("erase and paint", waits());
        EXPECT_EQ("", log()) << "the owner knows what it sets";
        owner.last = {};
        press(0, -5); // outside: it only begins nothing
        release(0, -5);
        bar->SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(-5, -5));
        EXPECT_EQ("", log());
        EXPECT_EQ("nothing", waits());
    }
}

TEST_F(BarOwner, MaySetValuesThatAreNoWindow) {
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double value : {std::nan(""), infinity, -infinity, 1e300}) {
        bar->SetCurrent(value, 1.0);
        paint();
        bar->SetCurrent(0.0, value);
        paint();
        for (const Telling& telling : tellings()) {
            telling.run(*this);
            paint();
        }
        release(0);
    }
    renew();
    press(200);
    dragTo(204);
    EXPECT_EQ("moving 0.01 0.26-0.76", log()) << "the next window is sound again";
}

TEST_F(BarOwner, MaySetABarWithoutAWindow) {
    bar->DestroyWindow();
    host.UpdateWindow();
    bar->SetCurrent(0.5, 0.75);
    bar->MoveZoomOnWheel(120);
    EXPECT_EQ("moving 0.025 0.525-0.775", log());
    EXPECT_FALSE(::GetUpdateRect(host.m_hWnd, nullptr, FALSE)) << "nothing else is invalidated in its place";
    createBar();
    turnWheel(0);
    EXPECT_EQ("moving 0 0.525-0.775", log());
}

TEST_F(BarOwner, SettingTheBarInADragOfTheThumbRebasesItWithoutAJump) {
    press(200);
    point(200);
    bar->SetCurrent(0.1, 0.4); // pressed from 64 to 160
    EXPECT_EQ("moving 0.1 0.2-0.5", log()) << "40 pixels, to the pointer";
    paint();
    dragTo(204);
    EXPECT_EQ("moving 0.01 0.21-0.51", log());
}

TEST_F(BarOwner, SettingTheBarInADragOfTheThumbFromTheOtherSide) {
    press(200);
    point(200);
    bar->SetCurrent(0.5, 0.9); // pressed from 224 to 360
    EXPECT_EQ("moving -0.06 0.44-0.84", log());
}

TEST_F(BarOwner, SettingTheBarUnderThePointerOnlyRepaints) {
    press(200);
    waits();
    point(200);
    bar->SetCurrent(0.2, 0.8);
    EXPECT_EQ("", log());
    EXPECT_EQ("erase and paint", waits());
    dragTo(204);
    EXPECT_EQ("moving 0.01 0.21-0.81", log());
}

TEST_F(BarOwner, SettingTheBarInADragOfAnEdgeRebasesIt) {
    press(100);
    point(100);
    bar->SetCurrent(0.5, 0.75); // the left strip begins at 200
    EXPECT_EQ("sizing 0.25-0.75", log()) << "100 pixels back to the pointer";
    release(100);
    show(0.25, 0.75);
    press(320);
    point(320);
    bar->SetCurrent(0.25, 0.5); // the right strip ends at 224
    EXPECT_EQ("sizing 0.25-0.74", log());
}

TEST_F(BarOwner, SettingTheBarWithTheEdgeBeforeThePointerOnlyRepaints) {
    press(100);
    point(110);
    bar->SetCurrent(0.0, 0.75);
    EXPECT_EQ("", log());
    EXPECT_EQ("erase and paint", waits());
}

TEST_F(BarOwner, SettingTheBarWithoutADragDrivesNothing) {
    point(900);
    bar->SetCurrent(0.1, 0.2);
    press(5);
    log();
    bar->SetCurrent(0.1, 0.2);
    EXPECT_EQ("", log()) << "nor with a click in the track";
}

TEST_F(BarOwner, MayAnswerEachChangeBySettingTheBar) {
    owner.onChange = [this](const auto& info) { bar->SetCurrent(info.start, info.end); };
    press(200);
    point(204);
    dragTo(204);
    EXPECT_EQ("moving 0.01 0.26-0.76", log());
    turnWheel(120);
    EXPECT_EQ("moving 0.05 0.31-0.81", log());
    EXPECT_EQ("erase and paint", waits());
}

TEST_F(BarOwner, MayAnswerAtTheWallBeyondWhichThePointerIs) {
    owner.onChange = [this](const auto& info) { bar->SetCurrent(info.start, info.end); };
    press(200);
    point(800);
    dragTo(800);
    // Told of the move, and once more by the drag that its answer drives; the answer to that drives nothing.
    EXPECT_EQ("moving 1.5 0.5-1; moving 1 0.5-1", log());
    dragTo(800);
    EXPECT_NE("", log());
}

TEST_F(BarOwner, MayKeepTheBarFromMoving) {
    owner.onChange = [this](const auto&) { bar->SetCurrent(0.25, 0.75); };
    press(200);
    for (int x = 210; x < 900; x += 100) {
        point(x);
        dragTo(x);
    }
    owner.onChange = nullptr;
    log();
    turnWheel(0);
    EXPECT_EQ("moving 0 0.25-0.75", log());
}

TEST_F(BarOwner, MayDestroyTheWindowWheneverItIsTold) {
    for (const Telling& telling : tellings()) {
        SCOPED_TRACE(telling.what);
        for (int change = 1; change <= 3; ++change) {
            renew();
            int left = change;
            owner.onChange = [&](const auto&) {
                if (--left == 0) {
                    bar->DestroyWindow();
                }
            };
            telling.run(*this);
            EXPECT_FALSE(::GetUpdateRect(host.m_hWnd, nullptr, FALSE) && left > 0);
            EXPECT_TRUE(support::pumpUntilIdle());
        }
    }
    renew();
    moveTo(200);
    EXPECT_EQ("", log()) << "no drag has survived its window";
}

TEST_F(BarOwner, MayMakeTheWindowAnewInTheMiddleOfADragWhichIsOver) {
    press(200);
    bar->DestroyWindow();
    createBar();
    dragTo(204);
    EXPECT_EQ("", log());
}

TEST_F(BarOwner, MayDeleteTheBarWheneverItIsTold) {
    for (const Telling& telling : tellings()) {
        SCOPED_TRACE(telling.what);
        for (int change = 1; change <= 3; ++change) {
            renew();
            int left = change;
            owner.onChange = [&](const auto&) {
                if (--left == 0) {
                    bar.reset();
                }
            };
            telling.run(*this);
            EXPECT_TRUE(support::pumpUntilIdle());
        }
    }
}

TEST_F(BarOwner, MayThrow) {
    owner.onChange = [](const auto&) { throw std::runtime_error("host"); };
    press(200);
    point(900);
    try {
        bar->SetCurrent(0.1, 0.2);
    } catch (const std::runtime_error&) {
        log();
    }
    owner.onChange = nullptr;
    bar->SetCurrent(0.1, 0.2);
    EXPECT_NE("", log()) << "a set bar still drives the drag";
}

TEST_F(BarOwner, FindsNothingLeftBehindByThousandsOfBars) {
    const auto live = [this](int life) {
        bar = std::make_unique<WatchedBar>(&owner);
        createBar();
        show(0.25, 0.75);
        const std::vector<Telling> all = tellings();
        all[static_cast<std::size_t>(life) % all.size()].run(*this);
        if (life % 2 == 0) {
            bar->DestroyWindow(); // else its end does it, in the middle of a drag now and then
        }
        bar.reset();
        log();
    };
    constexpr int kWarmUp = 100;
    constexpr int kLives = 3000;
    for (int life = 0; life < kWarmUp; ++life) {
        live(life);
    }
    support::pumpUntilIdle();
    const support::Resources before = support::Resources::inUse();
    for (int life = 0; life < kLives; ++life) {
        live(life);
    }
    support::pumpUntilIdle();
    const support::Resources after = support::Resources::inUse();
    // Room for the caches of the system, far less than one object or a few bytes a life.
    EXPECT_LE(after.gdiHandles, before.gdiHandles + 10) << after;
    EXPECT_LE(after.windows, before.windows + 3) << after;
    EXPECT_LE(after.heapBytes, before.heapBytes + 20 * kLives) << before << after;
}

TEST_F(BarOwner, MayTakeTheBarFromADialog) {
    const HWND place = ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 20, 60, kWidth, kHeight, host,
                                         reinterpret_cast<HMENU>(9), nullptr, nullptr);
    AdvancedScroll taken(&owner);
    ASSERT_TRUE(taken.SubclassDlgItem(9, &host));
    EXPECT_NE(0U, taken.GetStyle() & SS_NOTIFY);
    taken.SetCurrent(0.25, 0.75);
    taken.UpdateWindow();
    ::SendMessageW(place, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(200, kMiddle));
    ::SendMessageW(place, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(204, kMiddle));
    EXPECT_EQ("moving 0.01 0.26-0.76", log());
    taken.DestroyWindow();
}

TEST_F(BarOwner, KnowsTheBarByItsClass) {
    const CObject* object = bar.get();
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(AdvancedScroll)));
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CStatic)));
    EXPECT_STREQ("AdvancedScroll", RUNTIME_CLASS(AdvancedScroll)->m_lpszClassName);
}
