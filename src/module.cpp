#include <afxwin.h>

#include "library_resources.h"

namespace {

AFX_EXTENSION_MODULE zopwnt_module = {};

} // namespace

HINSTANCE wnt::library_module() {
    return zopwnt_module.hModule;
}

wnt::LibraryResources::LibraryResources() : previous_(AfxGetResourceHandle()) {
    AfxSetResourceHandle(library_module());
}

wnt::LibraryResources::~LibraryResources() {
    AfxSetResourceHandle(previous_);
}

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH && AfxInitExtensionModule(zopwnt_module, instance))
        new CDynLinkLibrary(zopwnt_module); // the framework's from here on
    return TRUE;
}
