#pragma once

#include "XtpApi.h"

/// How many pixels a logical inch of the screen has, read once, and sizes scaled to it.
class ORTIN_XTP_API CXTPDpi {
public:
    int GetDpiX() const { return m_dpiX; }
    int GetDpiY() const { return m_dpiY; }

    /// `value`, given for `fromDpi` pixels in an inch, in pixels of the screen: value * DPI / fromDpi, rounded to the
    /// nearest, halves away from zero. A `fromDpi` that is not positive gives `value` back.
    int ScaleX(int value, int fromDpi = 96) const { return scaled(value, m_dpiX, fromDpi); }
    int ScaleY(int value, int fromDpi = 96) const { return scaled(value, m_dpiY, fromDpi); }

private:
    CXTPDpi();
    friend ORTIN_XTP_API const CXTPDpi& XTPDpiHelper();
    static int scaled(int value, int toDpi, int fromDpi);

    int m_dpiX;
    int m_dpiY;
};

/// The one object of the process.
ORTIN_XTP_API const CXTPDpi& XTPDpiHelper();
