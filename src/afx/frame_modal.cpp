// Frames whose user is kept to one window of theirs for a while.
#include "afx_frame.h"
#include "afxpriv.h"

#include <utility>

namespace {

struct search {
    HWND above;
    std::vector<HWND>& found;
};

// The enabled top-level windows of the thread that are the frame's, by their owners, or the frame's own.
BOOL CALLBACK collect(HWND hwnd, LPARAM record) {
    const auto& [above, found] = *reinterpret_cast<const search*>(record);
    HWND at = hwnd;
    while (at != nullptr && at != above)
        at = ::GetWindow(at, GW_OWNER);
    if (at == above && ::IsWindowEnabled(hwnd) && CWnd::FromHandlePermanent(hwnd) != nullptr &&
        ::SendMessage(hwnd, WM_DISABLEMODAL, 0, 0) == 0)
        found.push_back(hwnd);
    return TRUE;
}

} // namespace

void CFrameWnd::BeginModalState() {
    if (m_cModalStack++ > 0)
        return;
    const search wanted{GetTopLevelParent()->GetSafeHwnd(), m_disabled};
    ::EnumThreadWindows(::GetCurrentThreadId(), &collect, reinterpret_cast<LPARAM>(&wanted));
    for (HWND hwnd : m_disabled)
        ::EnableWindow(hwnd, FALSE);
}

void CFrameWnd::EndModalState() {
    if (m_cModalStack == 0 || --m_cModalStack > 0)
        return;
    for (HWND hwnd : std::exchange(m_disabled, {}))
        ::EnableWindow(hwnd, TRUE);
}

// A modal dialog disables the frame alone: what else is the frame's would stay open to the user.
void CFrameWnd::OnEnable(BOOL bEnable) {
    if (GetParent() != nullptr)
        return;
    if (!bEnable && !InModalState()) {
        m_modal_by_disabling = true;
        BeginModalState();
    } else if (bEnable && std::exchange(m_modal_by_disabling, false)) {
        EndModalState();
        if (::GetActiveWindow() == m_hWnd)
            SendMessage(WM_ACTIVATE, WA_ACTIVE); // the view takes the focus back
    }
}
