// Tests that run modal dialogs.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
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

/// The window of the menu that is shown; null while there is none.
inline HWND shown_popup() {
    const HWND popup = ::FindWindowA("#32768", nullptr);
    return ::IsWindowVisible(popup) ? popup : nullptr;
}

inline HMENU menu_of(HWND popup) {
    return reinterpret_cast<HMENU>(::SendMessageA(popup, MN_GETHMENU, 0, 0));
}

/// The entries of the menu that is shown, "*" before checked and "-" before grey ones; empty while there is none.
inline std::string shown_menu() {
    const HWND popup = shown_popup();
    if (!popup)
        return {};
    const HMENU menu = menu_of(popup);
    std::string texts;
    for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
        char text[64] = "";
        ::GetMenuStringA(menu, i, text, sizeof text, MF_BYPOSITION);
        const UINT state = ::GetMenuState(menu, i, MF_BYPOSITION);
        texts += state & (MF_POPUP | MF_SEPARATOR) ? "" : state & MF_CHECKED ? "*" : state & MF_GRAYED ? "-" : "";
        texts += text + std::string("|");
    }
    return texts;
}
