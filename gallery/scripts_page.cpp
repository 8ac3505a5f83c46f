#include <algorithm>
#include <cmath>

#include "page.h"
#include "scripted_widget.h"

// A gauge or a strip chart for each attribute script that was named at start; a gauge in test mode when none was. Drop
// a script file on one of them to load it there.

namespace {

class CScriptsPage : public CGalleryPage {
public:
    explicit CScriptsPage(const std::vector<CString>& scripts) : scripts_(scripts) {}

    const char* Title() const override { return "Scripts"; }
    const char* Name() const override { return "scripts"; }

protected:
    bool CreateContents() override {
        constexpr UINT first_id = 10;
        const CRect nowhere(0, 0, 0, 0);
        for (const CString& script : scripts_)
            widgets_.push_back(MakeScripted(script, nowhere, this, first_id + static_cast<UINT>(widgets_.size())));
        if (scripts_.empty()) {
            auto gauge = std::make_unique<CWntGauge>();
            if (!gauge->Create(nullptr, "Gauge", WS_CHILD | WS_VISIBLE, nowhere, this, first_id))
                return false;
            TryOut(*gauge);
            widgets_.push_back(std::move(gauge));
        }
        return std::ranges::all_of(widgets_, [](const auto& widget) { return widget != nullptr; });
    }

    // The scroll bar sets the value, the button beside it goes through the views.
    static void TryOut(CWntGauge& gauge) {
        gauge.LoadLine(":TITLE=Drop a script file here", 0);
        gauge.LoadLine(":TYPE=ANALOG", 0);
        gauge.LoadLine(":DEMO=X", 0);
        gauge.LoadLine("", 2);
    }

    void Arrange(int width, int height) override {
        constexpr int gap = 8;
        const int count = static_cast<int>(widgets_.size());
        if (count == 0)
            return;
        const int columns = static_cast<int>(std::ceil(std::sqrt(static_cast<double>(count))));
        const int rows = (count + columns - 1) / columns;
        const int w = (width - gap) / columns;
        const int h = (height - gap) / rows;
        for (int i = 0; i < count; ++i)
            Place(*widgets_[static_cast<std::size_t>(i)], gap + i % columns * w, gap + i / columns * h, w - gap,
                  h - gap);
    }

private:
    std::vector<CString> scripts_;
    std::vector<std::unique_ptr<CWnd>> widgets_;
};

} // namespace

std::unique_ptr<CGalleryPage> MakeScriptsPage(const std::vector<CString>& scripts) {
    return std::make_unique<CScriptsPage>(scripts);
}
