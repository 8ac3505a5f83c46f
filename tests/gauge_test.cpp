#include "temporary_file.h"
#include "widget_window.h"

#include <random>
#include <set>

namespace {

constexpr int surface_id = 100;
constexpr const char* types[6] = {"PERCENTBAR", "THERMOMETER", "ANALOG", "DIGITAL", "PEAKLINE", "TURNKNOB"};
struct GaugeTest : WidgetTest {
    void open_with(int width, int height, std::initializer_list<std::string> lines) {
        gauge_.DestroyWindow();
        open(gauge_, width, height);
        script(lines);
    }

    void script(std::initializer_list<std::string> lines) {
        gauge_.LoadLine("", 1);
        for (const auto& line : lines)
            gauge_.LoadLine(line.c_str(), 0);
        gauge_.LoadLine("", 2);
    }

    bool equals_full_repaint() {
        const Pixels shown = pixels_of(gauge_);
        cover(gauge_, surface_id, poison);
        return shown == repainted(gauge_);
    }

    long painted_by_value(int value) {
        cover(gauge_, surface_id, poison);
        gauge_.SetCurVal(value);
        const Pixels after = pixels_of(gauge_);
        return static_cast<long>(after.values.size()) - after.count(poison);
    }

    CWntGauge gauge_;
};

} // namespace

TEST_F(GaugeTest, ValueRepaintsEqualFullRepaints) {
    std::mt19937 random(11);
    for (const char* type : types)
        for (const CSize size : {CSize(20, 20), CSize(60, 40), CSize(201, 163), CSize(420, 410)}) {
            open_with(size.cx, size.cy,
                      {std::string(":TYPE=") + type, ":MINVAL=-50", ":MAXVAL=250", ":BARTITLE=X", ":CLEARMARKS",
                       ":SETMARK=20,YELLOW", ":SETMARK=120,DARKBLUE", ":SETMARK=119,RED", ":SETMARK=119,RED"});
            for (int i = 0; i < 25; ++i)
                gauge_.SetCurVal(static_cast<int>(random() % 301) - 50);
            ASSERT_TRUE(equals_full_repaint()) << type << " " << size.cx << "x" << size.cy;
        }
}

TEST_F(GaugeTest, ValueRepaintsTouchLittle) {
    for (const char* type : types) {
        open_with(200, 200, {std::string(":TYPE=") + type, ":CLEARMARKS"});
        gauge_.SetCurVal(60);
        const long painted = painted_by_value(61);
        EXPECT_GT(painted, 20) << type;
        EXPECT_LT(painted, 200 * 200 / 4) << type;
        EXPECT_EQ(painted_by_value(61), 0) << type;  // the current value
        EXPECT_EQ(painted_by_value(101), 0) << type; // outside the range
    }
}

TEST_F(GaugeTest, StaleFaceIsNotPaintedOver) {
    open_with(200, 200, {":TYPE=ANALOG", ":CURVAL=10", ":CLEARMARKS"});
    gauge_.SetType(5); // shown with the next repaint
    gauge_.SetCurVal(20);
    EXPECT_TRUE(equals_full_repaint());
    gauge_.SetWindowPos(nullptr, 0, 0, 90, 70, SWP_NOMOVE | SWP_NOZORDER);
    gauge_.UpdateWindow();
    EXPECT_TRUE(equals_full_repaint());
    gauge_.AddMark(60, "BLUE");
    gauge_.SetCurVal(21);
    const Pixels marked = pixels_of(gauge_);
    gauge_.SetType(5); // all of it is drawn anew
    EXPECT_EQ(repainted(gauge_), marked);

    for (const int unknown : {-1, 6, INT_MAX, INT_MIN}) {
        gauge_.SetType(unknown);
        cover(gauge_, surface_id, poison);
        EXPECT_EQ(repainted(gauge_).count(poison), 90 * 70) << unknown;
        gauge_.SendMessage(WM_COMMAND, 104); // the view switch finds its way back from anywhere
    }
}

TEST_F(GaugeTest, ColourLinesArePaintedAsColourValues) {
    open_with(100, 100, {":TYPE=ANALOG", ":NOTITLE=X", ":BORDERHEIGHT=3", ":BORDERTYPE=3DUP"});
    const Pixels plain = pixels_of(gauge_);
    EXPECT_THAT((std::vector{plain.at(1, 50), plain.at(98, 50), plain.at(4, 4)}),
                testing::ElementsAre(::GetSysColor(COLOR_BTNHIGHLIGHT), ::GetSysColor(COLOR_3DDKSHADOW),
                                     ::GetSysColor(COLOR_BTNFACE)));
    script({":CLRBACK=GRAY", ":CLRSUN=CYAN", ":CLRSHADOW=RED"});
    const Pixels p = pixels_of(gauge_);
    EXPECT_TRUE(p.at(1, 50) == RGB(7, 0, 0) && p.at(50, 1) == RGB(7, 0, 0)); // left and top: sun
    EXPECT_TRUE(p.at(98, 50) == RGB(6, 0, 0) && p.at(4, 4) == RGB(9, 0, 0)); // right: shadow; background
}

TEST_F(GaugeTest, EdgesAreMixedMoreFinelyInSmallPictures) {
    const auto shades = [&](int size) {
        open_with(size, size, {":TYPE=ANALOG", ":NOTITLE=X"});
        const Pixels shown = pixels_of(gauge_);
        return std::set<COLORREF>(shown.values.begin(), shown.values.end()).size();
    };
    EXPECT_GT(shades(400), 1.3 * shades(401));
    EXPECT_GT(shades(401), 100u);
}

TEST_F(GaugeTest, TestModeGivesRoomToBarAndButton) {
    open(gauge_, 120, 120);
    gauge_.SetTestMode(1);
    script({":MINVAL=5", ":MAXVAL=70000", ":CURVAL=40"});
    gauge_.SetWindowPos(nullptr, 0, 0, 130, 120, SWP_NOMOVE | SWP_NOZORDER);
    const auto place = [&](int id) { return place_in(gauge_, *gauge_.GetDlgItem(id)); };
    EXPECT_EQ(place(100), CRect(0, 0, 130, 110));
    EXPECT_EQ(place(103), CRect(0, 110, 120, 120));
    EXPECT_EQ(place(104), CRect(120, 110, 130, 120));

    HWND bar = gauge_.GetDlgItem(103)->m_hWnd;
    int low = 0, high = 0;
    ::GetScrollRange(bar, SB_CTL, &low, &high);
    EXPECT_THAT((std::vector{low, high, ::GetScrollPos(bar, SB_CTL)}), testing::ElementsAre(5, 70000, 40));
    const auto scroll = [&](int request, int position = 0) {
        gauge_.SendMessage(WM_HSCROLL, MAKEWPARAM(request, position), reinterpret_cast<LPARAM>(bar));
        return ::GetScrollPos(bar, SB_CTL);
    };
    const Pixels before = pixels_of(*gauge_.GetDlgItem(surface_id));
    EXPECT_EQ(scroll(SB_LINERIGHT), 41);
    EXPECT_EQ(gauge_.GetCurVal(), 41);
    EXPECT_FALSE(before == pixels_of(*gauge_.GetDlgItem(surface_id)));
    EXPECT_EQ(scroll(SB_THUMBTRACK, 333), 333);
    EXPECT_EQ(scroll(SB_RIGHT), 70000);
    EXPECT_EQ(scroll(SB_THUMBTRACK, 70000 & 0xFFFF), 70000); // the message has 16 bits of it
}

TEST_F(GaugeTest, LoadsScriptFiles) {
    std::ofstream("gauge test.dat") << ":TYPE=PERCENTBAR\n:NOTITLE=X\n:CLEARMARKS\n:SETMARK=200,BLUE\n:CURVAL=90\n#"
                                    << std::string(200, 'x') << "\n:CURVAL=1\n";
    open(gauge_, 100, 100);
    const std::ifstream reader("gauge test.dat"); // others may read it meanwhile
    EXPECT_EQ(gauge_.LoadFromFile("\"gauge test.dat\" and more"), 1);
    EXPECT_GT(pixels_of(gauge_).count(RGB(0, 0, 255)), 1000); // the long line ended the reading, the bar is at 90
    for (const char* nothing : {"no such file", "\"", static_cast<const char*>(nullptr)})
        EXPECT_EQ(gauge_.LoadFromFile(nothing), 1);
    script({":CLEARMARKS"});
    EXPECT_TRUE(gauge_.GetExStyle() & WS_EX_ACCEPTFILES);
    ::ValidateRect(gauge_.m_hWnd, nullptr);
    drop_file(gauge_, "gauge test.dat");
    EXPECT_TRUE(::GetUpdateRect(gauge_.m_hWnd, nullptr, FALSE));
    EXPECT_GT(pixels_of(gauge_).count(RGB(0, 0, 255)), 1000);
    EXPECT_EQ(::GlobalFlags(drop_file(gauge_, "")) & GMEM_INVALID_HANDLE, GMEM_INVALID_HANDLE);
    ::DeleteFileA("gauge test.dat");
}

TEST_F(GaugeTest, HoldsAtAnySizeRangeAndCall) {
    std::mt19937 random(3);
    const long bounds[] = {LONG_MIN, -1, 0, 1, 100, LONG_MAX};
    gauge_.SetCurVal(5); // without a window
    gauge_.SetTitles(nullptr, "unit");
    gauge_.Repaint();
    open(gauge_, 300, 300);
    gauge_.AddMark(3, nullptr);
    const int objects = live_gdi_objects();
    for (int i = 0; i < 300; ++i) {
        gauge_.SetType(static_cast<int>(random() % 6));
        gauge_.SetRange(bounds[random() % 6], bounds[random() % 6]);
        gauge_.SetCurVal(static_cast<int>(random()));
        const int size = i % 50 == 0 ? 1000 : static_cast<int>(random() % 200);
        gauge_.SetWindowPos(nullptr, 0, 0, size, static_cast<int>(random() % 200), SWP_NOMOVE | SWP_NOZORDER);
        gauge_.SetCurVal(static_cast<int>(random() % 100));
        gauge_.UpdateWindow();
    }
    EXPECT_LT(live_gdi_objects(), objects + 50);
    CWntGauge* volatile none = nullptr;
    none->SetCurVal(1);
    EXPECT_EQ(none->LoadLine(":CURVAL=1", 0) + none->GetCurVal(), 0);
    EXPECT_STREQ(CWntGauge::GAUGEstrstr("one, two, twofold", "two"), "two, twofold");
    gauge_.DestroyWindow();
    gauge_.SetCurVal(7);
    gauge_.LoadLine("", 2);
}

TEST_F(GaugeTest, TitleIsTheSystemsText) {
    constexpr int size = 200;
    open_with(size, size, {":TYPE=DIGITAL", ":TITLE=Pressure", ":CLRTEXT=MAGENTA", ":CLEARMARKS"});
    ::Picture expected(size, size);
    constexpr int height = 16; // 8.5 % of what the margins leave
    const HFONT font = ::CreateFontA(-height, 0, 0, 0, 0, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, "Arial");
    const HGDIOBJ previous = ::SelectObject(expected.dc(), font);
    TEXTMETRICA metrics;
    ::GetTextMetricsA(expected.dc(), &metrics);
    ::SetTextAlign(expected.dc(), TA_BOTTOM | TA_CENTER);
    ::SetBkMode(expected.dc(), TRANSPARENT);
    ::SetTextColor(expected.dc(), RGB(255, 0, 255));
    ::TextOutA(expected.dc(), size / 2, 6 + metrics.tmHeight, "Pressure", 8);
    ::DeleteObject(::SelectObject(expected.dc(), previous));
    const auto magenta = [](std::vector<COLORREF> values) {
        for (COLORREF& c : values)
            c = c == RGB(255, 0, 255);
        return values;
    };
    EXPECT_TRUE(magenta(pixels_of(gauge_).values) == magenta(expected.values()));
}

TEST_F(GaugeTest, CallsShowWhatAScriptSays) {
    open_with(120, 100,
              {":TYPE=THERMOMETER", ":TITLE=Flow", ":UNITTITLE=bar", ":MINVAL=-20", ":MAXVAL=60", ":CLEARMARKS",
               ":SETMARK=5,RED", ":CURVAL=30"});
    const Pixels scripted = repainted(gauge_);
    script({":MINVAL=0", ":MAXVAL=100", ":CURVAL=50"});
    const Pixels cleared = repainted(gauge_);
    open_with(120, 100, {}); // begins as a sample again
    gauge_.SetType(1);
    gauge_.SetTitles("Flow", "bar");
    gauge_.SetRange(-20, 60);
    gauge_.ClearMarks();
    gauge_.AddMark(5, "RED");
    gauge_.SetCurVal(30);
    EXPECT_EQ(repainted(gauge_), scripted);
    gauge_.Clear();
    EXPECT_EQ(repainted(gauge_), cleared);
}

TEST_F(GaugeTest, CallsAskForThePaintThatTheyNeed) {
    open_with(100, 100, {":TYPE=PERCENTBAR", ":NOTITLE=X"});
    const auto asks = [&](auto call) {
        ::ValidateRect(gauge_.m_hWnd, nullptr);
        call();
        return ::GetUpdateRect(gauge_.m_hWnd, nullptr, FALSE) != FALSE;
    };
    EXPECT_TRUE(asks([&] { gauge_.SetTitles("a", "b"); }) && asks([&] { gauge_.SetRange(0, 200); }));
    EXPECT_TRUE(asks([&] { gauge_.Clear(); }) && asks([&] { gauge_.SetTestMode(0); }));
    const Pixels bar = repainted(gauge_);
    EXPECT_TRUE(asks([&] { gauge_.SendMessage(WM_COMMAND, 104); }));
    EXPECT_NE(repainted(gauge_), bar) << "another view";
    EXPECT_FALSE(
        asks([&] { gauge_.SetType(0), gauge_.ClearMarks(), gauge_.AddMark(200, "BLUE"), gauge_.SetCurVal(60); }));
    EXPECT_GT(repainted(gauge_).count(RGB(0, 0, 255)), 500);
}
