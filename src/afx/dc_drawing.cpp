// What a device context draws with and how it measures.
#include "afx_dc.h"
#include "afx_debug.h"
#include "afx_wnd.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

constexpr int himetric_inch = 2540;

// The attribute context follows what moves the current position.
CPoint position_of(HDC dc) {
    CPoint position;
    ::GetCurrentPositionEx(dc, &position);
    return position;
}

CSize extent_of(HDC dc, LPCTSTR text, int count) {
    CSize size;
    ::GetTextExtentPoint32(dc, text, count, &size);
    return size;
}

} // namespace

int CDC::SaveDC() {
    return Both<int>(::SaveDC);
}

BOOL CDC::RestoreDC(int nSavedDC) {
    if (m_hAttribDC == nullptr || m_hAttribDC == m_hDC)
        return ::RestoreDC(m_hDC, nSavedDC);
    // The two may have been saved a different number of times.
    const BOOL output = nSavedDC == -1 ? ::RestoreDC(m_hDC, -1) : TRUE;
    return ::RestoreDC(m_hAttribDC, nSavedDC) && output;
}

CPoint CDC::GetBrushOrg() const {
    CPoint origin;
    ::GetBrushOrgEx(m_hDC, &origin);
    return origin;
}

CPoint CDC::SetBrushOrg(int x, int y) {
    return Moved<&::SetBrushOrgEx>(m_hDC, x, y);
}

CGdiObject* PASCAL CDC::SelectGdiObject(HDC hDC, HGDIOBJ h) {
    return CGdiObject::FromHandle(::SelectObject(hDC, h));
}

CGdiObject* CDC::SelectStockObject(int nIndex) {
    return CGdiObject::FromHandle(Both<HGDIOBJ>(::SelectObject, ::GetStockObject(nIndex)));
}

CPen* CDC::SelectObject(CPen* pPen) {
    return CPen::FromHandle(static_cast<HPEN>(Both<HGDIOBJ>(::SelectObject, pPen->GetSafeHandle())));
}

CBrush* CDC::SelectObject(CBrush* pBrush) {
    return CBrush::FromHandle(static_cast<HBRUSH>(Both<HGDIOBJ>(::SelectObject, pBrush->GetSafeHandle())));
}

CFont* CDC::SelectObject(CFont* pFont) {
    return CFont::FromHandle(static_cast<HFONT>(Both<HGDIOBJ>(::SelectObject, pFont->GetSafeHandle())));
}

CBitmap* CDC::SelectObject(CBitmap* pBitmap) {
    return CBitmap::FromHandle(static_cast<HBITMAP>(::SelectObject(m_hDC, pBitmap->GetSafeHandle())));
}

int CDC::SelectObject(CRgn* pRgn) {
    return static_cast<int>(reinterpret_cast<INT_PTR>(Both<HGDIOBJ>(::SelectObject, pRgn->GetSafeHandle())));
}

CPalette* CDC::SelectPalette(CPalette* pPalette, BOOL bForceBackground) {
    const HPALETTE handle = static_cast<HPALETTE>(pPalette->GetSafeHandle());
    return CPalette::FromHandle(::SelectPalette(m_hDC, handle, bForceBackground));
}

CBrush* PASCAL CDC::GetHalftoneBrush() {
    static const HBRUSH brush = [] {
        WORD rows[8];
        for (int i = 0; i < 8; ++i)
            rows[i] = i % 2 == 0 ? 0x5555 : 0xAAAA;
        const HBITMAP pattern = ::CreateBitmap(8, 8, 1, 1, rows);
        const HBRUSH made = ::CreatePatternBrush(pattern);
        ::DeleteObject(pattern);
        return made;
    }();
    return CBrush::FromHandle(brush);
}

COLORREF CDC::SetBkColor(COLORREF crColor) {
    return Both<COLORREF>(::SetBkColor, crColor);
}

COLORREF CDC::SetTextColor(COLORREF crColor) {
    return Both<COLORREF>(::SetTextColor, crColor);
}

CPoint CDC::GetViewportOrg() const {
    CPoint point;
    ::GetViewportOrgEx(m_hAttribDC, &point);
    return point;
}

CSize CDC::GetViewportExt() const {
    CSize size;
    ::GetViewportExtEx(m_hAttribDC, &size);
    return size;
}

CPoint CDC::GetWindowOrg() const {
    CPoint point;
    ::GetWindowOrgEx(m_hAttribDC, &point);
    return point;
}

CSize CDC::GetWindowExt() const {
    CSize size;
    ::GetWindowExtEx(m_hAttribDC, &size);
    return size;
}

void CDC::DPtoLP(LPSIZE lpSize) const {
    const CSize window = GetWindowExt(), viewport = GetViewportExt();
    lpSize->cx = ::MulDiv(lpSize->cx, std::abs(window.cx), std::abs(viewport.cx));
    lpSize->cy = ::MulDiv(lpSize->cy, std::abs(window.cy), std::abs(viewport.cy));
}

void CDC::LPtoDP(LPSIZE lpSize) const {
    const CSize window = GetWindowExt(), viewport = GetViewportExt();
    lpSize->cx = ::MulDiv(lpSize->cx, std::abs(viewport.cx), std::abs(window.cx));
    lpSize->cy = ::MulDiv(lpSize->cy, std::abs(viewport.cy), std::abs(window.cy));
}

void CDC::DPtoHIMETRIC(LPSIZE lpSize) const {
    lpSize->cx = ::MulDiv(lpSize->cx, himetric_inch, GetDeviceCaps(LOGPIXELSX));
    lpSize->cy = ::MulDiv(lpSize->cy, himetric_inch, GetDeviceCaps(LOGPIXELSY));
}

void CDC::HIMETRICtoDP(LPSIZE lpSize) const {
    lpSize->cx = ::MulDiv(lpSize->cx, GetDeviceCaps(LOGPIXELSX), himetric_inch);
    lpSize->cy = ::MulDiv(lpSize->cy, GetDeviceCaps(LOGPIXELSY), himetric_inch);
}

void CDC::LPtoHIMETRIC(LPSIZE lpSize) const {
    LPtoDP(lpSize);
    DPtoHIMETRIC(lpSize);
}

void CDC::HIMETRICtoLP(LPSIZE lpSize) const {
    HIMETRICtoDP(lpSize);
    DPtoLP(lpSize);
}

int CDC::ExcludeUpdateRgn(CWnd* pWnd) {
    return ::ExcludeUpdateRgn(m_hDC, pWnd->GetSafeHwnd());
}

CPoint CDC::GetCurrentPosition() const {
    return position_of(m_hAttribDC);
}

BOOL CDC::LineTo(int x, int y) {
    if (m_hAttribDC != nullptr && m_hAttribDC != m_hDC)
        ::MoveToEx(m_hAttribDC, x, y, nullptr);
    return ::LineTo(m_hDC, x, y);
}

BOOL CDC::ArcTo(int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4) {
    const BOOL drawn = ::ArcTo(m_hDC, x1, y1, x2, y2, x3, y3, x4, y4);
    if (m_hAttribDC != nullptr && m_hAttribDC != m_hDC) {
        const CPoint end = position_of(m_hDC);
        ::MoveToEx(m_hAttribDC, end.x, end.y, nullptr);
    }
    return drawn;
}

BOOL CDC::PolylineTo(const POINT* lpPoints, int nCount) {
    const BOOL drawn = ::PolylineTo(m_hDC, lpPoints, static_cast<DWORD>(nCount));
    if (drawn && nCount > 0 && m_hAttribDC != nullptr && m_hAttribDC != m_hDC)
        ::MoveToEx(m_hAttribDC, lpPoints[nCount - 1].x, lpPoints[nCount - 1].y, nullptr);
    return drawn;
}

BOOL CDC::PolyBezierTo(const POINT* lpPoints, int nCount) {
    const BOOL drawn = ::PolyBezierTo(m_hDC, lpPoints, static_cast<DWORD>(nCount));
    if (drawn && nCount > 0 && m_hAttribDC != nullptr && m_hAttribDC != m_hDC)
        ::MoveToEx(m_hAttribDC, lpPoints[nCount - 1].x, lpPoints[nCount - 1].y, nullptr);
    return drawn;
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr) {
    // The background colour stays set, as documented.
    ::SetBkColor(m_hDC, clr);
    ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr) {
    const RECT rect{x, y, x + cx, y + cy};
    FillSolidRect(&rect, clr);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight) {
    FillSolidRect(x, y, cx - 1, 1, clrTopLeft);
    FillSolidRect(x, y, 1, cy - 1, clrTopLeft);
    FillSolidRect(x + cx, y, -1, cy, clrBottomRight);
    FillSolidRect(x, y + cy, cx, -1, clrBottomRight);
}

namespace {

// The frame of a dragged rectangle as a region; its sides are as thick as the size.
void make_frame(CRgn& frame, const CRect& outer, SIZE size) {
    CRect inner(outer);
    inner.InflateRect(-size.cx, -size.cy);
    inner.IntersectRect(inner, outer);
    CRgn hole;
    frame.CreateRectRgnIndirect(outer);
    hole.CreateRectRgnIndirect(inner);
    frame.CombineRgn(&frame, &hole, RGN_XOR);
}

void invert(CDC& dc, CRgn& area, CBrush* brush) {
    CRect box;
    dc.SelectClipRgn(&area);
    dc.GetClipBox(box);
    CBrush* before = dc.SelectObject(brush);
    dc.PatBlt(box.left, box.top, box.Width(), box.Height(), PATINVERT);
    dc.SelectObject(before);
    dc.SelectClipRgn(nullptr);
}

} // namespace

void CDC::DrawDragRect(LPCRECT lpRect, SIZE size, LPCRECT lpRectLast, SIZE sizeLast, CBrush* pBrush,
                       CBrush* pBrushLast) {
    CBrush* brush = pBrush != nullptr ? pBrush : GetHalftoneBrush();
    CBrush* last_brush = pBrushLast != nullptr ? pBrushLast : brush;
    CRgn wanted, last;
    make_frame(wanted, lpRect, size);
    if (lpRectLast == nullptr) {
        invert(*this, wanted, brush);
        return;
    }
    make_frame(last, lpRectLast, sizeLast);
    if (brush->GetSafeHandle() != last_brush->GetSafeHandle()) {
        invert(*this, last, last_brush);
        invert(*this, wanted, brush);
        return;
    }
    // What both have in common stays as it is.
    wanted.CombineRgn(&wanted, &last, RGN_XOR);
    invert(*this, wanted, brush);
}

BOOL CDC::TextOut(int x, int y, LPCTSTR lpszString, int nCount) {
    return ::TextOut(m_hDC, x, y, lpszString, nCount);
}

int CDC::DrawTextEx(const CString& str, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams) {
    constexpr UINT shortening = DT_END_ELLIPSIS | DT_PATH_ELLIPSIS | DT_WORD_ELLIPSIS;
    ENSURE_ARG((nFormat & DT_MODIFYSTRING) == 0 || (nFormat & shortening) == 0); // the text is the caller's
    return DrawTextEx(const_cast<LPTSTR>(str.GetString()), str.GetLength(), lpRect, nFormat, lpDTParams);
}

CSize CDC::GetAspectRatioFilter() const {
    CSize size;
    ::GetAspectRatioFilterEx(m_hDC, &size);
    return size;
}

CSize CDC::GetTextExtent(LPCTSTR lpszString, int nCount) const {
    return extent_of(m_hAttribDC, lpszString, nCount);
}

CSize CDC::GetOutputTextExtent(LPCTSTR lpszString, int nCount) const {
    return extent_of(m_hDC, lpszString, nCount);
}

int CDC::GetTextFace(CString& rString) const {
    const int room = ::GetTextFace(m_hAttribDC, 0, nullptr);
    const int length = ::GetTextFace(m_hAttribDC, room, rString.GetBuffer(std::max(room, 0) + 1));
    rString.ReleaseBuffer();
    return length;
}

float CDC::GetMiterLimit() const {
    float limit = 0;
    ::GetMiterLimit(m_hDC, &limit);
    return limit;
}

// The output context's path, for both.
BOOL CDC::SelectClipPath(int nMode) {
    if (m_hAttribDC == nullptr || m_hAttribDC == m_hDC)
        return ::SelectClipPath(m_hDC, nMode);
    const int saved = ::SaveDC(m_hDC);
    const HRGN path = ::PathToRegion(m_hDC);
    ::RestoreDC(m_hDC, saved);
    const BOOL selected =
        path != nullptr && ::SelectClipPath(m_hDC, nMode) && ::ExtSelectClipRgn(m_hAttribDC, path, nMode) != ERROR;
    ::DeleteObject(path);
    return selected;
}

int CDC::StartDoc(LPCTSTR lpszDocName) {
    DOCINFO document{};
    document.cbSize = sizeof(document);
    document.lpszDocName = lpszDocName;
    return StartDoc(&document);
}
