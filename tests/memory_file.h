// A file object in memory.
#pragma once

#include <afxwin.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <vector>

class MemoryFile : public CFile {
public:
    explicit MemoryFile(std::vector<std::uint8_t> bytes = {}) : bytes_(std::move(bytes)) {}

    UINT Read(void* to, UINT count) override {
        const auto there = static_cast<UINT>(std::min<ULONGLONG>(count, at_ < bytes_.size() ? bytes_.size() - at_ : 0));
        if (there > 0)
            std::memcpy(to, bytes_.data() + at_, there);
        at_ += there;
        return there;
    }
    void Write(const void* from, UINT count) override {
        if (bytes_.size() + count > room)
            AfxThrowFileException(CFileException::diskFull);
        const auto* first = static_cast<const std::uint8_t*>(from);
        bytes_.insert(bytes_.end(), first, first + count);
    }
    ULONGLONG Seek(LONGLONG offset, UINT) override { return at_ = static_cast<ULONGLONG>(offset); }
    ULONGLONG GetPosition() const override { return at_; }
    ULONGLONG GetLength() const override { return bytes_.size(); }
    void Flush() override { ++flushes; }

    const std::vector<std::uint8_t>& bytes() const { return bytes_; }

    std::size_t room = 1 << 26;
    int flushes = 0;

private:
    std::vector<std::uint8_t> bytes_;
    ULONGLONG at_ = 0;
};
