#include <zopwnt.h>

namespace {

//! [host]
class Welcome : public CWnd {
public:
    static bool IsWanted() { return CWntTipPage::IsShownAtStart("plant.ini", "Tips") != 0; }
    bool Open() {
        const CRect nowhere(0, 0, 0, 0);
        if (!tabs_.Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 460, 280), this, 1) ||
            !tips_.Create(nullptr, "", WS_CHILD, nowhere, &tabs_, 2) ||
            !news_.Create("Nothing new.", WS_CHILD, nowhere, &tabs_, 3))
            return false;
        tabs_.AddTab("&Tip of the day", &tips_);
        tabs_.AddTab("N&ews", &news_);
        tips_.LoadTips("tips.txt");
        tips_.SetProfile("plant.ini", "Tips"); // goes on behind the last tip that was shown
        return true;
    }

private:
    CWntTabs tabs_; // before its pages, so that they go first
    CWntTipPage tips_;
    CStatic news_;
};
//! [host]

} // namespace

void tip_page_snippets() {
    Welcome welcome;
    if (Welcome::IsWanted())
        welcome.Open();
}
