#include <zopwnt.h>

#include <afxpriv.h>

#include <gmock/gmock.h>

#include "temporary_file.h"
#include "widget_window.h"

namespace {

constexpr COLORREF red = RGB(255, 0, 0), green = RGB(0, 255, 0), key_colour = RGB(255, 0, 255);

using testing::ElementsAre;

// Owner of bars: keeps commands and notifications, and tells states.
class ToolHost : public CWnd {
public:
    std::vector<UINT> commands;
    std::vector<UINT> told;
    std::function<void(UINT)> on_command = [](UINT) {};
    std::function<LRESULT(WntToolNotify&)> answer = [](WntToolNotify&) { return 0; };
    std::function<void(CCmdUI&)> state = [](CCmdUI& ui) { ui.Enable(); };

    afx_msg void OnTool(UINT id) {
        commands.push_back(id);
        on_command(id);
    }
    afx_msg void OnUpdateTool(CCmdUI* ui) { state(*ui); }

protected:
    BOOL OnNotify(WPARAM, LPARAM lParam, LRESULT* result) override {
        auto& header = *reinterpret_cast<NMHDR*>(lParam);
        if (header.code < WNT_TOOL_DROPPING || header.code > WNT_TOOL_MOVED)
            return FALSE;
        told.push_back(header.code);
        *result = answer(reinterpret_cast<WntToolNotify&>(header));
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ToolHost, CWnd)
ON_COMMAND_RANGE(100, 199, &ToolHost::OnTool)
ON_UPDATE_COMMAND_UI_RANGE(100, 149, &ToolHost::OnUpdateTool)
END_MESSAGE_MAP()

// A strip of plain squares.
HBITMAP strip(int size, std::initializer_list<COLORREF> colours) {
    Picture picture(size * static_cast<int>(colours.size()), size);
    int x = 0;
    const HDC screen = ::GetDC(nullptr);
    const HDC dc = ::CreateCompatibleDC(screen);
    const HBITMAP bitmap = ::CreateCompatibleBitmap(screen, picture.width(), size);
    const HGDIOBJ before = ::SelectObject(dc, bitmap);
    for (const COLORREF colour : colours) {
        const RECT square = {x, 0, x += size, size};
        const HBRUSH brush = ::CreateSolidBrush(colour);
        ::FillRect(dc, &square, brush);
        ::DeleteObject(brush);
    }
    ::SelectObject(dc, before);
    ::DeleteDC(dc);
    ::ReleaseDC(nullptr, screen);
    return bitmap;
}

class ToolBar : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(host_.CreateEx(WS_EX_TOPMOST, nullptr, "host", WS_POPUP, CRect(50, 50, 650, 450), nullptr, 0));
        host_.ShowWindow(SW_SHOW);
        ASSERT_TRUE(edit_.Create(WS_CHILD | WS_VISIBLE, CRect(0, 300, 50, 320), &host_, 50));
        open();
    }
    void TearDown() override {
        delete bar_;
        host_.DestroyWindow();
    }
    void open() {
        bar_ = new CWntToolBar;
        ASSERT_TRUE(bar_->Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 400, 26), &host_, 9));
        const HBITMAP pictures = strip(16, {red, green, key_colour});
        EXPECT_EQ(bar_->SetPictures(pictures, nullptr, key_colour), 1);
        ::DeleteObject(pictures);
    }
    void script(std::initializer_list<const char*> lines) {
        bar_->LoadLine("", 1);
        for (const char* line : lines)
            bar_->LoadLine(line, 0);
        bar_->LoadLine("", 2);
    }
    CRect place(UINT id) {
        CRect r;
        bar_->GetItemRect(bar_->FindItem(id), &r);
        return r;
    }
    void mouse(UINT message, CPoint at) { bar_->SendMessage(message, MK_LBUTTON, MAKELPARAM(at.x, at.y)); }
    void click(UINT id) {
        const CPoint at = place(id).CenterPoint();
        mouse(WM_LBUTTONDOWN, at);
        if (bar_)
            mouse(WM_LBUTTONUP, at);
    }
    void key(UINT k, UINT message = WM_KEYDOWN) { bar_->SendMessage(message, k, 1); }
    int checked(UINT id) {
        CWntToolItem item;
        EXPECT_TRUE(bar_->GetItem(bar_->FindItem(id), &item)) << id;
        return item.check + (item.enabled ? 0 : 10);
    }
    UINT focused() { return focused_in(pixels_of(*bar_)); }
    // The one whose dotted frame is seen.
    UINT focused_in(const Pixels& now) {
        for (const UINT id : {100u, 101u, 102u, 103u, 104u, 105u}) {
            const CRect r = place(id);
            if (r.IsRectEmpty())
                continue;
            int changes = 0;
            for (int x = r.left + 2; x < r.right - 2; ++x)
                changes += now.at(x, r.top + 1) != now.at(x - 1, r.top + 1);
            if (changes > r.Width() / 2)
                return id;
        }
        return 0;
    }
    // Opens a menu by `open`; while it is up, `seen` is given what it holds and keys are pressed.
    void with_menu(
        const std::function<void()>& open, std::initializer_list<UINT> keys,
        const std::function<void(HMENU)>& seen = [](HMENU) {}) {
        static const std::function<void(HMENU)>* watcher;
        static bool watched;
        watcher = &seen;
        watched = false;
        const HHOOK hook = ::SetWindowsHookExA(
            WH_CALLWNDPROC,
            [](int code, WPARAM wParam, LPARAM lParam) -> LRESULT {
                const auto& call = *reinterpret_cast<const CWPSTRUCT*>(lParam);
                if (code == HC_ACTION && call.message == WM_INITMENUPOPUP && !watched) {
                    watched = true;
                    (*watcher)(reinterpret_cast<HMENU>(call.wParam));
                }
                return ::CallNextHookEx(nullptr, code, wParam, lParam);
            },
            nullptr, ::GetCurrentThreadId());
        for (const UINT k : keys)
            ::PostMessageA(host_.m_hWnd, WM_KEYDOWN, k, 1);
        open();
        ::UnhookWindowsHookEx(hook);
        EXPECT_TRUE(watched);
        MSG rest;
        while (::PeekMessageA(&rest, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE)) {
        }
    }

    ToolHost host_;
    CEdit edit_;
    CWntToolBar* bar_ = nullptr;
};

TEST_F(ToolBar, SendsCommandsOfWhatIsPressed) {
    script({":ITEM=100,0", ":CHECK=101,1", ":RADIO=102", ":RADIO=103", ":SEPARATOR", ":ITEM=104,0", ":DISABLED=104"});
    for (const UINT id : {100u, 101u, 103u, 102u, 104u})
        click(id);
    EXPECT_THAT(host_.commands, ElementsAre(100u, 101u, 103u, 102u));
    EXPECT_TRUE(checked(101) == 1 && checked(102) == 1 && checked(103) == 0 && checked(104) == 10);
    mouse(WM_LBUTTONDOWN, place(100).CenterPoint());
    mouse(WM_MOUSEMOVE, CPoint(390, 10));
    mouse(WM_LBUTTONUP, CPoint(390, 10)); // let go elsewhere
    mouse(WM_LBUTTONDOWN, place(100).CenterPoint());
    ::ReleaseCapture();
    mouse(WM_LBUTTONUP, place(100).CenterPoint());
    EXPECT_EQ(host_.commands.size(), 4u);
    mouse(WM_LBUTTONDBLCLK, place(100).CenterPoint()); // the second click of two
    mouse(WM_LBUTTONUP, place(100).CenterPoint());
    EXPECT_EQ(host_.commands.size(), 5u);
    EXPECT_EQ(bar_->PressItem(101) + bar_->PressItem(104) + bar_->PressItem(999), 1);
    EXPECT_EQ(checked(101), 0);
}

TEST_F(ToolBar, CommandsPassTheLibrarysPanes) {
    CWntSash sash;
    ASSERT_TRUE(sash.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 40, 400, 200), &host_, 20));
    ASSERT_TRUE(sash.SetPanes(bar_, nullptr));
    script({":ITEM=100,0", ":ITEM=150,0", ":ITEM=250,0"});
    bar_->PressItem(100);
    EXPECT_THAT(host_.commands, ElementsAre(100u));
    host_.state = [](CCmdUI& ui) { ui.Enable(FALSE); };
    bar_->SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_TRUE(checked(100) == 10 && checked(150) == 0 && checked(250) == 10); // no handler: disabled
    sash.SetPanes(nullptr, nullptr);
    delete std::exchange(bar_, nullptr);
}

TEST_F(ToolBar, StatesComeFromUpdateHandlers) {
    script({":ITEM=100,0", ":CHECK=101,0", ":RADIO=102", ":RADIO=103", ":DROPDOWN=200,0"});
    host_.state = [](CCmdUI& ui) {
        ui.Enable(ui.m_nID != 100);
        if (ui.m_nID >= 102)
            ui.SetRadio(true);
        else
            ui.SetCheck(ui.m_nID == 101 ? 2 : 0);
        ui.SetText("not the item's");
    };
    full_repaint(*bar_);
    EXPECT_EQ(bar_->UpdateItems(), 1);
    EXPECT_TRUE(::GetUpdateRect(bar_->m_hWnd, nullptr, FALSE));
    EXPECT_TRUE(checked(100) == 10 && checked(101) == 2 && checked(102) == 1 && checked(103) == 1); // as it says
    EXPECT_EQ(checked(200), 0); // a menu needs no handler
    full_repaint(*bar_);
    bar_->UpdateItems();
    EXPECT_FALSE(::GetUpdateRect(bar_->m_hWnd, nullptr, FALSE)); // nothing new
    script({":ITEM=180,0"});
    bar_->SetAutoDisable(0);
    bar_->SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_EQ(checked(180), 0);
}

TEST_F(ToolBar, ShowsStatesOfItsItems) {
    script({":ITEM=100,0", ":ITEM=101,1", ":ITEM=102,2,key", ":CHECK=103,0", ":LABEL=Text"});
    full_repaint(*bar_);
    const Pixels plain = pixels_of(*bar_);
    EXPECT_EQ(plain.count(red), 2 * 16 * 16);
    EXPECT_TRUE(plain.count(green) == 16 * 16 && plain.count(key_colour) == 0);
    const CRect first = place(100);
    EXPECT_EQ(plain.at(first.left, first.top), ::GetSysColor(COLOR_BTNFACE));
    const auto after = [&](const std::function<void()>& change) {
        change();
        bar_->UpdateWindow();
        return pixels_of(*bar_);
    };
    const Pixels hot = after([&] { mouse(WM_MOUSEMOVE, first.CenterPoint()); });
    EXPECT_EQ(hot.at(first.left, first.top), RGB(255, 255, 255)); // lit from the upper left
    EXPECT_EQ(hot.at(first.left + 3, first.top + 3), red);
    const Pixels pressed = after([&] { mouse(WM_LBUTTONDOWN, first.CenterPoint()); });
    EXPECT_EQ(pressed.at(first.right - 1, first.bottom - 1), RGB(255, 255, 255));
    EXPECT_TRUE(pressed.at(first.left + 3, first.top + 3) != red && pressed.count(red) == plain.count(red)); // moved
    after([&] { ::ReleaseCapture(); });
    EXPECT_EQ(after([&] { bar_->SendMessage(WM_MOUSELEAVE); }), plain);
    const Pixels checked_one = after([&] { bar_->CheckItem(103, 1); });
    const CRect check = place(103);
    EXPECT_TRUE(checked_one.at(check.right - 1, check.bottom - 1) == RGB(255, 255, 255) &&
                checked_one.at(check.left + 1, check.top + 1) != plain.at(check.left + 1, check.top + 1));
    const Pixels disabled = after([&] { bar_->EnableItem(101, 0); });
    EXPECT_EQ(disabled.count(green), 0);
    const COLORREF grey = disabled.at(place(101).CenterPoint().x, place(101).CenterPoint().y);
    EXPECT_TRUE(GetRValue(grey) == GetGValue(grey) && GetGValue(grey) == GetBValue(grey));
    EXPECT_NE(after([&] { bar_->SetTextPlace(WNT_TOOL_TEXT_BESIDE); }), disabled);
    bar_->EnableWindow(FALSE);
    full_repaint(*bar_);
    EXPECT_EQ(pixels_of(*bar_).count(red), 0);
}

TEST_F(ToolBar, RepaintsOnlyWhatChanged) {
    script({":ITEM=100,0", ":CHECK=101,0", ":ITEM=102,0"});
    full_repaint(*bar_);
    {
        CClientDC dc(bar_);
        dc.FillSolidRect(CRect(0, 0, 400, 26), poison);
    }
    bar_->CheckItem(101, 1);
    bar_->UpdateWindow();
    const CRect check = place(101);
    EXPECT_EQ(pixels_of(*bar_).count(poison), 400 * 26 - check.Width() * check.Height());
    EXPECT_FALSE(::GetUpdateRect(bar_->m_hWnd, nullptr, FALSE));
    mouse(WM_MOUSEMOVE, CPoint(390, 20)); // over nothing
    bar_->CheckItem(101, 1);
    EXPECT_FALSE(::GetUpdateRect(bar_->m_hWnd, nullptr, FALSE));
}

TEST_F(ToolBar, TheKeyboardWorksIt) {
    script({":ITEM=100,0,one", ":DISABLED=100", ":SEPARATOR", ":CHECK=101,0,two", ":ITEM=102,0,three"});
    edit_.SetFocus();
    MSG f6 = {edit_.m_hWnd, WM_KEYDOWN, VK_F6, 1, 0, {}};
    EXPECT_EQ(bar_->FilterKey(&f6), 1);
    EXPECT_EQ(::GetFocus(), bar_->m_hWnd);
    full_repaint(*bar_);
    EXPECT_EQ(focused(), 101u); // the first that can be used
    CString tip;
    bar_->GetTips()->GetWindowText(tip);
    EXPECT_EQ(tip, "two");
    for (const auto& [k, id] : {std::pair{VK_RIGHT, 102u},
                                {VK_RIGHT, 101u},
                                {VK_LEFT, 102u},
                                {VK_HOME, 101u},
                                {VK_END, 102u},
                                {VK_UP, 102u}}) {
        key(static_cast<UINT>(k));
        bar_->UpdateWindow();
        EXPECT_EQ(focused(), id) << k;
    }
    key(VK_RETURN);
    key(VK_HOME);
    key(VK_SPACE);
    bar_->SendMessage(WM_KEYDOWN, VK_SPACE, 1 | (1 << 30)); // held down
    EXPECT_THAT(host_.commands, ElementsAre(102u, 101u));
    EXPECT_EQ(checked(101), 1);
    key(VK_ESCAPE);
    EXPECT_EQ(::GetFocus(), edit_.m_hWnd);
    full_repaint(*bar_);
    EXPECT_EQ(focused(), 0u);
    EXPECT_EQ(bar_->GetTips()->GetShownTip(nullptr), 0);
    bar_->SetFocus();
    f6.hwnd = bar_->m_hWnd;
    EXPECT_EQ(bar_->PreTranslateMessage(&f6), TRUE);
    EXPECT_EQ(::GetFocus(), edit_.m_hWnd);
    MSG enter = {bar_->m_hWnd, WM_KEYDOWN, VK_RETURN, 1, 0, {}}, tab = {bar_->m_hWnd, WM_KEYDOWN, VK_TAB, 1, 0, {}};
    EXPECT_TRUE(bar_->SendMessage(WM_GETDLGCODE, VK_RETURN, reinterpret_cast<LPARAM>(&enter)) & DLGC_WANTMESSAGE);
    EXPECT_FALSE(bar_->SendMessage(WM_GETDLGCODE, VK_TAB, reinterpret_cast<LPARAM>(&tab)) & DLGC_WANTMESSAGE);
    bar_->EnableItem(101, 0);
    bar_->EnableItem(102, 0);
    EXPECT_EQ(bar_->FilterKey(&f6) + bar_->FilterKey(nullptr), 0); // nothing to go to
}

TEST_F(ToolBar, OpensMenus) {
    script({":DROPDOWN=100,0", ":MENU=110,First", ":MENU", ":MENU=111,Second", ":SPLIT=101,0", ":MENU=112,Third"});
    host_.state = [](CCmdUI& ui) { ui.Enable(ui.m_nID != 110); };
    with_menu([&] { click(100); }, {VK_DOWN, VK_RETURN},
              [](HMENU menu) {
                  EXPECT_EQ(::GetMenuItemCount(menu), 3);
                  EXPECT_TRUE(::GetMenuState(menu, 0, MF_BYPOSITION) & MF_GRAYED); // asked before it opens
              });
    EXPECT_THAT(host_.told, ElementsAre(WNT_TOOL_DROPPING));
    host_.commands.clear();
    host_.state = [](CCmdUI& ui) { ui.Enable(); };
    edit_.SetFocus();
    bar_->SetFocus();
    with_menu([&] { key(VK_DOWN, WM_SYSKEYDOWN); }, {VK_DOWN, VK_DOWN, VK_RETURN});
    EXPECT_THAT(host_.commands, ElementsAre(111u));
    click(101); // the part without the arrow
    with_menu([&] { mouse(WM_LBUTTONDOWN, CPoint(place(101).right - 3, 10)); }, {VK_ESCAPE});
    EXPECT_THAT(host_.commands, ElementsAre(111u, 101u));
    CMenu mine;
    mine.CreatePopupMenu();
    mine.AppendMenu(MF_STRING, 120, "Mine");
    host_.answer = [&](WntToolNotify& n) -> LRESULT {
        n.menu = mine.m_hMenu;
        return n.id == 101; // which it opens itself
    };
    with_menu([&] { click(100); }, {VK_DOWN, VK_RETURN});
    EXPECT_EQ(host_.commands.back(), 120u);
    key(VK_RIGHT);
    key(VK_F4);
    EXPECT_EQ(host_.commands.size(), 3u);
    EXPECT_TRUE(::IsMenu(mine.m_hMenu));
}

TEST_F(ToolBar, WhatDoesNotFitIsBehindTheChevron) {
    CMenu host_menu;
    host_menu.CreatePopupMenu();
    host_menu.AppendMenu(MF_STRING, 120, "Deep");
    script({":ITEM=100,0", ":ITEM=101,0", ":SEPARATOR", ":CHECK=102,0,Check", ":SEPARATOR", ":ITEM=103,0,,Tip only"});
    CWntToolItem drop(104, "Drop", WNT_TOOL_DROPDOWN);
    drop.menu = host_menu.m_hMenu;
    EXPECT_EQ(bar_->AddItem(drop), 1);
    bar_->CheckItem(102, 1);
    host_.state = [](CCmdUI& ui) { ui.Enable(ui.m_nID != 103); };
    const auto shown = [&] {
        int count = 0;
        for (int i = 0; i < bar_->GetItemCount(); ++i)
            count += bar_->GetItemRect(i, nullptr);
        return count;
    };
    EXPECT_EQ(shown(), 7);
    bar_->MoveWindow(0, 0, 66, 26);
    EXPECT_EQ(shown(), 2);
    const CPoint chevron(60, 12);
    with_menu([&] { mouse(WM_LBUTTONDOWN, chevron); }, {VK_DOWN, VK_RETURN},
              [](HMENU menu) {
                  EXPECT_EQ(::GetMenuItemCount(menu), 4); // no separator first
                  char text[40];
                  ::GetMenuStringA(menu, 2, text, sizeof text, MF_BYPOSITION);
                  EXPECT_STREQ(text, "Tip only");
                  EXPECT_TRUE(::GetMenuState(menu, 0, MF_BYPOSITION) & MF_CHECKED);
                  EXPECT_TRUE(::GetMenuState(menu, 2, MF_BYPOSITION) & MF_GRAYED);
                  EXPECT_TRUE(::GetSubMenu(menu, 3));
              });
    EXPECT_THAT(host_.commands, ElementsAre(102u));
    EXPECT_EQ(checked(102), 0);
    EXPECT_TRUE(::IsMenu(host_menu.m_hMenu));
    bar_->SetFocus();
    key(VK_END);
    with_menu([&] { key(VK_SPACE); }, {VK_UP, VK_RIGHT, VK_RETURN});
    EXPECT_EQ(host_.commands.back(), 120u);
    bar_->SetWrapping(1);
    bar_->MoveWindow(0, 0, 66, 100);
    EXPECT_GE(shown(), 5);
    EXPECT_GT(bar_->GetThickness(66), 2 * bar_->GetThickness(400) - 10);
}

TEST_F(ToolBar, HoldsWindowsOfTheHosts) {
    CButton button;
    ASSERT_TRUE(button.Create("in", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 60, 18), &host_, 130));
    CWntToolItem embedded(130, "", WNT_TOOL_WINDOW);
    EXPECT_EQ(bar_->AddItem(embedded), 0);
    embedded.window = &host_;
    EXPECT_EQ(bar_->AddItem(embedded), 0); // it holds the bar
    embedded.window = &button;
    EXPECT_EQ(bar_->AddItem(CWntToolItem(100, "a")) + bar_->AddItem(embedded) + bar_->AddItem(CWntToolItem(101, "b")),
              3);
    EXPECT_EQ(button.GetParent(), bar_);
    CRect window;
    button.GetWindowRect(&window);
    bar_->ScreenToClient(&window);
    EXPECT_EQ(window, place(130));
    button.SendMessage(BM_CLICK);
    EXPECT_THAT(host_.commands, ElementsAre(130u));
    edit_.SetFocus();
    bar_->SetFocus();
    key(VK_RIGHT);
    EXPECT_EQ(::GetFocus(), button.m_hWnd);
    MSG tab = {button.m_hWnd, WM_KEYDOWN, VK_TAB, 1, 0, {}}, escape = {button.m_hWnd, WM_KEYDOWN, VK_ESCAPE, 1, 0, {}};
    EXPECT_TRUE(bar_->PreTranslateMessage(&tab));
    EXPECT_EQ(::GetFocus(), bar_->m_hWnd);
    key(VK_LEFT);
    EXPECT_EQ(::GetFocus(), button.m_hWnd);
    EXPECT_TRUE(bar_->PreTranslateMessage(&escape));
    EXPECT_EQ(::GetFocus(), edit_.m_hWnd);
    bar_->MoveWindow(0, 0, 40, 26);
    EXPECT_FALSE(button.IsWindowVisible());
    bar_->MoveWindow(0, 0, 400, 26);
    EXPECT_TRUE(button.IsWindowVisible());
    script({":WINDOW=130", ":ITEM=100"}); // by its number
    EXPECT_EQ(place(130).Size(), CSize(60, 18));
    EXPECT_TRUE(button.IsWindowVisible());
    EXPECT_EQ(bar_->RemoveItem(0), 1);
    EXPECT_FALSE(button.IsWindowVisible());
    button.DestroyWindow();
    bar_->SetUpright(1);
}

TEST_F(ToolBar, TipsTellTheShortcut) {
    ACCEL keys[] = {{FVIRTKEY | FCONTROL, 'S', 100}, {FVIRTKEY, VK_F5, 101}};
    const HACCEL table = ::CreateAcceleratorTableA(keys, 2);
    script({":ITEM=100,0,Save,Writes it down", ":ITEM=101,0,Run", ":ITEM=102,0,Plain", ":TEXT=BESIDE"});
    bar_->SetAccelerators(table);
    bar_->SetFocus();
    const auto tip_at = [&](UINT k) {
        key(k);
        CString text;
        bar_->GetTips()->GetWindowText(text);
        return text;
    };
    EXPECT_EQ(tip_at(VK_HOME), "Save (Ctrl+S)\nWrites it down");
    EXPECT_EQ(tip_at(VK_RIGHT), "Run (F5)");
    EXPECT_EQ(tip_at(VK_RIGHT), ""); // the text is there to be read
    bar_->SetAccelerators(nullptr);
    bar_->SetTextPlace(WNT_TOOL_TEXT_NONE);
    EXPECT_EQ(tip_at(VK_LEFT), "Run");
    ::DestroyAcceleratorTable(table);
}

TEST_F(ToolBar, ItemsAreDraggedWhereThatIsAllowed) {
    script({":ITEM=100,0", ":ITEM=101,0", ":ITEM=102,0"});
    const auto drag = [&](UINT id, CPoint to) {
        mouse(WM_LBUTTONDOWN, place(id).CenterPoint());
        mouse(WM_MOUSEMOVE, place(id).CenterPoint() + CPoint(9, 0));
        mouse(WM_MOUSEMOVE, to);
    };
    const auto order = [&] {
        std::vector<UINT> ids;
        CWntToolItem item;
        for (int i = 0; bar_->GetItem(i, &item); ++i)
            ids.push_back(item.id);
        return ids;
    };
    drag(100, CPoint(390, 10));
    mouse(WM_LBUTTONUP, CPoint(390, 10));
    EXPECT_THAT(order(), ElementsAre(100u, 101u, 102u)); // off unless set
    bar_->SetDragging(1);
    edit_.SetFocus();
    full_repaint(*bar_);
    const Pixels before = pixels_of(*bar_);
    drag(100, CPoint(390, 10));
    bar_->UpdateWindow();
    EXPECT_NE(pixels_of(*bar_), before); // a mark shows where it would go
    EXPECT_EQ(::GetFocus(), bar_->m_hWnd);
    key(VK_ESCAPE);
    bar_->UpdateWindow();
    bar_->SendMessage(WM_MOUSELEAVE);
    bar_->UpdateWindow();
    EXPECT_EQ(pixels_of(*bar_), before);
    EXPECT_EQ(::GetFocus(), edit_.m_hWnd);
    mouse(WM_LBUTTONUP, CPoint(390, 10));
    EXPECT_TRUE(host_.told.empty());
    host_.answer = [](WntToolNotify& n) -> LRESULT { return n.hdr.code == WNT_TOOL_MOVING && n.id == 102; };
    drag(100, CPoint(390, 10));
    mouse(WM_LBUTTONUP, CPoint(390, 10));
    EXPECT_THAT(order(), ElementsAre(101u, 102u, 100u));
    EXPECT_THAT(host_.told, ElementsAre(WNT_TOOL_MOVING, WNT_TOOL_MOVED));
    drag(102, CPoint(0, 10)); // refused
    mouse(WM_LBUTTONUP, CPoint(0, 10));
    EXPECT_THAT(order(), ElementsAre(101u, 102u, 100u));
    EXPECT_TRUE(host_.commands.empty());
    click(100);
    EXPECT_THAT(host_.commands, ElementsAre(100u));

    char folder[MAX_PATH];
    ::GetTempPathA(sizeof folder, folder);
    const CString file = CString(folder) + "tool_bar_test.ini";
    ::DeleteFileA(file);
    EXPECT_EQ(bar_->RestoreOrder(file, "main") + bar_->StoreOrder(nullptr, "main") + bar_->StoreOrder(file, ""), 0);
    EXPECT_EQ(bar_->StoreOrder(file, "main"), 1);
    script({":ITEM=100,0", ":ITEM=101,0", ":ITEM=102,0"});
    EXPECT_EQ(bar_->RestoreOrder(file, "main"), 1);
    EXPECT_THAT(order(), ElementsAre(101u, 102u, 100u));
    EXPECT_LT(place(101).left, place(102).left);
    ::DeleteFileA(file);
}

TEST_F(ToolBar, MayBeDestroyedByAnythingItTells) {
    const auto end_bar = [&] { delete std::exchange(bar_, nullptr); };
    const std::function<void()> ways[] = {
        [&] {
            host_.on_command = [&](UINT) { end_bar(); };
            click(100);
        },
        [&] {
            host_.on_command = [&](UINT) { end_bar(); };
            bar_->SetFocus();
            key(VK_SPACE);
        },
        [&] {
            host_.answer = [&](WntToolNotify& n) -> LRESULT {
                return n.hdr.code == WNT_TOOL_DROPPING ? end_bar(), 0 : 0;
            };
            click(101);
        },
        [&] {
            host_.state = [&](CCmdUI&) { end_bar(); };
            bar_->UpdateItems();
        },
        [&] {
            host_.state = [&](CCmdUI& ui) {
                if (ui.m_pMenu)
                    end_bar();
            };
            click(101);
        },
        [&] {
            host_.on_command = [&](UINT id) {
                if (id == 110)
                    end_bar();
            };
            with_menu([&] { click(101); }, {VK_DOWN, VK_RETURN});
        },
        [&] { with_menu([&] { click(101); }, {VK_ESCAPE}, [&](HMENU) { end_bar(); }); },
        [&] {
            bar_->MoveWindow(0, 0, 20, 26);
            with_menu([&] { mouse(WM_LBUTTONDOWN, CPoint(12, 12)); }, {VK_ESCAPE}, [&](HMENU) { end_bar(); });
        },
        [&] {
            bar_->SetDragging(1);
            host_.answer = [&](WntToolNotify&) -> LRESULT { return end_bar(), 0; };
            mouse(WM_LBUTTONDOWN, place(100).CenterPoint());
            mouse(WM_MOUSEMOVE, CPoint(390, 10));
            mouse(WM_LBUTTONUP, CPoint(390, 10));
        },
    };
    int way = 0;
    for (const auto& destroy : ways) {
        end_bar();
        host_.on_command = [](UINT) {};
        host_.answer = [](WntToolNotify&) { return 0; };
        host_.state = [](CCmdUI& ui) { ui.Enable(); };
        open();
        script({":ITEM=100,0", ":DROPDOWN=101,0", ":MENU=110,Entry"});
        destroy();
        EXPECT_FALSE(bar_) << way;
        ++way;
    }
}

TEST_F(ToolBar, AWindowOfATemplateBecomesOne) {
    const std::string_view lines = ":ITEM=100\r\n:ITEM=101\r\nany words\r\n:SEPARATOR\r\n";
    const TemporaryFile file({lines.begin(), lines.end()});
    const HWND blank = ::CreateWindowA("WntToolBar", file.name(), WS_CHILD | WS_VISIBLE, 0, 40, 200, 26, host_.m_hWnd,
                                       nullptr, nullptr, nullptr);
    ASSERT_TRUE(blank);
    CWntToolBar taken;
    ASSERT_TRUE(taken.SubclassWindow(blank));
    EXPECT_EQ(taken.GetItemCount(), 3);
    EXPECT_TRUE(taken.GetItemRect(1, nullptr));
    EXPECT_EQ(taken.LoadFromFile("no such file") + taken.LoadFromFile(nullptr), 0);
    EXPECT_EQ(taken.GetItemCount(), 3); // as before
    EXPECT_EQ(taken.LoadFromFile(file.name()), 1);
    EXPECT_EQ(taken.GetItemCount(), 3); // not twice
    CWntToolBar* volatile none = nullptr;
    CWntToolItem item;
    CRect place(1, 1, 1, 1);
    EXPECT_EQ(none->AddItem(item) + none->GetItemCount() + none->PressItem(1) + none->LoadLine("", 0) +
                  none->GetThickness(5) + none->FilterKey(nullptr) + none->GetItemRect(0, place) + none->UpdateItems() +
                  taken.AddItem(item) + taken.AddItem(CWntToolItem(70000)) + taken.GetItem(9, &item) +
                  taken.GetItem(0, nullptr) + taken.RemoveItem(-1) + taken.InsertItem(9, CWntToolItem(5)) +
                  taken.SetTextPlace(3) + taken.CheckItem(100, 3) + taken.EnableItem(0, 1) +
                  taken.AddMenuEntry(1, "x") + taken.LoadLine(nullptr, 0),
              0);
    EXPECT_EQ(place, CRect(0, 0, 0, 0));
    CWntToolBar unmade; // before its window
    EXPECT_EQ(unmade.AddItem(CWntToolItem(5, "x")), 1);
    EXPECT_EQ(unmade.PressItem(5) + unmade.UpdateItems() + unmade.GetThickness(100), 0);
    ASSERT_TRUE(unmade.Create(nullptr, "", WS_CHILD, CRect(0, 0, 100, 26), &host_, 10));
    EXPECT_TRUE(unmade.GetItemRect(0, nullptr));
}

} // namespace
