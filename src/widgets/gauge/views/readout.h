#pragma once

#include "widgets/gauge/views/view_parts.h"

namespace wnt {

/// The value in its zone's colour on a sunken plate, the unit behind it when both fit whatever the value.
void paint_readout(Picture& picture, const GaugeModel& model, const Stage& stage, const BoxF& plate,
                   bool with_unit = true);

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
