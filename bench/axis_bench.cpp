// Full paints of a 1000 x 60 axis of each type beside the raw GDI calls for the same lines and texts, both by way of
// a picture in memory that is shown at once.
#include <zopwnt.h>

#include <string>

#include "axis_reference.h"
#include "yardstick_window.h"

namespace {

constexpr int width = 1000;
constexpr int height = 60;

void measure(BenchTable& table, const char* name, CWntAxis& axis, const AxisLook& look,
             const std::vector<AxisMark>& marks) {
    const AxisReference reference;
    const auto paint = [&](HDC dc) { reference.paint(dc, width, height, look, marks); };
    measure_paint(table, name, axis, paint, 0, height);
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
        const AxisLook values{2, value_ticks_start, value_labels_start};

        axis.SetRange(0.0f, 100.0f); // steps of 0.5, five pixels each
        std::vector<AxisMark> marks;
        for (int k = 1; k <= axis.GetGridCount(); ++k) {
            char label[20];
            std::snprintf(label, sizeof label, "%g", 0.5 * k);
            marks.push_back({5 * k, k % 5 ? 2 : 6, k % 5 ? "" : label});
        }
        measure(table, "numeric axis, full paint", axis, values, marks);

        std::vector<CString> texts(20, "Boiler 7");
        axis.SetAxisType(1);
        axis.SetTexts(20, texts.data());
        marks.clear();
        for (int k = 0; k < 20; ++k)
            marks.push_back({50 * k, 6, "Boiler 7"});
        measure(table, "text axis, full paint", axis, values, marks);

        TAxisdatetime start = {1, 11, 2026, 0, 0, 0, 0};
        TAxisdatetime end = {1, 11, 2026, 20, 0, 0, 0};
        axis.SetViewTime(&start, &end);
        marks.clear();
        for (int k = 0; k < 20; ++k) {
            char label[20];
            std::snprintf(label, sizeof label, "%2dh", k);
            marks.push_back({50 * k, 3, label});
        }
        measure(table, "time axis, full paint", axis, {2, time_ticks_start, time_labels_start}, marks);
        result = table.finish(argc, argv);
    }
    host.DestroyWindow();
    return result;
}
