// List boxes, combo boxes, edit controls and scroll bars through their classes.
#include "afx_test_app.h"
#include "newer_controls.h"

#include <afxcmn.h>

namespace {

using AfxBoxes = WithParent;

TEST_F(AfxBoxes, ListsFindSelectAndForget) {
    CListBox list;
    ASSERT_TRUE(list.Create(shown | LBS_SORT | LBS_NOINTEGRALHEIGHT, place, &parent, 1));
    for (const char* fruit : {"pear", "apple", "Apricot", "fig"})
        EXPECT_GE(list.AddString(fruit), 0);
    CString text = "before";
    list.GetText(0, text);
    EXPECT_EQ(text, "apple");
    list.GetText(99, text);
    EXPECT_TRUE(text.IsEmpty()) << "there is none";
    EXPECT_EQ(list.FindString(-1, "AP"), 0);
    EXPECT_EQ(list.FindString(0, "AP"), 1) << "behind the first";
    EXPECT_EQ(list.FindStringExact(-1, "ap"), LB_ERR);
    EXPECT_TRUE(list.SelectString(-1, "fi") == 2 && list.GetCurSel() == 2);
    list.SetItemDataPtr(2, &list);
    EXPECT_EQ(list.GetItemDataPtr(2), &list);
    EXPECT_EQ(list.DeleteString(0), 3);
    EXPECT_EQ(list.DeleteString(9), LB_ERR);
    EXPECT_EQ(list.GetItemDataPtr(1), &list) << "it moved with its item";
    CRect row;
    list.GetItemRect(1, row);
    BOOL outside = TRUE;
    EXPECT_TRUE(list.ItemFromPoint(row.CenterPoint(), outside) == 1 && !outside);
    list.ItemFromPoint(CPoint(500, 500), outside);
    EXPECT_TRUE(outside);
    list.ResetContent();
    EXPECT_TRUE(list.GetCount() == 0 && list.GetCurSel() == LB_ERR);
}

// Sorts numbers by their size, and writes down what it lets go of.
struct numbers_box : CComboBox {
    int CompareItem(LPCOMPAREITEMSTRUCT items) override {
        return static_cast<int>(items->itemData1) - static_cast<int>(items->itemData2);
    }
    void MeasureItem(LPMEASUREITEMSTRUCT item) override { item->itemHeight = 21; }
    void DeleteItem(LPDELETEITEMSTRUCT item) override { deleted.push_back(static_cast<int>(item->itemData)); }
    std::vector<int> deleted;
};

TEST_F(AfxBoxes, HintsAndNotesComeBackInTheProgramsCodePage) {
    CEdit old;
    ASSERT_TRUE(old.Create(shown, place, &parent, 1));
    EXPECT_TRUE(!old.SetCueBanner(L"hint") && old.GetCueBanner().IsEmpty()) << "version 5 has none";
    const newer_controls newer;
    CEdit edit;
    CButton link, split;
    ASSERT_TRUE(edit.Create(shown, place, &parent, 2) && link.Create("", shown | BS_COMMANDLINK, place, &parent, 3) &&
                split.Create("", shown | BS_SPLITBUTTON, place, &parent, 4));
    const std::wstring longer(1000, L'\xe9');
    EXPECT_TRUE(edit.SetCueBanner(longer.c_str(), TRUE));
    EXPECT_EQ(edit.GetCueBanner(), CString('\xe9', 1000));
    EXPECT_TRUE(link.SetNote("Caf\xe9") && link.GetNote() == "Caf\xe9" && link.GetNoteLength() == 4);
    char note[5] = "left";
    UINT room = 4;
    EXPECT_TRUE(!link.GetNote(note, &room) && room == 5 && std::string(note) == "left") << "no room for its end";
    EXPECT_TRUE(link.GetNote(note, &room) && room == 4 && std::string(note) == "Caf\xe9");
    SIZE size{9, 8}, found{};
    CImageList list;
    EXPECT_TRUE(split.SetSplitGlyph('5') && split.GetSplitGlyph() == '5');
    EXPECT_TRUE(split.SetSplitSize(&size) && split.GetSplitSize(&found) && found.cx == 9 && found.cy == 8);
    ASSERT_TRUE(list.Create(8, 8, ILC_COLOR24, 1, 1) && split.SetSplitImageList(&list));
    EXPECT_EQ(split.GetSplitImageList(), &list);
}

TEST_F(AfxBoxes, OwnerDrawnOnesAreMeasuredComparedAndDeleted) {
    numbers_box box;
    ASSERT_TRUE(box.Create(WS_CHILD | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_SORT, place, &parent, 1));
    for (const INT_PTR number : {30, 5, 200})
        box.AddString(reinterpret_cast<LPCTSTR>(number));
    EXPECT_TRUE(box.GetItemData(0) == 5 && box.GetItemData(1) == 30 && box.GetItemData(2) == 200);
    EXPECT_EQ(box.GetItemHeight(0), 21);
    box.DeleteString(1);
    box.DestroyWindow();
    EXPECT_THAT(box.deleted, testing::UnorderedElementsAre(30, 5, 200));
}

TEST_F(AfxBoxes, CombosHoldATextBesideTheirItems) {
    CComboBox box;
    ASSERT_TRUE(box.Create(shown | CBS_DROPDOWN, CRect(0, 0, 90, 100), &parent, 1));
    EXPECT_TRUE(box.AddString("one") == 0 && box.InsertString(0, "zero") == 0);
    box.SetWindowText("neither");
    EXPECT_EQ(box.GetCurSel(), CB_ERR);
    EXPECT_TRUE(box.SetEditSel(2, 5) && box.GetEditSel() == DWORD(MAKELONG(2, 5)));
    EXPECT_TRUE(box.SelectString(-1, "on") == 1 && text_of(box) == "one");
    CString text;
    box.GetLBText(0, text);
    EXPECT_EQ(text, "zero");
    box.GetLBText(7, text);
    EXPECT_TRUE(text.IsEmpty());
    box.ShowDropDown();
    EXPECT_TRUE(box.GetDroppedState());
    CRect dropped;
    box.GetDroppedControlRect(dropped);
    EXPECT_GT(dropped.Height(), 50);
    box.ShowDropDown(FALSE);
}

TEST_F(AfxBoxes, EditsGiveTheirLinesAndTakeTextsBack) {
    CEdit edit;
    ASSERT_TRUE(edit.Create(shown | ES_MULTILINE | ES_AUTOVSCROLL, place, &parent, 1));
    edit.SetWindowText("first\r\nsecond line\r\n");
    EXPECT_EQ(edit.GetLineCount(), 3);
    char line[32];
    const int length = edit.GetLine(1, line, sizeof(line));
    EXPECT_EQ(std::string(line, static_cast<std::size_t>(length)), "second line");
    EXPECT_EQ(edit.GetLine(1, line, 4), 4) << "no more than there is room for";
    EXPECT_EQ(edit.GetLine(9, line, sizeof(line)), 0);
    line[1] = '?';
    EXPECT_TRUE(edit.GetLine(1, line, 1) == 1 && line[1] == '?');
    EXPECT_TRUE(edit.LineIndex(1) == 7 && edit.LineLength(7) == 11 && edit.LineFromChar(8) == 1);
    edit.SetSel(7, 13);
    edit.ReplaceSel("2nd", TRUE);
    EXPECT_EQ(text_of(edit), "first\r\n2nd line\r\n");
    EXPECT_TRUE(edit.CanUndo() && edit.Undo());
    const int whole = edit.GetWindowTextLength();
    EXPECT_EQ(text_of(edit), "first\r\nsecond line\r\n");
    int from = 0, to = 0;
    edit.SetSel(static_cast<DWORD>(MAKELONG(0, -1))); // all of it
    edit.GetSel(from, to);
    EXPECT_TRUE(from == 0 && to == whole);
    edit.SetModify();
    EXPECT_TRUE(edit.GetModify());
    edit.SetLimitText(25);
    edit.SetSel(whole, whole);
    edit.ReplaceSel(CString('x', 50));
    EXPECT_EQ(edit.GetWindowTextLength(), 25);
}

TEST_F(AfxBoxes, ScrollBarsStopWhereTheLastPageBegins) {
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(shown | SBS_HORZ, CRect(0, 0, 100, 20), &parent, 1));
    SCROLLINFO info{sizeof(info), SIF_ALL, 0, 100000, 1000, 100000, 0}; // more than 16 bits
    EXPECT_TRUE(bar.SetScrollInfo(&info));
    EXPECT_TRUE(bar.GetScrollPos() == 99001 && bar.GetScrollLimit() == 99001);
    SCROLLINFO found{};
    EXPECT_TRUE(bar.GetScrollInfo(&found) && found.nMax == 100000 && found.nPage == 1000u);
    bar.SetScrollRange(-5, 5);
    bar.SetScrollPos(3);
    int least = 0, most = 0;
    bar.GetScrollRange(&least, &most);
    EXPECT_TRUE(least == -5 && most == 5);
}

} // namespace
