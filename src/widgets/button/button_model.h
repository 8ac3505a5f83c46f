#pragma once

#include <array>
#include <string_view>

#include "script/keywords.h"
#include "widgets/button/button_properties.h"

namespace wnt {

/// Bits of the button's repaint mask.
enum ButtonRepaint { button_background = 1, button_foreground = 2 };

/// The button's outline, in library coordinates.
struct ButtonBox {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    /// Strictly inside: points on the edge are not.
    bool holds(int px, int py) const;
};

/// What the border leaves, corners inclusive; empty or turned round when the border is too wide.
struct ButtonInside {
    int left = 0;
    int bottom = 0;
    int right = 0;
    int top = 0;

    int width() const;
    int height() const;
};
ButtonInside button_inside(const Tcbtn_properties& properties, const ButtonBox& box);

/// Where the title and its underline go.
struct TitleAnchor {
    int x = 0;
    int y = 0;
    int underline_x = 0;
    int underline_y = 0;
};
/// Alignment codes 3, 7 and above 10 give the surface's origin.
TitleAnchor title_anchor(int align, const ButtonInside& inside);

/// A button's attributes and what a script line does to them.
class ButtonModel {
public:
    ButtonModel() { clear(); }

    const Tcbtn_properties& properties() const { return properties_; }
    int repaint_mask() const { return mask_; }
    void request(int mask) { mask_ |= mask; }
    void painted() { mask_ = 0; }

    void clear();
    void load_line(std::string_view line);
    /// A button whose border is open on any side does not react to the mouse, whatever the script said.
    void end_script();
    /// Takes a block over if it differs in any byte, and asks for a repaint then.
    void assign(const Tcbtn_properties& block);

    bool can_press() const { return !properties_.fixed && properties_.bordertype != border_sunk; }
    bool can_release() const { return !properties_.fixed && properties_.bordertype != border_raised; }
    /// The border type is the state that the button keeps.
    void set_border_type(BorderType type) { properties_.bordertype = type; }

private:
    Tcbtn_properties properties_;
    int mask_;
};

/// The script that a new button runs.
inline constexpr std::array<const char*, 12> button_built_in_script = {
    ":ID=WntButton1",        ":VISIBLE=1",
    ":TITLE=WntButton Test", ":DEPTH=5",
    ":CLRBACK=DARKBLUE",     ":CLRSUN=BLUE",
    ":CLRSHADOW=BLACK",      ":TITLESTYLE=OUTSET",
    ":BORDERTYPE=3DUP",      ":BORDERSTYLE=LEFT RIGHT TOP BOTTOM",
    ":BORDERHEIGHT=3",       ":CLRTEXT=YELLOW",
};

} // namespace wnt
