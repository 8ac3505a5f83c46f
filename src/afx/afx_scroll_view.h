// Views that are larger than their window; included by afxwin.h.
#pragma once

#include "afx_view.h"

#define MM_SCALETOFIT (-1)

// The document's size is told in logical units of a mapping mode; drawing goes to the part that is scrolled to.
class ZOPAFX_API CScrollView : public CView {
    DECLARE_DYNAMIC(CScrollView)
    DECLARE_MESSAGE_MAP()

public:
    static const SIZE sizeDefault; // a tenth of the page for a line, a tenth of the whole for a page
    void SetScrollSizes(int nMapMode, SIZE sizeTotal, const SIZE& sizePage = sizeDefault,
                        const SIZE& sizeLine = sizeDefault);
    // The whole is shown, whatever the window's size.
    void SetScaleToFitSize(SIZE sizeTotal);
    CPoint GetScrollPosition() const; // logical
    void ScrollToPosition(POINT pt);
    CSize GetTotalSize() const { return m_totalLog; }
    CPoint GetDeviceScrollPosition() const;
    void GetDeviceScrollSizes(int& nMapMode, SIZE& sizeTotal, SIZE& sizePage, SIZE& sizeLine) const;
    void FillOutsideRect(CDC* pDC, CBrush* pBrush);
    void ResizeParentToFit(BOOL bShrinkOnly = TRUE);
    void CheckScrollBars(BOOL& bHasHorzBar, BOOL& bHasVertBar) const;
    // What the wheel does: down or, without a vertical bar, to the side. FALSE where there is nothing more to see.
    BOOL DoMouseWheel(UINT fFlags, short zDelta, CPoint point);
    // Which part of a distance the wheel goes.
    virtual CSize GetWheelScrollDistance(CSize sizeDistance, BOOL bHorz, BOOL bVert);

    BOOL OnScroll(UINT nScrollCode, UINT nPos, BOOL bDoScroll = TRUE) override;
    BOOL OnScrollBy(CSize sizeScroll, BOOL bDoScroll = TRUE) override;
    void OnPrepareDC(CDC* pDC, CPrintInfo* pInfo = nullptr) override;
    void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = adjustBorder) override;

protected:
    CScrollView();
    ~CScrollView() override;
    void OnDraw(CDC* pDC) override = 0;
    void CenterOnPoint(CPoint ptCenter);
    void ScrollToDevicePosition(POINT ptDev);
    void UpdateBars();
    // The client area as it would be without bars of the window's own, and how much of it those would take. FALSE where
    // they would leave nothing.
    BOOL GetTrueClientSize(CSize& size, CSize& sizeSb);
    void GetScrollBarSizes(CSize& sizeSb);

    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);

    int m_nMapMode = 0; // none yet
    CSize m_totalLog, m_totalDev, m_pageDev, m_lineDev;
    BOOL m_bCenter = FALSE;       // what is smaller than the window stands in its middle
    BOOL m_bInsideUpdate = FALSE; // the bars are being set: no change of size counts

private:
    friend class CSplitterWnd;
    CSize WheelDistance(short delta);
    bool HasOwnBar(int bar) const;
    CSize Room(bool& horizontal, bool& vertical);
    CSize RangeFor(CSize room) const;
};
