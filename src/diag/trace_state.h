#pragma once

#include <afxwin.h>

#include <cstdio>
#include <memory>

namespace wnt {

enum TraceFlag : unsigned {
    trace_to_file = 1,
    trace_to_window = 2,
    trace_kept = 16, // taken from the environment, without effect here
};

/// The process-wide trace state.
struct TraceState {
    CString filename;
    CString title;
    CString last_line;
    unsigned flags = 0;
    std::FILE* stream = nullptr;
    std::FILE* banner = nullptr;
    std::unique_ptr<CDialog> dialog;
    HWND list = nullptr;
    HWND second_control = nullptr;

    ~TraceState();
    void set_stream(std::FILE* next);
    void close_stream() { set_stream(nullptr); }
    /// Adds the flags that the environment asks for; never clears one.
    void read_environment();
};

TraceState& trace_state();

} // namespace wnt
