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

namespace {

BOOL modify_style(HWND hwnd, int which, DWORD remove, DWORD add, UINT flags) {
    const auto now = static_cast<DWORD>(::GetWindowLongPtr(hwnd, which)), wanted = (now & ~remove) | add;
    if (wanted == now)
        return FALSE;
    ::SetWindowLongPtr(hwnd, which, static_cast<LONG>(wanted));
    if (flags != 0)
        ::SetWindowPos(hwnd, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | flags);
    return TRUE;
}

HRGN region_of(CRgn* region) {
    return static_cast<HRGN>(reinterpret_cast<CGdiObject*>(region)->GetSafeHandle());
}

// Where a bar is kept: in a control of its own, or in the window.
HWND bar_window(const CWnd* wnd, int& bar) {
    CWnd* control = bar == SB_CTL ? nullptr : reinterpret_cast<CWnd*>(wnd->GetScrollBarCtrl(bar));
    if (control == nullptr)
        return wnd->m_hWnd;
    bar = SB_CTL;
    return control->m_hWnd;
}

} // namespace

BOOL PASCAL CWnd::ModifyStyle(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return modify_style(hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL PASCAL CWnd::ModifyStyleEx(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return modify_style(hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}

void CWnd::CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType) {
    const DWORD extended =
        nAdjustType == adjustBorder ? GetExStyle() : GetExStyle() & ~static_cast<DWORD>(WS_EX_CLIENTEDGE);
    ::AdjustWindowRectEx(lpClientRect, GetStyle(), FALSE, extended);
}

CMenu* CWnd::GetMenu() const {
    return CMenu::FromHandle(::GetMenu(m_hWnd));
}

BOOL CWnd::SetMenu(CMenu* pMenu) {
    return ::SetMenu(m_hWnd, pMenu->GetSafeHmenu());
}

CFont* CWnd::GetFont() const {
    return CFont::FromHandle(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
}

BOOL CWnd::GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const {
    lpwndpl->length = sizeof(*lpwndpl);
    return ::GetWindowPlacement(m_hWnd, lpwndpl);
}

BOOL CWnd::SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl) {
    WINDOWPLACEMENT placement = *lpwndpl;
    placement.length = sizeof(placement);
    return ::SetWindowPlacement(m_hWnd, &placement);
}

int CWnd::GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton) const {
    for (int id = nIDFirstButton; id <= nIDLastButton; ++id) {
        if (IsDlgButtonChecked(id) != 0)
            return id;
    }
    return 0;
}

CDC* CWnd::GetDCEx(CRgn* prgnClip, DWORD flags) {
    return CDC::FromHandle(::GetDCEx(m_hWnd, region_of(prgnClip), flags));
}

void CWnd::Print(CDC* pDC, DWORD dwFlags) const {
    ::SendMessage(m_hWnd, WM_PRINT, reinterpret_cast<WPARAM>(pDC->GetSafeHdc()), static_cast<LPARAM>(dwFlags));
}

void CWnd::PrintClient(CDC* pDC, DWORD dwFlags) const {
    ::SendMessage(m_hWnd, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(pDC->GetSafeHdc()), static_cast<LPARAM>(dwFlags));
}

int CWnd::GetUpdateRgn(CRgn* pRgn, BOOL bErase) {
    return ::GetUpdateRgn(m_hWnd, region_of(pRgn), bErase);
}

void CWnd::InvalidateRgn(CRgn* pRgn, BOOL bErase) {
    ::InvalidateRgn(m_hWnd, region_of(pRgn), bErase);
}

void CWnd::ValidateRgn(CRgn* pRgn) {
    ::ValidateRgn(m_hWnd, region_of(pRgn));
}

BOOL CWnd::RedrawWindow(LPCRECT lpRectUpdate, CRgn* prgnUpdate, UINT flags) {
    return ::RedrawWindow(m_hWnd, lpRectUpdate, region_of(prgnUpdate), flags);
}

int CWnd::ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate,
                         LPRECT lpRectUpdate, UINT flags) {
    return ::ScrollWindowEx(m_hWnd, dx, dy, lpRectScroll, lpRectClip, region_of(prgnUpdate), lpRectUpdate, flags);
}

void CWnd::ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect, LPCRECT lpClipRect) {
    ::ScrollWindow(m_hWnd, xAmount, yAmount, lpRect, lpClipRect);
}

void CWnd::CreateCaret(CBitmap* pBitmap) {
    ::CreateCaret(m_hWnd, static_cast<HBITMAP>(pBitmap->GetSafeHandle()), 0, 0);
}

void CWnd::CreateGrayCaret(int nWidth, int nHeight) {
    ::CreateCaret(m_hWnd, reinterpret_cast<HBITMAP>(1), nWidth, nHeight);
}

CPoint PASCAL CWnd::GetCaretPos() {
    CPoint point;
    ::GetCaretPos(&point);
    return point;
}

void CWnd::GetWindowText(CString& rString) const {
    rString = text_of(m_hWnd);
}

int CWnd::GetDlgItemText(int nID, CString& rString) const {
    rString = text_of(::GetDlgItem(m_hWnd, nID));
    return rString.GetLength();
}

CScrollBar* CWnd::GetScrollBarCtrl(int nBar) const {
    return nullptr;
}

int CWnd::GetScrollPos(int nBar) const {
    const HWND window = bar_window(this, nBar);
    return ::GetScrollPos(window, nBar);
}

int CWnd::SetScrollPos(int nBar, int nPos, BOOL bRedraw) {
    const HWND window = bar_window(this, nBar);
    return ::SetScrollPos(window, nBar, nPos, bRedraw);
}

void CWnd::GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const {
    const HWND window = bar_window(this, nBar);
    ::GetScrollRange(window, nBar, lpMinPos, lpMaxPos);
}

void CWnd::SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw) {
    const HWND window = bar_window(this, nBar);
    ::SetScrollRange(window, nBar, nMinPos, nMaxPos, bRedraw);
}

BOOL CWnd::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw) {
    const HWND window = bar_window(this, nBar);
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    ::SetScrollInfo(window, nBar, lpScrollInfo, bRedraw);
    return TRUE;
}

BOOL CWnd::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask) {
    const HWND window = bar_window(this, nBar);
    lpScrollInfo->cbSize = sizeof(SCROLLINFO);
    lpScrollInfo->fMask |= nMask;
    return ::GetScrollInfo(window, nBar, lpScrollInfo);
}

// The last position at which there still is a page.
int CWnd::GetScrollLimit(int nBar) {
    SCROLLINFO info{};
    if (!GetScrollInfo(nBar, &info, SIF_RANGE | SIF_PAGE))
        return 0;
    return info.nPage > 1 ? info.nMax - static_cast<int>(info.nPage) + 1 : info.nMax;
}

void CWnd::EnableScrollBarCtrl(int nBar, BOOL bEnable) {
    for (int bar : {SB_HORZ, SB_VERT}) {
        CWnd* control = reinterpret_cast<CWnd*>(GetScrollBarCtrl(bar));
        if (control != nullptr && (nBar == bar || nBar == SB_BOTH))
            control->EnableWindow(bEnable);
        else if (control == nullptr && (nBar == bar || nBar == SB_BOTH))
            EnableScrollBar(bar, bEnable ? ESB_ENABLE_BOTH : ESB_DISABLE_BOTH);
    }
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
