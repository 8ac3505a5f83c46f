// The ways of messages and commands: map entries, routing, reflection, the update of menus.
#include "afx_test_app.h"

#include <afxcmn.h>
#include <afxpriv.h>

using testing::ElementsAre;
using Texts = std::vector<std::string>;

namespace {

UINT registered = ::RegisterWindowMessage("afx_command_test");

template <class... Numbers> std::string text(const char* name, Numbers... numbers) {
    std::string all = name;
    ((all += " " + std::to_string(numbers)), ...);
    return all;
}

// Writes down each message as its handler sees it.
struct unpacker : CWnd {
    Texts log;
    using CWnd::WindowProc;

    template <class... Numbers> void note(const char* name, Numbers... numbers) {
        log.push_back(text(name, numbers...));
    }
    int is(CWnd* wnd) { return wnd == this; }
    void OnMove(int x, int y) { note("move", x, y); }
    void OnKeyDown(UINT key, UINT count, UINT flags) { note("key", key, count, flags); }
    void OnNcLButtonDown(UINT hit, CPoint at) { note("nc", hit, at.x, at.y); }
    void OnActivate(UINT state, CWnd* other, BOOL minimized) { note("activate", state, is(other), minimized); }
    void OnShowWindow(BOOL show, UINT status) { note("show", show, status); }
    void OnCaptureChanged(CWnd* wnd) { note("capture", is(wnd)); }
    void OnContextMenu(CWnd* wnd, CPoint at) { note("context", is(wnd), at.x, at.y); }
    void OnSysCommand(UINT id, LPARAM at) { note("sys", id, at); }
    BOOL OnSetCursor(CWnd* wnd, UINT hit, UINT message) { return note("cursor", is(wnd), hit, message), TRUE; }
    int OnMouseActivate(CWnd* top, UINT hit, UINT message) { return note("click", is(top), hit, message), 3; }
    BOOL OnNcActivate(BOOL active) { return note("ncactivate", active), TRUE; }
    UINT OnGetDlgCode() { return note("code"), DLGC_WANTARROWS; }
    BOOL OnQueryEndSession() { return note("query"), FALSE; }
    BOOL OnMouseWheel(UINT flags, short delta, CPoint at) { return note("wheel", flags, delta, at.y), TRUE; }
    void OnInitMenuPopup(CMenu*, UINT index, BOOL system) { note("popup", index, system); }
    void OnGetMinMaxInfo(MINMAXINFO* info) { info->ptMinTrackSize = {11, 12}; }
    void OnTimer(UINT_PTR id) { note("timer", id); }
    void OnSettingChange(UINT flags, LPCTSTR section) { log.push_back(text("setting", flags) + " " + section); }
    BOOL OnCopyData(CWnd* from, COPYDATASTRUCT* data) { return note("copy", is(from), data->cbData), TRUE; }
    void OnDisplayChange(UINT depth, int cx, int cy) { note("display", depth, cx, cy); }
    void OnParentNotify(UINT message, LPARAM) { note("parent", LOWORD(message), HIWORD(message)); }
    void OnNcXButtonDown(short hit, UINT button, CPoint at) { note("ncx", hit, button, at.x); }
    void OnXButtonUp(UINT keys, UINT button, CPoint at) { note("x", keys, button, at.y); }
    void OnChangeUIState(UINT action, UINT element) { note("state", action, element); }
    void OnMouseHWheel(UINT flags, short delta, CPoint at) { note("hwheel", flags, delta, at.x); }
    void OnAppCommand(CWnd* wnd, UINT id, UINT device, UINT keys) { note("app", is(wnd), id, device, keys); }
    void OnInputLangChange(UINT set, UINT layout) { note("language", set, layout); }
    void OnSessionChange(UINT state, UINT id) { note("session", state, id); }
    UINT OnMenuDrag(UINT at, CMenu* menu) { return note("drag", at, menu == nullptr), MND_ENDMENU; }
    LRESULT OnOwn(WPARAM w, LPARAM l) { return note("own", w, l), 42; }
    // This and the next as older programs do.
    LONG OnRegistered(UINT w, LONG l) { return note("registered", w, l), -43; }
    UINT OnNcHitTest(CPoint at) { return note("hit", at.x), static_cast<UINT>(HTTRANSPARENT); }
    void OnSilent(WPARAM w) { note("silent", w), ::SetLastError(7); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(unpacker, CWnd)
ON_WM_MOVE()
ON_WM_KEYDOWN()
ON_WM_NCLBUTTONDOWN()
ON_WM_ACTIVATE()
ON_WM_SHOWWINDOW()
ON_WM_CAPTURECHANGED()
ON_WM_CONTEXTMENU()
ON_WM_SYSCOMMAND()
ON_WM_SETCURSOR()
ON_WM_MOUSEACTIVATE()
ON_WM_NCACTIVATE()
ON_WM_GETDLGCODE()
ON_WM_QUERYENDSESSION()
ON_WM_MOUSEWHEEL()
ON_WM_INITMENUPOPUP()
ON_WM_GETMINMAXINFO()
ON_WM_TIMER()
ON_WM_SETTINGCHANGE()
ON_WM_COPYDATA()
ON_WM_DISPLAYCHANGE()
ON_WM_PARENTNOTIFY()
ON_WM_NCXBUTTONDOWN()
ON_WM_XBUTTONUP()
ON_WM_CHANGEUISTATE()
ON_WM_MOUSEHWHEEL()
ON_WM_APPCOMMAND()
ON_WM_INPUTLANGCHANGE()
ON_WM_WTSSESSION_CHANGE()
ON_WM_MENUDRAG()
#ifdef __clang__
ON_MESSAGE(WM_USER + 3, &unpacker::OnOwn)
#else
ON_MESSAGE(WM_USER + 3, OnOwn) // the older way to name a handler, which not every compiler takes
#endif
ON_REGISTERED_MESSAGE(registered, &unpacker::OnRegistered)
ON_WM_NCHITTEST()
ON_MESSAGE(WM_USER + 4, &unpacker::OnSilent)
END_MESSAGE_MAP()

TEST(AfxMessageMap, HandlersSeeTheParametersOfTheirMessages) {
    unpacker wnd;
    ASSERT_TRUE(create_popup(wnd));
    const auto self = reinterpret_cast<LPARAM>(wnd.m_hWnd);
    COPYDATASTRUCT data{0, 5, nullptr};
    const LPARAM point = MAKELPARAM(-3, 4);
    const std::tuple<UINT, WPARAM, LPARAM, const char*, LRESULT> cases[] = {
        {WM_MOVE, 0, point, "move -3 4", 0},
        {WM_KEYDOWN, VK_UP, MAKELPARAM(1, 0x148), "key 38 1 328", 0},
        {WM_NCLBUTTONDOWN, HTCAPTION, point, "nc 2 -3 4", 0},
        {WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1), self, "activate 2 1 1", 0},
        {WM_SHOWWINDOW, TRUE, SW_PARENTOPENING, "show 1 3", 0},
        {WM_CAPTURECHANGED, 0, self, "capture 1", 0},
        {WM_CONTEXTMENU, static_cast<WPARAM>(self), -1, "context 1 -1 -1", 0},
        {WM_SYSCOMMAND, SC_KEYMENU, 'x', "sys 61696 120", 0},
        {WM_SETCURSOR, static_cast<WPARAM>(self), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE), "cursor 1 1 512", 1},
        {WM_MOUSEACTIVATE, static_cast<WPARAM>(self), MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN), "click 1 1 513", 3},
        {WM_NCACTIVATE, TRUE, 0, "ncactivate 1", 1},
        {WM_GETDLGCODE, 0, 0, "code", DLGC_WANTARROWS},
        {WM_QUERYENDSESSION, 0, 0, "query", 0},
        {WM_MOUSEWHEEL, MAKEWPARAM(MK_SHIFT, -120), point, "wheel 4 -120 4", 1},
        {WM_INITMENUPOPUP, 0, MAKELPARAM(2, 1), "popup 2 1", 0},
        {WM_TIMER, 0x123456789, 0, "timer 4886718345", 0},
        {WM_SETTINGCHANGE, 9, reinterpret_cast<LPARAM>("intl"), "setting 9 intl", 0},
        {WM_COPYDATA, static_cast<WPARAM>(self), reinterpret_cast<LPARAM>(&data), "copy 1 5", 1},
        {WM_DISPLAYCHANGE, 32, MAKELPARAM(640, 480), "display 32 640 480", 0},
        {WM_PARENTNOTIFY, MAKEWPARAM(WM_LBUTTONDOWN, 9), point, "parent 513 9", 0},
        {WM_NCXBUTTONDOWN, MAKEWPARAM(HTTRANSPARENT, XBUTTON2), point, "ncx -1 2 -3", 1},
        {WM_XBUTTONUP, MAKEWPARAM(MK_CONTROL, XBUTTON2), point, "x 8 2 4", 1},
        {WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0, "state 2 1", 0},
        {WM_MOUSEHWHEEL, MAKEWPARAM(MK_SHIFT, -120), point, "hwheel 4 -120 -3", 0},
        {WM_APPCOMMAND, static_cast<WPARAM>(self), MAKELPARAM(MK_CONTROL, FAPPCOMMAND_MOUSE | 8), "app 1 8 32768 8", 1},
        {WM_INPUTLANGCHANGE, 1, 0x4190409, "language 1 68748297", 1},
        {WM_WTSSESSION_CHANGE, WTS_SESSION_LOCK, 0x12345, "session 7 74565", 0},
        {WM_MENUDRAG, 3, 0, "drag 3 1", MND_ENDMENU},
        {WM_USER + 3, 5, -6, "own 5 -6", 42},
        {registered, 8, -9, "registered 8 -9", -43},
        {WM_NCHITTEST, 0, point, "hit -3", HTTRANSPARENT},
        {WM_USER + 4, 6, 0, "silent 6", 0},
    };
    for (const auto& [message, w, l, seen, answer] : cases) {
        wnd.log.clear();
        EXPECT_EQ(wnd.WindowProc(message, w, l), answer) << seen;
        EXPECT_THAT(wnd.log, ElementsAre(seen));
    }
    MINMAXINFO info{};
    wnd.SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(info.ptMinTrackSize.y, 12);
    EXPECT_EQ(wnd.SendMessage(registered + 1) + wnd.SendMessage(0xC000), 0) << "other registered messages";
    wnd.log.clear();
    EXPECT_THROW(wnd.WindowProc(registered, 0, 0x123456789A), CNotSupportedException*) << "a pointer, perhaps";
    EXPECT_THROW(wnd.WindowProc(registered, 0x123456789A, 0), CNotSupportedException*);
    EXPECT_THAT(wnd.log, ElementsAre());
}

// Commands by range, with an answer, and their updates.
struct commander : CWnd {
    Texts log;
    BOOL handled = FALSE;
    bool enabled = true;

    void OnRange(UINT id) { log.push_back(text("range", id)); }
    BOOL OnMaybe(UINT id) { return log.push_back(text("maybe", id)), handled; }
    void OnPlain() { log.push_back("plain"); }
    void OnTimer(UINT id) { log.push_back(text("timer", id)); } // as older programs write it
    void OnUpdate(CCmdUI* item) { item->Enable(enabled); }
    void OnPass(CCmdUI* item) { log.push_back("pass"), item->ContinueRouting(); }
    void OnControl(UINT id) { log.push_back(text("control", id)); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(commander, CWnd)
ON_COMMAND_RANGE(100, 110, &commander::OnRange)
ON_COMMAND_EX(200, &commander::OnMaybe)
ON_COMMAND(201, &commander::OnPlain)
ON_UPDATE_COMMAND_UI(201, &commander::OnUpdate)
ON_UPDATE_COMMAND_UI_RANGE(300, 301, &commander::OnPass)
ON_WM_TIMER()
ON_CONTROL_RANGE(EN_CHANGE, 500, 501, &commander::OnControl)
END_MESSAGE_MAP()

TEST(AfxCommands, AreHandledByRangeAndAnswer) {
    commander wnd;
    ASSERT_TRUE(create_popup(wnd));
    const auto command = [&](WORD id, WORD code = 0, HWND control = nullptr) {
        return wnd.SendMessage(WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(control));
    };
    for (const WORD id : {100, 110, 111})
        EXPECT_EQ(command(id), id < 111) << id;
    EXPECT_EQ(command(200), 0) << "the handler wants it to go on";
    wnd.handled = TRUE;
    EXPECT_EQ(command(200), 1);
    EXPECT_EQ(command(201), 1);
    EXPECT_EQ(command(201, 1), 1) << "from an accelerator";
    wnd.enabled = false;
    EXPECT_EQ(command(201), 1) << "disabled: not for anybody else, either";
    EXPECT_EQ(command(501, EN_CHANGE, wnd), 1);
    EXPECT_EQ(command(501, EN_UPDATE, wnd) + command(501, EN_CHANGE), 0);
    wnd.SendMessage(WM_TIMER, 77);
    EXPECT_THAT(wnd.log, ElementsAre("range 100", "range 110", "maybe 200", "maybe 200", "plain", "plain",
                                     "control 501", "timer 77"));

    wnd.log.clear();
    CCmdUI item;
    item.m_nID = 300;
    EXPECT_FALSE(wnd.OnCmdMsg(300, CN_UPDATE_COMMAND_UI, &item, nullptr)) << "continued";
    EXPECT_THAT(wnd.log, ElementsAre("pass"));
    AFX_CMDHANDLERINFO info{};
    EXPECT_TRUE(wnd.OnCmdMsg(201, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &wnd);
    const struct {
        DLGTEMPLATE head;
        WORD menu, name, title;
    } form = {{WS_POPUP, 0, 0, 0, 0, 20, 20}, 0, 0, 0};
    CDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(&form.head, &wnd));
    EXPECT_FALSE(dialog.OnCmdMsg(201, CN_COMMAND, nullptr, &info)) << "the number of a control";
}

// A control that sees to its own notifications.
struct selfish : CWnd {
    Texts log;
    BOOL keeps = TRUE;

    BOOL OnClicked() { return log.push_back("clicked"), keeps; }
    void OnNotified(NMHDR*, LRESULT* result) { log.push_back("notified"), *result = 5; }
    HBRUSH CtlColor(CDC* dc, UINT kind) {
        log.push_back(text("color", kind));
        return keeps && dc != nullptr ? static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)) : nullptr;
    }
    void HScroll(UINT code, UINT position) { log.push_back(text("scroll", code, position)); }
    void DrawItem(LPDRAWITEMSTRUCT item) { log.push_back(text("draw", item->itemID)); }
    int CompareItem(LPCOMPAREITEMSTRUCT) { return log.push_back("compare"), -1; }
    void OnUpdateSelf(CCmdUI* item) { log.push_back("update"), item->Enable(FALSE); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(selfish, CWnd)
ON_CONTROL_REFLECT_EX(BN_CLICKED, &selfish::OnClicked)
ON_NOTIFY_REFLECT(NM_CLICK, &selfish::OnNotified)
ON_WM_CTLCOLOR_REFLECT()
ON_WM_HSCROLL_REFLECT()
ON_WM_DRAWITEM_REFLECT()
ON_WM_COMPAREITEM_REFLECT()
ON_UPDATE_COMMAND_UI_REFLECT(&selfish::OnUpdateSelf)
END_MESSAGE_MAP()

TEST(AfxReflection, GivesAControlItsMessagesBeforeItsParent) {
    CWnd parent;
    ASSERT_TRUE(create_popup(parent));
    selfish control;
    ASSERT_TRUE(control.Create("BUTTON", "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 20, 20), &parent, 7));
    const auto from = reinterpret_cast<LPARAM>(control.m_hWnd);
    EXPECT_EQ(parent.SendMessage(WM_COMMAND, MAKEWPARAM(7, BN_CLICKED), from), 1);
    control.keeps = FALSE;
    EXPECT_EQ(parent.SendMessage(WM_COMMAND, MAKEWPARAM(7, BN_CLICKED), from), 0) << "the parent has no handler";
    NMHDR header{control.m_hWnd, 7, static_cast<UINT>(NM_CLICK)};
    EXPECT_EQ(parent.SendMessage(WM_NOTIFY, 7, reinterpret_cast<LPARAM>(&header)), 5);
    CClientDC dc(&parent);
    const auto hdc = reinterpret_cast<WPARAM>(dc.m_hDC);
    const auto colors = [&] { return parent.SendMessage(WM_CTLCOLORBTN, hdc, from); };
    EXPECT_EQ(colors(), ::DefWindowProc(parent, WM_CTLCOLORBTN, hdc, from)) << "no brush";
    control.keeps = TRUE;
    EXPECT_EQ(colors(), reinterpret_cast<LRESULT>(::GetStockObject(BLACK_BRUSH)));
    parent.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_LINEDOWN, 3), from);
    DRAWITEMSTRUCT draw{ODT_BUTTON, 0, 4, 0, 0, control.m_hWnd, nullptr, {}, 0};
    parent.SendMessage(WM_DRAWITEM, 7, reinterpret_cast<LPARAM>(&draw));
    COMPAREITEMSTRUCT compare{0, 0, control.m_hWnd, 0, 0, 0, 0, 0};
    EXPECT_EQ(parent.SendMessage(WM_COMPAREITEM, 7, reinterpret_cast<LPARAM>(&compare)), -1);
    CListCtrl list;
    ASSERT_TRUE(list.Create(WS_CHILD | LVS_REPORT, CRect(0, 0, 50, 50), &parent, 8));
    for (const UINT message : {WM_NOTIFY, WM_DRAWITEM, WM_MEASUREITEM, WM_DELETEITEM, WM_COMPAREITEM, WM_SIZEPARENT})
        for (CWnd* window : {static_cast<CWnd*>(&parent), static_cast<CWnd*>(&list)})
            EXPECT_EQ(window->SendMessage(message, 7, 0), 0) << "without its record";
    parent.SendMessage(WM_CTLCOLOR, 7, 0);
    parent.UpdateDialogControls(&parent, FALSE);
    EXPECT_FALSE(control.IsWindowEnabled());
    EXPECT_THAT(control.log, ElementsAre("clicked", "clicked", "notified", "color 3", "color 3", "scroll 1 3", "draw 4",
                                         "compare", "update"));
}

TEST(AfxExceptions, NewRaisesTheFrameworksOwn) {
    volatile std::size_t much = ~std::size_t(0) / 4;
    EXPECT_TRUE(raises<CMemoryException>([&] { delete[] new char[much]; }));
    EXPECT_EQ(new (std::nothrow) char[much], nullptr);
    EXPECT_TRUE(raises<CInvalidArgException>([&] { ENSURE(much == 0); }));
}

} // namespace
