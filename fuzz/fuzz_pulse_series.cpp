// Streams of samples, times of any order and values of any bits, into histories of any capacity, beside a plain queue:
// what is kept, where times are found, what blocks say, and what is painted.
#include "pulse/pulse_columns.h"
#include "require.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <deque>

using namespace wnt;

namespace {

struct Input {
    const std::uint8_t* data;
    std::size_t size;

    template <class Value> Value take() {
        Value value{};
        const std::size_t count = std::min(size, sizeof value);
        std::memcpy(&value, data, count);
        data += count;
        size -= count;
        return value;
    }
};

// Every column's runs stand in their order and hold their values.
struct Ordered final : ColumnPainter {
    std::int64_t last = std::numeric_limits<std::int64_t>::min();
    void run(const ColumnRun& run) override {
        require(run.column >= last && run.samples > 0);
        require(run.low <= std::min(run.first, run.last) && run.high >= std::max(run.first, run.last));
        last = run.column;
    }
    bool covered(std::int64_t, double low, double high) override { return low == high; }
};

// Of some samples; the oldest one's block may still know the pause before it.
void check_summary(const PulseSeries& series, const std::deque<PulsePoint>& plain, std::size_t from, std::size_t to) {
    PulseBlock expected;
    for (std::size_t i = from; i < to; ++i) {
        if (!std::isfinite(plain[i].value)) {
            expected.pause = PulseBlock::hole;
            continue;
        }
        const std::int64_t pause = i > 0 ? plain[i].time - plain[i - 1].time : 0;
        expected.include({plain[i].value, plain[i].value, pause});
    }
    const PulseBlock found = series.summary(series.first() + from, series.first() + to);
    require(found.low == expected.low && found.high == expected.high);
    require(from <= 16 || found.pause == expected.pause);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input{data, size};
    const std::size_t capacity = input.take<std::uint16_t>();
    PulseSeries series(capacity);
    std::deque<PulsePoint> plain;
    std::int64_t newest = -PulseSeries::latest;
    while (input.size > 0) {
        const int kind = input.take<std::uint8_t>();
        const std::int64_t time = kind % 3 == 0 ? input.take<std::int64_t>() : newest + input.take<std::uint16_t>();
        const double value = input.take<double>();
        const int copies = kind % 7 == 0 ? 40 : 1;
        for (int i = 0; i < copies; ++i) {
            const bool wanted = newest <= time && time <= PulseSeries::latest;
            require(series.append(time, value) == wanted);
            if (!wanted)
                continue;
            newest = time;
            plain.push_back({time, value});
            if (plain.size() > series.capacity())
                plain.pop_front();
        }
    }
    require(series.size() == plain.size());
    for (std::size_t i = 0; i < plain.size(); ++i) {
        const PulsePoint& kept = series[series.first() + i];
        require(kept.time == plain[i].time);
        require(std::isfinite(plain[i].value) ? kept.value == plain[i].value : std::isnan(kept.value));
        const auto found = series.seek(kept.time, series.first() + (i * 7919) % (plain.size() + 1));
        require(series[found].time == kept.time && (found == series.first() || series[found - 1].time < kept.time));
        const auto next = series.seek(kept.time + 1, series.first() + (i * 104729) % (plain.size() + 6));
        require(next > found && series[next - 1].time <= kept.time);
        require(next == series.end() || series[next].time > kept.time);
    }
    check_summary(series, plain, 0, plain.size());
    check_summary(series, plain, plain.size() / 3, plain.size() - plain.size() / 4);
    if (plain.empty())
        return 0;
    Ordered painter;
    const ColumnScale scale{std::clamp<std::int64_t>(newest - plain.front().time, 100, 1'000'000), 300};
    paint_columns(series, scale, scale.column(newest) - 299, scale.column(newest) + 1, 500, painter);
    return 0;
}
