#include "widgets/painting/text_fonts.h"

#include <algorithm>
#include <cstdlib>

#include "out/text_font.h"

namespace wnt {

namespace {

constexpr std::size_t kept_fonts = 6; // no view has more sizes of text

} // namespace

HFONT TextFonts::font(int tenths) {
    const int bytes = static_cast<int>(MB_CUR_MAX);
    const auto known = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& e) {
        return e.tenths == tenths && e.bytes_per_character == bytes;
    });
    if (known != entries_.end()) {
        std::rotate(known, known + 1, entries_.end());
        return entries_.back().font;
    }
    if (entries_.size() == kept_fonts) {
        ::DeleteObject(entries_.front().font);
        entries_.erase(entries_.begin());
    }
    CWntOut sized;
    sized.fontsize = tenths;
    entries_.push_back({tenths, bytes, make_chars_font(sized)});
    return entries_.back().font;
}

void TextFonts::release() {
    for (const Entry& entry : entries_)
        ::DeleteObject(entry.font);
    entries_.clear();
}

} // namespace wnt
