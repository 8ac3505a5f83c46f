#pragma once

#include "channel_settings.h"

#include <cstdint>

/// Readings of a channel that is not there: the same settings give the same readings.
class SimulatedChannel {
public:
    /// The reading after one more period of the rate; within the channel's range.
    int Next(const ChannelSettings& settings);

private:
    double Shape(int shape);

    double seconds_ = 0;
    double damped_ = 0.5; // of the range
    std::uint32_t random_ = 1;
};
