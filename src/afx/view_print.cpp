// Printing through a view: the user chooses, then page after page is drawn.
#include "afx_app.h"
#include "afx_command_line.h"
#include "afx_document.h"
#include "afx_view.h"
#include "afxdlgs.h"
#include "print_box.h"
#include "printer.h"

#include <algorithm>
#include <utility>

CPrintInfo::CPrintInfo() : m_pPD(new CPrintDialog(FALSE, PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOSELECTION)) {
    SetMinPage(1);
    SetMaxPage(0xFFFF);
}

CPrintInfo::~CPrintInfo() {
    if (m_pPD->m_pd.hDC != nullptr)
        ::DeleteDC(m_pPD->m_pd.hDC);
    delete m_pPD;
}

void CPrintInfo::SetMinPage(UINT nMinPage) {
    m_pPD->m_pd.nMinPage = static_cast<WORD>(nMinPage);
}

void CPrintInfo::SetMaxPage(UINT nMaxPage) {
    m_pPD->m_pd.nMaxPage = static_cast<WORD>(std::min(nMaxPage, 0xFFFFu));
}

UINT CPrintInfo::GetMinPage() const {
    return m_pPD->m_pd.nMinPage;
}

UINT CPrintInfo::GetMaxPage() const {
    return m_pPD->m_pd.nMaxPage;
}

UINT CPrintInfo::GetFromPage() const {
    return (m_pPD->m_pd.Flags & PD_PAGENUMS) != 0 ? m_pPD->m_pd.nFromPage : GetMinPage();
}

UINT CPrintInfo::GetToPage() const {
    return (m_pPD->m_pd.Flags & PD_PAGENUMS) != 0 ? m_pPD->m_pd.nToPage : GetMaxPage();
}

BOOL CView::OnPreparePrinting(CPrintInfo*) {
    return FALSE; // a view that cannot print
}

void CView::OnBeginPrinting(CDC*, CPrintInfo*) {}

void CView::OnEndPrinting(CDC*, CPrintInfo*) {}

void CView::OnPrint(CDC* pDC, CPrintInfo*) {
    OnDraw(pDC);
}

// Without a known length the first page is the last.
void CView::OnPrepareDC(CDC*, CPrintInfo* pInfo) {
    if (pInfo != nullptr && pInfo->GetMaxPage() == 0xFFFF && pInfo->m_nCurPage > 1)
        pInfo->m_bContinuePrinting = FALSE;
}

// Has the user choose, or takes the program's printer where nobody is to be asked.
BOOL CView::DoPreparePrinting(CPrintInfo* pInfo) {
    PRINTDLG& choice = pInfo->m_pPD->m_pd;
    if (pInfo->GetMaxPage() != 0xFFFF)
        choice.nToPage = choice.nMaxPage;
    choice.nFromPage = choice.nMinPage;
    CWinApp* app = AfxGetApp();
    if (!pInfo->m_bDirect)
        return app->DoPrintDialog(pInfo->m_pPD) == IDOK;
    if (app->GetPrinterDeviceDefaults(&choice)) {
        if (choice.hDC == nullptr)
            choice.hDC = create_printer_context(choice);
        if (choice.hDC != nullptr)
            return TRUE;
    }
    AfxMessageBox(AFX_IDP_FAILED_TO_START_PRINT);
    return FALSE;
}

namespace {

CString job_title(const CView& view) {
    CDocument* document = view.GetDocument();
    const CFrameWnd* frame = view.GetParentFrame();
    CString title = document != nullptr ? document->GetTitle() : CString();
    if (title.IsEmpty() && frame != nullptr)
        frame->GetWindowText(title);
    constexpr int most = 31;
    return title.Left(most);
}

} // namespace

bool CView::PrintPages(CDC& dc, CPrintInfo& info, print_box& box) {
    const HWND self = m_hWnd; // the box lets messages through
    const UINT last = std::clamp(info.GetToPage(), info.GetMinPage(), info.GetMaxPage());
    for (info.m_nCurPage = std::max(info.GetFromPage(), info.GetMinPage()); info.m_nCurPage <= last;
         ++info.m_nCurPage) {
        box.ShowPage(info.m_nCurPage);
        if (box.IsStopped() || !::IsWindow(self))
            return false;
        const int state = ::SaveDC(dc);
        OnPrepareDC(&dc, &info);
        if (!info.m_bContinuePrinting) {
            ::RestoreDC(dc, state);
            break;
        }
        info.m_rectDraw = CRect(0, 0, ::GetDeviceCaps(dc, HORZRES), ::GetDeviceCaps(dc, VERTRES));
        ::DPtoLP(dc, reinterpret_cast<LPPOINT>(&info.m_rectDraw), 2);
        if (dc.StartPage() <= 0 || !::IsWindow(self))
            return false;
        OnPrint(&dc, &info);
        ::RestoreDC(dc, state);
        if (dc.EndPage() <= 0 || !::IsWindow(self))
            return false;
    }
    return !box.IsStopped() && ::IsWindow(self);
}

void CView::OnFilePrint() {
    CPrintInfo info;
    CWinApp* app = AfxGetApp();
    const bool direct =
        GetCurrentMessage()->message == WM_COMMAND && LOWORD(GetCurrentMessage()->wParam) == ID_FILE_PRINT_DIRECT;
    info.m_bDirect = direct || (app->m_pCmdInfo != nullptr);
    if (!OnPreparePrinting(&info) || info.m_pPD->m_pd.hDC == nullptr)
        return;
    CDC dc;
    dc.Attach(std::exchange(info.m_pPD->m_pd.hDC, nullptr));
    OnBeginPrinting(&dc, &info);
    const CString title = job_title(*this);
    DOCINFO job{};
    job.cbSize = sizeof(job);
    job.lpszDocName = title;
    if ((info.m_pPD->m_pd.Flags & PD_PRINTTOFILE) != 0)
        job.lpszOutput = "FILE:";
    const HWND self = m_hWnd;
    bool printed = false, stopped = false;
    {
        print_box box(dc, title, info.m_pPD->GetDeviceName(), info.m_pPD->GetPortName());
        printed = dc.StartDoc(&job) > 0;
        if (printed) {
            printed = PrintPages(dc, info, box);
            printed ? dc.EndDoc() : dc.AbortDoc();
        }
        stopped = box.IsStopped();
    }
    if (!::IsWindow(self))
        return; // who closed it has nothing to end
    OnEndPrinting(&dc, &info);
    if (!printed && !stopped)
        AfxMessageBox(AFX_IDP_FAILED_TO_START_PRINT);
}

// Maps name it as a matter of course. There is no preview: the user is told.
void CView::OnFilePrintPreview() {
    AfxThrowNotSupportedException();
}
