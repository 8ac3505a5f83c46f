#include "screen_scale.h"

#include <windows.h>

#include <algorithm>

namespace {

int main_frame_percentage() {
    const HMODULE library = ::LoadLibraryA("zopfdraw.dll");
    if (!library)
        return 0;
    using Percentage = int (*)();
    const auto ask =
        reinterpret_cast<Percentage>(reinterpret_cast<void*>(::GetProcAddress(library, "GetMainframeScalePercentage")));
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

int wnt::screen_scale() {
    int percentage = main_frame_percentage();
    if (percentage <= 0)
        percentage = screen_percentage();
    return std::clamp(percentage, 1, 1000);
}
