#include "print_box.h"
#include "afx_thread.h"
#include "afxres.h"

namespace {

// An abort procedure is told nothing but the device context.
thread_local print_box* printing = nullptr;

} // namespace

print_box::print_box(CDC& dc, LPCTSTR document, LPCTSTR printer, LPCTSTR port) : m_behind(nullptr), m_outer(printing) {
    if (Create(AFX_IDD_PRINTDLG, CWnd::FromHandle(m_behind.handle()))) {
        CString on;
        if (port != nullptr && *port != '\0')
            AfxFormatString1(on, AFX_IDS_PRINTONPORT, port);
        SetDlgItemText(AFX_IDC_PRINT_DOCNAME, document);
        SetDlgItemText(AFX_IDC_PRINT_PRINTERNAME, printer);
        SetDlgItemText(AFX_IDC_PRINT_PORTNAME, on);
        CenterWindow();
        ShowWindow(SW_SHOW);
        UpdateWindow();
    }
    printing = this;
    dc.SetAbortProc(&AbortProc);
}

print_box::~print_box() {
    printing = m_outer;
    m_behind.end(m_hWnd);
}

void print_box::ShowPage(UINT page) {
    CString text;
    text.Format(AFX_IDS_PRINTPAGENUM, page);
    SetDlgItemText(AFX_IDC_PRINT_PAGENUM, text);
}

BOOL print_box::IsStopped() {
    MSG next;
    while (!m_stopped && ::PeekMessage(&next, nullptr, 0, 0, PM_NOREMOVE)) {
        m_stopped = next.message == WM_QUIT; // which the loop behind finds again
        if (!m_stopped)
            AfxPumpMessage();
    }
    return m_stopped;
}

void print_box::OnCancel() {
    m_stopped = true;
}

BOOL CALLBACK print_box::AbortProc(HDC, int) {
    return printing == nullptr || !printing->IsStopped();
}
