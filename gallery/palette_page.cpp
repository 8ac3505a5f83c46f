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

class CPalettePage : public CBarPage {
public:
    const char* Title() const override { return "Palette"; }
    const char* Name() const override { return "palette"; }

protected:
    bool CreateContents() override {
        CWntBitmap bitmap;
        Colour(bitmap);
        palette_.Create(&bitmap);
        return CBarPage::CreateContents() && AddButton("Load...", load_id, 110) && AddButton("Save...", save_id, 110) &&
               AddButton("To the system", system_id, 110);
    }

    afx_msg void OnLoad() {
        palette_.Load(static_cast<LPCTSTR>(nullptr));
        Invalidate(FALSE);
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
        Invalidate(FALSE);
    }

    void Paint(CWntOut& out) override {
        FillSurface(out, RGB(252, 252, 252));
        std::string caption = std::to_string(palette_.GetNumColors()) + " colours";
        out.linecolour(0, 0);
        out.settext(0, 0, 0, 16, 0, 0);
        out.chars(20, out.ymax - 26, caption.data(), 0);
        const int side = std::max(std::min(out.xmax - 40, out.ymax - 60), 16);
        palette_.Draw(CDC::FromHandle(out.dc), CRect(20, 40, 20 + side, 40 + side), FALSE);
    }
    DECLARE_MESSAGE_MAP()

private:
    CWntBitmapPalette palette_;
};

BEGIN_MESSAGE_MAP(CPalettePage, CBarPage)
ON_BN_CLICKED(load_id, &CPalettePage::OnLoad)
ON_BN_CLICKED(save_id, &CPalettePage::OnSave)
ON_BN_CLICKED(system_id, &CPalettePage::OnSystem)
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CGalleryPage> MakePalettePage() {
    return std::make_unique<CPalettePage>();
}
