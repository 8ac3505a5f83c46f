#include "widgets/pulse/pulse_view.h"

#include <algorithm>

namespace wnt {

namespace {

std::int64_t bounded_time(std::int64_t time) {
    return std::clamp(time, -PulseSeries::latest, PulseSeries::latest);
}

} // namespace

void PulseView::resize(std::int32_t width) {
    const std::int64_t last = columns_.time(origin_ + columns_.width - 1);
    columns_.width = std::clamp(width, 1, ColumnScale::most_width);
    put_end(columns_.column(live_ ? now_ : last));
}

void PulseView::zoom(std::int64_t span, std::int64_t x) {
    const std::int64_t kept = time(std::clamp<std::int64_t>(x, 0, columns_.width - 1));
    x = std::clamp<std::int64_t>(x, 0, columns_.width - 1);
    columns_.span = std::clamp(span, shortest_span, longest_span);
    if (live_)
        put_end(columns_.column(now_));
    else
        origin_ = columns_.column(kept) - x;
    keep_in_history();
}

void PulseView::show(std::int64_t start, std::int64_t end) {
    start = bounded_time(start);
    end = bounded_time(end);
    live_ = false;
    columns_.span = std::clamp(end - start, shortest_span, longest_span);
    origin_ = columns_.column(start);
    keep_in_history();
}

void PulseView::scroll(std::int64_t columns) {
    const std::int64_t reach = columns_.column(now_) - columns_.column(oldest_) + columns_.width;
    origin_ += std::clamp(columns, -reach, reach);
    live_ = columns >= 0 && origin_ + columns_.width - 1 >= columns_.column(now_);
    keep_in_history();
}

void PulseView::set_history(std::int64_t oldest, std::int64_t now) {
    now_ = bounded_time(now);
    oldest_ = std::min(bounded_time(oldest), now_);
    if (live_)
        put_end(columns_.column(now_));
}

void PulseView::set_live(bool live) {
    live_ = live;
    if (live_)
        put_end(columns_.column(now_));
}

// Now is never left of the right edge, and the oldest sample never right of the left one, unless all is shown.
void PulseView::keep_in_history() {
    const std::int64_t newest_origin = columns_.column(now_) - columns_.width + 1;
    origin_ = std::min(std::max(origin_, columns_.column(oldest_)), newest_origin);
}

} // namespace wnt
