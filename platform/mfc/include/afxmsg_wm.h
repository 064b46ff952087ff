#pragma once

// The typed entries of system messages; included by afxmsg_.h. The name of a handler follows from that of the message.

// Life of a window

#define ON_WM_CREATE() AFX_ON_WM(WM_CREATE, int, OnCreate, (LPCREATESTRUCT), AfxPointerOf<CREATESTRUCT>(AFX_L))
#define ON_WM_NCCREATE() AFX_ON_WM(WM_NCCREATE, BOOL, OnNcCreate, (LPCREATESTRUCT), AfxPointerOf<CREATESTRUCT>(AFX_L))
#define ON_WM_CLOSE() AFX_ON_WM(WM_CLOSE, void, OnClose, ())
#define ON_WM_DESTROY() AFX_ON_WM(WM_DESTROY, void, OnDestroy, ())
#define ON_WM_NCDESTROY() AFX_ON_WM(WM_NCDESTROY, void, OnNcDestroy, ())
#define ON_WM_QUERYENDSESSION() AFX_ON_WM(WM_QUERYENDSESSION, BOOL, OnQueryEndSession, ())
#define ON_WM_ENDSESSION() AFX_ON_WM(WM_ENDSESSION, void, OnEndSession, (BOOL), AFX_W != 0)

// Painting

#define ON_WM_PAINT() AFX_ON_WM(WM_PAINT, void, OnPaint, ())
#define ON_WM_NCPAINT() AFX_ON_WM(WM_NCPAINT, void, OnNcPaint, ())
#define ON_WM_ERASEBKGND() AFX_ON_WM(WM_ERASEBKGND, BOOL, OnEraseBkgnd, (CDC*), AfxDeviceOf(AFX_W))
#define ON_WM_CTLCOLOR()                                                                                               \
    AFX_ON_WM(WM_CTLCOLOR, HBRUSH, OnCtlColor, (CDC*, CWnd*, UINT),                                                    \
              AfxDeviceOf(reinterpret_cast<WPARAM>(AfxPointerOf<AFX_CTLCOLOR>(AFX_L)->hDC)),                           \
              AfxWndOf(reinterpret_cast<WPARAM>(AfxPointerOf<AFX_CTLCOLOR>(AFX_L)->hWnd)),                             \
              AfxPointerOf<AFX_CTLCOLOR>(AFX_L)->nCtlType)
#define ON_WM_SYSCOLORCHANGE() AFX_ON_WM(WM_SYSCOLORCHANGE, void, OnSysColorChange, ())
#define ON_WM_THEMECHANGED() AFX_ON_WM(WM_THEMECHANGED, LRESULT, OnThemeChanged, ())
#define ON_WM_SETTINGCHANGE()                                                                                          \
    AFX_ON_WM(WM_SETTINGCHANGE, void, OnSettingChange, (UINT, LPCTSTR), static_cast<UINT>(AFX_W),                      \
              AfxPointerOf<const TCHAR>(AFX_L))

// Place and size

#define ON_WM_SIZE()                                                                                                   \
    AFX_ON_WM(WM_SIZE, void, OnSize, (UINT, int, int), static_cast<UINT>(AFX_W), LOWORD(AFX_L), HIWORD(AFX_L))
#define ON_WM_SIZING()                                                                                                 \
    AFX_ON_WM(WM_SIZING, void, OnSizing, (UINT, LPRECT), static_cast<UINT>(AFX_W), AfxPointerOf<RECT>(AFX_L))
#define ON_WM_MOVE() AFX_ON_WM(WM_MOVE, void, OnMove, (int, int), AfxPointOf(AFX_L).x, AfxPointOf(AFX_L).y)
#define ON_WM_MOVING()                                                                                                 \
    AFX_ON_WM(WM_MOVING, void, OnMoving, (UINT, LPRECT), static_cast<UINT>(AFX_W), AfxPointerOf<RECT>(AFX_L))
#define ON_WM_GETMINMAXINFO()                                                                                          \
    AFX_ON_WM(WM_GETMINMAXINFO, void, OnGetMinMaxInfo, (MINMAXINFO*), AfxPointerOf<MINMAXINFO>(AFX_L))
#define ON_WM_WINDOWPOSCHANGING()                                                                                      \
    AFX_ON_WM(WM_WINDOWPOSCHANGING, void, OnWindowPosChanging, (WINDOWPOS*), AfxPointerOf<WINDOWPOS>(AFX_L))
#define ON_WM_WINDOWPOSCHANGED()                                                                                       \
    AFX_ON_WM(WM_WINDOWPOSCHANGED, void, OnWindowPosChanged, (WINDOWPOS*), AfxPointerOf<WINDOWPOS>(AFX_L))
#define ON_WM_NCCALCSIZE()                                                                                             \
    AFX_ON_WM(WM_NCCALCSIZE, void, OnNcCalcSize, (BOOL, NCCALCSIZE_PARAMS*), AFX_W != 0,                               \
              AfxPointerOf<NCCALCSIZE_PARAMS>(AFX_L))
#define ON_WM_NCHITTEST() AFX_ON_WM(WM_NCHITTEST, LRESULT, OnNcHitTest, (CPoint), AfxPointOf(AFX_L))
#define ON_WM_SHOWWINDOW()                                                                                             \
    AFX_ON_WM(WM_SHOWWINDOW, void, OnShowWindow, (BOOL, UINT), AFX_W != 0, static_cast<UINT>(AFX_L))
#define ON_WM_STYLECHANGED()                                                                                           \
    AFX_ON_WM(WM_STYLECHANGED, void, OnStyleChanged, (int, LPSTYLESTRUCT), static_cast<int>(AFX_W),                    \
              AfxPointerOf<STYLESTRUCT>(AFX_L))

// State and focus

#define ON_WM_ENABLE() AFX_ON_WM(WM_ENABLE, void, OnEnable, (BOOL), AFX_W != 0)
#define ON_WM_ACTIVATE()                                                                                               \
    AFX_ON_WM(WM_ACTIVATE, void, OnActivate, (UINT, CWnd*, BOOL), LOWORD(AFX_W), AfxWndOf(static_cast<WPARAM>(AFX_L)), \
              HIWORD(AFX_W) != 0)
#define ON_WM_ACTIVATEAPP()                                                                                            \
    AFX_ON_WM(WM_ACTIVATEAPP, void, OnActivateApp, (BOOL, DWORD), AFX_W != 0, static_cast<DWORD>(AFX_L))
#define ON_WM_NCACTIVATE() AFX_ON_WM(WM_NCACTIVATE, BOOL, OnNcActivate, (BOOL), AFX_W != 0)
#define ON_WM_MOUSEACTIVATE()                                                                                          \
    AFX_ON_WM(WM_MOUSEACTIVATE, int, OnMouseActivate, (CWnd*, UINT, UINT), AfxWndOf(AFX_W), LOWORD(AFX_L),             \
              HIWORD(AFX_L))
#define ON_WM_SETFOCUS() AFX_ON_WM(WM_SETFOCUS, void, OnSetFocus, (CWnd*), AfxWndOf(AFX_W))
#define ON_WM_KILLFOCUS() AFX_ON_WM(WM_KILLFOCUS, void, OnKillFocus, (CWnd*), AfxWndOf(AFX_W))
#define ON_WM_CAPTURECHANGED()                                                                                         \
    AFX_ON_WM(WM_CAPTURECHANGED, void, OnCaptureChanged, (CWnd*), AfxWndOf(static_cast<WPARAM>(AFX_L)))
#define ON_WM_CANCELMODE() AFX_ON_WM(WM_CANCELMODE, void, OnCancelMode, ())
#define ON_WM_TIMER() AFX_ON_WM(WM_TIMER, void, OnTimer, (UINT_PTR), AFX_W)

// Scroll bars

#define AFX_ON_WM_SCROLL(message, handler)                                                                             \
    AFX_ON_WM(message, void, handler, (UINT, UINT, CScrollBar*), LOWORD(AFX_W), HIWORD(AFX_W), AfxScrollBarOf(AFX_L))
#define ON_WM_HSCROLL() AFX_ON_WM_SCROLL(WM_HSCROLL, OnHScroll)
#define ON_WM_VSCROLL() AFX_ON_WM_SCROLL(WM_VSCROLL, OnVScroll)

// Mouse

#define AFX_ON_WM_MOUSE(message, handler)                                                                              \
    AFX_ON_WM(message, void, handler, (UINT, CPoint), static_cast<UINT>(AFX_W), AfxPointOf(AFX_L))
#define AFX_ON_WM_WHEEL(message, resultType, handler)                                                                  \
    AFX_ON_WM(message, resultType, handler, (UINT, short, CPoint), LOWORD(AFX_W), static_cast<short>(HIWORD(AFX_W)),   \
              AfxPointOf(AFX_L))
#define ON_WM_MOUSEMOVE() AFX_ON_WM_MOUSE(WM_MOUSEMOVE, OnMouseMove)
#define ON_WM_MOUSEHOVER() AFX_ON_WM_MOUSE(WM_MOUSEHOVER, OnMouseHover)
#define ON_WM_MOUSELEAVE() AFX_ON_WM(WM_MOUSELEAVE, void, OnMouseLeave, ())
#define ON_WM_MOUSEWHEEL() AFX_ON_WM_WHEEL(WM_MOUSEWHEEL, BOOL, OnMouseWheel)
#define ON_WM_MOUSEHWHEEL() AFX_ON_WM_WHEEL(WM_MOUSEHWHEEL, void, OnMouseHWheel)
#define ON_WM_LBUTTONDOWN() AFX_ON_WM_MOUSE(WM_LBUTTONDOWN, OnLButtonDown)
#define ON_WM_LBUTTONUP() AFX_ON_WM_MOUSE(WM_LBUTTONUP, OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK() AFX_ON_WM_MOUSE(WM_LBUTTONDBLCLK, OnLButtonDblClk)
#define ON_WM_RBUTTONDOWN() AFX_ON_WM_MOUSE(WM_RBUTTONDOWN, OnRButtonDown)
#define ON_WM_RBUTTONUP() AFX_ON_WM_MOUSE(WM_RBUTTONUP, OnRButtonUp)
#define ON_WM_RBUTTONDBLCLK() AFX_ON_WM_MOUSE(WM_RBUTTONDBLCLK, OnRButtonDblClk)
#define ON_WM_MBUTTONDOWN() AFX_ON_WM_MOUSE(WM_MBUTTONDOWN, OnMButtonDown)
#define ON_WM_MBUTTONUP() AFX_ON_WM_MOUSE(WM_MBUTTONUP, OnMButtonUp)
#define ON_WM_MBUTTONDBLCLK() AFX_ON_WM_MOUSE(WM_MBUTTONDBLCLK, OnMButtonDblClk)
#define ON_WM_NCMOUSEMOVE() AFX_ON_WM_MOUSE(WM_NCMOUSEMOVE, OnNcMouseMove)
#define ON_WM_NCLBUTTONDOWN() AFX_ON_WM_MOUSE(WM_NCLBUTTONDOWN, OnNcLButtonDown)
#define ON_WM_NCLBUTTONUP() AFX_ON_WM_MOUSE(WM_NCLBUTTONUP, OnNcLButtonUp)
#define ON_WM_NCLBUTTONDBLCLK() AFX_ON_WM_MOUSE(WM_NCLBUTTONDBLCLK, OnNcLButtonDblClk)
#define ON_WM_SETCURSOR()                                                                                              \
    AFX_ON_WM(WM_SETCURSOR, BOOL, OnSetCursor, (CWnd*, UINT, UINT), AfxWndOf(AFX_W), LOWORD(AFX_L), HIWORD(AFX_L))
#define ON_WM_CONTEXTMENU()                                                                                            \
    AFX_ON_WM(WM_CONTEXTMENU, void, OnContextMenu, (CWnd*, CPoint), AfxWndOf(AFX_W), AfxPointOf(AFX_L))

// Keyboard

#define AFX_ON_WM_KEY(message, handler)                                                                                \
    AFX_ON_WM(message, void, handler, (UINT, UINT, UINT), static_cast<UINT>(AFX_W), LOWORD(AFX_L), HIWORD(AFX_L))
#define ON_WM_KEYDOWN() AFX_ON_WM_KEY(WM_KEYDOWN, OnKeyDown)
#define ON_WM_KEYUP() AFX_ON_WM_KEY(WM_KEYUP, OnKeyUp)
#define ON_WM_CHAR() AFX_ON_WM_KEY(WM_CHAR, OnChar)
#define ON_WM_SYSKEYDOWN() AFX_ON_WM_KEY(WM_SYSKEYDOWN, OnSysKeyDown)
#define ON_WM_SYSKEYUP() AFX_ON_WM_KEY(WM_SYSKEYUP, OnSysKeyUp)
#define ON_WM_SYSCHAR() AFX_ON_WM_KEY(WM_SYSCHAR, OnSysChar)
#define ON_WM_GETDLGCODE() AFX_ON_WM(WM_GETDLGCODE, UINT, OnGetDlgCode, ())

// Menus and system commands

#define ON_WM_SYSCOMMAND() AFX_ON_WM(WM_SYSCOMMAND, void, OnSysCommand, (UINT, LPARAM), static_cast<UINT>(AFX_W), AFX_L)
#define ON_WM_INITMENUPOPUP()                                                                                          \
    AFX_ON_WM(WM_INITMENUPOPUP, void, OnInitMenuPopup, (CMenu*, UINT, BOOL), AfxMenuOf(AFX_W), LOWORD(AFX_L),          \
              HIWORD(AFX_L) != 0)
#define ON_WM_MENUSELECT()                                                                                             \
    AFX_ON_WM(WM_MENUSELECT, void, OnMenuSelect, (UINT, UINT, HMENU), LOWORD(AFX_W), HIWORD(AFX_W),                    \
              AfxPointerOf<HMENU__>(AFX_L))

// What controls ask of their parent

#define ON_WM_DRAWITEM()                                                                                               \
    AFX_ON_WM(WM_DRAWITEM, void, OnDrawItem, (int, LPDRAWITEMSTRUCT), static_cast<int>(AFX_W),                         \
              AfxPointerOf<DRAWITEMSTRUCT>(AFX_L))
#define ON_WM_MEASUREITEM()                                                                                            \
    AFX_ON_WM(WM_MEASUREITEM, void, OnMeasureItem, (int, LPMEASUREITEMSTRUCT), static_cast<int>(AFX_W),                \
              AfxPointerOf<MEASUREITEMSTRUCT>(AFX_L))
#define ON_WM_COMPAREITEM()                                                                                            \
    AFX_ON_WM(WM_COMPAREITEM, int, OnCompareItem, (int, LPCOMPAREITEMSTRUCT), static_cast<int>(AFX_W),                 \
              AfxPointerOf<COMPAREITEMSTRUCT>(AFX_L))
#define ON_WM_DELETEITEM()                                                                                             \
    AFX_ON_WM(WM_DELETEITEM, void, OnDeleteItem, (int, LPDELETEITEMSTRUCT), static_cast<int>(AFX_W),                   \
              AfxPointerOf<DELETEITEMSTRUCT>(AFX_L))
#define ON_WM_PARENTNOTIFY() AFX_ON_WM(WM_PARENTNOTIFY, void, OnParentNotify, (UINT, LPARAM), LOWORD(AFX_W), AFX_L)

// The same, given back to the control

#define ON_WM_CTLCOLOR_REFLECT()                                                                                       \
    AFX_ON_WM_OR_DECLINE(WM_CTLCOLOR + WM_REFLECT_BASE, HBRUSH, CtlColor, (CDC*, UINT),                                \
                         AfxDeviceOf(reinterpret_cast<WPARAM>(AfxPointerOf<AFX_CTLCOLOR>(AFX_L)->hDC)),                \
                         AfxPointerOf<AFX_CTLCOLOR>(AFX_L)->nCtlType)
#define ON_WM_DRAWITEM_REFLECT()                                                                                       \
    AFX_ON_WM(WM_DRAWITEM + WM_REFLECT_BASE, void, DrawItem, (LPDRAWITEMSTRUCT), AfxPointerOf<DRAWITEMSTRUCT>(AFX_L))
#define ON_WM_MEASUREITEM_REFLECT()                                                                                    \
    AFX_ON_WM(WM_MEASUREITEM + WM_REFLECT_BASE, void, MeasureItem, (LPMEASUREITEMSTRUCT),                              \
              AfxPointerOf<MEASUREITEMSTRUCT>(AFX_L))
#define ON_WM_DELETEITEM_REFLECT()                                                                                     \
    AFX_ON_WM(WM_DELETEITEM + WM_REFLECT_BASE, void, DeleteItem, (LPDELETEITEMSTRUCT),                                 \
              AfxPointerOf<DELETEITEMSTRUCT>(AFX_L))
#define ON_WM_COMPAREITEM_REFLECT()                                                                                    \
    AFX_ON_WM(WM_COMPAREITEM + WM_REFLECT_BASE, int, CompareItem, (LPCOMPAREITEMSTRUCT),                               \
              AfxPointerOf<COMPAREITEMSTRUCT>(AFX_L))
#define ON_WM_HSCROLL_REFLECT()                                                                                        \
    AFX_ON_WM(WM_HSCROLL + WM_REFLECT_BASE, void, HScroll, (UINT, UINT), LOWORD(AFX_W), HIWORD(AFX_W))
#define ON_WM_VSCROLL_REFLECT()                                                                                        \
    AFX_ON_WM(WM_VSCROLL + WM_REFLECT_BASE, void, VScroll, (UINT, UINT), LOWORD(AFX_W), HIWORD(AFX_W))
#define ON_WM_PARENTNOTIFY_REFLECT()                                                                                   \
    AFX_ON_WM(WM_PARENTNOTIFY + WM_REFLECT_BASE, void, ParentNotify, (UINT, LPARAM), LOWORD(AFX_W), AFX_L)
