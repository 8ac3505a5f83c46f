// Reads a script from a source that hands out pieces of any size, and compares the lines with those of a reader that
// has the whole text. The first two bytes are the size of the pieces and whether the source fails.
#include "require.h"
#include "script_lines.h"

#include <sstream>
#include <utility>

namespace {

std::vector<std::string> expected_lines(std::string_view text, bool fails) {
    const std::size_t stop = text.find('\x1A');
    fails = fails && stop == std::string_view::npos;
    std::string kept(text.substr(0, stop)), line;
    std::erase(kept, '\r');
    std::istringstream stream(kept);
    std::vector<std::string> lines;
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
    require(lines_of(text, data[0] * 3 + 1, fails) == expected_lines(text, fails));
    const std::string_view name = wnt::script_file_name(text);
    require(name.data() >= text.data() && name.data() + name.size() <= text.data() + text.size());
    return 0;
}
