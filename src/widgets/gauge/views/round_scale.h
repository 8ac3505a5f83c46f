#pragma once

#include "widgets/gauge/views/gauge_view.h"

namespace wnt {

/// The turn of a round scale, from lower left clockwise to lower right.
struct RoundScale {
    PointF centre;
    float radius;

    float angle(float fraction) const;
    PointF at(float fraction, float distance) const;
};

/// Where the ticks and labels of a round scale lie, as distances from the centre.
struct RoundTicks {
    float outer;
    float major_inner;
    float minor_inner;
    float label; ///< outer or inner edge of the labels
    bool labels_inside;
    int label_size; ///< 0: none
};
void paint_round_ticks(Picture& picture, const GaugeModel& model, const Stage& stage, const RoundScale& scale,
                       const RoundTicks& ticks);
void paint_round_zones(Picture& picture, const GaugeModel& model, const RoundScale& scale, float inner, float outer);
/// A ring lit from the top left.
void paint_bezel(Picture& picture, PointF centre, float inner, float outer, Colour dark, Colour light);

} // namespace wnt
