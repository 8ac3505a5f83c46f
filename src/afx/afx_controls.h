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
};

class ZOPAFX_API CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)

public:
    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    int GetCheck() const { return static_cast<int>(SendMessage(BM_GETCHECK)); }
    void SetCheck(int nCheck) { SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck)); }
};

class ZOPAFX_API CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)

public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;
    void LimitText(int nChars = 0) { SendMessage(EM_LIMITTEXT, static_cast<WPARAM>(nChars)); }
    int GetLineCount() const { return static_cast<int>(SendMessage(EM_GETLINECOUNT)); }
};

// Indices answered by the list controls are -1 (LB_ERR, CB_ERR) where there is none.
class ZOPAFX_API CListBox : public CWnd {
    DECLARE_DYNAMIC(CListBox)

public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;
    int AddString(LPCTSTR lpszItem) { return with_text(LB_ADDSTRING, 0, lpszItem); }
    int GetCurSel() const { return static_cast<int>(SendMessage(LB_GETCURSEL)); }
    int SetCurSel(int nSelect) { return static_cast<int>(SendMessage(LB_SETCURSEL, static_cast<WPARAM>(nSelect))); }
    int GetTextLen(int nIndex) const {
        return static_cast<int>(SendMessage(LB_GETTEXTLEN, static_cast<WPARAM>(nIndex)));
    }
    int GetText(int nIndex, LPTSTR lpszBuffer) const {
        return static_cast<int>(
            SendMessage(LB_GETTEXT, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpszBuffer)));
    }
    void GetText(int nIndex, CString& rString) const;

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
    int AddString(LPCTSTR lpszString) { return with_text(CB_ADDSTRING, 0, lpszString); }
    int GetCurSel() const { return static_cast<int>(SendMessage(CB_GETCURSEL)); }
    int SetCurSel(int nSelect) { return static_cast<int>(SendMessage(CB_SETCURSEL, static_cast<WPARAM>(nSelect))); }

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
};
