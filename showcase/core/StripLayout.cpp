#include "StripLayout.h"

#include <algorithm>

namespace Desk {

namespace {

int switchesWidth(const StripSizes& sizes) {
    int width = 0;
    for (const int item : sizes.switches)
        width += item + sizes.gap;
    return width;
}

/// Everything but the search box and the count.
int fixedWidth(const StripSizes& sizes) {
    return 2 * sizes.margin + 2 * (sizes.gap + sizes.findButton) + switchesWidth(sizes);
}

/// Places items one after the other.
class Row {
public:
    Row(int start, int gap) : m_next(start), m_gap(gap) {}

    StripSpan place(int width) {
        const StripSpan span{m_next, m_next + width};
        m_next = span.right + m_gap;
        return span;
    }

private:
    int m_next;
    int m_gap;
};

} // namespace

StripLayout layoutStrip(int width, const StripSizes& sizes) {
    const int room = width - fixedWidth(sizes) - sizes.gap - sizes.findCount;
    StripLayout layout;
    Row left(sizes.margin, sizes.gap);
    layout.findBox = left.place(std::clamp(room, sizes.leastFindBox, std::max(sizes.leastFindBox, sizes.findBox)));
    layout.findPrevious = left.place(sizes.findButton);
    layout.findNext = left.place(sizes.findButton);
    if (room >= sizes.leastFindBox)
        layout.findCount = left.place(sizes.findCount);
    else
        layout.findCount = left.place(0);

    const int switchesLeft = width - sizes.margin - (switchesWidth(sizes) - sizes.gap);
    Row right(std::max(switchesLeft, layout.findCount.right + sizes.gap), sizes.gap);
    for (std::size_t item = 0; item < StripSwitchCount; ++item)
        layout.switches[item] = right.place(sizes.switches[item]);
    return layout;
}

int leastStripWidth(const StripSizes& sizes) {
    return fixedWidth(sizes) + sizes.leastFindBox + sizes.gap + sizes.findCount;
}

} // namespace Desk
