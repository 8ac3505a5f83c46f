#include "control_window.h"

#include "library_resources.h"

namespace wnt {

namespace {

// Global, so that a host's dialogs find it; without code of the library's, so that nothing dangles when it goes.
void register_class(const char* name) {
    WNDCLASSA description = {};
    description.style = CS_DBLCLKS | CS_GLOBALCLASS;
    description.lpfnWndProc = ::DefWindowProcA;
    description.hInstance = library_module();
    description.hCursor = ::LoadCursor(nullptr, IDC_ARROW);
    description.lpszClassName = name;
    WNDCLASSA known;
    if (!::GetClassInfoA(library_module(), name, &known) && !::RegisterClassA(&description))
        TRACE("The window class %s cannot be registered: error %lu\n", name, ::GetLastError());
}

// In the middle of a window's creation its object is joined to it, and nothing can be made in it yet.
bool without_size(HWND window) {
    RECT place = {};
    return !::GetWindowRect(window, &place) || ::IsRectEmpty(&place);
}

} // namespace

BEGIN_MESSAGE_MAP(ControlWindow, CWnd)
ON_WM_CREATE()
ON_WM_SIZE()
END_MESSAGE_MAP()

ControlWindow::ControlWindow(const char* class_name, Draws draws) : draws_(draws) {
    register_class(class_name);
}

ControlWindow::~ControlWindow() = default;

// With children clipped away, a widget would not be told when its surface is uncovered.
DWORD ControlWindow::with_clipping(DWORD style) const {
    switch (draws_) {
    case Draws::on_surface:
        return style & ~DWORD{WS_CLIPCHILDREN};
    case Draws::around_children:
        return style | WS_CLIPCHILDREN;
    default:
        return style;
    }
}

BOOL ControlWindow::PreCreateWindow(CREATESTRUCT& create) {
    created_here_ = true;
    create.style = static_cast<LONG>(with_clipping(static_cast<DWORD>(create.style)));
    return CWnd::PreCreateWindow(create);
}

void ControlWindow::PreSubclassWindow() {
    CWnd::PreSubclassWindow();
    if (!created_here_ && !without_size(m_hWnd))
        take_over();
}

void ControlWindow::PostNcDestroy() {
    created_here_ = false;
    built_in_ = nullptr;
    CWnd::PostNcDestroy();
}

int ControlWindow::OnCreate(LPCREATESTRUCT create) {
    if (const int result = CWnd::OnCreate(create); result != 0)
        return result;
    if (built_in_ == m_hWnd)
        return -1; // sent by hand to a living window
    created_here_ = false;
    return build_here() ? 0 : -1;
}

bool ControlWindow::build_here() {
    if (!build()) {
        leave();
        return false;
    }
    built_in_ = m_hWnd;
    return true;
}

void ControlWindow::take_over() {
    if (built_in_ == m_hWnd)
        return; // joined to this window before
    if (built_in_) {
        built_in_ = nullptr;
        leave();
    }
    const DWORD style = GetStyle();
    ModifyStyle(style & ~with_clipping(style), with_clipping(style) & ~style);
    CString text;
    GetWindowText(text);
    if (!build_here())
        return;
    take_text(text);
    CRect client;
    GetClientRect(&client);
    lay_out(client.Width(), client.Height());
}

void ControlWindow::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    if (!created_here_)
        take_over(); // it had no size before
    lay_out(cx, cy);
}

} // namespace wnt
