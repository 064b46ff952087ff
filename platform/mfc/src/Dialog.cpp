#include "afxwin.h"

#include "WindowDispatch.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
    ON_MESSAGE(WM_INITDIALOG, &CDialog::HandleInitDialog)
    ON_COMMAND(IDOK, &CDialog::OnOK)
    ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
END_MESSAGE_MAP()

namespace {

/// The dialog manager asks this after the object; only the focus is left to be told.
INT_PTR CALLBACK dialogProcedure(HWND, UINT message, WPARAM, LPARAM) {
    return message == WM_INITDIALOG;
}

LPCDLGTEMPLATE templateNamed(LPCTSTR name, HINSTANCE module) {
    HRSRC resource = FindResourceW(module, name, RT_DIALOG);
    HGLOBAL loaded = resource != nullptr ? LoadResource(module, resource) : nullptr;
    return loaded != nullptr ? static_cast<LPCDLGTEMPLATE>(LockResource(loaded)) : nullptr;
}

/// The window that a modal dialog takes as its owner and disables.
HWND modalOwner(const CWnd* parent) {
    if (parent == nullptr) {
        parent = AfxGetMainWnd();
    }
    if (parent == nullptr || parent->m_hWnd == nullptr) {
        return nullptr;
    }
    HWND topLevel = ::GetAncestor(parent->m_hWnd, GA_ROOT);
    return ::GetLastActivePopup(topLevel);
}

/// Keeps the owner from taking input for its lifetime.
class DisabledOwner {
public:
    explicit DisabledOwner(HWND owner) : m_owner(owner != nullptr && ::IsWindowEnabled(owner) ? owner : nullptr) {
        if (m_owner != nullptr) {
            ::EnableWindow(m_owner, FALSE);
        }
    }
    DisabledOwner(const DisabledOwner&) = delete;
    DisabledOwner& operator=(const DisabledOwner&) = delete;
    ~DisabledOwner() {
        if (m_owner != nullptr) {
            ::EnableWindow(m_owner, TRUE);
        }
    }

private:
    HWND m_owner;
};

} // namespace

BOOL CWnd::CreateDlg(LPCTSTR lpszTemplateName, CWnd* pParentWnd) {
    HINSTANCE module = AfxFindResourceHandle(lpszTemplateName, RT_DIALOG);
    LPCDLGTEMPLATE found = templateNamed(lpszTemplateName, module);
    return found != nullptr && CreateDlgIndirect(found, pParentWnd, module);
}

BOOL CWnd::CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst) {
    HWND parent = pParentWnd != nullptr ? pParentWnd->m_hWnd : nullptr;
    HINSTANCE module = hInst != nullptr ? hInst : AfxGetInstanceHandle();
    return WindowDispatch::create(
        *this, [=] { return ::CreateDialogIndirectParamW(module, lpDialogTemplate, parent, &dialogProcedure, 0); });
}

CDialog::CDialog() = default;

CDialog::CDialog(UINT nIDTemplate, CWnd* pParentWnd)
    : m_lpszTemplateName(MAKEINTRESOURCE(nIDTemplate)),
      m_pParentWnd(pParentWnd) {}

CDialog::CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd)
    : m_lpszTemplateName(lpszTemplateName),
      m_pParentWnd(pParentWnd) {}

BOOL CDialog::Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd) {
    return CreateDlg(lpszTemplateName, pParentWnd != nullptr ? pParentWnd : AfxGetMainWnd());
}

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParentWnd) {
    return Create(MAKEINTRESOURCE(nIDTemplate), pParentWnd);
}

BOOL CDialog::CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd) {
    return lpDialogTemplate != nullptr &&
           CreateDlgIndirect(lpDialogTemplate, pParentWnd != nullptr ? pParentWnd : AfxGetMainWnd(), nullptr);
}

BOOL CDialog::InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd) {
    m_lpDialogTemplate = lpDialogTemplate;
    if (pParentWnd != nullptr) {
        m_pParentWnd = pParentWnd;
    }
    return lpDialogTemplate != nullptr;
}

INT_PTR CDialog::DoModal() {
    HINSTANCE module = nullptr;
    LPCDLGTEMPLATE wanted = m_lpDialogTemplate;
    if (wanted == nullptr && m_lpszTemplateName != nullptr) {
        module = AfxFindResourceHandle(m_lpszTemplateName, RT_DIALOG);
        wanted = templateNamed(m_lpszTemplateName, module);
    }
    if (wanted == nullptr) {
        return -1;
    }
    HWND owner = modalOwner(m_pParentWnd);
    m_modal = true;
    m_modalLoopRuns = true;
    m_nModalResult = -1;
    bool wasActive = false;
    {
        const DisabledOwner disabled(owner);
        // OnInitDialog may already have ended it.
        if (CreateDlgIndirect(wanted, CWnd::FromHandle(owner), module) && m_modalLoopRuns) {
            RunModalLoop((GetStyle() & DS_NOIDLEMSG) != 0 ? MLF_SHOWONIDLE | MLF_NOIDLEMSG : MLF_SHOWONIDLE);
        }
        if (m_hWnd != nullptr) {
            wasActive = ::GetActiveWindow() == m_hWnd;
            SetWindowPos(nullptr, 0, 0, 0, 0, SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
        }
    }
    // The owner can take the activation only now that it is enabled, and has to before the dialog goes.
    if (wasActive && owner != nullptr) {
        ::SetActiveWindow(owner);
    }
    DestroyWindow();
    m_modalLoopRuns = false;
    m_modal = false;
    return m_nModalResult;
}

void CDialog::EndDialog(int nResult) {
    if (m_modal) {
        EndModalLoop(nResult);
    } else {
        ::EndDialog(m_hWnd, nResult);
    }
}

void CDialog::NextDlgCtrl() const {
    ::PostMessageW(m_hWnd, WM_NEXTDLGCTL, 0, 0);
}

void CDialog::PrevDlgCtrl() const {
    ::PostMessageW(m_hWnd, WM_NEXTDLGCTL, 1, 0);
}

void CDialog::GotoDlgCtrl(CWnd* pWndCtrl) {
    SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(pWndCtrl->m_hWnd), TRUE);
}

UINT CDialog::GetDefID() const {
    const LRESULT answer = SendMessage(DM_GETDEFID);
    return HIWORD(answer) == DC_HASDEFID ? LOWORD(answer) : 0;
}

void CDialog::SetDefID(UINT nID) {
    SendMessage(DM_SETDEFID, nID);
}

void CDialog::MapDialogRect(LPRECT lpRect) const {
    ::MapDialogRect(m_hWnd, lpRect);
}

BOOL CDialog::OnInitDialog() {
    return TRUE;
}

LRESULT CDialog::HandleInitDialog(WPARAM, LPARAM) {
    return OnInitDialog();
}

void CDialog::OnOK() {
    EndDialog(IDOK);
}

void CDialog::OnCancel() {
    EndDialog(IDCANCEL);
}

BOOL CDialog::CheckAutoCenter() {
    return (GetStyle() & (DS_CENTER | DS_CENTERMOUSE | DS_ABSALIGN)) == 0;
}

BOOL CDialog::PreTranslateMessage(MSG* pMsg) {
    return CWnd::PreTranslateMessage(pMsg) || PreTranslateInput(pMsg);
}

BOOL CDialog::PreTranslateInput(LPMSG lpMsg) {
    const bool key = lpMsg->message >= WM_KEYFIRST && lpMsg->message <= WM_KEYLAST;
    const bool mouse = lpMsg->message >= WM_MOUSEFIRST && lpMsg->message <= WM_MOUSELAST;
    return (key || mouse) && m_hWnd != nullptr && IsDialogMessage(lpMsg);
}

BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) {
        return TRUE;
    }
    constexpr UINT firstMenuCommand = 0x8000;
    constexpr UINT firstSystemCommand = 0xF000;
    if (nCode != CN_COMMAND || nID < firstMenuCommand || nID >= firstSystemCommand) {
        return FALSE;
    }
    CWnd* owner = GetParent();
    if (owner != nullptr && owner->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) {
        return TRUE;
    }
    CWinThread* thread = AfxGetThread();
    return thread != nullptr && thread->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}
