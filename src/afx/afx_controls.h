// The platform's standard controls. Every operation sends the message of its name.
#pragma once

#include "afx_wnd.h"

class ZOPAFX_API CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)

public:
    virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID = 0xFFFF);
    HICON SetIcon(HICON hIcon) {
        return reinterpret_cast<HICON>(SendMessage(STM_SETICON, reinterpret_cast<WPARAM>(hIcon)));
    }
    HBITMAP SetBitmap(HBITMAP hBitmap) {
        return reinterpret_cast<HBITMAP>(SendMessage(STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(hBitmap)));
    }
};

class ZOPAFX_API CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)

public:
    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    UINT GetState() const { return static_cast<UINT>(SendMessage(BM_GETSTATE)); }
    void SetState(BOOL bHighlight) { SendMessage(BM_SETSTATE, static_cast<WPARAM>(bHighlight)); }
    int GetCheck() const { return static_cast<int>(SendMessage(BM_GETCHECK)); }
    void SetCheck(int nCheck) { SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck)); }
    UINT GetButtonStyle() const { return GetStyle() & 0xF; }
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE) { SendMessage(BM_SETSTYLE, nStyle, bRedraw); }
};

class ZOPAFX_API CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)

public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE);
    void GetSel(int& nStartChar, int& nEndChar) const;
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE) {
        SendMessage(EM_REPLACESEL, static_cast<WPARAM>(bCanUndo), reinterpret_cast<LPARAM>(lpszNewText));
    }
    void LimitText(int nChars = 0) { SendMessage(EM_LIMITTEXT, static_cast<WPARAM>(nChars)); }
    BOOL SetReadOnly(BOOL bReadOnly = TRUE) {
        return static_cast<BOOL>(SendMessage(EM_SETREADONLY, static_cast<WPARAM>(bReadOnly)));
    }
    BOOL GetModify() const { return static_cast<BOOL>(SendMessage(EM_GETMODIFY)); }
    void SetModify(BOOL bModified = TRUE) { SendMessage(EM_SETMODIFY, static_cast<WPARAM>(bModified)); }
    int GetLineCount() const { return static_cast<int>(SendMessage(EM_GETLINECOUNT)); }
};

// Indices answered by the list controls are -1 (LB_ERR, CB_ERR) where there is none.
class ZOPAFX_API CListBox : public CWnd {
    DECLARE_DYNAMIC(CListBox)

public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;
    int GetCount() const { return static_cast<int>(SendMessage(LB_GETCOUNT)); }
    int AddString(LPCTSTR lpszItem) { return with_text(LB_ADDSTRING, 0, lpszItem); }
    int InsertString(int nIndex, LPCTSTR lpszItem) { return with_text(LB_INSERTSTRING, nIndex, lpszItem); }
    int DeleteString(UINT nIndex) { return static_cast<int>(SendMessage(LB_DELETESTRING, nIndex)); }
    void ResetContent() { SendMessage(LB_RESETCONTENT); }
    int FindString(int nStartAfter, LPCTSTR lpszItem) const { return with_text(LB_FINDSTRING, nStartAfter, lpszItem); }
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const {
        return with_text(LB_FINDSTRINGEXACT, nIndexStart, lpszFind);
    }
    int SelectString(int nStartAfter, LPCTSTR lpszItem) { return with_text(LB_SELECTSTRING, nStartAfter, lpszItem); }
    int GetCurSel() const { return static_cast<int>(SendMessage(LB_GETCURSEL)); }
    int SetCurSel(int nSelect) { return static_cast<int>(SendMessage(LB_SETCURSEL, static_cast<WPARAM>(nSelect))); }
    int GetSel(int nIndex) const { return static_cast<int>(SendMessage(LB_GETSEL, static_cast<WPARAM>(nIndex))); }
    int SetSel(int nIndex, BOOL bSelect = TRUE) {
        return static_cast<int>(SendMessage(LB_SETSEL, static_cast<WPARAM>(bSelect), nIndex));
    }
    int GetTextLen(int nIndex) const {
        return static_cast<int>(SendMessage(LB_GETTEXTLEN, static_cast<WPARAM>(nIndex)));
    }
    int GetText(int nIndex, LPTSTR lpszBuffer) const {
        return static_cast<int>(
            SendMessage(LB_GETTEXT, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpszBuffer)));
    }
    void GetText(int nIndex, CString& rString) const;
    int GetTopIndex() const { return static_cast<int>(SendMessage(LB_GETTOPINDEX)); }
    int SetTopIndex(int nIndex) { return static_cast<int>(SendMessage(LB_SETTOPINDEX, static_cast<WPARAM>(nIndex))); }
    DWORD_PTR GetItemData(int nIndex) const {
        return static_cast<DWORD_PTR>(SendMessage(LB_GETITEMDATA, static_cast<WPARAM>(nIndex)));
    }
    int SetItemData(int nIndex, DWORD_PTR dwItemData) {
        return static_cast<int>(
            SendMessage(LB_SETITEMDATA, static_cast<WPARAM>(nIndex), static_cast<LPARAM>(dwItemData)));
    }
    void SetHorizontalExtent(int cxExtent) { SendMessage(LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(cxExtent)); }
    int GetItemRect(int nIndex, LPRECT lpRect) const {
        return static_cast<int>(
            SendMessage(LB_GETITEMRECT, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpRect)));
    }
    int GetItemHeight(int nIndex) const {
        return static_cast<int>(SendMessage(LB_GETITEMHEIGHT, static_cast<WPARAM>(nIndex)));
    }
    int SetItemHeight(int nIndex, UINT cyItemHeight) {
        return static_cast<int>(SendMessage(LB_SETITEMHEIGHT, static_cast<WPARAM>(nIndex), cyItemHeight));
    }

private:
    int with_text(UINT message, int index, LPCTSTR text) const {
        return static_cast<int>(SendMessage(message, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text)));
    }
};

class ZOPAFX_API CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)

public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;
    int GetCount() const { return static_cast<int>(SendMessage(CB_GETCOUNT)); }
    int AddString(LPCTSTR lpszString) { return with_text(CB_ADDSTRING, 0, lpszString); }
    int InsertString(int nIndex, LPCTSTR lpszString) { return with_text(CB_INSERTSTRING, nIndex, lpszString); }
    int DeleteString(UINT nIndex) { return static_cast<int>(SendMessage(CB_DELETESTRING, nIndex)); }
    void ResetContent() { SendMessage(CB_RESETCONTENT); }
    int FindStringExact(int nIndexStart, LPCTSTR lpszFind) const {
        return with_text(CB_FINDSTRINGEXACT, nIndexStart, lpszFind);
    }
    int SelectString(int nStartAfter, LPCTSTR lpszString) {
        return with_text(CB_SELECTSTRING, nStartAfter, lpszString);
    }
    int GetCurSel() const { return static_cast<int>(SendMessage(CB_GETCURSEL)); }
    int SetCurSel(int nSelect) { return static_cast<int>(SendMessage(CB_SETCURSEL, static_cast<WPARAM>(nSelect))); }
    void GetLBText(int nIndex, CString& rString) const;
    DWORD_PTR GetItemData(int nIndex) const {
        return static_cast<DWORD_PTR>(SendMessage(CB_GETITEMDATA, static_cast<WPARAM>(nIndex)));
    }
    int SetItemData(int nIndex, DWORD_PTR dwItemData) {
        return static_cast<int>(
            SendMessage(CB_SETITEMDATA, static_cast<WPARAM>(nIndex), static_cast<LPARAM>(dwItemData)));
    }

private:
    int with_text(UINT message, int index, LPCTSTR text) const {
        return static_cast<int>(SendMessage(message, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text)));
    }
};

class ZOPAFX_API CScrollBar : public CWnd {
    DECLARE_DYNAMIC(CScrollBar)

public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;
    int GetScrollPos() const { return ::GetScrollPos(m_hWnd, SB_CTL); }
    int SetScrollPos(int nPos, BOOL bRedraw = TRUE) { return ::SetScrollPos(m_hWnd, SB_CTL, nPos, bRedraw); }
    void GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const { ::GetScrollRange(m_hWnd, SB_CTL, lpMinPos, lpMaxPos); }
    void SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw = TRUE) {
        ::SetScrollRange(m_hWnd, SB_CTL, nMinPos, nMaxPos, bRedraw);
    }
    BOOL SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE) {
        return CWnd::SetScrollInfo(SB_CTL, lpScrollInfo, bRedraw);
    }
    BOOL GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL) {
        return CWnd::GetScrollInfo(SB_CTL, lpScrollInfo, nMask);
    }
    void ShowScrollBar(BOOL bShow = TRUE) { CWnd::ShowScrollBar(SB_CTL, bShow); }
    BOOL EnableScrollBar(UINT nArrowFlags = ESB_ENABLE_BOTH) { return ::EnableScrollBar(m_hWnd, SB_CTL, nArrowFlags); }
};
