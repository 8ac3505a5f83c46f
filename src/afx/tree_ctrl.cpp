#include "afxcmn.h"
#include "control_images.h"

IMPLEMENT_DYNCREATE(CTreeCtrl, CWnd)

BEGIN_MESSAGE_MAP(CTreeCtrl, CWnd)
ON_WM_DESTROY()
END_MESSAGE_MAP()

BOOL CTreeCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    ::InitCommonControls();
    return CWnd::Create(WC_TREEVIEW, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CTreeCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    ::InitCommonControls();
    return CWnd::CreateEx(dwExStyle, WC_TREEVIEW, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

void CTreeCtrl::RemoveImageList(int nImageList) {
    release_image_list(*this, nImageList, TVM_GETIMAGELIST, TVM_SETIMAGELIST);
}

void CTreeCtrl::OnDestroy() {
    RemoveImageList(TVSIL_NORMAL);
    RemoveImageList(TVSIL_STATE);
    CWnd::OnDestroy();
}

BOOL CTreeCtrl::SetItem(HTREEITEM hItem, UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                        UINT nStateMask, LPARAM lParam) {
    return SetItemEx(hItem, nMask, lpszItem, nImage, nSelectedImage, nState, nStateMask, lParam, 0, nullptr, 0);
}

BOOL CTreeCtrl::SetItemEx(HTREEITEM hItem, UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                          UINT nStateMask, LPARAM lParam, UINT uStateEx, HWND hWnd, int iExpandedImage) {
    TVITEMEX item{};
    item.hItem = hItem;
    item.mask = nMask;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.iSelectedImage = nSelectedImage;
    item.state = nState;
    item.stateMask = nStateMask;
    item.lParam = lParam;
    item.uStateEx = uStateEx;
    item.hwnd = hWnd;
    item.iExpandedImage = iExpandedImage;
    return Ask(TVM_SETITEM, &item);
}

UINT CTreeCtrl::GetItemStateEx(HTREEITEM hItem) const {
    TVITEMEX item{};
    item.hItem = hItem;
    item.mask = TVIF_STATEEX;
    return Ask(TVM_GETITEM, &item) ? item.uStateEx : 0;
}

int CTreeCtrl::GetItemExpandedImageIndex(HTREEITEM hItem) const {
    TVITEMEX item{};
    item.hItem = hItem;
    item.mask = TVIF_EXPANDEDIMAGE;
    return Ask(TVM_GETITEM, &item) ? item.iExpandedImage : 0;
}

BOOL CTreeCtrl::GetItemPartRect(HTREEITEM hItem, TVITEMPART nPart, LPRECT lpRect) {
    TVGETITEMPARTRECTINFO part{hItem, lpRect, nPart};
    return Ask(TVM_GETITEMPARTRECT, &part);
}

HTREEITEM CTreeCtrl::InsertItem(UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                                UINT nStateMask, LPARAM lParam, HTREEITEM hParent, HTREEITEM hInsertAfter) {
    TVINSERTSTRUCT place{};
    place.hParent = hParent;
    place.hInsertAfter = hInsertAfter;
    place.item.mask = nMask;
    place.item.pszText = const_cast<LPTSTR>(lpszItem);
    place.item.iImage = nImage;
    place.item.iSelectedImage = nSelectedImage;
    place.item.state = nState;
    place.item.stateMask = nStateMask;
    place.item.lParam = lParam;
    return InsertItem(&place);
}

// The control does not tell how long a text is.
CString CTreeCtrl::GetItemText(HTREEITEM hItem) const {
    CString text;
    for (int room = 128;; room *= 2) {
        TVITEM item{};
        item.hItem = hItem;
        item.mask = TVIF_TEXT;
        item.cchTextMax = room;
        item.pszText = text.GetBufferSetLength(room);
        *item.pszText = '\0';
        GetItem(&item);
        const CString found = item.pszText;
        if (found.GetLength() < room - 1)
            return found;
    }
}

BOOL CTreeCtrl::GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const {
    TVITEM item{};
    item.hItem = hItem;
    item.mask = TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    const BOOL found = GetItem(&item);
    nImage = item.iImage;
    nSelectedImage = item.iSelectedImage;
    return found;
}

UINT CTreeCtrl::GetItemState(HTREEITEM hItem, UINT nStateMask) const {
    TVITEM item{};
    item.hItem = hItem;
    item.mask = TVIF_STATE;
    item.stateMask = nStateMask;
    return GetItem(&item) ? item.state & nStateMask : 0;
}

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM hItem) const {
    TVITEM item{};
    item.hItem = hItem;
    item.mask = TVIF_PARAM;
    GetItem(&item);
    return static_cast<DWORD_PTR>(item.lParam);
}

BOOL CTreeCtrl::GetCheck(HTREEITEM hItem) const {
    return (GetItemState(hItem, TVIS_STATEIMAGEMASK) >> 12) == 2;
}

BOOL CTreeCtrl::SetCheck(HTREEITEM hItem, BOOL fCheck) {
    return SetItemState(hItem, INDEXTOSTATEIMAGEMASK(fCheck ? 2 : 1), TVIS_STATEIMAGEMASK);
}

BOOL CTreeCtrl::ItemHasChildren(HTREEITEM hItem) const {
    TVITEM item{};
    item.hItem = hItem;
    item.mask = TVIF_CHILDREN;
    GetItem(&item);
    return item.cChildren;
}

BOOL CTreeCtrl::GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const {
    *reinterpret_cast<HTREEITEM*>(lpRect) = hItem; // where the message wants it
    return afx_int(SendMessage(TVM_GETITEMRECT, static_cast<WPARAM>(bTextOnly), afx_param(lpRect)));
}

HTREEITEM CTreeCtrl::HitTest(CPoint pt, UINT* pFlags) const {
    TVHITTESTINFO place{};
    place.pt = pt;
    const HTREEITEM item = HitTest(&place);
    if (pFlags != nullptr)
        *pFlags = place.flags;
    return item;
}

CEdit* CTreeCtrl::EditLabel(HTREEITEM hItem) {
    return static_cast<CEdit*>(
        CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(TVM_EDITLABEL, 0, afx_param(hItem)))));
}

CEdit* CTreeCtrl::GetEditControl() const {
    return static_cast<CEdit*>(CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(TVM_GETEDITCONTROL))));
}

CToolTipCtrl* CTreeCtrl::GetToolTips() const {
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(TVM_GETTOOLTIPS))));
}

CToolTipCtrl* CTreeCtrl::SetToolTips(CToolTipCtrl* pWndTip) {
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(
        reinterpret_cast<HWND>(SendMessage(TVM_SETTOOLTIPS, reinterpret_cast<WPARAM>(pWndTip->GetSafeHwnd())))));
}
