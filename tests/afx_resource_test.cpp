// Resources in every form that a compiler or a broken file may give them; families of windows; the shell.
#include "afx_test_app.h"

#include <afxext.h>
#include <afxpriv.h>

using testing::ElementsAre;

namespace {

struct plain_frame : CFrameWnd {
    bool open() { return Create(nullptr, "frame") != FALSE; }
    void PostNcDestroy() override {}
};

TEST(AfxToolBarResource, IsReadInBothFormsAndRefusedWhereItIsBroken) {
    const std::pair<UINT, int> cases[] = {{IDR_FRAME, 5}, {201, 2},  {202, -1}, {203, -1},
                                          {204, -1},      {205, -1}, {299, -1}};
    for (const auto& [id, buttons] : cases) {
        plain_frame frame;
        CToolBar bar;
        ASSERT_TRUE(frame.open() && bar.Create(&frame));
        EXPECT_EQ(bar.LoadToolBar(id), buttons > 0) << id;
        EXPECT_TRUE(buttons < 0 || bar.GetCount() == buttons) << id;
    }
}

// A child dialog whose boxes are filled from data.
struct boxes : CWnd {
    bool open(CWnd& parent) { return CreateDlg(MAKEINTRESOURCE(IDD_BOXES), &parent) != FALSE; }
    int count(int id, UINT message) { return static_cast<int>(SendDlgItemMessage(id, message)); }
};

using AfxDialogData = WithParent;

TEST_F(AfxDialogData, FillsBoxesAndStopsAtWhatIsBroken) {
    boxes dialog;
    ASSERT_TRUE(dialog.open(parent));
    EXPECT_TRUE(dialog.ExecuteDlgInit(MAKEINTRESOURCE(IDD_BOXES)));
    EXPECT_EQ(dialog.count(1001, CB_GETCOUNT), 2);
    EXPECT_EQ(dialog.count(1002, LB_GETCOUNT), 1);
    EXPECT_TRUE(dialog.ExecuteDlgInit(MAKEINTRESOURCE(4711))) << "there is none: nothing to do";
    CDialog filled;
    ASSERT_TRUE(filled.Create(IDD_BOXES, &parent));
    EXPECT_EQ(filled.SendDlgItemMessage(1001, CB_GETCOUNT), 2) << "a dialog fills its own";
    BYTE endless[0x10000 + 8] = {0xE9, 0x03, 0x03, 0x04, 0xFF, 0xFF, 0xFF, 0x7F, 'x'};
    EXPECT_FALSE(dialog.ExecuteDlgInit(static_cast<LPVOID>(endless))) << "longer than any resource";
    BYTE open_end[0x10000 + 8] = {0xE9, 0x03, 0x03, 0x04, 2, 0, 0, 0, 'x', 'y'};
    EXPECT_FALSE(dialog.ExecuteDlgInit(static_cast<LPVOID>(open_end))) << "a text without its end";
    EXPECT_EQ(dialog.count(1001, CB_GETCOUNT), 2);
}

TEST(AfxWindowFamily, FindsParentsOwnersFramesAndDescendants) {
    plain_frame frame;
    ASSERT_TRUE(frame.open());
    CWnd child, grandchild, owned;
    ASSERT_TRUE(child.Create(nullptr, "", WS_CHILD, CRect(0, 0, 9, 9), &frame, 5));
    ASSERT_TRUE(grandchild.Create(nullptr, "", WS_CHILD, CRect(0, 0, 5, 5), &child, 6));
    ASSERT_TRUE(owned.CreateEx(0, nullptr, "", WS_POPUP, CRect(0, 0, 9, 9), &frame, 0));
    EXPECT_TRUE(grandchild.GetParentFrame() == &frame && grandchild.GetTopLevelFrame() == &frame);
    EXPECT_TRUE(frame.GetTopLevelFrame() == &frame && frame.GetParentFrame() == nullptr);
    EXPECT_TRUE(owned.GetParentFrame() == &frame && owned.GetTopLevelParent() == &frame) << "by the owner";
    EXPECT_TRUE(frame.GetDescendantWindow(6) == &grandchild && frame.GetDescendantWindow(7) == nullptr);
    EXPECT_EQ(child.GetOwner(), &frame);
    child.SetOwner(&owned);
    EXPECT_EQ(child.GetOwner(), &owned);

    recorder deep;
    ASSERT_TRUE(deep.Create(nullptr, "", WS_CHILD, CRect(0, 0, 1, 1), &grandchild, 8));
    frame.SendMessageToDescendants(WM_USER, 0, 0, FALSE);
    EXPECT_THAT(deep.seen, testing::Not(testing::Contains(WM_USER))) << "children only";
    frame.SendMessageToDescendants(WM_USER);
    EXPECT_THAT(deep.seen, testing::Contains(WM_USER));
}

TEST(AfxWindowStyle, ChangesAndAnswersWhetherItDid) {
    CWnd wnd;
    ASSERT_TRUE(create_popup(wnd));
    EXPECT_TRUE(wnd.ModifyStyle(0, WS_VSCROLL, SWP_FRAMECHANGED));
    EXPECT_FALSE(wnd.ModifyStyle(WS_VSCROLL, WS_VSCROLL)) << "what is taken away is given back";
    EXPECT_TRUE(wnd.ModifyStyleEx(0, WS_EX_CLIENTEDGE));
    SCROLLINFO info{0, SIF_RANGE | SIF_PAGE | SIF_POS, 0, 99, 10, 20, 0};
    wnd.SetScrollInfo(SB_VERT, &info);
    EXPECT_TRUE(wnd.GetScrollLimit(SB_VERT) == 90 && wnd.GetScrollPos(SB_VERT) == 20);
    CWnd button;
    ASSERT_TRUE(button.Create("BUTTON", "", WS_CHILD | BS_AUTORADIOBUTTON, CRect(0, 0, 5, 5), &wnd, 41));
    wnd.CheckDlgButton(41, BST_CHECKED);
    EXPECT_TRUE(wnd.GetCheckedRadioButton(40, 45) == 41 && wnd.GetCheckedRadioButton(42, 45) == 0);
    const HWND hwnd = button.UnsubclassWindow();
    EXPECT_EQ(CWnd::FromHandlePermanent(hwnd), nullptr);
    EXPECT_EQ(::SendMessage(hwnd, BM_GETCHECK, 0, 0), BST_CHECKED) << "the control goes on";
}

TEST(AfxControlUpdates, DisableButtonsWhoseCommandNobodyHandles) {
    class target : public CCmdTarget {
    } nobody;
    CWnd dialog, command, check;
    ASSERT_TRUE(create_popup(dialog));
    ASSERT_TRUE(command.Create("BUTTON", "", WS_CHILD, CRect(0, 0, 5, 5), &dialog, 50));
    ASSERT_TRUE(check.Create("BUTTON", "", WS_CHILD | BS_AUTOCHECKBOX, CRect(0, 0, 5, 5), &dialog, 51));
    dialog.UpdateDialogControls(&nobody, FALSE);
    EXPECT_TRUE(command.IsWindowEnabled());
    dialog.UpdateDialogControls(&nobody, TRUE);
    EXPECT_FALSE(command.IsWindowEnabled());
    EXPECT_TRUE(check.IsWindowEnabled()) << "a box holds a value, not a command";
}

CString registered(const char* name) {
    char text[MAX_PATH] = "";
    LONG room = sizeof(text);
    ::RegQueryValue(HKEY_CURRENT_USER, (CString("Software\\Classes\\") + name).GetString(), text, &room);
    return text;
}

TEST(AfxShell, KnowsTheDocumentsUntilTheyAreTakenBack) {
    CDocManager manager;
    manager.AddDocTemplate(new CSingleDocTemplate(IDR_FRAME, nullptr, RUNTIME_CLASS(CFrameWnd), nullptr));
    manager.RegisterShellFileTypes(TRUE);
    EXPECT_STREQ(registered(".note") + "|" + registered("Test.Note"), "Test.Note|Test Note");
    EXPECT_STREQ(registered("Test.Note\\shell\\print\\command").Right(8), " /p \"%1\"");
    EXPECT_NE(the_app.DelRegTree(HKEY_CURRENT_USER, ""), ERROR_SUCCESS) << "all the user has";
    EXPECT_EQ(the_app.DelRegTree(HKEY_CURRENT_USER, "Software\\Classes\\Test.Note\\shell"), ERROR_SUCCESS);
    EXPECT_STREQ(registered("Test.Note\\shell\\print\\command") + registered("Test.Note"), "Test Note");
    manager.UnregisterShellFileTypes();
    EXPECT_STREQ(registered(".note") + registered("Test.Note"), "");
    CDocument* open = nullptr;
    CDocTemplate* kind = manager.GetBestTemplate("x.NOTE");
    EXPECT_EQ(kind->MatchDocType("x.NOTE", open), CDocTemplate::yesAttemptNative);
    EXPECT_EQ(kind->MatchDocType("C:\\a\\.note", open), CDocTemplate::yesAttemptNative) << "all of a name";
    EXPECT_EQ(kind->MatchDocType("x.txt", open), CDocTemplate::yesAttemptForeign);
}

TEST(AfxModule, FrameworksTextsStandBehindTheProgramsOwn) {
    CString text;
    EXPECT_TRUE(text.LoadString(AFX_IDS_UNTITLED) && text == "Untitled");
    constexpr WORD neutral = 0;
    const HINSTANCE framework = AfxFindStringResourceHandle(AFX_IDS_UNTITLED);
    EXPECT_TRUE(text.LoadString(framework, AFX_IDS_UNTITLED, neutral) && text == "Untitled");
    EXPECT_FALSE(text.LoadString(framework, 59999, neutral));
    EXPECT_EQ(AfxFindStringResourceHandle(ID_TEST_ON), AfxGetInstanceHandle());
    EXPECT_NE(AfxFindStringResourceHandle(AFX_IDS_UNTITLED), AfxGetInstanceHandle());
    EXPECT_EQ(AfxFindStringResourceHandle(59999), nullptr);
}

TEST(AfxExtensionModule, GivesItsResourcesAsLongAsItIsThere) {
    const HINSTANCE module = ::GetModuleHandle("comdlg32");
    const LPCTSTR version = MAKEINTRESOURCE(1);
    const auto found = [&] { return AfxFindResourceHandle(version, RT_VERSION) == module; };
    AFX_EXTENSION_MODULE state;
    ASSERT_TRUE(AfxInitExtensionModule(state, module) && state.bInitialized);
    EXPECT_FALSE(found());
    new CDynLinkLibrary(state);
    EXPECT_TRUE(found());
    AfxTermExtensionModule(state);
    EXPECT_FALSE(found());
}

TEST(AfxLibrary, HasItsOwnProgramObjectAndLeavesTheProgramsItsOwn) {
    const HINSTANCE module = AfxLoadLibrary("afx_library.dll");
    ASSERT_NE(module, nullptr);
    const auto call = reinterpret_cast<void (*)()>(::GetProcAddress(module, "call_library"));
    BOOL own = FALSE;
    const HWND window = reinterpret_cast<HWND (*)(BOOL*)>(call)(&own);
    EXPECT_TRUE(own && AfxGetApp() == &the_app && AfxGetInstanceHandle() == ::GetModuleHandle(nullptr));
    EXPECT_NE(::SendMessage(window, WM_USER, 0, 0), 0) << "its window's messages come under its state";
    MSG key{window, WM_KEYDOWN, 'A', 1, 0, {0, 0}};
    EXPECT_TRUE(AfxPreTranslateMessage(&key)) << "and what comes before them";
    ::DestroyWindow(window);
    EXPECT_TRUE(AfxFreeLibrary(module) && !own && AfxGetThread() == &the_app);
}

} // namespace
