// Pictures that tests draw into and read back, and counts of the process's drawing objects and windows.
#pragma once

#include <windows.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

/// A 32-bit DIB section in a memory device context. Positions are library coordinates: y grows upwards.
struct Picture {
    Picture(int width, int height) : width_(width), height_(height), dc_(::CreateCompatibleDC(nullptr)) {
        BITMAPINFO info = {};
        info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        bitmap_ = ::CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        bits_ = static_cast<std::uint32_t*>(bits);
        previous_ = ::SelectObject(dc_, bitmap_);
        clear(0);
    }
    ~Picture() {
        ::SelectObject(dc_, previous_);
        ::DeleteObject(bitmap_);
        ::DeleteDC(dc_);
    }
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    HDC dc() const { return dc_; }
    int width() const { return width_; }
    int height() const { return height_; }

    void clear(COLORREF colour) {
        ::GdiFlush();
        std::fill_n(bits_, std::size_t(width_) * height_, swapped(colour));
    }
    /// Takes what a window's client area shows.
    void capture(HWND window) {
        HDC shown = ::GetDC(window);
        ::BitBlt(dc_, 0, 0, width_, height_, shown, 0, 0, SRCCOPY);
        ::ReleaseDC(window, shown);
    }

    /// Outside the picture: CLR_INVALID.
    COLORREF at(int x, int y) const {
        if (x < 0 || x >= width_ || y < 0 || y >= height_)
            return CLR_INVALID;
        ::GdiFlush();
        return swapped(bits_[std::size_t(height_ - 1 - y) * width_ + x]);
    }
    long count(COLORREF colour) const { return static_cast<long>(std::ranges::count(values(), colour)); }
    /// The pixels that differ from the ground, corners inclusive, top the upper y; right < left when there are none.
    RECT ink(COLORREF ground) const {
        RECT box = {width_, -1, -1, height_};
        const auto all = values();
        for (int i = 0; i < width_ * height_; ++i) {
            if (all[i] == ground)
                continue;
            const LONG x = i % width_;
            const LONG y = height_ - 1 - i / width_;
            box = {std::min(box.left, x), std::max(box.top, y), std::max(box.right, x), std::min(box.bottom, y)};
        }
        return box;
    }
    /// The colours, upper row first.
    std::vector<COLORREF> values() const {
        ::GdiFlush();
        std::vector<COLORREF> all(bits_, bits_ + std::size_t(width_) * height_);
        std::transform(all.begin(), all.end(), all.begin(), swapped);
        return all;
    }

private:
    static std::uint32_t swapped(std::uint32_t v) { return (v & 0xFF) << 16 | (v & 0xFF00) | (v >> 16 & 0xFF); }

    int width_, height_;
    HDC dc_;
    HBITMAP bitmap_;
    HGDIOBJ previous_;
    std::uint32_t* bits_;
};

/// One letter a pixel, '?' for other colours, a line for each row.
inline std::string letters(const std::vector<COLORREF>& values, int width,
                           const std::vector<std::pair<COLORREF, char>>& names) {
    std::string text;
    for (const COLORREF value : values) {
        const auto found = std::find_if(names.begin(), names.end(), [&](const auto& n) { return n.first == value; });
        text += found == names.end() ? '?' : found->second;
        if (text.size() % (width + 1) == std::size_t(width))
            text += '\n';
    }
    return text;
}

/// Live pens, brushes, fonts, regions and the like of this process. GetGuiResources answers 0 on some systems; the
/// process's own handle table always tells.
inline int live_gdi_objects() {
    struct Entry {
        void* object;
        USHORT owner, lock, unique;
        UCHAR type, flags;
        void* user;
    };
    constexpr int first_entries = 0x4000;
    constexpr int handle_table = 0xF8; // in the process's environment block
    using CurrentBlock = const char*(WINAPI*)();
    static const auto current_block = reinterpret_cast<CurrentBlock>(
        reinterpret_cast<void (*)()>(::GetProcAddress(::GetModuleHandleA("ntdll"), "RtlGetCurrentPeb")));
    const auto* table = *reinterpret_cast<const Entry* const*>(current_block() + handle_table);
    return static_cast<int>(std::count_if(table, table + first_entries, [](const Entry& e) { return e.type != 0; }));
}

/// Windows, menus and cursors share one table whose free places are used again: the highest place that a handful of
/// new objects gets tells how full it is.
inline int user_objects() {
    constexpr int probes = 64;
    HMENU menus[probes];
    int highest = 0;
    for (HMENU& menu : menus) {
        menu = ::CreateMenu();
        highest = std::max<int>(highest, LOWORD(reinterpret_cast<UINT_PTR>(menu)) / 2);
    }
    for (HMENU menu : menus)
        ::DestroyMenu(menu);
    return highest;
}

/// The process's drawing objects and windows at a moment.
struct Counts {
    int gdi = live_gdi_objects();
    int user = user_objects();
    int grown() const { return std::max(live_gdi_objects() - gdi, user_objects() - user); }
};
