// The way of a message through a window object: commands, notifications, reflection, default handling.
#include "afx_app.h"
#include "afx_data_exchange.h"
#include "afx_exception.h"
#include "afxmsg_.h"
#include "message_map.h"
#include "wnd_state.h"

namespace {

// Finds out whether a command is enabled, and shows nothing.
class enabled_query : public CCmdUI {
public:
    void Enable(BOOL bOn) override {
        m_enabled = bOn;
        m_bEnableChanged = TRUE;
    }
    void SetCheck(int) override {}
    void SetText(LPCTSTR) override {}

    BOOL m_enabled = TRUE;
};

bool is_color_message(UINT message) {
    return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
}

AFX_CTLCOLOR color_record(UINT message, WPARAM wParam, LPARAM lParam) {
    return {reinterpret_cast<HWND>(lParam), reinterpret_cast<HDC>(wParam), message - WM_CTLCOLORMSGBOX};
}

} // namespace

const MSG* PASCAL CWnd::GetCurrentMessage() {
    return &last_message;
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    return OnWndMsg(message, wParam, lParam, &result) ? result : DefWindowProc(message, wParam, lParam);
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    LRESULT result = 0;
    AFX_CTLCOLOR color;
    if (message == WM_COMMAND) {
        if (!OnCommand(wParam, lParam))
            return FALSE;
        result = 1;
    } else if (message == WM_NOTIFY) {
        if (lParam == 0 || !OnNotify(wParam, lParam, &result))
            return FALSE;
    } else {
        if (is_color_message(message)) {
            color = color_record(message, wParam, lParam);
            message = WM_CTLCOLOR;
            lParam = reinterpret_cast<LPARAM>(&color);
        }
        const AFX_MSGMAP_ENTRY* entry = find_window_entry(GetMessageMap(), message);
        if (entry == nullptr)
            return FALSE;
        result = DispatchEntry(*entry, wParam, lParam);
    }
    if (pResult != nullptr)
        *pResult = result;
    return TRUE;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const WNDPROC super = *GetSuperWndProcAddr();
    return super != nullptr ? ::CallWindowProc(super, m_hWnd, message, wParam, lParam)
                            : ::DefWindowProc(m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::Default() {
    return DefWindowProc(last_message.message, last_message.wParam, last_message.lParam);
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT id = LOWORD(wParam);
    const HWND control = reinterpret_cast<HWND>(lParam);
    if (control != nullptr)
        return ReflectLastMsg(control) || (id != 0 && OnCmdMsg(id, HIWORD(wParam), nullptr, nullptr));
    if (id == 0)
        return FALSE;
    enabled_query query;
    query.m_nID = id;
    OnCmdMsg(id, CN_UPDATE_COMMAND_UI, &query, nullptr);
    return !query.m_enabled || OnCmdMsg(id, CN_COMMAND, nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    NMHDR* header = reinterpret_cast<NMHDR*>(lParam);
    if (ReflectLastMsg(header->hwndFrom, pResult))
        return TRUE;
    notification notify{header, pResult};
    return OnCmdMsg(static_cast<UINT>(header->idFrom), static_cast<int>(MAKELONG(header->code, WM_NOTIFY)), &notify,
                    nullptr);
}

BOOL CWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    return CCmdTarget::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL PASCAL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT* pResult) {
    CWnd* child = FromHandlePermanent(hWndChild);
    return child != nullptr && child->SendChildNotifyLastMsg(pResult);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* pResult) {
    return OnChildNotify(last_message.message, last_message.wParam, last_message.lParam, pResult);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return ReflectChildNotify(message, wParam, lParam, pResult);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    LRESULT unused = 0;
    LRESULT* result = pResult != nullptr ? pResult : &unused;
    if (is_color_message(message)) {
        AFX_CTLCOLOR color = color_record(message, wParam, lParam);
        // Without a brush of the control's own, the parent chooses.
        return OnWndMsg(WM_REFLECT_BASE + WM_CTLCOLOR, 0, reinterpret_cast<LPARAM>(&color), result) && *result != 0;
    }
    switch (message) {
    case WM_COMMAND:
        return OnCmdMsg(0, static_cast<int>(MAKELONG(HIWORD(wParam), WM_REFLECT_BASE + WM_COMMAND)), nullptr, nullptr);
    case WM_NOTIFY: {
        NMHDR* header = reinterpret_cast<NMHDR*>(lParam);
        notification notify{header, result};
        return OnCmdMsg(0, static_cast<int>(MAKELONG(header->code, WM_REFLECT_BASE + WM_NOTIFY)), &notify, nullptr);
    }
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
        return OnWndMsg(WM_REFLECT_BASE + message, wParam, lParam, result);
    default:
        return FALSE;
    }
}

HBRUSH CWnd::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor) {
    LRESULT result = 0;
    if (pWnd != nullptr && pWnd->SendChildNotifyLastMsg(&result))
        return reinterpret_cast<HBRUSH>(result);
    return reinterpret_cast<HBRUSH>(Default());
}

void CWnd::OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct) {
    if (lpDrawItemStruct->CtlType == ODT_MENU || !ReflectLastMsg(lpDrawItemStruct->hwndItem))
        Default();
}

void CWnd::OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct) {
    if (lpMeasureItemStruct->CtlType == ODT_MENU || !ReflectLastMsg(::GetDlgItem(m_hWnd, nIDCtl)))
        Default();
}

void CWnd::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    if (!ReflectLastMsg(reinterpret_cast<HWND>(last_message.lParam)))
        Default();
}

void CWnd::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    if (!ReflectLastMsg(reinterpret_cast<HWND>(last_message.lParam)))
        Default();
}

void CWnd::UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler) {
    for (HWND child = ::GetTopWindow(m_hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        CCmdUI state;
        state.m_nID = static_cast<UINT>(::GetDlgCtrlID(child)) & 0xFFFF;
        state.m_pOther = FromHandle(child);
        // Only a push button stands for a command by its looks alone.
        const LRESULT kind = ::SendMessage(child, WM_GETDLGCODE, 0, 0);
        const bool disable = bDisableIfNoHndler && (kind & (DLGC_UNDEFPUSHBUTTON | DLGC_DEFPUSHBUTTON)) != 0;
        if (state.m_nID != 0 && state.m_nID != 0xFFFF)
            state.DoUpdate(pTarget, disable);
    }
}
