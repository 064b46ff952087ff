#include "PageRange.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <limits>

PageRange PageRange::wholeDocument(int pagesCount) {
    return {pagesCount > 0 ? 1 : 0, std::max(pagesCount, 0)};
}

PageRange PageRange::requested(int pagesCount, int fromPage, int toPage) {
    if (pagesCount < 1) {
        return {};
    }
    return {std::min(pagesCount, fromPage), std::min(pagesCount, toPage)};
}

int PageRange::count() const {
    const std::int64_t pages = std::abs(std::int64_t{last} - first) + 1;
    if (pages == 1 && last == 0) {
        return 0;
    }
    return static_cast<int>(std::min<std::int64_t>(pages, std::numeric_limits<int>::max()));
}
