// What the message dispatchers share.
#pragma once

#include "afx_cmdui.h"

// The extra argument of OnCmdMsg for a notify message.
struct notification {
    NMHDR* header;
    LRESULT* result;
};

// The entries of registered messages stand under this number and name the variable that holds their own.
constexpr UINT first_registered_message = 0xC000;

// The first entry for a window or thread message, from the class towards its bases; null where there is none.
const AFX_MSGMAP_ENTRY* find_message_entry(const AFX_MSGMAP* map, UINT message);

// Raises CNotSupportedException where a handler of 32 bits would lose a part of what it is sent.
void refuse_what_is_cut(const AFX_MSGMAP_ENTRY& entry, WPARAM wParam, LPARAM lParam);

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wcast-function-type"
// The handler as the type that it had when the map entry was made; the signature names it.
template <class Method> Method typed_handler(const AFX_MSGMAP_ENTRY& entry) {
    return reinterpret_cast<Method>(entry.pfn);
}
#pragma GCC diagnostic pop

// Stands for a command where only whether it is enabled matters.
class test_cmd_ui : public CCmdUI {
public:
    explicit test_cmd_ui(UINT id) { m_nID = id; }
    void Enable(BOOL bOn) override {
        enabled = bOn;
        m_bEnableChanged = TRUE;
    }
    void SetCheck(int) override {}
    void SetRadio(BOOL) override {}
    void SetText(LPCTSTR) override {}

    BOOL enabled = TRUE;
};
