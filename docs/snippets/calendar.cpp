#include <zopwnt.h>

void calendar_snippets(CWnd* parent) {
    //! [host]
    static CWntCalendar calendar;
    calendar.Create(nullptr, "Calendar", WS_CHILD | WS_VISIBLE, CRect(10, 10, 310, 210), parent, 4);
    calendar.SendMessage(WM_COMMAND, 106); // jumps to June
    //! [host]
}

namespace {

//! [years]
/// Follows the menu of years, which the calendar leaves to derived classes.
class YearCalendar : public CWntCalendar {
public:
    int years_from_shown = 0; // -3 to 6

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        const int command = LOWORD(wParam);
        if (command >= 200 && command <= 209)
            years_from_shown = command - 203;
        return CWntCalendar::OnCommand(wParam, lParam);
    }
};
//! [years]

} // namespace

void calendar_class_snippet() {
    YearCalendar calendar;
}
