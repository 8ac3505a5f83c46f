// CImage: a bitmap that reads and writes picture files.
#pragma once

#include "afxstr.h"
#include "atlsimpcoll.h"
#include "atltypes.h"

// The platform's header takes these for granted.
#include <gdiplus.h>

namespace Gdiplus {

// What Save takes.
inline constexpr GUID ImageFormatBMP{0xb96b3cab, 0x0728, 0x11d3, {0x9d, 0x7b, 0, 0, 0xf8, 0x1e, 0xf3, 0x2e}};
inline constexpr GUID ImageFormatJPEG{0xb96b3cae, 0x0728, 0x11d3, {0x9d, 0x7b, 0, 0, 0xf8, 0x1e, 0xf3, 0x2e}};
inline constexpr GUID ImageFormatPNG{0xb96b3caf, 0x0728, 0x11d3, {0x9d, 0x7b, 0, 0, 0xf8, 0x1e, 0xf3, 0x2e}};
inline constexpr GUID ImageFormatGIF{0xb96b3cb0, 0x0728, 0x11d3, {0x9d, 0x7b, 0, 0, 0xf8, 0x1e, 0xf3, 0x2e}};
inline constexpr GUID ImageFormatTIFF{0xb96b3cb1, 0x0728, 0x11d3, {0x9d, 0x7b, 0, 0, 0xf8, 0x1e, 0xf3, 0x2e}};

} // namespace Gdiplus

namespace ATL {

// Owns a bitmap, most often a DIB section. Position (0, 0) is the upper left pixel. What fails leaves the object as it
// was; what succeeds replaces the bitmap. Without a bitmap, or while it is selected into a context of the program's,
// drawing answers FALSE.
class ZOPAFX_API CImage {
public:
    static constexpr DWORD createAlphaChannel = 1;
    enum DIBOrientation { DIBOR_DEFAULT, DIBOR_TOPDOWN, DIBOR_BOTTOMUP };

    CImage();
    ~CImage();
    CImage(const CImage&) = delete;
    CImage& operator=(const CImage&) = delete;

    operator HBITMAP() const { return m.bitmap; }
    void Attach(HBITMAP hBitmap, DIBOrientation eOrientation = DIBOR_DEFAULT);
    HBITMAP Detach();
    void Destroy();

    // Black. A positive height: the lowest row comes first in memory. createAlphaChannel wants 32 bits; the colours
    // beside it are premultiplied, as the platform draws them.
    BOOL Create(int nWidth, int nHeight, int nBPP, DWORD dwFlags = 0);
    // BI_RGB, or BI_BITFIELDS with three masks.
    BOOL CreateEx(int nWidth, int nHeight, int nBPP, DWORD eCompression, const DWORD* pdwBitmasks = nullptr,
                  DWORD dwFlags = 0);

    // BMP, GIF, JPEG, PNG and TIFF. Of what is partly transparent the colours come as they stand in the file, and are
    // multiplied for drawing, until GetBits or GetPixelAddress hand them out: then that is the program's work.
    HRESULT Load(LPCTSTR pszFileName);
    HRESULT Load(IStream* pStream);
    void LoadFromResource(HINSTANCE hInstance, LPCTSTR pszResourceName);
    void LoadFromResource(HINSTANCE hInstance, UINT nIDResource);
    // GUID_NULL: by the name's extension, BMP where there is none.
    HRESULT Save(LPCTSTR pszFileName, REFGUID guidFileType = GUID_NULL) const;
    HRESULT Save(IStream* pStream, REFGUID guidFileType) const;

    // Filters for CFileDialog: "description (patterns)|patterns|" of each kind of file, at first of all together under
    // the description for them, and "|" at the end; the array tells the kinds in the same order, GUID_NULL for all.
    // Metafiles cannot be loaded and are left out.
    enum {
        excludeGIF = 0x01,
        excludeBMP = 0x02,
        excludeEMF = 0x04,
        excludeWMF = 0x08,
        excludeJPEG = 0x10,
        excludePNG = 0x20,
        excludeTIFF = 0x40,
        excludeIcon = 0x80,
        excludeOther = static_cast<int>(0x80000000),
        excludeDefaultLoad = 0,
        excludeDefaultSave = excludeIcon | excludeEMF | excludeWMF
    };
    static HRESULT GetImporterFilterString(CSimpleString& strImporters, CSimpleArray<GUID>& aguidFileTypes,
                                           LPCTSTR pszAllFilesDescription = nullptr,
                                           DWORD dwExclude = excludeDefaultLoad, TCHAR chSeparator = '|');
    static HRESULT GetExporterFilterString(CSimpleString& strExporters, CSimpleArray<GUID>& aguidFileTypes,
                                           LPCTSTR pszAllFilesDescription = nullptr,
                                           DWORD dwExclude = excludeDefaultSave, TCHAR chSeparator = '|');

    bool IsNull() const { return m.bitmap == nullptr; }
    int GetWidth() const { return m.width; }
    int GetHeight() const { return m.height; }
    int GetBPP() const { return m.bpp; }
    // Of DIB sections only; of others null, 0 or nothing.
    bool IsDIBSection() const { return m.bits != nullptr; }
    bool IsIndexed() const { return IsDIBSection() && m.bpp <= 8; }
    void* GetBits();                         // the upper left pixel
    void* GetPixelAddress(int x, int y);     // null outside
    int GetPitch() const { return m.pitch; } // from a row to the next lower one
    int GetMaxColorTableEntries() const { return IsIndexed() ? 1 << m.bpp : 0; }
    // Entries that the table does not have are left out.
    void GetColorTable(UINT iFirstColor, UINT nColors, RGBQUAD* prgbColors) const;
    void SetColorTable(UINT iFirstColor, UINT nColors, const RGBQUAD* prgbColors);

    // CLR_INVALID outside; nothing is set there. Between GetDC and ReleaseDC many of them go faster.
    COLORREF GetPixel(int x, int y) const;
    void SetPixel(int x, int y, COLORREF color);
    void SetPixelIndexed(int x, int y, int iIndex);
    void SetPixelRGB(int x, int y, BYTE r, BYTE g, BYTE b) { SetPixel(x, y, RGB(r, g, b)); }

    // An entry of the colour table, or -1; another index is not taken. The one before.
    LONG GetTransparentColor() const { return m.transparent; }
    LONG SetTransparentColor(LONG iTransparentColor);
    static BOOL IsTransparencySupported() { return TRUE; }

    // The context that holds the bitmap, until as many calls of ReleaseDC; null where it cannot be selected.
    HDC GetDC() const;
    void ReleaseDC() const;

    // As StretchBlt, or TransparentBlt or AlphaBlend where the image has a transparent colour or an alpha channel.
    BOOL Draw(HDC hDestDC, int xDest, int yDest) const { return Draw(hDestDC, xDest, yDest, m.width, m.height); }
    BOOL Draw(HDC hDestDC, const POINT& pointDest) const { return Draw(hDestDC, pointDest.x, pointDest.y); }
    BOOL Draw(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight) const {
        return Draw(hDestDC, xDest, yDest, nDestWidth, nDestHeight, 0, 0, m.width, m.height);
    }
    BOOL Draw(HDC hDestDC, const RECT& rectDest) const { return Draw(hDestDC, rectDest, Whole()); }
    BOOL Draw(HDC hDestDC, const RECT& rectDest, const RECT& rectSrc) const {
        return Draw(hDestDC, rectDest.left, rectDest.top, Across(rectDest), Down(rectDest), rectSrc.left, rectSrc.top,
                    Across(rectSrc), Down(rectSrc));
    }
    BOOL Draw(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc, int ySrc, int nSrcWidth,
              int nSrcHeight) const;

    BOOL BitBlt(HDC hDestDC, int xDest, int yDest, DWORD dwROP = SRCCOPY) const {
        return BitBlt(hDestDC, xDest, yDest, m.width, m.height, 0, 0, dwROP);
    }
    BOOL BitBlt(HDC hDestDC, const POINT& pointDest, DWORD dwROP = SRCCOPY) const {
        return BitBlt(hDestDC, pointDest.x, pointDest.y, dwROP);
    }
    BOOL BitBlt(HDC hDestDC, const RECT& rectDest, const POINT& pointSrc, DWORD dwROP = SRCCOPY) const {
        return BitBlt(hDestDC, rectDest.left, rectDest.top, Across(rectDest), Down(rectDest), pointSrc.x, pointSrc.y,
                      dwROP);
    }
    BOOL BitBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc, int ySrc,
                DWORD dwROP = SRCCOPY) const;

    BOOL StretchBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, DWORD dwROP = SRCCOPY) const {
        return StretchBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, 0, 0, m.width, m.height, dwROP);
    }
    BOOL StretchBlt(HDC hDestDC, const RECT& rectDest, DWORD dwROP = SRCCOPY) const {
        return StretchBlt(hDestDC, rectDest, Whole(), dwROP);
    }
    BOOL StretchBlt(HDC hDestDC, const RECT& rectDest, const RECT& rectSrc, DWORD dwROP = SRCCOPY) const {
        return StretchBlt(hDestDC, rectDest.left, rectDest.top, Across(rectDest), Down(rectDest), rectSrc.left,
                          rectSrc.top, Across(rectSrc), Down(rectSrc), dwROP);
    }
    BOOL StretchBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc, int ySrc,
                    int nSrcWidth, int nSrcHeight, DWORD dwROP = SRCCOPY) const;

    // CLR_INVALID: the image's own transparent colour; FALSE where it has none.
    BOOL TransparentBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight,
                        UINT crTransparent = CLR_INVALID) const {
        return TransparentBlt(hDestDC, xDest, yDest, nDestWidth, nDestHeight, 0, 0, m.width, m.height, crTransparent);
    }
    BOOL TransparentBlt(HDC hDestDC, const RECT& rectDest, UINT crTransparent = CLR_INVALID) const {
        return TransparentBlt(hDestDC, rectDest, Whole(), crTransparent);
    }
    BOOL TransparentBlt(HDC hDestDC, const RECT& rectDest, const RECT& rectSrc,
                        UINT crTransparent = CLR_INVALID) const {
        return TransparentBlt(hDestDC, rectDest.left, rectDest.top, Across(rectDest), Down(rectDest), rectSrc.left,
                              rectSrc.top, Across(rectSrc), Down(rectSrc), crTransparent);
    }
    BOOL TransparentBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc, int ySrc,
                        int nSrcWidth, int nSrcHeight, UINT crTransparent = CLR_INVALID) const;

    BOOL AlphaBlend(HDC hDestDC, int xDest, int yDest, BYTE bSrcAlpha = 0xff, BYTE bBlendOp = AC_SRC_OVER) const {
        return AlphaBlend(hDestDC, xDest, yDest, m.width, m.height, 0, 0, m.width, m.height, bSrcAlpha, bBlendOp);
    }
    BOOL AlphaBlend(HDC hDestDC, const POINT& pointDest, BYTE bSrcAlpha = 0xff, BYTE bBlendOp = AC_SRC_OVER) const {
        return AlphaBlend(hDestDC, pointDest.x, pointDest.y, bSrcAlpha, bBlendOp);
    }
    BOOL AlphaBlend(HDC hDestDC, const RECT& rectDest, const RECT& rectSrc, BYTE bSrcAlpha = 0xff,
                    BYTE bBlendOp = AC_SRC_OVER) const {
        return AlphaBlend(hDestDC, rectDest.left, rectDest.top, Across(rectDest), Down(rectDest), rectSrc.left,
                          rectSrc.top, Across(rectSrc), Down(rectSrc), bSrcAlpha, bBlendOp);
    }
    BOOL AlphaBlend(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc, int ySrc,
                    int nSrcWidth, int nSrcHeight, BYTE bSrcAlpha = 0xff, BYTE bBlendOp = AC_SRC_OVER) const;

    BOOL MaskBlt(HDC hDestDC, int xDest, int yDest, HBITMAP hbmMask, DWORD dwROP = SRCCOPY) const {
        return MaskBlt(hDestDC, xDest, yDest, m.width, m.height, 0, 0, hbmMask, 0, 0, dwROP);
    }
    BOOL MaskBlt(HDC hDestDC, const POINT& pointDest, HBITMAP hbmMask, DWORD dwROP = SRCCOPY) const {
        return MaskBlt(hDestDC, pointDest.x, pointDest.y, hbmMask, dwROP);
    }
    BOOL MaskBlt(HDC hDestDC, const RECT& rectDest, const POINT& pointSrc, HBITMAP hbmMask, const POINT& pointMask,
                 DWORD dwROP = SRCCOPY) const {
        return MaskBlt(hDestDC, rectDest.left, rectDest.top, Across(rectDest), Down(rectDest), pointSrc.x, pointSrc.y,
                       hbmMask, pointMask.x, pointMask.y, dwROP);
    }
    BOOL MaskBlt(HDC hDestDC, int xDest, int yDest, int nDestWidth, int nDestHeight, int xSrc, int ySrc,
                 HBITMAP hbmMask, int xMask, int yMask, DWORD dwROP = SRCCOPY) const;

    BOOL PlgBlt(HDC hDestDC, const POINT* pPoints, HBITMAP hbmMask = nullptr) const {
        return PlgBlt(hDestDC, pPoints, 0, 0, m.width, m.height, hbmMask);
    }
    BOOL PlgBlt(HDC hDestDC, const POINT* pPoints, const RECT& rectSrc, HBITMAP hbmMask = nullptr,
                const POINT& pointMask = CPoint(0, 0)) const {
        return PlgBlt(hDestDC, pPoints, rectSrc.left, rectSrc.top, Across(rectSrc), Down(rectSrc), hbmMask, pointMask.x,
                      pointMask.y);
    }
    BOOL PlgBlt(HDC hDestDC, const POINT* pPoints, int xSrc, int ySrc, int nSrcWidth, int nSrcHeight,
                HBITMAP hbmMask = nullptr, int xMask = 0, int yMask = 0) const;

    // The platform's pictures start with the first file and end with the last object: before that, by this, for objects
    // that live until a library goes.
    static void ReleaseGDIPlus();

private:
    struct Bitmap {
        HBITMAP bitmap = nullptr;
        BYTE* bits = nullptr; // of the upper left pixel
        int width = 0, height = 0, pitch = 0, bpp = 0;
        bool masks = false, alpha = false, straight = false; // straight: not multiplied by the alpha channel
        LONG transparent = -1;
    };
    static int Across(const RECT& rect) { return static_cast<int>(UINT(rect.right) - UINT(rect.left)); }
    static int Down(const RECT& rect) { return static_cast<int>(UINT(rect.bottom) - UINT(rect.top)); }
    RECT Whole() const { return {0, 0, m.width, m.height}; }
    bool Holds(int x, int y) const { return x >= 0 && x < m.width && y >= 0 && y < m.height; }
    BYTE* Row(int y) const { return m.bits + static_cast<std::ptrdiff_t>(y) * m.pitch; }
    bool HasPlainColours() const { return m.bits != nullptr && m.bpp >= 24 && !m.masks; }
    template <class Colour>
    void MoveColors(UINT first, UINT count, Colour* colours, UINT(WINAPI* move)(HDC, UINT, UINT, Colour*)) const;
    bool CopyColours(CImage& copy) const;
    void Multiply();
    void SetCube();
    HRESULT Take(Gdiplus::GpBitmap* source);
    bool TakePixels(Gdiplus::GpBitmap* source, int format);
    void TakePalette(Gdiplus::GpBitmap* source);
    int FileFormat() const;
    Gdiplus::GpStatus MakeSource(Gdiplus::GpBitmap** source) const;
    template <class Write> HRESULT SaveBy(REFGUID type, LPCWSTR name, Write write) const;

    Bitmap m;
    mutable HDC m_hDC = nullptr;
    mutable HGDIOBJ m_hBefore = nullptr;
    mutable int m_nDCUses = 0;
};

} // namespace ATL

using namespace ATL;
