// Message maps and command targets.
#pragma once

#include "afx_object.h"
#include "atltypes.h"

class CCmdTarget;

typedef void (CCmdTarget::*AFX_PMSG)();

// The signature of a handler, which tells how a message's parameters are unpacked for it.
// Named by result and arguments: v void, b BOOL, i int, h handle.
enum AfxSig : UINT {
    AfxSig_end,
    // Commands and notifications.
    AfxSigCmd_v,
    AfxSigCmd_RANGE,
    AfxSigNotify_v,
    // Window messages.
    AfxSig_vv,         // nothing
    AfxSig_i_create,   // LPCREATESTRUCT
    AfxSig_v_size,     // UINT, int, int
    AfxSig_v_timer,    // UINT_PTR
    AfxSig_v_key,      // UINT, UINT, UINT
    AfxSig_v_mouse,    // UINT, CPoint
    AfxSig_b_wheel,    // UINT, short, CPoint
    AfxSig_b_dc,       // CDC*
    AfxSig_v_wnd,      // CWnd* from wParam
    AfxSig_v_capture,  // CWnd* from lParam
    AfxSig_v_scroll,   // UINT, UINT, CScrollBar*
    AfxSig_v_drop,     // HDROP
    AfxSig_h_ctlcolor, // CDC*, CWnd*, UINT
};

struct AFX_MSGMAP_ENTRY {
    UINT nMessage;
    UINT nCode;
    UINT nID;
    UINT nLastID;
    AfxSig nSig;
    AFX_PMSG pfn;
};

struct AFX_MSGMAP {
    const AFX_MSGMAP*(PASCAL* pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;
};

struct AFX_CMDHANDLERINFO {
    CCmdTarget* pTarget;
    AFX_PMSG pmf;
};

#define DECLARE_MESSAGE_MAP()                                                                                          \
protected:                                                                                                             \
    static const AFX_MSGMAP* PASCAL GetThisMessageMap();                                                               \
    virtual const AFX_MSGMAP* GetMessageMap() const;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                                         \
    const AFX_MSGMAP* theClass::GetMessageMap() const {                                                                \
        return GetThisMessageMap();                                                                                    \
    }                                                                                                                  \
    const AFX_MSGMAP* PASCAL theClass::GetThisMessageMap() {                                                           \
        [[maybe_unused]] typedef theClass ThisClass;                                                                   \
        typedef baseClass TheBaseClass;                                                                                \
        static const AFX_MSGMAP_ENTRY messageEntries[] = {

#define END_MESSAGE_MAP()                                                                                              \
    { 0, 0, 0, 0, AfxSig_end, nullptr }                                                                                \
    }                                                                                                                  \
    ;                                                                                                                  \
    static const AFX_MSGMAP messageMap = {&TheBaseClass::GetThisMessageMap, messageEntries};                           \
    return &messageMap;                                                                                                \
    }

enum : int { CN_COMMAND = 0 };

// An object with a message map, through which commands are routed to its handlers.
class ZOPAFX_API CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)
    DECLARE_MESSAGE_MAP()

public:
    // Looks for a handler of the command and calls it, or, with pHandlerInfo, only tells which it is.
    // For a notify message the high word of nCode is WM_NOTIFY. TRUE where there is one.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);
};
