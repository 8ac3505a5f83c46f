// Gauges in scenes: models from script lines, and what of their pictures lies where.
#pragma once

#include "even_meter.h"
#include "widgets/gauge/views/view_parts.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

using namespace wnt;

using Lines = std::vector<const char*>;

inline GaugeModel model_of(int type, const Lines& lines = {}) {
    GaugeModel model(0xF5F5F5, 0xFFFFFF, 0x6A6A6A);
    for (const std::string_view line : gauge_built_in_script)
        model.load_line(line);
    model.type = type;
    for (const char* line : lines)
        model.load_line(line);
    return model;
}

struct Writing : Picture::Figure {
    std::string text;
    bool on_face;
};

inline std::vector<Writing> writings_of(const Scene& scene) {
    std::vector<Writing> all;
    for (const Picture* picture : {&scene.face, &scene.value})
        for (const Picture::Figure& f : picture->figures())
            if (f.kind == Picture::Kind::text)
                all.push_back({f, std::string(picture->characters(f)), picture == &scene.face});
    return all;
}

inline bool writes(const Scene& scene, std::string_view text) {
    return std::ranges::any_of(writings_of(scene), [&](const Writing& w) { return w.text.find(text) != w.text.npos; });
}

// 0 to 200: blue below 50, green below 100, then red.
inline GaugeModel zoned(int type, int value, const Lines& more = {}) {
    GaugeModel model = model_of(type, {":MAXVAL=200", ":CLEARMARKS", ":SETMARK=50,BLUE", ":SETMARK=100,GREEN",
                                       ":SETMARK=99,RED", ":SETMARK=99,RED", ":NOTITLE=X", ":SCALES=10"});
    for (const char* line : more)
        model.load_line(line);
    model.set_current_value(value);
    return model;
}
