// Raises the framework's exception for a result code.
#pragma once

#include "afx_base.h"

// CMemoryException for E_OUTOFMEMORY, COleException with the code for every other one.
[[noreturn]] ZOPAFX_API void AtlThrow(HRESULT hr);
// Raises the same where the code tells of a failure.
inline void AFXAPI AfxCheckError(SCODE sc) {
    if (FAILED(sc))
        AtlThrow(sc);
}
