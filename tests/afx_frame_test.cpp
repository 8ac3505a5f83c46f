// Frames with menus, bars and what they show while the program is idle.
#include "afx_test_app.h"
#include "held_keys.h"
#include "modal.h"
#include "pixels.h"

#include <afxext.h>
#include <afxpriv.h>

using testing::ElementsAre;
using Texts = std::vector<std::string>;

namespace {

struct bar_frame : CFrameWnd {
    struct : CToolBar {
        using CToolBar::m_hbmImageWell;
    } tools;
    CToolBar more;
    CStatusBar status;
    CDialogBar dialog;
    Texts log;
    bool off = true;
    int checked = 2; // undecided
    UINT gone = 0;   // the item that goes while the menu is updated

    bool open() {
        return LoadFrame(IDR_FRAME) && tools.Create(this, WS_CHILD | WS_VISIBLE | CBRS_TOP | CBRS_FLYBY) &&
               tools.LoadToolBar(IDR_FRAME) && more.Create(this, WS_CHILD | WS_VISIBLE | CBRS_TOP, 0xE850) &&
               more.LoadToolBar(IDR_FRAME) && status.Create(this);
    }
    // Idle until there is nothing left to do.
    void settle() {
        ShowWindow(SW_SHOWNOACTIVATE);
        SendMessage(WM_IDLEUPDATECMDUI, TRUE);
        SendMessageToDescendants(WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
    }
    void PostNcDestroy() override {} // lives on the stack
    using CFrameWnd::OnCreateClient;
    CRect client_of(CWnd& wnd) { return place_in(*this, wnd); }
    bool enabled(UINT id) { return (tools.SendMessage(TB_GETSTATE, id) & TBSTATE_ENABLED) != 0; }

    void OnShowMenuBar() override { log.push_back("show"); }
    void OnHideMenuBar() override { log.push_back("hide"); }
    void OnOn() { log.push_back("on"); }
    void OnUpdateOff(CCmdUI* item) { item->Enable(!off); }
    void OnUpdateChecked(CCmdUI* item) {
        item->SetCheck(checked), item->SetText("Text");
        if (gone != 0 && item->m_pMenu != nullptr)
            item->m_pMenu->RemoveMenu(gone, MF_BYCOMMAND);
    }
    void OnUpdatePane(CCmdUI* item) { item->Enable(), item->SetRadio(), item->SetText("shown"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(bar_frame, CFrameWnd)
ON_COMMAND(ID_TEST_ON, &bar_frame::OnOn)
ON_COMMAND(ID_TEST_OFF, &bar_frame::OnOn)
ON_UPDATE_COMMAND_UI(ID_TEST_OFF, &bar_frame::OnUpdateOff)
ON_COMMAND(ID_TEST_CHECKED, &bar_frame::OnOn)
ON_UPDATE_COMMAND_UI(ID_TEST_CHECKED, &bar_frame::OnUpdateChecked)
ON_UPDATE_COMMAND_UI(ID_TEST_PANE, &bar_frame::OnUpdatePane)
END_MESSAGE_MAP()

struct AfxFrame : testing::Test {
    AfxFrame() {
        EXPECT_TRUE(frame.open());
        frame.settle();
    }

    bar_frame frame;
};
using AfxReBar = AfxFrame;

TEST_F(AfxFrame, UpdatesItsMenuToolbarAndPanesByItsHandlers) {
    const UINT panes[] = {ID_SEPARATOR, ID_TEST_PANE, ID_INDICATOR_CAPS, ID_INDICATOR_NUM, ID_INDICATOR_SCRL};
    ASSERT_TRUE(frame.status.SetIndicators(panes, 5));
    frame.settle();
    frame.checked = 1;
    const HeldKeys off({VK_CAPITAL, VK_NUMLOCK, VK_SCROLL}, 0);
    for (const auto& [key, pane] : {std::pair{VK_CAPITAL, 2}, {VK_NUMLOCK, 3}, {VK_SCROLL, 4}}) {
        const HeldKeys on({key}, 1);
        frame.settle();
        for (const int i : {2, 3, 4})
            EXPECT_EQ((frame.status.GetPaneStyle(i) & SBPS_DISABLED) == 0, i == pane) << key;
    }
    EXPECT_TRUE(frame.enabled(ID_TEST_ON) && !frame.enabled(ID_TEST_OFF));
    EXPECT_FALSE(frame.enabled(ID_TEST_NOBODY)) << "a command without handler";
    EXPECT_EQ(frame.tools.SendMessage(TB_GETSTATE, ID_TEST_CHECKED), TBSTATE_ENABLED | TBSTATE_CHECKED);
    EXPECT_STREQ(frame.status.GetPaneText(1), "shown");
    EXPECT_EQ(frame.status.GetPaneStyle(1), UINT{SBPS_POPOUT});
    frame.off = false;
    frame.settle();
    EXPECT_TRUE(frame.enabled(ID_TEST_OFF));

    CMenu* popup = frame.GetMenu()->GetSubMenu(1);
    const auto is = [&](UINT id, UINT state) { return (popup->GetMenuState(id, MF_BYCOMMAND) & state) != 0; };
    frame.off = true;
    frame.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup->m_hMenu), 1);
    EXPECT_TRUE(!is(ID_TEST_ON, MF_GRAYED) && is(ID_TEST_OFF, MF_GRAYED) && is(ID_TEST_NOBODY, MF_GRAYED));
    EXPECT_TRUE(is(ID_TEST_CHECKED, MF_CHECKED) && is(ID_VIEW_TOOLBAR, MF_CHECKED));
    CString name;
    popup->GetMenuString(ID_TEST_CHECKED, name, MF_BYCOMMAND);
    EXPECT_STREQ(name, "Text");
    frame.gone = ID_TEST_ON;
    popup->EnableMenuItem(ID_TEST_NOBODY, MF_ENABLED);
    frame.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup->m_hMenu), 1);
    EXPECT_TRUE(is(ID_TEST_NOBODY, MF_GRAYED)) << "the next one is not passed over";
    const HMENU gone = ::CreatePopupMenu();
    ::DestroyMenu(gone);
    for (const HMENU none : {gone, HMENU{}})
        frame.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(none), 1);
    frame.SendMessage(WM_COMMAND, ID_TEST_OFF);
    EXPECT_TRUE(frame.log.empty()) << "a key for a disabled command";
    MSG key{frame.m_hWnd, WM_KEYDOWN, 'T', 0x140001, 0, {0, 0}};
    EXPECT_TRUE((HeldKeys({VK_CONTROL}), frame.PreTranslateMessage(&key)));
    EXPECT_THAT(frame.log, ElementsAre("on"));
}

TEST_F(AfxFrame, ShowsPromptsOfMenusAndOfButtonsUnderThePointer) {
    const UINT panes[] = {ID_SEPARATOR};
    frame.status.SetIndicators(panes, 1);
    frame.settle();
    const auto shown = [&] { return text_of(frame.status); };
    frame.SetMessageText("as the program says");
    EXPECT_EQ(shown(), "as the program says");
    const auto menu = reinterpret_cast<LPARAM>(frame.GetMenu()->m_hMenu);
    frame.SendMessage(WM_MENUSELECT, MAKEWPARAM(ID_TEST_ON, MF_HILITE), menu);
    EXPECT_EQ(shown(), "Switch it on") << "without the tip";
    frame.SendMessage(WM_MENUSELECT, MAKEWPARAM(SC_CLOSE, MF_SYSMENU), menu);
    EXPECT_EQ(shown(), "Close the active window and ask about unsaved documents");
    frame.SendMessage(WM_MENUSELECT, MAKEWPARAM(0, 0xFFFF), 0);
    EXPECT_EQ(shown(), "Ready");

    CRect button;
    frame.tools.GetItemRect(0, button);
    const CPoint at = button.CenterPoint();
    MSG move{frame.tools.m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(at.x, at.y), 0, {0, 0}};
    for (const UINT message : {WM_MOUSEMOVE, WM_RBUTTONDOWN, WM_LBUTTONDOWN, WM_MOUSEMOVE}) {
        move.message = message;
        frame.tools.PreTranslateMessage(&move);
        EXPECT_EQ(shown(), message == WM_LBUTTONDOWN ? "Ready" : "Switch it on");
    }
    frame.tools.SendMessage(WM_MOUSELEAVE);
    EXPECT_EQ(shown(), "Ready");
    TOOLTIPTEXTA tip{};
    tip.hdr = {frame.tools.m_hWnd, ID_TEST_ON, static_cast<UINT>(TTN_NEEDTEXTA)};
    EXPECT_EQ(frame.SendMessage(WM_NOTIFY, ID_TEST_ON, reinterpret_cast<LPARAM>(&tip)), 0);
    EXPECT_STREQ(tip.szText, "On");
    ::SetWindowLongPtr(frame.more, GWLP_ID, ID_TEST_ON);
    TOOLTIPTEXTW wide{};
    wide.hdr = {frame.more, reinterpret_cast<UINT_PTR>(frame.more.m_hWnd), static_cast<UINT>(TTN_NEEDTEXTW)};
    wide.uFlags = TTF_IDISHWND;
    frame.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&wide));
    EXPECT_STREQ(wide.szText, L"On");
}

// A key goes through the frame, then the command that the platform makes of it; the next key ends the menu.
TEST_F(AfxFrame, HidesItsMenuBarUntilAKeyAsksForIt) {
    const HMENU menu = frame.GetMenu()->m_hMenu;
    const auto press = [&](WPARAM key, LPARAM letter = 0, int leaving = VK_ESCAPE) {
        MSG down{frame.m_hWnd, WM_SYSKEYDOWN, key, 1 << 29, 0, {0, 0}};
        frame.PreTranslateMessage(&down);
        const HeldKeys held({leaving});
        for (int i = 0; i < 3; ++i)
            frame.PostMessage(WM_KEYDOWN, VK_ESCAPE);
        frame.SendMessage(WM_SYSCOMMAND, SC_KEYMENU, letter);
        MSG message;
        while (::PeekMessage(&message, frame, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE)) {
        }
        return std::exchange(frame.log, {});
    };
    EXPECT_THAT(press(VK_MENU), ElementsAre()) << "always shown";
    frame.SetMenuBarVisibility(AFX_MBV_DISPLAYONFOCUS);
    EXPECT_TRUE(frame.GetMenu() == nullptr && frame.GetMenuBarState() == AFX_MBS_HIDDEN);
    EXPECT_EQ(frame.GetMenuBarVisibility(), static_cast<DWORD>(AFX_MBV_DISPLAYONFOCUS));
    EXPECT_THAT(std::exchange(frame.log, {}), ElementsAre("hide"));
    EXPECT_THAT(press(VK_F10), ElementsAre()) << "for Alt only";
    EXPECT_THAT(press(VK_MENU), ElementsAre("show", "hide"));
    EXPECT_THAT(press('F', 'f'), ElementsAre("show", "hide"));
    EXPECT_TRUE(frame.SetMenuBarState(AFX_MBS_VISIBLE) && !frame.SetMenuBarState(AFX_MBS_VISIBLE));
    EXPECT_EQ(frame.GetMenu()->m_hMenu, menu);
    EXPECT_THAT(press(VK_MENU), ElementsAre("show", "hide")) << "it goes as it came";
    frame.SetMenuBarVisibility(AFX_MBV_DISPLAYONFOCUS | AFX_MBV_DISPLAYONF10);
    EXPECT_THAT(press(VK_F10, 0, VK_F10), ElementsAre("show")) << "until a key hides it";
    EXPECT_THAT(press(VK_F10, 0, VK_F10), ElementsAre());
    MSG escape{frame.m_hWnd, WM_KEYDOWN, VK_ESCAPE, 1, 0, {0, 0}};
    EXPECT_FALSE(frame.PreTranslateMessage(&escape)) << "others may want it, too";
    EXPECT_THAT(std::exchange(frame.log, {}), ElementsAre("hide"));
    frame.OnUpdateFrameMenu(nullptr);
    EXPECT_EQ(frame.GetMenu(), nullptr) << "the menu of a document stays hidden, too";
    frame.DestroyWindow();
    EXPECT_FALSE(::IsMenu(menu)) << "it goes with the window";
}

TEST_F(AfxFrame, HasTheProgramsIconAndUpdatesItselfWhenIdle) {
    const auto icon = reinterpret_cast<HICON>(::GetClassLongPtr(frame, GCLP_HICON));
    EXPECT_TRUE(icon != nullptr && icon == the_app.LoadIcon(AFX_IDI_STD_FRAME));
    CMenu other;
    other.CreateMenu();
    frame.SetTitle("later");
    frame.DelayUpdateFrameTitle();
    frame.DelayUpdateFrameMenu(other);
    EXPECT_TRUE(text_of(frame) != "later" && frame.GetMenu()->m_hMenu != other.m_hMenu);
    frame.ShowControlBar(&frame.tools, FALSE, TRUE);
    EXPECT_TRUE(frame.tools.IsWindowVisible());
    the_app.OnIdle(0);
    EXPECT_TRUE(text_of(frame) == "later" && frame.GetMenu()->m_hMenu == other.m_hMenu);
    EXPECT_FALSE(frame.tools.IsWindowVisible());
    the_app.m_pMainWnd = &frame;
    frame.SetTitle("last");
    frame.DelayUpdateFrameTitle();
    the_app.OnIdle(0);
    EXPECT_EQ(text_of(frame), "last");
    the_app.m_pMainWnd = nullptr;
    frame.OnUpdateFrameMenu(nullptr);
    frame.ShowWindow(SW_MINIMIZE);
    frame.ActivateFrame();
    EXPECT_FALSE(frame.IsIconic());
}

TEST_F(AfxFrame, LaysOutDockedBarsAndRemembersThem) {
    CWnd client;
    ASSERT_TRUE(client.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 1, 1), &frame, AFX_IDW_PANE_FIRST));
    frame.tools.EnableDocking(CBRS_ALIGN_ANY);
    frame.more.EnableDocking(CBRS_ALIGN_TOP | CBRS_ALIGN_LEFT);
    frame.EnableDocking(CBRS_ALIGN_LEFT);
    frame.EnableDocking(CBRS_ALIGN_ANY);
    frame.DockControlBar(&frame.tools);
    frame.DockControlBar(&frame.more, AFX_IDW_DOCKBAR_LEFT);
    frame.SetWindowPos(nullptr, 250, 40, 500, 400, SWP_NOZORDER | SWP_NOACTIVATE);
    frame.settle();
    frame.RecalcLayout();
    const CRect all = inside_of(frame);
    const CRect top = frame.client_of(frame.tools), left = frame.client_of(frame.more),
                status = frame.client_of(frame.status), middle = frame.client_of(client);
    EXPECT_EQ(top.top, 0);
    EXPECT_GT(top.Width(), 4 * 23) << "four buttons and a gap";
    EXPECT_LT(left.Width(), left.Height()) << "one below the other";
    EXPECT_TRUE(status.bottom == all.bottom && status.Width() == all.Width() && status.Height() > 15);
    EXPECT_EQ(middle, CRect(left.right, top.bottom, all.right, status.top));
    EXPECT_EQ(left.top, top.bottom) << "the upper side is above the left one, whichever was enabled first";

    AFX_SIZEPARENTPARAMS question{};
    frame.tools.DelayShow(FALSE);
    EXPECT_EQ(frame.tools.RecalcDelayShow(&question) & (WS_VISIBLE | CBRS_ALIGN_ANY), UINT{CBRS_ALIGN_TOP});
    frame.tools.DelayShow(TRUE);
    EXPECT_NE(frame.tools.RecalcDelayShow(&question) & WS_VISIBLE, 0u);
    EXPECT_TRUE(frame.OnBarCheck(ID_VIEW_TOOLBAR));
    EXPECT_FALSE(frame.tools.IsVisible());
    EXPECT_EQ(frame.client_of(client).top, 0);
    frame.SaveBarState("Layout");
    frame.ShowControlBar(&frame.tools, TRUE, FALSE);
    frame.DockControlBar(&frame.more, AFX_IDW_DOCKBAR_TOP);
    frame.RecalcLayout();
    EXPECT_EQ(frame.client_of(frame.more).top, frame.client_of(frame.tools).bottom) << "a row of its own";
    CRect beside = on_screen(frame.tools);
    frame.DockControlBar(&frame.more, AFX_IDW_DOCKBAR_TOP,
                         CRect(beside.right, beside.top, beside.right + 10, beside.bottom));
    frame.RecalcLayout();
    EXPECT_EQ(frame.client_of(frame.more).TopLeft(), CPoint(frame.client_of(frame.tools).right, 0));
    beside.OffsetRect(0, -beside.Height());
    frame.DockControlBar(&frame.more, AFX_IDW_DOCKBAR_TOP, beside);
    frame.RecalcLayout();
    EXPECT_EQ(frame.client_of(frame.more).bottom, frame.client_of(frame.tools).top) << "above all rows";
    frame.LoadBarState("Layout");
    EXPECT_FALSE(frame.tools.IsVisible());
    EXPECT_EQ(frame.client_of(frame.more), CRect(CPoint(0, 0), left.Size()));
    EXPECT_TRUE(raises<CInvalidArgException>([&] { frame.DockControlBar(&frame.more, AFX_IDW_DOCKBAR_RIGHT); }))
        << "a side that the bar refuses";
    frame.more.DestroyWindow();
    EXPECT_TRUE(frame.more.GetDockingFrame() == nullptr && frame.m_listControlBars.Find(&frame.more) == nullptr);
}

TEST_F(AfxFrame, DialogBarsUpdateTheirControlsAndSendTheirCommands) {
    ASSERT_TRUE(frame.dialog.Create(&frame, IDD_FORM, CBRS_BOTTOM | WS_VISIBLE, 0xE860));
    frame.settle();
    frame.RecalcLayout();
    EXPECT_EQ(frame.client_of(frame.dialog).bottom, frame.client_of(frame.status).top);
    EXPECT_FALSE(::IsChild(frame.dialog, ::GetFocus())) << "the frame keeps the focus";
    CWnd* button = frame.dialog.GetDlgItem(IDC_FORM_BUTTON);
    button->SendMessage(BM_CLICK);
    EXPECT_THAT(frame.log, ElementsAre("on"));
    CDialog box;
    ASSERT_TRUE(box.Create(IDD_TEST, &frame));
    EXPECT_EQ(box.SendMessage(WM_COMMAND, ID_TEST_ON), 1) << "a dialog's go to its owner, too";
    EXPECT_THAT(frame.log, ElementsAre("on", "on"));
}

TEST_F(AfxFrame, ButtonsAndPanesKeepTheirStyles) {
    CToolBar& bar = frame.tools;
    EXPECT_EQ(bar.CommandToIndex(ID_TEST_CHECKED), 3);
    EXPECT_TRUE(bar.GetItemID(2) == 0 && bar.GetButtonStyle(2) == TBBS_SEPARATOR) << "the gap";
    bar.SetButtonInfo(0, ID_TEST_ON, TBBS_CHECKBOX | TBBS_CHECKED, 1);
    UINT id = 0, style = 0;
    int image = 0;
    bar.GetButtonInfo(0, id, style, image);
    EXPECT_TRUE(style == UINT(TBBS_CHECKBOX | TBBS_CHECKED) && image == 1);
    bar.GetButtonInfo(4, id, style, image);
    EXPECT_TRUE(id == ID_TEST_NOBODY && image == 3);
    bar.SetButtonStyle(1, TBBS_BUTTON | TBBS_DISABLED);
    EXPECT_FALSE(frame.enabled(ID_TEST_OFF));
    bar.SetButtonText(1, "Label");
    EXPECT_STREQ(bar.GetButtonText(1), "Label");
    CRect before(1, 2, 3, 4), after, button;
    bar.GetItemRect(99, before);
    bar.GetItemRect(1, button);
    TOOLINFO tool{};
    EXPECT_TRUE(before.IsRectEmpty() && bar.OnToolHitTest(button.CenterPoint(), &tool) == ID_TEST_OFF);
    EXPECT_TRUE(tool.uId == ID_TEST_OFF && tool.hwnd == bar.m_hWnd && tool.rect == button);
    EXPECT_EQ(tool.lpszText, LPSTR_TEXTCALLBACK);
    const HBITMAP images = frame.tools.m_hbmImageWell;
    bar.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_TRUE(::GetObjectType(images) == 0 && ::GetObjectType(frame.tools.m_hbmImageWell) == OBJ_BITMAP);
    EXPECT_FALSE(bar.EnableToolTips(FALSE)) << "its style had none";
    bar.SetBarStyle(bar.GetBarStyle() | CBRS_TOOLTIPS);
    EXPECT_TRUE(bar.EnableToolTips()) << "its style has them";
    bar.SetSizes(CSize(24, 22), CSize(16, 15));
    bar.SetHeight(41);
    EXPECT_EQ(bar.GetBorders(), CRect(2, 9, 2, 10));

    const UINT panes[] = {ID_SEPARATOR, ID_TEST_PANE};
    frame.status.SetIndicators(panes, 2);
    frame.status.GetItemRect(1, before);
    EXPECT_EQ(frame.status.GetStyle() & SBARS_SIZEGRIP, DWORD{SBARS_SIZEGRIP});
    frame.status.GetPaneInfo(1, id, style, image);
    EXPECT_TRUE(id == ID_TEST_PANE && style == SBPS_DISABLED);
    CClientDC dc(&frame.status);
    dc.SelectObject(frame.status.GetFont());
    EXPECT_EQ(image, dc.GetTextExtent(frame.status.GetPaneText(1)).cx);
    EXPECT_NEAR(before.Width(), image + 8, 2);
    frame.status.SetPaneInfo(1, ID_TEST_PANE, SBPS_POPOUT, 200);
    frame.status.GetItemRect(1, after);
    frame.status.GetPaneInfo(1, id, style, image);
    EXPECT_TRUE(id == ID_TEST_PANE && style == SBPS_POPOUT && image == 200);
    EXPECT_EQ(HIWORD(frame.status.SendMessage(SB_GETTEXTLENGTH, 1)), SBT_POPOUT);
    EXPECT_TRUE(before.Width() < 200 && after.Width() >= 200 && after.right <= inside_of(frame.status).right);
    frame.status.SetPaneStyle(1, SBPS_STRETCH);
    frame.status.GetItemRect(0, before);
    frame.status.GetItemRect(1, after);
    EXPECT_NEAR(before.Width(), after.Width(), 2) << "both share the width";
    EXPECT_FALSE(frame.status.SetPaneText(2, "none such"));
    auto* without = new CFrameWnd; // deletes itself
    EXPECT_FALSE(without->Create(nullptr, "x", WS_OVERLAPPEDWINDOW, CFrameWnd::rectDefault, nullptr, "NoSuchMenu"));
}

// Of a size of its own.
struct plain_bar : CControlBar {
    CSize size;
    CSize CalcFixedLayout(BOOL, BOOL) override { return size; }
    void OnUpdateCmdUI(CFrameWnd*, BOOL) override {}
    using CControlBar::DoPaint;
};

TEST(AfxControlBar, TakesItsPartOfItsParentAndPaintsItsEdges) {
    CWnd parent, rest;
    ASSERT_TRUE(create_popup(parent)); // 120 x 80
    constexpr DWORD sides[] = {CBRS_ALIGN_LEFT | CBRS_BORDER_RIGHT | CBRS_BORDER_BOTTOM | CBRS_GRIPPER,
                               CBRS_ALIGN_TOP | CBRS_BORDER_LEFT | CBRS_BORDER_TOP | CBRS_GRIPPER, CBRS_ALIGN_RIGHT,
                               CBRS_ALIGN_BOTTOM};
    plain_bar bars[4];
    std::vector<CRect> places;
    for (int i = 0; i < 4; ++i) {
        bars[i].size = CSize(14 + i, 9 + i);
        bars[i].SetBarStyle(sides[i]);
        ASSERT_TRUE(bars[i].CWnd::Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(), &parent, 100 + i));
    }
    ASSERT_TRUE(rest.Create(nullptr, "", WS_CHILD, CRect(), &parent, 200));
    CRect left(1, 2, 3, 4), all;
    parent.RepositionBars(100, 103, 200, CWnd::reposExtra, left);
    for (const CWnd* wnd : {static_cast<CWnd*>(&bars[0]), static_cast<CWnd*>(&bars[1]), static_cast<CWnd*>(&bars[2]),
                            static_cast<CWnd*>(&bars[3]), &rest})
        places.push_back(place_in(parent, *wnd));
    EXPECT_THAT(places, ElementsAre(CRect(0, 0, 14, 9), CRect(14, 0, 29, 10), CRect(104, 10, 120, 21),
                                    CRect(14, 68, 31, 80), CRect(15, 12, 101, 64)));
    parent.RepositionBars(100, 103, 200, CWnd::reposQuery, left, CRect(10, 20, 310, 220));
    parent.RepositionBars(101, 102, 200, CWnd::reposQuery, all, nullptr, FALSE);
    EXPECT_EQ(left, CRect(24, 30, 294, 208)) << "what the bars leave";
    EXPECT_EQ(all, CRect(0, 0, 31, 11)) << "what they need";
    bars[1].SetBorders(1, 2, 3, 4);
    bars[1].CalcInsideRect(left = CRect(0, 0, 50, 40), TRUE);
    bars[0].SetBorders(1, 2, 3, 4);
    bars[0].CalcInsideRect(all = CRect(0, 0, 50, 40), FALSE);
    EXPECT_EQ(left, CRect(8, 3, 47, 36));
    EXPECT_EQ(all, CRect(1, 8, 46, 35));
    Picture seen(30, 10);
    CDC* dc = CDC::FromHandle(seen.dc());
    bars[1].DoPaint(dc);
    dc->SetViewportOrg(16, 0);
    bars[0].DoPaint(dc);
    const COLORREF light = ::GetSysColor(COLOR_3DHIGHLIGHT), dark = ::GetSysColor(COLOR_3DSHADOW);
    EXPECT_EQ(letters(seen.values(), 30, {{0, '.'}, {light, '-'}, {dark, '#'}}), "---------------..............#\n"
                                                                                 "-............................#\n"
                                                                                 "-............................#\n"
                                                                                 "-...--#...........--------#..#\n"
                                                                                 "-...-.#...........-.......#..#\n"
                                                                                 "-...-.#...........#########..#\n"
                                                                                 "-...-.#......................#\n"
                                                                                 "-...###......................#\n"
                                                                                 "-...............##############\n"
                                                                                 "-.............................\n");
}

TEST_F(AfxReBar, HoldsTheFramesBars) {
    CReBar rebar;
    constexpr COLORREF red = RGB(255, 0, 0), blue = RGB(0, 0, 255);
    ASSERT_TRUE(rebar.Create(&frame));
    const CSize wanted = frame.tools.CalcFixedLayout(FALSE, TRUE);
    ASSERT_TRUE(rebar.AddBar(&frame.tools) &&
                rebar.AddBar(&frame.more, red, blue, "More", RBBS_BREAK | RBBS_GRIPPERALWAYS));
    EXPECT_TRUE(raises<CInvalidArgException>([&] { rebar.AddBar(nullptr); }));
    EXPECT_TRUE(rebar.GetReBarCtrl().GetBandCount() == 2 && rebar.GetReBarCtrl().GetRowCount() == 2);
    EXPECT_EQ(::GetParent(frame.tools.m_hWnd), rebar.m_hWnd);
    REBARBANDINFO band{};
    char title[9] = "";
    band.cbSize = REBARBANDINFOA_V6_SIZE;
    band.fMask = RBBIM_COLORS | RBBIM_TEXT | RBBIM_STYLE | RBBIM_CHILD | RBBIM_ID;
    band.lpText = title;
    band.cch = sizeof(title);
    EXPECT_TRUE(rebar.GetReBarCtrl().GetBandInfo(1, &band) && band.clrFore == red && band.clrBack == blue);
    EXPECT_TRUE((band.fStyle & RBBS_BREAK) != 0 && band.hwndChild == frame.more.m_hWnd && band.wID == 0xE850);
    EXPECT_STREQ(title, "More");
    CRect button;
    frame.tools.GetItemRect(1, button);
    frame.tools.MapWindowPoints(&rebar, button);
    EXPECT_EQ(rebar.OnToolHitTest(button.CenterPoint(), nullptr), ID_TEST_OFF);
    EXPECT_EQ(rebar.OnToolHitTest(CPoint(1, 1), nullptr), -1) << "the gripper";
    frame.settle();
    const CRect place = frame.client_of(rebar);
    EXPECT_TRUE(place.Width() == inside_of(frame).Width() && place.Height() >= 2 * wanted.cy);
    EXPECT_GE(on_screen(frame.tools).Width(), wanted.cx) << "its buttons find room beside the gripper";
    EXPECT_TRUE(frame.enabled(ID_TEST_ON));
    frame.tools.SendMessage(WM_COMMAND, ID_TEST_ON);
    EXPECT_THAT(frame.log, ElementsAre("on"));
    frame.more.SetSizes(CSize(60, 60), CSize(16, 15));
    rebar.SendMessage(WM_RECALCPARENT);
    const int grown = frame.more.CalcFixedLayout(FALSE, TRUE).cy - wanted.cy;
    EXPECT_TRUE(grown > 20 && int(rebar.GetReBarCtrl().GetBarHeight()) == place.Height() + grown);
    rebar.GetReBarCtrl().ShowBand(1, FALSE);
    EXPECT_TRUE(pumped_until([&] { return frame.client_of(rebar).Height() < place.Height() * 2 / 3; })) << "one row";
}

struct AfxHelp : AfxFrame {
    AfxHelp() { the_app.m_pMainWnd = &frame; }
    ~AfxHelp() override {
        the_app.helped.clear();
        the_app.m_pMainWnd = nullptr;
    }
    static DWORD_PTR topic(DWORD_PTR number) { return number << 8 | HELP_CONTEXT; }
};

TEST_F(AfxHelp, IsAskedForTheNearestWindowThatKnowsATopic) {
    the_app.OnHelp();
    frame.SendMessage(WM_MENUSELECT, MAKEWPARAM(ID_TEST_ON, MF_HILITE), 0);
    the_app.OnHelp();
    frame.SendMessage(WM_MENUSELECT, MAKEWPARAM(0, 0xFFFF), 0);
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_TEST, &frame));
    CWnd* button = dialog.GetDlgItem(IDOK);
    button->OnHelp();
    HELPINFO key{sizeof(key), HELPINFO_WINDOW, IDOK, button->m_hWnd, 0, {0, 0}};
    dialog.SendMessage(WM_HELP, 0, reinterpret_cast<LPARAM>(&key)); // sends the command, which nobody here handles
    bar_frame unknown;
    ASSERT_TRUE(unknown.Create(nullptr, "without a topic"));
    EXPECT_EQ(unknown.SendMessage(WM_COMMANDHELP), 0);
    EXPECT_STREQ(CString(the_app.m_pszHelpFilePath).Right(13), "\\afx_test.HLP");
    the_app.OnHelpFinder();
    EXPECT_THAT(the_app.helped, ElementsAre(topic(0x20000 + IDR_FRAME), topic(0x10000 + ID_TEST_ON),
                                            topic(0x20000 + IDD_TEST), DWORD_PTR{HELP_FINDER}));
}

TEST_F(AfxHelp, IsGivenAboutWhatIsClickedNext) {
    const auto click = [&](CWnd& wnd, CPoint place, UINT message, WPARAM key = 0) {
        wnd.ClientToScreen(&place);
        ::SetCursorPos(place.x, place.y);
        frame.PostMessage(message, key);
        frame.OnContextHelp();
        EXPECT_TRUE(!frame.m_bHelpMode && ::GetCapture() == nullptr);
    };
    CRect button;
    frame.tools.GetItemRect(0, button);
    CWnd passing;
    ASSERT_TRUE(create_popup(passing) && passing.PostMessage(WM_CLOSE));
    click(frame.tools, button.CenterPoint(), WM_LBUTTONDOWN);
    EXPECT_EQ(passing.m_hWnd, nullptr) << "other windows live on";
    click(frame, CPoint(10, 200), WM_LBUTTONDOWN);
    click(frame.tools, button.CenterPoint(), WM_KEYDOWN, VK_ESCAPE);
    EXPECT_THAT(the_app.helped, ElementsAre(topic(0x10000 + ID_TEST_ON), topic(0x20000 + IDR_FRAME)));
}

TEST_F(AfxFrame, KeepsTheUserOutWhileItIsModal) {
    bar_frame other;
    ASSERT_TRUE(other.open());
    CDialog shown, disabled;
    ASSERT_TRUE(shown.Create(IDD_TEST, &frame) && disabled.Create(IDD_TEST, &frame));
    disabled.EnableWindow(FALSE);
    frame.BeginModalState();
    frame.BeginModalState();
    frame.EndModalState();
    EXPECT_TRUE(frame.InModalState() && other.IsWindowEnabled());
    EXPECT_FALSE(frame.IsWindowEnabled() || shown.IsWindowEnabled());
    frame.EndModalState();
    frame.EndModalState();
    EXPECT_TRUE(!frame.InModalState() && frame.IsWindowEnabled() && shown.IsWindowEnabled());
    EXPECT_FALSE(disabled.IsWindowEnabled()) << "as it was";
    frame.EnableWindow(FALSE); // as a modal dialog does
    EXPECT_TRUE(frame.InModalState() && !shown.IsWindowEnabled() && other.IsWindowEnabled());
    frame.EnableWindow(TRUE);
    EXPECT_TRUE(!frame.InModalState() && shown.IsWindowEnabled() && !disabled.IsWindowEnabled());
    CDialog modal(IDD_TEST, &shown);
    bool kept = false;
    const WhileModal work([&] {
        if (modal.m_hWnd == nullptr)
            return false;
        kept = modal.IsWindowEnabled() && !frame.IsWindowEnabled();
        return modal.EndDialog(IDOK), true;
    });
    modal.DoModal();
    EXPECT_TRUE(kept && frame.IsWindowEnabled() && shown.IsWindowEnabled()) << "though in front of another dialog";
}

} // namespace
