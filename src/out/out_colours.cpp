#include "out/wnt_out.h"

#include "script/colours.h"

namespace {

constexpr int pen_styles[8] = {PS_SOLID, PS_SOLID, PS_DOT, PS_DASH, PS_DASHDOT, PS_DOT, PS_DASH, PS_DASHDOTDOT};
constexpr int hatch_styles[8] = {-1, -1, HS_VERTICAL, HS_HORIZONTAL, HS_DIAGCROSS, HS_DIAGCROSS, HS_CROSS, HS_CROSS};

COLORREF built_in_colour(int i) {
    return wnt::colour_values[i >= 0 && i < wnt::colour_count ? i : 0];
}

} // namespace

COLORREF CWntOut::rgbcolor(int i) {
    return built_in_colour(i);
}

void CWntOut::setcolorpalette(COLORREF* table, int count) {
    if (!this)
        return;
    palette = table;
    palettecount = table && count > 0 ? count : 0;
}

int CWntOut::getcolorpalette(COLORREF** out) {
    if (!this)
        return 0;
    if (out)
        *out = palette;
    return palettecount;
}

COLORREF CWntOut::palette_colour(int index) const {
    if (!palette || palettecount <= 0)
        return built_in_colour(index);
    const int entry = index % palettecount;
    return palette[entry > 0 ? entry : 0];
}

void CWntOut::linecolour(int index, int style) {
    if (this)
        linecolour(palette_colour(index), style);
}

void CWntOut::linecolour(COLORREF colour, int style) {
    if (!ready() || colour == linecolour_)
        return;
    const int pen_style = style >= 0 && style < 8 ? pen_styles[style] : PS_SOLID;
    pen = ::CreatePen(pen_style, 1, colour);
    if (pen) {
        select_made(pen, &Selection::pen, &Selection::foreign_pen);
        ::SetTextColor(dc, colour);
    }
    linecolour_ = colour;
}

void CWntOut::fillcolour(int index, int style) {
    if (this)
        fillcolour(palette_colour(index), style);
}

void CWntOut::fillcolour(COLORREF colour, int style) {
    if (!this || colour == fillcolour_) // intended: a change of style alone is ignored
        return;
    const int hatch = style >= 0 && style < 8 ? hatch_styles[style] : -1;
    brush = hatch < 0 ? ::CreateSolidBrush(colour) : ::CreateHatchBrush(hatch, colour);
    if (brush)
        select_made(brush, &Selection::brush, &Selection::foreign_brush);
    fillcolour_ = colour;
}
