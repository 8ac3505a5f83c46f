// Bitmap files as tests want them: any depth, size, header and order of rows.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <vector>

using Bytes = std::vector<std::uint8_t>;

struct BitmapFile {
    int bits = 8;
    int width = 1;
    int height = 1; // negative: the upper row first
    bool core = false;
    std::uint32_t colours_used = 0;
    std::uint32_t gap = 0; // bytes between colour table and pixels

    std::uint32_t colours() const { return colours_used ? colours_used : bits <= 8 ? 1U << bits : 0; }
    std::uint32_t head_bytes() const { return core ? 26 + 3 * colours() : 54 + 4 * colours(); }
    std::uint32_t row_bytes() const { return static_cast<std::uint32_t>((width * bits + 31) / 32 * 4); }
    std::uint32_t pixel_bytes() const { return row_bytes() * static_cast<std::uint32_t>(std::abs(height)); }

    /// The nth byte of the pixels as stored.
    static std::uint8_t pixel_byte(std::size_t n) { return static_cast<std::uint8_t>(37 * n + n / 7 + 1); }
    /// Blue, green and red of a colour table entry.
    static std::uint8_t colour_byte(std::uint32_t colour, int part) {
        return static_cast<std::uint8_t>(colour * (part == 0 ? 1 : part == 1 ? 3 : 5) + 10 * part);
    }

    Bytes bytes() const {
        Bytes file = {'B', 'M'};
        put(file, head_bytes() + gap + pixel_bytes(), 4);
        put(file, 0, 4);
        put(file, head_bytes() + gap, 4);
        put(file, core ? 12 : 40, 4);
        put(file, static_cast<std::uint32_t>(width), core ? 2 : 4);
        put(file, static_cast<std::uint32_t>(height), core ? 2 : 4);
        put(file, 1, 2);
        put(file, static_cast<std::uint32_t>(bits), 2);
        for (std::uint32_t value : {0U, 0U, 2835U, 2835U, colours_used, 0U})
            if (!core)
                put(file, value, 4);
        for (std::uint32_t i = 0; i < colours(); ++i) {
            for (int part = 0; part < 3; ++part)
                put(file, colour_byte(i, part), 1);
            if (!core)
                put(file, 0, 1);
        }
        file.insert(file.end(), gap, 0xEE);
        for (std::size_t i = 0; i < pixel_bytes(); ++i)
            file.push_back(pixel_byte(i));
        return file;
    }

    static void put(Bytes& file, std::uint32_t value, int count) {
        for (int i = 0; i < count; ++i)
            file.push_back(static_cast<std::uint8_t>(value >> 8 * i));
    }
};

/// One of each depth, width from 1 to 9, header and order of rows.
inline std::vector<BitmapFile> all_bitmap_files() {
    constexpr std::uint32_t least = 28; // a file with the short header is as long as one with the other
    std::vector<BitmapFile> files;
    for (int bits : {1, 4, 8, 16, 24, 32})
        for (int width = 1; width <= 9; ++width)
            for (int height : {3, -3})
                for (bool core : {false, true})
                    if (!core || (height > 0 && bits != 16 && bits != 32))
                        files.push_back({bits, width, height, core, 0, core ? least : 0});
    return files;
}
