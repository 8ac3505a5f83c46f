#include <zopwnt.h>

void calendar_snippets(CWnd* parent) {
    //! [host]
    static CWntCalendar calendar;
    calendar.Create(nullptr, "Calendar", WS_CHILD | WS_VISIBLE, CRect(10, 10, 310, 210), parent, 4);
    calendar.SendMessage(WM_COMMAND, 106); // jumps to June
    calendar.SetShownDate(CTime(2027, 3, 1, 12, 0, 0));
    //! [host]
}

namespace {

//! [years]
/// Follows the menu of years, which the calendar leaves to derived classes.
class YearCalendar : public CWntCalendar {
protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        const int command = LOWORD(wParam);
        if (command >= 200 && command <= 209) {
            const CTime shown = GetShownDate();
            const int year = shown.GetYear() + command - 203;
            if (year >= 1970 && year <= 3000) // noon of a day that every month has
                SetShownDate(CTime(year, shown.GetMonth(), 1, 12, 0, 0));
        }
        return CWntCalendar::OnCommand(wParam, lParam);
    }
};
//! [years]

} // namespace

void calendar_class_snippet() {
    YearCalendar calendar;
}
