// Paints every view of a gauge whose size and script are generated, and checks that all ink stays inside. The first
// two bytes are width and height in steps of four pixels, from 20 on; the rest are script lines.
#include "even_meter.h"
#include "require.h"

#include <sstream>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2)
        return 0;
    const int width = 20 + 4 * data[0], height = 20 + 4 * data[1];
    std::istringstream text(std::string(data + 2, data + size));
    wnt::GaugeModel model(0xF5F5F5, 0xFFFFFF, 0x6A6A6A);
    for (std::string line; std::getline(text, line);)
        model.load_line(line);
    for (model.type = 0; model.type < wnt::gauge_type_count; ++model.type) {
        const Scene scene(model, width, height);
        for (const wnt::Picture* picture : {&scene.face, &scene.value})
            for (const auto& figure : picture->figures())
                require(is_inside(figure.bounds, width, height));
    }
    return 0;
}
