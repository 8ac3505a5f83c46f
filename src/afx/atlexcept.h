// Raises the framework's exception for a result code.
#pragma once

#include "afx_base.h"

// CMemoryException for E_OUTOFMEMORY, COleException with the code for every other one.
[[noreturn]] ZOPAFX_API void AtlThrow(HRESULT hr);
