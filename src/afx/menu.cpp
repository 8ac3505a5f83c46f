#include "afx_menu.h"
#include "afx_wnd.h"
#include "handle_map.h"

IMPLEMENT_DYNCREATE(CMenu, CObject)

namespace {

auto& menus() {
    static auto& map = *new handle_map<CMenu, &CMenu::m_hMenu>;
    return map;
}

} // namespace

void delete_temporary_menus() {
    menus().delete_temporary();
}

CMenu::~CMenu() {
    DestroyMenu();
}

CMenu* PASCAL CMenu::FromHandle(HMENU hMenu) {
    return menus().any(hMenu);
}

BOOL CMenu::Attach(HMENU hMenu) {
    return menus().attach(this, hMenu);
}

HMENU CMenu::Detach() {
    return menus().detach(this);
}

BOOL CMenu::LoadMenu(LPCTSTR lpszResourceName) {
    return m_hMenu == nullptr && Attach(::LoadMenu(AfxFindResourceHandle(lpszResourceName, RT_MENU), lpszResourceName));
}

BOOL CMenu::DestroyMenu() {
    const HMENU handle = Detach();
    return handle != nullptr && ::DestroyMenu(handle);
}

int CMenu::GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const {
    const int length = ::GetMenuString(m_hMenu, nIDItem, nullptr, 0, nFlags);
    rString.Empty();
    if (length > 0) {
        ::GetMenuString(m_hMenu, nIDItem, rString.GetBuffer(length + 1), length + 1, nFlags);
        rString.ReleaseBuffer();
    }
    return rString.GetLength();
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect) {
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, pWnd->GetSafeHwnd(), lpRect);
}
