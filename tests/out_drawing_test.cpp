// What the drawing operations leave in a picture.
#include "surface_test.h"

#include <climits>
#include <cstring>
#include <vector>

using Draw = void (*)(CWntOut&);

TEST_F(SurfaceTest, LinesAndBoxesCoverTheirPixels) {
    const struct {
        const char* name;
        Draw draw;
        const char* expected;
    } cases[] = {
        {"a point", [](CWntOut& o) { o.line(0, 0, 0, 0); }, "......\n......\n......\nL.....\n"},
        {"both ends", [](CWntOut& o) { o.line(4, 3, 1, 0); }, "....L.\n...L..\n..L...\n.L....\n"},
        {"hline, vline", [](CWntOut& o) { o.hline(4, 0, -3), o.vline(5, 3, -2); }, ".....L\n.....L\n.....L\n.LLLL.\n"},
        {"boxr0", [](CWntOut& o) { o.boxr0(1, 0, 3, 2); }, "......\n.LLLL.\n.L..L.\n.LLLL.\n"},
        {"boxr1 backwards", [](CWntOut& o) { o.boxr1(4, 3, -3, -2); }, ".LLLL.\n.LFFL.\n.LLLL.\n......\n"},
        {"boxa1", [](CWntOut& o) { o.boxa1(5, 0, 2, 3); }, "..LLLL\n..LFFL\n..LFFL\n..LLLL\n"},
        {"boxa2, one pixel", [](CWntOut& o) { o.boxa2(3, 2, 3, 2); }, "......\n...F..\n......\n......\n"},
        {"flat boxes", [](CWntOut& o) { o.boxr1(0, 0, 0, 2), o.boxr0(2, 3, 3, 0); },
         "..LLLL\nL.....\nL.....\nL.....\n"},
        {"crosslines",
         [](CWntOut& o) {
             o.crosslines(std::vector<Tpt>{{0, 0}, {1, 3}, {4, 0}, {5, 3}}.data(), 2, 2);
         },
         ".LLLL.\n......\n......\nLLLL..\n"},
        {"square marker", [](CWntOut& o) { o.drawmarker(2, 1, 1, 4); }, "......\n.LLL..\n.L.L..\n.LLL..\n"},
        {"cross, plus", [](CWntOut& o) { o.drawmarker(1, 1, 1, 0), o.drawmarker(4, 2, 1, 1); },
         "....L.\nL.LLLL\n.L..L.\nL.L...\n"},
        {"no marker", [](CWntOut& o) { o.drawmarker(2, 2, 1, 6), o.drawmarker(2, 2, 1, -1); },
         "......\n......\n......\n......\n"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(drawn(6, 4, c.draw), c.expected) << c.name;
}

TEST_F(SurfaceTest, PolygonsAreEvenOddAndLeaveTheArrayAsItWas) {
    // Two squares of the same sense, joined by a seam: the inner one is a hole.
    const std::vector<POINT> nested = {{0, 0}, {8, 0}, {8, 8}, {0, 8}, {0, 0}, {2, 2}, {6, 2}, {6, 6}, {2, 6}, {2, 2}};
    auto points = nested;
    EXPECT_EQ(drawn(9, 9, [&](CWntOut& o) { o.fillpoly(points.data(), 10); }),
              "LLLLLLLLL\nLFFFFFFFL\nLFLLLLLFL\nLFL...LFL\nLFL...LFL\nLFL...LFL\nLFLLLLLFL\nLLFFFFFFL\nLLLLLLLLL\n");
    const std::string solid = drawn(9, 9, [&](CWntOut& o) { o.solidpoly(points.data(), 10); });
    EXPECT_EQ(std::count(solid.begin(), solid.end(), 'F'), 81 - 9);
    EXPECT_EQ(std::count(solid.begin(), solid.end(), '.'), 9);
    EXPECT_EQ(std::memcmp(points.data(), nested.data(), 10 * sizeof(POINT)), 0);
    EXPECT_EQ(out.linecolour_, red);
}

TEST_F(SurfaceTest, CopyingPolygonsStopAtTwentyPoints) {
    std::vector<Tpt> teeth; // along the lower edge: the last ones stand right of x = 57
    for (int i = 0; i < 25; ++i)
        teeth.push_back({3 * i, i % 2 ? 10 : 0});
    Picture copied(80, 20), whole(80, 20);
    paint(copied, [&](CWntOut& o) { o.fillpoly(teeth.data(), 25); });
    paint(whole, [&](CWntOut& o) { o.fillpoly(reinterpret_cast<POINT*>(teeth.data()), 25); });
    EXPECT_EQ(copied.ink(0).right, 57);
    EXPECT_EQ(whole.ink(0).right, 72);
    copied.clear(0);
    paint(copied, [&](CWntOut& o) { o.geomline(teeth.data(), 25, 0); });
    EXPECT_EQ(copied.ink(0).right, 72);
    EXPECT_EQ(copied.at(72, 0), 0u); // the polyline leaves its last pixel out
}

TEST_F(SurfaceTest, GapsOfAHatchFollowABitOfTheFillColour) {
    for (const COLORREF colour : {RGB(0, 0x10, 0), RGB(0, 0xEF, 0)}) {
        Picture picture(40, 40);
        picture.clear(ground);
        paint(picture, [&](CWntOut& o) {
            POINT square[] = {{0, 0}, {39, 0}, {39, 39}, {0, 39}};
            ::SetBkColor(o.dc, RGB(0, 0, 255));
            o.fillcolour(colour, 6);
            o.fillpoly(square, 4);
            EXPECT_EQ(::GetBkMode(o.dc), TRANSPARENT);
        });
        EXPECT_GT(picture.count(colour), 100);
        EXPECT_EQ(picture.count(ground) > 500, colour == RGB(0, 0x10, 0));
        EXPECT_EQ(picture.count(RGB(0, 0, 255)) > 500, colour != RGB(0, 0x10, 0));
    }
}

TEST_F(SurfaceTest, WideLinesTakeTheFillColour) {
    const auto lines = [](CWntOut& o) {
        POINT points[] = {{-10, 2}, {20, 2}};
        const HPEN before = o.pen;
        o.geomline(points, 2, 2);
        o.geomline(points, 1, 2);
        EXPECT_EQ(points[0].y, 2);
        EXPECT_EQ(::GetCurrentObject(o.dc, OBJ_PEN), before);
        points[0].y = points[1].y = 5;
        o.geomline(points, 2, 0);
    };
    EXPECT_EQ(drawn(8, 6, lines), "LLLLLLLL\n........\nFFFFFFFF\nFFFFFFFF\nFFFFFFFF\n........\n");
}

TEST_F(SurfaceTest, RoundFiguresKeepTheirBounds) {
    const struct {
        const char* name;
        Draw draw;
        int left, bottom, right, top;
        COLORREF middle;
    } cases[] = {
        {"drawcircle", [](CWntOut& o) { o.drawcircle(40, 40, 20); }, 20, 21, 59, 60, ground},
        {"fillcircle", [](CWntOut& o) { o.fillcircle(40, 40, 20, 10); }, 20, 31, 60, 50, green},
        {"whole pie", [](CWntOut& o) { o.pieslice(40, 40, 20, 10, 0, 16384); }, 20, 31, 60, 49, green},
        {"dot", [](CWntOut& o) { o.drawmarker(40, 40, 3, 5); }, 38, 39, 41, 42, ground},
        {"circle marker", [](CWntOut& o) { o.drawmarker(40, 40, 6, 2); }, 34, 35, 45, 46, ground},
    };
    for (const auto& c : cases) {
        Picture picture(90, 80);
        picture.clear(ground);
        paint(picture, c.draw);
        const RECT ink = picture.ink(ground);
        const LONG misses[] = {ink.left - c.left, ink.bottom - c.bottom, ink.right - c.right, ink.top - c.top};
        EXPECT_THAT(misses, testing::Each(0)) << c.name;
        EXPECT_EQ(picture.at(37, 42), c.middle) << c.name;
        EXPECT_EQ(picture.at((ink.left + ink.right) / 2, ink.top), red) << c.name;
        EXPECT_EQ(picture.at(ink.left, ink.bottom), ground) << c.name;
    }
}

TEST_F(SurfaceTest, PiesRunCounterClockwise) {
    const auto slice = [this](int from, int to) {
        Picture picture(80, 80);
        paint(picture, [&](CWntOut& o) { o.pieslice(40, 40, 30, 30, from, to); });
        std::string quadrants;
        for (const POINT at : {POINT{50, 50}, {30, 50}, {30, 30}, {50, 30}})
            quadrants += picture.at(at.x, at.y) == green ? 'F' : '.';
        return quadrants;
    };
    EXPECT_EQ(slice(0, 4096), "F...");
    EXPECT_EQ(slice(4096, 16384), ".FFF");
    EXPECT_EQ(slice(-4096, 0), "...F");
    EXPECT_EQ(slice(0, 1), "....");        // too thin to see
    EXPECT_EQ(slice(0, 16383), "FFFF");    // the ends meet: a whole turn
    EXPECT_EQ(slice(16384, 4096), "F..."); // angles wrap
}

TEST_F(SurfaceTest, MarkersAreTwoPixelsWideAndOfOneSize) {
    Picture picture(60, 40);
    paint(picture, [](CWntOut& o) {
        POINT points[] = {{15, 20}, {45, 20}};
        const HPEN before = o.pen;
        o.markers(points, 2, 1);
        EXPECT_EQ(::GetCurrentObject(o.dc, OBJ_PEN), before);
        o.markers(nullptr, 2, 1);
    });
    const RECT ink = picture.ink(0);
    EXPECT_NEAR(ink.left, 10, 1);
    EXPECT_NEAR(ink.right, 50, 1);
    EXPECT_NEAR(ink.top - ink.bottom, 10, 2);
    int wide = 0;
    for (int y = 0; y < 40; ++y)
        wide += picture.at(12, y) == red;
    EXPECT_EQ(wide, 2);
}

TEST_F(SurfaceTest, ShadowIsLitFromTheUpperLeft) {
    const COLORREF light = ::GetSysColor(COLOR_3DHIGHLIGHT);
    const COLORREF dark = ::GetSysColor(COLOR_3DDKSHADOW);
    for (const int raised : {1, 0}) {
        Picture picture(30, 20);
        picture.clear(ground);
        paint(picture, [&](CWntOut& o) { o.drawshadow(2, 3, 20, 15, raised); });
        for (const POINT at : {POINT{2, 10}, POINT{10, 15}})
            EXPECT_EQ(picture.at(at.x, at.y), raised ? light : dark);
        for (const POINT at : {POINT{20, 10}, POINT{10, 3}})
            EXPECT_EQ(picture.at(at.x, at.y), raised ? dark : light);
        EXPECT_EQ(picture.at(10, 10), ground);
        EXPECT_EQ(out.linecolour_, raised ? dark : light);
    }
}

TEST_F(SurfaceTest, RubberBandsRemoveThemselves) {
    const Draw cases[] = {[](CWntOut& o) { o.trackline(3, 3, 30, 22); },
                          [](CWntOut& o) { o.trackbox(2, 2, 20, 10, 0); },
                          [](CWntOut& o) { o.trackbox(2, 2, 20, 10, 0x200); },
                          [](CWntOut& o) { o.trackbox(2, 2, 20, 0, 0x100); },
                          [](CWntOut& o) {
                              o.trackpoly(std::vector<Tpt>{{2, 2}, {30, 5}, {20, 30}}.data(), 3);
                          },
                          [](CWntOut& o) {
                              o.trackpoly(std::vector<POINT>{{2, 2}, {30, 5}, {20, 30}}.data(), 3);
                          }};
    for (const Draw draw : cases) {
        Picture picture(40, 40);
        picture.clear(RGB(10, 20, 30));
        const auto before = picture.values();
        paint(picture, draw);
        EXPECT_NE(picture.values(), before) << &draw - cases;
        paint(picture, [&](CWntOut& o) {
            draw(o);
            EXPECT_EQ(::GetROP2(o.dc), R2_COPYPEN);
        });
        EXPECT_EQ(picture.values(), before) << &draw - cases;
    }
    const auto boxes = [](CWntOut& o) {
        ::PatBlt(o.dc, 0, 0, 6, 4, BLACKNESS);
        o.trackbox(1, 1, 3, 2, 0x200);
        o.trackbox(1, 0, 3, 0, 0x100); // without height: a line
    };
    EXPECT_EQ(drawn(6, 4, boxes), "?FFFF?\n?FFFF?\n?FFFF?\n?LLLL?\n");
}

TEST_F(SurfaceTest, ColoursComeFromTheInstalledPalette) {
    const auto pen = [&] {
        LOGPEN made = {};
        ::GetObject(::GetCurrentObject(out.dc, OBJ_PEN), sizeof made, &made);
        EXPECT_EQ(::GetTextColor(out.dc), made.lopnColor);
        return made;
    };
    Picture picture(10, 10);
    ASSERT_EQ(out.reset(picture.dc()), 1);
    const std::pair<int, COLORREF> built_in[] = {{15, 0x808000}, {9, 0xC0C0C0}, {3, 0x00FFFF}, {2, 0xFF0000}, {0, 0}};
    for (const auto& [index, colour] : built_in) {
        out.linecolour(index, 0);
        EXPECT_EQ(pen().lopnColor, colour);
        EXPECT_EQ(out.rgbcolor(index), colour);
    }
    COLORREF own[4] = {RGB(1, 0, 0), RGB(2, 0, 0), RGB(3, 0, 0), RGB(4, 0, 0)};
    COLORREF* installed = nullptr;
    out.setcolorpalette(own, 4);
    EXPECT_EQ(out.getcolorpalette(&installed), 4);
    EXPECT_EQ(installed, own);
    out.linecolour(6, 0);
    EXPECT_EQ(pen().lopnColor, own[2]);
    EXPECT_EQ(out.rgbcolor(6), red); // whatever is installed
    out.linecolour(-1, 0);           // no entry: nothing outside the table is read
    out.setcolorpalette(nullptr, 9);
    EXPECT_EQ(out.getcolorpalette(nullptr), 0);
    out.linecolour(6, 0);
    EXPECT_EQ(pen().lopnColor, red);

    constexpr UINT styles[8] = {PS_SOLID, PS_SOLID, PS_DOT, PS_DASH, PS_DASHDOT, PS_DOT, PS_DASH, PS_DASHDOTDOT};
    for (int style = 0; style < 8; ++style) {
        out.linecolour(RGB(style, 1, 1), style);
        EXPECT_EQ(pen().lopnStyle, styles[style]);
        EXPECT_EQ(pen().lopnWidth.x, 1);
    }
    out.endpaint();
}

TEST_F(SurfaceTest, AColourInForceMakesNothing) {
    out.fillcolour(COLORREF{0xFF0000}, 4); // as constructed
    EXPECT_EQ(out.brush, nullptr);

    Picture picture(10, 10);
    ASSERT_EQ(out.reset(picture.dc()), 1);
    out.linecolour(RGB(255, 255, 255), 0); // white and black count as in force
    out.fillcolour(RGB(0, 0, 0), 0);
    EXPECT_EQ(out.pen, nullptr);
    EXPECT_EQ(out.brush, nullptr);
    constexpr int hatches[8] = {-1, -1, HS_VERTICAL, HS_HORIZONTAL, HS_DIAGCROSS, HS_DIAGCROSS, HS_CROSS, HS_CROSS};
    for (int style = 0; style < 8; ++style) {
        out.fillcolour(RGB(9, style, 9), style);
        LOGBRUSH made = {};
        ::GetObject(::GetCurrentObject(out.dc, OBJ_BRUSH), sizeof made, &made);
        EXPECT_EQ(made.lbColor, RGB(9, style, 9));
        EXPECT_EQ(made.lbStyle, static_cast<UINT>(hatches[style] < 0 ? BS_SOLID : BS_HATCHED));
        EXPECT_TRUE(hatches[style] < 0 || made.lbHatch == static_cast<ULONG_PTR>(hatches[style]));
        const HBRUSH before = out.brush;
        out.fillcolour(RGB(9, style, 9), 7 - style); // another style alone
        EXPECT_EQ(out.brush, before);
    }
    out.linecolour(red, 0);
    const HPEN before = out.pen;
    out.linecolour(red, 2);
    EXPECT_EQ(out.pen, before);
    out.endpaint();
    out.linecolour(green, 0); // without a device context the cache keeps
    EXPECT_EQ(out.linecolour_, red);
}

namespace {

void draw_everything(CWntOut& o, int a, int b) {
    POINT p[] = {{a, b}, {b, a}, {5, 5}, {5, b}};
    char text[] = "text";
    o.linecolour(RGB(1, 2, 3), 3);
    o.line(a, b, b, a), o.line(3, 4, a, b);
    o.linecolour(red, 0);
    o.line(a, b, b, 5), o.hline(a, 3, b), o.vline(3, a, b), o.drawshadow(a, b, b, a, 1);
    o.boxa1(a, b, b, a), o.boxa2(a, a, b, b), o.boxr0(a, b, a, b), o.boxr1(a, b, b, a), o.boxr2(a, b, b, a);
    o.fillpoly(p, 3), o.solidpoly(p, 4), o.crosslines(p, 3, 1), o.geomline(p, 4, 0), o.geomline(p, 3, 4);
    o.geomline(p, 3, a), o.drawcircle(a, 5, b), o.drawcircle(5, a, b), o.fillcircle(a, 5, b, 7);
    o.fillcircle(5, a, 7, b), o.fillcircle(5, 5, a, b), o.pieslice(a, 5, b, a, a, b), o.pieslice(5, b, 9, a, 0, 5000);
    for (int shape = 0; shape < 6; ++shape)
        o.drawmarker(a, 5, b, shape), o.markers(p, 4, shape);
    o.trackline(a, b, 5, a), o.trackbox(a, b, b, a, a), o.trackpoly(p, 3);
    o.scroll(a, b, b, a, a, b, 0), o.scroll(0, 0, 0, 0, a, b, 0);
    o.chars(a, b, text, 9), o.chars(5, 5, text, a), o.chars_len(5, 5, a < 0 ? a : 3, text, b);
    o.titlechars(a, b, 20, 20, text), o.titlechars(5, 5, a, 12, text);
    o.setclip(a, b, b, a), o.excludeclip(a, b, b, a), o.testclip(a, b, b, a), o.resetclip();
}

} // namespace

// The ends of the integer range end neither in a crash nor in hours of drawing rows that nobody sees.
TEST_F(SurfaceTest, FarFiguresAreCutToTheDevicesRange) {
    Picture picture(60, 40);
    const int far_out[] = {INT_MIN, INT_MIN + 1, -2000000, -40000, 0, 40000, 10000000, INT_MAX - 1, INT_MAX};
    for (const int a : far_out) {
        for (const int b : far_out)
            paint(picture, [&](CWntOut& o) { draw_everything(o, a, b); });
    }
    picture.clear(ground);
    paint(picture, [](CWntOut& o) {
        POINT quarter[] = {{10, 10}, {5000000, 10}, {5000000, 5000000}, {10, 5000000}};
        POINT diagonal[] = {{-3000000, -2999995}, {3000000, 3000005}};
        o.fillpoly(quarter, 4);
        o.geomline(diagonal, 2, 0);
    });
    for (const POINT filled : {POINT{11, 11}, POINT{59, 11}, POINT{59, 39}, POINT{11, 39}})
        EXPECT_EQ(picture.at(filled.x, filled.y), green);
    for (const POINT outline : {POINT{10, 30}, POINT{50, 10}, POINT{3, 8}, POINT{30, 35}})
        EXPECT_EQ(picture.at(outline.x, outline.y), red);
    for (const POINT outside : {POINT{9, 11}, POINT{50, 9}})
        EXPECT_EQ(picture.at(outside.x, outside.y), ground);
}
