#pragma once

#include "afxcmd.h"
#include "afxmsg_.h"
#include "atlstr.h"
#include "atltypes.h"

#include <commctrl.h>

class CDC;
class CFont;
class CMenu;
class CRgn;
class CScrollBar;

/// What a frame gives to the views that it makes; only passed on here.
struct CCreateContext;

/// A window as an object. The object is not the window: it holds its handle from creation or Attach until the window
/// is destroyed or Detach, and lives as long as its owner wants. When the window goes first, m_hWnd is null from then
/// on; when the object goes first, its destructor destroys the window.
///
/// Handles belong to threads: an object stands for its window only in the thread that created or attached it.
/// Coordinates are pixels: of the client area, or of the screen where the name or the comment says so.
/// The operations that only hand their arguments to the system's function of that name keep its contract. Without a
/// window they fail or do nothing, also where the system takes a null handle for the desktop, the screen or the thread.
class ORTIN_MFC_API CWnd : public CCmdTarget {
    DECLARE_DYNCREATE(CWnd)
public:
    HWND m_hWnd = nullptr;

    CWnd();
    ~CWnd() override;

    static const CWnd wndTop; ///< the places of SetWindowPos
    static const CWnd wndBottom;
    static const CWnd wndTopMost;
    static const CWnd wndNoTopMost;

    // Handles and objects

    /// The object of the handle; if there is none, a temporary one that lives until the thread is idle. Null for null.
    static CWnd* FromHandle(HWND hWnd);
    /// The object that was created with the window or attached to it, in this thread; else null.
    static CWnd* FromHandlePermanent(HWND hWnd);
    /// Frees the temporary objects of the thread.
    static void DeleteTempMap();

    HWND GetSafeHwnd() const { return m_hWnd; }
    operator HWND() const { return m_hWnd; }
    BOOL operator==(const CWnd& wnd) const;

    /// Ties object and window without taking over its messages; false for a null handle. The object must have none.
    BOOL Attach(HWND hWndNew);
    /// Unties them and gives back the handle, which the caller owns from now on.
    HWND Detach();
    /// Attach, and let the messages run through this object's map; what it leaves goes to the old procedure.
    BOOL SubclassWindow(HWND hWnd);
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    /// Puts the old procedure back and gives back the handle.
    HWND UnsubclassWindow();
    virtual void PreSubclassWindow();

    // Creation and end

    /// A null class name takes the framework's own window class: double clicks, redraw on resize, no background.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd, UINT nID, CCreateContext* pContext = nullptr);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x, int y,
                          int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam = nullptr);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                          const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam = nullptr);
    /// Last word on the creation; false abandons it.
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    virtual BOOL DestroyWindow();

    // Text, identifiers and styles

    void SetWindowText(LPCTSTR lpszString);
    int GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const;
    void GetWindowText(CString& rString) const;
    int GetWindowTextLength() const;
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE);
    CFont* GetFont() const;
    int GetDlgCtrlID() const;
    int SetDlgCtrlID(int nID);
    DWORD GetStyle() const;
    DWORD GetExStyle() const;
    /// True if the style changed. nFlags other than 0 calls SetWindowPos with them, and keeps place, size and order.
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    BOOL ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    HICON SetIcon(HICON hIcon, BOOL bBigIcon);
    HICON GetIcon(BOOL bBigIcon) const;

    // Place and size

    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE);
    void MoveWindow(LPCRECT lpRect, BOOL bRepaint = TRUE);
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    void BringWindowToTop();
    void GetWindowRect(LPRECT lpRect) const; ///< screen
    void GetClientRect(LPRECT lpRect) const;
    BOOL GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const;
    BOOL SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl);
    int SetWindowRgn(HRGN hRgn, BOOL bRedraw);
    void ClientToScreen(LPPOINT lpPoint) const;
    void ClientToScreen(LPRECT lpRect) const;
    void ScreenToClient(LPPOINT lpPoint) const;
    void ScreenToClient(LPRECT lpRect) const;
    void MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const;
    void MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const;
    /// In the middle of pAlternateOwner, the owner or the screen, and inside the work area.
    void CenterWindow(CWnd* pAlternateOwner = nullptr);
    static BOOL CalcWindowRect(LPRECT lpClientRect, DWORD dwStyle, DWORD dwExStyle = 0, BOOL bMenu = FALSE);

    // Painting

    void Invalidate(BOOL bErase = TRUE);
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE);
    void InvalidateRgn(CRgn* pRgn, BOOL bErase = TRUE);
    void ValidateRect(LPCRECT lpRect);
    BOOL GetUpdateRect(LPRECT lpRect, BOOL bErase = FALSE);
    int GetUpdateRgn(CRgn* pRgn, BOOL bErase = FALSE);
    void UpdateWindow();
    BOOL RedrawWindow(LPCRECT lpRectUpdate = nullptr, CRgn* prgnUpdate = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    BOOL LockWindowUpdate();
    void UnlockWindowUpdate();
    void SetRedraw(BOOL bRedraw = TRUE);
    CDC* GetDC();
    CDC* GetDCEx(CRgn* prgnClip, DWORD flags);
    CDC* GetWindowDC();
    int ReleaseDC(CDC* pDC);
    CDC* BeginPaint(LPPAINTSTRUCT lpPaint);
    void EndPaint(LPPAINTSTRUCT lpPaint);
    void Print(CDC* pDC, DWORD dwFlags) const;
    void PrintClient(CDC* pDC, DWORD dwFlags) const;

    // Scroll bars; nBar is SB_HORZ or SB_VERT

    /// A control that stands for a scroll bar of the window; none unless a derived class says so.
    virtual CScrollBar* GetScrollBarCtrl(int nBar) const;
    int GetScrollPos(int nBar) const;
    int SetScrollPos(int nBar, int nPos, BOOL bRedraw = TRUE);
    void GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const;
    void SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw = TRUE);
    /// cbSize is set here; in GetScrollInfo nMask says what to fetch.
    BOOL GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    BOOL SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    /// The greatest position that the thumb can reach: one page before the end.
    int GetScrollLimit(int nBar);
    void ShowScrollBar(UINT nBar, BOOL bShow = TRUE);
    BOOL EnableScrollBar(int nSBFlags, UINT nArrowFlags = ESB_ENABLE_BOTH);
    void EnableScrollBarCtrl(int nBar, BOOL bEnable = TRUE);
    void ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect = nullptr, LPCRECT lpClipRect = nullptr);
    int ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate, LPRECT lpRectUpdate,
                       UINT flags);

    // State, focus, capture, timers

    BOOL ShowWindow(int nCmdShow);
    BOOL IsWindowVisible() const;
    BOOL EnableWindow(BOOL bEnable = TRUE);
    BOOL IsWindowEnabled() const;
    BOOL IsIconic() const;
    BOOL IsZoomed() const;
    CWnd* SetFocus();
    static CWnd* GetFocus();
    CWnd* SetCapture();
    static CWnd* GetCapture();
    CWnd* SetActiveWindow();
    static CWnd* GetActiveWindow();
    BOOL SetForegroundWindow();
    static CWnd* GetForegroundWindow();
    /// Milliseconds; the identifier, or 0. A null function makes the timer come as WM_TIMER.
    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse, TIMERPROC lpfnTimer = nullptr);
    BOOL KillTimer(UINT_PTR nIDEvent);

    // Relatives

    CWnd* GetParent() const;
    CWnd* SetParent(CWnd* pWndNewParent);
    CWnd* GetAncestor(UINT gaFlags) const;
    /// The owner set with SetOwner, else the parent.
    CWnd* GetOwner() const;
    void SetOwner(CWnd* pOwnerWnd);
    CWnd* GetTopLevelParent() const;
    CWnd* GetLastActivePopup() const;
    BOOL IsChild(const CWnd* pWnd) const;
    CWnd* GetWindow(UINT nCmd) const;
    CWnd* GetTopWindow() const;
    static CWnd* GetDesktopWindow();
    static CWnd* FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName);
    static CWnd* WindowFromPoint(POINT point); ///< screen
    CWnd* ChildWindowFromPoint(POINT point) const;
    CWnd* ChildWindowFromPoint(POINT point, UINT nFlags) const;
    CWnd* GetDescendantWindow(int nID, BOOL bOnlyPerm = FALSE) const;

    // Dialog items

    CWnd* GetDlgItem(int nID) const;
    void GetDlgItem(int nID, HWND* phWnd) const;
    int GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const;
    int GetDlgItemText(int nID, CString& rString) const;
    void SetDlgItemText(int nID, LPCTSTR lpszString);
    UINT GetDlgItemInt(int nID, BOOL* lpTrans = nullptr, BOOL bSigned = TRUE) const;
    void SetDlgItemInt(int nID, UINT nValue, BOOL bSigned = TRUE);
    void CheckDlgButton(int nIDButton, UINT nCheck);
    UINT IsDlgButtonChecked(int nIDButton) const;
    LRESULT SendDlgItemMessage(int nID, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    CWnd* GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;
    BOOL IsDialogMessage(LPMSG lpMsg);

    // Menus

    CMenu* GetMenu() const;
    BOOL SetMenu(CMenu* pMenu);
    CMenu* GetSystemMenu(BOOL bRevert) const;
    void DrawMenuBar();

    // Messages

    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    BOOL SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam);
    int MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption = nullptr, UINT nType = MB_OK);
    /// The message that the running handler of this thread is for.
    static const MSG* GetCurrentMessage();

    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    /// Sees a posted message before it is dispatched; true eats it.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// Offers the message to the objects from its window upward, as far as hWndStop.
    static BOOL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);
    /// Fills pTI for the tool at a point and gives its identifier; -1 for none.
    virtual INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const;
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);

    /// The current message as a child's notification, offered to the child; false if it has no handler.
    BOOL SendChildNotifyLastMsg(LRESULT* pResult = nullptr);
    static BOOL ReflectLastMsg(HWND hWndChild, LRESULT* pResult = nullptr);

    // Modal loops

    /// Pumps messages until EndModalLoop; gives its argument. nFlags: MLF_ values.
    int RunModalLoop(DWORD dwFlags = 0);
    virtual BOOL ContinueModal();
    virtual void EndModalLoop(int nResult);

protected:
    /// Runs the current message through the original procedure and gives its result.
    LRESULT Default();
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// The window is gone; the place where an object made with new deletes itself.
    virtual void PostNcDestroy();
    /// True lets a dialog that did not say where be moved over its owner.
    virtual BOOL CheckAutoCenter();
    BOOL CreateDlg(LPCTSTR lpszTemplateName, CWnd* pParentWnd);
    BOOL CreateDlgIndirect(LPCDLGTEMPLATE lpDialogTemplate, CWnd* pParentWnd, HINSTANCE hInst);

    int m_nModalResult = 0;
    bool m_modalLoopRuns = false;

    // Answers to messages: each lets the original procedure have the message, those for what controls ask of their
    // parent after offering it to the control.

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnClose();
    afx_msg void OnDestroy();
    afx_msg void OnNcDestroy();
    afx_msg BOOL OnQueryEndSession();
    afx_msg void OnEndSession(BOOL bEnding);

    afx_msg void OnPaint();
    afx_msg void OnNcPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnSysColorChange();
    afx_msg LRESULT OnThemeChanged();
    afx_msg void OnSettingChange(UINT uFlags, LPCTSTR lpszSection);

    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnSizing(UINT nSide, LPRECT lpRect);
    afx_msg void OnMove(int x, int y);
    afx_msg void OnMoving(UINT nSide, LPRECT lpRect);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI);
    afx_msg void OnWindowPosChanging(WINDOWPOS* lpwndpos);
    afx_msg void OnWindowPosChanged(WINDOWPOS* lpwndpos);
    afx_msg void OnNcCalcSize(BOOL bCalcValidRects, NCCALCSIZE_PARAMS* lpncsp);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnShowWindow(BOOL bShow, UINT nStatus);
    afx_msg void OnStyleChanged(int nStyleType, LPSTYLESTRUCT lpStyleStruct);

    afx_msg void OnEnable(BOOL bEnable);
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    afx_msg void OnActivateApp(BOOL bActive, DWORD dwThreadID);
    afx_msg BOOL OnNcActivate(BOOL bActive);
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg void OnCancelMode();
    afx_msg void OnTimer(UINT_PTR nIDEvent);

    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);

    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnMouseHover(UINT nFlags, CPoint point);
    afx_msg void OnMouseLeave();
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnMouseHWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnRButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnRButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnMButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnMButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnMButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnNcMouseMove(UINT nHitTest, CPoint point);
    afx_msg void OnNcLButtonDown(UINT nHitTest, CPoint point);
    afx_msg void OnNcLButtonUp(UINT nHitTest, CPoint point);
    afx_msg void OnNcLButtonDblClk(UINT nHitTest, CPoint point);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pos);

    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnSysChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg UINT OnGetDlgCode();

    afx_msg void OnSysCommand(UINT nID, LPARAM lParam);
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu);
    afx_msg void OnMenuSelect(UINT nItemID, UINT nFlags, HMENU hSysMenu);

    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    afx_msg int OnCompareItem(int nIDCtl, LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    afx_msg void OnDeleteItem(int nIDCtl, LPDELETEITEMSTRUCT lpDeleteItemStruct);
    afx_msg void OnParentNotify(UINT message, LPARAM lParam);

    DECLARE_MESSAGE_MAP()

private:
    friend class WindowDispatch;
    explicit CWnd(HWND place);
    /// The window goes: it is its thread's main or active window no more, and its modal loop ends.
    void leaveThread();
    void stopModalLoop();

    WNDPROC m_pfnSuper = nullptr;
    HWND m_hWndOwner = nullptr;
};

/// Flags of RunModalLoop.
inline constexpr DWORD MLF_NOIDLEMSG = 0x0001;  ///< don't send WM_ENTERIDLE to the parent
inline constexpr DWORD MLF_NOKICKIDLE = 0x0002; ///< don't send WM_KICKIDLE to the window
inline constexpr DWORD MLF_SHOWONIDLE = 0x0004; ///< show the window when the queue is empty

/// Sent to a window with a modal loop when its thread is idle; wParam MSGF_DIALOGBOX, lParam the idle count; a result
/// other than 0 asks for another.
inline constexpr UINT WM_KICKIDLE = 0x036A;

/// A window class of the program with these properties; the same properties give the same name.
ORTIN_MFC_API LPCTSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor = nullptr, HBRUSH hbrBackground = nullptr,
                                          HICON hIcon = nullptr);
/// Registers a window class, if it isn't yet.
ORTIN_MFC_API BOOL AfxRegisterClass(WNDCLASS* lpWndClass);
ORTIN_MFC_API LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam);
