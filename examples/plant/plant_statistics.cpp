#include "plant_statistics.h"

#include <algorithm>

void PlantStatistics::Add(const PlantReadings& readings, std::uint32_t unknown) {
    for (std::size_t i = 0; i < plant_channels; ++i) {
        if (unknown >> i & 1)
            continue;
        const double value = readings.values[i];
        least_[i] = counts_[i] ? std::min(least_[i], value) : value;
        greatest_[i] = counts_[i] ? std::max(greatest_[i], value) : value;
        sums_[i] += value;
        ++counts_[i];
    }
}

PlantStatistics::Values PlantStatistics::Shares(std::size_t channel) const {
    const ChannelRange& range = plant_ranges[channel];
    const auto share = [&](double value) { return (value - range.least) / (range.greatest - range.least); };
    return {share(least_[channel]), share(sums_[channel] / static_cast<double>(counts_[channel])),
            share(greatest_[channel])};
}
