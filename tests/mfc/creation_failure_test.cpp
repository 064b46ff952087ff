// What keeps a window from coming to be, beside its own WM_CREATE: nothing flies through the system's frames, and no
// object stays tied to a window that nobody sees.

#include "dialog_template.h"
#include "test_windows.h"

#include "support/ImportPatch.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

class Unwilling : public CWnd {
public:
    CallLog log;
    bool throws = true;
    HWND seen = nullptr;

    void PreSubclassWindow() override {
        seen = m_hWnd;
        if (throws) {
            throw std::runtime_error("not this window");
        }
    }
    void PostNcDestroy() override { log.add(m_hWnd == nullptr ? "postncdestroy" : "postncdestroy-early"); }
};

BOOL createIn(CWnd& window) {
    return window.CreateEx(0, nullptr, L"top", WS_OVERLAPPEDWINDOW, CRect(0, 0, 100, 100), nullptr, 0);
}

HHOOK WINAPI noHook(int, HOOKPROC, HINSTANCE, DWORD) {
    return nullptr;
}

/// Stands before the framework's hook and keeps the creation from it.
LRESULT CALLBACK keepForItself(int, WPARAM, LPARAM) {
    return 0;
}

LRESULT CALLBACK refuseToCreate(int code, WPARAM, LPARAM) {
    return code == HCBT_CREATEWND ? 1 : 0;
}

HHOOK S_inTheWay = nullptr;
HWND S_made = nullptr;

HWND WINAPI createBehindAHook(DWORD exStyle, LPCWSTR className, LPCWSTR text, DWORD style, int x, int y, int width,
                              int height, HWND parent, HMENU menu, HINSTANCE instance, LPVOID parameter) {
    S_inTheWay = SetWindowsHookExW(WH_CBT, &keepForItself, nullptr, GetCurrentThreadId());
    S_made = CreateWindowExW(exStyle, className, text, style, x, y, width, height, parent, menu, instance, parameter);
    UnhookWindowsHookEx(S_inTheWay);
    return S_made;
}

class CreationFailure : public testing::Test {
protected:
    void SetUp() override { TestApplication::get().log.take(); }
    static HMODULE framework() { return GetModuleHandleW(L"OrtinMfc.dll"); }
};

} // namespace

TEST_F(CreationFailure, AnExceptionBeforeTheFirstMessageFailsTheCreationAndUntiesTheObject) {
    Unwilling window;
    EXPECT_FALSE(createIn(window));
    EXPECT_NE(nullptr, window.seen);
    EXPECT_FALSE(IsWindow(window.seen));
    EXPECT_EQ(nullptr, window.m_hWnd);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(window.seen));
    EXPECT_EQ("postncdestroy", window.log.take());
    EXPECT_EQ("", TestApplication::get().log.take()) << "a failed creation shows no box";
}

TEST_F(CreationFailure, TheObjectCanBeCreatedOnceItIsWilling) {
    Unwilling window;
    EXPECT_FALSE(createIn(window));
    window.throws = false;
    EXPECT_TRUE(createIn(window));
    EXPECT_EQ(&window, CWnd::FromHandlePermanent(window.m_hWnd));
}

TEST_F(CreationFailure, AnExceptionBeforeTheFirstMessageOfADialogFailsItToo) {
    class UnwillingDialog : public CDialog {
    public:
        void PreSubclassWindow() override { throw 5; }
    } dialog;
    DialogTemplate memory(L"", WS_POPUP | WS_CAPTION, 100, 50);
    EXPECT_FALSE(dialog.CreateIndirect(memory.get(), nullptr));
    EXPECT_EQ(nullptr, dialog.m_hWnd);
    ASSERT_TRUE(dialog.InitModalIndirect(memory.get(), nullptr));
    EXPECT_EQ(-1, dialog.DoModal());
}

TEST_F(CreationFailure, AnExceptionWhileSubclassingComesBackAndLeavesTheWindowAsItWas) {
    const HWND plain =
        CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
    const LONG_PTR procedure = GetWindowLongPtrW(plain, GWLP_WNDPROC);
    Unwilling window;
    EXPECT_THROW(window.SubclassWindow(plain), std::runtime_error);
    EXPECT_EQ(nullptr, window.m_hWnd);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(plain));
    EXPECT_EQ(procedure, GetWindowLongPtrW(plain, GWLP_WNDPROC));
    EXPECT_TRUE(::DestroyWindow(plain));
}

TEST_F(CreationFailure, NoWindowIsMadeWithoutTheHookThatTiesItToItsObject) {
    Unwilling window;
    window.throws = false;
    {
        const support::ImportPatch patch(framework(), "USER32.dll", "SetWindowsHookExW", &noHook);
        EXPECT_FALSE(createIn(window));
    }
    EXPECT_EQ(nullptr, window.seen);
    EXPECT_EQ("postncdestroy", window.log.take());
    EXPECT_TRUE(createIn(window));
}

TEST_F(CreationFailure, AWindowThatAForeignHookKeptFromItsObjectIsDestroyed) {
    Unwilling window;
    window.throws = false;
    {
        const support::ImportPatch patch(framework(), "USER32.dll", "CreateWindowExW", &createBehindAHook);
        EXPECT_FALSE(createIn(window));
    }
    EXPECT_NE(nullptr, S_made);
    EXPECT_FALSE(IsWindow(S_made));
    EXPECT_EQ(nullptr, window.m_hWnd);
    EXPECT_EQ("postncdestroy", window.log.take());
}

TEST_F(CreationFailure, AForeignHookThatRefusesTheWindowUntiesTheObject) {
    Unwilling window;
    window.throws = false;
    const HHOOK refusing = SetWindowsHookExW(WH_CBT, &refuseToCreate, nullptr, GetCurrentThreadId());
    EXPECT_FALSE(createIn(window));
    UnhookWindowsHookEx(refusing);
    EXPECT_NE(nullptr, window.seen);
    EXPECT_EQ(nullptr, window.m_hWnd);
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(window.seen));
    EXPECT_EQ("postncdestroy", window.log.take());
    EXPECT_TRUE(createIn(window));
}

TEST_F(CreationFailure, AnExceptionInTheQuestionWhetherToCenterIsReportedAndTheDialogStays) {
    class Uncentered : public CDialog {
    protected:
        BOOL CheckAutoCenter() override { throw std::runtime_error("no center"); }
    } dialog;
    DialogTemplate memory(L"", WS_POPUP | WS_CAPTION, 100, 50);
    EXPECT_TRUE(dialog.CreateIndirect(memory.get(), nullptr));
    EXPECT_EQ("box:no center", TestApplication::get().log.take());
    EXPECT_EQ(&dialog, CWnd::FromHandlePermanent(dialog.m_hWnd));
}
