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

// Messages by number.
#define AFX_MESSAGE_ENTRY(message, method)                                                                             \
    {message, 0, 0, 0, AfxSig_lwl, AfxErasedMethod(static_cast<LRESULT (CWnd::*)(WPARAM, LPARAM)>(method))},
#define ON_MESSAGE(message, memberFxn) AFX_MESSAGE_ENTRY(message, memberFxn)
// A registered message's number lies above all others, so it is matched like them.
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn) AFX_MESSAGE_ENTRY(nMessageVariable, memberFxn)

// Commands, control notifications, notify messages.
#define ON_COMMAND(id, memberFxn) AFX_CMD_ENTRY(WM_COMMAND, CN_COMMAND, id, id, AfxSigCmd_v, (), memberFxn)
#define ON_COMMAND_RANGE(id, idLast, memberFxn)                                                                        \
    AFX_CMD_ENTRY(WM_COMMAND, CN_COMMAND, id, idLast, AfxSigCmd_RANGE, (UINT), memberFxn)
#define ON_UPDATE_COMMAND_UI(id, memberFxn)                                                                            \
    AFX_CMD_ENTRY(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, id, AfxSigCmdUI, (CCmdUI*), memberFxn)
#define ON_UPDATE_COMMAND_UI_RANGE(id, idLast, memberFxn)                                                              \
    AFX_CMD_ENTRY(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, idLast, AfxSigCmdUI, (CCmdUI*), memberFxn)
#define ON_CONTROL(wNotifyCode, id, memberFxn)                                                                         \
    AFX_CMD_ENTRY(WM_COMMAND, wNotifyCode, id, id, AfxSigCmd_v, (), memberFxn)
#define ON_CONTROL_RANGE(wNotifyCode, id, idLast, memberFxn)                                                           \
    AFX_CMD_ENTRY(WM_COMMAND, wNotifyCode, id, idLast, AfxSigCmd_RANGE, (UINT), memberFxn)
#define ON_NOTIFY(wNotifyCode, id, memberFxn)                                                                          \
    AFX_CMD_ENTRY(WM_NOTIFY, wNotifyCode, id, id, AfxSigNotify_v, (NMHDR*, LRESULT*), memberFxn)

// What a control's parent hands back to it.
#define WM_REFLECT_BASE 0xBC00
#define ON_CONTROL_REFLECT(wNotifyCode, memberFxn)                                                                     \
    AFX_CMD_ENTRY(WM_COMMAND + WM_REFLECT_BASE, wNotifyCode, 0, 0, AfxSigCmd_v, (), memberFxn)
#define ON_NOTIFY_REFLECT(wNotifyCode, memberFxn)                                                                      \
    AFX_CMD_ENTRY(WM_NOTIFY + WM_REFLECT_BASE, wNotifyCode, 0, 0, AfxSigNotify_v, (NMHDR*, LRESULT*), memberFxn)
#define ON_WM_CTLCOLOR_REFLECT()                                                                                       \
    AFX_WM_ENTRY(WM_CTLCOLOR + WM_REFLECT_BASE, AfxSig_h_reflect_color, HBRUSH, (CDC*, UINT), CtlColor)
#define ON_WM_HSCROLL_REFLECT()                                                                                        \
    AFX_WM_ENTRY(WM_HSCROLL + WM_REFLECT_BASE, AfxSig_v_reflect_scroll, void, (UINT, UINT), HScroll)
#define ON_WM_VSCROLL_REFLECT()                                                                                        \
    AFX_WM_ENTRY(WM_VSCROLL + WM_REFLECT_BASE, AfxSig_v_reflect_scroll, void, (UINT, UINT), VScroll)
#define ON_WM_DRAWITEM_REFLECT()                                                                                       \
    AFX_WM_ENTRY(WM_DRAWITEM + WM_REFLECT_BASE, AfxSig_v_reflect_draw, void, (LPDRAWITEMSTRUCT), DrawItem)
#define ON_WM_MEASUREITEM_REFLECT()                                                                                    \
    AFX_WM_ENTRY(WM_MEASUREITEM + WM_REFLECT_BASE, AfxSig_v_reflect_measure, void, (LPMEASUREITEMSTRUCT), MeasureItem)

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
#define ON_WM_MOVE() AFX_WM_ENTRY(WM_MOVE, AfxSig_v_move, void, (int, int), OnMove)
#define ON_WM_TIMER() AFX_WM_ENTRY(WM_TIMER, AfxSig_v_timer, void, (UINT_PTR), OnTimer)
#define ON_WM_CHAR() AFX_KEY_ENTRY(WM_CHAR, OnChar)
#define ON_WM_KEYDOWN() AFX_KEY_ENTRY(WM_KEYDOWN, OnKeyDown)
#define ON_WM_KEYUP() AFX_KEY_ENTRY(WM_KEYUP, OnKeyUp)
#define ON_WM_SYSKEYDOWN() AFX_KEY_ENTRY(WM_SYSKEYDOWN, OnSysKeyDown)
#define ON_WM_SYSKEYUP() AFX_KEY_ENTRY(WM_SYSKEYUP, OnSysKeyUp)
#define ON_WM_SYSCHAR() AFX_KEY_ENTRY(WM_SYSCHAR, OnSysChar)
#define ON_WM_MOUSEMOVE() AFX_MOUSE_ENTRY(WM_MOUSEMOVE, OnMouseMove)
#define ON_WM_LBUTTONDOWN() AFX_MOUSE_ENTRY(WM_LBUTTONDOWN, OnLButtonDown)
#define ON_WM_LBUTTONUP() AFX_MOUSE_ENTRY(WM_LBUTTONUP, OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK() AFX_MOUSE_ENTRY(WM_LBUTTONDBLCLK, OnLButtonDblClk)
#define ON_WM_RBUTTONDOWN() AFX_MOUSE_ENTRY(WM_RBUTTONDOWN, OnRButtonDown)
#define ON_WM_RBUTTONUP() AFX_MOUSE_ENTRY(WM_RBUTTONUP, OnRButtonUp)
#define ON_WM_RBUTTONDBLCLK() AFX_MOUSE_ENTRY(WM_RBUTTONDBLCLK, OnRButtonDblClk)
#define ON_WM_MBUTTONDOWN() AFX_MOUSE_ENTRY(WM_MBUTTONDOWN, OnMButtonDown)
#define ON_WM_MBUTTONUP() AFX_MOUSE_ENTRY(WM_MBUTTONUP, OnMButtonUp)
#define ON_WM_MBUTTONDBLCLK() AFX_MOUSE_ENTRY(WM_MBUTTONDBLCLK, OnMButtonDblClk)
#define ON_WM_MOUSEWHEEL() AFX_WM_ENTRY(WM_MOUSEWHEEL, AfxSig_b_wheel, BOOL, (UINT, short, CPoint), OnMouseWheel)
#define ON_WM_ERASEBKGND() AFX_WM_ENTRY(WM_ERASEBKGND, AfxSig_b_dc, BOOL, (CDC*), OnEraseBkgnd)
#define ON_WM_SETFOCUS() AFX_WM_ENTRY(WM_SETFOCUS, AfxSig_v_wnd, void, (CWnd*), OnSetFocus)
#define ON_WM_KILLFOCUS() AFX_WM_ENTRY(WM_KILLFOCUS, AfxSig_v_wnd, void, (CWnd*), OnKillFocus)
#define ON_WM_FONTCHANGE() AFX_WM_ENTRY(WM_FONTCHANGE, AfxSig_vv, void, (), OnFontChange)
#define ON_WM_SYSCOLORCHANGE() AFX_WM_ENTRY(WM_SYSCOLORCHANGE, AfxSig_vv, void, (), OnSysColorChange)
#define ON_WM_HSCROLL() AFX_SCROLL_ENTRY(WM_HSCROLL, OnHScroll)
#define ON_WM_VSCROLL() AFX_SCROLL_ENTRY(WM_VSCROLL, OnVScroll)
#define ON_WM_DROPFILES() AFX_WM_ENTRY(WM_DROPFILES, AfxSig_v_drop, void, (HDROP), OnDropFiles)
#define ON_WM_ENABLE() AFX_WM_ENTRY(WM_ENABLE, AfxSig_v_bool, void, (BOOL), OnEnable)
#define ON_WM_SHOWWINDOW() AFX_WM_ENTRY(WM_SHOWWINDOW, AfxSig_v_show, void, (BOOL, UINT), OnShowWindow)
#define ON_WM_CTLCOLOR() AFX_WM_ENTRY(WM_CTLCOLOR, AfxSig_h_ctlcolor, HBRUSH, (CDC*, CWnd*, UINT), OnCtlColor)
#define ON_WM_SETCURSOR() AFX_WM_ENTRY(WM_SETCURSOR, AfxSig_b_cursor, BOOL, (CWnd*, UINT, UINT), OnSetCursor)
#define ON_WM_CAPTURECHANGED() AFX_WM_ENTRY(WM_CAPTURECHANGED, AfxSig_v_capture, void, (CWnd*), OnCaptureChanged)
#define ON_WM_CANCELMODE() AFX_WM_ENTRY(WM_CANCELMODE, AfxSig_vv, void, (), OnCancelMode)
#define ON_WM_DRAWITEM() AFX_WM_ENTRY(WM_DRAWITEM, AfxSig_v_draw, void, (int, LPDRAWITEMSTRUCT), OnDrawItem)
#define ON_WM_MEASUREITEM()                                                                                            \
    AFX_WM_ENTRY(WM_MEASUREITEM, AfxSig_v_measure, void, (int, LPMEASUREITEMSTRUCT), OnMeasureItem)
#define ON_WM_CONTEXTMENU() AFX_WM_ENTRY(WM_CONTEXTMENU, AfxSig_v_context, void, (CWnd*, CPoint), OnContextMenu)
#define ON_WM_QUERYDRAGICON() AFX_WM_ENTRY(WM_QUERYDRAGICON, AfxSig_hv, HCURSOR, (), OnQueryDragIcon)
#define ON_WM_GETMINMAXINFO() AFX_WM_ENTRY(WM_GETMINMAXINFO, AfxSig_v_minmax, void, (MINMAXINFO*), OnGetMinMaxInfo)
#define ON_WM_ACTIVATE() AFX_WM_ENTRY(WM_ACTIVATE, AfxSig_v_activate, void, (UINT, CWnd*, BOOL), OnActivate)
#define ON_WM_MOUSEACTIVATE()                                                                                          \
    AFX_WM_ENTRY(WM_MOUSEACTIVATE, AfxSig_i_mouseact, int, (CWnd*, UINT, UINT), OnMouseActivate)
#define ON_WM_PALETTECHANGED() AFX_WM_ENTRY(WM_PALETTECHANGED, AfxSig_v_wnd, void, (CWnd*), OnPaletteChanged)
#define ON_WM_QUERYNEWPALETTE() AFX_WM_ENTRY(WM_QUERYNEWPALETTE, AfxSig_bv, BOOL, (), OnQueryNewPalette)
#define ON_WM_WINDOWPOSCHANGED() AFX_WM_ENTRY(WM_WINDOWPOSCHANGED, AfxSig_v_pos, void, (WINDOWPOS*), OnWindowPosChanged)
#define ON_WM_NCHITTEST() AFX_WM_ENTRY(WM_NCHITTEST, AfxSig_l_point, LRESULT, (CPoint), OnNcHitTest)
#define ON_WM_INITMENUPOPUP()                                                                                          \
    AFX_WM_ENTRY(WM_INITMENUPOPUP, AfxSig_v_popup, void, (CMenu*, UINT, BOOL), OnInitMenuPopup)
#define ON_WM_GETDLGCODE() AFX_WM_ENTRY(WM_GETDLGCODE, AfxSig_uv, UINT, (), OnGetDlgCode)

// Buttons.
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)
#define ON_BN_DOUBLECLICKED(id, memberFxn) ON_CONTROL(BN_DOUBLECLICKED, id, memberFxn)
// Edit fields.
#define ON_EN_SETFOCUS(id, memberFxn) ON_CONTROL(EN_SETFOCUS, id, memberFxn)
#define ON_EN_KILLFOCUS(id, memberFxn) ON_CONTROL(EN_KILLFOCUS, id, memberFxn)
#define ON_EN_CHANGE(id, memberFxn) ON_CONTROL(EN_CHANGE, id, memberFxn)
#define ON_EN_UPDATE(id, memberFxn) ON_CONTROL(EN_UPDATE, id, memberFxn)
// List boxes.
#define ON_LBN_DBLCLK(id, memberFxn) ON_CONTROL(LBN_DBLCLK, id, memberFxn)
#define ON_LBN_SELCHANGE(id, memberFxn) ON_CONTROL(LBN_SELCHANGE, id, memberFxn)
// Combo boxes.
#define ON_CBN_SELCHANGE(id, memberFxn) ON_CONTROL(CBN_SELCHANGE, id, memberFxn)
#define ON_CBN_SELENDOK(id, memberFxn) ON_CONTROL(CBN_SELENDOK, id, memberFxn)
#define ON_CBN_EDITCHANGE(id, memberFxn) ON_CONTROL(CBN_EDITCHANGE, id, memberFxn)
#define ON_CBN_DROPDOWN(id, memberFxn) ON_CONTROL(CBN_DROPDOWN, id, memberFxn)
// Static controls.
#define ON_STN_CLICKED(id, memberFxn) ON_CONTROL(STN_CLICKED, id, memberFxn)
#define ON_STN_DBLCLK(id, memberFxn) ON_CONTROL(STN_DBLCLK, id, memberFxn)
