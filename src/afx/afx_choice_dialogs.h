// The platform's dialogs for colours, fonts and searching; included by afxdlgs.h.
#pragma once

#include "afx_file_dialog.h"

#include <richedit.h>

class ZOPAFX_API CColorDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CColorDialog)

public:
    explicit CColorDialog(COLORREF clrInit = 0, DWORD dwFlags = 0, CWnd* pParentWnd = nullptr);
    INT_PTR DoModal() override;
    COLORREF GetColor() const { return m_cc.rgbResult; }
    // While the dialog is shown.
    void SetCurrentColor(COLORREF clr);
    // Sixteen colours of the user's own, kept as long as the program runs.
    static COLORREF* PASCAL GetSavedCustomColors();

    CHOOSECOLOR m_cc;

protected:
    virtual BOOL OnColorOK(); // TRUE keeps the dialog

private:
    static UINT_PTR CALLBACK HookProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
};

class ZOPAFX_API CFontDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFontDialog)

public:
    // The record of the first font is the caller's, as long as the dialog lives, and takes what is chosen.
    explicit CFontDialog(LPLOGFONT lplfInitial = nullptr, DWORD dwFlags = CF_EFFECTS | CF_SCREENFONTS,
                         CDC* pdcPrinter = nullptr, CWnd* pParentWnd = nullptr);
    // For a rich edit control: what the format's mask leaves out is not chosen before.
    explicit CFontDialog(const CHARFORMAT& charformat, DWORD dwFlags = CF_SCREENFONTS, CDC* pdcPrinter = nullptr,
                         CWnd* pParentWnd = nullptr);
    // What the user left without a choice is not in the mask.
    void GetCharFormat(CHARFORMAT& cf) const;
    INT_PTR DoModal() override;
    // What was chosen, or is being chosen while the dialog is shown.
    void GetCurrentFont(LPLOGFONT lplf);
    CString GetFaceName() const { return m_lf.lfFaceName; }
    CString GetStyleName() const { return m_szStyleName; }
    int GetSize() const { return m_cf.iPointSize; } // tenths of a point
    COLORREF GetColor() const { return m_cf.rgbColors; }
    int GetWeight() const { return m_lf.lfWeight; }
    BOOL IsStrikeOut() const { return m_lf.lfStrikeOut; }
    BOOL IsUnderline() const { return m_lf.lfUnderline; }
    BOOL IsBold() const { return m_lf.lfWeight == FW_BOLD; }
    BOOL IsItalic() const { return m_lf.lfItalic; }

    CHOOSEFONT m_cf;
    LOGFONT m_lf;

protected:
    char m_szStyleName[64] = "";

private:
    static UINT_PTR CALLBACK HookProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
};

// Modeless, made with new; it deletes itself with its window. Its parent gets the registered message FINDMSGSTRING,
// whose lParam GetNotifier turns into the dialog.
class ZOPAFX_API CFindReplaceDialog : public CCommonDialog {
    DECLARE_DYNAMIC(CFindReplaceDialog)

public:
    CFindReplaceDialog();
    virtual BOOL Create(BOOL bFindDialogOnly, LPCTSTR lpszFindWhat, LPCTSTR lpszReplaceWith = nullptr,
                        DWORD dwFlags = FR_DOWN, CWnd* pParentWnd = nullptr);
    using CCommonDialog::Create;
    static CFindReplaceDialog* PASCAL GetNotifier(LPARAM lParam);
    CString GetFindString() const { return m_fr.lpstrFindWhat; }
    CString GetReplaceString() const { return m_fr.lpstrReplaceWith; }
    BOOL SearchDown() const { return (m_fr.Flags & FR_DOWN) != 0; }
    BOOL FindNext() const { return (m_fr.Flags & FR_FINDNEXT) != 0; }
    BOOL MatchCase() const { return (m_fr.Flags & FR_MATCHCASE) != 0; }
    BOOL MatchWholeWord() const { return (m_fr.Flags & FR_WHOLEWORD) != 0; }
    BOOL ReplaceCurrent() const { return (m_fr.Flags & FR_REPLACE) != 0; }
    BOOL ReplaceAll() const { return (m_fr.Flags & FR_REPLACEALL) != 0; }
    BOOL IsTerminating() const { return (m_fr.Flags & FR_DIALOGTERM) != 0; }

    FINDREPLACE m_fr;

protected:
    void PostNcDestroy() override;

    char m_szFindWhat[128] = "";
    char m_szReplaceWith[128] = "";

private:
    static UINT_PTR CALLBACK HookProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
};
