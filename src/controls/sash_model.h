#pragma once

#include <cstdint>

namespace wnt {

/// Where the bar of a sash stands: two panes share a length with a bar between them. Lengths are pixels along the way
/// the bar moves.
class SashModel {
public:
    enum class Keeps { share, first, second }; ///< what a change of the length leaves as it is

    struct Span {
        int start = 0;
        int length = 0;

        friend bool operator==(const Span&, const Span&) = default;
    };

    /// The length of panes and bar together; negative ones count as 0.
    void resize(int length);
    int length() const { return length_; }
    void set_bar(int thickness);
    void set_keeps(Keeps keeps);
    Keeps keeps() const { return keeps_; }
    /// Where both cannot have theirs, they share what there is in that proportion.
    void set_least(int first, int second);

    /// The first pane's length, as near as the least lengths allow. It is remembered as it was asked for: a window
    /// that shrinks and grows again gets it back. Unfolds.
    void set_position(int position);
    /// The second pane's length, likewise.
    void set_second(int length);
    /// A part of the panes' length from 0 to 1; not-a-number counts as 0.
    void set_share(double share);
    int position() const;
    /// What was asked for, whatever the present length allows: the first pane's length, and the second's.
    int wished_position() const;
    int wished_second() const;
    /// As it stood then; lengths and what was set since stay.
    void go_back(const SashModel& before);
    /// The first pane's part of both, as it was asked for.
    double share() const;
    /// The nearest position that the least lengths allow.
    int clamped(int position) const;
    bool can_move() const;

    /// 0 unfolds, 1 and 2 leave that pane no length; the position before is kept.
    void fold(int pane);
    int folded() const { return folded_; }

    Span first() const { return {0, position()}; }
    Span bar() const;
    Span second() const;

private:
    enum class Asked { nothing, position, second, share }; // what the present length has no room for

    int room() const;
    int open_position() const;
    void remember(int position);
    void remember_second(int length);
    void remember_share();

    int length_ = 0;
    int bar_ = 5;
    int least_[2] = {0, 0};
    Keeps keeps_ = Keeps::share;
    int folded_ = 0;
    double share_ = 0.5;
    int kept_ = 0; // the length of the pane that keeps it, or a position that was asked for
    Asked asked_ = Asked::share;
};

} // namespace wnt
