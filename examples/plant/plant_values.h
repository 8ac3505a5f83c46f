// What the plant measures and what it can be told: known to the simulator and to the front end.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

enum PlantChannel : std::size_t {
    boiler_pressure,
    boiler_temperature,
    boiler_level,
    tank_level,
    feed_flow,
    pump_speed,
    furnace_temperature,
    plant_channels
};

struct ChannelRange {
    const char* name;
    const char* unit;
    int least, greatest;
};

inline constexpr std::array<ChannelRange, plant_channels> plant_ranges = {{
    {"Boiler pressure", "kPa", 0, 1600},
    {"Boiler temperature", "\260C", 0, 250},
    {"Boiler level", "%", 0, 100},
    {"Tank level", "cm", 0, 400},
    {"Feed flow", "l/min", 0, 120},
    {"Pump speed", "rpm", 0, 3000},
    {"Furnace temperature", "\260C", 0, 1400},
}};

enum PlantSwitch : std::uint32_t { pump_on = 1, burner_on = 2, every_switch = 3 };

/// Faults that the simulator plays on command.
enum PlantFault : std::uint32_t {
    pump_trips = 1,
    tank_leaks = 2,
    burner_fails = 4,
    transmitter_fails = 8, ///< the pressure is no number any more
    simulator_hangs = 16,  ///< it lives, and writes nothing
    every_fault = 31
};

inline constexpr int least_furnace_target = 300, greatest_furnace_target = 1200;

/// What the operator wants. As it lies in shared memory: no padding, no pointers.
struct PlantSetPoints {
    double furnace_target = 850; // degrees
    double steam_valve = 45;     // per cent open
    std::uint32_t switches = every_switch;
    std::uint32_t faults = 0;
    std::uint64_t end_requests = 0; // a simulator ends when this number changes
};

/// What was measured, and the set points that were in force then.
struct PlantReadings {
    std::array<double, plant_channels> values{};
    double furnace_target = 0;
    double steam_valve = 0;
    std::uint32_t switches = 0;
    std::uint32_t faults = 0;
};

/// Within their ranges; false, and nothing changed, where one of them is no number.
bool bound(PlantSetPoints& points);
/// Within their ranges; what is no number, or farther outside than a range is wide, takes the value before. A bit for
/// every channel where that was so.
std::uint32_t bound(PlantReadings& readings, const PlantReadings& before);
