#include "controls/wnt_scroll_bar.h"

#include "arithmetic.h"

BEGIN_MESSAGE_MAP(CWntScrollBar, CScrollBar)
ON_WM_HSCROLL()
ON_WM_VSCROLL()
END_MESSAGE_MAP()

namespace {

int position_for(UINT code, UINT pos, const SCROLLINFO& info) {
    const int page = static_cast<int>(info.nPage);
    switch (code) {
    case SB_LINEUP:
    case SB_TOP: // intended: one line, not the end
        return wnt::wrapped::subtract(info.nPos, 1);
    case SB_LINEDOWN:
    case SB_BOTTOM:
        return wnt::wrapped::add(info.nPos, 1);
    case SB_PAGEUP:
        return wnt::wrapped::subtract(info.nPos, page);
    case SB_PAGEDOWN:
        return wnt::wrapped::add(info.nPos, page);
    case SB_THUMBPOSITION:
    case SB_THUMBTRACK:
        return static_cast<int>(pos);
    default:
        return info.nPos;
    }
}

// True when the code asks for another position, whether or not the platform then clamps it back.
bool apply(UINT code, UINT pos, CScrollBar* bar) {
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    if (!bar || !bar->m_hWnd || !bar->GetScrollInfo(&info, SIF_RANGE | SIF_PAGE | SIF_POS | SIF_TRACKPOS))
        return false;
    const int target = position_for(code, pos, info);
    if (target == info.nPos)
        return false;
    bar->SetScrollPos(target);
    return true;
}

} // namespace

void CWntScrollBar::SetThumb(UINT code, UINT pos, CScrollBar* bar) {
    apply(code, pos, bar);
}

void CWntScrollBar::OnHScroll(UINT code, UINT pos, CScrollBar* bar) {
    if (apply(code, pos, bar))
        CScrollBar::OnHScroll(code, pos, bar);
}

void CWntScrollBar::OnVScroll(UINT code, UINT pos, CScrollBar* bar) {
    if (apply(code, pos, bar))
        CScrollBar::OnVScroll(code, pos, bar);
}
