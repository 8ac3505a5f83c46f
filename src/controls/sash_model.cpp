#include "controls/sash_model.h"

#include <algorithm>
#include <cmath>

namespace wnt {

namespace {

constexpr int longest = 1 << 24; // of any length from outside: sums of some of them stay in range

int length_of(int value) {
    return std::clamp(value, 0, longest);
}

} // namespace

int SashModel::room() const {
    return std::max(length_ - bar_, 0);
}

void SashModel::resize(int length) {
    length_ = length_of(length);
    if (room() == 0)
        return;
    if (asked_ == Asked::position)
        remember(kept_);
    else if (asked_ == Asked::second)
        remember_second(kept_);
    else if (asked_ == Asked::share)
        remember_share();
}

void SashModel::set_bar(int thickness) {
    bar_ = length_of(thickness);
}

void SashModel::set_keeps(Keeps keeps) {
    if (asked_ == Asked::nothing && room() == 0)
        asked_ = keeps_ == Keeps::share ? Asked::share : keeps_ == Keeps::first ? Asked::position : Asked::second;
    const int now = open_position();
    keeps_ = keeps;
    if (asked_ == Asked::nothing)
        remember(now);
}

void SashModel::set_least(int first, int second) {
    least_[0] = length_of(first);
    least_[1] = length_of(second);
}

void SashModel::remember(int position) {
    const int whole = room();
    if (whole > 0)
        share_ = std::clamp(static_cast<double>(position) / whole, 0.0, 1.0);
    asked_ = whole == 0 || position > whole ? Asked::position : Asked::nothing;
    kept_ = keeps_ == Keeps::second && asked_ == Asked::nothing ? whole - position : position;
}

void SashModel::remember_second(int length) {
    if (room() > 0 && length <= room())
        return remember(room() - length);
    kept_ = length;
    asked_ = Asked::second;
}

void SashModel::remember_share() {
    const int first = static_cast<int>(std::lround(share_ * room()));
    kept_ = keeps_ == Keeps::second ? room() - first : first;
    asked_ = room() == 0 ? Asked::share : Asked::nothing;
}

void SashModel::set_position(int position) {
    folded_ = 0;
    remember(length_of(position));
}

void SashModel::set_second(int length) {
    folded_ = 0;
    remember_second(length_of(length));
}

void SashModel::set_share(double share) {
    folded_ = 0;
    share_ = share > 0 ? std::min(share, 1.0) : 0.0;
    remember_share();
}

double SashModel::share() const {
    return share_;
}

int SashModel::clamped(int position) const {
    const int whole = room();
    std::int64_t low = least_[0];
    std::int64_t high = std::int64_t{whole} - least_[1];
    if (low > high) {
        const std::int64_t both = std::int64_t{least_[0]} + least_[1];
        low = high = std::int64_t{whole} * least_[0] / both;
    }
    return static_cast<int>(std::clamp<std::int64_t>(position, low, high));
}

bool SashModel::can_move() const {
    return clamped(0) != clamped(room());
}

int SashModel::position() const {
    if (folded_)
        return folded_ == 1 ? 0 : room();
    return open_position();
}

int SashModel::wished_position() const {
    const bool own = asked_ == Asked::position || (asked_ == Asked::nothing && keeps_ == Keeps::first);
    return own ? kept_ : open_position();
}

int SashModel::wished_second() const {
    const bool own = asked_ == Asked::second || (asked_ == Asked::nothing && keeps_ == Keeps::second);
    return own ? kept_ : room() - open_position();
}

void SashModel::go_back(const SashModel& before) {
    if (keeps_ == before.keeps_) {
        share_ = before.share_;
        kept_ = before.kept_;
        asked_ = before.asked_;
        resize(length_);
    } else {
        remember(before.open_position());
    }
    folded_ = before.folded_;
}

int SashModel::open_position() const {
    if (asked_ == Asked::position)
        return clamped(kept_);
    if (asked_ == Asked::second)
        return clamped(room() - kept_);
    switch (keeps_) {
    case Keeps::first:
        return clamped(kept_);
    case Keeps::second:
        return clamped(room() - kept_);
    default:
        return clamped(static_cast<int>(std::lround(share_ * room())));
    }
}

void SashModel::fold(int pane) {
    folded_ = pane == 1 || pane == 2 ? pane : 0;
}

SashModel::Span SashModel::bar() const {
    return {position(), std::min(bar_, length_)};
}

SashModel::Span SashModel::second() const {
    const Span bar = this->bar();
    const int start = bar.start + bar.length;
    return {start, length_ - start};
}

} // namespace wnt
