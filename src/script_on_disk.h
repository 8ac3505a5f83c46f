#pragma once

#include <windows.h>

#include <string>

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

} // namespace wnt
