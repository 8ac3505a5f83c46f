// Texts with links.
#pragma once

#include "afxwin.h"

// Links count from 0. An operation is FALSE for one that is not there. The control needs version 6 of the common
// controls, which a program's manifest asks for: without it none is created.
class ZOPAFX_API CLinkCtrl : public CWnd {
    DECLARE_DYNAMIC(CLinkCtrl)

public:
    CLinkCtrl() = default;
    // The markup has its links between <a href="..." id="..."> and </a>.
    virtual BOOL Create(LPCTSTR lpszLinkMarkup, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;
    virtual BOOL CreateEx(LPCTSTR lpszLinkMarkup, DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                          UINT nID);
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::CreateEx;

    int GetIdealHeight() const { return afx_int(SendMessage(LM_GETIDEALHEIGHT)); }
    // The height at this width, as well as in pSize, which gets the width that is needed.
    int GetIdealSize(int cxMaxWidth, SIZE* pSize) const {
        return afx_int(SendMessage(LM_GETIDEALHEIGHT, static_cast<WPARAM>(cxMaxWidth), afx_param(pSize)));
    }
    BOOL GetItem(PLITEM pItem) const { return Ask(LM_GETITEM, pItem); }
    BOOL SetItem(PLITEM pItem) { return Ask(LM_SETITEM, pItem); }
    BOOL HitTest(PLHITTESTINFO phti) const { return Ask(LM_HITTEST, phti); }
    // FALSE, too, for less room than MAX_LINKID_TEXT, and for a longer text.
    BOOL GetItemID(int iLink, CString& strID) const;
    BOOL GetItemID(int iLink, LPWSTR szID, UINT cchID) const;
    BOOL GetItemUrl(int iLink, CString& strUrl) const;
    BOOL GetItemUrl(int iLink, LPWSTR szUrl, UINT cchUrl) const;
    BOOL GetItemState(int iLink, UINT* pnState, UINT stateMask = LIS_FOCUSED | LIS_ENABLED | LIS_VISITED) const;
    // FALSE, too, for a text of that length.
    BOOL SetItemID(int iLink, LPCWSTR szID);
    BOOL SetItemUrl(int iLink, LPCWSTR szUrl);
    BOOL SetItemState(int iLink, UINT state, UINT stateMask = LIS_FOCUSED | LIS_ENABLED | LIS_VISITED);

private:
    template <class Record> BOOL Ask(UINT message, Record* record) const {
        return record != nullptr ? afx_int(SendMessage(message, 0, afx_param(record))) : FALSE;
    }
    bool Read(int link, UINT mask, CStringW& text) const;
    template <class... Room> bool Give(int link, UINT mask, Room&&... room) const;
};
