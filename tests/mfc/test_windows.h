#pragma once

#include <afxwin.h>

#include <functional>
#include <string>
#include <vector>

/// The numbers that tests give to their own messages.
inline constexpr UINT testMessage = WM_APP + 1;
inline constexpr UINT otherTestMessage = WM_APP + 2;

/// What was called, in order, as words of one text.
class CallLog {
public:
    void add(const std::string& word) { m_text += (m_text.empty() ? "" : " ") + word; }
    std::string take() {
        std::string text;
        text.swap(m_text);
        return text;
    }

private:
    std::string m_text;
};

/// The application of the test program: nothing it reports opens a window.
class TestApplication : public CWinApp {
public:
    CallLog log;
    LONG idleCalls = 0;
    std::function<BOOL()> initialise;
    std::function<int(int code)> exit; ///< gets the framework's own code and gives another

    static TestApplication& get() { return *static_cast<TestApplication*>(AfxGetApp()); }

    BOOL InitInstance() override { return initialise ? initialise() : CWinApp::InitInstance(); }
    int ExitInstance() override {
        const int code = CWinApp::ExitInstance();
        return exit ? exit(code) : code;
    }
    BOOL OnIdle(LONG lCount) override {
        ++idleCalls;
        return CWinApp::OnIdle(lCount);
    }
    int DoMessageBox(LPCTSTR lpszPrompt, UINT, UINT) override {
        log.add("box:" + narrow(lpszPrompt));
        return IDOK;
    }
    static std::string narrow(const std::wstring& text) { return {text.begin(), text.end()}; }
};

/// A top-level window that is never shown, with a message handler that a test puts in.
class TestFrame : public CWnd {
public:
    using Handler = std::function<bool(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result)>;
    Handler handler;

    TestFrame() = default;
    BOOL createHidden(DWORD style = WS_OVERLAPPEDWINDOW, const CRect& place = CRect(10, 10, 310, 210)) {
        return CreateEx(0, nullptr, L"frame", style, place, nullptr, 0);
    }

protected:
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override {
        LRESULT result = 0;
        if (handler && handler(message, wParam, lParam, result)) {
            if (pResult != nullptr) {
                *pResult = result;
            }
            return TRUE;
        }
        return CWnd::OnWndMsg(message, wParam, lParam, pResult);
    }
};

/// Runs the messages that wait, without idling.
inline void pumpWaiting() {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE)) {
        if (!AfxPumpMessage()) {
            return;
        }
    }
}
