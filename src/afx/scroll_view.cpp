#include "afx_scroll_view.h"
#include "afx_app.h"
#include "afx_controls.h"
#include "afx_splitter.h"
#include "afxmsg_.h"

#include <algorithm>
#include <utility>

IMPLEMENT_DYNAMIC(CScrollView, CView)

BEGIN_MESSAGE_MAP(CScrollView, CView)
ON_WM_SIZE()
ON_WM_HSCROLL()
ON_WM_VSCROLL()
ON_WM_MOUSEWHEEL()
END_MESSAGE_MAP()

const SIZE CScrollView::sizeDefault = {0, 0};

CScrollView::CScrollView() = default;

CScrollView::~CScrollView() = default;

void CScrollView::SetScrollSizes(int nMapMode, SIZE sizeTotal, const SIZE& sizePage, const SIZE& sizeLine) {
    ENSURE_ARG(nMapMode > 0 && nMapMode != MM_ISOTROPIC && nMapMode != MM_ANISOTROPIC);
    const bool other = std::exchange(m_nMapMode, nMapMode) != nMapMode;
    m_totalLog = sizeTotal;
    POINT sizes[] = {{sizeTotal.cx, sizeTotal.cy}, {sizePage.cx, sizePage.cy}, {sizeLine.cx, sizeLine.cy}};
    {
        CWindowDC dc(nullptr);
        ::SetMapMode(dc, nMapMode);
        ::LPtoDP(dc, sizes, 3);
    }
    const auto device = [&](int i) { return CSize(std::abs(sizes[i].x), std::abs(sizes[i].y)); };
    const auto wish = [](LONG given, LONG whole) { return given != 0 ? given : std::max<LONG>(whole / 10, 1); };
    m_totalDev = device(0);
    m_pageDev = CSize(wish(device(1).cx, m_totalDev.cx), wish(device(1).cy, m_totalDev.cy));
    m_lineDev = CSize(wish(device(2).cx, m_pageDev.cx), wish(device(2).cy, m_pageDev.cy));
    if (m_hWnd == nullptr)
        return;
    UpdateBars();
    if (other)
        Invalidate();
}

void CScrollView::SetScaleToFitSize(SIZE sizeTotal) {
    m_nMapMode = MM_SCALETOFIT;
    m_totalLog = sizeTotal;
    CRect client;
    GetClientRect(client);
    m_totalDev = client.Size();
    if (m_hWnd == nullptr)
        return;
    UpdateBars();
    Invalidate();
}

void CScrollView::OnPrepareDC(CDC* pDC, CPrintInfo* pInfo) {
    if (m_nMapMode == MM_SCALETOFIT) {
        ::SetMapMode(*pDC, MM_ANISOTROPIC);
        ::SetWindowExtEx(*pDC, m_totalLog.cx, m_totalLog.cy, nullptr);
        ::SetViewportExtEx(*pDC, std::max<int>(m_totalDev.cx, 1), std::max<int>(m_totalDev.cy, 1), nullptr);
    } else if (m_nMapMode > 0) {
        ::SetMapMode(*pDC, m_nMapMode);
    }
    CPoint origin(0, 0);
    if (pInfo == nullptr) { // paper does not scroll
        const CPoint position = GetDeviceScrollPosition();
        origin = CPoint(-position.x, -position.y);
        CRect client;
        GetClientRect(client);
        if (m_bCenter && m_totalDev.cx < client.Width())
            origin.x = (client.Width() - m_totalDev.cx) / 2;
        if (m_bCenter && m_totalDev.cy < client.Height())
            origin.y = (client.Height() - m_totalDev.cy) / 2;
    }
    ::SetViewportOrgEx(*pDC, origin.x, origin.y, nullptr);
    CView::OnPrepareDC(pDC, pInfo);
}

CPoint CScrollView::GetDeviceScrollPosition() const {
    return CPoint(GetScrollPos(SB_HORZ), GetScrollPos(SB_VERT));
}

CPoint CScrollView::GetScrollPosition() const {
    CPoint position = GetDeviceScrollPosition();
    if (m_nMapMode == MM_SCALETOFIT || m_nMapMode <= MM_TEXT)
        return m_nMapMode == MM_SCALETOFIT ? CPoint(0, 0) : position;
    CWindowDC dc(nullptr);
    ::SetMapMode(dc, m_nMapMode);
    ::DPtoLP(dc, &position, 1);
    return position;
}

void CScrollView::ScrollToPosition(POINT pt) {
    if (m_nMapMode > MM_TEXT) {
        CWindowDC dc(nullptr);
        ::SetMapMode(dc, m_nMapMode);
        ::LPtoDP(dc, &pt, 1);
    }
    ScrollToDevicePosition(pt);
}

void CScrollView::ScrollToDevicePosition(POINT ptDev) {
    const CPoint before = GetDeviceScrollPosition();
    const LONG right = std::max(GetScrollLimit(SB_HORZ), 0), bottom = std::max(GetScrollLimit(SB_VERT), 0);
    const CPoint to(std::clamp<LONG>(ptDev.x, 0, right), std::clamp<LONG>(ptDev.y, 0, bottom));
    SetScrollPos(SB_HORZ, to.x);
    SetScrollPos(SB_VERT, to.y);
    ScrollWindow(before.x - to.x, before.y - to.y);
}

void CScrollView::CenterOnPoint(CPoint ptCenter) {
    CRect client;
    GetClientRect(client);
    ScrollToDevicePosition(CPoint(ptCenter.x - client.Width() / 2, ptCenter.y - client.Height() / 2));
}

void CScrollView::GetDeviceScrollSizes(int& nMapMode, SIZE& sizeTotal, SIZE& sizePage, SIZE& sizeLine) const {
    nMapMode = m_nMapMode;
    sizeTotal = m_totalDev;
    sizePage = m_pageDev;
    sizeLine = m_lineDev;
}

// A bar of the window itself, not one that a splitter shares among its panes.
bool CScrollView::HasOwnBar(int bar) const {
    return GetScrollBarCtrl(bar) == nullptr;
}

void CScrollView::GetScrollBarSizes(CSize& sizeSb) {
    sizeSb = CSize(HasOwnBar(SB_VERT) ? ::GetSystemMetrics(SM_CXVSCROLL) : 0,
                   HasOwnBar(SB_HORZ) ? ::GetSystemMetrics(SM_CYHSCROLL) : 0);
}

BOOL CScrollView::GetTrueClientSize(CSize& size, CSize& sizeSb) {
    CRect client;
    GetClientRect(client);
    GetScrollBarSizes(sizeSb);
    size = client.Size();
    if ((GetStyle() & WS_VSCROLL) != 0)
        size.cx += sizeSb.cx;
    if ((GetStyle() & WS_HSCROLL) != 0)
        size.cy += sizeSb.cy;
    return size.cx > sizeSb.cx && size.cy > sizeSb.cy;
}

// What the bars that are needed leave.
CSize CScrollView::Room(bool& horizontal, bool& vertical) {
    CSize room, bars;
    GetTrueClientSize(room, bars);
    horizontal = m_totalDev.cx > room.cx;
    if (horizontal)
        room.cy -= bars.cy;
    vertical = m_totalDev.cy > room.cy;
    if (vertical)
        room.cx -= bars.cx;
    if (vertical && !horizontal && m_totalDev.cx > room.cx) {
        horizontal = true;
        room.cy -= bars.cy;
    }
    return room;
}

CSize CScrollView::RangeFor(CSize room) const {
    return CSize(std::max<LONG>(m_totalDev.cx - room.cx, 0), std::max<LONG>(m_totalDev.cy - room.cy, 0));
}

void CScrollView::UpdateBars() {
    if (m_bInsideUpdate || m_nMapMode == 0)
        return;
    m_bInsideUpdate = TRUE;
    bool horizontal = false, vertical = false;
    const CSize room = m_nMapMode == MM_SCALETOFIT ? m_totalDev : Room(horizontal, vertical);
    const CPoint before = GetDeviceScrollPosition();
    const CSize range = RangeFor(room);
    const CPoint to(std::min<LONG>(before.x, range.cx), std::min<LONG>(before.y, range.cy));
    if (to.x != before.x || to.y != before.y)
        ScrollWindow(before.x - to.x, before.y - to.y);
    const struct {
        int bar;
        bool needed;
        LONG total, page, at;
    } bars[] = {{SB_HORZ, horizontal, m_totalDev.cx, room.cx, to.x}, {SB_VERT, vertical, m_totalDev.cy, room.cy, to.y}};
    for (const auto& one : bars) {
        if (!HasOwnBar(one.bar))
            EnableScrollBarCtrl(one.bar, one.needed);
        else
            ShowScrollBar(static_cast<UINT>(one.bar), one.needed);
        SCROLLINFO info{};
        info.fMask = SIF_PAGE | SIF_RANGE | SIF_POS;
        info.nMax = one.needed ? static_cast<int>(std::max<LONG>(one.total - 1, 0)) : 0;
        info.nPage = one.needed ? static_cast<UINT>(one.page) : 0;
        info.nPos = one.needed ? static_cast<int>(one.at) : 0;
        SetScrollInfo(one.bar, &info);
    }
    m_bInsideUpdate = FALSE;
}

void CScrollView::OnSize(UINT nType, int cx, int cy) {
    CView::OnSize(nType, cx, cy);
    if (m_nMapMode == MM_SCALETOFIT)
        SetScaleToFitSize(m_totalLog);
    else
        UpdateBars();
}

void CScrollView::CheckScrollBars(BOOL& bHasHorzBar, BOOL& bHasVertBar) const {
    const DWORD style = GetStyle();
    const auto has = [&](int bar, DWORD own) {
        auto* control = reinterpret_cast<CWnd*>(GetScrollBarCtrl(bar));
        return (control != nullptr && control->IsWindowEnabled()) || (style & own) != 0;
    };
    bHasHorzBar = has(SB_HORZ, WS_HSCROLL);
    bHasVertBar = has(SB_VERT, WS_VSCROLL);
}

void CScrollView::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar*) {
    OnScroll(MAKEWORD(nSBCode, 0xFF), nPos);
}

void CScrollView::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar*) {
    OnScroll(MAKEWORD(0xFF, nSBCode), nPos);
}

namespace {

// Where a bar's code leads to. Positions beyond 16 bits come from the bar itself.
int position_after(CScrollView& view, int bar, UINT code, int line, int page) {
    const int now = view.GetScrollPos(bar);
    switch (code) {
    case SB_TOP:
        return 0;
    case SB_BOTTOM:
        return view.GetScrollLimit(bar);
    case SB_LINEUP:
        return now - line;
    case SB_LINEDOWN:
        return now + line;
    case SB_PAGEUP:
        return now - page;
    case SB_PAGEDOWN:
        return now + page;
    case SB_THUMBTRACK: {
        SCROLLINFO info{};
        return view.GetScrollInfo(bar, &info, SIF_TRACKPOS) ? info.nTrackPos : now;
    }
    default:
        return now;
    }
}

} // namespace

BOOL CScrollView::OnScroll(UINT nScrollCode, UINT, BOOL bDoScroll) {
    const CPoint now = GetDeviceScrollPosition();
    const int x = position_after(*this, SB_HORZ, LOBYTE(nScrollCode), m_lineDev.cx, m_pageDev.cx);
    const int y = position_after(*this, SB_VERT, HIBYTE(nScrollCode), m_lineDev.cy, m_pageDev.cy);
    const BOOL scrolled = OnScrollBy(CSize(x - now.x, y - now.y), bDoScroll);
    if (scrolled && bDoScroll)
        UpdateWindow();
    return scrolled;
}

BOOL CScrollView::OnScrollBy(CSize sizeScroll, BOOL bDoScroll) {
    BOOL horizontal = FALSE, vertical = FALSE;
    CheckScrollBars(horizontal, vertical);
    const CPoint before = GetDeviceScrollPosition();
    const auto moved = [](BOOL has, LONG from, LONG by, int limit) {
        return has ? std::clamp<LONG>(from + by, 0, std::max(limit, 0)) : from;
    };
    const CPoint to(moved(horizontal, before.x, sizeScroll.cx, GetScrollLimit(SB_HORZ)),
                    moved(vertical, before.y, sizeScroll.cy, GetScrollLimit(SB_VERT)));
    if (to.x == before.x && to.y == before.y)
        return FALSE;
    if (bDoScroll) {
        ScrollWindow(before.x - to.x, before.y - to.y);
        if (to.x != before.x)
            SetScrollPos(SB_HORZ, to.x);
        if (to.y != before.y)
            SetScrollPos(SB_VERT, to.y);
    }
    return TRUE;
}

// With keys the wheel means something else. A splitter turns the panes that share a bar with the view, too.
BOOL CScrollView::OnMouseWheel(UINT nFlags, short zDelta, CPoint pt) {
    if ((nFlags & (MK_SHIFT | MK_CONTROL)) != 0)
        return FALSE;
    CSplitterWnd* splitter = GetParentSplitter(this, FALSE);
    return splitter != nullptr ? splitter->DoScrollBy(this, WheelDistance(zDelta)) : DoMouseWheel(nFlags, zDelta, pt);
}

BOOL CScrollView::DoMouseWheel(UINT, short zDelta, CPoint) {
    const BOOL scrolled = OnScrollBy(WheelDistance(zDelta));
    if (scrolled)
        UpdateWindow();
    return scrolled;
}

CSize CScrollView::WheelDistance(short delta) {
    UINT lines = 3;
    ::SystemParametersInfo(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    BOOL horizontal = FALSE, vertical = FALSE;
    CheckScrollBars(horizontal, vertical);
    const auto distance = [&](LONG line, LONG page) {
        const std::int64_t step = lines == WHEEL_PAGESCROLL ? page : std::int64_t{line} * std::min(lines, 100u);
        return static_cast<int>(std::clamp<std::int64_t>(-delta * step / WHEEL_DELTA, -INT_MAX, INT_MAX));
    };
    const CSize by(distance(m_lineDev.cx, m_pageDev.cx), distance(m_lineDev.cy, m_pageDev.cy));
    return GetWheelScrollDistance(by, horizontal && !vertical, vertical);
}

CSize CScrollView::GetWheelScrollDistance(CSize sizeDistance, BOOL bHorz, BOOL bVert) {
    return CSize(bHorz ? sizeDistance.cx : 0, bVert ? sizeDistance.cy : 0);
}

void CScrollView::FillOutsideRect(CDC* pDC, CBrush* pBrush) {
    const int state = ::SaveDC(*pDC);
    ::SetMapMode(*pDC, MM_TEXT);
    ::SetViewportOrgEx(*pDC, 0, 0, nullptr);
    ::SetWindowOrgEx(*pDC, 0, 0, nullptr);
    CRect client;
    GetClientRect(client);
    const CPoint at = GetDeviceScrollPosition();
    const auto brush = static_cast<HBRUSH>(pBrush->GetSafeHandle());
    const LONG right = m_totalDev.cx - at.x, bottom = m_totalDev.cy - at.y;
    if (right < client.right)
        ::FillRect(*pDC, CRect(right, 0, client.right, client.bottom), brush);
    if (bottom < client.bottom)
        ::FillRect(*pDC, CRect(0, bottom, std::min<LONG>(right, client.right), client.bottom), brush);
    ::RestoreDC(*pDC, state);
}

// The frame takes the size at which the view shows everything.
void CScrollView::ResizeParentToFit(BOOL bShrinkOnly) {
    CFrameWnd* frame = GetParentFrame();
    if (frame == nullptr)
        return;
    frame->RecalcLayout();
    CRect client, window;
    GetClientRect(client);
    frame->GetWindowRect(window);
    CSize growth(m_totalDev.cx - client.Width(), m_totalDev.cy - client.Height());
    if (bShrinkOnly)
        growth = CSize(std::min<LONG>(growth.cx, 0), std::min<LONG>(growth.cy, 0));
    frame->SetWindowPos(nullptr, 0, 0, window.Width() + growth.cx, window.Height() + growth.cy,
                        SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CScrollView::CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType) {
    if (nAdjustType == adjustOutside)
        ::AdjustWindowRectEx(lpClientRect, 0, FALSE, GetExStyle());
}
