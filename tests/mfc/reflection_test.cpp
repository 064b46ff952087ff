#include "test_windows.h"

#include <gtest/gtest.h>

namespace {

/// The base puts words into a log that all windows of a test share.
CallLog S_log;

class ReflectingChild : public CWnd {
public:
    bool takesNotification = true;
    bool takesControlCode = true;
    HBRUSH brush = nullptr;

protected:
    BOOL onNotification(NMHDR*, LRESULT* result) {
        S_log.add("child:notify");
        *result = 21;
        return takesNotification;
    }
    BOOL onControlCode() {
        S_log.add("child:control");
        return takesControlCode;
    }
    afx_msg HBRUSH CtlColor(CDC* pDC, UINT nCtlColor) {
        S_log.add("child:color:" + std::to_string(nCtlColor));
        EXPECT_NE(nullptr, pDC->GetSafeHdc());
        return brush;
    }
    afx_msg void DrawItem(LPDRAWITEMSTRUCT draw) { S_log.add("child:draw:" + std::to_string(draw->itemID)); }
    afx_msg void MeasureItem(LPMEASUREITEMSTRUCT measure) {
        S_log.add("child:measure");
        measure->itemHeight = 31;
    }
    afx_msg int CompareItem(LPCOMPAREITEMSTRUCT) { return -1; }
    afx_msg void DeleteItem(LPDELETEITEMSTRUCT) { S_log.add("child:delete"); }
    afx_msg void HScroll(UINT nSBCode, UINT nPos) {
        S_log.add("child:hscroll:" + std::to_string(nSBCode) + ":" + std::to_string(nPos));
    }
    afx_msg void VScroll(UINT nSBCode, UINT nPos) {
        S_log.add("child:vscroll:" + std::to_string(nSBCode) + ":" + std::to_string(nPos));
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ReflectingChild, CWnd)
    ON_NOTIFY_REFLECT_EX(NM_CLICK, &ReflectingChild::onNotification)
    ON_CONTROL_REFLECT_EX(EN_CHANGE, &ReflectingChild::onControlCode)
    ON_WM_CTLCOLOR_REFLECT()
    ON_WM_DRAWITEM_REFLECT()
    ON_WM_MEASUREITEM_REFLECT()
    ON_WM_COMPAREITEM_REFLECT()
    ON_WM_DELETEITEM_REFLECT()
    ON_WM_HSCROLL_REFLECT()
    ON_WM_VSCROLL_REFLECT()
END_MESSAGE_MAP()

class Parent : public CWnd {
public:
    Parent() { CreateEx(0, nullptr, L"parent", WS_OVERLAPPEDWINDOW, CRect(0, 0, 100, 100), nullptr, 0); }

protected:
    void onNotification(NMHDR*, LRESULT* result) {
        S_log.add("parent:notify");
        *result = 22;
    }
    void onControlCode() { S_log.add("parent:control"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Parent, CWnd)
    ON_NOTIFY(NM_CLICK, 5, &Parent::onNotification)
    ON_EN_CHANGE(5, &Parent::onControlCode)
END_MESSAGE_MAP()

/// A parent that answers the colour itself and lets nothing go back.
class ColouringParent : public Parent {
protected:
    afx_msg HBRUSH OnCtlColor(CDC*, CWnd*, UINT) {
        S_log.add("parent:color");
        return static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ColouringParent, Parent)
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

class Reflection : public testing::Test {
protected:
    void SetUp() override {
        S_log.take();
        ASSERT_TRUE(child.Create(L"STATIC", L"", 0, CRect(0, 0, 10, 10), &parent, 5));
        S_log.take();
    }

    LRESULT notify() {
        NMHDR header{child.m_hWnd, 5, NM_CLICK};
        return parent.SendMessage(WM_NOTIFY, 5, reinterpret_cast<LPARAM>(&header));
    }
    LRESULT command() {
        return parent.SendMessage(WM_COMMAND, MAKEWPARAM(5, EN_CHANGE), reinterpret_cast<LPARAM>(child.m_hWnd));
    }
    LRESULT askColour(CWnd& asked, UINT message) {
        CClientDC dc(&child);
        return asked.SendMessage(message, reinterpret_cast<WPARAM>(dc.GetSafeHdc()),
                                 reinterpret_cast<LPARAM>(child.m_hWnd));
    }

    Parent parent;
    ReflectingChild child;
};

} // namespace

TEST_F(Reflection, TheControlHasItsNotificationBeforeTheParent) {
    EXPECT_EQ(21, notify());
    EXPECT_EQ("child:notify", S_log.take());
}

TEST_F(Reflection, ANotificationThatTheControlDeclinesGoesToTheParent) {
    child.takesNotification = false;
    EXPECT_EQ(22, notify());
    EXPECT_EQ("child:notify parent:notify", S_log.take());
}

TEST_F(Reflection, TheControlHasItsCodeBeforeTheParent) {
    EXPECT_EQ(1, command());
    EXPECT_EQ("child:control", S_log.take());
    child.takesControlCode = false;
    EXPECT_EQ(1, command());
    EXPECT_EQ("child:control parent:control", S_log.take());
}

TEST_F(Reflection, ColoursAreAskedOfTheControlForEachKind) {
    child.brush = static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH));
    for (UINT kind = CTLCOLOR_MSGBOX; kind <= CTLCOLOR_STATIC; ++kind) {
        EXPECT_EQ(reinterpret_cast<LRESULT>(child.brush), askColour(parent, WM_CTLCOLORMSGBOX + kind));
        EXPECT_EQ("child:color:" + std::to_string(kind), S_log.take());
    }
}

TEST_F(Reflection, AControlWithoutABrushGetsTheSystemsColour) {
    const LRESULT brush = askColour(parent, WM_CTLCOLOREDIT);
    EXPECT_EQ(reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_WINDOW)), brush);
}

TEST_F(Reflection, AParentThatAnswersTheColourKeepsItFromTheControl) {
    ColouringParent colouring;
    EXPECT_EQ(reinterpret_cast<LRESULT>(GetStockObject(BLACK_BRUSH)), askColour(colouring, WM_CTLCOLORSTATIC));
    EXPECT_EQ("parent:color", S_log.take());
}

TEST_F(Reflection, OwnerDrawnItemsAreTheControls) {
    DRAWITEMSTRUCT draw{};
    draw.CtlType = ODT_STATIC;
    draw.itemID = 7;
    draw.hwndItem = child.m_hWnd;
    parent.SendMessage(WM_DRAWITEM, 5, reinterpret_cast<LPARAM>(&draw));
    MEASUREITEMSTRUCT measure{};
    measure.CtlType = ODT_COMBOBOX;
    measure.CtlID = 5;
    parent.SendMessage(WM_MEASUREITEM, 5, reinterpret_cast<LPARAM>(&measure));
    EXPECT_EQ(31U, measure.itemHeight);
    COMPAREITEMSTRUCT compare{};
    compare.hwndItem = child.m_hWnd;
    EXPECT_EQ(-1, static_cast<int>(parent.SendMessage(WM_COMPAREITEM, 5, reinterpret_cast<LPARAM>(&compare))));
    DELETEITEMSTRUCT gone{};
    gone.hwndItem = child.m_hWnd;
    parent.SendMessage(WM_DELETEITEM, 5, reinterpret_cast<LPARAM>(&gone));
    EXPECT_EQ("child:draw:7 child:measure child:delete", S_log.take());
}

TEST_F(Reflection, MenuItemsAreNotTheControls) {
    DRAWITEMSTRUCT draw{};
    draw.CtlType = ODT_MENU;
    draw.hwndItem = child.m_hWnd;
    parent.SendMessage(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&draw));
    EXPECT_EQ("", S_log.take());
}

TEST_F(Reflection, ScrollMessagesOfAControlGoBackToIt) {
    const auto from = reinterpret_cast<LPARAM>(child.m_hWnd);
    parent.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 12), from);
    parent.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_LINEDOWN, 0), from);
    parent.SendMessage(WM_VSCROLL, MAKEWPARAM(SB_LINEDOWN, 0), 0);
    EXPECT_EQ("child:hscroll:4:12 child:vscroll:1:0", S_log.take());
}

TEST_F(Reflection, AControlThatNobodyAttachedHasNoObjectToAsk) {
    const HWND plain = CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 5, 5, parent.m_hWnd,
                                       reinterpret_cast<HMENU>(5), GetModuleHandleW(nullptr), nullptr);
    NMHDR header{plain, 5, NM_CLICK};
    EXPECT_EQ(22, parent.SendMessage(WM_NOTIFY, 5, reinterpret_cast<LPARAM>(&header)));
    EXPECT_EQ("parent:notify", S_log.take());
}
