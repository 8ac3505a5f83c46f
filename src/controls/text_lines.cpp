#include "controls/text_lines.h"

#include <algorithm>
#include <cstddef>

namespace wnt {

namespace {

// Of the line from `start` to a line feed at `end`: where its first part ends. At least one character is in it.
std::size_t part_end(std::wstring_view text, std::span<const int> right, std::size_t start, std::size_t end,
                     int width) {
    const int left = start > 0 ? right[start - 1] : 0;
    const auto fits = [&](int edge) { return edge - left <= width; };
    const auto first = right.begin() + static_cast<std::ptrdiff_t>(start);
    const auto last = right.begin() + static_cast<std::ptrdiff_t>(end);
    const auto over = static_cast<std::size_t>(std::partition_point(first, last, fits) - right.begin());
    if (over == end)
        return end;
    const std::size_t blank = text.substr(0, over + 1).rfind(L' ');
    return blank != text.npos && blank > start ? blank : std::max(over, start + 1);
}

} // namespace

std::wstring break_lines(std::wstring_view text, std::span<const int> right, int width, int& lines) {
    std::wstring broken;
    std::size_t start = 0;
    lines = 0;
    for (;;) {
        const std::size_t feed = std::min(text.find(L'\n', start), text.size());
        const std::size_t end = part_end(text, right, start, feed, width);
        broken += text.substr(start, end - start);
        ++lines;
        if (end == text.size())
            return broken;
        broken += L"\r\n";
        start = end + (text[end] == L'\n' || text[end] == L' ' ? 1 : 0);
    }
}

} // namespace wnt
