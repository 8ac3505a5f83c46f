// The common controls through their classes, and lists of pictures.
#include "afx_test_app.h"
#include "pixels.h"

#include <afxcmn.h>
#include <afxdtctl.h>
#include <afxext.h>

using testing::ElementsAre;

namespace {

using AfxCommonControls = WithParent;

TEST_F(AfxCommonControls, AHotKeyHasANameWithItsModifiers) {
    CHotKeyCtrl key;
    ASSERT_TRUE(key.Create(shown, place, &parent, 1));
    EXPECT_TRUE(key.GetHotKeyName().IsEmpty());
    key.SetHotKey('P', HOTKEYF_CONTROL | HOTKEYF_SHIFT);
    WORD code = 0, held = 0;
    key.GetHotKey(code, held);
    EXPECT_TRUE(code == 'P' && held == (HOTKEYF_CONTROL | HOTKEYF_SHIFT));
    const auto part = [](UINT code) { return CHotKeyCtrl::GetKeyName(code, FALSE); };
    EXPECT_EQ(key.GetHotKeyName(), part(VK_CONTROL) + " + " + part(VK_SHIFT) + " + " + part('P'));
}

TEST_F(AfxCommonControls, AToolbarsButtonsAreChangedMovedAndRestored) {
    class restorer : public CWnd { // offers the buttons of a bar that is being restored
        BOOL OnNotify(WPARAM, LPARAM lParam, LRESULT* result) override {
            auto* told = reinterpret_cast<NMTBRESTORE*>(lParam);
            if (told->hdr.code == TBN_RESTORE)
                told->tbButton.iBitmap = I_IMAGENONE;
            *result = 0;
            return TRUE;
        }
    } owner;
    CToolBarCtrl bar;
    ASSERT_TRUE(create_popup(owner) && bar.Create(shown, place, &owner, 1));
    EXPECT_TRUE(bar.AddBitmap(4, IDR_FRAME) == 0 && bar.AddStrings("&First\0Second\0") == 0);
    EXPECT_TRUE(bar.AddString(IDS_CAPTION) > 0 && bar.AddString(9999) == -1);
    TBBUTTON buttons[2]{};
    for (int i = 0; i < 2; ++i)
        buttons[i].idCommand = 100 + i, buttons[i].fsState = TBSTATE_ENABLED, buttons[i].iString = i;
    ASSERT_TRUE(bar.AddButtons(2, buttons));
    char text[7] = "";
    CString whole;
    EXPECT_TRUE(bar.GetString(1, whole) == 6 && whole == "Second");
    EXPECT_TRUE(bar.GetButtonText(101) == "Second" && bar.GetString(1, text, 7) == 6 && bar.GetString(1, text, 3) < 0);
    EXPECT_TRUE(bar.MoveButton(1, 0) && bar.CommandToIndex(101) == 0);
    bar.SaveState(HKEY_CURRENT_USER, "Software\\afx_test", "bar");
    bar.DeleteButton(0);
    bar.RestoreState(HKEY_CURRENT_USER, "Software\\afx_test", "bar");
    EXPECT_TRUE(bar.GetButtonCount() == 2 && bar.CommandToIndex(101) == 0 && bar.CommandToIndex(100) == 1);
    ::RegDeleteKey(HKEY_CURRENT_USER, "Software\\afx_test");
}

// The items from one on, those below an item in brackets behind it.
CString outline(const CTreeCtrl& tree, HTREEITEM item) {
    CString all;
    for (; item != nullptr; item = tree.GetNextSiblingItem(item)) {
        int image = 0, chosen = 0;
        EXPECT_TRUE(tree.GetItemImage(item, image, chosen));
        all.AppendFormat("%s %d/%d %x %d %d", tree.GetItemText(item), image, chosen,
                         tree.GetItemState(item, TVIS_BOLD | TVIS_CUT), static_cast<int>(tree.GetItemData(item)),
                         tree.GetCheck(item));
        all += tree.ItemHasChildren(item) ? "(" + outline(tree, tree.GetChildItem(item)) + ")" : ";";
    }
    return all;
}

TEST_F(AfxCommonControls, ATreeTellsWhatItsItemsWereGiven) {
    CTreeCtrl tree;
    ASSERT_TRUE(tree.CreateEx(WS_EX_CLIENTEDGE, WS_VISIBLE | TVS_CHECKBOXES | TVS_EDITLABELS, place, &parent, 1));
    EXPECT_TRUE((tree.GetExStyle() & WS_EX_CLIENTEDGE) != 0 && tree.GetParent() == &parent);
    constexpr UINT all = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_STATE | TVIF_PARAM;
    const CString longest('x', 300);
    const HTREEITEM root = tree.InsertItem("root", 3, 4), last = tree.InsertItem(longest, root),
                    first = tree.InsertItem(all, "new", 5, 6, TVIS_BOLD | TVIS_CUT, TVIS_BOLD, 77, root, TVI_FIRST);
    tree.SetItem(root, all, "top", 1, 2, TVIS_BOLD | TVIS_CUT, TVIS_CUT, 88);
    tree.SetCheck(last);
    EXPECT_EQ(outline(tree, tree.GetRootItem()), "top 1/2 4 88 0(new 5/6 10 77 0;" + longest + " 0/0 0 0 1;)");
    tree.Expand(root, TVE_EXPAND);
    CRect whole, text;
    EXPECT_TRUE(tree.GetItemRect(first, whole, FALSE) && tree.GetItemRect(first, text, TRUE));
    EXPECT_TRUE(whole.left == 0 && text.left > 0 && whole.Width() > text.Width() && whole.top == text.top);
    UINT flags = 0;
    EXPECT_EQ(std::pair(tree.HitTest(text.CenterPoint(), &flags), flags), std::pair(first, UINT{TVHT_ONITEMLABEL}));
    CEdit* edit = tree.EditLabel(first);
    EXPECT_TRUE(edit != nullptr && edit == tree.GetEditControl() && text_of(*edit) == "new");
}

TEST_F(AfxCommonControls, AListTellsWhatItsItemsWereGiven) {
    CListCtrl list;
    ASSERT_TRUE(list.CreateEx(WS_EX_CLIENTEDGE, WS_VISIBLE | LVS_REPORT, place, &parent, 1));
    EXPECT_TRUE((list.GetExStyle() & WS_EX_CLIENTEDGE) != 0 && list.InsertColumn(0, "first", LVCFMT_LEFT, 40) == 0);
    list.InsertColumn(1, "second", LVCFMT_RIGHT, 30, 7);
    list.SetExtendedStyle(LVS_EX_CHECKBOXES);
    constexpr UINT all = LVIF_TEXT | LVIF_IMAGE | LVIF_STATE | LVIF_PARAM;
    const CString longest('x', 300);
    list.InsertItem(0, longest, 3);
    list.InsertItem(all, 0, "new", LVIS_CUT, LVIS_CUT | LVIS_SELECTED, 4, 77);
    list.InsertItem(1, "old");
    list.SetItem(1, 0, all, "set", 5, LVIS_CUT | LVIS_SELECTED, LVIS_SELECTED, 88);
    list.SetItem(1, 1, LVIF_TEXT, "sub", 0, 0, 0, 0);
    list.SetCheck(2);
    CString rows;
    for (int i = 0; i < 3; ++i) {
        LVITEM item{};
        item.mask = LVIF_IMAGE;
        item.iItem = i;
        list.GetItem(&item);
        rows.AppendFormat("%s/%s %d %x %d %d;", list.GetItemText(i, 0), list.GetItemText(i, 1), item.iImage,
                          list.GetItemState(i, LVIS_CUT | LVIS_SELECTED), static_cast<int>(list.GetItemData(i)),
                          list.GetCheck(i));
    }
    EXPECT_EQ(rows, "new/ 4 4 77 0;set/sub 5 2 88 0;" + longest + "/ 3 0 0 1;");
    LVCOLUMN column{};
    column.mask = LVCF_FMT | LVCF_WIDTH | LVCF_SUBITEM;
    EXPECT_TRUE(list.GetColumn(1, &column) && column.fmt == LVCFMT_RIGHT && column.cx == 30 && column.iSubItem == 7);
    CRect label, second;
    EXPECT_TRUE(list.GetItemRect(1, label, LVIR_LABEL) && list.GetSubItemRect(1, 1, LVIR_BOUNDS, second));
    UINT flags = 0;
    EXPECT_EQ(std::pair(list.HitTest(label.CenterPoint(), &flags), flags), std::pair(1, UINT{LVHT_ONITEMLABEL}));
    EXPECT_TRUE(second.left == 40 && second.Width() == 30 && second.top == label.top);
    int order[2] = {};
    EXPECT_TRUE(list.GetColumnOrderArray(order) && order[1] == 1);
}

TEST_F(AfxCommonControls, TabsPanesAndScalesKeepWhatTheyWereGiven) {
    CToolTipCtrl tips;
    CTabCtrl tabs;
    ASSERT_TRUE(tips.Create(&parent) && tabs.Create(shown | TCS_TOOLTIPS, place, &parent, 1));
    constexpr DWORD lit = TCIS_HIGHLIGHTED, pressed = TCIS_BUTTONPRESSED;
    EXPECT_EQ(tabs.InsertItem(0, "last", 9), 0);
    tabs.InsertItem(TCIF_TEXT | TCIF_IMAGE | TCIF_PARAM, 0, "first", 3, 44);
    tabs.SetItemState(0, lit, lit | pressed);
    tabs.SetItemState(1, lit | pressed, pressed);
    char name[10] = "";
    TCITEM tab{TCIF_TEXT | TCIF_IMAGE | TCIF_PARAM, 0, 0, name, sizeof(name), 0, 0};
    EXPECT_TRUE(tabs.GetItem(0, &tab) && name == std::string("first") && tab.iImage == 3 && tab.lParam == 44);
    EXPECT_THAT((std::vector{tabs.GetItemState(0, lit | pressed), tabs.GetItemState(1, lit | pressed)}),
                ElementsAre(lit, pressed));
    tabs.SetToolTips(&tips);
    EXPECT_EQ(tabs.GetToolTips(), &tips);

    CStatusBarCtrl status;
    ASSERT_TRUE(status.Create(shown | SBARS_TOOLTIPS, place, &parent, 2));
    int ends[] = {30, 70}, kinds[3] = {}, across = 0, down = 0, between = 0, found[3] = {};
    EXPECT_TRUE(status.SetParts(2, ends) && status.SetText("pane", 1, SBT_POPOUT));
    EXPECT_STREQ(status.GetText(1, &kinds[0]), "pane");
    EXPECT_TRUE(status.GetText(name, 1, &kinds[1]) == 4 && status.GetTextLength(1, &kinds[2]) == 4);
    EXPECT_THAT(kinds, testing::Each(SBT_POPOUT));
    EXPECT_STREQ(name, "pane");
    status.SetTipText(1, "tip");
    EXPECT_STREQ(status.GetTipText(1), "tip");
    EXPECT_TRUE(status.GetBorders(found) && status.GetBorders(across, down, between));
    EXPECT_THAT(found, ElementsAre(across, down, between));

    CSliderCtrl slider;
    CSpinButtonCtrl spin;
    CProgressCtrl progress;
    ASSERT_TRUE(slider.Create(shown | TBS_ENABLESELRANGE | TBS_TOOLTIPS, place, &parent, 3) &&
                spin.Create(shown, place, &parent, 4) && progress.Create(shown, place, &parent, 5));
    int least[4] = {}, most[4] = {};
    slider.SetRange(-5, 20);
    slider.SetSelection(3, 8);
    slider.SetToolTips(&tips);
    spin.SetRange(-7, 30);
    progress.SetRange(9, 40);
    slider.GetRange(least[0], most[0]);
    slider.GetSelection(least[1], most[1]);
    spin.GetRange(least[2], most[2]);
    progress.GetRange(least[3], most[3]);
    EXPECT_THAT(least, ElementsAre(-5, 3, -7, 9));
    EXPECT_THAT(most, ElementsAre(20, 8, 30, 40));
    EXPECT_EQ(slider.GetToolTips(), &tips);
}

// What a control is told is all that shows where this system's does nothing, or nothing that can be asked for.
template <class Control> struct told_by : Control {
    told_by(CWnd& parent, const std::function<void(Control&)>& work) {
        EXPECT_TRUE(this->CWnd::Create(nullptr, "", WS_CHILD, CRect(), &parent, 1));
        listening = true;
        work(*this);
        listening = false;
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (!listening)
            return Control::WindowProc(message, wParam, lParam);
        told.insert(told.end(), {message, static_cast<LPARAM>(wParam), lParam});
        return MAKELONG(3, 7);
    }
    std::vector<LPARAM> told; // number, wParam and lParam of each message
    bool listening = false;
};

TEST_F(AfxCommonControls, ListsAreToldWhatTheProgramSays) {
    CListCtrl plain;
    LVGROUP group{};
    LVITEMINDEX item{2, 3};
    CRect where, part;
    int across = 0, down = 0;
    const PFNLVGROUPCOMPARE sorter = [](INT, INT, void*) { return 0; };
    const auto sort = reinterpret_cast<LPARAM>(sorter);
    const LPARAM key = afx_param(&item), of = afx_param(&group);
    ASSERT_TRUE(plain.Create(shown, place, &parent, 1));
    EXPECT_FALSE(plain.SetItemIndexState(&item, LVIS_SELECTED, LVIS_SELECTED)) << "there is no such item";
    const told_by<CListCtrl> list(parent, [&](CListCtrl& list) {
        list.InsertGroup(2, &group);
        list.SortGroups(sorter, &group);
        list.GetGroupRect(7, where, LVGGR_HEADER);
        list.GetItemIndexRect(&item, 4, LVIR_LABEL, part);
        list.GetNextItemIndex(&item, 9);
        EXPECT_TRUE(list.GetItemSpacing(TRUE, &across, &down) && across == 3 && down == 7);
        list.SetColumnWidth(5, 6);
        list.SetIconSpacing(8, 9);
        list.ApproximateViewRect(CSize(10, 11), 12);
        list.EnsureVisible(15, TRUE);
    });
    EXPECT_THAT(list.told, ElementsAre(LVM_INSERTGROUP, 2, of, LVM_SORTGROUPS, sort, of, LVM_GETGROUPRECT, 7,
                                       afx_param(&where), LVM_GETITEMINDEXRECT, key, afx_param(&part),
                                       LVM_GETNEXTITEMINDEX, key, 9, LVM_GETITEMSPACING, TRUE, 0, LVM_SETCOLUMNWIDTH, 5,
                                       6, LVM_SETICONSPACING, 0, MAKELONG(8, 9), LVM_APPROXIMATEVIEWRECT, 12,
                                       MAKELONG(10, 11), LVM_ENSUREVISIBLE, 15, TRUE));
    EXPECT_TRUE(where.top == LVGGR_HEADER && part.top == 4 && part.left == LVIR_LABEL);
}

TEST_F(AfxCommonControls, SmallerOnesAreToldWhatTheProgramSays) {
    EXPECT_TRUE(CAnimateCtrl().Create(shown, place, &parent, 1) && CPagerCtrl().Create(shown, place, &parent, 2));
    int most = 0, least = 0;
    CRect rect;
    const told_by<CAnimateCtrl> film(parent, [](CAnimateCtrl& film) {
        film.Play(2, 5, 9);
        film.Seek(4);
        film.Stop();
        film.Close();
    });
    EXPECT_THAT(film.told,
                ElementsAre(ACM_PLAY, 9, MAKELONG(2, 5), ACM_PLAY, 0, MAKELONG(4, 4), ACM_STOP, 0, 0, ACM_OPEN, 0, 0));
    const told_by<CToolBarCtrl> bar(parent, [&](CToolBarCtrl& bar) {
        bar.CheckButton(1);
        bar.EnableButton(2, FALSE);
        bar.HideButton(7);
        bar.SetCmdID(8, 16);
        bar.ChangeBitmap(17, 18);
        bar.Indeterminate(2, FALSE);
        bar.SetState(3, 4);
        bar.SetButtonSize(CSize(5, 6));
        bar.SetRows(9, TRUE, rect);
        bar.SetPadding(10, 11);
        EXPECT_TRUE(bar.GetPadding(&least, &most) && least == 3 && most == 7);
        bar.SetButtonWidth(12, 13);
        bar.GetItemRect(14, rect);
        bar.GetRect(15, rect);
    });
    EXPECT_THAT(bar.told,
                ElementsAre(TB_CHECKBUTTON, 1, TRUE, TB_ENABLEBUTTON, 2, FALSE, TB_HIDEBUTTON, 7, TRUE, TB_SETCMDID, 8,
                            16, TB_CHANGEBITMAP, 17, 18, TB_INDETERMINATE, 2, FALSE, TB_SETSTATE, 3, 4,
                            TB_SETBUTTONSIZE, 0, MAKELONG(5, 6), TB_SETROWS, MAKELONG(9, TRUE), afx_param(&rect),
                            TB_SETPADDING, 0, MAKELONG(10, 11), TB_GETPADDING, 0, 0, TB_SETBUTTONWIDTH, 0,
                            MAKELONG(12, 13), TB_GETITEMRECT, 14, afx_param(&rect), TB_GETRECT, 15, afx_param(&rect)));
    const told_by<CPagerCtrl> pager(parent, [&](CPagerCtrl& pager) {
        pager.SetChild(parent);
        pager.SetButtonSize(1);
        pager.SetBorder(2);
        pager.SetScrollPos(3);
        pager.ForwardMouse(TRUE);
        pager.GetButtonState(4);
    });
    EXPECT_THAT(pager.told,
                ElementsAre(PGM_SETCHILD, 0, afx_param(parent.m_hWnd), PGM_SETBUTTONSIZE, 0, 1, PGM_SETBORDER, 0, 2,
                            PGM_SETPOS, 0, 3, PGM_FORWARDMOUSE, TRUE, 0, PGM_GETBUTTONSTATE, 0, 4));
}

TEST_F(AfxCommonControls, RichTextIsReadAndWrittenInItsRanges) {
    CRichEditCtrl edit;
    ASSERT_TRUE(AfxInitRichEdit() && edit.Create(shown | ES_MULTILINE, place, &parent, 1));
    edit.SetWindowText("first line\r\nsecond");
    EXPECT_EQ(edit.GetLineCount(), 2);
    char line[32] = "";
    EXPECT_GE(edit.GetLine(1, line, sizeof(line)), 6);
    EXPECT_EQ(std::string(line, 6), "second");
    EXPECT_EQ(edit.GetLine(1, line, 1), 0) << "no room for anything";
    CString text;
    EXPECT_EQ(edit.GetTextRange(6, 10, text), 4);
    EXPECT_STREQ(text, "line");
    EXPECT_EQ(edit.GetTextRange(11, -1, text), 6) << "to the end";
    EXPECT_EQ(edit.GetTextRange(8, 3, text), 0);
    edit.SetSel(0, 5);
    CHARFORMAT bold{};
    bold.dwMask = CFM_BOLD;
    bold.dwEffects = CFE_BOLD;
    EXPECT_TRUE(edit.SetSelectionCharFormat(bold));
    EXPECT_EQ(edit.GetSelText(), "first");
    EXPECT_EQ(std::string(line, static_cast<std::size_t>(edit.GetSelText(line))), "first");
}

// -- Dates ------------------------------------------------------------------------------------------------------------

TEST_F(AfxCommonControls, DatesMayBeNoneAtAll) {
    CDateTimeCtrl picker;
    ASSERT_TRUE(picker.Create(shown | DTS_SHOWNONE, place, &parent, 1));
    const CTime day(2024, 2, 29, 10, 11, 12);
    CTime found(5);
    EXPECT_TRUE(picker.SetTime(&day) && picker.GetTime(found) == GDT_VALID && found == day);
    EXPECT_TRUE(picker.SetTime());
    EXPECT_EQ(picker.GetTime(found), static_cast<DWORD>(GDT_NONE));
    EXPECT_EQ(found, day) << "left alone";
    CTime never;
    CDataExchange data(&parent, FALSE);
    EXPECT_TRUE(picker.SetTime(&day));
    DDX_DateTimeCtrl(&data, 1, never);
    EXPECT_EQ(picker.GetTime(found), static_cast<DWORD>(GDT_NONE));
    CTime least, most;
    EXPECT_TRUE(picker.GetRange(&least, &most) == 0 && least == CTime());
    SYSTEMTIME fields{};
    EXPECT_TRUE(picker.SetTime(&day) && picker.GetTime(&fields) == GDT_VALID && fields.wDay == 29);
    EXPECT_TRUE(picker.SetFormat("yyyy"));
}

TEST_F(AfxCommonControls, MonthsSelectDaysAndStretchesOfThem) {
    CMonthCalCtrl one, several;
    ASSERT_TRUE(one.Create(shown, CPoint(0, 0), &parent, 1));
    CRect size, least;
    one.GetWindowRect(size);
    EXPECT_TRUE(one.GetMinReqRect(least) && size.Size() == least.Size() && size.Width() > 50);
    const CTime first(2024, 2, 10, 0, 0, 0), last(2024, 2, 16, 0, 0, 0);
    CTime found, other;
    EXPECT_TRUE(one.SetCurSel(first) && one.GetCurSel(found) && found == first);
    ASSERT_TRUE(several.Create(shown | MCS_MULTISELECT, place, &parent, 2));
    several.SetMaxSelCount(7);
    EXPECT_EQ(several.GetMaxSelCount(), 7);
    EXPECT_TRUE(several.SetSelRange(first, last) && several.GetSelRange(found, other));
    EXPECT_TRUE(found == first && other == last);
    several.SetToday(&first);
    EXPECT_TRUE(several.GetToday(found) && found.GetDay() == 10);
    int day = -1;
    several.SetFirstDayOfWeek(3, &day);
    BOOL other_than_system = FALSE;
    EXPECT_EQ(several.GetFirstDayOfWeek(&other_than_system), 3);
    EXPECT_TRUE(other_than_system && day >= 0 && day < 7);
    EXPECT_GE(several.GetMonthRange(found, other, GMR_VISIBLE), 1);
    EXPECT_TRUE(found <= first && other >= last);
    EXPECT_TRUE(several.SetRange(&first, nullptr) && several.GetRange(&found, &other) == GDTR_MIN && found == first);
}

TEST_F(AfxCommonControls, DatesOfAutomationBoundAndChooseDays) {
    const COleDateTime first(2024, 2, 10, 0, 0, 0), last(2024, 2, 16, 0, 0, 0);
    COleDateTime none, least, most;
    none.SetStatus(COleDateTime::null);
    CDateTimeCtrl picker;
    CMonthCalCtrl month, several;
    ASSERT_TRUE(picker.Create(shown, place, &parent, 1) && month.Create(shown, place, &parent, 2) &&
                several.Create(shown | MCS_MULTISELECT, place, &parent, 3));
    EXPECT_TRUE(picker.SetRange(&first, &last) && picker.GetRange(&least, &most) == 3 && least == first &&
                most == last);
    EXPECT_TRUE(month.SetRange(&first, &none) && month.GetRange(&least, &most) == GDTR_MIN && least == first);
    EXPECT_EQ(most.GetStatus(), COleDateTime::null);
    EXPECT_TRUE(month.SetCurSel(last) && month.GetCurSel(least) && least == last);
    EXPECT_TRUE(several.SetSelRange(first, last) && several.GetSelRange(least, most) && least == first && most == last);
    EXPECT_FALSE(several.SetSelRange(none, last));
    several.SetToday(first);
    EXPECT_TRUE(several.GetToday(least) && least == first);
}

// -- Tips and checks --------------------------------------------------------------------------------------------------

TEST_F(AfxCommonControls, TipsAreChangedAndTakenBack) {
    CToolTipCtrl tips;
    CStatic tool;
    ASSERT_TRUE(tips.Create(&parent) && tool.Create("tool", shown, CRect(10, 10, 40, 30), &parent, 5));
    EXPECT_TRUE(tips.AddTool(&tool, "first") && tips.AddTool(&parent, IDS_CAPTION, CRect(50, 0, 60, 60), 3));
    CString text;
    tips.UpdateTipText("second", &tool);
    tips.GetText(text, &tool);
    EXPECT_EQ(text, "second");
    tips.GetText(text, &parent, 3);
    EXPECT_EQ(text, "Caption of its own");
    tips.GetText(text, &parent, 99);
    EXPECT_EQ(text, "");
    TOOLINFO found{};
    EXPECT_TRUE(tips.HitTest(&parent, CPoint(55, 5), &found) && found.uId == 3);
    tips.SetToolRect(&parent, 3, CRect(70, 0, 80, 10));
    EXPECT_FALSE(tips.HitTest(&parent, CPoint(55, 5), &found));
    tips.DelTool(&parent, 3);
    EXPECT_EQ(tips.GetToolCount(), 1);
    CToolInfo info;
    tips.UpdateTipText(CString('x', 600), &tool);
    EXPECT_TRUE(tips.GetToolInfo(info, &tool) && info.lpszText == info.szText && info.szText[0] == 'x');
    EXPECT_LT(std::strlen(info.szText), sizeof(info.szText));
    info.lpszText = const_cast<char*>("third");
    tips.SetToolInfo(&info);
    tips.GetText(text, &tool);
    EXPECT_EQ(text, "third");
    EXPECT_FALSE(tips.GetToolInfo(info, &parent, 3)) << "no longer there";
}

TEST_F(AfxCommonControls, ChecksGoRoundThreeStatesAndShowThem) {
    CCheckListBox list;
    ASSERT_TRUE(list.Create(shown | LBS_NOTIFY, CRect(0, 0, 90, 60), &parent, 1));
    list.SetCheckStyle(BS_AUTO3STATE);
    list.AddString("one");
    list.AddString("two");
    list.SetCurSel(0);
    CRect row;
    list.GetItemRect(0, row);
    std::vector<std::vector<COLORREF>> looks;
    for (const int state : {0, 1, 2, 0}) {
        EXPECT_EQ(list.GetCheck(0), state);
        list.UpdateWindow();
        CClientDC dc(&list);
        std::vector<COLORREF> look;
        for (int x = 0; x < row.Width(); ++x)
            for (int y = row.top; y < row.bottom; ++y)
                look.push_back(dc.GetPixel(x, y));
        looks.push_back(look);
        EXPECT_GT(std::ranges::count(look, ::GetSysColor(COLOR_HIGHLIGHTTEXT)), 10) << "its text";
        for (const int x : {2, 3})
            EXPECT_EQ(dc.GetPixel(row.right - x, 0), ::GetSysColor(COLOR_HIGHLIGHT)) << "the dots of a focus";
        list.SendMessage(WM_KEYDOWN, VK_SPACE);
    }
    EXPECT_TRUE(looks[0] != looks[1] && looks[1] != looks[2] && looks[0] == looks[3]);
    list.SetCheckStyle(BS_AUTOCHECKBOX);
    list.Enable(0, FALSE);
    list.SetItemData(0, 7);
    list.SendMessage(WM_KEYDOWN, VK_SPACE);
    EXPECT_TRUE(list.GetCheck(0) == 1 && !list.IsEnabled(0) && list.GetItemData(0) == 7) << "left alone";
    list.Enable(0);
    list.SetCheck(1, 2);
    EXPECT_EQ(list.GetCheck(1), 0) << "there is no third state";
    list.SetCheckStyle(BS_CHECKBOX);
    list.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(3, row.CenterPoint().y));
    EXPECT_EQ(list.GetCheck(0), 1) << "the program changes it, not the user";
    EXPECT_TRUE(list.GetCheck(7) == 0 && list.IsEnabled(7) && list.SetItemData(7, 1) == LB_ERR);
}

// -- Items that are dragged -------------------------------------------------------------------------------------------

TEST_F(AfxCommonControls, ADraggedItemGoesWhereItIsDropped) {
    struct open_list : CDragListBox {
        using CDragListBox::OnChildNotify;
        void DrawInsert(int item) override { marks.push_back(item), CDragListBox::DrawInsert(item); }
        std::vector<int> marks;
    };
    const std::tuple<int, int, UINT, std::string> rows[] = {
        {2, 0, DL_DROPPED, "c2a0b1"}, {0, 2, DL_DROPPED, "b1a0c2"}, {0, 0, DL_DROPPED, "a0b1c2"},
        {0, 1, DL_DROPPED, "a0b1c2"}, {1, 0, DL_DROPPED, "b1a0c2"}, {1, 0, DL_CANCELDRAG, "a0b1c2"},
        {1, -1, DL_DROPPED, "a0b1c2"}};
    for (const auto& [from, before, end, then] : rows) {
        open_list list;
        ASSERT_TRUE(list.Create(shown | LBS_NOTIFY, CRect(0, 0, 80, 60), &parent, 1));
        for (int i = 0; i < 3; ++i)
            list.SetItemData(list.AddString(CString(static_cast<char>('a' + i))), static_cast<DWORD_PTR>(i));
        list.SetCurSel(from);
        CRect row;
        list.GetItemRect(std::max(before, 0), row);
        CPoint place = before < 0 ? CPoint(-500, -500) : row.CenterPoint();
        list.ClientToScreen(&place);
        std::vector<LRESULT> answers;
        for (const UINT what : {UINT{DL_BEGINDRAG}, UINT{DL_DRAGGING}, end}) { // as the control tells of it
            DRAGLISTINFO drag{what, list.m_hWnd, place};
            EXPECT_TRUE(list.OnChildNotify(::RegisterWindowMessage(DRAGLISTMSGSTRING), 1, afx_param(&drag),
                                           &answers.emplace_back()));
        }
        EXPECT_TRUE(answers[0] != 0 && answers[1] == (before < 0 ? DL_STOPCURSOR : DL_MOVECURSOR));
        EXPECT_THAT(list.marks, ElementsAre(before, -1));
        CString order, text;
        for (int i = 0; i < 3; ++i) {
            list.GetText(i, text);
            order.AppendFormat("%s%d", text, static_cast<int>(list.GetItemData(i)));
        }
        EXPECT_EQ(order, then.c_str()) << from << " before " << before;
        EXPECT_EQ(list.GetItemData(list.GetCurSel()), from) << "it stays selected";
    }
}

// -- Lists of pictures ------------------------------------------------------------------------------------------------

struct AfxImageList : AfxCommonControls {
    AfxImageList() {
        EXPECT_TRUE(list.Create(16, 16, ILC_COLOR24 | ILC_MASK, 0, 4));
        for (const COLORREF colour : {red, green}) { // one after the other, each with a magenta hole
            CBitmap image;
            image.CreateCompatibleBitmap(&dc, 16, 16);
            CBitmap* other = dc.SelectObject(&image);
            dc.FillSolidRect(0, 0, 16, 16, colour);
            dc.FillSolidRect(4, 4, 4, 4, hole);
            dc.SelectObject(other);
            list.Add(&image, hole);
        }
    }
    // What is drawn over blue, at a corner and in the hole.
    std::pair<COLORREF, COLORREF> drawn(CImageList& from, int image) {
        dc.FillSolidRect(0, 0, 32, 16, blue);
        EXPECT_TRUE(from.Draw(&dc, image, CPoint(0, 0), ILD_NORMAL));
        return {dc.GetPixel(0, 0), dc.GetPixel(5, 5)};
    }

    static constexpr COLORREF red = RGB(255, 0, 0), green = RGB(0, 255, 0), blue = RGB(0, 0, 255),
                              hole = RGB(255, 0, 255);
    canvas dc{32, 16};
    CImageList list;
};

TEST_F(AfxImageList, DrawsCopiesAndReplacesItsPictures) {
    EXPECT_EQ(drawn(list, 0), std::pair(red, blue));
    EXPECT_EQ(drawn(list, 1), std::pair(green, blue));
    EXPECT_FALSE(list.Create(16, 16, ILC_COLOR, 1, 1)) << "it holds a list already";
    CImageList copy;
    ASSERT_TRUE(copy.Create(&list));
    EXPECT_TRUE(copy.Copy(0, 1, ILCF_SWAP));
    EXPECT_EQ(drawn(copy, 0), std::pair(green, blue));
    EXPECT_TRUE(copy.Remove(0) && copy.GetImageCount() == 1);
    EXPECT_EQ(list.GetImageCount(), 2) << "a copy is one of its own";
    const HICON icon = list.ExtractIcon(1);
    EXPECT_EQ(copy.Add(icon), 1);
    ::DestroyIcon(icon);
    EXPECT_EQ(drawn(copy, 1).first, green);
    CImageList both;
    ASSERT_TRUE(both.Create(list, 0, list, 1, 8, 0));
    EXPECT_EQ(drawn(both, 0).first, red);
    EXPECT_EQ(dc.GetPixel(20, 12), green) << "the second lies eight to the right";
    dc.FillSolidRect(0, 0, 32, 16, blue);
    EXPECT_TRUE(list.DrawIndirect(&dc, 1, CPoint(10, 2), CSize(5, 6), CPoint(1, 2), ILD_NORMAL));
    Picture seen(6, 7);
    ::BitBlt(seen.dc(), 0, 0, 6, 7, dc, 10, 2, SRCCOPY);
    EXPECT_EQ(letters(seen.values(), 6, {{green, 'g'}, {blue, '.'}}),
              "ggggg.\nggggg.\nggg...\nggg...\nggg...\nggg...\n......\n");
}

TEST_F(AfxImageList, OutlivesTheControlThatShowsIt) {
    CListCtrl rows;
    ASSERT_TRUE(rows.Create(shown, place, &parent, 1));
    CImageList lists[3];
    for (const int kind : {LVSIL_NORMAL, LVSIL_SMALL, LVSIL_STATE}) {
        ASSERT_TRUE(lists[kind].Create(&list));
        rows.SetImageList(&lists[kind], kind);
    }
    rows.DestroyWindow();
    for (CImageList& one : lists)
        EXPECT_EQ(one.GetImageCount(), 2) << &one - lists;
}

// -- Buttons of bitmaps -----------------------------------------------------------------------------------------------

TEST_F(AfxCommonControls, BitmapButtonsShowTheBitmapOfTheirState) {
    struct : CBitmapButton {
        using CBitmapButton::DrawItem;
    } button;
    ASSERT_TRUE(button.Create("Test", shown | BS_OWNERDRAW, CRect(0, 0, 5, 5), &parent, 1));
    EXPECT_FALSE(button.LoadBitmaps("NOSUCHU"));
    ASSERT_TRUE(button.LoadBitmaps(MAKEINTRESOURCE(IDB_UP), MAKEINTRESOURCE(IDB_DOWN)));
    button.SizeToContent();
    const CRect size = inside_of(button);
    EXPECT_EQ(size.Size(), CSize(8, 8));
    button.RedrawWindow();
    CClientDC dc(&button);
    EXPECT_EQ(dc.GetPixel(4, 4), RGB(255, 0, 0)) << "it draws itself, whoever is asked to";
    const auto shows = [&](UINT state) {
        DRAWITEMSTRUCT item{ODT_BUTTON, 0, 0, 0, state, button.m_hWnd, dc, size, 0};
        button.DrawItem(&item);
        return dc.GetPixel(4, 4);
    };
    EXPECT_EQ(shows(0), RGB(255, 0, 0));
    EXPECT_EQ(shows(ODS_SELECTED), RGB(0, 0, 255));
    EXPECT_EQ(shows(ODS_DISABLED), RGB(255, 0, 0)) << "without one of its own";
    const LPCTSTR up = MAKEINTRESOURCE(IDB_UP), down = MAKEINTRESOURCE(IDB_DOWN);
    EXPECT_TRUE(button.LoadBitmaps(up, nullptr, down) && shows(ODS_SELECTED) == shows(0));
    EXPECT_TRUE(shows(ODS_FOCUS) == RGB(0, 0, 255) && button.LoadBitmaps(up, nullptr, nullptr, down));
    EXPECT_TRUE(shows(ODS_FOCUS) == shows(0) && shows(ODS_DISABLED) == RGB(0, 0, 255));
}

} // namespace
