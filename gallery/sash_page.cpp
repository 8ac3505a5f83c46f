#include <array>

#include "log.h"
#include "page.h"

// Sashes within each other: gauges beside a calendar above a button, with each way of keeping sizes.

namespace {

constexpr UINT outer_id = 10;
constexpr UINT left_id = 11;
constexpr UINT right_id = 12;

class CSashPage : public CGalleryPage {
public:
    const char* Title() const override { return "Sashes"; }
    const char* Name() const override { return "sashes"; }

protected:
    bool CreateContents() override {
        const CRect nowhere(0, 0, 0, 0);
        const DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
        if (!outer_.Create(nullptr, "", style, nowhere, this, outer_id) ||
            !left_.Create(nullptr, "", style, nowhere, &outer_, left_id) ||
            !right_.Create(nullptr, "", style, nowhere, &outer_, right_id) ||
            !dial_.Create(nullptr, "", WS_CHILD | WS_VISIBLE, nowhere, &left_, 20) ||
            !level_.Create(nullptr, "", WS_CHILD | WS_VISIBLE, nowhere, &left_, 21) ||
            !calendar_.Create(nullptr, "", WS_CHILD | WS_VISIBLE, nowhere, &right_, 22) ||
            !notes_.Create(WS_CHILD | WS_VISIBLE | WS_BORDER | WS_VSCROLL | ES_MULTILINE, nowhere, &right_, 23))
            return false;
        dial_.SetType(2);
        dial_.SetTitles("Pressure", "bar");
        level_.SetType(1);
        level_.SetTitles("Level", "cm");
        notes_.SetWindowText("Drag the bars; a double click folds the lower pane. The upright bar lets both sides keep "
                             "their shares, the left one follows the release of the button, the right one keeps the "
                             "height of these lines.");
        left_.SetUpright(0);
        left_.SetLiveDrag(0);
        left_.SetLeastSizes(80, 80);
        right_.SetUpright(0);
        right_.SetKeptPane(2);
        right_.SetFoldPane(2);
        right_.SetLeastSizes(120, 40);
        outer_.SetLeastSizes(120, 160);
        outer_.SetPanes(&left_, &right_);
        left_.SetPanes(&dial_, &level_);
        right_.SetPanes(&calendar_, &notes_);
        return true;
    }

    void Arrange(int width, int height) override {
        Place(outer_, CRect(8, 8, width - 8, height - 8));
        if (!placed_)
            placed_ = outer_.SetShare(0.4) && right_.SetPosition(height - 120);
    }

    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        const auto& told = *reinterpret_cast<const NMHDR*>(lParam);
        if (told.code == WNT_SASH_MOVED || told.code == WNT_SASH_FOLDED) {
            const auto& sash = reinterpret_cast<const WntSashNotify&>(told);
            Log("sash %d %s %d", static_cast<int>(told.idFrom), told.code == WNT_SASH_MOVED ? "moved to" : "folded",
                told.code == WNT_SASH_MOVED ? sash.position : sash.folded);
        }
        return CGalleryPage::OnNotify(wParam, lParam, result);
    }

private:
    CWntSash outer_, left_, right_; // before their panes, which go first
    CWntGauge dial_, level_;
    CWntCalendar calendar_;
    CEdit notes_;
    bool placed_ = false;
};

} // namespace

std::unique_ptr<CGalleryPage> MakeSashPage() {
    return std::make_unique<CSashPage>();
}
