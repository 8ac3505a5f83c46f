#pragma once

#include "plant_blocks.h"

enum class LinkState {
    absent,  ///< nothing was ever heard of a simulator
    live,    ///< records come
    silent,  ///< none has come for a while
    nonsense ///< records come, with values that no plant can have
};

/// A reader's end of the readings: never waits, and tells whether somebody is still writing.
class PlantLink {
public:
    /// The block may hold what a writer left behind that has ended: only a count that moves is a sign of life.
    explicit PlantLink(ReadingsBlock* block) : block_(block) {}

    /// now: milliseconds of a clock that never runs back. True where a new record came.
    bool Poll(std::uint64_t now);

    LinkState State() const { return state_; }
    /// Of the last record, within their ranges.
    const PlantReadings& Readings() const { return readings_; }
    /// A bit for every channel whose last value was none that a plant can have.
    std::uint32_t Refused() const { return refused_; }

private:
    static constexpr std::uint64_t longest_silence = 1500;

    ReadingsBlock* block_;
    LinkState state_ = LinkState::absent;
    PlantReadings readings_{};
    std::uint32_t refused_ = 0;
    std::optional<std::uint32_t> count_;
    std::uint64_t heard_ = 0;
};
