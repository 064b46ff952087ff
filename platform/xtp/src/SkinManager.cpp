#include "XTPSkinManager.h"

namespace {

// The mark lies at the window itself: it ends with the window, and a window that gets the same handle later has none.
constexpr const wchar_t* S_removedMark = L"OrtinXtp.RemovedFromSkin";

} // namespace

BOOL CXTPSkinManager::Remove(HWND hWnd) {
    return SetPropW(hWnd, S_removedMark, reinterpret_cast<HANDLE>(1));
}

BOOL CXTPSkinManager::Remove(CWnd* pWnd) {
    return pWnd != nullptr && Remove(pWnd->GetSafeHwnd());
}

BOOL CXTPSkinManager::IsRemoved(HWND hWnd) const {
    return GetPropW(hWnd, S_removedMark) != nullptr;
}

CXTPSkinManager* XTPSkinManager() {
    static CXTPSkinManager manager;
    return &manager;
}
