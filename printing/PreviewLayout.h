#pragma once

#include <optional>

/// Where the pages and the buttons of a preview lie. Pixels of the client area unless a name says otherwise; content
/// coordinates are these plus what is scrolled away. Sums saturate at the range of int. No windows.
namespace PreviewLayout {

inline constexpr int kTopMargin = 5; ///< above the first page and below the last
inline constexpr int kLeastLeftMargin = 5;
inline constexpr int kPageGap = 15;
inline constexpr int kScrollUnit = 5; ///< pixels that one step of a bar's position stands for
inline constexpr double kLeastScale = 0.01;

/// Half-open, as all rectangles here.
struct Box {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    bool operator==(const Box&) const = default;
};

/// An extent of a page at a scale, truncated; 2^30 at most.
int scaled(int extent, double scale);
int totalHeight(int pageHeight, int pageCount);
int totalWidth(int pageWidth, int leftMargin);
/// What centres a page of that width, as far as it fits.
int leftMargin(int clientWidth, int pageWidth);
/// How far the shadow of a page stands out.
int shadowOffset(int pageWidth);

/// Places in the column, counted from 0; -1 for none.
struct VisiblePages {
    int first = -1;
    int last = -1;
};
/// The pages that a view shows at the position of its vertical bar.
VisiblePages visiblePages(int pageHeight, int pageCount, int clientHeight, int position);
int topOfPage(int place, int pageHeight, int position);
int leftOfPages(int leftMargin, int position);

/// The range and page of a bar; both 0 where all is in view.
struct BarExtent {
    int maximum = 0;
    int page = 0;
    bool shown = false;
};
BarExtent barExtent(int clientExtent, int totalExtent);

/// The position after a scroll bar command (SB_LINEUP and so on, 0 to 7), empty for one that does nothing.
struct BarState {
    int position;
    int minimum;
    int maximum;
};
std::optional<int> afterCommand(unsigned int command, unsigned int trackPosition, const BarState& bar,
                                int clientExtent);

struct Buttons {
    Box increase;
    Box decrease;
    Box hot; ///< the buttons are shown while the mouse is in it
};
Buttons buttons(int clientWidth, int clientHeight);

} // namespace PreviewLayout
