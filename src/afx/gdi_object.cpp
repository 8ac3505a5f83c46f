#include "afx_gdi.h"
#include "afx_dc.h"
#include "afx_exception.h"
#include "handle_map.h"

#include <cstdlib>

IMPLEMENT_DYNCREATE(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CPalette, CGdiObject)

namespace {

auto& gdi_objects() {
    return of_this_thread<handle_map<CGdiObject, &CGdiObject::m_hObject>>();
}

void attach_or_throw(CGdiObject& object, HGDIOBJ handle) {
    if (!object.Attach(handle))
        AfxThrowResourceException();
}

} // namespace

void delete_temporary_gdi_objects() {
    gdi_objects().delete_temporary();
}

CBitmap* PASCAL CBitmap::FromHandle(HBITMAP hBitmap) {
    return static_cast<CBitmap*>(gdi_objects().any<CBitmap>(hBitmap));
}

CFont* PASCAL CFont::FromHandle(HFONT hFont) {
    return static_cast<CFont*>(gdi_objects().any<CFont>(hFont));
}

CPalette* PASCAL CPalette::FromHandle(HPALETTE hPalette) {
    return static_cast<CPalette*>(gdi_objects().any<CPalette>(hPalette));
}

CGdiObject::~CGdiObject() {
    DeleteObject();
}

BOOL CGdiObject::Attach(HGDIOBJ hObject) {
    return gdi_objects().attach(this, hObject);
}

BOOL CGdiObject::AttachNew(HGDIOBJ hObject) {
    if (Attach(hObject))
        return TRUE;
    ::DeleteObject(hObject);
    return FALSE;
}

HGDIOBJ CGdiObject::Detach() {
    return gdi_objects().detach(this);
}

BOOL CGdiObject::DeleteObject() {
    const HGDIOBJ handle = Detach();
    return handle != nullptr && ::DeleteObject(handle);
}

CPen::CPen(int nPenStyle, int nWidth, COLORREF crColor) {
    attach_or_throw(*this, ::CreatePen(nPenStyle, nWidth, crColor));
}

CBrush::CBrush(COLORREF crColor) {
    attach_or_throw(*this, ::CreateSolidBrush(crColor));
}

BOOL CFont::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                       BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision, BYTE nClipPrecision,
                       BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename) {
    return AttachNew(::CreateFont(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic, bUnderline, cStrikeOut,
                                  nCharSet, nOutPrecision, nClipPrecision, nQuality, nPitchAndFamily, lpszFacename));
}

BOOL CFont::CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC) {
    LOGFONT description{};
    description.lfCharSet = DEFAULT_CHARSET;
    description.lfHeight = nPointSize;
    if (lpszFaceName != nullptr)
        lstrcpyn(description.lfFaceName, lpszFaceName, LF_FACESIZE);
    return CreatePointFontIndirect(&description, pDC);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC) {
    const HDC dc = pDC != nullptr ? pDC->m_hAttribDC : ::GetDC(nullptr);
    // 720 tenths of a point make an inch. The height is a distance, so the origin is converted with it.
    const long long pixels = static_cast<long long>(::GetDeviceCaps(dc, LOGPIXELSY)) * lpLogFont->lfHeight / 720;
    POINT height{0, static_cast<LONG>(pixels)}, origin{0, 0};
    ::DPtoLP(dc, &height, 1);
    ::DPtoLP(dc, &origin, 1);
    if (pDC == nullptr)
        ::ReleaseDC(nullptr, dc);
    LOGFONT description = *lpLogFont;
    description.lfHeight = -std::abs(height.y - origin.y);
    return AttachNew(::CreateFontIndirect(&description));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight) {
    return AttachNew(::CreateCompatibleBitmap(pDC->GetSafeHdc(), nWidth, nHeight));
}

BOOL CPalette::CreateHalftonePalette(CDC* pDC) {
    return AttachNew(::CreateHalftonePalette(pDC->GetSafeHdc()));
}

int CPalette::GetEntryCount() {
    WORD count = 0;
    GetObject(sizeof(count), &count);
    return count;
}
