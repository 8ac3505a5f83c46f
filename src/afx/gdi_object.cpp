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
IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

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

CGdiObject* PASCAL CGdiObject::FromHandle(HGDIOBJ hObject) {
    switch (::GetObjectType(hObject)) {
    case OBJ_PEN:
    case OBJ_EXTPEN:
        return CPen::FromHandle(static_cast<HPEN>(hObject));
    case OBJ_BRUSH:
        return CBrush::FromHandle(static_cast<HBRUSH>(hObject));
    case OBJ_FONT:
        return CFont::FromHandle(static_cast<HFONT>(hObject));
    case OBJ_BITMAP:
        return CBitmap::FromHandle(static_cast<HBITMAP>(hObject));
    case OBJ_PAL:
        return CPalette::FromHandle(static_cast<HPALETTE>(hObject));
    case OBJ_REGION:
        return CRgn::FromHandle(static_cast<HRGN>(hObject));
    default:
        return gdi_objects().any(hObject);
    }
}

void PASCAL CGdiObject::DeleteTempMap() {
    gdi_objects().delete_temporary();
}

CPen* PASCAL CPen::FromHandle(HPEN hPen) {
    return static_cast<CPen*>(gdi_objects().any<CPen>(hPen));
}

CBrush* PASCAL CBrush::FromHandle(HBRUSH hBrush) {
    return static_cast<CBrush*>(gdi_objects().any<CBrush>(hBrush));
}

CRgn* PASCAL CRgn::FromHandle(HRGN hRgn) {
    return static_cast<CRgn*>(gdi_objects().any<CRgn>(hRgn));
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

CPen::CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount, const DWORD* lpStyle) {
    attach_or_throw(*this, ::ExtCreatePen(static_cast<DWORD>(nPenStyle), static_cast<DWORD>(nWidth), pLogBrush,
                                          static_cast<DWORD>(nStyleCount), lpStyle));
}

CBrush::CBrush(int nIndex, COLORREF crColor) {
    attach_or_throw(*this, ::CreateHatchBrush(nIndex, crColor));
}

CBrush::CBrush(CBitmap* pBitmap) {
    attach_or_throw(*this, ::CreatePatternBrush(static_cast<HBITMAP>(pBitmap->GetSafeHandle())));
}

BOOL CBrush::CreatePatternBrush(CBitmap* pBitmap) {
    return AttachNew(::CreatePatternBrush(static_cast<HBITMAP>(pBitmap->GetSafeHandle())));
}

BOOL CBrush::CreateDIBPatternBrush(HGLOBAL hPackedDIB, UINT nUsage) {
    const void* packed = ::GlobalLock(hPackedDIB);
    if (packed == nullptr)
        return FALSE;
    const BOOL created = AttachNew(::CreateDIBPatternBrushPt(packed, nUsage));
    ::GlobalUnlock(hPackedDIB);
    return created;
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

BOOL CBitmap::LoadBitmap(LPCTSTR lpszResourceName) {
    return AttachNew(::LoadBitmap(AfxFindResourceHandle(lpszResourceName, RT_BITMAP), lpszResourceName));
}

BOOL CBitmap::LoadMappedBitmap(UINT nIDBitmap, UINT nFlags, LPCOLORMAP lpColorMap, int nMapSize) {
    const HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCE(nIDBitmap), RT_BITMAP);
    return AttachNew(::CreateMappedBitmap(module, static_cast<INT_PTR>(nIDBitmap), nFlags, lpColorMap, nMapSize));
}

BOOL CBitmap::CreateDiscardableBitmap(CDC* pDC, int nWidth, int nHeight) {
    return AttachNew(::CreateDiscardableBitmap(pDC->GetSafeHdc(), nWidth, nHeight));
}

BOOL CRgn::CreateFromPath(CDC* pDC) {
    return AttachNew(::PathToRegion(pDC->GetSafeHdc()));
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
