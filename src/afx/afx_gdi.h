// Drawing objects: pens, brushes, fonts, bitmaps, palettes.
#pragma once

#include "afx_module.h"
#include "afxstr.h"
#include "atltypes.h"

class CDC;
class CRgn;

// Owns a drawing object's handle and deletes it with itself. FromHandle objects are temporary and own nothing.
class ZOPAFX_API CGdiObject : public CObject {
    DECLARE_DYNCREATE(CGdiObject)

public:
    CGdiObject() = default;
    ~CGdiObject() override;

    HGDIOBJ GetSafeHandle() const { return this == nullptr ? nullptr : m_hObject; }
    operator HGDIOBJ() const { return GetSafeHandle(); }
    // FALSE, here and in every Create function, where the object holds a handle already.
    BOOL Attach(HGDIOBJ hObject);
    HGDIOBJ Detach();
    BOOL DeleteObject();
    int GetObject(int nCount, LPVOID lpObject) const { return ::GetObject(m_hObject, nCount, lpObject); }

    HGDIOBJ m_hObject = nullptr;

protected:
    // Deletes the new handle where the object holds one already.
    BOOL AttachNew(HGDIOBJ hObject);
};

class ZOPAFX_API CPen : public CGdiObject {
    DECLARE_DYNAMIC(CPen)

public:
    CPen() = default;
    // Raises CResourceException where the pen cannot be made; so does the constructor of CBrush.
    CPen(int nPenStyle, int nWidth, COLORREF crColor);
    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor) {
        return AttachNew(::CreatePen(nPenStyle, nWidth, crColor));
    }
};

class ZOPAFX_API CBrush : public CGdiObject {
    DECLARE_DYNAMIC(CBrush)

public:
    CBrush() = default;
    explicit CBrush(COLORREF crColor);
    operator HBRUSH() const { return static_cast<HBRUSH>(GetSafeHandle()); }
    BOOL CreateSolidBrush(COLORREF crColor) { return AttachNew(::CreateSolidBrush(crColor)); }
};

class ZOPAFX_API CFont : public CGdiObject {
    DECLARE_DYNAMIC(CFont)

public:
    CFont() = default;
    static CFont* PASCAL FromHandle(HFONT hFont);
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                    BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision, BYTE nClipPrecision,
                    BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename);
    // Height in tenths of a point, converted for pDC, or for the screen where it is null.
    BOOL CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC = nullptr);
    BOOL CreatePointFontIndirect(const LOGFONT* lpLogFont, CDC* pDC = nullptr);
};

class ZOPAFX_API CBitmap : public CGdiObject {
    DECLARE_DYNAMIC(CBitmap)

public:
    CBitmap() = default;
    static CBitmap* PASCAL FromHandle(HBITMAP hBitmap);
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);
    int GetBitmap(BITMAP* pBitMap) { return GetObject(sizeof(BITMAP), pBitMap); }
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
    UINT GetNearestPaletteIndex(COLORREF crColor) const { return ::GetNearestPaletteIndex(*this, crColor); }
};
