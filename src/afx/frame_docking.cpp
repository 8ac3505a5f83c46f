// Docking of bars to the sides of a frame.
#include "afx_app.h"
#include "afx_frame.h"
#include "dock_bar.h"

#include <algorithm>

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

CString bar_section(LPCTSTR profile, std::size_t index) {
    CString section;
    section.Format("%s-Bar%u", profile, static_cast<unsigned>(index));
    return section;
}

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
    if (pBar->m_pDockBar != nullptr)
        pBar->m_pDockBar->Remove(pBar);
    pBar->m_pDockBar = pDockBar;
    constexpr DWORD borders = CBRS_BORDER_ANY;
    pBar->SetBarStyle((pBar->GetBarStyle() & ~(CBRS_ALIGN_ANY | borders | CBRS_FLOATING)) | at->align |
                      (pBar->GetBarStyle() & borders));
    pDockBar->Dock(pBar, lpRect);
    if (::GetParent(pBar->m_hWnd) != pDockBar->m_hWnd)
        pBar->SetParent(pDockBar);
    m_layout_wanted = true;
}

void CFrameWnd::SaveBarState(LPCTSTR lpszProfileName) const {
    CWinApp* app = AfxGetApp();
    std::size_t count = 0;
    for (CControlBar* bar : m_bars) {
        if (bar->IsDockBar())
            continue;
        const CString section = bar_section(lpszProfileName, count++);
        app->WriteProfileInt(section, "BarID", bar->GetDlgCtrlID());
        app->WriteProfileInt(section, "Visible", bar->IsVisible());
        app->WriteProfileInt(section, "Docked", bar->m_pDockBar != nullptr ? bar->m_pDockBar->GetDlgCtrlID() : 0);
        if (bar->m_pDockBar == nullptr)
            continue;
        const auto& rows = bar->m_pDockBar->rows();
        for (std::size_t row = 0; row < rows.size(); ++row) {
            for (const CDockBar::docked& one : rows[row]) {
                if (one.bar != bar)
                    continue;
                app->WriteProfileInt(section, "Row", static_cast<int>(row));
                app->WriteProfileInt(section, "At", one.at);
            }
        }
    }
    app->WriteProfileInt(CString(lpszProfileName) + "-Summary", "Bars", static_cast<int>(count));
}

void CFrameWnd::LoadBarState(LPCTSTR lpszProfileName) {
    constexpr UINT most = 256, most_rows = 64;
    CWinApp* app = AfxGetApp();
    const UINT count = std::min(app->GetProfileInt(CString(lpszProfileName) + "-Summary", "Bars", 0), most);
    for (UINT i = 0; i < count; ++i) {
        const CString section = bar_section(lpszProfileName, i);
        CControlBar* bar = GetControlBar(app->GetProfileInt(section, "BarID", 0));
        if (bar == nullptr || bar->IsDockBar())
            continue;
        CDockBar* dock = DockBarAt(app->GetProfileInt(section, "Docked", 0));
        const auto side_at = std::find_if(std::begin(sides), std::end(sides), [&](const side& one) {
            return dock != nullptr && dock->GetDlgCtrlID() == static_cast<int>(one.id);
        });
        if (side_at != std::end(sides) && (bar->m_dwDockStyle & side_at->align) != 0) {
            DockControlBar(bar, dock);
            dock->Remove(bar);
            const UINT row = std::min(app->GetProfileInt(section, "Row", 0), most_rows);
            dock->DockInRow(bar, row, static_cast<int>(app->GetProfileInt(section, "At", 0)));
        }
        ShowControlBar(bar, app->GetProfileInt(section, "Visible", TRUE) != 0, TRUE);
    }
    RecalcLayout();
}
