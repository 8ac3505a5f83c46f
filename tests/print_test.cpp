// Pages that reach the default printer, looked at as pictures.
#include "modal.h"
#include "pixels.h"

#include <array>
#include <fstream>
#include <string>
#include <vector>

namespace {

/// A printed page, an A4 sheet at 72 pixels an inch.
struct Page {
    int width = 0;
    int height = 0;
    std::vector<std::array<unsigned char, 3>> pixels;

    COLORREF at(int x, int y) const {
        const auto& p = pixels[static_cast<std::size_t>(y) * width + x];
        return RGB(p[0], p[1], p[2]);
    }
    bool ink(int x, int y) const { return at(x, y) != RGB(255, 255, 255); }
    CRect inked() const {
        CRect box(width, height, 0, 0);
        for (int i = 0; i < width * height; ++i) {
            const LONG x = i % width, y = i / width;
            if (ink(x, y))
                box = CRect(std::min(box.left, x), std::min(box.top, y), std::max(box.right, x + 1), y + 1);
        }
        return box;
    }
};

/// The page of the document with that name; the printer needs a moment.
Page printed(const std::string& document) {
    const std::string path = std::string("Z:") + std::getenv("ZOP_PRINTED") + "/" + document + ".ppm";
    for (int i = 0; i < 600 && ::GetFileAttributesA(path.c_str()) == INVALID_FILE_ATTRIBUTES; ++i)
        ::Sleep(50);
    std::ifstream file(path, std::ios::binary);
    Page page;
    std::string kind;
    int most = 0;
    file >> kind >> page.width >> page.height >> most;
    file.get();
    if (kind != "P6" || most != 255 || page.width <= 0 || page.height <= 0)
        return {};
    page.pixels.resize(static_cast<std::size_t>(page.width) * page.height);
    file.read(reinterpret_cast<char*>(page.pixels.data()), static_cast<std::streamsize>(page.pixels.size() * 3));
    return page;
}

/// The upper left quarter red, the lower right one blue, between them white, and a frame around.
class Quarters : public CWnd {
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != WM_PAINT)
            return CWnd::WindowProc(message, wParam, lParam);
        CPaintDC dc(this);
        CRect area;
        GetClientRect(&area);
        dc.FillSolidRect(&area, RGB(255, 255, 255));
        dc.FillSolidRect(0, 0, area.right / 2, area.bottom / 2, RGB(255, 0, 0));
        dc.FillSolidRect(area.right / 2, area.bottom / 2, area.right, area.bottom, RGB(0, 0, 255));
        return 0;
    }
};

} // namespace

class PrintTest : public testing::Test {
protected:
    void SetUp() override {
        if (!std::getenv("ZOP_PRINTED"))
            GTEST_SKIP() << "NOT PRINTED: run by way of tests/with_printer";
    }
};

TEST_F(PrintTest, HardcopyFillsThePageAndShowsTheFrame) {
    const struct {
        const char* name;
        int width, height;
    } cases[] = {{"wide window", 400, 200}, {"narrow window", 100, 300}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Quarters window;
        ASSERT_TRUE(window.CreateEx(WS_EX_DLGMODALFRAME, nullptr, "w", WS_POPUP | WS_VISIBLE | WS_DLGFRAME,
                                    CRect(CPoint(20, 30), CSize(c.width, c.height)), nullptr, 0));
        window.UpdateWindow();
        MakeHardcopy(&window, c.name);
        const Page page = printed(c.name);
        ASSERT_GT(page.width, 500);
        const CRect inked = page.inked();
        EXPECT_NEAR(static_cast<double>(inked.Width()) / inked.Height(), static_cast<double>(c.width) / c.height, 0.05);
        EXPECT_GT(std::max(1.0 * inked.Width() / page.width, 1.0 * inked.Height() / page.height), 0.9);
        const auto at = [&](double x, double y) {
            return page.at(inked.left + static_cast<int>(x * inked.Width()),
                           inked.top + static_cast<int>(y * inked.Height()));
        };
        EXPECT_EQ(at(0.25, 0.25), RGB(255, 0, 0));
        EXPECT_EQ(page.at(0, 0), ::GetSysColor(COLOR_3DLIGHT)); // the frame
        EXPECT_EQ(at(0.75, 0.75), RGB(0, 0, 255));
        EXPECT_EQ(at(0.75, 0.25), RGB(255, 255, 255));
        EXPECT_EQ(at(0.25, 0.75), RGB(255, 255, 255));
        EXPECT_TRUE(page.ink(inked.right - 1, inked.top + inked.Height() / 4)); // the frame beside the white quarter
        EXPECT_TRUE(page.ink(inked.left + inked.Width() / 4, inked.bottom - 1));
    }
}

TEST_F(PrintTest, WindowOfNoSizeGivesAnEmptyPage) {
    CWnd window;
    ASSERT_TRUE(window.CreateEx(0, nullptr, "w", WS_POPUP, CRect(20, 30, 20, 130), nullptr, 0));
    MakeHardcopy(&window, "no size");
    const Page page = printed("no size");
    ASSERT_GT(page.width, 500);
    EXPECT_TRUE(page.inked().IsRectEmpty());
    MakeHardcopy(nullptr, "no window");
}

TEST_F(PrintTest, VersionSummaryStandsOnThePage) {
    CWntVersion sheet("Versions");
    WhileModal modal([&] {
        if (!sheet.m_hWnd)
            return false;
        ::SendMessage(::GetDlgItem(PropSheet_GetCurrentPageHwnd(sheet.m_hWnd), 1002), BM_CLICK, 0, 0);
        PropSheet_PressButton(sheet.m_hWnd, PSBTN_CANCEL);
        return true;
    });
    sheet.DoModal();
    const Page page = printed("ZOP Version Control");
    ASSERT_GT(page.width, 500);
    // Lines 50 device units apart from 100 on, at 300 units an inch.
    const CRect inked = page.inked();
    constexpr double unit = 72.0 / 300;
    EXPECT_NEAR(inked.left, 100 * unit, 20);
    EXPECT_NEAR(inked.top, 100 * unit, 20);
    int hyphens = 0; // in one row of pixels, right of the heading's end and above the third line
    for (int y = 0; y < 200 * unit; ++y) {
        int runs = 0;
        for (int x = 400; x < page.width; ++x)
            runs += page.ink(x, y) && !page.ink(x - 1, y);
        hyphens = std::max(hyphens, runs);
    }
    EXPECT_GT(hyphens, 12);
    EXPECT_GT(inked.bottom, 200 * unit + 5); // the third line
    EXPECT_LT(inked.bottom, 300 * unit + 20);
}

TEST_F(PrintTest, HardcopiesGiveEverythingBack) {
    Quarters window;
    ASSERT_TRUE(window.CreateEx(0, nullptr, "w", WS_POPUP | WS_VISIBLE, CRect(20, 30, 40, 60), nullptr, 0));
    const Counts before;
    for (int i = 0; i < 100; ++i)
        MakeHardcopy(&window, "again and again");
    EXPECT_LT(before.grown(), 20);
}
