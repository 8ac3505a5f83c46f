#include "pulse/pulse_series.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <new>

namespace wnt {

void PulseBlock::include(const PulseBlock& other) {
    low = std::min(low, other.low);
    high = std::max(high, other.high);
    pause = std::max(pause, other.pause);
}

PulseSeries::PulseSeries(std::size_t capacity)
    : capacity_(std::clamp<std::size_t>(capacity, 1, most_capacity)),
      most_chunks_((capacity_ + chunk_size - 1) / chunk_size + 1), chunks_(std::bit_ceil(most_chunks_)),
      tree_(2 * chunks_.size()) {}

bool PulseSeries::append(std::int64_t time, double value) {
    if (time < newest_ || time > latest)
        return false;
    if (end_ % chunk_size == 0 && !begin_chunk())
        return false;
    last_->points[end_ % chunk_size] = {time, std::isfinite(value) ? value : std::nan("")};
    newest_ = time;
    ++end_;
    if (end_ - first_ > capacity_)
        ++first_;
    if (end_ % smallest_block == 0)
        finish_blocks();
    return true;
}

void PulseSeries::clear() {
    first_ = end_ = 0;
    newest_ = -latest;
    for (auto& chunk : chunks_)
        chunk.reset();
}

bool PulseSeries::begin_chunk() {
    auto& chunk = chunks_[place_of(end_)];
    if (const std::uint64_t number = end_ / chunk_size; number >= most_chunks_ && !chunk)
        chunk = std::move(chunks_[place_of((number - most_chunks_) * chunk_size)]); // all of it was dropped
    if (!chunk)
        chunk.reset(new (std::nothrow) Chunk);
    last_ = chunk.get();
    return last_ != nullptr;
}

std::size_t PulseSeries::block_place(std::uint64_t number, std::size_t size) {
    std::size_t place = 0;
    for (std::size_t level = smallest_block; level < size; level *= fan)
        place += chunk_size / level;
    return place + number % chunk_size / size;
}

// Of one chunk.
PulseBlock PulseSeries::of_samples(std::uint64_t from, std::uint64_t to) const {
    const PulsePoint* point = &(*this)[from];
    std::int64_t before = from > first_ ? (*this)[from - 1].time : point->time;
    PulseBlock result;
    for (const PulsePoint* const end = point + (to - from); point != end; before = point++->time) {
        if (std::isnan(point->value))
            result.pause = PulseBlock::hole;
        else
            result.include({point->value, point->value, point->time - before});
    }
    return result;
}

// The blocks that end with the newest sample, each from those below it.
void PulseSeries::finish_blocks() {
    PulseBlock block = of_samples(std::max(first_, end_ - smallest_block), end_);
    std::size_t size = smallest_block;
    for (;;) {
        if (size == chunk_size)
            return finish_chunk(block);
        last_->blocks[block_place(end_ - size, size)] = block;
        size *= fan;
        if (end_ % size != 0)
            return;
        block = {};
        const std::size_t below = block_place(end_ - size, size / fan);
        for (std::size_t i = 0; i < fan; ++i)
            block.include(last_->blocks[below + i]);
    }
}

void PulseSeries::finish_chunk(const PulseBlock& whole) {
    const std::size_t places = chunks_.size();
    std::size_t node = places + place_of(end_ - 1);
    tree_[node] = whole;
    while ((node /= 2) >= 1) {
        tree_[node] = tree_[2 * node];
        tree_[node].include(tree_[2 * node + 1]);
    }
}

// Of the chunks that begin at the samples from, from + chunk_size and so on.
PulseBlock PulseSeries::of_chunks(std::uint64_t from, std::uint64_t to) const {
    const std::size_t places = chunks_.size();
    PulseBlock result;
    for (std::uint64_t chunk = from / chunk_size; chunk < to / chunk_size;) {
        const std::size_t begin = chunk & (places - 1);
        const std::size_t count =
            static_cast<std::size_t>(std::min<std::uint64_t>(to / chunk_size - chunk, places - begin));
        for (std::size_t l = places + begin, r = l + count; l < r; l /= 2, r /= 2) {
            if (l % 2)
                result.include(tree_[l++]);
            if (r % 2)
                result.include(tree_[--r]);
        }
        chunk += count;
    }
    return result;
}

std::size_t PulseSeries::block_size(std::uint64_t from, std::uint64_t to) const {
    std::size_t size = chunk_size;
    while (size >= smallest_block && (from % size != 0 || to - from < size))
        size /= fan;
    return size >= smallest_block ? size : 1;
}

PulseBlock PulseSeries::block(std::uint64_t from, std::size_t size) const {
    if (size == 1)
        return of_samples(from, from + 1);
    return size == chunk_size ? of_chunks(from, from + size) : chunk_of(from).blocks[block_place(from, size)];
}

// Of one chunk: up to ever larger blocks, and down again.
PulseBlock PulseSeries::within_chunk(std::uint64_t from, std::uint64_t to) const {
    const PulseBlock* level = chunk_of(from).blocks;
    PulseBlock result;
    std::size_t size = smallest_block;
    if (from % size != 0) {
        const std::uint64_t end = std::min(to, (from | (size - 1)) + 1);
        result = of_samples(from, end);
        from = end;
    }
    for (; size * fan <= chunk_size && from + size <= to; level += chunk_size / size, size *= fan)
        for (; from % (size * fan) != 0 && from + size <= to; from += size)
            result.include(level[from % chunk_size / size]);
    for (;; size /= fan) {
        for (; size < chunk_size && from + size <= to; from += size)
            result.include(level[from % chunk_size / size]);
        if (size == smallest_block)
            break;
        level -= chunk_size / (size / fan);
    }
    if (from < to)
        result.include(of_samples(from, to));
    return result;
}

PulseBlock PulseSeries::summary(std::uint64_t from, std::uint64_t to) const {
    PulseBlock result;
    while (from < to) {
        std::uint64_t end = (from | (chunk_size - 1)) + 1;
        if (from % chunk_size == 0 && to - from >= chunk_size) {
            end = to - to % chunk_size;
            result.include(of_chunks(from, end));
        } else {
            end = std::min(end, to);
            result.include(within_chunk(from, end));
        }
        from = end;
    }
    return result;
}

void PulseSeries::expect(std::uint64_t number) const {
#ifdef __GNUC__
    if (number < first_ || number >= end_)
        return;
    const Chunk& chunk = chunk_of(number);
    constexpr std::uint64_t line = 64 / sizeof(PulsePoint);
    const std::uint64_t first = number % chunk_size & ~std::uint64_t{smallest_block - 1};
    for (std::uint64_t i = first; i < first + smallest_block; i += line)
        __builtin_prefetch(&chunk.points[i]);
    for (std::size_t size = smallest_block; size < chunk_size; size *= fan)
        __builtin_prefetch(&chunk.blocks[block_place(number, size)]);
    const std::size_t leaf = chunks_.size() + place_of(number);
    for (int height = 0; height < 4; ++height) // where ways up from near chunks have not met yet
        __builtin_prefetch(&tree_[leaf >> height]);
#else
    static_cast<void>(number);
#endif
}

std::uint64_t PulseSeries::seek(std::int64_t time, std::uint64_t guess) const {
    std::uint64_t low = first_, high = end_; // the answer lies in [low, high]
    guess = std::clamp(guess, low, high);
    // Ever longer steps away from the guess, until the answer is passed.
    if (guess < high && (*this)[guess].time < time) {
        low = guess + 1;
        for (std::uint64_t step = 1; low + step < high; step *= 2) {
            if ((*this)[low + step].time >= time) {
                high = low + step;
                break;
            }
            low += step + 1;
        }
    } else {
        high = guess;
        for (std::uint64_t step = 1; low + step <= high; step *= 2) {
            if ((*this)[high - step].time < time) {
                low = high - step + 1;
                break;
            }
            high -= step;
        }
    }
    while (low < high) {
        const std::uint64_t middle = low + (high - low) / 2;
        if ((*this)[middle].time < time)
            low = middle + 1;
        else
            high = middle;
    }
    return low;
}

std::size_t PulseSeries::memory() const {
    const auto taken =
        std::count_if(chunks_.begin(), chunks_.end(), [](const auto& chunk) { return chunk != nullptr; });
    return static_cast<std::size_t>(taken) * sizeof(Chunk) + tree_.size() * sizeof(PulseBlock) +
           chunks_.size() * sizeof(chunks_[0]);
}

} // namespace wnt
