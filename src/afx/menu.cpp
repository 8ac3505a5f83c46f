#include "afx_menu.h"
#include "afx_gdi.h"
#include "afx_module.h"
#include "afx_wnd.h"
#include "handle_map.h"

#include <utility>

IMPLEMENT_DYNCREATE(CMenu, CObject)

namespace {

auto& menus() {
    return of_this_thread<handle_map<CMenu, &CMenu::m_hMenu>>();
}

// The platform takes a bitmap in the place of the text.
LPCTSTR as_text(const CBitmap* bitmap) {
    return static_cast<LPCTSTR>(bitmap->GetSafeHandle());
}

HBITMAP bitmap_of(const CBitmap* bitmap) {
    return static_cast<HBITMAP>(bitmap->GetSafeHandle());
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

CMenu* PASCAL CMenu::FromHandlePermanent(HMENU hMenu) {
    return menus().permanent(hMenu);
}

void PASCAL CMenu::DeleteTempMap() {
    menus().delete_temporary();
}

BOOL CMenu::Attach(HMENU hMenu) {
    return menus().attach(this, hMenu);
}

BOOL CMenu::AttachNew(HMENU hMenu) {
    if (Attach(hMenu))
        return TRUE;
    if (hMenu != nullptr)
        ::DestroyMenu(hMenu);
    return FALSE;
}

HMENU CMenu::Detach() {
    return menus().detach(this);
}

BOOL CMenu::LoadMenu(LPCTSTR lpszResourceName) {
    return AttachNew(::LoadMenu(AfxFindResourceHandle(lpszResourceName, RT_MENU), lpszResourceName));
}

BOOL CMenu::DestroyMenu() {
    const HMENU handle = m_hMenu != nullptr ? Detach() : nullptr;
    return handle != nullptr && ::DestroyMenu(handle);
}

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp) {
    return ::AppendMenu(m_hMenu, nFlags | MF_BITMAP, nIDNewItem, as_text(pBmp));
}

BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp) {
    return ::InsertMenu(m_hMenu, nPosition, nFlags | MF_BITMAP, nIDNewItem, as_text(pBmp));
}

BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp) {
    return ::ModifyMenu(m_hMenu, nPosition, nFlags | MF_BITMAP, nIDNewItem, as_text(pBmp));
}

BOOL CMenu::SetMenuItemBitmaps(UINT nPosition, UINT nFlags, const CBitmap* pBmpUnchecked, const CBitmap* pBmpChecked) {
    return ::SetMenuItemBitmaps(m_hMenu, nPosition, nFlags, bitmap_of(pBmpUnchecked), bitmap_of(pBmpChecked));
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

BOOL CMenu::GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos) {
    lpMenuItemInfo->cbSize = sizeof(*lpMenuItemInfo);
    return ::GetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

BOOL CMenu::SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos) {
    lpMenuItemInfo->cbSize = sizeof(*lpMenuItemInfo);
    return ::SetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

BOOL CMenu::InsertMenuItem(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos) {
    lpMenuItemInfo->cbSize = sizeof(*lpMenuItemInfo);
    return ::InsertMenuItem(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

namespace {

// Which menu an item that wants to be measured belongs to.
class tracking {
public:
    explicit tracking(HMENU menu) : m_outer(std::exchange(this_thread().tracked_menu, menu)) {}
    ~tracking() { this_thread().tracked_menu = m_outer; }
    tracking(const tracking&) = delete;
    tracking& operator=(const tracking&) = delete;

private:
    HMENU m_outer;
};

} // namespace

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect) {
    const tracking shown(m_hMenu);
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, pWnd->GetSafeHwnd(), lpRect);
}

BOOL CMenu::TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm) {
    const tracking shown(m_hMenu);
    return ::TrackPopupMenuEx(m_hMenu, fuFlags, x, y, pWnd->GetSafeHwnd(), lptpm);
}

void CMenu::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) {}

void CMenu::MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) {}
