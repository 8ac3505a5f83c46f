#pragma once

#include <windows.h>

#include <algorithm>

#include "bitmap/heap_bytes.h"

namespace wnt {

/// The platform's description of a palette on the heap.
class LogPalette {
public:
    static constexpr WORD version = 0x300;
    static constexpr UINT most_colours = 0xFFFF;

    /// Null inside without colours, with more than can be counted, and without memory.
    explicit LogPalette(UINT count) {
        if (count < 1 || count > most_colours)
            return;
        block_ = zeroed_bytes(bytes_of(count));
        if (block_) {
            get()->palVersion = version;
            get()->palNumEntries = static_cast<WORD>(count);
        }
    }

    /// Version and count, then the entries.
    static DWORD bytes_of(UINT count) { return 4 + 4 * count; }
    LOGPALETTE* get() const { return reinterpret_cast<LOGPALETTE*>(block_.get()); }
    DWORD size() const { return bytes_of(get()->palNumEntries); }

    void take(const RGBQUAD* table) {
        std::transform(table, table + get()->palNumEntries, get()->palPalEntry, [](const RGBQUAD& colour) {
            return PALETTEENTRY{colour.rgbRed, colour.rgbGreen, colour.rgbBlue, 0};
        });
    }

private:
    HeapBytes block_;
};

} // namespace wnt
