// Windows that scroll another one, and who owns modal windows.
#include "afx_test_app.h"

#include <afxcmn.h>

namespace {

// Tells how long its window is.
struct long_pager : CPagerCtrl {
    afx_msg void OnCalcSize(NMHDR* header, LRESULT*) {
        auto* asked = reinterpret_cast<NMPGCALCSIZE*>(header);
        (asked->dwFlag == PGF_CALCWIDTH ? asked->iWidth : asked->iHeight) = 500;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(long_pager, CPagerCtrl)
ON_NOTIFY_REFLECT(PGN_CALCSIZE, &long_pager::OnCalcSize)
END_MESSAGE_MAP()

struct AfxPager : WithParent {};

TEST_F(AfxPager, ScrollsItsWindowBetweenTwoButtons) {
    long_pager pager;
    CButton inside;
    ASSERT_TRUE(pager.Create(shown | PGS_HORZ, CRect(0, 0, 100, 30), &parent, 5));
    ASSERT_TRUE(inside.Create("long", shown, CRect(0, 0, 500, 30), &pager, 6));
    pager.SetChild(inside);
    pager.SetButtonSize(14);
    EXPECT_EQ(pager.GetButtonSize(), 14);
    pager.RecalcSize();
    EXPECT_TRUE(pager.IsButtonInvisible(PGB_TOPORLEFT) && pager.IsButtonNormal(PGB_BOTTOMORRIGHT));
    pager.SetScrollPos(120);
    EXPECT_EQ(pager.GetScrollPos(), 120);
    EXPECT_TRUE(pager.IsButtonNormal(PGB_TOPORLEFT) && on_screen(inside).left < on_screen(pager).left);
}

TEST_F(AfxPager, ModalWindowsAreOwnedByWhatIsNoChild) {
    CWnd child, popup;
    ASSERT_TRUE(child.Create(nullptr, "child", shown, place, &parent, 5));
    ASSERT_TRUE(popup.CreateEx(0, nullptr, "popup", WS_POPUP, place, &parent, 0));
    HWND top = parent;
    EXPECT_EQ(CWnd::GetSafeOwner(&child, &top), &parent);
    EXPECT_TRUE(top == nullptr && parent.IsWindowEnabled());
    EXPECT_EQ(CWnd::GetSafeOwner(&popup, &top), &popup);
    EXPECT_TRUE(top == parent.m_hWnd && !parent.IsWindowEnabled()) << "the one behind is disabled, too";
    EXPECT_TRUE(CWnd::GetSafeOwner(&popup, &top) == &popup && top == nullptr);
}

} // namespace
