#include "afxdialogex.h"

IMPLEMENT_DYNAMIC(CDialogEx, CDialog)

BEGIN_MESSAGE_MAP(CDialogEx, CDialog)
    ON_WM_ERASEBKGND()
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

CDialogEx::CDialogEx() = default;

CDialogEx::CDialogEx(UINT nIDTemplate, CWnd* pParentWnd) : CDialog(nIDTemplate, pParentWnd) {}

CDialogEx::CDialogEx(LPCTSTR lpszTemplateName, CWnd* pParentWnd) : CDialog(lpszTemplateName, pParentWnd) {}

void CDialogEx::SetBackgroundColor(COLORREF color, BOOL bRepaint) {
    m_background.DeleteObject();
    if (color != CLR_INVALID) {
        m_background.CreateSolidBrush(color);
    }
    if (bRepaint && m_hWnd != nullptr) {
        Invalidate();
        UpdateWindow();
    }
}

BOOL CDialogEx::OnEraseBkgnd(CDC* pDC) {
    if (m_background.GetSafeHandle() == nullptr) {
        return CDialog::OnEraseBkgnd(pDC);
    }
    CRect client;
    GetClientRect(&client);
    pDC->FillRect(&client, &m_background);
    return TRUE;
}

HBRUSH CDialogEx::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor) {
    if (m_background.GetSafeHandle() != nullptr && nCtlColor == CTLCOLOR_STATIC) {
        pDC->SetBkMode(TRANSPARENT);
        return static_cast<HBRUSH>(m_background.GetSafeHandle());
    }
    return CDialog::OnCtlColor(pDC, pWnd, nCtlColor);
}
