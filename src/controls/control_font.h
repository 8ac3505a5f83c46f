#pragma once

#include <afxwin.h>

#include <string_view>

namespace wnt {

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
