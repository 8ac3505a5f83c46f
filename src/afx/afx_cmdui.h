// CCmdUI: the way in which a program tells menus and bars what their commands can do now.
#pragma once

#include "afx_cmdtarget.h"

class CMenu;
class CWnd;

// Handed to the handlers of ON_UPDATE_COMMAND_UI: one item of a menu or bar, or a control that shows a command.
class ZOPAFX_API CCmdUI {
public:
    CCmdUI() = default;
    virtual ~CCmdUI() = default;

    virtual void Enable(BOOL bOn = TRUE);
    virtual void SetCheck(int nCheck = 1); // 2: neither on nor off
    virtual void SetRadio(BOOL bOn = TRUE);
    virtual void SetText(LPCTSTR lpszText);
    // In a handler: the command is not this target's after all.
    void ContinueRouting() { m_bContinueRouting = TRUE; }
    // Asks the target; where no update handler cared, a command without handler is disabled if wanted.
    BOOL DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);

    UINT m_nID = 0;
    UINT m_nIndex = 0;
    CMenu* m_pMenu = nullptr;       // where the item is one of a menu
    CMenu* m_pSubMenu = nullptr;    // where a popup stands for its first item
    CMenu* m_pParentMenu = nullptr; // the menu that holds m_pMenu
    CWnd* m_pOther = nullptr;       // where it is something else
    BOOL m_bEnableChanged = FALSE;
    BOOL m_bContinueRouting = FALSE;
    UINT m_nIndexMax = 0; // how many items there are

private:
    void EnableMenuItem(BOOL on);
};
