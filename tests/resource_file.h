// Program files with resources made for the purpose.
#pragma once

#include <windows.h>

#include <cstring>
#include <string>
#include <vector>

using Bytes = std::vector<unsigned char>;

/// Writes the parts of a version block one after the other; each tells its own length first.
class VersionBlockWriter {
public:
    Bytes block(const VS_FIXEDFILEINFO& info, const std::vector<DWORD>& translations) {
        bytes_.clear();
        const auto root = begin(L"VS_VERSION_INFO", sizeof info);
        append(&info, sizeof info);
        const auto variables = begin(L"VarFileInfo", 0);
        const auto value = begin(L"Translation", static_cast<WORD>(4 * translations.size()));
        append(translations.data(), 4 * translations.size());
        end(value);
        end(variables);
        end(root);
        return bytes_;
    }

private:
    std::size_t begin(const wchar_t* name, WORD value_length) {
        align();
        const std::size_t start = bytes_.size();
        const WORD head[] = {0, value_length, 0};
        append(head, sizeof head);
        append(name, 2 * (std::wcslen(name) + 1));
        align();
        return start;
    }
    void end(std::size_t start) {
        const auto length = static_cast<WORD>(bytes_.size() - start);
        std::memcpy(&bytes_[start], &length, sizeof length);
    }
    void align() { bytes_.resize((bytes_.size() + 3) / 4 * 4); }
    void append(const void* data, std::size_t size) {
        const auto* first = static_cast<const unsigned char*>(data);
        bytes_.insert(bytes_.end(), first, first + size);
    }

    Bytes bytes_;
};

/// Makes a small program file with one resource, number 1.
inline bool write_resource_file(const char* path, LPCSTR type, const Bytes& resource) {
    if (!::CopyFileA("libwinpthread-1.dll", path, FALSE))
        return false;
    HANDLE update = ::BeginUpdateResourceA(path, TRUE);
    ::UpdateResourceA(update, type, MAKEINTRESOURCEA(1), 0, const_cast<unsigned char*>(resource.data()),
                      static_cast<DWORD>(resource.size()));
    return ::EndUpdateResourceA(update, FALSE);
}

inline bool write_version_file(const char* path, const Bytes& block) {
    return write_resource_file(path, reinterpret_cast<LPCSTR>(RT_VERSION), block);
}
