#include "plant_values.h"

#include <algorithm>
#include <cmath>

bool bound(PlantSetPoints& points) {
    if (!std::isfinite(points.furnace_target) || !std::isfinite(points.steam_valve))
        return false;
    points.furnace_target = std::clamp<double>(points.furnace_target, least_furnace_target, greatest_furnace_target);
    points.steam_valve = std::clamp(points.steam_valve, 0.0, 100.0);
    points.switches &= every_switch;
    points.faults &= every_fault;
    return true;
}

std::uint32_t bound(PlantReadings& readings, const PlantReadings& before) {
    std::uint32_t refused = 0;
    for (std::size_t i = 0; i < plant_channels; ++i) {
        double& value = readings.values[i];
        const ChannelRange& range = plant_ranges[i];
        const int width = range.greatest - range.least;
        if (!(value >= range.least - width && value <= range.greatest + width)) {
            value = before.values[i];
            refused |= 1u << i;
        }
        value = std::clamp<double>(value, range.least, range.greatest);
    }
    PlantSetPoints points{readings.furnace_target, readings.steam_valve, readings.switches, readings.faults, 0};
    if (!bound(points))
        points = {before.furnace_target, before.steam_valve, before.switches, before.faults, 0};
    readings.furnace_target = points.furnace_target;
    readings.steam_valve = points.steam_valve;
    readings.switches = points.switches;
    readings.faults = points.faults;
    return refused;
}
