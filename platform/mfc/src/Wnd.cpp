#include "afxwin.h"

#include "WindowDispatch.h"

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

CWnd::CWnd() = default;

CWnd::CWnd(HWND place) : m_hWnd(place) {}

CWnd::~CWnd() {
    if (m_hWnd == nullptr || this == &wndTop || this == &wndBottom || this == &wndTopMost || this == &wndNoTopMost) {
        return;
    }
    CWnd::DestroyWindow();
    if (m_hWnd != nullptr) {
        Detach();
    }
}

CWnd* CWnd::FromHandle(HWND hWnd) {
    return WindowMap::ofThread().fromHandle(hWnd);
}

CWnd* CWnd::FromHandlePermanent(HWND hWnd) {
    return WindowMap::ofThread().fromHandlePermanent(hWnd);
}

void CWnd::DeleteTempMap() {
    WindowMap::ofThread().deleteTemporaries();
}

BOOL CWnd::operator==(const CWnd& wnd) const {
    return wnd.m_hWnd == m_hWnd;
}

BOOL CWnd::Attach(HWND hWndNew) {
    return WindowMap::ofThread().attach(*this, hWndNew);
}

HWND CWnd::Detach() {
    m_pfnSuper = nullptr;
    return WindowMap::ofThread().detach(*this);
}

BOOL CWnd::SubclassWindow(HWND hWnd) {
    if (!::IsWindow(hWnd) || FromHandlePermanent(hWnd) != nullptr) {
        return FALSE;
    }
    WindowDispatch::attach(*this, hWnd);
    return TRUE;
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent) {
    HWND item = pParent != nullptr ? ::GetDlgItem(pParent->m_hWnd, static_cast<int>(nID)) : nullptr;
    return item != nullptr && SubclassWindow(item);
}

HWND CWnd::UnsubclassWindow() {
    if (m_pfnSuper != nullptr) {
        SetWindowLongPtrW(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_pfnSuper));
    }
    return Detach();
}

void CWnd::PreSubclassWindow() {}

BOOL CWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                  UINT nID, CCreateContext* pContext) {
    ASSERT(pParentWnd != nullptr);
    ASSERT((dwStyle & WS_POPUP) == 0);
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID, pContext);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                    CWnd* pParentWnd, UINT nID, LPVOID lpParam) {
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, pParentWnd != nullptr ? pParentWnd->m_hWnd : nullptr,
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), lpParam);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x, int y,
                    int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam) {
    ASSERT(m_hWnd == nullptr);
    CREATESTRUCT wanted{};
    wanted.dwExStyle = dwExStyle;
    wanted.lpszClass = lpszClassName;
    wanted.lpszName = lpszWindowName;
    wanted.style = static_cast<LONG>(dwStyle);
    wanted.x = x;
    wanted.y = y;
    wanted.cx = nWidth;
    wanted.cy = nHeight;
    wanted.hwndParent = hWndParent;
    wanted.hMenu = nIDorHMenu;
    wanted.hInstance = AfxGetInstanceHandle();
    wanted.lpCreateParams = lpParam;
    if (!PreCreateWindow(wanted)) {
        PostNcDestroy();
        return FALSE;
    }
    return WindowDispatch::create(*this, [&wanted] {
        return ::CreateWindowExW(wanted.dwExStyle, wanted.lpszClass, wanted.lpszName, static_cast<DWORD>(wanted.style),
                                 wanted.x, wanted.y, wanted.cx, wanted.cy, wanted.hwndParent, wanted.hMenu,
                                 wanted.hInstance, wanted.lpCreateParams);
    });
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr) {
        WNDCLASS windowClass{};
        windowClass.style = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
        windowClass.lpfnWndProc = &::DefWindowProcW;
        windowClass.hInstance = AfxGetInstanceHandle();
        windowClass.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
        windowClass.lpszClassName = L"AfxWnd";
        if (!AfxRegisterClass(&windowClass)) {
            return FALSE;
        }
        cs.lpszClass = windowClass.lpszClassName;
    }
    return TRUE;
}

BOOL CWnd::DestroyWindow() {
    HWND handle = m_hWnd;
    if (handle == nullptr) {
        return FALSE;
    }
    const BOOL destroyed = ::DestroyWindow(handle);
    // The object may have deleted itself. If it was only attached, nothing told it that the window is gone.
    if (destroyed) {
        if (CWnd* left = FromHandlePermanent(handle)) {
            left->Detach();
        }
    }
    return destroyed;
}

void CWnd::PostNcDestroy() {}

void CWnd::leaveThread() {
    if (CWinThread* thread = AfxGetThread()) {
        if (thread->m_pMainWnd == this) {
            thread->m_pMainWnd = nullptr;
            AfxPostQuitMessage(0);
        }
        if (thread->m_pActiveWnd == this) {
            thread->m_pActiveWnd = nullptr;
        }
    }
    stopModalLoop();
}

BOOL CWnd::CheckAutoCenter() {
    return TRUE;
}
