// What of the plant's front end has windows or settings: the calendar's days, what a profile may hold, a day's chart.
#include "../plant/day_calendar.h"
#include "../plant/front_end_settings.h"
#include "../plant/history_page.h"
#include "../plant/past_days.h"
#include "quiet_program.h"
#include "temporary_file.h"

#include <optional>

namespace {

RecordedDay day_of(const CTime& time) {
    return {time.GetYear(), time.GetMonth(), time.GetDay()};
}

struct Host : CWnd {
    Host() {
        CreateEx(WS_EX_TOPMOST, AfxRegisterWndClass(0), "Host", WS_POPUP | WS_VISIBLE, CRect(0, 0, 500, 420), nullptr,
                 0);
        calendar.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 430, 400), this, 1);
        calendar.UpdateWindow();
    }
    ~Host() override { DestroyWindow(); }

    // Clicks, by the messages of a pointer that moves from one point to another while it is down.
    std::optional<RecordedDay> click(CPoint down, CPoint up) {
        told.reset();
        calendar.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(down.x, down.y));
        calendar.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(up.x, up.y));
        return told;
    }
    COLORREF pixel(CPoint point) {
        calendar.UpdateWindow();
        return CClientDC(calendar.GetWindow(GW_CHILD)).GetPixel(point);
    }

    CDayCalendar calendar;
    std::optional<RecordedDay> told;

    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
        if (header.code == DAY_PICKED && header.hwndFrom == calendar.m_hWnd)
            told = calendar.Picked();
        return CWnd::OnNotify(wParam, lParam, result);
    }
};

constexpr COLORREF today_ground = RGB(255, 255, 0), mark = RGB(40, 96, 176), frame = RGB(198, 60, 52);

// Where today is shown tells the library; its date the class.
TEST(DayCalendar, PicksTheDayThatIsShownWhereverTheGridBegins) {
    const CTime now = CTime::GetCurrentTime();
    for (int back = 0; back < 15; ++back) { // every day of the week begins the grid
        Host host;
        ASSERT_TRUE(host.calendar.SetShownDate(now - CTimeSpan(back, 0, 0, 0)));
        const int width = (430 - 18) / 7;
        int seen = 0;
        for (int cell = 0; cell < 28; ++cell) {
            const CPoint corner(17 + cell % 7 * width, 34 + cell / 7 * 30), inside = corner + CSize(width - 6, 8);
            if (host.pixel(inside) != today_ground)
                continue;
            EXPECT_EQ(host.click(inside, inside), day_of(now)) << back;
            host.calendar.Mark({day_of(now)});
            EXPECT_EQ(host.pixel(corner + CSize(width - 7, 24)), mark) << back;
            EXPECT_EQ(host.pixel(corner + CSize(width / 2, 2)), frame) << back;
            ++seen;
        }
        const bool before_the_grid = back == 0 && now.GetDayOfWeek() == 1; // a Sunday's grid begins behind it
        EXPECT_EQ(seen, before_the_grid ? 0 : 1) << back;
    }
}

TEST(DayCalendar, TellsOfWholeClicksInTheGridOnly) {
    Host host;
    const CPoint cell(100, 60), other(200, 60), headline(100, 20), months(8, 60), strip(100, 395);
    EXPECT_TRUE(host.click(cell, cell));
    EXPECT_FALSE(host.click(cell, other)) << "went to another day";
    EXPECT_FALSE(host.click(headline, headline));
    EXPECT_FALSE(host.click(strip, strip)) << "scrolls";
    EXPECT_FALSE(host.click(months, cell)) << "a drag of the months ends there";
}

TEST(HistoryPage, ADayWithoutRecordingEndsTheReadingOfTheDayBefore) {
    PlantStation station(nullptr, nullptr);
    FrontEndSettings settings;
    settings.folder = "temporary_recordings";
    ASSERT_EQ(WritePastDays(settings.folder, 1), "");
    FrontEnd front_end{station, settings, "", ""};
    Host host;
    CHistoryPage page(front_end);
    ASSERT_TRUE(page.Open(&host, 2));
    page.FindDays();
    page.OpenDay(*page.Days().begin());
    EXPECT_TRUE(page.Chart().IsReading());
    page.OpenDay({1999, 1, 1});
    EXPECT_FALSE(page.Chart().IsReading() || page.Chart().GetSampleCount(0));
    std::filesystem::remove_all("temporary_recordings");
}

TEST(PlantChart, LeavesItsCommandOutOfTheMenu) {
    Host host;
    CPlantChart chart(WNT_PULSE_CMD_OPEN);
    ASSERT_TRUE(chart.Create(nullptr, "", WS_CHILD, CRect(0, 0, 300, 200), &host, 2));
    CMenu menu;
    menu.CreatePopupMenu();
    for (const UINT command : {WNT_PULSE_CMD_RECORD, WNT_PULSE_CMD_OPEN, WNT_PULSE_CMD_PRINT})
        menu.AppendMenu(MF_STRING, command, "Command");
    chart.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu));
    EXPECT_THAT((std::array{menu.GetMenuItemID(0), menu.GetMenuItemID(1), menu.GetMenuItemID(2)}),
                testing::ElementsAre(WNT_PULSE_CMD_RECORD, WNT_PULSE_CMD_PRINT, UINT(-1)));
}

TEST(FrontEndSettings, AreKeptAndRepaired) {
    TemporaryFile file;
    std::free(const_cast<char*>(program.m_pszProfileName));
    program.m_pszProfileName = ::_strdup(std::filesystem::absolute(file.name()).string().c_str());
    FrontEndSettings kept, found;
    kept.limits[tank_level] = {11, 222};
    kept.colours[feed_flow] = 9;
    kept.folder = "C:\\recordings";
    kept.sound = 0;
    EXPECT_TRUE(kept.Save(program));
    found.Load(program);
    EXPECT_TRUE(found.limits[tank_level].low == 11 && found.limits[tank_level].high == 222);
    EXPECT_TRUE(found.colours == kept.colours && found.folder == kept.folder && found.sound == 0);

    program.WriteProfileString("Settings", "Folder", "");
    found.Load(program);
    EXPECT_EQ(found.folder, kept.folder) << "none is the root of a drive";

    kept.limits[boiler_level] = {900, -900};
    kept.colours[0] = -1, kept.colours[1] = 16;
    kept.folder = CString('x', 1000);
    kept.sound = 77;
    kept.Repair();
    EXPECT_TRUE(kept.limits[boiler_level].low == 99 && kept.limits[boiler_level].high == 100);
    EXPECT_TRUE(kept.colours[0] == 0 && kept.colours[1] == 15);
    EXPECT_LT(kept.folder.GetLength(), MAX_PATH - 20);
    EXPECT_EQ(kept.sound, 1);

    std::free(const_cast<char*>(program.m_pszProfileName));
    program.m_pszProfileName = ::_strdup("Z:\\no folder\\plant.ini");
    EXPECT_FALSE(kept.Save(program));
}

} // namespace
