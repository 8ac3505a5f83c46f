#include "afx_dc.h"
#include "afx_exception.h"
#include "afx_wnd.h"
#include "handle_map.h"

IMPLEMENT_DYNCREATE(CDC, CObject)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)

namespace {

// Never destroyed: static objects of other modules may let go of their handles later.
auto& device_contexts() {
    static auto& map = *new handle_map<CDC, &CDC::m_hDC>;
    return map;
}

} // namespace

void delete_temporary_device_contexts() {
    device_contexts().delete_temporary();
}

CDC::~CDC() {
    DeleteDC();
}

BOOL CDC::Attach(HDC hDC) {
    if (!device_contexts().attach(this, hDC))
        return FALSE;
    SetAttribDC(hDC);
    return TRUE;
}

HDC CDC::Detach() {
    m_hAttribDC = nullptr;
    return device_contexts().detach(this);
}

CDC* PASCAL CDC::FromHandle(HDC hDC) {
    CDC* dc = device_contexts().any(hDC);
    if (dc != nullptr && dc->m_hAttribDC == nullptr)
        dc->m_hAttribDC = hDC;
    return dc;
}

BOOL CDC::DeleteDC() {
    const HDC handle = Detach();
    return handle != nullptr && ::DeleteDC(handle);
}

CWnd* CDC::GetWindow() const {
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

HGDIOBJ CDC::select(HGDIOBJ handle) {
    if (handle == nullptr)
        return nullptr;
    const HGDIOBJ old = ::SelectObject(m_hDC, handle);
    if (m_hAttribDC != m_hDC && m_hAttribDC != nullptr)
        ::SelectObject(m_hAttribDC, handle);
    return old;
}

CPen* CDC::SelectObject(CPen* pPen) {
    return CPen::FromHandle(static_cast<HPEN>(select(pPen->GetSafeHandle())));
}

CBrush* CDC::SelectObject(CBrush* pBrush) {
    return CBrush::FromHandle(static_cast<HBRUSH>(select(pBrush->GetSafeHandle())));
}

CFont* CDC::SelectObject(CFont* pFont) {
    return CFont::FromHandle(static_cast<HFONT>(select(pFont->GetSafeHandle())));
}

CBitmap* CDC::SelectObject(CBitmap* pBitmap) {
    return CBitmap::FromHandle(static_cast<HBITMAP>(::SelectObject(m_hDC, pBitmap->GetSafeHandle())));
}

int CDC::SelectObject(CRgn* pRgn) {
    return static_cast<int>(reinterpret_cast<INT_PTR>(select(pRgn->GetSafeHandle())));
}

CPalette* CDC::SelectPalette(CPalette* pPalette, BOOL bForceBackground) {
    const HPALETTE handle = static_cast<HPALETTE>(pPalette->GetSafeHandle());
    return CPalette::FromHandle(::SelectPalette(m_hDC, handle, bForceBackground));
}

template <class Result, class Setter, class... Values> Result CDC::set_attribute(Setter setter, Values... values) {
    const Result old = setter(m_hDC, values...);
    return m_hAttribDC != m_hDC && m_hAttribDC != nullptr ? setter(m_hAttribDC, values...) : old;
}

COLORREF CDC::SetBkColor(COLORREF crColor) {
    return set_attribute<COLORREF>(::SetBkColor, crColor);
}

COLORREF CDC::SetTextColor(COLORREF crColor) {
    return set_attribute<COLORREF>(::SetTextColor, crColor);
}

int CDC::SetBkMode(int nBkMode) {
    return set_attribute<int>(::SetBkMode, nBkMode);
}

UINT CDC::SetTextAlign(UINT nFlags) {
    return set_attribute<UINT>(::SetTextAlign, nFlags);
}

int CDC::SetMapMode(int nMapMode) {
    return set_attribute<int>(::SetMapMode, nMapMode);
}

CPoint CDC::SetViewportOrg(int x, int y) {
    CPoint old;
    set_attribute<BOOL>(::SetViewportOrgEx, x, y, &old);
    return old;
}

CSize CDC::SetViewportExt(int cx, int cy) {
    CSize old;
    set_attribute<BOOL>(::SetViewportExtEx, cx, cy, &old);
    return old;
}

CPoint CDC::SetWindowOrg(int x, int y) {
    CPoint old;
    set_attribute<BOOL>(::SetWindowOrgEx, x, y, &old);
    return old;
}

CSize CDC::SetWindowExt(int cx, int cy) {
    CSize old;
    set_attribute<BOOL>(::SetWindowExtEx, cx, cy, &old);
    return old;
}

int CDC::IntersectClipRect(int x1, int y1, int x2, int y2) {
    return set_attribute<int>(::IntersectClipRect, x1, y1, x2, y2);
}

int CDC::ExcludeClipRect(int x1, int y1, int x2, int y2) {
    return set_attribute<int>(::ExcludeClipRect, x1, y1, x2, y2);
}

CPoint CDC::MoveTo(int x, int y) {
    CPoint old;
    set_attribute<BOOL>(::MoveToEx, x, y, &old);
    return old;
}

BOOL CDC::LineTo(int x, int y) {
    if (m_hAttribDC != m_hDC && m_hAttribDC != nullptr)
        ::MoveToEx(m_hAttribDC, x, y, nullptr);
    return ::LineTo(m_hDC, x, y);
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

void CDC::Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight) {
    Draw3dRect(lpRect->left, lpRect->top, lpRect->right - lpRect->left, lpRect->bottom - lpRect->top, clrTopLeft,
               clrBottomRight);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF clrTopLeft, COLORREF clrBottomRight) {
    FillSolidRect(x, y, cx - 1, 1, clrTopLeft);
    FillSolidRect(x, y, 1, cy - 1, clrTopLeft);
    FillSolidRect(x + cx - 1, y, 1, cy, clrBottomRight);
    FillSolidRect(x, y + cy - 1, cx, 1, clrBottomRight);
}

BOOL CDC::TextOut(int x, int y, LPCTSTR lpszString, int nCount) {
    return ::TextOut(m_hDC, x, y, lpszString, nCount);
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount, LPINT lpDxWidths) {
    return ::ExtTextOut(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str, LPINT lpDxWidths) {
    return ExtTextOut(x, y, nOptions, lpRect, str, static_cast<UINT>(str.GetLength()), lpDxWidths);
}

int CDC::DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat) {
    return ::DrawText(m_hDC, lpszString, nCount, lpRect, nFormat);
}

int CDC::DrawText(const CString& str, LPRECT lpRect, UINT nFormat) {
    return DrawText(str, str.GetLength(), lpRect, nFormat);
}

CSize CDC::GetTextExtent(LPCTSTR lpszString, int nCount) const {
    CSize size;
    ::GetTextExtentPoint32(m_hAttribDC, lpszString, nCount, &size);
    return size;
}

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(pWnd->GetSafeHwnd()) {
    if (!Attach(::GetDC(m_hWnd)))
        AfxThrowResourceException();
}

CClientDC::~CClientDC() {
    ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(pWnd->GetSafeHwnd()) {
    if (!Attach(::GetWindowDC(m_hWnd)))
        AfxThrowResourceException();
}

CWindowDC::~CWindowDC() {
    ::ReleaseDC(m_hWnd, Detach());
}

CPaintDC::CPaintDC(CWnd* pWnd) : m_hWnd(pWnd->GetSafeHwnd()) {
    if (!Attach(::BeginPaint(m_hWnd, &m_ps)))
        AfxThrowResourceException();
}

CPaintDC::~CPaintDC() {
    ::EndPaint(m_hWnd, &m_ps);
    Detach();
}
