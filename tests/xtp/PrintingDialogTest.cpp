#include <XTToolkitPro.h>

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <string>

namespace {

constexpr int kItems[] = {201, 202, 203, 204};

/// The abort procedure has no use for its arguments.
int poll() {
    return _XTPAbortProc(nullptr, 0);
}

/// A window that is a job's owner.
class Owner : public CWnd {
public:
    Owner() { CreateEx(0, AfxRegisterWndClass(0), L"x", WS_POPUP, CRect(100, 100, 700, 500), nullptr, 0); }
    ~Owner() override { DestroyWindow(); }
};

class PrintingDialogs : public testing::Test {
protected:
    void show() {
        dialog.ShowWindow(SW_SHOWNOACTIVATE);
        dialog.UpdateWindow();
    }

    CRect areaOf(int item) const {
        CRect area;
        dialog.GetDlgItem(item)->GetWindowRect(&area);
        dialog.ScreenToClient(&area);
        return area;
    }

    Owner owner;
    CXTPPrintingDialog dialog{&owner};
};

} // namespace

TEST_F(PrintingDialogs, AreThereHiddenOnceTheyAreConstructed) {
    ASSERT_NE(nullptr, dialog.m_hWnd);
    EXPECT_FALSE(dialog.IsWindowVisible());
    EXPECT_EQ(owner.m_hWnd, ::GetWindow(dialog.m_hWnd, GW_OWNER));
    CString caption;
    dialog.GetWindowText(caption);
    EXPECT_STREQ(L"Drukowanie", caption);
    for (const int item : kItems) {
        CString text(L"przedtem");
        dialog.GetDlgItemText(item, text);
        EXPECT_TRUE(text.IsEmpty()) << item;
    }
    EXPECT_EQ(1, poll());
}

TEST_F(PrintingDialogs, ShowTheTextsTheyAreGiven) {
    show();
    for (const int item : kItems) {
        const std::wstring text = L"Zażółć & gęślą " + std::to_wstring(item);
        dialog.SetDlgItemText(item, text.c_str());
        CString shown;
        dialog.GetDlgItemText(item, shown);
        EXPECT_STREQ(text.c_str(), shown);
        EXPECT_NE(0, dialog.GetDlgItem(item)->GetStyle() & SS_NOPREFIX) << "an ampersand is no shortcut";
    }
}

TEST_F(PrintingDialogs, HaveRoomForAllTheirParts) {
    show();
    CRect client;
    dialog.GetClientRect(&client);
    CClientDC dc(&dialog);
    CFont* const previous = dc.SelectObject(dialog.GetFont());
    TEXTMETRICW metrics{};
    dc.GetTextMetrics(&metrics);
    const CSize button = dc.GetTextExtent(L"Anuluj", 6);
    dc.SelectObject(previous);
    for (const int item : kItems) {
        EXPECT_TRUE(client.PtInRect(areaOf(item).TopLeft())) << item;
        EXPECT_LE(areaOf(item).right, client.right) << item;
        EXPECT_GE(areaOf(item).Height(), metrics.tmHeight) << item;
    }
    EXPECT_LT(areaOf(204).right, areaOf(IDCANCEL).left + 1);
    EXPECT_GT(areaOf(IDCANCEL).Width(), button.cx);
    EXPECT_GT(areaOf(IDCANCEL).Height(), button.cy);
    EXPECT_LE(areaOf(IDCANCEL).bottom, client.bottom);
}

TEST_F(PrintingDialogs, TellTheAbortProcedureOnceTheUserHasCancelled) {
    struct Case {
        const char* what;
        HWND (*window)(const CXTPPrintingDialog&);
        UINT message;
        WPARAM word;
    };
    const auto self = [](const CXTPPrintingDialog& job) { return job.m_hWnd; };
    const auto button = [](const CXTPPrintingDialog& job) { return job.GetDlgItem(IDCANCEL)->m_hWnd; };
    const Case cases[] = {
        {"the button", button, BM_CLICK, 0},
        {"Escape", button, WM_KEYDOWN, VK_ESCAPE},
        {"the close button", self, WM_CLOSE, 0},
    };
    for (const Case& each : cases) {
        CXTPPrintingDialog job(&owner);
        job.ShowWindow(SW_SHOWNOACTIVATE);
        ::PostMessageW(each.window(job), each.message, each.word, 0);
        EXPECT_FALSE(job.IsCancelled()) << each.what << " is only posted";
        EXPECT_EQ(0, poll()) << each.what;
        EXPECT_EQ(0, poll()) << each.what << ", and it stays so";
        EXPECT_TRUE(job.IsCancelled()) << each.what;
        EXPECT_TRUE(job.IsWindowVisible()) << each.what;
        EXPECT_FALSE(job.GetDlgItem(IDCANCEL)->IsWindowEnabled()) << each.what;
        CString text;
        job.GetDlgItemText(204, text);
        EXPECT_STREQ(L"Anulowanie drukowania\x2026", text) << each.what;
    }
}

TEST_F(PrintingDialogs, DoNotGoAwayForTheReturnKey) {
    show();
    dialog.PostMessage(WM_COMMAND, IDOK);
    EXPECT_EQ(1, poll());
    EXPECT_TRUE(dialog.IsWindowVisible());
}

TEST_F(PrintingDialogs, OfAJobInsideAnotherAreAskedFirst) {
    {
        CXTPPrintingDialog inner(&dialog);
        dialog.SendMessage(WM_COMMAND, IDCANCEL);
        EXPECT_EQ(1, poll()) << "the outer job's cancellation waits";
        inner.SendMessage(WM_COMMAND, IDCANCEL);
        EXPECT_EQ(0, poll());
    }
    EXPECT_EQ(0, poll()) << "and is still there";
}

TEST_F(PrintingDialogs, OfALaterJobKnowNothingOfAnEarlierOne) {
    {
        CXTPPrintingDialog earlier(&owner);
        earlier.SendMessage(WM_COMMAND, IDCANCEL);
        EXPECT_EQ(0, poll());
    }
    EXPECT_EQ(1, poll());
}

TEST_F(PrintingDialogs, StillCancelWhenTheirWindowIsGone) {
    dialog.SendMessage(WM_COMMAND, IDCANCEL);
    owner.DestroyWindow();
    EXPECT_EQ(nullptr, dialog.m_hWnd);
    EXPECT_EQ(0, poll());
}

TEST_F(PrintingDialogs, AreNotHeldUpByAQueueThatNeverEmpties) {
    class Restless : public Owner {
    public:
        LRESULT WindowProc(UINT message, WPARAM word, LPARAM param) override {
            if (message == WM_APP) {
                PostMessage(WM_APP);
                return 0;
            }
            return Owner::WindowProc(message, word, param);
        }
    } restless;
    restless.PostMessage(WM_APP);
    const ULONGLONG start = ::GetTickCount64();
    EXPECT_EQ(1, poll());
    EXPECT_LT(::GetTickCount64() - start, 1000U);
}

TEST_F(PrintingDialogs, EndAJobWhenTheThreadIsToEnd) {
    ::PostQuitMessage(7);
    EXPECT_EQ(0, poll());
    EXPECT_EQ(0, poll());
    MSG message{};
    ASSERT_TRUE(::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) << "the loop outside has to see it";
    EXPECT_EQ(static_cast<UINT>(WM_QUIT), message.message);
    EXPECT_EQ(7U, message.wParam);
    EXPECT_EQ(1, poll());
}

TEST(PrintingDialog, IsNotNeededByTheAbortProcedure) {
    EXPECT_EQ(1, poll());
}

TEST(PrintingDialog, NeedsNoParent) {
    const CXTPPrintingDialog dialog(nullptr);
    EXPECT_NE(nullptr, dialog.m_hWnd);
}
