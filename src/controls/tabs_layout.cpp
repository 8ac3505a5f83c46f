#include "controls/tabs_layout.h"

#include <algorithm>

namespace wnt {

namespace {

constexpr int longest_tab = 1 << 16; // a sum of all of them stays in range

bool upright(TabsSide side) {
    return side == TabsSide::left || side == TabsSide::right;
}

PixelRect swapped(const PixelRect& r) {
    return {r.top, r.left, r.bottom, r.right};
}

struct Run {
    int first = 0;
    int shown = 0;
};

// As many whole tabs as the room holds; one that is alone may be cut to it.
Run fitting(std::span<const int> lengths, int room, int first, int wanted) {
    const int count = static_cast<int>(lengths.size());
    const auto length = [&](int tab) { return std::min(lengths[static_cast<std::size_t>(tab)], room); };
    first = std::clamp(first, 0, std::max(count - 1, 0));
    if (wanted >= 0 && wanted < first)
        first = wanted;
    int used = 0;
    for (int tab = wanted; tab >= first && tab < count; --tab) { // room for the wanted one and those before it
        used += length(tab);
        if (used > room) {
            first = tab + 1;
            break;
        }
    }
    Run run{first, 0};
    used = 0;
    while (run.first + run.shown < count && used + length(run.first + run.shown) <= room)
        used += length(run.first + run.shown++);
    while (run.first > 0 && run.first + run.shown == count && used + length(run.first - 1) <= room) {
        used += length(--run.first); // nothing stays empty while there are tabs for it
        ++run.shown;
    }
    return run;
}

} // namespace

TabsSizes TabsSizes::at(int scale, int text_height) {
    scale = std::clamp(scale, 1, 1000);
    const auto scaled = [scale](int pixels) { return std::max((pixels * scale + 50) / 100, 1); };
    TabsSizes sizes = {scaled(2), 0, scaled(18), scaled(9), scaled(6), scaled(16), scaled(14), scaled(36)};
    sizes.depth = std::max(std::clamp(text_height, 0, 2000), sizes.icon) + scaled(10) + sizes.lift;
    return sizes;
}

int TabsSizes::length(int text_width, bool has_icon, bool closable) const {
    const bool text = text_width > 0;
    int used = 2 * pad + std::clamp(text_width, 0, longest_tab) + (has_icon ? icon : 0) + (closable ? close : 0);
    used += gap * (std::max(text + has_icon + closable, 1) - 1);
    return std::clamp(used, least, longest_tab);
}

PixelRect TabsLayout::along(const PixelRect& box) const {
    switch (side) {
    case TabsSide::bottom:
        return {box.left, strip.bottom - box.bottom, box.right, strip.bottom - box.top};
    case TabsSide::left:
        return swapped(box);
    case TabsSide::right:
        return swapped({strip.right - box.right, box.top, strip.right - box.left, box.bottom});
    default:
        return box;
    }
}

PixelRect TabsLayout::in_client(const PixelRect& box) const {
    switch (side) {
    case TabsSide::bottom:
        return {box.left, strip.bottom - box.bottom, box.right, strip.bottom - box.top};
    case TabsSide::left:
        return swapped(box);
    case TabsSide::right:
        return {strip.right - box.bottom, box.left, strip.right - box.top, box.right};
    default:
        return box;
    }
}

TabsLayout lay_out_tabs(const TabsModel& model, const TabsSizes& sizes, std::span<const int> lengths, int width,
                        int height, int first, int wanted) {
    TabsLayout layout;
    layout.side = model.side;
    width = std::max(width, 0);
    height = std::max(height, 0);
    const int room = upright(model.side) ? height : width;
    const int depth = std::min(sizes.depth, upright(model.side) ? width : height);
    switch (model.side) {
    case TabsSide::top:
        layout.strip = {0, 0, width, depth};
        break;
    case TabsSide::bottom:
        layout.strip = {0, height - depth, width, height};
        break;
    case TabsSide::left:
        layout.strip = {0, 0, depth, height};
        break;
    default:
        layout.strip = {width - depth, 0, width, height};
    }
    layout.page = {model.side == TabsSide::left ? depth : 1, model.side == TabsSide::top ? depth : 1,
                   width - (model.side == TabsSide::right ? depth : 1),
                   height - (model.side == TabsSide::bottom ? depth : 1)};
    layout.page.right = std::max(layout.page.right, layout.page.left);
    layout.page.bottom = std::max(layout.page.bottom, layout.page.top);

    layout.tabs.resize(lengths.size());
    int needed = 2 * sizes.lift;
    for (const int length : lengths)
        needed += length;
    const bool overflows = needed > room && lengths.size() > 1;
    const int buttons = !overflows ? 0 : model.overflow == TabsOverflow::menu ? sizes.button : 2 * sizes.button;
    const int place = room - 2 * sizes.lift - buttons;
    if (place <= 0)
        return layout;
    const Run run = fitting(lengths, place, first, wanted);
    layout.first = run.first;
    layout.shown = run.shown;
    const int top = std::min(sizes.lift, depth);
    int at = sizes.lift;
    for (int tab = run.first; tab < run.first + run.shown; ++tab) {
        const auto i = static_cast<std::size_t>(tab);
        const int end = at + std::min(lengths[i], place);
        layout.tabs[i] = layout.in_client({at, top, end, std::max(depth - 1, top)});
        at = end;
    }
    if (!overflows)
        return layout;
    const int bottom = std::max(depth - sizes.lift, top);
    const PixelRect last = layout.in_client({room - sizes.button, top, room, bottom});
    if (model.overflow == TabsOverflow::menu) {
        layout.menu = last;
    } else {
        layout.back = layout.in_client({room - 2 * sizes.button, top, room - sizes.button, bottom});
        layout.on = last;
    }
    return layout;
}

PixelRect TabsLayout::lifted(int tab, const TabsSizes& sizes) const {
    if (!shows(tab))
        return {};
    const PixelRect box = along(tabs[static_cast<std::size_t>(tab)]);
    return in_client(
        {box.left - sizes.lift, std::max(box.top - sizes.lift, 0), box.right + sizes.lift, box.bottom + 1});
}

// Seen as a strip at the top; at the left the text runs upwards, and with it the order of the parts.
TabParts TabsLayout::parts(int tab, const TabsSizes& sizes, bool has_icon, bool closable) const {
    TabParts parts;
    if (!shows(tab))
        return parts;
    const PixelRect box = along(tabs[static_cast<std::size_t>(tab)]);
    int start = box.left + sizes.pad;
    int end = box.right - sizes.pad;
    const int middle = (box.top + box.bottom) / 2;
    const auto put = [&](PixelRect& part, int from, int to, int size) {
        if (side == TabsSide::left) {
            const int mirrored = box.left + box.right - to;
            to = box.left + box.right - from;
            from = mirrored;
        }
        from = std::clamp(from, box.left, box.right);
        to = std::clamp(to, from, box.right);
        part = in_client({from, middle - size / 2, to, middle - size / 2 + size});
    };
    if (has_icon) {
        put(parts.icon, start, start + sizes.icon, sizes.icon);
        start += sizes.icon + sizes.gap;
    }
    if (closable) {
        put(parts.close, end - sizes.close, end, sizes.close);
        end -= sizes.close + sizes.gap;
    }
    if (end > start)
        put(parts.text, start, end, box.height());
    return parts;
}

int TabsLayout::tab_at(int x, int y) const {
    for (int tab = first; tab < first + shown; ++tab)
        if (tabs[static_cast<std::size_t>(tab)].contains(x, y))
            return tab;
    return -1;
}

int TabsLayout::gap_at(int x, int y) const {
    const int at = along({x, y, x, y}).left;
    int gap = first;
    while (gap < first + shown) {
        const PixelRect box = along(tabs[static_cast<std::size_t>(gap)]);
        if (at < (box.left + box.right) / 2)
            break;
        ++gap;
    }
    return gap;
}

PixelRect TabsLayout::gap_mark(int gap, int thick) const {
    if (shown == 0 || gap < first || gap > first + shown)
        return {};
    const bool behind = gap == first + shown;
    const PixelRect box = along(tabs[static_cast<std::size_t>(behind ? gap - 1 : gap)]);
    const int at = (behind ? box.right : box.left) - thick / 2;
    return in_client({std::max(at, 0), 0, std::max(at, 0) + thick, box.bottom});
}

} // namespace wnt
