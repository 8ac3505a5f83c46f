// Docking of bars to the sides of a frame.
#include "afx_app.h"
#include "afx_frame.h"
#include "dock_bar.h"

#include <algorithm>
#include <utility>

namespace {

struct side {
    UINT id;
    DWORD align, bar_style;
};
// In the order in which they take their parts of the client area.
constexpr side sides[] = {{AFX_IDW_DOCKBAR_TOP, CBRS_ALIGN_TOP, CBRS_TOP},
                          {AFX_IDW_DOCKBAR_BOTTOM, CBRS_ALIGN_BOTTOM, CBRS_BOTTOM},
                          {AFX_IDW_DOCKBAR_LEFT, CBRS_ALIGN_LEFT, CBRS_LEFT},
                          {AFX_IDW_DOCKBAR_RIGHT, CBRS_ALIGN_RIGHT, CBRS_RIGHT}};

} // namespace

CDockBar* CFrameWnd::DockBarAt(UINT id) {
    for (CDockBar* bar : m_dock_bars) {
        if (bar != nullptr && bar->GetDlgCtrlID() == static_cast<int>(id))
            return bar;
    }
    return nullptr;
}

void CFrameWnd::EnableDocking(DWORD dwDockStyle) {
    for (std::size_t i = 0; i < std::size(sides); ++i) {
        if ((dwDockStyle & sides[i].align) == 0 || m_dock_bars[i] != nullptr)
            continue;
        auto* bar = new CDockBar;
        if (!bar->Create(this, sides[i].align, sides[i].id))
            AfxThrowResourceException();
        m_dock_bars[i] = bar;
    }
    // Bars that are children of the frame, the status bar among them, come before those that are docked.
    for (CDockBar* bar : m_dock_bars) {
        if (bar != nullptr)
            bar->SetWindowPos(&wndBottom, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE);
    }
}

void CFrameWnd::DockControlBar(CControlBar* pBar, UINT nDockBarID, LPCRECT lpRect) {
    const DWORD wanted = pBar->GetBarStyle() & CBRS_ALIGN_ANY;
    CDockBar* dock = nDockBarID != 0 ? DockBarAt(nDockBarID) : nullptr;
    for (const side& one : sides) {
        if (nDockBarID == 0 && dock == nullptr && (wanted & one.align) != 0)
            dock = DockBarAt(one.id);
    }
    DockControlBar(pBar, dock, lpRect);
}

void CFrameWnd::DockControlBar(CControlBar* pBar, CDockBar* pDockBar, LPCRECT lpRect) {
    const side* at = nullptr;
    for (const side& one : sides) {
        if (pDockBar != nullptr && pDockBar->GetDlgCtrlID() == static_cast<int>(one.id))
            at = &one;
    }
    ENSURE_ARG(at != nullptr && pBar != nullptr && (pBar->m_dwDockStyle & at->align) != 0);
    CDockBar* before = std::exchange(pBar->m_pDockBar, pDockBar);
    if (before != nullptr)
        before->Remove(pBar);
    pBar->m_last_side = at->id;
    constexpr DWORD borders = CBRS_BORDER_ANY;
    pBar->SetBarStyle((pBar->GetBarStyle() & ~(CBRS_ALIGN_ANY | borders | CBRS_FLOATING)) | at->align |
                      (pBar->GetBarStyle() & borders));
    pDockBar->Dock(pBar, lpRect);
    if (::GetParent(pBar->m_hWnd) != pDockBar->m_hWnd)
        pBar->SetParent(pDockBar);
    DestroyEmptyFloat(before);
    m_layout_wanted = true;
}

// The dock bar that the pointer is near, if the bar may be docked there.
CDockBar* CFrameWnd::DockBarNear(const CControlBar& bar, CPoint screen) {
    constexpr int reach = 24;
    for (const side& one : sides) {
        CDockBar* dock = (bar.m_dwDockStyle & one.align) != 0 ? DockBarAt(one.id) : nullptr;
        if (dock == nullptr)
            continue;
        CRect rect;
        dock->GetWindowRect(rect);
        rect.InflateRect(reach, reach);
        if (rect.PtInRect(screen))
            return dock;
    }
    return nullptr;
}

// A key keeps the bar from being docked.
CDockBar* CFrameWnd::DockBarFor(const CControlBar& bar, CPoint screen) {
    return ::GetKeyState(VK_CONTROL) < 0 ? nullptr : DockBarNear(bar, screen);
}

void CFrameWnd::DropControlBar(CControlBar* bar, CPoint screen, const CPoint* floating) {
    CRect place;
    bar->GetWindowRect(place);
    place.OffsetRect(screen.x - place.left, screen.y - place.top);
    CDockBar* dock = DockBarFor(*bar, screen);
    if (dock != nullptr)
        DockControlBar(bar, dock, place);
    else if (floating != nullptr)
        FloatControlBar(bar, *floating, CBRS_ALIGN_TOP | (bar->GetBarStyle() & CBRS_SIZE_DYNAMIC));
    RecalcLayout();
}

void CFrameWnd::ToggleFloating(CControlBar* bar) {
    const bool floating = bar->IsFloating();
    CDockBar* last = DockBarAt(bar->m_last_side);
    if (!floating)
        FloatControlBar(bar, bar->m_last_place, CBRS_ALIGN_TOP | (bar->GetBarStyle() & CBRS_SIZE_DYNAMIC));
    else if (last != nullptr)
        DockControlBar(bar, last);
    RecalcLayout();
}
