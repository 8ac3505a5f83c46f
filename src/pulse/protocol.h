// Lines for the protocol files of reading, which may not be there.
#pragma once

#include <cstdio>

namespace wnt {

template <class... Values> void note(std::FILE* protocol, const char* format, Values... values) {
    if (protocol)
        std::fprintf(protocol, format, values...);
}

} // namespace wnt
