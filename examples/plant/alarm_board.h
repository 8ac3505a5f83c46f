#pragma once

#include "plant_values.h"

#include <string>

struct ChannelLimits {
    int low, high;
};
using PlantLimits = std::array<ChannelLimits, plant_channels>;

/// What is usual; a channel without an alarm on one side has its range's end there.
inline constexpr PlantLimits usual_limits = {
    {{300, 1100}, {0, 210}, {25, 85}, {60, 380}, {0, 120}, {0, 3000}, {0, 1250}}};

/// The alarms of all channels: raised beyond a limit, shown until somebody has seen them and the value is back.
class AlarmBoard {
public:
    enum class State {
        quiet,
        raised,       ///< beyond a limit, and nobody has seen it
        acknowledged, ///< beyond a limit, and seen
        passed        ///< back again, and nobody has seen it
    };

    /// unknown: a bit for every channel whose value is not to be judged.
    void Look(const PlantReadings& readings, const PlantLimits& limits, std::uint32_t unknown);
    /// Everything that is shown has been seen.
    void Acknowledge();

    State Of(std::size_t channel) const { return alarms_[channel].state; }
    bool IsCalling() const;
    /// One line about the latest alarm that nobody has seen, or else the latest one that lasts; empty without.
    std::string Text() const;

private:
    struct Alarm {
        State state = State::quiet;
        bool high = false;
        int limit = 0;
        unsigned turn = 0;
    };
    void Judge(std::size_t channel, double value, const ChannelLimits& limits);

    std::array<Alarm, plant_channels> alarms_{};
    unsigned turn_ = 0;
};
