// The program around the windows: message loop, dialogs, frames, drawing, resources.
#include "afx_test_app.h"

#include <afxdlgs.h>

#include <gmock/gmock.h>

using testing::ElementsAre;
using Texts = std::vector<std::string>;

test_app the_app;

BEGIN_MESSAGE_MAP(test_app, CWinApp)
ON_COMMAND(ID_APP_COMMAND, &test_app::OnAppCommand)
END_MESSAGE_MAP()

namespace {

class framework : public testing::Environment {
    void SetUp() override { ASSERT_TRUE(AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), 0)); }
};
const testing::Environment* const environment = testing::AddGlobalTestEnvironment(new framework);

// Tells when it is asked about a message, and may take it.
class listener : public recorder {
public:
    BOOL PreTranslateMessage(MSG* message) override {
        if (message->message == WM_KEYDOWN)
            log->push_back(name);
        return message->message == WM_KEYDOWN && takes;
    }
    const char* name = "";
    Texts* log = nullptr;
    bool takes = false;
};

TEST(AfxLoop, AsksTheWindowsFromTheTargetToTheMainWindow) {
    Texts log;
    listener outside, main, child;
    for (auto [wnd, name] : {std::pair{&outside, "outside"}, {&main, "main"}, {&child, "child"}})
        wnd->name = name, wnd->log = &log;
    ASSERT_TRUE(create_popup(outside));
    ASSERT_TRUE(main.CreateEx(0, nullptr, "", WS_CHILD, CRect(0, 0, 50, 50), &outside, 1));
    ASSERT_TRUE(child.CreateEx(0, nullptr, "", WS_CHILD, CRect(0, 0, 20, 20), &main, 1));
    the_app.m_pMainWnd = &main;
    the_app.quit_when_idle = true;
    the_app.idle_counts.clear();

    child.PostMessage(WM_KEYDOWN, VK_F2);
    EXPECT_EQ(the_app.Run(), 5);
    EXPECT_THAT(log, ElementsAre("child", "main"));
    EXPECT_THAT(child.seen, testing::Contains(WM_KEYDOWN));
    ASSERT_GE(the_app.idle_counts.size(), 2u);
    EXPECT_THAT(std::vector<LONG>(the_app.idle_counts.end() - 2, the_app.idle_counts.end()), ElementsAre(0, 1));

    log.clear();
    child.seen.clear();
    main.takes = true;
    child.PostMessage(WM_KEYDOWN, VK_F2);
    the_app.Run();
    EXPECT_THAT(child.seen, testing::Not(testing::Contains(WM_KEYDOWN)));
    the_app.quit_when_idle = false;
    the_app.m_pMainWnd = nullptr;
}

// Does one thing when it opens, and one when its data is exchanged.
class test_dialog : public CDialog {
public:
    explicit test_dialog(CWnd* parent = nullptr) : CDialog(IDD_TEST, parent) {}
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        if (on_open)
            on_open();
        return TRUE;
    }
    void DoDataExchange(CDataExchange* exchange) override {
        CDialog::DoDataExchange(exchange);
        if (exchange->m_bSaveAndValidate && !valid)
            throw new CUserException;
    }
    using CDialog::OnOK;
    void press(UINT id) { PostMessage(WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), 0); }

    std::function<void()> on_open;
    bool valid = true;
};

TEST(AfxDialog, ModalOneDisablesItsParentUntilItEnds) {
    CWnd parent;
    ASSERT_TRUE(create_popup(parent));
    test_dialog dialog(&parent);
    const HWND* handle = &dialog.m_hWnd;
    dialog.on_open = [&] {
        EXPECT_NE(*handle, nullptr);
        EXPECT_FALSE(::IsWindowEnabled(parent));
        dialog.valid = false;
        dialog.OnOK();
        EXPECT_NE(*handle, nullptr) << "what the user entered was refused";
        dialog.valid = true;
        dialog.press(IDOK);
    };
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_TRUE(::IsWindowEnabled(parent));
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    dialog.on_open = [&] { dialog.press(IDCANCEL); };
    EXPECT_EQ(dialog.DoModal(), IDCANCEL) << "an object can be shown again";
    dialog.on_open = [&] { dialog.EndDialog(77); };
    EXPECT_EQ(dialog.DoModal(), 77) << "ended before its loop began";

    the_app.take_boxes();
    dialog.on_open = [] { AfxThrowResourceException(); };
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_EQ(the_app.take_boxes().size(), 1u);
    EXPECT_TRUE(::IsWindowEnabled(parent));
    dialog.on_open = [&] { dialog.PostMessage(WM_QUIT, 7); };
    EXPECT_EQ(dialog.DoModal(), -1);
    MSG quit;
    EXPECT_TRUE(::PeekMessage(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) << "the outer loop must see it, too";
    EXPECT_EQ(quit.wParam, 7u);
    EXPECT_EQ(CDialog(9999u).DoModal(), -1) << "no such template";
}

// Hides itself as soon as it is shown.
class shy_dialog : public CDialog {
public:
    shy_dialog() : CDialog(IDD_TEST) {}
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_KICKIDLE) {
            shown.push_back(IsWindowVisible());
            ShowWindow(SW_HIDE);
            if (shown.size() == 2)
                EndDialog(IDOK);
            return TRUE;
        }
        return CDialog::WindowProc(message, wParam, lParam);
    }
    std::vector<BOOL> shown;
};

TEST(AfxDialog, IsShownOnceAndRefusedWhereItCannotBeInitialised) {
    shy_dialog shy;
    EXPECT_EQ(shy.DoModal(), IDOK);
    EXPECT_THAT(shy.shown, ElementsAre(TRUE, FALSE));
    test_dialog dialog;
    dialog.on_open = [] { throw new CUserException; };
    EXPECT_FALSE(dialog.Create(IDD_TEST));
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(AfxFileDialog, EndsItsListOfFilters) {
    const CFileDialog dialog(TRUE, nullptr, nullptr, 0, "Text|*.txt");
    EXPECT_EQ(std::string(dialog.m_ofn.lpstrFilter, 12), std::string("Text\0*.txt\0\0", 12));
}

class test_frame : public CFrameWnd {
public:
    explicit test_frame(int& commands) : m_commands(commands) {}
    ~test_frame() override { m_commands += 100; }

private:
    void OnFrameCommand() { ++m_commands; }
    DECLARE_MESSAGE_MAP()

    int& m_commands;
};

BEGIN_MESSAGE_MAP(test_frame, CFrameWnd)
ON_COMMAND(ID_FRAME_COMMAND, &test_frame::OnFrameCommand)
END_MESSAGE_MAP()

TEST(AfxFrame, RunsAsAProgramUntilItIsClosed) {
    int commands = 0;
    the_app.commands = 0;
    the_app.start = [&] {
        auto* frame = new test_frame(commands);
        if (!frame->Create(nullptr, "Frame"))
            return FALSE;
        the_app.m_pMainWnd = frame;
        frame->PostMessage(WM_COMMAND, ID_FRAME_COMMAND);
        frame->PostMessage(WM_COMMAND, ID_APP_COMMAND);
        frame->PostMessage(WM_CLOSE);
        return TRUE;
    };
    EXPECT_EQ(::WinMain(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_HIDE), 0);
    EXPECT_EQ(commands, 1 + 100) << "then the frame was deleted";
    EXPECT_EQ(the_app.commands, 1);
    EXPECT_EQ(AfxGetMainWnd(), nullptr);
    the_app.start = nullptr;
    EXPECT_EQ(AfxWinMain(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_HIDE), 0) << "no loop";
}

TEST(AfxResources, AreFoundAlongTheChain) {
    const HINSTANCE program = AfxGetInstanceHandle(), library = ::GetModuleHandle("comdlg32.dll");
    LPCTSTR foreign = MAKEINTRESOURCE(1547), own = MAKEINTRESOURCE(IDD_TEST); // the library's file dialog
    EXPECT_EQ(AfxFindResourceHandle(foreign, RT_DIALOG), program) << "nobody has it";
    AFX_EXTENSION_MODULE module{};
    EXPECT_FALSE(AfxInitExtensionModule(module, nullptr));
    ASSERT_TRUE(AfxInitExtensionModule(module, library));
    auto* link = new CDynLinkLibrary(module);
    EXPECT_EQ(AfxFindResourceHandle(foreign, RT_DIALOG), library);
    delete link;
    EXPECT_EQ(AfxFindResourceHandle(foreign, RT_DIALOG), program);
    AfxSetResourceHandle(library);
    EXPECT_EQ(AfxFindResourceHandle(foreign, RT_DIALOG), library);
    EXPECT_EQ(AfxFindResourceHandle(own, RT_DIALOG), program);
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCE(60000), RT_DIALOG), library) << "the current module";
    AfxSetResourceHandle(program);
}

TEST(AfxDrawing, PointFontsAreAsHighAsTheDeviceSays) {
    const auto height_of = [](CFont& font) {
        LOGFONT description{};
        font.GetObject(sizeof(description), &description);
        return description.lfHeight;
    };
    CDC dc;
    ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
    const int inch = dc.GetDeviceCaps(LOGPIXELSY);
    ::SetMapMode(dc, MM_ANISOTROPIC);
    ::SetWindowExtEx(dc, 200, 200, nullptr);
    ::SetWindowOrgEx(dc, 13, 17, nullptr);
    ::SetViewportExtEx(dc, 100, -100, nullptr);
    ::SetViewportOrgEx(dc, 30, 40, nullptr);
    for (const int tenths : {80, 105, 1, 720, -80}) {
        CFont screen, scaled;
        ASSERT_TRUE(screen.CreatePointFont(tenths, "Arial"));
        const int pixels = std::abs(inch * tenths / 720);
        EXPECT_EQ(height_of(screen), -pixels) << tenths;
        ASSERT_TRUE(scaled.CreatePointFont(tenths, nullptr, &dc));
        EXPECT_EQ(height_of(scaled), -2 * pixels) << tenths << ": two units a pixel; the origins do not count";
    }
}

} // namespace
