#pragma once

#include <afxwin.h>

#include <cstdio>

#include "zopwnt_api.h"

/// Diagnostic tracing: formatted lines go to a small window with a list and to a stream of a derived class's.
///
/// The trace state is one for the whole process, shared by every instance and by WntTrace(). It is switched on by the
/// environment variables ZOPGTRACE and DPTRACE (decimal: 2 window, 16 kept without effect; reading them sets 1, the
/// stream), read when a trace window is created and by WntTrace() while no flag is set, or by the calls below.
///
///     CWntTrace trace;
///     trace.Create(nullptr, "Trace", WS_CHILD, CRect(0, 0, 0, 0), this, 101);
///     trace.Trace("loaded %d items\n", count);
///
/// Lines are written as they are formatted, at most 1023 characters: end them with a newline yourself. They go to the
/// stream that a derived class sets by setstream(), not to the file that SetFilename() begins. Every new instance,
/// hence every gauge, closes that stream. For use on the user-interface thread only.
class ZOPWNT_API CWntTrace : public CWnd {
public:
    /// Sets file name, title, stream and line list of the shared state back to their defaults.
    CWntTrace();
    ~CWntTrace() override;

    /// Writes a banner into a new file of that name, and switches output to the stream on; null switches it off.
    void SetFilename(const char* name);
    /// Replaces the flags: 1 write to the stream, 2 show in the window.
    void SetFlags(unsigned flags);
    /// Caption of the trace window, and stem of the profile file that holds its position.
    void SetTitle(const char* title);

    /// Two blanks for each step of indent go to the stream before the text; none below 1.
    void Trace(int indent, const char* format, ...);
    /// Without an indent.
    void Trace(const char* format, ...);

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    afx_msg void OnSize(UINT type, int cx, int cy);
    DECLARE_MESSAGE_MAP()

    /// Opens the window with the list, unless it is open.
    void createdisplay();
    /// Closes it.
    void destroydisplay();
    /// Adds a line to the list of the window, where there is one. The list keeps the newest 10,000.
    void display(const char* text);

    /// Makes a file the one that trace lines go to; the trace owns it, and closes the one before. It must come from the
    /// C runtime that the library itself uses, which closes it. Null for none.
    static void setstream(std::FILE* stream);
    /// The file that trace lines go to, or null.
    static std::FILE* stream();
};

/// Traces a line without a trace window object.
ZOPWNT_API void WntTrace(const char* format, ...);
