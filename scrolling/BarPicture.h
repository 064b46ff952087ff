#pragma once

#include <array>
#include <vector>

#include "BarLayout.h"

/// What the bar shows, as rectangles of one colour. It is the picture of a bar that is `kFiner` times as large in both
/// directions, of which each pixel of the bar shows one finer pixel. No windows of the system.
struct BarPicture {
    static constexpr int kFiner = 4;

    /// Which of the finer columns each column of pixels shows, and which of the finer rows each row. They grow.
    struct Samples {
        std::vector<int> columns;
        std::vector<int> rows;
    };

    enum class Part { Background, Thumb, Grip };

    struct Patch {
        BarRect rect; ///< empty or turned around where nothing shows
        Part part;
    };
    /// From the front to the back: what one covers, those after it do not show.
    std::array<Patch, Grip::kLines + 2> patches;

    /// `unit` is how wide a line of the grip is.
    static BarPicture of(const BarLayout& layout, const Samples& samples, int unit);
};
