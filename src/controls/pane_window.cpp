#include "controls/pane_window.h"

namespace wnt {

namespace {

bool concerns_host(UINT message) {
    switch (message) {
    case WM_COMMAND:
    case WM_NOTIFY:
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
    case WM_CHARTOITEM:
    case WM_VKEYTOITEM:
        return true;
    default:
        return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC;
    }
}

} // namespace

bool adoptable(const CWnd& parent, const CWnd* child) {
    const HWND window = child->GetSafeHwnd();
    return window && parent.m_hWnd && window != parent.m_hWnd && !::IsChild(window, parent.m_hWnd) &&
           ::GetWindowThreadProcessId(window, nullptr) == ::GetWindowThreadProcessId(parent.m_hWnd, nullptr);
}

bool adopt_child(CWnd& parent, CWnd* child) {
    if (!adoptable(parent, child))
        return false;
    const HWND window = child->m_hWnd;
    if (::GetParent(window) == parent.m_hWnd)
        return true;
    child->ModifyStyle(WS_POPUP, WS_CHILD);
    return ::SetParent(window, parent.m_hWnd) != nullptr;
}

bool PaneWindow::asks_about_return() {
    const MSG* const question = GetCurrentMessage();
    const auto* const key = question ? reinterpret_cast<const MSG*>(question->lParam) : nullptr;
    return question && question->message == WM_GETDLGCODE && key && key->message == WM_KEYDOWN &&
           key->wParam == VK_RETURN;
}

HWND PaneWindow::living(HWND pane) const {
    return pane && ::IsWindow(pane) && ::GetParent(pane) == m_hWnd ? pane : nullptr;
}

BOOL PaneWindow::PreCreateWindow(CREATESTRUCT& create) {
    const BOOL result = ControlWindow::PreCreateWindow(create);
    if (!(create.style & WS_TABSTOP))
        create.dwExStyle |= WS_EX_CONTROLPARENT; // the Tab key goes on to what it holds
    return result;
}

// A dialog's template says nothing of it.
void PaneWindow::PreSubclassWindow() {
    if (!(GetStyle() & WS_TABSTOP))
        ModifyStyleEx(0, WS_EX_CONTROLPARENT);
    ControlWindow::PreSubclassWindow();
}

// What an input of several lines tells its parent, which it takes for the dialog: to close on Escape, to give the focus
// to another one on Tab.
bool PaneWindow::answer_as_dialog(UINT message, WPARAM wParam, LPARAM lParam) {
    if ((message != WM_CLOSE && message != WM_NEXTDLGCTL) || !(GetStyle() & WS_CHILD))
        return false;
    HWND dialog = ::GetParent(m_hWnd);
    while (dynamic_cast<PaneWindow*>(CWnd::FromHandlePermanent(dialog)))
        dialog = ::GetParent(dialog);
    if (message == WM_CLOSE)
        ::SendMessage(dialog, WM_COMMAND, IDCANCEL, 0);
    else
        ::SendMessage(dialog, message, wParam, lParam);
    return true;
}

LRESULT PaneWindow::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (answer_as_dialog(message, wParam, lParam))
        return 0;
    if (message == WM_SETTINGCHANGE)
        SendMessageToDescendants(message, wParam, lParam, FALSE, TRUE); // each goes on to its own
    const HWND parent = concerns_host(message) && lParam ? ::GetParent(m_hWnd) : nullptr;
    return parent ? ::SendMessage(parent, message, wParam, lParam)
                  : ControlWindow::DefWindowProc(message, wParam, lParam);
}

} // namespace wnt
