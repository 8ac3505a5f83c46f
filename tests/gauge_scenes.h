// Gauges in scenes: models from script lines, and what of their pictures lies where.
#pragma once

#include "even_meter.h"
#include "widgets/gauge/views/view_parts.h"

#include <algorithm>
#include <cmath>
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

inline constexpr Colour blue = 0xFF0000, green = 0x00FF00, red = 0x0000FF;

// 0 to 200: blue below 50, green below 100, then red. The stage is 240 x 240, the margin 7.2.
inline GaugeModel zoned(int type, int value, const Lines& more = {}) {
    GaugeModel model = model_of(type, {":MAXVAL=200", ":CLEARMARKS", ":SETMARK=50,BLUE", ":SETMARK=100,GREEN",
                                       ":SETMARK=99,RED", ":SETMARK=99,RED", ":NOTITLE=X", ":SCALES=10"});
    for (const char* line : more)
        model.load_line(line);
    model.set_current_value(value);
    return model;
}
inline constexpr int stage = 240;
inline constexpr PointF middle = {120, 120};

inline BoxF extent(const Picture& picture, Colour colour) {
    BoxF all = {1e9f, 1e9f, -1e9f, -1e9f};
    for (const auto& f : picture.figures())
        if (f.kind != Picture::Kind::text && f.colour == colour && !f.bounds.empty())
            all = hull(all, f.bounds);
    return all;
}

// The corners of all polygons of a colour.
inline std::vector<PointF> corners_of(const Picture& picture, Colour colour) {
    std::vector<PointF> all;
    for (const auto& f : picture.figures())
        if (f.kind == Picture::Kind::polygon && f.colour == colour)
            all.insert(all.end(), picture.points(f), picture.points(f) + f.count);
    return all;
}

// How far from the middle.
inline float reach(PointF p) {
    return std::hypot(p.x - middle.x, p.y - middle.y);
}

// Degrees counter-clockwise from +x, from -90 to 270.
inline float angle_of(PointF p) {
    const float a = std::atan2(p.y - middle.y, p.x - middle.x) * 180 / pi;
    return a < -90 ? a + 360 : a;
}
inline float angle_at(float value) {
    return 225 - 270 * value / 200;
}
