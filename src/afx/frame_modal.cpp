// Frames whose user is kept to one window of theirs for a while.
#include "afx_frame.h"

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
    if (at == above && ::IsWindowEnabled(hwnd) && CWnd::FromHandlePermanent(hwnd) != nullptr)
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
