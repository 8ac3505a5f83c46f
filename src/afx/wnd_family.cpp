// The windows around a window: parents, owners, frames, descendants.
#include "afx_app.h"
#include "afx_frame.h"
#include "modal_parent.h"

namespace {

// Its parent where it is a child, else its owner.
HWND parent_or_owner(HWND hwnd) {
    CWnd* wnd = CWnd::FromHandlePermanent(hwnd);
    CWnd* owner = wnd != nullptr ? wnd->GetOwner() : nullptr;
    if (owner != nullptr)
        return owner->m_hWnd;
    return (::GetWindowLongPtr(hwnd, GWL_STYLE) & WS_CHILD) != 0 ? ::GetParent(hwnd) : ::GetWindow(hwnd, GW_OWNER);
}

} // namespace

BOOL CWnd::IsFrameWnd() const {
    return FALSE;
}

CFrameWnd* CWnd::GetParentFrame() const {
    if (GetSafeHwnd() == nullptr)
        return nullptr;
    for (CWnd* at = GetParentOwner(); at != nullptr; at = at->GetParentOwner()) {
        if (at->IsFrameWnd())
            return static_cast<CFrameWnd*>(at);
    }
    return nullptr;
}

CFrameWnd* CWnd::GetTopLevelFrame() const {
    if (GetSafeHwnd() == nullptr)
        return nullptr;
    auto* frame = const_cast<CFrameWnd*>(static_cast<const CFrameWnd*>(IsFrameWnd() ? this : GetParentFrame()));
    for (CFrameWnd* outer = frame; outer != nullptr; outer = outer->GetParentFrame())
        frame = outer;
    return frame;
}

CWnd* CWnd::GetParentOwner() const {
    return GetSafeHwnd() != nullptr ? FromHandle(parent_or_owner(m_hWnd)) : nullptr;
}

CWnd* CWnd::GetTopLevelParent() const {
    if (GetSafeHwnd() == nullptr)
        return nullptr;
    HWND top = m_hWnd;
    for (HWND at = top; at != nullptr; at = parent_or_owner(at))
        top = at;
    return FromHandle(top);
}

CWnd* PASCAL CWnd::GetSafeOwner(CWnd* pParent, HWND* pWndTop) {
    const HWND owner = modal_owner(pParent), last = last_owner(owner);
    if (pWndTop != nullptr) {
        *pWndTop = last != owner && ::IsWindowEnabled(last) ? last : nullptr;
        if (*pWndTop != nullptr)
            ::EnableWindow(last, FALSE);
    }
    return FromHandle(owner);
}

CWnd* CWnd::GetTopLevelOwner() const {
    return FromHandle(last_owner(GetSafeHwnd() != nullptr ? ::GetAncestor(m_hWnd, GA_ROOT) : nullptr));
}

BOOL CWnd::IsTopParentActive() const {
    CWnd* top = GetTopLevelParent();
    return top != nullptr && ::GetForegroundWindow() == ::GetLastActivePopup(top->m_hWnd);
}

void CWnd::ActivateTopParent() {
    HWND active = ::GetForegroundWindow();
    if (active == nullptr || !(m_hWnd == active || ::IsChild(active, m_hWnd))) {
        if (CWnd* top = GetTopLevelParent())
            top->SetForegroundWindow();
    }
}

CWnd* PASCAL CWnd::GetDescendantWindow(HWND hWnd, int nID, BOOL bOnlyPerm) {
    const auto object = [bOnlyPerm](HWND hwnd) { return bOnlyPerm ? FromHandlePermanent(hwnd) : FromHandle(hwnd); };
    if (HWND child = ::GetDlgItem(hWnd, nID)) {
        CWnd* deeper = ::GetTopWindow(child) != nullptr ? GetDescendantWindow(child, nID, bOnlyPerm) : nullptr;
        CWnd* wnd = deeper != nullptr ? deeper : object(child);
        if (wnd != nullptr)
            return wnd;
    }
    for (HWND at = ::GetTopWindow(hWnd); at != nullptr; at = ::GetWindow(at, GW_HWNDNEXT)) {
        if (CWnd* wnd = GetDescendantWindow(at, nID, bOnlyPerm))
            return wnd;
    }
    return nullptr;
}

void PASCAL CWnd::SendMessageToDescendants(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep,
                                           BOOL bOnlyPerm) {
    for (HWND at = ::GetTopWindow(hWnd); at != nullptr;) {
        HWND next = ::GetWindow(at, GW_HWNDNEXT); // this one may go
        if (!bOnlyPerm || FromHandlePermanent(at) != nullptr)
            ::SendMessage(at, message, wParam, lParam);
        if (bDeep && ::GetTopWindow(at) != nullptr)
            SendMessageToDescendants(at, message, wParam, lParam, bDeep, bOnlyPerm);
        at = ::IsWindow(next) ? next : nullptr;
    }
}

int CWnd::MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption, UINT nType) {
    return ::MessageBox(GetSafeHwnd(), lpszText, lpszCaption != nullptr ? lpszCaption : AfxGetAppName(), nType);
}
