#include <algorithm>
#include <array>

#include "log.h"
#include "page.h"

// Folding frames one above the other, which close up when one folds, and one whose content scrolls both ways.

namespace {

constexpr UINT first_id = 10;
constexpr UINT wide_id = 20;
constexpr int gap = 8;

struct Group {
    const char* title;
    int height; // of its window
    int content;
    std::array<const char*, 5> fields;
};

constexpr Group groups[] = {
    {"Limits", 150, 0, {"Low alarm", "Low warning", "High warning", "High alarm", nullptr}},
    {"Channel", 120, 160, {"Name", "Unit", "Range from", "Range to", "Samples a second"}},
    {"Recording", 110, 0, {"Folder", "New file by", "Keep days", nullptr, nullptr}},
};

class CFoldingFramesPage : public CGalleryPage {
public:
    const char* Title() const override { return "Folding frames"; }
    const char* Name() const override { return "folding-frames"; }

protected:
    bool CreateContents() override {
        for (std::size_t i = 0; i < frames_.size(); ++i)
            if (!AddGroup(frames_[i], groups[i], first_id + static_cast<UINT>(i)))
                return false;
        constexpr DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
        if (!wide_.Create(nullptr, "", style, CRect(0, 0, 300, 300), this, wide_id) ||
            !tool_.Create("Centre", WS_CHILD | WS_VISIBLE, CRect(0, 0, 60, 18), &wide_, 40) ||
            !calendar_.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(8, 8, 560, 520), wide_.GetContent(), 41))
            return false;
        wide_.SetTitle("A calendar larger than its frame");
        wide_.SetTool(&tool_);
        wide_.SetContentSize(568, 528);
        return true;
    }

    void Arrange(int width, int height) override {
        const int column = std::min(width / 3, 280);
        int y = gap;
        for (CWntFrameEx& frame : frames_) {
            CRect now;
            frame.GetWindowRect(&now);
            Place(frame, CRect(gap, y, gap + column, y + now.Height()));
            y += now.Height() + gap;
        }
        CRect now;
        wide_.GetWindowRect(&now);
        const int tall = wide_.IsFolded() ? now.Height() : height - 2 * gap;
        Place(wide_, CRect(column + 2 * gap, gap, width - gap, gap + tall));
    }

    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        if (LOWORD(wParam) == 40)
            wide_.ShowContent(CRect(200, 150, 568, 400));
        return CGalleryPage::OnCommand(wParam, lParam);
    }

    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        const auto& told = *reinterpret_cast<const NMHDR*>(lParam);
        if (told.code == WNT_FRAME_FOLDED) {
            Log("frame %d folded %d", static_cast<int>(told.idFrom),
                reinterpret_cast<const WntFrameNotify&>(told).folded);
            CRect client;
            GetClientRect(&client);
            Arrange(client.Width(), client.Height());
        }
        return CGalleryPage::OnNotify(wParam, lParam, result);
    }

private:
    bool AddGroup(CWntFrameEx& frame, const Group& group, UINT id) {
        if (!frame.Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 240, group.height), this, id))
            return false;
        frame.SetTitle(group.title);
        frame.SetContentSize(0, group.content);
        int y = 8;
        for (const char* field : group.fields) {
            if (!field)
                break;
            auto& label = *labels_.emplace_back(std::make_unique<CStatic>());
            auto& edit = *edits_.emplace_back(std::make_unique<CEdit>());
            CWnd* content = frame.GetContent();
            if (!label.Create(field, WS_CHILD | WS_VISIBLE, CRect(8, y + 3, 120, y + 21), content) ||
                !edit.Create(WS_CHILD | WS_VISIBLE | WS_BORDER | WS_TABSTOP | ES_AUTOHSCROLL,
                             CRect(122, y, 210, y + 20), content, 50 + static_cast<UINT>(edits_.size())))
                return false;
            frame.SetAnchor(&edit, 0, 0, 1, 0);
            y += 28;
        }
        return true;
    }

    std::array<CWntFrameEx, 3> frames_; // before what they hold, which goes first
    CWntFrameEx wide_;
    CButton tool_;
    CWntCalendar calendar_;
    std::vector<std::unique_ptr<CStatic>> labels_;
    std::vector<std::unique_ptr<CEdit>> edits_;
};

} // namespace

std::unique_ptr<CGalleryPage> MakeFoldingFramesPage() {
    return std::make_unique<CFoldingFramesPage>();
}
