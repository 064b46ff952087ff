#pragma once

// GDI+ with what its headers expect to be there already.

#include <algorithm>

#include <afxwin.h>

#include <objidl.h>
#include <propidl.h>

namespace Gdiplus {
using std::max;
using std::min;
} // namespace Gdiplus

#include <gdiplus.h>
