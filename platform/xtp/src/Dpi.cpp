#include "XTPDpi.h"

#include <windows.h>

CXTPDpi::CXTPDpi() {
    const HDC screen = GetDC(nullptr);
    m_dpiX = GetDeviceCaps(screen, LOGPIXELSX);
    m_dpiY = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
}

int CXTPDpi::scaled(int value, int toDpi, int fromDpi) {
    return fromDpi > 0 ? MulDiv(value, toDpi, fromDpi) : value;
}

const CXTPDpi& XTPDpiHelper() {
    static const CXTPDpi dpi;
    return dpi;
}
