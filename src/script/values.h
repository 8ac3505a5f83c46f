#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace wnt {

inline constexpr int id_capacity = 20;
inline constexpr int title_capacity = 50;
inline constexpr int highest_border = 5;

/// The text without its leading blanks; only the space character is a blank in scripts.
constexpr std::string_view skip_blanks(std::string_view text) {
    std::size_t start = 0;
    while (start < text.size() && text[start] == ' ')
        ++start;
    return text.substr(start);
}

/// Decimal number at the text's beginning: blanks, an optional sign, digits. No digits give 0; a number beyond
/// 32 bits gives the nearest limit.
std::int32_t integer_value(std::string_view text);

/// Side bits (SideBit) of the words LEFT, RIGHT, TOP and BOTTOM found anywhere in the text.
int side_set_value(std::string_view text);

/// Border width in pixels: a number, clamped to 0..5.
int border_height_value(std::string_view text);

/// One mark of a gauge: where it stands, and its colour index (255 for an unknown name).
struct MarkValue {
    std::int32_t value;
    int colour;
};

/// A number, anything up to the commas, blanks, a colour name. Without a comma the name is empty.
MarkValue mark_value(std::string_view text);

/// Overwrites the field's beginning with at most 20 characters and adds no terminator: what the field held behind a
/// shorter text stays there.
void copy_id(std::span<char, id_capacity> field, std::string_view text);

/// Up to 48 characters are copied with a terminator, of a longer text the first 49; the field's last byte is never
/// written, so that a field that began as zeros is always terminated.
void copy_title(std::span<char, title_capacity> field, std::string_view text);

/// A field's text: up to its first zero or its end.
std::string_view field_text(std::span<const char> field);

} // namespace wnt
