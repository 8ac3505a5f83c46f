// The way of a message through a window object: commands, notifications, default handling.
#include "message_map.h"
#include "wnd_state.h"

namespace {

bool is_color_message(UINT message) {
    return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
}

AFX_CTLCOLOR color_record(UINT message, WPARAM wParam, LPARAM lParam) {
    return {reinterpret_cast<HWND>(lParam), reinterpret_cast<HDC>(wParam), message - WM_CTLCOLORMSGBOX};
}

} // namespace

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
    return m_pfnSuper != nullptr ? ::CallWindowProc(m_pfnSuper, m_hWnd, message, wParam, lParam)
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
    return id != 0 && OnCmdMsg(id, CN_COMMAND, nullptr, nullptr);
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
    return FALSE;
}

HBRUSH CWnd::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor) {
    LRESULT result = 0;
    if (pWnd != nullptr && pWnd->SendChildNotifyLastMsg(&result))
        return reinterpret_cast<HBRUSH>(result);
    return reinterpret_cast<HBRUSH>(Default());
}

// A scroll message goes to the bar that it came from.
void CWnd::OfferToScrollBar() {
    if (!ReflectLastMsg(reinterpret_cast<HWND>(last_message.lParam)))
        Default();
}

void CWnd::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    OfferToScrollBar();
}

void CWnd::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    OfferToScrollBar();
}
