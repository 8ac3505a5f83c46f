#include <algorithm>
#include <cmath>

#include "page.h"

// One gauge for each attribute script that was named at start; one in test mode when none was. Drop a script file on
// a gauge to load it there.

namespace {

class CScriptsPage : public CGalleryPage {
public:
    explicit CScriptsPage(const std::vector<CString>& scripts) : scripts_(scripts) {}

    const char* Title() const override { return "Gauge scripts"; }
    const char* Name() const override { return "scripts"; }

protected:
    bool CreateContents() override {
        const std::size_t count = std::max<std::size_t>(scripts_.size(), 1);
        for (std::size_t i = 0; i < count; ++i) {
            auto gauge = std::make_unique<CWntGauge>();
            if (!gauge->Create(nullptr, "Gauge", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this,
                               static_cast<UINT>(10 + i)))
                return false;
            if (i < scripts_.size())
                gauge->LoadFromFile(scripts_[i]);
            else
                TryOut(*gauge);
            gauges_.push_back(std::move(gauge));
        }
        return true;
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
        const int count = static_cast<int>(gauges_.size());
        if (count == 0)
            return;
        const int columns = static_cast<int>(std::ceil(std::sqrt(static_cast<double>(count))));
        const int rows = (count + columns - 1) / columns;
        const int w = (width - gap) / columns;
        const int h = (height - gap) / rows;
        for (int i = 0; i < count; ++i)
            Place(*gauges_[static_cast<std::size_t>(i)], gap + i % columns * w, gap + i / columns * h, w - gap,
                  h - gap);
    }

private:
    std::vector<CString> scripts_;
    std::vector<std::unique_ptr<CWntGauge>> gauges_;
};

} // namespace

std::unique_ptr<CGalleryPage> MakeScriptsPage(const std::vector<CString>& scripts) {
    return std::make_unique<CScriptsPage>(scripts);
}
