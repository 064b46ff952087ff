#pragma once

// GDI+ with what its headers expect to be there already: COM's streams, and min and max by their plain names.

#include <algorithm>

#include <afxwin.h>

#include <objidl.h>

namespace Gdiplus {
using std::max;
using std::min;
} // namespace Gdiplus

#include <gdiplus.h>
