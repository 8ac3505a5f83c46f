// Drawing objects: pens, brushes, fonts, bitmaps, palettes, regions.
#pragma once

#include "afx_module.h"
#include "afxstr.h"
#include "atltypes.h"

class CBitmap;
class CDC;

// Owns a drawing object's handle and deletes it with itself. FromHandle objects are temporary and own nothing.
class ZOPAFX_API CGdiObject : public CObject {
    DECLARE_DYNCREATE(CGdiObject)

public:
    CGdiObject() = default;
    ~CGdiObject() override;

    HGDIOBJ GetSafeHandle() const { return this == nullptr ? nullptr : m_hObject; }
    operator HGDIOBJ() const { return GetSafeHandle(); }
    bool operator==(const CGdiObject& obj) const { return obj.m_hObject == m_hObject; }
    bool operator!=(const CGdiObject& obj) const { return obj.m_hObject != m_hObject; }
    static CGdiObject* PASCAL FromHandle(HGDIOBJ hObject);
    static void PASCAL DeleteTempMap();
    // FALSE, here and in every Create function, where the object holds a handle already.
    BOOL Attach(HGDIOBJ hObject);
    HGDIOBJ Detach();
    BOOL DeleteObject();
    int GetObject(int nCount, LPVOID lpObject) const { return ::GetObject(m_hObject, nCount, lpObject); }
    UINT GetObjectType() const { return ::GetObjectType(m_hObject); }
    BOOL CreateStockObject(int nIndex) { return AttachNew(::GetStockObject(nIndex)); }
    BOOL UnrealizeObject() { return ::UnrealizeObject(m_hObject); }

    HGDIOBJ m_hObject = nullptr;

protected:
    // Deletes the new handle where the object holds one already.
    BOOL AttachNew(HGDIOBJ hObject);
};

// Constructors with arguments, of this class and the next, raise CResourceException where nothing can be made.
class ZOPAFX_API CPen : public CGdiObject {
    DECLARE_DYNAMIC(CPen)

public:
    CPen() = default;
    CPen(int nPenStyle, int nWidth, COLORREF crColor);
    CPen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0, const DWORD* lpStyle = nullptr);
    operator HPEN() const { return static_cast<HPEN>(GetSafeHandle()); }
    static CPen* PASCAL FromHandle(HPEN hPen);
    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor) {
        return AttachNew(::CreatePen(nPenStyle, nWidth, crColor));
    }
    BOOL CreatePen(int nPenStyle, int nWidth, const LOGBRUSH* pLogBrush, int nStyleCount = 0,
                   const DWORD* lpStyle = nullptr) {
        return AttachNew(::ExtCreatePen(static_cast<DWORD>(nPenStyle), static_cast<DWORD>(nWidth), pLogBrush,
                                        static_cast<DWORD>(nStyleCount), lpStyle));
    }
    BOOL CreatePenIndirect(LPLOGPEN lpLogPen) { return AttachNew(::CreatePenIndirect(lpLogPen)); }
    int GetLogPen(LOGPEN* pLogPen) { return GetObject(sizeof(LOGPEN), pLogPen); }
    int GetExtLogPen(EXTLOGPEN* pLogPen) { return GetObject(sizeof(EXTLOGPEN), pLogPen); }
};

class ZOPAFX_API CBrush : public CGdiObject {
    DECLARE_DYNAMIC(CBrush)

public:
    CBrush() = default;
    CBrush(COLORREF crColor);
    CBrush(int nIndex, COLORREF crColor);
    explicit CBrush(CBitmap* pBitmap);
    operator HBRUSH() const { return static_cast<HBRUSH>(GetSafeHandle()); }
    static CBrush* PASCAL FromHandle(HBRUSH hBrush);
    BOOL CreateSolidBrush(COLORREF crColor) { return AttachNew(::CreateSolidBrush(crColor)); }
    BOOL CreateHatchBrush(int nIndex, COLORREF crColor) { return AttachNew(::CreateHatchBrush(nIndex, crColor)); }
    BOOL CreateBrushIndirect(const LOGBRUSH* lpLogBrush) { return AttachNew(::CreateBrushIndirect(lpLogBrush)); }
    BOOL CreatePatternBrush(CBitmap* pBitmap);
    BOOL CreateDIBPatternBrush(HGLOBAL hPackedDIB, UINT nUsage);
    BOOL CreateDIBPatternBrush(const void* lpPackedDIB, UINT nUsage) {
        return AttachNew(::CreateDIBPatternBrushPt(lpPackedDIB, nUsage));
    }
    BOOL CreateSysColorBrush(int nIndex) { return AttachNew(::GetSysColorBrush(nIndex)); }
    int GetLogBrush(LOGBRUSH* pLogBrush) { return GetObject(sizeof(LOGBRUSH), pLogBrush); }
};

class ZOPAFX_API CFont : public CGdiObject {
    DECLARE_DYNAMIC(CFont)

public:
    CFont() = default;
    operator HFONT() const { return static_cast<HFONT>(GetSafeHandle()); }
    static CFont* PASCAL FromHandle(HFONT hFont);
    BOOL CreateFontIndirect(const LOGFONT* lpLogFont) { return AttachNew(::CreateFontIndirect(lpLogFont)); }
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                    BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision, BYTE nClipPrecision,
                    BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename);
    // Height in tenths of a point, converted for pDC, or for the screen where it is null.
    BOOL CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC = nullptr);
    BOOL CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC = nullptr);
    int GetLogFont(LOGFONT* pLogFont) { return GetObject(sizeof(LOGFONT), pLogFont); }
};

class ZOPAFX_API CBitmap : public CGdiObject {
    DECLARE_DYNAMIC(CBitmap)

public:
    CBitmap() = default;
    operator HBITMAP() const { return static_cast<HBITMAP>(GetSafeHandle()); }
    static CBitmap* PASCAL FromHandle(HBITMAP hBitmap);
    // From the resource chain.
    BOOL LoadBitmap(LPCTSTR lpszResourceName);
    BOOL LoadBitmap(UINT nIDResource) { return LoadBitmap(MAKEINTRESOURCE(nIDResource)); }
    BOOL LoadOEMBitmap(UINT nIDBitmap) { return AttachNew(::LoadBitmap(nullptr, MAKEINTRESOURCE(nIDBitmap))); }
    // Colours of the bitmap become the system's.
    BOOL LoadMappedBitmap(UINT nIDBitmap, UINT nFlags = 0, LPCOLORMAP lpColorMap = nullptr, int nMapSize = 0);
    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits) {
        return AttachNew(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
    }
    BOOL CreateBitmapIndirect(LPBITMAP lpBitmap) { return AttachNew(::CreateBitmapIndirect(lpBitmap)); }
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);
    BOOL CreateDiscardableBitmap(CDC* pDC, int nWidth, int nHeight);
    int GetBitmap(BITMAP* pBitMap) { return GetObject(sizeof(BITMAP), pBitMap); }
    DWORD SetBitmapBits(DWORD dwCount, const void* lpBits) {
        return static_cast<DWORD>(::SetBitmapBits(*this, dwCount, lpBits));
    }
    DWORD GetBitmapBits(DWORD dwCount, LPVOID lpBits) const {
        return static_cast<DWORD>(::GetBitmapBits(*this, static_cast<LONG>(dwCount), lpBits));
    }
    CSize SetBitmapDimension(int nWidth, int nHeight) {
        CSize before;
        ::SetBitmapDimensionEx(*this, nWidth, nHeight, &before);
        return before;
    }
    CSize GetBitmapDimension() const {
        CSize size;
        ::GetBitmapDimensionEx(*this, &size);
        return size;
    }
};

class ZOPAFX_API CPalette : public CGdiObject {
    DECLARE_DYNAMIC(CPalette)

public:
    CPalette() = default;
    static CPalette* PASCAL FromHandle(HPALETTE hPalette);
    operator HPALETTE() const { return static_cast<HPALETTE>(GetSafeHandle()); }
    BOOL CreatePalette(LPLOGPALETTE lpLogPalette) { return AttachNew(::CreatePalette(lpLogPalette)); }
    BOOL CreateHalftonePalette(CDC* pDC);
    int GetEntryCount();
    UINT GetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors) const {
        return ::GetPaletteEntries(*this, nStartIndex, nNumEntries, lpPaletteColors);
    }
    UINT SetPaletteEntries(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors) {
        return ::SetPaletteEntries(*this, nStartIndex, nNumEntries, lpPaletteColors);
    }
    void AnimatePalette(UINT nStartIndex, UINT nNumEntries, LPPALETTEENTRY lpPaletteColors) {
        ::AnimatePalette(*this, nStartIndex, nNumEntries, lpPaletteColors);
    }
    UINT GetNearestPaletteIndex(COLORREF crColor) const { return ::GetNearestPaletteIndex(*this, crColor); }
    BOOL ResizePalette(UINT nNumEntries) { return ::ResizePalette(*this, nNumEntries); }
};

class ZOPAFX_API CRgn : public CGdiObject {
    DECLARE_DYNAMIC(CRgn)

public:
    CRgn() = default;
    operator HRGN() const { return static_cast<HRGN>(GetSafeHandle()); }
    static CRgn* PASCAL FromHandle(HRGN hRgn);
    BOOL CreateRectRgn(int x1, int y1, int x2, int y2) { return AttachNew(::CreateRectRgn(x1, y1, x2, y2)); }
    BOOL CreateRectRgnIndirect(LPCRECT lpRect) { return AttachNew(::CreateRectRgnIndirect(lpRect)); }
    BOOL CreateEllipticRgn(int x1, int y1, int x2, int y2) { return AttachNew(::CreateEllipticRgn(x1, y1, x2, y2)); }
    BOOL CreateEllipticRgnIndirect(LPCRECT lpRect) { return AttachNew(::CreateEllipticRgnIndirect(lpRect)); }
    BOOL CreatePolygonRgn(const POINT* lpPoints, int nCount, int nMode) {
        return AttachNew(::CreatePolygonRgn(lpPoints, nCount, nMode));
    }
    BOOL CreatePolyPolygonRgn(const POINT* lpPoints, const INT* lpPolyCounts, int nCount, int nPolyFillMode) {
        return AttachNew(::CreatePolyPolygonRgn(lpPoints, lpPolyCounts, nCount, nPolyFillMode));
    }
    BOOL CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3) {
        return AttachNew(::CreateRoundRectRgn(x1, y1, x2, y2, x3, y3));
    }
    BOOL CreateFromPath(CDC* pDC);
    BOOL CreateFromData(const XFORM* lpXForm, int nCount, const RGNDATA* pRgnData) {
        return AttachNew(::ExtCreateRegion(lpXForm, static_cast<DWORD>(nCount), pRgnData));
    }
    void SetRectRgn(int x1, int y1, int x2, int y2) { ::SetRectRgn(*this, x1, y1, x2, y2); }
    void SetRectRgn(LPCRECT r) { SetRectRgn(r->left, r->top, r->right, r->bottom); }
    int CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode) {
        return ::CombineRgn(*this, static_cast<HRGN>(pRgn1->GetSafeHandle()), static_cast<HRGN>(pRgn2->GetSafeHandle()),
                            nCombineMode);
    }
    int CopyRgn(const CRgn* pRgnSrc) { return CombineRgn(pRgnSrc, nullptr, RGN_COPY); }
    BOOL EqualRgn(const CRgn* pRgn) const { return ::EqualRgn(*this, static_cast<HRGN>(pRgn->GetSafeHandle())); }
    int OffsetRgn(int x, int y) { return ::OffsetRgn(*this, x, y); }
    int OffsetRgn(POINT point) { return OffsetRgn(point.x, point.y); }
    int GetRgnBox(LPRECT lpRect) const { return ::GetRgnBox(*this, lpRect); }
    BOOL PtInRegion(int x, int y) const { return ::PtInRegion(*this, x, y); }
    BOOL PtInRegion(POINT point) const { return PtInRegion(point.x, point.y); }
    BOOL RectInRegion(LPCRECT lpRect) const { return ::RectInRegion(*this, lpRect); }
    int GetRegionData(LPRGNDATA lpRgnData, int nCount) const {
        return static_cast<int>(::GetRegionData(*this, static_cast<DWORD>(nCount), lpRgnData));
    }
};
