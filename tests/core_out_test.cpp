#include "out/geometry.h"
#include "out/key_code.h"
#include "out/page_scale.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <sstream>

using namespace wnt;

namespace {

struct Point {
    int x, y;
    bool operator==(const Point&) const = default;
};

struct Rect {
    int left, top, right, bottom;
};

TEST(Geometry, Arithmetic) {
    EXPECT_TRUE(intsin(16384, 100) == 100 && intsin(8192, 100) == 70); // truncated
    EXPECT_EQ(intcos(32768, INT_MIN), INT_MIN);
    EXPECT_TRUE(muldiv(-7, 3, 2) == -10 && muldiv(1, 1, 0) == 0);
    EXPECT_EQ(muldiv(INT_MIN, INT_MIN, -1), 0); // the quotient's low half
    EXPECT_EQ(points_center(-10, -4, -3), -6);
    EXPECT_EQ(points_testincircle(3, 4, 5), 0);
    EXPECT_EQ(points_testincircle(65536, 0, 1), 1); // the square wraps to 0
    const std::pair<int, int> roots[] = {{0, 1}, {6, 3}, {8, 3}, {99, 10}, {INT_MAX, 46341}, {-9, 1}};
    for (const auto& [n, root] : roots)
        EXPECT_EQ(aproxroot(n), root) << n;
}

TEST(Geometry, AngleOfAVector) {
    const int cases[][5] = {{1, -1, 1, 1, 135},    {-1, -1, 1, 1, 225}, {-1, 1, 1, 1, 315}, {-1, 0, 1, 1, 270},
                            {0, 0, 1, 1, 90},      {0, -1, 1, 1, 180},  {1, 2, 1, 1, 26},   {1, 1, 2, 1, 26},
                            {-1, 1000, 1, 1, 360}, {1, 1, 1, 0, 45},    {1, -1, 1, 3, 90},  {0, INT_MIN, 1, -1, 180}};
    for (const auto& [dy, dx, num, den, angle] : cases)
        EXPECT_EQ(getangle(dy, dx, num, den), angle) << dy << ' ' << dx << ' ' << num;
}

TEST(Geometry, Intersections) {
    const Point cases[][5] = {
        {{0, 0}, {10, 10}, {0, 10}, {10, 0}, {5, 5}},
        {{0, 0}, {10, 0}, {20, -5}, {20, 5}, {10, 0}},              // clamped to the segment's end
        {{0, 0}, {10, 0}, {4, 0}, {14, 0}, {7, 0}},                 // collinear
        {{0, 0}, {3000, 0}, {1000, -3000}, {1000, 3000}, {999, 0}}, // shares of 15 bits
        {{INT_MIN, INT_MIN}, {INT_MAX, INT_MAX}, {INT_MIN, INT_MAX}, {INT_MAX, INT_MIN}, {INT_MIN, INT_MIN}},
    };
    for (const auto& [a, b, c, d, at] : cases) {
        Point out{};
        points_intersect(&out, a.x, a.y, b.x, b.y, c.x, c.y, d.x, d.y);
        EXPECT_EQ(out, at) << b.x << ' ' << c.x;
    }
}

TEST(Geometry, ClippedLines) {
    const Rect r = {0, 100, 100, 0};
    const std::tuple<int, int, int, int, int, Point, Point> cases[] = {
        {10, 20, 30, 40, 1, {10, 20}, {30, 40}},
        {50, -50, 50, 150, 1, {50, 0}, {50, 100}},
        {-50, -50, 200, 200, 1, {0, 0}, {100, 100}},
        {-50, 20, 150, 60, 1, {0, 30}, {100, 50}},
        {-60, 50, 50, 160, 0, {0, 110}, {}}, // past the corner
        {10, 101, 90, 101, 0, {}, {}}};
    for (const auto& [x1, y1, x2, y2, inside, from, to] : cases) {
        Point out[2] = {};
        EXPECT_EQ(points_clipline(out, &r, x1, y1, x2, y2), inside) << x1 << ' ' << y1;
        EXPECT_TRUE(!inside || (out[0] == from && out[1] == to)) << x1 << ' ' << y1;
    }
    Point out{};
    // Would divide by zero.
    EXPECT_TRUE(!points_partclip(&out, &r, 10, 200, 90, 200) && !points_partclip(&out, &r, 200, 10, 200, 90));
}

TEST(Geometry, HitTests) {
    const Point clockwise[] = {{0, 0}, {0, 10}, {10, 10}, {10, 0}}, reversed[] = {{0, 0}, {10, 0}, {10, 10}, {0, 10}};
    EXPECT_TRUE(points_testinpoly(5, 5, clockwise, 4) == 1 && points_testinpoly(0, 5, clockwise, 4) == 0); // an edge
    EXPECT_TRUE(points_testinpoly(5, 5, reversed, 4) == 0 && points_testinpoly(5, 5, reversed, 0) == 1);
    EXPECT_EQ(points_testclock(clockwise, 7), 1); // neither 0 nor 1 is 7

    const Rect r = {10, 40, 20, 30}; // the right edge is outside, the upper and the lower one inside
    const std::pair<Point, int> hits[] = {{{10, 60}, 1}, {{20, 60}, 0}, {{19, 59}, 1},
                                          {{19, 58}, 0}, {{19, 69}, 1}, {{19, 70}, 0}};
    for (const auto& [at, hit] : hits)
        EXPECT_EQ(points_testinrect(at.x, at.y, r, 99), hit) << at.x << ' ' << at.y;

    const Point scattered[] = {{5, -7}, {-3, 2}, {9, 4}};
    Rect bounds{};
    calcpolywind(&bounds, scattered, 3);
    EXPECT_TRUE(bounds.left == -3 && bounds.top == 4 && bounds.right == 9 && bounds.bottom == -7);
    calcpolywind(&bounds, scattered, 1);
    EXPECT_TRUE(bounds.left == 5 && bounds.top == -7 && bounds.right == 5 && bounds.bottom == -7);
}

constexpr unsigned key_down = 0x100, character = 0x102, system_character = 0x106;
constexpr int shift = 0x10, control = 0x11;
constexpr std::intptr_t alt = 1 << 29, released = std::intptr_t{1} << 31;

int held_keys[2];

short key_state(int key) {
    return std::ranges::find(held_keys, key) != std::end(held_keys) ? short(-128) : short(0);
}

TEST(KeyCode, Translates) {
    const struct {
        unsigned message;
        int key, scan;
        std::intptr_t flags;
        int held[2]; // keys whose state is down, the message's own one among them
        int result, category, value;
    } cases[] = {// a key whose state is up is a plain character, AltGr no modifier
                 {character, 9, 0x0F, 0, {9, shift}, 1, 3, 3},
                 {key_down, 36, 0x47, 0, {36, control}, 1, 3, 15},
                 {key_down, 40, 0x50, 0, {40, control}, 1, 3, 22},
                 {key_down, 46, 0x53, 0, {46, control}, 1, 3, 6},
                 {key_down, 37, 0x4B, 0, {}, 1, 1, 37},
                 {key_down, 0x70, 0x3B, 0, {control}, 1, 2, 0x81},
                 {key_down, 0x7B, 0x58, 0, {shift, control}, 1, 2, 24 | 0x80},
                 {character, 1, 0x1E, 0, {control}, 1, 4, 'A'},
                 {character, 26, 0x2C, 0, {control}, 1, 4, 'Z'},
                 {0x104, 0x73, 0x3E, alt, {}, 0, 0, 0},
                 {system_character, 'a', 0x1E, alt, {}, 1, 5, 'A'},
                 {system_character, 'z', 0x2C, alt, {}, 1, 5, 'Z'},
                 {system_character, '/', 0x35, alt, {}, 0, 0, 0},
                 {character, '@', 0x10, alt, {control}, 1, 1, '@'},
                 {key_down, 36, 0x47, released, {36}, 0, 0, 0}};
    for (const auto& c : cases) {
        std::ranges::copy(c.held, held_keys);
        int out[2] = {-1, -1};
        EXPECT_EQ(translate_key(out, c.message, c.key, c.flags | c.scan << 16, key_state), c.result) << c.key;
        EXPECT_TRUE(out[0] == c.category && out[1] == c.value) << c.key << ": " << out[0] << ' ' << out[1];
    }
    // What keys give that are held down alone, the characters with their codes too, and function keys' scan codes.
    const auto given = [](unsigned message, int last) {
        std::ostringstream all;
        for (int key = 0; key <= last; ++key) {
            held_keys[0] = key;
            int out[2] = {};
            if (translate_key(out, message, key, 0, key_state))
                all << key << ':' << out[0] << ',' << out[1] << ' ';
        }
        return all.str();
    };
    EXPECT_EQ(given(character, 47),
              "3:0,0 8:3,1 9:3,2 13:3,4 17:4,81 27:3,0 32:1,32 33:3,9 34:3,10 35:3,8 36:3,7 37:3,11 38:3,13 39:3,12 "
              "40:3,14 41:1,41 42:1,42 43:1,43 44:1,44 45:3,5 46:3,6 47:1,47 ");
    EXPECT_EQ(given(key_down, 128),
              "33:3,9 34:3,10 35:3,8 36:3,7 37:3,11 38:3,13 39:3,12 40:3,14 41:1,41 42:1,42 43:1,43 44:1,44 45:3,5 "
              "46:3,6 47:1,47 112:1,112 113:1,113 114:1,114 115:1,115 116:1,116 117:1,117 118:1,118 119:1,119 "
              "120:1,120 121:1,121 122:1,122 123:1,123 124:1,124 125:1,125 126:1,126 127:1,127 ");
    std::string function_keys;
    for (int scan = 0; scan < 0x80; ++scan) {
        int out[2] = {};
        translate_key(out, key_down, 0x75, scan << 16, key_state);
        function_keys += out[0] == 2 ? std::to_string(scan) + " " : "";
    }
    EXPECT_EQ(function_keys, "59 60 61 62 63 64 65 66 67 68 87 88 ");
}

TEST(PageScale, FitsButForEqualSidesAndSpecks) {
    EXPECT_EQ(page_scale(2000, 3000, 400, 300), 5.0);
    EXPECT_EQ(page_scale(2000, 3000, 100, 1000), 3.0);
    EXPECT_EQ(page_scale(2000, 3000, 200, 300), 1.0); // both sides ask for ten
    EXPECT_EQ(page_scale(100, 300, 10'000, 10'000), 0.01);
    EXPECT_EQ(page_scale(99, 300, 10'000, 10'000), 1.0);
}

} // namespace
