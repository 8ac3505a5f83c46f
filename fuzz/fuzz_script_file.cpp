// Reads a script from a source that hands out single bytes, and one that hands out pieces of any size, and compares the
// lines with those of a reader that has the whole text. The first two bytes are the size of the pieces and whether the
// source fails.
#include "require.h"
#include "script/script_file.h"

#include <algorithm>
#include <cstdint>
#include <sstream>
#include <utility>
#include <vector>

namespace {

// Lines marked "L", the end of the script "E".
using Lines = std::vector<std::string>;

Lines collected_lines(std::string_view text, std::size_t piece, bool fails) {
    Lines lines;
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

Lines expected_lines(std::string_view text, bool fails) {
    const std::size_t stop = text.find('\x1A');
    fails = fails && stop == std::string_view::npos;
    std::string kept(text.substr(0, stop)), line;
    std::erase(kept, '\r');
    std::istringstream stream(kept);
    Lines lines;
    while (std::getline(stream, line) && line.size() <= 127 && !stream.eof())
        lines.push_back("L" + line);
    const bool cut = line.size() > 127;
    line.resize(std::min<std::size_t>(line.size(), 127));
    if (!cut && !fails && !line.empty())
        lines.push_back("L" + std::exchange(line, ""));
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
    for (int piece : {1, data[0] * 3 + 1})
        require(collected_lines(text, piece, fails) == expected_lines(text, fails));
    const std::string_view name = wnt::script_file_name(text);
    require(name.data() >= text.data() && name.data() + name.size() <= text.data() + text.size());
    return 0;
}
