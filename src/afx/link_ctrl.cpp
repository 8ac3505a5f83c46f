#include "afx_link_ctrl.h"

#include <algorithm>
#include <cwchar>
#include <iterator>

IMPLEMENT_DYNAMIC(CLinkCtrl, CWnd)

namespace {

LITEM item_of(int link, UINT mask) {
    LITEM item{};
    item.mask = LIF_ITEMINDEX | mask;
    item.iLink = link;
    return item;
}

template <std::size_t size> BOOL give(const WCHAR (&from)[size], LPWSTR to, UINT room) {
    if (to == nullptr || room < size)
        return FALSE;
    std::copy(std::begin(from), std::end(from), to);
    return TRUE;
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
    const INITCOMMONCONTROLSEX wanted{sizeof(wanted), ICC_LINK_CLASS};
    ::InitCommonControlsEx(&wanted);
    return CWnd::CreateEx(dwExStyle, "SysLink", lpszLinkMarkup, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

BOOL CLinkCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(nullptr, dwExStyle, dwStyle, rect, pParentWnd, nID);
}

BOOL CLinkCtrl::Read(int link, UINT mask, LITEM& item) const {
    item = item_of(link, mask);
    return link >= 0 && GetItem(&item);
}

BOOL CLinkCtrl::GetItemID(int iLink, CString& strID) const {
    LITEM item;
    if (!Read(iLink, LIF_ITEMID, item))
        return FALSE;
    strID = item.szID;
    return TRUE;
}

BOOL CLinkCtrl::GetItemID(int iLink, LPWSTR szID, UINT cchID) const {
    LITEM item;
    return Read(iLink, LIF_ITEMID, item) && give(item.szID, szID, cchID);
}

BOOL CLinkCtrl::GetItemUrl(int iLink, CString& strUrl) const {
    LITEM item;
    if (!Read(iLink, LIF_URL, item))
        return FALSE;
    strUrl = item.szUrl;
    return TRUE;
}

BOOL CLinkCtrl::GetItemUrl(int iLink, LPWSTR szUrl, UINT cchUrl) const {
    LITEM item;
    return Read(iLink, LIF_URL, item) && give(item.szUrl, szUrl, cchUrl);
}

BOOL CLinkCtrl::GetItemState(int iLink, UINT* pnState, UINT stateMask) const {
    LITEM item = item_of(iLink, LIF_STATE);
    item.stateMask = stateMask;
    if (iLink < 0 || !GetItem(&item))
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
