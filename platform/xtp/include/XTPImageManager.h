#pragma once

#include "XtpApi.h"

#include <afxwin.h>

/// What is done to pictures.
class ORTIN_XTP_API CXTPImageManager {
public:
    /// Turns a part of what `dc` draws to, given in its logical units, into black and white. `contrast` goes from 0,
    /// the plain shades of grey, to 255, almost nothing but black and white; what lies outside is cut to that.
    ///
    /// The grey of a pixel is its luma, 0.299 R + 0.587 G + 0.114 B (ITU-R BT.601). It moves away from the middle, 128,
    /// by the usual correction factor for a contrast c, 259 (c + 255) / (255 (259 - c)), as far as 0 or 255.
    void BlackWhiteBitmap(CDC& dc, const CRect& rect, int contrast);
};

/// The one object of the process.
ORTIN_XTP_API CXTPImageManager* XTPImageManager();
