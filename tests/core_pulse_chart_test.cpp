#include "own_folder.h"
#include "pulse/wnt_pulse_file.h"
#include "script/colours.h"
#include "script/keywords.h"
#include "script/values.h"
#include "widgets/axis/time_value.h"
#include "widgets/pulse/chart_layout.h"
#include "widgets/pulse/pulse_chart.h"
#include "widgets/pulse/pulse_transfer.h"
#include "widgets/pulse/pulse_view.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <sstream>

using namespace wnt;
namespace fs = std::filesystem;
using testing::ElementsAre;

namespace {

TEST(PulseChart, FollowsItsScript) {
    PulseChart chart;
    for (const char* line : {":TITLE=Boiler", ":SPAN=120", ":GAP=5", ":CURVE=Flow , RED , -2.5, 1e3", ":STEPS=ON",
                             ":STYLE=DOT", ":CURVE=Plain,BLUE", ":MARKS=OFF", ":GRID=OFF", ":LEGEND=0", ":FIT=1",
                             ":AXES=RIGHT", ":CLRBACK=BLACK", ":CLRTEXT=WHITE", ":CLRGRID=GRAY"})
        EXPECT_TRUE(chart.load_line(line)) << line;
    EXPECT_EQ(chart.title, "Boiler");
    EXPECT_EQ(chart.span, 12'000);
    EXPECT_EQ(chart.longest_pause, 500);
    EXPECT_EQ(chart.axes, side_right);
    EXPECT_TRUE(!chart.grid && !chart.legend && chart.fit);
    EXPECT_EQ(chart.background, colour_values[0]);
    EXPECT_EQ(chart.text, colour_values[1]);
    EXPECT_EQ(chart.grid_colour, colour_values[9]);
    ASSERT_EQ(chart.curves().size(), 2u);
    const ChartCurve& flow = chart.curves()[0];
    EXPECT_EQ(flow.title, "Flow");
    EXPECT_TRUE(flow.colour == colour_values[6] && flow.low == -2.5 && flow.high == 1000 && flow.steps &&
                flow.style == 2);
    const ChartCurve& plain = chart.curves()[1];
    EXPECT_TRUE(plain.low == 0 && plain.high == 100 && !plain.marks && !plain.steps);
    for (const char* line : {":CURVE=No colour", ":CURVE=x,PINK,0,1", ":CURVE=x,RED,1,1", ":CURVE=x,RED,nan,2",
                             ":CURVE=x,RED,0,1e999", ":CURVE=x,RED,,5", ":SPAN=0", ":SPAN=-1", ":STYLE=WAVE",
                             ":GRID=MAYBE", ":CLRBACK=PINK", ":NOSUCHKEY=1", "GRID=ON", ""})
        EXPECT_FALSE(chart.load_line(line)) << line;
    EXPECT_TRUE(chart.load_line(":SPAN=2147483647"));
    EXPECT_EQ(chart.span, PulseView::longest_span);
    for (int i = 2; i < 10; ++i)
        EXPECT_TRUE(chart.load_line(":CURVE=a title of more than twenty-four characters,RED,0,1"));
    EXPECT_EQ(chart.curves()[9].title, "a title of more than twe");
    EXPECT_FALSE(chart.load_line(":CURVE=eleventh,RED,0,1"));
    EXPECT_TRUE(chart.load_line(":TITLE=" + std::string(80, 't')) && chart.title.size() == title_capacity - 1);
    EXPECT_TRUE(chart.load_line(":CLEARCURVES"));
    EXPECT_TRUE(chart.curves().empty());
}

TEST(PulseChart, EqualRangesAreShared) {
    PulseChart chart;
    chart.add_curve("a", 0, 0, 1);
    chart.add_curve("b", 0, 0, 10);
    chart.add_curve("c", 0, 0, 1);
    chart.add_curve("d", 0, 5, 10);
    EXPECT_THAT(chart.ranges(), ElementsAre(0, 1, 0, 2));
    chart.curve(0).shown = chart.curve(2).shown = false; // what is shown has the axes
    EXPECT_THAT(chart.ranges(), ElementsAre(2, 0, 2, 1));
    EXPECT_TRUE(chart.set_range(1, 0, 1));
    EXPECT_THAT(chart.ranges(), ElementsAre(0, 0, 0, 1));
    EXPECT_FALSE(chart.set_range(1, 1, 0) || chart.set_range(4, 0, 1) || chart.set_range(-1, 0, 1) ||
                 chart.set_range(0, -1.7e308, 1.7e308));
}

TEST(PulseChart, BoundsTheSamplesOfAllCurvesTogether) {
    PulseChart chart;
    chart.add_curve("a", 0, 0, 1);
    chart.add_curve("b", 0, 0, 1);
    for (int i = 0; i < 100; ++i)
        chart.curve(0).samples->append(i, i);
    EXPECT_FALSE(chart.set_capacity(0) || chart.set_capacity(PulseChart::most_samples / 2 + 1));
    EXPECT_TRUE(chart.set_capacity(10));
    EXPECT_EQ(chart.curve(0).samples->size(), 10u);
    EXPECT_EQ(chart.value_at(0, 1'000), 99);
    EXPECT_EQ(chart.oldest(), 90);
    EXPECT_TRUE(chart.set_capacity(PulseChart::most_samples / 2));
    EXPECT_EQ(chart.add_curve("c", 0, 0, 1), PulseChart::no_curve); // no room for its samples
}

TEST(PulseChart, ReadsValuesOff) {
    PulseChart chart;
    chart.longest_pause = 100;
    chart.add_curve("a", 0, 0, 1);
    EXPECT_FALSE(chart.newest());
    for (const auto& [time, value] : {std::pair{10, 1.0}, {50, 2.0}, {60, std::nan("")}, {70, 3.0}})
        chart.curve(0).samples->append(time, value);
    EXPECT_FALSE(chart.value_at(0, 9));
    EXPECT_EQ(chart.value_at(0, 10), 1);
    EXPECT_EQ(chart.value_at(0, 59), 2);
    EXPECT_FALSE(chart.value_at(0, 60));
    EXPECT_EQ(chart.value_at(0, 170), 3);
    EXPECT_FALSE(chart.value_at(0, 171));
    EXPECT_FALSE(chart.value_at(1, 10));
    EXPECT_FALSE(chart.value_at(0, INT64_MIN));
    EXPECT_FALSE(chart.value_at(0, INT64_MAX));
}

const ChartSizes everything = {100, 20, 17, 16, true, true, true, {100, 120, 150}};
const ChartSizes enlarged = {150, 0, 17, 16, false, true, false, {500, 40}};

std::string places(int width, int height, const ChartSizes& sizes = everything) {
    const ChartLayout l = lay_out_chart(width, height, sizes);
    std::ostringstream text;
    const std::pair<const char*, const PixelRect*> parts[] = {
        {"title", &l.title},    {"legend", &l.legend},  {"left", &l.left_axis}, {"right", &l.right_axis},
        {"time", &l.time_axis}, {"bar", &l.scroll_bar}, {"plot", &l.plot}};
    for (const auto& [name, r] : parts)
        if (*r != PixelRect())
            text << name << " " << r->left << "," << r->top << "-" << r->right << "," << r->bottom << " ";
    for (const PixelRect& r : l.entries)
        text << r.left << "," << r.top << "-" << r.right << "," << r.bottom << " ";
    return text.str();
}

TEST(ChartLayout, PlacesWhatHasRoom) {
    EXPECT_EQ(places(400, 300), "title 6,6-394,26 legend 6,26-394,43 left 6,42-52,247 right 348,42-394,247 "
                                "time 52,248-348,278 bar 52,278-348,294 plot 52,43-348,248 "
                                "6,26-106,43 106,26-226,43 226,26-376,43 ");
    EXPECT_EQ(places(300, 200), "title 6,6-294,26 legend 6,26-294,60 left 6,59-52,147 right 248,59-294,147 "
                                "time 52,148-248,178 bar 52,178-248,194 plot 52,60-248,148 "
                                "6,26-106,43 106,26-226,43 6,43-156,60 ");
    EXPECT_EQ(places(121, 121), "title 6,6-115,26 left 6,25-52,84 time 52,85-115,115 plot 52,26-115,85 "
                                "0,0-0,0 0,0-0,0 0,0-0,0 ");
    EXPECT_EQ(places(400, 300, enlarged),
              "legend 9,9-391,43 right 345,42-391,274 bar 9,275-345,291 plot 9,43-345,275 9,9-391,26 9,26-49,43 ");
    EXPECT_EQ(places(100, 300, enlarged),
              "legend 0,0-100,34 bar 0,284-100,300 plot 0,34-100,284 0,0-100,17 0,17-40,34 ");
    EXPECT_EQ(places(300, 35, enlarged), "plot 0,0-300,35 0,0-0,0 0,0-0,0 ");
    EXPECT_EQ(places(60, 40), "plot 0,0-60,40 0,0-0,0 0,0-0,0 0,0-0,0 ");
    EXPECT_EQ(places(-5, -5), "0,0-0,0 0,0-0,0 0,0-0,0 ");
}

struct PulseTransfer : OwnFolder {
    std::vector<PulsePoint> read(const std::string& path, bool spread) {
        PulseReader reader;
        EXPECT_EQ(reader.open(path), "");
        titles = reader.titles();
        reader.set_spread(spread);
        std::vector<PulsePoint> found;
        double progress = 0;
        while (reader.read(3, [&](int, std::int64_t time, double value) { found.push_back({time, value}); })) {
            EXPECT_TRUE(progress < reader.progress() && reader.progress() <= 1);
            progress = reader.progress();
        }
        return found;
    }
    std::vector<std::string> files() {
        std::vector<std::string> names;
        for (const auto& each : fs::directory_iterator("."))
            if (each.path().extension() == ".txt")
                names.push_back(each.path().filename().string());
        std::ranges::sort(names);
        return names;
    }

    std::vector<std::string> titles;
};

TEST_F(PulseTransfer, WhatWasRecordedIsRead) {
    PulseRecorder recorder;
    ASSERT_EQ(recorder.start("a.txt", {"Flow", "Pressure"}), "");
    for (int i = 0; i < 4; ++i)
        EXPECT_TRUE(recorder.put(i % 2, i + 0.5, afternoon + i / 2));
    recorder.stop();
    EXPECT_FALSE(recorder.put(0, 1, afternoon));
    const auto found = read("a.txt", false);
    EXPECT_THAT(titles, ElementsAre("Flow", "Pressure"));
    ASSERT_EQ(found.size(), 4u);
    const std::int64_t first = axis_time_of(afternoon);
    EXPECT_EQ(moment_of_axis_time(first), afternoon);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(found[i].time, first + i / 2 * 100) << i;
    ASSERT_EQ(recorder.start("a.txt", {"Flow", "Pressure"}), ""); // goes on behind it
    recorder.put(1, 9, afternoon + 9);
    recorder.stop();
    EXPECT_EQ(read("a.txt", false).size(), 5u);
    for (const std::vector<std::string>& others : {std::vector<std::string>{"Flow"}, {"Flow", "Level"}})
        EXPECT_NE(recorder.start("a.txt", others), ""); // whose records would be lost among them
    EXPECT_EQ(read("a.txt", false).size(), 5u);
    EXPECT_EQ(recorder.start("no such folder/a.txt", {"Flow"}), "the file cannot be opened");
    EXPECT_FALSE(recorder.running());
    ASSERT_EQ(recorder.start("b.txt", {"Flow"}), "");
    EXPECT_EQ(recorder.start("c.txt", {"Flow"}), "file already open");
    EXPECT_TRUE(recorder.put(0, 1, afternoon)); // to the first one
    EXPECT_TRUE(recorder.stop());
    EXPECT_FALSE(fs::exists("c.txt"));
    fs::remove("b.txt");
    recorder.start("b.txt", {"Flow"});
    recorder.put(0, 1, afternoon);
    fs::resize_file("b.txt", 5); // as a disk that did not take it
    EXPECT_FALSE(recorder.stop());
    EXPECT_NE(recorder.error(), "");
    EXPECT_NE(PulseReader().open("nothing.txt"), "");
}

TEST_F(PulseTransfer, SamplesOfASecondAreSpreadInIt) {
    PulseRecorder recorder;
    recorder.start("a.txt", {"Flow"});
    for (const int second : {0, 0, 0, 0, 1, 2, 2})
        recorder.put(0, 1, afternoon + second);
    for (int i = 0; i < 250; ++i)
        recorder.put(0, 1, afternoon + 3);
    recorder.put(0, 1, afternoon + 4);
    recorder.stop();
    std::vector<std::int64_t> times;
    for (const PulsePoint& point : read("a.txt", true))
        times.push_back(point.time - axis_time_of(afternoon));
    EXPECT_EQ(times.back(), 400); // however many there are in a second
    times.resize(7);
    EXPECT_THAT(times, ElementsAre(0, 25, 50, 75, 100, 200, 250));
}

// In the zone of Berlin the clock goes back from three to two on 25 October 2026.
TEST_F(PulseTransfer, AClockThatIsPutBackLosesNothing) {
    set_zone("CET-1CEST,M3.5.0,M10.5.0/3");
    constexpr std::int64_t two_thirty = 1'792'888'200; // the first of the two
    PulseRecorder recorder;
    recorder.start("a.txt", {"Flow"});
    for (int minute = 0; minute < 180; minute += 10)
        recorder.put(0, minute, two_thirty + 60 * minute);
    recorder.stop();
    const auto found = read("a.txt", true);
    ASSERT_EQ(found.size(), 18u);
    for (int i = 0; i < 18; ++i) {
        EXPECT_EQ(found[i].value, 10 * i);
        EXPECT_GE(found[i].time, found[std::max(i - 1, 0)].time);
#ifndef _WIN32 // the runtime has no rules for this zone
        EXPECT_EQ(found[i].time, axis_time_of(two_thirty) + 60'000 * i);
#endif
    }
    // And the axis' own clock never runs back, nor does it skip the hour that spring takes.
    for (const std::int64_t change : {two_thirty, std::int64_t{1'774'746'000}})
        for (std::int64_t i = -90; i < 200; ++i)
            EXPECT_EQ(axis_time_of(change + 60 * i) - axis_time_of(change), 6000 * i);
}

TEST_F(PulseTransfer, FilesFollowEachOtherBySizeAndDay) {
    PulseRecorder recorder;
    recorder.set_parts(200, false);
    recorder.start("a.txt", {"Flow"});
    for (int i = 0; i < 20; ++i)
        EXPECT_TRUE(recorder.put(0, i, afternoon + i));
    recorder.stop();
    EXPECT_THAT(files(), testing::Contains("a_2.txt"));
    std::size_t records = 0;
    for (const std::string& name : files()) {
        EXPECT_LT(fs::file_size(name), 300u);
        records += read(name, false).size();
    }
    EXPECT_EQ(records, 20u);
    recorder.start("a.txt", {"Flow"}); // full, as others behind it are
    recorder.put(0, 1, afternoon);
    recorder.stop();
    for (const std::string& name : files())
        EXPECT_LT(fs::file_size(name), 300u) << name;
    recorder.set_parts(200, true);
    recorder.start("day.txt", {"Flow"});
    EXPECT_FALSE(fs::exists("day.txt"));
    EXPECT_FALSE(recorder.records(1)); // no curve of the file
    for (int i = 0; i < 10; ++i)
        recorder.put(0, 1, afternoon);
    recorder.put(0, 1, afternoon + 86'400);
    EXPECT_EQ(fs::path(recorder.path()).filename(), "day-20261117.txt");
    EXPECT_TRUE(fs::exists("day-20261116.txt") && fs::exists("day-20261116_2.txt"));
}

// What a disk refuses is not told by the file itself.
TEST_F(PulseTransfer, AFileThatDoesNotGrowEndsRecording) {
    PulseRecorder recorder;
    ASSERT_EQ(recorder.start("a.txt", {"Flow"}), "");
    int written = 0;
    for (; written < 10'000 && recorder.put(0, 1, afternoon); ++written)
        if (written % 100 == 99)
            std::ofstream("a.txt"); // as if what was written since had been refused
    EXPECT_LT(written, 1000);
    EXPECT_FALSE(recorder.running());
    EXPECT_NE(recorder.error(), "");
}

TEST_F(PulseTransfer, BrokenFilesGiveWhatCanBeRead) {
    PulseRecorder recorder;
    recorder.start("a.txt", {"Flow", "Pressure"});
    for (int i = 0; i < 5; ++i)
        recorder.put(1, i, afternoon + i);
    recorder.stop();
    for (auto length = fs::file_size("a.txt"); length-- > 0;) {
        fs::resize_file("a.txt", length);
        PulseReader reader;
        int count = 0;
        if (reader.open("a.txt").empty()) {
            while (reader.read(2, [&](int curve, std::int64_t, double) { count += curve == 1; }))
                EXPECT_LE(count, 5);
        }
    }
    std::ofstream("table.csv") << "3\n" << std::string(100'000, 'x');
    EXPECT_NE(PulseReader().open("table.csv"), "");
    EXPECT_NE(PulseReader().open("."), "");
    std::ofstream("odd.txt") << "1\nFlow ;\n0;1.0;14:03:59;16/11/2026;\n0;2.0;99:99:99;99/99/2026;\n"
                                "7;3.0;14:04:00;16/11/2026;\n0;4.0;14:04:01;16/11/2026;\n";
    EXPECT_EQ(read("odd.txt", false).size(), 2u); // an impossible date, and a curve that is not there
    std::ofstream("junk.txt") << "1\nFlow ;\n0;1.0;14:03:59;16/11/2026;\njunk\n0;4.0;14:04:01;16/11/2026;\n";
    PulseReader reader;
    EXPECT_EQ(reader.open("junk.txt"), "");
    EXPECT_FALSE(reader.read(9, [](int, std::int64_t, double value) { EXPECT_EQ(value, 1); }));
    EXPECT_TRUE(reader.broken() && reader.records() == 1);
    EXPECT_TRUE(reader.open("odd.txt").empty() && !reader.broken() && reader.records() == 0);
}

} // namespace
