#include "afx_document.h"
#include "afx_app.h"
#include "afx_doc_template.h"
#include "afx_frame.h"
#include "afx_view.h"
#include "afxmsg_.h"
#include "afxpriv.h"
#include "file_names.h"

#include <memory>
#include <utility>

IMPLEMENT_DYNAMIC(CDocument, CCmdTarget)

BEGIN_MESSAGE_MAP(CDocument, CCmdTarget)
ON_COMMAND(ID_FILE_CLOSE, &CDocument::OnFileClose)
ON_COMMAND(ID_FILE_SAVE, &CDocument::OnFileSave)
ON_COMMAND(ID_FILE_SAVE_AS, &CDocument::OnFileSaveAs)
END_MESSAGE_MAP()

CDocument::CDocument() = default;

CDocument::~CDocument() {
    DisconnectViews();
    if (m_pDocTemplate != nullptr)
        m_pDocTemplate->RemoveDocument(this);
}

void CDocument::DisconnectViews() {
    while (!m_viewList.IsEmpty())
        static_cast<CView*>(m_viewList.RemoveHead())->m_pDocument = nullptr;
}

void CDocument::AddView(CView* pView) {
    m_viewList.AddTail(pView);
    pView->m_pDocument = this;
    OnChangedViewList();
}

void CDocument::RemoveView(CView* pView) {
    if (POSITION at = m_viewList.Find(pView))
        m_viewList.RemoveAt(at);
    pView->m_pDocument = nullptr;
    OnChangedViewList(); // may delete the document
}

POSITION CDocument::GetFirstViewPosition() const {
    return m_viewList.GetHeadPosition();
}

CView* CDocument::GetNextView(POSITION& rPosition) const {
    return static_cast<CView*>(m_viewList.GetNext(rPosition));
}

// A document nobody sees any more goes, but not while its frames are being closed for it.
void CDocument::OnChangedViewList() {
    if (m_viewList.IsEmpty() && m_bAutoDelete && !m_closing)
        OnCloseDocument();
    else
        UpdateFrameCounts();
}

// Numbers the frames that show the document.
void CDocument::UpdateFrameCounts() {
    std::vector<CFrameWnd*> frames;
    for (POSITION at = GetFirstViewPosition(); at != nullptr;) {
        CView* view = GetNextView(at);
        CFrameWnd* frame = ::IsWindow(view->GetSafeHwnd()) ? view->GetParentFrame() : nullptr;
        if (frame != nullptr && std::find(frames.begin(), frames.end(), frame) == frames.end())
            frames.push_back(frame);
    }
    int number = frames.size() == 1 ? 0 : 1;
    for (CFrameWnd* frame : frames) {
        if (std::exchange(frame->m_nWindow, number) != number)
            frame->OnUpdateFrameTitle(TRUE);
        ++number;
    }
}

void CDocument::UpdateAllViews(CView* pSender, LPARAM lHint, CObject* pHint) {
    for (POSITION at = GetFirstViewPosition(); at != nullptr;) {
        CView* view = GetNextView(at);
        if (view != nullptr && view != pSender)
            view->OnUpdate(pSender, lHint, pHint);
    }
}

void CDocument::SendInitialUpdate() {
    for (POSITION at = GetFirstViewPosition(); at != nullptr;) {
        if (CView* view = GetNextView(at))
            view->OnInitialUpdate();
    }
}

void CDocument::SetTitle(LPCTSTR lpszTitle) {
    m_strTitle = lpszTitle;
    for (POSITION at = GetFirstViewPosition(); at != nullptr;) {
        CView* view = GetNextView(at);
        if (CFrameWnd* frame = view->GetParentFrame())
            frame->OnUpdateFrameTitle(TRUE);
    }
}

void CDocument::SetPathName(LPCTSTR lpszPathName, BOOL bAddToMRU) {
    m_strPathName = full_path_of(lpszPathName);
    SetTitle(title_of(m_strPathName));
    if (bAddToMRU && AfxGetApp() != nullptr)
        AfxGetApp()->AddToRecentFileList(m_strPathName);
}

void CDocument::ClearPathName() {
    m_strPathName.Empty();
}

void CDocument::DeleteContents() {}

BOOL CDocument::OnNewDocument() {
    DeleteContents();
    m_bModified = FALSE;
    ClearPathName();
    return TRUE;
}

void CDocument::OnIdle() {}

HMENU CDocument::GetDefaultMenu() {
    return nullptr;
}

HACCEL CDocument::GetDefaultAccelerator() {
    return nullptr;
}

BOOL CDocument::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
    return CCmdTarget::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo) ||
           (m_pDocTemplate != nullptr && m_pDocTemplate->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo));
}

// Its frames go first, then the document itself.
void CDocument::OnCloseDocument() {
    const bool outer = std::exchange(m_closing, true);
    if (outer)
        return;
    while (!m_viewList.IsEmpty()) {
        auto* view = static_cast<CView*>(m_viewList.GetHead());
        CFrameWnd* frame = view->GetParentFrame();
        if (frame == nullptr) { // a view that nobody shows in a frame
            view->m_pDocument = nullptr;
            m_viewList.RemoveHead();
            continue;
        }
        PreCloseFrame(frame);
        frame->DestroyWindow();
        if (!m_viewList.IsEmpty() && m_viewList.GetHead() == view) { // a view that outlives its frame
            m_viewList.RemoveHead();
            view->m_pDocument = nullptr;
        }
    }
    DeleteContents();
    m_closing = false;
    OnDocumentEvent(onAfterCloseDocument);
    if (m_bAutoDelete)
        delete this;
}

void CDocument::PreCloseFrame(CFrameWnd*) {}

void CDocument::OnDocumentEvent(DocumentEvent) {}

// Only its last frame has to ask.
BOOL CDocument::CanCloseFrame(CFrameWnd* pFrame) {
    for (POSITION at = GetFirstViewPosition(); at != nullptr;) {
        CView* view = GetNextView(at);
        CFrameWnd* frame = view->GetParentFrame();
        if (frame != nullptr && frame != pFrame)
            return TRUE;
    }
    return SaveModified();
}
