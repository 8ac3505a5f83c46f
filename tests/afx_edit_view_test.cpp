// Views that edit, print and search text.
#include "afx_test_app.h"
#include "thread_window.h"
#include "view_frame.h"

#include <afxext.h>

namespace {

class printed_edit : public CEditView {
    DECLARE_DYNCREATE(printed_edit)

public:
    using CEditView::OnBeginPrinting, CEditView::OnEndPrinting, CEditView::OnPrepareDC, CEditView::OnPrint;
};
IMPLEMENT_DYNCREATE(printed_edit, CEditView)

TEST(AfxEditViewPrinting, PrintsAnyOfItsPagesByItself) {
    view_frame frame;
    auto& view = frame.open<printed_edit>();
    canvas paper(40, 40);                               // of the upper edge
    const int lines = paper.GetDeviceCaps(VERTRES) / 8; // of text at ten points: more than one page, fewer than four
    CString text;
    for (int i = 0; i < lines; ++i)
        text += "X\r\n";
    view.SetWindowText(text);
    const auto prints = [&](UINT page) {
        CPrintInfo info;
        info.m_nCurPage = page;
        paper.PatBlt(0, 0, 40, 40, WHITENESS);
        const int state = paper.SaveDC();
        view.OnBeginPrinting(&paper, &info);
        view.OnPrepareDC(&paper, &info);
        if (info.m_bContinuePrinting) {
            info.m_rectDraw = CRect(0, 0, paper.GetDeviceCaps(HORZRES), paper.GetDeviceCaps(VERTRES));
            view.OnPrint(&paper, &info);
        }
        view.OnEndPrinting(&paper, &info);
        paper.RestoreDC(state);
        int ink = 0;
        for (int i = 0; i < 40 * 40; ++i)
            ink += paper.GetPixel(i % 40, i / 40) != RGB(255, 255, 255);
        EXPECT_EQ(ink > 0, info.m_bContinuePrinting != FALSE) << page;
        return info.m_bContinuePrinting != FALSE;
    };
    EXPECT_TRUE(prints(1));
    EXPECT_TRUE(prints(2)) << "though the first was not printed";
    EXPECT_FALSE(prints(4));
    view.SetWindowText("X");
    EXPECT_FALSE(prints(2)) << "nothing is left for it";
    view.SetWindowText("");
}

// Searches as its box tells it to.
class searched_view : public CEditView {
    DECLARE_DYNCREATE(searched_view)

public:
    std::vector<std::string> missed;
    void OnTextNotFound(LPCTSTR text) override { missed.push_back(text); }
    std::string selected() {
        CString text;
        return GetSelectedText(text), std::string(text);
    }
};
IMPLEMENT_DYNCREATE(searched_view, CEditView)

struct AfxEditView : testing::Test {
    AfxEditView() { frame.InitialUpdateFrame(nullptr, FALSE); }

    view_frame frame;
    searched_view& view = frame.open<searched_view>();
};

TEST_F(AfxEditView, FindsTextInBothDirections) {
    view.SetWindowText("one two One");
    view.UpdateWindow();
    view.SetTabStops(8);
    EXPECT_TRUE(view.GetUpdateRect(nullptr)) << "its tabs lie elsewhere";
    view.SendMessage(EM_SETSEL, 0, 0);
    EXPECT_TRUE(view.FindText("ONE", TRUE, FALSE) && view.FindText("one", TRUE, FALSE));
    EXPECT_EQ(view.selected(), "One");
    EXPECT_FALSE(view.FindText("one", TRUE, FALSE));
    view.SendMessage(EM_SETSEL, 11, 11);
    EXPECT_TRUE(view.FindText("One", FALSE)) << "upwards from the text's end";
    EXPECT_TRUE(view.FindText("one", FALSE));
}

TEST_F(AfxEditView, OffersTheCommandsThatItsTextAllows) {
    CMenu menu;
    menu.CreatePopupMenu();
    for (const UINT id : {ID_EDIT_CUT, ID_EDIT_COPY, ID_EDIT_CLEAR, ID_EDIT_PASTE, ID_EDIT_UNDO, ID_EDIT_SELECT_ALL,
                          ID_EDIT_FIND, ID_EDIT_REPLACE, ID_EDIT_REPEAT})
        menu.AppendMenu(MF_STRING, id, "item");
    const auto after = [&](UINT command) {
        frame.SendMessage(WM_COMMAND, command);
        frame.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu));
        std::string states;
        for (UINT i = 0; i < 9; ++i)
            states += (menu.GetMenuState(i, MF_BYPOSITION) & MF_GRAYED) != 0 ? '-' : '+';
        return states + " " + text_of(view);
    };
    view.OpenClipboard();
    ::EmptyClipboard();
    ::CloseClipboard();
    CDocument document;
    document.m_bAutoDelete = FALSE;
    view.SetWindowText("text");
    document.AddView(&view);
    EXPECT_EQ(after(ID_EDIT_SELECT_ALL), "+++--+++- text");
    EXPECT_FALSE(document.IsModified());
    EXPECT_EQ(after(ID_EDIT_COPY), "++++-+++- text");
    EXPECT_EQ(after(ID_EDIT_CUT), "---++---- ");
    EXPECT_TRUE(document.IsModified());
    EXPECT_EQ(after(ID_EDIT_UNDO), "++++++++- text");
    after(ID_EDIT_CLEAR);
    EXPECT_EQ(after(ID_EDIT_PASTE), "---+++++- text");
    document.RemoveView(&view);
    view.SetWindowText("more");
    CMemFile file;
    store(file, [&](CArchive& ar) {
        ar << WORD{0x4142};
        view.SerializeRaw(ar);
    });
    EXPECT_EQ(bytes_of(file), "BAmore");
    view.DeleteContents();
    file.SeekToBegin();
    load(file, [&](CArchive& ar) {
        WORD before = 0;
        ar >> before;
        view.SerializeRaw(ar);
    });
    EXPECT_EQ(text_of(view), "more");
}

TEST_F(AfxEditView, SearchesAndReplacesByItsBox) {
    view.SetWindowText("red, green, Red, red.");
    view.SendMessage(EM_SETSEL, 0, 3);
    const auto box = [] { return CWnd::FromHandlePermanent(thread_window("#32770")); };
    const auto press = [&](int button) { box()->SendMessage(WM_COMMAND, static_cast<WPARAM>(button)); };
    frame.SendMessage(WM_COMMAND, ID_EDIT_FIND);
    ASSERT_NE(box(), nullptr);
    CString what;
    box()->GetDlgItemText(0x480, what);
    EXPECT_STREQ(what, "red") << "what is selected";
    press(IDOK);
    EXPECT_EQ(view.selected(), "Red");
    frame.SendMessage(WM_COMMAND, ID_EDIT_REPLACE);
    ASSERT_NE(box()->GetDlgItem(0x481), nullptr) << "the one box makes room for the other";
    box()->SetDlgItemText(0x480, "red");
    box()->SetDlgItemText(0x481, "blue");
    press(0x400);
    EXPECT_EQ(std::string(view.LockBuffer()), "red, green, blue, red.");
    EXPECT_EQ(view.selected(), "red");
    press(0x401);
    EXPECT_EQ(std::string(view.LockBuffer()), "red, green, blue, blue.");
    EXPECT_TRUE(view.missed.empty());
    press(0x401);
    frame.SendMessage(WM_COMMAND, ID_EDIT_REPEAT);
    EXPECT_EQ(view.missed, (std::vector<std::string>{"red", "red"}));
    view.DestroyWindow();
    EXPECT_EQ(box(), nullptr) << "it goes with its view";
}

} // namespace
