#pragma once

#include <cstddef>
#include <cstdint>

/// A point in library coordinates (y grows upwards). Has the layout of the platform's POINT.
struct Tpt {
    std::int32_t x;
    std::int32_t y;
};

static_assert(sizeof(Tpt) == 8 && offsetof(Tpt, y) == 4, "Tpt crosses the library's border as two 32-bit integers");
