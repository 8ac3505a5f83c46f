#pragma once

#include "alarm_board.h"
#include "plant_link.h"
#include "plant_statistics.h"

/// What the front end knows of the plant, and what it tells it. The blocks are somebody else's and outlive it; null:
/// there is no plant.
class PlantStation {
public:
    PlantStation(ReadingsBlock* readings, SetPointsBlock* set_points);

    /// True where a new record came, or the link's state changed.
    bool Poll(std::uint64_t now, const PlantLimits& limits);

    const PlantLink& Link() const { return link_; }
    const PlantStatistics& Statistics() const { return statistics_; }
    AlarmBoard& Alarms() { return alarms_; }
    void ClearStatistics() { statistics_.Clear(); }

    /// What the operator wants; the readings tell what is in force.
    const PlantSetPoints& SetPoints() const { return wanted_; }
    void Want(const PlantSetPoints& wanted);

private:
    SetPointsBlock* set_points_;
    PlantLink link_;
    AlarmBoard alarms_;
    PlantStatistics statistics_;
    PlantSetPoints wanted_;
};
