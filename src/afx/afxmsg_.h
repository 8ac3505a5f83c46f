// The entries of message maps. Each checks its handler's signature when it is compiled.
#pragma once

#include "afx_cmdtarget.h"

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wcast-function-type"
// The dispatcher turns the pointer back into the type that the signature names.
template <class Method> inline AFX_PMSG AfxErasedMethod(Method method) {
    return reinterpret_cast<AFX_PMSG>(method);
}
#pragma GCC diagnostic pop

#define AFX_WM_ENTRY(message, sig, result, arguments, method)                                                          \
    {message, 0, 0, 0, sig, AfxErasedMethod(static_cast<result(CWnd::*) arguments>(&ThisClass::method))},
#define AFX_CMD_ENTRY(message, code, id, lastId, sig, arguments, method)                                               \
    {message,                                                                                                          \
     static_cast<WORD>(code),                                                                                          \
     static_cast<UINT>(id),                                                                                            \
     static_cast<UINT>(lastId),                                                                                        \
     sig,                                                                                                              \
     AfxErasedMethod(static_cast<void(CCmdTarget::*) arguments>(method))},

// Commands, control notifications, notify messages.
#define ON_COMMAND(id, memberFxn) AFX_CMD_ENTRY(WM_COMMAND, CN_COMMAND, id, id, AfxSigCmd_v, (), memberFxn)
#define ON_CONTROL(wNotifyCode, id, memberFxn)                                                                         \
    AFX_CMD_ENTRY(WM_COMMAND, wNotifyCode, id, id, AfxSigCmd_v, (), memberFxn)
#define ON_CONTROL_RANGE(wNotifyCode, id, idLast, memberFxn)                                                           \
    AFX_CMD_ENTRY(WM_COMMAND, wNotifyCode, id, idLast, AfxSigCmd_RANGE, (UINT), memberFxn)
#define ON_NOTIFY(wNotifyCode, id, memberFxn)                                                                          \
    AFX_CMD_ENTRY(WM_NOTIFY, wNotifyCode, id, id, AfxSigNotify_v, (NMHDR*, LRESULT*), memberFxn)

// Window messages.
#define AFX_KEY_ENTRY(message, method) AFX_WM_ENTRY(message, AfxSig_v_key, void, (UINT, UINT, UINT), method)
#define AFX_MOUSE_ENTRY(message, method) AFX_WM_ENTRY(message, AfxSig_v_mouse, void, (UINT, CPoint), method)
#define AFX_SCROLL_ENTRY(message, method)                                                                              \
    AFX_WM_ENTRY(message, AfxSig_v_scroll, void, (UINT, UINT, CScrollBar*), method)

#define ON_WM_CREATE() AFX_WM_ENTRY(WM_CREATE, AfxSig_i_create, int, (LPCREATESTRUCT), OnCreate)
#define ON_WM_CLOSE() AFX_WM_ENTRY(WM_CLOSE, AfxSig_vv, void, (), OnClose)
#define ON_WM_DESTROY() AFX_WM_ENTRY(WM_DESTROY, AfxSig_vv, void, (), OnDestroy)
#define ON_WM_NCDESTROY() AFX_WM_ENTRY(WM_NCDESTROY, AfxSig_vv, void, (), OnNcDestroy)
#define ON_WM_PAINT() AFX_WM_ENTRY(WM_PAINT, AfxSig_vv, void, (), OnPaint)
#define ON_WM_SIZE() AFX_WM_ENTRY(WM_SIZE, AfxSig_v_size, void, (UINT, int, int), OnSize)
#define ON_WM_TIMER() AFX_WM_ENTRY(WM_TIMER, AfxSig_v_timer, void, (UINT_PTR), OnTimer)
#define ON_WM_CHAR() AFX_KEY_ENTRY(WM_CHAR, OnChar)
#define ON_WM_MOUSEMOVE() AFX_MOUSE_ENTRY(WM_MOUSEMOVE, OnMouseMove)
#define ON_WM_LBUTTONDOWN() AFX_MOUSE_ENTRY(WM_LBUTTONDOWN, OnLButtonDown)
#define ON_WM_LBUTTONUP() AFX_MOUSE_ENTRY(WM_LBUTTONUP, OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK() AFX_MOUSE_ENTRY(WM_LBUTTONDBLCLK, OnLButtonDblClk)
#define ON_WM_RBUTTONDOWN() AFX_MOUSE_ENTRY(WM_RBUTTONDOWN, OnRButtonDown)
#define ON_WM_RBUTTONUP() AFX_MOUSE_ENTRY(WM_RBUTTONUP, OnRButtonUp)
#define ON_WM_MOUSEWHEEL() AFX_WM_ENTRY(WM_MOUSEWHEEL, AfxSig_b_wheel, BOOL, (UINT, short, CPoint), OnMouseWheel)
#define ON_WM_ERASEBKGND() AFX_WM_ENTRY(WM_ERASEBKGND, AfxSig_b_dc, BOOL, (CDC*), OnEraseBkgnd)
#define ON_WM_SETFOCUS() AFX_WM_ENTRY(WM_SETFOCUS, AfxSig_v_wnd, void, (CWnd*), OnSetFocus)
#define ON_WM_KILLFOCUS() AFX_WM_ENTRY(WM_KILLFOCUS, AfxSig_v_wnd, void, (CWnd*), OnKillFocus)
#define ON_WM_FONTCHANGE() AFX_WM_ENTRY(WM_FONTCHANGE, AfxSig_vv, void, (), OnFontChange)
#define ON_WM_SYSCOLORCHANGE() AFX_WM_ENTRY(WM_SYSCOLORCHANGE, AfxSig_vv, void, (), OnSysColorChange)
#define ON_WM_HSCROLL() AFX_SCROLL_ENTRY(WM_HSCROLL, OnHScroll)
#define ON_WM_VSCROLL() AFX_SCROLL_ENTRY(WM_VSCROLL, OnVScroll)
#define ON_WM_DROPFILES() AFX_WM_ENTRY(WM_DROPFILES, AfxSig_v_drop, void, (HDROP), OnDropFiles)
#define ON_WM_CTLCOLOR() AFX_WM_ENTRY(WM_CTLCOLOR, AfxSig_h_ctlcolor, HBRUSH, (CDC*, CWnd*, UINT), OnCtlColor)
#define ON_WM_CAPTURECHANGED() AFX_WM_ENTRY(WM_CAPTURECHANGED, AfxSig_v_capture, void, (CWnd*), OnCaptureChanged)

#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
