#pragma once

#include "afx.h"

#include <atomic>

class CCmdTarget;

/// A window message on its way through a message map.
struct AFX_MSGCALL {
    UINT nMessage;
    WPARAM wParam;
    LPARAM lParam;
    LRESULT lResult;
};

/// A notification and where its result goes.
struct AFX_NOTIFY {
    LRESULT* pResult;
    NMHDR* pNMHDR;
};

/// A command or a notification on its way through message maps.
struct AFX_CMDCALL {
    UINT nID;
    UINT nCode;
    AFX_NOTIFY* pNotify; ///< null for a command
};

/// Decode the parameters and call the handler; false if the handler declined.
using AFX_PMSG = BOOL (*)(CCmdTarget* pTarget, AFX_MSGCALL& call);
using AFX_PCMD = BOOL (*)(CCmdTarget* pTarget, AFX_CMDCALL& call);

struct AFX_MSGMAP_ENTRY {
    UINT nMessage;
    UINT nCode;            ///< control or notification code
    UINT nID;              ///< first identifier
    UINT nLastID;          ///< last identifier
    UINT (*pRegistered)(); ///< number of a registered message, known at run time only
    AFX_PMSG pfnMessage;
    AFX_PCMD pfnCommand;
};

class AfxMessageTable;

/// The handlers of one class. Entries end with one that has neither function.
struct AFX_MSGMAP {
    const AFX_MSGMAP* (*pfnGetBaseMap)(); ///< null at the root
    const AFX_MSGMAP_ENTRY* lpEntries;
    /// This class and its bases flattened for dispatch; made at the first message.
    mutable std::atomic<const AfxMessageTable*> pTable{nullptr};
};

struct AFX_CMDHANDLERINFO {
    CCmdTarget* pTarget;
    const AFX_MSGMAP_ENTRY* pEntry;
};

/// nCode of a command from a menu, an accelerator or a button click.
inline constexpr int CN_COMMAND = 0;

/// Messages that a parent gives back to the control that sent them have this added.
inline constexpr UINT WM_REFLECT_BASE = 0xBC00;

/// Base of the classes that have a message map.
class ORTIN_MFC_API CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)
public:
    /// Looks for a handler and calls it. nCode is a control's code, or MAKELONG(code, WM_NOTIFY) with pExtra an
    /// AFX_NOTIFY. With pHandlerInfo the handler is only told, not called. True if there is one and it did not decline.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

protected:
    CCmdTarget() = default;

    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;
};

#define DECLARE_MESSAGE_MAP()                                                                                          \
protected:                                                                                                             \
    static const AFX_MSGMAP* GetThisMessageMap();                                                                      \
    const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                                         \
    const AFX_MSGMAP* theClass::GetMessageMap() const {                                                                \
        return GetThisMessageMap();                                                                                    \
    }                                                                                                                  \
    const AFX_MSGMAP* theClass::GetThisMessageMap() {                                                                  \
        using ThisClass [[maybe_unused]] = theClass;                                                                   \
        using TheBaseClass = baseClass;                                                                                \
        static const AFX_MSGMAP_ENTRY messageEntries[] = {

#define BEGIN_TEMPLATE_MESSAGE_MAP(theClass, type_name, baseClass)                                                     \
    template <typename type_name>                                                                                      \
    const AFX_MSGMAP* theClass<type_name>::GetMessageMap() const {                                                     \
        return theClass<type_name>::GetThisMessageMap();                                                               \
    }                                                                                                                  \
    template <typename type_name>                                                                                      \
    const AFX_MSGMAP* theClass<type_name>::GetThisMessageMap() {                                                       \
        using ThisClass [[maybe_unused]] = theClass<type_name>;                                                        \
        using TheBaseClass = baseClass;                                                                                \
        static const AFX_MSGMAP_ENTRY messageEntries[] = {

// clang-format off: the braces that it closes stand in BEGIN_MESSAGE_MAP
#define END_MESSAGE_MAP()                                                                                              \
    { 0, 0, 0, 0, nullptr, nullptr, nullptr }                                                                          \
    }                                                                                                                  \
    ;                                                                                                                  \
    static const AFX_MSGMAP messageMap{&TheBaseClass::GetThisMessageMap, messageEntries};                              \
    return &messageMap;                                                                                                \
    }
// clang-format on
