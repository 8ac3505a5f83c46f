// Tips of a window's parts: one control for each thread, which shows what the pointer is on.
#include "afxcmn.h"
#include "afx_app.h"
#include "thread_state.h"

#include <utility>

namespace {

struct tip_state {
    CToolTipCtrl control;
    TOOLINFO tool{}; // the one that the control has; without a window where it has none
    HWND window = nullptr;
    INT_PTR hit = -1;
};

tip_state& tips() {
    return of_this_thread<tip_state>();
}

bool is_pointer_message(UINT message) {
    return (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) ||
           (message >= WM_NCMOUSEMOVE && message <= WM_NCXBUTTONDBLCLK);
}

bool is_button_down() {
    return ::GetKeyState(VK_LBUTTON) < 0 || ::GetKeyState(VK_RBUTTON) < 0 || ::GetKeyState(VK_MBUTTON) < 0;
}

// The control hears of the pointer as if it were on the tool's own window, which a disabled child never would be told.
void relay(tip_state& state, const MSG& message) {
    MSG heard = message;
    heard.hwnd = (state.tool.uFlags & TTF_IDISHWND) != 0 ? reinterpret_cast<HWND>(state.tool.uId) : state.tool.hwnd;
    CPoint point = message.pt;
    ::ScreenToClient(heard.hwnd, &point);
    heard.lParam = MAKELPARAM(point.x, point.y);
    state.control.SendMessage(TTM_RELAYEVENT, 0, afx_param(&heard));
}

void drop_tool(tip_state& state) {
    state.control.Activate(FALSE);
    state.control.SendMessage(TTM_DELTOOL, 0, afx_param(&state.tool));
    state.tool = {};
}

// A control that belongs to the window's top one: it goes with that, and stays before it.
bool has_control(tip_state& state, const CWnd& wnd) {
    CWnd* owner = wnd.GetTopLevelOwner();
    if (state.control.m_hWnd != nullptr && ::GetWindow(state.control.m_hWnd, GW_OWNER) != owner->GetSafeHwnd())
        state.control.DestroyWindow();
    if (state.control.m_hWnd != nullptr)
        return true;
    state.tool = {};
    return state.control.Create(owner, TTS_ALWAYSTIP);
}

void take_tool(tip_state& state, TOOLINFO& tool) {
    const LPTSTR text = tool.lpszText;
    tool.cbSize = TTTOOLINFOA_V2_SIZE; // what every version of the control takes
    state.control.SendMessage(TTM_ADDTOOL, 0, afx_param(&tool));
    state.control.Activate(TRUE);
    state.control.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOACTIVATE | SWP_NOSIZE | SWP_NOMOVE | SWP_NOOWNERZORDER);
    state.tool = tool;
    // A text that the window gave is the framework's now.
    if (text != LPSTR_TEXTCALLBACK && tool.hinst == nullptr)
        std::free(text);
    state.tool.lpszText = nullptr;
}

} // namespace

BOOL CWnd::EnableToolTips(BOOL bEnable) {
    const BOOL before = std::exchange(m_has_tips, bEnable != FALSE);
    if (!bEnable && tips().window == m_hWnd)
        CancelToolTips();
    return before;
}

void PASCAL CWnd::CancelToolTips(BOOL) {
    tip_state& state = tips();
    if (state.control.m_hWnd != nullptr)
        state.control.SendMessage(TTM_POP);
}

// The nearest window with tips around the pointer's answers for it.
void CWnd::FilterToolTipMessage(MSG* pMsg) {
    if (pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST)
        return CancelToolTips(TRUE);
    if (!is_pointer_message(pMsg->message))
        return;
    for (HWND at = pMsg->hwnd; at != m_hWnd; at = ::GetParent(at)) {
        CWnd* nearer = FromHandlePermanent(at);
        if (at == nullptr || (nearer != nullptr && nearer->m_has_tips))
            return;
    }
    tip_state& state = tips();
    if (is_button_down() || (pMsg->message != WM_MOUSEMOVE && pMsg->message != WM_NCMOUSEMOVE)) {
        if (state.control.m_hWnd != nullptr)
            relay(state, *pMsg);
        return;
    }
    CPoint point = pMsg->pt;
    ScreenToClient(&point);
    TOOLINFO tool{};
    tool.cbSize = sizeof(tool);
    const INT_PTR hit = OnToolHitTest(point, &tool);
    if (!has_control(state, *this))
        return;
    if (hit != state.hit || m_hWnd != state.window || state.tool.hwnd == nullptr) {
        drop_tool(state);
        if (hit != -1)
            take_tool(state, tool);
        state.hit = hit;
        state.window = m_hWnd;
    }
    if (state.tool.hwnd != nullptr)
        relay(state, *pMsg);
}

// The child at the point, a disabled one, too.
INT_PTR CWnd::OnToolHitTest(CPoint point, TOOLINFO* pTI) const {
    const HWND child = ::ChildWindowFromPointEx(m_hWnd, point, CWP_SKIPINVISIBLE);
    if (child == nullptr || child == m_hWnd)
        return -1;
    if (pTI != nullptr) {
        pTI->hwnd = m_hWnd;
        pTI->uId = reinterpret_cast<UINT_PTR>(child);
        pTI->uFlags |= TTF_IDISHWND;
        pTI->lpszText = LPSTR_TEXTCALLBACK;
        if ((::SendMessage(child, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON) == 0)
            pTI->uFlags |= TTF_CENTERTIP;
    }
    return static_cast<WORD>(::GetDlgCtrlID(child));
}
