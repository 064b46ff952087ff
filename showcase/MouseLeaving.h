#pragma once

#include <afxwin.h>

namespace Desk {

/// Lets the window be told, once, by WM_MOUSELEAVE that the mouse has left it. False if it will not be.
inline bool watchMouseLeaving(HWND window) {
    TRACKMOUSEEVENT track{sizeof(track), TME_LEAVE, window, 0};
    return ::TrackMouseEvent(&track) != FALSE;
}

} // namespace Desk
