// A dialog with every exchange of data, and its controls.
#include "afx_data_dialog.h"
#include "modal.h"

#include <afxdlgs.h>
#include <dlgs.h>

namespace {

struct counting_dialog : data_dialog {
    int changes = 0, checked = 0;

    void OnChanged() { ++changes; }
    void OnChecked() { ++checked; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(counting_dialog, CDialog)
ON_EN_CHANGE(IDC_NAME, &counting_dialog::OnChanged)
ON_CLBN_CHKCHANGE(IDC_CHECKS, &counting_dialog::OnChecked)
END_MESSAGE_MAP()

struct AfxDataDialog : WithDataDialog<counting_dialog> {
    CString text_of(int id) {
        CString text;
        dialog.GetDlgItemText(id, text);
        return text;
    }
};

TEST_F(AfxDataDialog, ShowsAndTakesOverEveryKindOfData) {
    EXPECT_EQ(dialog.changes, 0) << "what the program itself enters is no news to it";
    EXPECT_STREQ(text_of(IDC_FACTOR), "0.125");
    EXPECT_EQ(dialog.IsDlgButtonChecked(IDC_BLUE), 1u) << "the text between the buttons does not count";
    EXPECT_STREQ(text_of(IDC_TOWNS), "Bo") << "a text that is not in the list, though one begins so";
    EXPECT_EQ(dialog.GetDlgItem(IDC_NAME)->SendMessage(EM_GETLIMITTEXT), 5);
    dialog.SetDlgItemText(IDC_NAME, "other");
    EXPECT_EQ(dialog.changes, 1);
    char room[6] = "";
    EXPECT_EQ(dialog.GetDlgItemText(IDC_NAME, room, 6), 5);
    EXPECT_STREQ(room, "other");
    dialog.SetDlgItemText(IDC_COUNT, " -7 ");
    dialog.SetDlgItemText(IDC_FACTOR, "2.5e3");
    dialog.SetDlgItemText(IDC_LETTERS, "xyz");
    dialog.CheckDlgButton(IDC_BOX, 1);
    dialog.CheckRadioButton(IDC_RED, IDC_BLUE, IDC_GREEN);
    dialog.SendDlgItemMessage(IDC_FRUITS, LB_SETCURSEL, 2);
    dialog.SetDlgItemText(IDC_TOWNS, "Paris");
    dialog.SendDlgItemMessage(IDC_CHOICE, CB_SETCURSEL, 0);
    ::SetScrollPos(::GetDlgItem(dialog.m_hWnd, IDC_LEVEL), SB_CTL, 21, FALSE);
    dialog.SendDlgItemMessage(IDC_SLIDE, TBM_SETPOS, TRUE, 44);
    ASSERT_TRUE(dialog.UpdateData());
    EXPECT_TRUE(dialog.name == "other" && dialog.fruit == "cherry pie" && dialog.town == "Paris");
    EXPECT_TRUE(std::string("xyz") == dialog.letters && dialog.factor == 2500.0);
    const int taken[] = {dialog.count, dialog.box, dialog.colour, dialog.choice, dialog.level, dialog.slide};
    EXPECT_THAT(taken, testing::ElementsAre(-7, 1, 1, 0, 21, 44));
    EXPECT_TRUE(dialog.day == CTime(2024, 5, 6, 7, 8, 9) && dialog.month == CTime(2023, 2, 3, 0, 0, 0));
    dialog.CheckDlgButton(IDC_GREEN, BST_UNCHECKED);
    EXPECT_TRUE(dialog.UpdateData() && dialog.colour == -1) << "none is chosen";
}

TEST_F(AfxDataDialog, RefusesWrongEntries) {
    dialog.SetDlgItemText(IDC_COUNT, "101");
    EXPECT_TRUE(!dialog.UpdateData() && the_app.take_boxes().size() == 1);
    CWnd* wrong = dialog.GetDlgItem(IDC_COUNT);
    EXPECT_TRUE(::GetFocus() == wrong->m_hWnd && wrong->SendMessage(EM_GETSEL) == MAKELRESULT(0, 3)) << "to type over";
    dialog.SetDlgItemText(IDC_COUNT, "100");
    EXPECT_TRUE(dialog.UpdateData());
    dialog.missing = 999;
    EXPECT_TRUE(!dialog.UpdateData() && the_app.take_boxes().size() == 1) << "a control that is not there";
}

TEST_F(AfxDataDialog, ListHoldsItemsWithTheirData) {
    CImageList pictures;
    ASSERT_TRUE(pictures.Create(16, 16, ILC_COLOR, 0, 4));
    dialog.rows.SetImageList(&pictures, LVSIL_SMALL);
    EXPECT_EQ(dialog.rows.GetImageList(LVSIL_SMALL), &pictures);
    EXPECT_TRUE(dialog.rows.InsertColumn(0, "Name", LVCFMT_LEFT, 80) == 0 &&
                dialog.rows.InsertColumn(1, "Size", LVCFMT_RIGHT, 40, 1) == 1);
    EXPECT_EQ(dialog.rows.GetHeaderCtrl()->GetItemCount(), 2);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(dialog.rows.InsertItem(i, std::string(1, static_cast<char>('a' + i)).c_str()), i);
        dialog.rows.SetItemData(i, static_cast<DWORD_PTR>(10 - i));
    }
    const std::string longest(300, 'z');
    dialog.rows.SetItemText(2, 1, longest.c_str());
    EXPECT_EQ(longest.substr(0, 259), std::string(dialog.rows.GetItemText(2, 1)).substr(0, 259));
    for (const int item : {0, 2})
        dialog.rows.SetItemState(item, LVIS_SELECTED, LVIS_SELECTED);
    std::vector<int> selected;
    for (POSITION at = dialog.rows.GetFirstSelectedItemPosition(); at != nullptr;)
        selected.push_back(dialog.rows.GetNextSelectedItem(at));
    EXPECT_THAT(selected, testing::ElementsAre(0, 2));
    const PFNLVCOMPARE by_data = [](LPARAM a, LPARAM b, LPARAM) { return static_cast<int>(a - b); };
    EXPECT_TRUE(dialog.rows.SortItems(by_data, 0));
    EXPECT_STREQ(dialog.rows.GetItemText(0, 0), "c");
    dialog.DestroyWindow();
    EXPECT_EQ(pictures.GetImageCount(), 0) << "the control must leave the program's list alone";
    EXPECT_TRUE(pictures.DeleteImageList());
}

TEST_F(AfxDataDialog, CheckBoxesKeepTheirStateBesideTheProgramsData) {
    CCheckListBox& list = dialog.checks;
    for (const char* text : {"one", "two", "three"})
        list.AddString(text);
    list.SetItemData(1, 5);
    CRect place;
    list.GetItemRect(1, place);
    const LPARAM mark = MAKELPARAM(place.left + 3, place.CenterPoint().y);
    list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, mark);
    list.SendMessage(WM_LBUTTONUP, 0, mark);
    EXPECT_EQ(dialog.checked, 1);
    EXPECT_TRUE(list.GetCheck(1) == 1 && list.GetCheck(0) == 0 && list.GetItemData(1) == 5);
    list.Enable(1, FALSE);
    list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, mark);
    EXPECT_EQ(list.GetCheck(1), 1) << "disabled";
    list.DeleteString(0);
    EXPECT_TRUE(list.GetCheck(0) == 1 && list.GetItemData(0) == 5 && !list.IsEnabled(0));
}

struct refusing_file_dialog : CFileDialog {
    using CFileDialog::CFileDialog;
    void OnInitDone() override { ++begun; }
    BOOL OnFileNameOK() override {
        seen.push_back(GetFileName().GetString());
        return seen.size() == 1;
    }
    afx_msg void OnHelpButton() { helped = true; }
    std::vector<std::string> seen;
    int begun = 0;
    bool helped = false;
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(refusing_file_dialog, CFileDialog)
ON_COMMAND(pshHelp, &refusing_file_dialog::OnHelpButton)
END_MESSAGE_MAP()

TEST(AfxFileChoice, AsksTheProgramAboutTheName) {
    refusing_file_dialog dialog(FALSE, "txt", "report.txt", OFN_HIDEREADONLY);
    WhileModal modal([&] {
        if (dialog.m_hWnd == nullptr || !::IsWindowVisible(::GetParent(dialog.m_hWnd)))
            return false;
        OFNOTIFY notice{{::GetParent(dialog.m_hWnd), 0, CDN_HELP}, &dialog.m_ofn, nullptr};
        dialog.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notice));
        ::PostMessage(::GetParent(dialog.m_hWnd), WM_COMMAND, IDOK, 0);
        return dialog.seen.size() > 0;
    });
    EXPECT_TRUE(dialog.DoModal() == IDOK && dialog.begun == 1);
    EXPECT_GE(dialog.seen.size(), 2u) << "refused once";
    EXPECT_TRUE(dialog.helped);
    EXPECT_STREQ(dialog.GetFileName() + "|" + dialog.GetFileTitle() + "|" + dialog.GetFileExt(),
                 "report.txt|report|txt");
}

TEST(AfxFileChoice, TellsSeveralFilesOneByOne) {
    CFileDialog dialog(TRUE, nullptr, nullptr, OFN_ALLOWMULTISELECT, "Text|*.txt");
    EXPECT_EQ(std::string(dialog.m_ofn.lpstrFilter, 12), std::string("Text\0*.txt\0\0", 12)) << "ended twice";
    static char chosen[] = "C:\\data\0one.txt\0two.txt\0";
    dialog.m_ofn.lpstrFile = chosen;
    std::string names;
    for (POSITION at = dialog.GetStartPosition(); at != nullptr;)
        names += std::string(dialog.GetNextPathName(at)) + "|";
    EXPECT_EQ(names, "C:\\data\\one.txt|C:\\data\\two.txt|");
}

struct moving_dialog : CDialog {
    bool moves = false;
    CRect place;

    BOOL OnInitDialog() override {
        if (moves)
            SetWindowPos(nullptr, 33, 44, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        return PostMessage(WM_COMMAND, IDCANCEL);
    }
    void OnCancel() override {
        GetWindowRect(place);
        EndDialog(IDCANCEL);
    }
};

TEST(AfxModalDialog, IsCentredUnlessItPlacesItself) {
    alignas(4) const WORD old_form[] = {0, HIWORD(WS_POPUP), 0, 0, 0, 0, 0, 100, 60, 0, 0, 0};
    alignas(4)
        const WORD new_form[] = {1, 0xFFFF, 0, 0, 0, 0, DS_MODALFRAME, HIWORD(WS_POPUP), 0, 0, 0, 100, 60, 0, 0, 0};
    for (const WORD* form : {old_form, new_form}) {
        moving_dialog dialog;
        for (const bool moves : {false, true}) {
            dialog.moves = moves;
            dialog.InitModalIndirect(reinterpret_cast<LPCDLGTEMPLATE>(form));
            ASSERT_EQ(dialog.DoModal(), IDCANCEL);
            EXPECT_EQ(dialog.place.TopLeft() == CPoint(33, 44), moves);
            EXPECT_TRUE(dialog.place.left > 0 && dialog.place.top > 0);
        }
    }
}

} // namespace
