#include "script/keywords.h"

#include "script/colours.h"
#include "script/values.h"

#include <algorithm>

namespace wnt {

namespace {

constexpr std::size_t longest_keyword = 15;

KeywordTable first_entries(KeywordTable table, int count) {
    return table.first(count < 1 ? 0 : std::min(table.size(), static_cast<std::size_t>(count)));
}

} // namespace

int keyword_lookup(KeywordTable table, std::string_view word, int count) {
    if (word.size() > longest_keyword)
        return -1;
    int position = 0;
    for (std::string_view entry : first_entries(table, count)) {
        if (entry == word)
            return position;
        ++position;
    }
    return -1;
}

int keyword_prefix_lookup(KeywordTable table, std::string_view word) {
    const auto found = std::ranges::find_if(table, [word](std::string_view entry) { return entry.starts_with(word); });
    return found == table.end() ? -1 : static_cast<int>(found - table.begin());
}

int leading_key_lookup(KeywordTable table, std::string_view line, int count) {
    return keyword_prefix_lookup(first_entries(table, count), line.substr(0, line.find_first_of(" =")));
}

std::uint8_t colour_lookup(std::string_view word) {
    return static_cast<std::uint8_t>(keyword_lookup(colour_words, word, colour_count));
}

bool flag_lookup(std::string_view text) {
    const std::string_view rest = skip_blanks(text);
    return !rest.empty() && std::string_view("XYxy1").find(rest.front()) != std::string_view::npos;
}

const char* keyword_at(KeywordTable table, int code) {
    return code >= 0 && static_cast<std::size_t>(code) < table.size() ? table[code].data() : nullptr;
}

const char* line_style_word(int code) {
    if (code > 7)
        return nullptr;
    const auto found = std::ranges::find(line_style_codes, code);
    return found == std::end(line_style_codes) ? nullptr : line_style_words[found - line_style_codes].data();
}

std::int32_t number_in_range(std::string_view text, std::int32_t low, std::int32_t high, std::int32_t fallback) {
    const std::int32_t number = integer_value(text.substr(0, 19));
    const bool checked = low != 0 && high != 0;
    return checked && (number < low || number > high) ? fallback : number;
}

} // namespace wnt
