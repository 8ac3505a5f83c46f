// A face of even width: layout is judged without a device.
#pragma once

#include "widgets/gauge/views/gauge_view.h"

#include <cmath>

struct EvenMeter : wnt::TextMeter {
    float width(std::string_view text, int tenths) override {
        return static_cast<float>(text.size()) * static_cast<float>(tenths) * 0.075f;
    }
    wnt::FontMetrics metrics(int tenths) override {
        const float em = static_cast<float>(tenths) / 7.5f;
        return {std::ceil(em * 0.92f), std::ceil(em * 0.22f), em * 0.72f};
    }
    int tenths(float pixels) override { return static_cast<int>(std::lround(pixels * 7.5f)); }
};

/// Face and value of a gauge of this size.
struct Scene {
    Scene(const wnt::GaugeModel& model, int width, int height) {
        EvenMeter meter;
        const wnt::Stage stage = {width, height, meter};
        const wnt::GaugeView* view = wnt::gauge_view(model.type);
        view->face(face, model, stage);
        view->value(value, model, stage);
    }
    wnt::Picture face, value;
};

/// Whether ink stays on its stage; not-a-number does not.
inline bool is_inside(const wnt::BoxF& box, int width, int height) {
    return box.left >= -1.01f && box.bottom >= -1.01f && box.right <= static_cast<float>(width) + 1.01f &&
           box.top <= static_cast<float>(height) + 1.01f;
}
