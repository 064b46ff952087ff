#include "afxwin.h"

#include "MessagePump.h"
#include "ThreadState.h"

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

BEGIN_MESSAGE_MAP(CWinThread, CCmdTarget)
END_MESSAGE_MAP()

namespace {

BOOL pumpOneMessage() {
    MSG message{};
    const BOOL got = GetMessageW(&message, nullptr, 0, 0);
    ThreadState& state = ThreadState::current();
    state.pumpedMessage = message;
    if (message.message == WM_QUIT) {
        state.quitCode = static_cast<int>(message.wParam);
    }
    // -1 tells of a queue that can't be read, which ends the loop as a quit does.
    if (got <= 0) {
        return FALSE;
    }
    if (!AfxPreTranslateMessage(&message)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return TRUE;
}

HWND mainHandle() {
    const CWnd* mainWindow = AfxGetMainWnd();
    return mainWindow != nullptr ? mainWindow->m_hWnd : nullptr;
}

BOOL preTranslate(MSG* message) {
    if (CWnd::WalkPreTranslateTree(mainHandle(), message)) {
        return TRUE;
    }
    // Windows that float over the main window let it have the message last. Whoever was asked before may have ended
    // either of them.
    CWnd* mainWindow = AfxGetMainWnd();
    if (mainWindow == nullptr || !::IsWindow(message->hwnd)) {
        return FALSE;
    }
    CWnd* window = CWnd::FromHandle(message->hwnd);
    return window->GetTopLevelParent() != mainWindow && mainWindow->PreTranslateMessage(message);
}

} // namespace

CWinThread::CWinThread() : m_nThreadID(GetCurrentThreadId()) {
    ThreadState& state = ThreadState::current();
    ASSERT(state.thread == nullptr);
    state.thread = this;
}

CWinThread::~CWinThread() {
    ThreadState& state = ThreadState::current();
    if (state.thread == this) {
        state.thread = nullptr;
    }
}

BOOL CWinThread::InitInstance() {
    return FALSE;
}

int CWinThread::Run() {
    pumpMessages([this](LONG count) { return OnIdle(count) != FALSE; }, [] { return true; });
    return ExitInstance();
}

int CWinThread::ExitInstance() {
    return pumpedQuitCode();
}

BOOL CWinThread::PumpMessage() {
    return pumpOneMessage();
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg) {
    return preTranslate(pMsg);
}

BOOL CWinThread::IsIdleMessage(MSG* pMsg) {
    constexpr UINT caretBlinks = 0x0118;
    if (pMsg->message == WM_PAINT || pMsg->message == caretBlinks) {
        return FALSE;
    }
    if (pMsg->message != WM_MOUSEMOVE && pMsg->message != WM_NCMOUSEMOVE) {
        return TRUE;
    }
    // The system makes mouse moves where the mouse stands still, whenever a window changes under it.
    const bool stands =
        pMsg->message == m_lastMouseMessage && pMsg->pt.x == m_lastMousePoint.x && pMsg->pt.y == m_lastMousePoint.y;
    m_lastMousePoint = pMsg->pt;
    m_lastMouseMessage = pMsg->message;
    return !stands;
}

BOOL CWinThread::OnIdle(LONG lCount) {
    if (lCount >= 0) {
        ThreadState::current().deleteTemporaries();
    }
    return lCount < 0;
}

CWnd* CWinThread::GetMainWnd() {
    return m_pMainWnd != nullptr ? m_pMainWnd : CWnd::GetActiveWindow();
}

LRESULT CWinThread::ProcessWndProcException(CException* e, const MSG* pMsg) {
    return AfxProcessWndProcException(e, pMsg);
}

CWinThread* AfxGetThread() {
    return ThreadState::current().thread;
}

CWnd* AfxGetMainWnd() {
    CWinThread* thread = AfxGetThread();
    return thread != nullptr ? thread->GetMainWnd() : nullptr;
}

BOOL AfxPumpMessage() {
    CWinThread* thread = AfxGetThread();
    return thread != nullptr ? thread->PumpMessage() : pumpOneMessage();
}

BOOL AfxPreTranslateMessage(MSG* pMsg) {
    CWinThread* thread = AfxGetThread();
    return thread != nullptr ? thread->PreTranslateMessage(pMsg) : preTranslate(pMsg);
}

bool pumpedMessageEndsIdle() {
    MSG& message = ThreadState::current().pumpedMessage;
    CWinThread* thread = AfxGetThread();
    return thread == nullptr || thread->IsIdleMessage(&message);
}

int pumpedQuitCode() {
    return ThreadState::current().quitCode;
}

void AfxPostQuitMessage(int nExitCode) {
    PostQuitMessage(nExitCode);
}

void AfxLockTempMaps() {
    ++ThreadState::current().temporaryMapLocks;
}

BOOL AfxUnlockTempMaps(BOOL bDeleteTemps) {
    ThreadState& state = ThreadState::current();
    ASSERT(state.temporaryMapLocks > 0);
    if (state.temporaryMapLocks > 0) {
        --state.temporaryMapLocks;
    }
    if (state.temporaryMapLocks == 0 && bDeleteTemps) {
        state.deleteTemporaries();
    }
    return state.temporaryMapLocks > 0;
}
