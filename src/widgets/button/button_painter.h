#pragma once

#include "out/wnt_out.h"
#include "widgets/button/button_model.h"

namespace wnt {

// The button's pictures, drawn on a surface that is ready to be drawn on.

/// Ground (when the mask asks for it), frame and border.
void paint_button_background(CWntOut& out, const Tcbtn_properties& properties, const ButtonBox& box, int mask);

/// The title in its style, with its underline.
void paint_button_title(CWntOut& out, const Tcbtn_properties& properties, const ButtonInside& inside);

/// Moves what is inside the border two pixels right and down (pressed) or back.
void move_button_picture(CWntOut& out, const Tcbtn_properties& properties, const ButtonInside& inside, bool pressed);

} // namespace wnt
