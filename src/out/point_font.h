#pragma once

#include <windows.h>

namespace wnt {

/// Vertically, read once for the process; 96 where the screen does not tell.
int screen_dots_per_inch();

/// Makes a font `tenths` tenths of a point high, as the screen's resolution measures them; the caller deletes it.
/// An empty face name gives the system's default face.
HFONT make_point_font(int tenths, const char* face);

/// The same from a full description whose height is read as tenths of a point.
HFONT make_point_font(const LOGFONTA& description);

} // namespace wnt
