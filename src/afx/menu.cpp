#include "afx_menu.h"
#include "afx_wnd.h"
#include "handle_map.h"

IMPLEMENT_DYNCREATE(CMenu, CObject)

namespace {

struct menu_traits {
    template <class Wanted> static CMenu* make(void* handle) {
        CMenu* menu = new Wanted;
        menu->m_hMenu = static_cast<HMENU>(handle);
        return menu;
    }
    static void forget(CMenu* menu) { menu->m_hMenu = nullptr; }
    static bool alive(void* handle) { return ::IsMenu(static_cast<HMENU>(handle)); }
};

auto& menus() {
    static auto& map = *new handle_map<CMenu, menu_traits>;
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
    ASSERT(m_hMenu == nullptr);
    if (hMenu == nullptr)
        return FALSE;
    m_hMenu = hMenu;
    menus().set_permanent(hMenu, this);
    return TRUE;
}

HMENU CMenu::Detach() {
    const HMENU handle = m_hMenu;
    if (handle != nullptr)
        menus().remove_permanent(handle, this);
    m_hMenu = nullptr;
    return handle;
}

BOOL CMenu::LoadMenu(LPCTSTR lpszResourceName) {
    return Attach(::LoadMenu(AfxFindResourceHandle(lpszResourceName, RT_MENU), lpszResourceName));
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
