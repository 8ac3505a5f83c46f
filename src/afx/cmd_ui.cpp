#include "afx_cmdui.h"
#include "afx_menu.h"
#include "afx_wnd.h"

namespace {

bool is_button(const CWnd& wnd) {
    return (wnd.SendMessage(WM_GETDLGCODE) & DLGC_BUTTON) != 0;
}

// Null where the target is no window.
HWND window_of(const CCmdTarget& target) {
    return target.IsKindOf(RUNTIME_CLASS(CWnd)) ? static_cast<const CWnd&>(target).m_hWnd : nullptr;
}

bool is_gone(HWND window) {
    return window != nullptr && !::IsWindow(window);
}

} // namespace

void CCmdUI::Enable(BOOL bOn) {
    if (m_pMenu != nullptr) {
        if (m_pSubMenu != nullptr)
            return; // a popup stays as it is
        EnableMenuItem(bOn);
    } else if (m_pOther != nullptr) {
        // The focus must not stay in a window that takes no input.
        if (!bOn && ::GetFocus() == m_pOther->m_hWnd)
            m_pOther->GetParent()->SendMessage(WM_NEXTDLGCTL, 0, FALSE);
        m_pOther->EnableWindow(bOn);
    }
    m_bEnableChanged = TRUE;
}

void CCmdUI::EnableMenuItem(BOOL on) {
    m_pMenu->EnableMenuItem(m_nIndex, MF_BYPOSITION | (on ? MF_ENABLED : MF_DISABLED | MF_GRAYED));
}

void CCmdUI::SetCheck(int nCheck) {
    if (m_pMenu != nullptr) {
        if (m_pSubMenu == nullptr)
            m_pMenu->CheckMenuItem(m_nIndex, MF_BYPOSITION | (nCheck != 0 ? MF_CHECKED : MF_UNCHECKED));
    } else if (m_pOther != nullptr && is_button(*m_pOther)) {
        m_pOther->SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck));
    }
}

void CCmdUI::SetRadio(BOOL bOn) {
    SetCheck(bOn ? 1 : 0);
    if (m_pMenu == nullptr || m_pSubMenu != nullptr)
        return;
    MENUITEMINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_FTYPE;
    ::GetMenuItemInfo(m_pMenu->m_hMenu, m_nIndex, TRUE, &info);
    info.fType |= MFT_RADIOCHECK;
    ::SetMenuItemInfo(m_pMenu->m_hMenu, m_nIndex, TRUE, &info);
}

void CCmdUI::SetText(LPCTSTR lpszText) {
    if (m_pMenu != nullptr) {
        if (m_pSubMenu != nullptr)
            return;
        MENUITEMINFO info{};
        info.cbSize = sizeof(info);
        info.fMask = MIIM_STRING;
        info.dwTypeData = const_cast<LPTSTR>(lpszText);
        ::SetMenuItemInfo(m_pMenu->m_hMenu, m_nIndex, TRUE, &info);
    } else if (m_pOther != nullptr) {
        CString before;
        m_pOther->GetWindowText(before);
        if (before != lpszText) // the same text again would flicker
            m_pOther->SetWindowText(lpszText);
    }
}

BOOL CCmdUI::DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler) {
    if (m_nID == 0 || LOWORD(m_nID) == 0xFFFF)
        return TRUE; // nothing that anybody can handle
    m_bEnableChanged = FALSE;
    const HWND shown = m_pOther->GetSafeHwnd(), asked = window_of(*pTarget);
    const BOOL updated = pTarget->OnCmdMsg(m_nID, CN_UPDATE_COMMAND_UI, this, nullptr);
    if (is_gone(shown) || is_gone(asked))
        return updated; // the handler ended it, and its object may be deleted
    if (bDisableIfNoHndler && !m_bEnableChanged) {
        AFX_CMDHANDLERINFO info{};
        Enable(pTarget->OnCmdMsg(m_nID, CN_COMMAND, this, &info));
    }
    return updated;
}
