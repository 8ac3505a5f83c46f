#pragma once

#include "widgets/gauge/gauge_model.h"
#include "widgets/painting/gdi_text_meter.h"
#include "widgets/painting/picture.h"
#include "widgets/painting/picture_screen.h"

namespace wnt {

/// Turns a gauge's model into pixels on a surface that is ready to be drawn on.
class GaugePainter {
public:
    /// Draws what the mask asks for: everything with bit 1, what the value changed with bit 2 alone. A value is not
    /// drawn over a face that no longer fits the model: then everything is.
    void paint(CWntOut& out, int width, int height, const GaugeModel& model, int mask);
    void release() { screen_.release(); }

private:
    bool face_fits(int width, int height, const GaugeModel& model) const;

    PictureScreen screen_;
    GdiTextMeter meter_;
    Picture face_;
    Picture value_; // what is on the screen
    Picture next_;
    unsigned face_revision_ = 0;
};

} // namespace wnt
