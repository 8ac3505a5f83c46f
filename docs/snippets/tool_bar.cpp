#include <zopwnt.h>

namespace {

constexpr UINT start_command = 300, alarm_command = 309, view_command = 310;

//! [host]
class PlantWindow : public CFrameWnd {
public:
    bool Open(HBITMAP small_strip, HBITMAP large_strip) {
        if (!Create(nullptr, "Plant") ||
            !bar_.Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 1, 1), this, 1))
            return false;
        bar_.SetPictures(small_strip, large_strip); // which are copied
        CWntToolItem start(start_command, "Start");
        start.picture = 0;
        start.tip = "Starts the measurement";
        bar_.AddItem(start);
        bar_.AddItem(CWntToolItem(0, "", WNT_TOOL_SEPARATOR));
        CWntToolItem alarm(alarm_command, "Alarm", WNT_TOOL_CHECK);
        alarm.picture = 9;
        bar_.AddItem(alarm);
        return true;
    }

    BOOL PreTranslateMessage(MSG* message) override {
        return bar_.FilterKey(message) || CFrameWnd::PreTranslateMessage(message); // F6
    }

protected:
    afx_msg void OnSize(UINT type, int cx, int cy) {
        CFrameWnd::OnSize(type, cx, cy);
        if (bar_.m_hWnd)
            bar_.MoveWindow(0, 0, cx, bar_.GetThickness(cx));
    }
    afx_msg void OnStart() { running_ = true; }
    afx_msg void OnUpdateStart(CCmdUI* state) { state->Enable(!running_); }
    afx_msg void OnAlarm() { alarm_ = !alarm_; }
    afx_msg void OnUpdateAlarm(CCmdUI* state) { state->SetCheck(alarm_); }
    DECLARE_MESSAGE_MAP()

private:
    CWntToolBar bar_;
    bool running_ = false;
    bool alarm_ = false;
};

BEGIN_MESSAGE_MAP(PlantWindow, CFrameWnd)
ON_WM_SIZE()
ON_COMMAND(start_command, &PlantWindow::OnStart)
ON_UPDATE_COMMAND_UI(start_command, &PlantWindow::OnUpdateStart)
ON_COMMAND(alarm_command, &PlantWindow::OnAlarm)
ON_UPDATE_COMMAND_UI(alarm_command, &PlantWindow::OnUpdateAlarm)
END_MESSAGE_MAP()
//! [host]

//! [menu]
/// Fills a drop-down's menu when it opens, and forbids to move one item.
class MenuHost : public CWnd {
protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        auto* told = reinterpret_cast<WntToolNotify*>(lParam);
        if (told->hdr.code == WNT_TOOL_DROPPING && told->id == view_command) {
            views_.DestroyMenu();
            views_.CreatePopupMenu();
            views_.AppendMenu(MF_STRING, 320, "Boiler");
            told->menu = views_.m_hMenu; // stays the host's
            *result = 0;
            return TRUE;
        }
        if (told->hdr.code == WNT_TOOL_MOVING) {
            *result = told->id == start_command;
            return TRUE;
        }
        return CWnd::OnNotify(wParam, lParam, result);
    }

private:
    CMenu views_;
};
//! [menu]

} // namespace

void tool_bar_snippets(HBITMAP pictures) {
    (new PlantWindow)->Open(pictures, nullptr); // it deletes itself
    MenuHost host;
}
