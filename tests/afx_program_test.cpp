// The program around the windows: dialogs and fonts.
#include "afx_test_app.h"
#include "modal.h"

#include <SDKDDKVer.h>
#include <afxdialogex.h>
#include <afxpriv.h>

test_app the_app;

BEGIN_MESSAGE_MAP(test_app, CWinApp)
ON_COMMAND(ID_FILE_NEW, &CWinApp::OnFileNew)
END_MESSAGE_MAP()

namespace {

class framework : public testing::Environment {
    void SetUp() override {
        ASSERT_TRUE(AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), 0));
        char folder[MAX_PATH];
        ::GetWindowsDirectory(folder, MAX_PATH);
        ::DeleteFile(CString(folder) + "\\" + the_app.m_pszProfileName); // what tests before this one left
    }
};
const testing::Environment* const environment = testing::AddGlobalTestEnvironment(new framework);

// Does one thing when it opens, and one when its data is exchanged.
struct test_dialog : CDialogEx {
    explicit test_dialog(CWnd* parent = nullptr) : CDialogEx(MAKEINTRESOURCE(IDD_TEST), parent) {}
    BOOL OnInitDialog() override {
        CDialogEx::OnInitDialog();
        if (on_open)
            on_open();
        return TRUE;
    }
    void DoDataExchange(CDataExchange* exchange) override {
        CDialogEx::DoDataExchange(exchange);
        if (exchange->m_bSaveAndValidate && !valid)
            throw new CUserException;
    }
    using CDialogEx::OnOK;
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
    EXPECT_TRUE(::IsWindowEnabled(parent) && dialog.m_hWnd == nullptr);
    dialog.on_open = [&] { dialog.press(IDCANCEL); };
    EXPECT_EQ(dialog.DoModal(), IDCANCEL) << "an object can be shown again";
    dialog.on_open = [&] { dialog.EndDialog(77); };
    EXPECT_EQ(dialog.DoModal(), 77) << "ended before its loop began";

    the_app.take_boxes();
    dialog.on_open = [] { AfxThrowResourceException(); };
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_TRUE(the_app.take_boxes().size() == 1 && ::IsWindowEnabled(parent));
    dialog.on_open = [&] { dialog.PostMessage(WM_QUIT, 7); };
    EXPECT_EQ(dialog.DoModal(), -1);
    MSG quit;
    EXPECT_TRUE(::PeekMessage(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) && quit.wParam == 7)
        << "the outer loop must see it, too";
    EXPECT_EQ(CDialog(9999u).DoModal(), -1) << "no such template";
}

TEST(AfxDialog, IsShownOnceAndIdleAfterWhatHappens) {
    struct : test_dialog {
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message != WM_KICKIDLE)
                return test_dialog::WindowProc(message, wParam, lParam);
            seen.emplace_back(IsWindowVisible(), lParam);
            ShowWindow(SW_HIDE);
            press(seen.size() > 1 ? IDOK : 0);
            return FALSE;
        }
        std::vector<std::pair<BOOL, LPARAM>> seen;
    } dialog;
    const WhileModal too_late([&, ticks = 0]() mutable { return ++ticks == 50 && (dialog.press(IDCANCEL), true); });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_THAT(dialog.seen, testing::ElementsAre(std::pair{TRUE, 0}, std::pair{FALSE, 0})) << "as it hid itself";
}

TEST(AfxDialog, IsRefusedWhereItCannotBeInitialised) {
    test_dialog dialog;
    dialog.on_open = [] { throw new CUserException; };
    EXPECT_FALSE(dialog.Create(IDD_TEST) || dialog.m_hWnd != nullptr);
}

TEST(AfxProgram, ShowsThatItIsBusyUntilTheLastWaitEnds) {
    const HCURSOR arrow = ::LoadCursor(nullptr, IDC_ARROW), wait = ::LoadCursor(nullptr, IDC_WAIT);
    EXPECT_TRUE(the_app.LoadCursor(AFX_IDC_MOVE4WAY) == ::LoadCursor(nullptr, IDC_SIZEALL) &&
                !the_app.LoadCursor(4711));
    ::SetCursor(arrow);
    the_app.BeginWaitCursor();
    { CWaitCursor inner; }
    EXPECT_EQ(::SetCursor(arrow), wait);
    the_app.RestoreWaitCursor();
    EXPECT_EQ(::GetCursor(), wait);
    the_app.EndWaitCursor();
    EXPECT_EQ(::GetCursor(), arrow);
    {
        CWaitCursor wait_again;
        ::SetCursor(arrow);
        wait_again.Restore();
        EXPECT_EQ(::GetCursor(), wait);
    }
    EXPECT_EQ(::GetCursor(), arrow);
}

TEST(AfxProgram, BoxesBearItsNameAndAnIconThatFits) {
    EXPECT_STREQ(AfxGetAppName(), "Tests");
    const std::pair<UINT, LPCTSTR> cases[] = {{MB_OK, IDI_EXCLAMATION},
                                              {MB_YESNO, IDI_QUESTION},
                                              {MB_RETRYCANCEL, IDI_HAND},
                                              {MB_OKCANCEL | MB_ICONINFORMATION, IDI_INFORMATION}};
    for (const auto& [type, icon] : cases) {
        LRESULT shown = 0;
        const WhileModal work([&] {
            const HWND box = ::FindWindow("#32770", AfxGetAppName());
            shown = ::SendMessage(::FindWindowEx(box, nullptr, "Static", nullptr), STM_GETICON, 0, 0);
            return shown != 0 && ::EndDialog(box, 77);
        });
        EXPECT_EQ(the_app.CWinApp::DoMessageBox("text", type, 0), 77);
        EXPECT_EQ(shown, reinterpret_cast<LRESULT>(::LoadIcon(nullptr, icon))) << type;
    }
}

TEST(AfxDrawing, PointFontsAreAsHighAsTheDeviceSays) {
    const int inch = CClientDC(nullptr).GetDeviceCaps(LOGPIXELSY);
    for (const int tenths : {80, 105, 1, 720, -80}) {
        CFont font;
        ASSERT_TRUE(font.CreatePointFont(tenths, "Arial"));
        LOGFONT description{};
        font.GetObject(sizeof(description), &description);
        EXPECT_EQ(description.lfHeight, -std::abs(inch * tenths / 720)) << tenths;
    }
}

} // namespace
