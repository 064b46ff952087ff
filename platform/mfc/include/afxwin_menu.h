#pragma once

#include "afx.h"
#include "atltypes.h"

class CBitmap;
class CWnd;

/// Owner of one menu: destroys it with its sub-menus when it ends, unless Detach took it back or a window or a parent
/// menu owns it (then Detach it after handing it over).
///
/// FromHandle and GetSubMenu give the object that owns a handle in this thread, or a temporary one that owns nothing
/// and lives until the thread is idle. Items are named by command id, or by position with MF_BYPOSITION.
class ORTIN_MFC_API CMenu : public CObject {
    DECLARE_DYNCREATE(CMenu)
public:
    HMENU m_hMenu = nullptr;

    CMenu() = default;
    ~CMenu() override;

    operator HMENU() const { return m_hMenu; }
    HMENU GetSafeHmenu() const { return m_hMenu; }
    static CMenu* FromHandle(HMENU hMenu);
    static void DeleteTempMap();

    /// Takes the ownership; FALSE for a null handle. The object must be empty.
    BOOL Attach(HMENU hMenu);
    /// Gives the ownership to the caller.
    HMENU Detach();
    BOOL CreateMenu() { return Attach(::CreateMenu()); }
    BOOL CreatePopupMenu() { return Attach(::CreatePopupMenu()); }
    BOOL DestroyMenu();

    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCWSTR lpszNewItem = nullptr) {
        return ::AppendMenuW(m_hMenu, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCWSTR lpszNewItem = nullptr) {
        return ::InsertMenuW(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
    }
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCWSTR lpszNewItem = nullptr) {
        return ::ModifyMenuW(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
    }
    /// Takes an item out; its sub-menu stays alive and becomes the caller's.
    BOOL RemoveMenu(UINT nPosition, UINT nFlags) { return ::RemoveMenu(m_hMenu, nPosition, nFlags); }
    /// Takes an item out and destroys its sub-menu.
    BOOL DeleteMenu(UINT nPosition, UINT nFlags) { return ::DeleteMenu(m_hMenu, nPosition, nFlags); }

    /// The previous MF_CHECKED or MF_UNCHECKED; 0xFFFFFFFF if there is no such item.
    UINT CheckMenuItem(UINT nIDCheckItem, UINT nCheck) { return ::CheckMenuItem(m_hMenu, nIDCheckItem, nCheck); }
    BOOL CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags) {
        return ::CheckMenuRadioItem(m_hMenu, nIDFirst, nIDLast, nIDItem, nFlags);
    }
    /// The previous state; 0xFFFFFFFF if there is no such item.
    UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable) {
        return static_cast<UINT>(::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable));
    }
    BOOL SetDefaultItem(UINT uItem, BOOL fByPos = FALSE) {
        return ::SetMenuDefaultItem(m_hMenu, uItem, static_cast<UINT>(fByPos));
    }
    UINT GetDefaultItem(UINT gmdiFlags, BOOL fByPos = FALSE) {
        return ::GetMenuDefaultItem(m_hMenu, static_cast<UINT>(fByPos), gmdiFlags);
    }

    int GetMenuItemCount() const { return ::GetMenuItemCount(m_hMenu); }
    /// 0 for a separator, 0xFFFFFFFF for a sub-menu or a position outside.
    UINT GetMenuItemID(int nPos) const { return ::GetMenuItemID(m_hMenu, nPos); }
    UINT GetMenuState(UINT nID, UINT nFlags) const { return ::GetMenuState(m_hMenu, nID, nFlags); }
    int GetMenuString(UINT nIDItem, LPWSTR lpString, int nMaxCount, UINT nFlags) const {
        return ::GetMenuStringW(m_hMenu, nIDItem, lpString, nMaxCount, nFlags);
    }
    int GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const;
    BOOL GetMenuItemInfo(UINT uItem, LPMENUITEMINFOW lpMenuItemInfo, BOOL fByPos = FALSE) {
        return ::GetMenuItemInfoW(m_hMenu, uItem, fByPos, lpMenuItemInfo);
    }
    BOOL SetMenuItemInfo(UINT uItem, LPMENUITEMINFOW lpMenuItemInfo, BOOL fByPos = FALSE) {
        return ::SetMenuItemInfoW(m_hMenu, uItem, fByPos, lpMenuItemInfo);
    }
    /// Null if the item has no sub-menu.
    CMenu* GetSubMenu(int nPos) const;

    /// Shows the menu at a screen point until the user chooses or leaves. `pWnd` gets the command; with TPM_RETURNCMD
    /// the result is the chosen id, or 0.
    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect = nullptr);
    BOOL TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm);

    friend bool operator==(const CMenu& left, const CMenu& right) { return left.m_hMenu == right.m_hMenu; }
};
