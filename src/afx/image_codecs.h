// The platform's pictures: GDI+ and the kinds of files that it knows.
#pragma once

#include "atlimage.h"

#include <vector>

// Keeps GDI+ running for one operation.
class codec_use {
public:
    codec_use();
    ~codec_use();
    codec_use(const codec_use&) = delete;
    codec_use& operator=(const codec_use&) = delete;
    bool runs() const;
};

// Of reading (decoders) or of writing; empty where they cannot be told. The records point into the same memory.
class codec_list {
public:
    explicit codec_list(bool decoders);
    const Gdiplus::ImageCodecInfo* begin() const {
        return reinterpret_cast<const Gdiplus::ImageCodecInfo*>(m_room.data());
    }
    const Gdiplus::ImageCodecInfo* end() const { return begin() + m_count; }

private:
    std::vector<BYTE> m_room;
    UINT m_count = 0;
};
