// The main window's parts and their places; its commands are in main_frame_commands.cpp.
#include "main_frame.h"

#include "resource.h"
#include "tip_dialog.h"

#include <afxpriv.h>

#include <algorithm>
#include <iterator>

namespace {

constexpr UINT_PTR update_timer = 1;
constexpr UINT update_period = 100; // milliseconds
constexpr UINT status_panes[] = {ID_SEPARATOR, ID_INDICATOR_RECORDING, ID_INDICATOR_LINK};
constexpr const char* tab_texts[] = {"&Overview", "&Trend", "Histor&y", "&Report"};
constexpr char place_section[] = "Window";

HBITMAP LoadStrip(UINT id) {
    return static_cast<HBITMAP>(::LoadImage(AfxGetInstanceHandle(), MAKEINTRESOURCE(id), IMAGE_BITMAP, 0, 0,
                                            LR_CREATEDIBSECTION)); // with its opacity
}

CSize WorkArea() {
    CRect area;
    return ::SystemParametersInfo(SPI_GETWORKAREA, 0, &area, 0) ? area.Size() : CSize(640, 480);
}

} // namespace

CMainFrame::CMainFrame(FrontEnd& front_end)
    : front_end_(front_end), banner_(front_end), overview_(front_end), trend_(front_end), history_(front_end),
      report_(front_end) {}

BOOL CMainFrame::PreCreateWindow(CREATESTRUCT& create) {
    create.style |= WS_CLIPCHILDREN;
    return CFrameWnd::PreCreateWindow(create);
}

int CMainFrame::OnCreate(LPCREATESTRUCT create) {
    if (CFrameWnd::OnCreate(create) == -1 || !CreateTools() || !status_.Create(this) ||
        !status_.SetIndicators(status_panes, static_cast<int>(std::size(status_panes))) ||
        !banner_.Open(this, IDC_BANNER) || !CreatePages())
        return -1;
    banner_.ShowWindow(SW_SHOWNA);
    ShowSettings();
    Update();
    SetTimer(update_timer, update_period, nullptr);
    return 0;
}

bool CMainFrame::CreateTools() {
    CBitmap small_strip, large_strip;
    if (!tools_.Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 0, 0), this, IDC_TOOLS) ||
        !small_strip.Attach(LoadStrip(IDB_TOOLS_SMALL)) || !large_strip.Attach(LoadStrip(IDB_TOOLS_LARGE)))
        return false;
    tools_.SetPictures(small_strip, large_strip); // which are copied
    tools_.LoadFromFile(front_end_.Script("tools.txt"));
    return true;
}

bool CMainFrame::CreatePages() {
    if (!tabs_.Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 0, 0), this, IDC_TABS))
        return false;
    UINT id = IDC_OVERVIEW;
    const char* const* text = tab_texts;
    for (CFrontPage* page : Pages())
        if (!page->Open(&tabs_, id++) || !tabs_.AddTab(*text++, page))
            return false;
    return true;
}

// The tools, then the banner, then the pages; what the status bar leaves.
void CMainFrame::RecalcLayout(BOOL notify) {
    CFrameWnd::RecalcLayout(notify);
    if (!tabs_.m_hWnd || IsIconic())
        return;
    CRect rest;
    RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, reposQuery, rest);
    const auto take = [&rest](CWnd& window, int height) {
        window.MoveWindow(rest.left, rest.top, rest.Width(), height);
        rest.top += height;
    };
    take(tools_, tools_.GetThickness(rest.Width()));
    take(banner_, banner_.Height());
    take(tabs_, std::max(rest.Height(), 0));
}

// Below that the operation's panel would be cut; but all of the window has to be within reach.
void CMainFrame::OnGetMinMaxInfo(MINMAXINFO* sizes) {
    CFrameWnd::OnGetMinMaxInfo(sizes);
    const CSize area = WorkArea();
    sizes->ptMinTrackSize = CPoint(std::min<int>(Scaled(760), area.cx), std::min<int>(Scaled(540), area.cy));
}

// The scale of the panels follows what the system tells main windows only.
void CMainFrame::OnSettingChange(UINT flags, LPCTSTR section) {
    CFrameWnd::OnSettingChange(flags, section);
    SendMessageToDescendants(WM_SETTINGCHANGE, flags, reinterpret_cast<LPARAM>(section), TRUE, TRUE);
    RecalcLayout();
}

BOOL CMainFrame::PreTranslateMessage(MSG* message) {
    return tools_.FilterKey(message) || tabs_.PreTranslateMessage(message) || CFrameWnd::PreTranslateMessage(message);
}

BOOL CMainFrame::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) {
    const auto& told = *reinterpret_cast<const NMHDR*>(lParam);
    if (told.code == WNT_TABS_SELECTED)
        LookForDays();
    return CFrameWnd::OnNotify(wParam, lParam, result);
}

// The folder is read for the one page that shows it.
void CMainFrame::LookForDays() {
    if (tabs_.GetPage(tabs_.GetSelected()) == &history_)
        history_.FindDays();
}

// -- News of the plant ------------------------------------------------------------------------------------------------

void CMainFrame::OnTimer(UINT_PTR timer) {
    if (timer == update_timer)
        Update();
    CFrameWnd::OnTimer(timer);
}

void CMainFrame::Update() {
    const LinkState state = front_end_.station.Link().State();
    if (front_end_.station.Poll(::GetTickCount64(), front_end_.settings.limits))
        for (CFrontPage* page : Pages())
            page->ShowReadings();
    if (front_end_.station.Link().State() != state) // while a dialog is open, the frame has no idle time
        SendMessageToDescendants(WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
    const CString before = banner_.Text();
    banner_.ShowReadings();
    if (banner_.Text() != before)
        overview_.AddEvent(banner_.Text().SpanExcluding(".:")); // its first sentence
    horn_.Sound(front_end_.settings.sound && front_end_.station.Alarms().IsCalling());
}

void CMainFrame::ShowSettings() {
    for (CFrontPage* page : Pages())
        page->ShowSettings();
}

// -- What is kept -----------------------------------------------------------------------------------------------------

void CMainFrame::RestorePlace(int show) {
    CWinApp& program = *AfxGetApp();
    WINDOWPLACEMENT place = {};
    place.length = sizeof place;
    GetWindowPlacement(&place);
    const auto number = [&](const char* entry, int otherwise) {
        constexpr int farthest = 32767; // where a window can be
        return std::clamp(static_cast<int>(program.GetProfileInt(place_section, entry, otherwise)), -farthest,
                          farthest);
    };
    const CSize area = WorkArea();
    CRect kept(number("Left", 40), number("Top", 40), 0, 0);
    kept.right = kept.left + std::max(number("Width", std::min<int>(Scaled(1080), area.cx)), 300);
    kept.bottom = kept.top + std::max(number("Height", std::min<int>(Scaled(720), area.cy)), 200);
    if (::MonitorFromRect(kept, MONITOR_DEFAULTTONULL)) // a screen that is still there
        place.rcNormalPosition = kept;
    place.showCmd = static_cast<UINT>(number("Maximized", 0) ? SW_SHOWMAXIMIZED : show);
    for (CFrontPage* page : Pages())
        page->RestoreLayout();
    tabs_.Select(number("Page", 0));
    SetWindowPlacement(&place);
    if (CTipDialog::IsWanted(front_end_.profile))
        PostMessage(WM_COMMAND, ID_TIP); // over the window that is shown by then
}

// A window that a dialog has disabled is not closed below it.
void CMainFrame::OnClose() {
    if (!IsWindowEnabled())
        return;
    StorePlace();
    StoreSettings();
    CFrameWnd::OnClose();
}

void CMainFrame::OnEndSession(BOOL ends) {
    if (ends) {
        StorePlace();
        front_end_.settings.Save(*AfxGetApp()); // nobody would read a box any more
    }
    CFrameWnd::OnEndSession(ends);
}

void CMainFrame::StoreSettings() {
    if (front_end_.settings.Save(*AfxGetApp()) || told_unkept_)
        return;
    told_unkept_ = true;
    CWntErrorBox("Settings", "The settings cannot be kept.", front_end_.profile).DoModal();
}

void CMainFrame::StorePlace() {
    CWinApp& program = *AfxGetApp();
    WINDOWPLACEMENT place = {};
    place.length = sizeof place;
    GetWindowPlacement(&place);
    const CRect normal(place.rcNormalPosition);
    program.WriteProfileInt(place_section, "Left", normal.left);
    program.WriteProfileInt(place_section, "Top", normal.top);
    program.WriteProfileInt(place_section, "Width", normal.Width());
    program.WriteProfileInt(place_section, "Height", normal.Height());
    program.WriteProfileInt(place_section, "Maximized", place.showCmd == SW_SHOWMAXIMIZED);
    program.WriteProfileInt(place_section, "Page", tabs_.GetSelected());
    for (CFrontPage* page : Pages())
        page->StoreLayout();
}
