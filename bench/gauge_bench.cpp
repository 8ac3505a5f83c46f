// Value repaints of the gauge's views beside full repaints, at 200 x 200 pixels on a visible window.
#include <zopwnt.h>

#include <string>

#include "bench_table.h"
#include "pixels.h"

namespace {

constexpr const char* types[6] = {"PERCENTBAR", "THERMOMETER", "ANALOG", "DIGITAL", "PEAKLINE", "TURNKNOB"};
constexpr int size = 200;

// Up and down in steps of one, as a measured value moves.
int value_at(int i) {
    const int phase = i % 200;
    return phase < 100 ? phase : 200 - phase;
}

std::vector<COLORREF> shown(CWntGauge& gauge) {
    Picture picture(size, size);
    picture.capture(gauge.m_hWnd);
    return picture.values();
}

void measure(BenchTable& table, CWnd& host, const char* type) {
    CWntGauge gauge;
    gauge.Create(nullptr, "Gauge", WS_CHILD | WS_VISIBLE, CRect(0, 0, size, size), &host, 1);
    gauge.UpdateWindow();
    gauge.LoadLine((std::string(":TYPE=") + type).c_str(), 0);
    const auto full = [&](int) { gauge.LoadLine("", 2); };
    full(0);
    for (int i = 0; i < 40; ++i)
        gauge.SetCurVal(value_at(7 * i));
    const auto by_value = shown(gauge);
    full(0);
    if (shown(gauge) == by_value)
        table.measure(
            std::string(type) + " value / full repaint", [&](int i) { gauge.SetCurVal(value_at(i)); }, full);
    else
        table.wrong(type);
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
        measure(table, host, type);
    const int result = table.finish(argc, argv);
    host.DestroyWindow();
    return result;
}
