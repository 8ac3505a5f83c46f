// The window in front of which a modal dialog runs.
#pragma once

#include "afx_app.h"

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

// Keeps a modal dialog's owner disabled, whichever way the dialog ends.
class modal_parent {
public:
    explicit modal_parent(CWnd* wanted)
        : m_owner(modal_owner(wanted)), m_disabled(m_owner != nullptr && ::IsWindowEnabled(m_owner)) {
        if (m_disabled)
            ::EnableWindow(m_owner, FALSE);
    }
    ~modal_parent() { enable(); }
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
        if (m_disabled)
            ::EnableWindow(m_owner, TRUE);
        m_disabled = false;
    }

    HWND m_owner;
    bool m_disabled;
};
