#include "afx_dc.h"
#include "afx_exception.h"
#include "afx_wnd.h"
#include "handle_map.h"

IMPLEMENT_DYNCREATE(CDC, CObject)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)

namespace {

auto& device_contexts() {
    return of_this_thread<handle_map<CDC, &CDC::m_hDC>>();
}

} // namespace

void delete_temporary_device_contexts() {
    device_contexts().delete_temporary();
}

CDC::~CDC() {
    DeleteDC();
}

BOOL CDC::Attach(HDC hDC) {
    if (!device_contexts().attach(this, hDC))
        return FALSE;
    m_hAttribDC = hDC;
    return TRUE;
}

HDC CDC::Detach() {
    m_hAttribDC = nullptr;
    return device_contexts().detach(this);
}

CDC* PASCAL CDC::FromHandle(HDC hDC) {
    CDC* dc = device_contexts().any(hDC);
    if (dc != nullptr && dc->m_hAttribDC == nullptr)
        dc->m_hAttribDC = hDC;
    return dc;
}

BOOL CDC::DeleteDC() {
    const HDC handle = Detach();
    return handle != nullptr && ::DeleteDC(handle);
}

BOOL CDC::AttachNew(HDC hDC) {
    if (Attach(hDC))
        return TRUE;
    if (hDC != nullptr)
        ::DeleteDC(hDC);
    return FALSE;
}

void PASCAL CDC::DeleteTempMap() {
    device_contexts().delete_temporary();
}

void CDC::SetOutputDC(HDC hDC) {
    if (m_hDC == nullptr)
        device_contexts().attach(this, hDC);
}

void CDC::ReleaseOutputDC() {
    device_contexts().detach(this);
}

CWnd* CDC::GetWindow() const {
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(pWnd->GetSafeHwnd()) {
    if (!Attach(::GetDC(m_hWnd)))
        AfxThrowResourceException();
}

CClientDC::~CClientDC() {
    ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(pWnd->GetSafeHwnd()) {
    if (!Attach(::GetWindowDC(m_hWnd)))
        AfxThrowResourceException();
}

CWindowDC::~CWindowDC() {
    ::ReleaseDC(m_hWnd, Detach());
}

CPaintDC::CPaintDC(CWnd* pWnd) : m_hWnd(pWnd->GetSafeHwnd()) {
    if (!Attach(::BeginPaint(m_hWnd, &m_ps)))
        AfxThrowResourceException();
}

CPaintDC::~CPaintDC() {
    ::EndPaint(m_hWnd, &m_ps);
    Detach();
}
