#include "PreviewPages.h"

namespace Desk {

ScrollState PreviewPages::scrollState(int bar) {
    SCROLLINFO info{};
    if (!GetScrollInfo(bar, &info, SIF_RANGE | SIF_PAGE | SIF_POS) || info.nPage == 0)
        return {};
    return {info.nMax - info.nMin + 1, static_cast<int>(info.nPage), info.nPos - info.nMin};
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
