#include <zopwnt.h>

namespace {

//! [host]
class PlantPages : public CWnd {
public:
    bool Open() {
        const CRect nowhere(0, 0, 0, 0);
        if (!tabs_.Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 500, 300), this, 1) ||
            !dial_.Create(nullptr, "", WS_CHILD, nowhere, &tabs_, 2) ||
            !calendar_.Create(nullptr, "", WS_CHILD, nowhere, &tabs_, 3))
            return false;
        tabs_.AddTab("&Pressure", &dial_);
        tabs_.AddTab("&Shifts", &calendar_);
        tabs_.SetTabTip(0, "Of the boiler, in bar");
        tabs_.SetTabIcon(1, ::LoadIcon(nullptr, IDI_INFORMATION));
        tabs_.SetClosable(1, 1);
        tabs_.SetMovable(1);
        return true;
    }

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        const auto& told = *reinterpret_cast<WntTabsNotify*>(lParam);
        if (told.hdr.code == WNT_TABS_CLOSING) {
            *result = calendar_.m_hWnd == told.page && unsaved_; // 1: it stays open
            return TRUE;
        }
        return CWnd::OnNotify(wParam, lParam, result);
    }

private:
    CWntTabs tabs_; // before its pages, so that they go first
    CWntGauge dial_;
    CWntCalendar calendar_;
    bool unsaved_ = false;
};
//! [host]

//! [dialog]
/// A dialog as a page: it sees its controls' keys first, and leaves to the tabs what is theirs.
class LimitsPage : public CDialog {
public:
    explicit LimitsPage(CWntTabs& tabs) : tabs_(tabs) {}
    BOOL PreTranslateMessage(MSG* message) override {
        return tabs_.PreTranslateMessage(message) || CDialog::PreTranslateMessage(message);
    }

private:
    CWntTabs& tabs_;
};
//! [dialog]

} // namespace

void tabs_snippets(CWnd* parent) {
    PlantPages pages;
    pages.Open();
    //! [script]
    static CWntTabs months;
    months.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), parent, 4);
    months.LoadLine("", 1);
    months.LoadLine(":SIDE=LEFT", 0);
    months.LoadLine(":TAB=&January", 0);
    months.LoadLine(":TIP=31 days", 0);
    months.LoadLine(":TAB=&February", 0);
    months.LoadLine("", 2);
    //! [script]
    LimitsPage limits(months);
}
