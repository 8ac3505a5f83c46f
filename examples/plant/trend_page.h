#pragma once

#include "front_page.h"
#include "plant_chart.h"

/// To the main window, later, after a recording was ended by a fault.
constexpr UINT WM_RECORDING_FAILED = WM_APP + 1;

/// The measured values over time, live, and their recording, a file a day.
class CTrendPage : public CFrontPage {
public:
    using CFrontPage::CFrontPage;
    void ShowReadings() override;
    void ShowSettings() override;
    CWntPulse& Chart() { return chart_; }

    /// Into the folder of the settings; why not, or empty.
    CString StartRecording();

protected:
    bool CreateContents() override;
    void Arrange(int width, int height) override;
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;

private:
    CPlantChart chart_{WNT_PULSE_CMD_OPEN};
    ULONGLONG taken_ = 0; // when values were taken last
};

/// The curves of all channels with their ranges and colours, for any chart of them; their names as recordings have
/// them.
bool AddPlantCurves(CWntPulse& chart, const FrontEndSettings& settings);
void ColourPlantCurves(CWntPulse& chart, const FrontEndSettings& settings);
