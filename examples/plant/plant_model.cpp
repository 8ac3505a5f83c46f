#include "plant_model.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double longest_step = 0.5; // seconds; the quickest inertia is that of the flow

// One step of a value that follows a target with an inertia of so many seconds.
void follow(double& value, double target, double inertia, double seconds) {
    value += (target - value) * (1 - std::exp(-seconds / inertia));
}

// The noise of each channel, in its unit.
constexpr std::array<double, plant_channels> noise = {4, 0.5, 0.3, 0.4, 0.8, 9, 3};

} // namespace

PlantModel::PlantModel() {
    true_[furnace_temperature] = 820;
    true_[boiler_temperature] = 176;
    true_[boiler_pressure] = 800;
    true_[boiler_level] = 58;
    true_[tank_level] = 290;
    Step(300, wanted_);
}

void PlantModel::Step(double seconds, const PlantSetPoints& wanted) {
    PlantSetPoints bounded = wanted;
    if (bound(bounded))
        wanted_ = bounded;
    for (; seconds > 0; seconds -= longest_step) {
        const double step = std::min(seconds, longest_step);
        StepFurnace(step);
        StepBoiler(step);
        StepFeed(step);
        for (std::size_t i = 0; i < plant_channels; ++i)
            true_[i] = std::clamp<double>(true_[i], plant_ranges[i].least, plant_ranges[i].greatest);
    }
}

void PlantModel::StepFurnace(double seconds) {
    constexpr double outside = 20;
    const bool burns = (wanted_.switches & burner_on) && !(wanted_.faults & burner_fails);
    follow(true_[furnace_temperature], burns ? wanted_.furnace_target : outside, burns ? 12 : 40, seconds);
}

void PlantModel::StepBoiler(double seconds) {
    const double heat = 40 + true_[furnace_temperature] * 0.17 - true_[feed_flow] * 0.15;
    follow(true_[boiler_temperature], heat, 18, seconds);
    const double closed = 1.25 - wanted_.steam_valve / 200;
    const double pressure = std::max(true_[boiler_temperature] - 100, 0.0) * 12 * closed;
    follow(true_[boiler_pressure], pressure, 8, seconds);
    follow(steam_, wanted_.steam_valve / 100 * true_[boiler_pressure] / 8, 2, seconds);
    true_[boiler_level] += (true_[feed_flow] - steam_) * seconds / 60;
}

// The pump holds the boiler's level, fresh water the tank's.
void PlantModel::StepFeed(double seconds) {
    constexpr double wished_level = 60, greatest_speed = 2900, flow_a_turn = 0.04;
    const bool runs = (wanted_.switches & pump_on) && !(wanted_.faults & pump_trips);
    const double wished_flow = steam_ + 4 * (wished_level - true_[boiler_level]);
    follow(true_[pump_speed], runs ? std::clamp(wished_flow / flow_a_turn, 0.0, greatest_speed) : 0, 3, seconds);
    const double flow = true_[tank_level] > 1 ? true_[pump_speed] * flow_a_turn : 0;
    follow(true_[feed_flow], flow, 1, seconds);
    const double fresh = std::clamp((300 - true_[tank_level]) * 4, 0.0, 90.0);
    const double lost = wanted_.faults & tank_leaks ? 500 : 0;
    true_[tank_level] += (fresh - true_[feed_flow] - lost) * seconds / 60;
}

// From -1 to 1, mostly near 0.
double PlantModel::Noise() {
    double sum = 0;
    for (int i = 0; i < 3; ++i) {
        random_ = random_ * 1664525u + 1013904223u;
        sum += random_ / 4294967295.0 * 2 - 1;
    }
    return sum / 3;
}

PlantReadings PlantModel::Measure() {
    PlantReadings readings{true_, wanted_.furnace_target, wanted_.steam_valve, wanted_.switches, wanted_.faults};
    for (std::size_t i = 0; i < plant_channels; ++i)
        readings.values[i] += noise[i] * Noise();
    bound(readings, readings);
    if (wanted_.faults & transmitter_fails)
        readings.values[boiler_pressure] = std::numeric_limits<double>::quiet_NaN();
    return readings;
}
