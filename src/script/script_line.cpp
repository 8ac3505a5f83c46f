#include "script/script_line.h"

#include "script/values.h"

namespace wnt {

namespace {

constexpr bool is_letter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

} // namespace

ScriptLine split_script_line(std::string_view line) {
    line = skip_blanks(line);
    if (!line.starts_with(':'))
        return {};
    line = skip_blanks(line.substr(1));
    std::size_t length = 0;
    while (length < line.size() && is_letter(line[length]))
        ++length;
    std::string_view value = skip_blanks(line.substr(length));
    while (value.starts_with('='))
        value.remove_prefix(1);
    return {line.substr(0, length), skip_blanks(value)};
}

} // namespace wnt
