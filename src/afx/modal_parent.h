// The window in front of which a modal dialog runs.
#pragma once

#include "afx_app.h"

#include <utility>

// The wanted parent's top-level window: a disabled child cannot hold a dialog. Without a wanted one, the main window,
// or the modal dialog that runs in front of it.
inline HWND modal_owner(CWnd* wanted) {
    HWND owner = wanted->GetSafeHwnd();
    if (owner == nullptr) {
        owner = AfxGetMainWnd()->GetSafeHwnd();
        if (owner != nullptr && !::IsWindowEnabled(owner))
            owner = ::GetLastActivePopup(owner);
    }
    return owner != nullptr ? ::GetAncestor(owner, GA_ROOT) : nullptr;
}

// Disabled as long as the object lives, where it was enabled.
class disabled_window {
public:
    explicit disabled_window(HWND hwnd) : m_hwnd(hwnd != nullptr && ::IsWindowEnabled(hwnd) ? hwnd : nullptr) {
        if (m_hwnd != nullptr)
            ::EnableWindow(m_hwnd, FALSE);
    }
    ~disabled_window() { enable(); }
    disabled_window(const disabled_window&) = delete;
    disabled_window& operator=(const disabled_window&) = delete;

    void enable() {
        if (const HWND hwnd = std::exchange(m_hwnd, nullptr))
            ::EnableWindow(hwnd, TRUE);
    }

private:
    HWND m_hwnd;
};

// The frame behind a modeless dialog, and behind that one's own.
inline HWND last_owner(HWND hwnd) {
    for (HWND at = hwnd; at != nullptr; at = ::GetWindow(at, GW_OWNER))
        hwnd = at;
    return hwnd;
}

// Keeps a modal dialog's owner disabled, and the last of the owners, whichever way the dialog ends.
class modal_parent {
public:
    explicit modal_parent(CWnd* wanted)
        : m_owner(modal_owner(wanted)), m_disabled(m_owner), m_last_disabled(last_owner(m_owner)) {}
    modal_parent(const modal_parent&) = delete;
    modal_parent& operator=(const modal_parent&) = delete;

    HWND handle() const { return m_owner; }

    // Runs a dialog's loop and ends its window, also where an exception leaves the loop.
    int run(CWnd& dialog, DWORD flags) {
        const HWND hwnd = dialog.m_hWnd;
        try {
            const int result = dialog.RunModalLoop(flags);
            end(hwnd);
            return result;
        } catch (...) {
            if (CWnd::FromHandlePermanent(hwnd) == &dialog)
                dialog.EndModalLoop(-1);
            end(hwnd);
            throw;
        }
    }

    // The object may be gone with its window already.
    void end(HWND dialog) {
        if (!::IsWindow(dialog))
            return;
        take_over_from(dialog);
        if (CWnd* object = CWnd::FromHandlePermanent(dialog))
            object->DestroyWindow();
    }

private:
    // Before the dialog goes: else the system activates another program's window.
    void take_over_from(HWND dialog) {
        ::SetWindowPos(dialog, nullptr, 0, 0, 0, 0,
                       SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
        enable();
        if (m_owner != nullptr && ::GetActiveWindow() == dialog)
            ::SetActiveWindow(m_owner);
    }

    void enable() {
        m_last_disabled.enable();
        m_disabled.enable();
    }

    HWND m_owner;
    disabled_window m_disabled, m_last_disabled;
};
