// A face of even width: layout is judged without a device.
#pragma once

#include "widgets/picture.h"

#include <cmath>

class EvenMeter : public wnt::TextMeter {
public:
    float width(std::string_view text, int tenths) override {
        return static_cast<float>(text.size()) * static_cast<float>(tenths) * 0.075f;
    }
    wnt::FontMetrics metrics(int tenths) override {
        const float em = static_cast<float>(tenths) / 7.5f;
        return {std::ceil(em * 0.92f), std::ceil(em * 0.22f), em * 0.72f};
    }
    int tenths(float pixels) override { return static_cast<int>(std::lround(pixels * 7.5f)); }
};
