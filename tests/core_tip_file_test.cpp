#include "controls/text_lines.h"
#include "controls/tip_file.h"

#include <gmock/gmock.h>

#include <algorithm>

using namespace wnt;
using testing::ElementsAre;

namespace {

TEST(TipFile, ParagraphsAreTips) {
    const std::tuple<const char*, std::string, std::vector<std::string>> cases[] = {
        {"nothing", "", {}},
        {"only blanks and comments", "\n \t\r\n; one\r\n;\n\n", {}},
        {"one without a line end", "one", {"one"}},
        {"lines are joined", "one\ntwo\nthree\n\nfour\n", {"one two three", "four"}},
        {"of any system", "one\r\ntwo\rthree\r\n\r\nfour\r\rfive", {"one two three", "four", "five"}},
        {"comments end no tip", "one\n; not this\ntwo\n\n;\nthree ; four", {"one two", "three ; four"}},
        {"indented lines stay", "one\n two\n\tthree\nfour\nfive", {"one\ntwo\nthree\nfour five"}},
        {"an indented one is no comment", " ; one", {"; one"}},
        {"blanks at the ends go", "  one \t \n \n\n\n two\v", {"one", "two"}},
        {"what is no character", std::string("o\0e\x01\x1A\x7Ft\n\0\ntwo", 13), {"o e   t", "two"}},
    };
    for (const auto& [what, bytes, tips] : cases)
        EXPECT_EQ(parse_tip_file(bytes).tips, tips) << what;
}

TEST(TipFile, TellsUtf8FromTheCodePage) {
    const std::pair<const char*, bool> cases[] = {
        {"plain", true},
        {"20 \xC2\xB0\x43 \xE2\x82\xAC \xF0\x9F\x92\xA1", true},
        {"20 \xB0\x43", false},
        {"\xC0\x80", false},         // written too long
        {"\xE0\x9F\xBF", false},     //
        {"\xF0\x8F\xBF\xBF", false}, //
        {"\xED\xA0\x80", false},     // half of a pair
        {"\xED\x9F\xBF", true},      //
        {"\xF4\x90\x80\x80", false}, // beyond the last one
        {"\xF5\x80\x80\x80", false}, //
        {"\xE2\x82", false},         // ends too early
        {"\xE2\x82\x41", false},     //
        {"\x80", false},             //
        {"\xEF\xBB\xBF\xB0", true},  // says so
    };
    for (const auto& [bytes, utf8] : cases)
        EXPECT_EQ(parse_tip_file(bytes).utf8, utf8) << bytes;
    EXPECT_THAT(parse_tip_file("\xEF\xBB\xBFone").tips, ElementsAre("one"));
    EXPECT_TRUE(is_utf8("\xE2\x82", true) && !is_utf8("\xE2\x41", true));
}

TEST(TipFile, KeepsItsBounds) {
    const std::string euro = "\xE2\x82\xAC"; // 64 KB end within one
    std::string text;
    while (text.size() <= longest_day_tip)
        text += euro;
    const TipFile one = parse_tip_file(text + "\n" + text + "\n\nlast");
    ASSERT_EQ(one.tips.size(), 2u);
    EXPECT_EQ(one.tips[0].size(), longest_day_tip / 3 * 3);
    EXPECT_TRUE(is_utf8(one.tips[0]));
    EXPECT_EQ(parse_tip_file(std::string(longest_day_tip + 5, '\xB0')).tips[0].size(), longest_day_tip);
    std::string lines; // a tip of many lines
    while (lines.size() < 2 * longest_day_tip)
        lines += "a line\n";
    EXPECT_EQ(parse_tip_file(lines).tips[0].size(), longest_day_tip);

    std::string huge = std::string(largest_tip_file - 1, 'x') + euro + "\n\ntoo far";
    huge[10] = huge[11] = '\n';
    const TipFile cut = parse_tip_file(huge);
    EXPECT_TRUE(cut.utf8) << "the last character is not whole for the cut alone";
    EXPECT_EQ(cut.tips.size(), 2u);
}

// Every character 2 wide, but for the dots, which are 1.
std::wstring broken(std::wstring_view text, int width, int& lines) {
    std::vector<int> right;
    int at = 0;
    for (const wchar_t c : text)
        right.push_back(at += c == L'.' ? 1 : 2);
    return break_lines(text, right, width, lines);
}

TEST(TextLines, BreaksAtBlanksAndWithinLongWords) {
    const struct {
        const wchar_t* text;
        int width;
        const wchar_t* result;
    } cases[] = {
        {L"", 10, L""},
        {L"one two", 14, L"one two"},
        {L"one two", 13, L"one\r\ntwo"},
        {L"one two", 6, L"one\r\ntwo"},
        {L"one.. two", 8, L"one..\r\ntwo"},
        {L"one\ntwo three", 10, L"one\r\ntwo\r\nthree"},
        {L"wonderful day", 8, L"wond\r\nerfu\r\nl\r\nday"},
        {L"\n\na\n", 8, L"\r\n\r\na\r\n"},
        {L"ab", 0, L"a\r\nb"},
        {L"a b", -5, L"a\r\nb"},
    };
    for (const auto& c : cases) {
        int lines = 0;
        const std::wstring result = broken(c.text, c.width, lines);
        EXPECT_EQ(result, c.result) << c.width;
        EXPECT_EQ(lines, std::count(result.begin(), result.end(), L'\r') + 1);
    }
}

} // namespace
