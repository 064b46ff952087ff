#pragma once

#include "XtpApi.h"

#include <afxwin.h>
#include <commctrl.h>

#include <memory>

/// How a tip looks.
enum XTPToolTipStyle {
    xtpToolTipStandard = 0, ///< a tight box with a frame in the text's colour
    xtpToolTipBalloon = 1,  ///< the same with round corners
    xtpToolTipOffice = 2    ///< an airy box with a soft frame between the two colours
};

/// The tool tips of a window: asks the window what lies under the mouse and shows its text in a small window of its
/// own.
///
/// The window hands every message that it sees in PreTranslateMessage to FilterToolTipMessage. On a move of the mouse
/// the context calls the window's OnToolHitTest; a result other than -1 with a text is a tool. Two answers are the same
/// tool if identifier and text are equal. The tip shows under the mouse when that has rested on a tool, and goes when
/// the mouse comes to another tool or to none, a button or a key is pressed, the wheel turns, the mouse leaves the
/// window, or time is up; after a press or when time was up the same tool shows no tip again until the mouse was
/// elsewhere.
///
/// A context belongs to the thread of its windows, and needs its message pump. It may be destroyed, also by the end of
/// the window that owns it, inside OnToolHitTest.
class ORTIN_XTP_API CXTPToolTipContext : public CCmdTarget {
public:
    CXTPToolTipContext();
    ~CXTPToolTipContext() override;

    void SetStyle(XTPToolTipStyle style);
    XTPToolTipStyle GetStyle() const;
    /// CLR_DEFAULT, the initial value, stands for the system's colour of tips. A tip that is shown changes at once.
    void SetTipBkColor(COLORREF color);
    void SetTipTextColor(COLORREF color);
    COLORREF GetTipBkColor() const;
    COLORREF GetTipTextColor() const;

    /// Milliseconds. TTDT_INITIAL: how long the mouse rests on a tool before its tip shows. TTDT_RESHOW: the same,
    /// coming from a tool whose tip was shown. TTDT_AUTOPOP: how long a tip stays. TTDT_AUTOMATIC sets all three, as t,
    /// t / 5 and t * 10; a negative time there means the double click time, and elsewhere is as 0. Other flags do
    /// nothing.
    void SetDelayTime(UINT nFlags, int nTime);
    /// 0 for flags that name none of the three.
    int GetDelayTime(UINT nFlags) const;

    virtual void FilterToolTipMessage(CWnd* pWnd, MSG* pMsg);
    /// Hides the tip as a press does.
    void HideToolTip();
    BOOL IsToolTipVisible() const;

    /// Fills what OnToolHitTest gives back: the window, the tool's rectangle in its client coordinates, identifier and
    /// text. The text in pTI is a copy made by malloc, which belongs to the caller of OnToolHitTest: it frees it with
    /// free(). FilterToolTipMessage is such a caller. For an empty text lpszText is null.
    static void FillInToolInfo(TOOLINFOW* pTI, HWND hWnd, const CRect& rect, INT_PTR nHit, const CString& strTipText);

private:
    class Hover;
    std::shared_ptr<Hover> m_hover; ///< shared with nobody, watched while the window is asked
};
