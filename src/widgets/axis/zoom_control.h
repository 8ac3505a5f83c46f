#pragma once

#include "widgets/axis/axis_model.h"

namespace wnt {

enum class ZoomGrip { none, move, enlarge };

/// The control along an axis whose slider is moved and enlarged with the mouse. It moves on its own: the axis'
/// range stays.
struct ZoomControl {
    bool shown = false;
    bool lost = false;      ///< The mouse was taken away in a drag: until the next press it moves nothing.
    bool enlarging = false; ///< The next drag enlarges; otherwise it moves.
    bool far_end = false;   ///< It is the right or lower end that a drag enlarges.
    AxisRect box;           ///< Hit as left, top, right, bottom; painted as x, y, width, height.
    AxisRect slider;        ///< The same.
    std::int32_t last_x = 0;
    std::int32_t last_y = 0;

    /// Places the box at the axis, and the slider over all of it where asked to.
    void lay_out(const AxisModel& axis, bool with_slider);

    /// Whether there is anything of the slider to grip.
    bool has_slider(bool horizontal) const {
        return horizontal ? slider.left < slider.right : slider.top < slider.bottom;
    }

    /// The slider's share of the box, 0 to 1, from the left or from below; false without one.
    bool part(bool horizontal, double& from, double& to) const;

    bool hit(std::int32_t x, std::int32_t y) const;

    /// What a press at the point would take hold of.
    ZoomGrip grip_at(bool horizontal, std::int32_t x, std::int32_t y) const;
    /// The same; remembers it for the drag.
    ZoomGrip hover(bool horizontal, std::int32_t x, std::int32_t y);

    /// Moves or enlarges the slider with the mouse, which was at the last point before.
    void drag(bool horizontal, std::int32_t x, std::int32_t y);
};

} // namespace wnt
