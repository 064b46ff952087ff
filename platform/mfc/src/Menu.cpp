#include "HandleMap.h"
#include "afxwin.h"

IMPLEMENT_DYNCREATE(CMenu, CObject)

namespace {

struct MenuTraits {
    using Object = CMenu;
    using Handle = HMENU;

    static std::unique_ptr<CMenu> makeTemporary(HMENU handle) {
        auto menu = std::make_unique<CMenu>();
        menu->m_hMenu = handle;
        return menu;
    }
    static void release(CMenu& menu) noexcept { menu.m_hMenu = nullptr; }
};

using MenuMap = HandleMap<MenuTraits>;

HWND handleOf(const CWnd* window) {
    return window != nullptr ? window->m_hWnd : nullptr;
}

} // namespace

CMenu::~CMenu() {
    DestroyMenu();
}

CMenu* CMenu::FromHandle(HMENU hMenu) {
    CMenu* menu = MenuMap::ofThread().fromHandle(hMenu);
    // A temporary object that was detached or destroyed is still in the map when the handle is given out again.
    if (menu != nullptr) {
        menu->m_hMenu = hMenu;
    }
    return menu;
}

void CMenu::DeleteTempMap() {
    MenuMap::ofThread().deleteTemporaries();
}

BOOL CMenu::Attach(HMENU hMenu) {
    ASSERT(m_hMenu == nullptr);
    if (hMenu == nullptr) {
        return FALSE;
    }
    MenuMap::ofThread().setPermanent(hMenu, this);
    m_hMenu = hMenu;
    return TRUE;
}

HMENU CMenu::Detach() {
    const HMENU handle = std::exchange(m_hMenu, nullptr);
    if (handle != nullptr && MenuMap::ofThread().fromHandlePermanent(handle) == this) {
        MenuMap::ofThread().removePermanent(handle);
    }
    return handle;
}

BOOL CMenu::DestroyMenu() {
    return m_hMenu != nullptr && ::DestroyMenu(Detach());
}

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp) {
    return ::AppendMenuW(m_hMenu, nFlags | MF_BITMAP, nIDNewItem,
                         reinterpret_cast<LPCWSTR>(static_cast<HBITMAP>(*pBmp)));
}

int CMenu::GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const {
    const int length = ::GetMenuStringW(m_hMenu, nIDItem, nullptr, 0, nFlags);
    const int copied = ::GetMenuStringW(m_hMenu, nIDItem, rString.GetBuffer(length + 1), length + 1, nFlags);
    rString.ReleaseBuffer(copied);
    return copied;
}

CMenu* CMenu::GetSubMenu(int nPos) const {
    return FromHandle(::GetSubMenu(m_hMenu, nPos));
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect) {
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, handleOf(pWnd), lpRect);
}

BOOL CMenu::TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm) {
    return ::TrackPopupMenuEx(m_hMenu, fuFlags, x, y, handleOf(pWnd), lptpm);
}
