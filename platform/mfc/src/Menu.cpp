#include "HandleMap.h"
#include "afxwin.h"

IMPLEMENT_DYNCREATE(CMenu, CObject)

namespace {

struct MenuTraits {
    using Object = CMenu;
    using Handle = HMENU;

    static std::unique_ptr<CMenu> make(HMENU) { return std::make_unique<CMenu>(); }
    static HMENU handleOf(const CMenu& menu) { return menu.m_hMenu; }
    static void setHandle(CMenu& menu, HMENU handle) noexcept { menu.m_hMenu = handle; }
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
    return MenuMap::ofThread().fromHandle(hMenu);
}

void CMenu::DeleteTempMap() {
    MenuMap::ofThread().deleteTemporaries();
}

BOOL CMenu::Attach(HMENU hMenu) {
    return MenuMap::ofThread().attach(*this, hMenu);
}

HMENU CMenu::Detach() {
    return MenuMap::ofThread().detach(*this);
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
