// The smaller common controls.
#pragma once

#include "afx_image_list.h"

// Create and CreateEx of a class: its window class follows.
#define AFX_CREATE_CONTROL()                                                                                           \
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);                                  \
    using CWnd::Create;                                                                                                \
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);               \
    using CWnd::CreateEx;

class CToolTipCtrl;

class ZOPAFX_API CSliderCtrl : public CWnd {
    DECLARE_DYNAMIC(CSliderCtrl)

public:
    AFX_CREATE_CONTROL()
    int GetPos() const { return Ask(TBM_GETPOS); }
    void SetPos(int nPos) { Ask(TBM_SETPOS, TRUE, nPos); }
    int GetLineSize() const { return Ask(TBM_GETLINESIZE); }
    int SetLineSize(int nSize) { return Ask(TBM_SETLINESIZE, 0, nSize); }
    int GetPageSize() const { return Ask(TBM_GETPAGESIZE); }
    int SetPageSize(int nSize) { return Ask(TBM_SETPAGESIZE, 0, nSize); }
    int GetRangeMax() const { return Ask(TBM_GETRANGEMAX); }
    int GetRangeMin() const { return Ask(TBM_GETRANGEMIN); }
    void GetRange(int& nMin, int& nMax) const { nMin = GetRangeMin(), nMax = GetRangeMax(); }
    void SetRangeMin(int nMin, BOOL bRedraw = FALSE) { Ask(TBM_SETRANGEMIN, bRedraw, nMin); }
    void SetRangeMax(int nMax, BOOL bRedraw = FALSE) { Ask(TBM_SETRANGEMAX, bRedraw, nMax); }
    void SetRange(int nMin, int nMax, BOOL bRedraw = FALSE) { SetRangeMin(nMin), SetRangeMax(nMax, bRedraw); }
    void GetSelection(int& nMin, int& nMax) const { nMin = Ask(TBM_GETSELSTART), nMax = Ask(TBM_GETSELEND); }
    void SetSelection(int nMin, int nMax) { Ask(TBM_SETSELSTART, 0, nMin), Ask(TBM_SETSELEND, 0, nMax); }
    void GetChannelRect(LPRECT lprc) const { Ask(TBM_GETCHANNELRECT, 0, afx_param(lprc)); }
    void GetThumbRect(LPRECT lprc) const { Ask(TBM_GETTHUMBRECT, 0, afx_param(lprc)); }
    int GetThumbLength() const { return Ask(TBM_GETTHUMBLENGTH); }
    void SetThumbLength(int nLength) { Ask(TBM_SETTHUMBLENGTH, nLength); }
    UINT GetNumTics() const { return static_cast<UINT>(Ask(TBM_GETNUMTICS)); }
    DWORD* GetTicArray() const { return reinterpret_cast<DWORD*>(SendMessage(TBM_GETPTICS)); }
    int GetTic(int nTic) const { return Ask(TBM_GETTIC, nTic); }
    int GetTicPos(int nTic) const { return Ask(TBM_GETTICPOS, nTic); }
    BOOL SetTic(int nTic) { return Ask(TBM_SETTIC, 0, nTic); }
    void SetTicFreq(int nFreq) { Ask(TBM_SETTICFREQ, nFreq); }
    CWnd* GetBuddy(BOOL fLocation = TRUE) const {
        return FromHandle(reinterpret_cast<HWND>(SendMessage(TBM_GETBUDDY, WPARAM(fLocation))));
    }
    CWnd* SetBuddy(CWnd* pWndBuddy, BOOL fLocation = TRUE) {
        return FromHandle(
            reinterpret_cast<HWND>(SendMessage(TBM_SETBUDDY, WPARAM(fLocation), afx_param(pWndBuddy->GetSafeHwnd()))));
    }
    int SetTipSide(int nLocation) { return Ask(TBM_SETTIPSIDE, nLocation); }
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pWndTip);
    void ClearSel(BOOL bRedraw = FALSE) { Ask(TBM_CLEARSEL, bRedraw); }
    void VerifyPos() { SetPos(GetPos()); }
    void ClearTics(BOOL bRedraw = FALSE) { Ask(TBM_CLEARTICS, bRedraw); }

private:
    int Ask(UINT message, int wParam = 0, LPARAM lParam = 0) const {
        return afx_int(SendMessage(message, static_cast<WPARAM>(wParam), lParam));
    }
};

class ZOPAFX_API CSpinButtonCtrl : public CWnd {
    DECLARE_DYNAMIC(CSpinButtonCtrl)

public:
    AFX_CREATE_CONTROL()
    BOOL SetAccel(int nAccel, UDACCEL* pAccel) {
        return afx_int(SendMessage(UDM_SETACCEL, WPARAM(nAccel), afx_param(pAccel)));
    }
    UINT GetAccel(int nAccel, UDACCEL* pAccel) const {
        return static_cast<UINT>(SendMessage(UDM_GETACCEL, WPARAM(nAccel), afx_param(pAccel)));
    }
    int SetBase(int nBase) { return afx_int(SendMessage(UDM_SETBASE, WPARAM(nBase))); }
    UINT GetBase() const { return static_cast<UINT>(SendMessage(UDM_GETBASE)); }
    CWnd* SetBuddy(CWnd* pWndBuddy) {
        return FromHandle(
            reinterpret_cast<HWND>(SendMessage(UDM_SETBUDDY, reinterpret_cast<WPARAM>(pWndBuddy->GetSafeHwnd()))));
    }
    CWnd* GetBuddy() const { return FromHandle(reinterpret_cast<HWND>(SendMessage(UDM_GETBUDDY))); }
    int SetPos(int nPos) { return afx_int(SendMessage(UDM_SETPOS, 0, MAKELPARAM(nPos, 0))); }
    int GetPos() const { return afx_int(SendMessage(UDM_GETPOS)); } // an error in the high word
    int SetPos32(int nPos) { return afx_int(SendMessage(UDM_SETPOS32, 0, nPos)); }
    int GetPos32(LPBOOL lpbError = nullptr) const { return afx_int(SendMessage(UDM_GETPOS32, 0, afx_param(lpbError))); }
    void SetRange(short nLower, short nUpper) { SendMessage(UDM_SETRANGE, 0, MAKELPARAM(nUpper, nLower)); }
    void SetRange32(int nLower, int nUpper) { SendMessage(UDM_SETRANGE32, WPARAM(nLower), nUpper); }
    DWORD GetRange() const { return static_cast<DWORD>(SendMessage(UDM_GETRANGE)); }
    void GetRange(int& lower, int& upper) const {
        const DWORD range = GetRange();
        lower = static_cast<short>(HIWORD(range));
        upper = static_cast<short>(LOWORD(range));
    }
    void GetRange32(int& lower, int& upper) const {
        SendMessage(UDM_GETRANGE32, reinterpret_cast<WPARAM>(&lower), afx_param(&upper));
    }
};

class ZOPAFX_API CProgressCtrl : public CWnd {
    DECLARE_DYNAMIC(CProgressCtrl)

public:
    AFX_CREATE_CONTROL()
    void SetRange(short nLower, short nUpper) { SendMessage(PBM_SETRANGE, 0, MAKELPARAM(nLower, nUpper)); }
    void SetRange32(int nLower, int nUpper) { SendMessage(PBM_SETRANGE32, WPARAM(nLower), nUpper); }
    void GetRange(int& nLower, int& nUpper) const {
        nLower = afx_int(SendMessage(PBM_GETRANGE, TRUE));
        nUpper = afx_int(SendMessage(PBM_GETRANGE, FALSE));
    }
    int GetPos() const { return afx_int(SendMessage(PBM_GETPOS)); }
    int SetPos(int nPos) { return afx_int(SendMessage(PBM_SETPOS, WPARAM(nPos))); }
    int OffsetPos(int nPos) { return afx_int(SendMessage(PBM_DELTAPOS, WPARAM(nPos))); }
    int SetStep(int nStep) { return afx_int(SendMessage(PBM_SETSTEP, WPARAM(nStep))); }
    int StepIt() { return afx_int(SendMessage(PBM_STEPIT)); }
    COLORREF SetBkColor(COLORREF clrNew) { return COLORREF(SendMessage(PBM_SETBKCOLOR, 0, LPARAM(clrNew))); }
    COLORREF SetBarColor(COLORREF clrBar) { return COLORREF(SendMessage(PBM_SETBARCOLOR, 0, LPARAM(clrBar))); }
    COLORREF GetBkColor() const { return COLORREF(SendMessage(PBM_GETBKCOLOR)); }
    COLORREF GetBarColor() const { return COLORREF(SendMessage(PBM_GETBARCOLOR)); }
    int GetStep() const { return afx_int(SendMessage(PBM_GETSTEP)); }
    // PBST_NORMAL, PBST_ERROR or PBST_PAUSED.
    int GetState() const { return afx_int(SendMessage(PBM_GETSTATE)); }
    int SetState(int iState) { return afx_int(SendMessage(PBM_SETSTATE, WPARAM(iState))); }
    // For a control with PBS_MARQUEE.
    BOOL SetMarquee(BOOL fMarqueeMode, int nInterval) {
        return afx_int(SendMessage(PBM_SETMARQUEE, WPARAM(fMarqueeMode), nInterval));
    }
};

class ZOPAFX_API CHotKeyCtrl : public CWnd {
    DECLARE_DYNAMIC(CHotKeyCtrl)

public:
    AFX_CREATE_CONTROL()
    void SetHotKey(WORD wVirtualKeyCode, WORD wModifiers) {
        SendMessage(HKM_SETHOTKEY, MAKEWORD(wVirtualKeyCode, wModifiers));
    }
    DWORD GetHotKey() const { return static_cast<DWORD>(SendMessage(HKM_GETHOTKEY)); }
    void GetHotKey(WORD& wVirtualKeyCode, WORD& wModifiers) const {
        const DWORD key = GetHotKey();
        wVirtualKeyCode = LOBYTE(LOWORD(key));
        wModifiers = HIBYTE(LOWORD(key));
    }
    void SetRules(WORD wInvalidComb, WORD wModifiers) {
        SendMessage(HKM_SETRULES, wInvalidComb, MAKELPARAM(wModifiers, 0));
    }
    static CString GetKeyName(UINT vk, BOOL fExtended);
    CString GetHotKeyName() const;
};

class ZOPAFX_API CAnimateCtrl : public CWnd {
    DECLARE_DYNAMIC(CAnimateCtrl)

public:
    AFX_CREATE_CONTROL()
    BOOL Open(LPCTSTR lpszFileName) { return afx_int(SendMessage(ACM_OPEN, 0, afx_param(lpszFileName))); }
    // A resource of the chain.
    BOOL Open(UINT nID);
    BOOL Play(UINT nFrom, UINT nTo, UINT nRep) { return afx_int(SendMessage(ACM_PLAY, nRep, MAKELPARAM(nFrom, nTo))); }
    BOOL Stop() { return afx_int(SendMessage(ACM_STOP)); }
    BOOL Close() { return afx_int(SendMessage(ACM_OPEN)); }
    BOOL Seek(UINT nTo) { return Play(nTo, nTo, 0); }
    BOOL IsPlaying() const { return afx_int(SendMessage(ACM_ISPLAYING)); }
};

class ZOPAFX_API CHeaderCtrl : public CWnd {
    DECLARE_DYNAMIC(CHeaderCtrl)

public:
    AFX_CREATE_CONTROL()
    int GetItemCount() const { return Ask(HDM_GETITEMCOUNT); }
    BOOL GetItem(int nPos, HDITEM* pHeaderItem) const { return Ask(HDM_GETITEM, nPos, afx_param(pHeaderItem)); }
    BOOL SetItem(int nPos, HDITEM* pHeaderItem) { return Ask(HDM_SETITEM, nPos, afx_param(pHeaderItem)); }
    int InsertItem(int nPos, HDITEM* phdi) { return Ask(HDM_INSERTITEM, nPos, afx_param(phdi)); }
    BOOL DeleteItem(int nPos) { return Ask(HDM_DELETEITEM, nPos); }
    BOOL GetItemRect(int nIndex, LPRECT lpRect) const { return Ask(HDM_GETITEMRECT, nIndex, afx_param(lpRect)); }
    BOOL Layout(HDLAYOUT* pHeaderLayout) { return Ask(HDM_LAYOUT, 0, afx_param(pHeaderLayout)); }
    int HitTest(LPHDHITTESTINFO phdhti) { return Ask(HDM_HITTEST, 0, afx_param(phdhti)); }
    int OrderToIndex(int nOrder) const { return Ask(HDM_ORDERTOINDEX, nOrder); }
    BOOL GetOrderArray(LPINT piArray, int iCount = -1) const {
        return Ask(HDM_GETORDERARRAY, iCount != -1 ? iCount : GetItemCount(), afx_param(piArray));
    }
    BOOL SetOrderArray(int iCount, LPINT piArray) { return Ask(HDM_SETORDERARRAY, iCount, afx_param(piArray)); }
    int SetHotDivider(int nIndex) { return Ask(HDM_SETHOTDIVIDER, FALSE, nIndex); }
    int SetHotDivider(CPoint pt) { return Ask(HDM_SETHOTDIVIDER, TRUE, MAKELPARAM(pt.x, pt.y)); }
    int GetBitmapMargin() const { return Ask(HDM_GETBITMAPMARGIN); }
    int SetBitmapMargin(int nWidth) { return Ask(HDM_SETBITMAPMARGIN, nWidth); }
    int GetFocusedItem() const { return Ask(HDM_GETFOCUSEDITEM); }
    BOOL SetFocusedItem(int iItem) { return Ask(HDM_SETFOCUSEDITEM, 0, iItem); }
    BOOL GetItemDropDownRect(int iItem, LPRECT lpRect) const {
        return Ask(HDM_GETITEMDROPDOWNRECT, iItem, afx_param(lpRect));
    }
    BOOL GetOverflowRect(LPRECT lpRect) const { return Ask(HDM_GETOVERFLOWRECT, 0, afx_param(lpRect)); }
    // Filters of a control with HDS_FILTERBAR.
    BOOL EditFilter(int nColumn, BOOL bDiscardChanges) {
        return Ask(HDM_EDITFILTER, nColumn, MAKELPARAM(bDiscardChanges, 0));
    }
    BOOL ClearFilter(int nColumn) { return Ask(HDM_CLEARFILTER, nColumn); }
    BOOL ClearAllFilters() { return ClearFilter(-1); }
    int SetFilterChangeTimeout(DWORD dwTimeOut) { return Ask(HDM_SETFILTERCHANGETIMEOUT, 0, LPARAM(dwTimeOut)); }
    // A temporary object for dragging the item's picture; the list is the caller's to delete.
    CImageList* CreateDragImage(int nIndex) {
        return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(HDM_CREATEDRAGIMAGE, WPARAM(nIndex))));
    }
    CImageList* GetImageList() const {
        return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(HDM_GETIMAGELIST)));
    }
    CImageList* SetImageList(CImageList* pImageList) {
        return CImageList::FromHandle(
            reinterpret_cast<HIMAGELIST>(SendMessage(HDM_SETIMAGELIST, 0, afx_param(pImageList->GetSafeHandle()))));
    }
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

private:
    int Ask(UINT message, int wParam = 0, LPARAM lParam = 0) const {
        return afx_int(SendMessage(message, static_cast<WPARAM>(wParam), lParam));
    }
};

class ZOPAFX_API CTabCtrl : public CWnd {
    DECLARE_DYNAMIC(CTabCtrl)
    DECLARE_MESSAGE_MAP()

public:
    AFX_CREATE_CONTROL()
    CImageList* GetImageList() const {
        return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(TCM_GETIMAGELIST)));
    }
    CImageList* SetImageList(CImageList* pImageList) {
        return CImageList::FromHandle(
            reinterpret_cast<HIMAGELIST>(SendMessage(TCM_SETIMAGELIST, 0, afx_param(pImageList->GetSafeHandle()))));
    }
    int GetItemCount() const { return Ask(TCM_GETITEMCOUNT); }
    BOOL GetItem(int nItem, TCITEM* pTabCtrlItem) const { return Ask(TCM_GETITEM, nItem, afx_param(pTabCtrlItem)); }
    BOOL SetItem(int nItem, TCITEM* pTabCtrlItem) { return Ask(TCM_SETITEM, nItem, afx_param(pTabCtrlItem)); }
    LONG InsertItem(int nItem, TCITEM* pTabCtrlItem) { return Ask(TCM_INSERTITEM, nItem, afx_param(pTabCtrlItem)); }
    LONG InsertItem(int nItem, LPCTSTR lpszItem) { return InsertItem(TCIF_TEXT, nItem, lpszItem, 0, 0); }
    LONG InsertItem(int nItem, LPCTSTR lpszItem, int nImage) {
        return InsertItem(TCIF_TEXT | TCIF_IMAGE, nItem, lpszItem, nImage, 0);
    }
    LONG InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam) {
        return InsertItem(nMask, nItem, lpszItem, nImage, lParam, 0, 0);
    }
    LONG InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam, DWORD dwState,
                    DWORD dwStateMask);
    BOOL DeleteItem(int nItem) { return Ask(TCM_DELETEITEM, nItem); }
    BOOL DeleteAllItems() { return Ask(TCM_DELETEALLITEMS); }
    DWORD GetItemState(int nItem, DWORD dwMask) const;
    BOOL SetItemState(int nItem, DWORD dwMask, DWORD dwState);
    BOOL GetItemRect(int nItem, LPRECT lpRect) const { return Ask(TCM_GETITEMRECT, nItem, afx_param(lpRect)); }
    int GetCurSel() const { return Ask(TCM_GETCURSEL); }
    int SetCurSel(int nItem) { return Ask(TCM_SETCURSEL, nItem); }
    int GetCurFocus() const { return Ask(TCM_GETCURFOCUS); }
    void SetCurFocus(int nItem) { Ask(TCM_SETCURFOCUS, nItem); }
    int HitTest(TCHITTESTINFO* pHitTestInfo) const { return Ask(TCM_HITTEST, 0, afx_param(pHitTestInfo)); }
    void AdjustRect(BOOL bLarger, LPRECT lpRect) { Ask(TCM_ADJUSTRECT, bLarger, afx_param(lpRect)); }
    CSize SetItemSize(CSize size) {
        return CSize(static_cast<DWORD>(SendMessage(TCM_SETITEMSIZE, 0, MAKELPARAM(size.cx, size.cy))));
    }
    void SetPadding(CSize size) { Ask(TCM_SETPADDING, 0, MAKELPARAM(size.cx, size.cy)); }
    int SetMinTabWidth(int cx) { return Ask(TCM_SETMINTABWIDTH, 0, cx); }
    int GetRowCount() const { return Ask(TCM_GETROWCOUNT); }
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pWndTip);
    DWORD GetExtendedStyle() { return static_cast<DWORD>(SendMessage(TCM_GETEXTENDEDSTYLE)); }
    DWORD SetExtendedStyle(DWORD dwNewStyle, DWORD dwExMask = 0) {
        return static_cast<DWORD>(SendMessage(TCM_SETEXTENDEDSTYLE, dwExMask, static_cast<LPARAM>(dwNewStyle)));
    }
    BOOL HighlightItem(int idItem, BOOL fHighlight = TRUE) {
        return Ask(TCM_HIGHLIGHTITEM, idItem, MAKELPARAM(fHighlight, 0));
    }
    void DeselectAll(BOOL fExcludeFocus) { Ask(TCM_DESELECTALL, fExcludeFocus); }
    void RemoveImage(int nImage) { Ask(TCM_REMOVEIMAGE, nImage); }
    // Bytes of the program's own for every tab, behind the TCITEMHEADER; before the first tab is inserted.
    BOOL SetItemExtra(int nBytes) { return Ask(TCM_SETITEMEXTRA, nBytes); }
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
    afx_msg void OnDestroy();

private:
    int Ask(UINT message, int wParam = 0, LPARAM lParam = 0) const {
        return afx_int(SendMessage(message, static_cast<WPARAM>(wParam), lParam));
    }
};

// What a tip knows of a tool; its text is cut where it is longer.
class CToolInfo : public TOOLINFO {
public:
    TCHAR szText[256];
};

// A tool is a window, or with an id other than 0 a rectangle of one. Its owner passes the messages on by RelayEvent.
class ZOPAFX_API CToolTipCtrl : public CWnd {
    DECLARE_DYNAMIC(CToolTipCtrl)
    DECLARE_MESSAGE_MAP()

public:
    virtual BOOL Create(CWnd* pParentWnd, DWORD dwStyle = 0);
    using CWnd::Create;
    virtual BOOL CreateEx(CWnd* pParentWnd, DWORD dwStyle = 0, DWORD dwStyleEx = 0);
    using CWnd::CreateEx;
    BOOL AddTool(CWnd* pWnd, UINT nIDText, LPCRECT lpRectTool = nullptr, UINT_PTR nIDTool = 0);
    BOOL AddTool(CWnd* pWnd, LPCTSTR lpszText = LPSTR_TEXTCALLBACK, LPCRECT lpRectTool = nullptr, UINT_PTR nIDTool = 0);
    void DelTool(CWnd* pWnd, UINT_PTR nIDTool = 0);
    void UpdateTipText(LPCTSTR lpszText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void UpdateTipText(UINT nIDText, CWnd* pWnd, UINT_PTR nIDTool = 0);
    void GetText(CString& str, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    void SetToolRect(CWnd* pWnd, UINT_PTR nIDTool, LPCRECT lpRect);
    BOOL HitTest(CWnd* pWnd, CPoint pt, LPTOOLINFO lpToolInfo) const;
    int GetToolCount() const { return afx_int(SendMessage(TTM_GETTOOLCOUNT)); }
    void Activate(BOOL bActivate) { SendMessage(TTM_ACTIVATE, WPARAM(bActivate)); }
    void RelayEvent(LPMSG lpMsg) { SendMessage(TTM_RELAYEVENT, 0, afx_param(lpMsg)); }
    void Pop() { SendMessage(TTM_POP); }
    void Update() { SendMessage(TTM_UPDATE); }
    int GetDelayTime(DWORD dwDuration) const { return afx_int(SendMessage(TTM_GETDELAYTIME, dwDuration)); }
    void SetDelayTime(UINT nDelay) { SetDelayTime(TTDT_AUTOMATIC, static_cast<int>(nDelay)); }
    void SetDelayTime(DWORD dwDuration, int iTime) { SendMessage(TTM_SETDELAYTIME, dwDuration, MAKELPARAM(iTime, 0)); }
    int GetMaxTipWidth() const { return afx_int(SendMessage(TTM_GETMAXTIPWIDTH)); }
    int SetMaxTipWidth(int iWidth) { return afx_int(SendMessage(TTM_SETMAXTIPWIDTH, 0, iWidth)); }
    void GetMargin(LPRECT lprc) const { SendMessage(TTM_GETMARGIN, 0, afx_param(lprc)); }
    void SetMargin(LPRECT lprc) { SendMessage(TTM_SETMARGIN, 0, afx_param(lprc)); }
    COLORREF GetTipBkColor() const { return COLORREF(SendMessage(TTM_GETTIPBKCOLOR)); }
    void SetTipBkColor(COLORREF clr) { SendMessage(TTM_SETTIPBKCOLOR, clr); }
    COLORREF GetTipTextColor() const { return COLORREF(SendMessage(TTM_GETTIPTEXTCOLOR)); }
    void SetTipTextColor(COLORREF clr) { SendMessage(TTM_SETTIPTEXTCOLOR, clr); }
    void FillInToolInfo(TOOLINFO& ti, CWnd* pWnd, UINT_PTR nIDTool) const;
    BOOL GetToolInfo(CToolInfo& ToolInfo, CWnd* pWnd, UINT_PTR nIDTool = 0) const;
    void SetToolInfo(LPTOOLINFO lpToolInfo) { SendMessage(TTM_SETTOOLINFO, 0, afx_param(lpToolInfo)); }
    // Of the tool whose tip is shown; the record's text, where it has one, is the caller's room of 1024 characters.
    BOOL GetCurrentTool(LPTOOLINFO lpToolInfo) const {
        return afx_int(SendMessage(TTM_GETCURRENTTOOL, 0, afx_param(lpToolInfo)));
    }
    CSize GetBubbleSize(LPTOOLINFO lpToolInfo) const {
        return CSize(static_cast<DWORD>(SendMessage(TTM_GETBUBBLESIZE, 0, afx_param(lpToolInfo))));
    }
    BOOL AdjustRect(LPRECT lprc, BOOL bLarger = TRUE) {
        return afx_int(SendMessage(TTM_ADJUSTRECT, WPARAM(bLarger), afx_param(lprc)));
    }
    // An icon, TTI_NONE for none, and a title above the text.
    BOOL SetTitle(UINT uIcon, LPCTSTR lpstrTitle) {
        return afx_int(SendMessage(TTM_SETTITLE, uIcon, afx_param(lpstrTitle)));
    }
    void GetTitle(PTTGETTITLE pttgt) const {
        pttgt->dwSize = sizeof(*pttgt);
        SendMessage(TTM_GETTITLE, 0, afx_param(pttgt));
    }
    void Popup() { SendMessage(TTM_POPUP); }
    HRESULT SetWindowTheme(LPCWSTR pszSubAppName) {
        return static_cast<HRESULT>(SendMessage(TTM_SETWINDOWTHEME, 0, afx_param(pszSubAppName)));
    }

protected:
    afx_msg LRESULT OnWindowFromPoint(WPARAM wParam, LPARAM lParam);
};

class ZOPAFX_API CStatusBarCtrl : public CWnd {
    DECLARE_DYNAMIC(CStatusBarCtrl)

public:
    AFX_CREATE_CONTROL()
    BOOL SetText(LPCTSTR lpszText, int nPane, int nType) {
        return afx_int(SendMessage(SB_SETTEXT, WPARAM(nPane | nType), afx_param(lpszText)));
    }
    CString GetText(int nPane, int* pType = nullptr) const;
    int GetText(LPTSTR lpszText, int nPane, int* pType = nullptr) const;
    int GetTextLength(int nPane, int* pType = nullptr) const;
    BOOL SetParts(int nParts, int* pWidths) {
        return afx_int(SendMessage(SB_SETPARTS, WPARAM(nParts), afx_param(pWidths)));
    }
    int GetParts(int nParts, int* pParts) const {
        return afx_int(SendMessage(SB_GETPARTS, WPARAM(nParts), afx_param(pParts)));
    }
    BOOL GetBorders(int* pBorders) const { return afx_int(SendMessage(SB_GETBORDERS, 0, afx_param(pBorders))); }
    BOOL GetBorders(int& nHorz, int& nVert, int& nSpacing) const;
    void SetMinHeight(int nMin) { SendMessage(SB_SETMINHEIGHT, WPARAM(nMin)); }
    BOOL SetSimple(BOOL bSimple = TRUE) { return afx_int(SendMessage(SB_SIMPLE, WPARAM(bSimple))); }
    BOOL IsSimple() const { return afx_int(SendMessage(SB_ISSIMPLE)); }
    BOOL GetRect(int nPane, LPRECT lpRect) const {
        return afx_int(SendMessage(SB_GETRECT, WPARAM(nPane), afx_param(lpRect)));
    }
    COLORREF SetBkColor(COLORREF cr) { return COLORREF(SendMessage(SB_SETBKCOLOR, 0, LPARAM(cr))); }
    HICON GetIcon(int iPart) const { return reinterpret_cast<HICON>(SendMessage(SB_GETICON, WPARAM(iPart))); }
    BOOL SetIcon(int nPane, HICON hIcon) { return afx_int(SendMessage(SB_SETICON, WPARAM(nPane), afx_param(hIcon))); }
    void SetTipText(int nPane, LPCTSTR pszTipText) { SendMessage(SB_SETTIPTEXT, WPARAM(nPane), afx_param(pszTipText)); }
    CString GetTipText(int nPane) const;
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;
};
