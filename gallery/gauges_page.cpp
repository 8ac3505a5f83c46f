#include <array>
#include <cmath>

#include "page.h"

// The six views side by side, each fed by a timer.

namespace {

constexpr UINT_PTR feed_timer = 1;
constexpr UINT feed_interval = 50; // milliseconds

struct Sample {
    const char* script; // lines parted by '\n'
    double middle;      // the values swing about this, as a part of the range
    double speed;
};

constexpr int low = 0;
constexpr int high = 100;

// A zone ends at its mark; the last two marks repeat the last limit less one, and what lies above has their colour.
constexpr std::array<Sample, 6> samples = {{
    {":TYPE=PERCENTBAR\n:TITLE=Batch progress\n:UNITTITLE=pcs\n:SCALES=20\n:CLEARMARKS\n"
     ":SETMARK=50,DARKCYAN\n:SETMARK=90,DARKGREEN\n:SETMARK=89,GREEN\n:SETMARK=89,GREEN",
     0.55, 0.9},
    {":TYPE=THERMOMETER\n:TITLE=Coolant\n:UNITTITLE=deg C\n:SCALES=50\n:CLEARMARKS\n"
     ":SETMARK=30,BLUE\n:SETMARK=80,DARKGREEN\n:SETMARK=79,RED\n:SETMARK=79,RED",
     0.60, 0.7},
    {":TYPE=ANALOG\n:TITLE=Boiler pressure\n:UNITTITLE=bar x 10\n:SCALES=50\n:CLEARMARKS\n"
     ":SETMARK=20,YELLOW\n:SETMARK=75,DARKGREEN\n:SETMARK=74,RED\n:SETMARK=74,RED",
     0.45, 1.0},
    {":TYPE=DIGITAL\n:TITLE=Line speed\n:UNITTITLE=m/min\n:SCALES=40\n:CLEARMARKS\n"
     ":SETMARK=60,GREEN\n:SETMARK=80,YELLOW\n:SETMARK=79,RED\n:SETMARK=79,RED",
     0.50, 0.4},
    {":TYPE=PEAKLINE\n:TITLE=CPU load\n:UNITTITLE=%\n:SCALES=20\n:CLEARMARKS\n"
     ":SETMARK=50,DARKGREEN\n:SETMARK=80,DARKYELLOW\n:SETMARK=79,RED\n:SETMARK=79,RED",
     0.45, 1.7},
    {":TYPE=TURNKNOB\n:TITLE=Volume\n:UNITTITLE=dB\n:SCALES=20\n:CLEARMARKS\n"
     ":SETMARK=60,DARKGREEN\n:SETMARK=85,YELLOW\n:SETMARK=84,RED\n:SETMARK=84,RED",
     0.50, 0.5},
}};

class CGaugesPage : public CGalleryPage {
public:
    const char* Title() const override { return "Gauges"; }
    const char* Name() const override { return "gauges"; }

    void Settle() override {
        KillTimer(feed_timer);
        for (int i = 0; i < 300; ++i)
            Feed();
    }

protected:
    bool CreateContents() override {
        for (std::size_t i = 0; i < gauges_.size(); ++i) {
            if (!gauges_[i].Create(nullptr, "Gauge", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this,
                                   static_cast<UINT>(10 + i)))
                return false;
            Load(gauges_[i], samples[i].script);
        }
        SetTimer(feed_timer, feed_interval, nullptr);
        return true;
    }

    static void Load(CWntGauge& gauge, const char* script) {
        gauge.LoadLine("", 1);
        LoadLines(script, [&](const char* line) { gauge.LoadLine(line, 0); });
        gauge.LoadLine(":BORDERHEIGHT=2", 0);
        gauge.LoadLine("", 2);
    }

    void Arrange(int width, int height) override {
        constexpr int gap = 8;
        const int cell_width = (width - gap) / 3;
        const int cell_height = (height - gap) / 2;
        for (int i = 0; i < 6; ++i)
            Place(gauges_[static_cast<std::size_t>(i)], gap + i % 3 * cell_width, gap + i / 3 * cell_height,
                  cell_width - gap, cell_height - gap);
    }

    afx_msg void OnTimer(UINT_PTR) { Feed(); }
    DECLARE_MESSAGE_MAP()

private:
    // Two swings of different length look alive and repeat exactly.
    void Feed() {
        ++step_;
        for (std::size_t i = 0; i < gauges_.size(); ++i) {
            const double t = step_ * 0.05 * samples[i].speed;
            const double swing = 0.32 * std::sin(t) + 0.13 * std::sin(2.9 * t + 1);
            gauges_[i].SetCurVal(low + static_cast<int>((high - low) * (samples[i].middle + swing)));
        }
    }

    std::array<CWntGauge, 6> gauges_;
    int step_ = 0;
};

BEGIN_MESSAGE_MAP(CGaugesPage, CGalleryPage)
ON_WM_TIMER()
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CGalleryPage> MakeGaugesPage() {
    return std::make_unique<CGaugesPage>();
}
