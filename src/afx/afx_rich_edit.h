// Rich edit controls: text whose characters and paragraphs have formats.
#pragma once

#include "afx_common_ctrls.h"

#include <richedit.h>

// Loads what the window classes of version 1 ("RICHEDIT") and of version 2 ("RichEdit20A") need, as dialog templates
// name them. FALSE where the system has none.
ZOPAFX_API BOOL AFXAPI AfxInitRichEdit();
ZOPAFX_API BOOL AFXAPI AfxInitRichEdit2();

// An operation sends the message of its name. Positions are counts of characters, a range's end -1 the text's.
class ZOPAFX_API CRichEditCtrl : public CWnd {
    DECLARE_DYNAMIC(CRichEditCtrl)

public:
    AFX_CREATE_CONTROL()

    // The text, its lines, the selection.
    int GetLineCount() const { return Ask(EM_GETLINECOUNT); }
    int LineIndex(int nLine = -1) const { return Ask(EM_LINEINDEX, nLine); }
    int LineLength(int nLine = -1) const { return Ask(EM_LINELENGTH, nLine); }
    long LineFromChar(long nIndex) const { return Ask(EM_EXLINEFROMCHAR, 0, nIndex); }
    int GetFirstVisibleLine() const { return Ask(EM_GETFIRSTVISIBLELINE); }
    void LineScroll(int nLines, int nChars = 0) { SendMessage(EM_LINESCROLL, static_cast<WPARAM>(nChars), nLines); }
    // Without a terminator; at most nMaxLength characters.
    int GetLine(int nIndex, LPTSTR lpszBuffer) const { return Ask(EM_GETLINE, nIndex, afx_param(lpszBuffer)); }
    int GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const;
    long GetTextLength() const { return static_cast<long>(SendMessage(WM_GETTEXTLENGTH)); }
    // By a unit and an accuracy: GTL_ values.
    long GetTextLengthEx(DWORD dwFlags, UINT uCodePage = static_cast<UINT>(-1)) const {
        GETTEXTLENGTHEX how{dwFlags, uCodePage == static_cast<UINT>(-1) ? UINT{CP_ACP} : uCodePage};
        return static_cast<long>(SendMessage(EM_GETTEXTLENGTHEX, reinterpret_cast<WPARAM>(&how)));
    }
    DWORD FindWordBreak(UINT nCode, DWORD nStart) const {
        return static_cast<DWORD>(SendMessage(EM_FINDWORDBREAK, nCode, static_cast<LPARAM>(nStart)));
    }
    int GetTextRange(int nFirst, int nLast, CString& refString) const;
    void GetSel(long& nStartChar, long& nEndChar) const;
    void GetSel(CHARRANGE& cr) const { SendMessage(EM_EXGETSEL, 0, afx_param(&cr)); }
    void SetSel(long nStartChar, long nEndChar);
    void SetSel(CHARRANGE& cr) { SendMessage(EM_EXSETSEL, 0, afx_param(&cr)); }
    CString GetSelText() const;
    // Into a buffer that takes all of the selection, and a terminator.
    long GetSelText(LPSTR lpBuf) const { return static_cast<long>(SendMessage(EM_GETSELTEXT, 0, afx_param(lpBuf))); }
    WORD GetSelectionType() const { return static_cast<WORD>(SendMessage(EM_SELECTIONTYPE)); }
    void HideSelection(BOOL bHide, BOOL bPerm) { SendMessage(EM_HIDESELECTION, bHide, bPerm); }
    void ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo = FALSE) {
        SendMessage(EM_REPLACESEL, bCanUndo, afx_param(lpszNewText));
    }
    long FindText(DWORD dwFlags, FINDTEXTEX* pFindText) const {
        return static_cast<long>(SendMessage(EM_FINDTEXTEX, dwFlags, afx_param(pFindText)));
    }
    CPoint GetCharPos(long lChar) const;
    CPoint PosFromChar(UINT nChar) const { return GetCharPos(static_cast<long>(nChar)); }
    int CharFromPos(CPoint pt) const;
    void LimitText(long nChars = 0) { SendMessage(EM_EXLIMITTEXT, 0, nChars); }
    long GetLimitText() const { return static_cast<long>(SendMessage(EM_GETLIMITTEXT)); }

    // Formats; those of the selection answer which fields are the same all over it.
    DWORD GetDefaultCharFormat(CHARFORMAT& cf) const { return Format(EM_GETCHARFORMAT, cf, SCF_DEFAULT); }
    DWORD GetSelectionCharFormat(CHARFORMAT& cf) const { return Format(EM_GETCHARFORMAT, cf, SCF_SELECTION); }
    BOOL SetDefaultCharFormat(CHARFORMAT& cf) { return SetFormat(EM_SETCHARFORMAT, cf, SCF_DEFAULT); }
    BOOL SetSelectionCharFormat(CHARFORMAT& cf) { return SetFormat(EM_SETCHARFORMAT, cf, SCF_SELECTION); }
    BOOL SetWordCharFormat(CHARFORMAT& cf) { return SetFormat(EM_SETCHARFORMAT, cf, SCF_SELECTION | SCF_WORD); }
    DWORD GetDefaultCharFormat(CHARFORMAT2& cf) const { return Format(EM_GETCHARFORMAT, cf, SCF_DEFAULT); }
    DWORD GetSelectionCharFormat(CHARFORMAT2& cf) const { return Format(EM_GETCHARFORMAT, cf, SCF_SELECTION); }
    BOOL SetDefaultCharFormat(CHARFORMAT2& cf) { return SetFormat(EM_SETCHARFORMAT, cf, SCF_DEFAULT); }
    BOOL SetSelectionCharFormat(CHARFORMAT2& cf) { return SetFormat(EM_SETCHARFORMAT, cf, SCF_SELECTION); }
    BOOL SetWordCharFormat(CHARFORMAT2& cf) { return SetFormat(EM_SETCHARFORMAT, cf, SCF_SELECTION | SCF_WORD); }
    DWORD GetParaFormat(PARAFORMAT& pf) const { return Format(EM_GETPARAFORMAT, pf); }
    BOOL SetParaFormat(PARAFORMAT& pf) { return SetFormat(EM_SETPARAFORMAT, pf); }
    DWORD GetParaFormat(PARAFORMAT2& pf) const { return Format(EM_GETPARAFORMAT, pf); }
    BOOL SetParaFormat(PARAFORMAT2& pf) { return SetFormat(EM_SETPARAFORMAT, pf); }
    COLORREF SetBackgroundColor(BOOL bSysColor, COLORREF cr) {
        return static_cast<COLORREF>(SendMessage(EM_SETBKGNDCOLOR, bSysColor, static_cast<LPARAM>(cr)));
    }

    // The control's behaviour.
    BOOL GetModify() const { return Ask(EM_GETMODIFY); }
    void SetModify(BOOL bModified = TRUE) { SendMessage(EM_SETMODIFY, bModified); }
    BOOL SetReadOnly(BOOL bReadOnly = TRUE) { return Ask(EM_SETREADONLY, bReadOnly); }
    DWORD SetEventMask(DWORD dwEventMask) {
        return static_cast<DWORD>(SendMessage(EM_SETEVENTMASK, 0, static_cast<LPARAM>(dwEventMask)));
    }
    DWORD GetEventMask() const { return static_cast<DWORD>(SendMessage(EM_GETEVENTMASK)); }
    DWORD GetOptions() const { return static_cast<DWORD>(SendMessage(EM_GETOPTIONS)); }
    void SetOptions(WORD wOp, DWORD dwFlags) { SendMessage(EM_SETOPTIONS, wOp, static_cast<LPARAM>(dwFlags)); }
    // TM_ values; an empty control only takes others.
    UINT GetTextMode() const { return static_cast<UINT>(Ask(EM_GETTEXTMODE)); }
    BOOL SetTextMode(UINT fMode) { return Ask(EM_SETTEXTMODE, static_cast<int>(fMode)); }
    BOOL SetAutoURLDetect(BOOL bEnable = TRUE) { return Ask(EM_AUTOURLDETECT, bEnable); }
    void GetRect(LPRECT lpRect) const { SendMessage(EM_GETRECT, 0, afx_param(lpRect)); }
    void SetRect(LPCRECT lpRect) { SendMessage(EM_SETRECT, 0, afx_param(lpRect)); }
    void RequestResize() { SendMessage(EM_REQUESTRESIZE); }

    BOOL CanUndo() const { return Ask(EM_CANUNDO); }
    BOOL Undo() { return Ask(EM_UNDO); }
    BOOL CanRedo() const { return Ask(EM_CANREDO); }
    BOOL Redo() { return Ask(EM_REDO); }
    void EmptyUndoBuffer() { SendMessage(EM_EMPTYUNDOBUFFER); }
    // What undoing or redoing would change.
    UNDONAMEID GetUndoName() const { return static_cast<UNDONAMEID>(Ask(EM_GETUNDONAME)); }
    UNDONAMEID GetRedoName() const { return static_cast<UNDONAMEID>(Ask(EM_GETREDONAME)); }
    UINT SetUndoLimit(UINT nLimit) { return static_cast<UINT>(SendMessage(EM_SETUNDOLIMIT, nLimit)); }
    void StopGroupTyping() { SendMessage(EM_STOPGROUPTYPING); }
    BOOL CanPaste(UINT nFormat = 0) const { return Ask(EM_CANPASTE, static_cast<int>(nFormat)); }
    void PasteSpecial(UINT nClipFormat, DWORD dvAspect = 0, HMETAFILE hMF = nullptr);
    void Clear() { SendMessage(WM_CLEAR); }
    void Copy() { SendMessage(WM_COPY); }
    void Cut() { SendMessage(WM_CUT); }
    void Paste() { SendMessage(WM_PASTE); }

    // Streams of text or of formatted text (SF_TEXT, SF_RTF) through the record's function; they answer how much went.
    long StreamIn(int nFormat, EDITSTREAM& es) { return Ask(EM_STREAMIN, nFormat, afx_param(&es)); }
    long StreamOut(int nFormat, EDITSTREAM& es) { return Ask(EM_STREAMOUT, nFormat, afx_param(&es)); }
    // Printing: what of the range fits the record's rectangle; answers where the next page begins.
    long FormatRange(FORMATRANGE* pfr, BOOL bDisplay = TRUE) { return Ask(EM_FORMATRANGE, bDisplay, afx_param(pfr)); }
    BOOL DisplayBand(LPRECT pDisplayRect) { return Ask(EM_DISPLAYBAND, 0, afx_param(pDisplayRect)); }
    BOOL SetTargetDevice(HDC hDC, long lLineWidth) {
        return afx_int(SendMessage(EM_SETTARGETDEVICE, reinterpret_cast<WPARAM>(hDC), lLineWidth));
    }
    BOOL SetTargetDevice(CDC& dc, long lLineWidth) { return SetTargetDevice(dc.m_hDC, lLineWidth); }

private:
    int Ask(UINT message, int wParam = 0, LPARAM lParam = 0) const {
        return afx_int(SendMessage(message, static_cast<WPARAM>(wParam), lParam));
    }
    template <class Record> DWORD Format(UINT message, Record& format, WPARAM which = 0) const {
        format.cbSize = sizeof(format);
        return static_cast<DWORD>(SendMessage(message, which, afx_param(&format)));
    }
    template <class Record> BOOL SetFormat(UINT message, Record& format, WPARAM which = 0) {
        return static_cast<BOOL>(Format(message, format, which));
    }
};
