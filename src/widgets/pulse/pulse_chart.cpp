#include "widgets/pulse/pulse_chart.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "script/colours.h"
#include "script/keywords.h"
#include "script/script_line.h"
#include "script/values.h"
#include "widgets/pulse/pulse_view.h"

namespace wnt {

namespace {

enum ChartKey {
    key_msg,
    key_title,
    key_span,
    key_gap,
    key_curve,
    key_clear_curves,
    key_style,
    key_steps,
    key_marks,
    key_grid,
    key_axes,
    key_legend,
    key_fit,
    key_back,
    key_text,
    key_grid_colour
};

template <class Field> bool store(Field& field, Field value) {
    const bool changed = field != value;
    field = value;
    return changed;
}

bool store_switch(bool& field, std::string_view word) {
    if (word == "ON" || word == "1")
        return store(field, true);
    return (word == "OFF" || word == "0") && store(field, false);
}

bool store_colour(std::uint32_t& field, std::string_view name) {
    const int index = colour_lookup(name);
    return index != unknown_colour && store(field, colour_values[index]);
}

// Seconds of a script in hundredths.
std::int64_t hundredths(std::string_view seconds) {
    return std::int64_t{integer_value(seconds)} * 100;
}

std::string_view trimmed(std::string_view text) {
    text = skip_blanks(text);
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

std::optional<double> number(std::string_view text) {
    const std::string digits(trimmed(text).substr(0, 40));
    char* end = nullptr;
    const double value = std::strtod(digits.c_str(), &end);
    const bool whole = !digits.empty() && *end == 0 && std::isfinite(value);
    return whole ? std::optional(value) : std::nullopt;
}

bool is_range(double low, double high) {
    return low < high && std::isfinite(low) && std::isfinite(high) && std::isfinite(high - low);
}

} // namespace

int PulseChart::add_curve(std::string_view name, std::uint32_t colour, double low, double high) {
    if (curves_.size() == most_pulse_curves || !is_range(low, high) || capacity_ * (curves_.size() + 1) > most_samples)
        return no_curve;
    ChartCurve& added = curves_.emplace_back();
    added.title = name.substr(0, pulse_text_size - 1);
    added.colour = colour;
    added.low = low;
    added.high = high;
    added.samples = std::make_unique<PulseSeries>(capacity_);
    return static_cast<int>(curves_.size()) - 1;
}

bool PulseChart::set_range(int index, double low, double high) {
    if (!has(index) || !is_range(low, high))
        return false;
    curve(index).low = low;
    curve(index).high = high;
    return true;
}

bool PulseChart::set_capacity(std::size_t samples) {
    if (samples == 0 || samples > most_samples / std::max<std::size_t>(curves_.size(), 1))
        return false;
    std::vector<std::unique_ptr<PulseSeries>> all;
    for (const ChartCurve& each : curves_) {
        PulseSeries& kept = *all.emplace_back(std::make_unique<PulseSeries>(samples));
        const PulseSeries& before = *each.samples;
        for (std::uint64_t i = before.end() - std::min<std::uint64_t>(before.size(), samples); i != before.end(); ++i)
            if (!kept.append(before[i].time, before[i].value))
                return false;
    }
    for (std::size_t i = 0; i < all.size(); ++i)
        curves_[i].samples = std::move(all[i]);
    capacity_ = samples;
    return true;
}

std::vector<int> PulseChart::ranges() const {
    std::vector<int> result(curves_.size(), no_curve);
    int count = 0;
    for (const bool shown : {true, false})
        for (std::size_t i = 0; i < curves_.size(); ++i) {
            if (curves_[i].shown != shown || result[i] != no_curve)
                continue;
            for (std::size_t k = 0; k < curves_.size(); ++k)
                if (curves_[k].low == curves_[i].low && curves_[k].high == curves_[i].high)
                    result[k] = count;
            ++count;
        }
    return result;
}

std::int64_t PulseChart::effective_pause() const {
    return longest_pause > 0 ? std::min(longest_pause, PulseBlock::hole - 1) : PulseBlock::hole - 1;
}

std::int64_t PulseChart::usual_pause() const {
    constexpr std::uint64_t looked_at = 1000;
    std::int64_t slowest = 0;
    for (const ChartCurve& each : curves_) {
        const PulseSeries& samples = *each.samples;
        std::vector<std::int64_t> pauses;
        for (std::uint64_t i = samples.first() + 1; i < samples.end() && pauses.size() < looked_at; ++i)
            pauses.push_back(samples[i].time - samples[i - 1].time);
        if (pauses.empty())
            continue;
        const auto middle = pauses.begin() + static_cast<std::ptrdiff_t>(pauses.size() / 2);
        std::nth_element(pauses.begin(), middle, pauses.end());
        slowest = std::max(slowest, *middle);
    }
    return slowest;
}

std::optional<double> PulseChart::value_at(int index, std::int64_t time) const {
    if (!has(index))
        return std::nullopt;
    const PulseSeries& samples = *curves_[static_cast<std::size_t>(index)].samples;
    time = std::clamp(time, -PulseSeries::latest, PulseSeries::latest);
    const std::uint64_t next = samples.seek(time + 1, samples.end());
    if (next == samples.first())
        return std::nullopt;
    const PulsePoint& last = samples[next - 1];
    if (std::isnan(last.value) || time - last.time > effective_pause())
        return std::nullopt;
    return last.value;
}

std::optional<std::int64_t> PulseChart::oldest() const {
    std::optional<std::int64_t> result;
    for (const ChartCurve& each : curves_)
        if (each.samples->size()) {
            const std::int64_t first = (*each.samples)[each.samples->first()].time;
            result = std::min(result.value_or(first), first);
        }
    return result;
}

std::optional<std::int64_t> PulseChart::newest() const {
    std::optional<std::int64_t> result;
    for (const ChartCurve& each : curves_)
        if (each.samples->size())
            result = std::max(result.value_or(each.samples->newest()), each.samples->newest());
    return result;
}

// title, COLOUR, least, greatest; without a range 0 to 100.
bool PulseChart::load_curve(std::string_view value) {
    std::array<std::string_view, 4> parts{};
    for (std::string_view& part : parts) {
        const std::size_t comma = value.find(',');
        part = trimmed(value.substr(0, comma));
        value = comma == std::string_view::npos ? std::string_view() : value.substr(comma + 1);
    }
    const int colour = colour_lookup(parts[1]);
    const bool plain = parts[2].empty() && parts[3].empty();
    const std::optional<double> low = plain ? 0 : number(parts[2]), high = plain ? 100 : number(parts[3]);
    return colour != unknown_colour && low && high &&
           add_curve(parts[0], colour_values[colour], *low, *high) != no_curve;
}

bool PulseChart::load_line(std::string_view line) {
    const auto [key, value] = split_script_line(line);
    if (key.empty())
        return false;
    const std::string_view word = trimmed(value);
    ChartCurve* const last = curves_.empty() ? nullptr : &curves_.back();
    switch (keyword_lookup(chart_keys, key, std::size(chart_keys))) {
    case key_title:
        return store(title, std::string(value.substr(0, title_capacity - 1)));
    case key_span:
        return hundredths(value) > 0 &&
               store(span, std::clamp(hundredths(value), PulseView::shortest_span, PulseView::longest_span));
    case key_gap:
        return hundredths(value) >= 0 && store(longest_pause, hundredths(value));
    case key_curve:
        return load_curve(value);
    case key_clear_curves:
        return std::exchange(curves_, {}).size() > 0;
    case key_style: {
        const int style = keyword_lookup(line_style_words, word, std::size(line_style_words));
        return last && style >= 0 && store(last->style, style);
    }
    case key_steps:
        return last && store_switch(last->steps, word);
    case key_marks:
        return last && store_switch(last->marks, word);
    case key_grid:
        return store_switch(grid, word);
    case key_axes:
        return store(axes, side_set_value(value));
    case key_legend:
        return store_switch(legend, word);
    case key_fit:
        return store_switch(fit, word);
    case key_back:
        return store_colour(background, word);
    case key_text:
        return store_colour(text, word);
    case key_grid_colour:
        return store_colour(grid_colour, word);
    default:
        return false;
    }
}

} // namespace wnt
