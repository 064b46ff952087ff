#include "XTPPrintingDialog.h"

#include "XtpResources.h"

namespace {

constexpr ULONGLONG S_longestPump = 50; // milliseconds

thread_local CXTPPrintingDialog* S_innermost = nullptr;

/// The module that this code, and so the dialog's template, is in.
HINSTANCE toolkitModule() {
    HMODULE module = nullptr;
    ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         reinterpret_cast<LPCWSTR>(&_XTPAbortProc), &module);
    return module;
}

bool isCancelled() {
    return S_innermost != nullptr && S_innermost->IsCancelled();
}

} // namespace

CXTPPrintingDialog::CXTPPrintingDialog(CWnd* pParent) : m_outer(S_innermost) {
    S_innermost = this;
    HINSTANCE module = toolkitModule();
    HRSRC resource = ::FindResourceW(module, MAKEINTRESOURCEW(XTP_IDD_PRINTING), RT_DIALOG);
    HGLOBAL loaded = resource != nullptr ? ::LoadResource(module, resource) : nullptr;
    if (loaded != nullptr) {
        CreateDlgIndirect(static_cast<LPCDLGTEMPLATE>(::LockResource(loaded)),
                          pParent != nullptr ? pParent : AfxGetMainWnd(), module);
    }
}

CXTPPrintingDialog::~CXTPPrintingDialog() {
    S_innermost = m_outer;
}

void CXTPPrintingDialog::OnOK() {
    // Nothing here can be agreed to, and the window stays.
}

void CXTPPrintingDialog::OnCancel() {
    m_isCancelled = true;
    SetDlgItemText(XTP_IDC_PRINT_PAGE, L"Anulowanie drukowania\x2026");
    GetDlgItem(IDCANCEL)->EnableWindow(FALSE);
}

int CALLBACK _XTPAbortProc(HDC, int) {
    const ULONGLONG end = ::GetTickCount64() + S_longestPump;
    MSG waiting{};
    while (!isCancelled() && ::PeekMessageW(&waiting, nullptr, 0, 0, PM_NOREMOVE)) {
        if (!AfxPumpMessage()) {
            // The loop outside has to see that the thread is to end.
            AfxPostQuitMessage(static_cast<int>(waiting.wParam));
            return 0;
        }
        if (::GetTickCount64() >= end) {
            break;
        }
    }
    return isCancelled() ? 0 : 1;
}
