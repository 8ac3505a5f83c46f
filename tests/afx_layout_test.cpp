// Controls that follow the size of their window.
#include "afx_test_app.h"

#include <afxlayout.h>

namespace {

using Layout = CMFCDynamicLayout;

CRect place_of(CWnd& host, int id) {
    return place_in(host, *host.GetDlgItem(id));
}

void grow(CWnd& window, int width, int height) {
    const CSize size = on_screen(window).Size() + CSize(width, height);
    window.SetWindowPos(nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
}

TEST(AfxLayout, ADialogsControlsFollowItsSize) {
    CDialog dialog;
    for (const char* life : {"first", "again with the same object"}) {
        SCOPED_TRACE(life);
        ASSERT_TRUE(dialog.Create(IDD_LAYOUT));
        const CRect name = place_of(dialog, IDC_NAME), rows = place_of(dialog, IDC_FRUITS),
                    box = place_of(dialog, IDC_TOWNS), ok = place_of(dialog, IDOK);
        CRect list, longer;
        dialog.SendDlgItemMessage(IDC_TOWNS, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&list));
        grow(dialog, 100, 61);
        EXPECT_EQ(place_of(dialog, IDC_NAME), name);
        EXPECT_EQ(place_of(dialog, IDC_FRUITS), CRect(rows.TopLeft(), rows.Size() + CSize(100, 61)));
        EXPECT_EQ(place_of(dialog, IDC_TOWNS), CRect(box.TopLeft() + CPoint(0, 61), box.Size() + CSize(50, 0)));
        EXPECT_EQ(place_of(dialog, IDOK), ok + CPoint(100, 61));
        dialog.SendDlgItemMessage(IDC_TOWNS, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&longer));
        EXPECT_EQ(longer.Height(), list.Height());
        grow(dialog, -200, -20);
        EXPECT_EQ(place_of(dialog, IDOK), ok + CPoint(0, 41)) << "never below the template's width";
        dialog.GetDynamicLayout()->SetMinSize(CSize(0, 0));
        grow(dialog, -1, -61);
        EXPECT_EQ(place_of(dialog, IDOK), ok + CPoint(-101, -20));
        EXPECT_EQ(place_of(dialog, IDC_FRUITS).Width(), std::max<int>(0, rows.Width() - 101));
        dialog.DestroyWindow();
    }
}

// Enabled before there is a window, and filled by hand.
class hand_made : public CDialog {
public:
    hand_made() { EnableDynamicLayout(); }
    BOOL create() { return Create(IDD_TEST); }
    BOOL load(LPCTSTR name) { return LoadDynamicLayoutResource(name); }
};

TEST(AfxLayout, IsFilledByHand) {
    hand_made dialog;
    Layout* const layout = dialog.GetDynamicLayout();
    ASSERT_NE(layout, nullptr);
    EXPECT_FALSE(layout->AddItem(IDOK, Layout::MoveHorizontal(100)) || layout->Create(&dialog)) << "no window yet";
    ASSERT_TRUE(dialog.create());
    EXPECT_EQ(layout->GetMinSize(), inside_of(dialog).Size());
    CWnd* cancel = dialog.GetDlgItem(IDCANCEL);
    EXPECT_FALSE(layout->AddItem(IDC_NAME) || layout->AddItem(::GetDesktopWindow()));
    EXPECT_TRUE(layout->IsEmpty());
    EXPECT_TRUE(layout->AddItem(IDOK, Layout::MoveHorizontalAndVertical(50, 200), Layout::SizeVertical(10)));
    EXPECT_TRUE(layout->AddItem(*cancel, Layout::MoveNone(), Layout::SizeHorizontal(30000)));
    EXPECT_TRUE(layout->HasItem(*cancel) && !layout->HasItem(dialog));
    const CRect ok = place_of(dialog, IDOK);
    grow(dialog, 400, 40);
    EXPECT_EQ(place_of(dialog, IDOK), CRect(ok.TopLeft() + CPoint(200, 80), ok.Size() + CSize(0, 4)));
    EXPECT_GT(place_of(dialog, IDCANCEL).Width(), 20000);
    cancel->DestroyWindow();
    grow(dialog, 10, 0);
    EXPECT_FALSE(layout->HasItem(nullptr));
    EXPECT_EQ(place_of(dialog, IDOK).left, ok.left + 205);
    dialog.EnableDynamicLayout(FALSE);
    grow(dialog, 10, 0);
    EXPECT_EQ(place_of(dialog, IDOK).left, ok.left + 205);
    EXPECT_FALSE(dialog.load(MAKEINTRESOURCE(IDD_TEST)) || dialog.load(nullptr) || dialog.IsDynamicLayoutEnabled());
    dialog.DestroyWindow();
}

TEST(AfxLayout, ReadsBothFormsAndRefusesOthers) {
    CDialog dialog;
    ASSERT_TRUE(dialog.Create(IDD_TEST));
    WORD packed[] = {0, 0x6432, 0x0000, 0x0064}, newer[] = {1, 100, 100, 0, 0}, none[] = {0, 100};
    EXPECT_FALSE(Layout::LoadResource(&dialog, newer, sizeof newer));
    EXPECT_FALSE(Layout::LoadResource(&dialog, none, sizeof none) || Layout::LoadResource(&dialog, none, 1) ||
                 Layout::LoadResource(nullptr, packed, sizeof packed) || Layout::LoadResource(&dialog, nullptr, 8));
    EXPECT_FALSE(dialog.IsDynamicLayoutEnabled());
    ASSERT_TRUE(Layout::LoadResource(&dialog, packed, sizeof packed));
    const CRect ok = place_of(dialog, IDOK), cancel = place_of(dialog, IDCANCEL);
    grow(dialog, 20, 30);
    EXPECT_EQ(place_of(dialog, IDOK), ok + CPoint(10, 30));
    EXPECT_EQ(place_of(dialog, IDCANCEL), cancel) << "its record is cut off";
    dialog.DestroyWindow();
}

TEST(AfxLayout, KnowsThatItsWindowIsScrolled) {
    CWnd window;
    ASSERT_TRUE(
        window.CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP | WS_VSCROLL, CRect(0, 0, 200, 100), nullptr, 0));
    CButton button;
    ASSERT_TRUE(button.Create("", WS_CHILD, CRect(10, 80, 30, 90), &window, 7));
    window.EnableDynamicLayout();
    ASSERT_TRUE(window.GetDynamicLayout()->AddItem(7U, Layout::MoveHorizontal(100)));
    window.SetScrollRange(SB_VERT, 0, 300, FALSE);
    window.SetScrollPos(SB_VERT, 50, FALSE);
    window.ScrollWindow(0, -50);
    CButton later;
    ASSERT_TRUE(later.Create("", WS_CHILD, CRect(10, 60, 30, 70), &window, 8));
    ASSERT_TRUE(window.GetDynamicLayout()->AddItem(8U, Layout::MoveHorizontal(100)));
    grow(window, 15, 0);
    EXPECT_EQ(place_of(window, 7), CRect(25, 30, 45, 40));
    EXPECT_EQ(place_of(window, 8), CRect(25, 60, 45, 70));
    window.DestroyWindow();
}

} // namespace
