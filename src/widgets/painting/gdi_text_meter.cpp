#include "widgets/painting/gdi_text_meter.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "out/device_state.h"
#include "out/point_font.h"
#include "out/text_font.h"

namespace wnt {

namespace {

constexpr std::size_t remembered_fonts = 48;

} // namespace

GdiTextMeter::Font GdiTextMeter::measure(int tenths) {
    Font result = {tenths, {}, {}};
    CWntOut unused;
    unused.fontsize = tenths;
    HDC dc = ::CreateCompatibleDC(nullptr);
    {
        GdiObject<HFONT> made(make_chars_font(unused));
        SelectGuard selected(dc, made.get());
        TEXTMETRICA text = {};
        ::GetTextMetricsA(dc, &text);
        ::GetCharWidth32A(dc, 0, 255, result.widths);
        GLYPHMETRICS glyph = {};
        const MAT2 identity = {{0, 1}, {0, 0}, {0, 0}, {0, 1}};
        const bool outlined = ::GetGlyphOutlineA(dc, '8', GGO_METRICS, &glyph, 0, nullptr, &identity) != GDI_ERROR;
        result.metrics = {static_cast<float>(text.tmAscent), static_cast<float>(text.tmDescent),
                          static_cast<float>(outlined ? glyph.gmptGlyphOrigin.y : text.tmAscent * 3 / 4)};
    }
    ::DeleteDC(dc);
    return result;
}

const GdiTextMeter::Font& GdiTextMeter::font(int tenths) {
    if (const int bytes = static_cast<int>(MB_CUR_MAX); bytes != bytes_per_character_) {
        fonts_.clear();
        bytes_per_character_ = bytes;
    }
    const auto known = std::find_if(fonts_.begin(), fonts_.end(), [&](const Font& f) { return f.tenths == tenths; });
    if (known != fonts_.end())
        return *known;
    if (fonts_.size() >= remembered_fonts)
        fonts_.erase(fonts_.begin());
    fonts_.push_back(measure(tenths));
    return fonts_.back();
}

float GdiTextMeter::width(std::string_view text, int tenths) {
    const Font& f = font(tenths);
    int sum = 0;
    for (unsigned char c : text)
        sum += f.widths[c];
    return static_cast<float>(sum);
}

int GdiTextMeter::tenths(float pixels) {
    return static_cast<int>(std::lround(pixels * 720 / static_cast<float>(screen_dots_per_inch())));
}

FontMetrics GdiTextMeter::metrics(int tenths) {
    return font(tenths).metrics;
}

} // namespace wnt
