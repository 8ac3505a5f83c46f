#include "bitmap/wnt_bitmap.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "arithmetic.h"
#include "bitmap/bitmap_format.h"
#include "out/device_state.h"

IMPLEMENT_SERIAL(CWntBitmap, CObject, 1)

namespace {

constexpr int initial_size = 16;
constexpr DWORD opaque = 0xFFFFFFFF;
constexpr int colours = 256;
constexpr std::uint64_t most_callers_colours = 65'536;

wnt::BitmapHeader header_of(const BITMAPINFO* info) {
    return info ? wnt::header_of(reinterpret_cast<const std::uint8_t*>(info)) : wnt::BitmapHeader{};
}

BITMAPINFO* info_of(wnt::HeapBytes block) {
    return reinterpret_cast<BITMAPINFO*>(block.release());
}

// Bytes that may overlap are copied one by one, in this order.
void copy_visible(BYTE* to, const BYTE* from, int count, BYTE transparent) {
    for (int i = 0; i < count; ++i)
        to[i] = from[i] == transparent ? to[i] : from[i];
}

void translate(BYTE* pixels, std::uint64_t count, const std::array<BYTE, colours>& table) {
    std::uint64_t i = 0;
    for (; i + 8 <= count; i += 8) { // eight at a time, since loads and stores of bytes are what takes time
        std::uint64_t eight;
        std::memcpy(&eight, pixels + i, sizeof eight);
        std::uint64_t mapped = 0;
        for (int shift = 0; shift < 64; shift += 8)
            mapped |= std::uint64_t{table[eight >> shift & 0xFF]} << shift;
        std::memcpy(pixels + i, &mapped, sizeof mapped);
    }
    for (; i < count; ++i)
        pixels[i] = table[pixels[i]];
}

} // namespace

CWntBitmap::CWntBitmap() {
    Create(initial_size, initial_size);
}

CWntBitmap::~CWntBitmap() {
    release();
}

void CWntBitmap::release() {
    std::free(m_pBMI);
    if (m_bMyBits)
        std::free(m_pBits);
    m_pBMI = nullptr;
    m_pBits = nullptr;
    m_bits_size = m_bits_given = 0;
}

void CWntBitmap::take(BITMAPINFO* info, BYTE* bits, BOOL own, ULONGLONG size) {
    release();
    m_pBMI = info;
    m_pBits = bits;
    m_bMyBits = own;
    m_bits_size = m_bits_given = size;
}

BOOL CWntBitmap::Create(int width, int height) {
    release();
    m_bMyBits = TRUE;
    if (width < 0 || height < 0)
        return FALSE;
    const std::uint64_t size = std::uint64_t{wnt::storage_width(width)} * static_cast<std::uint64_t>(height);
    if (size > wnt::most_picture_bytes)
        return FALSE;
    wnt::HeapBytes block = wnt::header_block(colours);
    wnt::HeapBytes bits = wnt::zeroed_bytes(size);
    if (!block || !bits)
        return FALSE;
    take(info_of(std::move(block)), bits.release(), TRUE, size);
    m_pBMI->bmiHeader = {sizeof(BITMAPINFOHEADER), width, height, 1, 8, BI_RGB, 0, 0, 0, 0, 0};
    for (int i = 0; i < colours; ++i) {
        const BYTE grey = static_cast<BYTE>(i);
        m_pBMI->bmiColors[i] = {grey, grey, grey, 0};
    }
    return TRUE;
}

BOOL CWntBitmap::Create(BITMAPINFO* info, void* bits) {
    const wnt::BitmapHeader header = header_of(info);
    const std::uint64_t count = std::uint64_t{wnt::colour_masks(header)} + wnt::bitmap_colours(header);
    if (!info || count > most_callers_colours)
        return FALSE;
    wnt::HeapBytes block = wnt::header_block(count);
    if (!block)
        return FALSE;
    std::memcpy(block.get(), info, wnt::info_header_bytes + 4 * count);
    if (m_bMyBits && bits && bits == m_pBits) { // its own pixels under another header stay its own
        std::free(std::exchange(m_pBMI, info_of(std::move(block))));
        return TRUE;
    }
    const std::uint64_t size = bits ? wnt::placed_bytes(header).value_or(0) : 0;
    take(info_of(std::move(block)), static_cast<BYTE*>(bits), FALSE, std::min(size, wnt::most_picture_bytes));
    return TRUE;
}

int CWntBitmap::GetWidth() {
    return header_of(m_pBMI).width;
}

int CWntBitmap::GetHeight() {
    return header_of(m_pBMI).height;
}

void CWntBitmap::GetRect(CRect* rect) {
    if (rect)
        rect->SetRect(0, 0, GetWidth(), GetHeight());
}

UINT CWntBitmap::GetNumClrEntries() const {
    return wnt::bitmap_colours(header_of(m_pBMI));
}

UINT CWntBitmap::StorageWidth() const {
    return wnt::storage_width(header_of(m_pBMI).width);
}

// Bitmaps of fewer bits have shorter rows than those that count here.
ULONGLONG CWntBitmap::stored_bytes() const {
    return m_pBits ? std::min<ULONGLONG>(wnt::storage_bytes(header_of(m_pBMI)), m_bits_size) : 0;
}

void* CWntBitmap::GetBitsAddress() const {
    m_bits_given = m_bits_size;
    return m_pBits;
}

BYTE* CWntBitmap::GetPixelAddress(int x, int y) const {
    const wnt::BitmapHeader header = header_of(m_pBMI);
    if (!m_pBits || x >= header.width || y >= header.height)
        return nullptr;
    m_bits_given = m_bits_size;
    const std::int64_t row = std::int64_t{header.height} - y - 1;
    const auto offset = row * wnt::storage_width(header.width) + x;
    return reinterpret_cast<BYTE*>(reinterpret_cast<std::uintptr_t>(m_pBits) + static_cast<std::uintptr_t>(offset));
}

void CWntBitmap::Draw(CDC* dc, int x, int y) {
    Draw(dc, x, y, GetWidth(), wnt::row_count(GetHeight()));
}

void CWntBitmap::Draw(CDC* dc, int x, int y, int cx, int cy) {
    const wnt::BitmapHeader header = header_of(m_pBMI);
    const auto needed = m_bMyBits ? wnt::drawn_bytes(header) : wnt::placed_bytes(header);
    if (!m_pBits || !needed || *needed == 0 || *needed > m_bits_size)
        return;
    const std::int32_t rows = wnt::row_count(header.height);
    const std::int32_t given = wnt::rows_within(header, {m_pBits, static_cast<std::size_t>(m_bits_given)});
    if (given == rows)
        stretch(dc->GetSafeHdc(), {x, y, cx, cy}, rows, m_pBMI);
    else
        draw_given(dc->GetSafeHdc(), {x, y, cx, cy}, given);
}

// The place is left, top, width and height.
void CWntBitmap::stretch(HDC dc, const RECT& place, int rows, const BITMAPINFO* info) const {
    const auto [x, y, cx, cy] = place;
    ::StretchDIBits(dc, x, y, cx, cy, 0, 0, header_of(m_pBMI).width, rows, m_pBits, info, DIB_RGB_COLORS, SRCCOPY);
}

// A few bytes may promise gigabytes: the rows that a file did not give are painted as the zeros that they are. What run
// lengths leave out is not painted, and they are taken apart for as many rows as the header says.
void CWntBitmap::draw_given(HDC dc, const RECT& place, int given) const {
    const wnt::BitmapHeader header = header_of(m_pBMI);
    const auto [x, y, cx, cy] = place;
    if (!wnt::has_runs(header)) {
        const RGBQUAD zero = header.bits <= 8 ? m_pBMI->bmiColors[0] : RGBQUAD{};
        const wnt::GdiObject<HBRUSH> brush(::CreateSolidBrush(RGB(zero.rgbRed, zero.rgbGreen, zero.rgbBlue)));
        const wnt::SelectGuard selected(dc, brush.get());
        ::PatBlt(dc, x, y, cx, cy, PATCOPY);
    }
    if (given == 0)
        return;
    struct {
        BITMAPINFOHEADER header;
        RGBQUAD colours[wnt::least_colours_held];
    } lower;
    std::memcpy(&lower, m_pBMI, sizeof lower);
    lower.header.biHeight = header.height < 0 ? -given : given;
    const auto height = static_cast<int>(std::int64_t{cy} * given / std::abs(std::int64_t{header.height}));
    const int from = header.height < 0 ? y : wnt::wrapped::add(y, cy - height);
    stretch(dc, {x, from, cx, height}, given, reinterpret_cast<const BITMAPINFO*>(&lower));
}

// The block's last byte lies in its upper row, at its right.
bool CWntBitmap::holds_block(int x, int y, int w, int h) const {
    const wnt::BitmapHeader header = header_of(m_pBMI);
    if (header.width < 1 || header.height < 1 || x < 0 || y < 0 || w > header.width - x || h > header.height - y)
        return false;
    const std::uint64_t row = static_cast<std::uint64_t>(header.height - y - 1);
    return row * wnt::storage_width(header.width) + static_cast<std::uint64_t>(x) + static_cast<std::uint64_t>(w) <=
           stored_bytes();
}

void CWntBitmap::CopyBits(CWntBitmap* destination, int xd, int yd, int w, int h, int xs, int ys, DWORD transparent) {
    if (w < 1 || h < 1 || !destination || !holds_block(xs, ys, w, h) || !destination->holds_block(xd, yd, w, h))
        return;
    const BYTE* from = GetPixelAddress(xs, ys + h - 1);
    BYTE* to = destination->GetPixelAddress(xd, yd + h - 1);
    const std::ptrdiff_t from_row = StorageWidth();
    const std::ptrdiff_t to_row = destination->StorageWidth();
    for (std::ptrdiff_t row = 0; row < h; ++row) {
        if (transparent != opaque)
            copy_visible(to + row * to_row, from + row * from_row, w, static_cast<BYTE>(transparent));
        else
            std::memmove(to + row * to_row, from + row * from_row, w);
    }
}

BOOL CWntBitmap::MapColorsToPalette(CPalette* palette) {
    if (!palette || !palette->GetSafeHandle() || !m_pBMI || wnt::colour_masks(header_of(m_pBMI)))
        return FALSE; // masks are no colours
    std::array<BYTE, colours> nearest;
    for (int i = 0; i < colours; ++i) {
        const RGBQUAD& colour = m_pBMI->bmiColors[i];
        nearest[i] =
            static_cast<BYTE>(palette->GetNearestPaletteIndex(RGB(colour.rgbRed, colour.rgbGreen, colour.rgbBlue)));
    }
    translate(m_pBits, stored_bytes(), nearest);
    m_bits_given = m_bits_size;
    PALETTEENTRY entries[colours];
    const UINT count = palette->GetPaletteEntries(0, colours, entries);
    for (UINT i = 0; i < count; ++i) {
        RGBQUAD& colour = m_pBMI->bmiColors[i];
        colour = {entries[i].peBlue, entries[i].peGreen, entries[i].peRed, colour.rgbReserved};
    }
    m_pBMI->bmiHeader.biClrUsed = colours;
    return TRUE;
}
