// The two kinds of dialog templates.
#pragma once

#include "afx_base.h"

// The extended kind begins with these two words; its style and its place lie further behind than in the older one.
inline bool is_extended_template(const void* form) {
    const auto* words = static_cast<const WORD*>(form);
    return words[0] == 1 && words[1] == 0xFFFF;
}
