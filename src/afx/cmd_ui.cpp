#include "afx_cmdtarget.h"
#include "afx_menu.h"
#include "afx_wnd.h"

CCmdUI::~CCmdUI() = default;

void CCmdUI::Enable(BOOL bOn) {
    if (m_pMenu != nullptr) {
        if (m_pSubMenu != nullptr)
            return; // a popup is not a command
        m_pMenu->EnableMenuItem(m_nIndex, MF_BYPOSITION | (bOn ? MF_ENABLED : MF_DISABLED | MF_GRAYED));
    } else if (m_pOther != nullptr) {
        m_pOther->EnableWindow(bOn);
    }
    m_bEnableChanged = TRUE;
}

void CCmdUI::SetCheck(int nCheck) {
    if (m_pMenu != nullptr) {
        if (m_pSubMenu == nullptr)
            m_pMenu->CheckMenuItem(m_nIndex, MF_BYPOSITION | (nCheck != 0 ? MF_CHECKED : MF_UNCHECKED));
    } else if (m_pOther != nullptr && (m_pOther->SendMessage(WM_GETDLGCODE) & DLGC_BUTTON) != 0) {
        m_pOther->SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck));
    }
}

void CCmdUI::SetText(LPCTSTR lpszText) {
    if (m_pMenu != nullptr) {
        if (m_pSubMenu != nullptr)
            return;
        const UINT state = m_pMenu->GetMenuState(m_nIndex, MF_BYPOSITION);
        m_pMenu->ModifyMenu(m_nIndex, MF_BYPOSITION | MF_STRING | (state & (MF_CHECKED | MF_DISABLED | MF_GRAYED)),
                            m_nID, lpszText);
    } else if (m_pOther != nullptr) {
        CString shown;
        m_pOther->GetWindowText(shown);
        if (shown != lpszText) // an equal text would only flicker
            m_pOther->SetWindowText(lpszText);
    }
}

BOOL CCmdUI::DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler) {
    m_bEnableChanged = FALSE;
    const BOOL handled = pTarget->OnCmdMsg(m_nID, CN_UPDATE_COMMAND_UI, this, nullptr);
    if (bDisableIfNoHndler && !m_bEnableChanged) {
        AFX_CMDHANDLERINFO info{};
        Enable(pTarget->OnCmdMsg(m_nID, CN_COMMAND, this, &info));
    }
    return handled;
}
