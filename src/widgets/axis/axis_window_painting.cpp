#include "widgets/axis/wnt_axis.h"

#include <algorithm>

#include "arithmetic.h"
#include "out/device_state.h"
#include "widgets/axis/axis_model.h"
#include "widgets/axis/axis_ticks.h"
#include "widgets/axis/zoom_control.h"
#include "widgets/painting/borrowed_context.h"
#include "widgets/painting/paint_buffer.h"

namespace {

constexpr COLORREF ground = 0x808080;
constexpr COLORREF zoom_box_colour = 0x00FF00;
constexpr COLORREF zoom_slider_colour = 0x008000;

// From the edge with the ticks.
constexpr int tick_start = 2;
constexpr int label_distance = 6; // beyond the start of the ticks
constexpr int time_tick_start = 1;
constexpr int time_label_distance = 10;

constexpr const char* position_descriptions[] = {"X Axis at top", "Y Axis at left", "X Axis at bottom",
                                                 "Y Axis at right"};
constexpr UINT label_alignments[] = {TA_CENTER | TA_BOTTOM, TA_RIGHT | TA_BASELINE, TA_CENTER | TA_TOP,
                                     TA_LEFT | TA_BASELINE};

void line(HDC dc, HGDIOBJ pen, int x1, int y1, int x2, int y2) {
    ::SelectObject(dc, pen);
    ::MoveToEx(dc, x1, y1, nullptr);
    ::LineTo(dc, x2, y2);
}

int pixels_of(float percent, int length) {
    const float pixels = static_cast<float>(length) * std::clamp(wnt::finite(percent), 0.0f, 100.0f) / 100.0f;
    return std::clamp(wnt::truncated_int(pixels), 0, std::max(length, 0));
}

} // namespace

BOOL CWntAxis::OnEraseBkgnd(CDC*) {
    return TRUE; // painting covers everything
}

void CWntAxis::OnPaint() {
    CPaintDC dc(this);
    paint(dc, *picture_);
}

// The same into any device context, whatever lies over the window.
LRESULT CWntAxis::OnPrintClient(WPARAM wParam, LPARAM) {
    if (!wParam)
        return 0;
    wnt::BorrowedContext dc(reinterpret_cast<HDC>(wParam));
    wnt::MemoryBitmap picture; // as that device has them
    paint(dc, picture);
    return 0;
}

void CWntAxis::FollowRange(__int64 start, __int64 end, CDC* onto) {
    model_->set_time_range(start, end);
    if (!m_hWnd)
        return;
    try {
        if (onto)
            return paint(*onto, *picture_);
        CClientDC dc(this);
        paint(dc, *picture_);
    } catch (...) {
        repaint(); // as soon as there is memory for it
        throw;
    }
}

void CWntAxis::paint(CDC& dc, wnt::MemoryBitmap& picture) {
    const wnt::AxisRect& r = model_->rect;
    const wnt::PaintBuffer buffer(dc, picture, r.right - r.left, r.bottom - r.top);
    const wnt::SelectGuard pen(dc.m_hDC, shadow_pen_.GetSafeHandle());
    const wnt::SelectGuard font(dc.m_hDC, label_font_.GetSafeHandle());
    dc.SetBkMode(TRANSPARENT);
    draw_border(dc, r.left, r.top, r.right, r.bottom, true, true);
    draw_ticks(dc);
    if (zoom_->shown)
        draw_zoom_control(dc);
}

void CWntAxis::draw_ticks(CDC& dc) {
    const int position = model_->position;
    if (position < wnt::axis_top || position > wnt::axis_right)
        return;
    position_description_ = position_descriptions[position];
    dc.SetTextAlign(label_alignments[position]);
    if (model_->type == wnt::axis_time) {
        for (const wnt::AxisTick& tick : wnt::time_ticks(*model_))
            draw_time_tick(dc, tick);
    } else if (model_->type == wnt::axis_numeric || model_->type == wnt::axis_text) {
        const auto text = [this](std::int64_t i) { return texts_ ? texts_[i].GetString() : nullptr; };
        for (const wnt::AxisTick& tick : wnt::value_ticks(*model_, text))
            draw_tick(dc, tick);
    }
}

void CWntAxis::draw_tick(CDC& dc, const wnt::AxisTick& tick) {
    int ends[4];
    tick_line(tick_start, tick.length, tick.pixel, ends);
    if (engraved_ticks_)
        engrave(dc, ends[0], ends[1], ends[2], ends[3], model_->horizontal());
    else
        line(dc.m_hDC, shadow_pen_.GetSafeHandle(), ends[0], ends[1], ends[2], ends[3]);
    draw_label(dc, tick, tick_start + label_distance);
}

void CWntAxis::draw_time_tick(CDC& dc, const wnt::AxisTick& tick) {
    int ends[4];
    tick_line(time_tick_start, tick.length, tick.pixel, ends);
    engrave(dc, ends[0], ends[1], ends[2], ends[3], model_->horizontal());
    draw_label(dc, tick, time_label_distance);
}

void CWntAxis::draw_label(CDC& dc, const wnt::AxisTick& tick, int distance) {
    if (tick.label.empty())
        return;
    int ends[4];
    tick_line(distance, 0, tick.pixel, ends);
    dc.TextOut(ends[0], ends[1], tick.label.c_str(), static_cast<int>(tick.label.size()));
}

// A line from `start` pixels within the tick edge inwards.
void CWntAxis::tick_line(int start, int length, int pixel, int (&ends)[4]) const {
    const wnt::AxisRect& r = model_->rect;
    const int position = model_->position;
    const bool from_far_edge = position == wnt::axis_top || position == wnt::axis_left;
    const int inwards = from_far_edge ? -1 : 1;
    const int edge = model_->horizontal() ? (from_far_edge ? r.bottom : r.top) : (from_far_edge ? r.right : r.left);
    const int from = edge + inwards * start;
    const int to = from + inwards * length;
    if (model_->horizontal()) {
        ends[0] = ends[2] = pixel;
        ends[1] = from;
        ends[3] = to;
    } else {
        ends[0] = from;
        ends[2] = to;
        ends[1] = ends[3] = pixel;
    }
}

void CWntAxis::engrave(CDC& dc, int x1, int y1, int x2, int y2, bool horizontal) {
    const int right = horizontal ? 1 : 0;
    const int down = 1 - right;
    line(dc.m_hDC, shadow_pen_.GetSafeHandle(), x1, y1, x2, y2);
    line(dc.m_hDC, highlight_pen_.GetSafeHandle(), x1 + right, y1 + down, x2 + right, y2 + down);
}

void CWntAxis::fill_box(CDC& dc, int x, int y, int width, int height, COLORREF colour) {
    if (width < 3 || height < 3)
        return;
    const wnt::GdiObject<HBRUSH> brush(::CreateSolidBrush(colour));
    const wnt::SelectGuard selected(dc.m_hDC, brush.get());
    dc.PatBlt(x + 1, y + 1, width - 2, height - 2, PATCOPY);
}

void CWntAxis::draw_border(CDC& dc, int x, int y, int width, int height, bool raised, bool fill) {
    if (width < 1 || height < 1)
        return;
    const HGDIOBJ first = (raised ? highlight_pen_ : shadow_pen_).GetSafeHandle();
    const HGDIOBJ second = (raised ? shadow_pen_ : highlight_pen_).GetSafeHandle();
    const int right = x + width - 1;
    const int bottom = y + height - 1;
    line(dc.m_hDC, second, right, y, right, bottom);
    line(dc.m_hDC, second, right, bottom, x - 1, bottom);
    line(dc.m_hDC, first, x, bottom - 1, x, y);
    line(dc.m_hDC, first, x, y, right, y);
    if (fill)
        fill_box(dc, x, y, width, height, ground);
}

void CWntAxis::horizontal_time_scale(CPaintDC* dc, float percent) {
    constexpr int length = 5;
    const wnt::AxisRect& r = model_->rect;
    const int x = r.left + 1 + pixels_of(percent, r.right - r.left);
    if (model_->position == wnt::axis_bottom)
        shadowline(dc, x, r.top + 1, x, r.top + 1 + length, 1);
    else
        shadowline(dc, x, r.bottom - 1, x, r.bottom - 1 - length, 1);
}

void CWntAxis::vertical_time_scale(CPaintDC* dc, float percent) {
    constexpr int length = 12;
    const wnt::AxisRect& r = model_->rect;
    const int y = r.bottom - pixels_of(percent, r.bottom - r.top);
    if (model_->position == wnt::axis_right)
        shadowline(dc, r.left + 1, y, r.left + 1 + length, y, 0);
    else
        shadowline(dc, r.right - 1, y, r.right - 1 - length, y, 0);
}

void CWntAxis::draw_zoom_control(CDC& dc) {
    const wnt::AxisRect& box = zoom_->box;
    draw_border(dc, box.left, box.top, box.right, box.bottom, false, true);
    fill_box(dc, box.left, box.top, box.right, box.bottom, zoom_box_colour);
    const wnt::AxisRect& slider = zoom_->slider;
    draw_border(dc, slider.left, slider.top, slider.right, slider.bottom, true, true);
    fill_box(dc, slider.left, slider.top, slider.right, slider.bottom, zoom_slider_colour);
}

// For derived classes, which paint with the context of their own OnPaint().

void CWntAxis::shadowline(CPaintDC* dc, int x1, int y1, int x2, int y2, int horizontal) {
    engrave(*dc, x1, y1, x2, y2, horizontal != 0);
}

void CWntAxis::DrawBorder(CPaintDC* dc, int x, int y, int width, int height, int flag, long fill) {
    draw_border(*dc, x, y, width, height, flag != 0, fill != 0);
}

void CWntAxis::PaintZoomControl(CPaintDC* dc) {
    draw_zoom_control(*dc);
}
