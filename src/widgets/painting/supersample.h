#pragma once

#include <cstddef>
#include <cstdint>

namespace wnt {

/// Enlarges `count` pixels of one row to blocks of scale x scale in `large`, whose rows are `pitch` apart.
void enlarge_row(const std::uint32_t* small, int count, std::uint32_t* large, std::size_t pitch, int scale);

/// The inverse: averages blocks of scale x scale (1, 2 or 4) into one row. A block of one colour gives that colour.
void average_row(const std::uint32_t* large, std::size_t pitch, std::uint32_t* small, int count, int scale);

} // namespace wnt
