#pragma once

#include <span>
#include <vector>

#include "controls/pixel_rect.h"

namespace wnt {

enum class ToolKind { push, check, radio, drop_down, split, separator, label, stretch, window };

constexpr bool is_button(ToolKind kind) {
    return kind <= ToolKind::split;
}
constexpr bool has_menu(ToolKind kind) {
    return kind == ToolKind::drop_down || kind == ToolKind::split;
}

enum class ToolText { none, beside, below };

/// What the items of a bar have in common; pixels.
struct ToolLook {
    ToolText text = ToolText::none;
    bool upright = false;
    int picture = 16; ///< width and height
    int row = 16;     ///< of text
    int padding = 4;  ///< around picture and text
    int gap = 4;      ///< between them
    int arrow = 12;   ///< what opens a menu
    int separator = 8;
};

/// What one item has to show.
struct ToolContent {
    ToolKind kind = ToolKind::push;
    bool picture = false;
    int text_width = 0;   ///< 0: no text
    int window_width = 0; ///< of an embedded window
    int window_height = 0;

    /// Without a picture an item shows its text whatever the bar says.
    bool shows_text(const ToolLook& look) const {
        return text_width > 0 && (look.text != ToolText::none || !picture || kind == ToolKind::label);
    }
};

struct ToolSize {
    int width = 0;
    int height = 0;

    friend bool operator==(const ToolSize&, const ToolSize&) = default;
};

ToolSize tool_size(const ToolContent& content, const ToolLook& look);

/// Where an item's parts lie; empty ones are not there.
struct ToolParts {
    PixelRect picture;
    PixelRect text;
    PixelRect arrow;
};

ToolParts tool_parts(const ToolContent& content, const ToolLook& look, const PixelRect& place);

struct ToolSpace {
    ToolKind kind = ToolKind::push;
    ToolSize size;
};

struct ToolFlow {
    bool upright = false;
    bool wraps = false; ///< otherwise what does not fit gives its place to a chevron
    int margin = 2;     ///< pixels, as is the next
    int chevron = 14;
};

struct ToolPlaces {
    std::vector<PixelRect> items; ///< empty: not shown
    PixelRect chevron;            ///< empty: everything is shown
    int thickness = 0;            ///< that the bar needs across

    /// The item at a point, or -1.
    int at(int x, int y) const;
    /// The item before which one dropped at this point goes; their number: behind all.
    int insertion(int x, int y, bool upright) const;
};

ToolPlaces place_tools(std::span<const ToolSpace> items, const ToolFlow& flow, int width, int height);

} // namespace wnt
