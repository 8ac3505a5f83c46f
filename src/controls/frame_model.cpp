#include "controls/frame_model.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "script/script_line.h"

namespace wnt {

namespace {

constexpr int farthest = 1 << 20; // of coordinates from outside: sums of some of them stay in range

int near_enough(int value) {
    return std::clamp(value, -farthest, farthest);
}

bool store(int& field, int value) {
    if (value < 0 || field == value)
        return false;
    field = value;
    return true;
}

bool store_colour(int& field, std::string_view name) {
    const int index = colour_lookup(name);
    return index != unknown_colour && store(field, index);
}

enum FrameKey {
    key_msg,
    key_id,
    key_title,
    key_align,
    key_border_type,
    key_border_style,
    key_border_height,
    key_text,
    key_back,
    key_sun,
    key_shadow
};

} // namespace

void FrameModel::set_title(std::string_view text) {
    title = text.substr(0, title_capacity - 1);
}

bool FrameModel::load_line(std::string_view line) {
    const ScriptLine parts = split_script_line(line);
    if (parts.key.empty())
        return false;
    switch (keyword_lookup(frame_keys, parts.key, std::size(frame_keys))) {
    case key_title: {
        const std::string before = title;
        set_title(parts.value);
        return title != before;
    }
    case key_align:
        return !parts.value.empty() && store(align, keyword_prefix_lookup(alignment_words, parts.value));
    case key_border_type:
        return store(border_type, keyword_lookup(border_type_words, parts.value, std::size(border_type_words)));
    case key_border_style:
        return store(border_sides, side_set_value(parts.value));
    case key_border_height:
        return store(border_height, border_height_value(parts.value));
    case key_text:
        return store_colour(text, parts.value);
    case key_back:
        return store_colour(background, parts.value);
    case key_sun:
        return store_colour(sun, parts.value);
    case key_shadow:
        return store_colour(shadow, parts.value);
    default:
        return false;
    }
}

FrameLayout frame_layout(const FrameModel& model, int width, int height, int scale, int strip) {
    FrameLayout layout;
    const bool bordered = model.border_type >= border_flat && model.border_type <= border_sunk;
    if (bordered && model.border_height > 0)
        layout.border = std::max((model.border_height * std::clamp(scale, 1, 1000) + 50) / 100, 1);
    const auto inset = [&](int side) { return model.border_sides & side ? layout.border : 0; };
    PixelRect& inside = layout.content;
    inside = {inset(side_left), inset(side_top), std::max(width, 0) - inset(side_right),
              std::max(height, 0) - inset(side_bottom)};
    inside.right = std::max(inside.right, inside.left);
    inside.bottom = std::max(inside.bottom, inside.top);
    if (model.title.empty())
        return layout;
    layout.title = inside;
    if (!model.has_title_strip())
        return layout;
    const int rows = std::clamp(strip, 0, inside.height());
    if (model.title_on_top())
        layout.title.bottom = inside.top = inside.top + rows;
    else
        layout.title.top = inside.bottom = inside.bottom - rows;
    return layout;
}

Anchor Anchor::at(const PixelRect& place, const PixelRect& content, const double (&shares)[4]) {
    Anchor anchor;
    const int edges[4] = {place.left, place.top, place.right, place.bottom};
    for (int i = 0; i < 4; ++i) {
        const int whole = i % 2 == 0 ? content.width() : content.height();
        anchor.share[i] = shares[i] > 0 ? std::min(shares[i], 1.0) : 0.0;
        anchor.offset[i] = near_enough(edges[i]) - (i % 2 == 0 ? content.left : content.top) -
                           static_cast<int>(std::lround(anchor.share[i] * whole));
    }
    return anchor;
}

PixelRect Anchor::place(const PixelRect& content) const {
    int edge[4];
    for (int i = 0; i < 4; ++i) {
        const int whole = i % 2 == 0 ? content.width() : content.height();
        edge[i] =
            (i % 2 == 0 ? content.left : content.top) + offset[i] + static_cast<int>(std::lround(share[i] * whole));
    }
    return {edge[0], edge[1], std::max(edge[2], edge[0]), std::max(edge[3], edge[1])};
}

} // namespace wnt
