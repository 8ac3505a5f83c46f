// The program: its start, its settings, its documents, its end.
#pragma once

#include "afx_thread.h"

class CCommandLineInfo;
class CDocManager;
class CDocTemplate;
class CDocument;
class CPrintDialog;
class CRecentFileList;
namespace ATL {
class CAtlTransactionManager;
}

// How many recent files LoadStdProfileSettings keeps.
#define _AFX_MRU_COUNT 4
#define _AFX_MRU_MAX_COUNT 16

// For m_dwRestartManagerSupportFlags: the system starts the program again after it failed. Documents are not kept.
#define AFX_RESTART_MANAGER_SUPPORT_RESTART 0x01

// The one object of a program that stands for the program itself.
class ZOPAFX_API CWinApp : public CWinThread {
    DECLARE_DYNAMIC(CWinApp)
    DECLARE_MESSAGE_MAP()

public:
    explicit CWinApp(LPCTSTR lpszAppName = nullptr);
    ~CWinApp() override;

    // Names are copies from malloc; a program that replaces one frees the old and gives another copy.
    LPCTSTR m_pszAppName = nullptr;
    LPCTSTR m_pszExeName = nullptr;
    LPCTSTR m_pszProfileName = nullptr;
    LPCTSTR m_pszHelpFilePath = nullptr;
    LPCTSTR m_pszRegistryKey = nullptr; // null: settings are kept in the file m_pszProfileName
    HINSTANCE m_hInstance = nullptr;
    HINSTANCE m_hPrevInstance = nullptr;
    LPTSTR m_lpCmdLine = nullptr;
    int m_nCmdShow = SW_SHOWNORMAL;
    CDocManager* m_pDocManager = nullptr;
    CCommandLineInfo* m_pCmdInfo = nullptr;
    DWORD m_dwRestartManagerSupportFlags = 0; // what InitInstance asks the system for

    virtual BOOL InitApplication();
    BOOL InitInstance() override;
    int ExitInstance() override;
    int Run() override;
    BOOL OnIdle(LONG lCount) override;
    LRESULT ProcessWndProcException(CException* e, const MSG* pMsg) override;

    // Every message box of the framework comes through here.
    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);
    static int ShowAppMessageBox(CWinApp* pApp, LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);
    virtual void DoWaitCursor(int nCode); // 1 begin, -1 end, 0 restore
    // Hides the program's windows before its documents close.
    void HideApplication();

    HCURSOR LoadCursor(LPCTSTR lpszResourceName) const;
    HCURSOR LoadCursor(UINT nIDResource) const { return LoadCursor(MAKEINTRESOURCE(nIDResource)); }
    HCURSOR LoadStandardCursor(LPCTSTR lpszCursorName) const { return ::LoadCursor(nullptr, lpszCursorName); }
    HCURSOR LoadOEMCursor(UINT nIDCursor) const { return ::LoadCursor(nullptr, MAKEINTRESOURCE(nIDCursor)); }
    HICON LoadIcon(LPCTSTR lpszResourceName) const;
    HICON LoadIcon(UINT nIDResource) const { return LoadIcon(MAKEINTRESOURCE(nIDResource)); }
    HICON LoadStandardIcon(LPCTSTR lpszIconName) const { return ::LoadIcon(nullptr, lpszIconName); }
    HICON LoadOEMIcon(UINT nIDIcon) const { return ::LoadIcon(nullptr, MAKEINTRESOURCE(nIDIcon)); }

    // Controls look as the system has them draw themselves: without effect since there is nothing else.
    BOOL Enable3dControls() { return TRUE; }
    BOOL Enable3dControlsStatic() { return TRUE; }

    // The taskbar's pictures of document windows in tabs: no frame has such. FALSE when there is a main window already.
    BOOL EnableTaskbarInteraction(BOOL bEnable = TRUE);
    virtual BOOL IsTaskbarInteractionEnabled() { return m_taskbar; }

    // Dialogs of objects that are active inside the frame: there are none.
    void EnableModeless(BOOL) {}
    // Deletes the key with all below it.
    LONG DelRegTree(HKEY hParentKey, const CString& strKeyName, ATL::CAtlTransactionManager* pTM = nullptr);

    // Every question of the framework for help comes through here: a command of the platform's help program.
    virtual void WinHelp(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);

    // Settings, by section and entry.
    virtual UINT GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault);
    virtual BOOL WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue);
    virtual CString GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault = nullptr);
    // A null value removes the entry, a null entry the section.
    virtual BOOL WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue);
    // The bytes come from new BYTE[] and are the caller's.
    virtual BOOL GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes);
    virtual BOOL WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes);
    // Keys of the current user, made where they are not there; the caller closes them. There are no transactions.
    HKEY GetAppRegistryKey(ATL::CAtlTransactionManager* pTM = nullptr);
    HKEY GetSectionKey(LPCTSTR lpszSection, ATL::CAtlTransactionManager* pTM = nullptr);

    // Documents.
    void AddDocTemplate(CDocTemplate* pTemplate);
    POSITION GetFirstDocTemplatePosition() const;
    CDocTemplate* GetNextDocTemplate(POSITION& pos) const;
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszFileName);
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszFileName, BOOL bAddToMRU);
    virtual void AddToRecentFileList(LPCTSTR lpszPathName);
    int GetOpenDocumentCount();
    virtual BOOL SaveAllModified();
    void CloseAllDocuments(BOOL bEndSession);
    BOOL DoPromptFileName(CString& fileName, UINT nIDSTitle, DWORD lFlags, BOOL bOpenFileDialog,
                          CDocTemplate* pTemplate);

    // A command that the shell sends to the main window of a program that is running, once EnableShellOpen was called.
    virtual BOOL OnDDECommand(LPTSTR lpszCommand);
    ATOM m_atomApp = 0, m_atomSystemTopic = 0;

    // The command line of the program as a wish, and its fulfilment; FALSE where the program is to end.
    void ParseCommandLine(CCommandLineInfo& rCmdInfo);
    BOOL ProcessShellCommand(CCommandLineInfo& rCmdInfo);

    // The printer that the program has chosen; the default one at first.
    BOOL GetPrinterDeviceDefaults(PRINTDLG* pPrintDlg);
    BOOL CreatePrinterDC(CDC& dc);
    void SelectPrinter(HANDLE hDevNames, HANDLE hDevMode, BOOL bFreeOld = TRUE);
    INT_PTR DoPrintDialog(CPrintDialog* pPD);

    CRecentFileList* m_pRecentFileList = nullptr;

    // For the maps of programs, which name them by this class.
    afx_msg void OnAppExit();
    afx_msg void OnFileNew();
    afx_msg void OnFileOpen();
    afx_msg void OnFilePrintSetup();
    afx_msg void OnHelp();
    afx_msg void OnHelpIndex();
    afx_msg void OnHelpFinder();
    afx_msg void OnHelpUsing();
    afx_msg void OnContextHelp();

protected:
    // The name under which the taskbar keeps the program's windows together.
    void SetAppID(LPCTSTR lpcszAppID);
    // Of dialogs and what has no ground of its own in them; boxes of the system keep theirs.
    void SetDialogBkColor(COLORREF clrCtlBk = RGB(192, 192, 192), COLORREF clrCtlText = RGB(0, 0, 0));
    void SetRegistryKey(LPCTSTR lpszRegistryKey);
    void SetRegistryKey(UINT nIDRegistryKey);
    // Reads the recent files; 0 keeps none.
    void LoadStdProfileSettings(UINT nMaxMRU = _AFX_MRU_COUNT);
    void SaveStdProfileSettings();
    void EnableShellOpen(); // before RegisterShellFileTypes
    void RegisterShellFileTypes(BOOL bCompat = FALSE);
    void UnregisterShellFileTypes();

    afx_msg void OnUpdateRecentFileMenu(CCmdUI* pCmdUI);
    afx_msg BOOL OnOpenRecentFile(UINT nID);

    HGLOBAL m_hDevMode = nullptr;
    HGLOBAL m_hDevNames = nullptr;

private:
    friend class CDialog;
    friend BOOL AFXAPI AfxWinInit(HINSTANCE, HINSTANCE, LPTSTR, int);
    void SetNames();
    void DisableShellOpen();
    void UpdatePrinterSelection(BOOL bForceDefaults);

    BOOL m_taskbar = TRUE;
    HBRUSH m_dialog_ground = nullptr;
    COLORREF m_dialog_colors[2]{}; // ground, text
};

// Null in a program without one.
ZOPAFX_API CWinApp* AFXAPI AfxGetApp();
ZOPAFX_API CWnd* AFXAPI AfxGetMainWnd();
// The program's name; null in a program without one.
ZOPAFX_API LPCTSTR AFXAPI AfxGetAppName();

// Prepares the framework in a program with its own main.
ZOPAFX_API BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
// Runs the program's CWinApp; WinMain does no more than call it.
ZOPAFX_API int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);

// Through the program's DoMessageBox, or plainly shown where there is no program object.
ZOPAFX_API int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
ZOPAFX_API int AFXAPI AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = static_cast<UINT>(-1));

// Texts of the resource chain with %1 and %2 replaced.
ZOPAFX_API void AFXAPI AfxFormatString1(CString& rString, UINT nIDS, LPCTSTR lpsz1);
ZOPAFX_API void AFXAPI AfxFormatString2(CString& rString, UINT nIDS, LPCTSTR lpsz1, LPCTSTR lpsz2);
// The part of the text behind iSubString separators; FALSE, with an empty text, where there are fewer.
ZOPAFX_API BOOL AFXAPI AfxExtractSubString(CString& rString, LPCTSTR lpszFullString, int iSubString,
                                           TCHAR chSep = '\n');
