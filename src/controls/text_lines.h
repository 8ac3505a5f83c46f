#pragma once

#include <span>
#include <string>
#include <string_view>

namespace wnt {

/// Breaks a text's lines where they would be wider than `width` pixels: at blanks, which go, or within a word that is
/// wider by itself; line feeds stay breaks. `right` is for each character how far right it ends, were the text one
/// line. Answers the text with "\r\n" between its lines, and their number.
std::wstring break_lines(std::wstring_view text, std::span<const int> right, int width, int& lines);

} // namespace wnt
