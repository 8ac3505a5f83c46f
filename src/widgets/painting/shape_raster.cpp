#include "widgets/painting/shape_raster.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <utility>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#endif

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

#if defined(__SSE2__) || defined(_M_X64)
// The hot case in four loads.
template <> std::uint32_t average<16>(const std::uint32_t* subpixels) {
    const __m128i zero = _mm_setzero_si128();
    __m128i sum = zero; // four channels, twice
    for (int row = 0; row < 4; ++row) {
        const __m128i four = _mm_loadu_si128(reinterpret_cast<const __m128i*>(subpixels + 4 * row));
        sum = _mm_add_epi16(sum, _mm_add_epi16(_mm_unpacklo_epi8(four, zero), _mm_unpackhi_epi8(four, zero)));
    }
    sum = _mm_add_epi16(sum, _mm_shuffle_epi32(sum, _MM_SHUFFLE(1, 0, 3, 2)));
    sum = _mm_srli_epi16(_mm_add_epi16(sum, _mm_set1_epi16(8)), 4);
    return static_cast<std::uint32_t>(_mm_cvtsi128_si32(_mm_packus_epi16(sum, zero)));
}
#endif

// Paints what lies in the runs within one pixel's block of subpixels, `x` being its first column.
template <int shift> class SubpixelRuns {
public:
    template <class Runs> SubpixelRuns(const Runs& runs, std::uint32_t colour) : colour_(colour) {
        for (int i = 0; i < scale; ++i) {
            first_[i] = runs[static_cast<std::size_t>(i)].first;
            end_[i] = runs[static_cast<std::size_t>(i)].end;
        }
    }
    void paint(std::uint32_t* block, int x) const {
        for (int i = 0; i < scale; ++i)
            for (int k = 0; k < scale; ++k, ++block)
                *block = x + k >= first_[i] && x + k < end_[i] ? colour_ : *block;
    }

private:
    static constexpr int scale = 1 << shift;
    int first_[scale], end_[scale];
    std::uint32_t colour_;
};

#if defined(__SSE2__) || defined(_M_X64)
// The hot case, a row of four at once.
template <> class SubpixelRuns<2> {
public:
    template <class Runs>
    SubpixelRuns(const Runs& runs, std::uint32_t colour) : colour_(_mm_set1_epi32(static_cast<int>(colour))) {
        for (std::size_t i = 0; i < 4; ++i) {
            before_[i] = _mm_set1_epi32(runs[i].first - 1);
            end_[i] = _mm_set1_epi32(runs[i].end);
        }
    }
    void paint(std::uint32_t* block, int x) const {
        const __m128i columns = _mm_add_epi32(_mm_set1_epi32(x), _mm_setr_epi32(0, 1, 2, 3));
        for (int i = 0; i < 4; ++i) {
            auto* row = reinterpret_cast<__m128i*>(block + 4 * i);
            const __m128i inside =
                _mm_and_si128(_mm_cmpgt_epi32(columns, before_[i]), _mm_cmpgt_epi32(end_[i], columns));
            const __m128i four = _mm_loadu_si128(row);
            _mm_storeu_si128(row, _mm_xor_si128(four, _mm_and_si128(inside, _mm_xor_si128(four, colour_))));
        }
    }

private:
    __m128i before_[4], end_[4];
    __m128i colour_;
};
#endif

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
        if (part_ < 0) {
            --whole_;
            part_ += denominator;
        }
        if (rest_ < 0) {
            ++value_;
            rest_ += denominator;
        }
    }
    int value() const { return static_cast<int>(value_); }
    /// The quotient rounded to the nearest, halves down.
    int nearest() const { return static_cast<int>(value_ - (2 * rest_ >= denominator_)); }
    // Which way the rest goes is as good as chance: no branch.
    void advance() {
        rest_ -= part_;
        const std::int64_t below = rest_ >> 63; // 0 or -1
        rest_ += denominator_ & below;
        value_ += whole_ - below;
    }

private:
    std::int64_t denominator_;
    std::int64_t whole_, part_; // of a step, the part from 0 to below the denominator
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
    return reach_.left < reach_.right && reach_.top < reach_.bottom;
}

inline std::size_t ShapeRaster::place_of(int x, int y) const {
    return static_cast<std::size_t>(y - area_.top) * static_cast<std::size_t>(area_.right - area_.left) +
           static_cast<std::size_t>(x - area_.left);
}

// Gives a pixel a block of its own; answers its number.
std::uint32_t ShapeRaster::add_block(std::size_t place, std::uint32_t* pixel) {
    blocks_.emplace_back().fill(*pixel);
    places_.push_back({place, pixel});
    return static_cast<std::uint32_t>(blocks_.size());
}

// Paints one run of subpixels in each row of a row of pixels; a run may be empty.
void ShapeRaster::cover(int y, const Runs& runs) {
    shift_ == 2 ? cover_scaled<2>(y, runs) : shift_ == 1 ? cover_scaled<1>(y, runs) : cover_scaled<0>(y, runs);
}

template <int shift> void ShapeRaster::cover_scaled(int y, Runs runs) {
    constexpr int scale = 1 << shift;
    const int low = reach_.left << shift;
    const int high = reach_.right << shift;
    Range outer = {high, low};
    Range inner = {low, high}; // within all of the runs
    for (int i = 0; i < scale; ++i) {
        Range& run = runs[static_cast<std::size_t>(i)];
        run = {std::max(run.first, low), std::min(run.end, high)};
        if (run.first >= run.end)
            run = {low, low};
        else
            outer = {std::min(outer.first, run.first), std::max(outer.end, run.end)};
        inner = {std::max(inner.first, run.first), std::min(inner.end, run.end)};
    }
    if (outer.first >= outer.end)
        return;
    const Range touched = {outer.first >> shift, (outer.end + scale - 1) >> shift};
    const Range whole = {(inner.first + scale - 1) >> shift, inner.end >> shift};
    if (whole.first >= whole.end)
        return take_apart<shift>(touched, y, runs);
    take_apart<shift>({touched.first, whole.first}, y, runs);
    fill(whole.first, y, whole.end - whole.first);
    take_apart<shift>({whole.end, touched.end}, y, runs);
}

// The pixels of a row that are covered in part.
template <int shift> void ShapeRaster::take_apart(Range pixels, int y, const Runs& runs) {
    const SubpixelRuns<shift> covered(runs, colour_);
    std::size_t place = place_of(pixels.first, y);
    std::uint32_t* pixel = canvas_.pixels + static_cast<std::size_t>(y) * canvas_.width + pixels.first;
    for (int x = pixels.first; x < pixels.end; ++x, ++place, ++pixel) {
        std::uint32_t number = parted_[place];
        if (!number)
            parted_[place] = number = add_block(place, pixel);
        covered.paint(blocks_[number - 1].data(), x << shift);
    }
}

void ShapeRaster::cover_row(int row, Range run) {
    Runs runs{};
    runs[static_cast<std::size_t>(row & ((1 << shift_) - 1))] = run;
    cover(row >> shift_, runs);
}

// Whole pixels of a row.
void ShapeRaster::fill(int x, int y, int count) {
    std::fill_n(canvas_.pixels + static_cast<std::size_t>(y) * canvas_.width + x, count, colour_);
    std::fill_n(parted_.data() + place_of(x, y), count, 0u);
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
    colour_ = pixel_of(colour);
    for (int y = reach_.top; y < reach_.bottom; ++y) {
        Runs runs{};
        for (int i = std::max(y << shift_, rows_.first); i < std::min((y + 1) << shift_, rows_.end); ++i)
            runs[static_cast<std::size_t>(i - (y << shift_))] = {left, right};
        cover(y, runs);
    }
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
    colour_ = pixel_of(colour);
    if (goes_down_and_up_once()) {
        spans_.assign(static_cast<std::size_t>(rows_.end - rows_.first), {right.x + 1, left.x});
        walk_edges([this](int y, bool, const Crossing& crossing) {
            Range& span = spans_[static_cast<std::size_t>(y - rows_.first)];
            span = {std::min(span.first, crossing.from), std::max(span.end, crossing.to)};
        });
        fill_spans();
    } else {
        count_crossings();
        walk_edges([this](int y, bool last, const Crossing& crossing) { cross(y, last, crossing); });
        fill_between_crossings();
    }
}

// True where every row is one run, as those of all convex shapes are.
bool ShapeRaster::goes_down_and_up_once() const {
    int turns = 0;
    int before = 0;
    int first = 0;
    for (std::size_t i = 0; i < corners_.size(); ++i) {
        const int fall = corners_[i + 1 < corners_.size() ? i + 1 : 0].y - corners_[i].y;
        const int way = (fall > 0) - (fall < 0);
        if (!way)
            continue;
        turns += before && way != before;
        first = first ? first : way;
        before = way;
    }
    return turns + (before != first) <= 2;
}

template <class Take> void ShapeRaster::walk_edges(Take take) const {
    for (std::size_t i = 0; i < corners_.size(); ++i) {
        Point a = corners_[i];
        Point b = corners_[i + 1 < corners_.size() ? i + 1 : 0];
        if (a.y > b.y)
            std::swap(a, b);
        if (a.y == b.y)
            walk_level(a, b, take);
        else if (std::abs(b.x - a.x) <= b.y - a.y)
            walk_steep(a, b, take);
        else
            walk_flat(a, b, take);
    }
}

void ShapeRaster::fill_spans() {
    for (int y = reach_.top; y < reach_.bottom; ++y) {
        Runs runs{};
        for (int row = std::max(y << shift_, rows_.first); row < std::min((y + 1) << shift_, rows_.end); ++row)
            runs[static_cast<std::size_t>(row - (y << shift_))] = spans_[static_cast<std::size_t>(row - rows_.first)];
        cover(y, runs);
    }
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
template <class Take> void ShapeRaster::walk_level(const Point& a, const Point& b, Take& take) const {
    if (a.x != b.x && a.y >= rows_.first && a.y < rows_.end)
        take(a.y, true, {0, std::min(a.x, b.x), std::max(a.x, b.x) + 1});
}

// What lies inside begins or ends, in every row but the edge's last one, at the first subpixel right of the edge; the
// outline's subpixels about it belong to it, too. In the last row there is the outline alone.
void ShapeRaster::cross(int y, bool last, const Crossing& crossing) {
    if (last)
        cover_row(y, {crossing.from, crossing.to});
    else
        crossings_[static_cast<std::size_t>(ends_[static_cast<std::size_t>(y - rows_.first)]++)] = crossing;
}

// An edge of at least as many rows as columns: its outline is one subpixel a row. Halves go left.
template <class Take> void ShapeRaster::walk_steep(const Point& upper, const Point& lower, Take& take) const {
    const std::int64_t dx = lower.x - upper.x;
    const int first = std::max(upper.y, rows_.first);
    const int last = std::min(lower.y, rows_.end - 1);
    RisingQuotient crossing(dx * (first - upper.y), lower.y - upper.y, dx);
    for (int y = first; y <= last; ++y, crossing.advance()) {
        const int outline = upper.x + crossing.nearest();
        const int x = upper.x + crossing.value();
        take(y, y == lower.y, {x, outline, std::max(outline + 1, x)});
    }
}

// An edge of more columns than rows: its outline is a run of subpixels in each row. Halves go up.
template <class Take> void ShapeRaster::walk_flat(const Point& upper, const Point& lower, Take& take) const {
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
        take(y, y == lower.y, {left + crossing.value(), std::max(from, left), std::min(to, right + 1)});
        previous = bound.value();
    }
}

// A row lies inside from every odd crossing to the even one that follows. Runs of the same number in the rows of a row
// of pixels are painted at once.
void ShapeRaster::fill_between_crossings() {
    int end = 0;
    for (int y = reach_.top; y < reach_.bottom; ++y) {
        const int first_row = std::max(y << shift_, rows_.first);
        const int end_row = std::min((y + 1) << shift_, rows_.end);
        std::array<Range, 4> rows{}; // the crossings of each
        int most = 0;
        for (int row = first_row; row < end_row; ++row) {
            Range& r = rows[static_cast<std::size_t>(row - (y << shift_))];
            r = {end, ends_[static_cast<std::size_t>(row - rows_.first)]};
            end = r.end;
            most = std::max(most, r.end - r.first);
            if (r.end - r.first > 2)
                std::sort(crossings_.begin() + r.first, crossings_.begin() + r.end,
                          [](const Crossing& a, const Crossing& b) { return a.x < b.x; });
        }
        for (int i = 0; i + 1 < most; i += 2) {
            Runs runs{};
            for (std::size_t row = 0; row < rows.size(); ++row)
                if (rows[row].first + i + 1 < rows[row].end)
                    runs[row] = run_between(crossings_[static_cast<std::size_t>(rows[row].first + i)],
                                            crossings_[static_cast<std::size_t>(rows[row].first + i) + 1]);
            cover(y, runs);
        }
    }
}

ShapeRaster::Range ShapeRaster::run_between(const Crossing& a, const Crossing& b) {
    return {std::min(a.from, b.from), std::max(a.to, b.to)};
}

void ShapeRaster::finish() {
    for (std::size_t i = 0; i < blocks_.size(); ++i)
        if (parted_[places_[i].place] == i + 1) // not covered whole since
            *places_[i].pixel = shift_ == 2 ? average<16>(blocks_[i].data()) : average<4>(blocks_[i].data());
}

} // namespace wnt
