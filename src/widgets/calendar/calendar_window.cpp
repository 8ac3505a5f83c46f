#include "widgets/calendar/wnt_calendar.h"

#include <ctime>

#include "widgets/calendar/calendar_commands.h"
#include "widgets/calendar/calendar_days.h"
#include "widgets/calendar/calendar_layout.h"
#include "widgets/painting/surface_buffer.h"
#include "widgets/painting/surface_owner.h"

namespace {

constexpr int surface_id = 100;

} // namespace

BEGIN_MESSAGE_MAP(CWntCalendar, wnt::ControlWindow)
ON_WM_DESTROY()
ON_WM_ERASEBKGND()
ON_WM_PAINT()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_MOUSEMOVE()
ON_WM_RBUTTONDOWN()
ON_WM_CAPTURECHANGED()
END_MESSAGE_MAP()

CWntCalendar::CWntCalendar() : ControlWindow("WntCalendar"), layout_(std::make_unique<wnt::CalendarLayout>()) {}

CWntCalendar::~CWntCalendar() {
    DestroyWindow(); // while its handlers and what they use still exist
}

void CWntCalendar::leave() {
    out_.DestroyWindow();
}

bool CWntCalendar::build() {
    if (!out_.Create(nullptr, "Out1", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 50), this, surface_id))
        return false;
    read_colours();
    today_ = shown_ = end_ = dragged_to_ = std::time(nullptr);
    dragging_ = false;
    drag_step_ = 0;
    return true;
}

void CWntCalendar::read_colours() {
    COLORREF* table = nullptr;
    const int count = out_.getcolorpalette(&table);
    const auto colour = [=, this](int index) { return table && index < count ? table[index] : out_.rgbcolor(index); };
    colours_ = {.weekday_text = colour(0),
                .weekday_fill = colour(1),
                .weekend_text = colour(14),
                .weekend_fill = colour(9),
                .today_text = colour(12),
                .today_fill = colour(3),
                .cell_frame = colour(8),
                .headline_line = colour(10),
                .month_line = colour(6)};
}

void CWntCalendar::OnDestroy() {
    out_.ReleaseDrawing();
    CWnd::OnDestroy();
}

BOOL CWntCalendar::OnEraseBkgnd(CDC*) {
    return TRUE; // the surface covers it
}

void CWntCalendar::OnPaint() {
    CPaintDC validate(this);
    end_ = shown_;
    if (layout_->last_row >= 1)
        end_ += layout_->last_row * wnt::week_seconds;
    draw_all();
}

void CWntCalendar::lay_out(int cx, int cy) {
    *layout_ = wnt::calendar_layout(cx, cy);
    if (!out_.m_hWnd)
        return;
    wnt::place_child(out_, 0, 0, cx, cy);
    Invalidate(FALSE);
}

CPoint CWntCalendar::from_bottom(CPoint point) const {
    return CPoint(point.x, layout_->top_strip.top - point.y);
}

void CWntCalendar::OnLButtonDown(UINT, CPoint point) {
    const CPoint at = from_bottom(point);
    if (!layout_->months.holds(at.x, at.y))
        return;
    dragging_ = true;
    dragged_to_ = shown_; // a press alone moves nothing
    drag_start_ = at;
    drag_step_ = 0;
    SetCapture();
}

void CWntCalendar::OnMouseMove(UINT, CPoint point) {
    if (dragging_)
        drag_to(from_bottom(point));
}

void CWntCalendar::drag_to(CPoint at) {
    const int step = (drag_start_.y - at.y) / wnt::week_height;
    if (step == drag_step_)
        return;
    drag_step_ = step;
    dragged_to_ = shown_ + step * wnt::week_seconds;
    draw_dates(dragged_to_);
}

void CWntCalendar::OnLButtonUp(UINT, CPoint point) {
    const CPoint at = from_bottom(point);
    if (layout_->top_strip.holds(at.x, at.y)) // a drag goes on behind the strips
        scroll(-1);
    else if (layout_->bottom_strip.holds(at.x, at.y))
        scroll(1);
    else if (end_drag()) {
        shown_ = dragged_to_;
        Invalidate();
    }
}

// True where there was a drag.
bool CWntCalendar::end_drag() {
    if (!dragging_)
        return false;
    dragging_ = false;
    drag_step_ = 0;
    ::ReleaseCapture();
    return true;
}

void CWntCalendar::OnCaptureChanged(CWnd* other) {
    if (other == this || !dragging_)
        return;
    dragging_ = false; // taken away: the dates of before the drag come back
    drag_step_ = 0;
    Invalidate();
}

void CWntCalendar::scroll(int weeks) {
    shown_ += weeks * wnt::week_seconds;
    end_ += weeks * wnt::week_seconds;
    Invalidate();
}

CTime CWntCalendar::GetShownDate() const {
    return CTime(shown_);
}

BOOL CWntCalendar::SetShownDate(const CTime& date) {
    if (!m_hWnd || !wnt::local_date(date.GetTime()).year)
        return FALSE;
    end_drag();
    shown_ = date.GetTime();
    Invalidate();
    return TRUE;
}

BOOL CWntCalendar::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT command = LOWORD(wParam);
    if (wnt::january_command <= command && command <= wnt::december_command) {
        shown_ = wnt::moved_to_month(shown_, static_cast<int>(command - wnt::january_command) + 1);
        Invalidate();
    }
    return CWnd::OnCommand(wParam, lParam);
}
