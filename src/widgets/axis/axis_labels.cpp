#include "widgets/axis/axis_labels.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <iterator>

namespace wnt {

namespace {

constexpr const char* month_names[] = {"Jan", "Feb", "Mar", "Apr", "Mai", "Jun",
                                       "Jul", "Aug", "Sep", "Okt", "Nov", "Dez"};

template <class... Values> std::string printed(const char* format, Values... values) {
    char text[longest_axis_label + 1];
    std::snprintf(text, sizeof text, format, values...);
    return text;
}

int decimals(float value) {
    const float size = std::fabs(value);
    if (size < 1)
        return 4;
    return size < 10 ? 3 : 2;
}

} // namespace

std::string numeric_label(float value) {
    char digits[longest_axis_label]; // holds the largest float
    const auto end = std::to_chars(digits, std::end(digits), value, std::chars_format::fixed, decimals(value));
    std::string text(digits, end.ptr);
    if (text.find('.') == std::string::npos)
        return text;
    while (text.size() > 2 && text.back() == '0')
        text.pop_back();
    if (text.back() == '.')
        text.pop_back();
    return text;
}

std::string text_label(const char* text) {
    return printed("%s", text ? text : "No title specified");
}

std::string time_label(TimeLabel kind, const TAxisdatetime& record) {
    switch (kind) {
    case TimeLabel::seconds:
        return printed("%2ds", record.second);
    case TimeLabel::minutes:
        return printed("%2dm", record.minute);
    case TimeLabel::hours:
        return printed("%2dh", record.hour);
    case TimeLabel::date:
        return printed("%d.%d.%d", record.day, record.month, record.year);
    case TimeLabel::month_name:
        return 1 <= record.month && record.month <= 12 ? month_names[record.month - 1] : "";
    case TimeLabel::month_number:
        return printed("%d", record.month);
    case TimeLabel::year:
        return printed("%d", record.year);
    case TimeLabel::none:
        break;
    }
    return {};
}

} // namespace wnt
