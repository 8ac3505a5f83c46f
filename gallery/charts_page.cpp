#include <array>
#include <cmath>
#include <ctime>
#include <string>

#include "log.h"
#include "page.h"

// Strip charts: one that runs, and a recorded day that was opened, with two cursors.

namespace {

constexpr UINT live_id = 10, day_id = 11;
constexpr UINT_PTR sample_timer = 1;
constexpr UINT sample_milliseconds = 50;
constexpr int day_samples = 4000;

std::string DayFile() {
    char folder[MAX_PATH];
    ::GetTempPathA(sizeof folder, folder);
    return std::string(folder) + "zopgallery-day-" + std::to_string(::GetCurrentProcessId()) + ".txt";
}

// A plant's values by time in hundredths.
double ValueAt(int curve, double t) {
    const double slow = std::sin(t / 900), quick = std::sin(t / 130) * 0.5 + std::sin(t / 37) * 0.2;
    const double noise = std::sin(t * 12.9898) * 0.5;
    switch (curve) {
    case 0:
        return 78 + 12 * slow + 3 * quick + 0.6 * noise;
    case 1:
        return 58 + 9 * std::sin((t - 250) / 900) + 2 * quick + 0.6 * noise;
    case 2:
        return 2 + 0.9 * quick + 0.05 * noise;
    default:
        return slow > 0.3 ? 12 : slow > -0.4 ? 6 : 1;
    }
}

class CChartsPage : public CGalleryPage {
public:
    const char* Title() const override { return "Strip charts"; }
    const char* Name() const override { return "strip-charts"; }

    void Settle() override {
        KillTimer(sample_timer);
        while (day_.IsReading())
            day_.SendMessage(WM_TIMER, 2, 0);
        __int64 start, end;
        day_.GetShownTime(&start, &end);
        day_.SetCursor(0, start + (end - start) / 3);
        day_.SetCursor(1, start + (end - start) / 2);
        live_.SetCursor(0, last_ - 2000);
    }

protected:
    bool CreateContents() override {
        const CRect nowhere(0, 0, 0, 0);
        const DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
        if (!live_.Create(nullptr, "", style, nowhere, this, live_id) ||
            !day_.Create(nullptr, "", style, nowhere, this, day_id))
            return false;
        constexpr const char* script = ":TITLE=Boiler 2, live\n:SPAN=60\n:GAP=5\n:CURVE=Flow,RED,40,100\n"
                                       ":CURVE=Return,BLUE,40,100\n:CURVE=Pressure,DARKGREEN,0,4\n"
                                       ":CURVE=Burner,DARKMAGENTA,0,20\n:STEPS=ON\n:STYLE=DOT\n";
        LoadLines(script, [this](const char* line) { live_.LoadLine(line, 0); });
        live_.LoadLine("", 2);
        const __int64 now = CWntPulse::Now();
        for (last_ = now - 9000; last_ < now; last_ += 5)
            Feed();
        SetTimer(sample_timer, sample_milliseconds, nullptr);
        WriteDay();
        day_.SetTitle("A recorded day");
        day_.OpenFile(DayFile().c_str(), 1);
        return true;
    }

    void Arrange(int width, int height) override {
        Place(live_, CRect(8, 8, width - 8, height / 2));
        Place(day_, CRect(8, height / 2 + 8, width - 8, height - 8));
    }

    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        const auto& told = *reinterpret_cast<const WntPulseNotify*>(lParam);
        if (WNT_PULSE_VIEW <= told.hdr.code && told.hdr.code <= WNT_PULSE_READ)
            Log("chart %d code %u %d", static_cast<int>(told.hdr.idFrom), told.hdr.code, told.which);
        return CGalleryPage::OnNotify(wParam, lParam, result);
    }

    afx_msg void OnTimer(UINT_PTR) {
        for (const __int64 now = CWntPulse::Now(); last_ < now; last_ += 5)
            Feed();
    }
    afx_msg void OnDestroy() {
        ::DeleteFileA(DayFile().c_str());
        CGalleryPage::OnDestroy();
    }
    DECLARE_MESSAGE_MAP()

private:
    void Feed() {
        for (int curve = 0; curve < 4; ++curve) {
            const bool gap = curve == 2 && last_ / 1500 % 4 == 1; // a sensor that fails at times
            if (!gap)
                live_.AddSample(curve, ValueAt(curve, static_cast<double>(last_ % 10'000'000)), last_);
        }
    }

    static void WriteDay() {
        CWntPulseFile file(CWntPulseFile::write);
        file.SetLineCount(2);
        file.SetLineTitle(0, "Inflow");
        file.SetLineTitle(1, "Outflow");
        file.Open(DayFile().c_str());
        const std::time_t midnight = std::time(nullptr) / 86'400 * 86'400 - 86'400;
        for (int i = 0; i < day_samples; ++i) {
            const double t = i * 86'400.0 / day_samples;
            file.Put(0, static_cast<float>(55 + 30 * std::sin(t / 13'000) + 6 * std::sin(t / 900)),
                     midnight + static_cast<std::time_t>(t));
            file.Put(1, static_cast<float>(50 + 26 * std::sin((t - 3000) / 13'000)),
                     midnight + static_cast<std::time_t>(t));
        }
    }

    CWntPulse live_, day_;
    __int64 last_ = 0;
};

BEGIN_MESSAGE_MAP(CChartsPage, CGalleryPage)
ON_WM_TIMER()
ON_WM_DESTROY()
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CGalleryPage> MakeChartsPage() {
    return std::make_unique<CChartsPage>();
}
