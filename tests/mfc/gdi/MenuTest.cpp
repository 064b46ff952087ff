#include <afxwin.h>

#include <gtest/gtest.h>

namespace {

CString textAt(const CMenu& menu, UINT position) {
    CString text;
    menu.GetMenuString(position, text, MF_BYPOSITION);
    return text;
}

TEST(Menus, DestroyWhatTheyOwn) {
    HMENU handle = nullptr;
    {
        CMenu menu;
        ASSERT_TRUE(menu.CreatePopupMenu());
        handle = menu;
        EXPECT_TRUE(::IsMenu(handle));
        EXPECT_EQ(&menu, CMenu::FromHandle(handle));
    }
    EXPECT_FALSE(::IsMenu(handle));
    EXPECT_EQ(nullptr, CMenu::FromHandle(nullptr));
}

TEST(Menus, GiveTheOwnershipAwayByDetach) {
    HMENU handle = nullptr;
    {
        CMenu menu;
        menu.CreateMenu();
        handle = menu.Detach();
        EXPECT_EQ(nullptr, menu.GetSafeHmenu());
        EXPECT_FALSE(menu.DestroyMenu());
    }
    EXPECT_TRUE(::IsMenu(handle));
    EXPECT_EQ(handle, CMenu::FromHandle(handle)->GetSafeHmenu());
    CMenu::DeleteTempMap();
    EXPECT_TRUE(::IsMenu(handle)) << "a temporary object owns nothing";
    CMenu owner;
    EXPECT_TRUE(owner.Attach(handle));
    EXPECT_TRUE(owner.DestroyMenu());
    EXPECT_FALSE(::IsMenu(handle));
    EXPECT_FALSE(owner.Attach(nullptr));
}

TEST(Menus, AreBuiltAndTakenApartByPositionAndCommand) {
    CMenu menu;
    menu.CreatePopupMenu();
    EXPECT_TRUE(menu.AppendMenu(MF_STRING, 10, L"Kopiuj"));
    EXPECT_TRUE(menu.AppendMenu(MF_SEPARATOR));
    EXPECT_TRUE(menu.AppendMenu(MF_STRING, 12, L"Wklej"));
    EXPECT_TRUE(menu.InsertMenu(0, MF_BYPOSITION | MF_STRING, 9, L"Wytnij"));
    EXPECT_TRUE(menu.InsertMenu(12, MF_BYCOMMAND | MF_STRING, 11, L"Usuń"));
    EXPECT_EQ(5, menu.GetMenuItemCount());
    EXPECT_STREQ(L"Wytnij", textAt(menu, 0));
    EXPECT_STREQ(L"Usuń", textAt(menu, 3));
    EXPECT_EQ(11u, menu.GetMenuItemID(3));
    EXPECT_EQ(0u, menu.GetMenuItemID(2));
    EXPECT_TRUE(menu.ModifyMenu(11, MF_BYCOMMAND | MF_STRING, 15, L"Usuń wszystko"));
    EXPECT_STREQ(L"Usuń wszystko", textAt(menu, 3));
    EXPECT_TRUE(menu.DeleteMenu(15, MF_BYCOMMAND));
    EXPECT_TRUE(menu.RemoveMenu(0, MF_BYPOSITION));
    EXPECT_FALSE(menu.DeleteMenu(99, MF_BYCOMMAND));
    EXPECT_EQ(3, menu.GetMenuItemCount());
    CString none(L"x");
    EXPECT_EQ(0, menu.GetMenuString(99, none, MF_BYCOMMAND));
    EXPECT_TRUE(none.IsEmpty());
}

TEST(Menus, CheckEnableAndName) {
    CMenu menu;
    menu.CreatePopupMenu();
    for (UINT id = 1; id <= 3; ++id) {
        menu.AppendMenu(MF_STRING, id, L"x");
    }
    EXPECT_EQ(static_cast<UINT>(MF_UNCHECKED), menu.CheckMenuItem(1, MF_CHECKED));
    EXPECT_EQ(static_cast<UINT>(MF_CHECKED), menu.CheckMenuItem(1, MF_UNCHECKED));
    EXPECT_EQ(0xFFFFFFFFu, menu.CheckMenuItem(99, MF_CHECKED));
    EXPECT_EQ(static_cast<UINT>(MF_ENABLED), menu.EnableMenuItem(2, MF_GRAYED));
    EXPECT_NE(0u, menu.GetMenuState(2, MF_BYCOMMAND) & MF_GRAYED);
    EXPECT_TRUE(menu.CheckMenuRadioItem(1, 3, 3, MF_BYCOMMAND));
    EXPECT_NE(0u, menu.GetMenuState(3, MF_BYCOMMAND) & MF_CHECKED);
    EXPECT_TRUE(menu.SetDefaultItem(2));
    EXPECT_EQ(2u, menu.GetDefaultItem(GMDI_USEDISABLED));
    MENUITEMINFOW info{};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_ID;
    info.wID = 30;
    EXPECT_TRUE(menu.SetMenuItemInfo(2, &info, TRUE));
    info.wID = 0;
    EXPECT_TRUE(menu.GetMenuItemInfo(2, &info, TRUE));
    EXPECT_EQ(30u, info.wID);
}

TEST(Menus, OwnTheirSubMenus) {
    CMenu menu;
    menu.CreatePopupMenu();
    CMenu child;
    child.CreatePopupMenu();
    child.AppendMenu(MF_STRING, 5, L"x");
    const HMENU handle = child.Detach();
    menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(handle), L"Więcej");
    EXPECT_EQ(handle, menu.GetSubMenu(0)->GetSafeHmenu());
    EXPECT_EQ(nullptr, menu.GetSubMenu(1));
    EXPECT_STREQ(L"x", textAt(*menu.GetSubMenu(0), 0));
    menu.DestroyMenu();
    EXPECT_FALSE(::IsMenu(handle));
}

} // namespace
