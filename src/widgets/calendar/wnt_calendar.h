#pragma once

#include <afxwin.h>

#include <cstdint>
#include <memory>

#include "control_window.h"
#include "out/wnt_out.h"
#include "zopwnt_api.h"

namespace wnt {
struct CalendarLayout;
class SurfaceBuffer;
} // namespace wnt

/// A scrolling month calendar: a row for each week, Monday to Sunday, with week numbers, today highlighted and a line
/// where the month changes.
///
///     CWntCalendar calendar;
///     calendar.Create(nullptr, "Calendar", WS_CHILD | WS_VISIBLE, CRect(10, 10, 310, 210), this, 4);
///
/// A new calendar shows the week of today first. The strips above and below scroll by a week, dragging in the month
/// column by as many weeks as rows. The right button opens menus, whose commands go to the calendar's own window:
/// months (101 to 112) are jumped to; years (200 to 209), the grid's 113, 114 and 120 are for derived classes to
/// follow, which read and set the date shown. The grid's first "Jump to current day" is the December command.
///
/// In a dialog template its class is "WntCalendar"; DDX_Control() joins it to an object.
///
/// Dates are local times, from 1970 to 3000; the grid ends above the first week without a number, which east of UTC the
/// weeks of 1970 are. Days are 86,400 seconds: where the first date shown is a midnight, daylight saving that ends
/// moves the later cells to the days before. A month that cannot be reached raises the framework's result-code
/// exception out of the command.
class ZOPWNT_API CWntCalendar : public wnt::ControlWindow {
public:
    CWntCalendar();
    ~CWntCalendar() override;

    CWntCalendar(const CWntCalendar&) = delete;
    CWntCalendar& operator=(const CWntCalendar&) = delete;

    /// The moment whose week is the first one shown; once the window exists.
    CTime GetShownDate() const;
    /// Shows the week of a moment first, and ends a drag. FALSE, and nothing changed, for one outside 1970 to 3000 and
    /// before the window exists.
    BOOL SetShownDate(const CTime& date);

    /// Paints the headline of the week that holds `first`. Of this painter and the others: rectangles have their edges
    /// inside and y growing upwards from the lower edge of the window, so that top is the larger value.
    void DrawHeadline(CRect area, CTime first);
    /// Paints the grid of days from that week on; `end` is not used. Raises the result-code exception (0x80004005,
    /// 0x80070057) at a week without a number.
    void DrawBody(CRect area, CTime first, CTime end);
    /// Paints the column of months; `end` is not used.
    void DrawMonths(CRect area, CTime first, CTime end);
    /// Paints a strip. which: 0 an arrow down, otherwise up; sunk: 0 raised.
    void DrawButton(CRect area, int which, int sunk);

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnDestroy();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* other);
    DECLARE_MESSAGE_MAP()

private:
    struct Colours {
        COLORREF weekday_text, weekday_fill, weekend_text, weekend_fill, today_text, today_fill;
        COLORREF cell_frame, headline_line, month_line;
    };
    struct Week;

    bool build() override;
    void leave() override;
    void lay_out(int cx, int cy) override;
    void read_colours();
    CPoint from_bottom(CPoint point) const;
    void draw_dates(std::int64_t shown);
    void draw_all();
    void draw_cell(const Week& week, int column, int left, int top);
    void draw_month_line(bool in_first_month, int left, int top);
    void text(int x, int y, const char* what, int align);
    void number(int x, int y, int value);
    void scroll(int weeks);
    void drag_to(CPoint point);
    bool end_drag();

    CWntOut out_;
    std::unique_ptr<wnt::SurfaceBuffer> painting_; // while a painter runs
    Colours colours_{};
    std::unique_ptr<wnt::CalendarLayout> layout_;
    std::int64_t today_ = 0;
    std::int64_t shown_ = 0;
    std::int64_t end_ = 0;
    bool dragging_ = false;
    std::int64_t dragged_to_ = 0;
    CPoint drag_start_;
    int drag_step_ = 0;
};
