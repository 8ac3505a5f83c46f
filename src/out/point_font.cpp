#include "out/point_font.h"

#include <cstdlib>

namespace {

int screen_resolution() {
    static const int dots_per_inch = [] {
        HDC screen = ::GetDC(nullptr);
        const int dots = ::GetDeviceCaps(screen, LOGPIXELSY);
        ::ReleaseDC(nullptr, screen);
        return dots;
    }();
    return dots_per_inch;
}

} // namespace

HFONT wnt::make_point_font(const LOGFONTA& description) {
    LOGFONTA pixels = description;
    pixels.lfHeight = -std::abs(::MulDiv(screen_resolution(), description.lfHeight, 720));
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
