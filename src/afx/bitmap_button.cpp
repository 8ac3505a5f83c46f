#include "afx_controls.h"
#include "afx_exception.h"

IMPLEMENT_DYNAMIC(CBitmapButton, CButton)

CBitmapButton::CBitmapButton(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel, LPCTSTR lpszBitmapResourceFocus,
                             LPCTSTR lpszBitmapResourceDisabled) {
    if (!LoadBitmaps(lpszBitmapResource, lpszBitmapResourceSel, lpszBitmapResourceFocus, lpszBitmapResourceDisabled))
        AfxThrowResourceException();
}

BOOL CBitmapButton::LoadBitmaps(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel,
                                LPCTSTR lpszBitmapResourceFocus, LPCTSTR lpszBitmapResourceDisabled) {
    CBitmap* const bitmaps[] = {&m_bitmap, &m_bitmapSel, &m_bitmapFocus, &m_bitmapDisabled};
    const LPCTSTR names[] = {lpszBitmapResource, lpszBitmapResourceSel, lpszBitmapResourceFocus,
                             lpszBitmapResourceDisabled};
    BOOL loaded = TRUE;
    for (int i = 0; i < 4; ++i) {
        bitmaps[i]->DeleteObject();
        if (names[i] != nullptr && !bitmaps[i]->LoadBitmap(names[i]))
            loaded = FALSE;
    }
    return loaded && m_bitmap.m_hObject != nullptr;
}

BOOL CBitmapButton::AutoLoad(UINT nID, CWnd* pParent) {
    if (!SubclassDlgItem(nID, pParent))
        return FALSE;
    CString name;
    GetWindowText(name);
    if (!LoadBitmaps(name + "U", name + "D", name + "F", name + "X") && m_bitmap.m_hObject == nullptr)
        return FALSE;
    SizeToContent();
    return TRUE;
}

void CBitmapButton::SizeToContent() {
    BITMAP size{};
    m_bitmap.GetBitmap(&size);
    SetWindowPos(nullptr, -1, -1, size.bmWidth, size.bmHeight,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOREDRAW | SWP_NOACTIVATE);
}

void CBitmapButton::DrawItem(LPDRAWITEMSTRUCT lpDIS) {
    const auto usable = [](CBitmap& bitmap) { return bitmap.m_hObject != nullptr; };
    CBitmap* shown = &m_bitmap;
    if ((lpDIS->itemState & ODS_SELECTED) != 0 && usable(m_bitmapSel))
        shown = &m_bitmapSel;
    else if ((lpDIS->itemState & ODS_FOCUS) != 0 && usable(m_bitmapFocus))
        shown = &m_bitmapFocus;
    else if ((lpDIS->itemState & ODS_DISABLED) != 0 && usable(m_bitmapDisabled))
        shown = &m_bitmapDisabled;
    CDC* dc = CDC::FromHandle(lpDIS->hDC);
    CDC source;
    if (!usable(*shown) || !source.CreateCompatibleDC(dc))
        return;
    CBitmap* before = source.SelectObject(shown);
    const CRect place(lpDIS->rcItem);
    dc->BitBlt(place.left, place.top, place.Width(), place.Height(), &source, 0, 0, SRCCOPY);
    source.SelectObject(before);
}
