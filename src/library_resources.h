#pragma once

#include <windows.h>

namespace wnt {

/// The library's own module, which holds its cursors, icons and dialogs.
HINSTANCE library_module();

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
