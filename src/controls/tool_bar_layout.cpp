#include "controls/tool_bar_layout.h"

#include <algorithm>
#include <climits>

namespace wnt {

namespace {

bool takes_picture_room(const ToolContent& content, const ToolLook& look) {
    return content.picture || look.text == ToolText::below; // so that all texts stand on one line
}

bool is_filling(ToolKind kind) {
    return kind == ToolKind::separator || kind == ToolKind::stretch;
}

PixelRect centred(const PixelRect& room, int width, int height) {
    const int left = room.left + (room.width() - width) / 2;
    const int top = room.top + (room.height() - height) / 2;
    return {left, top, left + width, top + height};
}

int arrow_width(const ToolContent& content, const ToolLook& look) {
    return has_menu(content.kind) ? look.arrow : 0;
}

} // namespace

ToolSize tool_size(const ToolContent& content, const ToolLook& look) {
    switch (content.kind) {
    case ToolKind::separator:
        return {look.separator, look.separator};
    case ToolKind::stretch:
        return {};
    case ToolKind::window:
        return {std::max(content.window_width, 0), std::max(content.window_height, 0)};
    case ToolKind::label:
        return {content.text_width + 2 * look.padding, look.row + 2 * look.padding};
    default:
        break;
    }
    const int text = content.shows_text(look) ? content.text_width : 0;
    ToolSize size;
    if (look.text == ToolText::below) {
        size = {std::max(look.picture, text), look.picture + (text ? look.gap / 2 + look.row : 0)};
    } else {
        const int picture = content.picture ? look.picture : 0;
        size = {picture + (picture && text ? look.gap : 0) + text, std::max(look.picture, look.row)};
    }
    return {size.width + 2 * look.padding + arrow_width(content, look), size.height + 2 * look.padding};
}

ToolParts tool_parts(const ToolContent& content, const ToolLook& look, const PixelRect& place) {
    ToolParts parts;
    PixelRect inside = place;
    if (const int arrow = arrow_width(content, look)) {
        parts.arrow = {std::max(place.right - arrow, place.left), place.top, place.right, place.bottom};
        inside.right = parts.arrow.left;
    }
    const int text = content.shows_text(look) ? content.text_width : 0;
    const bool labelled = content.kind == ToolKind::label;
    if (labelled || (text && !takes_picture_room(content, look))) {
        parts.text = centred(inside, text, look.row);
        if (look.upright)
            parts.text = {place.left + look.padding, parts.text.top, place.left + look.padding + text,
                          parts.text.bottom};
        return parts;
    }
    if (look.text == ToolText::below) {
        const PixelRect all = centred(inside, look.picture, look.picture + (text ? look.gap / 2 + look.row : 0));
        if (content.picture)
            parts.picture = {all.left, all.top, all.right, all.top + look.picture};
        if (text)
            parts.text = centred({inside.left, all.bottom - look.row, inside.right, all.bottom}, text, look.row);
        return parts;
    }
    const int width = look.picture + (text ? look.gap + text : 0);
    PixelRect all = centred(inside, width, look.picture);
    if (look.upright && text) {
        all.left = place.left + look.padding;
        all.right = all.left + width;
    }
    parts.picture = {all.left, all.top, all.left + look.picture, all.bottom};
    if (text)
        parts.text = centred({all.right - text, inside.top, all.right, inside.bottom}, text, look.row);
    return parts;
}

int ToolPlaces::at(int x, int y) const {
    const auto found = std::find_if(items.begin(), items.end(), [=](const PixelRect& r) { return r.contains(x, y); });
    return found == items.end() ? -1 : static_cast<int>(found - items.begin());
}

int ToolPlaces::insertion(int x, int y, bool upright) const {
    int behind = 0;
    for (int i = 0; i < static_cast<int>(items.size()); ++i) {
        const PixelRect& r = items[static_cast<std::size_t>(i)];
        if (r == PixelRect())
            continue;
        const bool in_line = upright ? x < r.right : y < r.bottom;
        const bool before = upright ? y < (r.top + r.bottom) / 2 : x < (r.left + r.right) / 2;
        const bool line_above = upright ? x < r.left : y < r.top;
        if (line_above || (in_line && before))
            return behind;
        behind = i + 1;
    }
    return behind;
}

namespace {

/// Lays items one after the other into lines. Along is the way of the line, across the other one.
class Flow {
public:
    Flow(std::span<const ToolSpace> items, const ToolFlow& flow, int width, int height)
        : items_(items), flow_(flow), along_(std::max((flow.upright ? height : width) - 2 * flow.margin, 0)),
          across_(std::max(flow.upright ? width : height, 0)) {
        places_.items.resize(items.size());
    }

    bool hides_button() const {
        for (std::size_t i = 0; i < items_.size(); ++i)
            if (is_button(items_[i].kind) && places_.items[i] == PixelRect())
                return true;
        return false;
    }

    ToolPlaces placed() {
        int across = flow_.margin;
        if (flow_.wraps) {
            for (std::size_t i = 0; i < items_.size();)
                across = place_line(i, across);
        } else {
            across = place_one_line();
            if (!hides_button())
                places_.chevron = {}; // its menu would be empty
        }
        places_.thickness = across + flow_.margin;
        return std::move(places_);
    }

private:
    int length(std::size_t i) const {
        const int wanted = flow_.upright ? items_[i].size.height : items_[i].size.width;
        return std::clamp(wanted, 0, along_);
    }
    int depth(std::size_t i) const {
        if (is_filling(items_[i].kind))
            return 0;
        return std::max(flow_.upright ? items_[i].size.width : items_[i].size.height, 0);
    }

    int depth_of(std::size_t first, std::size_t end) const {
        int most = 0;
        for (std::size_t i = first; i < end; ++i)
            most = std::max(most, depth(i));
        return most;
    }
    PixelRect rect(int along, int across, int length, int depth) const {
        return flow_.upright ? PixelRect{across, along, across + depth, along + length}
                             : PixelRect{along, across, along + length, across + depth};
    }

    /// How many items from `first` on fit into the room.
    std::size_t fitting(std::size_t first, int room) const {
        std::size_t end = first;
        long long used = 0;
        while (end < items_.size() && (used += length(end)) <= room)
            ++end;
        return end;
    }

    void place(std::size_t first, std::size_t end, int room, int across, int thick) {
        int used = 0, stretches = 0;
        for (std::size_t i = first; i < end; ++i) {
            used += length(i);
            stretches += items_[i].kind == ToolKind::stretch;
        }
        int spare = std::max(room - used, 0);
        int at = flow_.margin;
        for (std::size_t i = first; i < end; ++i) {
            int own = length(i);
            if (items_[i].kind == ToolKind::stretch) {
                own = spare / stretches; // the last ones take what a division leaves
                spare -= own;
                --stretches;
            }
            const bool whole = items_[i].kind != ToolKind::window;
            const int deep = whole ? thick : std::min(depth(i), thick);
            places_.items[i] = rect(at, across + (thick - deep) / 2, own, deep);
            at += own;
        }
    }

    int place_one_line() {
        const int thick = depth_of(0, items_.size());
        // In a bar with more room across than needed, the line stands in the middle.
        const int across = std::max((across_ - thick) / 2, flow_.margin);
        std::size_t end = fitting(0, along_);
        int room = along_;
        if (end < items_.size()) {
            const int chevron = std::min(flow_.chevron, along_);
            room -= chevron;
            end = fitting(0, room);
            while (end > 0 && is_filling(items_[end - 1].kind))
                --end;
            places_.chevron = rect(flow_.margin + room, across, chevron, thick);
        }
        place(0, end, room, across, thick);
        return flow_.margin + thick;
    }

    /// `i` goes on to the next line; the answer is where that stands.
    int place_line(std::size_t& i, int across) {
        const std::size_t first = i;
        std::size_t end = std::max(fitting(first, along_), first + 1);
        i = end;
        // A separator says nothing where the line ends anyway.
        if (end < items_.size()) {
            while (i < items_.size() && items_[i].kind == ToolKind::separator)
                ++i;
            while (end > first + 1 && items_[end - 1].kind == ToolKind::separator)
                --end;
        }
        const int thick = depth_of(first, end);
        place(first, end, along_, across, thick);
        return across + thick;
    }

    std::span<const ToolSpace> items_;
    const ToolFlow& flow_;
    int along_;
    int across_;
    ToolPlaces places_;
};

} // namespace

ToolPlaces place_tools(std::span<const ToolSpace> items, const ToolFlow& flow, int width, int height) {
    return Flow(items, flow, width, height).placed();
}

} // namespace wnt
