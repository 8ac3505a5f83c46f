// The window classes of the common controls.
#pragma once

#include <commctrl.h>

// Registers those of a kind, an ICC_ value.
inline void prepare_class(DWORD kind) {
    const INITCOMMONCONTROLSEX wanted{sizeof(wanted), kind};
    ::InitCommonControlsEx(&wanted);
}
