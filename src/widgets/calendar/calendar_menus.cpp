#include "widgets/calendar/wnt_calendar.h"

#include "widgets/calendar/calendar_commands.h"
#include "widgets/calendar/calendar_days.h"
#include "widgets/calendar/calendar_layout.h"
#include "widgets/painting/surface_buffer.h"

// Texts in code page 1252.
namespace {

constexpr int year_count = 10;
constexpr int years_before = 3;

constexpr const char* month_names[12] = {"Januar", "Februar", "M\xE4rz",   "April",   "Mai",      "Juni",
                                         "Juli",   "August",  "September", "Oktober", "November", "Dezember"};

void append_close(CMenu& menu) {
    menu.AppendMenu(MF_SEPARATOR);
    menu.AppendMenu(MF_STRING, wnt::close_command,
                    "Menu schlie\xDF"
                    "en");
}

void append_years(CMenu& menu, int year) {
    if (year == 0)
        return; // no date
    for (int i = 0; i < year_count; ++i) {
        CString text;
        text.Format("%d", year - years_before + i);
        menu.AppendMenu(MF_STRING, wnt::first_year_command + i, text);
    }
    append_close(menu);
}

void append_months(CMenu& menu) {
    for (UINT i = 0; i < 12; ++i)
        menu.AppendMenu(MF_STRING, wnt::january_command + i, month_names[i]);
    append_close(menu);
}

// Intended: the first jump is the December command, the second closes, and the last entry shares the properties' one.
void append_grid_entries(CMenu& menu) {
    for (UINT command : {wnt::december_command, wnt::close_command, wnt::third_jump_command})
        menu.AppendMenu(MF_STRING, command, "Jump to current day");
    menu.AppendMenu(MF_SEPARATOR);
    menu.AppendMenu(MF_STRING, wnt::properties_command, "Properties...");
    menu.AppendMenu(MF_SEPARATOR);
    menu.AppendMenu(MF_STRING, wnt::properties_command, "Close Menu");
}

} // namespace

void CWntCalendar::OnRButtonDown(UINT flags, CPoint point) {
    const HWND self = m_hWnd;
    const CPoint at = from_bottom(point);
    CMenu menu;
    menu.CreatePopupMenu();
    if (layout_->headline.holds(at.x, at.y))
        append_years(menu, wnt::local_date(shown_).year);
    else if (layout_->months.holds(at.x, at.y))
        append_months(menu);
    else if (layout_->grid.holds(at.x, at.y))
        append_grid_entries(menu);
    if (menu.GetMenuItemCount() > 0) {
        CPoint screen = point;
        ClientToScreen(&screen);
        menu.TrackPopupMenu(TPM_LEFTALIGN | TPM_RIGHTBUTTON, screen.x, screen.y, this);
    }
    menu.DestroyMenu();
    if (CWnd::FromHandlePermanent(self) == this) // still there after the menu
        CWnd::OnRButtonDown(flags, point);
}
