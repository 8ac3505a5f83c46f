#include "simulated_channel.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double period = 12; // seconds

} // namespace

// From -1 to 1.
double SimulatedChannel::Shape(int shape) {
    constexpr double turn = 6.283185307179586;
    random_ = random_ * 1664525u + 1013904223u;
    const double noise = (random_ >> 8) / 8388608.0 - 1;
    switch (shape) {
    case 0:
        return std::sin(turn * seconds_ / period) + 0.05 * noise;
    case 1:
        return std::floor(4 * std::fmod(seconds_, period) / period) / 1.5 - 1;
    default:
        return noise;
    }
}

int SimulatedChannel::Next(const ChannelSettings& settings) {
    seconds_ += 1.0 / settings.rate;
    const double wanted = 0.5 + 0.45 * settings.factor * Shape(settings.shape);
    damped_ += (wanted - damped_) * (1 - 0.95 * settings.damping / 100);
    const double place = std::clamp(damped_, 0.0, 1.0);
    return settings.lower + static_cast<int>(std::lround(place * (settings.upper - settings.lower)));
}
