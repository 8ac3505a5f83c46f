// The platform's dialogs for colours, fonts and searching, shown and answered.
#include "afx_test_app.h"
#include "modal.h"

#include <afxcontrolbars.h>
#include <afxdlgs.h>

#include <cstring>

using testing::ElementsAre;

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
    EXPECT_TRUE(shell.GetParentItem(folder, parent_item) == static_cast<int>(parts) - 1 &&
                ::ILIsEqual(parent_item, drive));
    LPCITEMIDLIST last = folder;
    for (UINT i = 1; i < parts; ++i)
        last = shell.GetNextItem(last);
    EXPECT_EQ(shell.GetNextItem(last), nullptr);
    LPITEMIDLIST again = shell.ConcatenateItem(drive, last);
    EXPECT_TRUE(::ILIsEqual(again, folder) && shell.GetItemSize(again) == shell.GetItemSize(folder));
    LPITEMIDLIST at = shell.CopyItem(folder), up = nullptr;
    for (int level = static_cast<int>(parts) - 1; level >= -1; --level, at = up) {
        EXPECT_EQ(shell.GetParentItem(at, up), level);
        EXPECT_EQ(up != nullptr, level >= 0) << "the desktop is the first level's";
        shell.FreeItem(at);
    }
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
    format.crTextColor = RGB(255, 0, 0);
    CFontDialog other(format, CF_EFFECTS | CF_SCREENFONTS, nullptr, &parent);
    EXPECT_EQ(run(other, [&] { return press(other, IDOK); }), IDOK);
    other.GetCharFormat(chosen);
    EXPECT_EQ(chosen.crTextColor, RGB(255, 0, 0));
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

// Names what is wanted and presses a button of the shown dialog; the title that it had.
std::string answer_picker(CFileDialog& dialog, LPCTSTR wanted_name, int button, INT_PTR wanted) {
    std::string title;
    WhileModal modal([&] {
        const HWND shown = shown_dialog();
        if (shown == nullptr)
            return false;
        char text[100] = "";
        ::GetWindowText(shown, text, sizeof text);
        title = text;
        const int name = 1152;
        ::SetDlgItemText(shown, name, wanted_name);
        ::PostMessage(shown, WM_COMMAND, static_cast<WPARAM>(button), 0);
        return false; // as often as it takes
    });
    EXPECT_EQ(dialog.DoModal(), wanted);
    return title;
}

// Presses what was added, and then the dialog's own button until it goes.
struct saving_dialog : CFileDialog {
    saving_dialog(CWnd* parent, BOOL vista = TRUE)
        : CFileDialog(FALSE, "txt", "report", OFN_HIDEREADONLY, "All|*.*|Text|*.txt||", parent, 0, vista) {}
    enum { group = 1, check, button, choice, field, note, kinds };
    std::string log;
    int presses = 0;

    INT_PTR answer() {
        WhileModal modal([&] {
            const HWND shown = shown_dialog();
            if (shown == nullptr)
                return false;
            if (++presses <= 2)
                ::EnumChildWindows(shown, &press, 0);
            ::PostMessage(shown, WM_COMMAND, presses < 50 ? IDOK : IDCANCEL, 0);
            return false;
        });
        return DoModal();
    }
    static BOOL CALLBACK press(HWND hwnd, LPARAM) {
        char text[20] = "";
        ::GetWindowText(hwnd, text, sizeof text);
        if (CString(text) == "Compress" || CString(text) == "Set up")
            ::SendMessage(hwnd, BM_CLICK, 0, 0);
        return TRUE;
    }
    void OnCheckButtonToggled(DWORD id, BOOL on) override { log += "check" + std::to_string(id) + (on ? "+ " : "- "); }
    void OnButtonClicked(DWORD id) override {
        log += "button" + std::to_string(id) + " ";
        if (presses == 1)
            throw new CNotSupportedException;
        EXPECT_EQ(SetEditBoxText(field, "changed"), S_OK);
        EXPECT_EQ(AddControlItem(choice, 12, "late"), S_OK);
        EXPECT_EQ(SetSelectedControlItem(choice, 12), S_OK);
    }
    BOOL OnFileNameOK() override {
        log += GetFileName() == "report.txt" && !GetFolderPath().IsEmpty() ? "ok " : "? ";
        return log.find("ok ") == log.rfind("ok "); // not at once
    }
};

TEST_F(AfxCommonDialogs, AFileIsChosenBesideControlsOfTheProgram) {
    saving_dialog dialog(&parent);
    char folder[MAX_PATH];
    ::GetTempPath(MAX_PATH, folder);
    dialog.m_ofn.lpstrInitialDir = folder;
    dialog.m_ofn.nFilterIndex = 2;
    using d = saving_dialog;
    const HRESULT added[] = {
        dialog.StartVisualGroup(d::group, "How"),      dialog.AddCheckButton(d::check, "Compress", TRUE),
        dialog.AddPushButton(d::button, "Set up"),     dialog.AddComboBox(d::choice),
        dialog.AddControlItem(d::choice, 11, "first"), dialog.EndVisualGroup(),
        dialog.AddEditBox(d::field, "caf\xe9"),        dialog.AddText(d::note, "note"),
        dialog.AddRadioButtonList(d::kinds),           dialog.AddSeparator(99)};
    EXPECT_THAT(added, testing::Each(S_OK));
    EXPECT_TRUE(FAILED(dialog.AddText(d::note, "again"))) << "as the system answers";
    CString text;
    CDCONTROLSTATEF state{};
    EXPECT_TRUE(SUCCEEDED(dialog.GetEditBoxText(d::field, text)) && text == "caf\xe9");
    EXPECT_TRUE(SUCCEEDED(dialog.SetControlState(d::note, CDCS_VISIBLE)) &&
                SUCCEEDED(dialog.GetControlState(d::note, state)) && state == CDCS_VISIBLE);
    EXPECT_EQ(dialog.answer(), IDOK);
    EXPECT_EQ(dialog.log, "check2- button3 ok check2+ button3 ok ");
    EXPECT_TRUE(parent.IsWindowEnabled() && the_app.take_boxes().size() == 1u) << "the exception was told";
    BOOL on = FALSE;
    DWORD item = 0;
    EXPECT_TRUE(SUCCEEDED(dialog.GetCheckButtonState(d::check, on)) && on);
    EXPECT_TRUE(SUCCEEDED(dialog.GetEditBoxText(d::field, text)) && text == "changed");
    EXPECT_TRUE(SUCCEEDED(dialog.GetSelectedControlItem(d::choice, item)) && item == 12);
    EXPECT_EQ(dialog.GetPathName().CompareNoCase(CString(folder) + "report.txt"), 0)
        << dialog.GetPathName().GetString();
    EXPECT_TRUE(dialog.GetFileTitle() == "report" && dialog.m_ofn.nFilterIndex == 2 &&
                CString(dialog.m_ofn.lpstrFileTitle) == "report.txt");
    EXPECT_STREQ(dialog.m_ofn.lpstrFile + dialog.m_ofn.nFileOffset, "report.txt");
    EXPECT_STREQ(dialog.m_ofn.lpstrFile + dialog.m_ofn.nFileExtension, "txt");
    saving_dialog older(&parent, FALSE);
    EXPECT_TRUE(older.AddText(d::note, "note") == E_FAIL && older.GetIFileSaveDialog() == nullptr);
}

template <class Record> HGLOBAL in_memory(const Record& record) {
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, sizeof(record));
    std::memcpy(::GlobalLock(memory), &record, sizeof(record));
    ::GlobalUnlock(memory);
    return memory;
}

TEST(AfxPrinting, TellsWhatWasChosen) {
    const struct {
        DEVNAMES places;
        char driver[7], device[8], port[5];
    } names{{8, 15, 23, 0}, "driver", "printer", "port"};
    DEVMODE mode{};
    mode.dmCopies = 5;
    const HGLOBAL first = in_memory(mode), second = in_memory(mode), named = in_memory(names);
    the_app.SelectPrinter(nullptr, first);
    the_app.SelectPrinter(named, second);
    EXPECT_EQ(::GlobalFlags(first), UINT{GMEM_INVALID_HANDLE});
    CPrintDialog box(FALSE, PD_ALLPAGES);
    EXPECT_EQ(CPrintDialog(TRUE, PD_NOSELECTION).m_pd.Flags, DWORD{PD_PRINTSETUP | PD_NOSELECTION});
    ASSERT_TRUE(the_app.GetPrinterDeviceDefaults(&box.m_pd));
    EXPECT_STREQ(box.GetDriverName() + "|" + box.GetDeviceName() + "|" + box.GetPortName(), "driver|printer|port");
    box.m_pd.nFromPage = 3, box.m_pd.nToPage = 4, box.m_pd.nCopies = 6;
    std::vector<int> told;
    for (const DWORD flags : {PD_USEDEVMODECOPIES, PD_PAGENUMS, PD_SELECTION | PD_COLLATE}) {
        box.m_pd.Flags = flags;
        told.insert(told.end(), {box.GetCopies(), box.GetFromPage(), box.GetToPage(), box.PrintAll(), box.PrintRange(),
                                 box.PrintSelection(), box.PrintCollate()});
    }
    EXPECT_THAT(told, ElementsAre(5, -1, -1, 1, 0, 0, 0, 6, 3, 4, 0, 1, 0, 0, 6, -1, -1, 0, 0, 1, 1));

    CPageSetupDialog page(PSD_MARGINS);
    page.m_psd.hDevNames = named;
    page.m_psd.hDevMode = second;
    page.m_psd.ptPaperSize = {9, 10};
    page.m_psd.rtMargin = {1, 2, 3, 4};
    page.m_psd.rtMinMargin = {5, 6, 7, 8};
    EXPECT_STREQ(page.GetDriverName() + "|" + page.GetDeviceName() + "|" + page.GetPortName(), "driver|printer|port");
    EXPECT_TRUE(page.GetPaperSize() == CSize(9, 10) && page.GetDevMode()->dmCopies == 5);
    CRect margins, least;
    page.GetMargins(margins, least);
    EXPECT_EQ(margins, CRect(1, 2, 3, 4));
    EXPECT_EQ(least, CRect(5, 6, 7, 8));
    the_app.SelectPrinter(nullptr, nullptr, FALSE);
    EXPECT_TRUE(::GlobalFree(named) == nullptr && ::GlobalFree(second) == nullptr) << "the caller's still";
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
