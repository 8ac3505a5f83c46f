#include "widgets/painting/shape_raster.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <utility>

namespace wnt {

namespace {

std::uint32_t pixel_of(Colour colour) {
    return (colour & 0xFF) << 16 | (colour & 0xFF00) | (colour >> 16 & 0xFF);
}

// Halves go away from 0.
int nearest(float v) {
    constexpr float far = 1 << 28; // beyond any canvas
    v = std::clamp(v, -far, far);
    const int whole = static_cast<int>(v);
    const float rest = v - static_cast<float>(whole);
    return whole + (rest >= 0.5f) - (rest <= -0.5f);
}

// For each set of four neighbours, as bits, which of their values it takes.
constexpr auto chosen = [] {
    std::array<std::array<std::uint32_t, 4>, 16> table{};
    for (unsigned set = 0; set < 16; ++set)
        for (unsigned i = 0; i < 4; ++i)
            table[set][i] = set >> i & 1 ? 0xFFFFFFFFu : 0;
    return table;
}();

// The mean of a pixel's subpixels, each channel rounded to the nearest; of subpixels of one colour, that colour.
template <unsigned count> std::uint32_t average(const std::uint32_t* subpixels) {
    constexpr std::uint32_t lanes = 0x00FF00FF; // two of four bytes, each with room for the sum of 16
    constexpr std::uint32_t half = count / 2 * 0x00010001u;
    constexpr int shift = std::countr_zero(count);
    std::uint32_t even = 0;
    std::uint32_t odd = 0;
    for (unsigned i = 0; i < count; ++i) {
        even += subpixels[i] & lanes;
        odd += subpixels[i] >> 8 & lanes;
    }
    return ((even + half) >> shift & lanes) | ((odd + half) >> shift & lanes) << 8;
}

// Dividing 64 bits takes several times as long as dividing 32, which most edges fit.
std::int64_t quotient(std::int64_t numerator, std::int64_t denominator) {
    if (numerator == static_cast<std::int32_t>(numerator) && denominator == static_cast<std::int32_t>(denominator))
        return static_cast<std::int32_t>(numerator) / static_cast<std::int32_t>(denominator);
    return numerator / denominator;
}

// A quotient rounded up, kept up to date while its numerator grows by equal steps; the denominator is positive.
class RisingQuotient {
public:
    RisingQuotient(std::int64_t numerator, std::int64_t denominator, std::int64_t step)
        : denominator_(denominator), whole_(quotient(step, denominator)), part_(step - whole_ * denominator),
          value_(quotient(numerator, denominator)), rest_(value_ * denominator - numerator) {
        if (rest_ < 0) {
            ++value_;
            rest_ += denominator;
        }
    }
    int value() const { return static_cast<int>(value_); }
    /// The quotient rounded to the nearest, halves down.
    int nearest() const { return static_cast<int>(value_ - (2 * rest_ >= denominator_)); }
    void advance() {
        value_ += whole_;
        rest_ -= part_;
        if (rest_ < 0) {
            ++value_;
            rest_ += denominator_;
        } else if (rest_ >= denominator_) {
            --value_;
            rest_ -= denominator_;
        }
    }

private:
    std::int64_t denominator_;
    std::int64_t whole_, part_; // of a step
    std::int64_t value_;
    std::int64_t rest_; // value * denominator - numerator, from 0 to below the denominator
};

} // namespace

void ShapeRaster::begin(const Canvas& canvas, const CanvasArea& area, int scale) {
    canvas_ = canvas;
    area_ = area;
    shift_ = std::countr_zero(static_cast<unsigned>(scale));
    parted_.assign(static_cast<std::size_t>(area.right - area.left) * static_cast<std::size_t>(area.bottom - area.top),
                   0);
    blocks_.clear();
    places_.clear();
}

// Takes the part of a shape's bounds, in subpixels, that lies in the area; false where there is none.
bool ShapeRaster::reach(int left, int top, int right, int bottom) {
    const int up = (1 << shift_) - 1;
    reach_ = {std::max(left >> shift_, area_.left), std::max(top >> shift_, area_.top),
              std::min((right + up) >> shift_, area_.right), std::min((bottom + up) >> shift_, area_.bottom)};
    rows_ = {std::max(top, area_.top << shift_), std::min(bottom, area_.bottom << shift_)};
    if (reach_.left >= reach_.right || reach_.top >= reach_.bottom)
        return false;
    const auto pixels =
        static_cast<std::size_t>(reach_.right - reach_.left) * static_cast<std::size_t>(reach_.bottom - reach_.top);
    if (masks_.size() < pixels)
        masks_.resize(pixels);
    touched_.assign(static_cast<std::size_t>(reach_.bottom - reach_.top), {reach_.right - reach_.left, 0});
    return true;
}

// Marks the subpixels of a row from `from` to below `to`.
void ShapeRaster::cover(int y, int from, int to) {
    from = std::max(from, reach_.left << shift_);
    to = std::min(to, reach_.right << shift_);
    if (from >= to)
        return;
    const int scale = 1 << shift_;
    const unsigned whole = (1u << scale) - 1;
    const int row_shift = (y & (scale - 1)) << shift_;
    const auto line = static_cast<std::size_t>((y >> shift_) - reach_.top);
    std::uint16_t* row = masks_.data() + line * static_cast<std::size_t>(reach_.right - reach_.left);
    const int first = (from >> shift_) - reach_.left;
    const int last = ((to - 1) >> shift_) - reach_.left;
    touched_[line] = {std::min(touched_[line].first, first), std::max(touched_[line].end, last + 1)};
    const unsigned first_bits = whole << (from & (scale - 1)) & whole;
    const unsigned last_bits = whole >> (scale - 1 - ((to - 1) & (scale - 1)));
    if (first == last) {
        row[first] |= static_cast<std::uint16_t>((first_bits & last_bits) << row_shift);
        return;
    }
    row[first] |= static_cast<std::uint16_t>(first_bits << row_shift);
    const auto middle = static_cast<std::uint16_t>(whole << row_shift);
    for (int x = first + 1; x < last; ++x)
        row[x] |= middle;
    row[last] |= static_cast<std::uint16_t>(last_bits << row_shift);
}

void ShapeRaster::box(const BoxF& box, Colour colour) {
    if (box.empty())
        return;
    const auto k = static_cast<float>(1 << shift_);
    const int left = nearest(box.left * k);
    const int right = std::max(nearest(box.right * k), left + 1);
    const int low = nearest(box.bottom * k);
    const int high = std::max(nearest(box.top * k), low + 1);
    const int ground = canvas_.height << shift_;
    if (!reach(left, ground - high, right, ground - low))
        return;
    // Pixels that lie within it are simply filled.
    const int up = (1 << shift_) - 1;
    const CanvasArea inner = {
        std::max((left + up) >> shift_, reach_.left), std::max((ground - high + up) >> shift_, reach_.top),
        std::min(right >> shift_, reach_.right), std::min((ground - low) >> shift_, reach_.bottom)};
    const bool hollow = inner.left < inner.right;
    for (int y = rows_.first; y < rows_.end; ++y) {
        const bool within = hollow && inner.top <= y >> shift_ && y >> shift_ < inner.bottom;
        cover(y, left, within ? inner.left << shift_ : right);
        if (within)
            cover(y, inner.right << shift_, right);
    }
    apply(colour);
    for (int y = inner.top; y < inner.bottom && hollow; ++y)
        fill(inner.left, y, inner.right - inner.left, pixel_of(colour));
}

// Whole pixels of a row.
void ShapeRaster::fill(int x, int y, int count, std::uint32_t colour) {
    std::fill_n(canvas_.pixels + static_cast<std::size_t>(y) * canvas_.width + x, count, colour);
    std::fill_n(parted_.data() + place_of(x, y), count, 0u);
}

std::size_t ShapeRaster::place_of(int x, int y) const {
    return static_cast<std::size_t>(y - area_.top) * static_cast<std::size_t>(area_.right - area_.left) +
           static_cast<std::size_t>(x - area_.left);
}

void ShapeRaster::polygon(const PointF* points, int count, Colour colour) {
    const auto k = static_cast<float>(1 << shift_);
    const int ground = (canvas_.height << shift_) - 1;
    corners_.clear();
    for (int i = 0; i < count; ++i)
        corners_.push_back({nearest(points[i].x * k), ground - nearest(points[i].y * k)});
    const auto [left, right] = std::ranges::minmax(corners_, {}, &Point::x);
    const auto [top, bottom] = std::ranges::minmax(corners_, {}, &Point::y);
    if (!reach(left.x, top.y, right.x + 1, bottom.y + 1))
        return;
    count_crossings();
    for (std::size_t i = 0; i < corners_.size(); ++i) {
        Point a = corners_[i];
        Point b = corners_[i + 1 < corners_.size() ? i + 1 : 0];
        if (a.y > b.y)
            std::swap(a, b);
        if (a.y == b.y)
            cover_level(a, b);
        else if (std::abs(b.x - a.x) <= b.y - a.y)
            walk_steep(a, b);
        else
            walk_flat(a, b);
    }
    fill_between_crossings();
    apply(colour);
}

// Counts the crossings of edges and rows, and gives each row its place among them.
void ShapeRaster::count_crossings() {
    const auto rows = static_cast<std::size_t>(rows_.end - rows_.first);
    ends_.assign(rows + 1, 0);
    for (std::size_t i = 0; i < corners_.size(); ++i) {
        const int a = corners_[i].y;
        const int b = corners_[i + 1 < corners_.size() ? i + 1 : 0].y;
        const int from = std::max(std::min(a, b), rows_.first);
        const int to = std::min(std::max(a, b), rows_.end);
        if (from < to) {
            ++ends_[static_cast<std::size_t>(from - rows_.first)];
            --ends_[static_cast<std::size_t>(to - rows_.first)];
        }
    }
    int open = 0;
    int total = 0;
    for (int& end : ends_) {
        open += end;
        end = total; // the row's crossings move it on
        total += open;
    }
    crossings_.resize(static_cast<std::size_t>(total));
}

// An edge within a row. One of no length is no edge.
void ShapeRaster::cover_level(const Point& a, const Point& b) {
    if (a.x != b.x && a.y >= rows_.first && a.y < rows_.end)
        cover(a.y, std::min(a.x, b.x), std::max(a.x, b.x) + 1);
}

// What lies inside begins or ends, in every row but the edge's last one, at the first subpixel right of the edge; the
// outline's subpixels about it belong to it, too. In the last row there is the outline alone.
void ShapeRaster::cross(int y, const Point& lower, const Crossing& crossing) {
    if (y == lower.y)
        cover(y, crossing.from, crossing.to);
    else
        crossings_[static_cast<std::size_t>(ends_[static_cast<std::size_t>(y - rows_.first)]++)] = crossing;
}

// An edge of at least as many rows as columns: its outline is one subpixel a row. Halves go left.
void ShapeRaster::walk_steep(const Point& upper, const Point& lower) {
    const std::int64_t dx = lower.x - upper.x;
    const int first = std::max(upper.y, rows_.first);
    const int last = std::min(lower.y, rows_.end - 1);
    RisingQuotient crossing(dx * (first - upper.y), lower.y - upper.y, dx);
    for (int y = first; y <= last; ++y, crossing.advance()) {
        const int outline = upper.x + crossing.nearest();
        const int x = upper.x + crossing.value();
        cross(y, lower, {x, outline, std::max(outline + 1, x)});
    }
}

// An edge of more columns than rows: its outline is a run of subpixels in each row. Halves go up.
void ShapeRaster::walk_flat(const Point& upper, const Point& lower) {
    const std::int64_t dx = std::abs(lower.x - upper.x);
    const std::int64_t dy = lower.y - upper.y;
    const bool falls = upper.x < lower.x; // from left to right
    const int first = std::max(upper.y, rows_.first);
    const int last = std::min(lower.y, rows_.end - 1);
    const int left = std::min(upper.x, lower.x);
    const int right = std::max(upper.x, lower.x);
    const std::int64_t down = first - upper.y;
    RisingQuotient crossing((falls ? down : dy - down) * dx, dy, falls ? dx : -dx);
    // The bound between this row's run and the next one's; the run before is kept from row to row.
    RisingQuotient bound(falls ? (2 * down + 1) * dx + 1 : (2 * (dy - down) - 1) * dx, 2 * dy,
                         falls ? 2 * dx : -2 * dx);
    RisingQuotient before(falls ? (2 * down - 1) * dx + 1 : (2 * (dy - down) + 1) * dx, 2 * dy, 0);
    int previous = before.value();
    for (int y = first; y <= last; ++y, crossing.advance(), bound.advance()) {
        const int from = left + (falls ? previous : bound.value());
        const int to = left + (falls ? bound.value() : previous);
        cross(y, lower, {left + crossing.value(), std::max(from, left), std::min(to, right + 1)});
        previous = bound.value();
    }
}

// A row lies inside from every odd crossing to the even one that follows.
void ShapeRaster::fill_between_crossings() {
    int first = 0;
    for (int y = rows_.first; y < rows_.end; ++y) {
        const int end = ends_[static_cast<std::size_t>(y - rows_.first)];
        if (end - first > 2)
            std::sort(crossings_.begin() + first, crossings_.begin() + end,
                      [](const Crossing& a, const Crossing& b) { return a.x < b.x; });
        for (int i = first; i + 1 < end; i += 2) {
            const Crossing& a = crossings_[static_cast<std::size_t>(i)];
            const Crossing& b = crossings_[static_cast<std::size_t>(i) + 1];
            cover(y, std::min(a.from, b.from), std::max(a.to, b.to));
        }
        first = end;
    }
}

// Puts the colour where the masks say, and clears them.
void ShapeRaster::apply(Colour colour) {
    const std::uint32_t value = pixel_of(colour);
    const unsigned whole = (1u << (1 << 2 * shift_)) - 1;
    const int width = reach_.right - reach_.left;
    for (int y = reach_.top; y < reach_.bottom; ++y) {
        const auto line = static_cast<std::size_t>(y - reach_.top);
        const auto [from, to] = touched_[line];
        if (from >= to)
            continue;
        std::uint16_t* masks = masks_.data() + line * width;
        for (int x = from; x < to; ++x) {
            if (masks[x] == whole) {
                const auto end = std::find_if(masks + x, masks + to, [=](unsigned m) { return m != whole; });
                fill(reach_.left + x, y, static_cast<int>(end - (masks + x)), value);
                x = static_cast<int>(end - masks) - 1;
            } else if (masks[x]) {
                take_apart(reach_.left + x, y, masks[x], value);
            }
        }
        std::fill(masks + from, masks + to, std::uint16_t{0});
    }
}

void ShapeRaster::take_apart(int x, int y, unsigned mask, std::uint32_t colour) {
    std::uint32_t& number = parted_[place_of(x, y)];
    if (!number) {
        blocks_.emplace_back().fill(canvas_.pixels[static_cast<std::size_t>(y) * canvas_.width + x]);
        places_.push_back(static_cast<std::uint32_t>(place_of(x, y)));
        number = static_cast<std::uint32_t>(blocks_.size());
    }
    Block& block = blocks_[number - 1];
    for (std::size_t i = 0; i < block.size(); i += 4) {
        const auto& taken = chosen[mask >> i & 15];
        for (std::size_t k = 0; k < 4; ++k)
            block[i + k] ^= (block[i + k] ^ colour) & taken[k];
    }
}

void ShapeRaster::finish() {
    const auto width = static_cast<std::size_t>(area_.right - area_.left);
    for (std::size_t i = 0; i < blocks_.size(); ++i) {
        const std::size_t place = places_[i];
        if (parted_[place] != i + 1) // covered whole later
            continue;
        std::uint32_t* row = canvas_.pixels + (place / width + area_.top) * canvas_.width;
        row[area_.left + place % width] = shift_ == 2 ? average<16>(blocks_[i].data()) : average<4>(blocks_[i].data());
    }
}

} // namespace wnt
