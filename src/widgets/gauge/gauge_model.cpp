#include "widgets/gauge/gauge_model.h"

#include "script/keywords.h"
#include "script/script_line.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace wnt {

namespace {

// What a key does: it stores its value and answers the bits that the line adds to the repaint mask.
using KeyRule = int (*)(GaugeModel&, std::string_view);

int ignore(GaugeModel&, std::string_view) {
    return 0;
}

template <auto Field> int store_bound(GaugeModel& model, std::string_view value) {
    const std::int32_t bound = integer_value(value);
    if (bound != model.*Field)
        model.forget_course();
    model.*Field = bound;
    return repaint_face;
}

template <auto Field> int store_flag(GaugeModel& model, std::string_view value) {
    model.*Field = flag_lookup(value);
    return repaint_face;
}

template <auto Field> int store_colour(GaugeModel& model, std::string_view value) {
    model.*Field = colour_lookup(value);
    return repaint_face;
}

template <auto Field> int store_title(GaugeModel& model, std::string_view value) {
    copy_title(model.*Field, value);
    return repaint_face;
}

template <auto Field, const auto& Words> int store_keyword(GaugeModel& model, std::string_view value) {
    model.*Field = keyword_lookup(Words, value, std::size(Words));
    return repaint_face;
}

int store_unit_title(GaugeModel& model, std::string_view value) {
    copy_title(model.unit_title, value);
    return 0; // intended: unlike the title, it asks for no repaint of its own
}

int store_id(GaugeModel& model, std::string_view value) {
    copy_id(model.id, value);
    return 0;
}

int store_current(GaugeModel& model, std::string_view value) {
    model.current = std::min(std::max(integer_value(value), model.minimum), model.maximum);
    model.history.record(model.current);
    return repaint_value;
}

int store_mark(GaugeModel& model, std::string_view value) {
    const MarkValue mark = mark_value(value);
    model.add_mark(mark.value, mark.colour);
    return 0;
}

int remove_marks(GaugeModel& model, std::string_view) {
    model.clear_marks();
    return 0;
}

int store_scales(GaugeModel& model, std::string_view value) {
    const std::int32_t count = integer_value(value);
    if (count < 1 || count > GaugeModel::most_scales)
        return 0;
    model.scales = count;
    return repaint_face;
}

int store_border_sides(GaugeModel& model, std::string_view value) {
    model.border_sides = side_set_value(value);
    return 0;
}

int store_border_height(GaugeModel& model, std::string_view value) {
    model.border_height = border_height_value(value);
    return repaint_face;
}

// One rule a key, in the order of the key table.
constexpr KeyRule key_rules[] = {
    ignore,                                                     // MSG
    store_keyword<&GaugeModel::type, gauge_type_words>,         // TYPE
    store_id,                                                   // ID
    store_title<&GaugeModel::title>,                            // TITLE
    store_unit_title,                                           // UNITTITLE
    store_bound<&GaugeModel::minimum>,                          // MINVAL
    store_bound<&GaugeModel::maximum>,                          // MAXVAL
    store_current,                                              // CURVAL
    store_mark,                                                 // SETMARK
    remove_marks,                                               // CLEARMARKS
    store_scales,                                               // SCALES
    store_keyword<&GaugeModel::border_type, border_type_words>, // BORDERTYPE
    store_border_sides,                                         // BORDERSTYLE
    store_border_height,                                        // BORDERHEIGHT
    ignore,                                                     // CLRBORDER
    store_colour<&GaugeModel::text_colour>,                     // CLRTEXT
    store_colour<&GaugeModel::background>,                      // CLRBACK
    store_colour<&GaugeModel::sun>,                             // CLRSUN
    store_colour<&GaugeModel::shadow>,                          // CLRSHADOW
    store_flag<&GaugeModel::no_title>,                          // NOTITLE
    store_flag<&GaugeModel::bar_title>,                         // BARTITLE
    store_flag<&GaugeModel::test_mode>,                         // DEMO
};
static_assert(std::size(key_rules) == std::size(gauge_keys));

} // namespace

void GaugeModel::load_line(std::string_view line) {
    const ScriptLine parts = split_script_line(line);
    const int key = parts.key.empty() ? -1 : keyword_lookup(gauge_keys, parts.key, std::size(gauge_keys));
    if (key < 0)
        return;
    const KeyRule rule = key_rules[key];
    repaint_mask |= rule(*this, parts.value);
    if (rule != store_current && rule != ignore && rule != store_id)
        ++face_revision;
}

void GaugeModel::end_script() {
    if (minimum > maximum)
        std::swap(minimum, maximum);
    displayable = minimum != maximum && current >= minimum && current <= maximum;
    repaint_mask = repaint_face;
}

bool GaugeModel::set_current_value(std::int32_t value) {
    if (value < minimum || value > maximum || value == current)
        return false;
    previous = std::exchange(current, value);
    has_previous = true;
    history.record(value);
    repaint_mask = repaint_value;
    return true;
}

void GaugeModel::set_range(std::int32_t low, std::int32_t high) {
    if (low != minimum || high != maximum)
        forget_course();
    minimum = low;
    maximum = high;
    repaint_mask = repaint_all;
    ++face_revision;
}

void GaugeModel::set_type(std::int32_t new_type) {
    type = new_type;
    repaint_mask |= repaint_face;
    ++face_revision;
}

void GaugeModel::set_titles(const char* new_title, const char* new_unit_title) {
    copy_title(title, text_of(new_title));
    copy_title(unit_title, text_of(new_unit_title));
    repaint_mask = repaint_all;
    ++face_revision;
}

void GaugeModel::clear() {
    set_range(0, 100);
    current = 50;
    forget_course();
}

void GaugeModel::forget_course() {
    history.clear();
    has_previous = false;
}

void GaugeModel::clear_marks() {
    mark_count = 0;
    mark_values.fill(0);
    mark_colours.fill(0);
    repaint_mask |= type == gauge_thermometer ? repaint_face : repaint_value;
    ++face_revision;
}

void GaugeModel::add_mark(std::int32_t value, int colour) {
    if (mark_count >= mark_capacity)
        return;
    mark_values[mark_count] = value;
    mark_colours[mark_count] = colour;
    ++mark_count;
    repaint_mask |= repaint_value;
    ++face_revision;
}

void GaugeModel::switch_view() {
    type = type >= gauge_type_count - 1 ? 0 : type + 1;
    repaint_mask = repaint_all;
    ++face_revision;
}

std::int32_t GaugeModel::scroll_target(int request, std::int32_t position, std::int32_t given) const {
    std::int64_t target = position;
    switch (request) {
    case scroll_line_left:
    case scroll_page_left:
        --target;
        break;
    case scroll_line_right:
    case scroll_page_right:
        ++target;
        break;
    case scroll_thumb_position:
    case scroll_thumb_track:
        target = given;
        break;
    case scroll_left_end:
        target = 1; // intended: not the minimum
        break;
    case scroll_right_end:
        target = maximum;
        break;
    }
    target = std::min<std::int64_t>(std::max<std::int64_t>(target, minimum), maximum);
    return static_cast<std::int32_t>(target);
}

int GaugeModel::getmarkercolour(std::int32_t value) const {
    const int count = mark_count;
    if (count == 0)
        return default_marker_colour;
    if (value < mark_values[0])
        return mark_colours[0];
    if (value > mark_values[count - 1])
        return mark_colours[count - 1];
    // The zone below the last mark is never looked for and has the first colour, like every value that no zone holds.
    for (int i = 1; i <= count - 2; ++i) {
        if (mark_values[i - 1] <= value && value < mark_values[i])
            return mark_colours[i];
    }
    return mark_colours[0];
}

} // namespace wnt
