#include "plant_station.h"

PlantStation::PlantStation(ReadingsBlock* readings, SetPointsBlock* set_points)
    : set_points_(set_points), link_(readings) {
    // A simulator that runs already goes on with the set points that it has.
    if (auto found = set_points_ ? set_points_->Read() : std::nullopt; found && bound(found->record))
        wanted_ = found->record;
}

bool PlantStation::Poll(std::uint64_t now, const PlantLimits& limits) {
    const LinkState before = link_.State();
    const bool heard = link_.Poll(now);
    if (heard) {
        alarms_.Look(link_.Readings(), limits, link_.Refused());
        statistics_.Add(link_.Readings(), link_.Refused());
    }
    return heard || link_.State() != before;
}

void PlantStation::Want(const PlantSetPoints& wanted) {
    PlantSetPoints bounded = wanted;
    if (!bound(bounded))
        return;
    wanted_ = bounded;
    if (set_points_)
        set_points_->Write(wanted_);
}
