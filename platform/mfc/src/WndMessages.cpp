#include "afxwin.h"

#include "MessageTable.h"
#include "WindowDispatch.h"

namespace {

bool isControlColor(UINT message) {
    return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
}

/// The colour messages of all kinds of control are one to the maps.
AFX_CTLCOLOR controlColor(UINT message, WPARAM wParam, LPARAM lParam) {
    return {reinterpret_cast<HWND>(lParam), reinterpret_cast<HDC>(wParam), message - WM_CTLCOLORMSGBOX};
}

} // namespace

const MSG* CWnd::GetCurrentMessage() {
    return &ThreadState::current().lastSentMessage;
}

LRESULT CWnd::Default() {
    const MSG message = ThreadState::current().lastSentMessage;
    return DefWindowProc(message.message, message.wParam, message.lParam);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return m_pfnSuper != nullptr ? ::CallWindowProcW(m_pfnSuper, m_hWnd, message, wParam, lParam)
                                 : ::DefWindowProcW(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    if (!OnWndMsg(message, wParam, lParam, &result)) {
        result = DefWindowProc(message, wParam, lParam);
    }
    return result;
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    LRESULT result = 0;
    if (message == WM_COMMAND) {
        if (!OnCommand(wParam, lParam)) {
            return FALSE;
        }
        result = 1;
    } else if (message == WM_NOTIFY) {
        const auto* header = reinterpret_cast<const NMHDR*>(lParam);
        if (header == nullptr || header->hwndFrom == nullptr || !OnNotify(wParam, lParam, &result)) {
            return FALSE;
        }
    } else {
        const AfxMessageTable& table = AfxMessageTable::of(*GetMessageMap());
        const AFX_MSGMAP_ENTRY* entry = table.find(message);
        AFX_MSGCALL call{message, wParam, lParam, 0};
        AFX_CTLCOLOR color{};
        if (entry == nullptr && isControlColor(message)) {
            entry = table.find(WM_CTLCOLOR);
            color = controlColor(message, wParam, lParam);
            call.lParam = reinterpret_cast<LPARAM>(&color);
        }
        if (entry == nullptr || !entry->pfnMessage(this, call)) {
            return FALSE;
        }
        result = call.lResult;
    }
    if (pResult != nullptr) {
        *pResult = result;
    }
    return TRUE;
}

BOOL CWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    return CCmdTarget::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT id = LOWORD(wParam);
    const auto control = reinterpret_cast<HWND>(lParam);
    // From a menu the high word is 0, from an accelerator 1: both are commands.
    const int code = control != nullptr ? HIWORD(wParam) : CN_COMMAND;
    if (control != nullptr && ReflectLastMsg(control)) {
        return TRUE;
    }
    return id != 0 && OnCmdMsg(id, code, nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult) {
    auto* header = reinterpret_cast<NMHDR*>(lParam);
    const UINT code = header->code;
    // Tool tips put something else into idFrom.
    const auto id = static_cast<UINT>(::GetDlgCtrlID(header->hwndFrom));
    if (ReflectLastMsg(header->hwndFrom, pResult)) {
        return TRUE;
    }
    AFX_NOTIFY notify{pResult, header};
    return OnCmdMsg(id, MAKELONG(code, WM_NOTIFY), &notify, nullptr);
}

BOOL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT* pResult) {
    CWnd* child = FromHandlePermanent(hWndChild);
    return child != nullptr && child->SendChildNotifyLastMsg(pResult);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* pResult) {
    const MSG message = ThreadState::current().lastSentMessage;
    LRESULT unused = 0;
    return OnChildNotify(message.message, message.wParam, message.lParam, pResult != nullptr ? pResult : &unused);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return ReflectChildNotify(message, wParam, lParam, pResult);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_PARENTNOTIFY:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
        return CWnd::OnWndMsg(WM_REFLECT_BASE + message, wParam, lParam, pResult);
    case WM_COMMAND:
        if (!OnCmdMsg(0, MAKELONG(HIWORD(wParam), WM_REFLECT_BASE + WM_COMMAND), nullptr, nullptr)) {
            return FALSE;
        }
        *pResult = 1;
        return TRUE;
    case WM_NOTIFY: {
        auto* header = reinterpret_cast<NMHDR*>(lParam);
        AFX_NOTIFY notify{pResult, header};
        return OnCmdMsg(0, MAKELONG(header->code, WM_REFLECT_BASE + WM_NOTIFY), &notify, nullptr);
    }
    default:
        if (!isControlColor(message)) {
            return FALSE;
        }
        AFX_CTLCOLOR color = controlColor(message, wParam, lParam);
        return CWnd::OnWndMsg(WM_REFLECT_BASE + WM_CTLCOLOR, 0, reinterpret_cast<LPARAM>(&color), pResult);
    }
}

BOOL CWnd::PreTranslateMessage(MSG*) {
    return FALSE;
}

BOOL CWnd::WalkPreTranslateTree(HWND hWndStop, MSG* pMsg) {
    for (HWND handle = pMsg->hwnd; handle != nullptr; handle = ::GetParent(handle)) {
        CWnd* window = FromHandlePermanent(handle);
        if (window != nullptr && window->PreTranslateMessage(pMsg)) {
            return TRUE;
        }
        if (handle == hWndStop) {
            break;
        }
    }
    return FALSE;
}

INT_PTR CWnd::OnToolHitTest(CPoint point, TOOLINFO* pTI) const {
    HWND child = ::ChildWindowFromPointEx(m_hWnd, point, CWP_SKIPINVISIBLE);
    if (child == nullptr || child == m_hWnd) {
        return -1;
    }
    if (pTI != nullptr && pTI->cbSize >= TTTOOLINFOW_V1_SIZE) {
        pTI->hwnd = m_hWnd;
        pTI->uId = reinterpret_cast<UINT_PTR>(child);
        pTI->uFlags |= TTF_IDISHWND;
        pTI->lpszText = LPSTR_TEXTCALLBACK;
    }
    return ::GetDlgCtrlID(child);
}
