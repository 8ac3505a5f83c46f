#include "out/wnt_out.h"

#include "library_resources.h"
#include "out/key_code.h"

#include <iterator>

namespace {

// Input that lands on the surface belongs to the widget behind it. Middle-button messages are not among them.
bool goes_to_parent(UINT message) {
    switch (message) {
    case WM_KEYDOWN:
    case WM_CHAR:
    case WM_SYSKEYDOWN:
    case WM_SYSCHAR:
    case WM_MOUSEMOVE:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP:
    case WM_RBUTTONDBLCLK:
    case WM_MOUSEWHEEL:
        return true;
    default:
        return false;
    }
}

struct PointerShape {
    const char* library_name; // a resource of this library, or null for a standard shape
    const char* standard;
};

constexpr PointerShape library(const char* name) {
    return {name, nullptr};
}

PointerShape standard(const char* id) {
    return {nullptr, id};
}

// 21 and 22 are the host's own icons and never looked up here.
const PointerShape shapes[29] = {
    standard(IDC_ARROW),
    standard(IDC_IBEAM),
    standard(IDC_WAIT),
    standard(IDC_SIZEALL),
    library("ILLEGAL"),
    standard(IDC_WAIT),
    standard(IDC_IBEAM),
    standard(IDC_WAIT),
    standard(IDC_CROSS),
    standard(IDC_SIZENS),
    standard(IDC_SIZEWE),
    standard(IDC_SIZENWSE),
    standard(IDC_SIZENESW),
    standard(IDC_SIZENESW),
    standard(IDC_SIZENWSE),
    standard(IDC_SIZEWE),
    standard(IDC_SIZEWE),
    standard(IDC_SIZENS),
    standard(IDC_SIZENS),
    library("V_SASH"),
    library("H_SASH"),
    {},
    {},
    library("COMM"),
    library("MOVENODES"),
    library("PEN"),
    library("FCK"),
    library("OBJCONNECTLEFT"),
    library("OBJCONNECTRIGHT"),
};

HCURSOR load_pointer(HINSTANCE module, const char* name) {
    if (HCURSOR found = ::LoadCursorA(module, name))
        return found;
    return ::LoadIconA(module, name);
}

HCURSOR load_shape(int id) {
    if (id == 21)
        return ::LoadIconA(AfxGetResourceHandle(), "ZOP");
    if (id == 22)
        return ::LoadIconA(AfxGetResourceHandle(), "APPLICATION");
    if (const char* name = shapes[id].library_name) {
        wnt::LibraryResources current;
        return load_pointer(AfxGetResourceHandle(), name);
    }
    return load_pointer(nullptr, shapes[id].standard);
}

} // namespace

LRESULT CWntOut::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (goes_to_parent(message)) {
        const HWND self = m_hWnd;
        if (HWND parent = ::GetParent(self))
            ::SendMessage(parent, message, wParam, lParam);
        // The parent may have destroyed the surface, the object with it.
        if (!::IsWindow(self) || CWnd::FromHandlePermanent(self) != this)
            return 0;
    }
    return CWnd::WindowProc(message, wParam, lParam);
}

int CWntOut::Whelper_translatekeyboardinput(int* out, unsigned message, WPARAM key, LPARAM flags) {
    if (!this || !out)
        return 0;
    return wnt::translate_key(out, message, key, flags, [](int virtual_key) { return ::GetKeyState(virtual_key); });
}

void CWntOut::getmousepos(int* pt) {
    POINT position;
    if (!this || !pt || !m_hWnd || !::GetCursorPos(&position))
        return;
    ::ScreenToClient(m_hWnd, &position);
    pt[0] = position.x;
    pt[1] = flip(position.y);
}

void CWntOut::setmouseshape(short id) {
    if (!this || id < 0 || id >= static_cast<int>(std::size(shapes)))
        return;
    if (HCURSOR shape = load_shape(id)) // a host need not carry the icons of 21 and 22
        ::SetCursor(shape);
}

void CWntOut::setmouseshape(HICON h) {
    if (!this || !h || h == cursor)
        return;
    cursor = h;
    ::SetCursor(h);
}
