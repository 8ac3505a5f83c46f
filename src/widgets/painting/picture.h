#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace wnt {

/// A point in pixels, y growing upwards; pixel (0, 0) covers the square from (0, 0) to (1, 1).
struct PointF {
    float x;
    float y;

    friend bool operator==(const PointF&, const PointF&) = default;
};

struct BoxF {
    float left;
    float bottom;
    float right;
    float top;

    float width() const { return right - left; }
    float height() const { return top - bottom; }
    PointF centre() const { return {(left + right) / 2, (bottom + top) / 2}; }
    bool empty() const { return !(right > left && top > bottom); }
    BoxF inset(float d) const { return {left + d, bottom + d, right - d, top - d}; }
    friend bool operator==(const BoxF&, const BoxF&) = default;
};

BoxF intersection(const BoxF& a, const BoxF& b);
BoxF hull(const BoxF& a, const BoxF& b);

/// Colours are 0x00BBGGRR.
using Colour = std::uint32_t;

/// `weight` 0 gives a, 256 gives b.
Colour blend(Colour a, Colour b, int weight);
/// Perceived brightness, 0 to 255.
int brightness(Colour colour);

enum class HAlign : std::uint8_t { left, right, centre };

struct FontMetrics {
    float ascent;
    float descent;
    float cap_height;
    float height() const { return ascent + descent; }
};

/// Measures text before it is drawn. Sizes are tenths of a point.
class TextMeter {
public:
    virtual ~TextMeter() = default;
    virtual float width(std::string_view text, int tenths) = 0;
    virtual FontMetrics metrics(int tenths) = 0;
    /// The size of a text this many pixels high.
    virtual int tenths(float pixels) = 0;
};

/// A list of figures: what a view wants to be seen, without a device. Two lists of the same view can be compared, so
/// that only what differs is drawn again.
class Picture {
public:
    enum class Kind : std::uint8_t { box, polygon, text };

    struct Figure {
        Kind kind;
        HAlign align; // text
        Colour colour;
        int tenths;          // text: size
        std::uint32_t first; // polygon: first point; text: first character
        std::uint32_t count;
        BoxF bounds; // box: the box itself; text: the cell
        PointF at;   // text: the aligned end of the cell's lower edge
    };

    void clear();

    void box(const BoxF& area, Colour colour);
    void polygon(const PointF* points, int count, Colour colour);
    void disc(PointF centre, float radius, Colour colour);
    /// The part of a ring between two angles in radians, counter-clockwise from +x.
    void ring_sector(PointF centre, float inner, float outer, float from, float to, Colour colour);
    /// A straight stroke of the given width with flat ends.
    void stroke(PointF from, PointF to, float width, Colour colour);
    /// Text whose cell stands on `at`. `clip`, when given, cuts what lies outside.
    void text(TextMeter& meter, PointF at, HAlign align, int tenths, Colour colour, std::string_view text,
              const BoxF* clip = nullptr);

    const std::vector<Figure>& figures() const { return figures_; }
    const PointF* points(const Figure& f) const { return points_.data() + f.first; }
    std::string_view characters(const Figure& f) const { return {characters_.data() + f.first, f.count}; }

    /// True when figure i of both lists looks the same.
    static bool same(const Picture& a, const Picture& b, std::size_t i);

private:
    std::vector<Figure> figures_;
    std::vector<PointF> points_;
    std::vector<char> characters_;
};

} // namespace wnt
