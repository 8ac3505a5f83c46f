// Rectangles that follow the pointer.
#include "afx_rect_tracker.h"

BOOL CRectTracker::Track(CWnd* pWnd, CPoint point, BOOL bAllowInvert, CWnd* pWndClipTo) {
    const int handle = HitTestHandles(point);
    if (handle < 0)
        return FALSE;
    m_bAllowInvert = bAllowInvert;
    return TrackHandle(handle, pWnd, point, pWndClipTo);
}

BOOL CRectTracker::TrackRubberBand(CWnd* pWnd, CPoint point, BOOL bAllowInvert) {
    m_bAllowInvert = bAllowInvert;
    m_rect.SetRect(point.x, point.y, point.x, point.y);
    return TrackHandle(hitBottomRight, pWnd, point, nullptr);
}

// The rectangle as the handle, held by the pointer, makes it.
CRect CRectTracker::Moved(int handle, CPoint by, const CRect& from) {
    m_rect = from;
    if (handle == hitMiddle) {
        m_rect.OffsetRect(by);
    } else {
        int *x = nullptr, *y = nullptr;
        GetModifyPointers(handle, &x, &y, nullptr, nullptr);
        if (x != nullptr)
            *x += by.x;
        if (y != nullptr)
            *y += by.y;
    }
    CRect rect = m_rect;
    AdjustRect(handle, rect);
    if (!m_bAllowInvert)
        rect.NormalizeRect();
    return rect;
}

void CRectTracker::Feedback(LPCRECT rect, CWnd* clip, CDC& dc, CWnd* wnd) {
    DrawTrackerRect(rect, clip, &dc, wnd);
    m_bErase = TRUE;
}

BOOL CRectTracker::TrackHandle(int nHandle, CWnd* pWnd, CPoint point, CWnd* pWndClipTo) {
    if (::GetCapture() != nullptr)
        return FALSE;
    ::UpdateWindow(pWnd->m_hWnd);
    const CRect start = m_rect;
    CWnd* canvas = pWndClipTo != nullptr ? pWndClipTo : pWnd;
    CDC& dc = *canvas->GetDCEx(nullptr, DCX_CACHE);
    pWnd->SetCapture();
    m_bErase = m_bFinalErase = FALSE;
    const bool moved = FollowPointer(nHandle, *pWnd, point, pWndClipTo, dc);
    if (m_bErase) {
        m_bFinalErase = TRUE;
        DrawTrackerRect(m_rectLast, nullptr, &dc, pWnd);
    }
    canvas->ReleaseDC(&dc);
    if (!moved)
        m_rect = start;
    m_bErase = m_bFinalErase = FALSE;
    return moved;
}

// Whether the pointer was moved, and let go in the end.
bool CRectTracker::FollowPointer(int handle, CWnd& wnd, CPoint from, CWnd* clip, CDC& dc) {
    const CRect start = m_rect;
    bool moved = false;
    MSG message;
    while (::GetCapture() == wnd.m_hWnd) {
        if (::GetMessage(&message, nullptr, 0, 0) <= 0) {
            ::PostQuitMessage(static_cast<int>(message.wParam));
            break;
        }
        const bool done = message.message == WM_LBUTTONUP;
        if (message.message == WM_RBUTTONDOWN || (message.message == WM_KEYDOWN && message.wParam == VK_ESCAPE))
            break;
        if (!done && message.message != WM_MOUSEMOVE) {
            ::DispatchMessage(&message);
            continue;
        }
        const CRect before = m_rect, wanted = Moved(handle, CPoint(CPoint(message.lParam) - from), start);
        m_rect = wanted;
        if (!::EqualRect(m_rect, before)) {
            OnChangedRect(before);
            if (!done)
                Feedback(m_rect, clip, dc, &wnd);
            moved = moved || !done;
        }
        if (done) {
            ::ReleaseCapture();
            return moved;
        }
    }
    if (::GetCapture() == wnd.m_hWnd)
        ::ReleaseCapture();
    return false;
}
