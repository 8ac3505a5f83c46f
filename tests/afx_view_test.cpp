// Views that scroll or hold controls; splitters that divide them.
#include "afx_test_app.h"
#include "held_keys.h"
#include "view_frame.h"

#include <afxext.h>
#include <afxpriv.h>

using testing::ElementsAre;

namespace {

constexpr COLORREF red = RGB(255, 0, 0), white = RGB(255, 255, 255);

class page_view : public CScrollView {
    DECLARE_DYNCREATE(page_view)

public:
    void OnDraw(CDC* dc) override { dc->SetPixel(40, 50, red); }
    CSize GetWheelScrollDistance(CSize by, BOOL across, BOOL down) override {
        return CScrollView::GetWheelScrollDistance(CSize(by.cx * wheel, by.cy * wheel), across, down);
    }
    void OnActivateView(BOOL on, CView* to, CView* from) override {
        active = on != FALSE;
        CScrollView::OnActivateView(on, to, from);
    }
    using CScrollView::CalcWindowRect, CScrollView::CenterOnPoint, CScrollView::FillOutsideRect;
    using CScrollView::GetTrueClientSize, CScrollView::OnPrepareDC, CScrollView::m_bCenter;
    int wheel = 1;
    bool active = false;
};
IMPLEMENT_DYNCREATE(page_view, CScrollView)

class form : public CFormView {
    DECLARE_DYNCREATE(form)

public:
    form() : CFormView(static_cast<UINT>(IDD_FORM)) {}
    int exchanged = 0;
    using CFormView::PreTranslateMessage;
    void DoDataExchange(CDataExchange* exchange) override { exchanged += exchange->m_bSaveAndValidate ? 100 : 1; }
};
IMPLEMENT_DYNCREATE(form, CFormView)

// Tells of its drags, and keeps its first column.
struct told_splitter : CSplitterWnd {
    std::string log;
    int narrowest = 0;
    std::vector<CRect> drawn;
    using CSplitterWnd::OnDraw, CSplitterWnd::splitBorder;
    void OnDrawSplitter(CDC* dc, ESplitType type, const CRect& rect) override {
        drawn.push_back(rect);
        CSplitterWnd::OnDrawSplitter(dc, type, rect);
    }
    void StartTracking(int ht) override { log += "start " + std::to_string(ht), CSplitterWnd::StartTracking(ht); }
    void StopTracking(BOOL take) override { log += " stop " + std::to_string(take), CSplitterWnd::StopTracking(take); }
    void TrackRowSize(int y, int row) override { log += " row", CSplitterWnd::TrackRowSize(y, row); }
    void TrackColumnSize(int x, int col) override { CSplitterWnd::TrackColumnSize(std::max(x, narrowest), col); }
};

// A frame around splitters.
struct split_frame : view_frame {
    told_splitter splitter, inner;
};

TEST(AfxScrollView, ScrollsWithinItsDocumentInLogicalUnits) {
    view_frame frame;
    auto& view = frame.open<page_view>();
    view.SetScrollSizes(MM_TEXT, CSize(1000, 2000), CSize(100, 150), CSize(10, 15));
    BOOL horizontal = FALSE, vertical = FALSE;
    view.CheckScrollBars(horizontal, vertical);
    EXPECT_TRUE(horizontal && vertical);
    EXPECT_TRUE((view.GetExStyle() & WS_EX_CLIENTEDGE) != 0 && (view.GetStyle() & WS_BORDER) == 0);
    CStatic mark; // goes with what is shown
    ASSERT_TRUE(mark.Create("", WS_CHILD, CRect(0, 0, 5, 5), &view));
    const auto origin = [&] { return place_in(view, mark).TopLeft(); };
    const CRect client = inside_of(view);
    CSize whole, bars;
    EXPECT_TRUE(view.GetTrueClientSize(whole, bars));
    EXPECT_EQ(whole, client.Size() + CSize(::GetSystemMetrics(SM_CXVSCROLL), ::GetSystemMetrics(SM_CYHSCROLL)));
    frame.SetActiveView(&view);
    std::string path;
    constexpr std::pair<UINT, UINT> steps[] = {
        {WM_VSCROLL, SB_LINEDOWN}, {WM_VSCROLL, SB_PAGEDOWN}, {WM_HSCROLL, SB_PAGERIGHT}, {WM_HSCROLL, SB_LINELEFT},
        {WM_VSCROLL, SB_LINEUP},   {WM_VSCROLL, SB_PAGEUP},   {WM_HSCROLL, SB_LEFT},      {WM_HSCROLL, SB_LINERIGHT}};
    for (const auto& [message, code] : steps) {
        frame.SendMessage(message, code);
        path += std::to_string(-origin().x) + "," + std::to_string(-origin().y) + " ";
        EXPECT_EQ(view.GetScrollPosition(), -origin());
    }
    EXPECT_EQ(path, "0,15 0,165 100,165 90,165 90,150 90,0 0,0 10,0 ");
    view.ScrollToPosition(CPoint(400, 900));
    view.SetScrollSizes(MM_TEXT, client.Size() + CSize(60, 300), CSize(100, 150), CSize(10, 15));
    EXPECT_EQ(origin(), CPoint(-60, -300)) << "so far as there is something";
    view.SetScrollSizes(MM_TEXT, CSize(1000, 2000), CSize(100, 150), CSize(10, 15));
    const int end = 2000 - client.Height();
    for (const UINT code : {SB_BOTTOM, SB_LINEDOWN}) {
        view.SendMessage(WM_VSCROLL, code);
        EXPECT_EQ(view.GetScrollPosition().y, end) << code;
    }
    view.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA));
    EXPECT_EQ(view.GetScrollPosition().y, end - 3 * 15);
    view.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, WHEEL_DELTA));
    view.wheel = 2;
    EXPECT_TRUE(view.DoMouseWheel(0, WHEEL_DELTA, CPoint()));
    EXPECT_EQ(view.GetScrollPosition().y, end - 9 * 15) << "twice as far, but not with a key";
    view.ScrollToPosition(CPoint(-5, 40));
    EXPECT_EQ(view.GetScrollPosition(), CPoint(0, 40));
    canvas shown(50, 50);
    view.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(shown.m_hDC));
    EXPECT_EQ(shown.GetPixel(40, 10), red);
    view.UpdateWindow();
    EXPECT_EQ(CClientDC(&view).GetPixel(40, 10), red);
    view.SendMessage(WM_INITIALUPDATE);
    EXPECT_TRUE(view.GetUpdateRect(nullptr)) << "whatever its document tells";
    view.SetScrollSizes(MM_LOENGLISH, CSize(100, 3000));
    view.ScrollToPosition(CPoint(0, -500));
    EXPECT_NEAR(view.GetScrollPosition().y, -500, 2) << "y grows upwards";
    view.SetScrollSizes(MM_TEXT, CSize(50, 60));
    view.CheckScrollBars(horizontal, vertical);
    EXPECT_FALSE(horizontal || vertical);
    EXPECT_TRUE(view.GetScrollPosition() == CPoint(0, 0) && origin() == CPoint(0, 0)) << "everything is to be seen";
    view.SetScrollSizes(MM_TEXT, CSize(whole.cx - 1, 5000)); // the bar that this needs takes the room of the width
    view.CheckScrollBars(horizontal, vertical);
    EXPECT_TRUE(horizontal && vertical);
    view.SetScrollSizes(MM_TEXT, CSize(50, 60));
    view.m_bCenter = TRUE;
    CClientDC dc(&view);
    view.OnPrepareDC(&dc);
    const CRect all = inside_of(view);
    EXPECT_EQ(dc.GetViewportOrg(), CPoint((all.Width() - 50) / 2, (all.Height() - 60) / 2));
    const CRect around = on_screen(frame);
    view.SetScrollSizes(MM_TEXT, CSize(700, 600));
    int mode = 0;
    SIZE total, page, line;
    view.GetDeviceScrollSizes(mode, total, page, line);
    const LONG told[] = {mode, total.cx, total.cy, page.cx, page.cy, line.cx, line.cy};
    EXPECT_THAT(told, ElementsAre(MM_TEXT, 700, 600, 70, 60, 7, 6));
    view.ResizeParentToFit(TRUE);
    EXPECT_EQ(on_screen(frame), around) << "it may only shrink";
    view.ResizeParentToFit(FALSE);
    EXPECT_GE(inside_of(view).Width(), 700);
}

TEST(AfxScrollView, FitsItsDocumentInOrFillsWhatLiesOutside) {
    view_frame frame;
    auto& view = frame.open<page_view>();
    view.SetScaleToFitSize(CSize(200, 50));
    for (const int width : {420, 300}) {
        frame.SetWindowPos(nullptr, 0, 0, width, 320, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        CClientDC dc(&view);
        view.OnPrepareDC(&dc);
        CPoint corner(200, 50);
        dc.LPtoDP(&corner);
        EXPECT_EQ(corner, inside_of(view).BottomRight()) << width;
    }
    view.SetScrollSizes(MM_TEXT, CSize(3000, 2000));
    view.CenterOnPoint(CPoint(500, 700));
    const CPoint middle = inside_of(view).CenterPoint();
    EXPECT_EQ(view.GetScrollPosition(), CPoint(500 - middle.x, 700 - middle.y));
    view.SetScrollSizes(MM_TEXT, CSize(20, 10));
    canvas shown(30, 20);
    shown.SetViewportOrg(7, 8);
    CBrush brush(red);
    view.FillOutsideRect(&shown, &brush);
    EXPECT_EQ(shown.SetViewportOrg(0, 0), CPoint(7, 8));
    const COLORREF found[] = {shown.GetPixel(19, 9), shown.GetPixel(20, 9), shown.GetPixel(19, 10)};
    EXPECT_THAT(found, ElementsAre(white, red, red));
    CRect around(0, 0, 10, 10);
    view.CalcWindowRect(around, CWnd::adjustOutside);
    EXPECT_EQ(around.Width(), 10 + 2 * ::GetSystemMetrics(SM_CXEDGE));
}

TEST(AfxFormView, ExchangesDataAndScrollsItsTemplate) {
    view_frame frame;
    auto& view = frame.open<form>();
    frame.InitialUpdateFrame(nullptr, FALSE);
    view.SendMessage(WM_INITIALUPDATE);
    EXPECT_EQ(view.exchanged, 1);
    EXPECT_NE(view.GetDlgItem(IDC_FORM_NAME), nullptr);
    EXPECT_GT(inside_of(view).Width(), 300) << "as large as the frame, not as the template";
    BOOL horizontal = FALSE, vertical = FALSE;
    view.CheckScrollBars(horizontal, vertical);
    EXPECT_FALSE(vertical);
    frame.SetWindowPos(nullptr, 0, 0, 420, 150, SWP_NOZORDER | SWP_NOMOVE | SWP_NOACTIVATE);
    view.CheckScrollBars(horizontal, vertical);
    EXPECT_TRUE(vertical);
    view.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_TRUE(view.GetDlgItem(IDC_FORM_BUTTON)->IsWindowEnabled()) << "a form's buttons are not commands of a menu";
}

TEST(AfxFormView, KeepsItsFocusAndLeavesKeysToTheFrameFirst) {
    view_frame frame;
    auto& view = frame.open<form>();
    ASSERT_TRUE(frame.LoadAccelTable(MAKEINTRESOURCE(IDR_FRAME)));
    EXPECT_FALSE(::IsChild(view, ::GetFocus())) << "its data is not there yet";
    frame.InitialUpdateFrame(nullptr, FALSE);
    CWnd *name = view.GetDlgItem(IDC_FORM_NAME), *button = view.GetDlgItem(IDC_FORM_BUTTON);
    view.SetFocus();
    EXPECT_EQ(::GetFocus(), name->m_hWnd) << "its first control";
    MSG key{name->m_hWnd, WM_KEYDOWN, VK_TAB, 0, 0, {}};
    EXPECT_TRUE(view.PreTranslateMessage(&key));
    EXPECT_EQ(::GetFocus(), button->m_hWnd);
    frame.SendMessage(WM_ACTIVATE, WA_INACTIVE);
    ::SetFocus(frame);
    view.SetFocus();
    EXPECT_EQ(::GetFocus(), button->m_hWnd) << "the one that had it";
    MSG command{name->m_hWnd, WM_KEYDOWN, 'T', 0, 0, {}}; // a key of the frame's
    EXPECT_TRUE((HeldKeys({VK_CONTROL}), view.PreTranslateMessage(&command)));
}

// A bar whose controls are updated like items of a menu.
struct choice_frame : view_frame {
    int chosen = ID_TEST_ON;
    afx_msg void OnChoose(UINT id) { chosen = static_cast<int>(id); }
    afx_msg void OnUpdateChoice(CCmdUI* ui) {
        ui->SetRadio(static_cast<int>(ui->m_nID) == chosen);
        ui->SetText(static_cast<int>(ui->m_nID) == chosen ? "chosen" : "other");
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(choice_frame, CFrameWnd)
ON_COMMAND_RANGE(ID_TEST_ON, ID_TEST_OFF, &choice_frame::OnChoose)
ON_UPDATE_COMMAND_UI_RANGE(ID_TEST_ON, ID_TEST_OFF, &choice_frame::OnUpdateChoice)
END_MESSAGE_MAP()

TEST(AfxCmdUI, ChecksRadiosInMenusAndAmongControls) {
    choice_frame frame;
    frame.open<page_view>();
    CButton buttons[2];
    for (const int i : {0, 1})
        ASSERT_TRUE(buttons[i].Create("?", WS_CHILD | WS_VISIBLE | BS_RADIOBUTTON, CRect(0, 0, 9, 9), &frame,
                                      static_cast<UINT>(ID_TEST_ON + i)));
    CMenu menu;
    ASSERT_TRUE(menu.LoadMenu(IDR_FRAME));
    const auto texts = [&] {
        frame.UpdateDialogControls(&frame, FALSE);
        frame.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.GetSubMenu(1)->m_hMenu), 1);
        std::string all;
        for (CButton& button : buttons)
            all += text_of(button) + (button.GetCheck() == BST_CHECKED ? "* " : " ");
        for (const UINT item : {0u, 1u}) {
            const UINT state = menu.GetSubMenu(1)->GetMenuState(item, MF_BYPOSITION);
            CString text;
            menu.GetSubMenu(1)->GetMenuString(item, text, MF_BYPOSITION);
            all += std::string(text) + ((state & MF_CHECKED) != 0 ? "* " : " ");
        }
        return all;
    };
    EXPECT_EQ(texts(), "chosen* other chosen* other ");
    frame.SendMessage(WM_COMMAND, ID_TEST_OFF);
    EXPECT_EQ(texts(), "other chosen* other chosen* ");
    MENUITEMINFO info{0, MIIM_FTYPE, 0, 0, 0, nullptr, nullptr, nullptr, 0, nullptr, 0, nullptr};
    EXPECT_TRUE(menu.GetSubMenu(1)->GetMenuItemInfo(1, &info, TRUE) && (info.fType & MFT_RADIOCHECK) != 0);
}

// Panes that the user divides.
struct AfxDynamicSplitter : testing::Test {
    AfxDynamicSplitter() {
        EXPECT_TRUE(frame.open([this](CCreateContext& context) {
            context.m_pNewViewClass = RUNTIME_CLASS(page_view);
            return splitter.Create(&frame, 2, 2, CSize(20, 20), &context);
        }));
    }
    CSize first_pane() {
        int height = 0, width = 0;
        splitter.GetRowInfo(0, height, least);
        splitter.GetColumnInfo(0, width, least);
        return CSize(width, height);
    }
    void send(UINT message, CPoint at) { splitter.SendMessage(message, MK_LBUTTON, MAKELPARAM(at.x, at.y)); }
    void drag(CPoint from, CPoint to) {
        send(WM_LBUTTONDOWN, from);
        send(WM_MOUSEMOVE, CPoint((from.x + to.x) / 2, (from.y + to.y) / 2));
        send(WM_LBUTTONUP, to);
    }

    split_frame frame;
    told_splitter& splitter = frame.splitter;
    int least = 0;
};

TEST_F(AfxDynamicSplitter, FollowsTheMouseToCrossingsAndBackAgain) {
    ASSERT_TRUE(splitter.SplitRow(80) && splitter.SplitColumn(120));
    const CSize first = first_pane(), by(30, 40);
    const CPoint crossing(first.cx + 5, first.cy + 5), moved = crossing + by;
    drag(crossing, moved);
    EXPECT_EQ(first_pane(), first + by) << "both bars at once";
    EXPECT_EQ(splitter.log, "start 301 stop 1 row");
    splitter.narrowest = 60;
    drag(CPoint(moved.x, 5), CPoint(30, 5));
    EXPECT_EQ(first_pane().cx, 58) << "as narrow as it lets it be";
    drag(CPoint(63, 5), CPoint(moved.x, 5));
    send(WM_LBUTTONDOWN, moved);
    send(WM_MOUSEMOVE, moved - CSize(50, 50));
    splitter.SendMessage(WM_KEYDOWN, VK_ESCAPE);
    EXPECT_TRUE(::GetCapture() == nullptr && first_pane() == first + by) << "the user thought better of it";
    send(WM_LBUTTONDOWN, moved);
    splitter.SendMessage(WM_CANCELMODE);
    EXPECT_EQ(::GetCapture(), nullptr);
    send(WM_LBUTTONDBLCLK, CPoint(moved.x, 10));
    EXPECT_TRUE(splitter.GetColumnCount() == 1 && splitter.GetRowCount() == 2);
    send(WM_LBUTTONDOWN, CPoint(10, moved.y));
    frame.SetCapture();
    EXPECT_TRUE(splitter.log.ends_with("stop 0")) << "another has the mouse";
    EXPECT_EQ(::GetCapture(), frame.m_hWnd);
    ::ReleaseCapture();
    send(WM_LBUTTONDBLCLK, CPoint(10, moved.y));
    EXPECT_EQ(splitter.GetRowCount(), 1);
    splitter.DeleteRow(0);
    splitter.DeleteColumn(-1);
    EXPECT_EQ(splitter.GetRowCount() * splitter.GetColumnCount(), 1) << "the last pane stays";
}

TEST_F(AfxDynamicSplitter, SplitsWherePulledAndJoinsWhatBecomesTooSmall) {
    const CRect client = inside_of(splitter);
    drag(CPoint(client.right - 4, 3), CPoint(client.right - 4, 100)); // the box above the scroll bar
    ASSERT_EQ(splitter.GetRowCount(), 2);
    EXPECT_NEAR(first_pane().cy, 97, 4);
    EXPECT_EQ(least, 20);
    drag(CPoint(50, first_pane().cy + 3), CPoint(50, 150));
    EXPECT_NEAR(first_pane().cy, 147, 4);
    EXPECT_TRUE(splitter.SplitColumn(120) && splitter.GetColumnCount() == 2);
    frame.SetActiveView(static_cast<CView*>(splitter.GetPane(0, 0)));
    frame.SendMessage(WM_COMMAND, ID_NEXT_PANE);
    EXPECT_EQ(frame.GetActiveView(), splitter.GetPane(0, 1));
    const auto is_active = [&](int column) { return static_cast<page_view*>(splitter.GetPane(0, column))->active; };
    EXPECT_TRUE(!is_active(0) && is_active(1));
    const CWnd* lower = splitter.GetPane(1, 0);
    drag(CPoint(20, first_pane().cy + 3), CPoint(20, 5));
    EXPECT_EQ(splitter.GetRowCount(), 1) << "the upper row became too small";
    EXPECT_EQ(splitter.GetPane(0, 0), lower);
}

TEST_F(AfxDynamicSplitter, TurnsPanesThatShareABarTogether) {
    ASSERT_TRUE(splitter.SplitColumn(120) && splitter.SplitRow(80));
    CStatic marks[3];
    for (int i = 0; i < 3; ++i) {
        auto& pane = *static_cast<page_view*>(splitter.GetPane(i / 2, i % 2));
        pane.SetScrollSizes(MM_TEXT, CSize(1000, 2000), CSize(80, 90), CSize(8, 10));
        ASSERT_TRUE(marks[i].Create("", WS_CHILD, CRect(0, 0, 5, 5), &pane));
    }
    auto& view = *static_cast<page_view*>(splitter.GetPane(0, 0));
    frame.SetActiveView(&view);
    const auto turned = [&] {
        std::string all;
        for (CStatic& mark : marks) {
            const CPoint at = place_in(*mark.GetParent(), mark).TopLeft();
            all += std::to_string(-at.x) + "," + std::to_string(-at.y) + " ";
        }
        return all;
    };
    const auto scroll = [&](UINT message, UINT code, HWND bar) {
        splitter.SendMessage(message, code, reinterpret_cast<LPARAM>(bar));
        return turned();
    };
    splitter.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA));
    EXPECT_EQ(turned(), "0,30 0,30 0,0 ") << "each by as much, from where it was";
    EXPECT_EQ(scroll(WM_VSCROLL, SB_PAGEDOWN, *view.GetScrollBarCtrl(SB_VERT)), "0,120 0,120 0,0 ");
    EXPECT_EQ(scroll(WM_HSCROLL, SB_PAGEDOWN, *view.GetScrollBarCtrl(SB_HORZ)), "80,120 0,120 80,0 ");
    EXPECT_TRUE(splitter.DoScroll(&view, MAKEWORD(SB_LINERIGHT, SB_LINEUP)));
    EXPECT_EQ(turned(), "88,110 0,110 88,0 ");
    EXPECT_EQ(scroll(WM_VSCROLL, SB_BOTTOM, nullptr), "88,110 0,110 88,0 ")
        << "by a bar of its own, which is not there";
    EXPECT_TRUE(splitter.DoScrollBy(&view, CSize(5, 7)));
    EXPECT_EQ(turned(), "93,117 0,117 93,0 ");
    EXPECT_EQ(static_cast<CView*>(splitter.GetPane(0, 1))->GetScrollBarCtrl(SB_HORZ),
              splitter.GetDlgItem(AFX_IDW_HSCROLL_FIRST + 1));
}

TEST_F(AfxDynamicSplitter, HasItsPartsInTheirPlaces) {
    const auto parts = [&] {
        std::vector<CRect> all;
        constexpr int first = AFX_IDW_PANE_FIRST, row = AFX_IDW_VSCROLL_FIRST, column = AFX_IDW_HSCROLL_FIRST;
        for (const int id : {first, first + 1, first + 16, first + 17, row, row + 1, column, column + 1}) {
            if (CWnd* part = splitter.GetDlgItem(id))
                all.push_back(place_in(splitter, *part));
        }
        splitter.drawn.clear();
        canvas screen(1, 1);
        splitter.OnDraw(&screen);
        all.insert(all.end(), splitter.drawn.begin(), splitter.drawn.end());
        return all;
    };
    const CRect all = inside_of(splitter);
    const LONG right = all.right - 2 - ::GetSystemMetrics(SM_CXVSCROLL), bars_right = all.right - 2;
    const LONG bottom = all.bottom - 2 - ::GetSystemMetrics(SM_CYHSCROLL), bars_bottom = all.bottom - 2;
    EXPECT_THAT(parts(), ElementsAre(CRect(2, 2, right, bottom), CRect(right, 9, bars_right, bottom),
                                     CRect(9, bottom, right, bars_bottom), CRect(right, 2, bars_right, 9),
                                     CRect(2, bottom, 9, bars_bottom), all));
    ASSERT_TRUE(splitter.SplitRow(80) && splitter.SplitColumn(120));
    EXPECT_THAT(parts(), ElementsAre(CRect(2, 2, 120, 80), CRect(127, 2, right, 80), CRect(2, 87, 120, bottom),
                                     CRect(127, 87, right, bottom), CRect(right, 2, bars_right, 80),
                                     CRect(right, 87, bars_right, bottom), CRect(2, bottom, 120, bars_bottom),
                                     CRect(127, bottom, right, bars_bottom), CRect(0, 80, right + 2, 87),
                                     CRect(120, 0, 127, bottom + 2), CRect(0, 0, 122, 82), CRect(125, 0, all.right, 82),
                                     CRect(0, 85, 122, all.bottom), CRect(125, 85, all.right, all.bottom)));
    const std::pair<CPoint, LPCTSTR> pointers[] = {
        {{60, 83}, IDC_SIZENS}, {{123, 40}, IDC_SIZEWE}, {{123, 83}, IDC_SIZEALL}};
    for (auto [at, name] : pointers) {
        splitter.ClientToScreen(&at);
        ::SetCursorPos(at.x, at.y);
        splitter.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(splitter.m_hWnd), HTCLIENT);
        EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, name));
    }
    send(WM_LBUTTONDBLCLK, CPoint(123, 83));
    EXPECT_EQ(parts().size(), 6u);
    frame.SetActiveView(static_cast<CView*>(splitter.GetPane(0, 0)));
    EXPECT_EQ(frame.SendMessage(WM_COMMAND, ID_WINDOW_SPLIT), 1);
    EXPECT_EQ(first_pane(), CSize((right - 2) / 2, (bottom - 2) / 2));
    splitter.SendMessage(WM_COMMAND, ID_PREV_PANE);
    EXPECT_EQ(frame.GetActiveView(), splitter.GetPane(1, 1));
    splitter.GetPane(1, 0)->SendMessage(WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(frame.m_hWnd), HTCLIENT);
    EXPECT_EQ(frame.GetActiveView(), splitter.GetPane(1, 0)) << "which is clicked";
    splitter.SetScrollStyle(WS_HSCROLL);
    EXPECT_TRUE(splitter.GetDlgItem(AFX_IDW_HSCROLL_FIRST)->IsWindowVisible());
    EXPECT_FALSE(splitter.GetDlgItem(AFX_IDW_VSCROLL_FIRST)->IsWindowVisible());
}

TEST(AfxSplitter, HoldsPanesOfItsOwnAndSplittersAgain) {
    split_frame frame;
    ASSERT_TRUE(frame.open([&frame](CCreateContext& context) {
        CCreateContext edit = context;
        edit.m_pNewViewClass = RUNTIME_CLASS(CEditView);
        return frame.splitter.CreateStatic(&frame, 1, 3) &&
               frame.splitter.CreateView(0, 0, RUNTIME_CLASS(CEditView), CSize(100, 50), &edit) &&
               frame.inner.CreateStatic(&frame.splitter, 2, 1, WS_CHILD | WS_VISIBLE,
                                        static_cast<UINT>(frame.splitter.IdFromRowCol(0, 1))) &&
               frame.inner.CreateView(0, 0, RUNTIME_CLASS(page_view), CSize(50, 80), &context) &&
               frame.inner.CreateView(1, 0, RUNTIME_CLASS(page_view), CSize(50, 80), &context) &&
               frame.splitter.CreateView(0, 2, RUNTIME_CLASS(page_view), CSize(50, 80), &context);
    }));
    frame.splitter.SetColumnInfo(1, 120, 10);
    frame.splitter.RecalcLayout();
    int width = 0, least = 0;
    frame.splitter.GetColumnInfo(0, width, least);
    EXPECT_EQ(width, 100);
    frame.inner.GetRowInfo(0, width, least);
    EXPECT_EQ(width, 80);
    int row = 0, column = 0;
    EXPECT_TRUE(frame.splitter.IsChildPane(&frame.inner, row, column) && column == 1);
    EXPECT_EQ(CView::GetParentSplitter(frame.inner.GetPane(1, 0), TRUE), &frame.inner);
    frame.SetActiveView(static_cast<CView*>(frame.splitter.GetPane(0, 0)));
    frame.splitter.GetPane(0, 0)->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, WHEEL_DELTA)); // comes back to it
    frame.splitter.SetColumnInfo(0, 150, 10);
    frame.splitter.RecalcLayout();
    EXPECT_EQ(place_in(frame.splitter, frame.inner).left, 157);
    canvas memory(200, 10);
    memory.PatBlt(0, 0, 200, 10, BLACKNESS);
    frame.splitter.OnDraw(&memory);
    EXPECT_NE(memory.GetPixel(155, 0), RGB(0, 0, 0)) << "a gap's end is not painted";
    memory.PatBlt(0, 0, 200, 10, BLACKNESS);
    frame.splitter.OnDrawSplitter(&memory, told_splitter::splitBorder, CRect(0, 0, 10, 10));
    EXPECT_TRUE(memory.GetPixel(0, 0) == ::GetSysColor(COLOR_3DSHADOW) && memory.GetPixel(5, 5) == 0) << "a pane's";
    CWnd& last = *frame.splitter.GetPane(0, 2);
    EXPECT_EQ(last.GetExStyle() & WS_EX_CLIENTEDGE, 0u) << "the splitter has the edges";
    const int before = on_screen(last).left;
    last.UpdateWindow();
    for (const auto& [message, x] : {std::pair{WM_LBUTTONDOWN, 154}, {WM_MOUSEMOVE, 135}, {WM_LBUTTONUP, 135}})
        frame.splitter.SendMessage(UINT(message), MK_LBUTTON, MAKELPARAM(x, 20));
    frame.splitter.GetColumnInfo(0, width, least);
    EXPECT_TRUE(width == 130 && on_screen(last).left == before) << "the other bar stays";
    EXPECT_TRUE(last.GetUpdateRect(nullptr)) << "its neighbour may have painted on it while it moved";
}

} // namespace
