#include "widgets/gauge/gauge_painter.h"

#include <utility>

#include "widgets/gauge/views/gauge_view.h"

namespace wnt {

bool GaugePainter::face_fits(int width, int height, const GaugeModel& model) const {
    return screen_.holds(width, height) && face_revision_ == model.face_revision;
}

void GaugePainter::paint(CWntOut& out, int width, int height, const GaugeModel& model, int mask) {
    const GaugeView* view = gauge_view(model.type);
    if (!view || !mask || width < 1 || height < 1)
        return;
    const Stage stage = {width, height, meter_};
    next_.clear();
    view->value(next_, model, stage);
    if ((mask & repaint_face) || !face_fits(width, height, model)) {
        face_.clear();
        view->face(face_, model, stage);
        screen_.draw_all(out, width, height, face_, next_);
        face_revision_ = model.face_revision;
    } else {
        screen_.draw_changes(out, value_, next_);
    }
    std::swap(value_, next_);
}

} // namespace wnt
