// The dialog's pages, panes and bars.
#include "channel_dialog.h"

#include "afxres.h"
#include "resource.h"

#include <shlobj.h>

#include <algorithm>

namespace {

constexpr const char* page_titles[] = {"Channel", "Limits and calibration", "Report", "Tips"};
constexpr UINT page_starts[] = {IDC_CHANNEL_PAGE, IDC_LIMITS_PAGE, IDC_REPORT_PAGE, IDC_TIPS_PAGE, IDC_TABS};

// Beside the program.
CString tips_file() {
    char path[MAX_PATH] = "";
    ::GetModuleFileName(nullptr, path, MAX_PATH);
    const CString program = path;
    return program.Left(program.ReverseFind('\\') + 1) + "channel_tips.txt";
}

// Which tip was the last one, and whether one is shown at the start.
CString tips_profile() {
    char folder[MAX_PATH] = "";
    ::SHGetFolderPath(nullptr, CSIDL_APPDATA, nullptr, 0, folder);
    return CString(folder) + "\\measuring_channel.ini";
}

// It stays where it is on the screen.
void put_into(CWnd& holder, CWnd& child) {
    CRect place;
    child.GetWindowRect(place);
    holder.ScreenToClient(place);
    child.SetParent(&holder);
    child.MoveWindow(place);
}

} // namespace

// The data of all pages are exchanged at once: their controls are the dialog's own, shown page by page.
void CChannelDialog::CollectPages() {
    int page = -1;
    for (CWnd* child = GetWindow(GW_CHILD); child; child = child->GetWindow(GW_HWNDNEXT)) {
        if (page + 1 < 5 && child->GetDlgCtrlID() == static_cast<int>(page_starts[page + 1]))
            ++page;
        if (page >= 0 && page < 4)
            tab_pages_[page].push_back(child->m_hWnd);
    }
    for (const char* title : page_titles)
        tabs_.AddTab(title, nullptr);
    ShowTabPage(0);
}

void CChannelDialog::ShowTabPage(int page) {
    for (int i = 0; i < 4; ++i)
        for (const HWND control : tab_pages_[i])
            ::ShowWindow(control, i == page ? SW_SHOWNA : SW_HIDE);
}

void CChannelDialog::ShowPageOf(HWND control) {
    for (int i = 0; i < 4; ++i) {
        const auto& controls = tab_pages_[i];
        const bool here = std::any_of(controls.begin(), controls.end(),
                                      [&](HWND one) { return one == control || ::IsChild(one, control); });
        if (here && tabs_.Select(i))
            ShowTabPage(i);
    }
}

void CChannelDialog::OnTab(NMHDR* header, LRESULT* result) {
    ShowTabPage(reinterpret_cast<const WntTabsNotify*>(header)->tab);
    *result = 0;
}

// From anywhere in the dialog; the tabs themselves know only keys from within.
bool CChannelDialog::TurnPage(const MSG& message) {
    if (message.message != WM_KEYDOWN || message.wParam != VK_TAB || ::GetKeyState(VK_CONTROL) >= 0)
        return false;
    const int count = tabs_.GetTabCount(), step = ::GetKeyState(VK_SHIFT) < 0 ? count - 1 : 1;
    const int page = (tabs_.GetSelected() + step) % count;
    tabs_.Select(page);
    ShowTabPage(page);
    tabs_.SetFocus();
    return true;
}

void CChannelDialog::BuildPanes() {
    for (CWnd* shown : {static_cast<CWnd*>(&gauge_), static_cast<CWnd*>(&trend_), static_cast<CWnd*>(&axis_)})
        put_into(reading_, *shown);
    for (const int id : {IDC_RUN, IDC_RUN_TEXT, IDC_RUNNING, IDC_FILLING_TEXT, IDC_FILLING})
        put_into(*simulation_.GetContent(), *GetDlgItem(id));
    put_into(pages_, log_);
    put_into(pages_, plant_);
    pages_.ModifyStyleEx(0, WS_EX_CONTROLPARENT); // its pages are in the tab order
    sash_.SetPanes(&chart_, &pages_);
    sash_.SetShare(0.58);
    sash_.SetLeastSizes(120, 120);
    chart_.SetSpan(3000);
    tip_page_.LoadTips(tips_file());
    tip_page_.SetProfile(tips_profile(), "Tips");
}

void CChannelDialog::PlacePages() {
    CRect room;
    pages_.GetClientRect(room);
    pages_.AdjustRect(FALSE, room);
    log_.MoveWindow(room);
    plant_.MoveWindow(room);
}

void CChannelDialog::OnSash(NMHDR*, LRESULT* result) {
    PlacePages();
    *result = 0;
}

void CChannelDialog::BuildBars() {
    actions_.SetAutoDisable(0); // a dialog is not asked for the states of its commands
    actions_.AddItem(CWntToolItem(IDC_RUN, "Measure", WNT_TOOL_CHECK));
    actions_.AddItem(CWntToolItem(IDC_APPLY, "Apply"));
    actions_.AddItem(CWntToolItem(0, "", WNT_TOOL_SEPARATOR));
    actions_.AddItem(CWntToolItem(ID_INSERT_READING, "Insert reading"));
    actions_.AddItem(CWntToolItem(ID_NEXT_TIP, "Tip"));
    actions_.AddItem(CWntToolItem(0, "", WNT_TOOL_STRETCH));
    actions_.AddItem(CWntToolItem(0, "simulated channel", WNT_TOOL_LABEL));
    report_.Build(*this);
    CRect room;
    status_.GetClientRect(room);
    int parts[] = {room.Width() / 8, -1};
    status_.SetParts(2, parts);
    if (CWntTipPage::IsShownAtStart(tips_profile(), "Tips"))
        status_.SetText(tip_page_.GetTipText(), 1, 0);
}

// -- Report and tips --------------------------------------------------------------------------------------------------

void CChannelDialog::OnColumn(NMHDR*, LRESULT* result) {
    report_.FollowHeader();
    *result = 0;
}

void CChannelDialog::OnInk() {
    report_.UseInk();
}

void CChannelDialog::OnEdit(UINT command) {
    report_.Edit(command);
}

void CChannelDialog::OnInsertReading() {
    report_.InsertReading();
    ShowPageOf(::GetDlgItem(m_hWnd, IDC_REPORT));
}

void CChannelDialog::OnNextTip() {
    if (tip_page_.GetTipCount() > 0)
        tip_page_.ShowTip((tip_page_.GetTip() + 1) % tip_page_.GetTipCount());
    ShowPageOf(tip_page_.m_hWnd);
}
