#pragma once

#include "afxwin.h"

/// A dialog with a background colour of its own, also behind its labels.
class ORTIN_MFC_API CDialogEx : public CDialog {
    DECLARE_DYNAMIC(CDialogEx)
public:
    CDialogEx();
    explicit CDialogEx(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    explicit CDialogEx(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);

    /// (COLORREF)-1 takes the system's again.
    void SetBackgroundColor(COLORREF color, BOOL bRepaint = TRUE);

protected:
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);

    DECLARE_MESSAGE_MAP()

private:
    CBrush m_background;
};
