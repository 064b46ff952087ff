#pragma once

#include "XtpApi.h"

#include <afxwin.h>

/// Which windows are left as they draw themselves: whoever puts a skin on windows asks before each, and leaves out
/// those that were removed. A removed window stays so until it is destroyed.
class ORTIN_XTP_API CXTPSkinManager {
public:
    CXTPSkinManager(const CXTPSkinManager&) = delete;
    CXTPSkinManager& operator=(const CXTPSkinManager&) = delete;

    /// False for what is no window.
    BOOL Remove(HWND hWnd);
    BOOL Remove(CWnd* pWnd);
    /// Whether the window itself was removed; its children are asked for themselves.
    BOOL IsRemoved(HWND hWnd) const;

private:
    CXTPSkinManager() = default;
    friend ORTIN_XTP_API CXTPSkinManager* XTPSkinManager();
};

/// The one object of the process.
ORTIN_XTP_API CXTPSkinManager* XTPSkinManager();
