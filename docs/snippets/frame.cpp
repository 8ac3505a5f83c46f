#include <zopwnt.h>

void frame_snippets(CWnd* parent) {
    //! [host]
    static CWntFrame frame; // before its children, so that they go first
    static CWntGauge gauge;
    static CButton reset;
    frame.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(10, 10, 310, 260), parent, 1);
    frame.LoadLine("", 1);
    frame.LoadLine(":TITLE=Boiler", 0);
    frame.LoadLine(":ALIGN=TOPLEFT", 0);
    frame.LoadLine(":BORDERTYPE=3DDOWN", 0);
    frame.LoadLine("", 2);

    CRect content = frame.GetContentRect();
    content.bottom -= 34;
    gauge.Create(nullptr, "", WS_CHILD | WS_VISIBLE, content, &frame, 2);
    reset.Create("Reset", WS_CHILD | WS_VISIBLE,
                 CRect(content.right - 80, content.bottom + 6, content.right - 8, content.bottom + 30), &frame, 3);
    frame.SetAnchor(&gauge, 0, 0, 1, 1); // grows with the frame
    frame.SetAnchor(&reset, 1, 1, 1, 1); // keeps to its lower right corner
    //! [host]
}

namespace {

//! [folding]
/// Two folding frames, the second one below the first, whatever is folded.
class Settings : public CWnd {
public:
    bool Open() {
        const DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
        if (!limits_.Create(nullptr, "", style, CRect(0, 0, 240, 160), this, 1) ||
            !channel_.Create(nullptr, "", style, CRect(0, 0, 240, 200), this, 2) ||
            !name_.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(8, 8, 220, 28), channel_.GetContent(), 3))
            return false;
        limits_.SetTitle("Limits");
        channel_.SetTitle("Channel");
        channel_.SetContentSize(0, 400); // scrolls
        channel_.SetAnchor(&name_, 0, 0, 1, 0);
        CloseUp();
        return true;
    }

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        if (reinterpret_cast<NMHDR*>(lParam)->code == WNT_FRAME_FOLDED)
            CloseUp();
        return CWnd::OnNotify(wParam, lParam, result);
    }

private:
    void CloseUp() {
        CRect upper;
        limits_.GetWindowRect(&upper);
        channel_.SetWindowPos(nullptr, 0, upper.Height() + 8, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    }

    CWntFrameEx limits_, channel_;
    CEdit name_;
};
//! [folding]

} // namespace

void folding_frame_snippet() {
    Settings settings;
    settings.Open();
}
