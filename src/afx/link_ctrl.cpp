#include "afx_link_ctrl.h"
#include "control_classes.h"

#include <cwchar>

IMPLEMENT_DYNAMIC(CLinkCtrl, CWnd)

namespace {

LITEM item_of(int link, UINT mask) {
    LITEM item{};
    item.mask = LIF_ITEMINDEX | mask;
    item.iLink = link;
    return item;
}

bool give(const CStringW& from, CString& to) {
    to = from;
    return true;
}

bool give(const CStringW& from, LPWSTR to, UINT room) {
    if (to == nullptr || room < MAX_LINKID_TEXT || static_cast<UINT>(from.GetLength()) >= room)
        return false;
    std::wcscpy(to, from);
    return true;
}

template <std::size_t size> bool take(WCHAR (&to)[size], LPCWSTR from) {
    if (from == nullptr || wcsnlen(from, size) == size)
        return false;
    std::wcscpy(to, from);
    return true;
}

} // namespace

BOOL CLinkCtrl::Create(LPCTSTR lpszLinkMarkup, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(lpszLinkMarkup, 0, dwStyle, rect, pParentWnd, nID);
}

BOOL CLinkCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(nullptr, 0, dwStyle, rect, pParentWnd, nID);
}

BOOL CLinkCtrl::CreateEx(LPCTSTR lpszLinkMarkup, DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                         UINT nID) {
    prepare_class(ICC_LINK_CLASS);
    return CWnd::CreateEx(dwExStyle, "SysLink", lpszLinkMarkup, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CLinkCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(nullptr, dwExStyle, dwStyle, rect, pParentWnd, nID);
}

bool CLinkCtrl::Read(int link, UINT mask, CStringW& text) const {
    LITEM item = item_of(link, mask);
    if (link < 0 || !GetItem(&item))
        return false;
    text = mask == LIF_URL ? item.szUrl : item.szID;
    return true;
}

template <class... Room> bool CLinkCtrl::Give(int link, UINT mask, Room&&... room) const {
    CStringW text;
    return Read(link, mask, text) && give(text, room...);
}

BOOL CLinkCtrl::GetItemID(int iLink, CString& strID) const {
    return Give(iLink, LIF_ITEMID, strID);
}

BOOL CLinkCtrl::GetItemID(int iLink, LPWSTR szID, UINT cchID) const {
    return Give(iLink, LIF_ITEMID, szID, cchID);
}

BOOL CLinkCtrl::GetItemUrl(int iLink, CString& strUrl) const {
    return Give(iLink, LIF_URL, strUrl);
}

BOOL CLinkCtrl::GetItemUrl(int iLink, LPWSTR szUrl, UINT cchUrl) const {
    return Give(iLink, LIF_URL, szUrl, cchUrl);
}

BOOL CLinkCtrl::GetItemState(int iLink, UINT* pnState, UINT stateMask) const {
    LITEM item = item_of(iLink, LIF_STATE);
    item.stateMask = stateMask;
    if (iLink < 0 || pnState == nullptr || !GetItem(&item))
        return FALSE;
    *pnState = item.state;
    return TRUE;
}

BOOL CLinkCtrl::SetItemID(int iLink, LPCWSTR szID) {
    LITEM item = item_of(iLink, LIF_ITEMID);
    return iLink >= 0 && take(item.szID, szID) && SetItem(&item);
}

BOOL CLinkCtrl::SetItemUrl(int iLink, LPCWSTR szUrl) {
    LITEM item = item_of(iLink, LIF_URL);
    return iLink >= 0 && take(item.szUrl, szUrl) && SetItem(&item);
}

BOOL CLinkCtrl::SetItemState(int iLink, UINT state, UINT stateMask) {
    LITEM item = item_of(iLink, LIF_STATE);
    item.state = state;
    item.stateMask = stateMask;
    return iLink >= 0 && SetItem(&item);
}
