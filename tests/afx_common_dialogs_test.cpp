// The platform's dialogs for colours, fonts and searching, shown and answered.
#include "afx_test_app.h"
#include "modal.h"

#include <afxcontrolbars.h>
#include <afxdlgs.h>

namespace {

struct AfxCommonDialogs : WithParent {
    // Runs the dialog; `work` answers true once it has ended it.
    static INT_PTR run(CDialog& dialog, const std::function<bool()>& work) {
        WhileModal modal([&] { return dialog.m_hWnd != nullptr && dialog.IsWindowVisible() && work(); });
        return dialog.DoModal();
    }
    static bool press(CWnd& dialog, int button) {
        return dialog.PostMessage(WM_COMMAND, static_cast<WPARAM>(button),
                                  reinterpret_cast<LPARAM>(::GetDlgItem(dialog, button)));
    }
};

struct begun_colours : CColorDialog {
    using CColorDialog::CColorDialog;
    BOOL OnInitDialog() override { return ++begun, CColorDialog::OnInitDialog(); }
    int begun = 0;
};

TEST_F(AfxCommonDialogs, AColourIsChosen) {
    begun_colours dialog(RGB(1, 2, 3), CC_FULLOPEN, &parent);
    const auto enter = [&] {
        EXPECT_FALSE(parent.IsWindowEnabled());
        const int red = 706; // and green and blue
        for (const auto& [field, value] : {std::pair{red, "10"}, {red + 1, "200"}, {red + 2, "30"}})
            dialog.SetDlgItemText(field, value);
        return press(dialog, IDOK);
    };
    EXPECT_EQ(run(dialog, enter), IDOK);
    EXPECT_TRUE(dialog.begun == 1 && dialog.GetColor() == RGB(10, 200, 30));
    EXPECT_TRUE(dialog.m_hWnd == nullptr && parent.IsWindowEnabled());
    CColorDialog::GetSavedCustomColors()[3] = RGB(9, 9, 9);
    CColorDialog again(0, 0, &parent);
    EXPECT_EQ(run(again, [&] { return press(again, IDCANCEL); }), IDCANCEL);
    EXPECT_EQ(CColorDialog::GetSavedCustomColors()[3], RGB(9, 9, 9)) << "kept as long as the program runs";
}

TEST_F(AfxCommonDialogs, AFolderIsChosenAmongTheShellsItems) {
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CMFCVisualManagerWindows)); // as wizards write it
    EXPECT_TRUE(CMFCVisualManager::GetInstance()->IsKindOf(RUNTIME_CLASS(CMFCVisualManagerWindows)));
    EXPECT_THROW(CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(CDialog)), CInvalidArgException*);
    CShellManager shell;
    LPITEMIDLIST folder = nullptr, parent_item = nullptr, drive = nullptr;
    ASSERT_TRUE(SUCCEEDED(shell.ItemFromPath("C:\\windows", folder)) && SUCCEEDED(shell.ItemFromPath("C:\\", drive)));
    const UINT parts = shell.GetItemCount(folder);
    ASSERT_GE(parts, 2u);
    EXPECT_TRUE(shell.GetParentItem(folder, parent_item) == parts - 1 && ::ILIsEqual(parent_item, drive));
    LPCITEMIDLIST last = folder;
    for (UINT i = 1; i < parts; ++i)
        last = shell.GetNextItem(last);
    EXPECT_EQ(shell.GetNextItem(last), nullptr);
    LPITEMIDLIST again = shell.ConcatenateItem(drive, last);
    EXPECT_TRUE(::ILIsEqual(again, folder) && shell.GetItemSize(again) == shell.GetItemSize(folder));
    for (LPITEMIDLIST item : {folder, parent_item, drive, again, shell.CreateItem(8)})
        shell.FreeItem(item);
    EXPECT_TRUE(shell.GetItemCount(nullptr) == 0 && shell.GetNextItem(nullptr) == nullptr);
    EXPECT_TRUE(FAILED(shell.ItemFromPath("C:\\no such", folder)) && folder == nullptr);
    EXPECT_TRUE(FAILED(shell.ItemFromPath(nullptr, folder)));

    CString chosen = "none";
    const auto answer = [&](int button) {
        WhileModal modal([&] {
            const HWND dialog = ::GetLastActivePopup(parent);
            return dialog != parent.m_hWnd && ::IsWindowVisible(dialog) && ::GetDlgItem(dialog, button) != nullptr &&
                   ::PostMessage(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
        });
        return shell.BrowseForFolder(chosen, &parent, "C:\\windows", "Choose");
    };
    EXPECT_TRUE(!answer(IDCANCEL) && chosen == "none");
    EXPECT_TRUE(answer(IDOK));
    EXPECT_STREQ(chosen.MakeLower(), "c:\\windows");
    ControlBarCleanUp();
}

TEST_F(AfxCommonDialogs, AFontIsDescribedAsItWasChosen) {
    CClientDC dc(&parent);
    CFont any;
    ASSERT_TRUE(any.CreatePointFont(100, "Arial", &dc));
    CFont* before = dc.SelectObject(&any);
    CString face; // as the system calls it, which may have another one in its place
    dc.GetTextFace(face);
    dc.SelectObject(before);
    LOGFONT wanted{-24, 0, 0, 0, FW_BOLD, TRUE, TRUE, FALSE, 0, 0, 0, 0, 0, ""};
    lstrcpyn(wanted.lfFaceName, face, LF_FACESIZE);
    CFontDialog dialog(&wanted, CF_EFFECTS | CF_SCREENFONTS, nullptr, &parent);
    LOGFONT meanwhile{};
    const auto enter = [&] {
        const int sizes = 1138;
        dialog.SendDlgItemMessage(sizes, CB_SELECTSTRING, WPARAM(-1), reinterpret_cast<LPARAM>("36"));
        dialog.SendMessage(WM_COMMAND, MAKEWPARAM(sizes, CBN_SELCHANGE),
                           reinterpret_cast<LPARAM>(::GetDlgItem(dialog, sizes)));
        dialog.GetCurrentFont(&meanwhile);
        return press(dialog, IDOK);
    };
    EXPECT_EQ(run(dialog, enter), IDOK);
    EXPECT_TRUE(dialog.IsBold() && dialog.IsItalic() && dialog.IsUnderline() && !dialog.IsStrikeOut());
    EXPECT_TRUE(dialog.GetSize() == 360 && dialog.GetFaceName() == face);
    EXPECT_TRUE(wanted.lfHeight == dialog.m_lf.lfHeight && wanted.lfHeight != 0) << "the caller's, too";
    EXPECT_EQ(meanwhile.lfHeight, dialog.m_lf.lfHeight) << "what the open dialog shows, not what it began with";
    CHARFORMAT format{}, chosen{};
    dialog.GetCharFormat(format);
    EXPECT_EQ(format.yHeight, 36 * 20);
    CFontDialog other(format, CF_EFFECTS | CF_SCREENFONTS, nullptr, &parent);
    EXPECT_EQ(run(other, [&] { return press(other, IDOK); }), IDOK);
    other.GetCharFormat(chosen);
    EXPECT_TRUE(chosen.yHeight == format.yHeight && chosen.dwEffects == (CFE_BOLD | CFE_ITALIC | CFE_UNDERLINE));
    EXPECT_STREQ(chosen.szFaceName, face);
    format.dwMask = CFM_BOLD;
    CFontDialog bold_only(format, CF_SCREENFONTS, nullptr, &parent);
    EXPECT_EQ(run(bold_only, [&] { return press(bold_only, IDCANCEL); }), IDCANCEL);
    bold_only.GetCharFormat(chosen);
    EXPECT_EQ(chosen.dwMask, CFM_BOLD | CFM_ITALIC);
}

// Writes down what its dialog for searching tells.
struct searching_window : CWnd {
    struct told {
        CString find, replace;
        bool next, all, down, match_case, end;
    };
    std::vector<told> seen;

    afx_msg LRESULT OnFind(WPARAM, LPARAM param) {
        const auto& dialog = *CFindReplaceDialog::GetNotifier(param);
        seen.push_back({dialog.GetFindString(), dialog.GetReplaceString(), dialog.FindNext() != FALSE,
                        dialog.ReplaceAll() != FALSE, dialog.SearchDown() != FALSE, dialog.MatchCase() != FALSE,
                        dialog.IsTerminating() != FALSE});
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

const UINT find_message = ::RegisterWindowMessage(FINDMSGSTRING);

BEGIN_MESSAGE_MAP(searching_window, CWnd)
ON_REGISTERED_MESSAGE(find_message, &searching_window::OnFind)
END_MESSAGE_MAP()

struct counted_find : CFindReplaceDialog {
    counted_find() { ++alive; }
    ~counted_find() override { --alive; }
    static inline int alive = 0;
};

TEST_F(AfxCommonDialogs, SearchingTellsItsParentAndDeletesItself) {
    searching_window owner;
    ASSERT_TRUE(create_popup(owner));
    auto* find = new counted_find;
    EXPECT_FALSE(find->Create(TRUE, "x", nullptr, FR_DOWN)) << "nobody to tell";
    ASSERT_TRUE(find->Create(FALSE, "needle", "thread", FR_DOWN | FR_MATCHCASE, &owner));
    EXPECT_FALSE(find->Create(FALSE, "needle", "thread", FR_DOWN, &owner));
    find->SendMessage(WM_COMMAND, IDOK);
    find->SetDlgItemText(0x0480, "other"); // the text to find
    find->SendMessage(WM_COMMAND, 0x0401); // replace all
    find->SendMessage(WM_COMMAND, IDCANCEL);
    ASSERT_EQ(owner.seen.size(), 3u);
    EXPECT_TRUE(owner.seen[0].next && owner.seen[0].find == "needle" && owner.seen[0].match_case);
    EXPECT_TRUE(owner.seen[1].all && owner.seen[1].find == "other" && owner.seen[1].replace == "thread");
    EXPECT_TRUE(owner.seen[2].end);
    EXPECT_EQ(counted_find::alive, 0);
    const CString longest('x', 500); // longer than the dialog's room
    auto* cut = new counted_find;
    ASSERT_TRUE(cut->Create(TRUE, longest, nullptr, 0, &owner));
    EXPECT_EQ(cut->GetFindString().GetLength(), 127);
    EXPECT_FALSE(cut->SearchDown());
    owner.DestroyWindow(); // takes its dialog along
    EXPECT_EQ(counted_find::alive, 0);
}

// Names the folder and presses a button of the shown dialog; the title that it had.
std::string answer_picker(CFolderPickerDialog& dialog, LPCTSTR folder, int button, INT_PTR wanted) {
    std::string title;
    WhileModal modal([&] {
        const HWND shown = shown_dialog();
        if (shown == nullptr)
            return false;
        char text[100] = "";
        ::GetWindowText(shown, text, sizeof text);
        title = text;
        const int name = 1152;
        ::SetDlgItemText(shown, name, folder);
        ::PostMessage(shown, WM_COMMAND, static_cast<WPARAM>(button), 0);
        return false; // as often as it takes
    });
    EXPECT_EQ(dialog.DoModal(), wanted);
    return title;
}

TEST_F(AfxCommonDialogs, AFolderIsChosen) {
    char folder[MAX_PATH];
    ::GetWindowsDirectory(folder, MAX_PATH);
    CFolderPickerDialog dialog(folder, OFN_PATHMUSTEXIST, &parent);
    dialog.m_ofn.lpstrTitle = "Caf\xe9";
    EXPECT_TRUE(dialog.IsPickFoldersMode() && !CFileDialog(TRUE).IsPickFoldersMode());
    EXPECT_EQ(answer_picker(dialog, folder, IDCANCEL, IDCANCEL), "Caf\xe9");
    EXPECT_TRUE(dialog.GetPathName().IsEmpty() && parent.IsWindowEnabled());
    answer_picker(dialog, folder, IDOK, IDOK);
    EXPECT_EQ(dialog.GetPathName().CompareNoCase(folder), 0) << dialog.GetPathName().GetString();
    EXPECT_EQ(dialog.GetFolderPath(), dialog.GetPathName());
    char room[4] = "";
    CFolderPickerDialog small(folder, 0, &parent);
    small.m_ofn.lpstrFile = room, small.m_ofn.nMaxFile = sizeof room;
    answer_picker(small, folder, IDOK, IDCANCEL);
    CFolderPickerDialog nowhere("Z:\\no\\such", 0, &parent);
    answer_picker(nowhere, folder, IDCANCEL, IDCANCEL);
}

} // namespace
