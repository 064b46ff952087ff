// Printables that misbehave, extreme scales, and what a preview costs.
#include "NotedBitmaps.h"
#include "PreviewFixture.h"

#include <stdexcept>

#include <psapi.h>

#include "support/ImportPatch.h"
#include "support/Resources.h"

namespace {

class PreviewHost : public PreviewFixture {};

bool S_deletedWhileSelected;
constexpr COLORREF kRightHalf = RGB(9, 9, 9);

BOOL(WINAPI* S_deleteObject)(HGDIOBJ);

BOOL WINAPI watchedDelete(HGDIOBJ object) {
    if (::GetObjectType(object) == OBJ_BITMAP) {
        // A bitmap can be selected into one context only.
        const HDC other = ::CreateCompatibleDC(nullptr);
        S_deletedWhileSelected = ::SelectObject(other, object) == nullptr || S_deletedWhileSelected;
        ::DeleteDC(other);
    }
    return S_deleteObject(object);
}

/// Sees the bitmaps that the framework deletes.
class WatchedBitmaps {
public:
    WatchedBitmaps() {
        S_deletedWhileSelected = false;
        S_deleteObject = m_patch.original<BOOL WINAPI(HGDIOBJ)>();
    }

private:
    support::ImportPatch m_patch{::GetModuleHandleW(L"OrtinMfc.dll"), "gdi32.dll", "DeleteObject", watchedDelete};
};

std::size_t residentBytes() {
    PROCESS_MEMORY_COUNTERS counters{};
    ::K32GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof counters);
    return counters.WorkingSetSize;
}

} // namespace

TEST_F(PreviewHost, MayDestroyTheWindowWhileItDraws) {
    document.onPrint = [this](CDC*, PrintInfo*) { preview.DestroyWindow(); };
    update();
    EXPECT_EQ("1 ", document.takeDrawn());
    EXPECT_EQ(nullptr, preview.GetSafeHwnd());
}

TEST_F(PreviewHost, MayDestroyTheDialogWhileItDraws) {
    document.onPrint = [this](CDC*, PrintInfo* state) {
        if (state->CurrentPage() == 2) {
            window.DestroyWindow();
        }
    };
    update();
    EXPECT_EQ("1 2 ", document.takeDrawn());
    EXPECT_EQ(nullptr, preview.GetSafeHwnd());
    preview.ChangePreviewAreaScale(0.1);
    preview.Update(*device.dc());
    EXPECT_EQ("", document.takeDrawn());
}

TEST_F(PreviewHost, MayDestroyTheWindowWhileItBegins) {
    document.onBegin = [this] { preview.DestroyWindow(); };
    update();
    EXPECT_EQ(nullptr, preview.GetSafeHwnd());
    EXPECT_EQ("", document.takeDrawn());
}

TEST_F(PreviewHost, MayBeginAnewWhileItDraws) {
    int left = 1;
    document.onPrint = [&](CDC*, PrintInfo*) {
        if (left-- > 0) {
            document.pages = 1;
            preview.Update(*device.dc());
        }
    };
    update();
    EXPECT_EQ("1 1 ", document.takeDrawn()) << "what was drawn for the document of before is not kept";
    EXPECT_EQ(310, preview.CalculateTotalHeight());
}

TEST_F(PreviewHost, MayLetMessagesThroughWhileItDraws) {
    document.onPrint = [this](CDC*, PrintInfo*) {
        preview.Invalidate();
        preview.UpdateWindow();
    };
    update();
    EXPECT_EQ("1 2 ", document.takeDrawn());
    hideButtons();
    EXPECT_EQ(ColouredPages::colourOf(1), pixels().at(client().cx / 2, 100));
}

TEST_F(PreviewHost, MayLeaveTheContextAsItLikes) {
    document.onPrint = [](CDC* dc, PrintInfo*) {
        dc->SetMapMode(MM_ANISOTROPIC);
        dc->SetViewportExt(7, 7);
        dc->SetViewportOrg(40, 40);
        dc->IntersectClipRect(0, 0, 1, 1);
    };
    update();
    hideButtons();
    const int left = leftMargin(200);
    EXPECT_EQ(ColouredPages::colourOf(1), pixels().onlyColour({left, 5, left + 200, 305}));
}

TEST_F(PreviewHost, MayThrowWhileItBegins) {
    document.onBegin = [] { throw std::runtime_error("no pages"); };
    EXPECT_THROW(preview.Update(*device.dc()), std::runtime_error);
    EXPECT_NE(0, ::GetDeviceCaps(*device.dc(), HORZRES)) << "the context is still there";
    EXPECT_EQ(static_cast<DWORD>(OBJ_MEMDC), ::GetObjectType(*device.dc()));
    document.onBegin = nullptr;
    update();
    EXPECT_EQ("1 2 ", document.takeDrawn());
}

TEST_F(PreviewHost, MayThrowWhileItDraws) {
    preview.Update(*device.dc());
    CClientDC dc(&preview);
    const std::size_t before = support::gdiHandleCount();
    document.onPrint = [](CDC*, PrintInfo* state) {
        if (state->CurrentPage() == 2) {
            throw std::runtime_error("no picture");
        }
    };
    {
        const WatchedBitmaps watched;
        EXPECT_THROW(preview.Draw(&dc), std::runtime_error);
        EXPECT_FALSE(S_deletedWhileSelected) << "the system would keep it";
    }
    EXPECT_EQ(before + 2, support::gdiHandleCount()) << "the first page and what there is of the second";
}

TEST_F(PreviewHost, ThatThrowsWhileItDrawsIsAskedForThatPageAgainByTheNextUpdateOnly) {
    document.onPrint = [](CDC*, PrintInfo* state) {
        if (state->CurrentPage() == 1) {
            throw std::runtime_error("no picture");
        }
    };
    preview.Update(*device.dc());
    CClientDC dc(&preview);
    EXPECT_THROW(preview.Draw(&dc), std::runtime_error);
    EXPECT_EQ("1 ", document.takeDrawn());
    for (int paint = 0; paint < 2; ++paint) {
        EXPECT_NO_THROW(preview.Draw(&dc)) << "as under a message box that is taken away";
    }
    EXPECT_EQ("2 ", document.takeDrawn());
    hideButtons();
    EXPECT_EQ(ColouredPages::colourOf(1), pixels().at(client().cx / 2, 100)) << "what was drawn of it";
    document.onPrint = nullptr;
    update();
    EXPECT_EQ("1 2 ", document.takeDrawn());
}

TEST_F(PreviewHost, WithoutMemoryForAPageTriesAgainAtTheNextPaint) {
    {
        NotedBitmaps noted;
        noted.noMemory = true;
        update();
        EXPECT_EQ("", document.takeDrawn());
    }
    pixels();
    EXPECT_EQ("1 2 ", document.takeDrawn());
}

TEST_F(PreviewHost, AtTheSmallestScaleEachPageIsASpeck) {
    update();
    hideButtons();
    document.takeDrawn();
    scale(-0.99);
    scale(-0.001);
    EXPECT_EQ("3 ", document.takeDrawn());
    const support::Pixels picture = pixels();
    const int left = leftMargin(2);
    for (int page = 1; page <= 3; ++page) {
        const int top = 5 + (page - 1) * (3 + 15);
        EXPECT_EQ(ColouredPages::colourOf(page), picture.onlyColour({left, top, left + 2, top + 3}));
        EXPECT_EQ(kShadow, picture.onlyColour({left + 2, top + 2, left + 4, top + 5}));
        EXPECT_EQ(kScene, picture.onlyColour({0, top + 5, client().cx, top + 18}));
    }
}

TEST_F(PreviewHost, AtAHugeScaleShowsThePieceInView) {
    document.onPrint = [](CDC* dc, PrintInfo*) { dc->FillSolidRect(100, 0, 100, 300, kRightHalf); };
    update();
    hideButtons();
    int reached = 1;
    for (const int huge : {50, 1000, 10'000}) {
        scale(huge - reached);
        reached = huge;
        preview.HandleScroll(SB_TOP, 0, SB_HORZ, 0);
        support::Pixels picture = pixels();
        EXPECT_EQ(kScene, picture.onlyColour({0, 0, 5, client().cy})) << huge;
        EXPECT_EQ(ColouredPages::colourOf(1), picture.onlyColour({5, 5, client().cx, client().cy})) << huge;
        const auto middle = static_cast<unsigned int>(5 + 100 * huge);
        preview.HandleScroll(SB_THUMBPOSITION, middle / 5 - 20, SB_HORZ, 0);
        picture = pixels();
        // Between them the colours blend.
        EXPECT_EQ(ColouredPages::colourOf(1), picture.at(20, 100)) << huge;
        EXPECT_EQ(kRightHalf, picture.at(250, 100)) << huge;
    }
}

TEST_F(PreviewHost, NoBitmapIsLargerThanThePageAtAnyScale) {
    const NotedBitmaps noted;
    update();
    for (const double delta : {-0.98, 3.0, 40.0, 10'000.0, 1e9, -1e9 - 10'042.0, 0.5}) {
        scale(delta);
        pixels();
    }
    EXPECT_EQ(200, noted.largest.cx);
    EXPECT_EQ(300, noted.largest.cy);
    EXPECT_EQ("1 2 3 ", document.takeDrawn());
}

TEST_F(PreviewHost, AThousandUpdatesAndScalesLeaveNothingBehind) {
    const auto work = [this](int times) {
        for (int time = 0; time < times; ++time) {
            preview.Update(*device.dc());
            preview.UpdateWindow();
            preview.ChangePreviewAreaScale(time % 2 == 0 ? -0.4 : 0.4);
            preview.UpdateWindow();
            document.drawn.clear();
            AfxGetThread()->OnIdle(0); // as the host's loop, which frees temporary objects
        }
        support::pumpUntilIdle();
    };
    work(10);
    const support::Resources before = support::Resources::inUse();
    work(1000);
    const support::Resources after = support::Resources::inUse();
    EXPECT_EQ(before.gdiHandles, after.gdiHandles);
    EXPECT_EQ(before.windows, after.windows);
    EXPECT_LT(after.heapBytes, before.heapBytes + 100'000);
}

TEST_F(PreviewHost, AKeptPageCostsFourBytesAPixelOfThePrinter) {
    device.setSize(2480, 3508);
    document.pages = 1;
    document.area = CRect(0, 0, 2480, 3508);
    scale(-0.9);
    preview.Update(nullptr);
    const std::size_t before = residentBytes();
    preview.Update(*device.dc());
    pixels();
    const double bytes = static_cast<double>(residentBytes()) - static_cast<double>(before);
    EXPECT_NEAR(2480.0 * 3508 * 4, bytes, 4e6);
    RecordProperty("bytes", std::to_string(bytes));
}
