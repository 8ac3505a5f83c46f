#include "scripted_widget.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <string>

namespace {

constexpr int samples = 2000;

bool IsChart(const CString& script) {
    std::ifstream file(script.GetString());
    std::string line;
    for (int lines = 0; lines < 1000 && std::getline(file, line); ++lines)
        if (line.starts_with(":CURVE="))
            return true;
    return false;
}

// Waves within each curve's range, over the stretch that is shown.
void Fill(CWntPulse& chart) {
    const __int64 now = CWntPulse::Now(), span = chart.GetSpan();
    for (int curve = 0; curve < chart.GetCurveCount(); ++curve) {
        double low = 0, high = 0;
        chart.GetRange(curve, &low, &high);
        for (int i = 0; i <= samples; ++i) {
            const double t = static_cast<double>(i) / samples * 7 + curve;
            const double share = 0.5 + 0.3 * std::sin(t * (1 + curve % 3)) + 0.08 * std::sin(t * 9 + curve) +
                                 0.02 * std::sin(t * 12.9898 * 43.7);
            chart.AddSample(curve, low + (high - low) * share, now - span + span * i / samples);
        }
    }
}

} // namespace

std::unique_ptr<CWnd> MakeScripted(const CString& script, const CRect& place, CWnd* parent, UINT id) {
    const DWORD style = WS_CHILD | WS_VISIBLE;
    if (IsChart(script)) {
        auto chart = std::make_unique<CWntPulse>();
        if (!chart->Create(nullptr, "", style | WS_TABSTOP, place, parent, id))
            return nullptr;
        chart->LoadFromFile(script);
        Fill(*chart);
        return chart;
    }
    auto gauge = std::make_unique<CWntGauge>();
    if (!gauge->Create(nullptr, "Gauge", style, place, parent, id))
        return nullptr;
    gauge->LoadFromFile(script);
    return gauge;
}
