#include "afx_cmdtarget.h"
#include "message_map.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

const AFX_MSGMAP* PASCAL CCmdTarget::GetThisMessageMap() {
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, AfxSig_end, nullptr}};
    static const AFX_MSGMAP map = {nullptr, entries};
    return &map;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const {
    return GetThisMessageMap();
}

const AFX_MSGMAP_ENTRY* find_window_entry(const AFX_MSGMAP* map, UINT message) {
    for (; map != nullptr; map = map->pfnGetBaseMap != nullptr ? map->pfnGetBaseMap() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->nSig != AfxSig_end; ++entry) {
            if (entry->nMessage == message)
                return entry;
        }
    }
    return nullptr;
}

namespace {

const AFX_MSGMAP_ENTRY* find_command_entry(const AFX_MSGMAP* map, UINT message, UINT code, UINT id) {
    for (; map != nullptr; map = map->pfnGetBaseMap != nullptr ? map->pfnGetBaseMap() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->nSig != AfxSig_end; ++entry) {
            if (entry->nMessage == message && entry->nCode == code && id >= entry->nID && id <= entry->nLastID)
                return entry;
        }
    }
    return nullptr;
}

BOOL call_command(CCmdTarget* target, const AFX_MSGMAP_ENTRY& entry, UINT id, void* extra) {
    switch (entry.nSig) {
    case AfxSigCmd_v:
        (target->*entry.pfn)();
        return TRUE;
    case AfxSigCmd_RANGE:
        (target->*typed_handler<void (CCmdTarget::*)(UINT)>(entry))(id);
        return TRUE;
    case AfxSigCmdUI:
        (target->*typed_handler<void (CCmdTarget::*)(CCmdUI*)>(entry))(static_cast<CCmdUI*>(extra));
        return TRUE;
    case AfxSigNotify_v: {
        const auto* notify = static_cast<const notification*>(extra);
        (target->*typed_handler<void (CCmdTarget::*)(NMHDR*, LRESULT*)>(entry))(notify->header, notify->result);
        return TRUE;
    }
    default:
        return FALSE;
    }
}

} // namespace

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    UINT message = nCode == CN_UPDATE_COMMAND_UI ? 0 : HIWORD(nCode);
    if (message == 0)
        message = WM_COMMAND;
    const AFX_MSGMAP_ENTRY* entry = find_command_entry(GetMessageMap(), message, LOWORD(nCode), nID);
    if (entry == nullptr)
        return FALSE;
    if (pHandlerInfo == nullptr)
        return call_command(this, *entry, nID, pExtra);
    pHandlerInfo->pTarget = this;
    pHandlerInfo->pmf = entry->pfn;
    return TRUE;
}
