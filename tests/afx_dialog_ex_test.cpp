// Dialogs with a background of their own.
#include "afx_test_app.h"

#include <SDKDDKVer.h>
#include <afxdialogex.h>

namespace {

constexpr COLORREF green = RGB(0, 200, 0), red = RGB(255, 0, 0), blue = RGB(0, 0, 255);

struct ColouredDialog : testing::Test {
    void SetUp() override {
        const struct {
            DLGTEMPLATE head;
            WORD menu, name, title;
        } form = {{WS_POPUP, 0, 0, 0, 0, 100, 60}, 0, 0, 0};
        ASSERT_TRUE(dialog_.CreateIndirect(&form.head));
        text_.Create("", WS_CHILD | WS_VISIBLE, CRect(11, 10, 31, 25), &dialog_);
        edit_.Create(WS_CHILD | WS_VISIBLE | ES_READONLY, CRect(40, 10, 60, 25), &dialog_, 5);
        dialog_.ShowWindow(SW_SHOWNOACTIVATE);
    }
    void TearDown() override { dialog_.DestroyWindow(); }

    // Red and blue beside each other, above two rows of green.
    static HBITMAP red_and_blue() {
        constexpr DWORD pixels[] = {0xFF0000, 0x0000FF, 0x00C800, 0x00C800, 0x00C800, 0x00C800};
        return ::CreateBitmap(2, 3, 1, 32, pixels);
    }
    COLORREF at(int x, int y) { return CClientDC(&dialog_).GetPixel(x, y); }

    CDialogEx dialog_;
    CStatic text_;
    CEdit edit_;
};

TEST_F(ColouredDialog, ShowsItsColourBehindTexts) {
    const COLORREF usual = at(2, 2);
    dialog_.SetBackgroundColor(green);
    EXPECT_TRUE(at(2, 2) == green && at(12, 12) == green);
    EXPECT_NE(at(55, 20), green) << "what is read only has its own ground";
    dialog_.SetBackgroundColor(red, FALSE);
    EXPECT_EQ(at(2, 2), green);
    dialog_.SetBackgroundColor(static_cast<COLORREF>(-1));
    EXPECT_EQ(at(2, 2), usual);
}

TEST_F(ColouredDialog, TakesTheProgramsColourWhereItHasNone) {
    the_app.SetDialogBkColor(green, blue);
    dialog_.RedrawWindow();
    EXPECT_TRUE(at(2, 2) == green && at(12, 12) == green);
    CClientDC dc(&text_);
    text_.GetParent()->SendMessage(WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.m_hDC),
                                   reinterpret_cast<LPARAM>(text_.m_hWnd));
    EXPECT_TRUE(dc.GetTextColor() == blue && dc.GetBkColor() == green);
    dialog_.SendMessage(WM_ERASEBKGND); // nothing to paint on
    the_app.SetDialogBkColor(::GetSysColor(COLOR_BTNFACE), ::GetSysColor(COLOR_BTNTEXT));
}

TEST_F(ColouredDialog, ShowsItsImageBehindTexts) {
    const HBITMAP image = red_and_blue();
    dialog_.SetBackgroundImage(image, CDialogEx::BACKGR_TILE, FALSE);
    for (const int x : {0, 1, 12, 13, 28, 99}) // the text begins at 11
        EXPECT_EQ(at(x, 12), x % 2 ? blue : red) << x;
    dialog_.SetBackgroundColor(green);
    CRect client = inside_of(dialog_);
    constexpr CDialogEx::BackgroundLocation corners[] = {CDialogEx::BACKGR_TOPLEFT, CDialogEx::BACKGR_TOPRIGHT,
                                                         CDialogEx::BACKGR_BOTTOMLEFT, CDialogEx::BACKGR_BOTTOMRIGHT};
    for (const auto corner : corners) {
        dialog_.SetBackgroundImage(image, corner, FALSE);
        for (int i = 0; i < 4; ++i) // in the same order
            EXPECT_EQ(at(i % 2 ? client.right - 2 : 0, i / 2 ? client.bottom - 3 : 0),
                      corners[i] == corner ? red : green)
                << corner;
    }
    dialog_.SetWindowPos(nullptr, 0, 0, client.right + 50, client.bottom + 40, SWP_NOMOVE | SWP_NOZORDER);
    dialog_.UpdateWindow();
    client = inside_of(dialog_);
    EXPECT_EQ(at(client.right - 1, client.bottom - 3), blue) << "it keeps to the corner";
    dialog_.SetBackgroundImage(HBITMAP(nullptr));
    EXPECT_NE(::GetObjectType(image), 0u) << "the program's own";

    dialog_.SetBackgroundImage(image, CDialogEx::BACKGR_TILE, TRUE);
    EXPECT_TRUE(dialog_.SetBackgroundImage(UINT(IDB_UP)));
    EXPECT_EQ(::GetObjectType(image), 0u) << "the dialog's own is deleted when another comes";
    EXPECT_FALSE(dialog_.SetBackgroundImage(UINT(4711)));
    dialog_.SetBackgroundImage(HBITMAP(nullptr));
    EXPECT_EQ(at(2, 2), green);
}

} // namespace
