#include <array>

#include "page.h"

// Panels: titles in every place, borders of every kind, and instruments that keep to their anchors.

namespace {

constexpr UINT first_id = 10;
constexpr UINT first_child = 30;
constexpr int gap = 12;

constexpr const char* scripts[] = {
    ":TITLE=Top, centred\n:BORDERTYPE=3DUP\n:BORDERHEIGHT=2",
    ":TITLE=Top left, sunk\n:ALIGN=TOPLEFT\n:BORDERTYPE=3DDOWN\n:BORDERHEIGHT=2",
    ":TITLE=Below, flat\n:ALIGN=BOTTOMRIGHT\n:BORDERTYPE=FLAT",
    ":TITLE=Of its own colours\n:CLRBACK=DARKBLUE\n:CLRTEXT=YELLOW\n:CLRSUN=CYAN\n:CLRSHADOW=BLACK\n:BORDERHEIGHT=4",
    ":TITLE=Open to the right\n:ALIGN=TOPLEFT\n:BORDERTYPE=3DDOWN\n:BORDERHEIGHT=3\n:BORDERSTYLE=LEFT TOP BOTTOM",
    ":TITLE=Behind its children\n:ALIGN=CENTERCENTER\n:BORDERTYPE=3DDOWN",
};

class CFramesPage : public CGalleryPage {
public:
    const char* Title() const override { return "Frames"; }
    const char* Name() const override { return "frames"; }

protected:
    bool CreateContents() override {
        const CRect designed(0, 0, 240, 200);
        for (std::size_t i = 0; i < frames_.size(); ++i) {
            const auto id = static_cast<UINT>(i);
            CWntFrame& frame = frames_[i];
            if (!frame.Create(nullptr, "", WS_CHILD | WS_VISIBLE, designed, this, first_id + id))
                return false;
            LoadLines(scripts[i], [&](const char* line) { frame.LoadLine(line, 0); });
            frame.LoadLine("", 2);
            const CRect content = frame.GetContentRect();
            CRect instrument = content;
            instrument.DeflateRect(6, 6);
            instrument.bottom -= 30;
            if (!gauges_[i].Create(nullptr, "", WS_CHILD | (i < 5 ? WS_VISIBLE : 0), instrument, &frame,
                                   first_child + id) ||
                !buttons_[i].Create(
                    "Reset", WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                    CRect(content.right - 66, content.bottom - 28, content.right - 6, content.bottom - 6), &frame,
                    first_child + 10 + id))
                return false;
            gauges_[i].SetType(static_cast<int>(i));
            gauges_[i].SetTitles("", "bar");
            frame.SetAnchor(&gauges_[i], 0, 0, 1, 1);
            frame.SetAnchor(&buttons_[i], 1, 1, 1, 1);
        }
        return true;
    }

    void Arrange(int width, int height) override {
        const int wide = (width - 4 * gap) / 3;
        const int tall = (height - 3 * gap) / 2;
        for (int i = 0; i < 6; ++i) {
            const CPoint at(gap + i % 3 * (wide + gap), gap + i / 3 * (tall + gap));
            Place(frames_[static_cast<std::size_t>(i)], CRect(at, CSize(wide, tall)));
        }
    }

private:
    std::array<CWntFrame, 6> frames_; // before their children, which go first
    std::array<CWntGauge, 6> gauges_;
    std::array<CButton, 6> buttons_;
};

} // namespace

std::unique_ptr<CGalleryPage> MakeFramesPage() {
    return std::make_unique<CFramesPage>();
}
