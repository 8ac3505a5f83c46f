// Threads: worker threads, and those with windows and a message loop of their own.
#pragma once

#include "afx_exception.h"
#include "afx_module.h"
#include "afx_wnd.h"

typedef UINT(AFX_CDECL* AFX_THREADPROC)(LPVOID);

// A thread of the program. Each has its own handle maps: an object of one thread stands for no handle in another.
class ZOPAFX_API CWinThread : public CCmdTarget {
    DECLARE_DYNAMIC(CWinThread)

public:
    CWinThread();
    CWinThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam);
    ~CWinThread() override;

    // Its end ends the message loop. A thread starts with its creator's.
    CWnd* m_pMainWnd = nullptr;
    BOOL m_bAutoDelete = TRUE;                              // the object goes with its thread
    AFX_MODULE_STATE* m_pModuleState = AfxGetModuleState(); // in force in what it does
    HANDLE m_hThread = nullptr;
    DWORD m_nThreadID = 0;
    CWnd* m_pActiveWnd = nullptr; // before the main window where a program sets it
    LPVOID m_pThreadParams = nullptr;
    AFX_THREADPROC m_pfnThreadProc = nullptr;

    operator HANDLE() const { return this == nullptr ? nullptr : m_hThread; }
    // For an object that AfxBeginThread did not make; TRUE when the thread is there.
    BOOL CreateThread(DWORD dwCreateFlags = 0, UINT nStackSize = 0, LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
    int GetThreadPriority() { return ::GetThreadPriority(m_hThread); }
    BOOL SetThreadPriority(int nPriority) { return ::SetThreadPriority(m_hThread, nPriority); }
    DWORD SuspendThread() { return ::SuspendThread(m_hThread); }
    DWORD ResumeThread() { return ::ResumeThread(m_hThread); }
    BOOL PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam) {
        return ::PostThreadMessage(m_nThreadID, message, wParam, lParam);
    }

    virtual CWnd* GetMainWnd() { return m_pActiveWnd != nullptr ? m_pActiveWnd : m_pMainWnd; }
    // FALSE ends the thread without a message loop.
    virtual BOOL InitInstance();
    virtual int ExitInstance();
    virtual int Run();
    // One message; FALSE for the one that ends the loop.
    virtual BOOL PumpMessage();
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    // TRUE asks for another call with a higher count. Count 0 updates the frames' bars, count 1 deletes temporary
    // objects.
    virtual BOOL OnIdle(LONG lCount);
    virtual BOOL IsIdleMessage(MSG* pMsg);
    // Told by the system of the messages in the loops of its own dialogs, menus and scroll bars (code MSGF_...). TRUE
    // where nothing more is to come of the message.
    virtual BOOL ProcessMessageFilter(int code, LPMSG lpMsg);
    // Told of an exception that a window's message raised; answers for the message. The caller deletes the exception.
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);
    // After the thread's end: deletes the object where it is to go.
    virtual void Delete();

    // The answer of a process without a thread object: reports the exception, refuses a creation.
    static LRESULT DefaultWndProcException(CException* e, const MSG* pMsg);

protected:
    BOOL DispatchThreadMessageEx(MSG* pMsg);

private:
    friend struct thread_start;
    UINT Live();
};

// A worker thread runs the function; a thread of the class, which is dynamically creatable, its InitInstance and Run.
// Null where there can be none. With CREATE_SUSPENDED nothing of the program runs before ResumeThread.
ZOPAFX_API CWinThread* AFXAPI AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam,
                                             int nPriority = THREAD_PRIORITY_NORMAL, UINT nStackSize = 0,
                                             DWORD dwCreateFlags = 0, LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
ZOPAFX_API CWinThread* AFXAPI AfxBeginThread(CRuntimeClass* pThreadClass, int nPriority = THREAD_PRIORITY_NORMAL,
                                             UINT nStackSize = 0, DWORD dwCreateFlags = 0,
                                             LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
// Ends the calling thread at once; what lives on its stack is not destroyed.
[[noreturn]] ZOPAFX_API void AFXAPI AfxEndThread(UINT nExitCode, BOOL bDelete = TRUE);

// The calling thread's object; null in a thread that the framework did not start.
ZOPAFX_API CWinThread* AFXAPI AfxGetThread();
ZOPAFX_API MSG* AFXAPI AfxGetCurrentMessage();
ZOPAFX_API void AFXAPI AfxPostQuitMessage(int nExitCode);
ZOPAFX_API BOOL AFXAPI AfxPumpMessage();
// Whether the message may have changed what idle work looks at.
ZOPAFX_API BOOL AFXAPI AfxIsIdleMessage(MSG* pMsg);
ZOPAFX_API BOOL AFXAPI AfxPreTranslateMessage(MSG* pMsg);
