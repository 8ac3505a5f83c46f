#include "controls/tool_bar_model.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "script/keywords.h"
#include "script/script_line.h"
#include "script/values.h"

namespace wnt {

namespace {

enum { key_menu = 9, key_text, key_wrap, key_upright, key_drag, key_pictures, key_disabled, key_large, key_checked };

std::string_view trimmed(std::string_view text) {
    text = skip_blanks(text);
    while (text.ends_with(' '))
        text.remove_suffix(1);
    return text;
}

/// The part before the next comma, which it takes from the text; or all of it.
std::string_view next_field(std::string_view& text) {
    const std::size_t comma = std::min(text.find(','), text.size());
    const std::string_view field = trimmed(text.substr(0, comma));
    text.remove_prefix(std::min(comma + 1, text.size()));
    return field;
}

/// A whole number from 0 up, or -1.
int number_of(std::string_view field, int highest) {
    int number = -1;
    const auto [end, error] = std::from_chars(field.data(), field.data() + field.size(), number);
    return error == std::errc() && end == field.data() + field.size() && number >= 0 && number <= highest ? number : -1;
}

template <class T> bool store(T& field, T value) {
    if (field == value)
        return false;
    field = std::move(value);
    return true;
}

} // namespace

bool ToolBarModel::load_line(std::string_view line) {
    const ScriptLine parts = split_script_line(line);
    const int key = parts.key.empty() ? -1 : keyword_lookup(tool_bar_keys, parts.key, std::size(tool_bar_keys));
    if (key < 0)
        return false;
    if (key < key_menu)
        return add_described(static_cast<ToolKind>(key), parts.value);
    switch (key) {
    case key_menu:
        return add_menu_entry(parts.value);
    case key_text: {
        const int word = keyword_lookup(tool_text_words, trimmed(parts.value), std::size(tool_text_words));
        return word >= 0 && store(text, static_cast<ToolText>(word));
    }
    case key_wrap:
        return store(wraps, flag_lookup(parts.value));
    case key_upright:
        return store(upright, flag_lookup(parts.value));
    case key_drag:
        return store(movable, flag_lookup(parts.value));
    case key_pictures:
    case key_large:
        return store(pictures[key == key_large], std::string(trimmed(parts.value)));
    default: {
        const int index = find(number_of(trimmed(parts.value), highest_command));
        if (index < 0)
            return false;
        return key == key_disabled ? store(item(index).enabled, false) : set_check(index, checked);
    }
    }
}

bool ToolBarModel::add_described(ToolKind kind, std::string_view value) {
    ToolItem added;
    added.kind = kind;
    if (kind == ToolKind::label) {
        added.text = trimmed(value);
    } else if (is_button(kind) || kind == ToolKind::window) {
        added.id = number_of(next_field(value), highest_command);
        if (added.id < 1)
            return false;
        added.picture = number_of(next_field(value), most_tools);
        added.text = next_field(value);
        added.tip = trimmed(value);
    }
    if (kind == ToolKind::radio) {
        group_ += !in_group_;
        added.group = group_;
    }
    in_group_ = kind == ToolKind::radio;
    return insert(count(), std::move(added));
}

bool ToolBarModel::add_menu_entry(std::string_view value) {
    if (items_.empty() || !has_menu(items_.back().kind) || items_.back().menu.size() == most_tools)
        return false;
    ToolMenuEntry entry;
    if (!trimmed(value).empty()) {
        entry.id = number_of(next_field(value), highest_command);
        entry.text = trimmed(value);
        if (entry.id < 1)
            return false;
    }
    items_.back().menu.push_back(std::move(entry));
    return false; // it is seen when it opens
}

bool ToolBarModel::insert(int index, ToolItem item) {
    if (!takes(index))
        return false;
    if (item.text.size() > longest_tool_text)
        item.text.resize(longest_tool_text);
    item.added = ++added_;
    items_.insert(items_.begin() + index, std::move(item));
    return true;
}

bool ToolBarModel::remove(int index) {
    if (!has(index))
        return false;
    items_.erase(items_.begin() + index);
    return true;
}

bool ToolBarModel::move(int from, int to) {
    if (!has(from) || to < 0 || to > count() || to == from || to == from + 1)
        return false;
    const auto begin = items_.begin();
    if (to < from)
        std::rotate(begin + to, begin + from, begin + from + 1);
    else
        std::rotate(begin + from, begin + from + 1, begin + to);
    return true;
}

int ToolBarModel::find(int id) const {
    const auto found =
        std::find_if(items_.begin(), items_.end(), [=](const ToolItem& item) { return id > 0 && item.id == id; });
    return found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
}

int ToolBarModel::position_of(int added) const {
    const auto found = std::find_if(items_.begin(), items_.end(), [=](const ToolItem& i) { return i.added == added; });
    return found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
}

bool ToolBarModel::set_check(int index, int check) {
    if (!has(index) || item(index).check == check)
        return false;
    const ToolItem& picked = item(index);
    if (picked.kind == ToolKind::radio && check == checked)
        for (ToolItem& other : items_)
            if (other.kind == ToolKind::radio && other.group == picked.group)
                other.check = unchecked;
    item(index).check = check;
    return true;
}

void ToolBarModel::press(int index) {
    if (!has(index))
        return;
    if (item(index).kind == ToolKind::check)
        set_check(index, item(index).check == checked ? unchecked : checked);
    else if (item(index).kind == ToolKind::radio)
        set_check(index, checked);
}

// An item's command, or which one of those without it is: "-1" the first one that was added.
std::vector<std::string> ToolBarModel::names() const {
    std::vector<std::string> all;
    for (const ToolItem& item : items_) {
        const auto unnamed_before = std::count_if(items_.begin(), items_.end(), [&](const ToolItem& other) {
            return other.id <= 0 && other.added < item.added;
        });
        all.push_back(std::to_string(item.id > 0 ? item.id : -1 - static_cast<int>(unnamed_before)));
    }
    return all;
}

std::string ToolBarModel::order() const {
    std::string text;
    for (const std::string& name : names())
        text += (text.empty() ? "" : ",") + name;
    return text;
}

bool ToolBarModel::set_order(std::string_view text) {
    const std::vector<std::string> all = names();
    std::vector<std::size_t> order;
    const auto is_placed = [&](std::size_t i) { return std::find(order.begin(), order.end(), i) != order.end(); };
    while (!text.empty()) {
        const std::string_view name = next_field(text);
        for (std::size_t i = 0; i < all.size(); ++i)
            if (all[i] == name && !is_placed(i)) {
                order.push_back(i);
                break;
            }
    }
    if (order.empty())
        return false;
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (is_placed(i))
            continue;
        const auto before = i ? std::find(order.begin(), order.end(), i - 1) + 1 : order.begin();
        order.insert(before, i);
    }
    std::vector<ToolItem> sorted;
    for (const std::size_t i : order)
        sorted.push_back(std::move(items_[i]));
    items_ = std::move(sorted);
    return true;
}

} // namespace wnt
