#include "afx_cmdtarget.h"
#include "afx_app.h"
#include "message_map.h"
#include "thread_state.h"

#include <utility>

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

template <class Result, class... Arguments>
Result call(CCmdTarget* target, const AFX_MSGMAP_ENTRY& entry, Arguments... arguments) {
    return (target->*typed_handler<Result (CCmdTarget::*)(Arguments...)>(entry))(arguments...);
}

// TRUE unless the handler wants the command to go on.
BOOL call_update(CCmdTarget* target, const AFX_MSGMAP_ENTRY& entry, CCmdUI* item) {
    item->m_bContinueRouting = FALSE;
    call<void>(target, entry, item);
    return !std::exchange(item->m_bContinueRouting, FALSE);
}

BOOL call_notified(CCmdTarget* target, const AFX_MSGMAP_ENTRY& entry, UINT id, const notification& notify) {
    switch (entry.nSig) {
    case AfxSigNotify_v:
        return call<void>(target, entry, notify.header, notify.result), TRUE;
    case AfxSigNotify_b:
        return call<BOOL>(target, entry, notify.header, notify.result);
    case AfxSigNotify_RANGE:
        return call<void>(target, entry, id, notify.header, notify.result), TRUE;
    default:
        return call<BOOL>(target, entry, id, notify.header, notify.result);
    }
}

BOOL call_command(CCmdTarget* target, const AFX_MSGMAP_ENTRY& entry, UINT id, void* extra) {
    switch (entry.nSig) {
    case AfxSigCmd_v:
        return call<void>(target, entry), TRUE;
    case AfxSigCmd_b:
        return call<BOOL>(target, entry);
    case AfxSigCmd_RANGE:
        return call<void>(target, entry, id), TRUE;
    case AfxSigCmd_EX:
        return call<BOOL>(target, entry, id);
    case AfxSigCmdUI:
        return call_update(target, entry, static_cast<CCmdUI*>(extra));
    case AfxSigNotify_v:
    case AfxSigNotify_b:
    case AfxSigNotify_RANGE:
    case AfxSigNotify_EX:
        return call_notified(target, entry, id, *static_cast<const notification*>(extra));
    default:
        return FALSE;
    }
}

} // namespace

const AFX_MSGMAP_ENTRY* find_message_entry(const AFX_MSGMAP* map, UINT message) {
    if (message < first_registered_message)
        return find_entry(map, [message](const AFX_MSGMAP_ENTRY& entry) { return entry.nMessage == message; });
    return find_entry(map, [message](const AFX_MSGMAP_ENTRY& entry) {
        return entry.nMessage == first_registered_message && *reinterpret_cast<const UINT*>(entry.nSig) == message;
    });
}

void refuse_what_is_cut(const AFX_MSGMAP_ENTRY& entry, WPARAM wParam, LPARAM lParam) {
    const auto fits = [](LPARAM value) {
        return value == static_cast<LONG>(value) || value == static_cast<UINT>(value);
    };
    if (((entry.nCode & AfxNarrow_w) != 0 && !fits(static_cast<LPARAM>(wParam))) ||
        ((entry.nCode & AfxNarrow_l) != 0 && !fits(lParam)))
        AfxThrowNotSupportedException();
}

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    const bool update = nCode == CN_UPDATE_COMMAND_UI;
    const UINT message = update || HIWORD(nCode) == 0 ? WM_COMMAND : HIWORD(nCode);
    const UINT code = update ? static_cast<UINT>(nCode) : LOWORD(nCode);
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

void change_wait_cursor(int by) {
    thread_state& state = this_thread();
    if (state.wait_cursors == 0 && by > 0)
        state.cursor_before_wait = ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
    state.wait_cursors += state.wait_cursors + by >= 0 ? by : 0;
    if (by == 0 && state.wait_cursors > 0)
        ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
    if (by < 0 && state.wait_cursors == 0)
        ::SetCursor(state.cursor_before_wait);
}

namespace {

void ask_for_wait_cursor(int by) {
    if (CWinApp* app = AfxGetApp())
        app->DoWaitCursor(by);
    else
        change_wait_cursor(by);
}

} // namespace

void CCmdTarget::BeginWaitCursor() {
    ask_for_wait_cursor(1);
}

void CCmdTarget::EndWaitCursor() {
    ask_for_wait_cursor(-1);
}

void CCmdTarget::RestoreWaitCursor() {
    ask_for_wait_cursor(0);
}

CWaitCursor::CWaitCursor() {
    ask_for_wait_cursor(1);
}

CWaitCursor::~CWaitCursor() {
    ask_for_wait_cursor(-1);
}

void CWaitCursor::Restore() {
    ask_for_wait_cursor(0);
}
