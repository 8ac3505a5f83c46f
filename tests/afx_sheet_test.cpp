// Property sheets whose pages take their data over, and refuse to.
#include "afx_test_app.h"
#include "modal.h"

#include <afxcmn.h>
#include <afxdlgs.h>

namespace {

// Takes the mark of a box over, and writes down what it is asked.
struct marked_page : CPropertyPage {
    explicit marked_page(std::string name, std::string& log) : CPropertyPage(IDD_PAGE), name(name), log(log) {}
    void DoDataExchange(CDataExchange* exchange) override {
        CPropertyPage::DoDataExchange(exchange);
        if (exchange->m_bSaveAndValidate && !valid)
            throw new CUserException;
        if (exchange->m_bSaveAndValidate)
            marked = IsDlgButtonChecked(IDC_MARK) != 0;
        else
            CheckDlgButton(IDC_MARK, marked);
    }
    BOOL OnSetActive() override { return note("set"), CPropertyPage::OnSetActive(); }
    BOOL OnKillActive() override { return note("kill"), CPropertyPage::OnKillActive(); }
    BOOL OnApply() override { return note("apply"), CPropertyPage::OnApply() && applies; }
    void OnOK() override { note("ok"), CPropertyPage::OnOK(); }
    void OnCancel() override { note("cancel"), CPropertyPage::OnCancel(); }
    BOOL OnQueryCancel() override { return note("query"), cancels; }

    BOOL OnInitDialog() override {
        CPropertyPage::OnInitDialog();
        if (checked_by_hand)
            CheckDlgButton(IDC_MARK, TRUE);
        return TRUE;
    }

    bool valid = true, applies = true, cancels = true, marked = false, checked_by_hand = false;

private:
    void note(const char* what) { log += name + "." + what + " "; }

    std::string name;
    std::string& log;
};

// Runs the sheet, taking a step whenever it is idle.
INT_PTR run(CPropertySheet& sheet, const std::vector<std::function<void()>>& steps) {
    std::size_t step = 0;
    WhileModal modal([&] {
        if (sheet.m_hWnd == nullptr || PropSheet_GetCurrentPageHwnd(sheet.m_hWnd) == nullptr)
            return false;
        steps[step++]();
        return step == steps.size();
    });
    const INT_PTR result = sheet.DoModal();
    EXPECT_EQ(step, steps.size());
    return result;
}

// Changes the last page's record before its window is made.
struct titled_sheet : CPropertySheet {
    using CPropertySheet::CPropertySheet;
    void BuildPropPageArray() override {
        CPropertySheet::BuildPropPageArray();
        auto& last = const_cast<PROPSHEETPAGE&>(m_psh.ppsp[m_pages.GetUpperBound()]);
        last.dwFlags |= PSP_USETITLE, last.pszTitle = "Changed";
    }
};

struct AfxSheet : testing::Test {
    AfxSheet() {
        sheet.AddPage(&first);
        sheet.AddPage(&second);
    }
    void press(int button) { PropSheet_PressButton(sheet.m_hWnd, button); }
    void show(int page) { PropSheet_SetCurSel(sheet.m_hWnd, nullptr, page); }

    std::string log;
    marked_page first{"1", log}, second{"2", log};
    titled_sheet sheet{"Sheet"};
};

TEST_F(AfxSheet, OkTakesThePagesDataOver) {
    char title[20] = "";
    const auto mark_both = [&] {
        TCITEM item{TCIF_TEXT, 0, 0, title, 20, 0, 0};
        EXPECT_TRUE(sheet.GetTabControl()->GetItem(1, &item) && std::string("Changed") == title);
        EXPECT_NEAR(on_screen(sheet).CenterPoint().x, ::GetSystemMetrics(SM_CXSCREEN) / 2, 1);
        first.CheckDlgButton(IDC_MARK, TRUE);
        const HWND apply = ::GetDlgItem(sheet, ID_APPLY_NOW);
        for (const BOOL changed : {TRUE, FALSE}) {
            first.SetModified(changed);
            EXPECT_EQ(::IsWindowEnabled(apply), changed);
        }
        sheet.SetTitle("Other");
        EXPECT_EQ(text_of(sheet), "Other");
        show(1);
        second.CheckDlgButton(IDC_MARK, TRUE);
        press(PSBTN_OK);
    };
    EXPECT_EQ(run(sheet, {mark_both}), IDOK);
    EXPECT_TRUE(first.marked && second.marked);
    EXPECT_EQ(log, "1.set 1.kill 2.set 2.kill 1.apply 1.ok 2.apply 2.ok ");
    log.clear();
    first.marked = false;
    first.checked_by_hand = true;
    const auto go_and_return = [&] {
        EXPECT_TRUE(first.IsDlgButtonChecked(IDC_MARK)) << "what OnInitDialog did is seen";
        first.CheckDlgButton(IDC_MARK, FALSE);
        show(1);
        first.marked = true;
        show(0);
        EXPECT_TRUE(first.IsDlgButtonChecked(IDC_MARK)) << "its data as it is now";
        press(PSBTN_CANCEL);
    };
    EXPECT_EQ(run(sheet, {go_and_return}), IDCANCEL);
    EXPECT_EQ(log, "1.set 1.kill 2.set 2.kill 1.set 1.query 1.cancel 2.cancel ");
}

TEST_F(AfxSheet, PagesMayRefuse) {
    const auto wrong_entry = [&] {
        first.valid = false;
        show(1);
        EXPECT_EQ(sheet.GetActiveIndex(), 0) << "what was entered is wrong";
        press(PSBTN_OK);
    };
    const auto not_applied = [&] { first.valid = true, first.applies = false, press(PSBTN_OK); };
    const auto not_cancelled = [&] { first.cancels = false, press(PSBTN_CANCEL); };
    const auto cancelled = [&] { first.cancels = true, press(PSBTN_CANCEL); };
    EXPECT_EQ(run(sheet, {wrong_entry, not_applied, not_cancelled, cancelled}), IDCANCEL);
    EXPECT_EQ(log, "1.set 1.kill 1.kill 1.kill 1.apply 1.ok 1.query 1.query 1.cancel ");
    sheet.SetActivePage(&second);
    EXPECT_EQ(run(sheet, {[&] { second.EndDialog(77); }}), 77) << "unless the program ends it, from any page";
}

// Goes from page to page, but past the second where it is told to, and not on where it refuses.
struct wizard_page : marked_page {
    using marked_page::marked_page;
    BOOL OnSetActive() override {
        static_cast<CPropertySheet*>(GetParent())->SetWizardButtons(buttons);
        return marked_page::OnSetActive();
    }
    LRESULT OnWizardNext() override { return next; }
    BOOL OnWizardFinish() override { return finishes; }
    HWND OnWizardFinishEx() override {
        return marked_page::OnWizardFinishEx() == nullptr ? nullptr : ::GetDlgItem(m_hWnd, IDC_MARK);
    }

    DWORD buttons = PSWIZB_NEXT;
    LRESULT next = 0;
    BOOL finishes = TRUE;
};

TEST(AfxWizard, StepsRefusesAndFinishes) {
    const CPropertyPage titled(IDD_PAGE, IDS_CAPTION, IDS_FORMAT, ID_TEST_PANE);
    EXPECT_EQ(titled.m_psp.dwFlags & 0xFFFFF008, PSP_USETITLE | PSP_USEHEADERTITLE | PSP_USEHEADERSUBTITLE);
    std::string log;
    wizard_page first("1", log), last("2", log);
    last.buttons = PSWIZB_BACK | PSWIZB_FINISH;
    first.next = -1;
    last.finishes = FALSE;
    CPropertySheet sheet("Wizard");
    sheet.AddPage(&first);
    sheet.AddPage(&last);
    sheet.SetWizardMode();
    const auto refused = [&] {
        sheet.PressButton(PSBTN_NEXT);
        EXPECT_EQ(sheet.GetActivePage(), &first) << "it refuses to be left";
        first.next = 0;
        sheet.PressButton(PSBTN_NEXT);
    };
    const auto not_finished = [&] {
        EXPECT_EQ(sheet.GetActivePage(), &last);
        sheet.GetDlgItem(ID_WIZFINISH)->SetFocus();
        sheet.PressButton(PSBTN_FINISH);
    };
    const auto back = [&] {
        EXPECT_EQ(::GetFocus(), ::GetDlgItem(last, IDC_MARK));
        last.finishes = TRUE;
        sheet.PressButton(PSBTN_BACK);
    };
    const auto again = [&] {
        EXPECT_EQ(sheet.GetActiveIndex(), 0);
        sheet.PressButton(PSBTN_NEXT);
    };
    const auto finished = [&] { sheet.PressButton(PSBTN_FINISH); };
    EXPECT_EQ(run(sheet, {refused, not_finished, back, again, finished}), ID_WIZFINISH);
}

// Answers the other pages' question with its own number.
class sibling_page : public CPropertyPage {
    DECLARE_MESSAGE_MAP()
public:
    sibling_page(LRESULT number, UINT caption = 0) : CPropertyPage(IDD_PAGE, caption), number(number) {}
    afx_msg LRESULT OnQuery(WPARAM wParam, LPARAM) { return wParam == 4 ? number : 0; }
    LRESULT number;
};

BEGIN_MESSAGE_MAP(sibling_page, CPropertyPage)
ON_MESSAGE(PSM_QUERYSIBLINGS, &sibling_page::OnQuery)
END_MESSAGE_MAP()

TEST(AfxModelessSheet, HoldsPagesWithoutButtons) {
    sibling_page first(0), second(9, IDS_CAPTION), third(5);
    CPropertySheet sheet(IDS_CAPTION);
    sheet.AddPage(&first);
    sheet.AddPage(&second);
    ASSERT_TRUE(sheet.Create(nullptr, WS_POPUP | WS_CAPTION | WS_THICKFRAME));
    EXPECT_NE(sheet.GetStyle() & WS_THICKFRAME, 0u);
    const CRect around = on_screen(sheet), tabs = on_screen(*sheet.GetTabControl());
    EXPECT_TRUE(around.right > tabs.right && around.bottom > tabs.bottom) << "the pages are seen";
    EXPECT_LE(around.bottom, on_screen(*sheet.GetDlgItem(IDOK)).top) << "not the buttons";
    EXPECT_EQ(text_of(sheet), "Caption of its own");
    EXPECT_FALSE(sheet.GetDlgItem(IDOK)->IsWindowVisible() || sheet.GetDlgItem(IDCANCEL)->IsWindowEnabled());
    EXPECT_TRUE(sheet.SetActivePage(1) && sheet.GetActivePage() == &second);
    EXPECT_EQ(second.QuerySiblings(4, 0), 9);
    char caption[40];
    TCITEM tab{TCIF_TEXT, 0, 0, caption, sizeof(caption), 0, 0};
    EXPECT_TRUE(sheet.GetTabControl()->GetItem(1, &tab) && std::string("Caption of its own") == caption);
    sheet.AddPage(&third);
    CPropertyPage missing(4711);
    EXPECT_TRUE(raises<CResourceException>([&] { sheet.AddPage(&missing); }));
    EXPECT_EQ(sheet.GetTabControl()->GetItemCount(), 3);
    EXPECT_EQ(sheet.GetPageCount(), 3) << "without the page that has no template";
    for (const int none : {-1, 3})
        EXPECT_TRUE(raises<CInvalidArgException>([&] { sheet.RemovePage(none); }));
    sheet.RemovePage(&first);
    sheet.RemovePage(1);
    EXPECT_TRUE(sheet.GetTabControl()->GetItemCount() == 1 && sheet.GetPageIndex(&third) == -1);
    EXPECT_TRUE(sheet.DestroyWindow() && second.m_hWnd == nullptr);
}

using AfxExtendedControls = WithParent;

TEST_F(AfxExtendedControls, HoldPicturesAndAddresses) {
    CComboBoxEx box;
    ASSERT_TRUE(box.Create(CBS_DROPDOWNLIST, CRect(0, 0, 100, 100), &parent, 1));
    CImageList pictures;
    ASSERT_TRUE(pictures.Create(16, 16, ILC_COLOR, 0, 4));
    EXPECT_TRUE(box.SetImageList(&pictures) == nullptr && box.GetImageList() == &pictures);
    char text[16] = "first";
    COMBOBOXEXITEM item{CBEIF_TEXT | CBEIF_LPARAM, -1, text, 0, 0, 0, 0, 0, 77};
    EXPECT_EQ(box.InsertItem(&item), 0);
    lstrcpy(text, "second");
    EXPECT_EQ(box.InsertItem(&item), 1);
    item.iItem = 0;
    item.cchTextMax = sizeof(text);
    EXPECT_TRUE(box.GetItem(&item) && std::string("first") == text && item.lParam == 77);
    EXPECT_TRUE(box.GetComboBoxCtrl()->GetCount() == 2 && box.DeleteItem(0) == 1);

    CIPAddressCtrl address;
    ASSERT_TRUE(address.Create(WS_CHILD, CRect(0, 30, 120, 50), &parent, 2));
    EXPECT_TRUE(address.IsBlank());
    address.SetAddress(192, 168, 0, 7);
    BYTE fields[4] = {};
    EXPECT_EQ(address.GetAddress(fields[0], fields[1], fields[2], fields[3]), 4);
    EXPECT_THAT(fields, testing::ElementsAre(192, 168, 0, 7));
    box.SetImageList(nullptr);
}

} // namespace
