// Menus.
#pragma once

#include "afx_object.h"

class CWnd;

// Owns a menu's handle and destroys it with itself.
class ZOPAFX_API CMenu : public CObject {
    DECLARE_DYNCREATE(CMenu)

public:
    CMenu() = default;
    ~CMenu() override;

    HMENU m_hMenu = nullptr;

    BOOL CreatePopupMenu(); // FALSE where the object holds a menu already
    BOOL DestroyMenu();
    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr) {
        return ::AppendMenu(m_hMenu, nFlags, nIDNewItem, lpszNewItem);
    }
    UINT GetMenuItemCount() const { return static_cast<UINT>(::GetMenuItemCount(m_hMenu)); }
    // Screen coordinates. With TPM_RETURNCMD the command is the result instead of a message to pWnd.
    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect = nullptr);
};
