#include "afx_app.h"
#include "afx_document.h"
#include "afx_mdi.h"
#include "afx_view.h"
#include "afxmsg_.h"
#include "position_list.h"

#include <utility>

IMPLEMENT_DYNCREATE(CMDIChildWnd, CFrameWnd)
IMPLEMENT_DYNAMIC(CMultiDocTemplate, CDocTemplate)

BEGIN_MESSAGE_MAP(CMDIChildWnd, CFrameWnd)
ON_WM_CREATE()
ON_WM_MOUSEACTIVATE()
ON_WM_MDIACTIVATE()
ON_WM_SIZE()
ON_WM_DESTROY()
END_MESSAGE_MAP()

CMDIChildWnd::CMDIChildWnd() = default;

CMDIChildWnd::~CMDIChildWnd() = default;

void CMDIChildWnd::SetHandles(HMENU hMenu, HACCEL hAccel) {
    m_hMenuShared = hMenu;
    m_hAccelTable = hAccel;
}

BOOL CMDIChildWnd::PreCreateWindow(CREATESTRUCT& cs) {
    if (!CFrameWnd::PreCreateWindow(cs))
        return FALSE;
    cs.dwExStyle |= WS_EX_MDICHILD;
    cs.style |= WS_CHILD;
    return TRUE;
}

BOOL CMDIChildWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                          CMDIFrameWnd* pParentWnd, CCreateContext* pContext) {
    CMDIFrameWnd* main = pParentWnd != nullptr ? pParentWnd : DYNAMIC_DOWNCAST(CMDIFrameWnd, AfxGetMainWnd());
    if (main == nullptr || main->m_hWndMDIClient == nullptr) {
        PostNcDestroy();
        return FALSE;
    }
    m_strTitle = lpszWindowName;
    const bool anywhere = rect.left == CW_USEDEFAULT;
    const int width = anywhere ? CW_USEDEFAULT : rect.right - rect.left;
    const int height = anywhere ? CW_USEDEFAULT : rect.bottom - rect.top;
    BOOL maximized = FALSE; // the platform shows the child at once, and restores the one before
    main->MDIGetActive(&maximized);
    const DWORD as_before = maximized ? WS_MAXIMIZE : 0;
    return CreateEx(WS_EX_MDICHILD, lpszClassName, lpszWindowName, dwStyle | WS_CHILD | as_before, rect.left, rect.top,
                    width, height, main->m_hWndMDIClient, nullptr, pContext);
}

BOOL CMDIChildWnd::LoadFrame(UINT nIDResource, DWORD dwDefaultStyle, CWnd* pParentWnd, CCreateContext* pContext) {
    CString text, title;
    if (text.LoadString(nIDResource))
        AfxExtractSubString(title, text, 0);
    return Create(GetIconWndClass(dwDefaultStyle, nIDResource), title, dwDefaultStyle, rectDefault,
                  static_cast<CMDIFrameWnd*>(pParentWnd), pContext);
}

// The platform wraps what it was created with.
int CMDIChildWnd::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    const auto* mdi = static_cast<const MDICREATESTRUCT*>(lpCreateStruct->lpCreateParams);
    return OnCreateHelper(lpCreateStruct, mdi != nullptr ? reinterpret_cast<CCreateContext*>(mdi->lParam) : nullptr);
}

LRESULT CMDIChildWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::DefMDIChildProc(m_hWnd, message, wParam, lParam);
}

CMDIFrameWnd* CMDIChildWnd::GetMDIFrame() const {
    const HWND client = ::GetParent(m_hWnd);
    return static_cast<CMDIFrameWnd*>(CWnd::FromHandle(::GetParent(client)));
}

BOOL CMDIChildWnd::DestroyWindow() {
    if (m_hWnd == nullptr)
        return FALSE;
    const HWND hwnd = m_hWnd;
    MDIDestroy();
    if (!::IsWindow(hwnd))
        return TRUE;
    return CFrameWnd::DestroyWindow();
}

void CMDIChildWnd::ActivateFrame(int nCmdShow) {
    BOOL maximized = FALSE;
    CMDIFrameWnd* main = GetMDIFrame();
    CMDIChildWnd* active = main->MDIGetActive(&maximized);
    if (nCmdShow == -1 && active != nullptr && maximized && !IsWindowVisible())
        nCmdShow = SW_SHOWMAXIMIZED;
    CFrameWnd::ActivateFrame(nCmdShow);
    MDIActivate();
    main->OnUpdateFrameTitle(TRUE);
}

void CMDIChildWnd::OnMDIActivate(BOOL bActivate, CWnd* pActivateWnd, CWnd*) {
    CView* view = GetActiveView();
    if (view != nullptr && !bActivate)
        SetActiveView(view); // keeps it for when the window is active again
    OnUpdateFrameMenu(bActivate, pActivateWnd, nullptr);
    GetMDIFrame()->OnUpdateFrameTitle(bActivate || pActivateWnd != nullptr);
    if (bActivate && view != nullptr && !IsIconic())
        view->SetFocus();
}

void CMDIChildWnd::OnUpdateFrameMenu(BOOL bActive, CWnd* pActivateWnd, HMENU hMenuAlt) {
    CMDIFrameWnd* main = GetMDIFrame();
    if (bActive)
        main->OnUpdateFrameMenu(hMenuAlt != nullptr ? hMenuAlt : m_hMenuShared);
    else if (pActivateWnd == nullptr) // the last one
        main->OnUpdateFrameMenu(nullptr);
}

void CMDIChildWnd::OnUpdateFrameTitle(BOOL bAddToTitle) {
    if ((GetStyle() & FWS_ADDTOTITLE) == 0)
        return;
    GetMDIFrame()->OnUpdateFrameTitle(bAddToTitle);
    CDocument* document = GetActiveDocument();
    if (!bAddToTitle || document == nullptr)
        return;
    CString title = document->GetTitle(), number;
    if (m_nWindow > 0) {
        number.Format(":%d", m_nWindow);
        title += number;
    }
    SetWindowText(title);
    ::SendMessage(::GetParent(m_hWnd), WM_MDIREFRESHMENU, 0, 0); // the list of windows
}

CWnd* CMDIChildWnd::GetMessageBar() {
    return GetMDIFrame()->GetMessageBar();
}

BOOL CMDIChildWnd::PreTranslateMessage(MSG* pMsg) {
    if (CWnd::PreTranslateMessage(pMsg))
        return TRUE;
    if (pMsg->message < WM_KEYFIRST || pMsg->message > WM_KEYLAST)
        return FALSE;
    const HACCEL keys = GetDefaultAccelerator();
    return keys != nullptr && ::TranslateAccelerator(GetMDIFrame()->m_hWnd, keys, pMsg);
}

int CMDIChildWnd::OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message) {
    const int result = CFrameWnd::OnMouseActivate(pDesktopWnd, nHitTest, message);
    if (result != MA_NOACTIVATE && result != MA_NOACTIVATEANDEAT && GetMDIFrame()->MDIGetActive() != this)
        MDIActivate();
    return result;
}

void CMDIChildWnd::OnSize(UINT nType, int cx, int cy) {
    CWnd::OnSize(nType, cx, cy); // the platform needs to know of a maximised window
    GetMDIFrame()->OnUpdateFrameTitle(
        TRUE); // the document stands in it unless the platform shows the child's title there
    if (nType != SIZE_MINIMIZED)
        RecalcLayout();
}

void CMDIChildWnd::OnDestroy() {
    CMDIFrameWnd* main = GetMDIFrame();
    if (main->MDIGetActive() == this && m_hMenuShared != nullptr && ::GetWindow(m_hWnd, GW_HWNDNEXT) == nullptr)
        main->OnUpdateFrameMenu(nullptr);
    CFrameWnd::OnDestroy();
}

CMultiDocTemplate::CMultiDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                                     CRuntimeClass* pViewClass)
    : CDocTemplate(nIDResource, pDocClass, pFrameClass, pViewClass) {}

CMultiDocTemplate::~CMultiDocTemplate() {
    if (m_hMenuShared != nullptr)
        ::DestroyMenu(m_hMenuShared);
    if (m_hAccelTable != nullptr)
        ::DestroyAcceleratorTable(m_hAccelTable);
}

void CMultiDocTemplate::LoadTemplate() {
    CDocTemplate::LoadTemplate();
    LPCTSTR name = MAKEINTRESOURCE(m_nIDResource);
    if (m_hMenuShared == nullptr)
        m_hMenuShared = ::LoadMenu(AfxFindResourceHandle(name, RT_MENU), name);
    if (m_hAccelTable == nullptr)
        m_hAccelTable = ::LoadAccelerators(AfxFindResourceHandle(name, RT_ACCELERATOR), name);
}

POSITION CMultiDocTemplate::GetFirstDocPosition() const {
    return first_position(m_documents);
}

CDocument* CMultiDocTemplate::GetNextDoc(POSITION& rPos) const {
    return next_at(m_documents, rPos);
}

void CMultiDocTemplate::AddDocument(CDocument* pDoc) {
    CDocTemplate::AddDocument(pDoc);
    m_documents.push_back(pDoc);
}

void CMultiDocTemplate::RemoveDocument(CDocument* pDoc) {
    CDocTemplate::RemoveDocument(pDoc);
    std::erase(m_documents, pDoc);
}

void CMultiDocTemplate::PrepareFrame(CFrameWnd& frame) {
    if (auto* child = DYNAMIC_DOWNCAST(CMDIChildWnd, &frame))
        child->SetHandles(m_hMenuShared, m_hAccelTable);
}

void CMultiDocTemplate::SetDefaultTitle(CDocument* pDocument) {
    CString name, title;
    if (!GetDocString(name, docName) || name.IsEmpty())
        name.LoadString(AFX_IDS_UNTITLED);
    title.Format("%s%u", name.GetString(), ++m_nUntitledCount);
    pDocument->SetTitle(title);
}

CDocument* CMultiDocTemplate::OpenDocumentFile(LPCTSTR lpszPathName, BOOL bMakeVisible) {
    return OpenDocumentFile(lpszPathName, TRUE, bMakeVisible);
}

CDocument* CMultiDocTemplate::OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU, BOOL bMakeVisible) {
    CDocument* document = CreateNewDocument();
    if (document == nullptr) {
        AfxMessageBox(AFX_IDP_FAILED_TO_CREATE_DOC);
        return nullptr;
    }
    const BOOL goes = std::exchange(document->m_bAutoDelete, FALSE); // not with a frame that fails
    CFrameWnd* frame = CreateNewFrame(document, nullptr);
    document->m_bAutoDelete = goes;
    if (frame == nullptr) {
        AfxMessageBox(AFX_IDP_FAILED_TO_CREATE_DOC);
        delete document;
        return nullptr;
    }
    if (!FillDocument(*document, lpszPathName, bAddToMRU)) {
        frame->DestroyWindow(); // and the document with it
        return nullptr;
    }
    InitialUpdateFrame(frame, document, bMakeVisible);
    return document;
}
