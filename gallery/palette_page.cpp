#include <afxdlgs.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "page.h"

// A palette as a grid of cells, loaded from and saved to palette files; at first one of a bitmap's colours.

namespace {

constexpr UINT load_id = 20;
constexpr UINT save_id = 21;
constexpr UINT system_id = 22;
constexpr int bar_height = 36;
constexpr char filter[] = "Palette files (*.pal)|*.pal|All files (*.*)|*.*||";

// Sixteen hues from dark to bright.
void Colour(CWntBitmap& bitmap) {
    for (int i = 0; i < 256; ++i) {
        const double hue = i % 16 * 2 * 3.14159265 / 16;
        const double light = (i / 16 + 2) / 18.0;
        const auto part = [&](double angle) {
            return static_cast<BYTE>(255 * light * (0.6 + 0.4 * std::cos(hue - angle)));
        };
        bitmap.GetClrTabAddress()[i] = {part(4.19), part(2.09), part(0), 0};
    }
}

class CPalettePage : public CSurfacePage {
public:
    const char* Title() const override { return "Palette"; }
    const char* Name() const override { return "palette"; }

protected:
    bool CreateContents() override {
        font_.CreatePointFont(90, "Arial");
        CWntBitmap bitmap;
        Colour(bitmap);
        palette_.Create(&bitmap);
        return CSurfacePage::CreateContents() && AddButton(load_, "Load...", load_id) &&
               AddButton(save_, "Save...", save_id) && AddButton(system_, "To the system", system_id);
    }

    bool AddButton(CButton& button, const char* text, UINT id) {
        const bool made = button.Create(text, WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON, CRect(0, 0, 0, 0), this, id);
        button.SetFont(&font_);
        return made;
    }

    void Arrange(int width, int height) override {
        int x = 8;
        for (CButton* button : {&load_, &save_, &system_}) {
            button->SetWindowPos(nullptr, x, 6, 110, bar_height - 10, SWP_NOZORDER | SWP_NOACTIVATE);
            x += 118;
        }
        CSurfacePage::Arrange(width, height);
    }
    int TopHeight() const override { return bar_height; }

    afx_msg void OnLoad() {
        palette_.Load(static_cast<LPCTSTR>(nullptr));
        Invalidate();
    }

    afx_msg void OnSave() {
        CFileDialog dialog(FALSE, "pal", "colours", OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY, filter, this);
        CFile file;
        if (dialog.DoModal() == IDOK &&
            !(file.Open(dialog.GetPathName(), CFile::modeCreate | CFile::modeReadWrite) && palette_.Save(&file)))
            AfxMessageBox("The palette could not be saved.");
    }

    afx_msg void OnSystem() {
        if (!palette_.SetSysPalColors())
            AfxMessageBox("This screen has no palette.");
        Invalidate();
    }

    void Paint(CWntOut& out) override {
        out.fillcolour(RGB(252, 252, 252), 0);
        out.boxa2(0, 0, out.xmax, out.ymax);
        std::string caption = std::to_string(palette_.GetNumColors()) + " colours";
        out.linecolour(0, 0);
        out.settext(0, 0, 0, 16, 0, 0);
        out.chars(20, out.ymax - 26, caption.data(), 0);
        const int side = std::max(std::min(out.xmax - 40, out.ymax - 60), 16);
        palette_.Draw(CDC::FromHandle(out.dc), CRect(20, 40, 20 + side, 40 + side), FALSE);
    }
    DECLARE_MESSAGE_MAP()

private:
    CFont font_;
    CButton load_, save_, system_;
    CWntBitmapPalette palette_;
};

BEGIN_MESSAGE_MAP(CPalettePage, CSurfacePage)
ON_BN_CLICKED(load_id, &CPalettePage::OnLoad)
ON_BN_CLICKED(save_id, &CPalettePage::OnSave)
ON_BN_CLICKED(system_id, &CPalettePage::OnSystem)
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CGalleryPage> MakePalettePage() {
    return std::make_unique<CPalettePage>();
}
