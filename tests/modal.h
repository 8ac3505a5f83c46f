// Tests that run modal dialogs.
#pragma once

#include <windows.h>

#include <functional>
#include <utility>

/// Calls the function again and again while messages are dispatched, until it answers true.
class WhileModal {
public:
    explicit WhileModal(std::function<bool()> work) {
        work_ = std::move(work);
        timer_ = ::SetTimer(nullptr, 0, 20, &WhileModal::tick);
    }
    ~WhileModal() { ::KillTimer(nullptr, timer_); }

private:
    static void CALLBACK tick(HWND, UINT, UINT_PTR timer, DWORD) {
        if (work_())
            ::KillTimer(nullptr, timer);
    }
    static inline std::function<bool()> work_;
    UINT_PTR timer_;
};

/// The dialog of this thread that is shown; null while there is none.
inline HWND shown_dialog() {
    HWND found = nullptr;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM to) -> BOOL {
            char name[32] = "";
            ::GetClassNameA(window, name, sizeof name);
            if (lstrcmpA(name, "#32770") != 0 || !::IsWindowVisible(window))
                return TRUE;
            *reinterpret_cast<HWND*>(to) = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}
