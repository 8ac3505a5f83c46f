// How bars share the client area of their frame.
#include "afx_frame.h"
#include "afxpriv.h"

void AFXAPI AfxRepositionWindow(AFX_SIZEPARENTPARAMS* lpLayout, HWND hWnd, LPCRECT lpRect) {
    CRect before;
    ::GetWindowRect(hWnd, before);
    ::MapWindowPoints(nullptr, ::GetParent(hWnd), reinterpret_cast<LPPOINT>(&before), 2);
    const CRect rect = *lpRect;
    if (before == rect)
        return;
    constexpr UINT flags = SWP_NOACTIVATE | SWP_NOZORDER;
    // A window with another parent cannot be moved together with the bars.
    if (lpLayout != nullptr && lpLayout->hDWP != nullptr)
        lpLayout->hDWP =
            ::DeferWindowPos(lpLayout->hDWP, hWnd, nullptr, rect.left, rect.top, rect.Width(), rect.Height(), flags);
    else
        ::SetWindowPos(hWnd, nullptr, rect.left, rect.top, rect.Width(), rect.Height(), flags);
}

namespace {

// Every child with an id in the range, but the one that gets the rest, takes its part. Answers the latter.
HWND size_children(HWND parent, UINT first, UINT last, UINT rest, AFX_SIZEPARENTPARAMS& layout) {
    HWND left_over = nullptr;
    for (HWND at = ::GetTopWindow(parent); at != nullptr; at = ::GetWindow(at, GW_HWNDNEXT)) {
        const UINT id = static_cast<WORD>(::GetDlgCtrlID(at));
        if (id == rest)
            left_over = at;
        else if (id >= first && id <= last && CWnd::FromHandlePermanent(at) != nullptr)
            ::SendMessage(at, WM_SIZEPARENT, 0, reinterpret_cast<LPARAM>(&layout));
    }
    return left_over;
}

} // namespace

void CWnd::RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlag, LPRECT lpRectParam,
                          LPCRECT lpRectClient, BOOL bStretch) {
    AFX_SIZEPARENTPARAMS layout{};
    layout.bStretch = bStretch;
    if (lpRectClient != nullptr)
        layout.rect = *lpRectClient;
    else
        GetClientRect(&layout.rect);
    if (nFlag != reposQuery)
        layout.hDWP = ::BeginDeferWindowPos(8);
    const HWND rest = size_children(m_hWnd, nIDFirst, nIDLast, nIDLeftOver, layout);
    if (nFlag == reposQuery) {
        if (bStretch)
            *lpRectParam = layout.rect;
        else
            ::SetRect(lpRectParam, 0, 0, layout.sizeTotal.cx, layout.sizeTotal.cy);
        return;
    }
    if (rest != nullptr) {
        CWnd* wnd = FromHandle(rest);
        if (nFlag == reposExtra && lpRectParam != nullptr) {
            layout.rect.left += lpRectParam->left;
            layout.rect.top += lpRectParam->top;
            layout.rect.right -= lpRectParam->right;
            layout.rect.bottom -= lpRectParam->bottom;
        }
        wnd->CalcWindowRect(&layout.rect);
        AfxRepositionWindow(&layout, rest, &layout.rect);
    }
    if (layout.hDWP != nullptr)
        ::EndDeferWindowPos(layout.hDWP);
}
