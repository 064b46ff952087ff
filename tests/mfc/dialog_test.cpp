#include "dialog_template.h"
#include "test_windows.h"

#include <gtest/gtest.h>

#include <afxdialogex.h>

#include <thread>

namespace {

class TestDialog : public CDialog {
public:
    using CDialog::CDialog;
    std::function<void(TestDialog&)> onInit;
    CallLog log;

    BOOL OnInitDialog() override {
        log.add("init");
        if (onInit) {
            onInit(*this);
        }
        return CDialog::OnInitDialog();
    }

protected:
    void OnOK() override {
        log.add("ok");
        CDialog::OnOK();
    }
    void OnCancel() override {
        log.add("cancel");
        CDialog::OnCancel();
    }
};

class Dialogs : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(owner.createHidden());
        memory.addButton(L"OK", IDOK, 5, 5, 40, 14, BS_DEFPUSHBUTTON);
        memory.addButton(L"Anuluj", IDCANCEL, 50, 5, 40, 14, BS_PUSHBUTTON);
        memory.addEdit(100, 5, 25, 60, 12);
    }

    INT_PTR run(std::function<void(TestDialog&)> onInit) {
        dialog.onInit = std::move(onInit);
        EXPECT_TRUE(dialog.InitModalIndirect(memory.get(), &owner));
        return dialog.DoModal();
    }

    TestFrame owner;
    DialogTemplate memory{L"Próba", WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME, 120, 60};
    TestDialog dialog;
};

} // namespace

TEST_F(Dialogs, ACommandOfTheDefaultButtonEndsAModalDialog) {
    EXPECT_EQ(IDOK, run([](TestDialog& running) { running.PostMessage(WM_COMMAND, IDOK); }));
    EXPECT_EQ("init ok", dialog.log.take());
    EXPECT_EQ(nullptr, dialog.m_hWnd);
}

TEST_F(Dialogs, EscapeCancelsByWayOfTheDialogManager) {
    EXPECT_EQ(IDCANCEL, run([](TestDialog& running) { running.GetDlgItem(100)->PostMessage(WM_KEYDOWN, VK_ESCAPE); }));
    EXPECT_EQ("init cancel", dialog.log.take());
}

TEST_F(Dialogs, ReturnInAFieldPressesTheDefaultButton) {
    EXPECT_EQ(IDOK, run([](TestDialog& running) { running.GetDlgItem(100)->PostMessage(WM_KEYDOWN, VK_RETURN); }));
}

TEST_F(Dialogs, TheCloseButtonCancels) {
    EXPECT_EQ(IDCANCEL, run([](TestDialog& running) { running.PostMessage(WM_CLOSE); }));
}

TEST_F(Dialogs, TheOwnerIsDisabledWhileTheDialogRuns) {
    bool enabledInside = true;
    run([&](TestDialog& running) {
        enabledInside = owner.IsWindowEnabled();
        running.PostMessage(WM_COMMAND, IDOK);
    });
    EXPECT_FALSE(enabledInside);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST_F(Dialogs, AnEndInTheInitialisationIsRemembered) {
    EXPECT_EQ(33, run([](TestDialog& running) { running.EndDialog(33); }));
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST_F(Dialogs, AHostThatDestroysTheDialogEndsItsLoop) {
    const auto destroyLater = [](TestDialog& running) {
        running.SetTimer(1, 10, [](HWND window, UINT, UINT_PTR, DWORD) { ::DestroyWindow(window); });
    };
    EXPECT_EQ(-1, run(destroyLater));
    EXPECT_EQ(nullptr, dialog.m_hWnd);
}

TEST_F(Dialogs, ADialogThatKeepsItsEndFromItsBaseEndsItsLoop) {
    class Unchained : public TestDialog {
    protected:
        BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override {
            return message == WM_NCDESTROY || TestDialog::OnWndMsg(message, wParam, lParam, pResult);
        }
    } unchained;
    unchained.onInit = [](TestDialog& running) {
        running.SetTimer(1, 10, [](HWND window, UINT, UINT_PTR, DWORD) { ::DestroyWindow(window); });
    };
    ASSERT_TRUE(unchained.InitModalIndirect(memory.get(), &owner));
    EXPECT_EQ(-1, unchained.DoModal());
    EXPECT_EQ(nullptr, unchained.m_hWnd);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST_F(Dialogs, AMessageFromAnotherThreadThatDestroysTheDialogWakesItsLoop) {
    constexpr UINT destroy = WM_APP + 7;
    class Destroyed : public TestDialog {
    protected:
        BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override {
            if (message == destroy) {
                DestroyWindow();
                return TRUE;
            }
            return TestDialog::OnWndMsg(message, wParam, lParam, pResult);
        }
    } destroyed;
    std::thread sender;
    destroyed.onInit = [&](TestDialog& running) {
        sender = std::thread([window = running.m_hWnd] {
            // By now the loop waits for a message in the queue, and a sent one never lies there.
            Sleep(300);
            ::SendMessageW(window, destroy, 0, 0);
        });
    };
    ASSERT_TRUE(destroyed.InitModalIndirect(memory.get(), &owner));
    EXPECT_EQ(-1, destroyed.DoModal());
    sender.join();
}

TEST_F(Dialogs, AQuitInsideADialogReachesTheLoopOutside) {
    EXPECT_EQ(-1, run([](TestDialog&) { PostQuitMessage(5); }));
    MSG message{};
    ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(5U, message.wParam);
}

TEST_F(Dialogs, AModalDialogMayRunAgain) {
    for (int round = 0; round < 3; ++round) {
        EXPECT_EQ(IDOK, run([](TestDialog& running) { running.PostMessage(WM_COMMAND, IDOK); }));
    }
}

TEST_F(Dialogs, TheDialogIsPutOverItsOwnerUnlessItMovedItself) {
    owner.ShowWindow(SW_SHOWNOACTIVATE);
    owner.SetWindowPos(nullptr, 200, 150, 400, 300, SWP_NOZORDER | SWP_NOACTIVATE);
    CRect around;
    owner.GetWindowRect(&around);
    ASSERT_TRUE(dialog.CreateIndirect(memory.get(), &owner));
    CRect place;
    dialog.GetWindowRect(&place);
    EXPECT_NEAR(around.CenterPoint().x, place.CenterPoint().x, 1);
    EXPECT_NEAR(around.CenterPoint().y, place.CenterPoint().y, 1);

    TestDialog moved;
    moved.onInit = [](TestDialog& running) {
        running.SetWindowPos(nullptr, 7, 9, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    };
    ASSERT_TRUE(moved.CreateIndirect(memory.get(), &owner));
    moved.GetWindowRect(&place);
    EXPECT_EQ(CPoint(7, 9), place.TopLeft());
}

TEST_F(Dialogs, AModelessDialogHasItsItemsAndIsOnlyHiddenByItsEnd) {
    ASSERT_TRUE(dialog.CreateIndirect(memory.get(), &owner));
    EXPECT_EQ("init", dialog.log.take());
    EXPECT_EQ(IDOK, static_cast<int>(dialog.GetDefID()));
    dialog.SetDlgItemText(100, L"12");
    EXPECT_EQ(12U, dialog.GetDlgItemInt(100));
    dialog.ShowWindow(SW_SHOWNOACTIVATE);
    dialog.SendMessage(WM_COMMAND, IDCANCEL);
    EXPECT_EQ("cancel", dialog.log.take());
    EXPECT_NE(nullptr, dialog.m_hWnd);
    EXPECT_FALSE(dialog.IsWindowVisible());
}

TEST_F(Dialogs, MissingTemplatesAreToldByTheAnswer) {
    TestDialog unknown(4711U, &owner);
    EXPECT_EQ(-1, unknown.DoModal());
    TestDialog modeless;
    EXPECT_FALSE(modeless.Create(4711U, &owner));
    EXPECT_FALSE(modeless.CreateIndirect(nullptr, &owner));
    TestDialog nothing;
    EXPECT_EQ(-1, nothing.DoModal());
    EXPECT_EQ("", unknown.log.take());
}

TEST_F(Dialogs, ATemplateOfTheProgramIsFoundByItsNumber) {
    TestDialog fromResource;
    ASSERT_TRUE(fromResource.Create(201U, &owner));
    CString text;
    fromResource.GetDlgItemText(3, text);
    EXPECT_STREQ(L"z zasobu", text);
}

namespace {

class CommandOwner : public TestFrame {
public:
    CallLog log;

protected:
    void onMenu() { log.add("menu"); }
    void onButton() { log.add("button"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CommandOwner, TestFrame)
    ON_COMMAND(0x8005, &CommandOwner::onMenu)
    ON_COMMAND(5, &CommandOwner::onButton)
END_MESSAGE_MAP()

} // namespace

TEST_F(Dialogs, OnlyCommandsOfMenusGoOnToTheOwner) {
    CommandOwner commands;
    ASSERT_TRUE(commands.createHidden());
    ASSERT_TRUE(dialog.CreateIndirect(memory.get(), &commands));
    dialog.SendMessage(WM_COMMAND, 0x8005);
    dialog.SendMessage(WM_COMMAND, 5);
    EXPECT_EQ("menu", commands.log.take());
}

TEST_F(Dialogs, AColouredDialogAnswersForItsLabelsToo) {
    CDialogEx coloured;
    ASSERT_TRUE(coloured.CreateIndirect(memory.get(), &owner));
    coloured.SetBackgroundColor(RGB(10, 20, 30));
    CDC memoryDevice;
    CClientDC device(&coloured);
    ASSERT_TRUE(memoryDevice.CreateCompatibleDC(&device));
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateCompatibleBitmap(&device, 40, 40));
    CBitmap* before = memoryDevice.SelectObject(&bitmap);
    coloured.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(memoryDevice.GetSafeHdc()));
    EXPECT_EQ(RGB(10, 20, 30), memoryDevice.GetPixel(3, 3));
    memoryDevice.SelectObject(before);
    const LRESULT brush = coloured.SendMessage(WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(device.GetSafeHdc()),
                                               reinterpret_cast<LPARAM>(coloured.GetDlgItem(100)->m_hWnd));
    LOGBRUSH description{};
    GetObjectW(reinterpret_cast<HGDIOBJ>(brush), sizeof(description), &description);
    EXPECT_EQ(RGB(10, 20, 30), description.lbColor);
}
