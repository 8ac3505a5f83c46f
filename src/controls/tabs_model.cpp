#include "controls/tabs_model.h"

#include <algorithm>
#include <iterator>

#include "script/script_line.h"

namespace wnt {

namespace {

enum TabsKey {
    key_msg,
    key_id,
    key_tab,
    key_tip,
    key_close,
    key_disabled,
    key_side,
    key_overflow,
    key_movable,
    key_text,
    key_back,
    key_sun,
    key_shadow
};

template <class Field> bool store(Field& field, Field value) {
    if (field == value)
        return false;
    field = std::move(value);
    return true;
}

template <class Words, class Field> bool store_word(Field& field, const Words& words, std::string_view text) {
    const int found = keyword_lookup(words, text, std::size(words));
    return found >= 0 && store(field, static_cast<Field>(found));
}

bool store_colour(int& field, std::string_view name) {
    const int index = colour_lookup(name);
    return index != unknown_colour && store(field, index);
}

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

std::string plain_text(std::string_view text, int& mark) {
    std::string plain;
    mark = -1;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '&') {
            if (++i == text.size())
                break;
            if (text[i] != '&' && mark < 0)
                mark = static_cast<int>(plain.size());
        }
        plain += text[i];
    }
    return plain;
}

char access_key(std::string_view text) {
    int mark = -1;
    const std::string plain = plain_text(text, mark);
    return mark < 0 ? 0 : lower(plain[static_cast<std::size_t>(mark)]);
}

bool TabsModel::insert(int at, Tab tab) {
    if (at < 0 || count() >= most_tabs)
        return false;
    at = std::min(at, count());
    tab.id = ++last_id_;
    tab.text.resize(std::min(tab.text.size(), longest_text));
    tab.tip.resize(std::min(tab.tip.size(), longest_tip));
    tabs_.insert(tabs_.begin() + at, std::move(tab));
    if (selected_ >= at)
        ++selected_;
    else if (selected_ < 0 && this->at(at).enabled)
        selected_ = at;
    return true;
}

int TabsModel::position_of(int id) const {
    const auto found = std::ranges::find(tabs_, id, &Tab::id);
    return found == tabs_.end() ? -1 : static_cast<int>(found - tabs_.begin());
}

bool TabsModel::remove(int tab) {
    if (!has(tab))
        return false;
    tabs_.erase(tabs_.begin() + tab);
    if (selected_ > tab) {
        --selected_;
    } else if (selected_ == tab) { // the one behind it, or else before it
        selected_ = enabled_from(tab, true);
        if (selected_ < 0)
            selected_ = enabled_from(tab - 1, false);
    }
    return true;
}

bool TabsModel::move(int from, int to) {
    if (!has(from) || !has(to) || from == to)
        return false;
    const auto start = tabs_.begin();
    if (from < to)
        std::rotate(start + from, start + from + 1, start + to + 1);
    else
        std::rotate(start + to, start + from, start + from + 1);
    if (selected_ == from)
        selected_ = to;
    else if (from < selected_ && selected_ <= to)
        --selected_;
    else if (to <= selected_ && selected_ < from)
        ++selected_;
    return true;
}

bool TabsModel::select(int tab) {
    if (!has(tab) || !at(tab).enabled)
        return false;
    selected_ = tab;
    return true;
}

bool TabsModel::enable(int tab, bool enabled) {
    if (!has(tab))
        return false;
    at(tab).enabled = enabled;
    if (enabled && selected_ < 0)
        selected_ = tab;
    if (!enabled && selected_ == tab) {
        selected_ = enabled_from(tab, true);
        if (selected_ < 0)
            selected_ = enabled_from(tab, false);
    }
    return true;
}

bool TabsModel::set_text(int tab, std::string_view text) {
    if (!has(tab))
        return false;
    at(tab).text = text.substr(0, longest_text);
    return true;
}

bool TabsModel::set_tip(int tab, std::string_view tip) {
    if (!has(tab))
        return false;
    at(tab).tip = tip.substr(0, longest_tip);
    return true;
}

int TabsModel::enabled_from(int tab, bool forwards, bool round) const {
    const int step = forwards ? 1 : -1;
    for (int tried = 0; tried < count(); ++tried, tab += step) {
        if (round)
            tab = (tab + count()) % count();
        if (!has(tab))
            return -1;
        if (at(tab).enabled)
            return tab;
    }
    return -1;
}

int TabsModel::with_access_key(char key) const {
    for (int i = 1; i <= count(); ++i) {
        const int tab = (selected_ + i) % count();
        if (at(tab).enabled && key != 0 && access_key(at(tab).text) == lower(key))
            return tab;
    }
    return -1;
}

void TabsModel::begin_script() {
    in_script_ = true;
    named_ = 0;
}

void TabsModel::end_script() {
    while (in_script_ && named_ > 0 && count() > named_)
        remove(count() - 1);
    in_script_ = false;
}

bool TabsModel::name_tab(std::string_view text) {
    if (!in_script_ || !has(named_)) {
        Tab added;
        added.text = text;
        if (!insert(count(), std::move(added)))
            return false;
        current_ = count() - 1;
    } else {
        current_ = named_;
        set_text(current_, text);
        set_tip(current_, "");
        at(current_).closable = false;
        enable(current_, true);
    }
    ++named_;
    return true;
}

// Of the tab that was named last.
bool TabsModel::load_tab(int key, std::string_view value) {
    if (!has(current_))
        return false;
    if (key == key_tip)
        return set_tip(current_, value);
    if (key == key_close)
        return store(at(current_).closable, flag_lookup(value));
    const bool enabled = !flag_lookup(value);
    return at(current_).enabled != enabled && enable(current_, enabled);
}

bool TabsModel::load_strip(int key, std::string_view value) {
    switch (key) {
    case key_side:
        return store_word(side, tabs_side_words, value);
    case key_overflow:
        return store_word(overflow, tabs_overflow_words, value);
    case key_movable:
        return store(movable, flag_lookup(value));
    case key_text:
        return store_colour(text_colour, value);
    case key_back:
        return store_colour(background, value);
    case key_sun:
        return store_colour(sun, value);
    case key_shadow:
        return store_colour(shadow, value);
    default:
        return false;
    }
}

bool TabsModel::load_line(std::string_view line) {
    const ScriptLine parts = split_script_line(line);
    if (parts.key.empty())
        return false;
    const int key = keyword_lookup(tabs_keys, parts.key, std::size(tabs_keys));
    if (key == key_tab)
        return name_tab(parts.value);
    return key >= key_tip && key <= key_disabled ? load_tab(key, parts.value) : load_strip(key, parts.value);
}

} // namespace wnt
