#include "bitmap/wnt_bitmap_palette.h"

#include <algorithm>
#include <climits>
#include <cstdint>

#include "bitmap/log_palette.h"
#include "bitmap/wnt_bitmap.h"
#include "out/device_state.h"

namespace {

constexpr int cells_a_row = 16;
constexpr int most_cells = 256;

// The corner between the cells of so many rows and columns. A rectangle may reach to the ends of the range.
POINT corner(const RECT& rect, int column, int row) {
    const auto between = [](LONG from, LONG to, int step) {
        return static_cast<LONG>(from + (std::int64_t{to} - from) * step / cells_a_row);
    };
    return {between(rect.left, rect.right, column), between(rect.top, rect.bottom, row)};
}

// Cells share their borders.
void draw_cell(HDC dc, const RECT& rect, int index) {
    const int column = index % cells_a_row;
    const int row = index / cells_a_row;
    const POINT first = corner(rect, column, row);
    const POINT last = corner(rect, column + 1, row + 1);
    const wnt::GdiObject<HBRUSH> brush(::CreateSolidBrush(PALETTEINDEX(index)));
    const wnt::SelectGuard filled(dc, brush.get());
    const wnt::SelectGuard framed(dc, ::GetStockObject(BLACK_PEN));
    if (last.x < LONG_MAX && last.y < LONG_MAX)
        ::Rectangle(dc, first.x, first.y, last.x + 1, last.y + 1);
}

} // namespace

BOOL CWntBitmapPalette::replace(LOGPALETTE* colours) {
    HPALETTE made = colours ? ::CreatePalette(colours) : nullptr;
    if (!made)
        return FALSE;
    DeleteObject();
    return Attach(made);
}

BOOL CWntBitmapPalette::Create(CWntBitmap* bitmap) {
    const UINT count = bitmap ? bitmap->GetNumClrEntries() : 0;
    wnt::LogPalette colours(count);
    if (!colours.get())
        return FALSE;
    colours.take(bitmap->GetClrTabAddress());
    return replace(colours.get());
}

int CWntBitmapPalette::GetNumColors() const {
    WORD count = 0;
    return ::GetObject(GetSafeHandle(), sizeof count, &count) ? count : 0;
}

void CWntBitmapPalette::Draw(CDC* dc, const RECT* rect, BOOL background) {
    HPALETTE palette = *this;
    if (!dc || !rect || !palette)
        return;
    HPALETTE previous = ::SelectPalette(*dc, palette, background);
    ::RealizePalette(*dc);
    const int count = std::min(GetNumColors(), most_cells);
    for (int i = 0; i < count; ++i)
        draw_cell(*dc, *rect, i);
    if (previous)
        ::SelectPalette(*dc, previous, FALSE);
}

// Switching the static colours off and on again makes the system forget what other palettes put there. Entries of the
// first half may share equal colours of the system, those of the second half take places of their own.
BOOL CWntBitmapPalette::SetSysPalColors() {
    const wnt::ScreenContext screen;
    const int count = std::min(GetNumColors(), most_cells);
    if (count == 0 || !(::GetDeviceCaps(screen, RASTERCAPS) & RC_PALETTE))
        return FALSE;
    ::SetSystemPaletteUse(screen, SYSPAL_NOSTATIC);
    ::SetSystemPaletteUse(screen, SYSPAL_STATIC);
    HPALETTE previous = ::SelectPalette(screen, *this, FALSE);
    ::RealizePalette(screen);
    ::SelectPalette(screen, previous, FALSE);
    PALETTEENTRY entries[most_cells] = {};
    if (!::GetSystemPaletteEntries(screen, 0, count, entries))
        return FALSE;
    for (int i = 0; i < count; ++i)
        entries[i].peFlags = i < count / 2 ? 0 : PC_NOCOLLAPSE;
    return SetPaletteEntries(0, count, entries) != 0;
}
