// Tells where a part of a program's windows lies, and its text: find_part DESKTOP PROGRAM.exe ID. Prints "x y w h
// text"; ends with 1 where no visible part has that number.
#include <windows.h>

#include <psapi.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

struct Search {
    const char* program;
    int id;
    HWND found;
};

bool belongs_to(HWND window, const char* program) {
    DWORD id = 0;
    ::GetWindowThreadProcessId(window, &id);
    const HANDLE process = ::OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, id);
    char path[MAX_PATH] = "";
    ::GetModuleFileNameExA(process, nullptr, path, sizeof path);
    ::CloseHandle(process);
    const std::string whole = path;
    return whole.substr(whole.rfind('\\') + 1) == program;
}

BOOL CALLBACK look_at_part(HWND window, LPARAM param) {
    auto& search = *reinterpret_cast<Search*>(param);
    if (::GetDlgCtrlID(window) != search.id || !::IsWindowVisible(window))
        return TRUE;
    search.found = window;
    return FALSE;
}

BOOL CALLBACK look_into(HWND window, LPARAM param) {
    auto& search = *reinterpret_cast<Search*>(param);
    if (::IsWindowVisible(window) && belongs_to(window, search.program))
        ::EnumChildWindows(window, look_at_part, param);
    return !search.found;
}

} // namespace

int main(int count, char** arguments) {
    if (count != 3)
        return 2;
    Search search{arguments[1], std::atoi(arguments[2]), nullptr};
    ::EnumWindows(look_into, reinterpret_cast<LPARAM>(&search));
    if (!search.found)
        return 1;
    RECT place = {};
    ::GetWindowRect(search.found, &place);
    char text[200] = "";
    ::SendMessageA(search.found, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
    for (char& c : text)
        c = c == '\r' || c == '\n' ? ' ' : c;
    std::printf("%ld %ld %ld %ld %s\n", place.left, place.top, place.right - place.left, place.bottom - place.top,
                text);
    return 0;
}
