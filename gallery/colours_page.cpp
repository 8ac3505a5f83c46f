#include <array>
#include <cstdio>

#include "page.h"

// Three colour selectors: the plain palette, one that colours a list of items, one with 256 colours and sliders. The
// line below shows what the notification told.

namespace {

constexpr UINT first_id = 10;
constexpr UINT picked = 1;
constexpr int label_height = 24;

constexpr std::array<const char*, 5> item_names = {"Grid", "Inflow", "Limit", "Outflow", "Paper"};

// A cube of 6 x 6 x 6 colours and a ramp of greys.
std::array<DWORD, 256> WidePalette() {
    std::array<DWORD, 256> colours{};
    for (int i = 0; i < 216; ++i)
        colours[static_cast<std::size_t>(i)] = RGB(i / 36 * 51, i / 6 % 6 * 51, i % 6 * 51);
    for (int i = 216; i < 256; ++i)
        colours[static_cast<std::size_t>(i)] = RGB(1, 1, 1) * static_cast<DWORD>((i - 216) * 255 / 39);
    return colours;
}

class CColoursPage : public CGalleryPage {
public:
    const char* Title() const override { return "Colour selector"; }
    const char* Name() const override { return "colours"; }

protected:
    bool CreateContents() override {
        font_.CreatePointFont(90, "Arial");
        for (std::size_t i = 0; i < selectors_.size(); ++i)
            if (!selectors_[i].Create(nullptr, "Colours", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this,
                                      static_cast<UINT>(first_id + i)))
                return false;
        if (!label_.Create("Click a colour.", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this, 50))
            return false;
        label_.SetFont(&font_);
        selectors_[0].SetHoverSample(1);
        selectors_[0].SetSelectedColorID(4);
        selectors_[1].Set3DCells(1);
        selectors_[1].SetColorItems(const_cast<char**>(item_names.data()), item_colours_.data(),
                                    static_cast<int>(item_names.size()));
        selectors_[1].SetSelectedColorID(9);
        selectors_[2].SetColorPalette(wide_palette_.data(), static_cast<int>(wide_palette_.size()));
        selectors_[2].ShowSliders(1);
        selectors_[2].SetSelectedColorID(125);
        return true;
    }

    void Arrange(int width, int height) override {
        constexpr int gap = 12;
        const int h = height - 3 * gap - label_height;
        const int half = (width - 3 * gap) / 2;
        Place(selectors_[0], gap, gap, half, (h - gap) / 2);
        Place(selectors_[1], gap, 2 * gap + (h - gap) / 2, half, (h - gap) / 2);
        Place(selectors_[2], 2 * gap + half, gap, half, h);
        Place(label_, gap, height - gap - label_height, width - 2 * gap, label_height);
    }

    afx_msg void OnPicked(NMHDR* header, LRESULT* result) {
        char text[64];
        auto& selector = selectors_[header->idFrom - first_id];
        const int number = static_cast<int>(header->idFrom - first_id) + 1;
        const int colour = selector.GetSelectedColorID();
        if (0 <= colour && colour < 256)
            std::snprintf(text, sizeof text, "Selector %d: colour %d", number, colour);
        else
            std::snprintf(text, sizeof text, "Selector %d: no colour", number);
        label_.SetWindowText(text);
        *result = 0;
    }
    DECLARE_MESSAGE_MAP()

private:
    CFont font_;
    std::array<CWntColorSel, 3> selectors_;
    CStatic label_;
    std::array<int, 5> item_colours_ = {9, 2, 6, 10, 1};
    std::array<DWORD, 256> wide_palette_ = WidePalette();
};

BEGIN_MESSAGE_MAP(CColoursPage, CGalleryPage)
ON_NOTIFY(picked, first_id, &CColoursPage::OnPicked)
ON_NOTIFY(picked, first_id + 1, &CColoursPage::OnPicked)
ON_NOTIFY(picked, first_id + 2, &CColoursPage::OnPicked)
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CGalleryPage> MakeColoursPage() {
    return std::make_unique<CColoursPage>();
}
