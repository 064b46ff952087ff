#include "afxwin.h"

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

BEGIN_MESSAGE_MAP(CWinApp, CWinThread)
END_MESSAGE_MAP()

CWinApp::CWinApp(LPCTSTR lpszAppName) : m_pszAppName(lpszAppName) {
    AFX_MODULE_STATE* module = AfxGetModuleState();
    ASSERT(module->m_pCurrentWinApp == nullptr);
    module->m_pCurrentWinApp = this;
    module->m_lpszCurrentAppName = lpszAppName;
    m_hInstance = module->m_hCurrentInstanceHandle;
}

CWinApp::~CWinApp() {
    AFX_MODULE_STATE* module = AfxGetModuleState();
    if (module->m_pCurrentWinApp == this) {
        module->m_pCurrentWinApp = nullptr;
        module->m_lpszCurrentAppName = nullptr;
    }
}

BOOL CWinApp::InitApplication() {
    return TRUE;
}

BOOL CWinApp::InitInstance() {
    return TRUE;
}

int CWinApp::Run() {
    if (m_pMainWnd == nullptr) {
        // Nobody would ever end the loop.
        AfxPostQuitMessage(0);
    }
    return CWinThread::Run();
}

BOOL CWinApp::OnIdle(LONG lCount) {
    CWinThread::OnIdle(lCount);
    return lCount < 1;
}

int CWinApp::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT) {
    HWND owner = m_pMainWnd != nullptr ? ::GetLastActivePopup(m_pMainWnd->m_hWnd) : ::GetActiveWindow();
    if ((nType & MB_ICONMASK) == 0) {
        nType |= MB_ICONEXCLAMATION;
    }
    if (owner == nullptr) {
        nType |= MB_TASKMODAL;
    }
    return ::MessageBoxW(owner, lpszPrompt, AfxGetAppName(), nType);
}

HCURSOR CWinApp::LoadCursor(LPCTSTR lpszResourceName) const {
    return ::LoadCursorW(AfxFindResourceHandle(lpszResourceName, RT_GROUP_CURSOR), lpszResourceName);
}

HCURSOR CWinApp::LoadCursor(UINT nIDResource) const {
    return LoadCursor(MAKEINTRESOURCE(nIDResource));
}

HCURSOR CWinApp::LoadStandardCursor(LPCTSTR lpszCursorName) const {
    return ::LoadCursorW(nullptr, lpszCursorName);
}

HICON CWinApp::LoadIcon(LPCTSTR lpszResourceName) const {
    return ::LoadIconW(AfxFindResourceHandle(lpszResourceName, RT_GROUP_ICON), lpszResourceName);
}

HICON CWinApp::LoadIcon(UINT nIDResource) const {
    return LoadIcon(MAKEINTRESOURCE(nIDResource));
}

CWinApp* AfxGetApp() {
    return AfxGetModuleState()->m_pCurrentWinApp;
}

LPCTSTR AfxGetAppName() {
    return AfxGetModuleState()->m_lpszCurrentAppName;
}

BOOL AfxWinInit(HINSTANCE hInstance, HINSTANCE, LPTSTR lpCmdLine, int nCmdShow) {
    AFX_MODULE_STATE* module = AfxGetModuleState();
    module->m_hCurrentInstanceHandle = hInstance;
    module->m_hCurrentResourceHandle = hInstance;
    if (CWinApp* application = AfxGetApp()) {
        application->m_hInstance = hInstance;
        application->m_lpCmdLine = lpCmdLine;
        application->m_nCmdShow = nCmdShow;
        module->m_lpszCurrentAppName = application->m_pszAppName;
    }
    return TRUE;
}

int AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow) {
    CWinApp* application = AfxGetApp();
    if (application == nullptr || !AfxWinInit(hInstance, hPrevInstance, lpCmdLine, nCmdShow) ||
        !application->InitApplication()) {
        return -1;
    }
    if (!application->InitInstance()) {
        if (application->m_pMainWnd != nullptr) {
            application->m_pMainWnd->DestroyWindow();
        }
        return application->ExitInstance();
    }
    return application->Run();
}

int AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp) {
    if (CWinApp* application = AfxGetApp()) {
        return application->DoMessageBox(lpszText, nType, nIDHelp);
    }
    return ::MessageBoxW(::GetActiveWindow(), lpszText, nullptr, nType);
}

int AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp) {
    CString text;
    if (!text.LoadString(nIDPrompt)) {
        TRACE(L"Brak tekstu %u dla okna komunikatu\n", nIDPrompt);
        return 0;
    }
    return AfxMessageBox(text, nType, nIDHelp == static_cast<UINT>(-1) ? nIDPrompt : nIDHelp);
}
