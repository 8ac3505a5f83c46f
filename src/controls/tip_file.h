#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace wnt {

inline constexpr std::size_t longest_day_tip = 64 * 1024; ///< bytes
inline constexpr std::size_t largest_tip_file = 4 * 1024 * 1024;

/// The tips of a text file: a paragraph each, with blank lines between. The lines of a paragraph are joined by blanks;
/// one that begins with a blank stays a line of its own. Lines that begin with `;` are comments. A line ends at a line
/// feed, a carriage return or both.
struct TipFile {
    std::vector<std::string> tips; ///< lines end with line feeds; no tip is empty
    bool utf8 = false;             ///< otherwise of the system's code page
};

/// Bytes that begin with UTF-8's mark, or are valid UTF-8, are UTF-8. Of a tip that is too long, and of bytes beyond
/// the largest file, the beginning counts. Control characters count as blanks.
TipFile parse_tip_file(std::string_view bytes);

/// Of the whole text; it may end within a character where `cut` says so.
bool is_utf8(std::string_view text, bool cut = false);

} // namespace wnt
