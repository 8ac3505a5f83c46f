#pragma once

#include <windows.h>

namespace wnt {

/// The library's own module, which holds its cursors, icons and dialogs.
HINSTANCE library_module();

/// A dialog template of the library, whatever a host's resources hold under the same number; null for none.
const DLGTEMPLATE* library_dialog(UINT id);

/// Makes the library's resources the framework's current ones for the life of the guard.
class LibraryResources {
public:
    LibraryResources();
    ~LibraryResources();
    LibraryResources(const LibraryResources&) = delete;
    LibraryResources& operator=(const LibraryResources&) = delete;

private:
    HINSTANCE previous_;
};

} // namespace wnt
