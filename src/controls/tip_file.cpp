#include "controls/tip_file.h"

#include <algorithm>
#include <cstddef>

namespace wnt {

namespace {

constexpr std::string_view utf8_mark = "\xEF\xBB\xBF";

bool continues(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

bool blank(char byte) {
    return static_cast<unsigned char>(byte) <= ' ' || byte == 0x7F;
}

// Bytes of the character that begins like this; 0: none does.
std::size_t length_of(std::string_view text) {
    const auto first = static_cast<unsigned char>(text[0]);
    if (first < 0x80)
        return 1;
    if (first < 0xC2 || first > 0xF4)
        return 0;
    const auto second = text.size() > 1 ? static_cast<unsigned char>(text[1]) : 0;
    if (second && ((first == 0xE0 && second < 0xA0) || (first == 0xED && second > 0x9F) ||
                   (first == 0xF0 && second < 0x90) || (first == 0xF4 && second > 0x8F)))
        return 0; // written too long, half of a pair, or beyond the last character
    return first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
}

std::string_view next_line(std::string_view& rest) {
    const std::size_t end = std::min(rest.find_first_of("\r\n"), rest.size());
    const std::string_view line = rest.substr(0, end);
    rest.remove_prefix(std::min(end + (rest.substr(end).starts_with("\r\n") ? 2 : 1), rest.size()));
    return line;
}

std::string_view trimmed(std::string_view line) {
    while (!line.empty() && blank(line.front()))
        line.remove_prefix(1);
    while (!line.empty() && blank(line.back()))
        line.remove_suffix(1);
    return line;
}

void cut_to_length(std::string& tip, bool utf8) {
    if (tip.size() <= longest_day_tip)
        return;
    std::size_t length = longest_day_tip;
    while (utf8 && length > 0 && continues(tip[length])) // whole characters
        --length;
    tip.resize(length);
}

class Tips {
public:
    explicit Tips(TipFile& file) : file_(file) {}
    ~Tips() { end_tip(); }

    void add(std::string_view line) {
        if (line.starts_with(';'))
            return;
        const std::string_view text = trimmed(line);
        if (text.empty())
            return end_tip();
        if (tip_.size() > longest_day_tip)
            return;
        if (!tip_.empty())
            tip_ += blank(line.front()) || own_line_ ? '\n' : ' ';
        own_line_ = blank(line.front());
        const std::size_t start = tip_.size();
        tip_ += text.substr(0, longest_day_tip + 1);
        std::replace_if(tip_.begin() + static_cast<std::ptrdiff_t>(start), tip_.end(), blank, ' ');
    }

private:
    void end_tip() {
        if (tip_.empty())
            return;
        cut_to_length(tip_, file_.utf8);
        file_.tips.push_back(std::move(tip_));
        tip_.clear();
    }

    TipFile& file_;
    std::string tip_;
    bool own_line_ = false; // is its last one
};

} // namespace

bool is_utf8(std::string_view text, bool cut) {
    while (!text.empty()) {
        const std::size_t length = length_of(text);
        const std::string_view rest = text.substr(1, length > 0 ? length - 1 : 0);
        if (length == 0 || !std::ranges::all_of(rest, continues))
            return false;
        if (rest.size() + 1 < length)
            return cut;
        text.remove_prefix(length);
    }
    return true;
}

TipFile parse_tip_file(std::string_view bytes) {
    TipFile file;
    const bool marked = bytes.starts_with(utf8_mark);
    if (marked)
        bytes.remove_prefix(utf8_mark.size());
    const bool cut = bytes.size() > largest_tip_file;
    bytes = bytes.substr(0, largest_tip_file);
    file.utf8 = marked || is_utf8(bytes, cut);
    Tips tips(file);
    while (!bytes.empty())
        tips.add(next_line(bytes));
    return file;
}

} // namespace wnt
