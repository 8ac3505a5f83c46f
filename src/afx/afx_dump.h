// Where objects write about themselves for whoever debugs the program.
#pragma once

#include "afx_base.h"

// Writes to the debugger.
class ZOPAFX_API CDumpContext {
public:
    CDumpContext() = default;
    CDumpContext(const CDumpContext&) = delete;
    CDumpContext& operator=(const CDumpContext&) = delete;

    CDumpContext& operator<<(LPCTSTR lpsz);
    CDumpContext& operator<<(int n);
};

extern ZOPAFX_API CDumpContext afxDump;
