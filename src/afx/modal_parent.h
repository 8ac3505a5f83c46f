// The window in front of which a modal dialog runs.
#pragma once

#include "afx_app.h"

// Keeps a modal dialog's parent disabled, whichever way the dialog ends.
class disabled_parent {
public:
    explicit disabled_parent(HWND parent)
        : m_parent(parent != nullptr && ::IsWindowEnabled(parent) ? parent : nullptr) {
        if (m_parent != nullptr)
            ::EnableWindow(m_parent, FALSE);
    }
    ~disabled_parent() { enable(); }
    disabled_parent(const disabled_parent&) = delete;
    disabled_parent& operator=(const disabled_parent&) = delete;

    void enable() {
        if (m_parent != nullptr)
            ::EnableWindow(m_parent, TRUE);
        m_parent = nullptr;
    }

private:
    HWND m_parent;
};

// A disabled child cannot hold a dialog: its top-level window does.
inline HWND modal_owner(CWnd* parent) {
    HWND owner = parent->GetSafeHwnd();
    if (owner == nullptr)
        owner = AfxGetMainWnd()->GetSafeHwnd();
    return owner != nullptr ? ::GetAncestor(owner, GA_ROOT) : nullptr;
}
