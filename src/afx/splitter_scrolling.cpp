// Splitters: panes that scroll together.
#include "afx_controls.h"
#include "afx_scroll_view.h"
#include "afx_splitter.h"

namespace {

// Each pane begins where the first did, though that has moved the bar that they share.
class shared_bar {
public:
    explicit shared_bar(CScrollBar* bar)
        : m_bar(bar->GetSafeHwnd()), m_before(::GetScrollPos(m_bar, SB_CTL)), m_after(m_before) {}
    ~shared_bar() { move_to(m_after); } // also past panes that do not scroll
    shared_bar(const shared_bar&) = delete;
    shared_bar& operator=(const shared_bar&) = delete;
    template <class Scroll> void let(Scroll scroll) {
        move_to(m_before);
        scroll();
        const int now = ::GetScrollPos(m_bar, SB_CTL);
        m_after = now != m_before ? now : m_after;
    }

private:
    void move_to(int position) const {
        if (::GetScrollPos(m_bar, SB_CTL) != position)
            ::SetScrollPos(m_bar, SB_CTL, position, TRUE);
    }

    HWND m_bar;
    int m_before, m_after;
};

} // namespace

void CSplitterWnd::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    if (pScrollBar == nullptr)
        return CWnd::OnHScroll(nSBCode, nPos, pScrollBar);
    const int column = static_cast<WORD>(pScrollBar->GetDlgCtrlID()) - static_cast<int>(AFX_IDW_HSCROLL_FIRST);
    if (column < 0 || column >= m_nCols)
        return;
    const HWND handle = pScrollBar->m_hWnd;
    shared_bar bar(pScrollBar);
    for (int row = 0; row < m_nRows; ++row) {
        bar.let([&] {
            if (CWnd* pane = GetPane(row, column))
                pane->SendMessage(WM_HSCROLL, MAKELONG(nSBCode, nPos), reinterpret_cast<LPARAM>(handle));
        });
    }
}

void CSplitterWnd::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    if (pScrollBar == nullptr)
        return CWnd::OnVScroll(nSBCode, nPos, pScrollBar);
    const int row = static_cast<WORD>(pScrollBar->GetDlgCtrlID()) - static_cast<int>(AFX_IDW_VSCROLL_FIRST);
    if (row < 0 || row >= m_nRows)
        return;
    const HWND handle = pScrollBar->m_hWnd;
    shared_bar bar(pScrollBar);
    for (int column = 0; column < m_nCols; ++column) {
        bar.let([&] {
            if (CWnd* pane = GetPane(row, column))
                pane->SendMessage(WM_VSCROLL, MAKELONG(nSBCode, nPos), reinterpret_cast<LPARAM>(handle));
        });
    }
}

// The panes of the view's row go up and down with it, those of its column to the sides.
template <class Scroll> BOOL CSplitterWnd::ScrollWith(CView* view, bool rows, Scroll scroll) {
    int row = 0, column = 0;
    if (!IsChildPane(view, &row, &column))
        return FALSE;
    BOOL scrolled = FALSE;
    shared_bar bar(view->GetScrollBarCtrl(rows ? SB_VERT : SB_HORZ));
    for (int i = 0; i < (rows ? m_nCols : m_nRows); ++i) {
        auto* pane = DYNAMIC_DOWNCAST(CView, rows ? GetPane(row, i) : GetPane(i, column));
        if (pane == nullptr)
            continue;
        bar.let([&] { scrolled = scroll(*pane) || scrolled; });
    }
    return scrolled;
}

BOOL CSplitterWnd::DoScroll(CView* pViewFrom, UINT nScrollCode, BOOL bDoScroll) {
    const auto by = [=](UINT code) { return [=](CView& view) { return view.OnScroll(code, 0, bDoScroll); }; };
    BOOL scrolled = FALSE;
    if (HIBYTE(nScrollCode) != 0xFF)
        scrolled = ScrollWith(pViewFrom, true, by(MAKEWORD(0xFF, HIBYTE(nScrollCode))));
    if (LOBYTE(nScrollCode) != 0xFF)
        scrolled = ScrollWith(pViewFrom, false, by(MAKEWORD(LOBYTE(nScrollCode), 0xFF))) || scrolled;
    return scrolled;
}

BOOL CSplitterWnd::DoScrollBy(CView* pViewFrom, CSize sizeScroll, BOOL bDoScroll) {
    const auto by = [=](CSize size) { return [=](CView& view) { return view.OnScrollBy(size, bDoScroll); }; };
    BOOL scrolled = FALSE;
    if (sizeScroll.cy != 0)
        scrolled = ScrollWith(pViewFrom, true, by(CSize(0, sizeScroll.cy)));
    if (sizeScroll.cx != 0)
        scrolled = ScrollWith(pViewFrom, false, by(CSize(sizeScroll.cx, 0))) || scrolled;
    return scrolled;
}

// Comes here from a pane that has no use for the wheel, or past the active one.
BOOL CSplitterWnd::OnMouseWheel(UINT nFlags, short zDelta, CPoint) {
    auto* view = DYNAMIC_DOWNCAST(CScrollView, GetActivePane());
    return view != nullptr && (nFlags & (MK_SHIFT | MK_CONTROL)) == 0 && DoScrollBy(view, view->WheelDistance(zDelta));
}
