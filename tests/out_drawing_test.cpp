// What the drawing operations leave in a picture.
#include "surface_test.h"

#include <climits>
#include <cstring>

namespace {

using Draw = void (*)(CWntOut&);

Tpt pairs[] = {{0, 0}, {1, 3}, {4, 0}, {5, 3}};
Tpt square[] = {{0, 0}, {5, 0}, {5, 3}, {0, 3}};
POINT corners[] = {{1, 0}, {3, 2}, {3, 0}};

template <class Made> Made current(HDC dc, UINT kind) {
    Made made = {};
    ::GetObject(::GetCurrentObject(dc, kind), sizeof made, &made);
    return made;
}

void draw_everything(CWntOut* o, int a, int b) {
    POINT p[] = {{a, b}, {b, a}, {5, 5}, {5, b}};
    char text[] = "text";
    o->linecolour(RGB(1, 2, 3), 3);
    o->line(a, b, b, a), o->line(3, 4, a, b);
    o->linecolour(red, 0);
    o->line(a, b, b, 5), o->hline(a, 3, b), o->vline(3, a, b), o->drawshadow(a, b, b, a, 1);
    o->boxa1(a, b, b, a), o->boxa2(a, a, b, b), o->boxr0(a, b, a, b), o->boxr1(a, b, b, a), o->boxr2(a, b, b, a);
    o->fillpoly(p, 3), o->solidpoly(p, 4), o->crosslines(p, 3, 1), o->geomline(p, 4, 0), o->geomline(p, 3, 4);
    o->geomline(p, 3, a), o->drawcircle(a, 5, b), o->drawcircle(5, a, b), o->fillcircle(a, 5, b, 7);
    o->fillcircle(5, a, 7, b), o->fillcircle(5, 5, a, b);
    o->pieslice(a, 5, b, a, a, b), o->pieslice(5, b, 9, a, 0, 5000);
    for (int shape = 0; shape < 6; ++shape)
        o->drawmarker(a, 5, b, shape), o->markers(p, 4, shape);
    o->trackline(a, b, 5, a), o->trackbox(a, b, b, a, a), o->trackpoly(p, 3);
    o->scroll(a, b, b, a, a, b, 0), o->scroll(0, 0, 0, 0, a, b, 0);
    o->chars(a, b, text, 9), o->chars(5, 5, text, a), o->chars_len(5, 5, a < 0 ? a : 3, text, b);
    o->titlechars(a, b, 20, 20, text), o->titlechars(5, 5, a, 12, text);
    o->setclip(a, b, b, a), o->excludeclip(a, b, b, a), o->testclip(a, b, b, a), o->resetclip();
}

} // namespace

TEST_F(SurfaceTest, LinesAndBoxesCoverTheirPixels) {
    const std::tuple<const char*, Draw, const char*> cases[] = {
        {"a point", [](CWntOut& o) { o.line(0, 0, 0, 0); }, "......\n......\n......\nL.....\n"},
        {"both ends", [](CWntOut& o) { o.line(4, 3, 1, 0); }, "....L.\n...L..\n..L...\n.L....\n"},
        {"hline, vline", [](CWntOut& o) { o.hline(4, 0, -3), o.vline(5, 3, -2); }, ".....L\n.....L\n.....L\n.LLLL.\n"},
        {"boxr0", [](CWntOut& o) { o.boxr0(1, 0, 3, 2); }, "......\n.LLLL.\n.L..L.\n.LLLL.\n"},
        {"boxr1 backwards", [](CWntOut& o) { o.boxr1(4, 3, -3, -2); }, ".LLLL.\n.LFFL.\n.LLLL.\n......\n"},
        {"boxes of one pixel, row, column",
         [](CWntOut& o) { o.boxr0(0, 0, 0, 0), o.boxr1(0, 2, 0, 0), o.boxr0(2, 0, 0, 3), o.boxa1(3, 1, 5, 1); },
         "..L...\nL.L...\n..LLLL\nL.L...\n"},
        {"boxa1", [](CWntOut& o) { o.boxa1(5, 0, 2, 3); }, "..LLLL\n..LFFL\n..LFFL\n..LLLL\n"},
        {"boxa2, one pixel", [](CWntOut& o) { o.boxa2(3, 2, 3, 2); }, "......\n...F..\n......\n......\n"},
        {"crosslines", [](CWntOut& o) { o.crosslines(pairs, 2, 2); }, ".LLLL.\n......\n......\nLLLL..\n"},
        {"crosslines between POINTs", [](CWntOut& o) { o.crosslines(corners, 2, 1); },
         "......\n...L..\n..LL..\n.L....\n"},
        {"square marker", [](CWntOut& o) { o.drawmarker(2, 1, 1, 4); }, "......\n.LLL..\n.L.L..\n.LLL..\n"},
        {"cross, plus", [](CWntOut& o) { o.drawmarker(1, 1, 1, 0), o.drawmarker(4, 2, 1, 1); },
         "....L.\nL.LLLL\n.L..L.\nL.L...\n"},
        {"hatched, its gaps decided by a bit of the colour",
         [](CWntOut& o) { o.fillcolour(red, 0), o.fillcolour(green, 3), o.solidpoly(square, 4); },
         "FFFFFF\nF....F\nF....F\nFFFFFF\n"},
        {"no marker", [](CWntOut& o) { o.drawmarker(2, 2, 1, 6), o.drawmarker(2, 2, 1, -1); },
         "......\n......\n......\n......\n"},
        {"tracked boxes, one without height",
         [](CWntOut& o) {
             ::PatBlt(o.dc, 0, 0, 6, 4, BLACKNESS);
             o.trackbox(1, 1, 3, 2, 0x200), o.trackbox(1, 0, 3, 0, 0x100);
         },
         "?FFFF?\n?FFFF?\n?FFFF?\n?LLLL?\n"},
        {"sunk, and a star on it", [](CWntOut& o) { o.drawshadow(0, 0, 5, 3, 0), o.drawmarker(4, 1, 1, 3); },
         "DDDDDH\nD..HHH\nD..HHH\nHHHHHH\n"},
        {"boxr2", [](CWntOut& o) { o.boxr2(4, 2, -3, -1); }, "......\n.FFFF.\n.FFFF.\n......\n"},
        {"raised, its last colour left", [](CWntOut& o) { o.drawshadow(1, 0, 4, 3, 1), o.hline(0, 3, 0); },
         "DHHHD.\n.H..D.\n.H..D.\n.DDDD.\n"},
    };
    for (const auto& [name, draw, expected] : cases)
        EXPECT_EQ(drawn(6, 4, draw), expected) << name;
}

TEST_F(SurfaceTest, LinesOfEveryStyleReachBothEnds) {
    for (int style = 0; style < 8; ++style)
        for (int length = 0; length < 60; ++length) {
            Picture picture(70, 70);
            const CPoint end(3 + length, length % 2 ? 5 : 5 + length);
            paint(picture, [&](CWntOut& o) { o.linecolour(green, style), o.line(3, 5, end.x, end.y); });
            EXPECT_EQ(CRect(picture.ink(ground)), CRect(3, end.y, end.x, 5)) << style << ' ' << length;
        }
}

TEST_F(SurfaceTest, PolygonsAreEvenOddAndLeaveTheArrayAsItWas) {
    // Two squares of the same sense, joined by a seam: the inner one is a hole.
    const std::vector<POINT> nested = {{0, 0}, {8, 0}, {8, 8}, {0, 8}, {0, 0}, {2, 2}, {6, 2}, {6, 6}, {2, 6}, {2, 2}};
    auto points = nested;
    std::string expected =
        "LLLLLLLLL\nLFFFFFFFL\nLFLLLLLFL\nLFL...LFL\nLFL...LFL\nLFL...LFL\nLFLLLLLFL\nLLFFFFFFL\nLLLLLLLLL\n";
    EXPECT_EQ(drawn(9, 9, [&](CWntOut& o) { o.fillpoly(points.data(), 10); }), expected);
    std::ranges::replace(expected, 'L', 'F');
    EXPECT_EQ(drawn(9, 9, [&](CWntOut& o) { o.solidpoly(points.data(), 10); }), expected);
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
    EXPECT_TRUE(copied.ink(ground).right == 57 && whole.ink(ground).right == 72);
    paint(copied, [&](CWntOut& o) { o.geomline(teeth.data(), 25, 0); });
    EXPECT_EQ(copied.ink(ground).right, 72);
    EXPECT_EQ(copied.at(72, 0), ground); // the polyline leaves its last pixel out
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
    static POINT centre = {40, 40};
    const std::tuple<const char*, Draw, CRect, COLORREF> cases[] = {
        {"drawcircle", [](CWntOut& o) { o.drawcircle(40, 40, 20); }, {20, 60, 59, 21}, ground},
        {"fillcircle", [](CWntOut& o) { o.fillcircle(40, 40, 20, 10); }, {20, 50, 60, 31}, green},
        {"whole pie", [](CWntOut& o) { o.pieslice(40, 40, 20, 10, 0, 16384); }, {20, 49, 60, 31}, green},
        {"section", [](CWntOut& o) { o.piesection(40, 40, 20, 10, 0, 16384, 1); }, {20, 49, 60, 31}, green},
        {"dot", [](CWntOut& o) { o.drawmarker(40, 40, 3, 5); }, {38, 42, 41, 39}, ground},
        {"circle marker", [](CWntOut& o) { o.drawmarker(40, 40, 6, 2); }, {34, 46, 45, 35}, ground},
        {"two pixels wide", [](CWntOut& o) { o.markers(&centre, 1, 1); }, {34, 46, 46, 35}, ground},
    };
    for (const auto& [name, draw, ink, middle] : cases) {
        Picture picture(90, 80);
        paint(picture, draw);
        EXPECT_EQ(CRect(picture.ink(ground)), ink) << name;
        EXPECT_EQ(picture.at(37, 42), middle) << name;
        EXPECT_EQ(picture.at((ink.left + ink.right) / 2, ink.top), red) << name;
        EXPECT_EQ(picture.at(ink.left, ink.bottom), ground) << name;
    }
}

TEST_F(SurfaceTest, FilledCirclesHaveAnOutlineOfOnePixel) {
    const auto circles = [](CWntOut& o) {
        for (const COLORREF colour : {COLORREF{OPAQUE}, green}) { // the first is taken for the mix mode
            o.fillcolour(colour, 0);
            o.fillcircle(3, 3, 3, 3);
            EXPECT_EQ(::GetBkMode(o.dc), TRANSPARENT); // as it was before
        }
    };
    EXPECT_EQ(drawn(8, 7, circles), "..LLL...\n.LFFFL..\nLFFFFFL.\nLFFFFFL.\n.LFFFL..\n..LLL...\n........\n");
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

TEST_F(SurfaceTest, ColoursComeFromTheInstalledPalette) {
    const auto expect_pen = [&](COLORREF colour) {
        const auto made = current<LOGPEN>(out.dc, OBJ_PEN);
        EXPECT_TRUE(made.lopnColor == colour && ::GetTextColor(out.dc) == colour && made.lopnWidth.x == 1) << colour;
    };
    Picture picture(10, 10);
    ASSERT_EQ(out.reset(picture.dc()), 1);
    std::vector<COLORREF> built_in;
    for (int i = 0; i < 16; ++i) {
        built_in.push_back(out.rgbcolor(i));
        out.linecolour(i, 0);
        expect_pen(built_in[i]);
    }
    EXPECT_THAT(built_in,
                testing::ElementsAre(0, 0xFFFFFF, 0xFF0000, 0x00FFFF, 0x00FF00, 0xFF00FF, 0x0000FF, 0xFFFF00, 0x808080,
                                     0xC0C0C0, 0x800000, 0x008080, 0x008000, 0x800080, 0x000080, 0x808000));
    EXPECT_EQ(out.rgbcolor(16) + out.rgbcolor(-1), 0u);
    COLORREF own[4] = {RGB(1, 0, 0), RGB(2, 0, 0), RGB(3, 0, 0), RGB(4, 0, 0)};
    COLORREF* installed = nullptr;
    out.setcolorpalette(own, 4);
    EXPECT_TRUE(out.getcolorpalette(&installed) == 4 && installed == own);
    out.linecolour(6, 0);
    expect_pen(own[2]);
    EXPECT_EQ(out.rgbcolor(6), red); // whatever is installed
    out.linecolour(-1, 0);           // no entry: the first one
    expect_pen(own[0]);
    out.setcolorpalette(nullptr, 9);
    EXPECT_EQ(out.getcolorpalette(nullptr), 0);
    out.linecolour(6, 0);
    expect_pen(red);
}

TEST_F(SurfaceTest, AColourInForceMakesNothing) {
    Picture picture(10, 10);
    ASSERT_EQ(out.reset(picture.dc()), 1);
    out.linecolour(RGB(255, 255, 255), 0); // white and black count as in force
    out.fillcolour(RGB(0, 0, 0), 0);
    EXPECT_TRUE(!out.pen && !out.brush);
    constexpr UINT styles[8] = {PS_SOLID, PS_SOLID, PS_DOT, PS_DASH, PS_DASHDOT, PS_DOT, PS_DASH, PS_DASHDOTDOT};
    constexpr int hatches[8] = {-1, -1, HS_VERTICAL, HS_HORIZONTAL, HS_DIAGCROSS, HS_DIAGCROSS, HS_CROSS, HS_CROSS};
    for (int style = 0; style < 8; ++style) {
        out.fillcolour(RGB(9, style, 9), style);
        const auto made = current<LOGBRUSH>(out.dc, OBJ_BRUSH);
        EXPECT_EQ(made.lbColor, RGB(9, style, 9));
        EXPECT_EQ(made.lbStyle == BS_SOLID ? -1 : static_cast<int>(made.lbHatch), hatches[style]);
        out.linecolour(RGB(9, style, 9), style);
        EXPECT_EQ(current<LOGPEN>(out.dc, OBJ_PEN).lopnStyle, styles[style]);
        const std::pair before(out.pen, out.brush);
        out.linecolour(RGB(9, style, 9), 7 - style); // another style alone
        out.fillcolour(RGB(9, style, 9), 7 - style);
        EXPECT_EQ(std::pair(out.pen, out.brush), before);
    }
}

// The ends of the integer range end neither in a crash nor in hours of drawing rows that nobody sees.
TEST_F(SurfaceTest, FarFiguresAreCutToTheDevicesRange) {
    Picture picture(60, 40);
    const int far_out[] = {INT_MIN, INT_MIN + 1, -2000000, -40000, 0, 40000, 10000000, INT_MAX - 1, INT_MAX};
    for (const int a : far_out)
        for (const int b : far_out)
            paint(picture, [&](CWntOut& o) { draw_everything(&o, a, b); });
    paint(picture, [](CWntOut& o) {
        POINT quarter[] = {{10, 10}, {5000000, 10}, {5000000, 5000000}, {10, 5000000}};
        POINT diagonal[] = {{-3000000, -2999995}, {3000000, 3000005}};
        o.fillpoly(quarter, 4);
        o.geomline(diagonal, 2, 0);
    });
    const std::tuple<int, int, COLORREF> filled_or_outlined_or_neither[] = {
        {11, 11, green}, {59, 11, green}, {59, 39, green}, {11, 39, green}, {10, 30, red},
        {50, 10, red},   {3, 8, red},     {30, 35, red},   {9, 11, ground}, {50, 9, ground}};
    for (const auto& [x, y, colour] : filled_or_outlined_or_neither)
        EXPECT_EQ(picture.at(x, y), colour) << x << ' ' << y;
    paint(picture, [](CWntOut& o) { o.fillcircle(30 - 60'000, 20, 60'000, 60'000); }); // just within
    EXPECT_EQ(std::pair(picture.at(27, 20), picture.at(33, 20)), std::pair(green, ground));
}

TEST_F(SurfaceTest, AnswersForTheGeometryOfItsCallers) {
    POINT met = {}, ends[2] = {}, corner[] = {{0, 0}, {0, 10}, {10, 0}}, square[] = {{0, 0}, {0, 9}, {9, 9}, {9, 0}};
    RECT box = {10, 40, 60, 20};
    out.points_intersect(&met, 0, 0, 30, 60, 0, 20, 90, 20);
    EXPECT_EQ(std::pair(met.x, met.y), std::pair(10L, 20L));
    EXPECT_EQ(out.points_clipline(ends, &box, 0, 30, 100, 30) * 1000 + ends[0].x * 10 + ends[1].x, 1160);
    EXPECT_EQ(out.points_partclip(&met, &box, 0, 30, 50, 30) * 100 + met.x, 110);
    ASSERT_EQ(out.reset(), 1);
    EXPECT_EQ(out.points_testinrect(20, 79 - 30, box) * 10 + out.points_testinrect(20, 30, box), 10);
    out.calcpolywind(&box, square + 1, 3);
    EXPECT_THAT((std::vector{box.left, box.top, box.right, box.bottom}), testing::ElementsAre(0, 9, 9, 0));
    EXPECT_THAT((std::vector{out.intsin(8192, 100), out.intcos(5461, 100), out.muldiv(7, 9, 2), out.aproxroot(50),
                             out.getangle(1, 2, 3, 1), out.points_center(10, 4, 20), out.points_testincircle(3, 4, 6),
                             out.points_testclock(corner, 0), out.points_testclock(corner, 1),
                             out.points_testinpoly(3, 5, square, 4), out.points_testinpoly(3, 11, square, 4)}),
                testing::ElementsAre(70, 86, 31, 7, 9, 7, 1, 0, 1, 1, 0));
}

TEST_F(SurfaceTest, DrawingObjectsDoNotPileUp) {
    CPen pen(PS_SOLID, 2, RGB(1, 2, 3));
    CBrush brush(RGB(4, 5, 6));
    Picture picture(20, 20);
    ::SelectObject(picture.dc(), pen);
    ::SelectObject(picture.dc(), brush);
    int settled = 0;
    for (int i = 0; i <= 20'000; ++i) {
        ASSERT_EQ(i % 2 ? out.reset() : out.reset(picture.dc()), 1);
        out.linecolour(RGB(i, i >> 8, 0), i & 7);
        out.fillcolour(RGB(0, i, i >> 8), i & 7);
        out.boxr1(1, 1, 3, 3);
        if (i % 256 == 0)
            draw_everything(&out, 3, i % 7);
        if (i % 3) // an owner may forget it
            out.endpaint();
        if (i == 1000)
            settled = live_gdi_objects();
    }
    EXPECT_EQ(live_gdi_objects(), settled);
    EXPECT_TRUE(::GetCurrentObject(picture.dc(), OBJ_PEN) == pen.m_hObject &&
                ::GetCurrentObject(picture.dc(), OBJ_BRUSH) == brush.m_hObject);
    out.ReleaseDrawing();
    const int released = live_gdi_objects();
    for (int i = 0; i < 1000; ++i)
        out.fillcolour(RGB(i, 9, 9), 0); // without a device context
    out.ReleaseDrawing();
    EXPECT_EQ(live_gdi_objects(), released);
}

TEST_F(SurfaceTest, NullObjectsAreHarmless) {
    Picture picture(10, 10);
    RECT rect = {};
    int pair[2];
    LOGFONTA font;
    CWntOut* volatile none = nullptr;
    EXPECT_EQ(none->reset() + none->reset(picture.dc()) + none->getcolorpalette(nullptr), 0);
    EXPECT_EQ(none->testclip(0, 0, 1, 1) + none->points_testinrect(0, 0, rect), 0);
    EXPECT_EQ(none->Whelper_translatekeyboardinput(pair, WM_CHAR, 'a', 0), 0);
    EXPECT_EQ(none->getZopguiFont(&font, ZOPFONT_PROPORTIONAL), 0);
    none->endpaint(), none->ReleaseDrawing(), none->getmousepos(pair), none->setmouseshape(short{3});
    none->setbackground(1, 2), none->setbackgroundbitmap(3), none->queryupdaterect(&rect), none->queryclip(&rect);
    none->setcolorpalette(nullptr, 0), none->fillcolour(red, 0), none->linecolour(1, 0), none->setclip(&rect);
    none->settext(1, 2, 3, 4, 5, 6), none->setfont(nullptr);
    draw_everything(none, 1, 2);
}
