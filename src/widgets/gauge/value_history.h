#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

namespace wnt {

/// The recent values of a gauge and the highest of all since the last clear.
class ValueHistory {
public:
    static constexpr int capacity = 1024;

    void clear() { count_ = 0; }

    void record(std::int32_t value) {
        highest_ = count_ == 0 ? value : std::max(highest_, value);
        values_[static_cast<std::size_t>(count_ % capacity)] = value;
        ++count_;
    }

    /// Number of values recorded so far, forgotten ones included.
    std::int64_t count() const { return count_; }
    /// The value with this running number; one of the last `capacity`.
    std::int32_t at(std::int64_t number) const { return values_[static_cast<std::size_t>(number % capacity)]; }
    std::int32_t highest() const { return highest_; }

private:
    std::array<std::int32_t, capacity> values_{};
    std::int64_t count_ = 0;
    std::int32_t highest_ = 0;
};

} // namespace wnt
