// Windows and their objects: attachment, creation, destruction.
#include "afx_app.h"
#include "afx_exception.h"
#include "afxlayout.h"
#include "afxmsg_.h"
#include "handle_map.h"
#include "wnd_state.h"

#include <map>
#include <mutex>
#include <string>
#include <tuple>
#include <utility>

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
ON_WM_NCDESTROY()
ON_WM_CTLCOLOR()
ON_WM_HSCROLL()
ON_WM_VSCROLL()
ON_WM_DRAWITEM()
ON_WM_MEASUREITEM()
ON_WM_DELETEITEM()
ON_WM_COMPAREITEM()
ON_WM_CHARTOITEM()
ON_WM_VKEYTOITEM()
ON_WM_PARENTNOTIFY()
END_MESSAGE_MAP()

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

namespace {

auto& windows() {
    return of_this_thread<handle_map<CWnd, &CWnd::m_hWnd>>();
}

} // namespace

void delete_temporary_windows() {
    windows().delete_temporary();
}

void PASCAL CWnd::DeleteTempMap() {
    delete_temporary_windows();
}

void delete_temporary_objects() {
    delete_temporary_windows();
    delete_temporary_menus();
    delete_temporary_gdi_objects();
    delete_temporary_device_contexts();
    delete_temporary_image_lists();
}

CWnd::~CWnd() {
    // The derived parts are gone: their handlers no longer see the messages of this destruction.
    if (m_hWnd != nullptr && FromHandlePermanent(m_hWnd) == this)
        CWnd::DestroyWindow();
    EnableDynamicLayout(FALSE);
    CWinThread* thread = AfxGetThread();
    if (thread != nullptr && thread->m_pMainWnd == this)
        thread->m_pMainWnd = nullptr; // it had no window, or not any more
}

CWnd* PASCAL CWnd::FromHandle(HWND hWnd) {
    return windows().any(hWnd);
}

CWnd* PASCAL CWnd::FromHandlePermanent(HWND hWnd) {
    return windows().permanent(hWnd);
}

BOOL CWnd::Attach(HWND hWndNew) {
    return windows().attach(this, hWndNew);
}

HWND CWnd::Detach() {
    return windows().detach(this);
}

BOOL CWnd::SubclassWindow(HWND hWnd) {
    return ::IsWindow(hWnd) && FromHandlePermanent(hWnd) == nullptr && take_over_window(this, hWnd);
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent) {
    return SubclassWindow(::GetDlgItem(pParent->GetSafeHwnd(), static_cast<int>(nID)));
}

HWND CWnd::UnsubclassWindow() {
    if (WNDPROC own = std::exchange(m_pfnSuper, nullptr))
        ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(own));
    return Detach();
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (cs.lpszClass == nullptr)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
    return TRUE;
}

void CWnd::PreSubclassWindow() {}

BOOL CWnd::PreTranslateMessage(MSG* pMsg) {
    if (m_has_tips)
        FilterToolTipMessage(pMsg);
    return FALSE;
}

void CWnd::PostNcDestroy() {}

BOOL CWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                  UINT nID, CCreateContext* pContext) {
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID, pContext);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                    CWnd* pParentWnd, UINT nID, LPVOID lpParam) {
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, pParentWnd->GetSafeHwnd(),
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), lpParam);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x, int y,
                    int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam) {
    if (m_hWnd != nullptr)
        return FALSE;
    CREATESTRUCT cs{lpParam, AfxGetInstanceHandle(),     nIDorHMenu,     hWndParent,    nHeight,  nWidth, y,
                    x,       static_cast<LONG>(dwStyle), lpszWindowName, lpszClassName, dwExStyle};
    if (!PreCreateWindow(cs)) {
        PostNcDestroy();
        return FALSE;
    }
    AfxHookWindowCreate(this);
    const HWND hwnd = ::CreateWindowEx(cs.dwExStyle, cs.lpszClass, cs.lpszName, static_cast<DWORD>(cs.style), cs.x,
                                       cs.y, cs.cx, cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
    if (!AfxUnhookWindowCreate())
        PostNcDestroy(); // failed before the object saw anything of it
    return hwnd != nullptr;
}

BOOL CWnd::DestroyWindow() {
    const HWND hwnd = m_hWnd;
    if (hwnd == nullptr)
        return FALSE;
    const bool permanent = FromHandlePermanent(hwnd) == this;
    const BOOL destroyed = ::DestroyWindow(hwnd);
    // The last message has detached a permanent object, and may have deleted it: only the map tells.
    if (!permanent)
        m_hWnd = nullptr;
    else if (CWnd* left = FromHandlePermanent(hwnd); left != nullptr && !::IsWindow(hwnd))
        left->Detach();
    return destroyed;
}

void CWnd::OnNcDestroy() {
    CWinThread* thread = AfxGetThread();
    if (thread != nullptr && thread->m_pMainWnd == this) {
        thread->m_pMainWnd = nullptr;
        AfxPostQuitMessage(0);
    }
    const LONG_PTR before = ::GetWindowLongPtr(m_hWnd, GWLP_WNDPROC);
    Default();
    if (m_pfnSuper != nullptr && ::GetWindowLongPtr(m_hWnd, GWLP_WNDPROC) == before)
        ::SetWindowLongPtr(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_pfnSuper));
    m_pfnSuper = nullptr;
    if (m_pDynamicLayout != nullptr)
        m_pDynamicLayout->Create(nullptr); // the object may have another window later
    Detach();
    PostNcDestroy();
}

LPCTSTR AFXAPI AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon) {
    static auto& lock = *new std::mutex;
    static auto& names = *new std::map<std::tuple<UINT, HCURSOR, HBRUSH, HICON>, std::string>;
    const std::lock_guard held(lock);
    const auto [at, added] = names.try_emplace({nClassStyle, hCursor, hbrBackground, hIcon});
    if (added) {
        CString name;
        name.Format("Afx:%p:%x:%p:%p:%p", static_cast<void*>(AfxGetInstanceHandle()), nClassStyle,
                    static_cast<void*>(hCursor), static_cast<void*>(hbrBackground), static_cast<void*>(hIcon));
        at->second = name;
    }
    WNDCLASS description{};
    description.style = nClassStyle;
    description.lpfnWndProc = &::DefWindowProc;
    description.hInstance = AfxGetInstanceHandle();
    description.hIcon = hIcon;
    description.hCursor = hCursor != nullptr ? hCursor : ::LoadCursor(nullptr, IDC_ARROW);
    description.hbrBackground = hbrBackground;
    description.lpszClassName = at->second.c_str();
    if (!AfxRegisterClass(&description))
        AfxThrowResourceException();
    return at->second.c_str();
}

BOOL AFXAPI AfxRegisterClass(WNDCLASS* lpWndClass) {
    WNDCLASS known;
    return ::GetClassInfo(lpWndClass->hInstance, lpWndClass->lpszClassName, &known) || ::RegisterClass(lpWndClass) != 0;
}
