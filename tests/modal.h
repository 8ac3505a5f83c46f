// Tests that run modal dialogs.
#pragma once

#include <windows.h>

#include <functional>
#include <utility>

#include "thread_window.h"

/// Calls the function again and again while messages are dispatched, until it answers true.
struct WhileModal {
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
    return thread_window("#32770", true);
}
