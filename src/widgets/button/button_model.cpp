#include "widgets/button/button_model.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <type_traits>

#include "arithmetic.h"
#include "script/keywords.h"
#include "script/script_line.h"
#include "script/values.h"

namespace wnt {

namespace {

using Properties = Tcbtn_properties;
using KeyRule = void (*)(Properties&, std::string_view);

void ignore(Properties&, std::string_view) {}

template <auto Field, const auto& Words> void store_keyword(Properties& p, std::string_view value) {
    using Stored = std::remove_reference_t<decltype(p.*Field)>;
    p.*Field = static_cast<Stored>(keyword_lookup(Words, value, std::size(Words)));
}

template <auto Field> void store_colour(Properties& p, std::string_view value) {
    p.*Field = colour_lookup(value);
}

template <auto Field> void store_flag(Properties& p, std::string_view value) {
    p.*Field = flag_lookup(value);
}

void store_id(Properties& p, std::string_view value) {
    copy_id(p.id, value);
}

void store_title(Properties& p, std::string_view value) {
    copy_title(p.title, value);
}

void store_align(Properties& p, std::string_view value) {
    p.align = static_cast<std::uint8_t>(keyword_prefix_lookup(alignment_words, value));
}

void store_border_sides(Properties& p, std::string_view value) {
    p.borderstyle = side_set_value(value);
}

void store_border_height(Properties& p, std::string_view value) {
    p.borderheight = border_height_value(value);
}

struct Key {
    KeyRule rule;
    bool repaints;
};

// One entry a key, in the order of the key table.
constexpr Key keys[] = {
    {ignore, false},                                                   // MSG
    {store_keyword<&Properties::type, look_words>, true},              // TYPE
    {store_id, false},                                                 // ID
    {store_title, true},                                               // TITLE
    {store_align, true},                                               // ALIGN
    {store_flag<&Properties::visible>, true},                          // VISIBLE
    {store_flag<&Properties::fixed>, true},                            // FIXED
    {ignore, false},                                                   // DEPTH
    {store_keyword<&Properties::bordertype, border_type_words>, true}, // BORDERTYPE
    {store_border_sides, true},                                        // BORDERSTYLE
    {store_border_height, true},                                       // BORDERHEIGHT
    {store_colour<&Properties::clrtext>, true},                        // CLRTEXT
    {store_colour<&Properties::clrback>, true},                        // CLRBACK
    {store_colour<&Properties::clrborder>, true},                      // CLRBORDER
    {store_colour<&Properties::clrsun>, true},                         // CLRSUN
    {store_colour<&Properties::clrshadow>, true},                      // CLRSHADOW
    {store_flag<&Properties::frame>, true},                            // FRAME
    {store_keyword<&Properties::titlestyle, title_style_words>, true}, // TITLESTYLE
    {store_flag<&Properties::wordwrap>, true},                         // WORDWRAP
};
static_assert(std::size(keys) == std::size(button_keys));

constexpr int all_sides = side_left | side_right | side_top | side_bottom;

using wrapped::add;
using wrapped::subtract;

// Where a title stands in one direction, and where its underline begins.
struct Place {
    int text;
    int underline;
};

// which: 0 the low end, 1 the high end, 2 the middle. The distances back from the text to the underline are fixed.
Place placed(int which, int low, int high, int extent, int back_from_high, int back_from_middle) {
    if (which == 0)
        return {low, low};
    const int at = which == 1 ? high : add(low, extent / 2);
    return {at, subtract(at, which == 1 ? back_from_high : back_from_middle)};
}

} // namespace

bool ButtonBox::holds(int px, int py) const {
    return px > x && px < x + width && py > y && py < y + height;
}

int ButtonInside::width() const {
    return subtract(right, left);
}

int ButtonInside::height() const {
    return subtract(top, bottom);
}

ButtonInside button_inside(const Tcbtn_properties& p, const ButtonBox& box) {
    // Blocks hold any height. Beyond the button's size it counts as that size, so that nothing wraps; below zero the
    // title's size grows with it.
    const int most = std::max({box.width, box.height, highest_border});
    const int inset = std::clamp(p.borderheight, -most, most) + (p.frame ? 2 : 1);
    return {add(box.x, inset), add(box.y, inset), subtract(box.x + box.width - 1, inset),
            subtract(box.y + box.height - 1, inset)};
}

TitleAnchor title_anchor(int align, const ButtonInside& inside) {
    if (align < 0 || align > 10 || align % 4 == 3)
        return {};
    const Place across = placed(align % 4, inside.left, inside.right, inside.width(), 200, 100);
    const Place up = placed(align / 4, inside.bottom, inside.top, inside.height(), 15, 7);
    return {across.text, up.text, across.underline, up.underline};
}

void ButtonModel::clear() {
    std::memset(&properties_, 0, sizeof properties_); // what lies between the fields is compared, too
    mask_ = 0;
}

void ButtonModel::load_line(std::string_view line) {
    const ScriptLine parts = split_script_line(line);
    const int key = parts.key.empty() ? -1 : keyword_lookup(button_keys, parts.key, std::size(button_keys));
    if (key < 0)
        return;
    keys[key].rule(properties_, parts.value);
    if (keys[key].repaints)
        mask_ |= button_background;
}

void ButtonModel::end_script() {
    if (properties_.borderstyle != all_sides)
        properties_.fixed = 1;
}

void ButtonModel::assign(const Tcbtn_properties& block) {
    if (std::memcmp(&block, &properties_, sizeof block) == 0)
        return;
    std::memcpy(&properties_, &block, sizeof block);
    mask_ = button_background | button_foreground;
}

} // namespace wnt
