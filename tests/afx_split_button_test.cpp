// Buttons with a menu beside them.
#include "afx_test_app.h"
#include "newer_controls.h"

#include <afxcmn.h>

namespace {

// Takes a menu's first item, and keeps the commands and notifications it gets.
class choosing_parent : public CWnd {
public:
    afx_msg void OnInitMenuPopup(CMenu* menu, UINT, BOOL) {
        CString text;
        menu->GetMenuString(0, text, MF_BYPOSITION);
        texts.push_back(text.GetString());
        PostMessage(WM_KEYDOWN, VK_DOWN);
        PostMessage(WM_KEYDOWN, VK_RETURN);
    }
    BOOL OnCommand(WPARAM command, LPARAM) override { return commands.push_back(LOWORD(command)), TRUE; }
    afx_msg void OnDropDown(NMHDR*, LRESULT*) { ++told; }
    DECLARE_MESSAGE_MAP()

public:
    std::vector<std::string> texts;
    std::vector<UINT> commands;
    int told = 0;
};

BEGIN_MESSAGE_MAP(choosing_parent, CWnd)
ON_WM_INITMENUPOPUP()
ON_NOTIFY(BCN_DROPDOWN, 7, &choosing_parent::OnDropDown)
END_MESSAGE_MAP()

class AfxSplitButton : public testing::Test {
protected:
    AfxSplitButton() { EXPECT_TRUE(create_visible_popup(parent)); }
    void drop(CSplitButton& button) {
        ASSERT_TRUE(button.Create(WS_CHILD | WS_VISIBLE, CRect(5, 5, 65, 30), &parent, 7));
        NMBCDROPDOWN notice{{button, 7, BCN_DROPDOWN}, {}};
        parent.SendMessage(WM_NOTIFY, 7, reinterpret_cast<LPARAM>(&notice));
        MSG message;
        while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE)) // the command may be posted
            ::DispatchMessage(&message);
        button.DestroyWindow();
    }
    static CMenu* menu_of(UINT command) {
        auto* menu = new CMenu;
        EXPECT_TRUE(menu->CreatePopupMenu() && menu->AppendMenu(MF_STRING, command, "own"));
        return menu;
    }

    const newer_controls newer;
    choosing_parent parent;
};

TEST_F(AfxSplitButton, ShowsItsMenuAndItsParentGetsTheCommand) {
    CSplitButton of_bar(IDR_FRAME, 1), own(menu_of(300)), none, missing(9999, 0), outside(IDR_FRAME, 50);
    for (CSplitButton* button : {&of_bar, &own, &none, &missing, &outside})
        drop(*button);
    EXPECT_THAT(parent.texts, testing::ElementsAre("On", "own"));
    EXPECT_THAT(parent.commands, testing::ElementsAre(ID_TEST_ON, 300u));
    EXPECT_EQ(parent.told, 0) << "it is the button's own";
    own.SetDropDownMenu(IDR_FRAME, 1);
    drop(own);
    EXPECT_EQ(parent.texts.back(), "On");
}

} // namespace
