// Bars that are dragged by their grippers: an outline shows what letting go would do.
#include "afx_frame.h"
#include "afxext.h"
#include "dock_bar.h"

#include <utility>

namespace {

// On the screen, where nothing else is drawn as long as it is shown.
class drag_outline {
public:
    drag_outline() : m_desktop(::GetDesktopWindow()) {
        ::LockWindowUpdate(m_desktop);
        m_dc.Attach(::GetDCEx(m_desktop, nullptr, DCX_WINDOW | DCX_CACHE | DCX_LOCKWINDOWUPDATE));
    }
    ~drag_outline() {
        if (m_width > 0)
            m_dc.DrawDragRect(m_rect, CSize(m_width, m_width), nullptr, CSize(0, 0));
        ::ReleaseDC(m_desktop, m_dc.Detach());
        ::LockWindowUpdate(nullptr);
    }
    drag_outline(const drag_outline&) = delete;
    drag_outline& operator=(const drag_outline&) = delete;

    void show(const CRect& rect, int width) {
        const CSize before(m_width, m_width);
        m_dc.DrawDragRect(rect, CSize(width, width), m_width > 0 ? &m_rect : nullptr, before);
        m_rect = rect;
        m_width = width;
    }

private:
    HWND m_desktop;
    CDC m_dc;
    CRect m_rect;
    int m_width = 0; // 0: not shown yet
};

} // namespace

// Where the bar would be on the screen, held at the place; thin where it would be docked, else as its small frame.
int CControlBar::OutlineAt(CPoint screen, CSize held, const outline_sizes& sizes, CRect& rect) {
    CDockBar* dock = m_pDockSite->DockBarFor(*this, screen);
    const bool upright = dock != nullptr && (dock->GetBarStyle() & CBRS_ORIENT_VERT) != 0;
    rect = CRect(screen - held, dock == nullptr ? sizes.floating : upright ? sizes.upright : sizes.lying);
    if (dock == nullptr)
        CMiniFrameWnd::CalcBorders(rect, WS_POPUP | WS_CAPTION | WS_SYSMENU | MFS_SYNCACTIVE | MFS_4THICKFRAME);
    if (screen.x >= rect.right) // held beyond its end
        rect.OffsetRect(screen.x - rect.CenterPoint().x, 0);
    if (screen.y >= rect.bottom)
        rect.OffsetRect(0, screen.y - rect.CenterPoint().y);
    return dock != nullptr ? 1 : ::GetSystemMetrics(SM_CXFRAME);
}

// False where the user gave up.
bool CControlBar::DragOutline(CSize held, CPoint& dropped) {
    const outline_sizes sizes{CalcDynamicLayout(-1, LM_HORZ | LM_HORZDOCK), CalcDynamicLayout(-1, LM_VERTDOCK),
                              CalcDynamicLayout(-1, LM_HORZ | LM_MRUWIDTH)};
    m_pDockSite->RecalcLayout(); // measured in those forms, the bar gets its own back
    UpdateWindow();
    drag_outline outline;
    MSG message;
    while (::GetCapture() == m_hWnd && ::GetMessage(&message, nullptr, 0, 0) > 0) {
        if (message.message == WM_LBUTTONUP) {
            dropped = message.pt;
            return true;
        }
        if (message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE)
            return false;
        if (message.message == WM_MOUSEMOVE) {
            CRect rect;
            const int width = OutlineAt(message.pt, held, sizes, rect);
            outline.show(rect, width);
        } else {
            ::DispatchMessage(&message);
        }
    }
    return false;
}

// The bar is dragged by its gripper, or its empty parts: to another side, or away from all.
void CControlBar::OnLButtonDown(UINT nFlags, CPoint point) {
    if (m_pDockBar == nullptr || OnToolHitTest(point, nullptr) != -1)
        return CWnd::OnLButtonDown(nFlags, point);
    const CSize held(point);
    const HWND self = m_hWnd;
    ClientToScreen(&point);
    if (!::DragDetect(m_hWnd, point))
        return;
    ::SetCapture(m_hWnd);
    CPoint dropped;
    const bool done = DragOutline(held, dropped);
    if (!::IsWindow(self))
        return; // it ended meanwhile
    if (::GetCapture() == self)
        ::ReleaseCapture();
    const CPoint corner = dropped - held;
    if (done)
        m_pDockSite->DropControlBar(this, dropped, &corner);
}
