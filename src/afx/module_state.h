// Which module something belongs to.
#pragma once

#include "afx_module.h"

// The module that holds the address; the program where none does.
HINSTANCE module_of(const void* address);

ZOPAFX_API AFX_MODULE_STATE* AFXAPI afx_state_of_module(HINSTANCE module);
ZOPAFX_API BOOL AFXAPI afx_library_main(HINSTANCE module, DWORD reason);
