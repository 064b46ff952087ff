#include "PreviewLayout.h"

#include <algorithm>
#include <cstdint>

#include "../graphics/Rounding.h"

namespace PreviewLayout {

namespace {

/// A page this long that begins in the view ends within the range of int.
constexpr int kMostExtent = 1 << 30;

constexpr double kShadowShare = 0.02;
constexpr int kLeastShadow = 2;
constexpr int kMostShadow = 4;
constexpr int kLineUnits = 5;

constexpr int kButtonsWidth = 90;
constexpr int kButtonWidth = 40;
constexpr int kButtonHeight = 20;
constexpr int kDecreaseOffset = 50;
constexpr int kButtonsAboveBottom = 40;
constexpr int kHotRim = 20;

std::int64_t pixelsOf(int position) {
    return std::int64_t{kScrollUnit} * position;
}

} // namespace

int scaled(int extent, double scale) {
    return std::min(truncateToInt(extent * scale), kMostExtent);
}

int totalHeight(int pageHeight, int pageCount) {
    const std::int64_t pages = pageCount;
    return saturateToInt(pages * pageHeight + (pages - 1) * kPageGap + 2 * kTopMargin);
}

int totalWidth(int pageWidth, int leftMargin) {
    return saturateToInt(std::int64_t{pageWidth} + 2 * std::int64_t{leftMargin});
}

int leftMargin(int clientWidth, int pageWidth) {
    return std::max((clientWidth - pageWidth) / 2, kLeastLeftMargin);
}

int shadowOffset(int pageWidth) {
    return std::clamp(truncateToInt(pageWidth * kShadowShare), kLeastShadow, kMostShadow);
}

VisiblePages visiblePages(int pageHeight, int pageCount, int clientHeight, int position) {
    VisiblePages visible;
    const std::int64_t viewTop = pixelsOf(position);
    const std::int64_t viewBottom = viewTop + clientHeight;
    std::int64_t top = kTopMargin;
    for (int place = 0; place < pageCount; ++place) {
        const std::int64_t bottom = top + pageHeight;
        if (visible.first < 0 && bottom >= viewTop) {
            visible.first = place;
        }
        if (top > viewBottom) { // at the first place too: a view lower than the margin above the pages shows none
            visible.last = place - 1;
            return visible;
        }
        if (bottom >= viewBottom) {
            visible.last = place;
            return visible;
        }
        top = bottom + kPageGap;
    }
    visible.last = pageCount - 1;
    return visible;
}

int topOfPage(int place, int pageHeight, int position) {
    return saturateToInt((std::int64_t{pageHeight} + kPageGap) * place + kTopMargin - pixelsOf(position));
}

int leftOfPages(int leftMargin, int position) {
    return saturateToInt(leftMargin - pixelsOf(position));
}

BarExtent barExtent(int clientExtent, int totalExtent) {
    if (clientExtent >= totalExtent) {
        return {};
    }
    return {totalExtent / kScrollUnit + 1, clientExtent / kScrollUnit + 1, true};
}

std::optional<int> afterCommand(unsigned int command, unsigned int trackPosition, const BarState& bar,
                                int clientExtent) {
    const std::int64_t page = clientExtent / kScrollUnit;
    switch (command) {
    case 0:
        return saturateToInt(std::int64_t{bar.position} - kLineUnits);
    case 1:
        return saturateToInt(std::int64_t{bar.position} + kLineUnits);
    case 2:
        return saturateToInt(bar.position - page);
    case 3:
        return saturateToInt(bar.position + page);
    case 4:
    case 5:
        return saturateToInt(trackPosition);
    case 6:
        return bar.minimum;
    case 7:
        return bar.maximum;
    default:
        return std::nullopt;
    }
}

Buttons buttons(int clientWidth, int clientHeight) {
    const int left = (clientWidth - kButtonsWidth) / 2;
    const int top = clientHeight - kButtonsAboveBottom;
    const int bottom = top + kButtonHeight;
    return {{left, top, left + kButtonWidth, bottom},
            {left + kDecreaseOffset, top, left + kDecreaseOffset + kButtonWidth, bottom},
            {left - kHotRim, top - kHotRim, left + kButtonsWidth + kHotRim, bottom + kHotRim}};
}

} // namespace PreviewLayout
