// Texts with links.
#include "afx_test_app.h"
#include "newer_controls.h"

#include <afxcmn.h>

namespace {

class AfxLinks : public WithParent {
protected:
    void SetUp() override {
        ASSERT_TRUE(links.Create("To <a href=\"http://one/\" id=\"first\">one</a> and <a id=\"caf\xe9\">two</a>", shown,
                                 CRect(0, 0, 100, 50), &parent, 7));
    }
    const newer_controls newer;
    CLinkCtrl links;
};

TEST_F(AfxLinks, TheirTextsAndStatesAreReadAndSet) {
    CString text;
    EXPECT_TRUE(links.GetItemID(0, text) && text == "first");
    EXPECT_TRUE(links.GetItemUrl(0, text) && text == "http://one/");
    EXPECT_TRUE(links.GetItemID(1, text) && text == "caf\xe9");
    EXPECT_TRUE(links.SetItemUrl(1, L"http://two/") && links.GetItemUrl(1, text) && text == "http://two/");
    EXPECT_TRUE(links.SetItemID(1, L"second") && links.GetItemID(1, text) && text == "second");
    EXPECT_FALSE(links.GetItemID(2, text) || links.SetItemID(2, L"third") || links.GetItemUrl(-1, text));
    EXPECT_EQ(text, "second");
    UINT state = 0;
    EXPECT_TRUE(links.GetItemState(1, &state) && state == LIS_ENABLED);
    EXPECT_TRUE(links.SetItemState(1, LIS_VISITED, LIS_VISITED) && links.GetItemState(1, &state, LIS_VISITED));
    EXPECT_EQ(state, static_cast<UINT>(LIS_VISITED));
    EXPECT_TRUE(links.GetItemState(1, &state, LIS_ENABLED) && state == LIS_ENABLED) << "left as it was";
    EXPECT_FALSE(links.GetItemState(2, &state));
}

TEST_F(AfxLinks, RoomAndTextsAreBounded) {
    WCHAR id[MAX_LINKID_TEXT] = L"before", url[L_MAX_URL_LENGTH] = L"before";
    const std::wstring longer(60, L'f'), longest(MAX_LINKID_TEXT - 1, L'x');
    EXPECT_FALSE(links.GetItemID(0, id, MAX_LINKID_TEXT - 1) || links.GetItemUrl(0, nullptr, 1000));
    EXPECT_TRUE(std::wstring(id) == L"before" && links.GetItemID(0, id, MAX_LINKID_TEXT) &&
                std::wstring(id) == L"first");
    EXPECT_TRUE(links.SetItemUrl(0, longer.c_str()) && links.GetItemUrl(0, url, 61) && url == longer);
    EXPECT_FALSE(links.GetItemUrl(0, url, 60) || links.SetItemID(0, (longest + L"x").c_str()));
    EXPECT_TRUE(links.SetItemID(0, longest.c_str()) && links.GetItemID(0, id, MAX_LINKID_TEXT) && id == longest);
}

} // namespace
