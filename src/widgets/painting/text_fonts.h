#pragma once

#include <vector>

#include "out/wnt_out.h"

namespace wnt {

/// Fonts in which the surface's `chars` writes, by their size: making one, and even selecting one, takes longer than
/// a short text.
class TextFonts {
public:
    TextFonts() = default;
    ~TextFonts() { release(); }
    TextFonts(const TextFonts&) = delete;
    TextFonts& operator=(const TextFonts&) = delete;

    /// Has the device context write in the font of a size in tenths of a point. The font stays selected.
    void select(HDC dc, int tenths);
    /// True when there are more fonts than are worth keeping.
    bool many() const;
    /// None of the fonts may be selected any more.
    void release();

private:
    struct Entry {
        int tenths;
        int bytes_per_character; // of the locale that it was made in
        HFONT font;
    };
    std::vector<Entry> entries_;
};

} // namespace wnt
