#include "trend_page.h"

#include "recorded_days.h"
#include "resource.h"

#include <limits>

BEGIN_MESSAGE_MAP(CPlantChart, CWntPulse)
ON_WM_INITMENUPOPUP()
END_MESSAGE_MAP()

namespace {

constexpr ULONGLONG sample_period = 500; // milliseconds: what a file of a whole day can bear

} // namespace

bool AddPlantCurves(CWntPulse& chart, const FrontEndSettings& settings) {
    for (std::size_t i = 0; i < plant_channels; ++i) {
        const ChannelRange& range = plant_ranges[i];
        if (chart.AddCurve(range.name, settings.Colour(i), range.least, range.greatest) != static_cast<int>(i))
            return false;
    }
    chart.ShowCurve(pump_speed, 0); // the flow tells as much
    return true;
}

void ColourPlantCurves(CWntPulse& chart, const FrontEndSettings& settings) {
    for (std::size_t i = 0; i < plant_channels; ++i)
        chart.SetColour(static_cast<int>(i), settings.Colour(i));
}

bool CTrendPage::CreateContents() {
    if (!chart_.Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 0, 0), this, IDC_CHART))
        return false;
    chart_.LoadFromFile(front_end_.Script("trend.dat"));
    chart_.SetRecordingParts(0, 1);
    chart_.DragAcceptFiles(FALSE); // what is dropped would replace the live curves
    return AddPlantCurves(chart_, front_end_.settings);
}

void CTrendPage::Arrange(int width, int height) {
    const int margin = Scaled(6);
    chart_.MoveWindow(margin, margin, width - 2 * margin, height - 2 * margin);
}

// A value that was no number, or that is only the last one of a silent plant, is a gap.
void CTrendPage::ShowReadings() {
    const PlantLink& link = front_end_.station.Link();
    const ULONGLONG now = ::GetTickCount64();
    if (link.State() == LinkState::silent || link.State() == LinkState::absent || now - taken_ < sample_period)
        return;
    taken_ = now;
    const __int64 moment = CWntPulse::Now();
    for (std::size_t i = 0; i < plant_channels; ++i)
        chart_.AddSample(static_cast<int>(i),
                         link.Refused() >> i & 1 ? std::numeric_limits<double>::quiet_NaN() : link.Readings().values[i],
                         moment);
}

void CTrendPage::ShowSettings() {
    ColourPlantCurves(chart_, front_end_.settings);
}

CString CTrendPage::StartRecording() {
    const CString& folder = front_end_.settings.folder;
    ::CreateDirectory(folder, nullptr); // where it is there already, nothing happens
    if (chart_.StartRecording(folder + '\\' + recording_name))
        return {};
    return chart_.GetRecordingError();
}

// Posted: the chart is at work while it tells, and a box would hold it up.
BOOL CTrendPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) {
    const auto& told = *reinterpret_cast<const NMHDR*>(lParam);
    if (told.code == WNT_PULSE_RECORDING && told.idFrom == IDC_CHART && *chart_.GetRecordingError())
        GetTopLevelFrame()->PostMessage(WM_RECORDING_FAILED);
    return CFrontPage::OnNotify(wParam, lParam, result);
}
