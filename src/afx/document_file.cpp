// Documents and their files.
#include "afx_app.h"
#include "afx_doc_template.h"
#include "afx_document.h"
#include "afx_frame.h"
#include "afxres.h"
#include "file_names.h"

#include <memory>
#include <utility>

namespace {

// Closes, or throws away what was written, by the document's ReleaseFile.
class document_file {
public:
    document_file(CDocument& document, CFile* file) : m_document(document), m_file(file) {}
    ~document_file() {
        if (m_file != nullptr)
            m_document.ReleaseFile(m_file, TRUE);
    }
    document_file(const document_file&) = delete;
    document_file& operator=(const document_file&) = delete;
    CFile* get() const { return m_file; }
    void close() { m_document.ReleaseFile(std::exchange(m_file, nullptr), FALSE); }

private:
    CDocument& m_document;
    CFile* m_file;
};

} // namespace

namespace {

// A file that takes the place of the one of its name only once it is complete: a failed save leaves the old one.
class mirror_file : public CFile {
public:
    ~mirror_file() override { mirror_file::Abort(); }

    BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError) override {
        char temporary[MAX_PATH];
        const CString target = full_path_of(lpszFileName);
        const CString folder = target.Left(target.GetLength() - file_name_of(target).GetLength());
        const DWORD attributes = ::GetFileAttributes(target);
        const bool replace = (nOpenFlags & modeCreate) != 0 && attributes != INVALID_FILE_ATTRIBUTES &&
                             (attributes & FILE_ATTRIBUTE_READONLY) == 0 &&
                             ::GetTempFileName(folder, "doc", 0, temporary) != 0;
        if (!CFile::Open(replace ? temporary : target.GetString(), nOpenFlags, pError))
            return FALSE;
        m_strFileName = target;
        m_temporary = replace ? CString(temporary) : CString();
        return TRUE;
    }
    void Close() override {
        const CString target = m_strFileName, temporary = std::exchange(m_temporary, CString());
        CFile::Close();
        if (!temporary.IsEmpty() && !::MoveFileEx(temporary, target, MOVEFILE_REPLACE_EXISTING))
            CFileException::ThrowOsError(static_cast<LONG>(::GetLastError()), target);
    }
    void Abort() override {
        const CString temporary = std::exchange(m_temporary, CString());
        CFile::Abort();
        if (!temporary.IsEmpty())
            ::DeleteFile(temporary);
    }

private:
    CString m_temporary;
};

} // namespace

CFile* CDocument::GetFile(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError) {
    auto file = std::make_unique<mirror_file>();
    return file->Open(lpszFileName, nOpenFlags, pError) ? file.release() : nullptr;
}

void CDocument::ReleaseFile(CFile* pFile, BOOL bAbort) {
    const std::unique_ptr<CFile> file(pFile);
    if (bAbort)
        file->Abort();
    else
        file->Close();
}

// FALSE where the file does not open, which is reported.
BOOL CDocument::Transfer(LPCTSTR path, bool loading) {
    const UINT mode = loading ? CFile::modeRead | CFile::shareDenyWrite
                              : CFile::modeCreate | CFile::modeReadWrite | CFile::shareExclusive;
    CFileException reason;
    document_file file(*this, GetFile(path, mode, &reason));
    if (file.get() == nullptr) {
        ReportSaveLoadException(path, &reason, !loading,
                                loading ? AFX_IDP_FAILED_TO_OPEN_DOC : AFX_IDP_INVALID_FILENAME);
        return FALSE;
    }
    if (loading) {
        DeleteContents();
        SetModifiedFlag(); // an exception leaves half a document
    }
    CArchive archive(file.get(), loading ? CArchive::load : CArchive::store);
    archive.m_pDocument = this;
    const CWaitCursor wait;
    if (!loading || file.get()->GetLength() != 0)
        Serialize(archive);
    archive.Close();
    file.close();
    return TRUE;
}

// FALSE, too, after an exception, which is reported.
BOOL CDocument::TryTransfer(LPCTSTR path, bool loading) {
    try {
        return Transfer(path, loading);
    } catch (CException* exception) {
        if (loading)
            DeleteContents();
        try {
            ReportSaveLoadException(path, exception, !loading,
                                    loading ? AFX_IDP_FAILED_TO_OPEN_DOC : AFX_IDP_FAILED_TO_SAVE_DOC);
        } catch (...) {
            exception->Delete();
            throw;
        }
        exception->Delete();
        return FALSE;
    }
}

BOOL CDocument::OnOpenDocument(LPCTSTR lpszPathName) {
    if (!TryTransfer(lpszPathName, true))
        return FALSE;
    SetModifiedFlag(FALSE);
    return TRUE;
}

BOOL CDocument::OnSaveDocument(LPCTSTR lpszPathName) {
    if (!TryTransfer(lpszPathName, false))
        return FALSE;
    SetModifiedFlag(FALSE);
    return TRUE;
}

namespace {

// The text for a file error; 0 where the general one says as much.
UINT file_message(const CFileException& exception, BOOL saving) {
    switch (exception.m_cause) {
    case CFileException::fileNotFound:
    case CFileException::badPath:
        return AFX_IDP_FAILED_INVALID_PATH;
    case CFileException::diskFull:
        return AFX_IDP_FAILED_DISK_FULL;
    case CFileException::accessDenied:
    case CFileException::sharingViolation:
    case CFileException::lockViolation:
        return saving ? AFX_IDP_FAILED_ACCESS_WRITE : AFX_IDP_FAILED_ACCESS_READ;
    case CFileException::badSeek:
    case CFileException::genericException:
    case CFileException::tooManyOpenFiles:
    case CFileException::invalidFile:
    case CFileException::hardIO:
        return saving ? AFX_IDP_FAILED_IO_ERROR_WRITE : AFX_IDP_FAILED_IO_ERROR_READ;
    case CFileException::endOfFile:
        return AFX_IDP_FAILED_INVALID_FORMAT;
    default:
        return 0;
    }
}

} // namespace

void CDocument::ReportSaveLoadException(LPCTSTR lpszPathName, CException* e, BOOL bSaving, UINT nIDPDefault) {
    UINT id = 0;
    if (e != nullptr) {
        if (e->IsKindOf(RUNTIME_CLASS(CUserException)))
            return; // told already
        if (e->IsKindOf(RUNTIME_CLASS(CFileException))) {
            id = file_message(static_cast<const CFileException&>(*e), bSaving);
        } else if (std::strcmp(e->GetRuntimeClass()->m_lpszClassName, "CArchiveException") == 0) {
            id = AFX_IDP_FAILED_INVALID_FORMAT;
        } else {
            e->ReportError(MB_ICONEXCLAMATION, nIDPDefault);
            return;
        }
    }
    CString text;
    AfxFormatString1(text, id != 0 ? id : nIDPDefault, title_of(lpszPathName));
    AfxMessageBox(text, MB_ICONEXCLAMATION, id != 0 ? id : nIDPDefault);
}

BOOL CDocument::SaveModified() {
    if (!IsModified())
        return TRUE;
    CString name = m_strPathName.IsEmpty() ? m_strTitle : title_of(m_strPathName);
    if (name.IsEmpty())
        name.LoadString(AFX_IDS_UNTITLED);
    CString question;
    AfxFormatString1(question, AFX_IDP_ASK_TO_SAVE, name);
    switch (AfxMessageBox(question, MB_YESNOCANCEL, AFX_IDP_ASK_TO_SAVE)) {
    case IDCANCEL:
        return FALSE;
    case IDYES:
        return DoFileSave();
    default:
        return TRUE;
    }
}

BOOL CDocument::DoFileSave() {
    const DWORD attributes = ::GetFileAttributes(m_strPathName);
    const bool read_only = attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
    return DoSave(read_only ? nullptr : m_strPathName.GetString());
}

BOOL CDocument::AskForName(CString& path, BOOL replace) {
    path = m_strPathName;
    if (replace && path.IsEmpty()) {
        path = m_strTitle;
        // A title may hold what no file name may.
        for (int i = 0; i < path.GetLength(); ++i) {
            if (std::strchr(" #%;/\\:*?\"<>|", path[i]) != nullptr) {
                path = path.Left(i);
                break;
            }
        }
        CString extension;
        if (m_pDocTemplate != nullptr && m_pDocTemplate->GetDocString(extension, CDocTemplate::filterExt))
            path += extension;
    }
    return AfxGetApp()->DoPromptFileName(path, replace ? AFX_IDS_SAVEFILE : AFX_IDS_SAVEFILECOPY,
                                         OFN_HIDEREADONLY | OFN_PATHMUSTEXIST, FALSE, m_pDocTemplate);
}

BOOL CDocument::DoSave(LPCTSTR lpszPathName, BOOL bReplace) {
    CString path = lpszPathName;
    if (path.IsEmpty() && !AskForName(path, bReplace))
        return FALSE;
    const CWaitCursor wait;
    if (!OnSaveDocument(path)) {
        if (lpszPathName == nullptr)
            ::DeleteFile(path); // what was begun under the new name
        return FALSE;
    }
    if (bReplace)
        SetPathName(path);
    OnDocumentEvent(onAfterSaveDocument);
    return TRUE;
}

void CDocument::OnFileClose() {
    if (SaveModified())
        OnCloseDocument();
}

void CDocument::OnFileSave() {
    DoFileSave();
}

void CDocument::OnFileSaveAs() {
    DoSave(nullptr);
}
