#include "bitmap/pixel_line.h"

#include "bitmap/pixel_manipulators.h"

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace wnt {

namespace {

// One coordinate runs along the side that is clipped, the other one follows by the slope.
struct End {
    std::int64_t along, across;
};

// `first` is the end with the smaller coordinate. False when less than two places are left.
bool clip_ends(End& first, End& last, std::int64_t side) {
    if (last.along < 0 || first.along >= side)
        return false;
    const double slope =
        static_cast<double>(last.across - first.across) / static_cast<double>(last.along - first.along);
    const auto move = [slope](End& end, std::int64_t to) {
        end.across += static_cast<std::int64_t>(slope * static_cast<double>(to - end.along));
        end.along = to;
    };
    if (last.along >= side)
        move(last, side - 1);
    if (first.along < 0)
        move(first, 0);
    return last.along - first.along >= 1;
}

std::optional<PixelLine> clip_slanted(PixelLine line, int width, int height) {
    End left = {line.x1, line.y1};
    End right = {line.x2, line.y2};
    if (left.along > right.along)
        std::swap(left, right);
    if (!clip_ends(left, right, width))
        return std::nullopt;
    End low = {left.across, left.along};
    End high = {right.across, right.along};
    if (low.along > high.along)
        std::swap(low, high);
    if (low.along == high.along || !clip_ends(low, high, height))
        return std::nullopt;
    return PixelLine{low.across, low.along, high.across, high.along};
}

// Both ends kept on the picture, where the other coordinate is.
std::optional<PixelLine> clip_straight(const PixelLine& line, int width, int height) {
    const PixelLine kept = {std::max<std::int64_t>(std::min(line.x1, line.x2), 0),
                            std::max<std::int64_t>(std::min(line.y1, line.y2), 0),
                            std::min<std::int64_t>(std::max(line.x1, line.x2), width - 1),
                            std::min<std::int64_t>(std::max(line.y1, line.y2), height - 1)};
    return kept.x1 <= kept.x2 && kept.y1 <= kept.y2 ? std::optional(kept) : std::nullopt;
}

// Copies the first pixel onto those behind it, in pieces that double.
void copy_run(std::uint8_t* first, std::size_t size, std::size_t count) {
    if (size == 1) {
        std::memset(first, *first, count);
        return;
    }
    const std::size_t total = size * count;
    for (std::size_t done = size, piece = 0; done < total; done += piece) {
        piece = std::min(done, total - done);
        std::memcpy(first + done, first, piece);
    }
}

template <std::size_t size> void copy_steps(std::uint8_t* first, std::int64_t width, const PixelLine& line) {
    const std::int64_t columns = std::abs(line.x2 - line.x1);
    const std::int64_t rows = line.y2 - line.y1;
    const std::int64_t x_step = line.x2 < line.x1 ? -1 : 1;
    const bool flat = columns >= rows;
    const std::int64_t longer = flat ? columns : rows;
    const std::int64_t shorter = flat ? rows : columns;
    const std::ptrdiff_t major_step = (flat ? x_step : width) * static_cast<std::ptrdiff_t>(size);
    const std::ptrdiff_t both_steps = (x_step + width) * static_cast<std::ptrdiff_t>(size);
    std::uint8_t pixel[size];
    std::memcpy(pixel, first, size);
    std::int64_t error = 2 * shorter - longer;
    std::ptrdiff_t at = 0;
    for (std::int64_t i = 0; i <= longer; ++i) {
        std::memcpy(first + at, pixel, size);
        at += error > 0 ? both_steps : major_step;
        error += 2 * shorter - (error > 0 ? 2 * longer : 0);
    }
}

} // namespace

std::optional<PixelLine> clip_line(const PixelLine& line, int width, int height) {
    return line.x1 == line.x2 || line.y1 == line.y2 ? clip_straight(line, width, height)
                                                    : clip_slanted(line, width, height);
}

void draw_line(CDirtyPixelManipulator& writer, std::uint8_t* pixels, int width, int height, int pixel_size,
               const PixelLine& line) {
    if (pixel_size == 0 || width < 1)
        return;
    const auto kept = clip_line(line, width, std::min(height, INT_MAX / width)); // the rows that the writer reaches
    if (!kept)
        return;
    const std::int64_t start = kept->y1 * width + kept->x1;
    std::uint8_t* first = pixels + start * pixel_size;
    writer.SetPixel(static_cast<int>(kept->x1), static_cast<int>(kept->y1));
    if (kept->y1 == kept->y2)
        copy_run(first, static_cast<std::size_t>(pixel_size), static_cast<std::size_t>(kept->x2 - kept->x1 + 1));
    else if (pixel_size == 1)
        copy_steps<1>(first, width, *kept);
    else if (pixel_size == 2)
        copy_steps<2>(first, width, *kept);
    else
        copy_steps<3>(first, width, *kept);
}

} // namespace wnt
