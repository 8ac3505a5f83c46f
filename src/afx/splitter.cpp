// Splitters: their panes.
#include "afx_splitter.h"
#include "afx_app.h"
#include "afx_view.h"
#include "afxmsg_.h"
#include "afxpriv.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CSplitterWnd, CWnd)

BEGIN_MESSAGE_MAP(CSplitterWnd, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
ON_WM_MOUSEMOVE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONDBLCLK()
ON_WM_LBUTTONUP()
ON_WM_KEYDOWN()
ON_WM_CANCELMODE()
ON_WM_CAPTURECHANGED()
ON_WM_SETCURSOR()
ON_WM_MOUSEWHEEL()
ON_WM_HSCROLL()
ON_WM_VSCROLL()
END_MESSAGE_MAP()

namespace {

constexpr int most_panes = 16;

} // namespace

CSplitterWnd::CSplitterWnd() = default;

CSplitterWnd::~CSplitterWnd() = default;

BOOL CSplitterWnd::CreateCommon(CWnd* parent, SIZE least, DWORD style, UINT id) {
    m_row_info.assign(static_cast<std::size_t>(m_nMaxRows), {least.cy, least.cy, 0});
    m_column_info.assign(static_cast<std::size_t>(m_nMaxCols), {least.cx, least.cx, 0});
    m_pRowInfo = m_row_info.data();
    m_pColInfo = m_column_info.data();
    m_bTracking = FALSE;
    const DWORD bars = style & (WS_HSCROLL | WS_VSCROLL);
    const LPCTSTR name = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
    if (!CreateEx(0, name, nullptr, (style & ~bars) | WS_CLIPCHILDREN, 0, 0, 0, 0, parent->GetSafeHwnd(),
                  reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id))))
        return FALSE;
    SetScrollStyle(bars);
    return TRUE;
}

BOOL CSplitterWnd::Create(CWnd* pParentWnd, int nMaxRows, int nMaxCols, SIZE sizeMin, CCreateContext* pContext,
                          DWORD dwStyle, UINT nID) {
    ENSURE_ARG(nMaxRows >= 1 && nMaxRows <= 2 && nMaxCols >= 1 && nMaxCols <= 2);
    m_nMaxRows = nMaxRows;
    m_nMaxCols = nMaxCols;
    m_nRows = m_nCols = 1;
    m_pDynamicViewClass = pContext != nullptr ? pContext->m_pNewViewClass : nullptr; // where CreateView is overridden
    if (!CreateCommon(pParentWnd, sizeMin, dwStyle, nID))
        return FALSE;
    if (CreateView(0, 0, m_pDynamicViewClass, sizeMin, pContext))
        return TRUE;
    DestroyWindow();
    return FALSE;
}

BOOL CSplitterWnd::CreateStatic(CWnd* pParentWnd, int nRows, int nCols, DWORD dwStyle, UINT nID) {
    ENSURE_ARG(nRows >= 1 && nRows <= most_panes && nCols >= 1 && nCols <= most_panes);
    m_nRows = m_nMaxRows = nRows;
    m_nCols = m_nMaxCols = nCols;
    return CreateCommon(pParentWnd, CSize(0, 0), dwStyle & ~static_cast<DWORD>(SPLS_DYNAMIC_SPLIT), nID);
}

BOOL CSplitterWnd::CreateView(int row, int col, CRuntimeClass* pViewClass, SIZE sizeInit, CCreateContext* pContext) {
    if (GetDlgItem(IdFromRowCol(row, col)) != nullptr)
        return FALSE; // there is a pane already
    m_row_info[static_cast<std::size_t>(row)].nIdealSize = sizeInit.cy;
    m_column_info[static_cast<std::size_t>(col)].nIdealSize = sizeInit.cx;
    CCreateContext context;
    if (pContext == nullptr) { // like the view that there is
        if (auto* view = DYNAMIC_DOWNCAST(CView, GetActivePane())) {
            context.m_pLastView = view;
            context.m_pCurrentDoc = view->GetDocument();
        }
        context.m_pNewViewClass = pViewClass;
        pContext = &context;
    }
    CWnd* pane = pViewClass != nullptr ? DYNAMIC_DOWNCAST(CWnd, pViewClass->CreateObject()) : nullptr;
    if (pane == nullptr)
        return FALSE;
    const DWORD style = AFX_WS_DEFAULT_VIEW & ~static_cast<DWORD>(WS_BORDER);
    const CRect rect(CPoint(0, 0), sizeInit);
    if (!pane->Create(nullptr, nullptr, style, rect, this, static_cast<UINT>(IdFromRowCol(row, col)), pContext))
        return FALSE;
    auto* view = DYNAMIC_DOWNCAST(CView, pane);
    if (pContext == &context && view != nullptr)
        view->SendMessage(WM_INITIALUPDATE);
    return TRUE;
}

int CSplitterWnd::IdFromRowCol(int row, int col) const {
    return static_cast<int>(AFX_IDW_PANE_FIRST) + row * most_panes + col;
}

CWnd* CSplitterWnd::GetPane(int row, int col) const {
    return GetDlgItem(IdFromRowCol(row, col));
}

BOOL CSplitterWnd::IsChildPane(CWnd* pWnd, int* pRow, int* pCol) {
    const int id = static_cast<WORD>(::GetDlgCtrlID(pWnd->GetSafeHwnd()));
    const bool child = ::GetParent(pWnd->GetSafeHwnd()) == m_hWnd && id >= static_cast<int>(AFX_IDW_PANE_FIRST) &&
                       id <= static_cast<int>(AFX_IDW_PANE_LAST);
    const int place = child ? id - static_cast<int>(AFX_IDW_PANE_FIRST) : -1;
    if (pRow != nullptr)
        *pRow = child ? place / most_panes : -1;
    if (pCol != nullptr)
        *pCol = child ? place % most_panes : -1;
    return child && place / most_panes < m_nRows && place % most_panes < m_nCols;
}

void CSplitterWnd::GetRowInfo(int row, int& cyCur, int& cyMin) const {
    const CRowColInfo& at = m_row_info.at(static_cast<std::size_t>(row));
    cyCur = at.nCurSize;
    cyMin = at.nMinSize;
}

void CSplitterWnd::SetRowInfo(int row, int cyIdeal, int cyMin) {
    CRowColInfo& at = m_row_info.at(static_cast<std::size_t>(row));
    at.nIdealSize = std::max(cyIdeal, 0);
    at.nMinSize = std::max(cyMin, 0);
}

void CSplitterWnd::GetColumnInfo(int col, int& cxCur, int& cxMin) const {
    const CRowColInfo& at = m_column_info.at(static_cast<std::size_t>(col));
    cxCur = at.nCurSize;
    cxMin = at.nMinSize;
}

void CSplitterWnd::SetColumnInfo(int col, int cxIdeal, int cxMin) {
    CRowColInfo& at = m_column_info.at(static_cast<std::size_t>(col));
    at.nIdealSize = std::max(cxIdeal, 0);
    at.nMinSize = std::max(cxMin, 0);
}

// The pane that has the focus, or the frame's active view.
CWnd* CSplitterWnd::GetActivePane(int* pRow, int* pCol) {
    CFrameWnd* frame = GetParentFrame();
    CWnd* view = frame != nullptr ? frame->GetActiveView() : nullptr;
    for (CWnd* at = view != nullptr ? view : CWnd::GetFocus(); at != nullptr && at != this; at = at->GetParent()) {
        if (IsChildPane(at, pRow, pCol))
            return at;
    }
    return nullptr;
}

void CSplitterWnd::SetActivePane(int row, int col, CWnd* pWnd) {
    CWnd* pane = pWnd != nullptr ? pWnd : GetPane(row, col);
    CFrameWnd* frame = GetParentFrame();
    auto* view = DYNAMIC_DOWNCAST(CView, pane);
    if (view != nullptr && frame != nullptr)
        frame->SetActiveView(view);
    else if (pane != nullptr)
        pane->SetFocus();
}

BOOL CSplitterWnd::CanActivateNext(BOOL) {
    return GetActivePane() != nullptr && m_nRows * m_nCols > 1;
}

void CSplitterWnd::ActivateNext(BOOL bPrev) {
    int row = 0, column = 0;
    if (GetActivePane(&row, &column) == nullptr)
        return;
    const int count = m_nRows * m_nCols, now = row * m_nCols + column;
    const int next = (now + (bPrev ? count - 1 : 1)) % count;
    SetActivePane(next / m_nCols, next % m_nCols);
}

BOOL CSplitterWnd::DoKeyboardSplit() {
    const CRect inside = InsideRect();
    BOOL split = FALSE;
    if (m_nRows < m_nMaxRows)
        split = SplitRow(inside.CenterPoint().y);
    if (m_nCols < m_nMaxCols)
        split = SplitColumn(inside.CenterPoint().x) || split;
    return split;
}

BOOL CSplitterWnd::SplitRow(int cyBefore) {
    if (m_nRows >= m_nMaxRows)
        return FALSE;
    CRowColInfo& above = m_row_info[static_cast<std::size_t>(m_nRows - 1)];
    CRowColInfo& fresh = m_row_info[static_cast<std::size_t>(m_nRows)];
    cyBefore -= m_cyBorder;
    const int rest = above.nCurSize - cyBefore - m_cySplitterGap;
    if (cyBefore < above.nMinSize || rest < fresh.nMinSize)
        return FALSE;
    if (m_bHasVScroll && !CreateScrollBarCtrl(SBS_VERT, AFX_IDW_VSCROLL_FIRST + UINT(m_nRows)))
        return FALSE;
    ++m_nRows;
    for (int column = 0; column < m_nCols; ++column) {
        const CSize size(m_column_info[static_cast<std::size_t>(column)].nCurSize, rest);
        if (!CreateView(m_nRows - 1, column, m_pDynamicViewClass, size, nullptr)) {
            DeleteRow(m_nRows - 1);
            return FALSE;
        }
    }
    above.nIdealSize = cyBefore;
    fresh.nIdealSize = rest;
    RecalcLayout();
    return TRUE;
}

BOOL CSplitterWnd::SplitColumn(int cxBefore) {
    if (m_nCols >= m_nMaxCols)
        return FALSE;
    CRowColInfo& left = m_column_info[static_cast<std::size_t>(m_nCols - 1)];
    CRowColInfo& fresh = m_column_info[static_cast<std::size_t>(m_nCols)];
    cxBefore -= m_cxBorder;
    const int rest = left.nCurSize - cxBefore - m_cxSplitterGap;
    if (cxBefore < left.nMinSize || rest < fresh.nMinSize)
        return FALSE;
    if (m_bHasHScroll && !CreateScrollBarCtrl(SBS_HORZ, AFX_IDW_HSCROLL_FIRST + UINT(m_nCols)))
        return FALSE;
    ++m_nCols;
    for (int row = 0; row < m_nRows; ++row) {
        const CSize size(rest, m_row_info[static_cast<std::size_t>(row)].nCurSize);
        if (!CreateView(row, m_nCols - 1, m_pDynamicViewClass, size, nullptr)) {
            DeleteColumn(m_nCols - 1);
            return FALSE;
        }
    }
    left.nIdealSize = cxBefore;
    fresh.nIdealSize = rest;
    RecalcLayout();
    return TRUE;
}

void CSplitterWnd::DeleteView(int row, int col) {
    CWnd* pane = GetPane(row, col);
    if (pane == nullptr)
        return;
    if (GetActivePane() == pane && m_nRows * m_nCols > 1)
        ActivateNext();
    pane->DestroyWindow();
}

// The panes behind the row or column take the place of those that go.
void CSplitterWnd::DeleteRow(int rowDelete) {
    StopTracking(FALSE);
    if (rowDelete < 0 || rowDelete >= m_nRows || m_nRows < 2)
        return;
    for (int column = 0; column < m_nCols; ++column) {
        DeleteView(rowDelete, column);
        for (int row = rowDelete + 1; row < m_nRows; ++row) {
            if (CWnd* pane = GetPane(row, column))
                pane->SetDlgCtrlID(IdFromRowCol(row - 1, column));
        }
    }
    --m_nRows;
    if (CWnd* bar = ScrollBarAt(AFX_IDW_VSCROLL_FIRST, m_nRows))
        bar->DestroyWindow();
    RecalcLayout();
}

void CSplitterWnd::DeleteColumn(int colDelete) {
    StopTracking(FALSE);
    if (colDelete < 0 || colDelete >= m_nCols || m_nCols < 2)
        return;
    for (int row = 0; row < m_nRows; ++row) {
        DeleteView(row, colDelete);
        for (int column = colDelete + 1; column < m_nCols; ++column) {
            if (CWnd* pane = GetPane(row, column))
                pane->SetDlgCtrlID(IdFromRowCol(row, column - 1));
        }
    }
    --m_nCols;
    if (CWnd* bar = ScrollBarAt(AFX_IDW_HSCROLL_FIRST, m_nCols))
        bar->DestroyWindow();
    RecalcLayout();
}

// What panes tell goes on to the frame.
BOOL CSplitterWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (CWnd::OnCommand(wParam, lParam))
        return TRUE;
    return GetParent()->SendMessage(WM_COMMAND, wParam, lParam) != 0;
}

BOOL CSplitterWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (CWnd::OnNotify(wParam, lParam, pResult))
        return TRUE;
    *pResult = GetParent()->SendMessage(WM_NOTIFY, wParam, lParam);
    return TRUE;
}
