// A strip chart with two curves in a host that notes what it is told.
#pragma once

#include <cmath>
#include <utility>

#include "control_host.h"

struct PulseFixture : ControlTest<AnsweringHost<WntPulseNotify, &WntPulseNotify::which>> {
    static constexpr COLORREF red = RGB(250, 0, 0), blue = RGB(0, 0, 250), paper = RGB(255, 255, 255);

    void SetUp() override {
        ControlTest::SetUp();
        ASSERT_TRUE(chart_.Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 600, 300), &host_, 5));
        chart_.SetTitle("Boiler");
        flow_ = chart_.AddCurve("Flow", red, 0, 100);
        level_ = chart_.AddCurve("Level", blue, 0, 10);
        chart_.SetSpan(6000);
    }

    // A minute, ten samples a second, as far as `to`.
    void feed(__int64 from, __int64 to) {
        for (__int64 time = from; time < to; time += 10) {
            chart_.AddSample(flow_, 50 + 40 * std::sin(static_cast<double>(time) / 500), time);
            chart_.AddSample(level_, static_cast<double>(time / 700 % 10), time);
        }
        show();
    }
    void show() {
        chart_.SendMessage(WM_TIMER, 1, 0);
        chart_.SendMessage(WM_TIMER, 1, 0); // nothing new: what is not shown at every tick is now
        chart_.UpdateWindow();
        for (CWnd* child = chart_.GetWindow(GW_CHILD); child; child = child->GetWindow(GW_HWNDNEXT))
            child->UpdateWindow();
    }
    // Columns from left to right where the colour is seen.
    std::pair<int, int> extent(COLORREF colour) {
        const Pixels seen = pixels_of(chart_);
        std::pair columns(seen.width, -1);
        for (int y = 60; y < seen.height; ++y) // below the legend
            for (int x = 0; x < seen.width; ++x)
                if (seen.at(x, y) == colour)
                    columns = {std::min(columns.first, x), std::max(columns.second, x)};
        return columns;
    }
    __int64 start() {
        __int64 from = 0, to = 0;
        chart_.GetShownTime(&from, &to);
        return from;
    }
    void mouse(UINT message, int x, int y, UINT keys = MK_LBUTTON) {
        chart_.SendMessage(message, keys, MAKELPARAM(x, y));
    }
    static void drag(HWND window, int from, int to, int y) {
        ::SendMessage(window, WM_MOUSEMOVE, 0, MAKELPARAM(from, y));
        ::SendMessage(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(from, y));
        ::SendMessage(window, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(to, y));
        ::SendMessage(window, WM_LBUTTONUP, 0, MAKELPARAM(to, y));
    }
    std::pair<int, int> rows(int curve, double first, double second) {
        const double values[] = {first, second};
        int at[2] = {};
        EXPECT_EQ(chart_.ValuesToScreen(curve, values, 2, at), 1);
        return {at[0], at[1]};
    }
    void key(UINT k) { chart_.SendMessage(WM_KEYDOWN, k, 0); }

    CWntPulse chart_;
    int flow_ = -1, level_ = -1;
};
