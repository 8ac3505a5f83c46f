// Feeds a gauge's model with lines and calls, and checks after each what painters rely on. A line "@C NUMBER NUMBER"
// is the call with the letter C, any other line is a script line.
#include "script/keywords.h"
#include "script/values.h"
#include "widgets/gauge_model.h"
#include "widgets/gauge_scale.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

using namespace wnt;

namespace {

void require(bool holds) {
    if (!holds)
        std::abort();
}

void check_fields(const GaugeModel& model) {
    require(model.mark_count >= 0 && model.mark_count <= GaugeModel::mark_capacity);
    require(model.scales >= 1 && model.scales <= GaugeModel::most_scales);
    require(model.border_height >= 0 && model.border_height <= highest_border);
    require(model.border_sides >= 0 && model.border_sides <= 15);
    require(model.border_type >= -1 && model.border_type <= 3);
    require(model.text_colour <= unknown_colour);
    require(model.title.back() == 0 && model.unit_title.back() == 0);
    require(model.id_text().size() <= id_capacity);
    require((model.repaint_mask & ~repaint_all) == 0);
}

void check_scale(const GaugeModel& model) {
    const double share = scale_fraction(model.minimum, model.maximum, model.current);
    require(share >= 0 && share <= 1);
    const std::int32_t span = std::max(1, model.previous);
    const std::int32_t position = scale_position(model.minimum, model.maximum, model.current, span);
    require(position >= 0 && position <= span);
    require(division_value(model.minimum, model.maximum, model.scales, model.scales) == model.maximum);
    const TickSteps steps = tick_steps(model.minimum, model.maximum, model.scales, model.previous, 4, model.current);
    require(steps.minor >= 1 && steps.major >= steps.minor && steps.major % steps.minor == 0);
    require(steps.major <= model.scales);
}

void check_zones(const GaugeModel& model) {
    std::int64_t next = std::min(model.minimum, model.maximum);
    for (const ColourZone& zone : colour_zones(model)) {
        require(zone.from == next && zone.to >= zone.from);
        require(model.getmarkercolour(zone.from) == zone.colour && model.getmarkercolour(zone.to) == zone.colour);
        for (std::int64_t mark : model.mark_values) {
            for (std::int64_t value = mark - 1; value <= mark + 1; ++value) {
                if (value >= zone.from && value <= zone.to)
                    require(model.getmarkercolour(static_cast<std::int32_t>(value)) == zone.colour);
            }
        }
        next = std::int64_t{zone.to} + 1;
    }
    require(next == std::int64_t{std::max(model.minimum, model.maximum)} + 1);
}

void call(GaugeModel& model, char letter, std::string_view arguments) {
    const std::int32_t first = integer_value(arguments);
    const std::size_t second_at = skip_blanks(arguments).find(' ');
    const std::int32_t second =
        second_at == std::string_view::npos ? 0 : integer_value(skip_blanks(arguments).substr(second_at));
    switch (letter) {
    case 'C':
        model.set_current_value(first);
        break;
    case 'E':
        model.end_script();
        break;
    case 'M':
        model.add_mark(first, second & 255);
        break;
    case 'R':
        model.set_range(first, second);
        break;
    case 'S':
        model.set_current_value(model.scroll_target(first, model.current, second));
        break;
    case 'T':
        model.set_titles(std::string(arguments).c_str(), nullptr);
        break;
    case 'V':
        model.set_type(first);
        model.switch_view();
        require(model.type < gauge_type_count);
        break;
    case 'X':
        model.clear();
        model.clear_marks();
        break;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view text(reinterpret_cast<const char*>(data), size);
    GaugeModel model;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        if (line.size() > 1 && line[0] == '@')
            call(model, line[1], line.substr(2));
        else
            model.load_line(line);
        check_fields(model);
        check_scale(model);
        check_zones(model);
        text.remove_prefix(std::min(line.size() + 1, text.size()));
    }
    return 0;
}
