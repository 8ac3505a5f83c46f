// Program files with resources made for the purpose.
#pragma once

#include <windows.h>

#include <cstring>
#include <cwchar>
#include <vector>

using Bytes = std::vector<unsigned char>;

inline void append(Bytes& bytes, const void* data, std::size_t size) {
    const auto* first = static_cast<const unsigned char*>(data);
    bytes.insert(bytes.end(), first, first + size);
}

/// A part of a version block: length, length of the value, name, value, further parts.
inline Bytes version_part(const wchar_t* name, const void* value, std::size_t value_size, const Bytes& parts = {}) {
    Bytes bytes(6);
    const auto align = [&bytes] { bytes.resize((bytes.size() + 3) / 4 * 4); };
    append(bytes, name, 2 * (std::wcslen(name) + 1));
    align();
    append(bytes, value, value_size);
    align();
    append(bytes, parts.data(), parts.size());
    const WORD lengths[] = {static_cast<WORD>(bytes.size()), static_cast<WORD>(value_size)};
    std::memcpy(bytes.data(), lengths, sizeof lengths);
    return bytes;
}

inline Bytes version_block(const VS_FIXEDFILEINFO& info, const std::vector<DWORD>& translations) {
    const Bytes languages = version_part(L"Translation", translations.data(), 4 * translations.size());
    return version_part(L"VS_VERSION_INFO", &info, sizeof info, version_part(L"VarFileInfo", nullptr, 0, languages));
}

/// Makes a small program file with one resource, number 1.
inline bool write_resource_file(const char* path, LPCSTR type, const Bytes& resource) {
    if (!::CopyFileA("libwinpthread-1.dll", path, FALSE))
        return false;
    Bytes data = resource;
    HANDLE update = ::BeginUpdateResourceA(path, TRUE);
    ::UpdateResourceA(update, type, MAKEINTRESOURCEA(1), 0, data.data(), static_cast<DWORD>(data.size()));
    return ::EndUpdateResourceA(update, FALSE);
}

inline bool write_version_file(const char* path, const Bytes& block) {
    return write_resource_file(path, reinterpret_cast<LPCSTR>(RT_VERSION), block);
}
