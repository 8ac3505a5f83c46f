// The modules of a process and the search for resources among them.
#pragma once

#include "afx_module_state.h"
#include "afx_object.h"

struct AFX_EXTENSION_MODULE {
    BOOL bInitialized = FALSE;
    HMODULE hModule = nullptr;
    HMODULE hResource = nullptr;
};

// Remembers the module's handle; FALSE only for a null handle.
ZOPAFX_API BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule);

// Takes the module out of the resource chain, when it is unloaded.
ZOPAFX_API void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);

// Loads an extension library on demand, and lets go of it.
ZOPAFX_API HINSTANCE AFXAPI AfxLoadLibrary(LPCTSTR lpszModuleName);
ZOPAFX_API HINSTANCE AFXAPI AfxLoadLibraryEx(LPCTSTR lpFileName, HANDLE hFile, DWORD dwFlags);
ZOPAFX_API BOOL AFXAPI AfxFreeLibrary(HINSTANCE hInstLib);

// Puts an extension library into the resource chain, the latest first. Created with new; the framework owns it.
class ZOPAFX_API CDynLinkLibrary : public CObject {
public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem = FALSE);
    CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource);
    ~CDynLinkLibrary() override;

    HMODULE m_hModule;
    HMODULE m_hResource;
    CDynLinkLibrary* m_pNextDLL;
};

ZOPAFX_API HINSTANCE AFXAPI AfxGetInstanceHandle();
// Of the module in force. Resources are looked for there first, unless another module was set.
ZOPAFX_API HINSTANCE AFXAPI AfxGetResourceHandle();
ZOPAFX_API void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource);
// The module that holds the resource: the current one, the program, then each extension library.
// Where none does, the current one.
ZOPAFX_API HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType);
// A text of the resource chain, cut to the buffer; answers its length there.
ZOPAFX_API int AFXAPI AfxLoadString(UINT nID, LPTSTR lpszBuf, UINT nMaxBuf = 256);
// The same search for a string; null where none has it.
ZOPAFX_API HINSTANCE AFXAPI AfxFindStringResourceHandle(UINT nID);
