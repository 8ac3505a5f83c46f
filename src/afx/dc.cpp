#include "afx_dc.h"
#include "afx_exception.h"
#include "afx_wnd.h"
#include "handle_map.h"

IMPLEMENT_DYNCREATE(CDC, CObject)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)

namespace {

auto& device_contexts() {
    return of_this_thread<handle_map<CDC, &CDC::m_hDC>>();
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
    m_hAttribDC = hDC;
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

CBitmap* CDC::SelectObject(CBitmap* pBitmap) {
    return CBitmap::FromHandle(static_cast<HBITMAP>(::SelectObject(m_hDC, pBitmap->GetSafeHandle())));
}

CPalette* CDC::SelectPalette(CPalette* pPalette, BOOL bForceBackground) {
    const HPALETTE handle = static_cast<HPALETTE>(pPalette->GetSafeHandle());
    return CPalette::FromHandle(::SelectPalette(m_hDC, handle, bForceBackground));
}

COLORREF CDC::SetBkColor(COLORREF crColor) {
    return ::SetBkColor(m_hDC, crColor);
}

COLORREF CDC::SetTextColor(COLORREF crColor) {
    return ::SetTextColor(m_hDC, crColor);
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

BOOL CDC::TextOut(int x, int y, LPCTSTR lpszString, int nCount) {
    return ::TextOut(m_hDC, x, y, lpszString, nCount);
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
