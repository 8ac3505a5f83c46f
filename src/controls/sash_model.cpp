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
        remember(room() - kept_);
    else if (asked_ == Asked::share)
        remember_share();
}

void SashModel::set_bar(int thickness) {
    bar_ = length_of(thickness);
}

void SashModel::set_keeps(Keeps keeps) {
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
    if (whole == 0) {
        kept_ = position;
        asked_ = Asked::position;
        return;
    }
    asked_ = Asked::nothing;
    share_ = std::clamp(static_cast<double>(position) / whole, 0.0, 1.0);
    kept_ = keeps_ == Keeps::second ? whole - position : position;
}

void SashModel::remember_share() {
    const int first = static_cast<int>(std::lround(share_ * room()));
    kept_ = keeps_ == Keeps::second ? room() - first : first;
    asked_ = room() == 0 ? Asked::share : Asked::nothing;
}

void SashModel::set_position(int position) {
    folded_ = 0;
    remember(std::clamp(position, -longest, longest));
}

void SashModel::set_second(int length) {
    folded_ = 0;
    kept_ = std::clamp(length, -longest, longest);
    if (room() > 0)
        remember(room() - kept_);
    else
        asked_ = Asked::second;
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

int SashModel::open_position() const {
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
