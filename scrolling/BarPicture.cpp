#include "BarPicture.h"

#include <algorithm>

namespace {

/// The first pixel that shows the finer one or one behind it.
int firstFrom(int finer, const std::vector<int>& samples) {
    return static_cast<int>(std::lower_bound(samples.begin(), samples.end(), finer) - samples.begin());
}

BarRect shown(const BarRect& finer, const BarPicture::Samples& samples) {
    return {firstFrom(finer.left, samples.columns), firstFrom(finer.top, samples.rows),
            firstFrom(finer.right, samples.columns), firstFrom(finer.bottom, samples.rows)};
}

BarRect magnified(const BarRect& rect) {
    constexpr int kFiner = BarPicture::kFiner;
    return {kFiner * rect.left, kFiner * rect.top, kFiner * rect.right, kFiner * rect.bottom};
}

} // namespace

BarPicture BarPicture::of(const BarLayout& layout, const Samples& samples, int unit) {
    BarPicture picture{};
    auto patch = picture.patches.begin();
    const Grip grip = gripOf(layout.thumb, unit);
    // A thumb that is turned around, on a bar too low for its insets, does not show; the lines on it do all the same.
    const auto [top, bottom] = std::minmax(grip.top, grip.bottom);
    // A pen covers as much on both sides of its line.
    const int half = hasGrip(layout.thumb) ? kFiner * unit / 2 : 0;
    for (const int x : grip.x) {
        BarRect line = magnified({x, top, x, bottom});
        line.left -= half;
        line.right += half;
        *patch++ = {shown(line, samples), Part::Grip};
    }
    *patch++ = {shown(magnified(layout.thumb), samples), Part::Thumb};
    *patch = {shown(magnified(layout.client), samples), Part::Background};
    return picture;
}
