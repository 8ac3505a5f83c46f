#include "bitmap/dib_file.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "bitmap/bitmap_format.h"
#include "bitmap/log_palette.h"
#include "bitmap/pixel_line.h"
#include "bitmap/pixel_manipulators.h"

namespace {

static_assert(sizeof(BITMAPINFOHEADER) == wnt::info_header_bytes && offsetof(BITMAPINFO, bmiColors) == 40);

int drawn_pixel_size(int bits) {
    return bits == 8 || bits == 16 || bits == 24 ? bits / 8 : 0;
}

HPALETTE palette_of(const RGBQUAD* table, int count) {
    wnt::LogPalette colours(static_cast<UINT>(count));
    if (!colours.get())
        return nullptr;
    colours.take(table);
    return ::CreatePalette(colours.get());
}

} // namespace

CDibFile::CDibFile() {
    SetAllNull();
}

CDibFile::CDibFile(const CDibFile& other) : CDibFile() {
    *this = other;
}

CDibFile& CDibFile::operator=(const CDibFile& other) {
    if (this == &other)
        return *this;
    if (!Delete())
        fail(1);
    else if (other.IsValid())
        copy(other);
    return *this;
}

CDibFile::~CDibFile() {
    Delete();
}

void CDibFile::SetAllNull() {
    m_hBitmap = nullptr;
    m_hPalette = nullptr;
    m_hDC = nullptr;
    m_pBitmapInfo = nullptr;
    m_nColors = -1;
    m_pBits = nullptr;
    m_nLastError = 0;
    m_pPixelManipulator = nullptr;
}

bool CDibFile::release(HGDIOBJ handle) {
    return !handle || ::DeleteObject(handle);
}

// The device context goes first: what is selected into it could not be deleted.
int CDibFile::Delete() {
    const bool released = release(m_hDC) && release(m_hBitmap) && release(m_hPalette);
    std::free(m_pBitmapInfo);
    wnt::DeleteManipulator()(m_pPixelManipulator);
    SetAllNull();
    return released;
}

int CDibFile::fail(int code) {
    Delete();
    SetLastError(code);
    return 0;
}

int CDibFile::CreateNew(int width, int height, int fill, int openGL) {
    Delete();
    if (width < 1 || height < 1)
        return fail(3);
    if (!make_dc())
        return fail(4);
    const int bits = ::GetDeviceCaps(m_hDC, BITSPIXEL);
    const RGBQUAD* table = openGL ? rgbQuadDefaultTableOpenGL : rgbQuadDefaultTable;
    if (!fill_header(width, height, bits, bits == 8 ? table : nullptr))
        return fail(5);
    if (!make_section())
        return fail(6);
    ClearBits(fill);
    ::SelectObject(m_hDC, m_hBitmap);
    if (m_nColors > 0) {
        if (!make_palette())
            return fail(8);
        ::RealizePalette(m_hDC);
    }
    AllocPixelManipulator();
    return 1;
}

int CDibFile::CreateNew256Color(int width, int height, int fill, int openGL) {
    return create(width, height, 8, fill, openGL ? rgbQuadDefaultTableOpenGL : rgbQuadDefaultTable);
}

int CDibFile::CreateNewHighColor(int width, int height, int fill) {
    return create(width, height, 16, fill, nullptr);
}

int CDibFile::CreateNewTrueColor(int width, int height, int fill) {
    return create(width, height, 24, fill, nullptr);
}

int CDibFile::create(int width, int height, int bits, int fill, const RGBQUAD* table) {
    Delete();
    if (width < 1 || height < 1)
        return fail(2);
    if (!fill_header(width, height, bits, table))
        return fail(3);
    if (!make_dc())
        return fail(4);
    if (!make_section())
        return fail(5);
    ClearBits(fill);
    ::SelectObject(m_hDC, m_hBitmap);
    if (m_nColors > 0 && !make_palette())
        return fail(6);
    AllocPixelManipulator();
    return 1;
}

// A table has 256 colours.
bool CDibFile::fill_header(int width, int height, int bits, const RGBQUAD* table) {
    m_nColors = table ? 256 : 0;
    m_pBitmapInfo = reinterpret_cast<BITMAPINFO*>(wnt::header_block(m_nColors).release());
    if (!m_pBitmapInfo)
        return false;
    BITMAPINFOHEADER& h = m_pBitmapInfo->bmiHeader;
    h.biSize = sizeof h;
    h.biWidth = width;
    h.biHeight = height;
    h.biPlanes = 1;
    h.biBitCount = static_cast<WORD>(bits);
    h.biCompression = BI_RGB;
    h.biSizeImage = wnt::unpadded_bytes(wnt::header_of(reinterpret_cast<std::uint8_t*>(&h)));
    h.biClrUsed = h.biClrImportant = static_cast<DWORD>(m_nColors);
    if (table)
        std::copy_n(table, m_nColors, m_pBitmapInfo->bmiColors);
    return true;
}

bool CDibFile::make_dc() {
    m_hDC = ::CreateCompatibleDC(nullptr);
    return m_hDC != nullptr;
}

bool CDibFile::make_section() {
    m_hBitmap = ::CreateDIBSection(m_hDC, m_pBitmapInfo, DIB_RGB_COLORS, &m_pBits, nullptr, 0);
    return m_hBitmap && m_pBits;
}

bool CDibFile::make_palette() {
    m_hPalette = palette_of(m_pBitmapInfo->bmiColors, m_nColors);
    return m_hPalette && ::SelectPalette(m_hDC, m_hPalette, TRUE);
}

void CDibFile::AllocPixelManipulator() {
    m_pPixelManipulator = wnt::make_pixel_manipulator(header().biBitCount).release();
    m_pPixelManipulator->Init(m_pBits, header().biWidth, header().biHeight);
}

int CDibFile::copy(const CDibFile& other) {
    m_nColors = other.m_nColors;
    m_pBitmapInfo = reinterpret_cast<BITMAPINFO*>(wnt::header_block(m_nColors).release());
    if (!m_pBitmapInfo)
        return fail(3);
    std::memcpy(m_pBitmapInfo, other.m_pBitmapInfo, GetBitmapInfoSize());
    if (!make_dc())
        return fail(4);
    if (!make_section())
        return fail(5);
    ::GdiFlush();
    std::memcpy(m_pBits, other.m_pBits, GetPixelArraySize());
    ::SelectObject(m_hDC, m_hBitmap);
    if (m_nColors > 0 && !make_palette())
        return fail(6);
    AllocPixelManipulator();
    return 1;
}

// Headers from files promise anything: what counts is the memory of the section.
DWORD CDibFile::GetPixelArraySize() const {
    BITMAP section = {};
    ::GetObject(m_hBitmap, sizeof section, &section);
    const auto held = static_cast<std::uint64_t>(section.bmWidthBytes) * std::abs(std::int64_t{section.bmHeight});
    const auto counted = wnt::unpadded_bytes(wnt::header_of(reinterpret_cast<const std::uint8_t*>(m_pBitmapInfo)));
    return static_cast<DWORD>(std::min<std::uint64_t>(counted, held));
}

int CDibFile::IsValid() const {
    return m_hBitmap && m_hDC && m_pBitmapInfo && m_pBits && m_nColors >= 0 && (m_nColors < 1 || m_hPalette);
}

int CDibFile::GetWidth() const {
    return IsValid() ? header().biWidth : 0;
}

int CDibFile::GetHeight() const {
    return IsValid() ? header().biHeight : 0;
}

int CDibFile::GetBitsPerPixel() const {
    return IsValid() ? header().biBitCount : 0;
}

int CDibFile::GetLastError() const {
    const int code = m_nLastError;
    m_nLastError = 0;
    return code;
}

// Called on half-built objects, too.
void CDibFile::ClearBits(int value) {
    if (!m_pBits)
        return;
    ::GdiFlush();
    std::memset(m_pBits, value, GetPixelArraySize());
}

void CDibFile::SetColor(int r, int g, int b) {
    if (m_pPixelManipulator)
        m_pPixelManipulator->SetColor(r, g, b);
}

void CDibFile::SetPixel(int x, int y) {
    if (m_pPixelManipulator && x >= 0 && x < header().biWidth && y >= 0 && y < header().biHeight)
        m_pPixelManipulator->SetPixel(x, y);
}

void CDibFile::Line(int x1, int y1, int x2, int y2) {
    if (m_pPixelManipulator)
        wnt::draw_line(*m_pPixelManipulator, static_cast<std::uint8_t*>(m_pBits), header().biWidth, header().biHeight,
                       drawn_pixel_size(header().biBitCount), {x1, y1, x2, y2});
}

int CDibFile::Draw(HDC dc, int x, int y, int cx, int cy) const {
    return draw(dc, {x, y, cx, cy}, false);
}

int CDibFile::DrawRealized(HDC dc, int x, int y, int cx, int cy) const {
    return draw(dc, {x, y, cx, cy}, true);
}

// The place is left, top, width and height. Code 1 for a palette that was selected is intended: callers ignore it.
int CDibFile::draw(HDC dc, const RECT& place, bool realise) const {
    if (!IsValid())
        return 0;
    int code = dc ? 0 : 1;
    HPALETTE previous = nullptr;
    if (dc && m_hPalette) {
        previous = ::SelectPalette(dc, m_hPalette, TRUE);
        code = previous ? 1 : 0;
        if (realise && ::RealizePalette(dc) == GDI_ERROR)
            code = 2;
    }
    if (dc && !copy_to(dc, place))
        code = 3;
    if (previous)
        ::SelectPalette(dc, previous, TRUE);
    if (code)
        SetLastError(code);
    return code == 0;
}

bool CDibFile::copy_to(HDC dc, const RECT& place) const {
    const int width = header().biWidth;
    const int height = std::abs(header().biHeight);
    const auto [x, y, cx, cy] = place;
    return cx < 1 || cy < 1 ? ::BitBlt(dc, x, y, width, height, m_hDC, 0, 0, SRCCOPY)
                            : ::StretchBlt(dc, x, y, cx, cy, m_hDC, 0, 0, width, height, SRCCOPY);
}

int CDibFile::PrepareOpenGL() {
    if (!IsValid())
        return 0;
    PIXELFORMATDESCRIPTOR format = {};
    format.nSize = sizeof format;
    format.nVersion = 1;
    format.dwFlags = PFD_DRAW_TO_BITMAP | PFD_SUPPORT_OPENGL;
    format.iPixelType = PFD_TYPE_RGBA;
    format.cColorBits = static_cast<BYTE>(header().biBitCount);
    format.cDepthBits = 24;
    format.iLayerType = PFD_MAIN_PLANE;
    const int chosen = ::ChoosePixelFormat(m_hDC, &format);
    ::DescribePixelFormat(m_hDC, chosen, sizeof format, &format);
    // The closest format may have wider pixels, and rendering would then write beyond the section.
    return format.cColorBits <= header().biBitCount && ::SetPixelFormat(m_hDC, chosen, &format);
}
