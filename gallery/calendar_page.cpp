#include <algorithm>
#include <array>

#include "page.h"

// Calendars of several sizes.

namespace {

constexpr int gap = 14;
constexpr UINT first_id = 10;

class CCalendarPage : public CGalleryPage {
public:
    const char* Title() const override { return "Calendar"; }
    const char* Name() const override { return "calendar"; }

protected:
    bool CreateContents() override {
        for (std::size_t i = 0; i < calendars_.size(); ++i)
            if (!calendars_[i].Create(nullptr, "Calendar", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this,
                                      static_cast<UINT>(first_id + i)))
                return false;
        return true;
    }

    void Arrange(int width, int height) override {
        const int half = (width - 3 * gap) / 2;
        Place(calendars_[0], CRect(gap, gap, gap + half, height - gap));
        const int left = 2 * gap + half;
        Place(calendars_[1], CRect(left, gap, left + std::min(half, 300), gap + 200));
        Place(calendars_[2], CRect(left, 2 * gap + 200, left + std::min(half, 190), height - gap));
    }

private:
    std::array<CWntCalendar, 3> calendars_;
};

} // namespace

std::unique_ptr<CGalleryPage> MakeCalendarPage() {
    return std::make_unique<CCalendarPage>();
}
