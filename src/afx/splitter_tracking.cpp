// Splitters: what the mouse does to them.
#include "afx_splitter.h"
#include "afxmsg_.h"

#include <algorithm>
#include <utility>

CSplitterWnd::hit CSplitterWnd::HitTest(CPoint point) const {
    for (bool row : {true, false}) {
        if (ShowsBox(row) && ::PtInRect(BoxRect(row), point))
            return {row ? hit::row_box : hit::column_box, 0, 0};
    }
    hit found;
    for (int row = 0; row + 1 < m_nRows; ++row) {
        if (::PtInRect(BarRect({hit::row_bar, row, 0}), point))
            found = {hit::row_bar, row, 0};
    }
    for (int column = 0; column + 1 < m_nCols; ++column) {
        if (!::PtInRect(BarRect({hit::column_bar, column, 0}), point))
            continue;
        if (found.what == hit::row_bar)
            return {hit::crossing, found.index, column};
        found = {hit::column_bar, column, 0};
    }
    return found;
}

BOOL CSplitterWnd::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message) {
    if (nHitTest != HTCLIENT || pWnd != this)
        return CWnd::OnSetCursor(pWnd, nHitTest, message);
    CPoint point;
    ::GetCursorPos(&point);
    ScreenToClient(&point);
    switch (HitTest(point).what) {
    case hit::row_bar:
    case hit::row_box:
        return ::SetCursor(::LoadCursor(nullptr, IDC_SIZENS)), TRUE;
    case hit::column_bar:
    case hit::column_box:
        return ::SetCursor(::LoadCursor(nullptr, IDC_SIZEWE)), TRUE;
    case hit::crossing:
        return ::SetCursor(::LoadCursor(nullptr, IDC_SIZEALL)), TRUE;
    default:
        return CWnd::OnSetCursor(pWnd, nHitTest, message);
    }
}

// A bar that follows the pointer, drawn by inversion.
void CSplitterWnd::OnInvertTracker(const CRect& rect) {
    CClientDC dc(this);
    ::PatBlt(dc, rect.left, rect.top, rect.Width(), rect.Height(), DSTINVERT);
}

void CSplitterWnd::BeginDrag(const hit& at, CPoint point) {
    if (at.what == hit::nothing)
        return;
    m_tracking = at;
    const CRect inside = Inside();
    switch (at.what) {
    case hit::row_box:
        m_tracker = CRect(inside.left, 0, inside.right, m_cySplitter);
        break;
    case hit::column_box:
        m_tracker = CRect(0, inside.top, m_cxSplitter, inside.bottom);
        break;
    case hit::crossing:
        m_tracker =
            CRect(CPoint(BarRect({hit::column_bar, at.column, 0}).left, BarRect({hit::row_bar, at.index, 0}).top),
                  CSize(m_cxSplitter, m_cySplitter));
        break;
    default:
        m_tracker = BarRect(at);
    }
    m_offset = CPoint(m_tracker.left - point.x, m_tracker.top - point.y);
    SetCapture();
    SetFocus();
    ModifyStyle(WS_CLIPCHILDREN, 0); // the tracker goes over the panes
    OnInvertTracker(m_tracker);
}

void CSplitterWnd::DragTo(CPoint point) {
    const CRect inside = Inside();
    const bool rows = m_tracking.what == hit::row_bar || m_tracking.what == hit::row_box;
    const bool columns = m_tracking.what == hit::column_bar || m_tracking.what == hit::column_box;
    OnInvertTracker(m_tracker);
    const CSize size = m_tracker.Size();
    CPoint at(point.x + m_offset.x, point.y + m_offset.y);
    at.x = rows ? m_tracker.left : std::clamp<LONG>(at.x, 0, std::max<LONG>(inside.right - size.cx, 0));
    at.y = columns ? m_tracker.top : std::clamp<LONG>(at.y, 0, std::max<LONG>(inside.bottom - size.cy, 0));
    m_tracker = CRect(at, size);
    OnInvertTracker(m_tracker);
}

void CSplitterWnd::EndDrag(bool accept) {
    if (m_tracking.what == hit::nothing)
        return;
    const hit at = std::exchange(m_tracking, {});
    OnInvertTracker(m_tracker);
    ModifyStyle(0, WS_CLIPCHILDREN);
    ::ReleaseCapture();
    if (accept)
        MoveBar(at, CPoint(m_tracker.left, m_tracker.top));
}

// A dynamic row or column that becomes too small goes.
void CSplitterWnd::MoveBar(const hit& at, CPoint point) {
    const bool dynamic = (GetStyle() & SPLS_DYNAMIC_SPLIT) != 0;
    if (at.what == hit::row_box)
        SplitRow(point.y);
    else if (at.what == hit::column_box)
        SplitColumn(point.x);
    if (at.what == hit::row_bar || at.what == hit::crossing) {
        const auto index = static_cast<std::size_t>(at.index);
        line &above = m_row_info[index], &below = m_row_info[index + 1];
        const int both = above.now + below.now, wanted = point.y - EndOf(m_row_info, at.index, m_cySplitterGap);
        above.ideal = std::clamp(wanted, 0, both);
        below.ideal = both - above.ideal;
        if (dynamic && above.ideal < above.least)
            DeleteRow(at.index);
        else if (dynamic && below.ideal < below.least)
            DeleteRow(at.index + 1);
    }
    if (at.what == hit::column_bar || at.what == hit::crossing) {
        const int column = at.what == hit::crossing ? at.column : at.index;
        const auto index = static_cast<std::size_t>(column);
        line &left = m_column_info[index], &right = m_column_info[index + 1];
        const int both = left.now + right.now, wanted = point.x - EndOf(m_column_info, column, m_cxSplitterGap);
        left.ideal = std::clamp(wanted, 0, both);
        right.ideal = both - left.ideal;
        if (dynamic && left.ideal < left.least)
            DeleteColumn(column);
        else if (dynamic && right.ideal < right.least)
            DeleteColumn(column + 1);
    }
    RecalcLayout();
}

void CSplitterWnd::OnLButtonDown(UINT, CPoint point) {
    if (m_tracking.what == hit::nothing)
        BeginDrag(HitTest(point), point);
}

void CSplitterWnd::OnMouseMove(UINT nFlags, CPoint point) {
    if (m_tracking.what != hit::nothing)
        DragTo(point);
    else
        CWnd::OnMouseMove(nFlags, point);
}

void CSplitterWnd::OnLButtonUp(UINT nFlags, CPoint point) {
    if (m_tracking.what == hit::nothing)
        return CWnd::OnLButtonUp(nFlags, point);
    DragTo(point);
    EndDrag(true);
}

// Divides in the middle, or joins what a bar divides.
void CSplitterWnd::OnLButtonDblClk(UINT, CPoint point) {
    const hit at = HitTest(point);
    EndDrag(false);
    if ((GetStyle() & SPLS_DYNAMIC_SPLIT) == 0)
        return;
    const CRect inside = Inside();
    if (at.what == hit::row_box)
        SplitRow(inside.Height() / 2);
    else if (at.what == hit::column_box)
        SplitColumn(inside.Width() / 2);
    if (at.what == hit::row_bar || at.what == hit::crossing)
        DeleteRow(at.index + 1);
    if (at.what == hit::column_bar || at.what == hit::crossing)
        DeleteColumn((at.what == hit::crossing ? at.column : at.index) + 1);
}

void CSplitterWnd::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    if (nChar == VK_ESCAPE)
        EndDrag(false);
    else if (nChar == VK_RETURN)
        EndDrag(true);
    CWnd::OnKeyDown(nChar, nRepCnt, nFlags);
}

void CSplitterWnd::OnCancelMode() {
    EndDrag(false);
}
