// Operations of CWnd that are more than one platform call.
#include "afx_wnd.h"

#include <algorithm>

namespace {

CString text_of(HWND hwnd) {
    CString text;
    const int length = ::GetWindowTextLength(hwnd);
    if (length > 0) {
        ::GetWindowText(hwnd, text.GetBuffer(length + 1), length + 1);
        text.ReleaseBuffer();
    }
    return text;
}

RECT work_area(HWND hwnd) {
    MONITORINFO info{};
    info.cbSize = sizeof(info);
    ::GetMonitorInfo(::MonitorFromWindow(hwnd, MONITOR_DEFAULTTONEAREST), &info);
    return info.rcWork;
}

// Where something of this length starts so that it is centred, but does not leave the bounds.
int centred(int low, int high, int length, int least, int most) {
    const int at = static_cast<int>((static_cast<long long>(low) + high - length) / 2);
    return std::max(std::min(at, most - length), least);
}

} // namespace

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    const DWORD wanted = (GetStyle() & ~dwRemove) | dwAdd;
    if (wanted == GetStyle())
        return FALSE;
    ::SetWindowLongPtr(m_hWnd, GWL_STYLE, static_cast<LONG>(wanted));
    if (nFlags != 0)
        SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | nFlags);
    return TRUE;
}

void CWnd::GetWindowText(CString& rString) const {
    rString = text_of(m_hWnd);
}

int CWnd::GetDlgItemText(int nID, CString& rString) const {
    rString = text_of(::GetDlgItem(m_hWnd, nID));
    return rString.GetLength();
}

BOOL CWnd::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw) {
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    ::SetScrollInfo(m_hWnd, nBar, lpScrollInfo, bRedraw);
    return TRUE;
}

BOOL CWnd::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask) {
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    lpScrollInfo->fMask |= nMask;
    return ::GetScrollInfo(m_hWnd, nBar, lpScrollInfo);
}

void CWnd::CenterWindow(CWnd* pAlternateOwner) {
    const bool child = (GetStyle() & WS_CHILD) != 0;
    HWND over = pAlternateOwner->GetSafeHwnd();
    if (over == nullptr)
        over = child ? ::GetParent(m_hWnd) : ::GetWindow(m_hWnd, GW_OWNER);
    const bool visible = over != nullptr && ::IsWindowVisible(over) && !::IsIconic(over);

    CRect own, target, bounds;
    GetWindowRect(own);
    if (child) {
        ::GetClientRect(::GetParent(m_hWnd), bounds);
        ::GetClientRect(over, target);
        ::MapWindowPoints(over, ::GetParent(m_hWnd), reinterpret_cast<LPPOINT>(&target), 2);
    } else {
        bounds = work_area(visible ? over : m_hWnd);
        target = bounds;
        if (visible)
            ::GetWindowRect(over, target);
    }
    const int x = centred(target.left, target.right, own.Width(), bounds.left, bounds.right);
    const int y = centred(target.top, target.bottom, own.Height(), bounds.top, bounds.bottom);
    SetWindowPos(nullptr, x, y, -1, -1, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}
