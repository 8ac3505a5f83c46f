#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

#include "page.h"

// Three charts between their axes: numbers, texts, calendar time. The curves are placed by the axes' own conversions,
// so that they meet the ticks.

namespace {

constexpr int gap = 14;
constexpr int across_height = 30;
constexpr int upright_width = 46;
constexpr int row_height = 30;
constexpr UINT first_axis = 10;
constexpr UINT zoom_button = 40;
constexpr UINT properties_button = 41;
constexpr UINT toggle_zoom = 100;
constexpr UINT open_properties = 101;
constexpr UINT double_clicked = 103;

enum { numbers, texts, times, charts };

constexpr float seconds = 25.0f;
constexpr std::array<int, 7> levels = {0, 34, 82, 57, 91, 46, 68};

constexpr int first_hour = 6;

// Litres a minute over one day.
float Flow(float hour) {
    return 42 + 24 * std::sin((hour - 8) * 0.42f) + 9 * std::sin(hour * 1.7f);
}

struct Chart {
    CWntAxis across;
    CWntAxis upright;
    CRect plot; // of the page's client area
    float line_distance = 10;
};

class CAxesPage : public CSurfacePage {
public:
    const char* Title() const override { return "Chart axes"; }
    const char* Name() const override { return "axes"; }

protected:
    bool CreateContents() override {
        if (!CSurfacePage::CreateContents())
            return false;
        UINT id = first_axis;
        for (Chart& chart : charts_)
            for (CWntAxis* axis : {&chart.across, &chart.upright})
                if (!axis->Create(nullptr, "Axis", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this, id++))
                    return false;
        charts_[numbers].across.SetFlags(2, 100, 0);
        charts_[numbers].upright.SetFlags(1, 100, 0);
        charts_[texts].across.SetFlags(0, 100, 1);
        charts_[texts].upright.SetFlags(3, 100, 0);
        charts_[times].across.SetFlags(2, 100, 2);
        charts_[times].upright.SetFlags(1, 100, 0);
        charts_[numbers].line_distance = 0.5f;
        font_.CreatePointFont(90, "Arial");
        if (!CreateRow())
            return false;
        Surface().ModifyStyle(0, WS_CLIPSIBLINGS); // under all that lies on it
        Surface().SetWindowPos(&CWnd::wndBottom, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        return true;
    }

    bool CreateRow() {
        if (!zoom_.Create("Zoom controls", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this, zoom_button) ||
            !properties_.Create("Properties...", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this, properties_button) ||
            !label_.Create("Double-click an axis.", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this, 42))
            return false;
        for (CWnd* control :
             {static_cast<CWnd*>(&zoom_), static_cast<CWnd*>(&properties_), static_cast<CWnd*>(&label_)})
            control->SetFont(&font_);
        return true;
    }

    void Arrange(int width, int height) override {
        CSurfacePage::Arrange(width, height);
        const int top = row_height + 2 * gap;
        const int half = (height - top - 2 * gap) / 2;
        const int middle = width / 2;
        PlaceChart(charts_[numbers], CRect(gap, top, middle - gap / 2, top + half), false, false);
        PlaceChart(charts_[texts], CRect(middle + gap / 2, top, width - gap, top + half), true, true);
        PlaceChart(charts_[times], CRect(gap, top + half + gap, width - gap, height - gap), false, false);
        SetRanges();
        Place(zoom_, CRect(gap, gap, gap + 130, gap + row_height));
        Place(properties_, CRect(gap + 140, gap, gap + 270, gap + row_height));
        Place(label_, CRect(gap + 290, gap + 7, width - gap, gap + row_height));
    }

    void SetRanges() {
        charts_[numbers].across.SetRange(0.0f, seconds);
        charts_[numbers].upright.SetRange(-1.2f, 1.2f);
        charts_[texts].across.SetRange(0.0f, 1.0f); // lays the zoom control's slider out
        charts_[texts].across.SetTexts(static_cast<int>(names_.size()), names_.data());
        charts_[texts].upright.SetRange(0.0f, 100.0f);
        TAxisdatetime start = {21, 11, 2026, first_hour, 0, 0, 0};
        TAxisdatetime end = {22, 11, 2026, first_hour, 0, 0, 0};
        charts_[times].across.SetRange(0.0f, 1.0f);
        charts_[times].across.SetViewTime(&start, &end);
        charts_[times].upright.SetRange(0.0f, 80.0f);
    }

    // The axes lie left of the plot and below it unless stated otherwise.
    static void PlaceChart(Chart& chart, CRect place, bool above, bool right) {
        CRect plot = place;
        (right ? plot.right : plot.left) += right ? -upright_width : upright_width;
        (above ? plot.top : plot.bottom) += above ? across_height : -across_height;
        chart.plot = plot;
        Place(chart.across,
              CRect(plot.left, above ? place.top : plot.bottom, plot.right, above ? plot.top : place.bottom));
        Place(chart.upright,
              CRect(right ? plot.right : place.left, plot.top, right ? place.right : plot.left, plot.bottom));
    }

    void Paint(CWntOut& out) override {
        const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
        out.linecolour(face, 0);
        out.fillcolour(face, 0);
        out.boxr1(0, 0, out.xmax, out.ymax);
        for (Chart& chart : charts_)
            PaintGround(out, chart);
        PaintNumbers(out, charts_[numbers]);
        PaintTexts(out, charts_[texts]);
        PaintTimes(out, charts_[times]);
    }

    static POINT At(const CWntOut& out, const Chart& chart, int x, int y) {
        return {chart.plot.left + x, out.ymax - (chart.plot.top + y)};
    }

    static void PaintGround(CWntOut& out, Chart& chart) {
        const POINT corner = At(out, chart, 0, chart.plot.Height() - 1);
        out.linecolour(RGB(160, 160, 160), 0);
        out.fillcolour(RGB(252, 252, 250), 0);
        out.boxr1(corner.x, corner.y, chart.plot.Width() - 1, chart.plot.Height() - 1);
        out.linecolour(RGB(222, 226, 230), 0);
        int y = 0;
        for (int i = -20; i <= 20; ++i)
            if (chart.upright.ValueToScreen(static_cast<float>(i) * chart.line_distance, &y) == 0)
                out.hline(corner.x + 1, At(out, chart, 0, y).y, chart.plot.Width() - 3);
    }

    static void Curve(CWntOut& out, const Chart& chart, std::vector<POINT>& points, COLORREF colour) {
        const POINT low = At(out, chart, 0, chart.plot.Height() - 1);
        out.setclip(low.x, low.y, low.x + chart.plot.Width() - 1, low.y + chart.plot.Height() - 1);
        out.linecolour(colour, 0);
        out.fillcolour(colour, 0);
        out.geomline(points.data(), static_cast<int>(points.size()), 1);
        out.resetclip();
    }

    static void PaintNumbers(CWntOut& out, Chart& chart) {
        std::vector<POINT> points;
        for (int x = 0; x < chart.plot.Width(); ++x) {
            float t = 0;
            int y = 0;
            chart.across.ScreenToValue(x, &t);
            chart.upright.CalcPixelCoord(std::exp(-t / 9) * std::cos(t * 1.5f), &y);
            points.push_back(At(out, chart, x, y));
        }
        Curve(out, chart, points, RGB(0, 80, 160));
    }

    static void PaintTexts(CWntOut& out, Chart& chart) {
        const int width = std::max(chart.across.GetTickWidth() / 3, 2);
        for (std::size_t i = 1; i < levels.size(); ++i) {
            int x = 0;
            int y = 0;
            chart.across.ValueToScreen(static_cast<float>(i), &x);
            chart.upright.CalcPixelCoord(static_cast<float>(levels[i]), &y);
            const POINT foot = At(out, chart, x - width / 2, chart.plot.Height() - 2);
            out.linecolour(RGB(40, 110, 60), 0);
            out.fillcolour(levels[i] > 80 ? RGB(214, 120, 60) : RGB(104, 170, 120), 0);
            out.boxr1(foot.x, foot.y, width, std::max(chart.plot.Height() - 2 - y, 0));
        }
    }

    static void PaintTimes(CWntOut& out, Chart& chart) {
        std::vector<POINT> points;
        __int64 start = 0;
        chart.across.ScreenToValue(0, &start);
        for (int minute = 0; minute <= 24 * 60; minute += 10) {
            int x = 0;
            int y = 0;
            chart.across.ValueToScreen(start + minute * 6000LL, &x);
            chart.upright.CalcPixelCoord(Flow(first_hour + static_cast<float>(minute) / 60), &y);
            points.push_back(At(out, chart, x, y));
        }
        Curve(out, chart, points, RGB(160, 40, 60));
    }

    afx_msg void OnZoom() {
        for (Chart& chart : charts_)
            for (CWntAxis* axis : {&chart.across, &chart.upright})
                axis->SendMessage(WM_COMMAND, toggle_zoom);
    }

    afx_msg void OnProperties() { charts_[numbers].across.SendMessage(WM_COMMAND, open_properties); }

    afx_msg void OnDoubleClick(NMHDR* header, LRESULT* result) {
        const auto id = static_cast<UINT>(header->idFrom);
        char text[80];
        if (id == first_axis + 2 * texts)
            std::snprintf(text, sizeof text, "Double click on step %d", charts_[texts].across.QueryDoubleclickedItem());
        else
            std::snprintf(text, sizeof text, "Double click on axis %u", id - first_axis + 1);
        label_.SetWindowText(text);
        *result = 0;
    }
    DECLARE_MESSAGE_MAP()

private:
    CFont font_;
    std::array<Chart, charts> charts_;
    CButton zoom_;
    CButton properties_;
    CStatic label_;
    // The first text stands at the start of the axis, where only half of it would show.
    std::array<CString, levels.size()> names_ = {"", "Inflow", "Boiler", "Mixer", "Filter", "Tank 1", "Tank 2"};
};

BEGIN_MESSAGE_MAP(CAxesPage, CSurfacePage)
ON_BN_CLICKED(zoom_button, &CAxesPage::OnZoom)
ON_BN_CLICKED(properties_button, &CAxesPage::OnProperties)
ON_NOTIFY(double_clicked, first_axis, &CAxesPage::OnDoubleClick)
ON_NOTIFY(double_clicked, first_axis + 1, &CAxesPage::OnDoubleClick)
ON_NOTIFY(double_clicked, first_axis + 2, &CAxesPage::OnDoubleClick)
ON_NOTIFY(double_clicked, first_axis + 3, &CAxesPage::OnDoubleClick)
ON_NOTIFY(double_clicked, first_axis + 4, &CAxesPage::OnDoubleClick)
ON_NOTIFY(double_clicked, first_axis + 5, &CAxesPage::OnDoubleClick)
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CGalleryPage> MakeAxesPage() {
    return std::make_unique<CAxesPage>();
}
