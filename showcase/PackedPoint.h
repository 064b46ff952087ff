#pragma once

#include <afxwin.h>

namespace Desk {

/// As messages of the mouse carry it.
inline LPARAM packed(CPoint point) {
    return MAKELPARAM(point.x, point.y);
}

} // namespace Desk
