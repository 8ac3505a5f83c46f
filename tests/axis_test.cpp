#include "axis_reference.h"
#include "modal.h"
#include "widget_window.h"

#include <climits>
#include <cmath>
#include <limits>
#include <string>

namespace {

// A host that keeps what it is notified of and what it reads then.
class ChartHost : public CWnd {
public:
    CWntAxis* axis = nullptr;
    std::vector<NMHDR> notified;
    int item = -1;

protected:
    BOOL OnNotify(WPARAM, LPARAM lParam, LRESULT*) override {
        notified.push_back(*reinterpret_cast<NMHDR*>(lParam));
        item = axis->QueryDoubleclickedItem();
        return TRUE;
    }
};

class AxisTest : public WidgetTest {
protected:
    void SetUp() override {
        set_shadow(RGB(10, 20, 30));
        WidgetTest::SetUp();
        ASSERT_TRUE(chart_.Create(nullptr, "chart", WS_CHILD | WS_VISIBLE, CRect(0, 0, 1000, 700), &host_, 3));
        ASSERT_TRUE(axis_.Create(nullptr, "Axis", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), &chart_, 77));
        chart_.axis = &axis_;
    }

    void TearDown() override {
        WidgetTest::TearDown();
        set_shadow(shadow_);
    }

    // On classic screens the shadow has the colour of the axis' ground.
    static void set_shadow(COLORREF colour) {
        const int element = COLOR_BTNSHADOW;
        ::SetSysColors(1, &element, &colour);
    }

    void size(int width, int height) { axis_.MoveWindow(0, 0, width, height); }

    void expect_shown(const AxisLook& look, const std::vector<AxisMark>& marks) {
        full_repaint(axis_);
        const Pixels shown = pixels_of(axis_);
        Picture expected(shown.width, shown.height);
        AxisReference().paint(expected.dc(), shown.width, shown.height, look, marks);
        EXPECT_TRUE(shown.values == expected.values()) << "position " << look.position;
    }

    void mouse(UINT message, int x, int y, WPARAM keys = 0) { axis_.SendMessage(message, keys, MAKELPARAM(x, y)); }

    const COLORREF shadow_ = ::GetSysColor(COLOR_BTNSHADOW);
    ChartHost chart_;
    CWntAxis axis_;
};

constexpr COLORREF green = RGB(0, 255, 0);
constexpr COLORREF dark_green = RGB(0, 128, 0);

TEST_F(AxisTest, NumericTicksAndLabelsOfAllPositions) {
    // Steps of 2, six pixels each, every fifth labelled; upright ones round one pixel lower.
    std::vector<AxisMark> across, upright;
    for (int k = 1; k <= 50; ++k) {
        const std::string label = k % 5 ? "" : std::to_string(2 * k);
        across.push_back({6 * k, k % 5 ? 2 : 6, label});
        upright.push_back({301 - 6 * k, k % 5 ? 2 : 6, k < 50 ? label : ""}); // none in the uppermost rows
    }
    for (int position = 0; position < 4; ++position) {
        axis_.SetFlags(position, 7, 0);
        position % 2 ? size(50, 300) : size(300, 50);
        axis_.SetRange(0.0f, 100.0f);
        expect_shown({position, value_ticks_start, value_labels_start}, position % 2 ? upright : across);
    }
}

TEST_F(AxisTest, TextsAndTheirAbsence) {
    std::vector<CString> texts = {"Inflow", "", CString('W', 300)};
    axis_.SetFlags(2, 3, 1);
    size(300, 40);
    axis_.SetTexts(3, nullptr);
    axis_.SetTexts(3, texts.data());
    const AxisLook below{2, value_ticks_start, value_labels_start};
    std::vector<AxisMark> marks = {{0, 6, "Inflow"}, {100, 6, ""}, {200, 6, std::string(49, 'W')}};
    expect_shown(below, marks);
    axis_.SetTicks(50); // what lies beyond the last label has none
    marks.insert(marks.end(), {{300, 6, "No title specified"}, {301, 6, "No title specified"}});
    expect_shown(below, marks);
    CWntAxis bare;
    ASSERT_TRUE(bare.Create(nullptr, "Axis", WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 40), &chart_, 78));
    bare.SetFlags(0, 2, 1);
    full_repaint(bare);
    EXPECT_GT(pixels_of(bare).count(RGB(0, 0, 0)), 20);
}

TEST_F(AxisTest, TimeTicksAndLabels) {
    TAxisdatetime start = {21, 11, 2026, 6, 0, 0, 0};
    TAxisdatetime end = {21, 11, 2026, 18, 0, 0, 0};
    const AxisLook below{2, time_ticks_start, time_labels_start};
    axis_.SetAxisPosition(2);
    size(600, 40);
    axis_.SetViewTime(&start, nullptr);
    axis_.SetViewTime(&start, &end);
    std::vector<AxisMark> hours;
    for (const char* label : {" 6h", " 7h", " 8h", " 9h", "10h", "11h", "12h", "13h", "14h", "15h", "16h", "17h"})
        hours.push_back({50 * static_cast<int>(hours.size()), 3, label});
    expect_shown(below, hours);
    size(300, 40); // 25 pixels an hour: labels keep 42 apart
    for (int k = 0; k < 12; ++k)
        hours[k] = {25 * k, 3, k % 2 ? "" : hours[k].label};
    expect_shown(below, hours);

    // By time values: the records count years from 1900, which the dates show.
    __int64 from = 0, to = 0;
    axis_.ScreenToValue(0, &from);
    to = from + 4 * 8'640'000LL;
    size(400, 40);
    axis_.SetRange(from - 6 * 360'000LL, to - 6 * 360'000LL);
    TAxisdatetime shown_start, shown_end;
    axis_.GetViewTime(&shown_start, &shown_end);
    EXPECT_EQ(shown_start.year, 126);
    const int day = shown_start.day;
    std::vector<AxisMark> days;
    for (int k = 0; k < 4; ++k)
        days.push_back({100 * k, 5, std::to_string(day + k) + ".11.126"});
    expect_shown(below, days);

    // Upright: no labels where the first tick is a time after 1980.
    axis_.SetAxisPosition(1);
    size(40, 600);
    axis_.SetViewTime(&start, &end);
    hours.clear();
    for (int k = 0; k < 12; ++k)
        hours.push_back({600 - 50 * k, 3, ""});
    expect_shown({1, time_ticks_start, time_labels_start}, hours);
    axis_.SetRange(from, from + 2 * 360'000); // counted from 1900 the first tick is a time before 1980
    expect_shown({1, time_ticks_start, time_labels_start}, {{600, 3, " 6h"}, {300, 3, " 7h"}});
}

TEST_F(AxisTest, ZoomControlFollowsTheMouse) {
    size(300, 60);
    axis_.SetRange(0.0f, 100.0f);
    mouse(WM_LBUTTONDOWN, 10, 55);
    EXPECT_NE(::GetCapture(), axis_.m_hWnd); // not shown yet
    axis_.SendMessage(WM_COMMAND, 100);
    full_repaint(axis_);
    EXPECT_EQ(pixels_of(axis_).at(150, 56), dark_green); // the slider covers the control

    mouse(WM_MOUSEMOVE, 297, 55); // the far grip
    mouse(WM_LBUTTONDOWN, 297, 55, MK_LBUTTON);
    EXPECT_EQ(::GetCapture(), axis_.m_hWnd);
    mouse(WM_MOUSEMOVE, 200, 55, MK_LBUTTON);
    mouse(WM_LBUTTONUP, 200, 55);
    EXPECT_NE(::GetCapture(), axis_.m_hWnd);
    EXPECT_EQ(pixels_of(axis_).at(190, 56), dark_green);
    EXPECT_EQ(pixels_of(axis_).at(210, 56), green);

    mouse(WM_MOUSEMOVE, 100, 55); // its middle
    mouse(WM_LBUTTONDOWN, 100, 55, MK_LBUTTON);
    mouse(WM_MOUSEMOVE, 130, 55, MK_LBUTTON);
    EXPECT_EQ(pixels_of(axis_).at(20, 56), green);
    EXPECT_EQ(pixels_of(axis_).at(40, 56), dark_green);
    mouse(WM_MOUSEMOVE, 30, 55, MK_LBUTTON); // further than the start
    mouse(WM_MOUSEMOVE, 30, 20, MK_LBUTTON); // outside the control: ignored
    mouse(WM_LBUTTONUP, 30, 55);
    EXPECT_EQ(pixels_of(axis_).at(5, 56), dark_green);

    mouse(WM_MOUSEMOVE, 2, 55); // the near grip, dragged beyond the far end
    mouse(WM_MOUSEMOVE, 299, 55, MK_LBUTTON);
    mouse(WM_LBUTTONDOWN, 195, 55, MK_LBUTTON);
    axis_.SendMessage(WM_COMMAND, 100); // ends the drag as well
    EXPECT_NE(::GetCapture(), axis_.m_hWnd);
    full_repaint(axis_);
    EXPECT_EQ(pixels_of(axis_).count(green), 0);
}

TEST_F(AxisTest, DoubleClicksAreTold) {
    std::vector<CString> texts(4, "x");
    axis_.SetFlags(2, 4, 1);
    size(400, 40);
    axis_.SetTexts(4, texts.data());
    mouse(WM_LBUTTONDBLCLK, 250, 10);
    ASSERT_EQ(chart_.notified.size(), 1u);
    const NMHDR& told = chart_.notified[0];
    EXPECT_TRUE(told.hwndFrom == axis_.m_hWnd && told.idFrom == 77 && told.code == 103);
    EXPECT_EQ(chart_.item, 2);
    axis_.SetAxisPosition(3);
    size(40, 400);
    mouse(WM_LBUTTONDBLCLK, 250, 310);
    EXPECT_EQ(chart_.item, 3);
    axis_.SetTicks(0);
    mouse(WM_LBUTTONDBLCLK, 10, 17); // without a grid a pixel counts as a step
    EXPECT_EQ(chart_.item, 17);
    axis_.SetAxisType(0);
    mouse(WM_LBUTTONDBLCLK, 10, 5);
    EXPECT_EQ(chart_.item, 17);
    EXPECT_EQ(chart_.notified.size(), 4u);
}

TEST_F(AxisTest, PropertiesShowAndChangeNothing) {
    size(300, 40);
    axis_.SetRange(0.0f, 50.0f);
    for (int position : {2, 1}) {
        axis_.SetAxisPosition(position);
        std::string shown;
        WhileModal modal([&] {
            const HWND dialog = ::FindWindowA(nullptr, "Achseneinstellungen");
            if (!dialog)
                return false;
            for (int field : {1026, 1027, 1028}) {
                char text[40] = {};
                ::GetDlgItemTextA(dialog, field, text, sizeof text);
                shown += text;
                ::SetDlgItemTextA(dialog, field, "7");
            }
            shown += ::IsDlgButtonChecked(dialog, 1127) ? " across" : " upright";
            ::SendMessageA(dialog, WM_COMMAND, IDOK, 0);
            return true;
        });
        axis_.SendMessage(WM_COMMAND, 101);
        EXPECT_EQ(shown, std::string("   0.00 100.00   0.00") + (position == 2 ? " across" : " upright"));
    }
    EXPECT_EQ(axis_.GetGridCount(), 100);
    EXPECT_EQ(CWntAxisProperties(&host_).SetAxis(nullptr), 0);
}

TEST_F(AxisTest, HoldsAtAnyRangeCountAndSize) {
    std::vector<CString> texts(3, "label");
    const float inf = std::numeric_limits<float>::infinity();
    const float values[] = {0, 1e-45f, 3e38f, -3e38f, inf, -inf, std::nanf("")};
    const __int64 times[] = {0, LLONG_MIN, LLONG_MAX, 16'000 * 8'640'000LL};
    int objects = 0;
    for (const CSize extent : {CSize(990, 60), CSize(3, 900), CSize(0, 0)}) {
        size(extent.cx, extent.cy);
        for (int i = 0; i < 6 * 4 * 49; ++i) {
            const int positions[] = {-1, 0, 1, 2, 3, INT_MAX};
            axis_.SetFlags(positions[i / 49 % 6], INT_MAX, i / 49 / 6);
            axis_.SendMessage(WM_COMMAND, 100);
            axis_.SetRange(values[i % 7], values[i / 7 % 7]);
            axis_.SetRange(times[i % 4], times[i / 4 % 4]);
            if (i % 2)
                axis_.SetTexts(3, texts.data());
            axis_.SetTicks(i % 3 ? INT_MAX : INT_MIN);
            full_repaint(axis_);
            mouse(WM_MOUSEMOVE, i, 2, i % 2);
            mouse(WM_LBUTTONDBLCLK, -i, 2);
        }
        objects = objects ? objects : live_gdi_objects();
    }
    EXPECT_LT(live_gdi_objects() - objects, 10); // cursors are loaded once, paints are thousands
}

} // namespace
