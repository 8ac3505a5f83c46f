// The framework's own messages, which a program may handle.
#pragma once

#include "afxwin.h"
#include "atlconv.h"

#define WM_SIZEPARENT 0x0361       // lParam: AFX_SIZEPARENTPARAMS; a bar takes its part of the rectangle
#define WM_SETMESSAGESTRING 0x0362 // wParam: the text's id, lParam: or the text; for the frame's message bar
#define WM_IDLEUPDATECMDUI 0x0363  // wParam: whether commands without handler become disabled
#define WM_INITIALUPDATE 0x0364    // to the views of a frame, before they are shown
#define WM_COMMANDHELP 0x0365
#define WM_HELPHITTEST 0x0366  // lParam: a place in the client area; answers its help topic, 0 where there is none
#define WM_RECALCPARENT 0x0368 // to a frame: its layout is to be made anew
#ifndef WM_KICKIDLE
#define WM_KICKIDLE 0x036A
#endif
#define WM_DISABLEMODAL 0x036C     // to each window that a modal state would disable; other answers than 0 refuse
#define WM_POPMESSAGESTRING 0x0375 // like WM_SETMESSAGESTRING, where the message that was set may go

// Where the numbers of help topics begin: of commands, of resources, of message boxes, of parts of a frame, of
// controls, of what is called by automation.
#define HID_BASE_COMMAND 0x00010000UL
#define HID_BASE_RESOURCE 0x00020000UL
#define HID_BASE_PROMPT 0x00030000UL
#define HID_BASE_NCAREAS 0x00040000UL
#define HID_BASE_CONTROL 0x00050000UL
#define HID_BASE_DISPATCH 0x00060000UL

// Text from one character set to the other, always ended; how many characters it has.
inline int _mbstowcsz(wchar_t* wide, const char* text, std::size_t room) {
    const int count = ::MultiByteToWideChar(CP_ACP, 0, text, -1, wide, static_cast<int>(room));
    if (wide != nullptr && room > 0)
        wide[room - 1] = 0;
    return count;
}
inline int _wcstombsz(char* text, const wchar_t* wide, std::size_t room) {
    const int count = ::WideCharToMultiByte(CP_ACP, 0, wide, -1, text, static_cast<int>(room), nullptr, nullptr);
    if (text != nullptr && room > 0)
        text[room - 1] = 0;
    return count;
}

struct AFX_SIZEPARENTPARAMS {
    HDWP hDWP;      // null: only the rectangle is asked for
    RECT rect;      // what is left of the parent's client area
    SIZE sizeTotal; // what the bars have taken
    BOOL bStretch;
};

// Moves a window, together with the others of its layout.
ZOPAFX_API void AFXAPI AfxRepositionWindow(AFX_SIZEPARENTPARAMS* lpLayout, HWND hWnd, LPCRECT lpRect);

#define ON_MESSAGE_VOID(message, memberFxn) AFX_MSG_ENTRY(message, AfxSig_vv, CWnd, void, (), memberFxn)
