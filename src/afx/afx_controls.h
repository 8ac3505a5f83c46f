// The platform's standard controls without items. An operation sends the message, or calls the platform function, of
// its name. What a control with an owner-drawn style is to show comes to its DrawItem.
#pragma once

#include "afx_wnd.h"

class CImageList;

inline int afx_int(LRESULT result) {
    return static_cast<int>(result);
}
inline LPARAM afx_param(const void* at) {
    return reinterpret_cast<LPARAM>(at);
}

class ZOPAFX_API CStatic : public CWnd {
    DECLARE_DYNAMIC(CStatic)

public:
    virtual BOOL Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID = 0xFFFF);
    HICON SetIcon(HICON hIcon) { return reinterpret_cast<HICON>(SetPicture(IMAGE_ICON, hIcon)); }
    HICON GetIcon() const { return reinterpret_cast<HICON>(SendMessage(STM_GETIMAGE, IMAGE_ICON)); }
    HBITMAP SetBitmap(HBITMAP hBitmap) { return reinterpret_cast<HBITMAP>(SetPicture(IMAGE_BITMAP, hBitmap)); }
    HBITMAP GetBitmap() const { return reinterpret_cast<HBITMAP>(SendMessage(STM_GETIMAGE, IMAGE_BITMAP)); }
    HCURSOR SetCursor(HCURSOR hCursor) { return reinterpret_cast<HCURSOR>(SetPicture(IMAGE_CURSOR, hCursor)); }
    HCURSOR GetCursor() { return reinterpret_cast<HCURSOR>(SendMessage(STM_GETIMAGE, IMAGE_CURSOR)); }
    HENHMETAFILE SetEnhMetaFile(HENHMETAFILE hMetaFile) {
        return reinterpret_cast<HENHMETAFILE>(SetPicture(IMAGE_ENHMETAFILE, hMetaFile));
    }
    HENHMETAFILE GetEnhMetaFile() const {
        return reinterpret_cast<HENHMETAFILE>(SendMessage(STM_GETIMAGE, IMAGE_ENHMETAFILE));
    }
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    LRESULT SetPicture(UINT kind, const void* picture) { return SendMessage(STM_SETIMAGE, kind, afx_param(picture)); }
};

class ZOPAFX_API CButton : public CWnd {
    DECLARE_DYNAMIC(CButton)

public:
    virtual BOOL Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    UINT GetState() const { return static_cast<UINT>(SendMessage(BM_GETSTATE)); }
    void SetState(BOOL bHighlight) { SendMessage(BM_SETSTATE, bHighlight); }
    int GetCheck() const { return afx_int(SendMessage(BM_GETCHECK)); }
    void SetCheck(int nCheck) { SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck)); }
    UINT GetButtonStyle() const { return GetStyle() & 0xFF; }
    void SetButtonStyle(UINT nStyle, BOOL bRedraw = TRUE) { SendMessage(BM_SETSTYLE, nStyle, bRedraw); }
    HICON SetIcon(HICON hIcon) {
        return reinterpret_cast<HICON>(SendMessage(BM_SETIMAGE, IMAGE_ICON, afx_param(hIcon)));
    }
    HICON GetIcon() const { return reinterpret_cast<HICON>(SendMessage(BM_GETIMAGE, IMAGE_ICON)); }
    HBITMAP SetBitmap(HBITMAP hBitmap) {
        return reinterpret_cast<HBITMAP>(SendMessage(BM_SETIMAGE, IMAGE_BITMAP, afx_param(hBitmap)));
    }
    HBITMAP GetBitmap() const { return reinterpret_cast<HBITMAP>(SendMessage(BM_GETIMAGE, IMAGE_BITMAP)); }
    HCURSOR SetCursor(HCURSOR hCursor) {
        return reinterpret_cast<HCURSOR>(SendMessage(BM_SETIMAGE, IMAGE_CURSOR, afx_param(hCursor)));
    }
    HCURSOR GetCursor() { return reinterpret_cast<HCURSOR>(SendMessage(BM_GETIMAGE, IMAGE_CURSOR)); }
    void Click() { SendMessage(BM_CLICK); }

    // These need version 6 of the common controls, which a program's manifest asks for; FALSE or 0 without it.
    BOOL GetIdealSize(LPSIZE psize) const { return Tell(BCM_GETIDEALSIZE, psize); }
    BOOL GetImageList(PBUTTON_IMAGELIST pbuttonImagelist) const { return Tell(BCM_GETIMAGELIST, pbuttonImagelist); }
    BOOL SetImageList(PBUTTON_IMAGELIST pbuttonImagelist) { return Tell(BCM_SETIMAGELIST, pbuttonImagelist); }
    BOOL GetTextMargin(RECT* pmargin) const { return Tell(BCM_GETTEXTMARGIN, pmargin); }
    BOOL SetTextMargin(RECT* pmargin) { return Tell(BCM_SETTEXTMARGIN, pmargin); }
    BOOL SetElevationRequired(BOOL fElevationRequired) { return Tell(BCM_SETSHIELD, fElevationRequired); }
    // Of command links. A note that the room is too small for is refused, and the room that it wants is told.
    BOOL SetNote(LPCTSTR lpszNote);
    CString GetNote() const;
    BOOL GetNote(LPTSTR lpszNote, UINT* cchNote) const;
    UINT GetNoteLength() const { return static_cast<UINT>(SendMessage(BCM_GETNOTELENGTH)); }
    // Of split buttons.
    BOOL SetDropDownState(BOOL fDropDown) { return afx_int(SendMessage(BCM_SETDROPDOWNSTATE, WPARAM(fDropDown))); }
    BOOL GetSplitInfo(PBUTTON_SPLITINFO pInfo) const { return Tell(BCM_GETSPLITINFO, pInfo); }
    BOOL SetSplitInfo(PBUTTON_SPLITINFO pInfo) { return Tell(BCM_SETSPLITINFO, pInfo); }
    TCHAR GetSplitGlyph() const;
    BOOL SetSplitGlyph(TCHAR chGlyph);
    CImageList* GetSplitImageList() const;
    BOOL SetSplitImageList(CImageList* pSplitImageList);
    UINT GetSplitStyle() const { return Split(BCSIF_STYLE).uSplitStyle; }
    BOOL SetSplitStyle(UINT uSplitStyle);
    BOOL GetSplitSize(LPSIZE pSize) const;
    BOOL SetSplitSize(LPSIZE pSize);
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    BOOL Tell(UINT message, const void* record) const { return afx_int(SendMessage(message, 0, afx_param(record))); }
    BOOL Tell(UINT message, BOOL flag) const { return afx_int(SendMessage(message, 0, flag)); }
    BUTTON_SPLITINFO Split(UINT mask) const;
};

// Shows bitmaps for its states: up, and where they are given, pushed, with the focus, disabled.
class ZOPAFX_API CBitmapButton : public CButton {
    DECLARE_DYNAMIC(CBitmapButton)

public:
    CBitmapButton() = default;
    CBitmapButton(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel = nullptr,
                  LPCTSTR lpszBitmapResourceFocus = nullptr, LPCTSTR lpszBitmapResourceDisabled = nullptr);
    BOOL LoadBitmaps(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel = nullptr,
                     LPCTSTR lpszBitmapResourceFocus = nullptr, LPCTSTR lpszBitmapResourceDisabled = nullptr);
    BOOL LoadBitmaps(UINT nIDBitmapResource, UINT nIDBitmapResourceSel = 0, UINT nIDBitmapResourceFocus = 0,
                     UINT nIDBitmapResourceDisabled = 0) {
        return LoadBitmaps(MAKEINTRESOURCE(nIDBitmapResource), MAKEINTRESOURCE(nIDBitmapResourceSel),
                           MAKEINTRESOURCE(nIDBitmapResourceFocus), MAKEINTRESOURCE(nIDBitmapResourceDisabled));
    }
    // Takes a dialog's button over, with the bitmaps named by its text and the letters U, D, F and X, at their size.
    BOOL AutoLoad(UINT nID, CWnd* pParent);
    void SizeToContent();

protected:
    void DrawItem(LPDRAWITEMSTRUCT lpDIS) override;

    CBitmap m_bitmap, m_bitmapSel, m_bitmapFocus, m_bitmapDisabled;
};

class ZOPAFX_API CEdit : public CWnd {
    DECLARE_DYNAMIC(CEdit)

public:
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;
    BOOL CanUndo() const { return SendMessage(EM_CANUNDO) != 0; }
    BOOL Undo() { return SendMessage(EM_UNDO) != 0; }
    void EmptyUndoBuffer() { SendMessage(EM_EMPTYUNDOBUFFER); }
    int GetLineCount() const { return afx_int(SendMessage(EM_GETLINECOUNT)); }
    BOOL GetModify() const { return SendMessage(EM_GETMODIFY) != 0; }
    void SetModify(BOOL bModified = TRUE) { SendMessage(EM_SETMODIFY, bModified); }
    void GetRect(LPRECT lpRect) const { SendMessage(EM_GETRECT, 0, afx_param(lpRect)); }
    void SetRect(LPCRECT lpRect) { SendMessage(EM_SETRECT, 0, afx_param(lpRect)); }
    void SetRectNP(LPCRECT lpRect) { SendMessage(EM_SETRECTNP, 0, afx_param(lpRect)); }
    DWORD GetSel() const { return static_cast<DWORD>(SendMessage(EM_GETSEL)); }
    void GetSel(int& nStartChar, int& nEndChar) const {
        SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&nStartChar), afx_param(&nEndChar));
    }
    void SetSel(DWORD dwSelection, BOOL bNoScroll = FALSE) {
        SetSel(static_cast<short>(LOWORD(dwSelection)), static_cast<short>(HIWORD(dwSelection)), bNoScroll);
    }
    void SetSel(int nStartChar, int nEndChar, BOOL bNoScroll = FALSE) {
        SendMessage(EM_SETSEL, static_cast<WPARAM>(nStartChar), nEndChar);
        if (!bNoScroll)
            SendMessage(EM_SCROLLCARET);
    }
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE) {
        SendMessage(EM_REPLACESEL, static_cast<WPARAM>(bCanUndo), afx_param(lpszNewText));
    }
    HLOCAL GetHandle() const { return reinterpret_cast<HLOCAL>(SendMessage(EM_GETHANDLE)); }
    void SetHandle(HLOCAL hBuffer) { SendMessage(EM_SETHANDLE, reinterpret_cast<WPARAM>(hBuffer)); }
    // No terminator behind the text; the first form finds the room in the buffer's first word.
    int GetLine(int nIndex, LPTSTR lpszBuffer) const {
        return afx_int(SendMessage(EM_GETLINE, static_cast<WPARAM>(nIndex), afx_param(lpszBuffer)));
    }
    int GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const;
    void LimitText(int nChars = 0) { SendMessage(EM_LIMITTEXT, static_cast<WPARAM>(nChars)); }
    void SetLimitText(UINT nMax) { SendMessage(EM_SETLIMITTEXT, nMax); }
    UINT GetLimitText() const { return static_cast<UINT>(SendMessage(EM_GETLIMITTEXT)); }
    int LineFromChar(int nIndex = -1) const {
        return afx_int(SendMessage(EM_LINEFROMCHAR, static_cast<WPARAM>(nIndex)));
    }
    int LineIndex(int nLine = -1) const { return afx_int(SendMessage(EM_LINEINDEX, static_cast<WPARAM>(nLine))); }
    int LineLength(int nLine = -1) const { return afx_int(SendMessage(EM_LINELENGTH, static_cast<WPARAM>(nLine))); }
    void LineScroll(int nLines, int nChars = 0) { SendMessage(EM_LINESCROLL, static_cast<WPARAM>(nChars), nLines); }
    int GetFirstVisibleLine() const { return afx_int(SendMessage(EM_GETFIRSTVISIBLELINE)); }
    BOOL FmtLines(BOOL bAddEOL) { return SendMessage(EM_FMTLINES, static_cast<WPARAM>(bAddEOL)) != 0; }
    void SetPasswordChar(TCHAR ch) { SendMessage(EM_SETPASSWORDCHAR, static_cast<WPARAM>(ch)); }
    TCHAR GetPasswordChar() const { return static_cast<TCHAR>(SendMessage(EM_GETPASSWORDCHAR)); }
    BOOL SetReadOnly(BOOL bReadOnly = TRUE) { return SendMessage(EM_SETREADONLY, bReadOnly) != 0; }
    void SetMargins(UINT nLeft, UINT nRight) {
        SendMessage(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELONG(nLeft, nRight));
    }
    DWORD GetMargins() const { return static_cast<DWORD>(SendMessage(EM_GETMARGINS)); }
    BOOL SetTabStops(int nTabStops, LPINT rgTabStops) {
        return SendMessage(EM_SETTABSTOPS, static_cast<WPARAM>(nTabStops), afx_param(rgTabStops)) != 0;
    }
    void SetTabStops() { SendMessage(EM_SETTABSTOPS); }
    BOOL SetTabStops(const int& cxEachStop) { return SendMessage(EM_SETTABSTOPS, 1, afx_param(&cxEachStop)) != 0; }
    // Shown in an empty control; the balloon stands at the caret. Version 6 of the common controls; FALSE without it.
    BOOL SetCueBanner(LPCWSTR lpszText, BOOL fDrawIfFocused = FALSE) {
        return afx_int(SendMessage(EM_SETCUEBANNER, WPARAM(fDrawIfFocused), afx_param(lpszText)));
    }
    BOOL GetCueBanner(LPWSTR lpszText, int cchText) const {
        return afx_int(SendMessage(EM_GETCUEBANNER, reinterpret_cast<WPARAM>(lpszText), cchText));
    }
    CString GetCueBanner() const;
    BOOL ShowBalloonTip(PEDITBALLOONTIP pEditBalloonTip) {
        return afx_int(SendMessage(EM_SHOWBALLOONTIP, 0, afx_param(pEditBalloonTip)));
    }
    BOOL ShowBalloonTip(LPCWSTR lpszTitle, LPCWSTR lpszText, INT ttiIcon = TTI_NONE) {
        EDITBALLOONTIP balloon{sizeof(balloon), lpszTitle, lpszText, ttiIcon};
        return ShowBalloonTip(&balloon);
    }
    BOOL HideBalloonTip() { return afx_int(SendMessage(EM_HIDEBALLOONTIP)); }
    CPoint PosFromChar(UINT nChar) const { return CPoint(SendMessage(EM_POSFROMCHAR, nChar)); }
    int CharFromPos(CPoint pt) const { return afx_int(SendMessage(EM_CHARFROMPOS, 0, MAKELPARAM(pt.x, pt.y))); }
    void Clear() { SendMessage(WM_CLEAR); }
    void Copy() { SendMessage(WM_COPY); }
    void Cut() { SendMessage(WM_CUT); }
    void Paste() { SendMessage(WM_PASTE); }
};

class ZOPAFX_API CScrollBar : public CWnd {
    DECLARE_DYNAMIC(CScrollBar)

public:
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;
    int GetScrollPos() const { return ::GetScrollPos(m_hWnd, SB_CTL); }
    int SetScrollPos(int nPos, BOOL bRedraw = TRUE) { return ::SetScrollPos(m_hWnd, SB_CTL, nPos, bRedraw); }
    void GetScrollRange(LPINT lpMinPos, LPINT lpMaxPos) const { ::GetScrollRange(m_hWnd, SB_CTL, lpMinPos, lpMaxPos); }
    void SetScrollRange(int nMinPos, int nMaxPos, BOOL bRedraw = TRUE) {
        ::SetScrollRange(m_hWnd, SB_CTL, nMinPos, nMaxPos, bRedraw);
    }
    void ShowScrollBar(BOOL bShow = TRUE) { ::ShowScrollBar(m_hWnd, SB_CTL, bShow); }
    BOOL EnableScrollBar(UINT nArrowFlags = ESB_ENABLE_BOTH) { return ::EnableScrollBar(m_hWnd, SB_CTL, nArrowFlags); }
    BOOL SetScrollInfo(LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE) {
        return CWnd::SetScrollInfo(SB_CTL, lpScrollInfo, bRedraw);
    }
    BOOL GetScrollInfo(LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL) {
        return CWnd::GetScrollInfo(SB_CTL, lpScrollInfo, nMask);
    }
    int GetScrollLimit() { return CWnd::GetScrollLimit(SB_CTL); }
    BOOL GetScrollBarInfo(PSCROLLBARINFO pScrollInfo) const {
        pScrollInfo->cbSize = sizeof(*pScrollInfo);
        return afx_int(SendMessage(SBM_GETSCROLLBARINFO, 0, afx_param(pScrollInfo)));
    }
};
