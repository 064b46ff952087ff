#pragma once

#include "afxcmd.h"
#include "atltypes.h"

#include <type_traits>

// The entries of message maps. Each one fits a handler of exactly the documented signature: another one does not
// compile. The decoding of the parameters is made at the entry, so that dispatch is one call.

class CDC;
class CMenu;
class CScrollBar;
class CWnd;

/// WM_CTLCOLORMSGBOX to WM_CTLCOLORSTATIC arrive at maps as this one number, with an AFX_CTLCOLOR as lParam.
inline constexpr UINT WM_CTLCOLOR = 0x0019;

struct AFX_CTLCOLOR {
    HWND hWnd;
    HDC hDC;
    UINT nCtlType; ///< CTLCOLOR_MSGBOX to CTLCOLOR_STATIC
};

ORTIN_MFC_API CWnd* AfxWndOf(WPARAM handle);
ORTIN_MFC_API CDC* AfxDeviceOf(WPARAM handle);
ORTIN_MFC_API CMenu* AfxMenuOf(WPARAM handle);
ORTIN_MFC_API CScrollBar* AfxScrollBarOf(LPARAM handle);

/// Coordinates may be negative on a second monitor.
inline CPoint AfxPointOf(LPARAM coordinates) {
    return {static_cast<short>(LOWORD(coordinates)), static_cast<short>(HIWORD(coordinates))};
}

template <class Type>
Type* AfxPointerOf(LPARAM parameter) {
    return reinterpret_cast<Type*>(parameter);
}

/// Calls the handler; a handler without a result answers 0.
template <class Target, class Method, class... Arguments>
LRESULT AfxInvoke(Target* target, Method method, Arguments... arguments) {
    using Result = decltype((target->*method)(arguments...));
    if constexpr (std::is_void_v<Result>) {
        (target->*method)(arguments...);
        return 0;
    } else if constexpr (std::is_pointer_v<Result>) {
        return reinterpret_cast<LRESULT>((target->*method)(arguments...));
    } else {
        return static_cast<LRESULT>((target->*method)(arguments...));
    }
}

#define AFX_W (afxCall.wParam)
#define AFX_L (afxCall.lParam)

/// A handler without a result has handled the command.
template <class Target, class Method, class... Arguments>
BOOL AfxInvokeCommand(Target* target, Method method, Arguments... arguments) {
    using Result = decltype((target->*method)(arguments...));
    if constexpr (std::is_void_v<Result>) {
        (target->*method)(arguments...);
        return TRUE;
    } else {
        return (target->*method)(arguments...);
    }
}

constexpr AFX_MSGMAP_ENTRY AfxMessageEntry(UINT message, AFX_PMSG function) {
    return {message, 0, 0, 0, nullptr, function, nullptr};
}

constexpr AFX_MSGMAP_ENTRY AfxRegisteredEntry(UINT (*number)(), AFX_PMSG function) {
    return {0xC000, 0, 0, 0, number, function, nullptr};
}

constexpr AFX_MSGMAP_ENTRY AfxCommandEntry(UINT message, UINT code, UINT firstId, UINT lastId, AFX_PCMD function) {
    return {message, code & 0xFFFF, firstId, lastId, nullptr, nullptr, function};
}

/// A function that calls the handler; the values for its parameters come from AFX_W and AFX_L.
#define AFX_MESSAGE_FUNCTION(resultType, memberFxn, parameters, handled, ...)                                          \
    [](CCmdTarget* afxTarget, AFX_MSGCALL& afxCall) -> BOOL {                                                          \
        resultType(ThisClass::*afxMethod) parameters = memberFxn;                                                      \
        afxCall.lResult = AfxInvoke(static_cast<ThisClass*>(afxTarget), afxMethod __VA_OPT__(, ) __VA_ARGS__);         \
        return handled;                                                                                                \
    }

#define AFX_ON_WM(message, resultType, handler, parameters, ...)                                                       \
    AfxMessageEntry(                                                                                                   \
        message, AFX_MESSAGE_FUNCTION(resultType, &ThisClass::handler, parameters, TRUE __VA_OPT__(, ) __VA_ARGS__)),

// Reflected colours: a null brush lets the parent answer.
#define AFX_ON_WM_OR_DECLINE(message, resultType, handler, parameters, ...)                                            \
    AfxMessageEntry(message, AFX_MESSAGE_FUNCTION(resultType, &ThisClass::handler, parameters,                         \
                                                  afxCall.lResult != 0 __VA_OPT__(, ) __VA_ARGS__)),

#define AFX_ON_CMD(message, code, firstId, lastId, resultType, memberFxn, parameters, ...)                             \
    AfxCommandEntry(message, static_cast<UINT>(code), static_cast<UINT>(firstId), static_cast<UINT>(lastId),           \
                    [](CCmdTarget* afxTarget, [[maybe_unused]] AFX_CMDCALL& afxCall) -> BOOL {                         \
                        resultType(ThisClass::*afxMethod) parameters = memberFxn;                                      \
                        return AfxInvokeCommand(static_cast<ThisClass*>(afxTarget),                                    \
                                                afxMethod __VA_OPT__(, ) __VA_ARGS__);                                 \
                    }),

// Messages by number. The handler: LRESULT handler(WPARAM, LPARAM).

#define ON_MESSAGE(message, memberFxn)                                                                                 \
    AfxMessageEntry(message, AFX_MESSAGE_FUNCTION(LRESULT, memberFxn, (WPARAM, LPARAM), TRUE, AFX_W, AFX_L)),

/// nMessageVariable lives as long as the program, and may get its value after the map is made.
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn)                                                             \
    AfxRegisteredEntry([]() -> UINT { return nMessageVariable; },                                                      \
                       AFX_MESSAGE_FUNCTION(LRESULT, memberFxn, (WPARAM, LPARAM), TRUE, AFX_W, AFX_L)),

// Commands: void handler(). EX: BOOL handler(UINT id). RANGE: void handler(UINT id).

#define ON_COMMAND(id, memberFxn) AFX_ON_CMD(WM_COMMAND, CN_COMMAND, id, id, void, memberFxn, ())
#define ON_COMMAND_EX(id, memberFxn) AFX_ON_CMD(WM_COMMAND, CN_COMMAND, id, id, BOOL, memberFxn, (UINT), afxCall.nID)
#define ON_COMMAND_RANGE(id, idLast, memberFxn)                                                                        \
    AFX_ON_CMD(WM_COMMAND, CN_COMMAND, id, idLast, void, memberFxn, (UINT), afxCall.nID)
#define ON_COMMAND_EX_RANGE(id, idLast, memberFxn)                                                                     \
    AFX_ON_CMD(WM_COMMAND, CN_COMMAND, id, idLast, BOOL, memberFxn, (UINT), afxCall.nID)

// Control notifications that come as WM_COMMAND: void handler(). RANGE: void handler(UINT id).

#define ON_CONTROL(wNotifyCode, id, memberFxn) AFX_ON_CMD(WM_COMMAND, wNotifyCode, id, id, void, memberFxn, ())
#define ON_CONTROL_RANGE(wNotifyCode, id, idLast, memberFxn)                                                           \
    AFX_ON_CMD(WM_COMMAND, wNotifyCode, id, idLast, void, memberFxn, (UINT), afxCall.nID)
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn)                                                                     \
    AFX_ON_CMD(WM_COMMAND + WM_REFLECT_BASE, wNotifyCode, 0, 0, void, memberFxn, ())
#define ON_CONTROL_REFLECT_EX(wNotifyCode, memberFxn)                                                                  \
    AFX_ON_CMD(WM_COMMAND + WM_REFLECT_BASE, wNotifyCode, 0, 0, BOOL, memberFxn, ())

#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_UPDATE(id, memberFxn) ON_CONTROL(EN_UPDATE, id, memberFxn)
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_EDITCHANGE(id, memberFxn) ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
#define ON_CBN_DROPDOWN(id, memberFxn) ON_CONTROL(CBN_DROPDOWN, id, memberFxn)
#define ON_CBN_CLOSEUP(id, memberFxn) ON_CONTROL(CBN_CLOSEUP, id, memberFxn)
#define ON_STN_CLICKED(id, memberFxn) ON_CONTROL(STN_CLICKED, id, memberFxn)
#define ON_STN_DBLCLK(id, memberFxn) ON_CONTROL(STN_DBLCLK, id, memberFxn)

// WM_NOTIFY: void handler(NMHDR*, LRESULT*). EX: BOOL handler(UINT id, NMHDR*, LRESULT*). RANGE: void, with the id.
// Reflected, EX: BOOL handler(NMHDR*, LRESULT*). A handler that gives FALSE lets the next target have it.

#define AFX_NOTIFY_PARAMETERS afxCall.pNotify->pNMHDR, afxCall.pNotify->pResult

#define ON_NOTIFY(wNotifyCode, id, memberFxn)                                                                          \
    AFX_ON_CMD(WM_NOTIFY, wNotifyCode, id, id, void, memberFxn, (NMHDR*, LRESULT*), AFX_NOTIFY_PARAMETERS)
#define ON_NOTIFY_RANGE(wNotifyCode, id, idLast, memberFxn)                                                            \
    AFX_ON_CMD(WM_NOTIFY, wNotifyCode, id, idLast, void, memberFxn, (UINT, NMHDR*, LRESULT*), afxCall.nID,             \
               AFX_NOTIFY_PARAMETERS)
#define ON_NOTIFY_EX(wNotifyCode, id, memberFxn) ON_NOTIFY_EX_RANGE(wNotifyCode, id, id, memberFxn)
#define ON_NOTIFY_EX_RANGE(wNotifyCode, id, idLast, memberFxn)                                                         \
    AFX_ON_CMD(WM_NOTIFY, wNotifyCode, id, idLast, BOOL, memberFxn, (UINT, NMHDR*, LRESULT*), afxCall.nID,             \
               AFX_NOTIFY_PARAMETERS)
#define ON_NOTIFY_REFLECT(wNotifyCode, memberFxn)                                                                      \
    AFX_ON_CMD(WM_NOTIFY + WM_REFLECT_BASE, wNotifyCode, 0, 0, void, memberFxn, (NMHDR*, LRESULT*),                    \
               AFX_NOTIFY_PARAMETERS)
#define ON_NOTIFY_REFLECT_EX(wNotifyCode, memberFxn)                                                                   \
    AFX_ON_CMD(WM_NOTIFY + WM_REFLECT_BASE, wNotifyCode, 0, 0, BOOL, memberFxn, (NMHDR*, LRESULT*),                    \
               AFX_NOTIFY_PARAMETERS)

#include "afxmsg_wm.h"
