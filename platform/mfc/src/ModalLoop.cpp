#include "afxwin.h"

#include "MessagePump.h"

int CWnd::RunModalLoop(DWORD dwFlags) {
    HWND parent = ::GetParent(m_hWnd);
    bool showOnIdle = (dwFlags & MLF_SHOWONIDLE) != 0 && !IsWindowVisible();
    const auto idle = [&](LONG count) {
        if (showOnIdle) {
            ShowWindow(SW_SHOWNORMAL);
            UpdateWindow();
            showOnIdle = false;
        }
        if ((dwFlags & MLF_NOIDLEMSG) == 0 && parent != nullptr && count == 0) {
            ::SendMessageW(parent, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(m_hWnd));
        }
        return (dwFlags & MLF_NOKICKIDLE) == 0 && SendMessage(WM_KICKIDLE, MSGF_DIALOGBOX, count) != 0;
    };
    m_modalLoopRuns = true;
    m_nModalResult = -1;
    if (!pumpMessages(idle, [this] { return ContinueModal() != FALSE; })) {
        // The loop outside has to see that the thread is to end.
        AfxPostQuitMessage(pumpedQuitCode());
        m_modalLoopRuns = false;
        return -1;
    }
    return m_nModalResult;
}

BOOL CWnd::ContinueModal() {
    return m_modalLoopRuns;
}

void CWnd::EndModalLoop(int nResult) {
    m_nModalResult = nResult;
    stopModalLoop();
}

void CWnd::stopModalLoop() {
    if (m_modalLoopRuns) {
        m_modalLoopRuns = false;
        // Wakes the loop, should it be waiting. To the thread, for the window may be about to go.
        ::PostMessageW(nullptr, WM_NULL, 0, 0);
    }
}
