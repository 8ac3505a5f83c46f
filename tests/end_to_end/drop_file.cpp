// Drops a file on the window under a point of the screen, as a file manager does: drop_file X Y FILE
#include <windows.h>

#include <shlobj.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

// The list of one file, as it lies in the memory of the process that gets it.
std::vector<char> dropped(const char* file) {
    DROPFILES header = {};
    header.pFiles = sizeof header;
    std::vector<char> list(sizeof header + std::strlen(file) + 2);
    std::memcpy(list.data(), &header, sizeof header);
    std::memcpy(list.data() + sizeof header, file, std::strlen(file));
    return list;
}

} // namespace

int main(int count, char** arguments) {
    if (count != 4)
        return 2;
    const POINT at = {std::atoi(arguments[1]), std::atoi(arguments[2])};
    HWND target = ::WindowFromPoint(at);
    while (target && !(::GetWindowLongA(target, GWL_EXSTYLE) & WS_EX_ACCEPTFILES))
        target = ::GetParent(target);
    if (!target) {
        std::fputs("nothing takes files there\n", stderr);
        return 1;
    }
    DWORD process = 0;
    ::GetWindowThreadProcessId(target, &process);
    const HANDLE owner = ::OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_WRITE, FALSE, process);
    const auto list = dropped(arguments[3]);
    void* there = ::VirtualAllocEx(owner, nullptr, list.size(), MEM_COMMIT, PAGE_READWRITE);
    const bool sent = there && ::WriteProcessMemory(owner, there, list.data(), list.size(), nullptr) &&
                      ::PostMessageA(target, WM_DROPFILES, reinterpret_cast<WPARAM>(there), 0);
    ::CloseHandle(owner);
    return sent ? 0 : 1;
}
