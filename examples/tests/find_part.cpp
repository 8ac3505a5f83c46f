// Tells where a part of a program's windows lies, and its text: find_part ID, on the desktop that the program has for
// itself. Prints "x y w h text"; ends with 1 where no visible part has that number.
#include <windows.h>

#include <cstdio>
#include <cstdlib>

namespace {

struct Search {
    int id;
    HWND found;
};

BOOL CALLBACK look_at_part(HWND window, LPARAM param) {
    auto& search = *reinterpret_cast<Search*>(param);
    if (::GetDlgCtrlID(window) != search.id || !::IsWindowVisible(window))
        return TRUE;
    search.found = window;
    return FALSE;
}

BOOL CALLBACK look_into(HWND window, LPARAM param) {
    auto& search = *reinterpret_cast<Search*>(param);
    if (::IsWindowVisible(window))
        ::EnumChildWindows(window, look_at_part, param);
    return !search.found;
}

} // namespace

int main(int count, char** arguments) {
    if (count != 2)
        return 2;
    Search search{std::atoi(arguments[1]), nullptr};
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
