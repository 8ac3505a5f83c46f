#pragma once

#include "script/values.h"
#include "widgets/gauge/value_history.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace wnt {

/// The gauge's views. A model's type is any integer: an unknown script word stores -1, and `set_type` checks nothing.
enum GaugeType {
    gauge_percent_bar,
    gauge_thermometer,
    gauge_analog,
    gauge_digital,
    gauge_peak_line,
    gauge_turn_knob,
    gauge_type_count
};

/// Bits of the repaint mask.
enum GaugeRepaint { repaint_face = 1, repaint_value = 2, repaint_all = repaint_face | repaint_value };

/// Requests of a scroll bar, numbered as the platform's scroll messages number them.
enum ScrollRequest {
    scroll_line_left,
    scroll_line_right,
    scroll_page_left,
    scroll_page_right,
    scroll_thumb_position,
    scroll_thumb_track,
    scroll_left_end,
    scroll_right_end
};

/// What a gauge shows: one integer value in a range, up to ten coloured marks, titles and looks. The model knows no
/// window; its operations fill `repaint_mask`, which painting consumes.
struct GaugeModel {
    static constexpr int mark_capacity = 10;
    static constexpr int most_scales = 999;
    static constexpr int default_marker_colour = 6;

    /// The three colours are 0x00BBGGRR values.
    explicit GaugeModel(std::uint32_t background = 0, std::uint32_t sun = 0, std::uint32_t shadow = 0)
        : background(background), sun(sun), shadow(shadow) {}

    int repaint_mask = 0;
    bool test_mode = false;
    std::int32_t scales = 100; ///< Scale divisions, 1..999.
    std::int32_t mark_count = 0;
    std::array<std::int32_t, mark_capacity> mark_values{};  ///< In the order in which they were added.
    std::array<std::int32_t, mark_capacity> mark_colours{}; ///< Colour indexes, 255 for an unknown name.

    /// These three are painted as colour values, although script lines store colour indexes in them. That is
    /// intended: existing scripts show as they always did, almost black where they set one.
    std::uint32_t background;
    std::uint32_t sun;
    std::uint32_t shadow;
    std::uint32_t text_colour = 0; ///< A colour index.

    std::int32_t minimum = 0;
    std::int32_t maximum = 100;
    std::int32_t current = 50;
    std::int32_t previous = 0;  ///< The value before the last `set_current_value`.
    bool has_previous = false;  ///< It is a value on the present scale.
    ValueHistory history;       ///< Filled by every change of the current value.
    unsigned face_revision = 0; ///< Counts the changes that leave a painted face out of date.
    std::int32_t type = gauge_percent_bar;
    std::array<char, id_capacity> id{};
    std::array<char, title_capacity> title{};
    std::array<char, title_capacity> unit_title{};
    bool no_title = false;
    bool bar_title = false;
    std::int32_t border_type = 0;   ///< Position in `border_type_words`, or -1.
    std::int32_t border_sides = 0;  ///< A set of SideBit.
    std::int32_t border_height = 2; ///< Pixels, 0..5.
    /// False when the last script ended with an empty range or with the value outside it.
    bool displayable = true;

    std::string_view title_text() const { return field_text(title); }
    std::string_view unit_text() const { return field_text(unit_title); }

    /// Applies one script line; what it does not understand has no effect.
    void load_line(std::string_view line);

    /// Ends a script: puts an inverted range in order and asks for a new face.
    void end_script();

    /// Takes a value inside the range that differs from the current one; true when it did and a repaint is due.
    bool set_current_value(std::int32_t value);

    /// Stores the range as given: neither its order nor the current value is looked at.
    void set_range(std::int32_t low, std::int32_t high);

    void set_type(std::int32_t new_type);

    /// A null text empties its field.
    void set_titles(const char* new_title, const char* new_unit_title);

    void set_test_mode(int mode) { test_mode = mode == 1; }

    /// Range 0..100 at 50; marks and titles stay.
    void clear();

    /// What was measured on another scale is no course to show on this one.
    void forget_course();

    void clear_marks();

    /// Appends a mark; an eleventh one is dropped.
    void add_mark(std::int32_t value, int colour);

    /// Goes on to the next view; after the last one, or from a type beyond it, to the first.
    void switch_view();

    /// Where a scroll bar that stands at `position` goes on a request (ScrollRequest), inside the range. `given` is
    /// the position that a thumb request carries. Other requests leave the position.
    std::int32_t scroll_target(int request, std::int32_t position, std::int32_t given) const;

    /// Colour index of the zone that holds the value.
    int getmarkercolour(std::int32_t value) const;
};

/// The script that a new gauge runs.
inline constexpr std::array<std::string_view, 39> gauge_built_in_script = {
    "#",
    "# GAUGE.DAT",
    "#",
    "# Testdaten fuer Gauge-Widgets",
    "#",
    "# TYPE = ANALOG,DIGITAL,THERMOMETER,PEAKLINE,PERCENTBAR",
    "",
    "/GAUGE",
    ":ID=GAUGE01",
    "#:TYPE=PERCENTBAR",
    "#:TYPE=THERMOMETER",
    ":TYPE=PEAKLINE",
    "#:TYPE=TURNKNOB",
    "#:TYPE=DIGITAL",
    "#:TYPE=ANALOG",
    ":TITLE=Titeltext dieses GAUGE Widgets",
    ":UNITTITLE=Unit",
    ":MINVAL=0",
    ":MAXVAL=100",
    ":CURVAL= 76",
    ":CLEARMARKS",
    ":SETMARK=100,DARKGREEN",
    ":SETMARK=20,GREEN",
    ":SETMARK=30,DARKYELLOW",
    ":SETMARK=40,YELLOW",
    ":SETMARK=50,DARKRED",
    ":SETMARK=60,RED",
    ":SETMARK=70,WHITE",
    ":SCALES=20",
    ":BORDERTYPE=3DUP",
    ":BORDERSTYLE=LEFT RIGHT TOP BOTTOM",
    ":BORDERHEIGHT=0",
    ":CLRBORDER=RED",
    ":CLRTEXT=BLACK",
    "#:CLRSHADOW=DARKGRAY",
    "#:CLRBACK=GRAY",
    "#:CLRSUN=WHITE",
    "#:DEMO=X",
    "",
};

} // namespace wnt
