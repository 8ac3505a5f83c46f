#include "out/point_font.h"

#include <algorithm>
#include <cstdlib>

#include "out/device_state.h"

namespace {

constexpr int highest_font = 4096; // pixels: enough for any label, and still made at once

} // namespace

int wnt::screen_dots_per_inch() {
    static const int dots_per_inch = ::GetDeviceCaps(ScreenContext(), LOGPIXELSY);
    return dots_per_inch ? dots_per_inch : USER_DEFAULT_SCREEN_DPI;
}

HFONT wnt::make_point_font(const LOGFONTA& description) {
    LOGFONTA pixels = description;
    const int height = ::MulDiv(screen_dots_per_inch(), description.lfHeight, 720);
    pixels.lfHeight = -std::min(std::abs(height), highest_font);
    return ::CreateFontIndirectA(&pixels);
}

HFONT wnt::make_point_font(int tenths, const char* face) {
    LOGFONTA description = {};
    description.lfHeight = tenths;
    description.lfCharSet = DEFAULT_CHARSET;
    if (face)
        ::lstrcpynA(description.lfFaceName, face, LF_FACESIZE);
    return make_point_font(description);
}
