// The way of a message through a window object: commands, notifications, default handling.
#include "afxmsg_.h"
#include "afxpriv.h"
#include "message_map.h"
#include "wnd_state.h"

namespace {

bool is_color_message(UINT message) {
    return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
}

// A list box with draggable items tells its parent by a message whose number is the system's.
UINT drag_list_message() {
    static const UINT number = ::RegisterWindowMessage(DRAGLISTMSGSTRING);
    return number;
}

// Anyone may send them with nothing.
bool lacks_its_record(UINT message, LPARAM lParam) {
    return lParam == 0 &&
           (message == WM_NOTIFY || message == WM_DRAWITEM || message == WM_MEASUREITEM || message == WM_DELETEITEM ||
            message == WM_COMPAREITEM || message == WM_NCCALCSIZE || message == WM_SIZEPARENT ||
            message == TTM_WINDOWFROMPOINT || message == drag_list_message());
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
    if (message == WM_CTLCOLOR)
        return FALSE;                        // the maps' number for all the colour messages; no system sends it
    if (lacks_its_record(message, lParam)) { // nor does the control's own procedure look
        if (pResult != nullptr)
            *pResult = 0;
        return TRUE;
    }
    if (message == WM_COMMAND) {
        if (!OnCommand(wParam, lParam))
            return FALSE;
        result = 1;
    } else if (message == WM_NOTIFY) {
        if (!OnNotify(wParam, lParam, &result))
            return FALSE;
    } else {
        if (is_color_message(message)) {
            color = color_record(message, wParam, lParam);
            message = WM_CTLCOLOR;
            lParam = reinterpret_cast<LPARAM>(&color);
        }
        const AFX_MSGMAP_ENTRY* entry = find_message_entry(GetMessageMap(), message);
        if (entry == nullptr && message == drag_list_message())
            return ReflectLastMsg(reinterpret_cast<const DRAGLISTINFO*>(lParam)->hWnd, pResult);
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
    const MSG& message = this_thread().last_message;
    return DefWindowProc(message.message, message.wParam, message.lParam);
}

const MSG* PASCAL CWnd::GetCurrentMessage() {
    return &this_thread().last_message;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT id = LOWORD(wParam);
    const HWND control = reinterpret_cast<HWND>(lParam);
    if (control != nullptr && this_thread().updating == m_hWnd)
        return TRUE;
    if (control != nullptr)
        return ReflectLastMsg(control) || (id != 0 && OnCmdMsg(id, HIWORD(wParam), nullptr, nullptr));
    if (id == 0)
        return FALSE;
    // A key may stand for a command whose menu item has not been updated since it became disabled.
    test_cmd_ui state(id);
    OnCmdMsg(id, CN_UPDATE_COMMAND_UI, &state, nullptr);
    return !state.enabled || OnCmdMsg(id, CN_COMMAND, nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    NMHDR* header = reinterpret_cast<NMHDR*>(lParam);
    if (this_thread().updating == m_hWnd)
        return TRUE;
    if (ReflectLastMsg(header->hwndFrom, pResult))
        return TRUE;
    notification notify{header, pResult};
    // The control's own number: idFrom of a tip for a window is that window's handle.
    const UINT id = ::IsWindow(header->hwndFrom) ? static_cast<UINT>(::GetDlgCtrlID(header->hwndFrom))
                                                 : static_cast<UINT>(header->idFrom);
    return OnCmdMsg(id, static_cast<int>(MAKELONG(header->code, WM_NOTIFY)), &notify, nullptr);
}

BOOL CWnd::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    return CCmdTarget::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

BOOL PASCAL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT* pResult) {
    CWnd* child = FromHandlePermanent(hWndChild);
    return child != nullptr && child->SendChildNotifyLastMsg(pResult);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* pResult) {
    const MSG message = this_thread().last_message;
    return OnChildNotify(message.message, message.wParam, message.lParam, pResult);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    return ReflectChildNotify(message, wParam, lParam, pResult);
}

// Looks for a handler of the message in the control's own map.
BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
    case WM_NOTIFY: {
        NMHDR* header = reinterpret_cast<NMHDR*>(lParam);
        LRESULT ignored = 0;
        notification notify{header, pResult != nullptr ? pResult : &ignored};
        const auto code = static_cast<int>(MAKELONG(header->code, WM_REFLECT_BASE + WM_NOTIFY));
        return OnCmdMsg(0, code, &notify, nullptr);
    }
    case WM_COMMAND:
        return OnCmdMsg(0, static_cast<int>(MAKELONG(HIWORD(wParam), WM_REFLECT_BASE + WM_COMMAND)), nullptr, nullptr);
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
    case WM_CHARTOITEM:
    case WM_VKEYTOITEM:
    case WM_PARENTNOTIFY:
        return CWnd::OnWndMsg(WM_REFLECT_BASE + message, wParam, lParam, pResult);
    default:
        return is_color_message(message) && ReflectColor(color_record(message, wParam, lParam), pResult);
    }
}

// A handler that answers no brush leaves the colours to the parent.
BOOL CWnd::ReflectColor(const AFX_CTLCOLOR& color, LRESULT* pResult) {
    LRESULT brush = 0;
    if (!CWnd::OnWndMsg(WM_REFLECT_BASE + WM_CTLCOLOR, 0, reinterpret_cast<LPARAM>(&color), &brush) || brush == 0)
        return FALSE;
    if (pResult != nullptr)
        *pResult = brush;
    return TRUE;
}

HBRUSH CWnd::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor) {
    LRESULT result = 0;
    if (pWnd != nullptr && pWnd->SendChildNotifyLastMsg(&result))
        return reinterpret_cast<HBRUSH>(result);
    return reinterpret_cast<HBRUSH>(Default());
}

// A scroll message goes to the bar that it came from.
void CWnd::OfferToScrollBar() {
    if (!ReflectLastMsg(reinterpret_cast<HWND>(this_thread().last_message.lParam)))
        Default();
}

void CWnd::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    OfferToScrollBar();
}

void CWnd::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    OfferToScrollBar();
}

// Owner-drawn items: those of a menu are its object's business, the others their control's.
void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT record) {
    if (record->CtlType != ODT_MENU) {
        if (!ReflectLastMsg(record->hwndItem))
            Default();
        return;
    }
    CMenu* menu = CMenu::FromHandlePermanent(reinterpret_cast<HMENU>(record->hwndItem));
    if (menu != nullptr)
        menu->DrawItem(record);
}

namespace {

// The object of the menu in this one's tree that holds the item.
CMenu* menu_with_item(HMENU menu, UINT id) {
    for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
        HMENU popup = ::GetSubMenu(menu, i);
        if (popup == nullptr && ::GetMenuItemID(menu, i) == id)
            return CMenu::FromHandlePermanent(menu);
        CMenu* found = popup != nullptr ? menu_with_item(popup, id) : nullptr;
        if (found != nullptr)
            return found;
    }
    return nullptr;
}

} // namespace

void CWnd::OnMeasureItem(int, LPMEASUREITEMSTRUCT record) {
    if (record->CtlType == ODT_MENU) {
        HMENU menus = this_thread().tracked_menu != nullptr ? this_thread().tracked_menu : ::GetMenu(m_hWnd);
        if (CMenu* menu = menu_with_item(menus, record->itemID))
            menu->MeasureItem(record);
    } else {
        CWnd* child = GetDescendantWindow(m_hWnd, static_cast<int>(record->CtlID), TRUE);
        if (child == nullptr || !child->SendChildNotifyLastMsg())
            Default();
    }
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT record) {
    if (!ReflectLastMsg(record->hwndItem))
        Default();
}

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT record) {
    LRESULT result = 0;
    return static_cast<int>(ReflectLastMsg(record->hwndItem, &result) ? result : Default());
}

int CWnd::OnCharToItem(UINT, CListBox* list, UINT) {
    LRESULT result = 0;
    return static_cast<int>(ReflectLastMsg(reinterpret_cast<CWnd*>(list)->GetSafeHwnd(), &result) ? result : Default());
}

int CWnd::OnVKeyToItem(UINT nKey, CListBox* list, UINT nIndex) {
    return CWnd::OnCharToItem(nKey, list, nIndex);
}

void CWnd::OnParentNotify(UINT message, LPARAM lParam) {
    const bool about_child = LOWORD(message) == WM_CREATE || LOWORD(message) == WM_DESTROY;
    if (!about_child || !ReflectLastMsg(reinterpret_cast<HWND>(lParam)))
        Default();
}
