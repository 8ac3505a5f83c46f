#pragma once

#include <afxwin.h>

#include <cstdarg>
#include <cstdio>

#include "zopwnt_api.h"

/// Diagnostic tracing: formatted lines go to a trace file and to a small window with a list.
///
/// The trace state is one for the whole process, shared by every instance and by WntTrace(). It is switched on by the
/// environment variables ZOPGTRACE and DPTRACE (decimal: 1 file, 2 window, 16 kept without effect), read when a trace
/// window is created and by WntTrace() while no flag is set, or by the calls below.
///
///     CWntTrace trace;
///     trace.Create(nullptr, "Trace", WS_CHILD, CRect(0, 0, 0, 0), this, 101);
///     trace.Trace("loaded %d items\n", count);
///
/// Lines are written as they are formatted, at most 1023 characters: end them with a newline yourself. For use on the
/// user-interface thread only.
class ZOPWNT_API CWntTrace : public CWnd {
public:
    /// Sets file name, title, stream and line list of the shared state back to their defaults.
    CWntTrace();
    ~CWntTrace() override;

    /// Starts the named file with a banner and switches file output on; null switches it off.
    void SetFilename(const char* name);
    /// Replaces the flags: 1 write to the file, 2 show in the window.
    void SetFlags(unsigned flags);
    /// Caption of the trace window, and stem of the profile file that holds its position.
    void SetTitle(const char* title);

    /// Two blanks for each step of indent, at most 512 steps, go to the file before the text.
    void Trace(int indent, const char* format, ...);
    void Trace(const char* format, ...);

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT type, int cx, int cy);
    DECLARE_MESSAGE_MAP()

    void createdisplay();
    void destroydisplay();
    void display(const char* text);

    /// The file that trace lines go to; owned and closed by the trace.
    static void setstream(std::FILE* stream);
    static std::FILE* stream();
};

/// Traces a line without a trace window object.
ZOPWNT_API void WntTrace(const char* format, ...);
