// Tips of a window's parts, shown where the pointer rests.
#include "afx_test_app.h"
#include "thread_window.h"

#include <afxext.h>

namespace {

struct tips_window : CWnd {
    std::vector<std::string> asked;
    CButton plain, disabled;
    bool own_parts = false;

    bool open() {
        return CreateEx(WS_EX_TOPMOST, nullptr, "", WS_POPUP, CRect(40, 40, 240, 140), nullptr, 0) &&
               plain.Create("", WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 50), this, 11) &&
               disabled.Create("", WS_CHILD | WS_VISIBLE | WS_DISABLED, CRect(50, 0, 100, 50), this, 12);
    }
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* tool) const override {
        if (!own_parts || point.x < 100)
            return CWnd::OnToolHitTest(point, tool);
        tool->hwnd = m_hWnd, tool->uId = 77;
        tool->rect = CRect(100, 0, 200, 100);
        tool->lpszText = ::strdup("of its own");
        return 77;
    }
    afx_msg BOOL OnNeedText(UINT id, NMHDR* header, LRESULT* result) {
        auto* text = reinterpret_cast<TOOLTIPTEXT*>(header);
        EXPECT_EQ(id, 0u);
        const bool of_window = (text->uFlags & TTF_IDISHWND) != 0;
        const UINT_PTR part = of_window ? ::GetDlgCtrlID(reinterpret_cast<HWND>(header->idFrom)) : header->idFrom;
        asked.push_back(std::to_string(part));
        lstrcpy(text->szText, "tip");
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(tips_window, CWnd)
ON_NOTIFY_EX(TTN_NEEDTEXT, 0, &tips_window::OnNeedText)
END_MESSAGE_MAP()

// What the tip shows after the pointer came to a point of the window; empty where none appears.
std::string shown_at(CWnd& wnd, CPoint point) {
    wnd.ClientToScreen(&point);
    ::SetCursorPos(point.x, point.y);
    MSG move{::WindowFromPoint(point), WM_MOUSEMOVE, 0, 0, 0, point};
    if (!::IsChild(wnd.m_hWnd, move.hwnd))
        move.hwnd = wnd.m_hWnd;
    CWnd::WalkPreTranslateTree(nullptr, &move);
    const HWND tip = thread_window(TOOLTIPS_CLASS);
    if (tip == nullptr || ::SendMessage(tip, TTM_GETTOOLCOUNT, 0, 0) == 0)
        return "";
    ::SendMessage(tip, TTM_SETDELAYTIME, TTDT_INITIAL, 1);
    ::SendMessage(tip, TTM_SETDELAYTIME, TTDT_RESHOW, 1);
    CWnd::WalkPreTranslateTree(nullptr, &move);
    pumped_until([&] { return ::IsWindowVisible(tip); });
    return ::IsWindowVisible(tip) ? text_of(*CWnd::FromHandle(tip)) : "";
}

TEST(AfxTips, AreAskedForByTheWindowThatHasThem) {
    tips_window wnd;
    ASSERT_TRUE(wnd.open());
    wnd.ShowWindow(SW_SHOWNOACTIVATE);
    EXPECT_EQ(shown_at(wnd, {10, 10}), "") << "none before they are enabled";
    EXPECT_FALSE(wnd.EnableToolTips());
    EXPECT_EQ(shown_at(wnd, {150, 80}), "") << "nothing is there";
    EXPECT_EQ(shown_at(wnd, {10, 10}), "tip");
    EXPECT_EQ(shown_at(wnd, {60, 10}), "tip") << "a disabled child";
    EXPECT_THAT(wnd.asked, testing::ElementsAre("11", "12"));
    wnd.own_parts = true;
    EXPECT_EQ(shown_at(wnd, {120, 80}), "of its own");
    EXPECT_TRUE(wnd.EnableToolTips(FALSE));
    EXPECT_FALSE(::IsWindowVisible(thread_window(TOOLTIPS_CLASS)));
}

} // namespace
