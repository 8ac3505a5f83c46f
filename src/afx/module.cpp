#include "afx_module.h"

extern "C" IMAGE_DOS_HEADER __ImageBase; // the linker's: this library

namespace {

CDynLinkLibrary* first_library = nullptr;

// Deletes what is left of the chain when the process ends. A library that was unloaded before is only forgotten.
struct chain_owner {
    ~chain_owner() {
        while (first_library != nullptr)
            delete first_library;
    }
} owner;

// The first module of the chain, the framework last, for which has() is true, or null.
template <class Has> HINSTANCE find_module(Has has) {
    const HINSTANCE current = AfxGetResourceHandle(), program = AfxGetInstanceHandle();
    if (has(current))
        return current;
    if (program != current && has(program))
        return program;
    for (CDynLinkLibrary* at = first_library; at != nullptr; at = at->m_pNextDLL) {
        if (at->m_hResource != nullptr && has(at->m_hResource))
            return at->m_hResource;
    }
    const HINSTANCE own = reinterpret_cast<HINSTANCE>(&__ImageBase);
    return has(own) ? own : nullptr;
}

} // namespace

BOOL AFXAPI AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule) {
    if (hModule == nullptr)
        return FALSE;
    state.bInitialized = TRUE;
    state.hModule = hModule;
    if (state.hResource == nullptr)
        state.hResource = hModule;
    return TRUE;
}

void AFXAPI AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL) {
    for (CDynLinkLibrary* at = first_library; at != nullptr;) {
        CDynLinkLibrary* next = at->m_pNextDLL;
        if (at->m_hModule == state.hModule)
            delete at;
        at = next;
    }
    state.bInitialized = FALSE;
}

HINSTANCE AFXAPI AfxLoadLibrary(LPCTSTR lpszModuleName) {
    return ::LoadLibrary(lpszModuleName);
}

HINSTANCE AFXAPI AfxLoadLibraryEx(LPCTSTR lpFileName, HANDLE hFile, DWORD dwFlags) {
    return ::LoadLibraryEx(lpFileName, hFile, dwFlags);
}

BOOL AFXAPI AfxFreeLibrary(HINSTANCE hInstLib) {
    return ::FreeLibrary(hInstLib);
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem)
    : CDynLinkLibrary(state.hModule, state.hResource) {}

CDynLinkLibrary::CDynLinkLibrary(HINSTANCE hModule, HINSTANCE hResource)
    : m_hModule(hModule), m_hResource(hResource), m_pNextDLL(first_library) {
    first_library = this;
}

CDynLinkLibrary::~CDynLinkLibrary() {
    for (CDynLinkLibrary** at = &first_library; *at != nullptr; at = &(*at)->m_pNextDLL) {
        if (*at == this) {
            *at = m_pNextDLL;
            return;
        }
    }
}

HINSTANCE AFXAPI AfxGetInstanceHandle() {
    return AfxGetModuleState()->m_hCurrentInstanceHandle;
}

HINSTANCE AFXAPI AfxGetResourceHandle() {
    const AFX_MODULE_STATE& state = *AfxGetModuleState();
    return state.m_hCurrentResourceHandle != nullptr ? state.m_hCurrentResourceHandle : state.m_hCurrentInstanceHandle;
}

void AFXAPI AfxSetResourceHandle(HINSTANCE hInstResource) {
    AfxGetModuleState()->m_hCurrentResourceHandle = hInstResource;
}

HINSTANCE AFXAPI AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType) {
    const HINSTANCE found =
        find_module([&](HINSTANCE module) { return ::FindResource(module, lpszName, lpszType) != nullptr; });
    return found != nullptr ? found : AfxGetResourceHandle();
}

HINSTANCE AFXAPI AfxFindStringResourceHandle(UINT nID) {
    // Strings are stored in blocks of sixteen: a module may hold the block and lack the string.
    return find_module([nID](HINSTANCE module) {
        LPCWSTR text = nullptr;
        return ::LoadStringW(module, nID, reinterpret_cast<LPWSTR>(&text), 0) > 0;
    });
}
