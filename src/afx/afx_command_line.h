// The command line: what the shell wants of the program.
#pragma once

#include "afx_object.h"
#include "afxstr.h"

class ZOPAFX_API CCommandLineInfo : public CObject {
public:
    CCommandLineInfo() = default;
    ~CCommandLineInfo() override = default;

    // One argument after the other; a flag comes without its dash or slash. A program overrides it for its own.
    virtual void ParseParam(LPCTSTR pszParam, BOOL bFlag, BOOL bLast);

    enum {
        FileNew,
        FileOpen,
        FilePrint,
        FilePrintTo,
        FileDDE,
        AppRegister,
        AppUnregister,
        FileNothing = -1
    } m_nShellCommand = FileNew;
    BOOL m_bShowSplash = TRUE;
    BOOL m_bRunEmbedded = FALSE;
    BOOL m_bRunAutomated = FALSE;
    CString m_strFileName;
    CString m_strPrinterName;
    CString m_strDriverName;
    CString m_strPortName;

protected:
    void ParseParamFlag(const char* pszParam);
    void ParseParamNotFlag(const char* pszParam);
    void ParseLast(BOOL bLast);
};
