// A file that tests write and read back; it goes with the object.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

class TemporaryFile {
public:
    explicit TemporaryFile(std::string name) : name_(std::move(name)) {}
    TemporaryFile(std::string name, const std::vector<std::uint8_t>& bytes) : name_(std::move(name)) { write(bytes); }
    ~TemporaryFile() { std::remove(name_.c_str()); }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const char* name() const { return name_.c_str(); }
    void write(const std::vector<std::uint8_t>& bytes) const {
        std::FILE* file = std::fopen(name(), "wb");
        std::fwrite(bytes.data(), 1, bytes.size(), file);
        std::fclose(file);
    }
    std::vector<std::uint8_t> bytes() const {
        std::vector<std::uint8_t> all;
        if (std::FILE* file = std::fopen(name(), "rb")) {
            std::fseek(file, 0, SEEK_END);
            all.resize(static_cast<std::size_t>(std::ftell(file)));
            std::rewind(file);
            all.resize(std::fread(all.data(), 1, all.size(), file));
            std::fclose(file);
        }
        return all;
    }
    std::string text() const {
        const auto all = bytes();
        return {all.begin(), all.end()};
    }

private:
    std::string name_;
};
