#pragma once

#include "widgets/gauge/gauge_model.h"
#include "widgets/painting/picture.h"

namespace wnt {

/// The place that a view fills, in pixels, and how its texts will come out.
struct Stage {
    int width;
    int height;
    TextMeter& meter;
};

/// One way to show a gauge. Both parts are plain functions of model and stage: the face is everything that stays
/// while the value moves, the value goes over it.
struct GaugeView {
    void (*face)(Picture&, const GaugeModel&, const Stage&);
    void (*value)(Picture&, const GaugeModel&, const Stage&);
};

/// Null for a type that no view stands for: such a gauge draws nothing.
const GaugeView* gauge_view(int type);

void bar_face(Picture&, const GaugeModel&, const Stage&);
void bar_value(Picture&, const GaugeModel&, const Stage&);
void thermometer_face(Picture&, const GaugeModel&, const Stage&);
void thermometer_value(Picture&, const GaugeModel&, const Stage&);
void dial_face(Picture&, const GaugeModel&, const Stage&);
void dial_value(Picture&, const GaugeModel&, const Stage&);
void digital_face(Picture&, const GaugeModel&, const Stage&);
void digital_value(Picture&, const GaugeModel&, const Stage&);
void peak_face(Picture&, const GaugeModel&, const Stage&);
void peak_value(Picture&, const GaugeModel&, const Stage&);
void knob_face(Picture&, const GaugeModel&, const Stage&);
void knob_value(Picture&, const GaugeModel&, const Stage&);

} // namespace wnt
