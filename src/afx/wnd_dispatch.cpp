// Unpacks a window message's parameters for the handler that its map entry names.
#include "afx_menu.h"
#include "afx_wnd.h"
#include "message_map.h"

class CListBox;

namespace {

struct parameters {
    WPARAM w;
    LPARAM l;

    UINT word() const { return static_cast<UINT>(w); }
    UINT low_w() const { return LOWORD(w); }
    UINT high_w() const { return HIWORD(w); }
    UINT low_l() const { return LOWORD(l); }
    UINT high_l() const { return HIWORD(l); }
    int x() const { return static_cast<short>(LOWORD(l)); }
    int y() const { return static_cast<short>(HIWORD(l)); }
    CPoint point() const { return CPoint(l); }
    BOOL yes() const { return w != 0; }
    void* record() const { return reinterpret_cast<void*>(l); }
    CWnd* wnd_w() const { return CWnd::FromHandle(reinterpret_cast<HWND>(w)); }
    CWnd* wnd_l() const { return CWnd::FromHandle(reinterpret_cast<HWND>(l)); }
    CDC* dc() const { return CDC::FromHandle(reinterpret_cast<HDC>(w)); }
    CMenu* menu_w() const { return CMenu::FromHandle(reinterpret_cast<HMENU>(w)); }
    CMenu* menu_l() const { return CMenu::FromHandle(reinterpret_cast<HMENU>(l)); }
    // Programs know a bar or a list by its type whatever control sent the message; no more than CWnd's data is behind.
    CScrollBar* bar() const { return reinterpret_cast<CScrollBar*>(wnd_l()); }
    CListBox* list() const { return reinterpret_cast<CListBox*>(wnd_l()); }
};

template <class Result, class... Arguments>
Result call(CWnd* wnd, const AFX_MSGMAP_ENTRY& entry, Arguments... arguments) {
    return (wnd->*typed_handler<Result (CWnd::*)(Arguments...)>(entry))(arguments...);
}

template <class... Arguments> void tell(CWnd* wnd, const AFX_MSGMAP_ENTRY& entry, Arguments... arguments) {
    call<void, Arguments...>(wnd, entry, arguments...);
}

template <class Result, class... Arguments>
LRESULT ask(CWnd* wnd, const AFX_MSGMAP_ENTRY& entry, Arguments... arguments) {
    const Result result = call<Result, Arguments...>(wnd, entry, arguments...);
    if constexpr (std::is_pointer_v<Result>)
        return reinterpret_cast<LRESULT>(result);
    else
        return static_cast<LRESULT>(result);
}

// Messages of the mouse, the keyboard and the window's place.
bool tell_of_input(CWnd* wnd, const AFX_MSGMAP_ENTRY& entry, const parameters& p) {
    switch (entry.nSig) {
    case AfxSig_vv:
        return tell(wnd, entry), true;
    case AfxSig_v_i_i:
        return tell(wnd, entry, p.x(), p.y()), true;
    case AfxSig_v_size:
        return tell(wnd, entry, p.word(), p.x(), p.y()), true;
    case AfxSig_v_timer:
        return tell<UINT_PTR>(wnd, entry, p.w), true;
    case AfxSig_v_key:
        return tell(wnd, entry, p.word(), p.low_l(), p.high_l()), true;
    case AfxSig_v_u_P:
        return tell(wnd, entry, p.word(), p.point()), true;
    case AfxSig_v_xbutton:
        return tell(wnd, entry, p.low_w(), p.high_w(), p.point()), true;
    case AfxSig_v_ncxbutton:
        return tell<short, UINT, CPoint>(wnd, entry, static_cast<short>(p.low_w()), p.high_w(), p.point()), true;
    case AfxSig_v_wheel:
        return tell<UINT, short, CPoint>(wnd, entry, p.low_w(), static_cast<short>(p.high_w()), p.point()), true;
    case AfxSig_v_scroll:
        return tell(wnd, entry, p.low_w(), p.high_w(), p.bar()), true;
    case AfxSig_v_words:
        return tell(wnd, entry, p.low_w(), p.high_w()), true;
    case AfxSig_v_drop:
        return tell(wnd, entry, reinterpret_cast<HDROP>(p.w)), true;
    case AfxSig_v_parent:
        return tell<UINT, LPARAM>(wnd, entry, p.word(), p.l), true;
    default:
        return false;
    }
}

// Messages with plain values and records.
bool tell_of_values(CWnd* wnd, const AFX_MSGMAP_ENTRY& entry, const parameters& p) {
    switch (entry.nSig) {
    case AfxSig_v_b:
        return tell<BOOL>(wnd, entry, p.yes()), true;
    case AfxSig_v_b_u:
        return tell<BOOL, UINT_PTR>(wnd, entry, p.yes(), static_cast<UINT>(p.l)), true; // older handlers take a handle
    case AfxSig_v_u:
        return tell(wnd, entry, p.word()), true;
    case AfxSig_v_u_u:
        return tell(wnd, entry, p.word(), p.low_l()), true;
    case AfxSig_v_u_l:
        return tell<UINT, LPARAM>(wnd, entry, p.word(), p.l), true;
    case AfxSig_v_u_d:
        return tell<UINT, DWORD>(wnd, entry, p.word(), static_cast<DWORD>(p.l)), true;
    case AfxSig_v_u_b:
        return tell<UINT, BOOL>(wnd, entry, p.word(), p.l != 0), true;
    case AfxSig_v_u_s:
    case AfxSig_v_u_p:
        return tell(wnd, entry, p.word(), p.record()), true;
    case AfxSig_v_i_p:
        return tell(wnd, entry, static_cast<int>(p.w), p.record()), true;
    case AfxSig_v_s:
    case AfxSig_v_p:
    case AfxSig_v_p_reflect:
        return tell(wnd, entry, p.record()), true;
    default:
        return false;
    }
}

// Messages that name windows, menus and device contexts.
void tell_of_objects(CWnd* wnd, const AFX_MSGMAP_ENTRY& entry, const parameters& p) {
    switch (entry.nSig) {
    case AfxSig_v_w_from_w:
        return tell(wnd, entry, p.wnd_w());
    case AfxSig_v_w_from_l:
        return tell(wnd, entry, p.wnd_l());
    case AfxSig_v_w_P:
        return tell(wnd, entry, p.wnd_w(), p.point());
    case AfxSig_v_w_h:
        return tell(wnd, entry, p.wnd_w(), p.record());
    case AfxSig_v_w_u_u:
        return tell(wnd, entry, p.wnd_w(), p.low_l(), p.high_l());
    case AfxSig_v_h_h:
        return tell(wnd, entry, reinterpret_cast<HWND>(p.w), reinterpret_cast<HWND>(p.l));
    case AfxSig_v_u_w:
        return tell(wnd, entry, p.word(), p.wnd_l());
    case AfxSig_v_d:
        return tell(wnd, entry, p.dc());
    case AfxSig_v_activate:
        return tell<UINT, CWnd*, BOOL>(wnd, entry, p.low_w(), p.wnd_l(), p.high_w() != 0);
    case AfxSig_v_mdiactivate: // the window that is told is the one that becomes active, or not
        return tell<BOOL, CWnd*, CWnd*>(wnd, entry, p.wnd_l() == wnd, p.wnd_l(), p.wnd_w());
    case AfxSig_v_m:
        return tell(wnd, entry, p.menu_w());
    case AfxSig_v_m_u:
        return tell(wnd, entry, p.menu_w(), p.high_l());
    case AfxSig_v_m_u_b:
        return tell<CMenu*, UINT, BOOL>(wnd, entry, p.menu_w(), p.low_l(), p.high_l() != 0);
    case AfxSig_v_u_m:
        return tell(wnd, entry, p.word(), p.menu_l());
    case AfxSig_v_appcommand: // the command's word also tells which device it comes from
        return tell<CWnd*, UINT, UINT, UINT>(wnd, entry, p.wnd_w(), p.high_l() & ~UINT{FAPPCOMMAND_MASK},
                                             p.high_l() & UINT{FAPPCOMMAND_MASK}, p.low_l());
    case AfxSig_v_menuselect:
        return tell(wnd, entry, p.low_w(), p.high_w(), reinterpret_cast<HMENU>(p.l));
    default:
        return;
    }
}

LRESULT ask_color(CWnd* wnd, const AFX_MSGMAP_ENTRY& entry, const parameters& p) {
    const auto& color = *static_cast<const AFX_CTLCOLOR*>(p.record());
    CDC* dc = CDC::FromHandle(color.hDC);
    return entry.nSig == AfxSig_h_ctlcolor ? ask<HBRUSH>(wnd, entry, dc, CWnd::FromHandle(color.hWnd), color.nCtlType)
                                           : ask<HBRUSH>(wnd, entry, dc, color.nCtlType);
}

LRESULT tell_or_ignore(CWnd* wnd, const AFX_MSGMAP_ENTRY& entry, const parameters& p) {
    if (!tell_of_input(wnd, entry, p) && !tell_of_values(wnd, entry, p))
        tell_of_objects(wnd, entry, p);
    // Who sends these wants to know that they were seen.
    return entry.nSig == AfxSig_v_appcommand || entry.nSig == AfxSig_v_xbutton || entry.nSig == AfxSig_v_ncxbutton ||
           entry.nMessage == WM_INPUTLANGCHANGE;
}

LRESULT dispatch(CWnd* wnd, const AFX_MSGMAP_ENTRY& entry, const parameters& p) {
    if (entry.nMessage == first_registered_message)
        return ask<LRESULT, WPARAM, LPARAM>(wnd, entry, p.w, p.l);
    switch (entry.nSig) {
    case AfxSig_l_w_l:
        return ask<LRESULT, WPARAM, LPARAM>(wnd, entry, p.w, p.l);
    case AfxSig_l_d_u:
        return ask<LRESULT>(wnd, entry, p.dc(), static_cast<UINT>(p.l));
    case AfxSig_lv:
        return ask<LRESULT>(wnd, entry);
    case AfxSig_bv:
        return ask<BOOL>(wnd, entry);
    case AfxSig_b_b:
        return ask<BOOL, BOOL>(wnd, entry, p.yes());
    case AfxSig_b_p:
    case AfxSig_i_p:
    case AfxSig_i_p_reflect:
        return ask<int>(wnd, entry, p.record());
    case AfxSig_b_w_p:
        return ask<BOOL>(wnd, entry, p.wnd_w(), p.record());
    case AfxSig_b_u_l:
        return ask<BOOL, UINT, DWORD_PTR>(wnd, entry, p.word(), static_cast<DWORD_PTR>(p.l));
    case AfxSig_b_d:
        return ask<BOOL>(wnd, entry, p.dc());
    case AfxSig_b_w_u_u:
    case AfxSig_i_w_u_u:
        return ask<int>(wnd, entry, p.wnd_w(), p.low_l(), p.high_l());
    case AfxSig_b_wheel:
        return ask<BOOL>(wnd, entry, p.low_w(), static_cast<short>(p.high_w()), p.point());
    case AfxSig_i_i_p:
        return ask<int>(wnd, entry, static_cast<int>(p.w), p.record());
    case AfxSig_i_listkey:
        return ask<int>(wnd, entry, p.low_w(), p.list(), p.high_w());
    case AfxSig_i_listkey_reflect:
        return ask<int>(wnd, entry, p.low_w(), p.high_w());
    case AfxSig_uv:
        return ask<UINT>(wnd, entry);
    case AfxSig_u_u_l:
        return ask<UINT, UINT, LPARAM>(wnd, entry, p.word(), p.l);
    case AfxSig_u_w_u:
        return ask<UINT>(wnd, entry, p.wnd_w(), static_cast<UINT>(p.l));
    case AfxSig_u_u_m:
        return ask<UINT>(wnd, entry, p.word(), p.menu_l());
    case AfxSig_u_p:
        return ask<UINT>(wnd, entry, p.record());
    case AfxSig_l_P:
        return ask<LRESULT>(wnd, entry, p.point());
    case AfxSig_l_menuchar:
        return ask<LRESULT>(wnd, entry, p.low_w(), p.high_w(), p.menu_l());
    case AfxSig_hv:
        return ask<HCURSOR>(wnd, entry);
    case AfxSig_h_ctlcolor:
    case AfxSig_h_ctlcolor_reflect:
        return ask_color(wnd, entry, p);
    default:
        return tell_or_ignore(wnd, entry, p);
    }
}

} // namespace

LRESULT CWnd::DispatchEntry(const AFX_MSGMAP_ENTRY& entry, WPARAM wParam, LPARAM lParam) {
    refuse_what_is_cut(entry, wParam, lParam);
    const LRESULT result = dispatch(this, entry, {wParam, lParam});
    const UINT read_as = entry.nCode & (AfxNarrow_w - 1);
    if (read_as == AfxResult_none)
        return 0;
    return read_as == AfxResult_int ? static_cast<int>(result) : result; // HTTRANSPARENT stays -1
}
