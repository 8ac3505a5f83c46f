// What a program has of its own, and each library with a program object: which object, and where its resources are.
// Included by afx_module.h.
#pragma once

#include "afx_base.h"

class CWinApp;

struct AFX_MODULE_STATE {
    CWinApp* m_pCurrentWinApp = nullptr;
    HINSTANCE m_hCurrentInstanceHandle = nullptr;
    HINSTANCE m_hCurrentResourceHandle = nullptr; // null: the module's own
    bool begun = false;                           // a library's program object
};

// The program's; the one in force in the calling thread. Setting one answers which was; null is the program's.
ZOPAFX_API AFX_MODULE_STATE* AFXAPI AfxGetAppModuleState();
ZOPAFX_API AFX_MODULE_STATE* AFXAPI AfxGetModuleState();
ZOPAFX_API AFX_MODULE_STATE* AFXAPI AfxSetModuleState(AFX_MODULE_STATE* pNewState);

// Puts a state in force until the end of the block. A window's messages come under the one that it was created under.
class AFX_MAINTAIN_STATE2 {
public:
    explicit AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* pModuleState) : m_before(AfxSetModuleState(pModuleState)) {}
    ~AFX_MAINTAIN_STATE2() { AfxSetModuleState(m_before); }
    AFX_MAINTAIN_STATE2(const AFX_MAINTAIN_STATE2&) = delete;
    AFX_MAINTAIN_STATE2& operator=(const AFX_MAINTAIN_STATE2&) = delete;

private:
    AFX_MODULE_STATE* m_before;
};
#define AFX_MANAGE_STATE(pModuleState) [[maybe_unused]] const AFX_MAINTAIN_STATE2 afx_managed_state(pModuleState);

// A library whose functions any program may call is compiled with _USRDLL. It has one program object, whose
// InitInstance and ExitInstance are called when it is loaded and freed; its functions begin with AFX_MANAGE_STATE.
#if defined(_USRDLL) && !defined(_AFXEXT)
extern "C" IMAGE_DOS_HEADER __ImageBase; // the linker's: this library
ZOPAFX_API AFX_MODULE_STATE* AFXAPI afx_state_of_module(HINSTANCE module);
ZOPAFX_API BOOL AFXAPI afx_library_main(HINSTANCE module, DWORD reason);

inline AFX_MODULE_STATE* AFXAPI AfxGetStaticModuleState() {
    static AFX_MODULE_STATE* const state = afx_state_of_module(reinterpret_cast<HINSTANCE>(&__ImageBase));
    return state;
}

// By its linker's name alone: a platform header declares the function with other parameters.
extern "C" BOOL WINAPI afx_library_entry(HINSTANCE module, DWORD reason, LPVOID) __asm__("DllMain");
extern "C" __attribute__((used)) inline BOOL WINAPI afx_library_entry(HINSTANCE module, DWORD reason, LPVOID) {
    return afx_library_main(module, reason);
}
#endif
