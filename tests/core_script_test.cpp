#include "script/colours.h"
#include "script/keywords.h"
#include "script/script_file.h"
#include "script/values.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <climits>
#include <iterator>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

using namespace wnt;

namespace {

TEST(ScriptLine, FollowsTheGrammar) {
    const std::string_view cases[][3] = {
        {"   :  TITLE  ==  Hello  ", "TITLE", "Hello  "},
        {":TITLE Hello", "TITLE", "Hello"},
        {":TITLE2=x", "TITLE", "2=x"}, // a digit ends the key
        {":TITLE= =x", "TITLE", "=x"}, // only one row of signs is skipped
        {":TITLE=a # b\r\n", "TITLE", "a # b\r\n"},
        {":CLEARMARKS", "CLEARMARKS", ""},
        {": 3DUP", "", "3DUP"},
        {"\t:TITLE=x", "", ""}, // a tab is no blank
        {"#:TITLE=x", "", ""},
    };
    for (const auto& [line, key, value] : cases) {
        const ScriptLine parts = split_script_line(line);
        EXPECT_TRUE(parts.key == key && parts.value == value) << line << ": " << parts.key << ' ' << parts.value;
    }
}

void expect_codes(auto code_of, std::initializer_list<std::pair<std::string_view, int>> cases) {
    for (const auto& [text, code] : cases)
        EXPECT_EQ(code_of(text), code) << text;
}

TEST(Keywords, LookupsKeepTheirOddAnswers) {
    EXPECT_EQ(keyword_lookup(gauge_type_words, "TURNKNOB", 99), 5); // the table's end bounds the count
    EXPECT_EQ(keyword_lookup(gauge_type_words, "TURNKNOB", 5), -1);
    for (std::string_view unknown : {"analog", "ANALO", "ANALOG ", ""})
        EXPECT_EQ(keyword_lookup(gauge_type_words, unknown, 6), -1) << unknown;
    constexpr std::string_view long_words[] = {"ABCDEFGHIJKLMNO", "ABCDEFGHIJKLMNOP"};
    expect_codes([&](std::string_view word) { return keyword_lookup(long_words, word, 2); },
                 {{long_words[0], 0}, {long_words[1], -1}}); // 16 characters are too many
    std::string alignments;
    for (const char* word : {"TOP", "CENTER", "BOTTOM", "", "TOPCENTERX", "---", "CENTERCENTER", "BOTTOMR", "BOTTOMC",
                             "TOPR", "TOPC", "CENTERR"})
        alignments += std::to_string(keyword_prefix_lookup(alignment_words, word)) + " ";
    EXPECT_EQ(alignments, "4 8 0 0 -1 3 10 1 2 5 6 9 ");
    EXPECT_EQ(leading_key_lookup(button_keys, "BORDERH=3", 19), 10);
    EXPECT_EQ(leading_key_lookup(button_keys, "WORDWRAP X", 18), -1);

    std::ostringstream words; // in the order of their codes
    for (const KeywordTable table :
         std::initializer_list<KeywordTable>{border_type_words, title_style_words, look_words, gauge_type_words,
                                             line_style_words, marker_shape_words, side_words})
        std::ranges::copy(table, std::ostream_iterator<std::string_view>(words, " "));
    for (int i = 0; i < colour_count; ++i)
        words << colour_words[i] << ' ' << std::hex << colour_values[i] << ' ';
    EXPECT_EQ(words.str(),
              "NOBORDER FLAT 3DUP 3DDOWN PLAIN INSET OUTSET BOLD MOTIF MSWIN MAC "
              "PERCENTBAR THERMOMETER ANALOG DIGITAL PEAKLINE TURNKNOB "
              "SOLID ALTERNATE DOT SHORTDASH DASHDOT DOUBLEDOT LONGDASH DASHDOUBLEDOT "
              "CIRCLE TRIANGLE RECTANGLE SEXAGON OCTAGON TOP LEFT BOTTOM RIGHT "
              "BLACK 0 WHITE ffffff BLUE ff0000 YELLOW ffff GREEN ff00 MAGENTA ff00ff RED ff CYAN ffff00 "
              "DARKGRAY 808080 GRAY c0c0c0 DARKBLUE 800000 DARKYELLOW 8080 DARKGREEN 8000 DARKMAGENTA 800080 "
              "DARKRED 80 DARKCYAN 808000 ");
    expect_codes(colour_lookup, {{"DARKBLUE ", 255}, {text_of(nullptr), 255}});
    EXPECT_EQ(std::string(keyword_at(side_words, 0)) + keyword_at(side_words, 3) + line_style_word(0), "TOPRIGHTSOLID");
    EXPECT_TRUE(!keyword_at(side_words, 4) && !line_style_word(7) && !keyword_at(colour_words, 255) &&
                !keyword_at(side_words, -1) && !line_style_word(256));
}

TEST(Values, Convert) {
    expect_codes(integer_value, {{" 76", 76}, {"-3x9", -3}, {"+5", 5}, {"abc", 0}, {"\t5", 0}, {"- 5", 0}});
    expect_codes(integer_value, {{"-99999999999", INT_MIN}, {"99999999999999999999999", INT_MAX}});
    expect_codes(flag_lookup, {{"X", 1}, {"yes", 1}, {" 1", 1}, {"TRUE", 0}, {"J", 0}, {"", 0}});
    expect_codes(side_set_value, {{"LEFT RIGHT TOP BOTTOM", 15}, {"TOPLEFT", 5}, {"left", 0}});
    expect_codes(border_height_value, {{"-3", 0}, {"9", 5}});
    EXPECT_EQ(number_in_range("50", 1, 40, 7), 7);
    EXPECT_EQ(number_in_range("50", 0, 40, 7), 50); // a bound of 0 switches the check off
    EXPECT_EQ(number_in_range("0000000000000000012345", 0, 0, 7), 12);
    const std::tuple<std::string_view, int, int> marks[] = {
        {"20,GREEN", 20, 4}, {" -7 about,,,  RED", -7, 6}, {"5, ,RED", 5, 255}, {"30", 30, 255}, {"", 0, 255}};
    for (const auto& [text, value, colour] : marks)
        EXPECT_TRUE(mark_value(text).value == value && mark_value(text).colour == colour) << text;
}

TEST(Values, TextFieldsKeepWhatIsNotOverwritten) {
    std::array<char, id_capacity> id{};
    copy_id(id, "ABCDEFGHIJKLMNOPQRSTUVWXY");
    copy_id(id, "xy");
    EXPECT_EQ(field_text(id), "xyCDEFGHIJKLMNOPQRST"); // no terminator anywhere
    std::array<char, title_capacity> title{};
    for (std::size_t length : {60u, 50u, 49u, 48u, 0u}) {
        copy_title(title, std::string(length, 'a'));
        EXPECT_EQ(field_text(title).size(), std::min<std::size_t>(length, 49)) << length;
    }
}

TEST(ScriptFile, EndsAtALineThatIsTooLong) {
    for (const std::size_t length : {127u, 128u}) {
        std::string text = std::string(length, 'x') + "\n:A\n";
        std::vector<std::string> lines;
        feed_script([&](char* to, int) { return static_cast<int>(std::exchange(text, "").copy(to, 1000)); },
                    [&](const char* line, int) { lines.push_back(line); });
        EXPECT_EQ(lines.front().size(), 127u);
        EXPECT_EQ(lines.size() > 2 && lines[1] == ":A", length == 127) << length;
    }
}

TEST(ScriptFile, TakesTheNameOutOfQuotes) {
    const std::string name(300, 'n');
    EXPECT_EQ(script_file_name(name), name);
    EXPECT_EQ(script_file_name("\"C:\\a b.dat\" %1"), "C:\\a b.dat");
    EXPECT_EQ(script_file_name("open \"" + name), name.substr(0, 259));
}

} // namespace
