#include "controls/tool_picture.h"

#include <algorithm>
#include <cstdlib>

namespace wnt {

namespace {

constexpr Argb opaque = 0xFF000000;

constexpr Argb part(Argb pixel, int shift) {
    return pixel >> shift & 0xFF;
}

constexpr Argb multiplied(Argb pixel) {
    const Argb alpha = pixel >> 24;
    Argb result = alpha << 24;
    for (const int shift : {0, 8, 16})
        result |= (part(pixel, shift) * alpha + 127) / 255 << shift;
    return result;
}

} // namespace

PictureStrip make_strip(std::span<const Argb> pixels, int width, int height, Argb key) {
    PictureStrip strip;
    if (height < 1 || width < height ||
        pixels.size() != static_cast<std::size_t>(width) * static_cast<std::size_t>(height))
        return strip;
    strip.size = height;
    strip.count = width / height;
    const int used = strip.count * height;
    const bool has_opacity = std::any_of(pixels.begin(), pixels.end(), [](Argb p) { return p >> 24; });
    strip.pixels.reserve(static_cast<std::size_t>(used) * static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y)
        for (const Argb pixel : pixels.subspan(static_cast<std::size_t>(y) * static_cast<std::size_t>(width),
                                               static_cast<std::size_t>(used))) {
            if (has_opacity)
                strip.pixels.push_back(multiplied(pixel));
            else
                strip.pixels.push_back((pixel & ~opaque) == (key & ~opaque) ? 0 : pixel | opaque);
        }
    return strip;
}

Argb greyed(Argb pixel) {
    const Argb grey = (part(pixel, 16) * 77 + part(pixel, 8) * 150 + part(pixel, 0) * 29) >> 9;
    return (pixel >> 25) << 24 | grey << 16 | grey << 8 | grey;
}

PictureChoice choose_picture(int small_size, int large_size, int wanted) {
    PictureChoice best;
    for (int which = 0; which < 2; ++which) {
        const int size = which ? large_size : small_size;
        if (size < 1)
            continue;
        const int factor = std::max(wanted / size, 1);
        const int shown = size * factor;
        if (!best.size || std::abs(shown - wanted) < std::abs(best.size - wanted) ||
            (std::abs(shown - wanted) == std::abs(best.size - wanted) && (shown > best.size || factor < best.factor)))
            best = {which, factor, shown};
    }
    return best;
}

} // namespace wnt
