#pragma once

#include "afxwin_wnd.h"

/// A window made from a dialog template, modal or not. The default button, the Tab key and the arrows work as the
/// system's dialog manager lets them.
class ORTIN_MFC_API CDialog : public CWnd {
    DECLARE_DYNAMIC(CDialog)
public:
    /// For dialogs that are made with Create, CreateIndirect or InitModalIndirect.
    CDialog();
    /// A modal dialog; the template is looked for with AfxFindResourceHandle at DoModal. Without a parent the main
    /// window is the owner.
    explicit CDialog(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    explicit CDialog(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);

    using CWnd::Create;
    /// Modeless. False if there is no such template or a window of it can't be made.
    virtual BOOL Create(LPCTSTR lpszTemplateName, CWnd* pParentWnd = nullptr);
    virtual BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr);
    virtual BOOL CreateIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr);
    /// A modal dialog from a template in memory, which has to live until DoModal returns.
    BOOL InitModalIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd = nullptr);

    /// Runs the dialog with its owner disabled; what EndDialog was given, or -1 if it can't be made.
    virtual INT_PTR DoModal();
    /// Ends a modal dialog; a modeless one is only hidden.
    void EndDialog(int nResult);

    void NextDlgCtrl() const;
    void PrevDlgCtrl() const;
    void GotoDlgCtrl(CWnd* pWndCtrl);
    UINT GetDefID() const;
    void SetDefID(UINT nID);
    /// Dialog units to pixels.
    void MapDialogRect(LPRECT lpRect) const;

    /// False if the handler gave the focus to a control itself.
    virtual BOOL OnInitDialog();
    BOOL PreTranslateMessage(MSG* pMsg) override;
    /// Commands of menus go on to the owner and to the thread.
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    virtual void OnOK();
    virtual void OnCancel();
    BOOL CheckAutoCenter() override;
    BOOL PreTranslateInput(LPMSG lpMsg);
    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    LPCTSTR m_lpszTemplateName = nullptr;
    LPCDLGTEMPLATE m_lpDialogTemplate = nullptr;
    CWnd* m_pParentWnd = nullptr;
    bool m_modal = false;
};
