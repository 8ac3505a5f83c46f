#include "calendar_reference.h"
#include "time_zone.h"
#include "widget_window.h"

#include <climits>
#include <string>
#include <type_traits>
#include <utility>

namespace {

using std::chrono::weeks;
using Days = CalendarReference::Days;

class CalendarTest : public WidgetTest {
protected:
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
        const Pixels pixels = pixels_of(calendar_);
        Picture expected(width, height);
        CalendarReference(width, height).paint(expected.dc(), shown, today_);
        const auto values = expected.values();
        int different = 0; // between the strips
        for (int i = 17 * width; i < (height - 17) * width; ++i)
            different += pixels.values[static_cast<std::size_t>(i)] != values[static_cast<std::size_t>(i)];
        EXPECT_EQ(different, 0) << (shown - today_).count() << " days";
    }

    Days today_;
    CWntCalendar calendar_;
};

TEST_F(CalendarTest, ShowsTheWeeksFromToday) {
    expect_shown(today_);
    const Pixels pixels = pixels_of(calendar_);
    const bool sunday = std::chrono::weekday(today_) == std::chrono::Sunday;
    EXPECT_EQ(pixels.count(CalendarReference::today_fill) > 500, !sunday);
    for (const int top : {0, height - 17}) { // the arrows
        int ink = 0;
        for (int y = top; y < top + 17; ++y)
            for (int x = 130; x < 170; ++x)
                ink += pixels.at(x, y) == ::GetSysColor(COLOR_BTNTEXT);
        EXPECT_GT(ink, 20);
    }
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

TEST_F(CalendarTest, DragsInTheMonthColumn) {
    drag(WM_LBUTTONDOWN, 60);
    EXPECT_EQ(::GetCapture(), calendar_.m_hWnd);
    drag(WM_MOUSEMOVE, 89); // less than a row
    expect_shown(today_);
    drag(WM_MOUSEMOVE, 125); // two rows down
    expect_shown(today_ + weeks(2));
    drag(WM_MOUSEMOVE, -65); // four rows up
    expect_shown(today_ - weeks(4));
    drag(WM_LBUTTONUP, 100);
    calendar_.UpdateWindow();
    EXPECT_NE(::GetCapture(), calendar_.m_hWnd);
    expect_shown(today_ - weeks(4));

    drag(WM_LBUTTONDOWN, 60);
    drag(WM_MOUSEMOVE, 125);
    ::SetCapture(host_.m_hWnd); // the drag is taken away
    ::ReleaseCapture();
    calendar_.UpdateWindow();
    expect_shown(today_ - weeks(4));
    drag(WM_LBUTTONDOWN, 60);
    drag(WM_LBUTTONUP, 60);
    expect_shown(today_ - weeks(4));
}

TEST_F(CalendarTest, MonthCommandsKeepTheDay) {
    const std::chrono::year_month_day date(today_);
    Days shown = today_;
    for (unsigned month = 12; month >= 1; --month) {
        const std::chrono::year_month_day before(shown);
        calendar_.SendMessage(WM_COMMAND, 100 + month);
        calendar_.UpdateWindow();
        const Days first = date.year() / std::chrono::month(month) / 1;
        shown = first + std::chrono::days(unsigned{before.day()} - 1); // may run on beyond the month's end
        expect_shown(shown);
    }
}

// The entries of the menu that opened last; a number of steps down and Enter choose one.
struct MenuAnswer {
    static inline std::vector<std::pair<UINT, std::string>> entries;
    static inline int steps = 0;
    static inline bool chosen = false;

    static LRESULT CALLBACK hook(int code, WPARAM wParam, LPARAM lParam) {
        const auto& message = *reinterpret_cast<const CWPSTRUCT*>(lParam);
        if (message.message == WM_INITMENUPOPUP)
            read(reinterpret_cast<HMENU>(message.wParam));
        if (message.message == WM_ENTERIDLE && !std::exchange(chosen, true)) {
            for (int i = 0; i < steps; ++i)
                ::PostMessageA(message.hwnd, WM_KEYDOWN, VK_DOWN, 0);
            ::PostMessageA(message.hwnd, WM_KEYDOWN, steps ? VK_RETURN : VK_ESCAPE, 0);
        }
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }
    static void read(HMENU menu) {
        for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
            char text[80] = {};
            ::GetMenuStringA(menu, i, text, sizeof text, MF_BYPOSITION);
            entries.emplace_back(::GetMenuItemID(menu, i), text);
        }
    }
};

TEST_F(CalendarTest, MenusOfTheRegions) {
    const std::unique_ptr<std::remove_pointer_t<HHOOK>, decltype(&::UnhookWindowsHookEx)> hook(
        ::SetWindowsHookExA(WH_CALLWNDPROC, &MenuAnswer::hook, nullptr, ::GetCurrentThreadId()),
        &::UnhookWindowsHookEx);
    const auto open_menu = [&](int x, int y, int steps) {
        MenuAnswer::entries.clear();
        MenuAnswer::steps = steps;
        MenuAnswer::chosen = false;
        click(x, y, WM_RBUTTONDOWN);
        for (MSG message; ::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE);)
            ::DispatchMessageA(&message);
    };
    const auto& entries = MenuAnswer::entries;
    open_menu(150, 5, 0);
    open_menu(150, height - 5, 0);
    EXPECT_TRUE(entries.empty()); // none on the strips

    open_menu(150, 25, 0);
    ASSERT_EQ(entries.size(), 12u);
    const int year = int{std::chrono::year_month_day(today_).year()};
    EXPECT_EQ(entries[0], std::pair(200u, std::to_string(year - 3)));
    EXPECT_EQ(entries[9], std::pair(209u, std::to_string(year + 6)));
    EXPECT_EQ(entries[11], std::pair(113u, std::string("Menu schlie\xDF"
                                                       "en")));

    open_menu(150, 100, 0);
    std::vector<UINT> commands;
    for (const auto& entry : entries)
        commands.push_back(entry.second.empty() ? 0 : entry.first);
    EXPECT_EQ(commands, (std::vector<UINT>{112, 113, 114, 0, 120, 0, 120}));

    open_menu(8, 100, 3);
    ASSERT_EQ(entries.size(), 14u);
    EXPECT_EQ(entries[2], std::pair(103u, std::string("M\xE4rz")));
    EXPECT_EQ(entries[11], std::pair(112u, std::string("Dezember")));
    calendar_.UpdateWindow();
    const std::chrono::year_month_day date(today_);
    expect_shown(Days(date.year() / 3 / 1) + std::chrono::days(unsigned{date.day()} - 1));
}

TEST_F(CalendarTest, StaysUsableBeyondItsDates) {
    const int weeks_since_1970 = static_cast<int>(today_.time_since_epoch().count()) / 7;
    const auto expect_no_dates = [&](std::size_t boxes) {
        full_repaint(calendar_);
        EXPECT_FALSE(::GetUpdateRect(calendar_.m_hWnd, nullptr, FALSE));
        EXPECT_EQ(pixels_of(calendar_).at(200, 100), CalendarReference::grey);
        calendar_.SendMessage(WM_COMMAND, 105);
        EXPECT_EQ(program.boxes.size(), boxes); // told, not followed
    };
    for (int i = 0; i < weeks_since_1970 + 3; ++i)
        calendar_.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(150, 5));
    EXPECT_TRUE(program.boxes.empty());
    expect_no_dates(1);
    drag(WM_LBUTTONDOWN, 60);
    drag(WM_MOUSEMOVE, 200);
    drag(WM_MOUSEMOVE, -20'000);
    drag(WM_LBUTTONUP, 100);
    for (int i = 0; i < 55'000; ++i) // beyond the year 3000
        calendar_.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(150, height - 5));
    expect_no_dates(2);
    calendar_.DrawHeadline(CRect(INT_MIN, INT_MAX, INT_MAX, INT_MIN), CTime(LLONG_MAX));
    calendar_.DrawMonths(CRect(0, 160, 16, 17), CTime(LLONG_MAX), CTime(0));
    for (const CSize size : {CSize(0, 0), CSize(1, 1), CSize(18, 60), CSize(990, 40), CSize(40, 990)}) {
        calendar_.MoveWindow(0, 0, size.cx, size.cy);
        full_repaint(calendar_);
    }
}

} // namespace
