#include "afxdialogex.h"

IMPLEMENT_DYNAMIC(CDialogEx, CDialog)

BEGIN_MESSAGE_MAP(CDialogEx, CDialog)
ON_WM_ERASEBKGND()
ON_WM_CTLCOLOR()
ON_WM_SIZE()
ON_WM_SYSCOLORCHANGE()
ON_WM_DESTROY()
END_MESSAGE_MAP()

namespace {

// Edits show their own ground, also where they are read only.
bool is_transparent(HWND control) {
    char name[16] = {};
    ::GetClassName(control, name, sizeof name);
    return ::lstrcmpi(name, "Static") == 0 || ::lstrcmpi(name, "Button") == 0;
}

} // namespace

CDialogEx::~CDialogEx() {
    DropImage();
}

void CDialogEx::SetBackgroundColor(COLORREF color, BOOL bRepaint) {
    m_color = color;
    Renew(bRepaint);
}

void CDialogEx::SetBackgroundImage(HBITMAP hBitmap, BackgroundLocation location, BOOL bAutoDestroy, BOOL bRepaint) {
    if (hBitmap != m_hBkgrBitmap)
        DropImage();
    m_hBkgrBitmap = hBitmap;
    m_BkgrLocation = location;
    m_bAutoDestroyBmp = bAutoDestroy;
    Renew(bRepaint);
}

BOOL CDialogEx::SetBackgroundImage(UINT uiBmpResId, BackgroundLocation location, BOOL bRepaint) {
    const LPCTSTR name = MAKEINTRESOURCE(uiBmpResId);
    const HBITMAP found = ::LoadBitmap(AfxFindResourceHandle(name, RT_BITMAP), name);
    if (found == nullptr)
        return FALSE;
    SetBackgroundImage(found, location, TRUE, bRepaint);
    return TRUE;
}

void CDialogEx::DropImage() {
    if (m_hBkgrBitmap != nullptr && m_bAutoDestroyBmp)
        ::DeleteObject(m_hBkgrBitmap);
    m_hBkgrBitmap = nullptr;
}

void CDialogEx::Renew(BOOL repaint) {
    m_background.DeleteObject();
    if (repaint && m_hWnd != nullptr)
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

// Null: as any dialog's.
HBRUSH CDialogEx::Background() {
    CRect client;
    GetClientRect(client);
    const bool placed = m_hBkgrBitmap != nullptr && m_BkgrLocation != BACKGR_TILE;
    if (m_background.m_hObject != nullptr && (!placed || m_painted == client.Size()))
        return m_background;
    m_background.DeleteObject();
    m_painted = client.Size();
    if (placed)
        PlaceImage();
    else if (m_hBkgrBitmap != nullptr)
        m_background.CreatePatternBrush(CBitmap::FromHandle(m_hBkgrBitmap));
    else if (m_color != CLR_INVALID)
        m_background.CreateSolidBrush(m_color);
    return m_background;
}

// A picture of the whole client area, since controls show their part of it. Without room for it there is none.
void CDialogEx::PlaceImage() {
    CClientDC screen(this);
    CDC picture, image;
    CBitmap whole;
    BITMAP format;
    if (::GetObject(m_hBkgrBitmap, sizeof format, &format) == 0 ||
        !whole.CreateCompatibleBitmap(&screen, m_painted.cx, m_painted.cy) || !picture.CreateCompatibleDC(&screen) ||
        !image.CreateCompatibleDC(&screen))
        return;
    const bool right = m_BkgrLocation == BACKGR_TOPRIGHT || m_BkgrLocation == BACKGR_BOTTOMRIGHT;
    const bool bottom = m_BkgrLocation == BACKGR_BOTTOMLEFT || m_BkgrLocation == BACKGR_BOTTOMRIGHT;
    CBitmap* const before = picture.SelectObject(&whole);
    const HGDIOBJ image_before = ::SelectObject(image, m_hBkgrBitmap);
    picture.FillSolidRect(CRect(CPoint(0, 0), m_painted),
                          m_color != CLR_INVALID ? m_color : ::GetSysColor(COLOR_BTNFACE));
    picture.BitBlt(right ? m_painted.cx - format.bmWidth : 0, bottom ? m_painted.cy - format.bmHeight : 0,
                   format.bmWidth, format.bmHeight, &image, 0, 0, SRCCOPY);
    ::SelectObject(image, image_before);
    picture.SelectObject(before);
    m_background.CreatePatternBrush(&whole);
}

BOOL CDialogEx::OnEraseBkgnd(CDC* pDC) {
    const HBRUSH brush = pDC != nullptr ? Background() : nullptr;
    if (brush == nullptr)
        return CDialog::OnEraseBkgnd(pDC);
    CRect client;
    GetClientRect(client);
    const CPoint before = pDC->SetBrushOrg(pDC->GetViewportOrg()); // controls have it drawn behind themselves
    ::FillRect(*pDC, client, brush);
    pDC->SetBrushOrg(before);
    return TRUE;
}

HBRUSH CDialogEx::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor) {
    const HWND control = pWnd->GetSafeHwnd();
    const bool has_ground = nCtlColor == CTLCOLOR_DLG ||
                            ((nCtlColor == CTLCOLOR_STATIC || nCtlColor == CTLCOLOR_BTN) && is_transparent(control));
    const bool ours = pDC != nullptr && has_ground;
    const HBRUSH brush = ours ? Background() : nullptr;
    if (brush == nullptr)
        return CDialog::OnCtlColor(pDC, pWnd, nCtlColor);
    if (nCtlColor != CTLCOLOR_DLG) {
        CPoint corner(0, 0);
        ::MapWindowPoints(control, m_hWnd, &corner, 1);
        pDC->SetBrushOrg(-corner.x, -corner.y);
        pDC->SetBkMode(TRANSPARENT);
    }
    return brush;
}

void CDialogEx::OnSize(UINT nType, int cx, int cy) {
    CDialog::OnSize(nType, cx, cy);
    if (m_hBkgrBitmap != nullptr && m_BkgrLocation > BACKGR_TOPLEFT)
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN); // the image moves
}

void CDialogEx::OnSysColorChange() {
    CDialog::OnSysColorChange();
    Renew(FALSE);
}

void CDialogEx::OnDestroy() {
    CDialog::OnDestroy();
    if (m_bAutoDestroyBmp)
        DropImage();
    m_background.DeleteObject();
}
