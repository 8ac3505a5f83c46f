// What the shell tells a program that is running already: a conversation with its main window by DDE, in which the
// commands are [open("FILE")], [print("FILE")] and [printto("FILE","PRINTER","DRIVER","PORT")].
#include "afx_app.h"
#include "afx_command_line.h"
#include "afx_doc_template.h"
#include "afx_document.h"
#include "afx_frame.h"
#include "afxres.h"

#include <algorithm>

#include <dde.h>

namespace {

constexpr SIZE_T longest_command = 32 * 1024;

// False where the text is no command of the shell's.
bool parse(CString text, CCommandLineInfo& wish) {
    const int open = text.Find('(');
    if (open < 2 || text[0] != '[' || text.Right(2) != ")]")
        return false;
    const CString verb = text.Mid(1, open - 1);
    text = text.Mid(open + 1, text.GetLength() - open - 3);
    wish.m_nShellCommand = verb == "open"      ? CCommandLineInfo::FileOpen
                           : verb == "print"   ? CCommandLineInfo::FilePrint
                           : verb == "printto" ? CCommandLineInfo::FilePrintTo
                                               : CCommandLineInfo::FileNothing;
    const int words = wish.m_nShellCommand == CCommandLineInfo::FilePrintTo ? 4 : 1;
    CString* const parts[] = {&wish.m_strFileName, &wish.m_strPrinterName, &wish.m_strDriverName, &wish.m_strPortName};
    for (int i = 0; i < words; ++i) {
        const int end = text.Find('"', 1);
        if (text.IsEmpty() || text[0] != '"' || end < 0)
            return false;
        *parts[i] = text.Mid(1, end - 1);
        text = text.Mid(end + 1);
        if (i + 1 < words && (text.IsEmpty() || text[0] != ','))
            return false;
        text = text.Mid(i + 1 < words ? 1 : 0);
    }
    return wish.m_nShellCommand != CCommandLineInfo::FileNothing && text.IsEmpty();
}

void show(CWnd& main) {
    main.ShowWindow(main.IsIconic() ? SW_RESTORE : SW_SHOW);
    main.BringWindowToTop();
    main.SetForegroundWindow();
}

// For as long as this is there, printing asks nobody.
class print_wish {
public:
    print_wish(CWinApp& app, CCommandLineInfo& wish) : m_app(app) { m_app.m_pCmdInfo = &wish; }
    ~print_wish() { m_app.m_pCmdInfo = nullptr; }
    print_wish(const print_wish&) = delete;
    print_wish& operator=(const print_wish&) = delete;

private:
    CWinApp& m_app;
};

// A document that was not open is closed again, and a program that only prints ends.
void print(CWinApp& app, HWND main, CCommandLineInfo& wish) {
    const int before = app.GetOpenDocumentCount();
    CDocument* document = nullptr;
    {
        const print_wish unasked(app, wish);
        document = app.OpenDocumentFile(wish.m_strFileName);
        if (document != nullptr)
            ::SendMessage(main, WM_COMMAND, ID_FILE_PRINT_DIRECT, 0);
    }
    if (!::IsWindow(main))
        return;
    if (!::IsWindowVisible(main))
        ::PostMessage(main, WM_CLOSE, 0, 0);
    else if (document != nullptr && app.GetOpenDocumentCount() > before)
        document->OnCloseDocument();
}

ATOM atom_like(ATOM atom) {
    char name[256] = "";
    ::GlobalGetAtomName(atom, name, sizeof(name));
    return ::GlobalAddAtom(name);
}

CString text_in(HGLOBAL memory) {
    const auto* text = static_cast<const char*>(::GlobalLock(memory));
    const char* end = text != nullptr ? text + std::min(::GlobalSize(memory), longest_command) : text;
    const CString copy(text, static_cast<int>(std::find(text, end, '\0') - text));
    ::GlobalUnlock(memory);
    return copy;
}

} // namespace

void CWinApp::EnableShellOpen() {
    if (m_atomApp == 0)
        m_atomApp = ::GlobalAddAtom(m_pszExeName);
    if (m_atomSystemTopic == 0)
        m_atomSystemTopic = ::GlobalAddAtom("system");
}

void CWinApp::DisableShellOpen() {
    for (ATOM* atom : {&m_atomApp, &m_atomSystemTopic}) {
        if (*atom != 0)
            ::GlobalDeleteAtom(*atom);
        *atom = 0;
    }
}

BOOL CWinApp::OnDDECommand(LPTSTR lpszCommand) {
    return m_pDocManager != nullptr && m_pDocManager->OnDDECommand(lpszCommand);
}

BOOL CDocManager::OnDDECommand(LPTSTR lpszCommand) {
    CCommandLineInfo wish;
    CWinApp* app = AfxGetApp();
    CWnd* main = AfxGetMainWnd();
    if (!parse(lpszCommand, wish) || main == nullptr)
        return FALSE;
    if (wish.m_nShellCommand == CCommandLineInfo::FileOpen) {
        show(*main);
        app->OpenDocumentFile(wish.m_strFileName);
        app->m_nCmdShow = -1; // what comes next is shown as it is
    } else {
        print(*app, main->m_hWnd, wish);
    }
    return TRUE;
}

bool CFrameWnd::TalksTo(const CWnd* partner) const {
    return std::find(m_talks_to.begin(), m_talks_to.end(), partner->GetSafeHwnd()) != m_talks_to.end();
}

void CFrameWnd::OnDDEInitiate(CWnd* pWnd, UINT nApp, UINT nTopic) {
    const CWinApp* app = AfxGetApp();
    if (pWnd == nullptr || app == nullptr || app->m_pMainWnd != this || app->m_atomApp == 0 || nApp != app->m_atomApp ||
        nTopic != app->m_atomSystemTopic)
        return;
    constexpr std::size_t most_partners = 32;
    std::erase_if(m_talks_to, [&](HWND partner) { return partner == pWnd->m_hWnd || !::IsWindow(partner); });
    if (m_talks_to.size() == most_partners)
        return;
    m_talks_to.push_back(pWnd->m_hWnd);
    // The answer's names are the receiver's to delete.
    pWnd->SendMessage(WM_DDE_ACK, reinterpret_cast<WPARAM>(m_hWnd),
                      MAKELPARAM(atom_like(app->m_atomApp), atom_like(app->m_atomSystemTopic)));
}

// Acknowledged before it is executed: the shell does not wait for the user's answers.
void CFrameWnd::OnDDEExecute(CWnd* pWnd, HANDLE) {
    if (!TalksTo(pWnd)) {
        Default();
        return;
    }
    const LPARAM packed = GetCurrentMessage()->lParam;
    UINT_PTR unused = 0, memory = 0;
    ::UnpackDDElParam(WM_DDE_EXECUTE, packed, &unused, &memory);
    CString command = text_in(reinterpret_cast<HGLOBAL>(memory));
    constexpr UINT_PTR taken = 0x8000;
    pWnd->PostMessage(WM_DDE_ACK, reinterpret_cast<WPARAM>(m_hWnd),
                      ::ReuseDDElParam(packed, WM_DDE_EXECUTE, WM_DDE_ACK, taken, memory));
    CWinApp* app = AfxGetApp();
    if (app == nullptr || !IsWindowEnabled())
        return; // behind a modal dialog
    const int length = command.GetLength();
    app->OnDDECommand(command.GetBuffer(length));
    command.ReleaseBuffer();
}

void CFrameWnd::OnDDETerminate(CWnd* pWnd) {
    if (!TalksTo(pWnd)) {
        Default();
        return;
    }
    std::erase(m_talks_to, pWnd->m_hWnd);
    pWnd->PostMessage(WM_DDE_TERMINATE, reinterpret_cast<WPARAM>(m_hWnd));
}
