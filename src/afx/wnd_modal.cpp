// Message loops of modal windows, and what every message is shown to before it is dispatched.
#include "afx_app.h"
#include "wnd_state.h"

namespace {

// Idle messages to the window's parent and to the window, which may go over any of them.
bool idle_in_modal_loop(HWND hwnd, DWORD flags, LONG count) {
    const HWND parent = ::GetParent(hwnd);
    if ((flags & MLF_NOIDLEMSG) == 0 && parent != nullptr && count == 0)
        ::SendMessage(parent, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(hwnd));
    return (flags & MLF_NOKICKIDLE) == 0 && ::SendMessage(hwnd, WM_KICKIDLE, MSGF_DIALOGBOX, count) != 0;
}

void show(HWND hwnd) {
    if (::IsWindowVisible(hwnd))
        return;
    ::ShowWindow(hwnd, SW_SHOWNORMAL);
    ::UpdateWindow(hwnd);
}

} // namespace

BOOL PASCAL CWnd::WalkPreTranslateTree(HWND hWndStop, MSG* pMsg) {
    for (HWND at = pMsg->hwnd; at != nullptr; at = ::GetParent(at)) {
        if (CWnd* wnd = FromHandlePermanent(at)) {
            AFX_MANAGE_STATE(wnd->m_module_state);
            if (wnd->PreTranslateMessage(pMsg))
                return TRUE;
        }
        if (at == hWndStop)
            break;
    }
    return FALSE;
}

int CWnd::RunModalLoop(DWORD dwFlags) {
    const HWND hwnd = m_hWnd;
    MSG message;
    bool idle = true;
    LONG count = 0;
    m_modal = true;
    // A window that somebody else destroyed may have taken the object with it, so the handle is asked first.
    while (::IsWindow(hwnd) && ContinueModal()) {
        if (idle && !::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE)) {
            if ((dwFlags & MLF_SHOWONIDLE) != 0)
                show(hwnd);
            dwFlags &= ~static_cast<DWORD>(MLF_SHOWONIDLE); // once: the window may hide itself later
            idle = idle_in_modal_loop(hwnd, dwFlags, count++);
        } else if (!AfxPumpMessage()) {
            ::PostQuitMessage(quit_code()); // the outer loop ends as well
            if (::IsWindow(hwnd))
                m_modal = false;
            return -1;
        } else if (AfxIsIdleMessage(AfxGetCurrentMessage())) {
            idle = true;
            count = 0;
        }
    }
    return ::IsWindow(hwnd) ? m_nModalResult : -1;
}

void CWnd::EndModalLoop(int nResult) {
    m_nModalResult = nResult;
    if (m_modal) {
        m_modal = false;
        PostMessage(WM_NULL); // wakes the loop
    }
}
