#pragma once

#include "front_page.h"

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
    CWntPulse chart_;
    ULONGLONG taken_ = 0; // when values were taken last
};

/// The curves of all channels with their ranges and colours, for any chart of them; their names as recordings have
/// them.
bool AddPlantCurves(CWntPulse& chart, const FrontEndSettings& settings);
void ColourPlantCurves(CWntPulse& chart, const FrontEndSettings& settings);
