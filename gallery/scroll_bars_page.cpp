#include "page.h"

// Scroll bars that move their own thumbs: the page only reads the position and hands it to a gauge.

namespace {

constexpr int bar_width = 20;

class CScrollBarsPage : public CGalleryPage {
public:
    const char* Title() const override { return "Scroll bars"; }
    const char* Name() const override { return "scroll-bars"; }

protected:
    bool CreateContents() override {
        if (!across_.Create(WS_CHILD | WS_VISIBLE | SBS_HORZ, CRect(0, 0, 0, 0), this, 10) ||
            !upright_.Create(WS_CHILD | WS_VISIBLE | SBS_VERT, CRect(0, 0, 0, 0), this, 11))
            return false;
        const char* scripts[2] = {":TYPE=TURNKNOB\n:TITLE=Scroll bar below\n:UNITTITLE=",
                                  ":TYPE=THERMOMETER\n:TITLE=Scroll bar beside\n:UNITTITLE="};
        CWntGauge* gauges[2] = {&knob_, &level_};
        for (int i = 0; i < 2; ++i) {
            if (!gauges[i]->Create(nullptr, "Gauge", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this, 20 + i))
                return false;
            LoadLines(scripts[i], [&](const char* line) { gauges[i]->LoadLine(line, 0); });
            LoadLines(":MAXVAL=200\n:CLEARMARKS\n:SETMARK=150,DARKGREEN\n:SETMARK=180,DARKYELLOW\n"
                      ":SETMARK=179,RED\n:SETMARK=179,RED",
                      [&](const char* line) { gauges[i]->LoadLine(line, 0); });
            gauges[i]->LoadLine("", 2);
        }
        for (CWntScrollBar* bar : {&across_, &upright_}) {
            SCROLLINFO info = {};
            info.cbSize = sizeof info;
            info.fMask = SIF_ALL;
            info.nMax = 200 + 19; // the page's size is taken off the range
            info.nPage = 20;
            info.nPos = 76;
            bar->SetScrollInfo(&info);
        }
        return true;
    }

    void Arrange(int width, int height) override {
        constexpr int gap = 16;
        const int half = width / 2;
        const int h = height - 2 * gap - bar_width - 8;
        Place(knob_, gap, gap, half - 2 * gap, h);
        Place(across_, gap, gap + h + 8, half - 2 * gap, bar_width);
        Place(level_, half + gap, gap, half - 2 * gap - bar_width - 8, h);
        Place(upright_, width - gap - bar_width, gap, bar_width, h);
    }

    afx_msg void OnHScroll(UINT code, UINT pos, CScrollBar* bar) { Follow(code, pos, bar, knob_); }
    afx_msg void OnVScroll(UINT code, UINT pos, CScrollBar* bar) { Follow(code, pos, bar, level_); }
    DECLARE_MESSAGE_MAP()

private:
    void Follow(UINT code, UINT pos, CScrollBar* bar, CWntGauge& gauge) {
        across_.SetThumb(code, pos, bar);
        gauge.SetCurVal(bar->GetScrollPos());
    }

    CWntScrollBar across_;
    CWntScrollBar upright_;
    CWntGauge knob_;
    CWntGauge level_;
};

BEGIN_MESSAGE_MAP(CScrollBarsPage, CGalleryPage)
ON_WM_HSCROLL()
ON_WM_VSCROLL()
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CGalleryPage> MakeScrollBarsPage() {
    return std::make_unique<CScrollBarsPage>();
}
