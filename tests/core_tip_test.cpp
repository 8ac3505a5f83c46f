#include "controls/tip_layout.h"

#include <gtest/gtest.h>

#include <climits>

using namespace wnt;

namespace {

// Letters of an even width, bold ones wider.
struct EvenFonts : TipFonts {
    int width(std::string_view text, bool bold) override { return static_cast<int>(text.size()) * (bold ? 8 : 6); }
    int row() override { return 10; }
};

std::string lines_of(const TipLayout& layout) {
    std::string all;
    for (const TipLine& line : layout.lines)
        all += (line.bold ? "*" : "") + line.text + "|";
    return all;
}

TipLayout laid_out(std::string_view title, std::string_view text, int widest = 200) {
    EvenFonts fonts;
    return lay_out_tip({title, text}, fonts, widest, 100);
}

TEST(TipLayout, BreaksLinesWhereTheyWouldBeTooWide) {
    const std::tuple<std::string_view, std::string_view, std::string_view, int> cases[] = {
        {"", "one two", "one two|", 200},
        {"", "one two", "one|two|", 12 + 6 * 6},   // room for six letters
        {"", "one two", "one two|", 12 + 7 * 6},   // for exactly all
        {"", "one  two", "one |two|", 12 + 5 * 6}, // one blank goes
        {"", "incomprehensible", "incompreh|ensible|", 12 + 9 * 6},
        {"", "a\r\nb\n\nc\n", "a|b||c|", 200},
        {"Save as", "now", "*Save|*as|now|", 12 + 6 * 8},
        {"", " x", " x|", 200},
        {"", "letters", "le|tt|er|s|", -5}, // never narrower than a letter or two
        {"", "", "", 200},
    };
    for (const auto& [title, text, lines, widest] : cases)
        EXPECT_EQ(lines_of(laid_out(title, text, widest)), lines) << text;
}

TEST(TipLayout, EndsWhatIsTooLongWithDots) {
    const std::string many(3000, '\n');
    const TipLayout rows = laid_out("", many);
    EXPECT_EQ(rows.lines.size(), std::size_t(most_tip_lines));
    EXPECT_EQ(rows.lines.back().text, "...");
    for (const int highest : {-5, 0, 200, 333}) {
        EvenFonts fonts;
        const TipLayout low = lay_out_tip({"Title", many}, fonts, 300, 100, highest);
        EXPECT_TRUE(low.height <= highest || low.lines.size() == 1) << highest;
        EXPECT_GT(low.height + 2 * fonts.row(), highest) << "no line less than there is room for";
        EXPECT_EQ(low.lines.back().text, "...");
    }
    const TipLayout wide = laid_out("", std::string(20'000, 'x'), INT_MAX);
    EXPECT_EQ(wide.lines.size(), 1u);
    EXPECT_EQ(wide.lines[0].text.size(), std::size_t(longest_tip));
}

TEST(TipLayout, PartsStandBesideEachOther) {
    EvenFonts fonts;
    TipLayout tip = lay_out_tip({"Title", "text", 32, 32, true}, fonts, 300, 100);
    EXPECT_EQ(tip.icon, (PixelRect{6, 4, 38, 36}));
    EXPECT_EQ(tip.sample, (PixelRect{44, 4, 54, 14}));
    EXPECT_TRUE(tip.lines[0].x == 60 && tip.lines[0].y == 4);
    EXPECT_TRUE(tip.lines[1].x == 44 && tip.lines[1].y == 16); // below sample and title
    EXPECT_TRUE(tip.width == 60 + 5 * 8 + 6 && tip.height == 40);
    tip = lay_out_tip({"", "text", 32, 32, true}, fonts, 300, 100); // in the icon's middle
    EXPECT_TRUE(tip.lines[0].x == 60 && tip.lines[0].y == 15 && tip.sample.top == 15 && tip.height == 40);
    tip = lay_out_tip({"", "text"}, fonts, 300, 200);
    EXPECT_TRUE(tip.lines[0].x == 12 && tip.width == 48 && tip.height == 26);
    tip = lay_out_tip({"", "", 16, 16}, fonts, 300, 100);
    EXPECT_TRUE(tip.width == 28 && tip.height == 24 && tip.lines.empty());
    tip = lay_out_tip({"", "", 16, 16}, fonts, 300, 125); // rounded: margins of 7.5 and 5
    EXPECT_EQ(std::pair(tip.width, tip.height), std::pair(32, 26));
}

TEST(TipLayout, StaysOnTheScreenBesideWhatItExplains) {
    const PixelRect screen = {-100, 0, 400, 300};
    const struct {
        PixelRect around;
        int left, top, width = 100;
    } cases[] = {
        {{10, 10, 50, 30}, 10, 30},       // below
        {{10, 270, 50, 290}, 10, 230},    // no room below
        {{380, 10, 399, 30}, 300, 30},    // no room at the right
        {{-300, 10, -200, 30}, -100, 30}, // nor at the left
        {{10, 290, 50, 500}, 10, 250},    // partly beyond the edge
        {{10, 20, 50, 280}, 10, 260},     // room nowhere
        {{10, 10, 50, 30}, -100, 30, 900},
    };
    for (const auto& c : cases) {
        const PixelRect place = place_tip(c.width, 40, c.around, screen);
        EXPECT_EQ(place, (PixelRect{c.left, c.top, c.left + c.width, c.top + 40})) << c.around.left << c.around.top;
    }
    EXPECT_EQ(place_tip(100, 400, {10, 10, 50, 30}, screen).top, 0); // higher than the screen
    EXPECT_EQ(place_tip(100, 40, {10, 10, 50, 30}, screen, true).left, -20);
    EXPECT_EQ(place_tip(100, 40, {360, 10, 400, 30}, screen, true).left, 300);
}

} // namespace
