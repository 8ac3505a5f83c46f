// A bitmap source in memory, and a reader of DIB files over it.
#pragma once

#include "bitmap/bitmap_format.h"

#include <algorithm>
#include <cstring>

struct MemorySource final : wnt::BitmapSource {
    explicit MemorySource(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    std::uint32_t read(void* to, std::uint32_t count) override {
        const auto there = static_cast<std::uint32_t>(std::min<std::uint64_t>(count, remaining()));
        if (there > 0)
            std::memcpy(to, bytes_.data() + at_, there);
        at_ += there;
        return there;
    }
    void seek(std::uint64_t position) override { at_ = position; }
    std::uint64_t remaining() override { return at_ < bytes_.size() ? bytes_.size() - at_ : 0; }

private:
    std::span<const std::uint8_t> bytes_;
    std::uint64_t at_ = 0;
};

inline int dib_head_of(std::span<const std::uint8_t> bytes, wnt::DibHead& head) {
    MemorySource source(bytes);
    return wnt::read_dib_head(
        [&](void* to, std::uint32_t count) {
            source.read(to, count);
            return true;
        },
        head);
}
