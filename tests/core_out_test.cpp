#include "out/geometry.h"
#include "out/key_code.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <limits>
#include <utility>

using namespace wnt;

namespace {

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

struct Point {
    std::int32_t x, y;
};

struct Rect {
    std::int32_t left, top, right, bottom;
};

TEST(Geometry, Arithmetic) {
    EXPECT_EQ(intsin(16384, 100), 100);
    EXPECT_EQ(intsin(8192, 100), 70); // truncated
    EXPECT_EQ(intsin(40960, 100), -70);
    EXPECT_EQ(intcos(32768, 100), -100);
    EXPECT_EQ(intcos(32768, lowest), lowest); // wraps
    EXPECT_EQ(muldiv(-7, 3, 2), -10);
    EXPECT_EQ(muldiv(1, 1, 0), 0);
    EXPECT_EQ(muldiv(lowest, lowest, -1), 0); // the quotient's low half
    EXPECT_EQ(points_center(10, 4, 10), 7);
    EXPECT_EQ(points_center(-10, -4, -3), -6);
    EXPECT_EQ(points_testincircle(3, 4, 5), 0);
    EXPECT_EQ(points_testincircle(3, 3, 5), 1);
    EXPECT_EQ(points_testincircle(65536, 0, 1), 1); // the square wraps to 0
}

TEST(Geometry, RootIsRoundedToTheNearest) {
    const std::pair<int, int> roots[] = {{0, 1}, {2, 2}, {6, 3}, {8, 3}, {99, 10}, {highest, 46341}, {-9, 1}};
    for (const auto& [n, root] : roots)
        EXPECT_EQ(aproxroot(n), root) << n;
    for (std::int64_t n = 1; n <= highest; n += 1 + n / 50) {
        const std::int64_t r = aproxroot(static_cast<std::int32_t>(n));
        EXPECT_TRUE(r * (r - 1) <= n && n < r * (r + 1)) << n;
    }
}

TEST(Geometry, AngleOfAVector) {
    const struct {
        int dy, dx, num, den, angle;
    } cases[] = {
        {1, 1, 1, 1, 45}, {1, -1, 1, 1, 135}, {-1, -1, 1, 1, 225},     {-1, 1, 1, 1, 315}, {-1, 0, 1, 1, 270},
        {0, 0, 1, 1, 90}, {0, -1, 1, 1, 180}, {-1, 1000, 1, 1, 360},   {1, 2, 1, 1, 26},   {1, 1, 2, 1, 26},
        {1, 1, 1, 0, 45}, {1, -1, 1, 3, 90},  {0, lowest, 1, -1, 180},
    };
    for (const auto& c : cases)
        EXPECT_EQ(getangle(c.dy, c.dx, c.num, c.den), c.angle) << c.dy << ' ' << c.dx << ' ' << c.num;
}

TEST(Geometry, Intersections) {
    const struct {
        int x1, y1, x2, y2, x3, y3, x4, y4;
        Point at;
    } cases[] = {
        {0, 0, 10, 10, 0, 10, 10, 0, {5, 5}},
        {0, 0, 10, 0, 20, -5, 20, 5, {10, 0}}, // clamped to the segment's end
        {0, 0, 10, 0, -5, -5, -5, 5, {0, 0}},
        {0, 0, 10, 0, 4, 0, 14, 0, {7, 0}},                                                     // collinear
        {0, 0, 3000, 0, 1000, -3000, 1000, 3000, {999, 0}},                                     // shares of 15 bits
        {lowest, lowest, highest, highest, lowest, highest, highest, lowest, {lowest, lowest}}, // differences wrap to
                                                                                                // -1
    };
    for (const auto& c : cases) {
        Point out{};
        points_intersect(&out, c.x1, c.y1, c.x2, c.y2, c.x3, c.y3, c.x4, c.y4);
        EXPECT_EQ(out.x, c.at.x) << c.x2 << ' ' << c.x3;
        EXPECT_EQ(out.y, c.at.y) << c.x2 << ' ' << c.x3;
    }
}

TEST(Geometry, ClippedLines) {
    const Rect r = {0, 100, 100, 0};
    const struct {
        int x1, y1, x2, y2, inside;
        Point from, to;
    } cases[] = {
        {10, 20, 30, 40, 1, {10, 20}, {30, 40}},
        {-50, 50, 150, 50, 1, {0, 50}, {100, 50}},
        {50, -50, 50, 150, 1, {50, 0}, {50, 100}},
        {-50, -50, 200, 200, 1, {0, 0}, {100, 100}},
        {-10, 10, -1, 90, 0, {}, {}},
        {-60, 50, 50, 160, 0, {}, {}},
        {10, 101, 90, 101, 0, {}, {}},
    };
    for (const auto& c : cases) {
        Point out[2] = {};
        EXPECT_EQ(points_clipline(out, &r, c.x1, c.y1, c.x2, c.y2), c.inside) << c.x1 << ' ' << c.y1;
        if (c.inside) {
            EXPECT_TRUE(out[0].x == c.from.x && out[0].y == c.from.y) << out[0].x << ' ' << out[0].y;
            EXPECT_TRUE(out[1].x == c.to.x && out[1].y == c.to.y) << out[1].x << ' ' << out[1].y;
        }
    }
    Point out{};
    EXPECT_EQ(points_partclip(&out, &r, 10, 200, 90, 200), 0); // would divide by zero
    EXPECT_EQ(points_partclip(&out, &r, 200, 10, 200, 90), 0);
}

TEST(Geometry, HitTests) {
    const Point clockwise[] = {{0, 0}, {0, 10}, {10, 10}, {10, 0}};
    EXPECT_EQ(points_testinpoly(5, 5, clockwise, 4), 1);
    EXPECT_EQ(points_testinpoly(0, 5, clockwise, 4), 0); // on an edge
    EXPECT_EQ(points_testinpoly(12, 5, clockwise, 4), 0);
    EXPECT_EQ(points_testinpoly(12, 5, clockwise, 0), 1);
    const Point counter_clockwise[] = {{0, 0}, {10, 0}, {10, 10}, {0, 10}};
    EXPECT_EQ(points_testinpoly(5, 5, counter_clockwise, 4), 0);
    const Point turn[] = {{0, 10}, {0, 0}, {10, 10}}; // up, then right
    EXPECT_EQ(points_testclock(turn, 0), 1);
    EXPECT_EQ(points_testclock(turn, 1), 0);
    EXPECT_EQ(points_testclock(turn, 7), 1);

    const Rect r = {10, 40, 20, 30};
    EXPECT_EQ(points_testinrect(10, 60, r, 99), 1); // 99 - 60 = 39
    EXPECT_EQ(points_testinrect(20, 60, r, 99), 0); // the right edge is outside,
    EXPECT_EQ(points_testinrect(19, 59, r, 99), 1); // the upper and
    EXPECT_EQ(points_testinrect(19, 69, r, 99), 1); // the lower one inside
    EXPECT_EQ(points_testinrect(19, 70, r, 99), 0);

    const Point scattered[] = {{5, -7}, {-3, 2}, {9, 4}};
    Rect box{};
    calcpolywind(&box, scattered, 3);
    EXPECT_TRUE(box.left == -3 && box.right == 9 && box.bottom == -7 && box.top == 4);
    calcpolywind(&box, scattered, 1);
    EXPECT_TRUE(box.left == 5 && box.right == 5 && box.bottom == -7 && box.top == -7);
    calcpolywind(&box, static_cast<const Point*>(nullptr), 0);
    EXPECT_TRUE(box.left == 0 && box.right == 0 && box.bottom == 0 && box.top == 0);
}

constexpr unsigned key_down = 0x100, character = 0x102, system_key_down = 0x104, system_character = 0x106;
constexpr int shift = 0x10, control = 0x11;
constexpr std::intptr_t alt = 1 << 29, released = std::intptr_t{1} << 31;

constexpr std::intptr_t scan(int code) {
    return std::intptr_t{code} << 16;
}

int held_keys[2];

short key_state(int key) {
    return std::ranges::find(held_keys, key) != std::end(held_keys) ? short(-128) : short(0);
}

TEST(KeyCode, Translates) {
    const struct {
        unsigned message;
        int key;
        std::intptr_t flags;
        int held[2]; // keys whose state is down, the message's own one among them
        int result, category, value;
    } cases[] = {
        {character, 9, scan(0x0F), {9, 0}, 1, 3, 2},
        {character, 9, scan(0x0F), {9, shift}, 1, 3, 3},
        {key_down, 36, scan(0x47), {36, control}, 1, 3, 15},
        {key_down, 40, scan(0x50), {40, control}, 1, 3, 22},
        {key_down, 46, scan(0x53), {46, control}, 1, 3, 6},
        {key_down, 37, scan(0x4B), {0, 0}, 1, 1, 37},   // its state is up: a plain character
        {character, '!', scan(0x02), {33, 0}, 1, 3, 9}, // its code is Page Up's
        {character, '!', scan(0x02), {0, shift}, 1, 1, '!'},
        {character, 3, scan(0x2E), {3, control}, 1, 0, 0},
        {character, 3, scan(0x2E), {0, control}, 1, 4, 'C'},
        {key_down, 0x70, scan(0x3B), {0, control}, 1, 2, 0x81},
        {key_down, 0x71, scan(0x3C), {0, shift}, 1, 2, 14},
        {key_down, 0x7B, scan(0x58), {shift, control}, 1, 2, 24 | 0x80},
        {key_down, 0x7C, scan(0x64), {0, 0}, 1, 1, 0x7C}, // F13 has no function key's scan code
        {system_key_down, 0x73, scan(0x3E) | alt, {0, 0}, 0, 0, 0},
        {system_character, 'x', scan(0x2D) | alt, {0, 0}, 1, 5, 'X'},
        {system_character, '7', scan(0x08) | alt, {0, 0}, 1, 5, '7'},
        {system_character, '/', scan(0x35) | alt, {0, 0}, 0, 0, 0},
        {character, '@', scan(0x10) | alt, {control, 0}, 1, 1, '@'}, // AltGr is no modifier
        {key_down, 'A', scan(0x1E), {'A', 0}, 0, 0, 0},
        {key_down, 0x30, scan(0x0B), {0x30, 0}, 0, 0, 0},
        {character, 31, 0, {0, 0}, 0, 0, 0},
        {key_down, 36, scan(0x47) | released, {36, 0}, 0, 0, 0},
    };
    for (const auto& c : cases) {
        std::ranges::copy(c.held, held_keys);
        int out[2] = {-1, -1};
        EXPECT_EQ(translate_key(out, c.message, c.key, c.flags, key_state), c.result) << c.message << ' ' << c.key;
        EXPECT_EQ(out[0], c.category) << c.message << ' ' << c.key;
        EXPECT_EQ(out[1], c.value) << c.message << ' ' << c.key;
    }
}

} // namespace
