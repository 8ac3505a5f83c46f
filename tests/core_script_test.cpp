#include "script/colours.h"
#include "script/keywords.h"
#include "script/script_file.h"
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
        {": 3DUP", "", "3DUP"},
        {"\t:TITLE=x", "", ""}, // a tab is no blank
        {"#:TITLE=x", "", ""},
    };
    for (const auto& c : cases) {
        const ScriptLine parts = split_script_line(c.line);
        EXPECT_TRUE(parts.key == c.key && parts.value == c.value) << c.line << ": " << parts.key << ' ' << parts.value;
    }
}

TEST(Keywords, LookupsKeepTheirOddAnswers) {
    EXPECT_EQ(keyword_lookup(gauge_type_words, "TURNKNOB", 99), 5); // the table's end bounds the count
    EXPECT_EQ(keyword_lookup(gauge_type_words, "TURNKNOB", 5), -1);
    for (std::string_view unknown : {"analog", "ANALO", "ANALOG ", ""})
        EXPECT_EQ(keyword_lookup(gauge_type_words, unknown, 6), -1) << unknown;
    constexpr std::string_view long_words[] = {"ABCDEFGHIJKLMNO", "ABCDEFGHIJKLMNOP"};
    EXPECT_EQ(keyword_lookup(long_words, long_words[0], 2), 0);
    EXPECT_EQ(keyword_lookup(long_words, long_words[1], 2), -1); // 16 characters are too many

    const std::pair<std::string_view, int> alignments[] = {
        {"TOP", 4}, {"CENTER", 8}, {"BOTTOM", 0}, {"", 0}, {"TOPCENTERX", -1}, {"---", 3}, {"CENTERCENTER", 10}};
    for (const auto& [word, code] : alignments)
        EXPECT_EQ(keyword_prefix_lookup(alignment_words, word), code) << word;
    EXPECT_EQ(leading_key_lookup(button_keys, "BORDERH=3", 19), 10);
    EXPECT_EQ(leading_key_lookup(button_keys, "WORDWRAP X", 18), -1);

    EXPECT_EQ(colour_values[colour_lookup("DARKYELLOW")], 0x008080u);
    EXPECT_EQ(colour_lookup("DARKBLUE "), 255);
    EXPECT_EQ(colour_lookup(text_of(nullptr)), 255);

    EXPECT_EQ(keyword_at(colour_words, 255), nullptr);
    EXPECT_EQ(keyword_at(side_words, -1), nullptr);
    EXPECT_EQ(line_style_word(256), nullptr);
}

TEST(Values, Convert) {
    const std::pair<std::string_view, int> numbers[] = {
        {" 76", 76}, {"-3x9", -3}, {"+5", 5}, {"abc", 0}, {"\t5", 0}, {"- 5", 0}, {"-99999999999", -2147483647 - 1}};
    for (const auto& [text, number] : numbers)
        EXPECT_EQ(integer_value(text), number) << text;
    EXPECT_EQ(integer_value("99999999999999999999999"), 2147483647);
    const std::pair<std::string_view, bool> flags[] = {{"X", true},     {"yes", true}, {" 1", true},
                                                       {"TRUE", false}, {"J", false},  {"", false}};
    for (const auto& [text, flag] : flags)
        EXPECT_EQ(flag_lookup(text), flag) << text;
    const std::pair<std::string_view, int> sides[] = {{"LEFT RIGHT TOP BOTTOM", 15}, {"TOPLEFT", 5}, {"left", 0}};
    for (const auto& [text, set] : sides)
        EXPECT_EQ(side_set_value(text), set) << text;
    EXPECT_EQ(border_height_value("-3"), 0);
    EXPECT_EQ(border_height_value("9"), 5);
    EXPECT_EQ(number_in_range("50", 1, 40, 7), 7);
    EXPECT_EQ(number_in_range("50", 0, 40, 7), 50); // a bound of 0 switches the check off
    EXPECT_EQ(number_in_range("0000000000000000012345", 0, 0, 7), 12);

    const struct {
        std::string_view text;
        int value, colour;
    } marks[] = {{"20,GREEN", 20, 4}, {" -7 about,,,  RED", -7, 6}, {"5, ,RED", 5, 255}, {"30", 30, 255}, {"", 0, 255}};
    for (const auto& c : marks)
        EXPECT_TRUE(mark_value(c.text).value == c.value && mark_value(c.text).colour == c.colour) << c.text;
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

// Reads the text in pieces from a source that ends with the end of the file or with a read error.
std::vector<std::string> lines_of(std::string_view text, std::size_t piece, bool fails) {
    const auto source = [&](char* to, int capacity) {
        const std::size_t count = text.copy(to, std::min<std::size_t>(piece, capacity));
        text.remove_prefix(count);
        return count == 0 && fails ? -1 : static_cast<int>(count);
    };
    std::vector<std::string> lines;
    feed_script(source, [&](const char* line, int mode) { lines.push_back(mode == script_end ? "END" : line); });
    return lines;
}

TEST(ScriptFile, DeliversLinesWhateverTheBlocks) {
    const std::string full(127, 'x');
    const struct {
        std::string text;
        bool fails;
        std::vector<std::string> lines;
    } cases[] = {
        {"", false, {"", "END"}},
        {"a\r\n\r\rb\rc", false, {"a", "bc", "", "END"}},
        {"a\n\nb\x1Az\nd\n", false, {"a", "", "b", "", "END"}},
        {full + "\r\na\n", false, {full, "a", "", "END"}},
        {full + "x\na\n", false, {full, "END"}},
        {full + "\n" + std::string(600, 'y'), false, {full, std::string(127, 'y'), "END"}},
        {"a\nb", true, {"a", "b"}},
        {"a\x1A", true, {"a", "", "END"}},
    };
    for (const auto& c : cases) {
        for (std::size_t piece : {1u, 128u, 512u})
            EXPECT_EQ(lines_of(c.text, piece, c.fails), c.lines) << c.text << " in pieces of " << piece;
    }
}

TEST(ScriptFile, TakesTheNameOutOfQuotes) {
    const std::string name(300, 'n');
    EXPECT_EQ(script_file_name(name), name);
    EXPECT_EQ(script_file_name("\"C:\\a b.dat\" %1"), "C:\\a b.dat");
    EXPECT_EQ(script_file_name("open \"" + name), name.substr(0, 259));
}

} // namespace
