#include <zopwnt.h>

namespace {

//! [host]
class PlantView : public CWnd {
public:
    bool Open() {
        const CRect nowhere(0, 0, 0, 0);
        if (!sash_.Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, nowhere, this, 1) ||
            !gauge_.Create(nullptr, "", WS_CHILD | WS_VISIBLE, nowhere, &sash_, 2) ||
            !calendar_.Create(nullptr, "", WS_CHILD | WS_VISIBLE, nowhere, &sash_, 3))
            return false;
        sash_.SetKeptPane(1); // the gauge keeps its width
        sash_.SetLeastSizes(120, 200);
        sash_.SetFoldPane(2);
        sash_.SetPanes(&gauge_, &calendar_);
        if (!sash_.RestoreState("plant.ini", "MainSash"))
            sash_.SetPosition(200);
        return true;
    }

protected:
    afx_msg void OnSize(UINT type, int cx, int cy) {
        CWnd::OnSize(type, cx, cy);
        sash_.MoveWindow(0, 0, cx, cy);
    }
    afx_msg void OnDestroy() {
        sash_.StoreState("plant.ini", "MainSash");
        CWnd::OnDestroy();
    }
    DECLARE_MESSAGE_MAP()

private:
    CWntSash sash_; // before its panes, so that they go first
    CWntGauge gauge_;
    CWntCalendar calendar_;
};

BEGIN_MESSAGE_MAP(PlantView, CWnd)
ON_WM_SIZE()
ON_WM_DESTROY()
END_MESSAGE_MAP()
//! [host]

//! [steps]
/// Lets the bar stand at multiples of 20 only.
class SteppedHost : public CWnd {
protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        auto* told = reinterpret_cast<NMHDR*>(lParam);
        if (told->code == WNT_SASH_MOVING) {
            auto* move = reinterpret_cast<WntSashNotify*>(told);
            move->position = move->position / 20 * 20;
            *result = 0; // 1 would refuse the move
            return TRUE;
        }
        return CWnd::OnNotify(wParam, lParam, result);
    }
};
//! [steps]

} // namespace

void sash_snippets() {
    PlantView view;
    view.Open();
    SteppedHost host;
}
