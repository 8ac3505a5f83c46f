// The platform's rebar: bars that the user rearranges, as a control and as a bar of a frame.
#pragma once

#include "afx_frame.h"
#include "afx_image_list.h"

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
