// Splitters: what the mouse does to them.
#include "afx_splitter.h"
#include "afxmsg_.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int most_bars = 15;

} // namespace

bool CSplitterWnd::IsRowHit(int ht) {
    return ht == vSplitterBox || (ht >= vSplitterBar1 && ht <= vSplitterBar15);
}

bool CSplitterWnd::IsCrossingHit(int ht) {
    return ht >= splitterIntersection1 && ht <= splitterIntersection225;
}

int CSplitterWnd::HitTest(CPoint pt) const {
    for (bool row : {true, false}) {
        if (ShowsBox(row) && ::PtInRect(BoxRect(row), pt))
            return row ? vSplitterBox : hSplitterBox;
    }
    int hit_row = -1, hit_column = -1;
    for (int row = 0; row + 1 < m_nRows; ++row)
        hit_row = ::PtInRect(BarRect(true, row), pt) ? row : hit_row;
    for (int column = 0; column + 1 < m_nCols; ++column)
        hit_column = ::PtInRect(BarRect(false, column), pt) ? column : hit_column;
    if (hit_row >= 0 && hit_column >= 0)
        return splitterIntersection1 + hit_row * most_bars + hit_column;
    return hit_row >= 0 ? vSplitterBar1 + hit_row : hit_column >= 0 ? hSplitterBar1 + hit_column : noHit;
}

// The bar that is tracked; one that a box makes begins at the edge.
void CSplitterWnd::GetHitRect(int ht, CRect& rect) {
    const CRect inside = InsideRect();
    if (ht == vSplitterBox)
        rect = CRect(inside.left, inside.top, inside.right, inside.top + m_cySplitter);
    else if (ht == hSplitterBox)
        rect = CRect(inside.left, inside.top, inside.left + m_cxSplitter, inside.bottom);
    else
        rect = IsRowHit(ht) ? BarRect(true, ht - vSplitterBar1) : BarRect(false, ht - hSplitterBar1);
}

void CSplitterWnd::SetSplitCursor(int ht) {
    if (ht != noHit)
        ::SetCursor(::LoadCursor(nullptr, IsCrossingHit(ht) ? IDC_SIZEALL : IsRowHit(ht) ? IDC_SIZENS : IDC_SIZEWE));
}

BOOL CSplitterWnd::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message) {
    CPoint point;
    ::GetCursorPos(&point);
    ScreenToClient(&point);
    const int ht = nHitTest == HTCLIENT && pWnd == this ? HitTest(point) : int{noHit};
    if (ht == noHit)
        return CWnd::OnSetCursor(pWnd, nHitTest, message);
    SetSplitCursor(ht);
    return TRUE;
}

// A bar that follows the pointer, drawn by inversion.
void CSplitterWnd::OnInvertTracker(const CRect& rect) {
    CClientDC dc(this);
    ::PatBlt(dc, rect.left, rect.top, rect.Width(), rect.Height(), DSTINVERT);
}

void CSplitterWnd::InvertTrackers() {
    OnInvertTracker(m_rectTracker);
    if (m_bTracking2)
        OnInvertTracker(m_rectTracker2);
}

void CSplitterWnd::StartTracking(int ht) {
    if (ht == noHit)
        return;
    GetInsideRect(m_rectLimit);
    m_bTracking2 = IsCrossingHit(ht);
    if (m_bTracking2) {
        GetHitRect(vSplitterBar1 + (ht - splitterIntersection1) / most_bars, m_rectTracker);
        GetHitRect(hSplitterBar1 + (ht - splitterIntersection1) % most_bars, m_rectTracker2);
    } else {
        GetHitRect(ht, m_rectTracker);
    }
    m_ptTrackOffset = CPoint(-m_cxSplitter / 2, -m_cySplitter / 2); // the bar's middle is at the pointer
    m_bTracking = TRUE;
    m_htTrack = ht;
    SetCapture();
    SetFocus();
    ModifyStyle(WS_CLIPCHILDREN, 0); // the tracker goes over the panes
    InvertTrackers();
    SetSplitCursor(ht);
}

void CSplitterWnd::DragTo(CPoint point) {
    point.Offset(m_ptTrackOffset);
    const int x =
        std::clamp<int>(point.x, m_rectLimit.left, std::max(m_rectLimit.right - m_cxSplitter, m_rectLimit.left));
    const int y =
        std::clamp<int>(point.y, m_rectLimit.top, std::max(m_rectLimit.bottom - m_cySplitter, m_rectLimit.top));
    InvertTrackers();
    if (m_bTracking2)
        m_rectTracker2.OffsetRect(x - m_rectTracker2.left, 0);
    if (m_bTracking2 || IsRowHit(m_htTrack))
        m_rectTracker.OffsetRect(0, y - m_rectTracker.top);
    else
        m_rectTracker.OffsetRect(x - m_rectTracker.left, 0);
    InvertTrackers();
}

void CSplitterWnd::StopTracking(BOOL bAccept) {
    if (!m_bTracking)
        return;
    InvertTrackers();
    m_bTracking = m_bTracking2 = FALSE;
    ModifyStyle(0, WS_CLIPCHILDREN);
    const bool lost = ::GetCapture() != m_hWnd; // to who has the pointer and the focus now
    if (!lost)
        ::ReleaseCapture();
    const int ht = std::exchange(m_htTrack, int{noHit});
    if (bAccept)
        MoveBar(ht);
    CWnd* pane = lost ? nullptr : GetActivePane();
    if (pane != nullptr)
        pane->SetFocus();
}

void CSplitterWnd::MoveBar(int ht) {
    if (ht == vSplitterBox) {
        SplitRow(m_rectTracker.top);
    } else if (ht == hSplitterBox) {
        SplitColumn(m_rectTracker.left);
    } else if (IsCrossingHit(ht)) {
        TrackRowSize(m_rectTracker.top, (ht - splitterIntersection1) / most_bars);
        TrackColumnSize(m_rectTracker2.left, (ht - splitterIntersection1) % most_bars);
    } else if (IsRowHit(ht)) {
        TrackRowSize(m_rectTracker.top, ht - vSplitterBar1);
    } else {
        TrackColumnSize(m_rectTracker.left, ht - hSplitterBar1);
    }
    RecalcLayout();
}

// Which of the two goes: 0, 1, or neither.
int CSplitterWnd::Share(CRowColInfo* pair, int wanted) const {
    const int both = pair[0].nCurSize + pair[1].nCurSize;
    pair[0].nIdealSize = std::clamp(wanted, 0, both);
    pair[1].nIdealSize = both - pair[0].nIdealSize;
    if ((GetStyle() & SPLS_DYNAMIC_SPLIT) == 0)
        return -1;
    return pair[0].nIdealSize < pair[0].nMinSize ? 0 : pair[1].nIdealSize < pair[1].nMinSize ? 1 : -1;
}

void CSplitterWnd::TrackRowSize(int y, int row) {
    if (row < 0 || row + 1 >= m_nRows)
        return;
    const int goes = Share(m_pRowInfo + row, y - m_cyBorderShare - RowTop(row));
    if (goes >= 0)
        DeleteRow(row + goes);
}

void CSplitterWnd::TrackColumnSize(int x, int col) {
    if (col < 0 || col + 1 >= m_nCols)
        return;
    const int goes = Share(m_pColInfo + col, x - m_cxBorderShare - ColumnLeft(col));
    if (goes >= 0)
        DeleteColumn(col + goes);
}

void CSplitterWnd::OnLButtonDown(UINT, CPoint point) {
    if (!m_bTracking)
        StartTracking(HitTest(point));
}

void CSplitterWnd::OnMouseMove(UINT nFlags, CPoint point) {
    if (m_bTracking)
        DragTo(point);
    else
        CWnd::OnMouseMove(nFlags, point);
}

void CSplitterWnd::OnLButtonUp(UINT nFlags, CPoint point) {
    if (!m_bTracking)
        return CWnd::OnLButtonUp(nFlags, point);
    DragTo(point);
    StopTracking(TRUE);
}

// Divides in the middle, or joins what a bar divides.
void CSplitterWnd::OnLButtonDblClk(UINT, CPoint point) {
    const int ht = HitTest(point);
    StopTracking(FALSE);
    if ((GetStyle() & SPLS_DYNAMIC_SPLIT) == 0)
        return;
    const CRect inside = InsideRect();
    if (ht == vSplitterBox) {
        SplitRow(inside.CenterPoint().y);
    } else if (ht == hSplitterBox) {
        SplitColumn(inside.CenterPoint().x);
    } else if (IsCrossingHit(ht)) {
        DeleteRow((ht - splitterIntersection1) / most_bars + 1);
        DeleteColumn((ht - splitterIntersection1) % most_bars + 1);
    } else if (IsRowHit(ht)) {
        DeleteRow(ht - vSplitterBar1 + 1);
    } else if (ht != noHit) {
        DeleteColumn(ht - hSplitterBar1 + 1);
    }
}

void CSplitterWnd::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    if (nChar == VK_ESCAPE)
        StopTracking(FALSE);
    else if (nChar == VK_RETURN)
        StopTracking(TRUE);
    CWnd::OnKeyDown(nChar, nRepCnt, nFlags);
}

void CSplitterWnd::OnCancelMode() {
    StopTracking(FALSE);
}

void CSplitterWnd::OnCaptureChanged(CWnd* pWnd) {
    if (m_bTracking && pWnd != this)
        StopTracking(FALSE);
}
