// A document as the attachment of a message, by the simple interface of the platform's mail program.
#include "afx_document.h"
#include "afx_app.h"
#include "afx_cmdui.h"
#include "afxres.h"
#include "file_names.h"

#include <mapi.h>

#include <utility>

namespace {

class mail_library {
public:
    mail_library() : m_module(::LoadLibrary("MAPI32.DLL")) {}
    ~mail_library() {
        if (m_module != nullptr)
            ::FreeLibrary(m_module);
    }
    mail_library(const mail_library&) = delete;
    mail_library& operator=(const mail_library&) = delete;

    LPMAPISENDMAIL send() const {
        const FARPROC found = m_module != nullptr ? ::GetProcAddress(m_module, "MAPISendMail") : nullptr;
        return reinterpret_cast<LPMAPISENDMAIL>(reinterpret_cast<void (*)()>(found));
    }

private:
    HMODULE m_module;
};

// A file of the document's name in the folder for such files, gone with the object.
class mailed_file {
public:
    explicit mailed_file(LPCTSTR name) {
        char folder[MAX_PATH];
        const DWORD length = ::GetTempPath(sizeof(folder), folder);
        if (length > 0 && length < sizeof(folder))
            m_path = CString(folder) + name;
    }
    ~mailed_file() { ::DeleteFile(m_path); }
    mailed_file(const mailed_file&) = delete;
    mailed_file& operator=(const mailed_file&) = delete;
    const CString& path() const { return m_path; }

private:
    CString m_path;
};

ULONG send_file(LPMAPISENDMAIL send, const CString& path, const CString& title) {
    MapiFileDesc file{};
    file.nPosition = static_cast<ULONG>(-1);
    file.lpszPathName = const_cast<LPSTR>(path.GetString());
    file.lpszFileName = const_cast<LPSTR>(title.GetString());
    MapiMessage message{};
    message.nFileCount = 1;
    message.lpFiles = &file;
    CWnd* main = AfxGetMainWnd();
    return send(0, reinterpret_cast<ULONG_PTR>(main->GetSafeHwnd()), &message, MAPI_LOGON_UI | MAPI_DIALOG, 0);
}

} // namespace

// Where a mail program is installed it says so here.
void CDocument::OnUpdateFileSendMail(CCmdUI* pCmdUI) {
    pCmdUI->Enable(::GetProfileInt("MAIL", "MAPI", 0) != 0 && mail_library().send() != nullptr);
}

void CDocument::OnFileSendMail() {
    const mail_library library;
    const LPMAPISENDMAIL send = library.send();
    CString title = m_strPathName.IsEmpty() ? m_strTitle : file_name_of(m_strPathName);
    for (const char* at = "\\/:*?\"<>|"; *at != '\0'; ++at)
        title.Remove(*at);
    const mailed_file file(title);
    const CWaitCursor wait;
    const BOOL modified = m_bModified; // a copy is no saving
    if (send == nullptr || file.path().IsEmpty()) {
        AfxMessageBox(AFX_IDP_FAILED_MAPI_SEND);
        return;
    }
    const BOOL saved = OnSaveDocument(file.path()); // which tells of its failure itself
    m_bModified = modified;
    const ULONG result = saved ? send_file(send, file.path(), title) : static_cast<ULONG>(SUCCESS_SUCCESS);
    if (result != SUCCESS_SUCCESS && result != MAPI_USER_ABORT)
        AfxMessageBox(AFX_IDP_FAILED_MAPI_SEND);
}
