#include "widgets/pulse/pulse_view.h"

#include <algorithm>

namespace wnt {

namespace {

std::int64_t bounded_time(std::int64_t time) {
    return std::clamp(time, -PulseSeries::latest, PulseSeries::latest);
}

} // namespace

// A hundredth may be several columns wide.
std::int64_t PulseView::origin_before(std::int64_t time) const {
    return std::max(columns_.column(time), columns_.column(time + 1) - 1) - columns_.width + 1;
}

void PulseView::resize(std::int32_t width) {
    if (!kept_end_)
        kept_end_ = columns_.time(origin_ + columns_.width - 1);
    columns_.width = std::clamp(width, 1, ColumnScale::most_width);
    origin_ = origin_before(live_ ? now_ : *kept_end_);
}

void PulseView::zoom(std::int64_t span, std::int64_t x) {
    kept_end_.reset();
    x = std::clamp<std::int64_t>(x, 0, columns_.width - 1);
    const std::int64_t kept = time(x);
    columns_.span = std::clamp(span, shortest_span, longest_span);
    origin_ = live_ ? origin_before(now_) : columns_.column(kept) - x;
    keep_in_history();
}

void PulseView::show(std::int64_t start, std::int64_t end) {
    kept_end_.reset();
    start = bounded_time(start);
    end = bounded_time(end);
    live_ = false;
    columns_.span = std::clamp(end - start, shortest_span, longest_span);
    origin_ = columns_.column(start);
}

void PulseView::scroll(std::int64_t columns) {
    kept_end_.reset();
    const std::int64_t reach = columns_.column(now_) - columns_.column(oldest_) + columns_.width;
    const std::int64_t before = origin_;
    origin_ += std::clamp(columns, -reach, reach);
    const bool reached = columns >= 0 && origin_ >= origin_before(now_);
    keep_in_history();
    live_ = reached || (live_ && origin_ == before); // a history shorter than the plot does not move
}

void PulseView::set_history(std::int64_t oldest, std::int64_t now) {
    now_ = bounded_time(now);
    oldest_ = std::min(bounded_time(oldest), now_);
    if (live_)
        origin_ = origin_before(now_);
}

void PulseView::set_live(bool live) {
    kept_end_.reset();
    live_ = live;
    if (live_)
        origin_ = origin_before(now_);
}

// Now is never left of the right edge, and the oldest sample never right of the left one, unless all is shown.
void PulseView::keep_in_history() {
    origin_ = std::min(std::max(origin_, columns_.column(oldest_)), origin_before(now_));
}

} // namespace wnt
