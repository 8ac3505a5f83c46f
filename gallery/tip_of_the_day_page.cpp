#include "log.h"
#include "page.h"

// Tips of the day: as a page of tabs, with a text that scrolls, and without a file.

namespace {

constexpr UINT tabs_id = 10;
constexpr UINT tips_id = 11;
constexpr UINT long_id = 12;
constexpr UINT missing_id = 13;
constexpr int gap = 12;

// Beside the program.
CString TipsFile() {
    char program[MAX_PATH] = "";
    ::GetModuleFileNameA(nullptr, program, MAX_PATH);
    const CString path(program);
    return path.Left(path.ReverseFind('\\') + 1) + "tips.txt";
}

class CTipOfTheDayPage : public CGalleryPage {
public:
    const char* Title() const override { return "Tip of the day"; }
    const char* Name() const override { return "tip-of-the-day"; }
    void Settle() override { long_.ShowTip(1); }

protected:
    bool CreateContents() override {
        const CRect nowhere(0, 0, 0, 0);
        const DWORD style = WS_CHILD | WS_VISIBLE;
        if (!tabs_.Create(nullptr, "", style | WS_TABSTOP, nowhere, this, tabs_id) ||
            !tips_.Create(nullptr, "", style, nowhere, &tabs_, tips_id) ||
            !level_.Create(nullptr, "", style, nowhere, &tabs_, 20) ||
            !long_.Create(nullptr, "", style, nowhere, this, long_id) ||
            !missing_.Create(nullptr, "", style, nowhere, this, missing_id))
            return false;
        level_.SetType(1);
        level_.SetTitles("Level", "cm");
        tabs_.AddTab("Tip of the &day", &tips_);
        tabs_.AddTab("&Level", &level_);
        tips_.LoadTips(TipsFile());
        long_.LoadTips(TipsFile());
        missing_.LoadTips("no file");
        return true;
    }

    void Arrange(int width, int height) override {
        const int wide = width * 11 / 20;
        const int tall = (height - 3 * gap) / 2;
        Place(tabs_, CRect(gap, gap, wide, height - gap));
        Place(long_, CRect(wide + gap, gap, width - gap, gap + tall));
        Place(missing_, CRect(wide + gap, height - gap - tall, width - gap, height - gap));
    }

    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        const auto& told = *reinterpret_cast<const NMHDR*>(lParam);
        if (told.code == WNT_TIP_TURNED && told.idFrom == tips_id)
            Log("tip %d: %s", tips_.GetTip(), tips_.GetTipText().GetString());
        if (told.code == WNT_TABS_SELECTED)
            Log("tabs %d show %d", static_cast<int>(told.idFrom), tabs_.GetSelected());
        return CGalleryPage::OnNotify(wParam, lParam, result);
    }

private:
    CWntTabs tabs_; // before its pages, which go first
    CWntTipPage tips_, long_, missing_;
    CWntGauge level_;
};

} // namespace

std::unique_ptr<CGalleryPage> MakeTipOfTheDayPage() {
    return std::make_unique<CTipOfTheDayPage>();
}
