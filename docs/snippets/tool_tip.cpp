#include <zopwnt.h>

namespace {

constexpr UINT_PTR level_tool = 7;

//! [host]
class TankView : public CWnd {
public:
    bool Open() {
        if (!tips_.Create(this) || !empty_.Create("Empty", WS_CHILD | WS_VISIBLE, CRect(10, 10, 90, 34), this, 1))
            return false;
        tips_.AddTip(&empty_, {"Empty the tank", "Opens the valve below until the level is zero."});
        tips_.AddTool(this, LPSTR_TEXTCALLBACK, CRect(100, 10, 200, 200), level_tool); // asks when it shows
        return true;
    }

    BOOL PreTranslateMessage(MSG* message) override {
        tips_.RelayEvent(message);
        return CWnd::PreTranslateMessage(message);
    }

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        auto* told = reinterpret_cast<NMHDR*>(lParam);
        if (told->code == WNT_TIP_NEEDED && told->idFrom == level_tool) {
            WntTip& tip = reinterpret_cast<WntTipNotify*>(told)->tip;
            tip.title = "Level";
            tip.text.Format("%d cm", level_);
            tip.colour = level_ > 80 ? RGB(255, 0, 0) : RGB(0, 128, 0);
            return TRUE;
        }
        return CWnd::OnNotify(wParam, lParam, result);
    }

private:
    CToolTipCtrlEx tips_;
    CButton empty_;
    int level_ = 42;
};
//! [host]

//! [tracking]
/// A chart's cursor: a tip that follows the pointer and tells the value there.
class Chart : public CWnd {
protected:
    afx_msg void OnMouseMove(UINT, CPoint point) {
        if (!tips_.m_hWnd)
            tips_.Create(this);
        WntTip tip;
        tip.text.Format("t = %d s\nT = %.1f K", point.x, 290 + point.y / 10.0);
        ClientToScreen(&point);
        tips_.TrackTip(tip, point);
        TRACKMOUSEEVENT leave = {sizeof leave, TME_LEAVE, m_hWnd, 0};
        ::TrackMouseEvent(&leave);
    }
    afx_msg LRESULT OnLeave(WPARAM, LPARAM) {
        tips_.HideTip();
        return 0;
    }
    DECLARE_MESSAGE_MAP()

private:
    CToolTipCtrlEx tips_;
};

BEGIN_MESSAGE_MAP(Chart, CWnd)
ON_WM_MOUSEMOVE()
ON_MESSAGE(WM_MOUSELEAVE, &Chart::OnLeave)
END_MESSAGE_MAP()
//! [tracking]

} // namespace

void tool_tip_snippets() {
    TankView view;
    view.Open();
    Chart chart;
}
