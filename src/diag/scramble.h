#pragma once

#include <cstddef>
#include <cstdint>

namespace wnt {

/// Mixes a fixed key stream into the bytes, in place. A second pass over the same bytes restores them.
void scramble(std::uint8_t* bytes, std::size_t size);

} // namespace wnt
