// Each pixel of a preview against a drawing of it that knows nothing of kept pictures.
#include "NotedBitmaps.h"
#include "PreviewFixture.h"
#include "support/Resources.h"

namespace {

constexpr CSize kWideSheet(700, 500);

/// Stripes that no two pages share, so that a pixel more or less is seen.
void drawStripes(CDC& dc, int page) {
    dc.FillSolidRect(CRect(CPoint(0, 0), kWideSheet), ColouredPages::colourOf(page));
    for (int line = 0; line < kWideSheet.cx; line += 3 + page) {
        dc.FillSolidRect(line, line % 200, 1, 270, RGB(line % 256, 40, 200));
        dc.FillSolidRect(line % 90, line, 430, 2, RGB(20, line % 256, 90));
    }
}

CDC& contextOf(const support::MemoryDevice& device) {
    return *CDC::FromHandle(device.dc());
}

void stretch(CDC& from, CSize part, CDC& to, const CRect& place) {
    to.SetStretchBltMode(HALFTONE);
    to.StretchBlt(place.left, place.top, place.Width(), place.Height(), &from, 0, 0, part.cx, part.cy, SRCCOPY);
}

using StretchFunction = BOOL WINAPI(HDC, int, int, int, int, HDC, int, int, int, int, DWORD);
StretchFunction* S_stretch;
int S_stretches;

BOOL WINAPI countedStretch(HDC to, int x, int y, int width, int height, HDC from, int fromX, int fromY, int fromWidth,
                           int fromHeight, DWORD operation) {
    ++S_stretches;
    return S_stretch(to, x, y, width, height, from, fromX, fromY, fromWidth, fromHeight, operation);
}

class PreviewPixels : public PreviewFixture {
protected:
    PreviewPixels() {
        device.setSize(kWideSheet.cx, kWideSheet.cy);
        document.area = CRect(CPoint(0, 0), kWideSheet);
        document.onPrint = [](CDC* dc, PrintInfo* state) { drawStripes(*dc, state->CurrentPage()); };
        update();
        hideButtons();
    }

    int horizontalPosition() const { return preview.GetScrollPos(SB_HORZ); }
    void scrollTo(int horizontal, int vertical) {
        preview.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, horizontal));
        preview.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, vertical));
        preview.UpdateWindow();
    }

    /// The pages of that size on the screen, at the positions of the bars.
    support::Pixels expected(CSize page) const { return expected(page, page.cx < kWideSheet.cx); }
    support::Pixels expected(CSize page, bool isShrunkWhole) const {
        const CSize view = client();
        const support::MemoryDevice picture(view.cx, view.cy, kScene);
        const support::MemoryDevice original(kWideSheet.cx, kWideSheet.cy);
        const support::MemoryDevice shrunk(page.cx, page.cy);
        CDC& dc = contextOf(picture);
        const int left = std::max(leftMargin(page.cx), 5) - 5 * horizontalPosition();
        for (int place = 0; place < document.pages; ++place) {
            const CRect onScreen(CPoint(left, 5 + place * (page.cy + 15) - 5 * position()), page);
            drawStripes(contextOf(original), place + 1);
            dc.FillSolidRect(onScreen + CPoint(4, 4), kShadow);
            if (isShrunkWhole) {
                // Whole, for systems shrink the visible part of a page alone with other pixels.
                stretch(contextOf(original), kWideSheet, contextOf(shrunk), CRect(CPoint(0, 0), page));
                dc.BitBlt(onScreen.left, onScreen.top, page.cx, page.cy, &contextOf(shrunk), 0, 0, SRCCOPY);
            } else {
                stretch(contextOf(original), kWideSheet, dc, onScreen);
            }
        }
        return picture.pixels();
    }
};

} // namespace

TEST_F(PreviewPixels, AreThoseOfStretchedPagesWhereverItIsScrolled) {
    for (const auto& [delta, page] :
         {std::pair(0.0, kWideSheet), std::pair(-0.4, CSize(420, 300)), std::pair(0.9, CSize(1050, 750))}) {
        scale(delta);
        for (const CPoint scrolled : {CPoint(0, 0), CPoint(7, 0), CPoint(0, 11), CPoint(13, 49), CPoint(99, 99)}) {
            scrollTo(scrolled.x, scrolled.y);
            EXPECT_TRUE(support::samePixels(support::Pixels::ofClient(preview), expected(page)))
                << "scale by " << delta << ", scrolled to " << scrolled.x << ' ' << scrolled.y;
        }
    }
}

TEST_F(PreviewPixels, MoveByFiveForAStepOfTheHorizontalBar) {
    const support::Pixels before = pixels();
    scrollTo(1, 0);
    const CSize view = client();
    EXPECT_TRUE(support::samePixels(support::Pixels::ofClient(preview).part({0, 0, view.cx - 5, view.cy}),
                                    before.part({5, 0, view.cx, view.cy})));
}

TEST_F(PreviewPixels, AreStretchedOnceForAScaleWhereTheyShrink) {
    document.pages = 5;
    update();
    const support::ImportPatch patch(::GetModuleHandleW(L"OrtinMfc.dll"), "gdi32.dll", "StretchBlt", countedStretch);
    S_stretch = patch.original<StretchFunction>();
    S_stretches = 0;
    scale(-0.5);
    EXPECT_EQ(2, S_stretches) << "the pages in view";
    preview.SendMessage(WM_VSCROLL, SB_LINEDOWN);
    pixels();
    EXPECT_EQ(2, S_stretches);
    scale(-0.1);
    EXPECT_EQ(4, S_stretches);
}

TEST_F(PreviewPixels, AreThereWithoutMemoryForASecondPicture) {
    scale(-0.5);
    NotedBitmaps noted;
    noted.noMemory = true;
    scale(0.1);
    EXPECT_TRUE(support::samePixels(pixels(), expected(CSize(420, 300), false)));
}

TEST_F(PreviewPixels, AreKeptForThePagesInViewAlone) {
    document.pages = 30;
    update();
    scale(-0.5);
    const auto kept = [this](int position) {
        scrollTo(0, position);
        int first = -1;
        int last = -1;
        preview.FindVisiblePages(first, last);
        return support::gdiHandleCount() - static_cast<std::size_t>(last - first + 1);
    };
    const int end = preview.GetScrollLimit(SB_VERT);
    for (int position = 0; position <= end; position += 10) {
        kept(position); // draws all the pages
    }
    const std::size_t before = kept(0);
    for (int position = 0; position <= end; position += 7) {
        EXPECT_EQ(before, kept(position));
    }
}

TEST_F(PreviewPixels, FollowThePrintAreaThatChanges) {
    document.pages = 1;
    update();
    scale(-0.5);
    pixels();
    info.PrintAreaInObjectUnits(CRect(0, 0, 600, 400));
    const CSize page(350, 250);
    const support::Pixels picture = pixels();
    const support::MemoryDevice original(kWideSheet.cx, kWideSheet.cy);
    drawStripes(contextOf(original), 1);
    const support::MemoryDevice corner(page.cx, page.cy);
    stretch(contextOf(original), CSize(600, 400), contextOf(corner), CRect(CPoint(0, 0), page));
    const CRect inView(5, 5, client().cx, 5 + page.cy);
    EXPECT_TRUE(support::samePixels(picture.part(inView), corner.pixels().part(CRect(CPoint(0, 0), inView.Size()))));
}

TEST_F(PreviewPixels, ShowTheShadowWhereThePrintAreaIsLargerThanThePage) {
    document.pages = 1;
    document.area = CRect(0, 0, 2 * kWideSheet.cx, 2 * kWideSheet.cy);
    update();
    scale(-0.75);
    const support::Pixels picture = pixels();
    const int left = leftMargin(175);
    EXPECT_EQ(kShadow, picture.onlyColour({left + 90, 70, left + 175, 130}));
    EXPECT_NE(kShadow, picture.at(left + 40, 30));
}
