#include "atlimage.h"

#include <algorithm>
#include <climits>
#include <utility>

namespace ATL {

namespace {

// Rows end at 32 bits.
LONGLONG row_bytes(int width, int bpp) {
    return (static_cast<LONGLONG>(width) * bpp + 31) / 32 * 4;
}

bool has_masks(const BITMAPINFOHEADER& header) {
    return header.biCompression == BI_BITFIELDS;
}

} // namespace

void CImage::Destroy() {
    if (const HBITMAP bitmap = Detach())
        ::DeleteObject(bitmap);
}

HBITMAP CImage::Detach() {
    m_nDCUses = std::min(m_nDCUses, 1);
    ReleaseDC();
    return std::exchange(m, {}).bitmap;
}

void CImage::Attach(HBITMAP hBitmap, DIBOrientation eOrientation) {
    DIBSECTION section{};
    if (hBitmap == m.bitmap || ::GetObjectType(hBitmap) != OBJ_BITMAP)
        return;
    const int known = ::GetObject(hBitmap, sizeof(section), &section);
    Destroy();
    const BITMAP& bitmap = section.dsBm;
    m.bitmap = hBitmap;
    m.width = bitmap.bmWidth;
    m.height = std::abs(bitmap.bmHeight);
    m.bpp = bitmap.bmBitsPixel * bitmap.bmPlanes;
    if (known != sizeof(section) || bitmap.bmBits == nullptr)
        return;
    const int pitch = static_cast<int>(row_bytes(m.width, m.bpp));
    const bool down = eOrientation == DIBOR_TOPDOWN || (eOrientation == DIBOR_DEFAULT && section.dsBmih.biHeight < 0);
    m.bits = static_cast<BYTE*>(bitmap.bmBits) + (down ? 0 : static_cast<std::ptrdiff_t>(m.height - 1) * pitch);
    m.pitch = down ? pitch : -pitch;
    m.masks = has_masks(section.dsBmih);
}

BOOL CImage::Create(int nWidth, int nHeight, int nBPP, DWORD dwFlags) {
    return CreateEx(nWidth, nHeight, nBPP, BI_RGB, nullptr, dwFlags);
}

BOOL CImage::CreateEx(int nWidth, int nHeight, int nBPP, DWORD eCompression, const DWORD* pdwBitmasks, DWORD dwFlags) {
    const bool masks = eCompression == BI_BITFIELDS;
    if (nWidth <= 0 || nHeight == 0 || nHeight == INT_MIN || (!masks && eCompression != BI_RGB) ||
        masks != (pdwBitmasks != nullptr) || (dwFlags & ~createAlphaChannel) != 0)
        return FALSE;
    constexpr int depths[] = {1, 4, 8, 16, 24, 32};
    if (std::ranges::find(depths, nBPP) == std::end(depths) || (masks && nBPP != 16 && nBPP != 32) ||
        (dwFlags != 0 && (masks || nBPP != 32)) || row_bytes(nWidth, nBPP) > INT_MAX / std::abs(nHeight))
        return FALSE;
    struct {
        BITMAPINFOHEADER header;
        DWORD table[256]; // colours of a short one are black
    } info{};
    info.header = {sizeof(info.header), nWidth, nHeight, 1, static_cast<WORD>(nBPP), eCompression, 0, 0, 0, 0, 0};
    if (masks)
        std::copy_n(pdwBitmasks, 3, info.table);
    void* bits = nullptr;
    const HBITMAP made =
        ::CreateDIBSection(nullptr, reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS, &bits, nullptr, 0);
    if (made == nullptr)
        return FALSE;
    Attach(made, nHeight < 0 ? DIBOR_TOPDOWN : DIBOR_BOTTOMUP);
    m.alpha = dwFlags != 0;
    return TRUE;
}

void CImage::LoadFromResource(HINSTANCE hInstance, LPCTSTR pszResourceName) {
    const HANDLE loaded = ::LoadImage(hInstance, pszResourceName, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION);
    Attach(static_cast<HBITMAP>(loaded));
}

void CImage::LoadFromResource(HINSTANCE hInstance, UINT nIDResource) {
    if (IS_INTRESOURCE(nIDResource))
        LoadFromResource(hInstance, MAKEINTRESOURCE(nIDResource));
}

void* CImage::GetBits() {
    return GetPixelAddress(0, 0);
}

void* CImage::GetPixelAddress(int x, int y) {
    if (!IsDIBSection() || !Holds(x, y))
        return nullptr;
    m.straight = false;
    ::GdiFlush();
    return Row(y) + static_cast<LONGLONG>(x) * m.bpp / 8;
}

template <class Colour>
void CImage::MoveColors(UINT first, UINT count, Colour* colours, UINT(WINAPI* move)(HDC, UINT, UINT, Colour*)) const {
    const UINT all = static_cast<UINT>(GetMaxColorTableEntries());
    const HDC dc = first < all && colours != nullptr ? GetDC() : nullptr;
    if (dc == nullptr)
        return;
    move(dc, first, std::min(count, all - first), colours);
    ReleaseDC();
}

void CImage::GetColorTable(UINT iFirstColor, UINT nColors, RGBQUAD* prgbColors) const {
    MoveColors(iFirstColor, nColors, prgbColors, &::GetDIBColorTable);
}

void CImage::SetColorTable(UINT iFirstColor, UINT nColors, const RGBQUAD* prgbColors) {
    MoveColors(iFirstColor, nColors, prgbColors, &::SetDIBColorTable);
}

COLORREF CImage::GetPixel(int x, int y) const {
    if (!Holds(x, y))
        return CLR_INVALID;
    if (HasPlainColours()) {
        ::GdiFlush();
        const BYTE* pixel = Row(y) + static_cast<std::ptrdiff_t>(x) * (m.bpp / 8);
        return RGB(pixel[2], pixel[1], pixel[0]);
    }
    const HDC dc = GetDC();
    const COLORREF colour = dc != nullptr ? ::GetPixel(dc, x, y) : CLR_INVALID;
    if (dc != nullptr)
        ReleaseDC();
    return colour;
}

// An alpha channel stays as it is.
void CImage::SetPixel(int x, int y, COLORREF color) {
    if (!Holds(x, y))
        return;
    if (HasPlainColours() && color <= RGB(255, 255, 255)) {
        ::GdiFlush();
        BYTE* pixel = Row(y) + static_cast<std::ptrdiff_t>(x) * (m.bpp / 8);
        pixel[0] = GetBValue(color), pixel[1] = GetGValue(color), pixel[2] = GetRValue(color);
    } else if (const HDC dc = GetDC()) {
        ::SetPixelV(dc, x, y, color);
        ReleaseDC();
    }
}

void CImage::SetPixelIndexed(int x, int y, int iIndex) {
    if (!Holds(x, y) || iIndex < 0 || iIndex >= GetMaxColorTableEntries())
        return;
    ::GdiFlush();
    const int above = x % 8 * m.bpp % 8; // the leftmost pixel of a byte has its highest bits
    const int shift = 8 - m.bpp - above;
    BYTE& byte = Row(y)[static_cast<LONGLONG>(x) * m.bpp / 8];
    byte = static_cast<BYTE>((byte & ~((GetMaxColorTableEntries() - 1) << shift)) | iIndex << shift);
}

LONG CImage::SetTransparentColor(LONG iTransparentColor) {
    if (iTransparentColor < -1 || iTransparentColor >= GetMaxColorTableEntries())
        return m.transparent;
    return std::exchange(m.transparent, iTransparentColor);
}

} // namespace ATL
