#include "controls/tip_layout.h"

#include <algorithm>

namespace wnt {

namespace {

constexpr int margin_across = 6; // pixels at 96 dots an inch
constexpr int margin_down = 4;
constexpr int part_gap = 6;
constexpr int title_gap = 2;
constexpr int least_room = 16; // for a line, whatever the greatest width
constexpr std::string_view dots = "...";

/// Takes texts apart into lines that are no wider than the room.
class LineBreaker {
public:
    LineBreaker(TipFonts& fonts, int first_room, int room, int most)
        : fonts_(fonts), first_room_(first_room), room_(room), most_(static_cast<std::size_t>(most)) {}

    void add(std::string_view text, bool bold) {
        text = text.substr(0, longest_tip);
        while (!text.empty()) {
            const std::size_t end = std::min(text.find('\n'), text.size());
            std::string_view line = text.substr(0, end);
            text.remove_prefix(std::min(end + 1, text.size()));
            if (line.ends_with('\r'))
                line.remove_suffix(1);
            add_line(line, bold);
        }
    }

    std::vector<TipLine> lines;

private:
    /// How many characters fit: a search between none and all, since text grows with every character.
    std::size_t fitting(std::string_view text, bool bold) {
        const int room = lines.empty() ? first_room_ : room_;
        std::size_t low = 1, high = text.size();
        while (low < high) {
            const std::size_t middle = (low + high + 1) / 2;
            if (fonts_.width(text.substr(0, middle), bold) <= room)
                low = middle;
            else
                high = middle - 1;
        }
        return low;
    }

    void add_line(std::string_view line, bool bold) {
        do {
            if (lines.size() == most_) {
                lines.back().text = dots;
                return;
            }
            std::size_t count = line.empty() ? 0 : fitting(line, bold);
            std::size_t next = count;
            if (count < line.size()) {
                const std::size_t blank = line.substr(0, count + 1).rfind(' ');
                if (blank != std::string_view::npos && blank > 0) {
                    count = blank;
                    next = blank + 1;
                }
            }
            lines.push_back({std::string(line.substr(0, count)), bold, 0, 0});
            line.remove_prefix(next);
        } while (!line.empty());
    }

    TipFonts& fonts_;
    int first_room_;
    int room_;
    std::size_t most_;
};

} // namespace

TipLayout lay_out_tip(const TipParts& parts, TipFonts& fonts, int widest, int scale, int highest) {
    const auto scaled = [scale](int pixels) { return (pixels * std::clamp(scale, 1, 1000) + 50) / 100; };
    const int row = std::max(fonts.row(), 1);
    TipLayout layout;
    int x = scaled(margin_across);
    const int top = scaled(margin_down);
    int height = 0;
    if (parts.icon_width > 0 && parts.icon_height > 0) {
        layout.icon = {x, top, x + parts.icon_width, top + parts.icon_height};
        x = layout.icon.right + scaled(part_gap);
        height = parts.icon_height;
    }
    const int text_left = x;
    int first_left = x;
    if (parts.sample) {
        layout.sample = {x, top, x + row, top + row};
        first_left = x + row + scaled(part_gap);
        height = std::max(height, row);
    }
    const int right_end = widest - scaled(margin_across);
    const int most = std::clamp((highest - 2 * top - scaled(title_gap)) / row, 1, most_tip_lines);
    LineBreaker breaker(fonts, std::max(right_end - first_left, least_room),
                        std::max(right_end - text_left, least_room), most);
    breaker.add(parts.title, true);
    const std::size_t titles = breaker.lines.size();
    breaker.add(parts.text, false);
    layout.lines = std::move(breaker.lines);
    int right = parts.sample ? layout.sample.right : layout.icon.right;
    int y = top;
    for (std::size_t i = 0; i < layout.lines.size(); ++i) {
        TipLine& line = layout.lines[i];
        if (i == titles && titles > 0)
            y += scaled(title_gap);
        line.x = i == 0 ? first_left : text_left;
        line.y = y;
        y += row;
        right = std::max(right, line.x + fonts.width(line.text, line.bold));
    }
    height = std::max(height, y - top);
    // A line beside a higher icon stands in its middle.
    if (layout.lines.size() <= 1 && height > row) {
        const int down = (height - row) / 2;
        for (TipLine& line : layout.lines)
            line.y += down;
        if (parts.sample) {
            layout.sample.top += down;
            layout.sample.bottom += down;
        }
    }
    layout.width = right + scaled(margin_across);
    layout.height = top + height + scaled(margin_down);
    return layout;
}

PixelRect place_tip(int width, int height, const PixelRect& around, const PixelRect& screen, bool centred) {
    int left = std::min(around.left + (centred ? (around.width() - width) / 2 : 0), screen.right - width);
    int top = around.bottom;
    if (top + height > screen.bottom)
        top = around.top - height >= screen.top ? around.top - height : screen.bottom - height;
    left = std::max(left, screen.left);
    top = std::max(top, screen.top);
    return {left, top, left + width, top + height};
}

} // namespace wnt
