#pragma once

#include <afxwin.h>

/// The PNG resource `id`, looked for by AfxFindResourceHandle, as pixels of 32 bits with premultiplied alpha, scaled to
/// `size`. Null if there is none, or it cannot be read. The caller owns the bitmap.
HBITMAP loadPngResource(UINT id, CSize size);
