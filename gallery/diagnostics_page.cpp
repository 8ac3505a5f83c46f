#include <algorithm>
#include <array>

#include "page.h"

// What serves programs beside the widgets, together: dialogs, sounds, shared memory.

namespace {

class CDiagnosticsPage : public CGalleryPage {
public:
    const char* Title() const override { return "Dialogs, sounds, sharing"; }
    const char* Name() const override { return "diagnostics"; }

protected:
    bool CreateContents() override {
        for (const auto& part : parts_) {
            if (!part->Open(this, CRect(0, 0, 0, 0)))
                return false;
            part->ShowWindow(SW_SHOW);
        }
        return true;
    }

    void Arrange(int width, int height) override {
        constexpr int heights[] = {204, 214, 1000};
        int y = 0;
        for (std::size_t i = 0; i < parts_.size(); ++i) {
            const int bottom = std::min(y + heights[i], height);
            Place(*parts_[i], 0, y, width, bottom - y);
            y = bottom;
        }
    }

private:
    std::array<std::unique_ptr<CGalleryPage>, 3> parts_{MakeDialogsPage(), MakeSoundsPage(), MakeSharingPage()};
};

} // namespace

std::unique_ptr<CGalleryPage> MakeDiagnosticsPage() {
    return std::make_unique<CDiagnosticsPage>();
}
