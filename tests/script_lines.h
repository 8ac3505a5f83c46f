// What a reader of scripts delivers: lines marked "L", the end of the script "E".
#pragma once

#include "script/script_file.h"

#include <algorithm>
#include <string>
#include <vector>

/// Reads the text in pieces from a source that ends with the end of the file or with a read error.
inline std::vector<std::string> lines_of(std::string_view text, std::size_t piece, bool fails) {
    std::vector<std::string> lines;
    const auto source = [&](char* to, int capacity) {
        const std::size_t count = text.copy(to, std::min<std::size_t>(piece, capacity));
        text.remove_prefix(count);
        return count == 0 && fails ? -1 : static_cast<int>(count);
    };
    wnt::feed_script(source, [&](const char* line, int mode) {
        lines.push_back((mode == wnt::script_end ? "E" : "L") + std::string(line));
    });
    return lines;
}
