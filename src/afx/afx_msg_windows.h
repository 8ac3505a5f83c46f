// Map entries for the platform's window messages; part of afxmsg_.h.
#pragma once

#ifndef WM_CTLCOLOR
#define WM_CTLCOLOR 0x0019
#endif

// Older programs take the timer's number as UINT: it is small where it is theirs.
template <class Target> inline AFX_PMSG afx_timer_method(void (Target::*method)(UINT_PTR)) {
    return afx_erased_method(static_cast<void (CWnd::*)(UINT_PTR)>(method));
}
template <class Target> inline AFX_PMSG afx_timer_method(void (Target::*method)(UINT)) {
    return afx_erased_method(static_cast<void (CWnd::*)(UINT)>(method));
}

#define ON_WM_CLOSE() AFX_WM_ENTRY(WM_CLOSE, AfxSig_vv, void, (), OnClose)
#define ON_WM_DESTROY() AFX_WM_ENTRY(WM_DESTROY, AfxSig_vv, void, (), OnDestroy)
#define ON_WM_NCDESTROY() AFX_WM_ENTRY(WM_NCDESTROY, AfxSig_vv, void, (), OnNcDestroy)
#define ON_WM_PAINT() AFX_WM_ENTRY(WM_PAINT, AfxSig_vv, void, (), OnPaint)
#define ON_WM_NCPAINT() AFX_WM_ENTRY(WM_NCPAINT, AfxSig_vv, void, (), OnNcPaint)
#define ON_WM_FONTCHANGE() AFX_WM_ENTRY(WM_FONTCHANGE, AfxSig_vv, void, (), OnFontChange)
#define ON_WM_SYSCOLORCHANGE() AFX_WM_ENTRY(WM_SYSCOLORCHANGE, AfxSig_vv, void, (), OnSysColorChange)
#define ON_WM_TIMECHANGE() AFX_WM_ENTRY(WM_TIMECHANGE, AfxSig_vv, void, (), OnTimeChange)
#define ON_WM_CANCELMODE() AFX_WM_ENTRY(WM_CANCELMODE, AfxSig_vv, void, (), OnCancelMode)
#define ON_WM_CHILDACTIVATE() AFX_WM_ENTRY(WM_CHILDACTIVATE, AfxSig_vv, void, (), OnChildActivate)
#define ON_WM_DESTROYCLIPBOARD() AFX_WM_ENTRY(WM_DESTROYCLIPBOARD, AfxSig_vv, void, (), OnDestroyClipboard)
#define ON_WM_DRAWCLIPBOARD() AFX_WM_ENTRY(WM_DRAWCLIPBOARD, AfxSig_vv, void, (), OnDrawClipboard)
#define ON_WM_RENDERALLFORMATS() AFX_WM_ENTRY(WM_RENDERALLFORMATS, AfxSig_vv, void, (), OnRenderAllFormats)
#define ON_WM_CLIPBOARDUPDATE() AFX_WM_ENTRY(WM_CLIPBOARDUPDATE, AfxSig_vv, void, (), OnClipboardUpdate)
#define ON_WM_MOUSELEAVE() AFX_WM_ENTRY(WM_MOUSELEAVE, AfxSig_vv, void, (), OnMouseLeave)
#define ON_WM_NCMOUSELEAVE() AFX_WM_ENTRY(WM_NCMOUSELEAVE, AfxSig_vv, void, (), OnNcMouseLeave)
#define ON_WM_ENTERSIZEMOVE() AFX_WM_ENTRY(WM_ENTERSIZEMOVE, AfxSig_vv, void, (), OnEnterSizeMove)
#define ON_WM_EXITSIZEMOVE() AFX_WM_ENTRY(WM_EXITSIZEMOVE, AfxSig_vv, void, (), OnExitSizeMove)
#define ON_WM_USERCHANGED() AFX_WM_ENTRY(WM_USERCHANGED, AfxSig_vv, void, (), OnUserChanged)
#define ON_WM_DWMCOMPOSITIONCHANGED() AFX_WM_ENTRY(WM_DWMCOMPOSITIONCHANGED, AfxSig_vv, void, (), OnCompositionChanged)
#define ON_WM_ENABLE() AFX_WM_ENTRY(WM_ENABLE, AfxSig_v_b, void, (BOOL), OnEnable)
#define ON_WM_ENDSESSION() AFX_WM_ENTRY(WM_ENDSESSION, AfxSig_v_b, void, (BOOL), OnEndSession)
#define ON_WM_ENTERMENULOOP() AFX_WM_ENTRY(WM_ENTERMENULOOP, AfxSig_v_b, void, (BOOL), OnEnterMenuLoop)
#define ON_WM_EXITMENULOOP() AFX_WM_ENTRY(WM_EXITMENULOOP, AfxSig_v_b, void, (BOOL), OnExitMenuLoop)
#define ON_WM_DWMNCRENDERINGCHANGED()                                                                                  \
    AFX_WM_ENTRY(WM_DWMNCRENDERINGCHANGED, AfxSig_v_b, void, (BOOL), OnNcRenderingChanged)
#define ON_WM_DWMWINDOWMAXIMIZEDCHANGE()                                                                               \
    AFX_WM_ENTRY(WM_DWMWINDOWMAXIMIZEDCHANGE, AfxSig_v_b, void, (BOOL), OnWindowMaximizedChanged)
#define ON_WM_SHOWWINDOW() AFX_WM_ENTRY(WM_SHOWWINDOW, AfxSig_v_b_u, void, (BOOL, UINT), OnShowWindow)
#define ON_WM_ACTIVATEAPP() AFX_WM_ENTRY(WM_ACTIVATEAPP, AfxSig_v_b_u, void, (BOOL, DWORD), OnActivateApp)
#define ON_WM_COMPACTING() AFX_WM_ENTRY(WM_COMPACTING, AfxSig_v_u, void, (UINT), OnCompacting)
#define ON_WM_RENDERFORMAT() AFX_WM_ENTRY(WM_RENDERFORMAT, AfxSig_v_u, void, (UINT), OnRenderFormat)
#define ON_WM_INPUT_DEVICE_CHANGE()                                                                                    \
    AFX_WM_ENTRY(WM_INPUT_DEVICE_CHANGE, AfxSig_v_u, void, (unsigned short), OnInputDeviceChange)
#define ON_WM_SPOOLERSTATUS() AFX_WM_ENTRY(WM_SPOOLERSTATUS, AfxSig_v_u_u, void, (UINT, UINT), OnSpoolerStatus)
#define ON_WM_INPUTLANGCHANGE() AFX_WM_ENTRY(WM_INPUTLANGCHANGE, AfxSig_v_u_u, void, (UINT, UINT), OnInputLangChange)
#define ON_WM_CHANGEUISTATE() AFX_WM_ENTRY(WM_CHANGEUISTATE, AfxSig_v_words, void, (UINT, UINT), OnChangeUIState)
#define ON_WM_UPDATEUISTATE() AFX_WM_ENTRY(WM_UPDATEUISTATE, AfxSig_v_words, void, (UINT, UINT), OnUpdateUIState)
#define ON_WM_SYSCOMMAND() AFX_WM_ENTRY(WM_SYSCOMMAND, AfxSig_v_u_l, void, (UINT, LPARAM), OnSysCommand)
#define ON_WM_WTSSESSION_CHANGE() AFX_WM_ENTRY(WM_WTSSESSION_CHANGE, AfxSig_v_u_d, void, (UINT, UINT), OnSessionChange)
#define ON_WM_TCARD() AFX_WM_ENTRY(WM_TCARD, AfxSig_v_u_d, void, (UINT, DWORD), OnTCard)
#define ON_WM_DWMCOLORIZATIONCOLORCHANGED()                                                                            \
    AFX_WM_ENTRY(WM_DWMCOLORIZATIONCOLORCHANGED, AfxSig_v_u_b, void, (DWORD, BOOL), OnColorizationColorChanged)
#define ON_WM_SETTINGCHANGE() AFX_WM_ENTRY(WM_SETTINGCHANGE, AfxSig_v_u_s, void, (UINT, LPCTSTR), OnSettingChange)
#define ON_WM_ASKCBFORMATNAME() AFX_WM_ENTRY(WM_ASKCBFORMATNAME, AfxSig_v_u_s, void, (UINT, LPTSTR), OnAskCbFormatName)
#define ON_WM_WININICHANGE() AFX_WM_ENTRY(WM_WININICHANGE, AfxSig_v_s, void, (LPCTSTR), OnWinIniChange)
#define ON_WM_DEVMODECHANGE() AFX_WM_ENTRY(WM_DEVMODECHANGE, AfxSig_v_s, void, (LPTSTR), OnDevModeChange)
#define ON_WM_DRAWITEM() AFX_WM_ENTRY(WM_DRAWITEM, AfxSig_v_i_p, void, (int, LPDRAWITEMSTRUCT), OnDrawItem)
#define ON_WM_MEASUREITEM() AFX_WM_ENTRY(WM_MEASUREITEM, AfxSig_v_i_p, void, (int, LPMEASUREITEMSTRUCT), OnMeasureItem)
#define ON_WM_DELETEITEM() AFX_WM_ENTRY(WM_DELETEITEM, AfxSig_v_i_p, void, (int, LPDELETEITEMSTRUCT), OnDeleteItem)
#define ON_WM_STYLECHANGED() AFX_WM_ENTRY(WM_STYLECHANGED, AfxSig_v_i_p, void, (int, LPSTYLESTRUCT), OnStyleChanged)
#define ON_WM_STYLECHANGING() AFX_WM_ENTRY(WM_STYLECHANGING, AfxSig_v_i_p, void, (int, LPSTYLESTRUCT), OnStyleChanging)
#define ON_WM_SIZING() AFX_WM_ENTRY(WM_SIZING, AfxSig_v_u_p, void, (UINT, LPRECT), OnSizing)
#define ON_WM_MOVING() AFX_WM_ENTRY(WM_MOVING, AfxSig_v_u_p, void, (UINT, LPRECT), OnMoving)
#define ON_WM_NEXTMENU() AFX_WM_ENTRY(WM_NEXTMENU, AfxSig_v_u_p, void, (UINT, LPMDINEXTMENU), OnNextMenu)
#define ON_WM_INPUT() AFX_WM_ENTRY(WM_INPUT, AfxSig_v_u_p, void, (UINT, HRAWINPUT), OnRawInput)
#define ON_WM_INPUTLANGCHANGEREQUEST()                                                                                 \
    AFX_WM_ENTRY(WM_INPUTLANGCHANGEREQUEST, AfxSig_v_u_p, void, (UINT, HKL), OnInputLangChangeRequest)
#define ON_WM_NCCALCSIZE() AFX_WM_ENTRY(WM_NCCALCSIZE, AfxSig_v_i_p, void, (BOOL, NCCALCSIZE_PARAMS*), OnNcCalcSize)
#define ON_WM_GETMINMAXINFO() AFX_WM_ENTRY(WM_GETMINMAXINFO, AfxSig_v_p, void, (MINMAXINFO*), OnGetMinMaxInfo)
#define ON_WM_WINDOWPOSCHANGING()                                                                                      \
    AFX_WM_ENTRY(WM_WINDOWPOSCHANGING, AfxSig_v_p, void, (WINDOWPOS*), OnWindowPosChanging)
#define ON_WM_WINDOWPOSCHANGED() AFX_WM_ENTRY(WM_WINDOWPOSCHANGED, AfxSig_v_p, void, (WINDOWPOS*), OnWindowPosChanged)
#define ON_WM_MOVE() AFX_WM_ENTRY(WM_MOVE, AfxSig_v_i_i, void, (int, int), OnMove)
#define ON_WM_SIZE() AFX_WM_ENTRY(WM_SIZE, AfxSig_v_size, void, (UINT, int, int), OnSize)
#define ON_WM_DISPLAYCHANGE() AFX_WM_ENTRY(WM_DISPLAYCHANGE, AfxSig_v_size, void, (UINT, int, int), OnDisplayChange)
#define ON_WM_TIMER() {WM_TIMER, 0, 0, 0, AfxSig_v_timer, afx_timer_method(&ThisClass::OnTimer)},
#define ON_WM_CHAR() AFX_WM_ENTRY(WM_CHAR, AfxSig_v_key, void, (UINT, UINT, UINT), OnChar)
#define ON_WM_DEADCHAR() AFX_WM_ENTRY(WM_DEADCHAR, AfxSig_v_key, void, (UINT, UINT, UINT), OnDeadChar)
#define ON_WM_UNICHAR() AFX_WM_ENTRY(WM_UNICHAR, AfxSig_v_key, void, (UINT, UINT, UINT), OnUniChar)
#define ON_WM_HOTKEY() AFX_WM_ENTRY(WM_HOTKEY, AfxSig_v_key, void, (UINT, UINT, UINT), OnHotKey)
#define ON_WM_KEYDOWN() AFX_WM_ENTRY(WM_KEYDOWN, AfxSig_v_key, void, (UINT, UINT, UINT), OnKeyDown)
#define ON_WM_KEYUP() AFX_WM_ENTRY(WM_KEYUP, AfxSig_v_key, void, (UINT, UINT, UINT), OnKeyUp)
#define ON_WM_SYSCHAR() AFX_WM_ENTRY(WM_SYSCHAR, AfxSig_v_key, void, (UINT, UINT, UINT), OnSysChar)
#define ON_WM_SYSDEADCHAR() AFX_WM_ENTRY(WM_SYSDEADCHAR, AfxSig_v_key, void, (UINT, UINT, UINT), OnSysDeadChar)
#define ON_WM_SYSKEYDOWN() AFX_WM_ENTRY(WM_SYSKEYDOWN, AfxSig_v_key, void, (UINT, UINT, UINT), OnSysKeyDown)
#define ON_WM_SYSKEYUP() AFX_WM_ENTRY(WM_SYSKEYUP, AfxSig_v_key, void, (UINT, UINT, UINT), OnSysKeyUp)
#define ON_WM_MOUSEMOVE() AFX_WM_ENTRY(WM_MOUSEMOVE, AfxSig_v_u_P, void, (UINT, CPoint), OnMouseMove)
#define ON_WM_MOUSEHOVER() AFX_WM_ENTRY(WM_MOUSEHOVER, AfxSig_v_u_P, void, (UINT, CPoint), OnMouseHover)
#define ON_WM_LBUTTONDOWN() AFX_WM_ENTRY(WM_LBUTTONDOWN, AfxSig_v_u_P, void, (UINT, CPoint), OnLButtonDown)
#define ON_WM_LBUTTONUP() AFX_WM_ENTRY(WM_LBUTTONUP, AfxSig_v_u_P, void, (UINT, CPoint), OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK() AFX_WM_ENTRY(WM_LBUTTONDBLCLK, AfxSig_v_u_P, void, (UINT, CPoint), OnLButtonDblClk)
#define ON_WM_MBUTTONDOWN() AFX_WM_ENTRY(WM_MBUTTONDOWN, AfxSig_v_u_P, void, (UINT, CPoint), OnMButtonDown)
#define ON_WM_MBUTTONUP() AFX_WM_ENTRY(WM_MBUTTONUP, AfxSig_v_u_P, void, (UINT, CPoint), OnMButtonUp)
#define ON_WM_MBUTTONDBLCLK() AFX_WM_ENTRY(WM_MBUTTONDBLCLK, AfxSig_v_u_P, void, (UINT, CPoint), OnMButtonDblClk)
#define ON_WM_RBUTTONDOWN() AFX_WM_ENTRY(WM_RBUTTONDOWN, AfxSig_v_u_P, void, (UINT, CPoint), OnRButtonDown)
#define ON_WM_RBUTTONUP() AFX_WM_ENTRY(WM_RBUTTONUP, AfxSig_v_u_P, void, (UINT, CPoint), OnRButtonUp)
#define ON_WM_RBUTTONDBLCLK() AFX_WM_ENTRY(WM_RBUTTONDBLCLK, AfxSig_v_u_P, void, (UINT, CPoint), OnRButtonDblClk)
#define ON_WM_NCMOUSEMOVE() AFX_WM_ENTRY(WM_NCMOUSEMOVE, AfxSig_v_u_P, void, (UINT, CPoint), OnNcMouseMove)
#define ON_WM_NCMOUSEHOVER() AFX_WM_ENTRY(WM_NCMOUSEHOVER, AfxSig_v_u_P, void, (UINT, CPoint), OnNcMouseHover)
#define ON_WM_NCLBUTTONDOWN() AFX_WM_ENTRY(WM_NCLBUTTONDOWN, AfxSig_v_u_P, void, (UINT, CPoint), OnNcLButtonDown)
#define ON_WM_NCLBUTTONUP() AFX_WM_ENTRY(WM_NCLBUTTONUP, AfxSig_v_u_P, void, (UINT, CPoint), OnNcLButtonUp)
#define ON_WM_NCLBUTTONDBLCLK() AFX_WM_ENTRY(WM_NCLBUTTONDBLCLK, AfxSig_v_u_P, void, (UINT, CPoint), OnNcLButtonDblClk)
#define ON_WM_NCMBUTTONDOWN() AFX_WM_ENTRY(WM_NCMBUTTONDOWN, AfxSig_v_u_P, void, (UINT, CPoint), OnNcMButtonDown)
#define ON_WM_NCMBUTTONUP() AFX_WM_ENTRY(WM_NCMBUTTONUP, AfxSig_v_u_P, void, (UINT, CPoint), OnNcMButtonUp)
#define ON_WM_NCMBUTTONDBLCLK() AFX_WM_ENTRY(WM_NCMBUTTONDBLCLK, AfxSig_v_u_P, void, (UINT, CPoint), OnNcMButtonDblClk)
#define ON_WM_NCRBUTTONDOWN() AFX_WM_ENTRY(WM_NCRBUTTONDOWN, AfxSig_v_u_P, void, (UINT, CPoint), OnNcRButtonDown)
#define ON_WM_NCRBUTTONUP() AFX_WM_ENTRY(WM_NCRBUTTONUP, AfxSig_v_u_P, void, (UINT, CPoint), OnNcRButtonUp)
#define ON_WM_NCRBUTTONDBLCLK() AFX_WM_ENTRY(WM_NCRBUTTONDBLCLK, AfxSig_v_u_P, void, (UINT, CPoint), OnNcRButtonDblClk)
#define ON_WM_XBUTTONDOWN() AFX_WM_ENTRY(WM_XBUTTONDOWN, AfxSig_v_xbutton, void, (UINT, UINT, CPoint), OnXButtonDown)
#define ON_WM_XBUTTONUP() AFX_WM_ENTRY(WM_XBUTTONUP, AfxSig_v_xbutton, void, (UINT, UINT, CPoint), OnXButtonUp)
#define ON_WM_XBUTTONDBLCLK()                                                                                          \
    AFX_WM_ENTRY(WM_XBUTTONDBLCLK, AfxSig_v_xbutton, void, (UINT, UINT, CPoint), OnXButtonDblClk)
#define ON_WM_NCXBUTTONDOWN()                                                                                          \
    AFX_WM_ENTRY(WM_NCXBUTTONDOWN, AfxSig_v_ncxbutton, void, (short, UINT, CPoint), OnNcXButtonDown)
#define ON_WM_NCXBUTTONUP() AFX_WM_ENTRY(WM_NCXBUTTONUP, AfxSig_v_ncxbutton, void, (short, UINT, CPoint), OnNcXButtonUp)
#define ON_WM_NCXBUTTONDBLCLK()                                                                                        \
    AFX_WM_ENTRY(WM_NCXBUTTONDBLCLK, AfxSig_v_ncxbutton, void, (short, UINT, CPoint), OnNcXButtonDblClk)
#define ON_WM_SETFOCUS() AFX_WM_ENTRY(WM_SETFOCUS, AfxSig_v_w_from_w, void, (CWnd*), OnSetFocus)
#define ON_WM_KILLFOCUS() AFX_WM_ENTRY(WM_KILLFOCUS, AfxSig_v_w_from_w, void, (CWnd*), OnKillFocus)
#define ON_WM_PALETTECHANGED() AFX_WM_ENTRY(WM_PALETTECHANGED, AfxSig_v_w_from_w, void, (CWnd*), OnPaletteChanged)
#define ON_WM_PALETTEISCHANGING()                                                                                      \
    AFX_WM_ENTRY(WM_PALETTEISCHANGING, AfxSig_v_w_from_w, void, (CWnd*), OnPaletteIsChanging)
#define ON_WM_CAPTURECHANGED() AFX_WM_ENTRY(WM_CAPTURECHANGED, AfxSig_v_w_from_l, void, (CWnd*), OnCaptureChanged)
#define ON_WM_CONTEXTMENU() AFX_WM_ENTRY(WM_CONTEXTMENU, AfxSig_v_w_P, void, (CWnd*, CPoint), OnContextMenu)
#define ON_WM_PAINTCLIPBOARD() AFX_WM_ENTRY(WM_PAINTCLIPBOARD, AfxSig_v_w_h, void, (CWnd*, HGLOBAL), OnPaintClipboard)
#define ON_WM_SIZECLIPBOARD() AFX_WM_ENTRY(WM_SIZECLIPBOARD, AfxSig_v_w_h, void, (CWnd*, HGLOBAL), OnSizeClipboard)
#define ON_WM_HSCROLLCLIPBOARD()                                                                                       \
    AFX_WM_ENTRY(WM_HSCROLLCLIPBOARD, AfxSig_v_w_u_u, void, (CWnd*, UINT, UINT), OnHScrollClipboard)
#define ON_WM_VSCROLLCLIPBOARD()                                                                                       \
    AFX_WM_ENTRY(WM_VSCROLLCLIPBOARD, AfxSig_v_w_u_u, void, (CWnd*, UINT, UINT), OnVScrollClipboard)
#define ON_WM_CHANGECBCHAIN() AFX_WM_ENTRY(WM_CHANGECBCHAIN, AfxSig_v_h_h, void, (HWND, HWND), OnChangeCbChain)
#define ON_WM_ENTERIDLE() AFX_WM_ENTRY(WM_ENTERIDLE, AfxSig_v_u_w, void, (UINT, CWnd*), OnEnterIdle)
#define ON_WM_ICONERASEBKGND() AFX_WM_ENTRY(WM_ICONERASEBKGND, AfxSig_v_d, void, (CDC*), OnIconEraseBkgnd)
#define ON_WM_HSCROLL() AFX_WM_ENTRY(WM_HSCROLL, AfxSig_v_scroll, void, (UINT, UINT, CScrollBar*), OnHScroll)
#define ON_WM_VSCROLL() AFX_WM_ENTRY(WM_VSCROLL, AfxSig_v_scroll, void, (UINT, UINT, CScrollBar*), OnVScroll)
#define ON_WM_DROPFILES() AFX_WM_ENTRY(WM_DROPFILES, AfxSig_v_drop, void, (HDROP), OnDropFiles)
#define ON_WM_ACTIVATE() AFX_WM_ENTRY(WM_ACTIVATE, AfxSig_v_activate, void, (UINT, CWnd*, BOOL), OnActivate)
#define ON_WM_MDIACTIVATE()                                                                                            \
    AFX_WM_ENTRY(WM_MDIACTIVATE, AfxSig_v_mdiactivate, void, (BOOL, CWnd*, CWnd*), OnMDIActivate)
#define ON_WM_INITMENU() AFX_WM_ENTRY(WM_INITMENU, AfxSig_v_m, void, (CMenu*), OnInitMenu)
#define ON_WM_INITMENUPOPUP()                                                                                          \
    AFX_WM_ENTRY(WM_INITMENUPOPUP, AfxSig_v_m_u_b, void, (CMenu*, UINT, BOOL), OnInitMenuPopup)
#define ON_WM_UNINITMENUPOPUP() AFX_WM_ENTRY(WM_UNINITMENUPOPUP, AfxSig_v_m_u, void, (CMenu*, UINT), OnUnInitMenuPopup)
#define ON_WM_MENURBUTTONUP() AFX_WM_ENTRY(WM_MENURBUTTONUP, AfxSig_v_u_m, void, (UINT, CMenu*), OnMenuRButtonUp)
#define ON_WM_MENUSELECT() AFX_WM_ENTRY(WM_MENUSELECT, AfxSig_v_menuselect, void, (UINT, UINT, HMENU), OnMenuSelect)
#define ON_WM_PARENTNOTIFY() AFX_WM_ENTRY(WM_PARENTNOTIFY, AfxSig_v_parent, void, (UINT, LPARAM), OnParentNotify)
#define ON_WM_APPCOMMAND()                                                                                             \
    AFX_WM_ENTRY(WM_APPCOMMAND, AfxSig_v_appcommand, void, (CWnd*, UINT, UINT, UINT), OnAppCommand)
#define ON_WM_PRINTCLIENT() AFX_WM_ENTRY(WM_PRINTCLIENT, AfxSig_l_d_u, LRESULT, (CDC*, UINT), OnPrintClient)
#define ON_WM_THEMECHANGED() AFX_WM_ENTRY(WM_THEMECHANGED, AfxSig_lv, LRESULT, (), OnThemeChanged)
#define ON_WM_QUERYENDSESSION() AFX_WM_ENTRY(WM_QUERYENDSESSION, AfxSig_bv, BOOL, (), OnQueryEndSession)
#define ON_WM_QUERYOPEN() AFX_WM_ENTRY(WM_QUERYOPEN, AfxSig_bv, BOOL, (), OnQueryOpen)
#define ON_WM_QUERYNEWPALETTE() AFX_WM_ENTRY(WM_QUERYNEWPALETTE, AfxSig_bv, BOOL, (), OnQueryNewPalette)
#define ON_WM_NCACTIVATE() AFX_WM_ENTRY(WM_NCACTIVATE, AfxSig_b_b, BOOL, (BOOL), OnNcActivate)
#define ON_WM_NCCREATE() AFX_WM_ENTRY(WM_NCCREATE, AfxSig_b_p, BOOL, (LPCREATESTRUCT), OnNcCreate)
#define ON_WM_HELPINFO() AFX_WM_ENTRY(WM_HELP, AfxSig_b_p, BOOL, (HELPINFO*), OnHelpInfo)
#define ON_WM_COPYDATA() AFX_WM_ENTRY(WM_COPYDATA, AfxSig_b_w_p, BOOL, (CWnd*, COPYDATASTRUCT*), OnCopyData)
#define ON_WM_DEVICECHANGE() AFX_WM_ENTRY(WM_DEVICECHANGE, AfxSig_b_u_l, BOOL, (UINT, DWORD_PTR), OnDeviceChange)
#define ON_WM_ERASEBKGND() AFX_WM_ENTRY(WM_ERASEBKGND, AfxSig_b_d, BOOL, (CDC*), OnEraseBkgnd)
#define ON_WM_SETCURSOR() AFX_WM_ENTRY(WM_SETCURSOR, AfxSig_b_w_u_u, BOOL, (CWnd*, UINT, UINT), OnSetCursor)
#define ON_WM_MOUSEACTIVATE() AFX_WM_ENTRY(WM_MOUSEACTIVATE, AfxSig_i_w_u_u, int, (CWnd*, UINT, UINT), OnMouseActivate)
#define ON_WM_MOUSEWHEEL() AFX_WM_ENTRY(WM_MOUSEWHEEL, AfxSig_b_wheel, BOOL, (UINT, short, CPoint), OnMouseWheel)
#define ON_WM_MOUSEHWHEEL() AFX_WM_ENTRY(WM_MOUSEHWHEEL, AfxSig_v_wheel, void, (UINT, short, CPoint), OnMouseHWheel)
#define ON_WM_CREATE() AFX_WM_ENTRY(WM_CREATE, AfxSig_i_p, int, (LPCREATESTRUCT), OnCreate)
#define ON_WM_COMPAREITEM() AFX_WM_ENTRY(WM_COMPAREITEM, AfxSig_i_i_p, int, (int, LPCOMPAREITEMSTRUCT), OnCompareItem)
#define ON_WM_CHARTOITEM() AFX_WM_ENTRY(WM_CHARTOITEM, AfxSig_i_listkey, int, (UINT, CListBox*, UINT), OnCharToItem)
#define ON_WM_VKEYTOITEM() AFX_WM_ENTRY(WM_VKEYTOITEM, AfxSig_i_listkey, int, (UINT, CListBox*, UINT), OnVKeyToItem)
#define ON_WM_GETDLGCODE() AFX_WM_ENTRY(WM_GETDLGCODE, AfxSig_uv, UINT, (), OnGetDlgCode)
#define ON_WM_QUERYUISTATE() AFX_WM_ENTRY(WM_QUERYUISTATE, AfxSig_uv, UINT, (), OnQueryUIState)
#define ON_WM_POWERBROADCAST() AFX_WM_ENTRY(WM_POWERBROADCAST, AfxSig_u_u_l, UINT, (UINT, LPARAM), OnPowerBroadcast)
#define ON_WM_NOTIFYFORMAT() AFX_WM_ENTRY(WM_NOTIFYFORMAT, AfxSig_u_w_u, UINT, (CWnd*, UINT), OnNotifyFormat)
#define ON_WM_MENUDRAG() AFX_WM_ENTRY(WM_MENUDRAG, AfxSig_u_u_m, UINT, (UINT, CMenu*), OnMenuDrag)
#define ON_WM_MENUGETOBJECT() AFX_WM_ENTRY(WM_MENUGETOBJECT, AfxSig_u_p, UINT, (MENUGETOBJECTINFO*), OnMenuGetObject)
#define ON_WM_NCHITTEST() AFX_WM_ENTRY(WM_NCHITTEST, AfxSig_l_P, LRESULT, (CPoint), OnNcHitTest)
#define ON_WM_MENUCHAR() AFX_WM_ENTRY(WM_MENUCHAR, AfxSig_l_menuchar, LRESULT, (UINT, UINT, CMenu*), OnMenuChar)
#define ON_WM_QUERYDRAGICON() AFX_WM_ENTRY(WM_QUERYDRAGICON, AfxSig_hv, HCURSOR, (), OnQueryDragIcon)
#define ON_WM_CTLCOLOR() AFX_WM_ENTRY(WM_CTLCOLOR, AfxSig_h_ctlcolor, HBRUSH, (CDC*, CWnd*, UINT), OnCtlColor)

// In the map of the control itself.
#define ON_WM_CTLCOLOR_REFLECT()                                                                                       \
    AFX_WM_ENTRY(WM_REFLECT_BASE + WM_CTLCOLOR, AfxSig_h_ctlcolor_reflect, HBRUSH, (CDC*, UINT), CtlColor)
#define ON_WM_HSCROLL_REFLECT() AFX_WM_ENTRY(WM_REFLECT_BASE + WM_HSCROLL, AfxSig_v_words, void, (UINT, UINT), HScroll)
#define ON_WM_VSCROLL_REFLECT() AFX_WM_ENTRY(WM_REFLECT_BASE + WM_VSCROLL, AfxSig_v_words, void, (UINT, UINT), VScroll)
#define ON_WM_DRAWITEM_REFLECT()                                                                                       \
    AFX_WM_ENTRY(WM_REFLECT_BASE + WM_DRAWITEM, AfxSig_v_p_reflect, void, (LPDRAWITEMSTRUCT), DrawItem)
#define ON_WM_MEASUREITEM_REFLECT()                                                                                    \
    AFX_WM_ENTRY(WM_REFLECT_BASE + WM_MEASUREITEM, AfxSig_v_p_reflect, void, (LPMEASUREITEMSTRUCT), MeasureItem)
#define ON_WM_DELETEITEM_REFLECT()                                                                                     \
    AFX_WM_ENTRY(WM_REFLECT_BASE + WM_DELETEITEM, AfxSig_v_p_reflect, void, (LPDELETEITEMSTRUCT), DeleteItem)
#define ON_WM_COMPAREITEM_REFLECT()                                                                                    \
    AFX_WM_ENTRY(WM_REFLECT_BASE + WM_COMPAREITEM, AfxSig_i_p_reflect, int, (LPCOMPAREITEMSTRUCT), CompareItem)
#define ON_WM_CHARTOITEM_REFLECT()                                                                                     \
    AFX_WM_ENTRY(WM_REFLECT_BASE + WM_CHARTOITEM, AfxSig_i_listkey_reflect, int, (UINT, UINT), CharToItem)
#define ON_WM_VKEYTOITEM_REFLECT()                                                                                     \
    AFX_WM_ENTRY(WM_REFLECT_BASE + WM_VKEYTOITEM, AfxSig_i_listkey_reflect, int, (UINT, UINT), VKeyToItem)
#define ON_WM_PARENTNOTIFY_REFLECT()                                                                                   \
    AFX_WM_ENTRY(WM_REFLECT_BASE + WM_PARENTNOTIFY, AfxSig_v_parent, void, (UINT, LPARAM), ParentNotify)
