// What the message dispatchers share.
#pragma once

#include "afx_cmdtarget.h"

// The extra argument of OnCmdMsg for a notify message.
struct notification {
    NMHDR* header;
    LRESULT* result;
};

// The first entry for a window message, from the class towards its bases; null where there is none.
const AFX_MSGMAP_ENTRY* find_window_entry(const AFX_MSGMAP* map, UINT message);

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wcast-function-type"
// The handler as the type that it had when the map entry was made; the signature names it.
template <class Method> Method typed_handler(const AFX_MSGMAP_ENTRY& entry) {
    return reinterpret_cast<Method>(entry.pfn);
}
#pragma GCC diagnostic pop
