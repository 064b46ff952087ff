#pragma once

#include "afxcmd.h"
#include "afxstat.h"
#include "afxwin_wnd.h"

/// A thread with a message loop. The object is tied to the thread that constructs it, until it is destroyed.
class ORTIN_MFC_API CWinThread : public CCmdTarget {
    DECLARE_DYNAMIC(CWinThread)
public:
    CWinThread();
    ~CWinThread() override;

    CWnd* m_pMainWnd = nullptr;   ///< when it is destroyed, the loop of the thread ends; not owned
    CWnd* m_pActiveWnd = nullptr; ///< not owned
    DWORD m_nThreadID = 0;

    virtual BOOL InitInstance();
    /// Pumps messages until WM_QUIT and gives what ExitInstance answers.
    virtual int Run();
    /// The exit code: that of the WM_QUIT that ended the loop, 0 without a loop.
    virtual int ExitInstance();

    /// Waits for a message, translates and dispatches it; false at WM_QUIT.
    virtual BOOL PumpMessage();
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    virtual BOOL IsIdleMessage(MSG* pMsg);
    /// Called with 0, 1, 2 ... while the queue is empty, as long as it gives true. Frees the temporary objects.
    virtual BOOL OnIdle(LONG lCount);
    virtual CWnd* GetMainWnd();
    /// What a message answers whose handler threw: -1 for WM_CREATE, which fails the creation; WM_PAINT validates
    /// the window; for any other the text is shown and the answer is 0. The caller frees the exception.
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);

protected:
    DECLARE_MESSAGE_MAP()

private:
    POINT m_lastMousePoint{-1, -1};
    UINT m_lastMouseMessage = 0;
};

/// The program. One object, made before AfxWinInit.
class ORTIN_MFC_API CWinApp : public CWinThread {
    DECLARE_DYNAMIC(CWinApp)
public:
    explicit CWinApp(LPCTSTR lpszAppName = nullptr);
    ~CWinApp() override;

    HINSTANCE m_hInstance = nullptr;
    LPTSTR m_lpCmdLine = nullptr;
    int m_nCmdShow = SW_SHOWNORMAL;
    LPCTSTR m_pszAppName = nullptr; ///< title of message boxes; not owned

    virtual BOOL InitApplication();
    BOOL InitInstance() override;
    int Run() override;
    BOOL OnIdle(LONG lCount) override;
    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);

    HCURSOR LoadCursor(LPCTSTR lpszResourceName) const;
    HCURSOR LoadCursor(UINT nIDResource) const;
    HCURSOR LoadStandardCursor(LPCTSTR lpszCursorName) const;
    HICON LoadIcon(LPCTSTR lpszResourceName) const;
    HICON LoadIcon(UINT nIDResource) const;

protected:
    DECLARE_MESSAGE_MAP()
};

/// A library's place in the search for resources; made with new by the library, freed by AfxTermExtensionModule.
class ORTIN_MFC_API CDynLinkLibrary : public CCmdTarget {
    DECLARE_DYNAMIC(CDynLinkLibrary)
public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state);
    ~CDynLinkLibrary() override;

    HMODULE m_hModule = nullptr;
    HMODULE m_hResource = nullptr;
};

ORTIN_MFC_API CWinApp* AfxGetApp();
/// The thread object of the calling thread; null if it has none.
ORTIN_MFC_API CWinThread* AfxGetThread();
ORTIN_MFC_API CWnd* AfxGetMainWnd();
ORTIN_MFC_API LPCTSTR AfxGetAppName();
ORTIN_MFC_API void AfxPostQuitMessage(int nExitCode);
/// The start of a program: takes over the instance, the command line and the way to show the first window.
ORTIN_MFC_API BOOL AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
/// The whole life of a program: AfxWinInit, InitApplication, InitInstance, Run; its exit code. An InitInstance that
/// answers false, as that of a program which is one modal dialog, ends it without Run, and ExitInstance gives the code.
ORTIN_MFC_API int AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);

/// Shown over the main window with the application's name; the box's answer, 0 if it can't be shown.
ORTIN_MFC_API int AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
ORTIN_MFC_API int AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = static_cast<UINT>(-1));

ORTIN_MFC_API BOOL AfxPreTranslateMessage(MSG* pMsg);
ORTIN_MFC_API BOOL AfxPumpMessage();
/// The framework's own answer to an exception in a handler; see CWinThread::ProcessWndProcException.
ORTIN_MFC_API LRESULT AfxProcessWndProcException(CException* e, const MSG* pMsg);
/// Between these calls, which nest, the temporary objects of the thread are kept at idle.
ORTIN_MFC_API void AfxLockTempMaps();
ORTIN_MFC_API BOOL AfxUnlockTempMaps(BOOL bDeleteTemps = TRUE);
