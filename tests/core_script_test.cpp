#include "script/colours.h"
#include "script/keywords.h"
#include "script/script_file.h"
#include "script/script_line.h"
#include "script/values.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace wnt;

namespace {

TEST(ScriptLine, FollowsTheGrammar) {
    const struct {
        std::string_view line, key, value;
    } cases[] = {
        {"   :  TITLE  ==  Hello  ", "TITLE", "Hello  "},
        {":TITLE Hello", "TITLE", "Hello"},
        {":TITLE2=x", "TITLE", "2=x"}, // a digit ends the key
        {":TITLE= =x", "TITLE", "=x"}, // only one row of signs is skipped
        {":TITLE=a # b\r\n", "TITLE", "a # b\r\n"},
        {":CLEARMARKS", "CLEARMARKS", ""},
        {":", "", ""},
        {": 3DUP", "", "3DUP"},
        {"\t:TITLE=x", "", ""}, // a tab is no blank
        {"#:TITLE=x", "", ""},
        {"TITLE=x", "", ""},
        {"/GAUGE", "", ""},
        {"", "", ""},
    };
    for (const auto& c : cases) {
        const ScriptLine parts = split_script_line(c.line);
        EXPECT_EQ(parts.key, c.key) << c.line;
        EXPECT_EQ(parts.value, c.value) << c.line;
    }
}

TEST(Keywords, LookupsKeepTheirOddAnswers) {
    EXPECT_EQ(keyword_lookup(gauge_type_words, "TURNKNOB", 6), 5);
    EXPECT_EQ(keyword_lookup(gauge_type_words, "TURNKNOB", 5), -1);
    EXPECT_EQ(keyword_lookup(gauge_type_words, "TURNKNOB", 99), 5); // the table's end bounds the count
    EXPECT_EQ(keyword_lookup(gauge_type_words, "PERCENTBAR", 0), -1);
    for (std::string_view unknown : {"analog", "ANALO", "ANALOG ", "", "UPDATE", "ABCDEFGHIJKLMNOP"})
        EXPECT_EQ(keyword_lookup(gauge_type_words, unknown, 6), -1) << unknown;
    constexpr std::string_view long_words[] = {"ABCDEFGHIJKLMNO", "ABCDEFGHIJKLMNOP"};
    EXPECT_EQ(keyword_lookup(long_words, long_words[0], 2), 0);
    EXPECT_EQ(keyword_lookup(long_words, long_words[1], 2), -1); // 16 characters are too many

    const std::pair<std::string_view, int> alignments[] = {{"TOP", 4},  {"CENTER", 8},       {"BOTTOM", 0},
                                                           {"", 0},     {"TOPCENTERX", -1},  {"---", 3},
                                                           {"TOPC", 6}, {"CENTERCENTER", 10}};
    for (const auto& [word, code] : alignments)
        EXPECT_EQ(keyword_prefix_lookup(alignment_words, word), code) << word;
    EXPECT_EQ(leading_key_lookup(button_keys, "BORDERH=3", 19), 10);
    EXPECT_EQ(leading_key_lookup(button_keys, "WORDWRAP X", 18), -1);
    EXPECT_EQ(leading_key_lookup(button_keys, "=3", 19), 0);

    EXPECT_EQ(colour_lookup("DARKBLUE"), 10);
    EXPECT_EQ(colour_values[colour_lookup("GRAY")], 0xC0C0C0u);
    EXPECT_EQ(colour_values[colour_lookup("DARKYELLOW")], 0x008080u);
    for (std::string_view unknown : {"DarkBlue", "DARKBLUE ", ""})
        EXPECT_EQ(colour_lookup(unknown), 255) << unknown;
    EXPECT_EQ(colour_lookup(text_of(nullptr)), 255);
}

TEST(Keywords, CodesOutsideATableHaveNoWord) {
    EXPECT_STREQ(keyword_at(alignment_words, 10), "CENTERCENTER");
    EXPECT_EQ(keyword_at(alignment_words, 11), nullptr);
    EXPECT_EQ(keyword_at(colour_words, 255), nullptr);
    EXPECT_EQ(keyword_at(side_words, -1), nullptr);
    EXPECT_STREQ(line_style_word(0), "SOLID");
    for (int code : {-256, 1, 7, 256, 1792})
        EXPECT_EQ(line_style_word(code), nullptr) << code;
}

TEST(Values, Convert) {
    const std::pair<std::string_view, std::int32_t> numbers[] = {
        {" 76", 76},
        {"-3x9", -3},
        {"+5", 5},
        {"abc", 0},
        {"\t5", 0},
        {"- 5", 0},
        {"--5", 0},
        {"99999999999999999999999", 2147483647},
        {"2147483648", 2147483647},
        {"-99999999999", -2147483647 - 1},
    };
    for (const auto& [text, number] : numbers)
        EXPECT_EQ(integer_value(text), number) << text;

    for (std::string_view yes : {"X", "yes", "x", " 1", "Y"})
        EXPECT_TRUE(flag_lookup(yes)) << yes;
    for (std::string_view no : {"TRUE", "J", "0", "", "\tX"})
        EXPECT_FALSE(flag_lookup(no)) << no;

    const std::pair<std::string_view, int> sides[] = {
        {"LEFT RIGHT TOP BOTTOM", 15}, {"LEFT,TOP", 5}, {"TOPLEFT", 5}, {"BOTTOM", 8}, {"left", 0}, {"", 0}};
    for (const auto& [text, set] : sides)
        EXPECT_EQ(side_set_value(text), set) << text;

    const std::pair<std::string_view, int> heights[] = {{"-3", 0}, {"9", 5}, {"abc", 0}, {"4", 4}};
    for (const auto& [text, height] : heights)
        EXPECT_EQ(border_height_value(text), height) << text;

    EXPECT_EQ(number_in_range("50", 1, 40, 7), 7);
    EXPECT_EQ(number_in_range("40", 1, 40, 7), 40);
    EXPECT_EQ(number_in_range("50", 0, 40, 7), 50); // a bound of 0 switches the check off
    EXPECT_EQ(number_in_range("0000000000000000012345", 0, 0, 7), 12);
}

TEST(Values, MarksTakeWhatStandsBehindTheCommas) {
    const struct {
        std::string_view text;
        std::int32_t value;
        int colour;
    } cases[] = {
        {"20,GREEN", 20, 4}, {" -7 about,,,  RED", -7, 6}, {"5, ,RED", 5, 255}, {"30", 30, 255}, {"30 ,", 30, 255},
        {"", 0, 255},        {"40,RED ", 40, 255}};
    for (const auto& c : cases) {
        EXPECT_EQ(mark_value(c.text).value, c.value) << c.text;
        EXPECT_EQ(mark_value(c.text).colour, c.colour) << c.text;
    }
}

TEST(Values, TextFieldsKeepWhatIsNotOverwritten) {
    std::array<char, id_capacity> id{};
    copy_id(id, "ABCDEFGHIJKLMNOPQRSTUVWXY");
    EXPECT_EQ(field_text(id), "ABCDEFGHIJKLMNOPQRST"); // no terminator left
    copy_id(id, "xy");
    EXPECT_EQ(field_text(id), "xyCDEFGHIJKLMNOPQRST");

    std::array<char, title_capacity> title{};
    for (std::size_t length : {60u, 50u, 49u}) {
        copy_title(title, std::string(length, 'a'));
        EXPECT_EQ(field_text(title), std::string(49, 'a')) << length;
    }
    copy_title(title, std::string(48, 'b'));
    EXPECT_EQ(field_text(title), std::string(48, 'b'));
    copy_title(title, "");
    EXPECT_EQ(field_text(title), "");
}

// A source that hands out the text in pieces, and then the end of the file or a read error.
auto pieces_of(std::string_view text, std::size_t piece, bool fails) {
    return [=](char* to, int capacity) mutable {
        const std::size_t count = text.copy(to, std::min<std::size_t>(piece, capacity));
        text.remove_prefix(count);
        return count == 0 && fails ? -1 : static_cast<int>(count);
    };
}

std::vector<std::string> lines_of(std::string_view text, std::size_t piece, bool fails) {
    std::vector<std::string> lines;
    feed_script(pieces_of(text, piece, fails),
                [&](const char* line, int mode) { lines.push_back(mode == script_end ? "END" : line); });
    return lines;
}

TEST(ScriptFile, DeliversLinesWhateverTheBlocks) {
    using Lines = std::vector<std::string>;
    const std::string full(127, 'x');
    const std::string long_text = full + "\r\n" + std::string(600, 'y');
    const struct {
        std::string text;
        bool fails;
        Lines lines;
    } cases[] = {
        {"", false, {"", "END"}},
        {"a\nb\n", false, {"a", "b", "", "END"}},
        {"a\r\n\r\rb\rc", false, {"a", "bc", "", "END"}},
        {"a\n\nb", false, {"a", "", "b", "", "END"}},
        {"a\nb\x1A"
         "c\nd\n",
         false,
         {"a", "b", "", "END"}},
        {full + "\na\n", false, {full, "a", "", "END"}},
        {full + "\r", false, {full, "", "END"}},
        {full + "x\na\n", false, {full, "END"}},
        {long_text, false, {full, std::string(127, 'y'), "END"}},
        {"a\nb", true, {"a", "b"}},
        {"a\n", true, {"a", ""}},
        {"a\x1A", true, {"a", "", "END"}},
    };
    for (const auto& c : cases) {
        for (std::size_t piece : {1u, 2u, 128u, 512u})
            EXPECT_EQ(lines_of(c.text, piece, c.fails), c.lines) << c.text << " in pieces of " << piece;
    }
}

TEST(ScriptFile, TakesTheNameOutOfQuotes) {
    const std::pair<std::string, std::string> paths[] = {
        {"C:\\a b.dat", "C:\\a b.dat"},
        {"\"C:\\a b.dat\" %1", "C:\\a b.dat"},
        {"open \"x.dat", "x.dat"},
        {"\"\"", ""},
        {"\"" + std::string(300, 'n') + "\"", std::string(259, 'n')},
        {std::string(300, 'n'), std::string(300, 'n')},
    };
    for (const auto& [path, name] : paths)
        EXPECT_EQ(script_file_name(path), name) << path;
}

} // namespace
