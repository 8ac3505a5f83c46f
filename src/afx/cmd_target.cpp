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

namespace {

// The first entry that suits, from the class towards its bases; null where there is none.
template <class Suits> const AFX_MSGMAP_ENTRY* find_entry(const AFX_MSGMAP* map, Suits suits) {
    for (; map != nullptr; map = map->pfnGetBaseMap != nullptr ? map->pfnGetBaseMap() : nullptr) {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->nSig != AfxSig_end; ++entry) {
            if (suits(*entry))
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

const AFX_MSGMAP_ENTRY* find_window_entry(const AFX_MSGMAP* map, UINT message) {
    return find_entry(map, [message](const AFX_MSGMAP_ENTRY& entry) { return entry.nMessage == message; });
}

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    const UINT message = HIWORD(nCode) != 0 ? HIWORD(nCode) : WM_COMMAND, code = LOWORD(nCode);
    const AFX_MSGMAP_ENTRY* entry = find_entry(GetMessageMap(), [=](const AFX_MSGMAP_ENTRY& at) {
        return at.nMessage == message && at.nCode == code && nID >= at.nID && nID <= at.nLastID;
    });
    if (entry == nullptr)
        return FALSE;
    if (pHandlerInfo == nullptr)
        return call_command(this, *entry, nID, pExtra);
    pHandlerInfo->pTarget = this;
    pHandlerInfo->pmf = entry->pfn;
    return TRUE;
}
