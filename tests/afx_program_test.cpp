// The program around the windows: message loop, dialogs, frames, drawing, resources.
#include "afx_test_app.h"
#include <afxcmn.h>
#include <afxdlgs.h>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;
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
        DDX_Check(exchange, IDC_CHECK, check);
        DDX_Radio(exchange, IDC_RADIO, radio);
    }
    void press(UINT id) { PostMessage(WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), 0); }

    std::function<void()> on_open;
    CListBox list;
    int number = 12, check = BST_CHECKED, radio = 1;
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
    dialog.on_open = [&] { dialog.PostMessage(WM_QUIT); };
    EXPECT_EQ(dialog.DoModal(), -1);
    MSG quit;
    EXPECT_TRUE(::PeekMessage(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) << "the outer loop must see it, too";
    EXPECT_EQ(CDialog(9999u).DoModal(), -1) << "no such template";
}

TEST(AfxDialog, ExchangesDataAndRefusesWhatItCannotRead) {
    test_dialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_TEST));
    CString text;
    dialog.GetDlgItemText(IDC_NUMBER, text);
    EXPECT_STREQ(text, "12");
    EXPECT_EQ(dialog.IsDlgButtonChecked(IDC_RADIO + 1), static_cast<UINT>(BST_CHECKED));
    EXPECT_EQ(CWnd::FromHandlePermanent(::GetDlgItem(dialog, IDC_LIST)), &dialog.list);

    dialog.SetDlgItemText(IDC_NUMBER, " -7 ");
    dialog.SetDlgItemText(IDC_NAME, "second");
    dialog.CheckDlgButton(IDC_CHECK, BST_UNCHECKED);
    dialog.CheckRadioButton(IDC_RADIO, IDC_RADIO + 1, IDC_RADIO);
    EXPECT_TRUE(dialog.UpdateData());
    EXPECT_EQ(dialog.number, -7);
    EXPECT_STREQ(dialog.name, "second");
    EXPECT_EQ(dialog.check, BST_UNCHECKED);
    EXPECT_EQ(dialog.radio, 0);

    the_app.take_boxes();
    for (LPCTSTR unreadable : {"", "x", "1x", "99999999999", "99999999999999999999"}) {
        SCOPED_TRACE(unreadable);
        dialog.SetDlgItemText(IDC_NUMBER, unreadable);
        EXPECT_FALSE(dialog.UpdateData());
        EXPECT_EQ(the_app.take_boxes().size(), 1u);
        EXPECT_EQ(dialog.number, -7);
    }
}

// Presses its own button as soon as it is open, and refuses the first name.
class test_file_dialog : public CFileDialog {
public:
    explicit test_file_dialog(UINT button)
        : CFileDialog(FALSE, "dat", "C:\\chosen", OFN_HIDEREADONLY, "Data|*.dat|All|*.*||"), m_button(button) {}
    BOOL OnInitDialog() override {
        opened = ::IsWindow(GetParent()->GetSafeHwnd());
        GetParent()->PostMessage(WM_COMMAND, m_button);
        return CFileDialog::OnInitDialog();
    }
    BOOL OnFileNameOK() override {
        if (asked++ > 0)
            return FALSE;
        GetParent()->PostMessage(WM_COMMAND, m_button);
        return TRUE;
    }
    bool opened = false;
    int asked = 0;

private:
    UINT m_button;
};

TEST(AfxDialog, FileDialogGivesThePartsOfTheName) {
    test_file_dialog chosen(IDOK), cancelled(IDCANCEL);
    EXPECT_STREQ(chosen.m_ofn.lpstrFilter + 5, "*.dat");
    EXPECT_EQ(chosen.DoModal(), IDOK);
    EXPECT_TRUE(chosen.opened);
    EXPECT_EQ(chosen.asked, 2) << "the first answer was a refusal";
    EXPECT_EQ(chosen.m_hWnd, nullptr);
    EXPECT_STREQ(chosen.GetPathName(), "C:\\chosen.dat");
    EXPECT_STREQ(chosen.GetFileName(), "chosen.dat");
    EXPECT_STREQ(chosen.GetFileTitle(), "chosen");
    EXPECT_STREQ(chosen.GetFileExt(), "dat");
    EXPECT_EQ(cancelled.DoModal(), IDCANCEL);
    EXPECT_EQ(cancelled.asked, 0);
}

class test_frame : public CFrameWnd {
public:
    explicit test_frame(int& commands, bool& deleted) : m_commands(commands), m_deleted(deleted) {}
    ~test_frame() override { m_deleted = true; }

private:
    void OnFrameCommand() { ++m_commands; }
    void OnUpdateFrameCommand(CCmdUI* ui) {
        ui->SetText("New text");
        ui->SetCheck();
    }
    DECLARE_MESSAGE_MAP()

    int& m_commands;
    bool& m_deleted;
};

BEGIN_MESSAGE_MAP(test_frame, CFrameWnd)
ON_COMMAND(ID_FRAME_COMMAND, &test_frame::OnFrameCommand)
ON_UPDATE_COMMAND_UI(ID_FRAME_COMMAND, &test_frame::OnUpdateFrameCommand)
END_MESSAGE_MAP()

TEST(AfxFrame, RunsAsAProgramUntilItIsClosed) {
    int commands = 0;
    bool deleted = false;
    CString title, item;
    UINT states[3] = {};
    the_app.commands = 0;
    the_app.start = [&] {
        auto* frame = new test_frame(commands, deleted);
        if (!frame->LoadFrame(IDR_FRAME))
            return FALSE;
        the_app.m_pMainWnd = frame;
        frame->GetWindowText(title);
        CMenu* popup = frame->GetMenu()->GetSubMenu(0);
        frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup->m_hMenu), 0);
        popup->GetMenuString(0, item, MF_BYPOSITION);
        for (UINT i = 0; i < 3; ++i)
            states[i] = popup->GetMenuState(i, MF_BYPOSITION);
        frame->PostMessage(WM_KEYDOWN, VK_F5);
        frame->PostMessage(WM_COMMAND, ID_APP_COMMAND);
        frame->PostMessage(WM_CLOSE);
        return TRUE;
    };
    EXPECT_EQ(::WinMain(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_HIDE), 0);
    EXPECT_STREQ(title, "Frame title");
    EXPECT_STREQ(item, "New text");
    EXPECT_EQ(states[0] & (MF_CHECKED | MF_GRAYED), static_cast<UINT>(MF_CHECKED));
    EXPECT_EQ(states[1] & MF_GRAYED, 0u) << "the program handles it";
    EXPECT_EQ(states[2] & MF_GRAYED, static_cast<UINT>(MF_GRAYED));
    EXPECT_EQ(commands, 1) << "through the accelerator";
    EXPECT_EQ(the_app.commands, 1);
    EXPECT_TRUE(deleted);
    EXPECT_EQ(AfxGetMainWnd(), nullptr);
    the_app.start = nullptr;
    EXPECT_EQ(AfxWinMain(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_HIDE), 0) << "no loop";
}

TEST(AfxResources, AreFoundAlongTheChain) {
    const HINSTANCE program = AfxGetInstanceHandle(), library = ::GetModuleHandle("comdlg32.dll");
    LPCTSTR foreign = MAKEINTRESOURCE(1547), own = MAKEINTRESOURCE(IDD_TEST); // the library's file dialog
    EXPECT_EQ(AfxFindResourceHandle(own, RT_DIALOG), program);
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
    CString text(MAKEINTRESOURCE(IDR_FRAME));
    EXPECT_STREQ(text, "Frame title\nnot shown");
    AfxSetResourceHandle(program);
    char small[6];
    EXPECT_EQ(AfxLoadString(IDR_FRAME, small, sizeof(small)), 5);
    EXPECT_STREQ(small, "Frame");
    EXPECT_EQ(AfxLoadString(60000, small, sizeof(small)), 0);
    EXPECT_STREQ(small, "");
}

int height_of(CFont& font) {
    LOGFONT description{};
    font.GetLogFont(&description);
    return description.lfHeight;
}

TEST(AfxDrawing, PointFontsAreAsHighAsTheDeviceSays) {
    CDC dc;
    ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
    const int inch = dc.GetDeviceCaps(LOGPIXELSY);
    for (const int tenths : {80, 105, 1, 720, -80}) {
        SCOPED_TRACE(tenths);
        CFont screen, scaled, mirrored;
        ASSERT_TRUE(screen.CreatePointFont(tenths, "Arial"));
        const int pixels = std::abs(inch * tenths / 720);
        EXPECT_EQ(height_of(screen), -pixels);
        dc.SetMapMode(MM_ANISOTROPIC);
        dc.SetWindowExt(200, 200);
        dc.SetWindowOrg(13, 17);
        dc.SetViewportExt(100, 100);
        dc.SetViewportOrg(30, 40);
        ASSERT_TRUE(scaled.CreatePointFont(tenths, "Arial", &dc));
        EXPECT_EQ(height_of(scaled), -2 * pixels) << "two units a pixel; the origins do not count";
        dc.SetViewportExt(100, -100);
        ASSERT_TRUE(mirrored.CreatePointFont(tenths, nullptr, &dc));
        EXPECT_EQ(height_of(mirrored), -2 * pixels);
    }
}

TEST(AfxDrawing, ContextsGiveBackWhatWasSelected) {
    CDC dc;
    CBitmap bitmap;
    CPen pen(PS_SOLID, 1, RGB(255, 0, 0));
    const CClientDC screen(nullptr);
    ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
    ASSERT_TRUE(bitmap.CreateCompatibleBitmap(CDC::FromHandle(screen), 10, 10));
    EXPECT_EQ(CDC::FromHandle(dc.m_hDC), &dc);
    EXPECT_EQ(CGdiObject::FromHandle(pen.m_hObject), &pen);
    CBitmap* before = dc.SelectObject(&bitmap);
    CPen* old_pen = dc.SelectObject(&pen);
    EXPECT_EQ(dc.GetCurrentPen(), &pen);
    EXPECT_EQ(dc.SelectObject(static_cast<CPen*>(nullptr)), nullptr);
    EXPECT_EQ(dc.GetCurrentPen(), &pen);
    dc.FillSolidRect(0, 0, 10, 10, RGB(255, 255, 255));
    dc.Draw3dRect(2, 2, 5, 5, RGB(0, 255, 0), RGB(0, 0, 255));
    const struct {
        int x, y;
        COLORREF color;
    } pixels[] = {
        {1, 1, RGB(255, 255, 255)}, {2, 2, RGB(0, 255, 0)}, {5, 2, RGB(0, 255, 0)},     {2, 5, RGB(0, 255, 0)},
        {6, 2, RGB(0, 0, 255)},     {2, 6, RGB(0, 0, 255)}, {4, 4, RGB(255, 255, 255)}, {7, 6, RGB(255, 255, 255)},
    };
    for (const auto& pixel : pixels)
        EXPECT_EQ(dc.GetPixel(pixel.x, pixel.y), pixel.color) << pixel.x << ", " << pixel.y;
    EXPECT_EQ(dc.SelectObject(old_pen), &pen);
    EXPECT_EQ(dc.SelectObject(before), &bitmap);
    EXPECT_TRUE(pen.DeleteObject());
    EXPECT_FALSE(pen.DeleteObject());
    EXPECT_EQ(CPen::FromHandle(nullptr)->GetSafeHandle(), nullptr);
}

TEST(AfxDrawing, PaintingValidatesTheWindow) {
    CWnd wnd;
    ASSERT_TRUE(create_visible_popup(wnd));
    wnd.ValidateRect(nullptr);
    wnd.InvalidateRect(CRect(5, 6, 15, 26));
    {
        CPaintDC dc(&wnd);
        EXPECT_EQ(CRect(dc.m_ps.rcPaint), CRect(5, 6, 15, 26));
        EXPECT_EQ(dc.GetWindow(), &wnd);
    }
    EXPECT_FALSE(wnd.GetUpdateRect(nullptr));
}

TEST(AfxControls, SliderAndToolTipWork) {
    CWnd parent;
    CSliderCtrl slider;
    CToolTipCtrl tip;
    ASSERT_TRUE(create_popup(parent));
    ASSERT_TRUE(slider.Create(WS_CHILD, CRect(0, 0, 90, 20), &parent, 1));
    slider.SetRange(-10, 300);
    slider.SetPos(400);
    EXPECT_EQ(slider.GetPos(), 300);
    ASSERT_TRUE(tip.Create(&parent));
    EXPECT_TRUE(tip.AddTool(&slider, "tip"));
    EXPECT_TRUE(tip.AddTool(&parent, "part", CRect(0, 0, 5, 5), 7));
    EXPECT_EQ(tip.GetToolCount(), 2);
    tip.DelTool(&parent, 7);
    EXPECT_EQ(tip.GetToolCount(), 1);
}

} // namespace
