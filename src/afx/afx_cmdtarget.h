// Message maps and command targets.
#pragma once

#include "afx_object.h"
#include "atltypes.h"

class CCmdTarget;

typedef void (CCmdTarget::*AFX_PMSG)();

// The signature of a handler, which tells how a message's parameters are unpacked for it.
// Named by result and arguments: v void, b BOOL, i int, u UINT, l LRESULT, h handle, s text, p record, w CWnd*, m
// CMenu*, d CDC*, P CPoint; what else there is to tell stands behind.
enum AfxSig : UINT {
    AfxSig_end,
    // Commands, command updates, notifications.
    AfxSigCmd_v,
    AfxSigCmd_b,
    AfxSigCmd_RANGE,
    AfxSigCmd_EX,
    AfxSigCmdUI,
    AfxSigCmdUI_RANGE,
    AfxSigNotify_v,
    AfxSigNotify_b,
    AfxSigNotify_RANGE,
    AfxSigNotify_EX,
    // Thread messages.
    AfxSigThread_v,
    // Window messages without an answer.
    AfxSig_vv,
    AfxSig_v_b,           // wParam
    AfxSig_v_b_u,         // wParam, lParam
    AfxSig_v_u,           // wParam
    AfxSig_v_u_u,         // wParam, low lParam
    AfxSig_v_u_l,         // wParam, lParam
    AfxSig_v_u_d,         // wParam, lParam's low double word
    AfxSig_v_u_b,         // wParam, lParam
    AfxSig_v_words,       // low wParam, high wParam
    AfxSig_v_u_s,         // wParam, lParam
    AfxSig_v_s,           // lParam
    AfxSig_v_i_p,         // wParam, lParam
    AfxSig_v_u_p,         // wParam, lParam
    AfxSig_v_p,           // lParam
    AfxSig_v_i_i,         // low lParam, high lParam
    AfxSig_v_size,        // wParam, low lParam, high lParam
    AfxSig_v_timer,       // wParam
    AfxSig_v_key,         // wParam, low lParam, high lParam
    AfxSig_v_u_P,         // wParam, lParam
    AfxSig_v_xbutton,     // low wParam, high wParam, lParam
    AfxSig_v_ncxbutton,   // short, UINT, CPoint
    AfxSig_v_wheel,       // UINT, short, CPoint
    AfxSig_v_w_from_w,    // wParam
    AfxSig_v_w_from_l,    // lParam
    AfxSig_v_w_P,         // wParam, lParam
    AfxSig_v_w_h,         // wParam, lParam
    AfxSig_v_w_u_u,       // wParam, low lParam, high lParam
    AfxSig_v_h_h,         // wParam, lParam
    AfxSig_v_u_w,         // wParam, lParam
    AfxSig_v_d,           // wParam
    AfxSig_v_scroll,      // UINT, UINT, CScrollBar*
    AfxSig_v_drop,        // HDROP
    AfxSig_v_activate,    // UINT, CWnd*, BOOL
    AfxSig_v_mdiactivate, // BOOL, CWnd*, CWnd*
    AfxSig_v_m,           // wParam
    AfxSig_v_m_u,         // wParam, high lParam
    AfxSig_v_m_u_b,       // wParam, low lParam, high lParam
    AfxSig_v_u_m,         // wParam, lParam
    AfxSig_v_menuselect,  // UINT, UINT, HMENU
    AfxSig_v_parent,      // UINT, LPARAM
    AfxSig_v_appcommand,  // CWnd*, UINT, UINT, UINT
    // Window messages with an answer.
    AfxSig_l_w_l,      // wParam, lParam
    AfxSig_l_d_u,      // wParam, lParam
    AfxSig_lv,         // nothing
    AfxSig_bv,         // nothing
    AfxSig_b_b,        // wParam
    AfxSig_b_p,        // lParam
    AfxSig_b_w_p,      // wParam, lParam
    AfxSig_b_u_l,      // wParam, lParam
    AfxSig_b_d,        // wParam
    AfxSig_b_w_u_u,    // wParam, low lParam, high lParam
    AfxSig_i_w_u_u,    // wParam, low lParam, high lParam
    AfxSig_b_wheel,    // UINT, short, CPoint
    AfxSig_i_p,        // lParam
    AfxSig_i_i_p,      // wParam, lParam
    AfxSig_i_listkey,  // UINT, CListBox*, UINT
    AfxSig_uv,         // nothing
    AfxSig_u_u_l,      // wParam, lParam
    AfxSig_u_w_u,      // wParam, lParam
    AfxSig_u_u_m,      // wParam, lParam
    AfxSig_u_p,        // lParam
    AfxSig_l_P,        // lParam
    AfxSig_l_menuchar, // UINT, UINT, CMenu*
    AfxSig_hv,         // nothing
    AfxSig_h_ctlcolor, // CDC*, CWnd*, UINT
    // Messages that come back to the control they came from.
    AfxSig_h_ctlcolor_reflect, // CDC*, UINT
    AfxSig_v_p_reflect,        // lParam
    AfxSig_i_p_reflect,        // lParam
    AfxSig_i_listkey_reflect,  // UINT, UINT
};

// How the result of a window message's handler is read where it is not the documented one.
enum AfxResult : UINT { AfxResult_named, AfxResult_none, AfxResult_int };
// Besides: parameters of a message of the program's own that its handler takes in 32 bits. One that is more, a pointer
// perhaps, is refused with CNotSupportedException.
enum AfxNarrow : UINT { AfxNarrow_w = 0x10, AfxNarrow_l = 0x20 };

// nSig is a signature, or, for a registered message, where its number is kept.
struct AFX_MSGMAP_ENTRY {
    UINT nMessage;
    UINT nCode;
    UINT nID;
    UINT nLastID;
    UINT_PTR nSig;
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

// For a class template of one type.
#define BEGIN_TEMPLATE_MESSAGE_MAP(theClass, type_name, baseClass)                                                     \
    template <typename type_name> const AFX_MSGMAP* theClass<type_name>::GetMessageMap() const {                       \
        return theClass<type_name>::GetThisMessageMap();                                                               \
    }                                                                                                                  \
    template <typename type_name> const AFX_MSGMAP* PASCAL theClass<type_name>::GetThisMessageMap() {                  \
        [[maybe_unused]] typedef theClass<type_name> ThisClass;                                                        \
        typedef baseClass TheBaseClass;                                                                                \
        static const AFX_MSGMAP_ENTRY messageEntries[] = {

#define END_MESSAGE_MAP()                                                                                              \
    { 0, 0, 0, 0, AfxSig_end, nullptr }                                                                                \
    }                                                                                                                  \
    ;                                                                                                                  \
    static const AFX_MSGMAP messageMap = {&TheBaseClass::GetThisMessageMap, messageEntries};                           \
    return &messageMap;                                                                                                \
    }

enum : int { CN_COMMAND = 0, CN_UPDATE_COMMAND_UI = -1 };

// An object with a message map, through which commands are routed to its handlers.
class ZOPAFX_API CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)
    DECLARE_MESSAGE_MAP()

public:
    CCmdTarget() = default;
    ~CCmdTarget() override = default;
    // Looks for a handler of the command and calls it, or, with pHandlerInfo, only tells which it is.
    // For a notify message the high word of nCode is WM_NOTIFY. TRUE where there is one.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

    // The hourglass, nested; RestoreWaitCursor shows it again after something else changed the cursor.
    void BeginWaitCursor();
    void EndWaitCursor();
    void RestoreWaitCursor();
};

// The hourglass as long as the object lives.
class ZOPAFX_API CWaitCursor {
public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;
    void Restore();
};
