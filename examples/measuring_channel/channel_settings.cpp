#include "channel_settings.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdlib>

namespace {

using Settings = ChannelSettings;

constexpr char section[] = "Channel";

struct Number {
    const char* entry;
    int Settings::*value;
    int least, greatest;
};
constexpr Number numbers[] = {{"View", &Settings::view, 0, 5},
                              {"Lower", &Settings::lower, Settings::least_value, Settings::greatest_value - 1},
                              {"Upper", &Settings::upper, Settings::least_value, Settings::greatest_value},
                              {"LowLimit", &Settings::low_limit, Settings::least_value, Settings::greatest_value},
                              {"HighLimit", &Settings::high_limit, Settings::least_value, Settings::greatest_value},
                              {"Alarms", &Settings::alarms, 0, 1},
                              {"InsideColour", &Settings::inside_colour, 0, Settings::colours - 1},
                              {"BeyondColour", &Settings::beyond_colour, 0, Settings::colours - 1},
                              {"Shape", &Settings::shape, 0, 2},
                              {"Rate", &Settings::rate, 1, Settings::most_rate},
                              {"Damping", &Settings::damping, 0, 100},
                              {"Told", &Settings::told, 0, 15},
                              {"HotKey", &Settings::hot_key, 0, 0xFFFF},
                              {"Address", &Settings::address, INT_MIN, INT_MAX}};

struct Text {
    const char* entry;
    CString Settings::*value;
};
constexpr Text texts[] = {
    {"Name", &Settings::name}, {"Unit", &Settings::unit}, {"Place", &Settings::place}, {"Order", &Settings::order}};

struct Date {
    const char* entry;
    CTime Settings::*value;
};
constexpr Date dates[] = {{"LastCalibration", &Settings::last_calibration},
                          {"NextCalibration", &Settings::next_calibration}};

} // namespace

void ChannelSettings::Load(CWinApp& program) {
    for (const Number& number : numbers)
        this->*number.value = static_cast<int>(program.GetProfileInt(section, number.entry, this->*number.value));
    for (const Text& text : texts)
        this->*text.value = program.GetProfileString(section, text.entry, this->*text.value);
    for (const Date& date : dates) {
        const CString kept = program.GetProfileString(section, date.entry);
        if (!kept.IsEmpty())
            this->*date.value = CTime(std::strtoll(kept.GetString(), nullptr, 10));
    }
    const CString kept = program.GetProfileString(section, "Factor");
    if (!kept.IsEmpty())
        factor = std::strtod(kept.GetString(), nullptr);
    Repair();
}

void ChannelSettings::Save(CWinApp& program) const {
    for (const Number& number : numbers)
        program.WriteProfileInt(section, number.entry, this->*number.value);
    for (const Text& text : texts)
        program.WriteProfileString(section, text.entry, this->*text.value);
    CString written;
    for (const Date& date : dates) {
        written.Format("%I64d", static_cast<long long>((this->*date.value).GetTime()));
        program.WriteProfileString(section, date.entry, written);
    }
    written.Format("%.17g", factor);
    program.WriteProfileString(section, "Factor", written);
}

void ChannelSettings::Repair() {
    for (const Number& number : numbers)
        this->*number.value = std::clamp(this->*number.value, number.least, number.greatest);
    upper = std::max(upper, lower + 1);
    low_limit = std::clamp(low_limit, lower, upper);
    high_limit = std::clamp(high_limit, low_limit, upper);
    for (const Text& text : texts)
        this->*text.value = (this->*text.value).Left(most_characters);
    const ChannelSettings usual;
    if (!std::is_permutation(order.GetString(), order.GetString() + order.GetLength(), usual.order.GetString(),
                             usual.order.GetString() + usual.order.GetLength()))
        order = usual.order;
    for (const Date& date : dates)
        this->*date.value = std::clamp(this->*date.value, FirstDate(), LastDate());
    factor = std::isfinite(factor) ? std::clamp(factor, least_factor, greatest_factor) : 1;
}
