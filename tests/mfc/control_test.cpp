#include "test_windows.h"

#include <gtest/gtest.h>

#include <afxcmn.h>

#include <array>

namespace {

class Controls : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(frame.createHidden()); }
    TestFrame frame;
};

class Headers : public Controls {
protected:
    void SetUp() override {
        Controls::SetUp();
        ASSERT_TRUE(header.Create(HDS_HORZ | HDS_DRAGDROP | WS_VISIBLE, CRect(0, 0, 280, 20), &frame, 1));
        for (int index = 0; index < 4; ++index) {
            HDITEM item{};
            item.mask = HDI_WIDTH | HDI_LPARAM;
            item.cxy = 10 * (index + 1);
            item.lParam = 100 + index;
            ASSERT_EQ(index, header.InsertItem(index, &item));
        }
    }

    std::string order() {
        std::array<int, 4> indexes{};
        EXPECT_TRUE(header.GetOrderArray(indexes.data()));
        std::string text;
        for (const int index : indexes) {
            text += std::to_string(index);
        }
        return text;
    }

    CHeaderCtrl header;
};

} // namespace

TEST_F(Headers, ItemsAreCountedReadChangedAndDeleted) {
    EXPECT_EQ(4, header.GetItemCount());
    HDITEM item{};
    item.mask = HDI_WIDTH | HDI_LPARAM;
    EXPECT_TRUE(header.GetItem(2, &item));
    EXPECT_EQ(30, item.cxy);
    EXPECT_EQ(102, item.lParam);
    item.cxy = 55;
    EXPECT_TRUE(header.SetItem(2, &item));
    item.cxy = 0;
    EXPECT_TRUE(header.GetItem(2, &item));
    EXPECT_EQ(55, item.cxy);
    EXPECT_TRUE(header.DeleteItem(0));
    EXPECT_EQ(3, header.GetItemCount());
    EXPECT_FALSE(header.DeleteItem(3));
    EXPECT_FALSE(header.GetItem(3, &item));
}

TEST_F(Headers, TheOrderIsApartFromTheIndexes) {
    EXPECT_EQ("0123", order());
    std::array<int, 4> wanted{3, 1, 0, 2};
    EXPECT_TRUE(header.SetOrderArray(4, wanted.data()));
    EXPECT_EQ("3102", order());
    EXPECT_EQ(3, header.OrderToIndex(0));
    CRect place;
    EXPECT_TRUE(header.GetItemRect(3, &place));
    EXPECT_EQ(0, place.left);
    EXPECT_EQ(40, place.right);
    EXPECT_TRUE(header.GetItemRect(0, &place));
    EXPECT_EQ(60, place.left);
    EXPECT_FALSE(header.GetItemRect(4, &place));
}

TEST_F(Headers, APointHitsAnItemADividerOrNothing) {
    HDHITTESTINFO hit{};
    hit.pt = CPoint(20, 5);
    EXPECT_EQ(1, header.HitTest(&hit));
    EXPECT_EQ(static_cast<UINT>(HHT_ONHEADER), hit.flags);
    hit.pt = CPoint(60, 5);
    header.HitTest(&hit);
    EXPECT_EQ(static_cast<UINT>(HHT_ONDIVIDER), hit.flags);
    hit.pt = CPoint(250, 5);
    EXPECT_EQ(-1, header.HitTest(&hit));
    EXPECT_EQ(static_cast<UINT>(HHT_NOWHERE), hit.flags);
}

TEST_F(Headers, TheLayoutTellsThePlaceInTheAreaThatIsLeft) {
    RECT area = CRect(0, 0, 200, 100);
    WINDOWPOS place{};
    HDLAYOUT layout{&area, &place};
    EXPECT_TRUE(header.Layout(&layout));
    EXPECT_EQ(200, place.cx);
    EXPECT_GT(place.cy, 5);
    EXPECT_EQ(place.cy, area.top);
}

TEST_F(Headers, AnOwnerDrawnItemIsDrawnByTheObject) {
    class Drawing : public CHeaderCtrl {
    public:
        UINT drawn = 0;
        void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override { drawn = lpDrawItemStruct->itemID; }
    } drawing;
    ASSERT_TRUE(drawing.Create(HDS_HORZ, CRect(0, 0, 100, 20), &frame, 2));
    DRAWITEMSTRUCT draw{};
    draw.CtlType = ODT_HEADER;
    draw.hwndItem = drawing.m_hWnd;
    draw.itemID = 3;
    frame.SendMessage(WM_DRAWITEM, 2, reinterpret_cast<LPARAM>(&draw));
    EXPECT_EQ(3U, drawing.drawn);
}

TEST_F(Controls, AFieldKeepsSelectionTextAndUndo) {
    CEdit edit;
    ASSERT_TRUE(edit.Create(ES_AUTOHSCROLL, CRect(0, 0, 100, 20), &frame, 1));
    edit.SetWindowText(L"abcdef");
    edit.SetSel(1, 4);
    int start = 0;
    int end = 0;
    edit.GetSel(start, end);
    EXPECT_EQ(1, start);
    EXPECT_EQ(4, end);
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(1, 4)), edit.GetSel());
    EXPECT_FALSE(edit.GetModify());
    edit.ReplaceSel(L"ż", TRUE);
    CString text;
    edit.GetWindowText(text);
    EXPECT_STREQ(L"ażef", text);
    EXPECT_TRUE(edit.GetModify());
    EXPECT_TRUE(edit.CanUndo());
    EXPECT_TRUE(edit.Undo());
    edit.GetWindowText(text);
    EXPECT_STREQ(L"abcdef", text);
    edit.SetLimitText(7);
    EXPECT_EQ(7U, edit.GetLimitText());
    edit.SetMargins(3, 4);
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(3, 4)), edit.GetMargins());
    EXPECT_TRUE(edit.SetReadOnly());
    EXPECT_NE(0U, edit.GetStyle() & ES_READONLY);
}

TEST_F(Controls, MinusOneSelectsNothingOrToTheEndOfAField) {
    CEdit edit;
    ASSERT_TRUE(edit.Create(ES_AUTOHSCROLL, CRect(0, 0, 100, 20), &frame, 1));
    edit.SetLimitText(200'000);
    edit.SetWindowText(CString(L'x', 70'000));
    const auto selected = [&] {
        int start = 0;
        int end = 0;
        edit.GetSel(start, end);
        return std::pair(start, end);
    };
    edit.SetSel(0, -1);
    EXPECT_EQ(std::pair(0, 70'000), selected());
    edit.SetSel(-1, 0);
    EXPECT_EQ(selected().first, selected().second);
    // The same in halves of a double word.
    edit.SetSel(MAKELONG(0, -1));
    EXPECT_EQ(std::pair(0, 70'000), selected());
    edit.SetSel(static_cast<DWORD>(-1));
    EXPECT_EQ(selected().first, selected().second);
    edit.SetSel(MAKELONG(40'000, 50'000));
    EXPECT_EQ(std::pair(40'000, 50'000), selected());
}

TEST_F(Controls, MinusOneSelectsNothingOrToTheEndOfAFieldWithAList) {
    CComboBox box;
    ASSERT_TRUE(box.Create(CBS_DROPDOWN | CBS_AUTOHSCROLL, CRect(0, 0, 100, 200), &frame, 1));
    box.AddString(L"alfa");
    box.SetWindowText(L"abcdef");
    EXPECT_TRUE(box.SetEditSel(0, -1));
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(0, 6)), box.GetEditSel());
    EXPECT_TRUE(box.SetEditSel(-1, -1));
    EXPECT_EQ(LOWORD(box.GetEditSel()), HIWORD(box.GetEditSel()));
    EXPECT_EQ(0, box.SetCurSel(0));
    EXPECT_EQ(CB_ERR, box.SetCurSel(-1));
    EXPECT_EQ(CB_ERR, box.GetCurSel());
    CComboBox list;
    ASSERT_TRUE(list.Create(CBS_DROPDOWNLIST, CRect(0, 0, 100, 200), &frame, 2));
    EXPECT_EQ(CB_ERR, list.SetEditSel(0, -1)) << "it has no field";
}

TEST_F(Controls, AFieldOfSeveralLinesKnowsThem) {
    CEdit edit;
    ASSERT_TRUE(edit.Create(ES_MULTILINE, CRect(0, 0, 200, 100), &frame, 1));
    edit.SetWindowText(L"one\r\nthree\r\n");
    EXPECT_EQ(3, edit.GetLineCount());
    EXPECT_EQ(5, edit.LineIndex(1));
    EXPECT_EQ(1, edit.LineFromChar(6));
    EXPECT_EQ(5, edit.LineLength(5));
    wchar_t line[10] = {};
    EXPECT_EQ(5, edit.GetLine(1, line, 9));
    EXPECT_STREQ(L"three", line);
}

TEST_F(Controls, AListKeepsItsTextsAndData) {
    CComboBox box;
    ASSERT_TRUE(box.Create(CBS_DROPDOWNLIST, CRect(0, 0, 100, 200), &frame, 1));
    EXPECT_EQ(0, box.AddString(L"alfa"));
    EXPECT_EQ(1, box.AddString(L"gamma"));
    EXPECT_EQ(1, box.InsertString(1, L"beta"));
    EXPECT_EQ(3, box.GetCount());
    CString text;
    box.GetLBText(1, text);
    EXPECT_STREQ(L"beta", text);
    EXPECT_EQ(4, box.GetLBTextLen(1));
    box.GetLBText(7, text);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(CB_ERR, box.GetCurSel());
    EXPECT_EQ(2, box.SetCurSel(2));
    EXPECT_EQ(2, box.GetCurSel());
    EXPECT_EQ(2, box.FindString(-1, L"gam"));
    EXPECT_EQ(CB_ERR, box.FindStringExact(-1, L"gam"));
    EXPECT_EQ(1, box.SelectString(-1, L"be"));
    int value = 0;
    box.SetItemDataPtr(0, &value);
    EXPECT_EQ(&value, box.GetItemDataPtr(0));
    EXPECT_EQ(2, box.DeleteString(0));
    box.ResetContent();
    EXPECT_EQ(0, box.GetCount());
}

TEST_F(Controls, ACheckBoxIsChecked) {
    CButton box;
    ASSERT_TRUE(box.Create(L"box", BS_AUTOCHECKBOX, CRect(0, 0, 50, 20), &frame, 4));
    EXPECT_EQ(BST_UNCHECKED, box.GetCheck());
    box.SendMessage(BM_CLICK);
    EXPECT_EQ(BST_CHECKED, box.GetCheck());
    EXPECT_EQ(static_cast<UINT>(BST_CHECKED), frame.IsDlgButtonChecked(4));
    frame.CheckDlgButton(4, BST_UNCHECKED);
    EXPECT_EQ(BST_UNCHECKED, box.GetCheck());
}

TEST_F(Controls, AnOwnerDrawnButtonIsDrawnByTheObject) {
    class Drawing : public CButton {
    public:
        int drawn = 0;
        void DrawItem(LPDRAWITEMSTRUCT) override { ++drawn; }
    } button;
    ASSERT_TRUE(button.Create(L"", BS_OWNERDRAW | WS_VISIBLE, CRect(0, 0, 50, 20), &frame, 4));
    frame.ShowWindow(SW_SHOWNOACTIVATE);
    button.Invalidate();
    button.UpdateWindow();
    EXPECT_GE(button.drawn, 1);
}

TEST_F(Controls, ALabelShowsItsPicture) {
    CStatic label;
    ASSERT_TRUE(label.Create(L"", SS_ICON, CRect(0, 0, 32, 32), &frame));
    const HICON icon = ::LoadIconW(nullptr, IDI_INFORMATION);
    EXPECT_EQ(nullptr, label.SetIcon(icon));
    EXPECT_EQ(icon, label.GetIcon());
    CRect client;
    label.GetClientRect(&client);
    EXPECT_EQ(0xFFFF, label.GetDlgCtrlID() & 0xFFFF);
}

TEST_F(Controls, AScrollBarControlHasARangeOfItsOwn) {
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(SBS_HORZ, CRect(0, 0, 100, 16), &frame, 2));
    SCROLLINFO wanted{};
    wanted.fMask = SIF_ALL;
    wanted.nMax = 200;
    wanted.nPage = 21;
    wanted.nPos = 50;
    EXPECT_TRUE(bar.SetScrollInfo(&wanted));
    EXPECT_EQ(50, bar.GetScrollPos());
    EXPECT_EQ(180, bar.GetScrollLimit());
    SCROLLINFO got{};
    EXPECT_TRUE(bar.GetScrollInfo(&got));
    EXPECT_EQ(21U, got.nPage);
    bar.SetScrollRange(3, 33);
    int lowest = 0;
    int highest = 0;
    bar.GetScrollRange(&lowest, &highest);
    EXPECT_EQ(3, lowest);
    EXPECT_EQ(33, highest);
}
