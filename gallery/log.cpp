#include "log.h"

#include <cstdarg>
#include <cstdio>
#include <memory>

namespace {

std::unique_ptr<std::FILE, decltype(&std::fclose)> file(nullptr, &std::fclose);

BOOL CALLBACK LogPlace(HWND window, LPARAM) {
    if (::IsWindowVisible(window)) {
        CRect place;
        ::GetWindowRect(window, &place);
        Log("place %d %d %d %d %d", ::GetDlgCtrlID(window), static_cast<int>(place.left), static_cast<int>(place.top),
            place.Width(), place.Height());
    }
    return TRUE;
}

} // namespace

bool OpenLog(const char* name) {
    file.reset(std::fopen(name, "w"));
    return file != nullptr;
}

void Log(const char* format, ...) {
    if (!file)
        return;
    va_list arguments;
    va_start(arguments, format);
    std::vfprintf(file.get(), format, arguments);
    va_end(arguments);
    std::fputc('\n', file.get());
    std::fflush(file.get());
}

void LogPlaces(CWnd& window) {
    ::EnumChildWindows(window.m_hWnd, &LogPlace, 0);
    Log("placed");
}
