#include "screen_scale.h"

#include <windows.h>

#include <algorithm>
#include <atomic>

namespace {

constexpr const char* drawing_support = "zopfdraw.dll";

// Looking for a library that is not there takes longer than all else in a panel's creation: done once, and again when
// settings change.
HMODULE load_drawing_support(bool again) {
    static std::atomic<bool> missing = false;
    if (missing && !again && !::GetModuleHandleA(drawing_support))
        return nullptr;
    DWORD mode = 0;
    ::SetThreadErrorMode(SEM_FAILCRITICALERRORS, &mode); // a damaged one is a missing one, without a message
    const HMODULE library = ::LoadLibraryA(drawing_support);
    ::SetThreadErrorMode(mode, nullptr);
    missing = !library;
    return library;
}

int main_frame_percentage(bool again) {
    const HMODULE library = load_drawing_support(again);
    if (!library)
        return 0;
    using Percentage = int (*)();
    const auto ask = reinterpret_cast<Percentage>(
        reinterpret_cast<void (*)()>(::GetProcAddress(library, "GetMainframeScalePercentage")));
    const int percentage = ask ? ask() : 0;
    ::FreeLibrary(library);
    return percentage;
}

int screen_percentage() {
    const HDC screen = ::GetDC(nullptr);
    const int dots = screen ? ::GetDeviceCaps(screen, LOGPIXELSX) : 96;
    if (screen)
        ::ReleaseDC(nullptr, screen);
    return ::MulDiv(100, dots, 96);
}

} // namespace

int wnt::screen_scale(bool again) {
    int percentage = main_frame_percentage(again);
    if (percentage <= 0)
        percentage = screen_percentage();
    return std::clamp(percentage, 1, 1000);
}
