// Full paints of a 1000 x 60 axis of each type beside the raw GDI calls for the same lines and texts, both by way of
// a picture in memory that is shown at once.
#include <zopwnt.h>

#include <array>
#include <string>

#include "axis_reference.h"
#include "yardstick_window.h"

namespace {

constexpr int width = 1000;
constexpr int height = 60;

constexpr int states = 2;
using MarksOfStates = std::array<std::vector<AxisMark>, states>;

template <class... Parts> std::string text(const char* format, Parts... parts) {
    char made[20];
    std::snprintf(made, sizeof made, format, parts...);
    return made;
}

void measure(BenchTable& table, const char* name, CWntAxis& axis, const AxisLook& look,
             const std::function<void(int)>& set, const MarksOfStates& marks) {
    const auto paint = [&](HDC dc, int state) {
        paint_axis(dc, width, height, look, marks[static_cast<std::size_t>(state)]);
    };
    measure_paint(table, name, axis, states, set, paint, 0, height);
}

void measure_all(BenchTable& table, CWntAxis& axis) {
    const AxisLook values{2, value_ticks_start, value_labels_start};
    axis.SetRange(0.0f, 100.0f); // steps of 0.5, five pixels each
    const int steps = axis.GetGridCount();
    std::array<std::vector<CString>, states> texts;
    MarksOfStates numbers, names, times;
    for (int s = 0; s < states; ++s) {
        const auto i = static_cast<std::size_t>(s);
        for (int k = 1; k <= steps; ++k)
            numbers[i].push_back({5 * k, k % 5 ? 2 : 6, k % 5 ? "" : text("%g", 100 * s + 0.5 * k)});
        for (int k = 0; k < 20; ++k) {
            names[i].push_back({50 * k, 6, text("Boiler %d", 7 + s)});
            texts[i].push_back(names[i].back().label.c_str());
            times[i].push_back({50 * k, 3, text("%2dh", k + s)});
        }
    }
    const auto set_range = [&](int s) { axis.SetRange(100.0f * s, 100.0f * s + 100); };
    measure(table, "numeric axis, full paint", axis, values, set_range, numbers);

    axis.SetAxisType(1);
    const auto set_texts = [&](int s) { axis.SetTexts(20, texts[static_cast<std::size_t>(s)].data()); };
    measure(table, "text axis, full paint", axis, values, set_texts, names);

    const auto set_times = [&](int s) {
        TAxisdatetime start = {1, 11, 2026, s, 0, 0, 0};
        TAxisdatetime end = {1, 11, 2026, s + 20, 0, 0, 0};
        axis.SetViewTime(&start, &end);
    };
    measure(table, "time axis, full paint", axis, {2, time_ticks_start, time_labels_start}, set_times, times);
}

} // namespace

int main(int argc, char** argv) {
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), 0))
        return 1;
    CWnd host;
    if (!host.CreateEx(0, nullptr, "host", WS_POPUP, CRect(0, 0, width, 2 * height), nullptr, 0))
        return 1;
    host.ShowWindow(SW_SHOWNOACTIVATE);
    int result;
    {
        CWntAxis axis;
        axis.Create(nullptr, "Axis", WS_CHILD | WS_VISIBLE, CRect(0, 0, width, height), &host, 1);
        BenchTable table("axis");
        measure_all(table, axis);
        result = table.finish(argc, argv);
    }
    host.DestroyWindow();
    return result;
}
