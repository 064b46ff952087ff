#include "PreviewPages.h"

namespace Desk {

namespace {

/// The library's own, in pixels whatever the screen.
constexpr int PageGap = 15;
constexpr int PageMargin = 5; ///< at each side, above the first page and below the last

} // namespace

ScrollState PreviewPages::scrollState(int bar) {
    SCROLLINFO info{};
    if (!GetScrollInfo(bar, &info, SIF_RANGE | SIF_PAGE | SIF_POS) || info.nPage == 0)
        return {};
    return {info.nMax - info.nMin + 1, static_cast<int>(info.nPage), info.nPos - info.nMin};
}

/// Not by `ScaleToAvailableArea`, which takes the margins as they are: a page that was made smaller stays so.
void PreviewPages::fitWidth(CSize sheet, int count) {
    if (count < 1 || sheet.cx <= 0 || sheet.cy <= 0)
        return;
    // The scale can be told from the height alone, in which half a pixel is lost on average.
    const int pageHeight = (CalculateTotalHeight() - 2 * PageMargin - (count - 1) * PageGap) / count;
    const double scale = (pageHeight + 0.5) / sheet.cy;
    const int width = CXTPClientRect(this).Width() - 2 * PageMargin;
    ChangePreviewAreaScale(static_cast<double>(width) / sheet.cx - scale);
}

void PreviewPages::scrollTo(int bar, int position) {
    // Not as a message, which has 16 bits for the position.
    HandleScroll(SB_THUMBPOSITION, static_cast<UINT>(position), bar, 0);
}

LRESULT PreviewPages::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCALCSIZE)
        return 0; // all of the window is client area
    const LRESULT result = PrintPreviewWindow::WindowProc(message, wParam, lParam);
    if (message == WM_SIZE)
        RepositionButtons(); // before the first update no one else does, and the system's bars will not change the size
    if (message == WM_PAINT && onPainted)
        onPainted();
    return result;
}

} // namespace Desk
