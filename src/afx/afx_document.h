// Documents: what a program edits, apart from the views that show it.
#pragma once

#include "afx_cmdtarget.h"
#include "afx_archive.h"
#include "afx_menu.h"
#include "afxcoll.h"

class CCmdUI;
class CDocTemplate;
class CFrameWnd;
class CView;

// Created by its template, empty or from a file; Serialize reads and writes it. It asks before changes are lost, and
// goes with its last view.
class ZOPAFX_API CDocument : public CCmdTarget {
    DECLARE_DYNAMIC(CDocument)
    DECLARE_MESSAGE_MAP()

public:
    CDocument();
    ~CDocument() override;

    BOOL m_bAutoDelete = TRUE;

    const CString& GetTitle() const { return m_strTitle; }
    virtual void SetTitle(LPCTSTR lpszTitle);
    const CString& GetPathName() const { return m_strPathName; }
    virtual void SetPathName(LPCTSTR lpszPathName, BOOL bAddToMRU = TRUE);
    virtual void ClearPathName();
    CDocTemplate* GetDocTemplate() const { return m_pDocTemplate; }
    virtual BOOL IsModified() { return m_bModified; }
    virtual void SetModifiedFlag(BOOL bModified = TRUE) { m_bModified = bModified; }

    void AddView(CView* pView);
    void RemoveView(CView* pView);
    virtual POSITION GetFirstViewPosition() const;
    virtual CView* GetNextView(POSITION& rPosition) const;
    // Every view but the sender has its OnUpdate called.
    void UpdateAllViews(CView* pSender, LPARAM lHint = 0L, CObject* pHint = nullptr);
    void SendInitialUpdate();
    virtual void UpdateFrameCounts();
    virtual void OnChangedViewList();

    // The steps of a document's life, for a program to override.
    virtual void DeleteContents();
    virtual BOOL OnNewDocument();
    virtual BOOL OnOpenDocument(LPCTSTR lpszPathName);
    virtual BOOL OnSaveDocument(LPCTSTR lpszPathName);
    virtual void OnCloseDocument();
    virtual void ReportSaveLoadException(LPCTSTR lpszPathName, CException* e, BOOL bSaving, UINT nIDPDefault);
    virtual CFile* GetFile(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError);
    virtual void ReleaseFile(CFile* pFile, BOOL bAbort);
    virtual BOOL CanCloseFrame(CFrameWnd* pFrame);
    virtual BOOL SaveModified(); // FALSE: the user wants to go on
    virtual void PreCloseFrame(CFrameWnd* pFrame);
    enum DocumentEvent { onAfterNewDocument, onAfterOpenDocument, onAfterSaveDocument, onAfterCloseDocument };
    // Does nothing; behind each that went well.
    virtual void OnDocumentEvent(DocumentEvent deEvent);
    // Without a name the user is asked for one. bReplace FALSE saves a copy.
    virtual BOOL DoSave(LPCTSTR lpszPathName, BOOL bReplace = TRUE);
    virtual BOOL DoFileSave();
    virtual HMENU GetDefaultMenu();
    virtual HACCEL GetDefaultAccelerator();
    virtual void OnIdle();

    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    void DisconnectViews();
    afx_msg void OnFileClose();
    afx_msg void OnFileSave();
    afx_msg void OnFileSaveAs();
    // For the maps of programs: a message of the platform's mail program with the document's file.
    afx_msg void OnFileSendMail();
    afx_msg void OnUpdateFileSendMail(CCmdUI* pCmdUI);

    CString m_strTitle;
    CString m_strPathName;
    CDocTemplate* m_pDocTemplate = nullptr;
    BOOL m_bModified = FALSE;
    CPtrList m_viewList;

private:
    friend class CDocTemplate;
    friend class CFrameWnd;
    BOOL Transfer(LPCTSTR path, bool loading);
    BOOL TryTransfer(LPCTSTR path, bool loading);
    BOOL AskForName(CString& path, BOOL replace);

    bool m_closing = false; // its frames go because it goes
};
