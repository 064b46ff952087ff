#include "afxcmd.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const {
    return GetThisMessageMap();
}

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap() {
    static const AFX_MSGMAP_ENTRY end[] = {{0, 0, 0, 0, nullptr, nullptr, nullptr}};
    static const AFX_MSGMAP messageMap{nullptr, end};
    return &messageMap;
}

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    const UINT packedMessage = HIWORD(nCode);
    const UINT message = packedMessage != 0 ? packedMessage : WM_COMMAND;
    const UINT code = LOWORD(nCode);
    for (const AFX_MSGMAP* map = GetMessageMap(); map != nullptr;
         map = map->pfnGetBaseMap != nullptr ? map->pfnGetBaseMap() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries;
             entry->pfnMessage != nullptr || entry->pfnCommand != nullptr; ++entry) {
            if (entry->pfnCommand == nullptr || entry->nMessage != message || entry->nCode != code ||
                nID < entry->nID || nID > entry->nLastID) {
                continue;
            }
            if (pHandlerInfo != nullptr) {
                *pHandlerInfo = {this, entry};
                return TRUE;
            }
            AFX_CMDCALL call{nID, code, static_cast<AFX_NOTIFY*>(pExtra)};
            return entry->pfnCommand(this, call);
        }
    }
    return FALSE;
}
