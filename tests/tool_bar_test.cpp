#include "bitmap_files.h"
#include "tool_bar_host.h"
#include "temporary_file.h"

namespace {

using testing::ElementsAre;

TEST_F(ToolBar, SendsCommandsOfWhatIsPressed) {
    script({":ITEM=100,0", ":CHECK=101,1", ":RADIO=102", ":RADIO=103", ":SEPARATOR", ":ITEM=104,0", ":DISABLED=104"});
    for (const UINT id : {100u, 101u, 103u, 102u, 104u})
        click(id);
    EXPECT_THAT(host_.commands, ElementsAre(100u, 101u, 103u, 102u));
    EXPECT_TRUE(checked(101) == 1 && checked(102) == 1 && checked(103) == 0 && checked(104) == 10);
    const CPoint first = place(100).CenterPoint();
    mouse(WM_LBUTTONDOWN, first), mouse(WM_MOUSEMOVE, {390, 10}), mouse(WM_LBUTTONUP, {390, 10}); // let go elsewhere
    mouse(WM_LBUTTONDOWN, first), ::ReleaseCapture(), mouse(WM_LBUTTONUP, first);
    EXPECT_EQ(host_.commands.size(), 4u);
    mouse(WM_LBUTTONDBLCLK, first), mouse(WM_LBUTTONUP, first); // the second click of two
    EXPECT_EQ(host_.commands.size(), 5u);
    EXPECT_EQ(bar_->PressItem(101) + bar_->PressItem(104) + bar_->PressItem(999), 1);
    EXPECT_EQ(checked(101), 0);
    CWntToolItem item;
    bar_->GetItem(bar_->FindItem(103), &item);
    item.check = 1;
    EXPECT_EQ(bar_->SetItem(bar_->FindItem(103), item), 1);
    EXPECT_TRUE(checked(103) == 1 && checked(102) == 0); // one of a group
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
    host_.state = [](CCmdUI& ui) { ui.Enable(ui.m_nID != 101); };
    bar_->UpdateItems();
    full_repaint(*bar_);
    host_.state = [](CCmdUI& ui) { ui.Enable(ui.m_nID != 102); };
    bar_->UpdateItems();
    CRect stale;
    bar_->GetUpdateRect(&stale);
    EXPECT_EQ(stale, place(101) | place(102));
    script({":ITEM=180,0"});
    bar_->SetAutoDisable(0);
    bar_->SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_EQ(checked(180), 0);
}

TEST_F(ToolBar, ShowsStatesOfItsItems) {
    script({":ITEM=100,0", ":ITEM=101,1", ":ITEM=102,2,key", ":CHECK=103,0", ":LABEL=Text"});
    const Pixels plain = repainted(*bar_);
    EXPECT_EQ(plain.count(red), 2 * 16 * 16);
    EXPECT_TRUE(plain.count(green) == 16 * 16 && plain.count(key_colour) == 0);
    const CRect first = place(100);
    EXPECT_EQ(plain.at(first.left, first.top), ::GetSysColor(COLOR_BTNFACE));
    const auto after = [&](const std::function<void()>& change) { return change(), shown(); };
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
    EXPECT_EQ(repainted(*bar_).count(red), 0);
}

TEST_F(ToolBar, SeparatorsAreEngravedEitherWay) {
    script({":ITEM=100,0", ":SEPARATOR", ":ITEM=101,0"});
    bar_->MoveWindow(0, 0, 90, 90);
    for (const bool upright : {false, true}) {
        bar_->SetUpright(upright);
        const Pixels shown = repainted(*bar_);
        CRect line;
        ASSERT_TRUE(bar_->GetItemRect(1, line));
        const CPoint light = line.CenterPoint(), dark = light - (upright ? CPoint(0, 1) : CPoint(1, 0));
        EXPECT_EQ(shown.at(light.x, light.y), ::GetSysColor(COLOR_BTNHIGHLIGHT)) << upright;
        EXPECT_EQ(shown.at(dark.x, dark.y), ::GetSysColor(COLOR_BTNSHADOW)) << upright;
    }
}

TEST_F(ToolBar, ArrowsTellOfMenus) {
    script({":SPLIT=100,0", ":MENU=110,a", ":ITEM=101,0", ":ITEM=102,0"});
    bar_->MoveWindow(0, 0, 54, 26);
    EXPECT_EQ(sketch(repainted(*bar_), CRect(26, 11, 50, 16),
                     {{::GetSysColor(COLOR_BTNTEXT), '#'}, {::GetSysColor(COLOR_BTNFACE), '.'}}),
              R"(................#...#...
..#####..........#...#..
...###............#...#.
....#............#...#..
................#...#...
)");
}

TEST_F(ToolBar, TakesPicturesFromIconsAndFiles) {
    CWntToolItem item(100, "warn"), kept;
    item.tip = "tip";
    item.picture = 3;
    item.icon = ::LoadIconA(nullptr, IDI_WARNING);
    item.large = ::LoadIconA(nullptr, IDI_ERROR);
    item.group = 7;
    item.enabled = false;
    bar_->SetPictures(nullptr, nullptr);
    bar_->AddItem(item);
    ASSERT_EQ(bar_->GetItem(0, &kept), 1);
    const auto record = [](const CWntToolItem& i) {
        return std::tuple(i.id, i.text, i.kind, i.tip, i.picture, i.icon, i.large, i.group, i.check, i.enabled);
    };
    EXPECT_EQ(record(kept), record(item));
    const CRect r = place(100);
    const Pixels icon = repainted(*bar_);
    EXPECT_EQ(icon.at(r.left + 3, r.top + 3), ::GetSysColor(COLOR_BTNFACE)); // beside the triangle
    EXPECT_NE(icon.at(r.CenterPoint().x, r.CenterPoint().y + 3), ::GetSysColor(COLOR_BTNFACE));

    const BitmapFile picture = {24, 16, 16};
    const TemporaryFile file(picture.bytes());
    script({CString(":PICTURES=") + file.name(), ":ITEM=100,0"});
    const Pixels shown = repainted(*bar_);
    for (int i = 1; i < 16 * 16; ++i) // the first one's colour is not painted
        EXPECT_EQ(shown.at(r.left + 3 + i % 16, r.top + 3 + i / 16), picture.colour_at(i % 16, 15 - i / 16)) << i;
    EXPECT_EQ(bar_->SetPictures(nullptr, static_cast<HBITMAP>(::GetStockObject(BLACK_PEN))), 0); // no bitmap
}

TEST_F(ToolBar, RepaintsOnlyWhatChanged) {
    script({":ITEM=100,0", ":CHECK=101,0", ":ITEM=102,0"});
    full_repaint(*bar_);
    CClientDC(bar_).FillSolidRect(CRect(0, 0, 400, 26), poison);
    bar_->CheckItem(101, 1);
    bar_->UpdateWindow();
    const CRect check = place(101);
    EXPECT_EQ(pixels_of(*bar_).count(poison), 400 * 26 - check.Width() * check.Height());
    EXPECT_FALSE(::GetUpdateRect(bar_->m_hWnd, nullptr, FALSE));
    mouse(WM_MOUSEMOVE, CPoint(390, 20)); // over nothing
    bar_->CheckItem(101, 1);
    EXPECT_FALSE(::GetUpdateRect(bar_->m_hWnd, nullptr, FALSE));
}

TEST_F(ToolBar, HoldsWindowsOfTheHosts) {
    CButton button;
    ASSERT_TRUE(button.Create("in", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 60, 18), &host_, 130));
    CWntToolItem embedded(130, "", WNT_TOOL_WINDOW);
    EXPECT_EQ(bar_->AddItem(embedded), 0);
    embedded.window = &host_;
    EXPECT_EQ(bar_->AddItem(embedded), 0); // it holds the bar
    embedded.window = &button;
    EXPECT_EQ(bar_->InsertItem(5000, embedded) + bar_->InsertItem(-1, embedded), 0);
    EXPECT_EQ(button.GetParent(), &host_) << "what is refused stays where it was";
    EXPECT_EQ(bar_->AddItem(CWntToolItem(100, "a")) + bar_->AddItem(embedded) + bar_->AddItem(CWntToolItem(101, "b")),
              3);
    EXPECT_EQ(button.GetParent(), bar_);
    EXPECT_EQ(place_in(*bar_, button), place(130));
    for (const BOOL on : {FALSE, TRUE}) {
        bar_->EnableItem(130, on);
        EXPECT_EQ(button.IsWindowEnabled(), on);
    }
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
    bar_->SetFocus();
    key(VK_RIGHT);
    bar_->MoveWindow(0, 0, 40, 26);
    EXPECT_TRUE(!button.IsWindowVisible() && ::GetFocus() == edit_.m_hWnd) << "a hidden window has no focus";
    bar_->MoveWindow(0, 0, 400, 26);
    EXPECT_TRUE(button.IsWindowVisible());
    script({":WINDOW=130", ":ITEM=100"}); // by its number
    EXPECT_TRUE(button.IsWindowVisible() && place(130).Size() == CSize(60, 18));
    EXPECT_TRUE(bar_->RemoveItem(0) == 1 && !button.IsWindowVisible());
    button.DestroyWindow();
    bar_->SetUpright(1);
}

TEST_F(ToolBar, FollowsScriptsInFilesAndRefusesWhatIsNone) {
    const TemporaryFile file(":ITEM=100\r\n:ITEM=101\r\nany words\r\n:SEPARATOR\r\n");
    for (int i = 0; i < 2; ++i) { // the second time not twice
        EXPECT_EQ(bar_->LoadFromFile(file.name()), 1);
        EXPECT_EQ(bar_->LoadFromFile("no such file") + bar_->LoadFromFile(nullptr), 0);
        EXPECT_EQ(bar_->GetItemCount(), 3); // as before
    }
    EXPECT_TRUE(bar_->GetItemRect(1, nullptr));
    CWntToolBar* volatile none = nullptr;
    CWntToolItem item;
    EXPECT_EQ(none->AddItem(item) + none->GetItemCount() + none->PressItem(1) + none->GetItemRect(0, nullptr) +
                  bar_->AddItem(item) + bar_->AddItem(CWntToolItem(70000)) + bar_->GetItem(9, &item) +
                  bar_->InsertItem(9, CWntToolItem(5)) + bar_->CheckItem(100, 3) + bar_->AddMenuEntry(1, "x"),
              0);
    CWntToolBar unmade; // before its window
    EXPECT_EQ(unmade.AddItem(CWntToolItem(5, "x")), 1);
    ASSERT_TRUE(unmade.Create(nullptr, "", WS_CHILD, CRect(0, 0, 100, 26), &host_, 10));
    EXPECT_TRUE(unmade.GetItemRect(0, nullptr));
    EXPECT_EQ(unmade.RemoveAll(), 1);
    EXPECT_EQ(unmade.GetItemCount(), 0);
}

} // namespace
