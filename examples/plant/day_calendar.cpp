#include "day_calendar.h"

#include <algorithm>
#include <utility>

namespace {

// The calendar's own measures, in pixels.
constexpr int strip = 16, row_height = 30, columns = 7;
constexpr COLORREF mark_colour = RGB(40, 96, 176), pick_colour = RGB(198, 60, 52);
constexpr COLORREF headline_text = RGB(0, 0, 128), headline_ground = RGB(192, 192, 192);

} // namespace

BEGIN_MESSAGE_MAP(CDayCalendar, CWntCalendar)
ON_WM_PAINT()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
END_MESSAGE_MAP()

void CDayCalendar::Mark(std::set<RecordedDay> days) {
    if (days == marked_)
        return;
    marked_ = std::move(days);
    Invalidate(FALSE);
}

void CDayCalendar::Pick(const RecordedDay& day) {
    picked_ = day;
    Invalidate(FALSE);
}

// Between the headline, the column of months and the lower strip.
CRect CDayCalendar::Grid() const {
    CRect grid;
    GetClientRect(grid);
    grid.left += strip + 1;
    grid.top += 2 * strip + 2;
    grid.right -= 1;
    grid.bottom -= strip + 2;
    return grid;
}

CRect CDayCalendar::Cell(int row, int column) const {
    const CRect grid = Grid();
    const int width = grid.Width() / columns;
    const CPoint corner(grid.left + column * width, grid.top + row * row_height);
    return CRect(corner, CSize(width, row_height));
}

// The first row is the week of the date that is shown; for a Sunday the one behind it. Noon is the same day in any
// week, whenever the clocks are changed.
RecordedDay CDayCalendar::DayAt(int row, int column) const {
    const CTime shown = GetShownDate();
    const CTime noon(shown.GetYear(), shown.GetMonth(), shown.GetDay(), 12, 0, 0);
    const CTime day = noon + CTimeSpan(2 - noon.GetDayOfWeek() + columns * row + column, 0, 0, 0);
    return {day.GetYear(), day.GetMonth(), day.GetDay()};
}

bool CDayCalendar::Hit(CPoint point, RecordedDay& day) const {
    const CRect grid = Grid(), cell = Cell(0, 0);
    const int column = (point.x - grid.left) / std::max(cell.Width(), 1);
    if (!grid.PtInRect(point) || column >= columns)
        return false;
    day = DayAt((point.y - grid.top) / row_height, column);
    return true;
}

// Over what the calendar has painted on its surface.
void CDayCalendar::OnPaint() {
    CWntCalendar::OnPaint();
    CWnd* const surface = GetWindow(GW_CHILD);
    if (!surface)
        return;
    CClientDC dc(surface);
    PaintWeekdays(dc);
    PaintDays(dc);
}

// The headline is as many pixels high on any screen, and so has to be its text.
void CDayCalendar::PaintWeekdays(CDC& dc) {
    constexpr const char* names[columns] = {"Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"};
    constexpr int text_height = 13;
    if (!headline_font_.m_hObject)
        headline_font_.CreateFont(text_height, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                                  OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, "Arial");
    CFont* const before = dc.SelectObject(&headline_font_);
    CRect headline = Grid();
    headline.bottom = headline.top;
    headline.top -= strip;
    dc.FillSolidRect(headline, headline_text); // of which the lower line stays
    headline.bottom -= 1;
    dc.FillSolidRect(headline, headline_ground);
    dc.SetTextColor(headline_text);
    for (int column = 0; column < columns; ++column) {
        CRect place = Cell(0, column);
        place.top = headline.top;
        place.bottom = headline.bottom;
        dc.DrawText(names[column], place, DT_SINGLELINE | DT_CENTER | DT_VCENTER);
    }
    dc.SelectObject(before);
}

void CDayCalendar::PaintDays(CDC& dc) {
    for (int row = 0; row <= Grid().Height() / row_height; ++row) {
        for (int column = 0; column < columns; ++column) {
            const RecordedDay day = DayAt(row, column);
            CRect cell = Cell(row, column);
            cell.IntersectRect(cell, Grid());
            if (marked_.count(day))
                dc.FillSolidRect(cell.right - 11, cell.bottom - 8, 8, 5, mark_colour);
            if (day != picked_)
                continue;
            for (int inset = 0; inset < 2; ++inset) {
                cell.DeflateRect(1, 1, inset, inset);
                dc.Draw3dRect(cell, pick_colour, pick_colour);
            }
        }
    }
}

void CDayCalendar::OnLButtonDown(UINT flags, CPoint point) {
    pressed_ = {};
    Hit(point, pressed_);
    CWntCalendar::OnLButtonDown(flags, point);
}

void CDayCalendar::OnLButtonUp(UINT flags, CPoint point) {
    const bool drags = GetCapture() == this;
    CWntCalendar::OnLButtonUp(flags, point);
    RecordedDay day{};
    if (drags || !Hit(point, day) || day != pressed_)
        return;
    Pick(day);
    NMHDR told = {m_hWnd, static_cast<UINT_PTR>(GetDlgCtrlID()), DAY_PICKED};
    GetParent()->SendMessage(WM_NOTIFY, told.idFrom, reinterpret_cast<LPARAM>(&told));
}
