#pragma once

#include "XtpApi.h"

#include <afxwin.h>

/// The status window of a print job: a modeless dialog, made hidden in the constructor, with the items 201 (document),
/// 202 (printer), 203 (port) and 204 (page), whose texts are the caller's, and a Cancel button.
///
/// Cancel, Escape and the close button tell _XTPAbortProc, and the window says that the job is being cancelled. Of
/// several windows in a thread the one made last, as long as it lives, is the one that is asked; windows end in reverse
/// order of making.
class ORTIN_XTP_API CXTPPrintingDialog : public CDialog {
public:
    /// Without a parent the main window is the owner. Whether there is a window tells m_hWnd.
    explicit CXTPPrintingDialog(CWnd* pParent);
    ~CXTPPrintingDialog() override;

    bool IsCancelled() const { return m_isCancelled; }

protected:
    void OnOK() override;
    void OnCancel() override;

private:
    CXTPPrintingDialog* m_outer; ///< the status window of the job that this one was started from
    bool m_isCancelled = false;
};

/// The abort procedure of a job with a CXTPPrintingDialog: runs the messages that wait for this thread, for a moment
/// only, so that a busy queue does not hold up the job. 0 once the user has cancelled, or when the thread is to end;
/// else 1.
ORTIN_XTP_API int CALLBACK _XTPAbortProc(HDC hDC, int nCode);
