// Windows that scroll another one by a button at each end.
#pragma once

#include "afx_common_ctrls.h"

// An operation sends the message of its name. PGN_CALCSIZE asks the parent, or a reflecting handler, how long the
// contained window is. Buttons are PGB_TOPORLEFT and PGB_BOTTOMORRIGHT.
class ZOPAFX_API CPagerCtrl : public CWnd {
    DECLARE_DYNAMIC(CPagerCtrl)

public:
    AFX_CREATE_CONTROL()
    // The window stays its parent's child, most often the pager's.
    void SetChild(HWND hwndChild) { SendMessage(PGM_SETCHILD, 0, afx_param(hwndChild)); }
    void RecalcSize() { SendMessage(PGM_RECALCSIZE); }
    void ForwardMouse(BOOL bForward) { SendMessage(PGM_FORWARDMOUSE, WPARAM(bForward)); }
    int GetScrollPos() const { return afx_int(SendMessage(PGM_GETPOS)); }
    void SetScrollPos(int iPos) { SendMessage(PGM_SETPOS, 0, iPos); }
    int GetBorder() const { return afx_int(SendMessage(PGM_GETBORDER)); }
    int SetBorder(int iBorder) { return afx_int(SendMessage(PGM_SETBORDER, 0, iBorder)); }
    int GetButtonSize() const { return afx_int(SendMessage(PGM_GETBUTTONSIZE)); }
    int SetButtonSize(int iButtonSize) { return afx_int(SendMessage(PGM_SETBUTTONSIZE, 0, iButtonSize)); }
    COLORREF GetBkColor() const { return static_cast<COLORREF>(SendMessage(PGM_GETBKCOLOR)); }
    COLORREF SetBkColor(COLORREF clrBk) {
        return static_cast<COLORREF>(SendMessage(PGM_SETBKCOLOR, 0, static_cast<LPARAM>(clrBk)));
    }
    DWORD GetButtonState(int iButton) const { return static_cast<DWORD>(SendMessage(PGM_GETBUTTONSTATE, 0, iButton)); }
    BOOL IsButtonNormal(int iButton) const { return GetButtonState(iButton) == PGF_NORMAL; }
    BOOL IsButtonInvisible(int iButton) const { return GetButtonState(iButton) == PGF_INVISIBLE; }
    BOOL IsButtonGrayed(int iButton) const { return GetButtonState(iButton) == PGF_GRAYED; }
    BOOL IsButtonDepressed(int iButton) const { return GetButtonState(iButton) == PGF_DEPRESSED; }
    BOOL IsButtonHot(int iButton) const { return GetButtonState(iButton) == PGF_HOT; }
};
