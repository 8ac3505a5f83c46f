// Message loops of modal windows, and what every message is shown to before it is dispatched.
#include "afx_app.h"
#include "afx_wnd.h"

BOOL PASCAL CWnd::WalkPreTranslateTree(HWND hWndStop, MSG* pMsg) {
    for (HWND at = pMsg->hwnd; at != nullptr; at = ::GetParent(at)) {
        CWnd* wnd = FromHandlePermanent(at);
        if (wnd != nullptr && wnd->PreTranslateMessage(pMsg))
            return TRUE;
        if (at == hWndStop)
            break;
    }
    return FALSE;
}

bool CWnd::IdleInModalLoop(DWORD flags, LONG count) {
    if ((flags & MLF_SHOWONIDLE) != 0 && !IsWindowVisible()) {
        ShowWindow(SW_SHOWNORMAL);
        UpdateWindow();
    }
    const HWND parent = ::GetParent(m_hWnd);
    if ((flags & MLF_NOIDLEMSG) == 0 && parent != nullptr && count == 0)
        ::SendMessage(parent, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(m_hWnd));
    return (flags & MLF_NOKICKIDLE) == 0 && SendMessage(WM_KICKIDLE, MSGF_DIALOGBOX, count) != 0;
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
            idle = IdleInModalLoop(dwFlags, count++);
        } else if (!AfxPumpMessage()) {
            ::PostQuitMessage(0); // the outer loop ends as well
            return -1;
        } else if (AfxIsIdleMessage()) {
            idle = true;
            count = 0;
        }
    }
    return ::IsWindow(hwnd) ? m_modalResult : -1;
}

void CWnd::EndModalLoop(int nResult) {
    m_modalResult = nResult;
    if (m_modal) {
        m_modal = false;
        PostMessage(WM_NULL); // wakes the loop
    }
}
