#pragma once

#include <vector>

#include "out/wnt_out.h"
#include "widgets/painting/picture.h"

namespace wnt {

/// Measures text as the surface's `chars` will draw it.
class GdiTextMeter : public TextMeter {
public:
    float width(std::string_view text, int tenths) override;
    FontMetrics metrics(int tenths) override;
    int tenths(float pixels) override;

private:
    struct Font {
        int tenths;
        FontMetrics metrics;
        int widths[256];
    };

    const Font& font(int tenths);
    static Font measure(int tenths);

    std::vector<Font> fonts_;
    int bytes_per_character_ = 0; // of the locale that the fonts were measured in
};

} // namespace wnt
