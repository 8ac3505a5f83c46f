// The platform's toolbar, and list boxes whose items are dragged.
#pragma once

#include "afx_image_list.h"

class CToolTipCtrl;

class ZOPAFX_API CToolBarCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolBarCtrl)
    DECLARE_MESSAGE_MAP()

public:
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::CreateEx;
    BOOL IsButtonEnabled(int nID) const { return Ask(TB_ISBUTTONENABLED, nID); }
    BOOL IsButtonChecked(int nID) const { return Ask(TB_ISBUTTONCHECKED, nID); }
    BOOL IsButtonPressed(int nID) const { return Ask(TB_ISBUTTONPRESSED, nID); }
    BOOL IsButtonHidden(int nID) const { return Ask(TB_ISBUTTONHIDDEN, nID); }
    BOOL IsButtonIndeterminate(int nID) const { return Ask(TB_ISBUTTONINDETERMINATE, nID); }
    BOOL EnableButton(int nID, BOOL bEnable = TRUE) { return Ask(TB_ENABLEBUTTON, nID, MAKELPARAM(bEnable, 0)); }
    BOOL CheckButton(int nID, BOOL bCheck = TRUE) { return Ask(TB_CHECKBUTTON, nID, MAKELPARAM(bCheck, 0)); }
    BOOL PressButton(int nID, BOOL bPress = TRUE) { return Ask(TB_PRESSBUTTON, nID, MAKELPARAM(bPress, 0)); }
    BOOL HideButton(int nID, BOOL bHide = TRUE) { return Ask(TB_HIDEBUTTON, nID, MAKELPARAM(bHide, 0)); }
    BOOL Indeterminate(int nID, BOOL bIndeterminate = TRUE) {
        return Ask(TB_INDETERMINATE, nID, MAKELPARAM(bIndeterminate, 0));
    }
    int GetState(int nID) const { return Ask(TB_GETSTATE, nID); }
    BOOL SetState(int nID, UINT nState) { return Ask(TB_SETSTATE, nID, MAKELPARAM(nState, 0)); }
    BOOL GetButton(int nIndex, LPTBBUTTON lpButton) const { return Ask(TB_GETBUTTON, nIndex, afx_param(lpButton)); }
    int GetButtonCount() const { return Ask(TB_BUTTONCOUNT); }
    BOOL AddButtons(int nNumButtons, LPTBBUTTON lpButtons) {
        return Ask(TB_ADDBUTTONS, nNumButtons, afx_param(lpButtons));
    }
    BOOL InsertButton(int nIndex, LPTBBUTTON lpButton) { return Ask(TB_INSERTBUTTON, nIndex, afx_param(lpButton)); }
    BOOL DeleteButton(int nIndex) { return Ask(TB_DELETEBUTTON, nIndex); }
    UINT CommandToIndex(UINT nID) const { return static_cast<UINT>(SendMessage(TB_COMMANDTOINDEX, nID)); }
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const { return Ask(TB_GETITEMRECT, nIndex, afx_param(lpRect)); }
    BOOL GetRect(int nID, LPRECT lpRect) const { return Ask(TB_GETRECT, nID, afx_param(lpRect)); }
    int HitTest(LPPOINT ppt) const { return Ask(TB_HITTEST, 0, afx_param(ppt)); }
    void SetButtonStructSize(int nSize) { Ask(TB_BUTTONSTRUCTSIZE, nSize); }
    BOOL SetButtonSize(CSize size) { return Ask(TB_SETBUTTONSIZE, 0, MAKELPARAM(size.cx, size.cy)); }
    DWORD GetButtonSize() const { return static_cast<DWORD>(SendMessage(TB_GETBUTTONSIZE)); }
    BOOL SetBitmapSize(CSize size) { return Ask(TB_SETBITMAPSIZE, 0, MAKELPARAM(size.cx, size.cy)); }
    // The index of the first image, or of the text; -1 where nothing was added. Texts are each ended by a null
    // character, the last by two.
    int AddBitmap(int nNumButtons, UINT nBitmapID);
    int AddBitmap(int nNumButtons, CBitmap* pBitmap);
    int AddString(UINT nStringID);
    int AddStrings(LPCTSTR lpszStrings) { return Ask(TB_ADDSTRING, 0, afx_param(lpszStrings)); }
    int GetString(int nString, CString& str) const;
    int GetString(int nString, LPTSTR lpstrString, int cchMaxLen) const {
        return afx_int(SendMessage(TB_GETSTRING, MAKEWPARAM(cchMaxLen, nString), afx_param(lpstrString)));
    }
    CString GetButtonText(int idButton) const;
    // The record tells its size and, by a mask, what it holds. The button's index, or -1.
    int GetButtonInfo(int nID, TBBUTTONINFO* ptbbi) const { return Ask(TB_GETBUTTONINFO, nID, afx_param(ptbbi)); }
    BOOL SetButtonInfo(int nID, TBBUTTONINFO* ptbbi) { return Ask(TB_SETBUTTONINFO, nID, afx_param(ptbbi)); }
    BOOL MoveButton(UINT nOldPos, UINT nNewPos) {
        return afx_int(SendMessage(TB_MOVEBUTTON, nOldPos, static_cast<LPARAM>(nNewPos)));
    }
    BOOL MarkButton(int nID, BOOL fHighlight = TRUE) { return Ask(TB_MARKBUTTON, nID, MAKELPARAM(fHighlight, 0)); }
    BOOL IsButtonHighlighted(int nID) const { return Ask(TB_ISBUTTONHIGHLIGHTED, nID); }
    int GetHotItem() const { return Ask(TB_GETHOTITEM); }
    int SetHotItem(int nHot) { return Ask(TB_SETHOTITEM, nHot); }
    BOOL GetAnchorHighlight() const { return Ask(TB_GETANCHORHIGHLIGHT); }
    BOOL SetAnchorHighlight(BOOL fAnchor = TRUE) { return Ask(TB_SETANCHORHIGHLIGHT, fAnchor); }
    BOOL MapAccelerator(TCHAR chAccel, UINT* pIDBtn) {
        return Ask(TB_MAPACCELERATOR, static_cast<unsigned char>(chAccel), afx_param(pIDBtn));
    }
    // Which buttons there are, in a value of the registry; the parent is asked for the buttons of a restored bar.
    void SaveState(HKEY hKeyRoot, LPCTSTR lpszSubKey, LPCTSTR lpszValueName);
    void RestoreState(HKEY hKeyRoot, LPCTSTR lpszSubKey, LPCTSTR lpszValueName);
    // Who is told what the user does.
    void SetOwner(CWnd* pWnd) { SendMessage(TB_SETPARENT, reinterpret_cast<WPARAM>(pWnd->GetSafeHwnd())); }
    DWORD GetStyle() const { return static_cast<DWORD>(SendMessage(TB_GETSTYLE)); }
    void SetStyle(DWORD dwStyle) { SendMessage(TB_SETSTYLE, 0, static_cast<LPARAM>(dwStyle)); }
    void AutoSize() { Ask(TB_AUTOSIZE); }
    void Customize() { Ask(TB_CUSTOMIZE); }
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pTip);
    void SetRows(int nRows, BOOL bLarger, LPRECT lpRect) {
        Ask(TB_SETROWS, static_cast<int>(MAKELONG(nRows, bLarger)), afx_param(lpRect));
    }
    int GetRows() const { return Ask(TB_GETROWS); }
    BOOL SetCmdID(int nIndex, UINT nID) { return Ask(TB_SETCMDID, nIndex, nID); }
    BOOL ChangeBitmap(int idButton, int iBitmap) { return Ask(TB_CHANGEBITMAP, idButton, MAKELPARAM(iBitmap, 0)); }
    int GetBitmap(int nID) const { return Ask(TB_GETBITMAP, nID); }
    UINT GetBitmapFlags() const { return static_cast<UINT>(Ask(TB_GETBITMAPFLAGS)); }
    BOOL GetMaxSize(LPSIZE pSize) const { return Ask(TB_GETMAXSIZE, 0, afx_param(pSize)); }
    BOOL SetIndent(int iIndent) { return Ask(TB_SETINDENT, iIndent); }
    int GetMaxTextRows() const { return Ask(TB_GETTEXTROWS); }
    BOOL SetMaxTextRows(int iMaxRows) { return Ask(TB_SETMAXTEXTROWS, iMaxRows); }
    DWORD SetDrawTextFlags(DWORD dwMask, DWORD dwDTFlags) {
        return static_cast<DWORD>(SendMessage(TB_SETDRAWTEXTFLAGS, dwMask, static_cast<LPARAM>(dwDTFlags)));
    }
    BOOL GetPadding(int* pnHorzPadding, int* pnVertPadding) const;
    // The padding before: its width in the low word, its height in the high one.
    DWORD SetPadding(int nHorzPadding, int nVertPadding) {
        return static_cast<DWORD>(SendMessage(TB_SETPADDING, 0, MAKELPARAM(nHorzPadding, nVertPadding)));
    }
    void GetMetrics(LPTBMETRICS ptbm) const { Ask(TB_GETMETRICS, 0, afx_param(ptbm)); }
    void SetMetrics(LPTBMETRICS ptbm) { Ask(TB_SETMETRICS, 0, afx_param(ptbm)); }
    BOOL GetColorScheme(COLORSCHEME* lpColorScheme) const {
        lpColorScheme->dwSize = sizeof(*lpColorScheme);
        return Ask(TB_GETCOLORSCHEME, 0, afx_param(lpColorScheme));
    }
    void SetColorScheme(const COLORSCHEME* lpColorScheme) { Ask(TB_SETCOLORSCHEME, 0, afx_param(lpColorScheme)); }
    HRESULT SetWindowTheme(LPCWSTR pszSubAppName) { return Ask(TB_SETWINDOWTHEME, 0, afx_param(pszSubAppName)); }
    // The mark shows where a dragged button would go.
    void GetInsertMark(TBINSERTMARK* ptbim) const { Ask(TB_GETINSERTMARK, 0, afx_param(ptbim)); }
    void SetInsertMark(TBINSERTMARK* ptbim) { Ask(TB_SETINSERTMARK, 0, afx_param(ptbim)); }
    BOOL InsertMarkHitTest(LPPOINT ppt, LPTBINSERTMARK ptbim) const {
        return afx_int(SendMessage(TB_INSERTMARKHITTEST, reinterpret_cast<WPARAM>(ppt), afx_param(ptbim)));
    }
    COLORREF GetInsertMarkColor() const { return static_cast<COLORREF>(SendMessage(TB_GETINSERTMARKCOLOR)); }
    COLORREF SetInsertMarkColor(COLORREF clrNew) {
        return static_cast<COLORREF>(SendMessage(TB_SETINSERTMARKCOLOR, 0, static_cast<LPARAM>(clrNew)));
    }
    BOOL SetButtonWidth(int cxMin, int cxMax) { return Ask(TB_SETBUTTONWIDTH, 0, MAKELPARAM(cxMin, cxMax)); }
    DWORD GetExtendedStyle() const { return static_cast<DWORD>(SendMessage(TB_GETEXTENDEDSTYLE)); }
    DWORD SetExtendedStyle(DWORD dw) { return static_cast<DWORD>(SendMessage(TB_SETEXTENDEDSTYLE, 0, LPARAM(dw))); }
    CImageList* GetImageList() const { return List(TB_GETIMAGELIST); }
    CImageList* SetImageList(CImageList* pImageList) { return List(TB_SETIMAGELIST, pImageList); }
    CImageList* GetHotImageList() const { return List(TB_GETHOTIMAGELIST); }
    CImageList* SetHotImageList(CImageList* pImageList) { return List(TB_SETHOTIMAGELIST, pImageList); }
    CImageList* GetDisabledImageList() const { return List(TB_GETDISABLEDIMAGELIST); }
    CImageList* SetDisabledImageList(CImageList* pImageList) { return List(TB_SETDISABLEDIMAGELIST, pImageList); }
    CImageList* GetPressedImageList() { return List(TB_GETPRESSEDIMAGELIST); }
    CImageList* SetPressedImageList(int iImageID, CImageList* pImageList) {
        return List(TB_SETPRESSEDIMAGELIST, pImageList, iImageID);
    }
    BOOL ReplaceBitmap(LPTBREPLACEBITMAP pReplaceBitmap) { return Ask(TB_REPLACEBITMAP, 0, afx_param(pReplaceBitmap)); }
    void LoadImages(int iBitmapID, HINSTANCE hinst) { Ask(TB_LOADIMAGES, iBitmapID, afx_param(hinst)); }

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpcs);

private:
    int Ask(UINT message, int wParam = 0, LPARAM lParam = 0) const {
        return afx_int(SendMessage(message, static_cast<WPARAM>(wParam), lParam));
    }
    CImageList* List(UINT message, const CImageList* list = nullptr, int which = 0) const {
        return CImageList::FromHandle(
            reinterpret_cast<HIMAGELIST>(SendMessage(message, WPARAM(which), afx_param(list->GetSafeHandle()))));
    }
};

// A list box whose items the user drags to other places.
class ZOPAFX_API CDragListBox : public CListBox {
    DECLARE_DYNAMIC(CDragListBox)

public:
    int ItemFromPt(CPoint pt, BOOL bAutoScroll = TRUE) const { return ::LBItemFromPt(m_hWnd, pt, bAutoScroll); }
    virtual void DrawInsert(int nItem);
    // FALSE refuses the drag. Dragging answers a cursor: DL_CURSORSET, DL_STOPCURSOR, DL_COPYCURSOR or DL_MOVECURSOR.
    virtual BOOL BeginDrag(CPoint pt);
    virtual void CancelDrag(CPoint pt);
    virtual UINT Dragging(CPoint pt);
    virtual void Dropped(int nSrcIndex, CPoint pt);

protected:
    void PreSubclassWindow() override;
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
