// Reads a file of tips. Every tip is bounded and a text of lines without blanks at their ends or control characters,
// and written to a file again the tips are read back.
#include "controls/tip_file.h"
#include "require.h"

#include <algorithm>
#include <cstdint>

using namespace wnt;

namespace {

void check_tip(const std::string& tip, bool utf8) {
    require(!tip.empty() && tip.size() <= longest_day_tip);
    require(std::none_of(tip.begin(), tip.end(),
                         [](char c) { return (static_cast<unsigned char>(c) < ' ' && c != '\n') || c == 0x7F; }));
    require(!utf8 || is_utf8(tip));
}

// Each line as one that stays; a mark that was taken off is one that stands for a character now.
std::string written(const TipFile& file) {
    std::string bytes;
    for (const std::string& tip : file.tips) {
        bytes += ' ';
        for (const char c : tip)
            bytes += c == '\n' ? std::string("\n ") : std::string(1, c);
        bytes += "\n\n";
    }
    return bytes;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    const TipFile file = parse_tip_file(bytes);
    const bool marked = bytes.starts_with("\xEF\xBB\xBF");
    for (const std::string& tip : file.tips)
        check_tip(tip, file.utf8 && !marked);
    if (size < longest_day_tip)
        require(parse_tip_file(written(file)).tips == file.tips);
    return 0;
}
