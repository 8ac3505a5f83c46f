#include "tool_bar_host.h"

namespace {

using testing::ElementsAre;

TEST_F(ToolBar, TheKeyboardWorksIt) {
    script({":ITEM=100,0,one", ":DISABLED=100", ":SEPARATOR", ":CHECK=101,0,two", ":ITEM=102,0,three"});
    edit_.SetFocus();
    EXPECT_TRUE(filter_f6(edit_));
    EXPECT_TRUE(::GetFocus() == bar_->m_hWnd && focused() == 101); // the first that can be used
    CString tip;
    bar_->GetTips()->GetWindowText(tip);
    EXPECT_EQ(tip, "two");
    for (const auto& [k, id] :
         {std::pair{VK_RIGHT, 2}, {VK_RIGHT, 1}, {VK_LEFT, 2}, {VK_HOME, 1}, {VK_END, 2}, {VK_UP, 2}}) {
        key(static_cast<UINT>(k));
        EXPECT_EQ(focused(), 100u + id) << k;
    }
    bar_->EnableItem(100, 1);
    key(VK_HOME), key(VK_RIGHT);
    bar_->EnableItem(101, 0);
    key(VK_LEFT);
    EXPECT_EQ(focused(), 100u) << "beside the one that was disabled";
    script({":ITEM=100,0,one", ":DISABLED=100", ":SEPARATOR", ":CHECK=101,0,two", ":ITEM=102,0,three"});
    key(VK_END), key(VK_RETURN), key(VK_HOME), key(VK_SPACE);
    bar_->SendMessage(WM_KEYDOWN, VK_SPACE, 1 | (1 << 30)); // held down
    EXPECT_THAT(host_.commands, ElementsAre(102u, 101u));
    EXPECT_EQ(checked(101), 1);
    key(VK_ESCAPE);
    EXPECT_TRUE(::GetFocus() == edit_.m_hWnd && focused() == 0 && bar_->GetTips()->GetShownTip(nullptr) == 0);
    bar_->SetFocus();
    MSG f6 = {bar_->m_hWnd, WM_KEYDOWN, VK_F6, 1, 0, {}};
    EXPECT_TRUE(bar_->PreTranslateMessage(&f6) && ::GetFocus() == edit_.m_hWnd);
    MSG enter = {bar_->m_hWnd, WM_KEYDOWN, VK_RETURN, 1, 0, {}}, tab = {bar_->m_hWnd, WM_KEYDOWN, VK_TAB, 1, 0, {}};
    EXPECT_TRUE(bar_->SendMessage(WM_GETDLGCODE, VK_RETURN, reinterpret_cast<LPARAM>(&enter)) & DLGC_WANTMESSAGE);
    EXPECT_FALSE(bar_->SendMessage(WM_GETDLGCODE, VK_TAB, reinterpret_cast<LPARAM>(&tab)) & DLGC_WANTMESSAGE);
    bar_->EnableItem(101, 0);
    bar_->EnableItem(102, 0);
    EXPECT_EQ(bar_->FilterKey(&f6) + bar_->FilterKey(nullptr), 0); // nothing to go to
}

TEST_F(ToolBar, OpensMenus) {
    script({":DROPDOWN=100,0", ":MENU=110,First", ":MENU", ":MENU=111,Second", ":SPLIT=101,0"});
    EXPECT_EQ(bar_->AddMenuEntry(112, "Third") + bar_->AddMenuEntry(70'000, "x"), 1);
    host_.state = [](CCmdUI& ui) { ui.Enable(ui.m_nID != 110); };
    with_menu([&] { click(100); }, {VK_DOWN, VK_RETURN},
              [](HMENU menu) {
                  EXPECT_EQ(::GetMenuItemCount(menu), 3);
                  EXPECT_TRUE(::GetMenuState(menu, 0, MF_BYPOSITION) & MF_GRAYED); // asked before it opens
              });
    EXPECT_THAT(host_.told, ElementsAre(WNT_TOOL_DROPPING));
    const CPoint on_it = place(100).CenterPoint(); // the click that closes the menu does not open it again
    const LPARAM at = MAKELPARAM(on_it.x, on_it.y);
    point_at(*bar_, on_it);
    with_menu([&] { click(100); }, {VK_ESCAPE}, [&](HMENU) { ::PostMessageA(bar_->m_hWnd, WM_LBUTTONDOWN, 0, at); });
    MSG click_left;
    EXPECT_FALSE(::PeekMessageA(&click_left, bar_->m_hWnd, WM_LBUTTONDOWN, WM_LBUTTONDOWN, PM_REMOVE));
    EXPECT_EQ(host_.told.size(), 2u);
    host_.commands.clear();
    host_.state = [](CCmdUI& ui) { ui.Enable(); };
    edit_.SetFocus();
    bar_->SetFocus();
    with_menu([&] { key(VK_DOWN, WM_SYSKEYDOWN); }, {VK_DOWN, VK_DOWN, VK_RETURN});
    EXPECT_THAT(host_.commands, ElementsAre(111u));
    click(101); // the part without the arrow
    with_menu([&] { mouse(WM_LBUTTONDOWN, CPoint(place(101).right - 3, 10)); }, {VK_ESCAPE},
              [](HMENU menu) { EXPECT_EQ(::GetMenuItemID(menu, 0), 112u); });
    EXPECT_THAT(host_.commands, ElementsAre(111u, 101u));
    CMenu mine;
    mine.CreatePopupMenu();
    mine.AppendMenu(MF_STRING, 120, "Mine");
    host_.answer = [&](WntToolNotify& n) -> LRESULT {
        n.menu = mine.m_hMenu;
        return 0;
    };
    with_menu([&] { click(100); }, {VK_DOWN, VK_RETURN});
    EXPECT_EQ(host_.commands.back(), 120u);
    EXPECT_TRUE(::IsMenu(mine.m_hMenu));
}

TEST_F(ToolBar, WhatDoesNotFitIsBehindTheChevron) {
    CMenu host_menu;
    host_menu.CreatePopupMenu();
    host_menu.AppendMenu(MF_STRING, 120, "Deep");
    script({":ITEM=100,0", ":ITEM=101,0", ":SEPARATOR", ":CHECK=102,0,Check", ":SEPARATOR", ":ITEM=103,0,,Tip & more"});
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
    const auto press_chevron = [&] { mouse(WM_LBUTTONDOWN, chevron); };
    with_menu(press_chevron, {VK_DOWN, VK_RETURN}, [](HMENU menu) {
        EXPECT_EQ(::GetMenuItemCount(menu), 4); // no separator first
        char text[40];
        ::GetMenuStringA(menu, 2, text, sizeof text, MF_BYPOSITION);
        EXPECT_STREQ(text, "Tip && more"); // as a menu writes it
        EXPECT_TRUE(::GetMenuState(menu, 0, MF_BYPOSITION) & MF_CHECKED);
        EXPECT_TRUE(::GetMenuState(menu, 2, MF_BYPOSITION) & MF_GRAYED);
        EXPECT_TRUE(::GetSubMenu(menu, 3));
    });
    EXPECT_THAT(host_.commands, ElementsAre(102u));
    EXPECT_TRUE(checked(102) == 0 && ::IsMenu(host_menu.m_hMenu));
    bar_->SetFocus();
    key(VK_END);
    with_menu([&] { key(VK_SPACE); }, {VK_UP, VK_RIGHT, VK_RETURN});
    EXPECT_EQ(host_.commands.back(), 120u);
    ::DestroyMenu(host_menu.Detach());
    with_menu(press_chevron, {VK_ESCAPE},
              [](HMENU menu) { EXPECT_EQ(::GetMenuItemCount(menu), 4) << "an item without its menu stays"; });
    script({":ITEM=100,0", ":ITEM=101,0", ":ITEM=102,0", ":ITEM=103,0", ":ITEM=104,0"});
    bar_->SetWrapping(1);
    bar_->MoveWindow(0, 0, 66, 100);
    EXPECT_GE(shown(), 5);
    EXPECT_GT(bar_->GetThickness(66), 2 * bar_->GetThickness(400) - 10);
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
    const auto drop = [&](UINT id, CPoint to) { drag(id, to), mouse(WM_LBUTTONUP, to); };
    const auto order = [&] {
        std::vector<UINT> ids;
        CWntToolItem item;
        for (int i = 0; bar_->GetItem(i, &item); ++i)
            ids.push_back(item.id);
        return ids;
    };
    drop(100, CPoint(390, 10));
    EXPECT_THAT(order(), ElementsAre(100u, 101u, 102u)); // off unless set
    bar_->SetDragging(1);
    edit_.SetFocus();
    const Pixels before = repainted(*bar_);
    drag(100, CPoint(390, 10));
    EXPECT_NE(shown(), before); // a mark shows where it would go
    EXPECT_EQ(::GetFocus(), bar_->m_hWnd);
    key(VK_ESCAPE);
    bar_->UpdateWindow();
    bar_->SendMessage(WM_MOUSELEAVE);
    EXPECT_EQ(shown(), before);
    EXPECT_EQ(::GetFocus(), edit_.m_hWnd);
    mouse(WM_LBUTTONUP, CPoint(390, 10));
    EXPECT_TRUE(host_.told.empty());
    std::vector<std::tuple<UINT, UINT, int, int>> told;
    host_.answer = [&](WntToolNotify& n) -> LRESULT {
        told.emplace_back(n.hdr.code, n.id, n.index, n.to);
        return n.hdr.code == WNT_TOOL_MOVING && n.id == 102;
    };
    drop(100, CPoint(390, 10));
    EXPECT_THAT(order(), ElementsAre(101u, 102u, 100u));
    EXPECT_THAT(told, ElementsAre(std::tuple(WNT_TOOL_MOVING, 100, 0, 3), std::tuple(WNT_TOOL_MOVED, 100, 2, 2)));
    drop(102, CPoint(0, 10)); // refused
    EXPECT_THAT(order(), ElementsAre(101u, 102u, 100u));
    EXPECT_TRUE(host_.commands.empty());
    click(100);
    EXPECT_THAT(host_.commands, ElementsAre(100u));

    const TemporaryProfile file;
    EXPECT_EQ(bar_->RestoreOrder(file, "main") + bar_->StoreOrder(nullptr, "main") + bar_->StoreOrder(file, ""), 0);
    EXPECT_EQ(bar_->StoreOrder(file, "main"), 1);
    script({":ITEM=100,0", ":ITEM=101,0", ":ITEM=102,0"});
    EXPECT_EQ(bar_->RestoreOrder(file, "main"), 1);
    EXPECT_THAT(order(), ElementsAre(101u, 102u, 100u));
    EXPECT_LT(place(101).left, place(102).left);
}

TEST_F(ToolBar, MayBeDestroyedByAnythingItTells) {
    using Work = std::function<void()>;
    const auto end_bar = [&] { delete std::exchange(bar_, nullptr); };
    const Work by_command = [&] { host_.on_command = [&](UINT) { end_bar(); }; };
    const Work by_state = [&] { host_.state = [&](CCmdUI&) { end_bar(); }; };
    const Work by_state_of_entries = [&] { host_.state = [&](CCmdUI& ui) { ui.m_pMenu ? end_bar() : void(); }; };
    const Work by_notification = [&] { host_.answer = [&](WntToolNotify&) -> LRESULT { return end_bar(), 0; }; };
    const Work by_lost_focus = [&] { when_an_edit_loses_the_focus(end_bar); };
    const auto in_open_menu = [&](const Work& open) { with_menu(open, {VK_ESCAPE}, [&](HMENU) { end_bar(); }); };
    const std::pair<Work, Work> ways[] = {
        {by_command, [&] { click(100); }},
        {by_command, [&] { bar_->SetFocus(), key(VK_SPACE); }},
        {by_command,
         [&] {
             with_menu([&] { click(101); }, {VK_DOWN, VK_RETURN});
         }},
        {by_notification, [&] { click(101); }},
        {by_state, [&] { bar_->UpdateItems(); }},
        {by_state, [&] { bar_->SendMessage(WM_IDLEUPDATECMDUI, TRUE); }}, // which then asks for a handler
        {by_state_of_entries, [&] { click(101); }},
        {[] {}, [&] { in_open_menu([&] { click(101); }); }},
        {[&] { bar_->MoveWindow(0, 0, 20, 26); },
         [&] { in_open_menu([&] { mouse(WM_LBUTTONDOWN, CPoint(12, 12)); }); }},
        {[&] { edit_.SetFocus(), by_lost_focus(); }, [&] { filter_f6(edit_); }},
        {[&] { bar_->SetDragging(1), by_notification(); },
         [&] {
             mouse(WM_LBUTTONDOWN, place(100).CenterPoint());
             mouse(WM_MOUSEMOVE, CPoint(390, 10));
             mouse(WM_LBUTTONUP, CPoint(390, 10));
         }},
    };
    for (const auto& way : ways) {
        end_bar();
        host_.on_command = [](UINT) {};
        host_.on_message = [](UINT, WPARAM) {};
        host_.answer = [](WntToolNotify&) { return 0; };
        host_.state = [](CCmdUI& ui) { ui.Enable(); };
        open();
        script({":ITEM=100,0", ":DROPDOWN=101,0", ":MENU=110,Entry"});
        way.first(), way.second();
        EXPECT_FALSE(bar_) << &way - ways;
    }
}

TEST_F(ToolBar, ItemsMayGoWhileTheyArePressed) {
    script({":ITEM=100,0"});
    const CPoint at = place(100).CenterPoint();
    mouse(WM_LBUTTONDOWN, at);
    script({":ITEM=101,0"});
    mouse(WM_LBUTTONUP, at);
    EXPECT_TRUE(host_.commands.empty() && ::GetCapture() != bar_->m_hWnd);
}

TEST_F(ToolBar, AnOwnerMayGoBeforeItsBar) {
    auto* owner = new Trapping<ToolHost>;
    ASSERT_TRUE(owner->CreateEx(0, nullptr, "owner", WS_POPUP, CRect(0, 0, 9, 9), &host_, 0));
    bar_->SetOwner(owner);
    script({":ITEM=100,0", ":ITEM=101,0", ":DROPDOWN=102,0", ":MENU=110,a", ":MENU=111,b"});
    owner->state = [&](CCmdUI& ui) {
        ui.Enable(ui.m_nID != 100);
        const std::unique_ptr<ToolHost> ended(std::exchange(owner, nullptr));
        ended->DestroyWindow();
    };
    bar_->UpdateItems();
    EXPECT_FALSE(owner);
    EXPECT_EQ(checked(100) + checked(101), 10);
    click(102); // whose menu has nobody to go to
}

} // namespace
