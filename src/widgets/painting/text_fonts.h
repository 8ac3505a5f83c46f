#pragma once

#include <vector>

#include "out/wnt_out.h"

namespace wnt {

/// The last few fonts in which the surface's `chars` writes, by their size: making one anew for each text takes longer
/// than the text.
class TextFonts {
public:
    TextFonts() = default;
    ~TextFonts() { release(); }
    TextFonts(const TextFonts&) = delete;
    TextFonts& operator=(const TextFonts&) = delete;

    /// The font of a size in tenths of a point: this object's, until another one is asked for.
    HFONT font(int tenths);
    void release();

private:
    struct Entry {
        int tenths;
        int bytes_per_character; // of the locale that it was made in
        HFONT font;
    };
    std::vector<Entry> entries_; // the last used one at the end
};

} // namespace wnt
