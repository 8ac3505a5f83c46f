#include "test_random.h"
#include "widgets/pulse/pulse_picture.h"
#include "widgets/pulse/pulse_view.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <deque>
#include <limits>
#include <string>

using namespace wnt;

extern "C" int fuzz_pulse_series(const std::uint8_t* data, std::size_t size);

namespace {

constexpr double hole = std::numeric_limits<double>::quiet_NaN();

// Streams that the fuzz target compares with a plain queue: a capacity, then samples of a kind, a pause and a value.
TEST(PulseSeries, HoldsTheNewestSamplesAndTheirBlocks) {
    for (const int capacity : {0, 1, 5, 16, 100, 255, 256, 9000}) {
        Random random(static_cast<unsigned>(capacity));
        std::vector<std::uint8_t> bytes = {static_cast<std::uint8_t>(capacity),
                                           static_cast<std::uint8_t>(capacity >> 8)};
        for (int i = 0; i < 12'000; ++i) {
            const int pause = random.one_in(50) ? random.upto(5000) : random.upto(3);
            const double value = random.one_in(200) ? hole : random.unit();
            const auto* parts = reinterpret_cast<const std::uint8_t*>(&value);
            bytes.insert(bytes.end(), {1, static_cast<std::uint8_t>(pause), static_cast<std::uint8_t>(pause >> 8)});
            bytes.insert(bytes.end(), parts, parts + sizeof value);
            if (random.one_in(1000))
                fuzz_pulse_series(bytes.data(), bytes.size());
        }
    }
}

TEST(PulseSeries, RefusesTimesThatRunBackAndTakesOthersOnly) {
    PulseSeries series(3);
    EXPECT_TRUE(series.append(10, 1));
    EXPECT_TRUE(series.append(10, std::numeric_limits<double>::infinity()));
    EXPECT_FALSE(series.append(9, 2));
    EXPECT_FALSE(series.append(PulseSeries::latest + 1, 2));
    EXPECT_EQ(series.size(), 2u);
    EXPECT_TRUE(std::isnan(series[1].value));
    series.clear();
    EXPECT_TRUE(series.append(-PulseSeries::latest, 2));
    EXPECT_EQ(series.size(), 1u);
}

TEST(PulseSeries, TakesAtMost24BytesASample) {
    PulseSeries series;
    for (int i = 0; i < 1'500'000; ++i)
        series.append(i, i % 7);
    EXPECT_EQ(series.size(), PulseSeries::default_capacity);
    EXPECT_LE(series.memory() / series.size(), 24u);
}

// A picture with every sample a run of its own.
void paint_every_sample(const PulseSeries& series, const ColumnScale& scale, std::int64_t longest_pause,
                        ColumnPainter& painter) {
    bool joined = false;
    std::int64_t before = 0;
    for (std::uint64_t i = series.first(); i != series.end(); ++i) {
        const auto [time, value] = series[i];
        if (!std::isnan(value))
            painter.run({scale.column(time), 1, value, value, value, value, joined && time - before <= longest_pause});
        joined = !std::isnan(value);
        before = time;
    }
}

using Pixels = std::vector<std::uint32_t>;

std::int64_t random_pause(Random& random) {
    const std::int64_t pauses[] = {5, 40, 1000, INT64_MAX - 1};
    return random.of(pauses);
}

// Series of every kind: walks, bursts, spikes, constants, holes in plenty.
void extend(PulseSeries& series, Random& random, int count) {
    const int kind = random.upto(4), step = random.one_in(3) ? 300 : random.upto(4), holes = random.one_in(3) ? 3 : 500;
    std::int64_t time = series.size() ? series.newest() : random.upto(1000) - 500;
    double value = 50;
    for (int i = 0; i < count; ++i) {
        time += random.one_in(60) ? random.upto(2000) : random.upto(step);
        value = kind == 0   ? value + random.unit() - 0.5
                : kind == 1 ? random.unit() * 100
                : kind == 2 ? (random.one_in(100) ? 1e300 : 20)
                : kind == 3 ? std::sin(static_cast<double>(time) / 300) * 70 + 50
                            : 33;
        series.append(time, random.one_in(holes) ? hole : value);
    }
}

CurveStyle random_style(Random& random) {
    CurveStyle style;
    style.colour = 0xFF0000 + random.upto(255);
    style.line = random.upto(9) - 1;
    style.thickness = 1 + (random.one_in(3) ? random.upto(2) : 0);
    style.steps = random.one_in(3);
    style.marks = random.one_in(2);
    return style;
}

TEST(PulseDecimation, PaintsWhatAllSamplesPaint) {
    for (unsigned seed = 0; seed < 400; ++seed) {
        Random random(seed);
        PulseSeries series(random.one_in(2) ? 3000 : 30'000);
        extend(series, random, random.one_in(4) ? 40'000 : random.upto(3000));
        if (series.size() == 0)
            continue;
        ColumnScale scale{1 + random.upto(random.one_in(2) ? 200'000 : 3000), 1 + random.upto(300)};
        const std::int32_t height = 1 + random.upto(200);
        const std::int64_t middle = series[series.first() + random.upto(static_cast<int>(series.size()) - 1)].time;
        const std::int64_t origin = scale.column(middle) - random.upto(scale.width);
        const std::int64_t pause = random_pause(random);
        const ValueScale values{random.upto(40) * 1.0, 60.0 + random.upto(60), height};
        const CurveStyle style = random_style(random);
        Pixels pixels(static_cast<std::size_t>(scale.width) * height), expected = pixels;
        const PlotArea all{0, 0, scale.width, height};
        {
            CurveRaster raster({pixels.data(), scale.width, height, scale.width}, all, origin, values, style);
            paint_columns(series, scale, origin - CurveRaster::margin(style),
                          origin + scale.width + CurveRaster::margin(style), pause, raster);
            CurveRaster reference({expected.data(), scale.width, height, scale.width}, all, origin, values, style);
            paint_every_sample(series, scale, pause, reference);
        }
        ASSERT_TRUE(pixels == expected) << "seed " << seed;
    }
}

// Curves as they are drawn, a letter for each pixel.
using Curve = std::pair<CurveStyle, std::vector<std::pair<int, int>>>;
std::string drawn(const std::vector<Curve>& curves) {
    constexpr int width = 100, height = 20;
    Pixels pixels(width * height, '.');
    for (const auto& [style, points] : curves) {
        CurveRaster raster({pixels.data(), width, height, width}, {0, 0, width, height}, 100, {0, height, height},
                           style);
        for (const auto& [x, row] : points) {
            const double value = height - row;
            raster.run({100 + x, 1, value, value, value, value, x != points.front().first});
        }
    }
    std::string text;
    for (int row = 0; row < height; ++row)
        text.append(1, '\n').append(pixels.begin() + row * width, pixels.begin() + (row + 1) * width);
    return text;
}

TEST(CurveRaster, DrawsLinesStepsAndMarks) {
    EXPECT_EQ(drawn({{{.colour = 'l'}, {{0, 0}, {9, 3}, {12, 19}, {16, 0}, {30, 0}, {40, 10}, {40, 15}, {47, 8}}},
                     {{.colour = 's', .steps = true}, {{50, 2}, {60, 8}, {70, 4}}},
                     {{.colour = 't', .thickness = 3}, {{50, 11}, {62, 18}, {66, 12}, {75, 12}}},
                     {{.colour = 'm', .marks = true}, {{78, 3}, {86, 3}, {94, 9}, {97, 12}}}}),
              R"(
ll..............lllllllllllllll.....................................................................
..lll...........l..............l............................................mmmmm...mmmmm...........
.....lll........l...............l.................sssssssssss...............mmmmm...mmmmm...........
........ll.....l.................l..........................s...............mmmmmmmmmmmmm...........
.........l.....l..................l.........................s.........s.....mmmmm...mmmmm...........
.........l.....l...................l........................s.........s.....mmmmm...mmmmmm..........
..........l....l....................l.......................s.........s...................m.........
..........l....l.....................l......................s.........s....................m........
..........l...l.......................l........l............sssssssssss.....................mm......
..........l...l........................l......l...............................................m.....
..........l...l.........................l....l.................................................m....
..........l...l.........................l...l.....ttt...........................................m...
...........l.l..........................l..l......ttttt...........tttttttttttt...................m..
...........l.l..........................l.l.......ttttttt........ttttttttttttt......................
...........l.l..........................ll.........ttttttt.......ttttttttttttt......................
...........l.l..........................l............ttttttt....tttt................................
...........l.l.........................................ttttttt.ttttt................................
............l...........................................ttttttttttt.................................
............l.............................................tttttttt..................................
............l...............................................tttttt..................................)");
    std::vector<Curve> styles;
    for (int i = 0; i < 9; ++i)
        styles.push_back({{.colour = '0' + i % 8u, .line = i}, {{0, i}, {60, i}, {70, 11 + i}, {99, 11 + i}}});
    EXPECT_EQ(drawn(styles), R"(
0000000000000000000000000000000000000000000000000000000000000.......................................
11111111111111111111111111111111111111111111111111111111111110......................................
..22..22..22..22..22..22..22..22..22..22..22..22..22..22..22.10.....................................
3....33333333....33333333....33333333....33333333....33333333210....................................
...44...44444444...44...44444444...44...44444444...44...44444..10...................................
5..55..55..55..55..55..55..55..55..55..55..55..55..55..55..554.210..................................
..66666666....66666666....66666666....66666666....66666666.....3.1..................................
777777...77...77...77777777...77...77...77777777...77...77...65.320.................................
000000000000000000000000000000000000000000000000000000000000076.4310................................
.............................................................07653.10...............................
..............................................................076..210..............................
...............................................................0754..1000000000000000000000000000000
................................................................0..432111111111111111111111111111111
.................................................................0.543.22..22..22..22..22..22..22..2
.................................................................076.43333....33333333....33333333..
..................................................................0.65..44...44444444...44...4444444
...................................................................076..55..55..55..55..55..55..55..
....................................................................0.6....66666666....66666666....6
.....................................................................0.77777777...77...77...77777777
......................................................................000000000000000000000000000000)");
}

TEST(PulsePicture, FollowsAsIfDrawnAnew) {
    for (unsigned seed = 0; seed < 60; ++seed) {
        Random random(seed);
        std::vector<PulseSeries> series;
        for (int i = 0; i < 3; ++i)
            series.emplace_back(random.one_in(2) ? 30 : 5000);
        PlotScene scene;
        scene.columns = {200 + random.upto(5000), 20 + random.upto(200)};
        scene.height = 10 + random.upto(80);
        for (PulseSeries& one : series)
            scene.curves.push_back({&one, {0, 100, scene.height}, random_style(random), random_pause(random)});
        PulsePicture picture;
        for (int step = 0; step < 60; ++step) {
            for (PulseSeries& one : series)
                if (!random.one_in(4))
                    extend(one, random, random.upto(20));
            if (random.one_in(30))
                series[random.upto(2)].clear();
            std::int64_t newest = scene.origin;
            for (const PulseSeries& one : series)
                if (one.size())
                    newest = std::max(newest, scene.columns.column(one.newest()));
            scene.origin = random.one_in(4) ? scene.origin - random.upto(30) : newest - scene.columns.width + 1;
            scene.grid_columns.clear();
            for (std::int64_t grid = scene.origin - 40; grid < scene.origin + scene.columns.width; ++grid)
                if (grid % 40 == 0)
                    scene.grid_columns.push_back(grid);
            picture.show(scene);
            PulsePicture anew;
            anew.show(scene);
            const PlotCanvas a = picture.canvas(), b = anew.canvas();
            for (std::int32_t row = 0; row < a.height; ++row)
                ASSERT_TRUE(std::equal(a.row(row), a.row(row) + a.width, b.row(row))) << seed << ' ' << step;
        }
    }
}

TEST(PulsePicture, ShowsGridBelowCurves) {
    PulseSeries series(4);
    PlotScene scene;
    scene.columns = {100, 20};
    scene.height = 5;
    scene.background = '.', scene.grid = '+';
    scene.grid_columns = {5, 12};
    scene.grid_rows = {2};
    scene.curves = {{&series, {0, 4, 5}, {.colour = 'c'}, 1000}};
    PulsePicture picture;
    std::string shown;
    for (const int time : {5, 25, 50, 75, 95}) { // the first one is gone at the end
        series.append(time, time / 25);
        picture.show(scene);
    }
    for (int row = 0; row < 5; ++row)
        shown.append(1, '\n').append(picture.canvas().row(row), picture.canvas().row(row) + 20);
    EXPECT_EQ(shown, R"(
.....+......+.......
.....+......+ccccccc
+++++++++cccc+++++++
.....+.cc...+.......
.....cc.....+.......)");
}

TEST(PulsePicture, ALiveTickDrawsNewColumnsOnly) {
    PulseSeries series;
    PlotScene scene;
    scene.columns = {1000, 500};
    scene.height = 100;
    scene.curves = {{&series, {0, 100, 100}, {.colour = 1}, 1000}};
    PulsePicture picture;
    for (std::int64_t time = 0; time < 5000; time += 2) {
        series.append(time, static_cast<double>(time % 100));
        scene.origin = scene.columns.column(time) - 499;
        picture.show(scene);
        ASSERT_EQ(picture.drawn().size(), 1u) << "each column once";
        ASSERT_TRUE(time == 0 || picture.drawn()[0].right - picture.drawn()[0].left <= 10);
    }
}

TEST(ValueScale, PutsTheEndsOnTheOutermostRowsAndKeepsOrder) {
    for (const std::int32_t height : {1, 2, 7, 480}) {
        const ValueScale scale{-5, 20, height};
        EXPECT_EQ(scale.row(-5), height - 1);
        EXPECT_EQ(scale.row(20), 0);
        EXPECT_GT(scale.row(-5.0 - 30.0 / height), height - 1);
        std::vector<double> values;
        for (int i = -100; i <= 1100; ++i)
            values.push_back(-5 + 25 * i / 1000.0);
        for (const double odd : {-1e308, 1e308, -HUGE_VAL, HUGE_VAL})
            values.push_back(odd);
        std::vector<std::int32_t> rows(values.size());
        scale.rows(values.data(), values.size(), rows.data());
        for (std::size_t i = 0; i < values.size(); ++i)
            EXPECT_EQ(rows[i], scale.row(values[i]));
        for (int i = 1; i <= 1200; ++i)
            EXPECT_LE(rows[i], rows[i - 1]);
        EXPECT_GT(rows[1201], 10'000);
        EXPECT_LT(rows[1202], -10'000);
        for (std::int32_t row = 0; row < height - 1; ++row)
            EXPECT_EQ(scale.row(scale.value(row)), row);
    }
    EXPECT_EQ((ValueScale{3, 3, 10}.row(7)), 9); // no range
}

TEST(ValueScale, FitsInRoundStepsAndRarely) {
    const auto range = [](const ValueScale& present, double low, double high) {
        const ValueScale found = fitted(present, low, high);
        return std::pair(found.low, found.high);
    };
    const ValueScale present{0, 100, 50};
    using Range = std::pair<double, double>;
    EXPECT_EQ(range(present, 3, 97), Range(0, 100));
    EXPECT_EQ(range(present, 3, 50), Range(0, 100));  // still filled well
    EXPECT_EQ(range(present, 3, 30), Range(0, 30));   // shrinks
    EXPECT_EQ(range(present, 3, 101), Range(0, 120)); // outgrown
    EXPECT_EQ(range(present, -0.37, 0.12), Range(-0.4, 0.2));
    EXPECT_EQ(range(present, 1, -1), Range(0, 100)); // nothing to show
    EXPECT_LT(range(present, 7, 7).first, 7);
    EXPECT_GT(range(present, 7, 7).second, 7);
    EXPECT_EQ(range({-100, -50, 50}, -99, -60), Range(-100, -50)); // filled well below zero, too
    for (const double odd : {1e308, -1e308, 5e-324, 0.0})
        EXPECT_LT(range(present, odd, odd).first, range(present, odd, odd).second) << odd;
    EXPECT_EQ(range(present, -1.7e308, 1.7e308), Range(0, 100)); // no range of doubles
    // A rising value changes the range a few times, not with every sample.
    ValueScale rising{0, 1, 50};
    int changes = 0;
    for (int i = 1; i < 10'000; ++i) {
        const ValueScale next = fitted(rising, 0, i * 0.1);
        changes += !(next == rising);
        rising = next;
    }
    EXPECT_LT(changes, 40);
}

TEST(PulseView, FollowsNowUntilTheUserLooksBack) {
    PulseView view;
    view.resize(600);
    view.zoom(6000, 0); // ten columns a second
    view.set_history(0, 100'000);
    EXPECT_TRUE(view.live());
    EXPECT_EQ(view.x(100'000), 599);
    view.scroll(-100);
    EXPECT_FALSE(view.live());
    EXPECT_EQ(view.x(100'000), 699);
    view.set_history(0, 101'000); // more arrives
    EXPECT_EQ(view.x(100'000), 699);
    const std::int64_t zooms[][3] = {{3000, 200, 200}, {600, -50, 0}, {300, 10'000, 599}}; // beside the plot, too
    for (const auto& [span, x, kept] : zooms) {
        const std::int64_t there = view.time(kept);
        view.zoom(span, x);
        EXPECT_EQ(view.time(kept), there) << span;
    }
    view.zoom(3000, 0);
    view.scroll(-1'000'000'000);
    EXPECT_EQ(view.x(0), 0); // the oldest sample at the left edge
    view.scroll(1'000'000'000);
    EXPECT_TRUE(view.live());
    EXPECT_EQ(view.x(101'000), 599);
    view.show(20'000, 26'000);
    EXPECT_FALSE(view.live());
    EXPECT_EQ(view.start(), 20'000);
    EXPECT_EQ(view.end(), 26'000);
    view.resize(300);
    EXPECT_EQ(view.x(25'999), 299);
    view.set_live(true);
    EXPECT_EQ(view.x(101'000), 299);
    view.show(5, 1); // turned round
    EXPECT_EQ(view.span(), PulseView::shortest_span);
}

TEST(PulseView, StaysWhereItIsPut) {
    PulseView view;
    view.resize(600);
    view.show(1'000'000, 1'006'000); // before there are samples
    EXPECT_EQ(view.start(), 1'000'000);
    view.set_history(0, 100'000);
    EXPECT_EQ(view.start(), 1'000'000);
    const std::int64_t end = view.time(599);
    for (int width = 599; width > 1; width = width * 9 / 10)
        view.resize(width);
    view.resize(600);
    EXPECT_EQ(view.time(599), end);
    view.set_live(true);
    view.zoom(600'000, 0); // more than there is
    view.scroll(-10);
    EXPECT_TRUE(view.live()); // nothing moved
    view.zoom(100, 0);
    EXPECT_EQ(view.x(100'000), 594);    // six columns a hundredth, all of the last one's
    EXPECT_EQ(view.x(view.start()), 0); // where the axis begins
}

TEST(PulseView, HoldsAtAnyCall) {
    Random random(3);
    const std::int64_t odd[] = {INT64_MIN, -1, 0, 1, INT64_MAX, PulseSeries::latest};
    PulseView view;
    const auto some = [&] { return random.one_in(3) ? random.of(odd) : random.upto(1'000'000) - 500'000; };
    const std::function<void()> calls[] = {[&] { view.resize(static_cast<std::int32_t>(some())); },
                                           [&] { view.zoom(some(), some()); },
                                           [&] { view.show(some(), some()); },
                                           [&] { view.scroll(some()); },
                                           [&] { view.set_history(some(), some()); },
                                           [&] { view.set_live(random.one_in(2)); }};
    for (int i = 0; i < 20'000; ++i) {
        random.of(calls)();
        ASSERT_LT(view.start(), view.end());
        ASSERT_TRUE(PulseView::shortest_span <= view.span() && view.span() <= PulseView::longest_span);
    }
}

} // namespace
