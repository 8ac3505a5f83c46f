#include "afx_rect_tracker.h"

#include <algorithm>
#include <cmath>

namespace {

// For each handle: which side it moves across and down (-1 the first, 1 the second, 0 none), and its cursor.
struct handle {
    int across, down;
    LPCTSTR cursor;
};
const handle handles[] = {{-1, -1, IDC_SIZENWSE}, {1, -1, IDC_SIZENESW}, {1, 1, IDC_SIZENWSE},
                          {-1, 1, IDC_SIZENESW},  {0, -1, IDC_SIZENS},   {1, 0, IDC_SIZEWE},
                          {0, 1, IDC_SIZENS},     {-1, 0, IDC_SIZEWE},   {0, 0, IDC_SIZEALL}};

CRect normal(CRect rect) {
    rect.NormalizeRect();
    return rect;
}

// A side's length kept from falling below the least, away from the fixed side.
LONG held_off(LONG fixed, LONG moved, LONG least, bool outwards) {
    const LONG length = outwards ? moved - fixed : fixed - moved;
    if (length >= least)
        return moved;
    return outwards ? fixed + least : fixed - least;
}

} // namespace

CRectTracker::CRectTracker(LPCRECT lpSrcRect, UINT nStyle) {
    Construct();
    m_rect = *lpSrcRect;
    m_nStyle = nStyle;
}

CRectTracker::~CRectTracker() = default;

void CRectTracker::Construct() {
    m_nStyle = 0;
    m_nHandleSize = static_cast<int>(::GetProfileInt("windows", "oleinplaceborderwidth", 4));
    m_sizeMin = CSize(m_nHandleSize * 2, m_nHandleSize * 2);
    m_bAllowInvert = m_bErase = m_bFinalErase = FALSE;
}

int CRectTracker::GetHandleSize(LPCRECT lpRect) const {
    const CRect rect = normal(lpRect != nullptr ? CRect(lpRect) : m_rect);
    if ((m_nStyle & resizeOutside) != 0)
        return m_nHandleSize;
    const int least = std::min(rect.Width(), rect.Height()); // two of them find room inside
    return std::min(m_nHandleSize, least / 2);
}

UINT CRectTracker::GetHandleMask() const {
    UINT mask = 1 << hitTopLeft | 1 << hitTopRight | 1 << hitBottomRight | 1 << hitBottomLeft;
    const int room = m_nHandleSize * 3 + 4;
    if (std::abs(m_rect.Width()) > room)
        mask |= 1 << hitTop | 1 << hitBottom;
    if (std::abs(m_rect.Height()) > room)
        mask |= 1 << hitLeft | 1 << hitRight;
    return mask;
}

void CRectTracker::GetTrueRect(LPRECT lpTrueRect) const {
    CRect rect = normal(m_rect);
    int by = (m_nStyle & (resizeOutside | hatchedBorder)) != 0 ? GetHandleSize() - 1 : 0;
    by += (m_nStyle & (solidLine | dottedLine)) != 0 ? 1 : 0;
    rect.InflateRect(by, by);
    *lpTrueRect = rect;
}

void CRectTracker::GetHandleRect(int nHandle, CRect* pHandleRect) const {
    CRect rect;
    GetTrueRect(rect);
    const int size = GetHandleSize();
    const auto place = [size](int side, LONG first, LONG second) {
        if (side == 0)
            return static_cast<int>(first + (second - first - size) / 2);
        return static_cast<int>(side < 0 ? first : second - size);
    };
    const handle& one = handles[NormalizeHit(nHandle)];
    *pHandleRect = CRect(CPoint(place(one.across, rect.left, rect.right), place(one.down, rect.top, rect.bottom)),
                         CSize(size, size));
}

int CRectTracker::HitTestHandles(CPoint point) const {
    CRect rect;
    GetTrueRect(rect);
    if (!rect.PtInRect(point))
        return hitNothing;
    for (int i = 0; i < hitMiddle; ++i) {
        GetHandleRect(i, &rect);
        if ((GetHandleMask() & (1u << i)) != 0 && rect.PtInRect(point))
            return i;
    }
    rect = normal(m_rect);
    if ((m_nStyle & (solidLine | dottedLine)) != 0)
        rect.InflateRect(1, 1);
    // Between handles that stand outside there is nothing, unless a border fills the room.
    return (m_nStyle & hatchedBorder) != 0 || rect.PtInRect(point) ? hitMiddle : hitNothing;
}

int CRectTracker::HitTest(CPoint point) const {
    CRect rect;
    GetTrueRect(rect);
    if (!rect.PtInRect(point))
        return hitNothing;
    return (m_nStyle & (resizeInside | resizeOutside)) != 0 ? HitTestHandles(point) : hitMiddle;
}

int CRectTracker::NormalizeHit(int nHandle) const {
    if (nHandle < 0 || nHandle >= hitMiddle)
        return nHandle;
    const int across = handles[nHandle].across * (m_rect.Width() < 0 ? -1 : 1);
    const int down = handles[nHandle].down * (m_rect.Height() < 0 ? -1 : 1);
    const auto* found = std::find_if(std::begin(handles), std::end(handles),
                                     [=](const handle& one) { return one.across == across && one.down == down; });
    return static_cast<int>(found - handles);
}

BOOL CRectTracker::SetCursor(CWnd* pWnd, UINT nHitTest) const {
    if (nHitTest != HTCLIENT)
        return FALSE;
    CPoint point;
    ::GetCursorPos(&point);
    pWnd->ScreenToClient(&point);
    const int hit = HitTestHandles(point);
    if (hit < 0)
        return FALSE;
    ::SetCursor(::LoadCursor(nullptr, handles[NormalizeHit(hit)].cursor));
    return TRUE;
}

void CRectTracker::DrawHandles(CDC& dc) const {
    const UINT mask = GetHandleMask();
    for (int i = 0; i < hitMiddle; ++i) {
        CRect rect;
        GetHandleRect(i, &rect);
        if ((mask & (1u << i)) != 0)
            dc.FillSolidRect(rect, RGB(0, 0, 0));
    }
}

void CRectTracker::Draw(CDC* pDC) const {
    pDC->SaveDC();
    pDC->SetMapMode(MM_TEXT);
    pDC->SetViewportOrg(0, 0);
    pDC->SetWindowOrg(0, 0);
    const CRect rect = normal(m_rect);
    if ((m_nStyle & (hatchedBorder | hatchInside)) != 0) {
        CBrush hatch(HS_BDIAGONAL, RGB(0, 0, 0));
        pDC->SetBkMode(TRANSPARENT);
        CRgn area, inner;
        CRect outside;
        GetTrueRect(outside);
        area.CreateRectRgnIndirect((m_nStyle & hatchedBorder) != 0 ? &outside : &rect);
        inner.CreateRectRgnIndirect(&rect);
        if ((m_nStyle & hatchInside) == 0)
            area.CombineRgn(&area, &inner, RGN_DIFF);
        pDC->FillRgn(&area, &hatch);
    }
    if ((m_nStyle & (solidLine | dottedLine)) != 0) {
        CPen pen((m_nStyle & dottedLine) != 0 ? PS_DOT : PS_SOLID, 0, RGB(0, 0, 0));
        CPen* before = pDC->SelectObject(&pen);
        pDC->SelectStockObject(NULL_BRUSH);
        pDC->SetBkMode(TRANSPARENT);
        pDC->SetROP2(R2_COPYPEN);
        pDC->Rectangle(rect.left - 1, rect.top - 1, rect.right + 1, rect.bottom + 1);
        pDC->SelectObject(before);
    }
    if ((m_nStyle & (resizeInside | resizeOutside)) != 0)
        DrawHandles(*pDC);
    pDC->RestoreDC(-1);
}

void CRectTracker::OnChangedRect(const CRect&) {}

// No smaller than the least size, unless the rectangle may be turned over.
void CRectTracker::AdjustRect(int nHandle, LPRECT lpRect) {
    if (nHandle == hitMiddle || nHandle == hitNothing)
        return;
    const handle& one = handles[nHandle];
    RECT& r = *lpRect;
    const auto keep = [this](int side, LONG& first, LONG& second, LONG least) {
        const bool turned = m_bAllowInvert && second < first;
        if (side > 0)
            second = held_off(first, second, least, !turned);
        else if (side < 0)
            first = held_off(second, first, least, turned);
    };
    keep(one.across, r.left, r.right, m_sizeMin.cx);
    keep(one.down, r.top, r.bottom, m_sizeMin.cy);
}

void CRectTracker::GetModifyPointers(int nHandle, int** ppx, int** ppy, int* px, int* py) {
    const handle& one = handles[nHandle == hitMiddle ? static_cast<int>(hitTopLeft) : nHandle];
    const auto side = [](int where, LONG& first, LONG& second) {
        LONG* moved = where < 0 ? &first : &second;
        return where != 0 ? reinterpret_cast<int*>(moved) : nullptr;
    };
    *ppx = side(one.across, m_rect.left, m_rect.right);
    *ppy = side(one.down, m_rect.top, m_rect.bottom);
    if (*ppx != nullptr && px != nullptr)
        *px = **ppx;
    if (*ppy != nullptr && py != nullptr)
        *py = **ppy;
}

void CRectTracker::DrawTrackerRect(LPCRECT lpRect, CWnd* pWndClipTo, CDC* pDC, CWnd* pWnd) {
    CRect rect = normal(*lpRect);
    if (pWndClipTo != nullptr && pWndClipTo != pWnd)
        pWnd->MapWindowPoints(pWndClipTo, rect);
    CSize size(0, 0);
    if (!m_bFinalErase) {
        const int breadth = (m_nStyle & hatchedBorder) != 0 ? GetHandleSize(rect) - 1 : 1;
        size = CSize(breadth, breadth);
    }
    pDC->DrawDragRect(rect, size, m_bErase || m_bFinalErase ? &m_rectLast : nullptr, m_sizeLast);
    m_rectLast = rect;
    m_sizeLast = size;
}
