// A dialog with every kind of control, and with data for them.
#pragma once

#include "afx_test_app.h"

#include <afxcmn.h>
#include <afxdtctl.h>

struct data_dialog : CDialog {
    data_dialog() : CDialog(IDD_DATA) {}
    BOOL OnInitDialog() override {
        for (const char* fruit : {"apple", "cherry", "cherry pie"})
            SendDlgItemMessage(IDC_FRUITS, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(fruit));
        for (const int box : {IDC_TOWNS, IDC_CHOICE}) {
            SendDlgItemMessage(box, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("Bern"));
            SendDlgItemMessage(box, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("Bonn"));
        }
        ::SetScrollRange(::GetDlgItem(m_hWnd, IDC_LEVEL), SB_CTL, 0, 50, FALSE);
        return CDialog::OnInitDialog();
    }
    void DoDataExchange(CDataExchange* pDX) override {
        CDialog::DoDataExchange(pDX);
        DDX_Text(pDX, IDC_NAME, name);
        DDV_MaxChars(pDX, name, 5);
        DDX_Text(pDX, IDC_COUNT, count);
        DDV_MinMaxInt(pDX, count, -10, 100);
        DDX_Text(pDX, IDC_FACTOR, factor);
        DDX_Text(pDX, IDC_LETTERS, letters, sizeof(letters));
        DDX_Check(pDX, IDC_BOX, box);
        DDX_Radio(pDX, IDC_RED, colour);
        DDX_LBString(pDX, IDC_FRUITS, fruit);
        DDX_CBStringExact(pDX, IDC_TOWNS, town);
        DDX_CBIndex(pDX, IDC_CHOICE, choice);
        DDX_Scroll(pDX, IDC_LEVEL, level);
        DDX_Slider(pDX, IDC_SLIDE, slide);
        DDX_DateTimeCtrl(pDX, IDC_DAY, day);
        DDX_MonthCalCtrl(pDX, IDC_MONTH, month);
        DDX_Control(pDX, IDC_CHECKS, checks);
        DDX_Control(pDX, IDC_ROWS, rows);
        DDX_Control(pDX, IDC_TREE, tree);
        DDX_Control(pDX, IDC_TABS, tabs);
        if (missing != 0)
            DDX_Check(pDX, missing, box);
    }
    CString name = "text", fruit = "cherry", town = "Bo";
    int count = 42, box = 2, colour = 2, choice = 1, level = 17, slide = 33, missing = 0;
    double factor = 0.125;
    char letters[4] = "abc";
    CTime day{2024, 5, 6, 7, 8, 9}, month{2023, 2, 3, 0, 0, 0};
    CCheckListBox checks;
    CListCtrl rows;
    CTreeCtrl tree;
    CTabCtrl tabs;
};

// The dialog, open; the boxes that it brings up are taken from the program.
template <class Dialog> struct WithDataDialog : testing::Test {
    WithDataDialog() {
        the_app.take_boxes();
        EXPECT_TRUE(dialog.Create(IDD_DATA));
    }

    Dialog dialog;
};
