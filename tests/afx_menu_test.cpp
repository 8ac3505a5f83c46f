// Menus: built, changed, asked, owner-drawn, attached.
#include "afx_test_app.h"

namespace {

CString text_of(const CMenu& menu, UINT item) {
    CString text;
    menu.GetMenuString(item, text, MF_BYPOSITION);
    return text;
}

std::string texts_of(const CMenu& menu) {
    std::string all;
    for (int i = 0; i < static_cast<int>(menu.GetMenuItemCount()); ++i)
        all += std::string(text_of(menu, static_cast<UINT>(i))) + " ";
    return all;
}

TEST(AfxMenu, TakesItemsByPlaceAndByCommand) {
    CMenu menu, more;
    ASSERT_TRUE(menu.CreatePopupMenu() && more.CreatePopupMenu());
    EXPECT_FALSE(menu.CreateMenu()) << "it holds one already";
    EXPECT_TRUE(menu.AppendMenu(MF_STRING, 10, "one") && menu.AppendMenu(MF_SEPARATOR));
    EXPECT_TRUE(menu.InsertMenu(0, MF_BYPOSITION | MF_STRING, 11, "zero"));
    EXPECT_TRUE(menu.InsertMenu(10, MF_BYCOMMAND | MF_STRING, 12, "half"));
    EXPECT_EQ(texts_of(menu), "zero half one  ");
    EXPECT_TRUE(menu.ModifyMenu(12, MF_BYCOMMAND | MF_STRING, 13, "third"));
    EXPECT_TRUE(menu.RemoveMenu(11, MF_BYCOMMAND) && !menu.RemoveMenu(11, MF_BYCOMMAND));
    EXPECT_EQ(texts_of(menu), "third one  ");
    EXPECT_TRUE(menu.GetMenuItemID(0) == 13 && menu.GetMenuItemID(9) == UINT(-1));
    ASSERT_TRUE(more.AppendMenu(MF_STRING, 20, "inner"));
    ASSERT_TRUE(menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(more.m_hMenu), "more"));
    EXPECT_EQ(menu.GetSubMenu(3), &more) << "the object that holds it";
    EXPECT_EQ(menu.GetSubMenu(0), nullptr);
    more.Detach(); // the outer menu's now
    EXPECT_NE(menu.GetSubMenu(3), nullptr);
    CMenu extended;
    EXPECT_FALSE(extended.LoadMenu(9999u));
    ASSERT_TRUE(extended.LoadMenu(206u));
    EXPECT_EQ(CMenu::FromHandlePermanent(extended.m_hMenu), &extended);
    EXPECT_NE(extended.GetMenuState(1, MF_BYPOSITION) & MF_SEPARATOR, 0u);
    const CString longest('m', 700);
    menu.AppendMenu(MF_STRING, 30, longest);
    EXPECT_EQ(text_of(menu, 4), longest);
    CString text = "before";
    EXPECT_TRUE(menu.GetMenuString(99, text, MF_BYCOMMAND) == 0 && text.IsEmpty());
}

TEST(AfxMenu, KeepsTheStatesOfItems) {
    CMenu menu;
    menu.CreatePopupMenu();
    for (UINT id = 1; id <= 3; ++id)
        menu.AppendMenu(MF_STRING, id, "item");
    const auto is = [&](UINT id, UINT state) { return (menu.GetMenuState(id, MF_BYCOMMAND) & state) != 0; };
    EXPECT_EQ(menu.CheckMenuItem(1, MF_CHECKED), static_cast<UINT>(MF_UNCHECKED));
    EXPECT_EQ(menu.CheckMenuItem(1, MF_CHECKED), static_cast<UINT>(MF_CHECKED));
    EXPECT_EQ(menu.CheckMenuItem(99, MF_CHECKED), UINT(-1));
    EXPECT_TRUE(menu.EnableMenuItem(2, MF_GRAYED) == MF_ENABLED && is(2, MF_GRAYED));
    EXPECT_TRUE(menu.CheckMenuRadioItem(1, 3, 2, MF_BYCOMMAND) && !is(1, MF_CHECKED) && is(2, MF_CHECKED));
    EXPECT_TRUE(menu.SetDefaultItem(3) && menu.GetDefaultItem(0) == 3);
    MENUITEMINFO info{0, MIIM_DATA | MIIM_ID, 0, 0, 50, nullptr, nullptr, nullptr, 77, nullptr, 0, nullptr};
    EXPECT_TRUE(menu.SetMenuItemInfo(1, &info, TRUE));
    info = {};
    info.fMask = MIIM_DATA;
    EXPECT_TRUE(menu.GetMenuItemInfo(50, &info) && info.dwItemData == 77);
    EXPECT_FALSE(menu.GetMenuItemInfo(51, &info));
    EXPECT_TRUE(menu.SetMenuContextHelpId(5) && menu.GetMenuContextHelpId() == 5u);
    const HMENU handle = menu.m_hMenu;
    EXPECT_TRUE(menu.DestroyMenu());
    EXPECT_FALSE(menu.DestroyMenu() || ::IsMenu(handle));
    CMenu* none = nullptr;
    EXPECT_EQ(none->GetSafeHmenu(), nullptr);
}

// Writes down which items it measures and draws.
struct drawn_menu : CMenu {
    void MeasureItem(LPMEASUREITEMSTRUCT item) override {
        measured.push_back(item->itemID);
        item->itemWidth = 40;
        item->itemHeight = 18;
    }
    void DrawItem(LPDRAWITEMSTRUCT item) override { drawn.push_back(item->itemID); }
    std::vector<UINT> measured, drawn;
};

TEST(AfxMenu, ItsOwnerPassesMeasuringAndDrawingOnToIt) {
    CWnd owner;
    ASSERT_TRUE(create_popup(owner));
    drawn_menu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_OWNERDRAW, 5, "own");
    MEASUREITEMSTRUCT measured{ODT_MENU, 0, 5, 0, 0, 0};
    DRAWITEMSTRUCT drawn{ODT_MENU, 0, 5, 0, 0, reinterpret_cast<HWND>(menu.m_hMenu), nullptr, {}, 0};
    owner.SendMessage(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&drawn));
    EXPECT_THAT(menu.drawn, testing::ElementsAre(5u));
    owner.SendMessage(WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&measured));
    EXPECT_TRUE(menu.measured.empty()) << "of no window's menu, and none is shown";
    CMenu bar;
    bar.CreateMenu();
    bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(menu.m_hMenu), "popup");
    owner.SetMenu(&bar);
    EXPECT_EQ(owner.GetMenu(), &bar);
    owner.SendMessage(WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&measured));
    EXPECT_THAT(menu.measured, testing::ElementsAre(5u));
    EXPECT_EQ(measured.itemWidth, 40u);
    owner.DestroyWindow(); // and its menu
    EXPECT_FALSE(::IsMenu(menu.m_hMenu));
    menu.Detach();
    bar.Detach();
}

} // namespace
