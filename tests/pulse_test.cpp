#include <zopwnt.h>

#include <psapi.h>

#include <gmock/gmock.h>

#include <cmath>
#include <filesystem>
#include <limits>
#include <random>

#include "modal.h"
#include "temporary_file.h"
#include "widget_window.h"

namespace {

class ChartHost : public CWnd {
public:
    std::vector<std::pair<UINT, int>> told; // code and which
    std::function<void(const WntPulseNotify&)> on_notify = [](const WntPulseNotify&) {};

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        const auto& n = *reinterpret_cast<WntPulseNotify*>(lParam);
        if (n.hdr.code < WNT_PULSE_VIEW || n.hdr.code > WNT_PULSE_READ)
            return CWnd::OnNotify(wParam, lParam, result);
        told.emplace_back(n.hdr.code, n.which);
        on_notify(n);
        return TRUE;
    }
};

class Pulse : public testing::Test {
protected:
    static constexpr COLORREF red = RGB(250, 0, 0), blue = RGB(0, 0, 250), paper = RGB(255, 255, 255);

    void SetUp() override {
        ASSERT_TRUE(host_.CreateEx(0, nullptr, "host", WS_POPUP, CRect(0, 0, 800, 500), nullptr, 0));
        host_.ShowWindow(SW_SHOW);
        ASSERT_TRUE(chart_.Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 600, 300), &host_, 5));
        chart_.SetTitle("Boiler");
        flow_ = chart_.AddCurve("Flow", red, 0, 100);
        level_ = chart_.AddCurve("Level", blue, 0, 10);
        chart_.SetSpan(6000);
    }
    void TearDown() override { host_.DestroyWindow(); }

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
    void key(UINT k) { chart_.SendMessage(WM_KEYDOWN, k, 0); }

    ChartHost host_;
    CWntPulse chart_;
    int flow_ = -1, level_ = -1;
};

TEST_F(Pulse, ScrollsAsIfPaintedAnew) {
    feed(0, 3000);
    const auto [left, right] = extent(red);
    EXPECT_LT(left, right);
    __int64 time = 3000;
    for (; time < 9000; time += 730) {
        feed(time, time + 730);
        EXPECT_EQ(extent(red).second, right) << time; // now stays at the right edge
        const Pixels scrolled = pixels_of(chart_);
        chart_.SetColours(paper, 0, RGB(208, 208, 208)); // draws everything
        show();
        EXPECT_EQ(pixels_of(chart_), scrolled) << time;
    }
    // What was uncovered before pixels were moved.
    host_.ValidateRect(nullptr);
    feed(time, time + 50);
    {
        CClientDC dc(&chart_);
        dc.FillSolidRect(CRect(200, 60, 400, 200), poison);
    }
    chart_.InvalidateRect(CRect(200, 60, 400, 200), FALSE);
    chart_.AddSample(flow_, 50, time + 300);
    feed(time + 310, time + 500);
    EXPECT_EQ(pixels_of(chart_).count(poison), 0);
    time += 500;
    const Pixels live = pixels_of(chart_);
    key(VK_SPACE);
    const int samples = chart_.GetSampleCount(flow_);
    feed(time, time + 730);
    EXPECT_FALSE(chart_.IsLive());
    EXPECT_EQ(chart_.GetSampleCount(flow_), samples + 73); // pausing stops the picture, not the samples
    key(VK_SPACE);
    EXPECT_TRUE(chart_.IsLive());
    show();
    EXPECT_NE(pixels_of(chart_), live);
}

TEST_F(Pulse, SamplesStandAtTheirTimesAndValues) {
    chart_.SetLook(flow_, 0, 0, 0);
    chart_.SetLook(level_, 0, 0, 0);
    const double values[] = {0, 25, 100, 50};
    const __int64 times[] = {0, 2000, 4000, 6000};
    EXPECT_EQ(chart_.AddSamples(flow_, values, times, 4), 4);
    chart_.SetLongestPause(0);
    chart_.ShowTime(0, 6100);
    show();
    int rows[4];
    ASSERT_EQ(chart_.ValuesToScreen(flow_, values, 4, rows), 1);
    const Pixels seen = pixels_of(chart_);
    const auto [left, right] = extent(red);
    for (int i = 0; i < 4; ++i) {
        const int x = left + static_cast<int>((right - left) * times[i] / 6000);
        bool found = false;
        for (int dx = -1; dx <= 1; ++dx)
            found = found || (x + dx >= 0 && x + dx < seen.width && seen.at(x + dx, rows[i]) == red);
        EXPECT_TRUE(found) << values[i];
    }
    chart_.AddSample(flow_, std::nan(""), 6010);
    EXPECT_EQ(chart_.AddSamples(flow_, values, times, 4), 0); // they run back
    EXPECT_EQ(chart_.AddSample(9, 1, 7000) + chart_.AddSample(-1, 1, 7000), 0);
    double value = 0;
    EXPECT_EQ(chart_.GetValueAt(flow_, 5999, &value), 1);
    chart_.SetLongestPause(1000);
    EXPECT_EQ(chart_.GetValueAt(flow_, 5001, &value), 0); // in a gap
    EXPECT_EQ(value, 100);
    EXPECT_EQ(chart_.AddCurve("none", red, 1, 1), -1);
    EXPECT_EQ(chart_.SetCapacity(0) + chart_.SetCapacity(100'000'001) + chart_.SetSpan(0) + chart_.ShowTime(5, 5), 0);
}

TEST_F(Pulse, LooksBackByMouseAndKeysAndReturns) {
    feed(0, 60'000);
    host_.told.clear();
    const __int64 live = start();
    mouse(WM_LBUTTONDOWN, 200, 150);
    mouse(WM_MOUSEMOVE, 300, 150);
    mouse(WM_LBUTTONUP, 300, 150);
    EXPECT_LT(start(), live);
    EXPECT_FALSE(chart_.IsLive());
    EXPECT_EQ(host_.told.back().first, WNT_PULSE_VIEW);
    const __int64 dragged = start();
    feed(60'000, 61'000);
    EXPECT_EQ(start(), dragged);
    key(VK_PRIOR);
    EXPECT_NEAR(static_cast<double>(start()), static_cast<double>(dragged - 6000), 30);
    key(VK_HOME);
    EXPECT_NEAR(static_cast<double>(start()), 0, 20);
    key(VK_END);
    EXPECT_TRUE(chart_.IsLive());
    EXPECT_GT(start(), live);
    CPoint at(300, 150);
    chart_.ClientToScreen(&at);
    chart_.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), MAKELPARAM(at.x, at.y));
    EXPECT_EQ(chart_.GetSpan(), 4800);
    chart_.SendMessage(WM_CHAR, '-', 0);
    EXPECT_EQ(chart_.GetSpan(), 6000);
    mouse(WM_LBUTTONDOWN, 200, 150, MK_LBUTTON | MK_SHIFT);
    mouse(WM_MOUSEMOVE, 300, 150, MK_LBUTTON | MK_SHIFT);
    const Pixels band = pixels_of(chart_);
    chart_.UpdateWindow();
    EXPECT_NE(pixels_of(chart_), band); // a frame round the stretch
    const __int64 before = start();
    mouse(WM_LBUTTONUP, 300, 150, MK_SHIFT);
    EXPECT_TRUE(start() > before && chart_.GetSpan() < 1500);
    CWnd* bar = chart_.GetDlgItem(4);
    const __int64 zoomed = start();
    for (const WPARAM code : {SB_PAGELEFT, SB_ENDSCROLL})
        chart_.SendMessage(WM_HSCROLL, code, reinterpret_cast<LPARAM>(bar->m_hWnd));
    EXPECT_NEAR(static_cast<double>(zoomed - start()), static_cast<double>(chart_.GetSpan()), 30);
    mouse(WM_LBUTTONDOWN, 200, 150);
    ::ReleaseCapture(); // ends a drag
    const __int64 there = start();
    mouse(WM_MOUSEMOVE, 400, 150);
    EXPECT_EQ(start(), there);
}

TEST_F(Pulse, APaintShowsWhatArrivedBeforeTheTick) {
    for (int i = 0; i < 600; ++i)
        chart_.AddSample(flow_, 50, 1'000'000 + i * 10);
    chart_.Invalidate();
    chart_.UpdateWindow();
    const auto [left, right] = extent(red);
    EXPECT_GT(right - left, 300);
    EXPECT_NEAR(static_cast<double>(start()), 1'000'000, 50);
}

TEST_F(Pulse, NowGoesOnWithoutSamplesWhereTheyComeByTheClock) {
    __int64 from = 0, to = 0;
    for (const __int64 late : {300LL, 3000LL}) {
        chart_.RemoveSamples();
        const __int64 newest = CWntPulse::Now() - late;
        chart_.AddSample(flow_, 50, newest);
        show();
        chart_.GetShownTime(&from, &to);
        EXPECT_EQ(to > newest + 200, late == 300) << to - newest;
    }
}

TEST_F(Pulse, TheTimeAxisZoomsToWhatItsSliderCovers) {
    feed(0, 60'000);
    auto& axis = dynamic_cast<CWntAxis&>(*chart_.GetDlgItem(3));
    CRect size;
    axis.GetClientRect(&size);
    const auto drag = [&](int from, int to) {
        axis.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(from, size.bottom - 5));
        axis.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(from, size.bottom - 5));
        axis.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(to, size.bottom - 5));
        axis.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(to, size.bottom - 5));
    };
    double from = -1, to = -1;
    drag(2, size.right / 2);
    EXPECT_EQ(axis.GetZoom(&from, &to), 0);
    EXPECT_TRUE(chart_.GetSpan() == 6000 && chart_.IsLive()); // there is no control yet
    chart_.SendMessage(WM_COMMAND, WNT_PULSE_CMD_ZOOM, 0);
    ASSERT_EQ(axis.GetZoom(&from, &to), 1);
    EXPECT_TRUE(from == 0 && to == 1);
    const __int64 live = start();
    host_.told.clear();
    drag(2, size.right / 2);
    EXPECT_NEAR(static_cast<double>(chart_.GetSpan()), 3000, 30);
    EXPECT_NEAR(static_cast<double>(start()), static_cast<double>(live + 3000), 30);
    EXPECT_THAT(host_.told, testing::ElementsAre(std::pair(UINT{WNT_PULSE_VIEW}, 0)));
    EXPECT_TRUE(axis.GetZoom(&from, &to) == 1 && from == 0 && to == 1); // ready for the next time
    drag(size.right - 2, size.right / 4);
    EXPECT_NEAR(static_cast<double>(chart_.GetSpan()), 750, 20);
    drag(size.right / 2, size.right / 2);
    EXPECT_EQ(host_.told.size(), 2u); // nothing was zoomed
}

TEST_F(Pulse, CursorsReadOff) {
    feed(0, 6000);
    const Pixels without = pixels_of(chart_);
    chart_.SetFocus();
    mouse(WM_LBUTTONDOWN, 300, 150);
    mouse(WM_LBUTTONUP, 300, 150, 0);
    __int64 first = 0, second = 0;
    ASSERT_EQ(chart_.GetCursor(0, &first), 1);
    EXPECT_EQ(chart_.GetCursor(1, &second), 0);
    EXPECT_EQ(host_.told.back(), std::pair(UINT{WNT_PULSE_CURSOR}, 0));
    mouse(WM_LBUTTONDOWN, 400, 150, MK_LBUTTON | MK_CONTROL);
    mouse(WM_LBUTTONUP, 400, 150, MK_CONTROL);
    ASSERT_EQ(chart_.GetCursor(1, &second), 1);
    EXPECT_GT(second, first);
    show();
    EXPECT_NE(pixels_of(chart_), without);
    // What the tip tells of both.
    CString text;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM to) -> BOOL {
            char name[40] = "";
            ::GetClassNameA(window, name, sizeof name);
            if (CString(name).MakeLower() == "tooltips_class32" && ::IsWindowVisible(window))
                CWnd::FromHandle(window)->GetWindowText(*reinterpret_cast<CString*>(to));
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&text));
    double value = 0;
    ASSERT_EQ(chart_.GetValueAt(level_, first, &value), 1);
    CString expected;
    expected.Format("Level: %g (", value);
    EXPECT_NE(text.Find(expected), -1) << text.GetString();
    EXPECT_NE(text.Find("+0:00:"), -1) << text.GetString();
    key(VK_RIGHT);
    __int64 moved = 0;
    chart_.GetCursor(0, &moved);
    EXPECT_GT(moved, first);
    EXPECT_LT(moved, first + 50);
    chart_.SetSpan(100); // several pixels a hundredth
    key(VK_LEFT);
    chart_.GetCursor(0, &first);
    EXPECT_LT(first, moved);
    chart_.SetSpan(6000);
    host_.told.clear();
    key(VK_ESCAPE);
    EXPECT_EQ(chart_.GetCursor(0, &first) + chart_.GetCursor(1, &first), 0);
    EXPECT_THAT(host_.told,
                testing::ElementsAre(std::pair(UINT{WNT_PULSE_CURSOR}, 0), std::pair(UINT{WNT_PULSE_CURSOR}, 1)));
    show();
    host_.SetFocus();
    full_repaint(chart_);
    EXPECT_EQ(pixels_of(chart_), without);
}

TEST_F(Pulse, TheLegendHidesCurves) {
    host_.told.clear();
    for (const int shown : {0, 1}) { // by its digit
        chart_.SendMessage(WM_CHAR, '2', 0);
        EXPECT_EQ(chart_.IsCurveShown(level_), shown);
    }
    chart_.SendMessage(WM_CHAR, '9', 0); // there is no ninth
    EXPECT_THAT(host_.told,
                testing::ElementsAre(std::pair(UINT{WNT_PULSE_CURVE}, 1), std::pair(UINT{WNT_PULSE_CURVE}, 1)));
    feed(0, 6000);
    EXPECT_GE(extent(blue).second, 0);
    for (int x = 5; x < 400 && chart_.IsCurveShown(level_); x += 5) // somewhere in the row below the title
        for (int y = 20; y < 50 && chart_.IsCurveShown(level_); y += 5) {
            const bool flow = chart_.IsCurveShown(flow_);
            mouse(WM_LBUTTONDOWN, x, y);
            if (flow && !chart_.IsCurveShown(flow_))
                chart_.ShowCurve(flow_, 1);
        }
    EXPECT_FALSE(chart_.IsCurveShown(level_));
    EXPECT_EQ(host_.told.back(), std::pair(UINT{WNT_PULSE_CURVE}, level_));
    show();
    EXPECT_LT(extent(blue).second, 0);
    const long framed = pixels_of(chart_).count(blue); // in the legend, with the ground inside
    EXPECT_TRUE(framed > 0 && framed < 60) << framed;
    EXPECT_GE(extent(red).second, 0);
}

TEST_F(Pulse, TakesAColourFromThePalette) {
    feed(0, 6000);
    bool clicked = false;
    const WhileModal modal([&] {
        const HWND dialog = shown_dialog();
        const HWND surface = dialog ? ::GetDlgItem(::GetDlgItem(dialog, 100), 100) : nullptr;
        if (!surface || clicked)
            return clicked;
        RECT area;
        ::GetClientRect(surface, &area);
        POINT at = {area.right * 13 / 16, area.bottom / 2}; // the seventh of eight: red
        const LPARAM place = MAKELPARAM(at.x, at.y);
        ::ClientToScreen(surface, &at);
        ::SetCursorPos(at.x, at.y);
        clicked = true;
        ::SendMessageA(surface, WM_LBUTTONUP, 0, place);
        return true;
    });
    chart_.SendMessage(WM_COMMAND, WNT_PULSE_CMD_CURVE + static_cast<UINT>(level_));
    EXPECT_TRUE(clicked);
    show();
    EXPECT_LT(extent(blue).second, 0);
    EXPECT_GE(extent(RGB(255, 0, 0)).second, 0);
}

TEST_F(Pulse, FitsInSteps) {
    chart_.SetFit(1);
    for (int i = 0; i < 600; ++i)
        chart_.AddSample(flow_, 1000 + i, i * 10);
    show();
    const double ends[] = {1000, 1599};
    int rows[2];
    chart_.ValuesToScreen(flow_, ends, 2, rows);
    CRect client;
    chart_.GetClientRect(&client);
    EXPECT_TRUE(0 < rows[1] && rows[1] < rows[0] && rows[0] < client.bottom);
    EXPECT_GT(rows[0] - rows[1], 100);
}

TEST_F(Pulse, CurvesThatShareARangeAreFittedAlike) {
    chart_.SetFit(1);
    for (int i = 0; i < 600; ++i)
        chart_.AddSample(flow_, 800 + i, i * 10);
    show();
    const int late = chart_.AddCurve("Late", RGB(0, 200, 0), 0, 100);
    chart_.AddSample(late, 900, 6000);
    show();
    const double value = 1000;
    int rows[2];
    chart_.ValuesToScreen(flow_, &value, 1, rows);
    chart_.ValuesToScreen(late, &value, 1, rows + 1);
    EXPECT_EQ(rows[0], rows[1]);
}

// In another window nothing goes on that belonged to the first.
TEST_F(Pulse, GoesFromWindowToWindow) {
    feed(0, 3000);
    mouse(WM_LBUTTONDOWN, 200, 150);
    chart_.AddSample(flow_, 1, 4000);
    chart_.DestroyWindow();
    chart_.AddSample(flow_, 1, 4500);
    ASSERT_TRUE(chart_.Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 600, 300), &host_, 5));
    show();
    const Pixels before = pixels_of(chart_);
    feed(5000, 8000);
    EXPECT_NE(pixels_of(chart_), before);
    mouse(WM_MOUSEMOVE, 400, 150);
    EXPECT_TRUE(chart_.IsLive());
}

TEST_F(Pulse, RecordsAndReads) {
    const CString path = "pulse_test_record.txt";
    ::DeleteFileA(path);
    ASSERT_EQ(chart_.StartRecording(path), 1);
    const __int64 now = CWntPulse::Now() / 100 * 100;
    for (int i = 0; i < 500; ++i)
        chart_.AddSample(i % 2, i, now + i / 2 * 100);
    EXPECT_EQ(chart_.StopRecording(), 1);
    EXPECT_EQ(chart_.StopRecording() + chart_.StartRecording("no such folder\\x.txt") + chart_.IsRecording(), 0);
    CWntPulse reader;
    ASSERT_TRUE(reader.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 300, 600, 500), &host_, 6));
    ASSERT_EQ(reader.OpenFile(path, 1), 1);
    while (reader.IsReading())
        reader.SendMessage(WM_TIMER, 2, 0);
    EXPECT_EQ(host_.told.back(), std::pair(UINT{WNT_PULSE_READ}, 1));
    EXPECT_EQ(reader.GetCurveCount(), 2);
    EXPECT_EQ(reader.GetSampleCount(0) + reader.GetSampleCount(1), 500);
    __int64 from = 0, to = 0;
    reader.GetShownTime(&from, &to);
    EXPECT_TRUE(from <= now && to >= now + 24'900 && to < now + 40'000);
    EXPECT_EQ(reader.OpenFile("no such file", 0) + reader.OpenFile(nullptr, 0), 0);
    EXPECT_EQ(reader.GetSampleCount(0), 250); // refused files leave what is there
    reader.OpenFile(path, 1);
    reader.SendMessage(WM_KEYDOWN, VK_ESCAPE, 0);
    EXPECT_EQ(host_.told.back(), std::pair(UINT{WNT_PULSE_READ}, 0));
    ::DeleteFileA(path);
}

TEST_F(Pulse, CopiesWhatIsShown) {
    for (int i = 0; i < 10; ++i)
        chart_.AddSample(flow_, 12.5 + i, i * 200);
    chart_.AddSample(level_, 1, 400); // of a curve that is hidden
    chart_.ShowCurve(level_, 0);
    chart_.ShowTime(350, 450);
    ASSERT_EQ(chart_.CopyValues(), 1);
    ASSERT_TRUE(host_.OpenClipboard());
    const HANDLE block = ::GetClipboardData(CF_TEXT);
    const CString text = block ? static_cast<const char*>(::GlobalLock(block)) : "";
    ::GlobalUnlock(block);
    ::CloseClipboard();
    EXPECT_STREQ(text, "1979-12-31 00:00:04.00\tFlow\t14.5\r\n");
    EXPECT_EQ(chart_.CopyPicture(), 1);
    EXPECT_TRUE(::IsClipboardFormatAvailable(CF_BITMAP));
}

TEST_F(Pulse, ReadsScriptsAndTakesWindowsOver) {
    const std::string_view lines = ":TITLE=Pump\r\n:CURVE=Speed,RED,0,3000\r\n:SPAN=10\r\n";
    const TemporaryFile file({lines.begin(), lines.end()});
    const HWND blank = ::CreateWindowA("WntPulse", file.name(), WS_CHILD | WS_VISIBLE, 0, 0, 300, 200, host_.m_hWnd,
                                       nullptr, nullptr, nullptr);
    ASSERT_TRUE(blank);
    CWntPulse taken;
    ASSERT_TRUE(taken.SubclassWindow(blank));
    EXPECT_EQ(taken.GetCurveCount(), 1);
    EXPECT_EQ(taken.GetSpan(), 1000);
    double low = -1, high = -1;
    EXPECT_TRUE(taken.GetRange(0, &low, &high) == 1 && low == 0 && high == 3000);
    EXPECT_EQ(taken.GetRange(1, &low, &high) + taken.GetRange(0, nullptr, &high), 0);
    EXPECT_EQ(taken.AddSample(0, 1500), 1);
    CWntPulse* volatile none = nullptr;
    EXPECT_EQ(none->AddSample(0, 1) + none->AddSample(0, 1, 1) + none->SetSpan(5) + none->GetCurveCount() +
                  none->OpenFile("x", 0) + none->CopyValues() + none->IsLive(),
              0);
}

TEST_F(Pulse, MayBeDestroyedOnAnyNotification) {
    for (const UINT code : {WNT_PULSE_VIEW, WNT_PULSE_CURSOR, WNT_PULSE_CURVE, WNT_PULSE_READ}) {
        auto* chart = new CWntPulse;
        ASSERT_TRUE(chart->Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 400, 300), &host_, 7));
        chart->AddCurve("a", red, 0, 1);
        for (int i = 0; i < 1000; ++i)
            chart->AddSample(0, 0.5, i * 100);
        const HWND window = chart->m_hWnd;
        host_.on_notify = [&](const WntPulseNotify& n) {
            if (n.hdr.code == code)
                delete std::exchange(chart, nullptr);
        };
        const auto send = [&](UINT message, WPARAM wParam, LPARAM lParam) {
            ::SendMessage(window, message, wParam, lParam);
        };
        const TemporaryFile file({'1', '\n', 'a', ' ', ';', '\n'});
        if (code == WNT_PULSE_READ)
            chart->OpenFile(file.name(), 0);
        for (int i = 0; i < 3; ++i)
            send(WM_TIMER, 2, 0);
        send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(200, 150));
        send(WM_LBUTTONUP, 0, MAKELPARAM(200, 150));
        if (const HWND axis = ::GetDlgItem(window, 3); axis && code == WNT_PULSE_VIEW) {
            CRect size;
            ::GetClientRect(axis, &size);
            send(WM_COMMAND, WNT_PULSE_CMD_ZOOM, 0);
            ::SendMessage(axis, WM_MOUSEMOVE, 0, MAKELPARAM(1, size.bottom - 5));
            ::SendMessage(axis, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(1, size.bottom - 5));
            ::SendMessage(axis, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(90, size.bottom - 5));
            ::SendMessage(axis, WM_LBUTTONUP, 0, MAKELPARAM(90, size.bottom - 5));
            EXPECT_FALSE(::IsWindow(window));
        }
        send(WM_KEYDOWN, VK_PRIOR, 0);
        for (int y = 2; y < 40; y += 4)
            send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, y));
        EXPECT_FALSE(chart) << code;
        EXPECT_FALSE(::IsWindow(window)) << code;
    }
}

// A hundred samples a second; the picture follows every 400 seconds.
TEST_F(Pulse, AWeekOfLiveTimeGrowsNothing) {
    constexpr __int64 day = 8'640'000, tick = 40'000;
    struct Held {
        int objects, windows;
        SIZE_T memory;
    };
    const auto held = [] {
        PROCESS_MEMORY_COUNTERS memory = {};
        ::K32GetProcessMemoryInfo(::GetCurrentProcess(), &memory, sizeof memory);
        return Held{live_gdi_objects(), user_objects(), memory.PagefileUsage};
    };
    chart_.SetCapacity(100'000);
    Held first = {};
    for (__int64 time = 0; time < 7 * day; time += tick) {
        for (__int64 at = time; at < time + tick; ++at)
            chart_.AddSample(flow_, static_cast<double>(at % 977) / 10, at);
        show();
        if (time == day)
            first = held();
    }
    const Held last = held();
    EXPECT_EQ(chart_.GetSampleCount(flow_), 100'000);
    EXPECT_GT(first.objects, 0);
    EXPECT_EQ(last.objects, first.objects);
    EXPECT_EQ(last.windows, first.windows);
    EXPECT_TRUE(first.memory > 0 && last.memory < first.memory + 1'000'000) << first.memory << ' ' << last.memory;
}

TEST_F(Pulse, HoldsAtAnyOperation) {
    std::mt19937 random(17);
    const auto some = [&](int most) { return static_cast<int>(random() % static_cast<unsigned>(most + 1)); };
    const __int64 odd[] = {std::numeric_limits<__int64>::min(), -1, 0, std::numeric_limits<__int64>::max(), 1LL << 44};
    __int64 time = 0;
    const auto any_time = [&] { return some(4) ? time - some(100'000) : odd[some(4)]; };
    const UINT keys[] = {VK_LEFT, VK_RIGHT, VK_PRIOR, VK_NEXT, VK_HOME, VK_END, VK_SPACE, VK_ESCAPE};
    for (int i = 0; i < 1000; ++i) {
        switch (some(12)) {
        case 0:
            chart_.MoveWindow(0, 0, some(3) ? some(1600) : some(3), some(3) ? some(900) : some(3));
            break;
        case 1:
            chart_.AddCurve("more", red, some(5) - 3, some(5));
            break;
        case 2:
            if (some(20) == 0)
                chart_.RemoveCurves();
            chart_.ShowCurve(some(9), some(1));
            break;
        case 3:
            chart_.SetSpan(any_time());
            break;
        case 4:
            chart_.ShowTime(any_time(), any_time());
            break;
        case 5:
            key(keys[some(7)]);
            break;
        case 6:
            mouse(some(1) ? WM_LBUTTONDOWN : WM_LBUTTONUP, some(1600), some(900), static_cast<UINT>(some(15)));
            mouse(WM_MOUSEMOVE, some(1600), some(900));
            break;
        case 7:
            chart_.SetCursor(some(3) - 1, any_time());
            break;
        case 8:
            chart_.SetFit(some(1));
            chart_.SetCapacity(some(3) ? some(5000) : 1);
            break;
        case 9:
            chart_.LoadLine(some(1) ? ":AXES=LEFT" : ":AXES=LEFT RIGHT BOTTOM", 0);
            chart_.LoadLine("", 2);
            break;
        case 10:
            chart_.SendMessage(WM_COMMAND, WNT_PULSE_CMD_LIVE + static_cast<UINT>(some(3)), 0);
            break;
        default:
            for (int k = some(300); k > 0; --k) {
                time += some(50) ? some(30) : some(100'000);
                chart_.AddSample(some(10), some(40) ? some(1000) / 7.0 - 20 : std::nan(""), time);
            }
            show();
        }
    }
    show();
    EXPECT_TRUE(::IsWindow(chart_.m_hWnd));
}

} // namespace
