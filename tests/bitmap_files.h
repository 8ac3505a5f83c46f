// Bitmap files as tests want them: any depth, size, header and order of rows.
#pragma once

#include <climits>
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
    std::uint32_t pixel_bytes() const { return row_bytes() * static_cast<std::uint32_t>(std::abs(1LL * height)); }

    static std::uint8_t pixel_byte(std::size_t n) { return static_cast<std::uint8_t>(37 * n + n / 7 + 1); }
    /// Blue, green or red of a colour table entry.
    static std::uint8_t colour_byte(std::uint32_t colour, int part) {
        return static_cast<std::uint8_t>(colour * (part == 0 ? 1 : part == 1 ? 3 : 5) + 10 * part);
    }
    /// 0x00BBGGRR of the pixel in column x and, from below, row y.
    std::uint32_t colour_at(int x, int y) const {
        const std::size_t at =
            (height < 0 ? -height - 1 - y : y) * row_bytes() + static_cast<std::size_t>(x * bits / 8);
        const std::uint32_t index = pixel_byte(at) >> (8 - bits % 8 - x * bits % 8) % 8 & ((1 << bits % 8) - 1);
        const std::uint32_t entry = bits == 8 ? pixel_byte(at) : index;
        const int word = pixel_byte(at) | pixel_byte(at + 1) << 8;
        const auto five = [&](int shift) { return (word >> shift & 31) << 3 | (word >> shift & 31) >> 2; };
        const auto direct = [&](int p) { return bits == 16 ? five(5 * p) : pixel_byte(at + p); };
        const auto part = [&](int p) { return bits > 8 ? direct(p) : colour_byte(entry, p); };
        return bits <= 8 && entry >= colours() ? 0 : part(0) << 16U | part(1) << 8U | part(2);
    }

    Bytes bytes() const {
        Bytes file = {'B', 'M'};
        put(file, head_bytes() + gap + pixel_bytes(), 4);
        put(file, 0, 4);
        put(file, head_bytes() + gap, 4);
        put(file, core ? 12 : 40, 4);
        put(file, static_cast<std::uint32_t>(width), core ? 2 : 4);
        put(file, static_cast<std::uint32_t>(height), core ? 2 : 4);
        put(file, 1 | static_cast<std::uint32_t>(bits) << 16, 4);
        for (std::uint32_t value : {0U, 0U, 2835U, 2835U, colours_used, 0U})
            put(file, value, core ? 0 : 4);
        for (std::uint32_t i = 0; i < colours(); ++i)
            for (int part = 0; part < (core ? 3 : 4); ++part)
                file.push_back(part < 3 ? colour_byte(i, part) : 0);
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

/// Each depth, width from 1 to 9, header and order of rows, and odd files that are valid.
inline std::vector<BitmapFile> all_bitmap_files() {
    constexpr std::uint32_t least = 28; // a file with the short header is as long as one with the other
    std::vector<BitmapFile> files = {{8, 5, 2, false, 300}, {24, 5, 2, false, 1000}, {8, 5, -2, false, 20, 77}};
    for (int bits : {1, 4, 8, 16, 24, 32})
        for (int width = 1; width <= 9; ++width) {
            files.push_back({bits, width, 3});
            files.push_back({bits, width, -3});
            if (bits != 16 && bits != 32)
                files.push_back({bits, width, 3, true, 0, least});
        }
    return files;
}

inline const BitmapFile files_to_break[] = {
    {8, 5, 3, false, 4},       {1, 9, -3},     {4, 3, 2, true},  {24, 5, 3},
    {16, 3, 3, false, 2},      {32, 2, 2},     {24, 3, 4, true}, {4, 8, 3, false, 5, 9},
    {8, 0, INT_MIN, false, 2}, {0, 5, INT_MIN}};

/// Those files cut anywhere, and with bits of their heads turned over.
template <class Try> void try_broken_bitmap_files(Try try_file) {
    for (const BitmapFile& file : files_to_break) {
        for (Bytes cut = file.bytes(); !cut.empty(); cut.pop_back())
            try_file(cut);
        for (std::size_t at = 0; at < file.head_bytes(); ++at)
            for (int flip : {0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80, 0xFF}) {
                Bytes bytes = file.bytes();
                bytes[at] = static_cast<std::uint8_t>(bytes[at] ^ flip);
                try_file(bytes);
            }
    }
}
