#include "afx_split_button.h"

IMPLEMENT_DYNAMIC(CSplitButton, CButton)

BEGIN_MESSAGE_MAP(CSplitButton, CButton)
ON_NOTIFY_REFLECT(BCN_DROPDOWN, &CSplitButton::OnDropDown)
END_MESSAGE_MAP()

BOOL CSplitButton::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CButton::Create(nullptr, dwStyle | BS_SPLITBUTTON, rect, pParentWnd, nID);
}

void CSplitButton::SetDropDownMenu(UINT nMenuId, UINT nSubMenuId) {
    m_pMenu.reset();
    m_nMenuId = nMenuId;
    m_nSubMenuId = nSubMenuId;
}

void CSplitButton::SetDropDownMenu(CMenu* pMenu) {
    if (pMenu != m_pMenu.get())
        m_pMenu.reset(pMenu);
    m_nMenuId = 0;
}

void CSplitButton::OnDropDown(NMHDR*, LRESULT* pResult) {
    *pResult = 0;
    CMenu bar;
    if (const auto own = m_pMenu)
        ShowUnderButton(*own);
    else if (m_nMenuId != 0 && bar.LoadMenu(m_nMenuId))
        if (CMenu* menu = bar.GetSubMenu(static_cast<int>(m_nSubMenuId)))
            ShowUnderButton(*menu);
}

// The button may be gone afterwards.
void CSplitButton::ShowUnderButton(CMenu& menu) {
    TPMPARAMS around{};
    around.cbSize = sizeof(around);
    GetWindowRect(&around.rcExclude);
    menu.TrackPopupMenuEx(TPM_LEFTALIGN | TPM_TOPALIGN | TPM_VERTICAL, around.rcExclude.left, around.rcExclude.bottom,
                          GetParent(), &around);
}
