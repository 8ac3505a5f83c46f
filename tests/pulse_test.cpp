#include "pulse_host.h"

#include "modal.h"

#include <fstream>

namespace {

using Pulse = PulseFixture;

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
    CClientDC(&chart_).FillSolidRect(CRect(200, 60, 400, 200), poison);
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
    EXPECT_EQ(chart_.SetLook(flow_, 0, 1, 0) + chart_.SetLook(level_, 7, 0, 0), 2);
    EXPECT_EQ(chart_.SetLook(flow_, -1, 0, 0) + chart_.SetLook(flow_, 8, 0, 0), 0);
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
        const CRect near_by(std::max(x - 1, left), rows[i], std::min(x + 1, right) + 1, rows[i] + 1);
        EXPECT_FALSE(::extent(seen, red, near_by).IsRectEmpty()) << values[i];
    }
    const CRect before(left + (right - left) / 4, rows[0], left + (right - left) / 4 + 1, rows[0] + 1);
    EXPECT_FALSE(::extent(seen, red, before).IsRectEmpty()) << "a step";
    EXPECT_NE(seen.at(left + 2, rows[0] - 2), red) << "no mark";
    chart_.SetLook(flow_, 0, 0, 1);
    show();
    EXPECT_TRUE(::extent(pixels_of(chart_), red, before).IsRectEmpty());
    EXPECT_EQ(pixels_of(chart_).at(left + 2, rows[0] - 2), red) << "a mark";
    chart_.AddSample(flow_, std::nan(""), 6010);
    EXPECT_EQ(chart_.AddSamples(flow_, values, times, 4), 0); // they run back
    EXPECT_EQ(chart_.AddSample(9, 1, 7000) + chart_.AddSample(-1, 1, 7000), 0);
    double value = 0;
    EXPECT_TRUE(chart_.GetValueAt(flow_, 5999, &value) == 1 && value == 100);
    chart_.SetLongestPause(1000);
    EXPECT_EQ(chart_.GetValueAt(flow_, 5001, &value), 0); // in a gap
    EXPECT_EQ(chart_.AddCurve("none", red, 1, 1), -1);
    EXPECT_EQ(chart_.SetCapacity(0) + chart_.SetSpan(0) + chart_.ShowTime(5, 5), 0);
}

TEST_F(Pulse, LooksBackByMouseAndKeysAndReturns) {
    EXPECT_EQ(chart_.SendMessage(WM_GETDLGCODE), DLGC_WANTARROWS | DLGC_WANTCHARS); // + and - in dialogs, too
    feed(0, 60'000);
    host_.told.clear();
    const __int64 live = start();
    mouse(WM_LBUTTONDOWN, 200, 150);
    mouse(WM_MOUSEMOVE, 300, 150);
    mouse(WM_LBUTTONUP, 300, 150);
    EXPECT_TRUE(start() < live && !chart_.IsLive());
    EXPECT_EQ(std::get<0>(host_.told.back()), WNT_PULSE_VIEW);
    const __int64 dragged = start();
    feed(60'000, 61'000);
    EXPECT_EQ(start(), dragged);
    key(VK_HOME);
    EXPECT_NEAR(static_cast<double>(start()), 0, 20);
    key(VK_END);
    EXPECT_TRUE(chart_.IsLive() && start() > live);
    CPoint at(300, 150);
    chart_.ClientToScreen(&at);
    chart_.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), MAKELPARAM(at.x, at.y));
    EXPECT_EQ(chart_.GetSpan(), 4800);
    chart_.SendMessage(WM_CHAR, '-', 0);
    EXPECT_EQ(chart_.GetSpan(), 6000);
    mouse(WM_LBUTTONDOWN, 300, 150, MK_LBUTTON | MK_SHIFT); // from right to left
    mouse(WM_MOUSEMOVE, 200, 150, MK_LBUTTON | MK_SHIFT);
    const Pixels band = pixels_of(chart_);
    chart_.UpdateWindow();
    EXPECT_NE(pixels_of(chart_), band); // a frame round the stretch
    const __int64 before = start();
    mouse(WM_LBUTTONUP, 200, 150, MK_SHIFT);
    EXPECT_GT(start(), before);
    EXPECT_NEAR(static_cast<double>(chart_.GetSpan()), 1200, 300);
    mouse(WM_LBUTTONDOWN, 200, 150);
    ::ReleaseCapture(); // ends a drag
    const __int64 there = start();
    mouse(WM_MOUSEMOVE, 400, 150);
    EXPECT_EQ(start(), there);
}

TEST_F(Pulse, KeysAndTheBarGoByPartsOfWhatIsShown) {
    feed(0, 60'000);
    const HWND bar = chart_.GetDlgItem(4)->m_hWnd;
    SCROLLINFO info = {sizeof info, SIF_ALL, 0, 0, 0, 0, 0};
    ::GetScrollInfo(bar, SB_CTL, &info);
    EXPECT_THAT((std::vector{info.nMin, info.nMax, static_cast<int>(info.nPage), info.nPos}),
                testing::ElementsAre(0, 1000, 100, 900));
    const auto moved = [&](const std::function<void()>& by) { // in thousandths of what is shown
        const __int64 before = start();
        by();
        return (start() - before) * 1000 / chart_.GetSpan();
    };
    const auto scrolled = [&](WPARAM code) {
        return moved([&] { chart_.SendMessage(WM_HSCROLL, code, reinterpret_cast<LPARAM>(bar)); });
    };
    std::vector<__int64> by_keys, by_bar;
    for (const UINT k : {VK_LEFT, VK_RIGHT, VK_PRIOR, VK_NEXT})
        by_keys.push_back(moved([&] { key(k); }));
    for (const WPARAM code : {SB_LINELEFT, SB_LINERIGHT, SB_PAGELEFT, SB_PAGERIGHT, SB_ENDSCROLL})
        by_bar.push_back(scrolled(code));
    EXPECT_THAT(by_keys, testing::ElementsAre(-98, 98, -1000, 1000));
    EXPECT_THAT(by_bar, testing::ElementsAre(-98, 98, -1000, 1000, 0));
    info.nPos = info.nMax / 2;
    ::SetScrollInfo(bar, SB_CTL, &info, FALSE);
    scrolled(MAKEWPARAM(SB_THUMBPOSITION, info.nPos));
    EXPECT_NEAR(static_cast<double>(start()), 30'000, 30);
    // Cursors, and the curves by their digits.
    __int64 at[2] = {};
    {
        const HeldKeys shift({VK_SHIFT});
        key(VK_RIGHT); // not shown yet: in the middle
        chart_.GetCursor(1, &at[0]);
        const HeldKeys both({VK_SHIFT, VK_CONTROL});
        key(VK_RIGHT);
        chart_.GetCursor(1, &at[1]);
    }
    EXPECT_NEAR(static_cast<double>(at[0]), 33'000, 30);
    EXPECT_NEAR(static_cast<double>(at[1] - at[0]), 100, 30);
    MSG escape = {chart_.m_hWnd, WM_KEYDOWN, VK_ESCAPE, 0, 0, {}};
    const auto wanted = [&] { return chart_.SendMessage(WM_GETDLGCODE, 0, reinterpret_cast<LPARAM>(&escape)); };
    EXPECT_EQ(wanted(), DLGC_WANTARROWS | DLGC_WANTCHARS | DLGC_WANTMESSAGE);
    key(VK_ESCAPE);
    EXPECT_EQ(wanted(), DLGC_WANTARROWS | DLGC_WANTCHARS);
    EXPECT_EQ(chart_.SetColour(level_, RGB(0, 200, 0)) + chart_.SetColour(9, red), 1);
    show();
    EXPECT_GE(extent(RGB(0, 200, 0)).second, 0);
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

TEST_F(Pulse, ALoneRightAxisHasTheFirstRange) {
    for (const char* line : {":AXES=RIGHT", ":AXES=LEFT RIGHT"}) {
        chart_.LoadLine(line, 0);
        chart_.LoadLine("", 2);
        feed(0, 6000);
        auto& axis = dynamic_cast<CWntAxis&>(*chart_.GetDlgItem(2));
        float highest = 0;
        axis.ScreenToValue(0, &highest);
        EXPECT_NEAR(highest, line[6] == 'R' ? 100 : 10, 1) << line;
    }
}

TEST_F(Pulse, GridLinesStandAtTicksOfTheAxes) {
    constexpr COLORREF grid = RGB(0, 200, 0);
    chart_.SetColours(paper, 0, grid);
    chart_.ShowTime(0, 60'000);
    show();
    const Pixels seen = pixels_of(chart_);
    std::vector<int> columns, rows;
    for (int x = 0; x < seen.width; ++x)
        if (seen.at(x, 60) == grid)
            columns.push_back(x);
    for (int y = 0; y < seen.height; ++y)
        if (seen.at(100, y) == grid)
            rows.push_back(y);
    EXPECT_THAT(columns, testing::ElementsAre(52, 151, 250, 349, 448));
    EXPECT_THAT(rows, testing::ElementsAre(44, 64, 85, 105, 125, 145, 166, 186, 206, 227, 246));
}

TEST_F(Pulse, TheTimeAxisZoomsToWhatItsSliderCovers) {
    feed(0, 60'000);
    auto& axis = dynamic_cast<CWntAxis&>(*chart_.GetDlgItem(3));
    const CSize size = size_of(axis);
    const auto drag = [&](int from, int to) { PulseFixture::drag(axis.m_hWnd, from, to, size.cy - 5); };
    double from = -1, to = -1;
    drag(2, size.cx / 2);
    EXPECT_EQ(axis.GetZoom(&from, &to), 0);
    EXPECT_TRUE(chart_.GetSpan() == 6000 && chart_.IsLive()); // there is no control yet
    chart_.SendMessage(WM_COMMAND, WNT_PULSE_CMD_ZOOM, 0);
    ASSERT_EQ(axis.GetZoom(&from, &to), 1);
    EXPECT_TRUE(from == 0 && to == 1);
    const __int64 live = start();
    host_.told.clear();
    drag(2, size.cx / 2);
    EXPECT_NEAR(static_cast<double>(chart_.GetSpan()), 3000, 30);
    EXPECT_NEAR(static_cast<double>(start()), static_cast<double>(live + 3000), 30);
    EXPECT_THAT(host_.told, testing::ElementsAre(std::tuple(WNT_PULSE_VIEW, 0)));
    EXPECT_TRUE(axis.GetZoom(&from, &to) == 1 && from == 0 && to == 1); // ready for the next time
    drag(size.cx - 2, size.cx / 4);
    EXPECT_NEAR(static_cast<double>(chart_.GetSpan()), 750, 20);
    drag(size.cx / 2, size.cx / 2);
    EXPECT_EQ(host_.told.size(), 2u); // nothing was zoomed
}

TEST_F(Pulse, ItsMenuTellsItsState) {
    const auto listed = [&] {
        std::string texts;
        const WhileModal menu([&] {
            texts = shown_menu();
            return !texts.empty() && ::EndMenu();
        });
        chart_.SendMessage(WM_CONTEXTMENU, 0, -1); // by the keyboard
        return texts;
    };
    EXPECT_EQ(listed(), "*&Live\tEnd|&Pause\tSpace|&Fit values|&Cursors|&Zoom control||&Record...|&Open...||"
                        "Colo&urs||Copy p&icture|Copy &values|Pri&nt|");
    for (const UINT command : {WNT_PULSE_CMD_PAUSE, WNT_PULSE_CMD_FIT, WNT_PULSE_CMD_CURSORS, WNT_PULSE_CMD_ZOOM})
        chart_.SendMessage(WM_COMMAND, command);
    EXPECT_TRUE(chart_.IsFit() && !chart_.IsLive());
    ASSERT_EQ(chart_.StartRecording("pulse menu.txt"), 1);
    EXPECT_EQ(listed().substr(0, 100), "&Live\tEnd|*&Pause\tSpace|*&Fit values|*&Cursors|*&Zoom control||"
                                       "*End &recording|-&Open...||Colo&urs||");
    chart_.SendMessage(WM_COMMAND, WNT_PULSE_CMD_RECORD);
    EXPECT_TRUE(!chart_.IsRecording() && host_.told.back() == std::tuple(WNT_PULSE_RECORDING, 0));
    chart_.SendMessage(WM_COMMAND, WNT_PULSE_CMD_LIVE);
    EXPECT_TRUE(chart_.IsLive() && ::DeleteFileA("pulse menu.txt"));
}

TEST_F(Pulse, CallsChangeWhatIsShown) {
    feed(0, 60'000);
    const int before = rows(flow_, 100, 200).first;
    EXPECT_EQ(chart_.SetRange(flow_, 1, 1) + chart_.SetRange(9, 0, 1), 0);
    EXPECT_EQ(chart_.SetRange(flow_, 0, 200), 1);
    const auto [hundred, two_hundred] = rows(flow_, 100, 200);
    EXPECT_TRUE(two_hundred == before && hundred > before + 50);
    EXPECT_EQ(chart_.SetLive(0), 1);
    const __int64 there = start();
    feed(60'000, 61'000);
    EXPECT_EQ(start(), there);
    chart_.SetLive(1);
    EXPECT_GT(start(), there + 900);
    EXPECT_EQ(chart_.SetCursor(1, 3000) + chart_.HideCursor(1), 2);
    EXPECT_EQ(chart_.HideCursor(1) + chart_.HideCursor(-1) + chart_.HideCursor(2) + chart_.SetCursor(2, 0), 0);
    EXPECT_TRUE(chart_.SetRecordingParts(4096, 0) == 1 && chart_.SetRecordingParts(0, 1) == 1);
    EXPECT_EQ(chart_.SetRecordingParts(4095, 0) + chart_.SetRecordingParts(-1, 0) + chart_.StopReading(), 0);

    const __int64 live = start(), page = chart_.GetSpan();
    host_.told.clear();
    chart_.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(MK_SHIFT, WHEEL_DELTA), 0); // back by a part of what is shown
    EXPECT_TRUE(start() < live && start() > live - page);
    EXPECT_THAT(host_.told, testing::ElementsAre(std::tuple(WNT_PULSE_VIEW, 0)));
    const HWND bar = chart_.GetDlgItem(4)->m_hWnd;
    chart_.SendMessage(WM_HSCROLL, SB_LEFT, reinterpret_cast<LPARAM>(bar));
    EXPECT_NEAR(static_cast<double>(start()), 0, 20);
    chart_.SendMessage(WM_HSCROLL, SB_RIGHT, reinterpret_cast<LPARAM>(bar));
    EXPECT_EQ(start(), live);
    chart_.SendMessage(WM_CHAR, '+', 0);
    EXPECT_EQ(chart_.GetSpan(), page * 4 / 5);
    const auto dialog_of = [](const std::function<void()>& open) { // its title; it is cancelled
        CString title;
        const WhileModal closing([&] {
            CWnd* const dialog = CWnd::FromHandle(shown_dialog());
            if (dialog)
                dialog->GetWindowText(title);
            return dialog && dialog->PostMessage(WM_COMMAND, IDCANCEL);
        });
        open();
        return title;
    };
    CWnd& axis = *chart_.GetDlgItem(3);
    EXPECT_EQ(dialog_of([&] { axis.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(20, 20)); }),
              "Achseneinstellungen");
    EXPECT_EQ(dialog_of([&] { chart_.SendMessage(WM_COMMAND, WNT_PULSE_CMD_CURVE + 1); }), "Level");
    show();
    EXPECT_GE(extent(blue).second, 0) << "as before";
}

TEST_F(Pulse, FollowsTheScreensScale) {
    const int before = rows(flow_, 100, 0).first; // below title and legend
    MainFrameScale main;
    main.tell(chart_, 200);
    EXPECT_NEAR(rows(flow_, 100, 0).first, 2 * before, 8);
}

TEST_F(Pulse, TakesFilesThatAreDropped) {
    ASSERT_EQ(chart_.StartRecording("pulse drop.txt"), 1);
    chart_.AddSample(flow_, 5, CWntPulse::Now());
    chart_.StopRecording();
    EXPECT_TRUE(chart_.GetExStyle() & WS_EX_ACCEPTFILES);
    drop_file(chart_, "pulse drop.txt");
    EXPECT_TRUE(chart_.IsReading() && ::GetFocus() == chart_.m_hWnd);
    EXPECT_EQ(chart_.StopReading(), 1);
    std::ofstream("pulse drop.txt") << ":CLEARCURVES\n:CURVE=One,RED,0,1\n";
    drop_file(chart_, "pulse drop.txt");
    EXPECT_TRUE(!chart_.IsReading() && chart_.GetCurveCount() == 1);
    ::DeleteFileA("pulse drop.txt");
}

TEST_F(Pulse, CursorsReadOff) {
    feed(0, 6000);
    const Pixels without = pixels_of(chart_);
    __int64 first = 0, second = 0, told = 0;
    host_.answer = [&](WntPulseNotify& n) {
        told = n.time;
        return 0;
    };
    mouse(WM_LBUTTONDOWN, 300, 150); // takes the focus
    mouse(WM_LBUTTONUP, 300, 150, 0);
    ASSERT_EQ(chart_.GetCursor(0, &first), 1);
    EXPECT_EQ(chart_.GetCursor(1, &second), 0);
    EXPECT_EQ(host_.told.back(), std::tuple(WNT_PULSE_CURSOR, 0));
    EXPECT_EQ(told, first);
    mouse(WM_LBUTTONDOWN, 400, 150, MK_LBUTTON | MK_CONTROL);
    mouse(WM_LBUTTONUP, 400, 150, MK_CONTROL);
    ASSERT_EQ(chart_.GetCursor(1, &second), 1);
    EXPECT_GT(second, first);
    show();
    EXPECT_NE(pixels_of(chart_), without);
    chart_.SetCursor(0, 4000);
    chart_.SetCursor(1, 1275);
    CString text;
    CWnd::FromHandle(thread_window("tooltips_class32", true))->GetWindowText(text);
    EXPECT_STREQ(text, "1979-12-31 00:00:40.00\n-0:00:27.25\nFlow: 89.5743 (-16.9361)\nLevel: 5 (-4)");
    chart_.SetCursor(1, 4000 + 372'307);
    CWnd::FromHandle(thread_window("tooltips_class32", true))->GetWindowText(text);
    EXPECT_STREQ(text, "1979-12-31 00:00:40.00\n+1:02:03.07\nFlow: 89.5743\nLevel: 5");
    chart_.SetCursor(0, first);
    chart_.SetCursor(1, second);
    key(VK_RIGHT);
    __int64 moved = 0;
    chart_.GetCursor(0, &moved);
    EXPECT_TRUE(moved > first && moved < first + 50) << moved - first;
    chart_.SetSpan(100); // several pixels a hundredth
    key(VK_LEFT);
    chart_.GetCursor(0, &first);
    EXPECT_LT(first, moved);
    chart_.SetSpan(6000);
    host_.told.clear();
    chart_.SetCursor(0, start());
    key(VK_LEFT); // the view follows
    EXPECT_THAT(host_.told, testing::Contains(std::tuple(WNT_PULSE_VIEW, 0)));
    host_.told.clear();
    key(VK_ESCAPE);
    EXPECT_EQ(chart_.GetCursor(0, &first) + chart_.GetCursor(1, &first), 0);
    EXPECT_THAT(host_.told, testing::ElementsAre(std::tuple(WNT_PULSE_CURSOR, 0), std::tuple(WNT_PULSE_CURSOR, 1)));
    show();
    host_.SetFocus(); // the frame of the focus goes as well
    chart_.UpdateWindow();
    EXPECT_EQ(pixels_of(chart_), without);
}

TEST_F(Pulse, TheLegendHidesCurves) {
    host_.told.clear();
    for (const int shown : {0, 1}) { // by its digit
        chart_.SendMessage(WM_CHAR, '2', 0);
        EXPECT_EQ(chart_.IsCurveShown(level_), shown);
    }
    chart_.SendMessage(WM_CHAR, '9', 0); // there is no ninth
    EXPECT_THAT(host_.told, testing::ElementsAre(std::tuple(WNT_PULSE_CURVE, 1), std::tuple(WNT_PULSE_CURVE, 1)));
    feed(0, 6000);
    EXPECT_GE(extent(blue).second, 0);
    for (int x = 5; x < 400 && chart_.IsCurveShown(level_); x += 5) // somewhere in the row below the title
        for (int y = 20; y < 50 && chart_.IsCurveShown(level_); y += 5) {
            mouse(WM_LBUTTONDOWN, x, y);
            chart_.ShowCurve(flow_, 1);
        }
    EXPECT_FALSE(chart_.IsCurveShown(level_));
    EXPECT_EQ(host_.told.back(), std::tuple(WNT_PULSE_CURVE, level_));
    show();
    EXPECT_LT(extent(blue).second, 0);
    const long framed = pixels_of(chart_).count(blue); // in the legend, with the ground inside
    EXPECT_TRUE(framed > 0 && framed < 60) << framed;
    EXPECT_GE(extent(red).second, 0);
}

TEST_F(Pulse, FitsCurvesThatShareARangeAlike) {
    chart_.SetFit(1);
    for (int i = 0; i < 600; ++i)
        chart_.AddSample(flow_, 1000 + i, i * 10);
    show();
    const auto [low, high] = rows(flow_, 1000, 1599);
    EXPECT_TRUE(0 < high && high + 100 < low && low < size_of(chart_).cy);
    const int late = chart_.AddCurve("Late", RGB(0, 200, 0), 0, 100);
    chart_.AddSample(late, 1100, 6000);
    show();
    EXPECT_EQ(rows(flow_, 1000, 1599), rows(late, 1000, 1599));
    chart_.ShowCurve(flow_, 0); // no room is left for what is hidden
    show();
    EXPECT_LT(rows(late, 1500, 0).first, 0);
}

} // namespace
