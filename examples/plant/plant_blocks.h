// The blocks of memory through which simulator and front end speak to each other.
#pragma once

#include "plant_values.h"

#include <array>
#include <atomic>
#include <bit>
#include <cstring>
#include <optional>
#include <type_traits>

/// One record that a single writer renews and others read, none of them waiting: the writer makes the count odd,
/// writes, and makes it even again; a reader that met an odd count, or another one afterwards, has read nothing. Memory
/// of zeros is a block that nobody has written yet. A block of another layout is one, too.
template <class Record> class CountedBlock {
    static_assert(std::is_trivially_copyable_v<Record> && sizeof(Record) % sizeof(std::uint64_t) == 0);

public:
    struct Counted {
        Record record;
        std::uint32_t count;
    };

    /// A block whose writer ended in the middle of a record is whole again after it.
    void Write(const Record& record) {
        const std::uint32_t odd = Load(count_) | 1u;
        Store(count_, odd);
        std::atomic_thread_fence(std::memory_order_release);
        const auto words = std::bit_cast<Words>(record);
        for (std::size_t i = 0; i < words.size(); ++i)
            std::atomic_ref(words_[i]).store(words[i], std::memory_order_relaxed);
        Store(layout_, layout);
        Store(count_, odd + 1);
    }

    /// Nothing where nobody has written, or where a writer was at work at every try.
    std::optional<Counted> Read() {
        for (int tries = 0; tries < most_tries; ++tries) {
            const std::uint32_t count = Load(count_);
            if (Load(layout_) != layout)
                return std::nullopt;
            Words words;
            for (std::size_t i = 0; i < words.size(); ++i)
                words[i] = std::atomic_ref(words_[i]).load(std::memory_order_relaxed);
            std::atomic_thread_fence(std::memory_order_acquire);
            if (count % 2 == 0 && Load(count_) == count)
                return Counted{std::bit_cast<Record>(words), count};
        }
        return std::nullopt;
    }

private:
    using Words = std::array<std::uint64_t, sizeof(Record) / sizeof(std::uint64_t)>;
    static constexpr int most_tries = 16;
    static constexpr std::uint32_t layout = 0x504C0000u + static_cast<std::uint32_t>(sizeof(Record));
    static_assert(std::atomic_ref<std::uint64_t>::is_always_lock_free, "processes share no locks");

    static std::uint32_t Load(std::uint32_t& number) { return std::atomic_ref(number).load(std::memory_order_acquire); }
    static void Store(std::uint32_t& number, std::uint32_t value) {
        std::atomic_ref(number).store(value, std::memory_order_release);
    }

    std::uint32_t layout_;
    std::uint32_t count_;
    Words words_;
};

using ReadingsBlock = CountedBlock<PlantReadings>;
using SetPointsBlock = CountedBlock<PlantSetPoints>;

inline constexpr char readings_block_name[] = "Zopwnt plant readings";
inline constexpr char set_points_block_name[] = "Zopwnt plant set points";
inline constexpr char simulator_mutex_name[] = "Zopwnt plant simulator";
inline constexpr char front_end_mutex_name[] = "Zopwnt plant front end";
