// Feeds a gauge's model with script lines and checks after each what painters rely on. "@" stands for the end of a
// script, ">" for a press of the view button.
#include "require.h"
#include "script/keywords.h"
#include "widgets/gauge/gauge_scale.h"

#include <algorithm>
#include <sstream>

using namespace wnt;

namespace {

void check_fields(const GaugeModel& model) {
    require(model.mark_count >= 0 && model.mark_count <= GaugeModel::mark_capacity);
    require(model.scales >= 1 && model.scales <= GaugeModel::most_scales);
    require(model.border_height >= 0 && model.border_height <= highest_border);
    require(model.type >= -1 && model.type < gauge_type_count);
    require(model.text_colour <= unknown_colour);
    require(model.title.back() == 0 && model.unit_title.back() == 0);
}

void check_scale(const GaugeModel& model) {
    const double fraction = scale_fraction(model.minimum, model.maximum, model.current);
    require(fraction >= 0 && fraction <= 1);
    require(division_value(model.minimum, model.maximum, model.scales, model.scales) == model.maximum);
    const TickSteps steps = tick_steps(model.minimum, model.maximum, model.scales, model.maximum, 4, model.current);
    require(steps.minor >= 1 && steps.major % steps.minor == 0 && steps.major <= model.scales);
}

void check_zones(const GaugeModel& model) {
    std::int64_t next = std::min(model.minimum, model.maximum);
    for (const ColourZone& zone : colour_zones(model)) {
        require(zone.from == next && zone.to >= zone.from && model.getmarkercolour(zone.to) == zone.colour);
        for (std::int32_t mark : model.mark_values)
            require(mark < zone.from || mark > zone.to || model.getmarkercolour(mark) == zone.colour);
        next = std::int64_t{zone.to} + 1;
    }
    require(next == std::int64_t{std::max(model.minimum, model.maximum)} + 1);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::istringstream text(std::string(data, data + size));
    GaugeModel model;
    for (std::string line; std::getline(text, line);) {
        if (line == "@")
            model.end_script();
        else if (line == ">")
            model.switch_view();
        else
            model.load_line(line);
        check_fields(model);
        check_scale(model);
        check_zones(model);
    }
    return 0;
}
