#include "alarm_board.h"

#include <algorithm>

// A value has to come back by a hundredth of its range: noise at a limit raises one alarm, not a hundred.
void AlarmBoard::Judge(std::size_t channel, double value, const ChannelLimits& limits) {
    Alarm& alarm = alarms_[channel];
    const ChannelRange& range = plant_ranges[channel];
    const bool lasts = alarm.state == State::raised || alarm.state == State::acknowledged;
    const double back = lasts ? (range.greatest - range.least) / 100.0 : 0;
    const bool high = value > limits.high - (alarm.high ? back : 0);
    const bool low = value < limits.low + (alarm.high ? 0 : back);
    if (high || low) {
        if (!lasts || alarm.high != high)
            alarm = {State::raised, high, 0, ++turn_};
        alarm.limit = high ? limits.high : limits.low; // which may be another one since
    } else if (lasts) {
        alarm.state = alarm.state == State::raised ? State::passed : State::quiet;
    }
}

void AlarmBoard::Look(const PlantReadings& readings, const PlantLimits& limits, std::uint32_t unknown) {
    for (std::size_t i = 0; i < plant_channels; ++i)
        if (!(unknown >> i & 1))
            Judge(i, readings.values[i], limits[i]);
}

void AlarmBoard::Acknowledge() {
    for (Alarm& alarm : alarms_) {
        if (alarm.state == State::raised)
            alarm.state = State::acknowledged;
        else if (alarm.state == State::passed)
            alarm.state = State::quiet;
    }
}

bool AlarmBoard::IsCalling() const {
    return std::any_of(alarms_.begin(), alarms_.end(),
                       [](const Alarm& a) { return a.state == State::raised || a.state == State::passed; });
}

std::string AlarmBoard::Text() const {
    const auto urgency = [](const Alarm& a) {
        const bool unseen = a.state == State::raised || a.state == State::passed;
        return a.state == State::quiet ? 0ull : (unseen ? 1ull << 40 : 0) + a.turn;
    };
    const auto latest = std::max_element(alarms_.begin(), alarms_.end(),
                                         [&](const Alarm& a, const Alarm& b) { return urgency(a) < urgency(b); });
    if (latest->state == State::quiet)
        return {};
    const ChannelRange& range = plant_ranges[static_cast<std::size_t>(latest - alarms_.begin())];
    std::string text = std::string(range.name) + (latest->high ? " above " : " below ") +
                       std::to_string(latest->limit) + ' ' + range.unit;
    const auto others =
        std::count_if(alarms_.begin(), alarms_.end(), [](const Alarm& a) { return a.state != State::quiet; }) - 1;
    if (latest->state == State::passed)
        text += ", back again";
    if (others > 0)
        text += "  (and " + std::to_string(others) + " more)";
    return text;
}
