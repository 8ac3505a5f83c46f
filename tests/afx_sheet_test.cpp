// Property sheets whose pages take their data over, and refuse to.
#include "afx_test_app.h"
#include "modal.h"

#include <afxdlgs.h>

#include <gtest/gtest.h>

namespace {

// Takes the mark of a box over, and writes down what it is asked.
class marked_page : public CPropertyPage {
public:
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

    bool valid = true, applies = true, cancels = true, marked = false;

private:
    void note(const char* what) { log += name + "." + what + " "; }

    std::string name;
    std::string& log;
};

class AfxSheet : public testing::Test {
protected:
    AfxSheet() {
        sheet.AddPage(&first);
        sheet.AddPage(&second);
    }
    // Runs the sheet; each call of `work` may press a button, true after the last.
    INT_PTR run(std::function<bool()> work) {
        log.clear();
        WhileModal modal([&] { return sheet.m_hWnd && PropSheet_GetCurrentPageHwnd(sheet.m_hWnd) && work(); });
        return sheet.DoModal();
    }
    void press(int button) { PropSheet_PressButton(sheet.m_hWnd, button); }
    void show(int page) { PropSheet_SetCurSel(sheet.m_hWnd, nullptr, page); }

    std::string log;
    marked_page first{"1", log}, second{"2", log};
    CPropertySheet sheet{"Sheet"};
};

TEST_F(AfxSheet, OkTakesThePagesDataOver) {
    EXPECT_EQ(run([&] {
                  first.CheckDlgButton(IDC_MARK, TRUE);
                  show(1);
                  second.CheckDlgButton(IDC_MARK, TRUE);
                  press(PSBTN_OK);
                  return true;
              }),
              IDOK);
    EXPECT_TRUE(first.marked && second.marked);
    EXPECT_EQ(log, "1.set 1.kill 2.set 2.kill 1.apply 1.ok 2.apply 2.ok ");
    EXPECT_EQ(run([&] { return press(PSBTN_CANCEL), true; }), IDCANCEL);
    EXPECT_EQ(log, "1.set 1.query 1.cancel ");
}

TEST_F(AfxSheet, PagesMayRefuse) {
    int step = 0;
    EXPECT_EQ(run([&] {
                  EXPECT_TRUE(::IsWindow(sheet.m_hWnd));
                  switch (step++) {
                  case 0:
                      first.valid = false;
                      show(1);
                      EXPECT_EQ(sheet.GetActiveIndex(), 0) << "what was entered is wrong";
                      return press(PSBTN_OK), false;
                  case 1:
                      first.valid = true;
                      first.applies = false;
                      return press(PSBTN_OK), false;
                  case 2:
                      first.cancels = false;
                      return press(PSBTN_CANCEL), false;
                  default:
                      first.cancels = true;
                      return press(PSBTN_CANCEL), true;
                  }
              }),
              IDCANCEL);
    EXPECT_EQ(log, "1.set 1.kill 1.kill 1.kill 1.apply 1.ok 1.query 1.query 1.cancel ");
}

} // namespace
