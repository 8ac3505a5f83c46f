#include "afx_doc_template.h"
#include "afx_app.h"
#include "afx_document.h"
#include "afx_frame.h"
#include "afx_view.h"
#include "file_names.h"

#include <memory>
#include <utility>

IMPLEMENT_DYNAMIC(CDocTemplate, CCmdTarget)
IMPLEMENT_DYNAMIC(CSingleDocTemplate, CDocTemplate)

CDocTemplate::CDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                           CRuntimeClass* pViewClass)
    : m_nIDResource(nIDResource), m_pDocClass(pDocClass), m_pFrameClass(pFrameClass), m_pViewClass(pViewClass) {}

CDocTemplate::~CDocTemplate() = default;

void CDocTemplate::LoadTemplate() {
    if (m_strDocStrings.IsEmpty())
        m_strDocStrings.LoadString(m_nIDResource);
}

BOOL CDocTemplate::GetDocString(CString& rString, DocStringIndex index) const {
    return AfxExtractSubString(rString, m_strDocStrings, index);
}

void CDocTemplate::AddDocument(CDocument* pDoc) {
    pDoc->m_pDocTemplate = this;
}

void CDocTemplate::RemoveDocument(CDocument* pDoc) {
    pDoc->m_pDocTemplate = nullptr;
}

CDocTemplate::Confidence CDocTemplate::MatchDocType(LPCTSTR lpszPathName, CDocument*& rpDocMatch) {
    rpDocMatch = nullptr;
    for (POSITION at = GetFirstDocPosition(); at != nullptr;) {
        CDocument* document = GetNextDoc(at);
        if (document != nullptr && is_same_file(document->GetPathName(), full_path_of(lpszPathName))) {
            rpDocMatch = document;
            return yesAlreadyOpen;
        }
    }
    CString extension;
    if (GetDocString(extension, filterExt) && !extension.IsEmpty() &&
        lstrcmpi(extension_of(lpszPathName), extension) == 0)
        return yesAttemptNative;
    return yesAttemptForeign;
}

CDocument* CDocTemplate::CreateNewDocument() {
    auto* document = m_pDocClass != nullptr ? DYNAMIC_DOWNCAST(CDocument, m_pDocClass->CreateObject()) : nullptr;
    if (document != nullptr)
        AddDocument(document);
    return document;
}

CFrameWnd* CDocTemplate::CreateNewFrame(CDocument* pDoc, CFrameWnd* pOther) {
    CCreateContext context;
    context.m_pNewViewClass = m_pViewClass;
    context.m_pCurrentDoc = pDoc;
    context.m_pNewDocTemplate = this;
    context.m_pCurrentFrame = pOther;
    auto* frame = m_pFrameClass != nullptr ? DYNAMIC_DOWNCAST(CFrameWnd, m_pFrameClass->CreateObject()) : nullptr;
    if (frame == nullptr)
        return nullptr;
    PrepareFrame(*frame);
    // A frame that cannot be loaded has deleted itself.
    return frame->LoadFrame(m_nIDResource, WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE, nullptr, &context) ? frame : nullptr;
}

void CDocTemplate::PrepareFrame(CFrameWnd&) {}

void CDocTemplate::InitialUpdateFrame(CFrameWnd* pFrame, CDocument* pDoc, BOOL bMakeVisible) {
    pFrame->InitialUpdateFrame(pDoc, bMakeVisible);
}

BOOL CDocTemplate::SaveAllModified() {
    for (POSITION at = GetFirstDocPosition(); at != nullptr;) {
        CDocument* document = GetNextDoc(at);
        if (document != nullptr && !document->SaveModified())
            return FALSE;
    }
    return TRUE;
}

void CDocTemplate::CloseAllDocuments(BOOL) {
    for (POSITION at = GetFirstDocPosition(); at != nullptr;) {
        if (CDocument* document = GetNextDoc(at))
            document->OnCloseDocument();
    }
}

void CDocTemplate::OnIdle() {
    for (POSITION at = GetFirstDocPosition(); at != nullptr;) {
        if (CDocument* document = GetNextDoc(at))
            document->OnIdle();
    }
}

BOOL CDocTemplate::FillDocument(CDocument& document, LPCTSTR path, BOOL add_to_recent) {
    if (path == nullptr) {
        SetDefaultTitle(&document);
        if (!document.OnNewDocument())
            return FALSE;
        document.OnDocumentEvent(CDocument::onAfterNewDocument);
        return TRUE;
    }
    const CWaitCursor wait;
    const BOOL modified = document.IsModified();
    document.SetModifiedFlag(FALSE);
    if (document.OnOpenDocument(path)) {
        document.SetPathName(path, add_to_recent);
        document.OnDocumentEvent(CDocument::onAfterOpenDocument);
        return TRUE;
    }
    if (!document.IsModified())
        document.SetModifiedFlag(modified); // as it was: nothing has been read
    return FALSE;
}

CSingleDocTemplate::CSingleDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                                       CRuntimeClass* pViewClass)
    : CDocTemplate(nIDResource, pDocClass, pFrameClass, pViewClass) {}

CSingleDocTemplate::~CSingleDocTemplate() = default;

POSITION CSingleDocTemplate::GetFirstDocPosition() const {
    return reinterpret_cast<POSITION>(m_pOnlyDoc);
}

CDocument* CSingleDocTemplate::GetNextDoc(POSITION& rPos) const {
    rPos = nullptr;
    return m_pOnlyDoc;
}

void CSingleDocTemplate::AddDocument(CDocument* pDoc) {
    CDocTemplate::AddDocument(pDoc);
    m_pOnlyDoc = pDoc;
}

void CSingleDocTemplate::RemoveDocument(CDocument* pDoc) {
    CDocTemplate::RemoveDocument(pDoc);
    if (m_pOnlyDoc == pDoc)
        m_pOnlyDoc = nullptr;
}

void CSingleDocTemplate::SetDefaultTitle(CDocument* pDocument) {
    CString name;
    if (!GetDocString(name, docName) || name.IsEmpty())
        name.LoadString(AFX_IDS_UNTITLED);
    pDocument->SetTitle(name);
}

CDocument* CSingleDocTemplate::OpenDocumentFile(LPCTSTR lpszPathName, BOOL bMakeVisible) {
    return OpenDocumentFile(lpszPathName, TRUE, bMakeVisible);
}

// The one document is used again; its first opening makes it, with its frame.
CDocument* CSingleDocTemplate::OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU, BOOL bMakeVisible) {
    const bool first = m_pOnlyDoc == nullptr;
    if (!first && !m_pOnlyDoc->SaveModified())
        return nullptr;
    CDocument* document = first ? CreateNewDocument() : m_pOnlyDoc;
    if (document == nullptr) {
        AfxMessageBox(AFX_IDP_FAILED_TO_CREATE_DOC);
        return nullptr;
    }
    auto* frame = first ? nullptr : DYNAMIC_DOWNCAST(CFrameWnd, AfxGetMainWnd());
    if (first) {
        const BOOL goes = std::exchange(document->m_bAutoDelete, FALSE); // not with a frame that fails
        frame = CreateNewFrame(document, nullptr);
        document->m_bAutoDelete = goes;
        if (frame == nullptr) {
            AfxMessageBox(AFX_IDP_FAILED_TO_CREATE_DOC);
            delete document;
            return nullptr;
        }
    }
    if (!FillDocument(*document, lpszPathName, bAddToMRU)) {
        if (first) {
            frame->DestroyWindow();          // and the document with it
        } else if (document->IsModified()) { // half a document: an empty one instead
            SetDefaultTitle(document);
            document->OnNewDocument();
        }
        return nullptr;
    }
    CWinThread* thread = AfxGetThread();
    if (first && thread->m_pMainWnd == nullptr)
        thread->m_pMainWnd = frame;
    InitialUpdateFrame(frame, document, bMakeVisible);
    return document;
}
