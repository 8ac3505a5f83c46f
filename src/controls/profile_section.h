#pragma once

#include <windows.h>

#include <cstdlib>
#include <string>

namespace wnt {

/// Whole numbers in a section of a private profile.
struct ProfileSection {
    const char* file;
    const char* section;

    bool named() const { return file && *file && section && *section; }
    bool write(const char* key, int value) const {
        return ::WritePrivateProfileStringA(section, key, std::to_string(value).c_str(), file) != FALSE;
    }
    /// False where there is no number.
    bool read(const char* key, int& value) const {
        char text[16];
        ::GetPrivateProfileStringA(section, key, "", text, sizeof text, file);
        char* end = nullptr;
        const long number = std::strtol(text, &end, 10);
        if (end == text || *end != 0)
            return false;
        value = static_cast<int>(number);
        return true;
    }
};

} // namespace wnt
