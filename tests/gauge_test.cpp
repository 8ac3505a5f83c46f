#include "widget_window.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <fstream>
#include <random>
#include <shlobj.h>
#include <string>
#include <vector>

namespace {

constexpr int surface_id = 100;
constexpr const char* types[6] = {"PERCENTBAR", "THERMOMETER", "ANALOG", "DIGITAL", "PEAKLINE", "TURNKNOB"};
class GaugeTest : public WidgetTest {
protected:
    static void script(CWntGauge& gauge, std::initializer_list<std::string> lines) {
        gauge.LoadLine("", 1);
        for (const auto& line : lines)
            gauge.LoadLine(line.c_str(), 0);
        gauge.LoadLine("", 2);
    }

    static long painted_by_value(CWntGauge& gauge, int value) {
        cover(gauge, surface_id, poison);
        gauge.SetCurVal(value);
        const Pixels after = pixels_of(gauge);
        return static_cast<long>(after.values.size()) - after.count(poison);
    }
};

} // namespace

TEST_F(GaugeTest, ValueRepaintsEqualFullRepaints) {
    std::mt19937 random(11);
    for (const char* type : types) {
        for (const CSize size : {CSize(20, 20), CSize(60, 40), CSize(201, 163), CSize(420, 410)}) {
            CWntGauge gauge;
            open(gauge, size.cx, size.cy);
            script(gauge, {std::string(":TYPE=") + type, ":MINVAL=-50", ":MAXVAL=250", ":BARTITLE=X", ":CLEARMARKS",
                           ":SETMARK=20,YELLOW", ":SETMARK=120,DARKBLUE", ":SETMARK=119,RED", ":SETMARK=119,RED"});
            for (int i = 0; i < 25; ++i)
                gauge.SetCurVal(static_cast<int>(random() % 301) - 50);
            const Pixels shown = pixels_of(gauge);
            cover(gauge, surface_id, poison);
            full_repaint(gauge);
            ASSERT_EQ(shown, pixels_of(gauge)) << type << " " << size.cx << "x" << size.cy;
        }
    }
}

TEST_F(GaugeTest, ValueRepaintsTouchLittle) {
    for (const char* type : types) {
        CWntGauge gauge;
        open(gauge, 200, 200);
        script(gauge, {std::string(":TYPE=") + type, ":CLEARMARKS"});
        gauge.SetCurVal(60);
        const long painted = painted_by_value(gauge, 61);
        EXPECT_GT(painted, 20) << type;
        EXPECT_LT(painted, 200 * 200 / 4) << type;
        EXPECT_EQ(painted_by_value(gauge, 61), 0) << type;  // the current value
        EXPECT_EQ(painted_by_value(gauge, 101), 0) << type; // outside the range
    }
}

TEST_F(GaugeTest, StaleFaceIsNotPaintedOver) {
    CWntGauge gauge;
    open(gauge, 180, 180);
    script(gauge, {":TYPE=ANALOG", ":CURVAL=10"});
    gauge.SetType(5); // shown with the next repaint
    gauge.SetCurVal(20);
    const Pixels shown = pixels_of(gauge);
    full_repaint(gauge);
    EXPECT_EQ(shown, pixels_of(gauge));

    for (const int unknown : {-1, 6, INT_MAX, INT_MIN}) {
        gauge.SetType(unknown);
        cover(gauge, surface_id, poison);
        full_repaint(gauge);
        EXPECT_EQ(pixels_of(gauge).count(poison), 180 * 180) << unknown;
        gauge.SendMessage(WM_COMMAND, 104); // the view switch finds its way back from anywhere
    }
}

TEST_F(GaugeTest, ShrinkingLaysOutAnew) {
    CWntGauge gauge;
    open(gauge, 200, 200);
    gauge.SetWindowPos(nullptr, 0, 0, 90, 70, SWP_NOMOVE | SWP_NOZORDER);
    gauge.UpdateWindow();
    const Pixels shrunk = pixels_of(gauge);
    full_repaint(gauge);
    EXPECT_EQ(shrunk, pixels_of(gauge));
}

TEST_F(GaugeTest, NeedlePointsAtTheValue) {
    CWntGauge gauge;
    open(gauge, 240, 240);
    script(gauge, {":TYPE=ANALOG", ":NOTITLE=X", ":CLEARMARKS", ":SETMARK=101,BLUE", ":CLRTEXT=BLACK"});
    for (const int value : {0, 13, 66, 100}) {
        gauge.SetCurVal(50);
        gauge.SetCurVal(value);
        const Pixels p = pixels_of(gauge);
        double sum_x = 0, sum_y = 0;
        for (int y = 0; y < 240; ++y) {
            for (int x = 0; x < 240; ++x) {
                const double dx = x + 0.5 - 120;
                const double dy = 120 - (y + 0.5);
                const double distance = std::hypot(dx, dy);
                const COLORREF c = p.at(x, y);
                const bool blue = GetBValue(c) > GetRValue(c) + 60 && GetBValue(c) > GetGValue(c) + 60;
                if (blue && distance > 25 && distance < 70 && !(dy < -45 && std::abs(dx) < 45)) { // not the readout
                    sum_x += dx / distance;
                    sum_y += dy / distance;
                }
            }
        }
        const double angle = std::atan2(sum_y, sum_x) * 180 / 3.14159265;
        const double expected = std::remainder(225 - 2.7 * value, 360);
        EXPECT_NEAR(angle, expected, 1.5) << value;
    }
}

TEST_F(GaugeTest, BarAndColumnGrowWithTheValueInTheZonesColour) {
    for (const char* type : {"PERCENTBAR", "THERMOMETER"}) {
        CWntGauge gauge;
        open(gauge, 200, 200);
        script(gauge, {std::string(":TYPE=") + type, ":NOTITLE=X", ":CLEARMARKS", ":SETMARK=50,BLUE",
                       ":SETMARK=51,GREEN", ":SETMARK=50,GREEN", ":SETMARK=50,GREEN"});
        std::vector<long> ink;
        for (const int value : {10, 20, 40, 60, 80}) {
            gauge.SetCurVal(value);
            ink.push_back(pixels_of(gauge).count(value < 50 ? RGB(0, 0, 255) : RGB(0, 255, 0)));
        }
        EXPECT_LT(ink[0], ink[1]) << type;
        EXPECT_NEAR(1.0 * (ink[2] - ink[1]) / (ink[1] - ink[0]), 2.0, 1.0) << type;
        EXPECT_LT(ink[3], ink[4]) << type;
    }
}

TEST_F(GaugeTest, ColourLinesArePaintedAsColourValues) {
    CWntGauge gauge;
    open(gauge, 100, 100);
    script(gauge, {":TYPE=DIGITAL", ":NOTITLE=X", ":BORDERHEIGHT=3", ":BORDERTYPE=3DUP", ":CLRBACK=GRAY",
                   ":CLRSUN=CYAN", ":CLRSHADOW=RED"});
    const Pixels p = pixels_of(gauge);
    EXPECT_EQ(p.at(1, 50), RGB(7, 0, 0));  // left: sun
    EXPECT_EQ(p.at(98, 50), RGB(6, 0, 0)); // right: shadow
    EXPECT_EQ(p.at(4, 4), RGB(9, 0, 0));   // background
    script(gauge, {":BORDERTYPE=3DDOWN", ":BORDERSTYLE=LEFT"});
    const Pixels down = pixels_of(gauge);
    EXPECT_EQ(down.at(1, 50), RGB(6, 0, 0));
    EXPECT_EQ(down.at(98, 50), RGB(9, 0, 0)); // a side that is not set
}

TEST_F(GaugeTest, TestModeGivesRoomToBarAndButton) {
    CWntGauge gauge;
    open(gauge, 120, 120);
    script(gauge, {":DEMO=X", ":MINVAL=5", ":MAXVAL=70000", ":CURVAL=40"});
    gauge.SetWindowPos(nullptr, 0, 0, 130, 120, SWP_NOMOVE | SWP_NOZORDER);
    const auto place = [&](int id) {
        CRect r;
        gauge.GetDlgItem(id)->GetWindowRect(&r);
        gauge.ScreenToClient(&r);
        return r;
    };
    EXPECT_EQ(place(100), CRect(0, 0, 130, 110));
    EXPECT_EQ(place(103), CRect(0, 110, 120, 120));
    EXPECT_EQ(place(104), CRect(120, 110, 130, 120));

    HWND bar = gauge.GetDlgItem(103)->m_hWnd;
    const auto scroll = [&](int request, int position = 0) {
        gauge.SendMessage(WM_HSCROLL, MAKEWPARAM(request, position), reinterpret_cast<LPARAM>(bar));
        return ::GetScrollPos(bar, SB_CTL);
    };
    EXPECT_EQ(scroll(SB_LINERIGHT), 41);
    EXPECT_EQ(scroll(SB_THUMBTRACK, 333), 333);
    EXPECT_EQ(scroll(SB_RIGHT), 70000);
    EXPECT_EQ(scroll(SB_LEFT), 5); // one, but not below the minimum

    full_repaint(gauge);
    const Pixels first = pixels_of(gauge);
    for (int i = 0; i < 6; ++i) {
        gauge.SendMessage(WM_COMMAND, 104);
        gauge.UpdateWindow();
        EXPECT_EQ(first == pixels_of(gauge), i == 5) << i;
    }
    script(gauge, {":DEMO=0"});
    gauge.SetWindowPos(nullptr, 0, 0, 5, 6, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(place(100), CRect(0, 0, 5, 6));
    EXPECT_TRUE(place(103).IsRectEmpty());
}

TEST_F(GaugeTest, LoadsScriptFilesAndDroppedFiles) {
    {
        std::ofstream file("gauge test.dat", std::ios::binary);
        file << ":TYPE=PERCENTBAR\r\n:NOTITLE=X\r\n:CLEARMARKS\r\n:SETMARK=200,BLUE\r\n:CURVAL=90\r\n#"
             << std::string(200, 'x') << "\r\n:CURVAL=1\r\n";
    }
    CWntGauge by_path;
    open(by_path, 100, 100);
    EXPECT_EQ(by_path.LoadFromFile("\"gauge test.dat\" and more"), 1);
    EXPECT_GT(pixels_of(by_path).count(RGB(0, 0, 255)), 1000); // the long line ended the reading, the bar is at 90
    by_path.LoadFromFile("no such file");
    by_path.LoadFromFile(nullptr);
    by_path.LoadFromFile("\"");
    const Pixels loaded = pixels_of(by_path);

    CWntGauge by_drop;
    open(by_drop, 100, 100);
    char path[MAX_PATH];
    ::GetFullPathNameA("gauge test.dat", sizeof path, path, nullptr);
    const std::size_t length = std::strlen(path) + 2;
    HGLOBAL memory = ::GlobalAlloc(GHND, sizeof(DROPFILES) + length);
    auto* drop = static_cast<DROPFILES*>(::GlobalLock(memory));
    drop->pFiles = sizeof *drop;
    std::copy_n(path, length - 2, reinterpret_cast<char*>(drop + 1));
    ::GlobalUnlock(memory);
    by_drop.SendMessage(WM_DROPFILES, reinterpret_cast<WPARAM>(memory));
    EXPECT_EQ(::GlobalFlags(memory) & GMEM_INVALID_HANDLE, GMEM_INVALID_HANDLE); // released
    by_drop.UpdateWindow();
    EXPECT_EQ(loaded, pixels_of(by_drop));
    ::DeleteFileA("gauge test.dat");
}

TEST_F(GaugeTest, HoldsAtAnySizeRangeAndCall) {
    std::mt19937 random(3);
    const long bounds[] = {LONG_MIN, -1, 0, 1, 100, LONG_MAX};
    CWntGauge gauge;
    gauge.SetCurVal(5); // without a window
    gauge.SetTitles(nullptr, "unit");
    gauge.Repaint();
    open(gauge, 300, 300);
    gauge.AddMark(3, nullptr);
    for (int i = 0; i < 300; ++i) {
        gauge.SetType(static_cast<int>(random() % 6));
        gauge.SetRange(bounds[random() % 6], bounds[random() % 6]);
        gauge.SetCurVal(static_cast<int>(random()));
        const int size = i % 50 == 0 ? 1000 : static_cast<int>(random() % 200);
        gauge.SetWindowPos(nullptr, 0, 0, size, static_cast<int>(random() % 200), SWP_NOMOVE | SWP_NOZORDER);
        gauge.SetCurVal(static_cast<int>(random() % 100));
        gauge.UpdateWindow();
    }
    CWntGauge* volatile none = nullptr;
    none->SetCurVal(1);
    EXPECT_EQ(none->LoadLine(":CURVAL=1", 0), 0);
    gauge.DestroyWindow();
    gauge.SetCurVal(7);
    gauge.LoadLine("", 2);
}

TEST_F(GaugeTest, TracesToItsLog) {
    CWntGauge gauge;
    open(gauge, 50, 50);
    std::ifstream log("gaugeocx.log");
    std::string line;
    EXPECT_TRUE(std::getline(log, line) && line == "Begin of Trace");
}
