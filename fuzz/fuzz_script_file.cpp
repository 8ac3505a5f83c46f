// Reads a script from a source that hands out pieces of any size, and compares the lines with those of a reader that
// looks at one byte after the other. The first two bytes are the size of the pieces and whether the source fails.
#include "script/script_file.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

using namespace wnt;

namespace {

using Lines = std::vector<std::string>;

void require(bool holds) {
    if (!holds)
        std::abort();
}

Lines collected_lines(std::string_view text, std::size_t piece, bool fails) {
    Lines lines;
    const auto source = [&](char* to, int capacity) {
        const std::size_t count = text.copy(to, std::min<std::size_t>(piece, capacity));
        text.remove_prefix(count);
        return count == 0 && fails ? -1 : static_cast<int>(count);
    };
    feed_script(source, [&](const char* line, int mode) {
        lines.push_back((mode == script_end ? "E" : "L") + std::string(line));
    });
    return lines;
}

Lines expected_lines(std::string_view text, bool fails) {
    const std::size_t stop = text.find('\x1A');
    fails = fails && stop == std::string_view::npos;
    Lines lines;
    std::string line;
    bool cut = false;
    for (char c : text.substr(0, stop)) {
        if (c == '\r')
            continue;
        cut = c != '\n' && line.size() == 127;
        if (cut)
            break;
        if (c != '\n') {
            line += c;
            continue;
        }
        lines.push_back("L" + line);
        line.clear();
    }
    if (!cut && !fails && !line.empty()) {
        lines.push_back("L" + line);
        line.clear();
    }
    lines.push_back("L" + line);
    if (cut || !fails)
        lines.push_back("E" + line);
    for (std::string& each : lines)
        each.resize(std::min(each.find('\0'), each.size()));
    return lines;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2)
        return 0;
    const std::string_view text(reinterpret_cast<const char*>(data) + 2, size - 2);
    const bool fails = (data[1] & 1) != 0;
    require(collected_lines(text, data[0] * 3 + 1, fails) == expected_lines(text, fails));
    const std::string_view name = script_file_name(text);
    require(name.data() >= text.data() && name.data() + name.size() <= text.data() + text.size());
    return 0;
}
