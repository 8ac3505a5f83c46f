#include "calendar_reference.h"
#include "modal.h"
#include "time_zone.h"
#include "widget_window.h"

#include <string>

namespace {

using std::chrono::weeks;
using Days = CalendarReference::Days;

struct CalendarTest : WidgetTest {
    static constexpr int width = 300, height = 200;

    void SetUp() override {
        set_zone("UTC0");
        WidgetTest::SetUp();
        program.boxes.clear();
        do { // again where midnight came between
            calendar_.DestroyWindow();
            today_ = CalendarReference::today();
            open(calendar_, width, height);
        } while (today_ != CalendarReference::today());
    }

    void click(int x, int y, UINT message = WM_LBUTTONUP) {
        calendar_.GetDlgItem(100)->SendMessage(message, 0, MAKELPARAM(x, y));
        calendar_.UpdateWindow();
    }
    void drag(UINT message, int y) { calendar_.SendMessage(message, MK_LBUTTON, MAKELPARAM(8, y)); }

    void expect_shown(Days shown) {
        Pixels pixels = pixels_of(calendar_);
        Picture picture(width, height);
        CalendarReference(width, height).paint(picture.dc(), shown, today_);
        const auto expected = picture.values();
        std::copy_n(expected.begin(), 17 * width, pixels.values.begin()); // the strips
        std::copy_n(expected.end() - 17 * width, 17 * width, pixels.values.end() - 17 * width);
        EXPECT_TRUE(pixels.values == expected) << (shown - today_).count() << " days";
    }

    Days today_;
    CWntCalendar calendar_;
};

TEST_F(CalendarTest, ShowsTheWeeksFromToday) {
    expect_shown(today_);
    Pixels pixels = pixels_of(calendar_);
    const bool sunday = std::chrono::weekday(today_) == std::chrono::Sunday;
    EXPECT_EQ(pixels.count(CalendarReference::today_fill) > 500, !sunday);

    const COLORREF light = ::GetSysColor(COLOR_3DHIGHLIGHT), dark = ::GetSysColor(COLOR_3DDKSHADOW);
    for (const int top : {0, height - 17}) { // the strips are raised
        EXPECT_TRUE(pixels.at(0, top + 8) == light && pixels.at(90, top) == light) << top;
        EXPECT_TRUE(pixels.at(width - 1, top + 8) == dark && pixels.at(90, top + 16) == dark) << top;
    }
    const auto arrow = [&](int top) { // how wide its rows are; it points away
        std::string widths;
        for (int y = top + 4; y < top + 14; ++y) {
            const auto row = pixels.values.begin() + y * width;
            widths += std::to_string(std::count(row + 1, row + width - 1, ::GetSysColor(COLOR_BTNTEXT))) + " ";
        }
        return widths;
    };
    EXPECT_EQ(arrow(0), "0 1 3 5 7 9 11 0 0 0 ");
    EXPECT_EQ(arrow(height - 17), "0 0 11 9 7 5 3 1 0 0 ");
    calendar_.DrawButton(CRect(0, height - 1, width - 1, height - 17), 0, 1);
    pixels = pixels_of(calendar_);
    EXPECT_TRUE(pixels.at(0, 8) == dark && pixels.at(90, 16) == light);
    EXPECT_EQ(pixels.at(150, 12), ::GetSysColor(COLOR_BTNTEXT)); // the tip is pressed to the right
    EXPECT_EQ(arrow(0), "0 0 0 11 9 7 5 3 1 0 ");
}

TEST_F(CalendarTest, ScrollsByWeeks) {
    Days shown = today_;
    for (int i = 0; i < 9; ++i, shown -= weeks(1))
        click(150, 5);
    expect_shown(shown);
    for (int i = 0; i < 60; ++i, shown += weeks(1))
        click(150, height - 5);
    expect_shown(shown);
    click(150, 100); // the grid
    click(8, 100);   // the month column, without a drag
    expect_shown(shown);
}

TEST_F(CalendarTest, ShowsTheDateThatIsSet) {
    const auto noon_of = [](Days day) { return CTime((day.time_since_epoch().count() * 24 + 12) * 3600); };
    const Days set = today_ + weeks(70);
    const CTime noon = noon_of(set);
    calendar_.DrawHeadline(CRect(0, 182, 299, 166), noon); // part by part, as an owner paints it
    calendar_.DrawMonths(CRect(0, 165, 16, 17), noon, noon);
    calendar_.DrawBody(CRect(17, 165, 299, 17), noon, noon);
    expect_shown(set);
    drag(WM_LBUTTONDOWN, 60);
    drag(WM_MOUSEMOVE, 125);
    EXPECT_TRUE(calendar_.SetShownDate(noon) && ::GetCapture() == nullptr);
    calendar_.UpdateWindow();
    expect_shown(set);
    EXPECT_EQ(calendar_.GetShownDate().GetTime(), noon.GetTime());
    const Days early = Days(std::chrono::year(2005) / 5 / 2); // of the year "05"
    EXPECT_TRUE(calendar_.SetShownDate(noon_of(early)));
    calendar_.UpdateWindow();
    expect_shown(early);
    EXPECT_TRUE(calendar_.SetShownDate(noon));
    EXPECT_FALSE(calendar_.SetShownDate(CTime(-1)) || calendar_.SetShownDate(CTime(LLONG_MAX)) ||
                 CWntCalendar().SetShownDate(noon));
    EXPECT_EQ(calendar_.GetShownDate().GetTime(), noon.GetTime());
}

TEST_F(CalendarTest, DragsInTheMonthColumn) {
    const auto expect_dragged = [this](UINT message, int y, int shown) {
        drag(message, y);
        calendar_.UpdateWindow();
        expect_shown(today_ + weeks(shown));
        EXPECT_EQ(::GetCapture() == calendar_.m_hWnd, message != WM_LBUTTONUP);
    };
    expect_dragged(WM_LBUTTONDOWN, 60, 0);
    expect_dragged(WM_MOUSEMOVE, 89, 0); // less than a row
    expect_dragged(WM_MOUSEMOVE, 125, 2);
    expect_dragged(WM_MOUSEMOVE, -65, -4);
    expect_dragged(WM_LBUTTONUP, 100, -4);

    expect_dragged(WM_LBUTTONDOWN, 60, -4);
    expect_dragged(WM_MOUSEMOVE, 125, -2);
    ::SetCapture(host_.m_hWnd); // the drag is taken away
    ::ReleaseCapture();
    calendar_.UpdateWindow();
    expect_shown(today_ - weeks(4));
    expect_dragged(WM_LBUTTONDOWN, 60, -4); // a press alone moves nothing
    expect_dragged(WM_LBUTTONUP, 60, -4);
    calendar_.MoveWindow(0, 0, width - 7, height - 7);
    EXPECT_TRUE(::GetUpdateRect(calendar_, nullptr, FALSE));
    drag(WM_LBUTTONDOWN, 60);
    calendar_.DestroyWindow(); // and the drag with it
    open(calendar_, width, height);
    drag(WM_MOUSEMOVE, 125);
    expect_shown(today_);
}

TEST_F(CalendarTest, MenusOfTheRegions) {
    host_.MoveWindow(37, 23, 400, 300);
    CRect place;
    std::vector<UINT> commands;
    const auto menu = [&](int x, int y, const std::vector<WPARAM>& keys) {
        std::string entries;
        WhileModal modal([&] {
            entries = shown_menu();
            if (entries.empty())
                return false;
            ::GetWindowRect(shown_popup(), &place);
            const HMENU shown = menu_of(shown_popup());
            for (int i = 0; i < ::GetMenuItemCount(shown); ++i)
                commands.push_back(::GetMenuItemID(shown, i));
            for (const WPARAM key : keys)
                calendar_.PostMessage(WM_KEYDOWN, key);
            return true;
        });
        click(x, y, WM_RBUTTONDOWN);
        for (MSG message; ::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE);)
            ::DispatchMessageA(&message);
        calendar_.UpdateWindow();
        return entries;
    };
    const std::chrono::year_month_day date(today_);
    const auto in_month = [&](int month) {
        return Days(date.year() / month / 1) + std::chrono::days(unsigned{date.day()} - 1);
    };
    EXPECT_EQ(menu(150, 5, {}) + menu(150, height - 5, {}), ""); // none on the strips
    std::string years;
    for (int i = -3; i < 7; ++i)
        years += std::to_string(int{date.year()} + i) + "|";
    EXPECT_EQ(menu(150, 25, {VK_ESCAPE}), years + "|Menu schlie\337en|");
    EXPECT_EQ(menu(8, 100, {VK_DOWN, VK_DOWN, VK_DOWN, VK_RETURN}),
              "Januar|Februar|M\344rz|April|Mai|Juni|Juli|August|September|Oktober|November|Dezember||"
              "Menu schlie\337en|");
    expect_shown(in_month(3));
    EXPECT_EQ(menu(150, 100, {VK_DOWN, VK_RETURN}),
              "Jump to current day|Jump to current day|Jump to current day||Properties...||Close Menu|");
    expect_shown(in_month(12)); // intended: the first has the number of the last month
    EXPECT_THAT(commands, testing::ElementsAre(200, 201, 202, 203, 204, 205, 206, 207, 208, 209, 0, 113, // years
                                               101, 102, 103, 104, 105, 106, 107, 108, 109, 110, 111, 112, 0, 113, //
                                               112, 113, 114, 0, 120, 0, 120));
    CPoint clicked(150, 100);
    calendar_.ClientToScreen(&clicked);
    EXPECT_EQ(place.TopLeft(), clicked);
}

TEST_F(CalendarTest, StaysUsableBeyondItsDates) {
    const int weeks_since_1970 = static_cast<int>(today_.time_since_epoch().count()) / 7;
    for (int i = 0; i < weeks_since_1970 + 3; ++i)
        calendar_.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(150, 5));
    full_repaint(calendar_);
    EXPECT_FALSE(::GetUpdateRect(calendar_.m_hWnd, nullptr, FALSE));
    EXPECT_EQ(pixels_of(calendar_).at(200, 100), CalendarReference::grey);
    calendar_.SendMessage(WM_COMMAND, 105); // told, not followed
    EXPECT_THAT(program.boxes,
                testing::ElementsAre("This date does not exist or lies outside the years 1970 to 3000."));
}

TEST_F(CalendarTest, RefusedDatesTellTheirCodeAndAText) {
    CWntTime moment;
    moment.time = -1;
    try {
        moment.GetJulianDay();
        ADD_FAILURE();
    } catch (COleException* error) {
        char text[8] = "";
        UINT help = 7;
        EXPECT_TRUE(error->GetErrorMessage(text, sizeof text, &help));
        EXPECT_STREQ(text, "This da"); // as much as there is room for
        EXPECT_EQ(std::pair(error->m_sc, help), std::pair(E_FAIL, 0U));
        error->Delete();
    }
}

} // namespace
