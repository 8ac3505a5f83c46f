#pragma once

#include <cstddef>
#include <cstdint>

/// Everything that configures a button, read and written as a whole. Applications keep such blocks: the layout, with
/// natural alignment, is fixed. Colours are indexes into the surface's palette.
struct Tcbtn_properties {
    std::int32_t type;         ///< look and feel: 0 MOTIF, 1 MSWIN, 2 MAC, -1 unknown; changes no drawing
    char id[20];               ///< not necessarily terminated
    char title[50];            ///< terminated when it fits
    std::uint8_t titlestyle;   ///< 0 plain, 1 inset, 2 outset, 3 bold; others are drawn plain
    std::uint8_t fixed;        ///< no reaction to the mouse
    std::uint8_t underline;    ///< a line under the title
    std::uint8_t frame;        ///< a one-pixel frame round the whole button
    std::uint8_t visible;      ///< draw anything at all
    std::uint8_t wordwrap;     ///< kept only
    std::uint8_t align;        ///< 0 to 10: bottom, top, centre x 4 + left, right, centre
    std::int32_t bordertype;   ///< 0 none, 1 flat, 2 raised, 3 sunk
    std::int32_t borderstyle;  ///< sides: 1 left, 2 right, 4 top, 8 bottom
    std::int32_t borderheight; ///< pixels
    std::int32_t clrback;      ///< palette index, like the others
    std::int32_t clrtext;      ///< title and its line
    std::int32_t clrsun;       ///< the lit edges
    std::int32_t clrshadow;    ///< the edges in the shadow
    std::int32_t clrborder;    ///< frame and flat border
};

static_assert(sizeof(Tcbtn_properties) == 116);
static_assert(offsetof(Tcbtn_properties, title) == 24 && offsetof(Tcbtn_properties, align) == 80 &&
              offsetof(Tcbtn_properties, bordertype) == 84 && offsetof(Tcbtn_properties, clrborder) == 112);
