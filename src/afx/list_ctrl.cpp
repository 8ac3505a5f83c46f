#include "afxcmn.h"
#include "control_images.h"

#include <vector>

IMPLEMENT_DYNCREATE(CListCtrl, CWnd)

BEGIN_MESSAGE_MAP(CListCtrl, CWnd)
ON_WM_NCDESTROY()
END_MESSAGE_MAP()

BOOL CListCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    ::InitCommonControls();
    return CWnd::Create(WC_LISTVIEW, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CListCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    ::InitCommonControls();
    return CWnd::CreateEx(dwExStyle, WC_LISTVIEW, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

void CListCtrl::RemoveImageList(int nImageList) {
    release_image_list(*this, nImageList, LVM_GETIMAGELIST, LVM_SETIMAGELIST);
}

void CListCtrl::OnNcDestroy() {
    RemoveImageList(LVSIL_NORMAL);
    RemoveImageList(LVSIL_SMALL);
    RemoveImageList(LVSIL_STATE);
    CWnd::OnNcDestroy();
}

void CListCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CListCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (CWnd::OnChildNotify(message, wParam, lParam, pResult))
        return TRUE;
    if (message != WM_DRAWITEM)
        return FALSE;
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState, UINT nStateMask,
                        LPARAM lParam) {
    return SetItem(nItem, nSubItem, nMask, lpszItem, nImage, nState, nStateMask, lParam, 0);
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState, UINT nStateMask,
                        LPARAM lParam, int nIndent) {
    LVITEM item{};
    item.mask = nMask;
    item.iItem = nItem;
    item.iSubItem = nSubItem;
    item.stateMask = nStateMask;
    item.state = nState;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.lParam = lParam;
    item.iIndent = nIndent;
    return SetItem(&item);
}

int CListCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask, int nImage,
                          LPARAM lParam) {
    LVITEM item{};
    item.mask = nMask;
    item.iItem = nItem;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.state = nState;
    item.stateMask = nStateMask;
    item.iImage = nImage;
    item.lParam = lParam;
    return InsertItem(&item);
}

BOOL CListCtrl::SetItemState(int nItem, UINT nState, UINT nMask) {
    LVITEM item{};
    item.state = nState;
    item.stateMask = nMask;
    return SetItemState(nItem, &item);
}

int CListCtrl::GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const {
    LVITEM item{};
    item.iSubItem = nSubItem;
    item.cchTextMax = nLen;
    item.pszText = lpszText;
    return Ask(LVM_GETITEMTEXT, nItem, afx_param(&item));
}

// The control does not tell how long a text is.
CString CListCtrl::GetItemText(int nItem, int nSubItem) const {
    CString text;
    for (int room = 128;; room *= 2) {
        const int length = GetItemText(nItem, nSubItem, text.GetBufferSetLength(room), room);
        if (length < room - 1) {
            text.ReleaseBuffer();
            return text;
        }
    }
}

BOOL CListCtrl::SetItemText(int nItem, int nSubItem, LPCTSTR lpszText) {
    LVITEM item{};
    item.iSubItem = nSubItem;
    item.pszText = const_cast<LPTSTR>(lpszText);
    return Ask(LVM_SETITEMTEXT, nItem, afx_param(&item));
}

DWORD_PTR CListCtrl::GetItemData(int nItem) const {
    LVITEM item{};
    item.iItem = nItem;
    item.mask = LVIF_PARAM;
    GetItem(&item);
    return static_cast<DWORD_PTR>(item.lParam);
}

BOOL CListCtrl::GetCheck(int nItem) const {
    return (GetItemState(nItem, LVIS_STATEIMAGEMASK) >> 12) == 2;
}

BOOL CListCtrl::SetCheck(int nItem, BOOL fCheck) {
    return SetItemState(nItem, INDEXTOSTATEIMAGEMASK(fCheck ? 2 : 1), LVIS_STATEIMAGEMASK);
}

// A position is the item's index and one.
int CListCtrl::GetNextSelectedItem(POSITION& pos) const {
    const int item = static_cast<int>(reinterpret_cast<INT_PTR>(pos)) - 1;
    pos = Selected(item);
    return item;
}

int CListCtrl::InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat, int nWidth, int nSubItem) {
    LVCOLUMN column{};
    column.mask = LVCF_TEXT | LVCF_FMT;
    column.pszText = const_cast<LPTSTR>(lpszColumnHeading);
    column.fmt = nFormat;
    if (nWidth != -1) {
        column.mask |= LVCF_WIDTH;
        column.cx = nWidth;
    }
    if (nSubItem != -1) {
        column.mask |= LVCF_SUBITEM;
        column.iSubItem = nSubItem;
    }
    return InsertColumn(nCol, &column);
}

BOOL CListCtrl::GetColumnOrderArray(LPINT piArray, int iCount) const {
    if (iCount == -1) {
        const CHeaderCtrl* header = GetHeaderCtrl();
        iCount = header != nullptr ? header->GetItemCount() : -1;
    }
    return iCount >= 0 && Ask(LVM_GETCOLUMNORDERARRAY, iCount, afx_param(piArray));
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl() const {
    return static_cast<CHeaderCtrl*>(CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(LVM_GETHEADER))));
}

BOOL CListCtrl::GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const {
    lpRect->left = static_cast<LONG>(nCode);
    return Ask(LVM_GETITEMRECT, nItem, afx_param(lpRect));
}

BOOL CListCtrl::GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref) const {
    ref.top = iSubItem;
    ref.left = nArea;
    return Ask(LVM_GETSUBITEMRECT, iItem, afx_param(&ref));
}

BOOL CListCtrl::GetItemIndexRect(PLVITEMINDEX pItemIndex, int iColumn, int rectType, LPRECT pRect) const {
    pRect->top = iColumn;
    pRect->left = rectType;
    return afx_int(SendMessage(LVM_GETITEMINDEXRECT, reinterpret_cast<WPARAM>(pItemIndex), afx_param(pRect)));
}

BOOL CListCtrl::GetNextItemIndex(PLVITEMINDEX pItemIndex, int nFlags) const {
    return afx_int(SendMessage(LVM_GETNEXTITEMINDEX, reinterpret_cast<WPARAM>(pItemIndex), MAKELPARAM(nFlags, 0)));
}

// A control that does not know the message answers as if it had done it.
BOOL CListCtrl::SetItemIndexState(PLVITEMINDEX pItemIndex, DWORD dwState, DWORD dwMask) const {
    LVITEM item{};
    item.state = dwState;
    item.stateMask = dwMask;
    const LRESULT result = SendMessage(LVM_SETITEMINDEXSTATE, reinterpret_cast<WPARAM>(pItemIndex), afx_param(&item));
    return SUCCEEDED(static_cast<HRESULT>(result)) && GetItemState(pItemIndex->iItem, dwMask) == (dwState & dwMask);
}

BOOL CListCtrl::GetGroupRect(int iGroupId, LPRECT lpRect, int iCoords) const {
    lpRect->top = iCoords;
    return Ask(LVM_GETGROUPRECT, iGroupId, afx_param(lpRect));
}

BOOL CListCtrl::GetItemSpacing(BOOL fSmall, int* pnHorzSpacing, int* pnVertSpacing) const {
    const LRESULT spacing = SendMessage(LVM_GETITEMSPACING, static_cast<WPARAM>(fSmall));
    *pnHorzSpacing = LOWORD(spacing);
    *pnVertSpacing = HIWORD(spacing);
    return spacing != 0;
}

UINT CListCtrl::GetNumberOfWorkAreas() const {
    UINT count = 0;
    SendMessage(LVM_GETNUMBEROFWORKAREAS, 0, afx_param(&count));
    return count;
}

CToolTipCtrl* CListCtrl::GetToolTips() const {
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(LVM_GETTOOLTIPS))));
}

CToolTipCtrl* CListCtrl::SetToolTips(CToolTipCtrl* pWndTip) {
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(
        reinterpret_cast<HWND>(SendMessage(LVM_SETTOOLTIPS, reinterpret_cast<WPARAM>(pWndTip->GetSafeHwnd())))));
}

int CListCtrl::HitTest(CPoint pt, UINT* pFlags) const {
    LVHITTESTINFO place{};
    place.pt = pt;
    const int item = HitTest(&place);
    if (pFlags != nullptr)
        *pFlags = place.flags;
    return item;
}

CEdit* CListCtrl::EditLabel(int nItem) {
    return static_cast<CEdit*>(
        CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(LVM_EDITLABEL, static_cast<WPARAM>(nItem)))));
}

CEdit* CListCtrl::GetEditControl() const {
    return static_cast<CEdit*>(CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(LVM_GETEDITCONTROL))));
}

namespace {

CImageList* new_list(LRESULT handle) {
    if (handle == 0)
        return nullptr;
    auto* list = new CImageList;
    list->Attach(reinterpret_cast<HIMAGELIST>(handle));
    return list;
}

} // namespace

CImageList* CListCtrl::CreateDragImage(int nItem, LPPOINT lpPoint) {
    return new_list(SendMessage(LVM_CREATEDRAGIMAGE, static_cast<WPARAM>(nItem), afx_param(lpPoint)));
}

CImageList* CTreeCtrl::CreateDragImage(HTREEITEM hItem) {
    return new_list(SendMessage(TVM_CREATEDRAGIMAGE, 0, afx_param(hItem)));
}

namespace {

LVBKIMAGE image_record(DWORD source, BOOL tile, int x_percent, int y_percent) {
    LVBKIMAGE image{};
    image.ulFlags = source | (tile ? LVBKIF_STYLE_TILE : LVBKIF_STYLE_NORMAL);
    image.xOffsetPercent = x_percent;
    image.yOffsetPercent = y_percent;
    return image;
}

} // namespace

BOOL CListCtrl::SetBkImage(HBITMAP hbm, BOOL fTile, int xOffsetPercent, int yOffsetPercent) {
    LVBKIMAGE image = image_record(LVBKIF_SOURCE_HBITMAP, fTile, xOffsetPercent, yOffsetPercent);
    image.hbm = hbm;
    return SetBkImage(&image);
}

BOOL CListCtrl::SetBkImage(LPTSTR pszUrl, BOOL fTile, int xOffsetPercent, int yOffsetPercent) {
    LVBKIMAGE image = image_record(LVBKIF_SOURCE_URL, fTile, xOffsetPercent, yOffsetPercent);
    image.pszImage = pszUrl;
    return SetBkImage(&image);
}
