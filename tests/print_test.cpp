// Pages that reach the default printer, looked at as pictures.
#include "modal.h"
#include "quiet_program.h"
#include "pixels.h"

#include <algorithm>
#include <fstream>
#include <memory>
#include <vector>

namespace {

constexpr COLORREF white = RGB(255, 255, 255);

/// The page of the document with that name, an A4 sheet at 72 pixels an inch; the printer needs a moment.
std::unique_ptr<Picture> printed(const std::string& document) {
    const std::string path = std::string("Z:") + std::getenv("ZOP_PRINTED") + "/" + document + ".ppm";
    for (int i = 0; i < 600 && ::GetFileAttributesA(path.c_str()) == INVALID_FILE_ATTRIBUTES; ++i)
        ::Sleep(50);
    std::ifstream file(path, std::ios::binary);
    std::string kind;
    int width = 0, height = 0, most = 0;
    file >> kind >> width >> height >> most;
    file.get();
    EXPECT_TRUE(kind == "P6" && most == 255 && width > 500 && height > width) << document;
    auto page = std::make_unique<Picture>(width, height);
    for (int i = 0; i < width * height; ++i) {
        char rgb[3] = {};
        file.read(rgb, 3);
        ::SetPixelV(page->dc(), i % width, i / width, RGB(rgb[0], rgb[1], rgb[2]));
    }
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
        dc.FillSolidRect(&area, white);
        dc.FillSolidRect(0, 0, area.right / 2, area.bottom / 2, RGB(255, 0, 0));
        dc.FillSolidRect(area.right / 2, area.bottom / 2, area.right, area.bottom, RGB(0, 0, 255));
        return 0;
    }
};

} // namespace

struct PrintTest : testing::Test {
    void SetUp() override {
        if (!std::getenv("ZOP_PRINTED"))
            GTEST_SKIP() << "NOT PRINTED: run by way of tests/with_printer";
    }
};

TEST_F(PrintTest, HardcopyFillsThePageAndShowsTheFrame) {
    const std::pair<const char*, CSize> cases[] = {
        {"wide window", {400, 200}}, {"narrow window", {100, 300}}, {"no size", {0, 100}}};
    for (const auto& [name, size] : cases) {
        SCOPED_TRACE(name);
        Quarters window;
        ASSERT_TRUE(window.CreateEx(WS_EX_DLGMODALFRAME, nullptr, "w", WS_POPUP | WS_VISIBLE | WS_DLGFRAME,
                                    CRect(CPoint(20, 30), size), nullptr, 0));
        window.UpdateWindow();
        MakeHardcopy(&window, name);
        const auto page = printed(name);
        const RECT inked = page->ink(white);
        EXPECT_EQ(inked.right < 0, size.cx == 0);
        if (size.cx == 0)
            continue;
        const double width = inked.right + 1 - inked.left, height = inked.top + 1 - inked.bottom;
        EXPECT_NEAR(width / height, static_cast<double>(size.cx) / size.cy, 0.05);
        EXPECT_GT(std::max(width / page->width(), height / page->height()), 0.9);
        const auto at = [&](double x, double y) { // shares of the window
            return page->at(inked.left + static_cast<int>(x * width), inked.top - static_cast<int>(y * height));
        };
        EXPECT_TRUE(at(0.25, 0.25) == RGB(255, 0, 0) && at(0.75, 0.75) == RGB(0, 0, 255));
        EXPECT_TRUE(at(0.75, 0.25) == white && at(0.25, 0.75) == white);
        EXPECT_EQ(page->at(0, page->height() - 1), ::GetSysColor(COLOR_3DLIGHT)); // the frame
    }
}

/// Three pages through the framework's view: the first has a red square of an inch, an inch from the corner.
class PagesView : public CView {
    DECLARE_DYNCREATE(PagesView)

public:
    std::string log, shown;
    UINT cancelled = 0; // the page at which the user thinks better of it

    using CView::OnFilePrint;
    void OnDraw(CDC* dc) override {
        const RECT square{100, -100, 200, -200};
        const HBRUSH red = ::CreateSolidBrush(RGB(255, 0, 0));
        ::FillRect(*dc, &square, red);
        ::DeleteObject(red);
    }
    void OnPrepareDC(CDC* dc, CPrintInfo* info) override {
        ::SetMapMode(*dc, MM_LOENGLISH);
        if (info != nullptr && info->m_nCurPage > 3)
            info->m_bContinuePrinting = FALSE;
    }
    BOOL OnPreparePrinting(CPrintInfo* info) override { return DoPreparePrinting(info); }
    void OnBeginPrinting(CDC*, CPrintInfo*) override { log += "begin "; }
    void OnEndPrinting(CDC*, CPrintInfo*) override { log += "end"; }
    void OnPrint(CDC* dc, CPrintInfo* info) override {
        log += std::to_string(info->m_nCurPage) + (info->m_rectDraw.bottom < -1000 ? " " : "? ");
        if (info->m_nCurPage == 1)
            OnDraw(dc);
        const HWND box = ::FindWindow("#32770", "Printing");
        for (const int id : {AFX_IDC_PRINT_DOCNAME, AFX_IDC_PRINT_PAGENUM}) {
            char text[64] = "";
            ::GetDlgItemText(box, id, text, sizeof text);
            shown += std::string(text) + ", ";
        }
        if (info->m_nCurPage == cancelled)
            ::PostMessage(::GetDlgItem(box, IDCANCEL), BM_CLICK, 0, 0);
    }
    DECLARE_MESSAGE_MAP()
};
IMPLEMENT_DYNCREATE(PagesView, CView)
BEGIN_MESSAGE_MAP(PagesView, CView)
ON_COMMAND(ID_FILE_PRINT_DIRECT, &PagesView::OnFilePrint)
ON_COMMAND(ID_FILE_PRINT, &PagesView::OnFilePrint)
END_MESSAGE_MAP()

PagesView* shown_in(CFrameWnd* frame, const char* title) {
    EXPECT_TRUE(frame->Create(nullptr, title));
    CCreateContext context;
    context.m_pNewViewClass = RUNTIME_CLASS(PagesView);
    auto* view = static_cast<PagesView*>(frame->CreateView(&context));
    frame->SetActiveView(view);
    return view;
}

TEST_F(PrintTest, ViewsPrintPageAfterPageInTheirUnits) {
    auto* frame = new CFrameWnd;
    PagesView* view = shown_in(frame, "view pages");
    frame->SendMessage(WM_COMMAND, ID_FILE_PRINT_DIRECT);
    EXPECT_EQ(view->log, "begin 1 2 3 end");
    EXPECT_EQ(view->shown, "view pages, Page 1, view pages, Page 2, view pages, Page 3, ");
    EXPECT_TRUE(program.boxes.empty());
    const auto page = printed("view pages");
    const RECT inked = page->ink(white);
    EXPECT_NEAR(inked.right + 1 - inked.left, 72, 2);
    EXPECT_NEAR(inked.top + 1 - inked.bottom, 72, 2);
    view->log.clear();
    view->cancelled = 2;
    frame->SendMessage(WM_COMMAND, ID_FILE_PRINT_DIRECT);
    EXPECT_EQ(view->log, "begin 1 2 end");
    EXPECT_TRUE(program.boxes.empty() && !::FindWindow("#32770", "Printing"));
    frame->DestroyWindow();
}

TEST_F(PrintTest, TheUserChoosesPagesOrThinksBetterOfIt) {
    constexpr int pages = 0x0422, from = 0x0480, to = 0x0481; // the dialog's own controls
    auto* frame = new CFrameWnd;
    PagesView* view = shown_in(frame, "chosen pages");
    program.m_pMainWnd = frame;
    const auto answer = [&](int button) {
        WhileModal modal([&] {
            HWND dialog = shown_dialog();
            if (!dialog || !::GetDlgItem(dialog, pages))
                return false;
            EXPECT_FALSE(frame->IsWindowEnabled());
            ::CheckDlgButton(dialog, pages, BST_CHECKED);
            ::SendMessage(dialog, WM_COMMAND, MAKEWPARAM(pages, BN_CLICKED), 0);
            ::SetDlgItemText(dialog, from, "2");
            ::SetDlgItemText(dialog, to, "3");
            return ::PostMessage(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0) != 0;
        });
        frame->SendMessage(WM_COMMAND, ID_FILE_PRINT);
    };
    answer(IDCANCEL);
    EXPECT_EQ(view->log, "") << "nothing is begun";
    answer(IDOK);
    EXPECT_EQ(view->log, "begin 2 3 end");
    EXPECT_TRUE(frame->IsWindowEnabled() && program.boxes.empty());
    program.m_pMainWnd = nullptr;
    frame->DestroyWindow();
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
    const auto page = printed("ZOP Version Control");
    // Lines 50 device units apart from 100 on, at 300 units an inch.
    const RECT inked = page->ink(white);
    const LONG top = page->height();
    constexpr double unit = 72.0 / 300;
    EXPECT_NEAR(inked.left, 100 * unit, 20);
    EXPECT_NEAR(top - inked.top, 100 * unit, 20);
    EXPECT_GT(top - inked.bottom, 200 * unit + 5); // the third line
    EXPECT_LT(top - inked.bottom, 300 * unit + 20);
}

TEST_F(PrintTest, HardcopiesGiveEverythingBack) {
    Quarters window;
    ASSERT_TRUE(window.CreateEx(0, nullptr, "w", WS_POPUP | WS_VISIBLE, CRect(20, 30, 40, 60), nullptr, 0));
    const Counts before;
    for (int i = 0; i < 100; ++i)
        MakeHardcopy(i ? &window : nullptr, "again and again");
    EXPECT_LT(before.grown(), 20);
}
