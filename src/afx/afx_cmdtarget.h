// Message maps, command targets and the objects that update a command's look.
#pragma once

#include "afx_object.h"
#include "atltypes.h"

class CCmdTarget;
class CCmdUI;
class CMenu;
class CWnd;

typedef void (CCmdTarget::*AFX_PMSG)();

// The signature of a handler, which tells how a message's parameters are unpacked for it.
// Named by result and arguments: v void, b BOOL, i int, u UINT, l LRESULT, h handle.
enum AfxSig : UINT {
    AfxSig_end,
    // Commands and notifications.
    AfxSigCmd_v,
    AfxSigCmd_RANGE,
    AfxSigCmdUI,
    AfxSigNotify_v,
    // Window messages.
    AfxSig_lwl,        // any message: wParam, lParam
    AfxSig_vv,         // nothing
    AfxSig_bv,         // nothing
    AfxSig_uv,         // nothing
    AfxSig_hv,         // nothing
    AfxSig_i_create,   // LPCREATESTRUCT
    AfxSig_v_size,     // UINT, int, int
    AfxSig_v_move,     // int, int
    AfxSig_v_timer,    // UINT_PTR
    AfxSig_v_key,      // UINT, UINT, UINT
    AfxSig_v_mouse,    // UINT, CPoint
    AfxSig_b_wheel,    // UINT, short, CPoint
    AfxSig_b_dc,       // CDC*
    AfxSig_v_wnd,      // CWnd* from wParam
    AfxSig_v_capture,  // CWnd* from lParam
    AfxSig_v_scroll,   // UINT, UINT, CScrollBar*
    AfxSig_v_drop,     // HDROP
    AfxSig_v_bool,     // BOOL
    AfxSig_v_show,     // BOOL, UINT
    AfxSig_h_ctlcolor, // CDC*, CWnd*, UINT
    AfxSig_b_cursor,   // CWnd*, UINT, UINT
    AfxSig_i_mouseact, // CWnd*, UINT, UINT
    AfxSig_v_activate, // UINT, CWnd*, BOOL
    AfxSig_v_draw,     // int, LPDRAWITEMSTRUCT
    AfxSig_v_measure,  // int, LPMEASUREITEMSTRUCT
    AfxSig_v_minmax,   // MINMAXINFO*
    AfxSig_v_pos,      // WINDOWPOS*
    AfxSig_v_context,  // CWnd*, CPoint
    AfxSig_l_point,    // CPoint
    AfxSig_v_popup,    // CMenu*, UINT, BOOL
    // Messages that a parent window hands back to the control they came from.
    AfxSig_h_reflect_color,   // CDC*, UINT
    AfxSig_v_reflect_scroll,  // UINT, UINT
    AfxSig_v_reflect_draw,    // LPDRAWITEMSTRUCT
    AfxSig_v_reflect_measure, // LPMEASUREITEMSTRUCT
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

enum : int { CN_COMMAND = 0, CN_UPDATE_COMMAND_UI = -1 };

// An object with a message map, through which commands are routed to its handlers.
class ZOPAFX_API CCmdTarget : public CObject {
    DECLARE_DYNAMIC(CCmdTarget)
    DECLARE_MESSAGE_MAP()

public:
    // Looks for a handler of the command and calls it, or, with pHandlerInfo, only tells which it is.
    // For a notify message the high word of nCode is WM_NOTIFY. TRUE where there is one.
    virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);
};

// The look of a menu item or control that stands for a command; given to its update handlers.
class ZOPAFX_API CCmdUI {
public:
    CCmdUI() = default;
    virtual ~CCmdUI();
    virtual void Enable(BOOL bOn = TRUE);
    virtual void SetCheck(int nCheck = 1); // 0 clear, 1 set, 2 indeterminate (buttons only)
    virtual void SetText(LPCTSTR lpszText);
    // Asks pTarget for an update; bDisableIfNoHndler disables a command that nobody handles.
    BOOL DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);

    UINT m_nID = 0;
    UINT m_nIndex = 0;
    CMenu* m_pMenu = nullptr;
    CMenu* m_pSubMenu = nullptr;
    CWnd* m_pOther = nullptr;
    BOOL m_bEnableChanged = FALSE;
    UINT m_nIndexMax = 0;
};
