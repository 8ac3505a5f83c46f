#pragma once

#include "widgets/gauge/views/view_parts.h"

namespace wnt {

/// The value in its zone's colour on a sunken plate, with the unit behind it when that is to stand there. A long unit
/// is shortened, the number never is.
void paint_readout(Picture& picture, const GaugeModel& model, const Stage& stage, const BoxF& plate, bool with_unit);

/// How much of the unit a plate has room for behind the number, whatever the value.
enum class UnitShown { nothing, beginning, whole };
UnitShown unit_shown(const GaugeModel& model, const Stage& stage, const BoxF& plate);

/// A view's layout, made by `place` for a place of the unit: behind the number; where it finds no room, apart, unless
/// that would cost a small view its readout.
template <class Place> auto place_with_unit(const GaugeModel& model, const Stage& stage, Place place) {
    constexpr float small_height = 60;
    const UnitShown enough =
        inside_border(model, stage).height() < small_height ? UnitShown::beginning : UnitShown::whole;
    auto placed = place(UnitPlace::in_view);
    const bool shown = !has_unit(model) || unit_shown(model, stage, placed.readout) >= enough;
    return shown ? placed : place(UnitPlace::apart);
}

/// In a wide and low space an instrument of this width goes to the left and the readout beside it: takes its place
/// off the body. Empty when the space is not wide enough.
BoxF take_side_readout(BoxF& body, float instrument_width);

/// Takes a strip for a small number off the lower end of a body that has no other place for one.
BoxF take_lower_readout(BoxF& body);

/// Either of them, for a round instrument that is too small to carry a readout; empty when it is not.
BoxF take_outer_readout(BoxF& body);

/// A plate of this size over a height, about a middle, on whole pixels.
BoxF plate_at(float middle, float bottom, float wide, float tall);

} // namespace wnt
