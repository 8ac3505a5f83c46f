// The program: its start, its message loop, its end.
#pragma once

#include "afx_exception.h"
#include "afx_module.h"
#include "afx_wnd.h"

// The user-interface thread and its message loop.
class ZOPAFX_API CWinThread : public CCmdTarget {
    DECLARE_DYNAMIC(CWinThread)

public:
    CWinThread() = default;
    ~CWinThread() override;

    CWnd* m_pMainWnd = nullptr;

    virtual CWnd* GetMainWnd() { return m_pMainWnd; }
    // FALSE ends the program without a message loop.
    virtual BOOL InitInstance();
    virtual int ExitInstance();
    virtual int Run();
    // One message; FALSE for the one that ends the loop.
    virtual BOOL PumpMessage();
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    // TRUE asks for another call with a higher count. Count 1 deletes temporary objects.
    virtual BOOL OnIdle(LONG lCount);
    virtual BOOL IsIdleMessage(MSG* pMsg);
    // Told of an exception that a window's message raised; answers for the message. The caller deletes the exception.
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);

    // The answer of a process without a thread object: reports the exception, refuses a creation.
    static LRESULT DefaultWndProcException(CException* e, const MSG* pMsg);
};

// The one object of a program that stands for the program itself. Names are kept, not copied.
class ZOPAFX_API CWinApp : public CWinThread {
    DECLARE_DYNAMIC(CWinApp)

public:
    explicit CWinApp(LPCTSTR lpszAppName = nullptr);
    ~CWinApp() override;

    LPCTSTR m_pszAppName;
    LPCTSTR m_pszExeName = nullptr;
    int m_nCmdShow = SW_SHOWNORMAL;

    BOOL InitInstance() override;
    int ExitInstance() override;
    // Every message box of the framework comes through here.
    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);
    static int ShowAppMessageBox(CWinApp* pApp, LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);

    HICON LoadIcon(LPCTSTR lpszResourceName) const;

private:
    friend BOOL AFXAPI AfxWinInit(HINSTANCE, HINSTANCE, LPTSTR, int);
    void SetNames();

    CString m_exeName;
};

// Null in a program without one.
ZOPAFX_API CWinApp* AFXAPI AfxGetApp();
ZOPAFX_API CWinThread* AFXAPI AfxGetThread();
ZOPAFX_API CWnd* AFXAPI AfxGetMainWnd();

// Prepares the framework in a program with its own main.
ZOPAFX_API BOOL AFXAPI AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
// Runs the program's CWinApp; WinMain does no more than call it.
ZOPAFX_API int AFXAPI AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
ZOPAFX_API BOOL AFXAPI AfxPumpMessage();
// Whether the message pumped last may have changed what idle work looks at.
ZOPAFX_API BOOL AFXAPI AfxIsIdleMessage();

// Through the program's DoMessageBox, or plainly shown where there is no program object.
ZOPAFX_API int AFXAPI AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
