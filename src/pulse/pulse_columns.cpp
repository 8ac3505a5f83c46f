#include "pulse/pulse_columns.h"

#include <algorithm>
#include <cmath>

namespace wnt {

namespace {

class Runs {
public:
    Runs(const PulseSeries& series, std::int64_t longest_pause, ColumnPainter& painter)
        : series_(series), longest_pause_(longest_pause), painter_(painter) {}
    ~Runs() { finish(); }

    // The samples [from, to), which share a column. Samples come in their order, none left out but holes.
    void add(std::int64_t column, std::uint64_t from, std::uint64_t to) {
        if (open_ && run_.column != column)
            finish();
        const PulseBlock all = series_.summary(from, to);
        if (parted(all))
            add_blocks(column, from, to);
        else
            extend(column, from, to - from, all);
    }

private:
    bool parted(const PulseBlock& block) const { return block.pause > longest_pause_; }

    void add_blocks(std::int64_t column, std::uint64_t from, std::uint64_t to) {
        while (from < to) {
            const std::size_t size = series_.block_size(from, to);
            const PulseBlock block = series_.block(from, size);
            if (size == 1 || !parted(block))
                extend(column, from, size, block);
            else if (painter_.covered(column, block.low, block.high))
                pass_over(column, from, from + size - 1);
            else
                for (std::uint64_t part = from; part != from + size; part += size / 4)
                    add_blocks(column, part, part + size / 4);
            from += size;
        }
    }

    // A sample, or a block without a gap.
    void extend(std::int64_t column, std::uint64_t from, std::uint64_t size, const PulseBlock& block) {
        if (block.empty()) {
            finish();
            joins_ = false;
            return;
        }
        if (parted(block)) {
            finish();
            joins_ = false;
        }
        if (!open_)
            run_ = {column, 0, series_[from].value, block.low, block.high, 0, joins_};
        open_ = joins_ = true;
        run_.samples += size;
        run_.low = std::min(run_.low, block.low);
        run_.high = std::max(run_.high, block.high);
        run_.last = series_[from + size - 1].value;
    }

    // Only a block's ends matter to what comes before and behind it.
    void pass_over(std::int64_t column, std::uint64_t first, std::uint64_t last) {
        extend(column, first, 1, series_.block(first, 1));
        finish();
        joins_ = false;
        PulseBlock end = series_.block(last, 1);
        if (!end.empty()) {
            end.pause = 0;
            extend(column, last, 1, end);
        }
    }

    void finish() {
        if (open_)
            painter_.run(run_);
        open_ = false;
    }

    const PulseSeries& series_;
    const std::int64_t longest_pause_;
    ColumnPainter& painter_;
    ColumnRun run_{};
    bool open_ = false;
    bool joins_ = false;
};

} // namespace

void paint_columns(const PulseSeries& series, const ColumnScale& scale, std::int64_t from, std::int64_t to,
                   std::int64_t longest_pause, ColumnPainter& painter) {
    std::uint64_t number = series.seek(scale.time(from), series.end());
    Runs runs(series, longest_pause, painter);
    if (number > series.first())
        runs.add(scale.column(series[number - 1].time), number - 1, number);
    std::uint64_t in_column = 1;
    while (number != series.end()) {
        const std::int64_t column = scale.column(series[number].time);
        if (column >= to) {
            runs.add(column, number, number + 1);
            return;
        }
        const std::uint64_t next = series.seek(scale.time(column + 1), number + in_column);
        series.expect(next + (next - number));
        runs.add(column, number, next);
        in_column = next - number;
        number = next;
    }
}

} // namespace wnt
