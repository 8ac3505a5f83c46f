#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace wnt {

/// Pixels as 0xAARRGGBB, colours multiplied by their opacity; upper row first.
using Argb = std::uint32_t;

/// Square pictures side by side.
struct PictureStrip {
    int size = 0;
    int count = 0;
    std::vector<Argb> pixels; ///< count x size wide, size high

    Argb at(int picture, int x, int y) const {
        return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(count * size) +
                      static_cast<std::size_t>(picture * size + x)];
    }
};

/// Makes a strip of a bitmap's pixels (0x??RRGGBB): pictures as wide as it is high. Where any pixel has an opacity, it
/// counts; otherwise pixels of the key colour are transparent. The strip is empty for less than one picture.
PictureStrip make_strip(std::span<const Argb> pixels, int width, int height, Argb key);

/// What a disabled item shows: shades of grey, half as opaque.
Argb greyed(Argb pixel);

/// The size to show out of two (0: there is none), and how many pixels wide each of its pixels is drawn: as near as it
/// gets to the wanted one, the larger of two that are as near.
struct PictureChoice {
    int which = 0;
    int factor = 1;
    int size = 0; ///< as shown
};
PictureChoice choose_picture(int small_size, int large_size, int wanted);

} // namespace wnt
