#include "control_class.h"

#include "library_resources.h"

// Global, so that a host's dialogs find it; without code of the library's, so that nothing dangles when it goes.
void wnt::register_control_class(const char* name) {
    WNDCLASSA description = {};
    description.style = CS_DBLCLKS | CS_GLOBALCLASS;
    description.lpfnWndProc = ::DefWindowProcA;
    description.hInstance = library_module();
    description.hCursor = ::LoadCursor(nullptr, IDC_ARROW);
    description.lpszClassName = name;
    WNDCLASSA known;
    if (!::GetClassInfoA(library_module(), name, &known))
        ::RegisterClassA(&description);
}
