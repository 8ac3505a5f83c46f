// Buttons with a menu beside them.
#pragma once

#include "afxwin.h"

#include <memory>

// The arrow shows the menu under the button; its commands go to the button's parent. The menu bar's submenus count
// from 0. The control needs version 6 of the common controls, which a program's manifest asks for.
class ZOPAFX_API CSplitButton : public CButton {
    DECLARE_DYNAMIC(CSplitButton)

public:
    CSplitButton() = default;
    CSplitButton(UINT nMenuId, UINT nSubMenuId) { SetDropDownMenu(nMenuId, nSubMenuId); }
    CSplitButton(CMenu* pMenu) { SetDropDownMenu(pMenu); }
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CButton::Create;
    void SetDropDownMenu(UINT nMenuId, UINT nSubMenuId);
    // The object deletes it.
    void SetDropDownMenu(CMenu* pMenu);

protected:
    // The parent gets no notification.
    afx_msg void OnDropDown(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

private:
    void ShowUnderButton(CMenu& menu);

    std::shared_ptr<CMenu> m_pMenu; // held while it is shown, too
    UINT m_nMenuId = 0, m_nSubMenuId = 0;
};
