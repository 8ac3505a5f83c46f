#include "afx_menu.h"
#include "afx_wnd.h"

#include <utility>

IMPLEMENT_DYNCREATE(CMenu, CObject)

CMenu::~CMenu() {
    DestroyMenu();
}

BOOL CMenu::CreatePopupMenu() {
    if (m_hMenu != nullptr)
        return FALSE;
    m_hMenu = ::CreatePopupMenu();
    return m_hMenu != nullptr;
}

BOOL CMenu::DestroyMenu() {
    const HMENU handle = std::exchange(m_hMenu, nullptr);
    return handle != nullptr && ::DestroyMenu(handle);
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect) {
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, pWnd->GetSafeHwnd(), lpRect);
}
