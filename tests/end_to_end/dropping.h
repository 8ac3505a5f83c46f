// Drops a file on a window of another process, as a file manager does.
#pragma once

#include <windows.h>

#include <shlobj.h>

#include <string>

inline bool drop(HWND window, const std::string& file) {
    DROPFILES header = {};
    header.pFiles = sizeof header;
    std::string list(reinterpret_cast<const char*>(&header), sizeof header);
    list.append(file).append(2, '\0');
    DWORD id = 0;
    ::GetWindowThreadProcessId(window, &id);
    const HANDLE process = ::OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_WRITE, FALSE, id);
    void* there = ::VirtualAllocEx(process, nullptr, list.size(), MEM_COMMIT, PAGE_READWRITE);
    const bool sent = there && ::WriteProcessMemory(process, there, list.data(), list.size(), nullptr) &&
                      ::PostMessageA(window, WM_DROPFILES, reinterpret_cast<WPARAM>(there), 0);
    ::CloseHandle(process);
    return sent;
}
