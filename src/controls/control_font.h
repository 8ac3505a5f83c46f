#pragma once

#include <afxwin.h>

#include <string_view>

namespace wnt {

/// Makes the controls' font in another size or weight. `pixels` is the characters' height at 96 dots an inch, `scale` a
/// percentage of that.
void make_control_font(CFont& font, int pixels, int scale, int weight);

/// What the controls write their texts in, and how much room that takes. Sizes are pixels.
class ControlFont {
public:
    /// `scale` is a percentage of the size at 96 dots an inch.
    ControlFont(int scale, bool bold);
    ~ControlFont();
    ControlFont(const ControlFont&) = delete;
    ControlFont& operator=(const ControlFont&) = delete;

    CFont& font() { return font_; }
    int width(std::string_view text) const;
    int row() const { return row_; }

private:
    CFont font_;
    HDC dc_;
    HGDIOBJ previous_;
    int row_;
};

} // namespace wnt
