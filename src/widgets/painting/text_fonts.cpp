#include "widgets/painting/text_fonts.h"

#include <algorithm>
#include <cstdlib>

#include "out/text_font.h"

namespace wnt {

namespace {

constexpr std::size_t kept_fonts = 6; // no view has more sizes of text

} // namespace

void TextFonts::select(HDC dc, int tenths) {
    const int bytes = static_cast<int>(MB_CUR_MAX);
    auto known = std::find_if(entries_.begin(), entries_.end(),
                              [&](const Entry& e) { return e.tenths == tenths && e.bytes_per_character == bytes; });
    if (known == entries_.end()) {
        CWntOut sized;
        sized.fontsize = tenths;
        known = entries_.insert(known, {tenths, bytes, make_chars_font(sized)});
    }
    if (::GetCurrentObject(dc, OBJ_FONT) != known->font)
        ::SelectObject(dc, known->font);
}

bool TextFonts::many() const {
    return entries_.size() > kept_fonts;
}

void TextFonts::release() {
    for (const Entry& entry : entries_)
        ::DeleteObject(entry.font);
    entries_.clear();
}

} // namespace wnt
