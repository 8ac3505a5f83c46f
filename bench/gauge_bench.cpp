// Value repaints of the gauge's views beside full repaints of the same values, at 200 x 200 pixels on a visible window.
#include <zopwnt.h>

#include <string>

#include "bench_table.h"
#include "pixels.h"

namespace {

constexpr const char* types[6] = {"PERCENTBAR", "THERMOMETER", "ANALOG", "DIGITAL", "PEAKLINE", "TURNKNOB"};
constexpr int size = 200;

// A measured value that goes up and down through the whole range, by one or by sevens.
struct Course {
    const char* name;
    int cycle;
    int (*value)(int);
};
constexpr Course courses[] = {
    {"steps of 1", 200, [](int i) { return i % 200 < 100 ? i % 200 : 200 - i % 200; }},
    {"jumps of 7", 101, [](int i) { return i % 101 * 7 % 101; }},
};

std::vector<COLORREF> shown(CWntGauge& gauge) {
    Picture picture(size, size);
    picture.capture(gauge.m_hWnd);
    return picture.values();
}

void measure(BenchTable& table, CWnd& host, const char* type, const Course& course) {
    CWntGauge gauge;
    gauge.Create(nullptr, "Gauge", WS_CHILD | WS_VISIBLE, CRect(0, 0, size, size), &host, 1);
    gauge.UpdateWindow();
    gauge.LoadLine((std::string(":TYPE=") + type).c_str(), 0);
    gauge.LoadLine("", 2);
    const std::string name = std::string(type) + ", " + course.name;
    const auto value = [&](int i) { gauge.SetCurVal(course.value(i)); };
    const auto full = [&](int i) {
        gauge.LoadLine((":CURVAL=" + std::to_string(course.value(i))).c_str(), 0);
        gauge.LoadLine("", 2);
    };
    const auto look = [&] { return shown(gauge); };
    for (int i = 0; i < course.cycle; ++i)
        value(i);
    const auto by_value = look();
    gauge.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    if (look() == by_value)
        table.measure_shown(name, value, look, full, look, course.cycle);
    else
        table.wrong(name);
    gauge.DestroyWindow();
}

} // namespace

int main(int argc, char** argv) {
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), 0))
        return 1;
    CWnd host;
    if (!host.CreateEx(0, nullptr, "host", WS_POPUP, CRect(0, 0, size, size), nullptr, 0))
        return 1;
    host.ShowWindow(SW_SHOWNOACTIVATE);
    BenchTable table("gauge");
    for (const char* type : types)
        for (const Course& course : courses)
            measure(table, host, type, course);
    const int result = table.finish(argc, argv);
    host.DestroyWindow();
    return result;
}
