#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <vector>

namespace wnt {

/// A sample of a curve; a value that is not a number is a hole in it.
struct PulsePoint {
    std::int64_t time; ///< hundredths of a second
    double value;
};
static_assert(sizeof(PulsePoint) == 16);

/// What several samples look like from afar.
struct PulseBlock {
    static constexpr std::int64_t hole = std::numeric_limits<std::int64_t>::max();

    double low = std::numeric_limits<double>::infinity(); ///< above `high` where there is no value
    double high = -std::numeric_limits<double>::infinity();
    std::int64_t pause = 0; ///< the longest since the sample before; `hole` where a value is missing

    void include(const PulseBlock& other);
    bool empty() const { return low > high; }
};

/// The history of a curve: the newest samples up to a capacity, in the order of their times. Samples are numbered from
/// the first that was ever appended. Blocks of powers of two keep what is needed to draw millions as if each was drawn.
class PulseSeries {
public:
    static constexpr std::size_t default_capacity = 1'000'000;
    static constexpr std::size_t most_capacity = 100'000'000;
    /// About 5,500 years.
    static constexpr std::int64_t latest = std::int64_t{1} << 44;

    /// Clamped to 1 .. most_capacity. Memory is taken as samples arrive.
    explicit PulseSeries(std::size_t capacity = default_capacity);

    /// False, and nothing stored, for a time before the newest one's or beyond +-latest, or without memory. Infinities
    /// become holes. The oldest sample gives way when the capacity is reached.
    bool append(std::int64_t time, double value);
    void clear();

    std::size_t capacity() const { return capacity_; }
    std::size_t size() const { return static_cast<std::size_t>(end_ - first_); }
    std::uint64_t first() const { return first_; }
    std::uint64_t end() const { return end_; }
    /// `first() <= number < end()`.
    const PulsePoint& operator[](std::uint64_t number) const { return chunk_of(number).points[number % chunk_size]; }
    std::int64_t newest() const { return newest_; }

    /// The first sample at or after the time, searched from `guess` on both ways.
    std::uint64_t seek(std::int64_t time, std::uint64_t guess) const;
    /// Has the memory around a sample fetched, for a call that is about to ask for it.
    void expect(std::uint64_t number) const;
    /// Of the samples [from, to), the pause before the first of them included.
    PulseBlock summary(std::uint64_t from, std::uint64_t to) const;

    /// The largest complete block that begins at the sample and ends within the range: its number of samples (1: none).
    std::size_t block_size(std::uint64_t from, std::uint64_t to) const;
    /// Of such a block.
    PulseBlock block(std::uint64_t from, std::size_t size) const;

    /// Bytes that samples and blocks take.
    std::size_t memory() const;

private:
    static constexpr std::size_t chunk_size = 256, smallest_block = 16, fan = 4;
    struct Chunk {
        PulsePoint points[chunk_size];
        PulseBlock blocks[16 + 4]; // of 16 and of 64 samples
    };

    Chunk& chunk_of(std::uint64_t number) const { return *chunks_[place_of(number)]; }
    std::size_t place_of(std::uint64_t number) const { return number / chunk_size & (chunks_.size() - 1); }
    static std::size_t block_place(std::uint64_t number, std::size_t size);
    bool begin_chunk();
    void finish_blocks();
    void finish_chunk(const PulseBlock& whole);
    PulseBlock of_samples(std::uint64_t from, std::uint64_t to) const;
    PulseBlock within_chunk(std::uint64_t from, std::uint64_t to) const;
    PulseBlock of_chunks(std::uint64_t from, std::uint64_t to) const;

    std::size_t capacity_;
    std::size_t most_chunks_; // in use at one time: the oldest is left sample by sample while the newest fills
    std::uint64_t first_ = 0;
    std::uint64_t end_ = 0;
    std::int64_t newest_ = -latest;
    Chunk* last_ = nullptr;                      // where the next sample goes, unless it begins a chunk
    std::vector<std::unique_ptr<Chunk>> chunks_; // a ring of a power of two places
    std::vector<PulseBlock> tree_;               // over the complete chunks by their places; leaves in the second half
};

} // namespace wnt
