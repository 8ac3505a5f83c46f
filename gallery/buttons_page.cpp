#include <algorithm>
#include <string>

#include "log.h"
#include "page.h"

// Buttons in every border type, title style, alignment, frame and side set. Press them: the line under each tells its
// state.

namespace {

constexpr UINT_PTR watch_timer = 1;
constexpr UINT watch_interval = 60; // milliseconds
constexpr int columns = 4;

struct Sample {
    const char* title;
    const char* lines; // parted by '\n'
    int underline = 0; // has no key
};

constexpr Sample samples[] = {
    {"NOBORDER", ":BORDERTYPE=NOBORDER"},
    {"FLAT", ":BORDERTYPE=FLAT\n:CLRBORDER=DARKRED"},
    {"3DUP", ":BORDERTYPE=3DUP"},
    {"3DDOWN", ":BORDERTYPE=3DDOWN"},
    {"frame", ":FRAME=X\n:CLRBORDER=BLACK"},
    {"PLAIN", ":TITLESTYLE=PLAIN"},
    {"BOLD", ":TITLESTYLE=BOLD"},
    {"OUTSET", ":TITLESTYLE=OUTSET"},
    {"INSET", ":TITLESTYLE=INSET"},
    {"height 5", ":BORDERHEIGHT=5"},
    {"top left", ":ALIGN=TOPLEFT"},
    {"top centre", ":ALIGN=TOPCENTER"},
    {"top right", ":ALIGN=TOPRIGHT"},
    {"left", ":ALIGN=CENTERLEFT"},
    {"right", ":ALIGN=CENTERRIGHT"},
    {"bottom left", ":ALIGN=BOTTOMLEFT"},
    {"bottom", ":ALIGN=BOTTOMCENTER"},
    {"bottom right", ":ALIGN=BOTTOMRIGHT"},
    {"LEFT TOP", ":BORDERSTYLE=LEFT TOP"},
    {"TOP BOTTOM", ":BORDERSTYLE=TOP BOTTOM"},
    {"FIXED", ":FIXED=X"},
    {"underlined", "", 1},
    {"flat, frame", ":BORDERTYPE=FLAT\n:FRAME=X\n:CLRBORDER=DARKGREEN"},
    {"own colours", ":CLRBACK=DARKBLUE\n:CLRTEXT=YELLOW\n:CLRSUN=BLUE\n:CLRSHADOW=BLACK"},
};
constexpr int count = static_cast<int>(std::size(samples));

const char* StateOf(CWntButton& button) {
    Tcbtn_properties p;
    button.getproperties(&p);
    if (p.fixed)
        return "fixed";
    static constexpr const char* states[] = {"no border", "flat", "raised", "sunk"};
    return p.bordertype >= 0 && p.bordertype < 4 ? states[p.bordertype] : "unknown";
}

class CButtonsPage : public CGalleryPage {
public:
    const char* Title() const override { return "Buttons"; }
    const char* Name() const override { return "buttons"; }

protected:
    bool CreateContents() override {
        font_.CreatePointFont(80, "Arial");
        for (int i = 0; i < count; ++i) {
            if (!buttons_[i].Create(nullptr, "Button", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this, 10 + i) ||
                !states_[i].Create("", WS_CHILD | WS_VISIBLE | SS_CENTER, CRect(0, 0, 0, 0), this, 50 + i))
                return false;
            states_[i].SetFont(&font_);
            Configure(buttons_[i], samples[i]);
        }
        ShowStates();
        SetTimer(watch_timer, watch_interval, nullptr);
        return true;
    }

    static void Configure(CWntButton& button, const Sample& sample) {
        button.load("", 1);
        for (const char* line : {":CLRBACK=GRAY", ":CLRSUN=WHITE", ":CLRSHADOW=DARKGRAY", ":CLRTEXT=DARKBLUE",
                                 ":TITLESTYLE=PLAIN", ":ALIGN=CENTERCENTER", ":BORDERHEIGHT=2"})
            button.load(line, 0);
        button.load((std::string(":TITLE=") + sample.title).c_str(), 0);
        LoadLines(sample.lines, [&](const char* line) { button.load(line, 0); });
        button.load("", 2);
        Tcbtn_properties block;
        button.getproperties(&block);
        block.underline = static_cast<decltype(block.underline)>(sample.underline);
        button.setproperties(&block);
    }

    void Arrange(int width, int height) override {
        constexpr int gap = 14;
        constexpr int state_height = 16;
        const int w = (width - gap) / columns;
        const int h = (height - gap) / (count / columns);
        for (int i = 0; i < count; ++i) {
            const int x = gap + i % columns * w;
            const int y = gap + i / columns * h;
            const int button_height = std::min(h - gap - state_height - 4, 44);
            Place(buttons_[i], x, y, w - gap, button_height);
            Place(states_[i], x, y + button_height + 4, w - gap, state_height);
        }
    }

    afx_msg void OnTimer(UINT_PTR) { ShowStates(); }
    DECLARE_MESSAGE_MAP()

private:
    void ShowStates() {
        for (int i = 0; i < count; ++i) {
            const char* state = StateOf(buttons_[i]);
            if (state == shown_[i])
                continue;
            shown_[i] = state;
            Log("button %d %s", 10 + i, state);
            states_[i].SetWindowText(state);
        }
    }

    CFont font_;
    CWntButton buttons_[count];
    CStatic states_[count];
    const char* shown_[count] = {};
};

BEGIN_MESSAGE_MAP(CButtonsPage, CGalleryPage)
ON_WM_TIMER()
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CGalleryPage> MakeButtonsPage() {
    return std::make_unique<CButtonsPage>();
}
