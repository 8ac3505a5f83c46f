// Bars in small frames of their own, and where all bars of a frame are.
#include "afx_frame.h"
#include "afxadv.h"
#include "dock_bar.h"
#include "mini_dock_frame.h"
#include "position_list.h"

#include <algorithm>
#include <utility>

namespace {

CMiniDockFrameWnd* float_of(const CControlBar& bar) {
    return bar.IsFloating() ? DYNAMIC_DOWNCAST(CMiniDockFrameWnd, CWnd::FromHandle(::GetAncestor(bar, GA_ROOT)))
                            : nullptr;
}

} // namespace

CMiniDockFrameWnd* CFrameWnd::CreateFloatingFrame(DWORD dwStyle) {
    auto* frame = new CMiniDockFrameWnd; // goes with its window
    if (!frame->Create(this, dwStyle))
        AfxThrowResourceException();
    return frame;
}

void CFrameWnd::DestroyEmptyFloat(CDockBar* dock) {
    if (dock != nullptr && dock->IsFloating() && dock->rows().empty())
        ::DestroyWindow(::GetAncestor(dock->m_hWnd, GA_ROOT));
}

void CFrameWnd::FloatControlBar(CControlBar* pBar, CPoint point, DWORD dwStyle) {
    ENSURE_ARG(pBar != nullptr && pBar->m_hWnd != nullptr);
    const DWORD side = (dwStyle & CBRS_ORIENT_VERT) != 0 ? CBRS_ALIGN_LEFT : CBRS_ALIGN_TOP;
    CMiniDockFrameWnd* frame = float_of(*pBar);
    if (frame == nullptr || (pBar->GetBarStyle() & CBRS_ALIGN_ANY) != side) {
        frame = CreateFloatingFrame(side | ((dwStyle | pBar->GetBarStyle()) & CBRS_SIZE_DYNAMIC));
        CDockBar* before = std::exchange(pBar->m_pDockBar, &frame->Bar());
        if (before != nullptr)
            before->Remove(pBar);
        pBar->SetBarStyle((pBar->GetBarStyle() & ~static_cast<DWORD>(CBRS_ALIGN_ANY)) | side | CBRS_FLOATING);
        frame->Bar().Dock(pBar, nullptr);
        pBar->SetParent(&frame->Bar());
        DestroyEmptyFloat(before);
        CString title;
        pBar->GetWindowText(title);
        frame->SetWindowText(title);
    }
    pBar->m_last_place = point;
    frame->SetWindowPos(nullptr, point.x, point.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    frame->RecalcLayout();
    m_layout_wanted = true;
}

void CFrameWnd::LayoutFloats() {
    for (CControlBar* bar : objects_in<CControlBar>(m_listControlBars)) {
        if (CMiniDockFrameWnd* frame = float_of(*bar); frame != nullptr && frame != this)
            frame->RecalcLayout();
    }
}

void CFrameWnd::GetDockState(CDockState& state) const {
    state.Clear();
    for (CControlBar* bar : objects_in<CControlBar>(m_listControlBars)) {
        if (bar->IsDockBar())
            continue;
        auto* info = new CControlBarInfo;
        state.m_arrBarInfo.Add(info);
        info->m_nBarID = static_cast<UINT>(bar->GetDlgCtrlID());
        info->m_bVisible = bar->IsVisible();
        info->m_bFloating = bar->IsFloating();
        info->m_bHorz = bar->IsHorizontal();
        info->m_nMRUWidth = bar->m_nMRUWidth;
        if (CMiniDockFrameWnd* frame = float_of(*bar)) {
            CRect place;
            frame->GetWindowRect(place);
            info->m_pointPos = place.TopLeft();
        } else if (bar->m_pDockBar != nullptr) {
            info->m_nDockBarID = static_cast<UINT>(bar->m_pDockBar->GetDlgCtrlID());
            bar->m_pDockBar->PlaceOf(bar, info->m_nRow, info->m_at);
        }
    }
}

void CFrameWnd::SetDockState(const CDockState& state) {
    std::vector<const CControlBarInfo*> infos;
    for (INT_PTR i = 0; i < state.m_arrBarInfo.GetSize(); ++i)
        infos.push_back(static_cast<const CControlBarInfo*>(state.m_arrBarInfo[i]));
    // Rows fill from the first, and each from its beginning.
    std::sort(infos.begin(), infos.end(), [](const CControlBarInfo* a, const CControlBarInfo* b) {
        return std::pair(a->m_nRow, a->m_at) < std::pair(b->m_nRow, b->m_at);
    });
    for (const CControlBarInfo* info : infos) {
        CControlBar* bar = GetControlBar(info->m_nBarID);
        if (bar != nullptr && bar->m_pDockBar != nullptr && DockBarOf(*bar, *info) != nullptr)
            bar->m_pDockBar->Remove(bar);
    }
    for (const CControlBarInfo* info : infos) {
        CControlBar* bar = GetControlBar(info->m_nBarID);
        if (bar != nullptr && !bar->IsDockBar())
            PutBar(*bar, *info);
    }
    RecalcLayout();
}

// The side that the bar is to be docked to; null where it is not, or may not be.
CDockBar* CFrameWnd::DockBarOf(const CControlBar& bar, const CControlBarInfo& info) {
    CDockBar* dock = info.m_bFloating ? nullptr : DockBarAt(info.m_nDockBarID);
    return dock != nullptr && (bar.m_dwDockStyle & dock->GetBarStyle() & CBRS_ALIGN_ANY) != 0 ? dock : nullptr;
}

void CFrameWnd::PutBar(CControlBar& bar, const CControlBarInfo& info) {
    bar.m_nMRUWidth = info.m_nMRUWidth;
    if (info.m_bFloating) {
        FloatControlBar(&bar, info.m_pointPos, info.m_bHorz ? CBRS_ALIGN_TOP : CBRS_ALIGN_LEFT);
    } else if (CDockBar* dock = DockBarOf(bar, info)) {
        DockControlBar(&bar, dock);
        dock->Remove(&bar);
        dock->Append(&bar, static_cast<std::size_t>(info.m_nRow), info.m_at);
    }
    ShowControlBar(&bar, info.m_bVisible, TRUE);
}

void CFrameWnd::SaveBarState(LPCTSTR lpszProfileName) const {
    CDockState state;
    GetDockState(state);
    state.SaveState(lpszProfileName);
}

void CFrameWnd::LoadBarState(LPCTSTR lpszProfileName) {
    CDockState state;
    state.LoadState(lpszProfileName);
    SetDockState(state);
}
