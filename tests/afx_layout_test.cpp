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

TEST(AfxLayout, KnowsThatItsWindowIsScrolled) {
    CWnd window;
    ASSERT_TRUE(
        window.CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP | WS_VSCROLL, CRect(0, 0, 200, 100), nullptr, 0));
    CButton button;
    ASSERT_TRUE(button.Create("", WS_CHILD, CRect(10, 80, 30, 90), &window, 7));
    window.EnableDynamicLayout();
    ASSERT_TRUE(window.GetDynamicLayout()->AddItem(7U, Layout::MoveHorizontalAndVertical(100, 40)));
    window.SetScrollRange(SB_VERT, 0, 300, FALSE);
    window.SetScrollPos(SB_VERT, 50, FALSE);
    window.ScrollWindow(0, -50);
    CButton later;
    ASSERT_TRUE(later.Create("", WS_CHILD, CRect(10, 60, 30, 70), &window, 8));
    ASSERT_TRUE(window.GetDynamicLayout()->AddItem(8U, Layout::MoveHorizontal(100), Layout::SizeVertical(50)));
    grow(window, 15, 10);
    EXPECT_EQ(place_of(window, 7), CRect(25, 34, 45, 44));
    EXPECT_EQ(place_of(window, 8), CRect(25, 60, 45, 75));
    window.DestroyWindow();
}

} // namespace
