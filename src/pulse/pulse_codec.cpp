#include "pulse/pulse_codec.h"

#include "pulse/protocol.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <initializer_list>

namespace wnt {

namespace {

constexpr int longest_number = 63;

// White space, or a zero byte, which no word can hold.
bool is_space(int c) {
    return c == ' ' || c == 0 || ('\t' <= c && c <= '\r');
}

// The first character that is no white space, or EOF.
int skip_spaces(std::FILE* from) {
    int c;
    do
        c = std::getc(from);
    while (is_space(c));
    return c;
}

// Up to `capacity` - 1 characters of the next word; what stands behind them is left to the next reading.
bool read_word(std::FILE* from, char* word, int capacity) {
    int length = 0;
    int c = skip_spaces(from);
    for (; c != EOF && !is_space(c) && length < capacity - 1; c = std::getc(from))
        word[length++] = static_cast<char>(c);
    word[length] = 0;
    if (c != EOF)
        std::ungetc(c, from);
    return length > 0;
}

// The text in front of the next semicolon, which is taken too; empty when white space or the end comes first.
std::string_view read_field(std::FILE* from, char (&field)[longest_number + 1]) {
    int length = 0;
    int c = skip_spaces(from);
    for (; c != EOF && c != ';' && !is_space(c) && length < longest_number; c = std::getc(from))
        field[length++] = static_cast<char>(c);
    field[length] = 0;
    return {field, c == ';' ? static_cast<std::size_t>(length) : 0};
}

// The decimal number at the text's beginning, which is taken off.
std::optional<std::int32_t> take_integer(std::string_view& text) {
    std::string_view digits = text;
    if (digits.size() > 1 && digits[0] == '+' && digits[1] != '-')
        digits.remove_prefix(1);
    std::int32_t number = 0;
    const auto [stop, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc{})
        return std::nullopt;
    text.remove_prefix(stop - text.data());
    return number;
}

std::optional<std::int32_t> whole_integer(std::string_view text) {
    const auto number = take_integer(text);
    return text.empty() ? number : std::nullopt;
}

// In the locale's own notation, as it was written.
std::optional<float> whole_float(std::string_view text) {
    char* stop;
    const float number = std::strtof(text.data(), &stop);
    return !text.empty() && stop == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

std::optional<std::int32_t> read_line_count(std::FILE* from) {
    char word[longest_number + 1];
    if (!read_word(from, word, sizeof word))
        return std::nullopt;
    std::string_view text(word);
    return take_integer(text); // what follows the digits is not looked at
}

void append(PulseText& title, std::string_view text) {
    const std::size_t length = std::strlen(title);
    title[length + text.copy(title + length, pulse_text_size - 1 - length)] = 0;
}

bool read_title(std::FILE* from, int index, PulseText& title, std::FILE* log) {
    title[0] = 0;
    PulseText word;
    do {
        if (!read_word(from, word, pulse_text_size))
            return false;
        if (word[0] != ';') {
            append(title, word);
            append(title, " ");
        }
        note(log, "LineTitle[%d]: %s str: %s :%d\n", index, title, word, static_cast<int>(std::strcspn(word, ";")));
    } while (word[0] != ';');
    note(log, "LineTitle[%d]: %s\n", index, title);
    return true;
}

// A number, the character behind it, and so on; a number that is missing ends it.
void parse_numbers(std::string_view text, std::initializer_list<std::int32_t*> numbers) {
    for (std::int32_t* number : numbers) {
        const auto taken = take_integer(text);
        if (!taken)
            return;
        *number = *taken;
        text.remove_prefix(std::min<std::size_t>(text.size(), 1));
    }
}

} // namespace

PulseFault read_header(std::FILE* from, PulseHeader& header, std::FILE* log) {
    const auto count = read_line_count(from);
    if (!count)
        return PulseFault::bad_text;
    note(log, "LineCount: %d\n", *count);
    if (*count < 0 || *count > most_pulse_curves)
        return PulseFault::too_many_lines;
    header.line_count = *count;
    for (int i = 0; i < header.line_count; ++i) {
        if (!read_title(from, i, header.titles[i], log))
            return PulseFault::bad_text;
    }
    return PulseFault::none;
}

void write_header(std::FILE* to, const PulseHeader& header) {
    std::fprintf(to, "%d\n", header.line_count);
    for (int i = 0; i < header.line_count; ++i)
        std::fprintf(to, "%s ;\n", header.titles[i]);
}

std::optional<PulseSample> read_sample(std::FILE* from) {
    char field[longest_number + 1];
    PulseSample sample;
    const auto curve = whole_integer(read_field(from, field));
    if (!curve)
        return std::nullopt;
    const auto value = whole_float(read_field(from, field));
    if (!value || !read_word(from, sample.stamp, pulse_text_size))
        return std::nullopt;
    sample.curve = *curve;
    sample.value = *value;
    return sample;
}

int write_sample(std::FILE* to, std::int32_t curve, float value, const std::tm& time) {
    PulseText stamp;
    if (std::strftime(stamp, sizeof stamp, "%H:%M:%S;%d/%m/%Y", &time) == 0)
        stamp[0] = 0;
    return std::fprintf(to, "%d;%.2f;%s;\n", curve, value, stamp);
}

CalendarTime parse_stamp(std::string_view stamp) {
    CalendarTime time;
    const std::size_t split = std::min(stamp.find(';'), stamp.size());
    std::string_view date = stamp.substr(split);
    date.remove_prefix(std::min<std::size_t>(date.size(), 1));
    parse_numbers(stamp.substr(0, split), {&time.hour, &time.minute, &time.second});
    parse_numbers(date.substr(0, date.find(';')), {&time.day, &time.month, &time.year});
    return time;
}

} // namespace wnt
