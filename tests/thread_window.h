// Windows and messages of the test's thread.
#pragma once

#include <windows.h>

/// One of a class, visible where that is asked for; null where there is none.
inline HWND thread_window(const char* class_name, bool visible = false) {
    struct Search {
        const char* class_name;
        bool visible;
        HWND found;
    } search = {class_name, visible, nullptr};
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM param) -> BOOL {
            auto& search = *reinterpret_cast<Search*>(param);
            char name[64] = "";
            ::GetClassNameA(window, name, sizeof name);
            if (::lstrcmpiA(name, search.class_name) == 0 && (!search.visible || ::IsWindowVisible(window)))
                search.found = window;
            return !search.found;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

/// Dispatches messages until the condition holds, for so many milliseconds at most; answers whether it holds.
template <class Condition> bool pumped_until(Condition condition, DWORD limit = 3000) {
    MSG message;
    for (const DWORD start = ::GetTickCount(); !condition() && ::GetTickCount() - start < limit;) {
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
        while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
            ::DispatchMessage(&message);
    }
    return condition();
}
