#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <string>
#include <vector>

#include "page.h"

// Two curves are recorded into a data file, and what is plotted is what was read back from it.

namespace {

constexpr UINT record_id = 20;
constexpr int curve_count = 2;
constexpr int sample_count = 150;
constexpr double highest_value = 100;
constexpr const char* titles[curve_count] = {"Inflow", "Outflow"};
constexpr int colours[curve_count] = {10, 14};

struct Recording {
    std::string file;
    std::vector<std::string> titles;
    std::vector<double> values[curve_count];
    std::int64_t first = 0;
    std::int64_t last = 0;
    std::string failure;
};

// Each gallery has its own.
std::string DataFile() {
    char folder[MAX_PATH];
    ::GetTempPathA(sizeof folder, folder);
    return std::string(folder) + "zopgallery-pulse-" + std::to_string(::GetCurrentProcessId()) + ".txt";
}

double SampleAt(int curve, int i, int turn) {
    const double t = 0.06 * i + turn;
    return curve == 0 ? 55 + 28 * std::sin(t) + 9 * std::sin(5.3 * t) : 45 + 22 * std::sin(t - 0.9);
}

// What a display does that records its curves. Answers the error code.
int Record(const std::string& name, int turn) {
    CWntPulseFile file(CWntPulseFile::write);
    file.SetLineCount(curve_count);
    for (int curve = 0; curve < curve_count; ++curve)
        file.SetLineTitle(curve, titles[curve]);
    file.Open(name.c_str());
    const std::int64_t start = std::time(nullptr) - sample_count;
    for (int i = 0; i < sample_count; ++i)
        for (int curve = 0; curve < curve_count; ++curve)
            file.Put(curve, static_cast<float>(SampleAt(curve, i, turn)), start + i);
    return file.GetError();
}

void ReadBack(Recording& recording) {
    CWntPulseFile file(CWntPulseFile::read, recording.file.c_str());
    for (int i = 0; i < file.GetLineCount(); ++i)
        recording.titles.push_back(file.GetLineTitle(i));
    int curve = 0;
    float value = 0;
    std::int64_t time = 0;
    for (int i = 0; i < sample_count * curve_count && file.Get(&curve, &value, &time) == 0; ++i) {
        if (curve < 0 || curve >= curve_count)
            continue;
        recording.values[curve].push_back(value);
        recording.first = i == 0 ? time : recording.first;
        recording.last = time;
    }
    if (file.GetError())
        recording.failure = CWntPulseFile::ErrorText(file.GetError());
}

std::string ClockTime(std::int64_t time) {
    const std::time_t seconds = time;
    const std::tm* fields = std::localtime(&seconds);
    char text[16];
    return fields && std::strftime(text, sizeof text, "%H:%M:%S", fields) ? text : "";
}

/// The plot's place on the surface, in library coordinates.
struct Plot {
    int left, bottom, width, height;

    int x(std::size_t i) const { return left + static_cast<int>(i) * width / (sample_count - 1); }
    int y(double value) const { return bottom + static_cast<int>(value / highest_value * height); }
};

void Write(CWntOut& out, int x, int y, const std::string& text, int align, int colour) {
    out.linecolour(colour, 0);
    out.chars(x, y, const_cast<char*>(text.c_str()), align);
}

void PaintGrid(CWntOut& out, const Plot& plot, const Recording& recording) {
    out.settext(0, 0, 0, 15, 0, 0);
    for (int value = 0; value <= 100; value += 20) {
        out.linecolour(RGB(220, 224, 228), 0);
        out.hline(plot.left, plot.y(value), plot.width);
        Write(out, plot.left - 8, plot.y(value) - 7, std::to_string(value), 1, 0);
    }
    out.linecolour(8, 0);
    out.boxr0(plot.left, plot.bottom, plot.width, plot.height);
    Write(out, plot.left, plot.bottom - 20, ClockTime(recording.first), 0, 0);
    Write(out, plot.left + plot.width, plot.bottom - 20, ClockTime(recording.last), 1, 0);
}

void PaintCurves(CWntOut& out, const Plot& plot, const Recording& recording) {
    for (int curve = 0; curve < curve_count; ++curve) {
        std::vector<Tpt> points;
        for (const double value : recording.values[curve])
            points.push_back({plot.x(points.size()), plot.y(value)});
        out.fillcolour(colours[curve], 0);
        out.geomline(points.data(), static_cast<int>(points.size()), 1);
        if (curve < static_cast<int>(recording.titles.size()))
            Write(out, plot.left + 12 + curve * 110, plot.bottom + plot.height - 22,
                  recording.titles[static_cast<std::size_t>(curve)], 0, colours[curve]);
    }
}

class CPulsePage : public CBarPage {
public:
    ~CPulsePage() override { std::remove(DataFile().c_str()); }
    const char* Title() const override { return "Pulse data file"; }
    const char* Name() const override { return "pulse"; }

protected:
    bool CreateContents() override {
        if (!CBarPage::CreateContents() || !AddButton("Record again", record_id, 120))
            return false;
        OnRecord();
        return true;
    }

    afx_msg void OnRecord() {
        recording_ = {};
        recording_.file = DataFile();
        if (const int error = Record(recording_.file, turn_++))
            recording_.failure = CWntPulseFile::ErrorText(error);
        else
            ReadBack(recording_);
        Invalidate(FALSE);
    }

    void Paint(CWntOut& out) override {
        FillSurface(out, RGB(252, 252, 252));
        const Plot plot = {50, 50, std::max(out.xmax - 80, 1), std::max(out.ymax - 100, 1)};
        PaintGrid(out, plot, recording_);
        PaintCurves(out, plot, recording_);
        const std::size_t count = recording_.values[0].size() + recording_.values[1].size();
        Write(out, plot.left, out.ymax - 36,
              recording_.failure.empty() ? std::to_string(count) + " samples read back from " + recording_.file
                                         : recording_.failure,
              0, recording_.failure.empty() ? 0 : 6);
    }
    DECLARE_MESSAGE_MAP()

private:
    Recording recording_;
    int turn_ = 0;
};

BEGIN_MESSAGE_MAP(CPulsePage, CBarPage)
ON_BN_CLICKED(record_id, &CPulsePage::OnRecord)
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CGalleryPage> MakePulsePage() {
    return std::make_unique<CPulsePage>();
}
