#include "script/values.h"

#include "script/keywords.h"

#include <algorithm>
#include <limits>

namespace wnt {

std::int32_t integer_value(std::string_view text) {
    using Limits = std::numeric_limits<std::int32_t>;
    std::string_view rest = skip_blanks(text);
    const bool negative = rest.starts_with('-');
    if (negative || rest.starts_with('+'))
        rest.remove_prefix(1);
    const std::int64_t limit = negative ? -std::int64_t{Limits::min()} : Limits::max();
    std::int64_t magnitude = 0;
    for (char c : rest) {
        if (c < '0' || c > '9')
            break;
        magnitude = std::min(magnitude * 10 + (c - '0'), limit);
    }
    return static_cast<std::int32_t>(negative ? -magnitude : magnitude);
}

int side_set_value(std::string_view text) {
    constexpr struct {
        std::string_view word;
        SideBit bit;
    } sides[] = {{"LEFT", side_left}, {"RIGHT", side_right}, {"TOP", side_top}, {"BOTTOM", side_bottom}};
    int set = 0;
    for (const auto& side : sides)
        set |= text.find(side.word) != std::string_view::npos ? side.bit : 0;
    return set;
}

int border_height_value(std::string_view text) {
    return std::clamp(integer_value(text), 0, highest_border);
}

MarkValue mark_value(std::string_view text) {
    std::string_view name = text.substr(std::min(text.find(','), text.size()));
    name = name.substr(std::min(name.find_first_not_of(','), name.size()));
    return {integer_value(text), colour_lookup(skip_blanks(name))};
}

void copy_id(std::span<char, id_capacity> field, std::string_view text) {
    text.copy(field.data(), field.size());
}

void copy_title(std::span<char, title_capacity> field, std::string_view text) {
    const std::size_t copied = text.copy(field.data(), title_capacity - 1);
    if (copied < title_capacity - 1)
        field[copied] = 0;
}

std::string_view field_text(std::span<const char> field) {
    const std::string_view whole(field.data(), field.size());
    return whole.substr(0, whole.find('\0'));
}

} // namespace wnt
