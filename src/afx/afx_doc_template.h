// Document templates: which document, frame and view belong together, and the resources that they share.
#pragma once

#include "afx_cmdtarget.h"
#include "afx_menu.h"
#include "afxcoll.h"

class CDocument;
class CFrameWnd;
class CWnd;

class ZOPAFX_API CDocTemplate : public CCmdTarget {
    DECLARE_DYNAMIC(CDocTemplate)

public:
    ~CDocTemplate() override;

    // The parts of the template's text, which line ends divide.
    enum DocStringIndex { windowTitle, docName, fileNewName, filterName, filterExt, regFileTypeId, regFileTypeName };
    virtual BOOL GetDocString(CString& rString, DocStringIndex index) const;
    enum Confidence {
        noAttempt,
        maybeAttemptForeign,
        maybeAttemptNative,
        yesAttemptForeign,
        yesAttemptNative,
        yesAlreadyOpen
    };
    // How well the file's extension suits; rpDocMatch is the document that is open already.
    virtual Confidence MatchDocType(LPCTSTR lpszPathName, CDocument*& rpDocMatch);

    virtual POSITION GetFirstDocPosition() const = 0;
    virtual CDocument* GetNextDoc(POSITION& rPos) const = 0;
    virtual void AddDocument(CDocument* pDoc);
    virtual void RemoveDocument(CDocument* pDoc);
    virtual CDocument* CreateNewDocument();
    virtual CFrameWnd* CreateNewFrame(CDocument* pDoc, CFrameWnd* pOther);
    virtual void InitialUpdateFrame(CFrameWnd* pFrame, CDocument* pDoc, BOOL bMakeVisible = TRUE);
    // A null name makes a new document. Null where there is none after all.
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszPathName, BOOL bMakeVisible = TRUE) = 0;
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU, BOOL bMakeVisible) = 0;
    virtual void SetDefaultTitle(CDocument* pDocument) = 0;
    virtual BOOL SaveAllModified();
    virtual void CloseAllDocuments(BOOL bEndSession);
    virtual void LoadTemplate();
    virtual void OnIdle();

    UINT m_nIDResource;

protected:
    CDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass, CRuntimeClass* pViewClass);
    // Fills a document that has its frame; FALSE, the user having been told, where that fails.
    BOOL FillDocument(CDocument& document, LPCTSTR path, BOOL add_to_recent);

    // Before the frame is loaded.
    virtual void PrepareFrame(CFrameWnd& frame);

    CRuntimeClass* m_pDocClass;
    CRuntimeClass* m_pFrameClass;
    CRuntimeClass* m_pViewClass;
    CString m_strDocStrings;
};

// One document at a time, in one frame, which is the program's main window.
class ZOPAFX_API CSingleDocTemplate : public CDocTemplate {
    DECLARE_DYNAMIC(CSingleDocTemplate)

public:
    CSingleDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                       CRuntimeClass* pViewClass);
    ~CSingleDocTemplate() override;

    POSITION GetFirstDocPosition() const override;
    CDocument* GetNextDoc(POSITION& rPos) const override;
    void AddDocument(CDocument* pDoc) override;
    void RemoveDocument(CDocument* pDoc) override;
    CDocument* OpenDocumentFile(LPCTSTR lpszPathName, BOOL bMakeVisible = TRUE) override;
    CDocument* OpenDocumentFile(LPCTSTR lpszPathName, BOOL bAddToMRU, BOOL bMakeVisible) override;
    void SetDefaultTitle(CDocument* pDocument) override;

protected:
    CDocument* m_pOnlyDoc = nullptr;
};

// The program's templates.
class ZOPAFX_API CDocManager : public CObject {
    DECLARE_DYNAMIC(CDocManager)

public:
    CDocManager();
    ~CDocManager() override;

    virtual void AddDocTemplate(CDocTemplate* pTemplate); // is the manager's
    virtual POSITION GetFirstDocTemplatePosition() const;
    virtual CDocTemplate* GetNextDocTemplate(POSITION& pos) const;
    // The template for a file: the one that has it open, or knows its extension, or any.
    virtual CDocTemplate* GetBestTemplate(LPCTSTR lpszFileName);
    virtual void OnFileNew();
    virtual void OnFileOpen();
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszFileName);
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszFileName, BOOL bAddToMRU);
    // A command of the shell's; FALSE where it is none.
    virtual BOOL OnDDECommand(LPTSTR lpszCommand);
    // Asks the user for a file of the template, or of any.
    virtual BOOL DoPromptFileName(CString& fileName, UINT nIDSTitle, DWORD lFlags, BOOL bOpenFileDialog,
                                  CDocTemplate* pTemplate);
    virtual BOOL SaveAllModified();
    virtual void CloseAllDocuments(BOOL bEndSession);
    virtual int GetOpenDocumentCount();
    // The shell opens, and with bCompat prints, files of the templates' types with the program.
    virtual void RegisterShellFileTypes(BOOL bCompat);
    void UnregisterShellFileTypes();

protected:
    CPtrList m_templateList;

private:
    CDocTemplate* ChooseTemplate();
};
