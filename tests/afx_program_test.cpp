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
    CWnd* desktop = CWnd::GetDesktopWindow();
    desktop->SetOwner(&main);

    child.PostMessage(WM_KEYDOWN, VK_F2);
    EXPECT_EQ(the_app.Run(), 5);
    EXPECT_THAT(log, ElementsAre("child", "main"));
    EXPECT_THAT(child.seen, testing::Contains(WM_KEYDOWN));
    ASSERT_GE(the_app.idle_counts.size(), 2u);
    EXPECT_THAT(std::vector<LONG>(the_app.idle_counts.end() - 2, the_app.idle_counts.end()), ElementsAre(0, 1));
    EXPECT_NE(CWnd::GetDesktopWindow()->GetOwner(), &main) << "temporary objects went with the idle work";

    log.clear();
    child.seen.clear();
    main.takes = true;
    child.PostMessage(WM_KEYDOWN, VK_F2);
    the_app.Run();
    EXPECT_THAT(child.seen, testing::Not(testing::Contains(WM_KEYDOWN)));
    the_app.quit_when_idle = false;
    the_app.m_pMainWnd = nullptr;
}

// Does one thing when it opens, and exchanges all kinds of data.
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
        DDX_Control(exchange, IDC_LIST, list);
        DDX_Text(exchange, IDC_NUMBER, number);
        DDX_Text(exchange, IDC_NAME, name);
        DDX_Radio(exchange, IDC_RADIO, radio);
    }
    void press(UINT id) { PostMessage(WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), 0); }

    std::function<void()> on_open;
    CListBox list;
    int number = 12, radio = 1;
    CString name = "first";
};

TEST(AfxDialog, ModalOneDisablesItsParentUntilItEnds) {
    CWnd parent;
    ASSERT_TRUE(create_popup(parent));
    test_dialog dialog(&parent);
    const HWND* handle = &dialog.m_hWnd;
    dialog.on_open = [&] {
        EXPECT_NE(*handle, nullptr);
        EXPECT_FALSE(parent.IsWindowEnabled());
        dialog.press(IDOK);
    };
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_TRUE(parent.IsWindowEnabled());
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    dialog.on_open = [&] { dialog.press(IDCANCEL); };
    EXPECT_EQ(dialog.DoModal(), IDCANCEL) << "an object can be shown again";
    dialog.on_open = [&] { dialog.EndDialog(77); };
    EXPECT_EQ(dialog.DoModal(), 77) << "ended before its loop began";

    the_app.take_boxes();
    dialog.on_open = [] { AfxThrowResourceException(); };
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_EQ(the_app.take_boxes().size(), 1u);
    EXPECT_TRUE(parent.IsWindowEnabled());
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
    dialog.on_open = [] { AfxThrowUserException(); };
    EXPECT_FALSE(dialog.Create(IDD_TEST));
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(AfxFileDialog, EndsItsListOfFilters) {
    const CFileDialog dialog(TRUE, nullptr, nullptr, 0, "Text|*.txt");
    EXPECT_EQ(std::string(dialog.m_ofn.lpstrFilter, 12), std::string("Text\0*.txt\0\0", 12));
}

TEST(AfxDialog, ExchangesDataAndRefusesWhatItCannotRead) {
    test_dialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_TEST));
    EXPECT_EQ(dialog.IsDlgButtonChecked(IDC_RADIO + 1), static_cast<UINT>(BST_CHECKED));
    EXPECT_EQ(CWnd::FromHandlePermanent(::GetDlgItem(dialog, IDC_LIST)), &dialog.list);

    dialog.SetDlgItemText(IDC_NUMBER, " -7 ");
    dialog.SetDlgItemText(IDC_NAME, "second");
    dialog.CheckRadioButton(IDC_RADIO, IDC_RADIO + 1, IDC_RADIO);
    EXPECT_TRUE(dialog.UpdateData());
    EXPECT_EQ(dialog.number, -7);
    EXPECT_STREQ(dialog.name, "second");
    EXPECT_EQ(dialog.radio, 0);

    the_app.take_boxes();
    for (LPCTSTR unreadable : {"", "x", "1x", "99999999999", "99999999999999999999"}) {
        dialog.SetDlgItemText(IDC_NUMBER, unreadable);
        EXPECT_FALSE(dialog.UpdateData()) << unreadable;
        EXPECT_EQ(the_app.take_boxes().size(), 1u);
        EXPECT_EQ(dialog.number, -7);
    }
}

class test_frame : public CFrameWnd {
public:
    explicit test_frame(int& commands) : m_commands(commands) {}
    ~test_frame() override { m_commands += 100; }

private:
    void OnFrameCommand() { ++m_commands; }
    void OnUpdateFrameCommand(CCmdUI* ui) { ui->SetCheck(); }
    DECLARE_MESSAGE_MAP()

    int& m_commands;
};

BEGIN_MESSAGE_MAP(test_frame, CFrameWnd)
ON_COMMAND(ID_FRAME_COMMAND, &test_frame::OnFrameCommand)
ON_UPDATE_COMMAND_UI(ID_FRAME_COMMAND, &test_frame::OnUpdateFrameCommand)
END_MESSAGE_MAP()

TEST(AfxFrame, RunsAsAProgramUntilItIsClosed) {
    int commands = 0;
    std::vector<UINT> states;
    the_app.commands = 0;
    the_app.start = [&] {
        auto* frame = new test_frame(commands);
        if (!frame->LoadFrame(IDR_FRAME))
            return FALSE;
        the_app.m_pMainWnd = frame;
        CMenu* popup = frame->GetMenu()->GetSubMenu(0);
        frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup->m_hMenu), 0);
        for (UINT i = 0; i < 3; ++i)
            states.push_back(popup->GetMenuState(i, MF_BYPOSITION) & (MF_CHECKED | MF_GRAYED));
        frame->PostMessage(WM_KEYDOWN, VK_F5);
        frame->PostMessage(WM_COMMAND, ID_APP_COMMAND);
        frame->PostMessage(WM_CLOSE);
        return TRUE;
    };
    EXPECT_EQ(::WinMain(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_HIDE), 0);
    EXPECT_THAT(states, ElementsAre(MF_CHECKED, 0, MF_GRAYED)) << "handled by the frame, the program, nobody";
    EXPECT_EQ(commands, 1 + 100) << "through the accelerator; then the frame was deleted";
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
    new CDynLinkLibrary(module);
    EXPECT_EQ(AfxFindResourceHandle(foreign, RT_DIALOG), library);
    AfxTermExtensionModule(module);
    EXPECT_EQ(AfxFindResourceHandle(foreign, RT_DIALOG), program);
    AfxSetResourceHandle(library);
    EXPECT_EQ(AfxFindResourceHandle(foreign, RT_DIALOG), library);
    EXPECT_EQ(AfxFindResourceHandle(own, RT_DIALOG), program);
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCE(60000), RT_DIALOG), library) << "the current module";
    AfxSetResourceHandle(program);
    char small[6];
    EXPECT_EQ(AfxLoadString(IDR_FRAME, small, sizeof(small)), 5);
    EXPECT_STREQ(small, "Frame");
    EXPECT_EQ(AfxLoadString(60000, small, sizeof(small)), 0);
    EXPECT_STREQ(small, "");
}

TEST(AfxDrawing, PointFontsAreAsHighAsTheDeviceSays) {
    const auto height_of = [](CFont& font) {
        LOGFONT description{};
        font.GetLogFont(&description);
        return description.lfHeight;
    };
    CDC dc;
    ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
    const int inch = dc.GetDeviceCaps(LOGPIXELSY);
    dc.SetMapMode(MM_ANISOTROPIC);
    dc.SetWindowExt(200, 200);
    dc.SetWindowOrg(13, 17);
    dc.SetViewportExt(100, -100);
    dc.SetViewportOrg(30, 40);
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
