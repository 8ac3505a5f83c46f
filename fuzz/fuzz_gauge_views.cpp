// Paints every view of a gauge whose size and script are generated, and checks that all ink stays inside. The first
// two bytes are width and height in steps of four pixels, from 20 on; the rest are script lines.
#include "widgets/views/gauge_view.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string_view>

using namespace wnt;

namespace {

class EvenMeter : public TextMeter {
public:
    float width(std::string_view text, int tenths) override {
        return static_cast<float>(text.size()) * static_cast<float>(tenths) * 0.075f;
    }
    FontMetrics metrics(int tenths) override {
        const float em = static_cast<float>(tenths) / 7.5f;
        return {std::ceil(em * 0.92f), std::ceil(em * 0.22f), em * 0.72f};
    }
    int tenths(float pixels) override { return static_cast<int>(std::lround(pixels * 7.5f)); }
};

void check_inside(const Picture& picture, const Stage& stage) {
    for (const auto& f : picture.figures()) {
        const BoxF& b = f.bounds;
        const bool inside = b.left >= -1.01f && b.bottom >= -1.01f &&
                            b.right <= static_cast<float>(stage.width) + 1.01f &&
                            b.top <= static_cast<float>(stage.height) + 1.01f;
        if (!inside) // not-a-number included
            std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2)
        return 0;
    EvenMeter meter;
    const Stage stage = {20 + 4 * data[0], 20 + 4 * data[1], meter};
    std::string_view text(reinterpret_cast<const char*>(data) + 2, size - 2);
    GaugeModel model(0xF5F5F5, 0xFFFFFF, 0x6A6A6A);
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        model.load_line(line);
        text.remove_prefix(std::min(line.size() + 1, text.size()));
    }
    for (model.type = 0; model.type < gauge_type_count; ++model.type) {
        const GaugeView* view = gauge_view(model.type);
        Picture face;
        Picture value;
        view->face(face, model, stage);
        view->value(value, model, stage);
        check_inside(face, stage);
        check_inside(value, stage);
    }
    return 0;
}
