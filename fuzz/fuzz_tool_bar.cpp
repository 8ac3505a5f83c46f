// A toolbar's script, and what it makes of the space: items stay inside, one beside the other, and their order can be
// written down and read back.
#include "controls/tool_bar_model.h"
#include "require.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace {

wnt::ToolBarModel described(std::string_view script) {
    wnt::ToolBarModel bar;
    while (!script.empty()) {
        const std::size_t end = std::min(script.find('\n'), script.size());
        bar.load_line(script.substr(0, end));
        script.remove_prefix(std::min(end + 1, script.size()));
    }
    return bar;
}

void check_items(const wnt::ToolBarModel& bar) {
    require(bar.count() <= wnt::most_tools);
    for (const wnt::ToolItem& item : bar.items()) {
        require(item.id >= 0 && item.id <= wnt::highest_command && (item.id > 0 || !wnt::is_button(item.kind)));
        require(item.picture >= -1 && item.text.size() <= static_cast<std::size_t>(wnt::longest_tool_text));
    }
}

void check_places(const wnt::ToolBarModel& bar, int width, int height) {
    wnt::ToolLook look;
    look.text = bar.text;
    look.upright = bar.upright;
    std::vector<wnt::ToolSpace> spaces;
    for (const wnt::ToolItem& item : bar.items()) {
        const int text = static_cast<int>(item.text.size()) * 7;
        spaces.push_back({item.kind, wnt::tool_size({item.kind, item.picture >= 0, text, 40, 20}, look)});
    }
    const wnt::ToolPlaces places = wnt::place_tools(spaces, {bar.upright, bar.wraps, 2, 14}, width, height);
    require(places.items.size() == spaces.size() && places.thickness >= 0);
    for (const wnt::PixelRect& r : places.items)
        require(r == wnt::PixelRect() ||
                (bar.upright ? r.bottom <= std::max(height, 2) : r.right <= std::max(width, 2)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2)
        return 0;
    const int width = data[0] * 4, height = data[1] * 4;
    const std::string_view script(reinterpret_cast<const char*>(data) + 2, size - 2);
    wnt::ToolBarModel bar = described(script);
    check_items(bar);
    check_places(bar, width, height);
    if (bar.count() == 0 || bar.count() > 50)
        return 0;
    bar.move(width % bar.count(), height % (bar.count() + 1));
    bar.press(height % bar.count());
    wnt::ToolBarModel again = described(script);
    const std::string order = bar.order();
    require(again.set_order(order) && again.order() == order);
    again.set_order(script); // any text: no item gets lost
    require(again.count() == bar.count());
    return 0;
}
