// List boxes and combo boxes.
#pragma once

#include "afx_controls.h"

// Indices answered are -1 (LB_ERR) where there is none.
class ZOPAFX_API CListBox : public CWnd {
    DECLARE_DYNAMIC(CListBox)

public:
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;
    int GetCount() const { return Ask(LB_GETCOUNT); }
    int GetCurSel() const { return Ask(LB_GETCURSEL); }
    int SetCurSel(int nSelect) { return Ask(LB_SETCURSEL, nSelect); }
    int GetTopIndex() const { return Ask(LB_GETTOPINDEX); }
    int SetTopIndex(int nIndex) { return Ask(LB_SETTOPINDEX, nIndex); }
    int GetHorizontalExtent() const { return Ask(LB_GETHORIZONTALEXTENT); }
    void SetHorizontalExtent(int cxExtent) { Ask(LB_SETHORIZONTALEXTENT, cxExtent); }
    int GetSel(int nIndex) const { return Ask(LB_GETSEL, nIndex); }
    int SetSel(int nIndex, BOOL bSelect = TRUE) { return Ask(LB_SETSEL, bSelect, nIndex); }
    int GetSelCount() const { return Ask(LB_GETSELCOUNT); }
    int GetSelItems(int nMaxItems, LPINT rgIndex) const { return Ask(LB_GETSELITEMS, nMaxItems, afx_param(rgIndex)); }
    int SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem) {
        return bSelect ? Ask(LB_SELITEMRANGEEX, nFirstItem, nLastItem) : Ask(LB_SELITEMRANGEEX, nLastItem, nFirstItem);
    }
    void SetAnchorIndex(int nIndex) { Ask(LB_SETANCHORINDEX, nIndex); }
    int GetAnchorIndex() const { return Ask(LB_GETANCHORINDEX); }
    int SetCaretIndex(int nIndex, BOOL bScroll = TRUE) { return Ask(LB_SETCARETINDEX, nIndex, bScroll); }
    int GetCaretIndex() const { return Ask(LB_GETCARETINDEX); }
    DWORD_PTR GetItemData(int nIndex) const {
        return static_cast<DWORD_PTR>(SendMessage(LB_GETITEMDATA, static_cast<WPARAM>(nIndex)));
    }
    int SetItemData(int nIndex, DWORD_PTR dwItemData) {
        return Ask(LB_SETITEMDATA, nIndex, static_cast<LPARAM>(dwItemData));
    }
    void* GetItemDataPtr(int nIndex) const { return reinterpret_cast<void*>(GetItemData(nIndex)); }
    int SetItemDataPtr(int nIndex, void* pData) { return SetItemData(nIndex, reinterpret_cast<DWORD_PTR>(pData)); }
    int GetItemRect(int nIndex, LPRECT lpRect) const { return Ask(LB_GETITEMRECT, nIndex, afx_param(lpRect)); }
    int GetItemHeight(int nIndex) const { return Ask(LB_GETITEMHEIGHT, nIndex); }
    int SetItemHeight(int nIndex, UINT cyItemHeight) {
        return Ask(LB_SETITEMHEIGHT, nIndex, MAKELONG(cyItemHeight, 0));
    }
    void SetColumnWidth(int cxWidth) { Ask(LB_SETCOLUMNWIDTH, cxWidth); }
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops) {
        return Ask(LB_SETTABSTOPS, nTabStops, afx_param(rgTabStops)) != 0;
    }
    void SetTabStops() { Ask(LB_SETTABSTOPS); }
    BOOL SetTabStops(const int& cxEachStop) { return Ask(LB_SETTABSTOPS, 1, afx_param(&cxEachStop)) != 0; }
    int InitStorage(int nItems, UINT nBytes) { return Ask(LB_INITSTORAGE, nItems, nBytes); }
    DWORD GetListBoxInfo() const { return static_cast<DWORD>(SendMessage(LB_GETLISTBOXINFO)); }
    LCID GetLocale() const { return static_cast<LCID>(Ask(LB_GETLOCALE)); }
    LCID SetLocale(LCID nNewLocale) { return static_cast<LCID>(SendMessage(LB_SETLOCALE, nNewLocale)); }
    // The item nearest to a point of the client area.
    UINT ItemFromPoint(CPoint pt, BOOL& bOutside) const;

    int GetText(int nIndex, LPTSTR lpszBuffer) const { return Ask(LB_GETTEXT, nIndex, afx_param(lpszBuffer)); }
    void GetText(int nIndex, CString& rString) const;
    int GetTextLen(int nIndex) const { return Ask(LB_GETTEXTLEN, nIndex); }
    int AddString(LPCTSTR lpszItem) { return Ask(LB_ADDSTRING, 0, afx_param(lpszItem)); }
    int InsertString(int nIndex, LPCTSTR lpszItem) { return Ask(LB_INSERTSTRING, nIndex, afx_param(lpszItem)); }
    int DeleteString(UINT nIndex) { return Ask(LB_DELETESTRING, static_cast<int>(nIndex)); }
    void ResetContent() { Ask(LB_RESETCONTENT); }
    int Dir(UINT attr, LPCTSTR lpszWildCard) { return Ask(LB_DIR, static_cast<int>(attr), afx_param(lpszWildCard)); }
    int FindString(int nStartAfter, LPCTSTR lpszItem) const {
        return Ask(LB_FINDSTRING, nStartAfter, afx_param(lpszItem));
    }
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const {
        return Ask(LB_FINDSTRINGEXACT, nIndexStart, afx_param(lpszFind));
    }
    int SelectString(int nStartAfter, LPCTSTR lpszItem) {
        return Ask(LB_SELECTSTRING, nStartAfter, afx_param(lpszItem));
    }

    // Asked for owner-drawn items, and with LBS_WANTKEYBOARDINPUT for keys.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);
    virtual int VKeyToItem(UINT nKey, UINT nIndex);
    virtual int CharToItem(UINT nKey, UINT nIndex);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    int Ask(UINT message, int wParam = 0, LPARAM lParam = 0) const {
        return afx_int(SendMessage(message, static_cast<WPARAM>(wParam), lParam));
    }
};

// An edit control or a text above a list. Indices answered are -1 (CB_ERR) where there is none.
class ZOPAFX_API CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)

public:
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;
    int GetCount() const { return Ask(CB_GETCOUNT); }
    int GetCurSel() const { return Ask(CB_GETCURSEL); }
    int SetCurSel(int nSelect) { return Ask(CB_SETCURSEL, nSelect); }
    int GetTopIndex() const { return Ask(CB_GETTOPINDEX); }
    int SetTopIndex(int nIndex) { return Ask(CB_SETTOPINDEX, nIndex); }
    LCID GetLocale() const { return static_cast<LCID>(Ask(CB_GETLOCALE)); }
    LCID SetLocale(LCID nNewLocale) { return static_cast<LCID>(SendMessage(CB_SETLOCALE, nNewLocale)); }
    int InitStorage(int nItems, UINT nBytes) { return Ask(CB_INITSTORAGE, nItems, nBytes); }
    void SetHorizontalExtent(UINT nExtent) { SendMessage(CB_SETHORIZONTALEXTENT, nExtent); }
    UINT GetHorizontalExtent() const { return static_cast<UINT>(Ask(CB_GETHORIZONTALEXTENT)); }
    int SetDroppedWidth(UINT nWidth) { return afx_int(SendMessage(CB_SETDROPPEDWIDTH, nWidth)); }
    int GetDroppedWidth() const { return Ask(CB_GETDROPPEDWIDTH); }
    DWORD GetEditSel() const { return static_cast<DWORD>(SendMessage(CB_GETEDITSEL)); }
    BOOL SetEditSel(int nStartChar, int nEndChar) { return Ask(CB_SETEDITSEL, 0, MAKELONG(nStartChar, nEndChar)); }
    BOOL LimitText(int nMaxChars) { return Ask(CB_LIMITTEXT, nMaxChars); }
    DWORD_PTR GetItemData(int nIndex) const {
        return static_cast<DWORD_PTR>(SendMessage(CB_GETITEMDATA, static_cast<WPARAM>(nIndex)));
    }
    int SetItemData(int nIndex, DWORD_PTR dwItemData) {
        return Ask(CB_SETITEMDATA, nIndex, static_cast<LPARAM>(dwItemData));
    }
    void* GetItemDataPtr(int nIndex) const { return reinterpret_cast<void*>(GetItemData(nIndex)); }
    int SetItemDataPtr(int nIndex, void* pData) { return SetItemData(nIndex, reinterpret_cast<DWORD_PTR>(pData)); }
    int GetLBText(int nIndex, LPTSTR lpszText) const { return Ask(CB_GETLBTEXT, nIndex, afx_param(lpszText)); }
    void GetLBText(int nIndex, CString& rString) const;
    int GetLBTextLen(int nIndex) const { return Ask(CB_GETLBTEXTLEN, nIndex); }
    // -1: the edit control's or the text's.
    int SetItemHeight(int nIndex, UINT cyItemHeight) {
        return Ask(CB_SETITEMHEIGHT, nIndex, MAKELONG(cyItemHeight, 0));
    }
    int GetItemHeight(int nIndex) const { return Ask(CB_GETITEMHEIGHT, nIndex); }
    int SetExtendedUI(BOOL bExtended = TRUE) { return Ask(CB_SETEXTENDEDUI, bExtended); }
    BOOL GetExtendedUI() const { return Ask(CB_GETEXTENDEDUI); }
    void GetDroppedControlRect(LPRECT lprect) const { Ask(CB_GETDROPPEDCONTROLRECT, 0, afx_param(lprect)); }
    BOOL GetDroppedState() const { return Ask(CB_GETDROPPEDSTATE); }
    void ShowDropDown(BOOL bShowIt = TRUE) { Ask(CB_SHOWDROPDOWN, bShowIt); }
    BOOL GetComboBoxInfo(PCOMBOBOXINFO pcbi) const {
        pcbi->cbSize = sizeof(*pcbi);
        return ::GetComboBoxInfo(m_hWnd, pcbi);
    }
    // These need version 6 of the common controls; FALSE, 0 or an empty text without it.
    BOOL SetMinVisibleItems(int nMinVisibleItems) { return Ask(CB_SETMINVISIBLE, nMinVisibleItems); }
    int GetMinVisible() const { return Ask(CB_GETMINVISIBLE); }
    BOOL SetCueBanner(LPCTSTR lpszText);
    CString GetCueBanner() const;
    // FALSE, too, for a text that the room is too small for.
    BOOL GetCueBanner(LPTSTR lpszText, int cchText) const;

    int AddString(LPCTSTR lpszString) { return Ask(CB_ADDSTRING, 0, afx_param(lpszString)); }
    int DeleteString(UINT nIndex) { return Ask(CB_DELETESTRING, static_cast<int>(nIndex)); }
    int InsertString(int nIndex, LPCTSTR lpszString) { return Ask(CB_INSERTSTRING, nIndex, afx_param(lpszString)); }
    void ResetContent() { Ask(CB_RESETCONTENT); }
    int Dir(UINT attr, LPCTSTR lpszWildCard) { return Ask(CB_DIR, static_cast<int>(attr), afx_param(lpszWildCard)); }
    int FindString(int nStartAfter, LPCTSTR lpszString) const {
        return Ask(CB_FINDSTRING, nStartAfter, afx_param(lpszString));
    }
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const {
        return Ask(CB_FINDSTRINGEXACT, nIndexStart, afx_param(lpszFind));
    }
    int SelectString(int nStartAfter, LPCTSTR lpszString) {
        return Ask(CB_SELECTSTRING, nStartAfter, afx_param(lpszString));
    }
    void Clear() { SendMessage(WM_CLEAR); }
    void Copy() { SendMessage(WM_COPY); }
    void Cut() { SendMessage(WM_CUT); }
    void Paste() { SendMessage(WM_PASTE); }

    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    int Ask(UINT message, int wParam = 0, LPARAM lParam = 0) const {
        return afx_int(SendMessage(message, static_cast<WPARAM>(wParam), lParam));
    }
};

// A list box with a check box before each text. It is owner drawn with strings: LBS_HASSTRINGS and
// LBS_OWNERDRAWFIXED or LBS_OWNERDRAWVARIABLE in its template, set by Create itself. Who clicks a box, or presses the
// space bar, changes its state; the parent is told by CLBN_CHKCHANGE.
class ZOPAFX_API CCheckListBox : public CListBox {
    DECLARE_DYNAMIC(CCheckListBox)
    DECLARE_MESSAGE_MAP()

public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;
    using CWnd::Create;
    // BS_CHECKBOX, BS_AUTOCHECKBOX, BS_3STATE or BS_AUTO3STATE.
    void SetCheckStyle(UINT nStyle) { m_nStyle = nStyle; }
    UINT GetCheckStyle() { return m_nStyle; }
    void SetCheck(int nIndex, int nCheck);
    int GetCheck(int nIndex);
    void Enable(int nIndex, BOOL bEnabled = TRUE);
    BOOL IsEnabled(int nIndex);
    // Where the box is drawn; the text is drawn in what is left.
    virtual CRect OnGetCheckPosition(CRect rectItem, CRect rectCheckBox);

    void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) override;
    void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct) override;

protected:
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    int CalcMinimumItemHeight();
    void InvalidateItem(int nIndex);
    void InvalidateCheck(int nIndex);
    int CheckFromPoint(CPoint point, BOOL& bInCheck);

private:
    // What an item has besides its text; the program's number stands in it.
    struct check_state {
        DWORD_PTR data;
        int check;
        BOOL enabled;
    };
    check_state* State(int index) const;
    check_state* NeedState(int index);
    void DropState(int index);
    void Toggle(int index);

    UINT m_nStyle = BS_AUTOCHECKBOX;
};

#define CLBN_CHKCHANGE 40
#define ON_CLBN_CHKCHANGE(id, memberFxn) ON_CONTROL(CLBN_CHKCHANGE, id, memberFxn)
