// The program's templates, and the commands that make and open documents.
#include "afx_app.h"
#include "afx_command_line.h"
#include "afx_doc_template.h"
#include "afx_document.h"
#include "afx_frame.h"
#include "afx_boxes.h"
#include "afxdlgs.h"
#include "afxmsg_.h"
#include "afxres.h"
#include "file_names.h"
#include "position_list.h"

IMPLEMENT_DYNAMIC(CDocManager, CObject)

CDocManager::CDocManager() = default;

CDocManager::~CDocManager() {
    for (CDocTemplate* one : objects_in<CDocTemplate>(m_templateList))
        delete one;
}

void CDocManager::AddDocTemplate(CDocTemplate* pTemplate) {
    pTemplate->LoadTemplate();
    m_templateList.AddTail(pTemplate);
}

POSITION CDocManager::GetFirstDocTemplatePosition() const {
    return m_templateList.GetHeadPosition();
}

CDocTemplate* CDocManager::GetNextDocTemplate(POSITION& pos) const {
    return static_cast<CDocTemplate*>(m_templateList.GetNext(pos));
}

BOOL CDocManager::SaveAllModified() {
    for (CDocTemplate* one : objects_in<CDocTemplate>(m_templateList)) {
        if (!one->SaveAllModified())
            return FALSE;
    }
    return TRUE;
}

void CDocManager::CloseAllDocuments(BOOL bEndSession) {
    for (CDocTemplate* one : objects_in<CDocTemplate>(m_templateList))
        one->CloseAllDocuments(bEndSession);
}

int CDocManager::GetOpenDocumentCount() {
    int count = 0;
    for (CDocTemplate* one : objects_in<CDocTemplate>(m_templateList)) {
        for (POSITION at = one->GetFirstDocPosition(); at != nullptr; ++count)
            one->GetNextDoc(at);
    }
    return count;
}

CDocTemplate* CDocManager::GetBestTemplate(LPCTSTR lpszFileName) {
    CDocTemplate* best = nullptr;
    auto most = CDocTemplate::noAttempt;
    for (CDocTemplate* one : objects_in<CDocTemplate>(m_templateList)) {
        CDocument* open = nullptr;
        const auto confidence = one->MatchDocType(lpszFileName, open);
        if (confidence > most) {
            most = confidence;
            best = one;
        }
    }
    return best;
}

CDocument* CDocManager::OpenDocumentFile(LPCTSTR lpszFileName) {
    return OpenDocumentFile(lpszFileName, TRUE);
}

CDocument* CDocManager::OpenDocumentFile(LPCTSTR lpszFileName, BOOL bAddToMRU) {
    CString name = lpszFileName;
    if (name.GetLength() > 1 && name[0] == '"') // as the shell quotes it
        name = name.Mid(1, name.GetLength() - (name.Right(1) == "\"" ? 2 : 1));
    const CString path = full_path_of(name);
    CDocTemplate* best = GetBestTemplate(path);
    if (best == nullptr) {
        AfxMessageBox(AFX_IDP_FAILED_TO_OPEN_DOC);
        return nullptr;
    }
    CDocument* open = nullptr;
    if (best->MatchDocType(path, open) != CDocTemplate::yesAlreadyOpen)
        return best->OpenDocumentFile(path, bAddToMRU, TRUE);
    if (POSITION at = open->GetFirstViewPosition()) {
        CFrameWnd* frame = open->GetNextView(at)->GetParentFrame();
        if (frame != nullptr)
            frame->ActivateFrame();
        auto* main = DYNAMIC_DOWNCAST(CFrameWnd, AfxGetMainWnd());
        if (main != nullptr && main != frame)
            main->ActivateFrame();
    }
    return open;
}

namespace {

// Which kind of document is to be made; the dialog may be one of the program's own.
class new_type_dialog : public CDialog {
public:
    explicit new_type_dialog(const CPtrList& templates) : CDialog(AFX_IDD_NEWTYPEDLG), m_all(templates) {}
    CDocTemplate* chosen() const { return m_chosen; }

protected:
    BOOL OnInitDialog() override {
        CListBox& list = names();
        for (CDocTemplate* one : objects_in<CDocTemplate>(m_all)) {
            CString name;
            if (!one->GetDocString(name, CDocTemplate::fileNewName) || name.IsEmpty())
                continue;
            list.SetItemDataPtr(list.AddString(name), one);
        }
        list.SetCurSel(0);
        return CDialog::OnInitDialog();
    }
    void OnOK() override {
        const int at = names().GetCurSel();
        if (at < 0)
            return;
        m_chosen = static_cast<CDocTemplate*>(names().GetItemDataPtr(at));
        CDialog::OnOK();
    }
    DECLARE_MESSAGE_MAP()

private:
    CListBox& names() { return *static_cast<CListBox*>(GetDlgItem(AFX_IDC_LISTBOX)); }

    const CPtrList& m_all;
    CDocTemplate* m_chosen = nullptr;
};

BEGIN_MESSAGE_MAP(new_type_dialog, CDialog)
ON_LBN_DBLCLK(AFX_IDC_LISTBOX, &new_type_dialog::OnOK)
END_MESSAGE_MAP()

} // namespace

// The only one, or that which the user chooses; null where the user wants none.
CDocTemplate* CDocManager::ChooseTemplate() {
    if (m_templateList.IsEmpty())
        AfxMessageBox(AFX_IDP_FAILED_TO_CREATE_DOC);
    if (m_templateList.GetCount() < 2)
        return m_templateList.IsEmpty() ? nullptr : static_cast<CDocTemplate*>(m_templateList.GetHead());
    new_type_dialog dialog(m_templateList);
    return dialog.DoModal() == IDOK ? dialog.chosen() : nullptr;
}

void CDocManager::OnFileNew() {
    if (CDocTemplate* chosen = ChooseTemplate())
        chosen->OpenDocumentFile(nullptr);
}

void CDocManager::OnFileOpen() {
    CString name;
    if (DoPromptFileName(name, AFX_IDS_OPENFILE, OFN_HIDEREADONLY | OFN_FILEMUSTEXIST, TRUE, nullptr))
        AfxGetApp()->OpenDocumentFile(name);
}

namespace {

void append_filter(CString& filter, const CDocTemplate& from, CString* default_extension) {
    CString name, extension;
    if (!from.GetDocString(extension, CDocTemplate::filterExt) || extension.IsEmpty() ||
        !from.GetDocString(name, CDocTemplate::filterName) || name.IsEmpty())
        return;
    filter += name + "|*" + extension + "|";
    if (default_extension->IsEmpty())
        *default_extension = extension.Mid(1);
}

} // namespace

BOOL CDocManager::DoPromptFileName(CString& fileName, UINT nIDSTitle, DWORD lFlags, BOOL bOpenFileDialog,
                                   CDocTemplate* pTemplate) {
    CString title, filter, extension, all;
    if (pTemplate != nullptr)
        append_filter(filter, *pTemplate, &extension);
    for (CDocTemplate* one : objects_in<CDocTemplate>(m_templateList)) {
        if (pTemplate == nullptr)
            append_filter(filter, *one, &extension);
    }
    all.LoadString(AFX_IDS_ALLFILTER);
    filter += all + "|*.*||";
    title.LoadString(nIDSTitle);
    CFileDialog dialog(bOpenFileDialog, extension.IsEmpty() ? nullptr : extension.GetString(), fileName,
                       lFlags | OFN_OVERWRITEPROMPT, filter);
    dialog.m_ofn.lpstrTitle = title;
    if (dialog.DoModal() != IDOK)
        return FALSE;
    fileName = dialog.GetPathName();
    return TRUE;
}

namespace {

CDocManager& manager_of(CWinApp& app) {
    if (app.m_pDocManager == nullptr)
        app.m_pDocManager = new CDocManager;
    return *app.m_pDocManager;
}

} // namespace

void CWinApp::AddDocTemplate(CDocTemplate* pTemplate) {
    manager_of(*this).AddDocTemplate(pTemplate);
}

POSITION CWinApp::GetFirstDocTemplatePosition() const {
    return m_pDocManager != nullptr ? m_pDocManager->GetFirstDocTemplatePosition() : nullptr;
}

CDocTemplate* CWinApp::GetNextDocTemplate(POSITION& pos) const {
    return m_pDocManager->GetNextDocTemplate(pos);
}

CDocument* CWinApp::OpenDocumentFile(LPCTSTR lpszFileName) {
    return m_pDocManager != nullptr ? m_pDocManager->OpenDocumentFile(lpszFileName) : nullptr;
}

CDocument* CWinApp::OpenDocumentFile(LPCTSTR lpszFileName, BOOL bAddToMRU) {
    return m_pDocManager != nullptr ? m_pDocManager->OpenDocumentFile(lpszFileName, bAddToMRU) : nullptr;
}

int CWinApp::GetOpenDocumentCount() {
    return m_pDocManager != nullptr ? m_pDocManager->GetOpenDocumentCount() : 0;
}

BOOL CWinApp::SaveAllModified() {
    return m_pDocManager == nullptr || m_pDocManager->SaveAllModified();
}

void CWinApp::CloseAllDocuments(BOOL bEndSession) {
    if (m_pDocManager != nullptr)
        m_pDocManager->CloseAllDocuments(bEndSession);
}

BOOL CWinApp::DoPromptFileName(CString& fileName, UINT nIDSTitle, DWORD lFlags, BOOL bOpenFileDialog,
                               CDocTemplate* pTemplate) {
    return manager_of(*this).DoPromptFileName(fileName, nIDSTitle, lFlags, bOpenFileDialog, pTemplate);
}

void CWinApp::OnFileNew() {
    if (m_pDocManager != nullptr)
        m_pDocManager->OnFileNew();
}

void CWinApp::OnFileOpen() {
    if (m_pDocManager != nullptr)
        m_pDocManager->OnFileOpen();
}

BOOL CWinApp::ProcessShellCommand(CCommandLineInfo& rCmdInfo) {
    switch (rCmdInfo.m_nShellCommand) {
    case CCommandLineInfo::FileNew:
        if (!OnCmdMsg(ID_FILE_NEW, CN_COMMAND, nullptr, nullptr))
            OnFileNew();
        return m_pMainWnd != nullptr;
    case CCommandLineInfo::FileOpen:
        return OpenDocumentFile(rCmdInfo.m_strFileName) != nullptr;
    case CCommandLineInfo::FilePrint:
    case CCommandLineInfo::FilePrintTo:
        m_nCmdShow = SW_HIDE;
        m_pCmdInfo = &rCmdInfo; // the printing asks nobody
        if (OpenDocumentFile(rCmdInfo.m_strFileName) != nullptr)
            m_pMainWnd->SendMessage(WM_COMMAND, ID_FILE_PRINT_DIRECT);
        m_pCmdInfo = nullptr;
        return FALSE;
    case CCommandLineInfo::FileDDE:
        if (m_atomApp != 0)
            m_nCmdShow = SW_HIDE; // until the command comes
        return TRUE;
    case CCommandLineInfo::AppRegister:
        RegisterShellFileTypes();
        return FALSE;
    case CCommandLineInfo::AppUnregister:
        UnregisterShellFileTypes();
        return FALSE;
    default:
        return TRUE;
    }
}
