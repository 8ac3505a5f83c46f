// The platform's rebar: bars that the user rearranges, as a control and as a bar of a frame.
#pragma once

#include "afx_frame.h"
#include "afx_image_list.h"

#include <uxtheme.h>

class CToolTipCtrl;

// An operation sends the message of its name.
class ZOPAFX_API CReBarCtrl : public CWnd {
    DECLARE_DYNAMIC(CReBarCtrl)

public:
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::Create;
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    using CWnd::CreateEx;
    UINT GetBarHeight() const { return static_cast<UINT>(SendMessage(RB_GETBARHEIGHT)); }
    UINT GetBandCount() const { return static_cast<UINT>(SendMessage(RB_GETBANDCOUNT)); }
    UINT GetRowCount() const { return static_cast<UINT>(SendMessage(RB_GETROWCOUNT)); }
    UINT GetRowHeight(UINT uRow) const { return static_cast<UINT>(SendMessage(RB_GETROWHEIGHT, uRow)); }
    BOOL GetBarInfo(REBARINFO* prbi) const { return Ask(RB_GETBARINFO, 0, prbi); }
    BOOL SetBarInfo(REBARINFO* prbi) { return Ask(RB_SETBARINFO, 0, prbi); }
    BOOL GetBandInfo(UINT uBand, REBARBANDINFO* prbbi) const { return Ask(RB_GETBANDINFO, uBand, prbbi); }
    BOOL SetBandInfo(UINT uBand, REBARBANDINFO* prbbi) { return Ask(RB_SETBANDINFO, uBand, prbbi); }
    BOOL GetRect(UINT uBand, LPRECT prc) const { return Ask(RB_GETRECT, uBand, prc); }
    BOOL InsertBand(UINT uIndex, REBARBANDINFO* prbbi) { return Ask(RB_INSERTBAND, uIndex, prbbi); }
    BOOL DeleteBand(UINT uBand) { return Ask(RB_DELETEBAND, uBand, nullptr); }
    BOOL ShowBand(UINT uBand, BOOL fShow = TRUE) { return SendMessage(RB_SHOWBAND, uBand, fShow) != 0; }
    BOOL MoveBand(UINT uFrom, UINT uTo) { return SendMessage(RB_MOVEBAND, uFrom, uTo) != 0; }
    int IDToIndex(UINT uBandID) const { return static_cast<int>(SendMessage(RB_IDTOINDEX, uBandID)); }
    int HitTest(RBHITTESTINFO* prbht) { return Ask(RB_HITTEST, 0, prbht); }
    BOOL SizeToRect(CRect& rect) { return Ask(RB_SIZETORECT, 0, &rect); }
    void MinimizeBand(UINT uBand) { SendMessage(RB_MINIMIZEBAND, uBand); }
    void MaximizeBand(UINT uBand) { SendMessage(RB_MAXIMIZEBAND, uBand); }
    // To the ideal size of the band's record.
    void RestoreBand(UINT uBand) { SendMessage(RB_MAXIMIZEBAND, uBand, TRUE); }
    BOOL SetBandWidth(UINT uBand, int cxWidth) { return SendMessage(RB_SETBANDWIDTH, uBand, cxWidth) != 0; }
    void GetBandBorders(UINT uBand, LPRECT prc) const { Ask(RB_GETBANDBORDERS, uBand, prc); }
    void GetBandMargins(PMARGINS pMargins) { Ask(RB_GETBANDMARGINS, 0, pMargins); }
    void PushChevron(UINT uBand, LPARAM lAppValue) { SendMessage(RB_PUSHCHEVRON, uBand, lAppValue); }
    // Dragging by the program: positions as the mouse's messages have them, -1 for where it is.
    void BeginDrag(UINT uBand, DWORD dwPos = static_cast<DWORD>(-1)) {
        SendMessage(RB_BEGINDRAG, uBand, static_cast<LPARAM>(dwPos));
    }
    void DragMove(DWORD dwPos = static_cast<DWORD>(-1)) { SendMessage(RB_DRAGMOVE, 0, static_cast<LPARAM>(dwPos)); }
    void EndDrag() { SendMessage(RB_ENDDRAG); }
    // Who is told what the user does; the one before.
    CWnd* SetOwner(CWnd* pWnd) {
        return FromHandle(
            reinterpret_cast<HWND>(SendMessage(RB_SETPARENT, reinterpret_cast<WPARAM>(pWnd->GetSafeHwnd()))));
    }
    CToolTipCtrl* GetToolTips() const;
    void SetToolTips(CToolTipCtrl* pToolTip);
    CPalette* GetPalette() const {
        return CPalette::FromHandle(reinterpret_cast<HPALETTE>(SendMessage(RB_GETPALETTE)));
    }
    CPalette* SetPalette(HPALETTE hPal) {
        return CPalette::FromHandle(
            reinterpret_cast<HPALETTE>(SendMessage(RB_SETPALETTE, 0, reinterpret_cast<LPARAM>(hPal))));
    }
    DWORD GetExtendedStyle() const { return static_cast<DWORD>(SendMessage(RB_GETEXTENDEDSTYLE)); }
    DWORD SetExtendedStyle(DWORD dwMask, DWORD dwStyleEx) {
        return static_cast<DWORD>(SendMessage(RB_SETEXTENDEDSTYLE, dwMask, static_cast<LPARAM>(dwStyleEx)));
    }
    BOOL GetColorScheme(COLORSCHEME* lpcs) const;
    void SetColorScheme(const COLORSCHEME* lpcs);
    HRESULT SetWindowTheme(LPCWSTR pszSubAppName) {
        return static_cast<HRESULT>(SendMessage(RB_SETWINDOWTHEME, 0, reinterpret_cast<LPARAM>(pszSubAppName)));
    }
    COLORREF GetBkColor() const { return static_cast<COLORREF>(SendMessage(RB_GETBKCOLOR)); }
    COLORREF SetBkColor(COLORREF clr) { return static_cast<COLORREF>(SendMessage(RB_SETBKCOLOR, 0, clr)); }
    COLORREF GetTextColor() const { return static_cast<COLORREF>(SendMessage(RB_GETTEXTCOLOR)); }
    COLORREF SetTextColor(COLORREF clr) { return static_cast<COLORREF>(SendMessage(RB_SETTEXTCOLOR, 0, clr)); }
    CImageList* GetImageList() const;
    BOOL SetImageList(CImageList* pImageList);

private:
    int Ask(UINT message, UINT which, void* record) const {
        return static_cast<int>(SendMessage(message, which, reinterpret_cast<LPARAM>(record)));
    }
};

// Its bands hold the frame's bars and other children, which send their commands to the frame.
class ZOPAFX_API CReBar : public CControlBar {
    DECLARE_DYNAMIC(CReBar)
    DECLARE_MESSAGE_MAP()

public:
    CReBar();
    ~CReBar() override;

    virtual BOOL Create(CWnd* pParentWnd, DWORD dwCtrlStyle = RBS_BANDBORDERS,
                        DWORD dwStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | CBRS_TOP,
                        UINT nID = AFX_IDW_REBAR);
    using CControlBar::Create;
    // A band behind the others; the bar becomes the rebar's child.
    BOOL AddBar(CWnd* pBar, LPCTSTR pszText = nullptr, CBitmap* pbmp = nullptr,
                DWORD dwStyle = RBBS_GRIPPERALWAYS | RBBS_FIXEDBMP);
    BOOL AddBar(CWnd* pBar, COLORREF clrFore, COLORREF clrBack, LPCTSTR pszText = nullptr,
                DWORD dwStyle = RBBS_GRIPPERALWAYS);
    CReBarCtrl& GetReBarCtrl() const { return reinterpret_cast<CReBarCtrl&>(const_cast<CReBar&>(*this)); }

    CSize CalcFixedLayout(BOOL bStretch, BOOL bHorz) override;
    CSize CalcDynamicLayout(int nLength, DWORD nMode) override;
    void OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) override;
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const override;

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnHeightChange(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnRecalcParent();

private:
    BOOL AddBand(CWnd* bar, REBARBANDINFO& band);
    static CSize SizeOf(CWnd& bar);
};
