#pragma once

#include <cstdint>
#include <optional>

class CDirtyPixelManipulator;

namespace wnt {

/// The end points of a line, both drawn.
struct PixelLine {
    std::int64_t x1, y1, x2, y2;
};

/// The part of a line that lies on a picture; nothing when none does. A slanted line that is left with one column or
/// one row is given up.
std::optional<PixelLine> clip_line(const PixelLine& line, int width, int height);

/// Draws a line into an array of rows without padding, in the writer's current colour: the writer writes the first
/// pixel, whose bytes are then copied along. A size of 0 bytes a pixel draws nothing.
void draw_line(CDirtyPixelManipulator& writer, std::uint8_t* pixels, int width, int height, int pixel_size,
               const PixelLine& line);

} // namespace wnt
