#include "widgets/calendar/wnt_calendar.h"

#include <cstdio>

#include "widgets/calendar/calendar_days.h"
#include "widgets/calendar/calendar_layout.h"
#include "widgets/painting/surface_buffer.h"

namespace {

using wnt::UpwardRect;

constexpr int text_height = 12;
constexpr int week_number_height = 2 * text_height;
constexpr int week_number_indent = 10;
constexpr int week_number_drop = 5;
constexpr int month_box_height = 20; // the number stands on its middle
constexpr const char* weekday_names[7] = {"Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"};

// Alignments of the surface's texts.
constexpr int bottom_left = 0;
constexpr int centred = 10;

UpwardRect inclusive(const CRect& r) {
    return {static_cast<int>(r.left), static_cast<int>(r.top), static_cast<int>(r.right), static_cast<int>(r.bottom)};
}

CRect rect(const UpwardRect& r) {
    return CRect(r.left, r.top, r.right, r.bottom);
}

void fill(CWntOut& out, const UpwardRect& r, COLORREF line, COLORREF ground) {
    out.linecolour(line, 0);
    out.fillcolour(ground, 0);
    out.boxa1(r.left, r.bottom, r.right, r.top);
}

} // namespace

// A week of the grid: its first day, and whether another month begins with the next one.
struct CWntCalendar::Week {
    std::int64_t start;
    wnt::LocalDate first;
    wnt::LocalDate today;
    bool month_changes;
};

void CWntCalendar::draw_all() {
    const wnt::SurfacePainting all(out_, painting_);
    DrawButton(rect(layout_->bottom_strip), 0, 0);
    DrawButton(rect(layout_->top_strip), 1, 0);
    draw_dates(dragging_ ? dragged_to_ : shown_);
}

void CWntCalendar::draw_dates(std::int64_t shown) {
    const wnt::SurfacePainting all(out_, painting_);
    const CTime first(shown);
    const CTime end(shown + (end_ - shown_));
    DrawHeadline(rect(layout_->headline), first);
    DrawMonths(rect(layout_->months), first, end);
    try {
        DrawBody(rect(layout_->grid), first, end);
    } catch (CException* out_of_range) {
        out_of_range->Delete(); // the grid ends there; a box for every paint would help nobody
    }
}

void CWntCalendar::text(int x, int y, const char* what, int align) {
    out_.chars(x, y, const_cast<char*>(what), align);
}

void CWntCalendar::number(int x, int y, int value) {
    char digits[12];
    std::snprintf(digits, sizeof digits, "%d", value);
    text(x, y, digits, bottom_left);
}

void CWntCalendar::DrawHeadline(CRect area, CTime first) {
    const UpwardRect r = inclusive(area);
    const wnt::SurfacePainting painting(out_, painting_, r);
    if (!painting)
        return;
    fill(out_, r, colours_.headline_line, colours_.weekend_fill);
    out_.settext(0, 0, 0, text_height, 0, 0);
    const int middle = r.bottom + wnt::headline_height / 2;
    if (const int year = wnt::local_date(first.GetTime()).year) {
        char digits[8];
        std::snprintf(digits, sizeof digits, "%02d", year % 100);
        text(r.left + wnt::headline_height / 2, middle, digits, centred);
    }
    const int width = (r.right - r.left) / 7;
    for (int day = 0; day < 7; ++day)
        text(r.left + wnt::headline_height + day * width + width / 2, middle, weekday_names[day], centred);
}

void CWntCalendar::DrawBody(CRect area, CTime first, CTime) {
    const UpwardRect r = inclusive(area);
    const wnt::SurfacePainting painting(out_, painting_, r);
    if (!painting)
        return;
    fill(out_, r, colours_.weekend_fill, colours_.weekend_fill); // what no cell covers
    const wnt::LocalDate today = wnt::local_date(today_);
    std::int64_t start = wnt::grid_start(first.GetTime());
    for (int row = 0; row <= layout_->last_row; ++row, start += wnt::week_seconds) {
        const wnt::LocalDate monday = wnt::local_date(start);
        const Week week = {start, monday, today, monday.month != wnt::local_date(start + wnt::week_seconds).month};
        for (int column = 0; column < 7; ++column)
            draw_cell(week, column, r.left + column * layout_->column_width, r.top - row * wnt::week_height);
    }
}

void CWntCalendar::draw_cell(const Week& week, int column, int left, int top) {
    const std::int64_t moment = week.start + column * wnt::day_seconds;
    const wnt::LocalDate date = wnt::local_date(moment);
    const bool weekend = column >= 5;
    const bool today = date == week.today;
    const COLORREF ground = today ? colours_.today_fill : weekend ? colours_.weekend_fill : colours_.weekday_fill;
    const COLORREF ink = today ? colours_.today_text : weekend ? colours_.weekend_text : colours_.weekday_text;
    fill(out_, {left, top, left + layout_->column_width, top - wnt::week_height}, colours_.cell_frame, ground);

    out_.linecolour(ink, 0);
    out_.settext(0, 0, 0, text_height, 0, 0);
    if (date.day)
        number(left + 2, top - text_height, date.day);
    if (column == 0) {
        out_.linecolour(colours_.weekend_fill, 0);
        out_.settext(0, 0, 0, week_number_height, 0, 0);
        number(left + week_number_indent, top - week_number_drop - week_number_height, wnt::week_number(moment));
    }
    if (week.month_changes)
        draw_month_line(date.month == week.first.month, left, top);
}

void CWntCalendar::draw_month_line(bool in_first_month, int left, int top) {
    out_.linecolour(colours_.month_line, 0);
    out_.hline(left, in_first_month ? top - wnt::week_height + 1 : top - 1, layout_->column_width);
}

void CWntCalendar::DrawMonths(CRect area, CTime first, CTime) {
    const UpwardRect r = inclusive(area);
    const wnt::SurfacePainting painting(out_, painting_, r);
    if (!painting)
        return;
    fill(out_, r, colours_.weekend_fill, colours_.weekend_fill);
    out_.linecolour(0, 0);
    std::int64_t monday = wnt::grid_start(first.GetTime());
    int previous = wnt::local_date(monday).month;
    for (int row = 0; row <= layout_->last_row; ++row, monday += wnt::week_seconds) {
        const int month = wnt::local_date(monday).month;
        if (month != previous && month && previous) {
            const int y = r.top - row * wnt::week_height;
            char digits[12];
            std::snprintf(digits, sizeof digits, "%0d", previous);
            out_.hline(r.left, y, r.right - r.left);
            out_.titlechars(r.left, y, r.right - r.left, month_box_height, digits);
        }
        previous = month;
    }
}

void CWntCalendar::DrawButton(CRect area, int which, int sunk) {
    const UpwardRect r = inclusive(area);
    const wnt::SurfacePainting painting(out_, painting_, r);
    if (!painting)
        return;
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    fill(out_, r, face, face);
    out_.drawshadow(r.left, r.bottom, r.right, r.top, !sunk);
    const int size = (r.top - r.bottom) / 3;
    const int x = r.left + (r.right - r.left) / 2 + (sunk ? 1 : 0);
    const int y = r.bottom + (r.top - r.bottom) / 2 - (sunk ? 1 : 0);
    const int tip = which ? size / 2 : -size / 2;
    POINT arrow[3] = {{x - size, y - tip}, {x + size, y - tip}, {x, y - tip + (which ? size : -size)}};
    const COLORREF ink = ::GetSysColor(COLOR_BTNTEXT);
    out_.linecolour(ink, 0);
    out_.fillcolour(ink, 0);
    out_.fillpoly(arrow, 3);
}
