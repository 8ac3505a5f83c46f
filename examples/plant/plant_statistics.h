#pragma once

#include "plant_values.h"

/// The least, mean and greatest value of every channel since the start.
class PlantStatistics {
public:
    struct Values {
        double least, mean, greatest;
    };

    /// unknown: a bit for every channel whose value does not count.
    void Add(const PlantReadings& readings, std::uint32_t unknown);
    void Clear() { *this = {}; }
    long long Count(std::size_t channel) const { return counts_[channel]; }
    /// Of a channel that has values, as shares of its range, 0 to 1.
    Values Shares(std::size_t channel) const;

private:
    std::array<long long, plant_channels> counts_{};
    std::array<double, plant_channels> sums_{}, least_{}, greatest_{};
};
