#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>

namespace wnt {

struct FreeBlock {
    void operator()(void* block) const { std::free(block); }
};
/// A block of the plain heap.
using HeapBytes = std::unique_ptr<std::uint8_t, FreeBlock>;

/// Zeroed; null when there is no memory for it.
inline HeapBytes zeroed_bytes(std::uint64_t count) {
    return HeapBytes(static_cast<std::uint8_t*>(std::calloc(std::max<std::uint64_t>(count, 1), 1)));
}

} // namespace wnt
