#include "afx_command_line.h"
#include "afx_app.h"

void CCommandLineInfo::ParseParam(LPCTSTR pszParam, BOOL bFlag, BOOL bLast) {
    if (bFlag)
        ParseParamFlag(pszParam);
    else
        ParseParamNotFlag(pszParam);
    ParseLast(bLast);
}

void CCommandLineInfo::ParseParamFlag(const char* pszParam) {
    const auto is = [pszParam](LPCSTR flag) { return lstrcmpi(pszParam, flag) == 0; };
    if (lstrcmp(pszParam, "pt") == 0)
        m_nShellCommand = FilePrintTo;
    else if (lstrcmp(pszParam, "p") == 0)
        m_nShellCommand = FilePrint;
    else if (lstrcmp(pszParam, "dde") == 0)
        m_nShellCommand = FileDDE;
    else if (is("Register") || is("Regserver"))
        m_nShellCommand = AppRegister;
    else if (is("Unregister") || is("Unregserver"))
        m_nShellCommand = AppUnregister;
    else if (is("Embedding"))
        m_bRunEmbedded = TRUE, m_bShowSplash = FALSE;
    else if (is("Automation"))
        m_bRunAutomated = TRUE, m_bShowSplash = FALSE;
}

// The file first; then, for printing to a printer, its name, its driver and its port.
void CCommandLineInfo::ParseParamNotFlag(const char* pszParam) {
    CString* const parts[] = {&m_strFileName, &m_strPrinterName, &m_strDriverName, &m_strPortName};
    const int count = m_nShellCommand == FilePrintTo ? 4 : 1;
    for (int i = 0; i < count; ++i) {
        if (parts[i]->IsEmpty()) {
            *parts[i] = pszParam;
            return;
        }
    }
}

void CCommandLineInfo::ParseLast(BOOL bLast) {
    if (!bLast)
        return;
    if (m_nShellCommand == FileNew && !m_strFileName.IsEmpty())
        m_nShellCommand = FileOpen;
    m_bShowSplash = !m_bRunEmbedded && !m_bRunAutomated;
}

void CWinApp::ParseCommandLine(CCommandLineInfo& rCmdInfo) {
    for (int i = 1; i < __argc; ++i) {
        LPCTSTR parameter = __argv[i];
        const BOOL flag = *parameter == '-' || *parameter == '/';
        rCmdInfo.ParseParam(parameter + (flag ? 1 : 0), flag, i + 1 == __argc);
    }
}
