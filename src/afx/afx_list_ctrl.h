// List views and tree views.
#pragma once

#include "afx_image_list.h"

class CHeaderCtrl;
class CToolTipCtrl;

// Holds no data of its own: a list view's window object may stand for one.
class ZOPAFX_API CListCtrl : public CWnd {
    DECLARE_DYNCREATE(CListCtrl)
    DECLARE_MESSAGE_MAP()

public:
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::CreateEx;

    COLORREF GetBkColor() const { return static_cast<COLORREF>(SendMessage(LVM_GETBKCOLOR)); }
    // A picture behind the items, the control's own now, or one that an address names.
    BOOL SetBkImage(HBITMAP hbm, BOOL fTile = TRUE, int xOffsetPercent = 0, int yOffsetPercent = 0);
    BOOL SetBkImage(LPTSTR pszUrl, BOOL fTile = TRUE, int xOffsetPercent = 0, int yOffsetPercent = 0);
    BOOL SetBkImage(LVBKIMAGE* plvbkImage) { return afx_int(SendMessage(LVM_SETBKIMAGE, 0, afx_param(plvbkImage))); }
    BOOL GetBkImage(LVBKIMAGE* plvbkImage) const {
        return afx_int(SendMessage(LVM_GETBKIMAGE, 0, afx_param(plvbkImage)));
    }
    BOOL SetBkColor(COLORREF cr) { return Ask(LVM_SETBKCOLOR, 0, static_cast<LPARAM>(cr)); }
    COLORREF GetTextColor() const { return static_cast<COLORREF>(SendMessage(LVM_GETTEXTCOLOR)); }
    BOOL SetTextColor(COLORREF cr) { return Ask(LVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(cr)); }
    COLORREF GetTextBkColor() const { return static_cast<COLORREF>(SendMessage(LVM_GETTEXTBKCOLOR)); }
    BOOL SetTextBkColor(COLORREF cr) { return Ask(LVM_SETTEXTBKCOLOR, 0, static_cast<LPARAM>(cr)); }
    // A list that an object holds stays its own when the control goes.
    CImageList* GetImageList(int nImageList) const {
        return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(LVM_GETIMAGELIST, WPARAM(nImageList))));
    }
    CImageList* SetImageList(CImageList* pImageList, int nImageListType) {
        return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(
            SendMessage(LVM_SETIMAGELIST, WPARAM(nImageListType), afx_param(pImageList->GetSafeHandle()))));
    }
    DWORD GetExtendedStyle() { return static_cast<DWORD>(SendMessage(LVM_GETEXTENDEDLISTVIEWSTYLE)); }
    DWORD SetExtendedStyle(DWORD dwNewStyle) {
        return static_cast<DWORD>(SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(dwNewStyle)));
    }

    // Which states the program keeps itself: LVIS_ values.
    UINT GetCallbackMask() const { return static_cast<UINT>(Ask(LVM_GETCALLBACKMASK)); }
    BOOL SetCallbackMask(UINT nMask) { return Ask(LVM_SETCALLBACKMASK, static_cast<int>(nMask)); }
    COLORREF GetOutlineColor() const { return static_cast<COLORREF>(SendMessage(LVM_GETOUTLINECOLOR)); }
    COLORREF SetOutlineColor(COLORREF color) {
        return static_cast<COLORREF>(SendMessage(LVM_SETOUTLINECOLOR, 0, static_cast<LPARAM>(color)));
    }
    CToolTipCtrl* GetToolTips() const;
    CToolTipCtrl* SetToolTips(CToolTipCtrl* pWndTip);
    BOOL SetInfoTip(PLVSETINFOTIP plvInfoTip) { return Ask(LVM_SETINFOTIP, 0, afx_param(plvInfoTip)); }
    // What an empty control shows.
    CString GetEmptyText() const;

    int GetItemCount() const { return Ask(LVM_GETITEMCOUNT); }
    void SetItemCount(int nItems) { Ask(LVM_SETITEMCOUNT, nItems); }
    BOOL SetItemCountEx(int iCount, DWORD dwFlags = LVSICF_NOINVALIDATEALL) {
        return Ask(LVM_SETITEMCOUNT, iCount, static_cast<LPARAM>(dwFlags));
    }
    BOOL GetItem(LVITEM* pItem) const { return Ask(LVM_GETITEM, 0, afx_param(pItem)); }
    BOOL SetItem(const LVITEM* pItem) { return Ask(LVM_SETITEM, 0, afx_param(pItem)); }
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState, UINT nStateMask,
                 LPARAM lParam);
    BOOL SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState, UINT nStateMask,
                 LPARAM lParam, int nIndent);
    int InsertItem(const LVITEM* pItem) { return Ask(LVM_INSERTITEM, 0, afx_param(pItem)); }
    int InsertItem(int nItem, LPCTSTR lpszItem) { return InsertItem(LVIF_TEXT, nItem, lpszItem, 0, 0, 0, 0); }
    int InsertItem(int nItem, LPCTSTR lpszItem, int nImage) {
        return InsertItem(LVIF_TEXT | LVIF_IMAGE, nItem, lpszItem, 0, 0, nImage, 0);
    }
    int InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask, int nImage, LPARAM lParam);
    BOOL DeleteItem(int nItem) { return Ask(LVM_DELETEITEM, nItem); }
    BOOL DeleteAllItems() { return Ask(LVM_DELETEALLITEMS); }
    UINT GetItemState(int nItem, UINT nMask) const {
        return static_cast<UINT>(SendMessage(LVM_GETITEMSTATE, WPARAM(nItem), nMask));
    }
    BOOL SetItemState(int nItem, UINT nState, UINT nMask);
    BOOL SetItemState(int nItem, LVITEM* pItem) { return Ask(LVM_SETITEMSTATE, nItem, afx_param(pItem)); }
    CString GetItemText(int nItem, int nSubItem) const;
    int GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const;
    BOOL SetItemText(int nItem, int nSubItem, LPCTSTR lpszText);
    DWORD_PTR GetItemData(int nItem) const;
    BOOL SetItemData(int nItem, DWORD_PTR dwData) {
        return SetItem(nItem, 0, LVIF_PARAM, nullptr, 0, 0, 0, static_cast<LPARAM>(dwData));
    }
    BOOL GetCheck(int nItem) const;
    BOOL SetCheck(int nItem, BOOL fCheck = TRUE);
    int GetNextItem(int nItem, int nFlags) const { return Ask(LVM_GETNEXTITEM, nItem, MAKELPARAM(nFlags, 0)); }
    // Walks through the items that are selected.
    POSITION GetFirstSelectedItemPosition() const { return Selected(-1); }
    int GetNextSelectedItem(POSITION& pos) const;
    UINT GetSelectedCount() const { return static_cast<UINT>(SendMessage(LVM_GETSELECTEDCOUNT)); }
    int GetSelectionMark() { return Ask(LVM_GETSELECTIONMARK); }
    int SetSelectionMark(int iIndex) { return Ask(LVM_SETSELECTIONMARK, 0, iIndex); }
    int GetHotItem() { return Ask(LVM_GETHOTITEM); }
    int SetHotItem(int iIndex) { return Ask(LVM_SETHOTITEM, iIndex); }
    HCURSOR GetHotCursor() { return reinterpret_cast<HCURSOR>(SendMessage(LVM_GETHOTCURSOR)); }
    HCURSOR SetHotCursor(HCURSOR hc) {
        return reinterpret_cast<HCURSOR>(SendMessage(LVM_SETHOTCURSOR, 0, afx_param(hc)));
    }
    DWORD GetHoverTime() const { return static_cast<DWORD>(SendMessage(LVM_GETHOVERTIME)); }
    DWORD SetHoverTime(DWORD dwHoverTime = HOVER_DEFAULT) {
        return static_cast<DWORD>(SendMessage(LVM_SETHOVERTIME, 0, static_cast<LPARAM>(dwHoverTime)));
    }
    int FindItem(LVFINDINFO* pFindInfo, int nStart = -1) const {
        return Ask(LVM_FINDITEM, nStart, afx_param(pFindInfo));
    }
    BOOL SortItems(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData) {
        return SendMessage(LVM_SORTITEMS, dwData, reinterpret_cast<LPARAM>(pfnCompare)) != 0;
    }

    // The function is given the items' indices.
    BOOL SortItemsEx(PFNLVCOMPARE pfnCompare, DWORD_PTR dwData) {
        return SendMessage(LVM_SORTITEMSEX, dwData, reinterpret_cast<LPARAM>(pfnCompare)) != 0;
    }
    // A number that stays with an item while its index changes.
    UINT MapIndexToID(UINT index) const { return static_cast<UINT>(SendMessage(LVM_MAPINDEXTOID, index)); }
    UINT MapIDToIndex(UINT id) const { return static_cast<UINT>(SendMessage(LVM_MAPIDTOINDEX, id)); }
    BOOL IsItemVisible(int index) const { return Ask(LVM_ISITEMVISIBLE, index); }
    // An item of a group.
    BOOL GetNextItemIndex(PLVITEMINDEX pItemIndex, int nFlags) const;
    BOOL SetItemIndexState(PLVITEMINDEX pItemIndex, DWORD dwState, DWORD dwMask) const;
    BOOL GetItemIndexRect(PLVITEMINDEX pItemIndex, int iColumn, int rectType, LPRECT pRect) const;

    UINT GetSelectedColumn() const { return static_cast<UINT>(SendMessage(LVM_GETSELECTEDCOLUMN)); }
    LRESULT SetSelectedColumn(int iCol) { return SendMessage(LVM_SETSELECTEDCOLUMN, WPARAM(iCol)); }
    BOOL GetColumn(int nCol, LVCOLUMN* pColumn) const { return Ask(LVM_GETCOLUMN, nCol, afx_param(pColumn)); }
    BOOL SetColumn(int nCol, const LVCOLUMN* pColumn) { return Ask(LVM_SETCOLUMN, nCol, afx_param(pColumn)); }
    int InsertColumn(int nCol, const LVCOLUMN* pColumn) { return Ask(LVM_INSERTCOLUMN, nCol, afx_param(pColumn)); }
    int InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat = LVCFMT_LEFT, int nWidth = -1,
                     int nSubItem = -1);
    BOOL DeleteColumn(int nCol) { return Ask(LVM_DELETECOLUMN, nCol); }
    int GetColumnWidth(int nCol) const { return Ask(LVM_GETCOLUMNWIDTH, nCol); }
    BOOL SetColumnWidth(int nCol, int cx) { return Ask(LVM_SETCOLUMNWIDTH, nCol, MAKELPARAM(cx, 0)); }
    BOOL GetColumnOrderArray(LPINT piArray, int iCount = -1) const;
    BOOL SetColumnOrderArray(int iCount, LPINT piArray) {
        return Ask(LVM_SETCOLUMNORDERARRAY, iCount, afx_param(piArray));
    }
    CHeaderCtrl* GetHeaderCtrl() const;

    BOOL GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const;
    BOOL GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref) const;
    BOOL GetItemPosition(int nItem, LPPOINT lpPoint) const {
        return Ask(LVM_GETITEMPOSITION, nItem, afx_param(lpPoint));
    }
    BOOL SetItemPosition(int nItem, POINT pt) { return Ask(LVM_SETITEMPOSITION32, nItem, afx_param(&pt)); }
    BOOL GetOrigin(LPPOINT lpPoint) const { return Ask(LVM_GETORIGIN, 0, afx_param(lpPoint)); }
    BOOL GetViewRect(LPRECT lpRect) const { return Ask(LVM_GETVIEWRECT, 0, afx_param(lpRect)); }
    int GetStringWidth(LPCTSTR lpsz) const { return Ask(LVM_GETSTRINGWIDTH, 0, afx_param(lpsz)); }
    int GetTopIndex() const { return Ask(LVM_GETTOPINDEX); }
    int GetCountPerPage() const { return Ask(LVM_GETCOUNTPERPAGE); }
    int HitTest(LVHITTESTINFO* pHitTestInfo) const { return Ask(LVM_HITTEST, 0, afx_param(pHitTestInfo)); }
    int HitTest(CPoint pt, UINT* pFlags = nullptr) const;
    int SubItemHitTest(LPLVHITTESTINFO pInfo) { return Ask(LVM_SUBITEMHITTEST, 0, afx_param(pInfo)); }
    CSize SetIconSpacing(CSize size) { return SetIconSpacing(size.cx, size.cy); }
    CSize SetIconSpacing(int cx, int cy) {
        return CSize(static_cast<DWORD>(SendMessage(LVM_SETICONSPACING, 0, MAKELONG(cx, cy))));
    }
    CSize ApproximateViewRect(CSize sz = CSize(-1, -1), int iCount = -1) const {
        return CSize(
            static_cast<DWORD>(SendMessage(LVM_APPROXIMATEVIEWRECT, WPARAM(iCount), MAKELPARAM(sz.cx, sz.cy))));
    }
    DWORD SetView(int nView) { return static_cast<DWORD>(SendMessage(LVM_SETVIEW, WPARAM(nView))); }
    DWORD GetView() const { return static_cast<DWORD>(SendMessage(LVM_GETVIEW)); }
    BOOL GetItemSpacing(BOOL fSmall, int* pnHorzSpacing, int* pnVertSpacing) const;
    BOOL GetTileInfo(PLVTILEINFO plvti) const { return Ask(LVM_GETTILEINFO, 0, afx_param(plvti)); }
    BOOL SetTileInfo(PLVTILEINFO pTileInfo) { return Ask(LVM_SETTILEINFO, 0, afx_param(pTileInfo)); }
    BOOL GetTileViewInfo(PLVTILEVIEWINFO ptvi) const { return Ask(LVM_GETTILEVIEWINFO, 0, afx_param(ptvi)); }
    BOOL SetTileViewInfo(PLVTILEVIEWINFO ptvi) { return Ask(LVM_SETTILEVIEWINFO, 0, afx_param(ptvi)); }
    // Parts of the view that icons are arranged in.
    void SetWorkAreas(int nWorkAreas, LPRECT lpRect) { Ask(LVM_SETWORKAREAS, nWorkAreas, afx_param(lpRect)); }
    void GetWorkAreas(int nWorkAreas, LPRECT pRect) const { Ask(LVM_GETWORKAREAS, nWorkAreas, afx_param(pRect)); }
    UINT GetNumberOfWorkAreas() const;
    // The mark shows where a dragged item would go.
    BOOL GetInsertMark(LPLVINSERTMARK plvim) const { return Ask(LVM_GETINSERTMARK, 0, afx_param(plvim)); }
    BOOL SetInsertMark(LPLVINSERTMARK plvim) { return Ask(LVM_SETINSERTMARK, 0, afx_param(plvim)); }
    int GetInsertMarkRect(LPRECT pRect) const { return Ask(LVM_GETINSERTMARKRECT, 0, afx_param(pRect)); }
    COLORREF GetInsertMarkColor() const { return static_cast<COLORREF>(SendMessage(LVM_GETINSERTMARKCOLOR)); }
    COLORREF SetInsertMarkColor(COLORREF color) {
        return static_cast<COLORREF>(SendMessage(LVM_SETINSERTMARKCOLOR, 0, static_cast<LPARAM>(color)));
    }
    int InsertMarkHitTest(LPPOINT pPoint, LPLVINSERTMARK plvim) const {
        return afx_int(SendMessage(LVM_INSERTMARKHITTEST, reinterpret_cast<WPARAM>(pPoint), afx_param(plvim)));
    }

    // Groups of items, whose records hold wide texts. They need version 6 of the common controls, which a program's
    // manifest asks for.
    LRESULT EnableGroupView(BOOL fEnable) { return SendMessage(LVM_ENABLEGROUPVIEW, WPARAM(fEnable)); }
    BOOL IsGroupViewEnabled() const { return Ask(LVM_ISGROUPVIEWENABLED); }
    LRESULT InsertGroup(int index, PLVGROUP pgrp) {
        return SendMessage(LVM_INSERTGROUP, WPARAM(index), afx_param(pgrp));
    }
    LRESULT InsertGroupSorted(PLVINSERTGROUPSORTED pStructInsert) {
        return SendMessage(LVM_INSERTGROUPSORTED, reinterpret_cast<WPARAM>(pStructInsert));
    }
    LRESULT RemoveGroup(int iGroupId) { return SendMessage(LVM_REMOVEGROUP, WPARAM(iGroupId)); }
    void RemoveAllGroups() { SendMessage(LVM_REMOVEALLGROUPS); }
    LRESULT MoveGroup(int iGroupId, int toIndex) { return SendMessage(LVM_MOVEGROUP, WPARAM(iGroupId), toIndex); }
    BOOL SortGroups(PFNLVGROUPCOMPARE pfnGroupCompare, LPVOID plv) {
        return afx_int(SendMessage(LVM_SORTGROUPS, reinterpret_cast<WPARAM>(pfnGroupCompare), afx_param(plv)));
    }
    BOOL HasGroup(int iGroupId) const { return Ask(LVM_HASGROUP, iGroupId); }
    int GetGroupCount() const { return Ask(LVM_GETGROUPCOUNT); }
    int GetFocusedGroup() const { return Ask(LVM_GETFOCUSEDGROUP); }
    int GetGroupInfo(int iGroupId, PLVGROUP pgrp) const { return Ask(LVM_GETGROUPINFO, iGroupId, afx_param(pgrp)); }
    int SetGroupInfo(int iGroupId, PLVGROUP pgrp) { return Ask(LVM_SETGROUPINFO, iGroupId, afx_param(pgrp)); }
    BOOL GetGroupInfoByIndex(int iIndex, PLVGROUP pGroup) const {
        return Ask(LVM_GETGROUPINFOBYINDEX, iIndex, afx_param(pGroup));
    }
    UINT GetGroupState(int iGroupId, DWORD dwMask) const {
        return static_cast<UINT>(Ask(LVM_GETGROUPSTATE, iGroupId, static_cast<LPARAM>(dwMask)));
    }
    BOOL GetGroupRect(int iGroupId, LPRECT lpRect, int iCoords = LVGGR_GROUP) const;
    void GetGroupMetrics(PLVGROUPMETRICS pGroupMetrics) const { Ask(LVM_GETGROUPMETRICS, 0, afx_param(pGroupMetrics)); }
    void SetGroupMetrics(PLVGROUPMETRICS pGroupMetrics) { Ask(LVM_SETGROUPMETRICS, 0, afx_param(pGroupMetrics)); }

    CEdit* EditLabel(int nItem);
    void CancelEditLabel() { SendMessage(LVM_CANCELEDITLABEL); }
    CEdit* GetEditControl() const;
    BOOL EnsureVisible(int nItem, BOOL bPartialOK) { return Ask(LVM_ENSUREVISIBLE, nItem, MAKELPARAM(bPartialOK, 0)); }
    BOOL Scroll(CSize size) { return Ask(LVM_SCROLL, size.cx, size.cy); }
    BOOL RedrawItems(int nFirst, int nLast) { return Ask(LVM_REDRAWITEMS, nFirst, nLast); }
    BOOL Update(int nItem) { return Ask(LVM_UPDATE, nItem); }
    BOOL Arrange(UINT nCode) { return Ask(LVM_ARRANGE, static_cast<int>(nCode)); }
    // An image for dragging the item, and where it is; the caller deletes the list.
    CImageList* CreateDragImage(int nItem, LPPOINT lpPoint);

    // Asked for the items of a list with LVS_OWNERDRAWFIXED.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    afx_msg void OnNcDestroy();
    void RemoveImageList(int nImageList);

private:
    int Ask(UINT message, int wParam = 0, LPARAM lParam = 0) const {
        return afx_int(SendMessage(message, static_cast<WPARAM>(wParam), lParam));
    }
    POSITION Selected(int after) const {
        return reinterpret_cast<POSITION>(INT_PTR{1} + GetNextItem(after, LVNI_SELECTED));
    }
};

class ZOPAFX_API CTreeCtrl : public CWnd {
    DECLARE_DYNCREATE(CTreeCtrl)
    DECLARE_MESSAGE_MAP()

public:
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::CreateEx;

    UINT GetCount() const { return static_cast<UINT>(SendMessage(TVM_GETCOUNT)); }
    UINT GetIndent() const { return static_cast<UINT>(SendMessage(TVM_GETINDENT)); }
    void SetIndent(UINT nIndent) { SendMessage(TVM_SETINDENT, nIndent); }
    CImageList* GetImageList(UINT nImageList) const {
        return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(TVM_GETIMAGELIST, nImageList)));
    }
    CImageList* SetImageList(CImageList* pImageList, int nImageListType) {
        return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(
            SendMessage(TVM_SETIMAGELIST, WPARAM(nImageListType), afx_param(pImageList->GetSafeHandle()))));
    }
    COLORREF GetBkColor() const { return static_cast<COLORREF>(SendMessage(TVM_GETBKCOLOR)); }
    COLORREF SetBkColor(COLORREF clr) { return static_cast<COLORREF>(SendMessage(TVM_SETBKCOLOR, 0, LPARAM(clr))); }
    COLORREF GetTextColor() const { return static_cast<COLORREF>(SendMessage(TVM_GETTEXTCOLOR)); }
    COLORREF SetTextColor(COLORREF clr) { return static_cast<COLORREF>(SendMessage(TVM_SETTEXTCOLOR, 0, LPARAM(clr))); }
    COLORREF SetInsertMarkColor(COLORREF clr) {
        return static_cast<COLORREF>(SendMessage(TVM_SETINSERTMARKCOLOR, 0, LPARAM(clr)));
    }
    COLORREF GetInsertMarkColor() const { return static_cast<COLORREF>(SendMessage(TVM_GETINSERTMARKCOLOR)); }
    BOOL SetInsertMark(HTREEITEM hItem, BOOL fAfter = TRUE) {
        return afx_int(SendMessage(TVM_SETINSERTMARK, WPARAM(fAfter), afx_param(hItem)));
    }
    // CLR_DEFAULT for the system's.
    COLORREF GetLineColor() const { return static_cast<COLORREF>(SendMessage(TVM_GETLINECOLOR)); }
    COLORREF SetLineColor(COLORREF clrNew = CLR_DEFAULT) {
        return static_cast<COLORREF>(SendMessage(TVM_SETLINECOLOR, 0, LPARAM(clrNew)));
    }
    UINT GetScrollTime() const { return static_cast<UINT>(SendMessage(TVM_GETSCROLLTIME)); }
    UINT SetScrollTime(UINT uScrollTime) { return static_cast<UINT>(SendMessage(TVM_SETSCROLLTIME, uScrollTime)); }
    BOOL SetAutoscrollInfo(UINT uPixelsPerSec, UINT uUpdateTime) {
        return afx_int(SendMessage(TVM_SETAUTOSCROLLINFO, uPixelsPerSec, static_cast<LPARAM>(uUpdateTime)));
    }
    DWORD GetExtendedStyle() const { return static_cast<DWORD>(SendMessage(TVM_GETEXTENDEDSTYLE)); }
    DWORD SetExtendedStyle(DWORD dwExMask, DWORD dwExStyles) {
        return static_cast<DWORD>(SendMessage(TVM_SETEXTENDEDSTYLE, dwExMask, static_cast<LPARAM>(dwExStyles)));
    }
    SHORT GetItemHeight() const { return static_cast<SHORT>(SendMessage(TVM_GETITEMHEIGHT)); }
    SHORT SetItemHeight(SHORT cyHeight) { return static_cast<SHORT>(SendMessage(TVM_SETITEMHEIGHT, WPARAM(cyHeight))); }

    HTREEITEM GetNextItem(HTREEITEM hItem, UINT nCode) const {
        return reinterpret_cast<HTREEITEM>(SendMessage(TVM_GETNEXTITEM, nCode, afx_param(hItem)));
    }
    HTREEITEM GetChildItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_CHILD); }
    HTREEITEM GetNextSiblingItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_NEXT); }
    HTREEITEM GetPrevSiblingItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_PREVIOUS); }
    HTREEITEM GetParentItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_PARENT); }
    HTREEITEM GetFirstVisibleItem() const { return GetNextItem(nullptr, TVGN_FIRSTVISIBLE); }
    HTREEITEM GetLastVisibleItem() const { return GetNextItem(nullptr, TVGN_LASTVISIBLE); }
    HTREEITEM GetNextVisibleItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_NEXTVISIBLE); }
    HTREEITEM GetPrevVisibleItem(HTREEITEM hItem) const { return GetNextItem(hItem, TVGN_PREVIOUSVISIBLE); }
    HTREEITEM GetSelectedItem() const { return GetNextItem(nullptr, TVGN_CARET); }
    HTREEITEM GetDropHilightItem() const { return GetNextItem(nullptr, TVGN_DROPHILITE); }
    HTREEITEM GetRootItem() const { return GetNextItem(nullptr, TVGN_ROOT); }
    UINT GetVisibleCount() const { return static_cast<UINT>(SendMessage(TVM_GETVISIBLECOUNT)); }
    UINT GetSelectedCount() const { return static_cast<UINT>(SendMessage(TVM_GETSELECTEDCOUNT)); }
    UINT MapItemToAccID(HTREEITEM hItem) const {
        return static_cast<UINT>(SendMessage(TVM_MAPHTREEITEMTOACCID, reinterpret_cast<WPARAM>(hItem)));
    }
    HTREEITEM MapAccIdToItem(UINT uAccId) const {
        return reinterpret_cast<HTREEITEM>(SendMessage(TVM_MAPACCIDTOHTREEITEM, uAccId));
    }

    BOOL GetItem(TVITEM* pItem) const { return Ask(TVM_GETITEM, pItem); }
    BOOL SetItem(TVITEM* pItem) { return Ask(TVM_SETITEM, pItem); }
    BOOL SetItem(HTREEITEM hItem, UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                 UINT nStateMask, LPARAM lParam);
    BOOL SetItemEx(HTREEITEM hItem, UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                   UINT nStateMask, LPARAM lParam, UINT uStateEx, HWND hWnd, int iExpandedImage);
    UINT GetItemStateEx(HTREEITEM hItem) const;
    BOOL SetItemStateEx(HTREEITEM hItem, UINT uStateEx) {
        return SetItemEx(hItem, TVIF_STATEEX, nullptr, 0, 0, 0, 0, 0, uStateEx, nullptr, 0);
    }
    int GetItemExpandedImageIndex(HTREEITEM hItem) const;
    BOOL SetItemExpandedImageIndex(HTREEITEM hItem, int iExpandedImage) {
        return SetItemEx(hItem, TVIF_EXPANDEDIMAGE, nullptr, 0, 0, 0, 0, 0, 0, nullptr, iExpandedImage);
    }
    HTREEITEM InsertItem(LPTVINSERTSTRUCT lpInsertStruct) {
        return reinterpret_cast<HTREEITEM>(SendMessage(TVM_INSERTITEM, 0, afx_param(lpInsertStruct)));
    }
    HTREEITEM InsertItem(UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState, UINT nStateMask,
                         LPARAM lParam, HTREEITEM hParent, HTREEITEM hInsertAfter);
    HTREEITEM InsertItem(LPCTSTR lpszItem, HTREEITEM hParent = TVI_ROOT, HTREEITEM hInsertAfter = TVI_LAST) {
        return InsertItem(TVIF_TEXT, lpszItem, 0, 0, 0, 0, 0, hParent, hInsertAfter);
    }
    HTREEITEM InsertItem(LPCTSTR lpszItem, int nImage, int nSelectedImage, HTREEITEM hParent = TVI_ROOT,
                         HTREEITEM hInsertAfter = TVI_LAST) {
        return InsertItem(TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE, lpszItem, nImage, nSelectedImage, 0, 0, 0,
                          hParent, hInsertAfter);
    }
    BOOL DeleteItem(HTREEITEM hItem) { return Ask(TVM_DELETEITEM, hItem); }
    BOOL DeleteAllItems() { return Ask(TVM_DELETEITEM, TVI_ROOT); }
    CString GetItemText(HTREEITEM hItem) const;
    BOOL SetItemText(HTREEITEM hItem, LPCTSTR lpszItem) { return SetItem(hItem, TVIF_TEXT, lpszItem, 0, 0, 0, 0, 0); }
    BOOL GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const;
    BOOL SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage) {
        return SetItem(hItem, TVIF_IMAGE | TVIF_SELECTEDIMAGE, nullptr, nImage, nSelectedImage, 0, 0, 0);
    }
    UINT GetItemState(HTREEITEM hItem, UINT nStateMask) const;
    BOOL SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask) {
        return SetItem(hItem, TVIF_STATE, nullptr, 0, 0, nState, nStateMask, 0);
    }
    DWORD_PTR GetItemData(HTREEITEM hItem) const;
    BOOL SetItemData(HTREEITEM hItem, DWORD_PTR dwData) {
        return SetItem(hItem, TVIF_PARAM, nullptr, 0, 0, 0, 0, static_cast<LPARAM>(dwData));
    }
    BOOL GetCheck(HTREEITEM hItem) const;
    BOOL SetCheck(HTREEITEM hItem, BOOL fCheck = TRUE);
    BOOL ItemHasChildren(HTREEITEM hItem) const;
    BOOL GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const;
    BOOL GetItemPartRect(HTREEITEM hItem, TVITEMPART nPart, LPRECT lpRect);
    HTREEITEM HitTest(TVHITTESTINFO* pHitTestInfo) const {
        return reinterpret_cast<HTREEITEM>(SendMessage(TVM_HITTEST, 0, afx_param(pHitTestInfo)));
    }
    HTREEITEM HitTest(CPoint pt, UINT* pFlags = nullptr) const;

    BOOL Expand(HTREEITEM hItem, UINT nCode) { return afx_int(SendMessage(TVM_EXPAND, nCode, afx_param(hItem))); }
    BOOL Select(HTREEITEM hItem, UINT nCode) { return afx_int(SendMessage(TVM_SELECTITEM, nCode, afx_param(hItem))); }
    BOOL SelectItem(HTREEITEM hItem) { return Select(hItem, TVGN_CARET); }
    BOOL SelectDropTarget(HTREEITEM hItem) { return Select(hItem, TVGN_DROPHILITE); }
    BOOL SelectSetFirstVisible(HTREEITEM hItem) { return Select(hItem, TVGN_FIRSTVISIBLE); }
    BOOL EnsureVisible(HTREEITEM hItem) { return Ask(TVM_ENSUREVISIBLE, hItem); }
    BOOL SortChildren(HTREEITEM hItem) { return Ask(TVM_SORTCHILDREN, hItem); }
    BOOL SortChildrenCB(LPTVSORTCB pSort) { return Ask(TVM_SORTCHILDRENCB, pSort); }
    CEdit* EditLabel(HTREEITEM hItem);
    BOOL EndEditLabelNow(BOOL fCancelWithoutSave) {
        return afx_int(SendMessage(TVM_ENDEDITLABELNOW, WPARAM(fCancelWithoutSave)));
    }
    void ShowInfoTip(HTREEITEM hItem) { SendMessage(TVM_SHOWINFOTIP, 0, afx_param(hItem)); }
    CEdit* GetEditControl() const;
    CToolTipCtrl* GetToolTips() const;
    CToolTipCtrl* SetToolTips(CToolTipCtrl* pWndTip);
    // An image for dragging the item; the caller deletes the list.
    CImageList* CreateDragImage(HTREEITEM hItem);

protected:
    afx_msg void OnDestroy();
    void RemoveImageList(int nImageList);

private:
    int Ask(UINT message, const void* lParam) const { return afx_int(SendMessage(message, 0, afx_param(lParam))); }
};
