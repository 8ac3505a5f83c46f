#pragma once

#include <windows.h>

#include <string>

#include "script/script_file.h"

namespace wnt {

/// A script file that others may read meanwhile, but not write; a byte source for feed_script().
class ScriptOnDisk {
public:
    explicit ScriptOnDisk(const std::string& name)
        : handle_(::CreateFileA(name.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                FILE_ATTRIBUTE_NORMAL, nullptr)) {}
    ~ScriptOnDisk() {
        if (handle_ != INVALID_HANDLE_VALUE)
            ::CloseHandle(handle_);
    }
    ScriptOnDisk(const ScriptOnDisk&) = delete;
    ScriptOnDisk& operator=(const ScriptOnDisk&) = delete;

    /// Devices and pipes do not count: reading them might never end.
    bool is_open() const { return handle_ != INVALID_HANDLE_VALUE && ::GetFileType(handle_) == FILE_TYPE_DISK; }

    /// Reads a block; a negative count is a read error.
    int operator()(char* to, int capacity) {
        DWORD count = 0;
        return ::ReadFile(handle_, to, static_cast<DWORD>(capacity), &count, nullptr) ? static_cast<int>(count) : -1;
    }

private:
    HANDLE handle_;
};

/// Feeds the lines of a file to `consume(const char* line, int mode)`; quotes around the path are taken off. False when
/// there is no such file.
template <class Consumer> bool feed_script_on_disk(const char* path, Consumer&& consume) {
    ScriptOnDisk file{std::string(script_file_name(path))};
    if (!file.is_open())
        return false;
    feed_script(file, consume);
    return true;
}

/// True when a dialog's text names a script instead of being a title.
inline bool names_script(const char* text) {
    const DWORD attributes = *text ? ::GetFileAttributesA(text) : INVALID_FILE_ATTRIBUTES;
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

} // namespace wnt
