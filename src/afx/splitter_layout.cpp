// Splitters: places of panes and bars, painting, scrolling.
#include "afx_splitter.h"
#include "afx_controls.h"
#include "afx_view.h"
#include "afxmsg_.h"

#include <algorithm>
#include <memory>

namespace {

int bar_breadth(bool vertical) {
    return ::GetSystemMetrics(vertical ? SM_CXVSCROLL : SM_CYHSCROLL);
}

constexpr int box_size = 7; // what the user pulls the first bar out of

// Every line gets its wish; the last one gets what is left. Those that would be smaller than allowed get nothing.
template <class Line> void share(std::vector<Line>& lines, int count, int room, int gap) {
    for (int i = 0; i < count; ++i) {
        Line& at = lines[static_cast<std::size_t>(i)];
        at.nCurSize = i + 1 < count ? std::clamp(at.nIdealSize, 0, std::max(room, 0)) : std::max(room, 0);
        if (at.nCurSize < at.nMinSize)
            at.nCurSize = 0;
        room -= at.nCurSize + (i + 1 < count ? gap : 0);
    }
}

} // namespace

CRect CSplitterWnd::InsideRect() const {
    CRect rect;
    GetInsideRect(rect);
    return rect;
}

void CSplitterWnd::GetInsideRect(CRect& rect) const {
    GetClientRect(rect);
    rect.DeflateRect(m_cxBorder, m_cyBorder);
    if (m_bHasVScroll)
        rect.right = std::max<LONG>(rect.right - bar_breadth(true), 0);
    if (m_bHasHScroll)
        rect.bottom = std::max<LONG>(rect.bottom - bar_breadth(false), 0);
}

// Where the line begins.
int CSplitterWnd::EndOf(const std::vector<CRowColInfo>& lines, int index, int gap) const {
    int at = 0;
    for (int i = 0; i < index; ++i)
        at += lines[static_cast<std::size_t>(i)].nCurSize + gap;
    return at;
}

void CSplitterWnd::RecalcLayout() {
    if (m_hWnd == nullptr || m_nRows == 0 || m_nCols == 0)
        return;
    const CRect inside = InsideRect();
    if (inside.Width() <= 0 || inside.Height() <= 0)
        return; // iconic, or not laid out yet
    share(m_row_info, m_nRows, inside.Height(), m_cySplitterGap);
    share(m_column_info, m_nCols, inside.Width(), m_cxSplitterGap);
    PlacePanes();
    PlaceScrollBars(inside);
    // A pane that moved took along what its neighbours had painted there meanwhile.
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

int CSplitterWnd::RowTop(int row) const {
    return InsideRect().top + EndOf(m_row_info, row, m_cySplitterGap);
}

int CSplitterWnd::ColumnLeft(int column) const {
    return InsideRect().left + EndOf(m_column_info, column, m_cxSplitterGap);
}

CRect CSplitterWnd::PaneRect(int row, int column) const {
    return CRect(CPoint(ColumnLeft(column), RowTop(row)),
                 CSize(m_column_info[static_cast<std::size_t>(column)].nCurSize,
                       m_row_info[static_cast<std::size_t>(row)].nCurSize));
}

// A splitter in a pane has borders of its own.
void CSplitterWnd::PlacePanes() {
    for (int row = 0; row < m_nRows; ++row) {
        for (int column = 0; column < m_nCols; ++column) {
            CWnd* pane = GetPane(row, column);
            if (pane == nullptr)
                continue; // of a static splitter that is not complete yet
            CRect rect = PaneRect(row, column);
            if (pane->IsKindOf(RUNTIME_CLASS(CSplitterWnd)))
                rect.InflateRect(m_cxBorder, m_cyBorder);
            pane->MoveWindow(rect);
        }
    }
}

void CSplitterWnd::PlaceScrollBars(const CRect& inside) {
    for (int row = 0; m_bHasVScroll && row < m_nRows; ++row) {
        const int box = row == 0 && ShowsBox(true) ? box_size : 0;
        if (CWnd* bar = ScrollBarAt(AFX_IDW_VSCROLL_FIRST, row))
            bar->MoveWindow(inside.right, RowTop(row) + box, bar_breadth(true),
                            m_row_info[static_cast<std::size_t>(row)].nCurSize - box);
    }
    for (int column = 0; m_bHasHScroll && column < m_nCols; ++column) {
        const int box = column == 0 && ShowsBox(false) ? box_size : 0;
        if (CWnd* bar = ScrollBarAt(AFX_IDW_HSCROLL_FIRST, column))
            bar->MoveWindow(ColumnLeft(column) + box, inside.bottom,
                            m_column_info[static_cast<std::size_t>(column)].nCurSize - box, bar_breadth(false));
    }
}

void CSplitterWnd::OnSize(UINT nType, int cx, int cy) {
    if (nType != SIZE_MINIMIZED && cx > 0 && cy > 0)
        RecalcLayout();
    CWnd::OnSize(nType, cx, cy);
}

bool CSplitterWnd::ShowsBox(bool row) const {
    return (GetStyle() & SPLS_DYNAMIC_SPLIT) != 0 && (row ? m_nRows < m_nMaxRows : m_nCols < m_nMaxCols);
}

// At the end of the shared scroll bar; in the corner where there is none.
CRect CSplitterWnd::BoxRect(bool row) const {
    const CRect inside = InsideRect();
    if (row) {
        const int breadth = m_bHasVScroll ? bar_breadth(true) : box_size;
        const int x = m_bHasVScroll ? inside.right : inside.right - breadth;
        return CRect(x, inside.top, x + breadth, inside.top + box_size);
    }
    const int breadth = m_bHasHScroll ? bar_breadth(false) : box_size;
    const int y = m_bHasHScroll ? inside.bottom : inside.bottom - breadth;
    return CRect(inside.left, y, inside.left + box_size, y + breadth);
}

// From edge to edge, below the borders.
CRect CSplitterWnd::BarRect(bool row, int index) const {
    CRect inside = InsideRect();
    inside.InflateRect(m_cxBorder, m_cyBorder);
    if (row) {
        const int y = RowTop(index + 1) - m_cySplitterGap + m_cyBorderShare;
        return CRect(inside.left, y, inside.right, y + m_cySplitter);
    }
    const int x = ColumnLeft(index + 1) - m_cxSplitterGap + m_cxBorderShare;
    return CRect(x, inside.top, x + m_cxSplitter, inside.bottom);
}

void CSplitterWnd::OnPaint() {
    CPaintDC dc(this);
    OnDraw(&dc);
}

void CSplitterWnd::OnDraw(CDC* pDC) {
    CRect client;
    GetClientRect(client);
    const CRect inside = InsideRect();
    const HBRUSH face = ::GetSysColorBrush(COLOR_BTNFACE);
    ::FillRect(*pDC, CRect(inside.right, inside.bottom, client.right, client.bottom), face);
    for (bool row : {true, false}) {
        const CRect strip = row ? CRect(inside.right, client.top, client.right, inside.bottom)
                                : CRect(client.left, inside.bottom, inside.right, client.bottom);
        ::FillRect(*pDC, strip, face);
        if (ShowsBox(row))
            OnDrawSplitter(pDC, splitBox, BoxRect(row));
    }
    DrawAllSplitBars(pDC, inside.right, inside.bottom);
}

void CSplitterWnd::DrawAllSplitBars(CDC* pDC, int, int) {
    for (int row = 0; row + 1 < m_nRows; ++row)
        OnDrawSplitter(pDC, splitBar, BarRect(true, row));
    for (int column = 0; column + 1 < m_nCols; ++column)
        OnDrawSplitter(pDC, splitBar, BarRect(false, column));
    for (int row = 0; m_cxBorder > 0 && m_cyBorder > 0 && row < m_nRows; ++row) {
        for (int column = 0; column < m_nCols; ++column)
            OnDrawSplitter(pDC, splitBorder, BorderRect(row, column));
    }
}

// Around a pane, and the shared bars behind the last ones.
CRect CSplitterWnd::BorderRect(int row, int column) const {
    CRect rect = PaneRect(row, column);
    rect.InflateRect(m_cxBorder, m_cyBorder);
    if (m_bHasVScroll && column + 1 == m_nCols)
        rect.right += bar_breadth(true);
    if (m_bHasHScroll && row + 1 == m_nRows)
        rect.bottom += bar_breadth(false);
    return rect;
}

BOOL CSplitterWnd::OnEraseBkgnd(CDC*) {
    return TRUE; // panes and bars cover everything
}

void CSplitterWnd::OnDrawSplitter(CDC* pDC, ESplitType nType, const CRect& rect) {
    CRect inside = rect;
    if (nType == splitBorder) {
        ::DrawEdge(*pDC, inside, EDGE_SUNKEN, BF_RECT);
        return;
    }
    ::FillRect(*pDC, inside, ::GetSysColorBrush(COLOR_BTNFACE));
    ::DrawEdge(*pDC, inside, nType == splitBox ? EDGE_RAISED : BDR_RAISEDINNER, BF_RECT);
}

DWORD CSplitterWnd::GetScrollStyle() const {
    return (m_bHasHScroll ? WS_HSCROLL : 0) | (m_bHasVScroll ? WS_VSCROLL : 0);
}

CWnd* CSplitterWnd::ScrollBarAt(UINT first, int index) const {
    const HWND bar = ::GetDlgItem(m_hWnd, static_cast<int>(first) + index);
    return bar != nullptr ? FromHandle(bar) : nullptr;
}

void CSplitterWnd::SetScrollStyle(DWORD dwStyle) {
    m_bHasHScroll = (dwStyle & WS_HSCROLL) != 0;
    m_bHasVScroll = (dwStyle & WS_VSCROLL) != 0;
    for (int row = 0; row < m_nRows; ++row) {
        CWnd* bar = ScrollBarAt(AFX_IDW_VSCROLL_FIRST, row);
        if (m_bHasVScroll && bar == nullptr)
            CreateScrollBarCtrl(SBS_VERT, AFX_IDW_VSCROLL_FIRST + static_cast<UINT>(row));
        else if (bar != nullptr)
            bar->ShowWindow(m_bHasVScroll ? SW_SHOW : SW_HIDE);
    }
    for (int column = 0; column < m_nCols; ++column) {
        CWnd* bar = ScrollBarAt(AFX_IDW_HSCROLL_FIRST, column);
        if (m_bHasHScroll && bar == nullptr)
            CreateScrollBarCtrl(SBS_HORZ, AFX_IDW_HSCROLL_FIRST + static_cast<UINT>(column));
        else if (bar != nullptr)
            bar->ShowWindow(m_bHasHScroll ? SW_SHOW : SW_HIDE);
    }
}

BOOL CSplitterWnd::CreateScrollBarCtrl(DWORD dwStyle, UINT nID) {
    return ::CreateWindow("SCROLLBAR", nullptr, dwStyle | WS_VISIBLE | WS_CHILD, 0, 0, 1, 1, m_hWnd,
                          reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), AfxGetInstanceHandle(),
                          nullptr) != nullptr;
}
