#include <afxwin.h>

#include "library_resources.h"

namespace {

AFX_EXTENSION_MODULE zopwnt_module = {};

} // namespace

HINSTANCE wnt::library_module() {
    return zopwnt_module.hModule;
}

const DLGTEMPLATE* wnt::library_dialog(UINT id) {
    const HRSRC found = ::FindResource(library_module(), MAKEINTRESOURCE(id), RT_DIALOG);
    return static_cast<const DLGTEMPLATE*>(found ? ::LockResource(::LoadResource(library_module(), found)) : nullptr);
}

wnt::LibraryResources::LibraryResources() : previous_(AfxGetResourceHandle()) {
    AfxSetResourceHandle(library_module());
}

wnt::LibraryResources::~LibraryResources() {
    AfxSetResourceHandle(previous_);
}

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) {
        if (AfxInitExtensionModule(zopwnt_module, instance))
            new CDynLinkLibrary(zopwnt_module); // the framework's from here on
    } else if (reason == DLL_PROCESS_DETACH) {
        AfxTermExtensionModule(zopwnt_module); // nobody looks for resources in a library that was freed
    }
    return TRUE;
}
