#pragma once

#include <cstdlib>

/// Ends a fuzz target when a demand does not hold.
inline void require(bool holds) {
    if (holds)
        return;
#ifdef _WIN32
    std::_Exit(3); // abort() would ask the user
#else
    std::abort();
#endif
}
