#pragma once

#include "plant_values.h"

/// A furnace heats a boiler, a pump feeds it from a tank, a valve lets the steam out. Everything has its inertia, every
/// measurement its noise; the same steps give the same values.
class PlantModel {
public:
    /// A plant that has been running for a while.
    PlantModel();

    /// One step of at most a second; longer ones are taken in several.
    void Step(double seconds, const PlantSetPoints& wanted);
    /// As the transmitters tell it.
    PlantReadings Measure();

private:
    void StepFurnace(double seconds);
    void StepBoiler(double seconds);
    void StepFeed(double seconds);
    double Noise();

    PlantSetPoints wanted_;
    std::array<double, plant_channels> true_{}; // without the noise
    double steam_ = 0;                          // litres of water a minute
    std::uint32_t random_ = 1;
};
