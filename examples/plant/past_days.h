#pragma once

#include <zopwnt.h>

inline constexpr int most_past_days = 366;

/// Writes a recording for each of so many days before today, as if the plant had run then: empty, or why not. Days that
/// are recorded already stay as they are.
CString WritePastDays(const char* folder, int days);
