// Splitter windows; included by afxext.h.
#pragma once

#include "afx_frame.h"

#include <vector>

class CView;

#define SPLS_DYNAMIC_SPLIT 0x0001

// Panes in rows and columns, divided by bars that the user drags. A dynamic splitter begins with one pane, whose view
// shows the same document in each pane that the user makes; a static one has its panes, of any class, from the start.
// Panes can be splitters again. Created as a member of a frame.
class ZOPAFX_API CSplitterWnd : public CWnd {
    DECLARE_DYNAMIC(CSplitterWnd)
    DECLARE_MESSAGE_MAP()

public:
    CSplitterWnd();
    ~CSplitterWnd() override;

    // At most two rows and two columns; sizeMin: a smaller pane goes.
    virtual BOOL Create(CWnd* pParentWnd, int nMaxRows, int nMaxCols, SIZE sizeMin, CCreateContext* pContext,
                        DWORD dwStyle = WS_CHILD | WS_VISIBLE | WS_HSCROLL | WS_VSCROLL | SPLS_DYNAMIC_SPLIT,
                        UINT nID = AFX_IDW_PANE_FIRST);
    using CWnd::Create;
    virtual BOOL CreateStatic(CWnd* pParentWnd, int nRows, int nCols, DWORD dwStyle = WS_CHILD | WS_VISIBLE,
                              UINT nID = AFX_IDW_PANE_FIRST);
    virtual BOOL CreateView(int row, int col, CRuntimeClass* pViewClass, SIZE sizeInit, CCreateContext* pContext);

    int GetRowCount() const { return m_nRows; }
    int GetColumnCount() const { return m_nCols; }
    void GetRowInfo(int row, int& cyCur, int& cyMin) const;
    void SetRowInfo(int row, int cyIdeal, int cyMin);
    void GetColumnInfo(int col, int& cxCur, int& cxMin) const;
    void SetColumnInfo(int col, int cxIdeal, int cxMin);
    // Which bars the panes share.
    DWORD GetScrollStyle() const;
    void SetScrollStyle(DWORD dwStyle);

    CWnd* GetPane(int row, int col) const;
    BOOL IsChildPane(CWnd* pWnd, int* pRow, int* pCol);
    BOOL IsChildPane(CWnd* pWnd, int& row, int& col) { return IsChildPane(pWnd, &row, &col); }
    int IdFromRowCol(int row, int col) const;

    BOOL IsTracking() const { return m_bTracking; }
    virtual CWnd* GetActivePane(int* pRow = nullptr, int* pCol = nullptr);
    virtual void SetActivePane(int row, int col, CWnd* pWnd = nullptr);
    virtual BOOL CanActivateNext(BOOL bPrev = FALSE);
    virtual void ActivateNext(BOOL bPrev = FALSE);
    // Splits in the middle, or at the place that the user shows; FALSE where there is no room.
    virtual BOOL DoKeyboardSplit();
    virtual BOOL DoScroll(CView* pViewFrom, UINT nScrollCode, BOOL bDoScroll = TRUE);
    virtual BOOL DoScrollBy(CView* pViewFrom, CSize sizeScroll, BOOL bDoScroll = TRUE);

    // In client coordinates: where the bar begins.
    virtual BOOL SplitRow(int cyBefore);
    virtual BOOL SplitColumn(int cxBefore);
    virtual void DeleteRow(int rowDelete);
    virtual void DeleteColumn(int colDelete);
    virtual void DeleteView(int row, int col);
    virtual BOOL CreateScrollBarCtrl(DWORD dwStyle, UINT nID);
    virtual void RecalcLayout();

protected:
    enum ESplitType { splitBox, splitBar, splitIntersection, splitBorder };
    virtual void OnDrawSplitter(CDC* pDC, ESplitType nType, const CRect& rect);
    virtual void OnInvertTracker(const CRect& rect);
    virtual void OnDraw(CDC* pDC); // the bars, and what is beside the panes
    virtual void DrawAllSplitBars(CDC* pDC, int cxInside, int cyInside);
    virtual void GetInsideRect(CRect& rect) const; // without shared scroll bars

    // What the pointer is at: a box that makes a bar, the bar below a row or behind a column, a crossing of two.
    enum HitTestValue {
        noHit = 0,
        vSplitterBox = 1,
        hSplitterBox = 2,
        vSplitterBar1 = 101,
        vSplitterBar15 = 115,
        hSplitterBar1 = 201,
        hSplitterBar15 = 215,
        splitterIntersection1 = 301, // of the first row; fifteen for each
        splitterIntersection225 = 525
    };
    virtual int HitTest(CPoint pt) const;
    virtual void GetHitRect(int ht, CRect& rect); // of a box or bar
    virtual void SetSplitCursor(int ht);
    // A drag begins, and ends; an accepted one splits, or gives rows and columns the size up to the place.
    virtual void StartTracking(int ht);
    virtual void StopTracking(BOOL bAccept);
    virtual void TrackRowSize(int y, int row);
    virtual void TrackColumnSize(int x, int col);
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnCancelMode();
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);

    int m_cxSplitter = 7, m_cySplitter = 7; // a bar's thickness
    int m_cxSplitterGap = 7, m_cySplitterGap = 7;
    int m_cxBorder = 2, m_cyBorder = 2;                // around each pane; 0: none is drawn
    int m_cxBorderShare = 0, m_cyBorderShare = 0;      // of a gap, before the bar
    BOOL m_bHasHScroll = FALSE, m_bHasVScroll = FALSE; // bars that panes share
    int m_nMaxRows = 0, m_nMaxCols = 0;
    int m_nRows = 0, m_nCols = 0;
    CRuntimeClass* m_pDynamicViewClass = nullptr;

    struct CRowColInfo {
        int nMinSize = 0; // a smaller one goes
        int nIdealSize = 0;
        int nCurSize = 0;
    };
    CRowColInfo *m_pRowInfo = nullptr, *m_pColInfo = nullptr;
    BOOL m_bTracking = FALSE, m_bTracking2 = FALSE; // two bars at once
    CPoint m_ptTrackOffset;
    CRect m_rectLimit, m_rectTracker, m_rectTracker2;
    int m_htTrack = noHit;

private:
    BOOL CreateCommon(CWnd* parent, SIZE least, DWORD style, UINT id);
    static bool IsRowHit(int ht);
    static bool IsCrossingHit(int ht);
    CRect InsideRect() const;
    CRect BarRect(bool row, int index) const;
    CRect BoxRect(bool row) const;
    bool ShowsBox(bool row) const;
    int EndOf(const std::vector<CRowColInfo>& lines, int index, int gap) const;
    int RowTop(int row) const;
    int ColumnLeft(int column) const;
    CRect PaneRect(int row, int column) const;
    CRect BorderRect(int row, int column) const;
    void PlacePanes();
    void PlaceScrollBars(const CRect& inside);
    void InvertTrackers();
    void DragTo(CPoint point);
    void MoveBar(int ht);
    int Share(CRowColInfo* pair, int wanted) const;
    CWnd* ScrollBarAt(UINT first, int index) const;
    template <class Scroll> BOOL ScrollWith(CView* view, bool rows, Scroll scroll);

    std::vector<CRowColInfo> m_row_info, m_column_info;
};
