#include "plant_link.h"

bool PlantLink::Poll(std::uint64_t now) {
    const auto found = block_ ? block_->Read() : std::nullopt;
    const bool moved = found && count_ && found->count != *count_;
    if (found)
        count_ = found->count;
    if (moved) {
        const PlantReadings before = readings_;
        readings_ = found->record;
        refused_ = bound(readings_, before);
        state_ = refused_ ? LinkState::nonsense : LinkState::live;
        heard_ = now;
    } else if (state_ != LinkState::absent && now - heard_ > longest_silence) {
        state_ = LinkState::silent;
    }
    return moved;
}
