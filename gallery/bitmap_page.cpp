#include <afxdlgs.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "page.h"

// A bitmap file from disk, in a frame, beside the facts of its header: one that was named at start, one that is chosen
// here, or a picture that the page draws and saves itself.

namespace {

constexpr UINT open_id = 20;
constexpr UINT next_id = 21;
constexpr int facts_width = 260;
constexpr int line_height = 22;

CString OwnPicture() {
    char folder[MAX_PATH] = "";
    char path[MAX_PATH] = "";
    ::GetTempPathA(sizeof folder, folder);
    if (!::GetTempFileNameA(folder, "zop", 0, path)) // other galleries have theirs
        return "zopgallery.bmp";
    CDibFile picture;
    picture.CreateNewTrueColor(320, 240, 250);
    for (int i = 0; i <= 240; i += 4) {
        picture.SetColor(20 + i / 2, 90, 200 - i / 2);
        picture.Line(i * 320 / 240, 0, 319, i);
        picture.Line(319 - i * 320 / 240, 239, 0, 239 - i);
    }
    picture.Save(path);
    return path;
}

const char* CompressionName(DWORD compression) {
    constexpr const char* names[] = {"none", "run lengths, 8 bits", "run lengths, 4 bits", "bit fields"};
    return compression < 4 ? names[compression] : "other";
}

std::vector<std::string> FactsOf(CWntBitmap& bitmap) {
    const BITMAPINFOHEADER& header = bitmap.GetBitmapInfoAddress()->bmiHeader;
    return {"width " + std::to_string(header.biWidth),
            "height " + std::to_string(std::abs(std::int64_t{header.biHeight})) +
                (header.biHeight < 0 ? ", upper row first" : ", lower row first"),
            std::to_string(header.biBitCount) + " bits a pixel",
            std::to_string(bitmap.GetNumClrEntries()) + " colours in the table",
            std::string("compression: ") + CompressionName(header.biCompression),
            std::to_string(header.biXPelsPerMeter) + " x " + std::to_string(header.biYPelsPerMeter) +
                " pixels a metre"};
}

class CBitmapPage : public CBarPage {
public:
    explicit CBitmapPage(const std::vector<CString>& pictures) : pictures_(pictures) {}

    const char* Title() const override { return "Bitmap file"; }
    const char* Name() const override { return "bitmap"; }

protected:
    bool CreateContents() override {
        CButton* next = nullptr;
        if (!CBarPage::CreateContents() || !AddButton("Open...", open_id, 90) ||
            !(next = AddButton("Next", next_id, 90)))
            return false;
        next->EnableWindow(pictures_.size() > 1);
        const CString own = pictures_.empty() ? OwnPicture() : CString();
        Show(pictures_.empty() ? own : pictures_[0]);
        if (pictures_.empty())
            facts_[0] = "drawn by this page";
        ::DeleteFileA(own);
        return true;
    }

    afx_msg void OnOpen() {
        CFileDialog dialog(TRUE, nullptr, nullptr, OFN_FILEMUSTEXIST | OFN_HIDEREADONLY,
                           "Bitmaps (*.bmp, *.dib)|*.bmp;*.dib|All files (*.*)|*.*||", this);
        if (dialog.DoModal() == IDOK)
            Show(dialog.GetPathName());
    }

    afx_msg void OnNext() {
        shown_ = (shown_ + 1) % pictures_.size();
        Show(pictures_[shown_]);
    }

    void Show(const CString& path) {
        const bool loaded = bitmap_.Load(static_cast<LPCTSTR>(path));
        facts_ = loaded ? FactsOf(bitmap_) : std::vector<std::string>{"This bitmap cannot be loaded."};
        CDibFile dib;
        const bool section = dib.Load(path);
        const int code = dib.GetLastError();
        facts_.push_back(section ? "DIB section: yes"
                         : code  ? "no DIB section: error " + std::to_string(code)
                                 : "The file cannot be opened.");
        facts_.insert(facts_.begin(),
                      path.Mid(std::max(path.ReverseFind('\\'), path.ReverseFind('/')) + 1).GetString());
        if (!loaded)
            bitmap_.Create(0, 0);
        Invalidate(FALSE);
    }

    void Paint(CWntOut& out) override {
        FillSurface(out, RGB(252, 252, 252));
        PaintFacts(out);
        const int width = bitmap_.GetWidth();
        const std::int64_t height = std::abs(std::int64_t{bitmap_.GetHeight()});
        const int room_x = out.xmax - facts_width - 40;
        const int room_y = out.ymax - 40;
        if (width < 1 || height < 1 || room_x < 1 || room_y < 1)
            return;
        const double scale = std::min(
            {static_cast<double>(room_x) / width, static_cast<double>(room_y) / static_cast<double>(height), 4.0});
        const int cx = std::max(static_cast<int>(width * scale), 1);
        const int cy = std::max(static_cast<int>(static_cast<double>(height) * scale), 1);
        out.drawshadow(facts_width + 18, out.ymax - 20 - cy, facts_width + 21 + cx, out.ymax - 17, 0);
        const int mode = ::SetStretchBltMode(out.dc, COLORONCOLOR);
        bitmap_.Draw(CDC::FromHandle(out.dc), facts_width + 20, 19, cx, cy);
        ::SetStretchBltMode(out.dc, mode);
    }

    void PaintFacts(CWntOut& out) {
        out.linecolour(0, 0);
        out.settext(0, 0, 0, 16, 0, 0);
        int y = out.ymax - 34;
        for (std::string& fact : facts_) {
            out.chars(16, y, fact.data(), 0);
            y -= line_height;
        }
    }
    DECLARE_MESSAGE_MAP()

private:
    std::vector<CString> pictures_;
    std::size_t shown_ = 0;
    CWntBitmap bitmap_;
    std::vector<std::string> facts_;
};

BEGIN_MESSAGE_MAP(CBitmapPage, CBarPage)
ON_BN_CLICKED(open_id, &CBitmapPage::OnOpen)
ON_BN_CLICKED(next_id, &CBitmapPage::OnNext)
END_MESSAGE_MAP()

} // namespace

std::unique_ptr<CGalleryPage> MakeBitmapPage(const std::vector<CString>& pictures) {
    return std::make_unique<CBitmapPage>(pictures);
}
