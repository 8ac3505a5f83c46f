// Files that tests write and read back.
#pragma once

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

inline std::string text_of(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// A file that goes with the object.
struct TemporaryFile {
    explicit TemporaryFile(const std::vector<std::uint8_t>& bytes = {}) { write(bytes); }
    explicit TemporaryFile(std::string_view text)
        : TemporaryFile(std::vector<std::uint8_t>(text.begin(), text.end())) {}
    ~TemporaryFile() { std::remove(name()); }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const char* name() const { return "temporary_test_file.tmp"; }
    void write(const std::vector<std::uint8_t>& bytes) const {
        std::ofstream(name(), std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    }
    std::string text() const { return text_of(name()); }
    std::vector<std::uint8_t> bytes() const {
        const std::string all = text();
        return {all.begin(), all.end()};
    }
};
