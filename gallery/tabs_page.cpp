#include <array>

#include "log.h"
#include "page.h"

// Tabs at all four sides, with icons, access keys and close marks; strips that are too short for their tabs scroll, or
// have a menu.

namespace {

constexpr UINT first_id = 10;
constexpr UINT first_page = 40;
constexpr int gap = 12;

constexpr const char* scripts[] = {
    ":MOVABLE=YES\n"
    ":TAB=&Pressure\n:TIP=Of the boiler, in bar\n"
    ":TAB=&Level\n:TIP=Of the tank, in cm\n"
    ":TAB=&Trend\n:CLOSE=YES\n:TIP=May be closed\n"
    ":TAB=&Service\n:DISABLED=YES",
    ":SIDE=BOTTOM\n:TAB=January\n:TAB=February\n:TAB=March\n:TAB=April\n:TAB=May\n:TAB=June\n:TAB=July\n"
    ":TAB=August\n:TAB=September\n:TAB=October\n:TAB=November\n:TAB=December",
    ":SIDE=LEFT\n:TAB=Curve\n:TAB=Table\n:TAB=Limits\n:DISABLED=YES",
    ":SIDE=RIGHT\n:OVERFLOW=MENU\n:CLRBACK=DARKBLUE\n:CLRTEXT=YELLOW\n:CLRSUN=CYAN\n"
    ":TAB=Kettle\n:CLOSE=YES\n:TAB=Pump\n:CLOSE=YES\n:TAB=Valve\n:CLOSE=YES\n:TAB=Burner\n:TAB=Chimney",
};

class CTabsPage : public CGalleryPage {
public:
    const char* Title() const override { return "Tabs"; }
    const char* Name() const override { return "tabs"; }

protected:
    bool CreateContents() override {
        const CRect nowhere(0, 0, 0, 0);
        for (std::size_t i = 0; i < tabs_.size(); ++i) {
            const auto id = static_cast<UINT>(i);
            CWntTabs& tabs = tabs_[i];
            if (!tabs.Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, nowhere, this, first_id + id))
                return false;
            tabs.LoadLine("", 1);
            LoadLines(scripts[i], [&](const char* line) { tabs.LoadLine(line, 0); });
            tabs.LoadLine("", 2);
            for (int page = 0; page < 3; ++page) {
                CWntGauge& gauge = gauges_[i * 3 + static_cast<std::size_t>(page)];
                if (!gauge.Create(nullptr, "", WS_CHILD, nowhere, &tabs, first_page + static_cast<UINT>(page)))
                    return false;
                gauge.SetType((static_cast<int>(i) + page + 2) % 6);
                CString title = tabs.GetTabText(page);
                title.Remove('&');
                gauge.SetTitles(title, "bar");
                tabs.SetPage(page, &gauge);
            }
        }
        tabs_[0].SetTabIcon(0, ::LoadIcon(nullptr, IDI_INFORMATION));
        tabs_[0].SetTabIcon(3, ::LoadIcon(nullptr, IDI_WARNING));
        tabs_[2].SetTabIcon(1, ::LoadIcon(nullptr, IDI_INFORMATION));
        tabs_[2].SetTabIcon(2, ::LoadIcon(nullptr, IDI_WARNING));
        tabs_[1].Select(2);
        tabs_[3].Select(1);
        return true;
    }

    void Arrange(int width, int height) override {
        const int wide = (width - 3 * gap) / 2;
        const int tall = (height - 3 * gap) / 2;
        for (int i = 0; i < 4; ++i) {
            const CPoint at(gap + i % 2 * (wide + gap), gap + i / 2 * (tall + gap));
            Place(tabs_[static_cast<std::size_t>(i)], CRect(at, CSize(wide, tall)));
        }
    }

    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        const auto& told = *reinterpret_cast<const WntTabsNotify*>(lParam);
        if (told.hdr.code == WNT_TABS_SELECTED || told.hdr.code == WNT_TABS_CLOSED)
            Log("tabs %d %s %d", static_cast<int>(told.hdr.idFrom),
                told.hdr.code == WNT_TABS_SELECTED ? "show" : "closed", told.tab);
        return CGalleryPage::OnNotify(wParam, lParam, result);
    }

private:
    std::array<CWntTabs, 4> tabs_; // before their pages, which go first
    std::array<CWntGauge, 12> gauges_;
};

} // namespace

std::unique_ptr<CGalleryPage> MakeTabsPage() {
    return std::make_unique<CTabsPage>();
}
