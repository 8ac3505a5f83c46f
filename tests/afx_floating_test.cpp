// Floating bars, small frames, and the places of all bars as one state.
#include "afx_test_app.h"
#include "held_keys.h"

#include <afxadv.h>
#include <afxcmn.h>
#include <afxext.h>
#include <afxpriv.h>

using testing::ElementsAre;

namespace {

struct docking_frame : CFrameWnd {
    CToolBar tools, more;

    bool open() {
        if (!LoadFrame(IDR_FRAME) || !make(tools, AFX_IDW_TOOLBAR) || !make(more, 0xE850))
            return false;
        EnableDocking(CBRS_ALIGN_ANY);
        DockControlBar(&tools);
        DockControlBar(&more);
        SetWindowPos(nullptr, 20, 20, 500, 300, SWP_NOZORDER | SWP_NOACTIVATE);
        ShowWindow(SW_SHOWNOACTIVATE);
        RecalcLayout();
        return true;
    }
    bool make(CToolBar& bar, UINT id) {
        if (!bar.Create(this, WS_CHILD | WS_VISIBLE | CBRS_TOP | CBRS_SIZE_DYNAMIC, id) || !bar.LoadToolBar(IDR_FRAME))
            return false;
        bar.SetWindowText("Title");
        bar.EnableDocking(CBRS_ALIGN_ANY);
        return true;
    }
    CFrameWnd& floated(CToolBar& bar) {
        FloatControlBar(&bar, CPoint(150, 120));
        RecalcLayout();
        return around(bar);
    }
    CFrameWnd& around(CToolBar& bar) { return *static_cast<CFrameWnd*>(CWnd::FromHandle(::GetAncestor(bar, GA_ROOT))); }
    int toggled = 0;
    std::function<void()> look;
    void PostNcDestroy() override {} // lives on the stack
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_USER)
            look();
        return CFrameWnd::WindowProc(message, wParam, lParam);
    }

    afx_msg void OnOn() { ++toggled; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(docking_frame, CFrameWnd)
ON_COMMAND(ID_TEST_ON, &docking_frame::OnOn)
END_MESSAGE_MAP()

struct AfxFloating : testing::Test {
    AfxFloating() { EXPECT_TRUE(frame.open()); }
    docking_frame frame;
};
using AfxDockState = AfxFloating;
using AfxMiniFrame = AfxFloating;

TEST_F(AfxFloating, ABarFloatsKeepsItsCommandsAndComesBack) {
    const int docked_top = on_screen(frame.more).top;
    CFrameWnd& small = frame.floated(frame.tools);
    EXPECT_TRUE(frame.tools.IsFloating());
    EXPECT_LT(on_screen(frame.more).top, docked_top) << "its row is gone";
    ASSERT_NE(&small, &frame);
    EXPECT_TRUE(small.IsWindowVisible() && on_screen(small).TopLeft() == CPoint(150, 120));
    EXPECT_EQ(text_of(small), "Title");
    EXPECT_EQ(inside_of(small).Size(), on_screen(frame.tools).Size());
    EXPECT_EQ(frame.tools.GetDockingFrame()->m_hWnd, small.m_hWnd);
    frame.tools.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_NE(frame.tools.GetToolBarCtrl().IsButtonEnabled(ID_TEST_ON), 0);
    frame.tools.SendMessage(WM_COMMAND, ID_TEST_ON);
    EXPECT_EQ(frame.toggled, 1);

    small.SendMessage(WM_CLOSE);
    EXPECT_FALSE(frame.tools.IsVisible() || small.IsWindowVisible());
    EXPECT_TRUE(frame.OnBarCheck(ID_VIEW_TOOLBAR) && small.IsWindowVisible());
    EXPECT_EQ(on_screen(small).TopLeft(), CPoint(150, 120)) << "shown again where it was";

    const HWND gone = small.m_hWnd;
    frame.DockControlBar(&frame.tools, AFX_IDW_DOCKBAR_LEFT);
    frame.RecalcLayout();
    EXPECT_FALSE(::IsWindow(gone) || frame.tools.IsFloating());
    EXPECT_LT(on_screen(frame.tools).Width(), on_screen(frame.tools).Height());
    frame.tools.SendMessage(WM_LBUTTONDBLCLK, 0, MAKELPARAM(-1, -1));
    EXPECT_TRUE(frame.tools.IsFloating()) << "a double click beside the buttons";
    frame.around(frame.tools).SendMessage(WM_NCLBUTTONDBLCLK, HTCAPTION);
    EXPECT_FALSE(frame.tools.IsFloating());
    EXPECT_EQ(frame.tools.GetBarStyle() & CBRS_ALIGN_ANY, static_cast<DWORD>(CBRS_ALIGN_LEFT)) << "where it was";
}

TEST_F(AfxFloating, ABarIsDockedWhereItIsDroppedNearASide) {
    frame.more.EnableDocking(CBRS_ALIGN_TOP | CBRS_ALIGN_RIGHT);
    CRect inside = inside_of(frame);
    frame.ClientToScreen(inside);
    const CPoint middle = inside.CenterPoint();
    const std::pair<CPoint, DWORD> rows[] = {{middle, 0},                      // it floats on
                                             {{inside.left + 5, middle.y}, 0}, // as at a side that it refuses
                                             {{inside.right - 5, middle.y}, CBRS_ALIGN_RIGHT},
                                             {{middle.x, inside.top + 5}, CBRS_ALIGN_TOP}};
    for (const auto& [dropped, side] : rows) {
        CFrameWnd& small = frame.floated(frame.more);
        ::SetCursorPos(dropped.x, dropped.y);
        small.SendMessage(WM_EXITSIZEMOVE);
        EXPECT_EQ(frame.more.IsFloating() ? 0 : frame.more.GetBarStyle() & CBRS_ALIGN_ANY, side) << dropped.x;
    }
}

TEST_F(AfxFloating, ADraggedBarShowsWhereItWouldBe) {
    CRect inside = inside_of(frame);
    frame.ClientToScreen(inside);
    const CPoint pointer = inside.CenterPoint(); // away from all sides
    const CRect area(pointer - CSize(40, 40), CSize(80, 60));
    const auto pixels = [&] {
        std::vector<COLORREF> found;
        CWindowDC screen(nullptr);
        for (int y = area.top; y < area.bottom; ++y)
            for (int x = area.left; x < area.right; ++x)
                found.push_back(screen.GetPixel(x, y));
        return found;
    };
    // The upper left corner of what differs.
    const auto first_change = [&](const std::vector<COLORREF>& from, const std::vector<COLORREF>& to) {
        const auto at = std::mismatch(from.begin(), from.end(), to.begin()).first - from.begin();
        return area.TopLeft() + CSize(static_cast<int>(at) % area.Width(), static_cast<int>(at) / area.Width());
    };
    frame.UpdateWindow();
    const auto before = pixels();
    std::vector<COLORREF> dragged;
    frame.look = [&] { dragged = pixels(); };
    const CRect bar = on_screen(frame.tools);
    for (const bool dropped : {false, true}) {
        ::SetCursorPos(pointer.x, pointer.y);
        for (int i = 0; i < 2; ++i) // the first begins it
            frame.tools.PostMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(300, 300));
        frame.PostMessage(WM_USER);
        frame.tools.PostMessage(dropped ? WM_LBUTTONUP : WM_KEYDOWN, dropped ? 0 : VK_ESCAPE);
        HeldKeys({VK_LBUTTON}), frame.tools.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(-1, -1));
        ASSERT_EQ(dragged.size(), before.size()) << "it was dragged";
        const CPoint corner = first_change(before, dragged);
        EXPECT_EQ(frame.tools.IsFloating(), dropped);
        EXPECT_EQ(dropped ? on_screen(frame.tools) : bar, on_screen(frame.tools));
        EXPECT_NEAR(corner.x, pointer.x, 8);
        EXPECT_LT(corner.y, pointer.y - 10) << "a caption above the bar";
        EXPECT_TRUE(dropped || before == pixels()) << "no trace";
    }
}

TEST_F(AfxFloating, ABarIsResizedByWholeLinesOfButtons) {
    CFrameWnd& small = frame.floated(frame.tools);
    const CRect wide = on_screen(small);
    CRect rect = wide;
    rect.right -= wide.Width() / 2;
    small.SendMessage(WM_SIZING, WMSZ_RIGHT, reinterpret_cast<LPARAM>(&rect));
    EXPECT_LT(rect.Width(), wide.Width() / 2 + 30);
    EXPECT_GT(rect.Height(), wide.Height() + 15) << "more lines";
    const CRect narrow = rect;
    small.RecalcLayout();
    EXPECT_EQ(on_screen(small).Size(), narrow.Size());
    frame.ShowControlBar(&frame.tools, FALSE, FALSE);
    frame.ShowControlBar(&frame.tools, TRUE, FALSE);
    EXPECT_EQ(on_screen(small).Size(), narrow.Size()) << "as it was last";
    rect.bottom = rect.top + wide.Height();
    small.SendMessage(WM_SIZING, WMSZ_BOTTOM, reinterpret_cast<LPARAM>(&rect));
    EXPECT_EQ(rect.Size(), wide.Size());
    const UINT after_a_gap[] = {ID_TEST_ON, ID_SEPARATOR, ID_TEST_OFF, ID_TEST_CHECKED, ID_TEST_NOBODY};
    ASSERT_TRUE(frame.more.SetButtons(after_a_gap, 5));
    EXPECT_LE(frame.more.CalcDynamicLayout(72, LM_HORZ).cx, 72) << "three lines";
}

TEST_F(AfxDockState, PutsEveryBarBackWhereItWas) {
    frame.DockControlBar(&frame.tools, AFX_IDW_DOCKBAR_TOP, on_screen(frame.more) + CPoint(250, 0)); // in one row
    frame.RecalcLayout();
    const auto places = [&] {
        frame.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
        return std::vector<int>{on_screen(frame.tools).left,  on_screen(frame.tools).top, on_screen(frame.more).top,
                                frame.tools.IsFloating(),     frame.more.IsFloating(),    frame.more.IsVisible(),
                                on_screen(frame.more).Width()};
    };
    CDockState rows, floating, read;
    frame.GetDockState(rows);
    frame.GetDockState(rows); // in place of what it held
    const auto in_rows = places();
    frame.FloatControlBar(&frame.more, CPoint(200, 150));
    frame.ShowControlBar(&frame.tools, FALSE, FALSE);
    frame.GetDockState(floating);
    const auto in_float = places();
    frame.SetDockState(rows);
    EXPECT_EQ(places(), in_rows);
    EXPECT_TRUE(frame.tools.IsVisible());
    floating.SaveState("Floating");
    read.LoadState("Floating");
    frame.SetDockState(read);
    EXPECT_EQ(places(), in_float);
    EXPECT_FALSE(frame.tools.IsVisible());

    CMemFile file;
    store(file, [&](CArchive& ar) { rows.Serialize(ar); });
    load(file, [&](CArchive& ar) { read.Serialize(ar); });
    EXPECT_EQ(read.m_arrBarInfo.GetSize(), 2);
    read.SaveState("Rows");
    read.LoadState("Rows");
    frame.SetDockState(read);
    EXPECT_EQ(places(), in_rows);
}

TEST_F(AfxMiniFrame, IsASmallPopupOfItsOwner) {
    struct small_frame : CMiniFrameWnd {
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            active = message == WM_NCACTIVATE ? wParam != 0 : active;
            return CMiniFrameWnd::WindowProc(message, wParam, lParam);
        }
        bool active = false;
    };
    auto* small = new small_frame; // deletes itself
    ASSERT_TRUE(small->Create(nullptr, "Tools",
                              WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE | MFS_MOVEFRAME | MFS_SYNCACTIVE,
                              CRect(100, 100, 200, 180), &frame));
    for (const bool active : {true, false})
        EXPECT_TRUE((frame.SendMessage(WM_ACTIVATE, active), small->active == active)) << "together with its owner";
    EXPECT_EQ(small->GetExStyle() & WS_EX_TOOLWINDOW, static_cast<DWORD>(WS_EX_TOOLWINDOW));
    EXPECT_EQ(::GetWindow(small->m_hWnd, GW_OWNER), frame.m_hWnd);
    const std::pair<DWORD, LRESULT> edges[] = {
        {MFS_THICKFRAME, HTLEFT}, {MFS_THICKFRAME | MFS_4THICKFRAME, HTBORDER}, {MFS_MOVEFRAME, HTCAPTION}};
    for (const auto& [style, hit] : edges) {
        auto* one = new CMiniFrameWnd;
        ASSERT_TRUE(one->Create(nullptr, "one", WS_POPUP | WS_CAPTION | style, CRect(100, 100, 200, 180), &frame));
        EXPECT_EQ(one->SendMessage(WM_NCHITTEST, 0, MAKELPARAM(101, 140)), hit);
        one->DestroyWindow();
    }
    CRect window(0, 0, 50, 50);
    CMiniFrameWnd::CalcBorders(window, small->GetStyle(), small->GetExStyle());
    small->SetWindowPos(nullptr, 0, 0, window.Width(), window.Height(), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_EQ(inside_of(*small).Size(), CSize(50, 50));
}

} // namespace
