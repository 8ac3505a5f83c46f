#pragma once

#include <cstdlib>

/// Ends a fuzz target when a demand does not hold.
inline void require(bool holds) {
    if (!holds)
        std::abort();
}
