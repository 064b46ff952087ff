#include "BarPicture.h"

#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace {

using Part = BarPicture::Part;

constexpr int kWidth = 64;
constexpr int kHeight = 10;

/// Each pixel shows the same one of its own finer pixels.
std::vector<int> samplesAt(int within, int length) {
    std::vector<int> samples;
    for (int pixel = 0; pixel < length; ++pixel) {
        samples.push_back(BarPicture::kFiner * pixel + within);
    }
    return samples;
}

BarPicture pictureOf(double start, double end, int within, int unit = 1, int height = kHeight) {
    RangeWindow window;
    window.start = start;
    window.end = end;
    const BarLayout layout = BarLayout::of({kWidth, height}, window);
    return BarPicture::of(layout, {samplesAt(within, kWidth), samplesAt(within, height)}, unit);
}

/// "left,top right,bottom" of each patch that shows, from the front to the back.
std::string describe(const BarPicture& picture, Part part) {
    std::ostringstream text;
    for (const BarPicture::Patch& patch : picture.patches) {
        const BarRect& rect = patch.rect;
        if (patch.part == part && rect.left < rect.right && rect.top < rect.bottom) {
            text << rect.left << ',' << rect.top << ' ' << rect.right << ',' << rect.bottom << "; ";
        }
    }
    return text.str();
}

} // namespace

TEST(BarPicture, HasThumbAndBackgroundInWholePixelsWhicheverOfTheirFinerOnesTheyShow) {
    for (int within = 0; within < BarPicture::kFiner; ++within) {
        const BarPicture picture = pictureOf(0.25, 0.75, within);
        EXPECT_EQ("18,2 45,8; ", describe(picture, Part::Thumb)) << within;
        EXPECT_EQ("0,0 64,10; ", describe(picture, Part::Background)) << within;
    }
}

TEST(BarPicture, OfAGripHasLinesOfOnePixelWhereTheirFirstHalfShows) {
    EXPECT_EQ("30,3 31,7; 32,3 33,7; 28,3 29,7; 34,3 35,7; ", describe(pictureOf(0.25, 0.75, 1), Part::Grip));
}

TEST(BarPicture, OfAGripHasLinesOfTwoPixelsWhereTheOtherHalfOfTheirLeftNeighbourShows) {
    EXPECT_EQ("29,3 30,7; 31,3 32,7; 27,3 28,7; 33,3 34,7; ", describe(pictureOf(0.25, 0.75, 2), Part::Grip));
}

TEST(BarPicture, OfAGripHasWholePixelsOnBothSidesOfALineOfTwo) {
    EXPECT_EQ("28,3 30,7; 32,3 34,7; 24,3 26,7; 36,3 38,7; ", describe(pictureOf(0.25, 0.75, 1, 2), Part::Grip));
}

TEST(BarPicture, OfAThumbBelowEightPixelsHasNoGrip) {
    EXPECT_EQ("", describe(pictureOf(0.5, 0.5 + 7.5 / 54, 1), Part::Grip));
    EXPECT_NE("", describe(pictureOf(0.5, 0.5 + 8.5 / 54, 1), Part::Grip));
}

TEST(BarPicture, OfABarTooLowForItsThumbHasItsGripAlone) {
    struct Case {
        int height;
        const char* grip;
    };
    for (const Case& c : {Case{4, ""}, Case{3, "30,1 31,2; 32,1 33,2; 28,1 29,2; 34,1 35,2; "},
                          Case{2, "30,0 31,2; 32,0 33,2; 28,0 29,2; 34,0 35,2; "}}) {
        const BarPicture picture = pictureOf(0.25, 0.75, 1, 1, c.height);
        EXPECT_EQ("", describe(picture, Part::Thumb)) << c.height;
        EXPECT_EQ(c.grip, describe(picture, Part::Grip)) << c.height;
    }
}

TEST(BarPicture, OfAWindowThatEndsBeforeItBeginsHasNoThumb) {
    const BarPicture picture = pictureOf(0.75, 0.25, 1);
    EXPECT_EQ("", describe(picture, Part::Thumb));
    EXPECT_EQ("", describe(picture, Part::Grip));
    EXPECT_EQ("0,0 64,10; ", describe(picture, Part::Background));
}

TEST(BarPicture, IsCutAtTheBar) {
    EXPECT_EQ("0,2 64,8; ", describe(pictureOf(-1e300, 1e300, 1), Part::Thumb));
    EXPECT_EQ("", describe(pictureOf(5.0, 6.0, 1), Part::Thumb));
}

TEST(BarPicture, WithoutSamplesShowsNothing) {
    const BarPicture picture = BarPicture::of(BarLayout::of({kWidth, kHeight}, {}), {}, 1);
    for (const Part part : {Part::Background, Part::Thumb, Part::Grip}) {
        EXPECT_EQ("", describe(picture, part));
    }
}
