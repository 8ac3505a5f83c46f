#include "controls/wnt_tip_page.h"

#include <algorithm>
#include <vector>

#include "controls/control_font.h"
#include "controls/profile_section.h"
#include "controls/text_lines.h"
#include "controls/tip_file.h"
#include "screen_scale.h"
#include "script/script_on_disk.h"
#include "widgets/painting/paint_pass.h"
#include "widgets/painting/surface_owner.h"

namespace {

constexpr UINT text_id = 1, start_id = 2, previous_id = 3, next_id = 4;
constexpr int margin = 10; // pixels at 96 dots an inch
constexpr int band = 56;
constexpr char heading[] = "Did you know?";
constexpr int heading_percent = 130;
constexpr int narrowest = 80; // pixels, of the text
constexpr wchar_t no_file[] = L"The file with the tips cannot be opened.";
constexpr wchar_t no_tips[] = L"There are no tips in the file.";

std::string bytes_of(wnt::ScriptOnDisk& file) {
    std::string bytes;
    char block[4096];
    int count = 1;
    while (bytes.size() <= wnt::largest_tip_file + 3 && (count = file(block, sizeof block)) > 0)
        bytes.append(block, static_cast<std::size_t>(count));
    return bytes;
}

std::wstring wide(const std::string& text, UINT code_page) {
    const int size = static_cast<int>(text.size());
    std::wstring result(static_cast<std::size_t>(::MultiByteToWideChar(code_page, 0, text.data(), size, nullptr, 0)),
                        L'\0');
    ::MultiByteToWideChar(code_page, 0, text.data(), size, result.data(), static_cast<int>(result.size()));
    return result;
}

// For each character, how far right it ends in a line of its text.
std::vector<int> right_edges(const std::wstring& text, CFont& font) {
    constexpr std::size_t most = 4096; // the system measures no more at once
    std::vector<int> right(text.size());
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    CFont* before = dc.SelectObject(&font);
    int left = 0;
    for (std::size_t start = 0; start < text.size(); start += most) {
        const std::size_t count = std::min(most, text.size() - start);
        SIZE size = {};
        ::GetTextExtentExPointW(dc.m_hDC, text.data() + start, static_cast<int>(count), 0, nullptr, &right[start],
                                &size);
        for (std::size_t i = start; i < start + count; ++i)
            right[i] += left;
        left = right[start + count - 1];
    }
    dc.SelectObject(before);
    return right;
}

} // namespace

struct CWntTipPage::Places {
    CRect box, text, heading, start, previous, next;
    int band = 0;
};

BEGIN_MESSAGE_MAP(CWntTipPage, wnt::ControlWindow)
ON_WM_ERASEBKGND()
ON_WM_PAINT()
ON_WM_SETFOCUS()
ON_WM_ENABLE()
ON_WM_SETTINGCHANGE()
ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

CWntTipPage::CWntTipPage() : PaneWindow("WntTipPage"), file_(std::make_unique<wnt::TipFile>()) {}

CWntTipPage::~CWntTipPage() {
    DestroyWindow(); // while its handlers and what they use still exist
}

bool CWntTipPage::build() {
    ModifyStyleEx(0, WS_EX_CONTROLPARENT); // its controls are places of the tab order
    const CRect nowhere(0, 0, 0, 0);
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP;
    text_ = ::CreateWindowExW(0, L"EDIT", L"", style | WS_VSCROLL | ES_MULTILINE | ES_AUTOHSCROLL | ES_READONLY, 0, 0,
                              0, 0, m_hWnd, reinterpret_cast<HMENU>(UINT_PTR{text_id}), nullptr, nullptr);
    if (!text_ || !at_start_.Create("&Show tips at start", style | BS_AUTOCHECKBOX, nowhere, this, start_id) ||
        !previous_.Create("&Previous", style, nowhere, this, previous_id) ||
        !next_.Create("&Next", style, nowhere, this, next_id))
        return false;
    ::SendMessageW(text_, EM_SETLIMITTEXT, 0, 0);
    at_start_.SetCheck(IsShownAtStart(profile_, section_) ? BST_CHECKED : BST_UNCHECKED);
    rescale(false);
    show_text();
    return true;
}

void CWntTipPage::leave() {
    if (::IsWindow(text_))
        ::DestroyWindow(text_);
    at_start_.DestroyWindow();
    previous_.DestroyWindow();
    next_.DestroyWindow();
}

void CWntTipPage::take_text(const CString& text) {
    if (!text.IsEmpty())
        LoadTips(text);
}

void CWntTipPage::rescale(bool settings_changed) {
    scale_ = wnt::screen_scale(settings_changed);
    font_ = std::make_unique<wnt::ControlFont>(scale_, false);
    heading_ = std::make_unique<wnt::ControlFont>(scale_ * heading_percent / 100, true);
    for (const HWND control : {text_, at_start_.m_hWnd, previous_.m_hWnd, next_.m_hWnd})
        ::SendMessage(control, WM_SETFONT, reinterpret_cast<WPARAM>(font_->font().GetSafeHandle()), TRUE);
    ::SendMessage(text_, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
}

int CWntTipPage::LoadTips(const char* name) {
    if (!this || !name)
        return 0;
    wnt::ScriptOnDisk file{name};
    opened_ = file.is_open();
    *file_ = opened_ ? wnt::parse_tip_file(bytes_of(file)) : wnt::TipFile();
    start();
    return tip_ >= 0;
}

int CWntTipPage::SetProfile(const char* profile, const char* name) {
    const wnt::ProfileSection from = {profile, name};
    if (!this || !from.named())
        return 0;
    profile_ = profile;
    section_ = name;
    if (at_start_.m_hWnd)
        at_start_.SetCheck(IsShownAtStart(profile, name) ? BST_CHECKED : BST_UNCHECKED);
    start();
    return 1;
}

// With the first tip, or the one behind the last that was shown.
void CWntTipPage::start() {
    const wnt::ProfileSection from = {profile_, section_};
    int last = 0;
    int first = file_->tips.empty() ? -1 : 0;
    if (first == 0 && from.named() && from.read("Tip", last) && last >= 0)
        first = static_cast<int>((static_cast<unsigned>(last) + 1) % file_->tips.size());
    turn_to(first);
}

void CWntTipPage::turn_to(int tip) {
    tip_ = tip;
    if (tip_ >= 0)
        store("Tip", tip_);
    show_text();
}

int CWntTipPage::IsShownAtStart(const char* profile, const char* name) {
    const wnt::ProfileSection from = {profile, name};
    int shown = 1;
    return !from.named() || !from.read("ShowAtStart", shown) || shown != 0;
}

int CWntTipPage::GetTipCount() const {
    return this ? static_cast<int>(file_->tips.size()) : 0;
}

int CWntTipPage::GetTip() const {
    return this ? tip_ : -1;
}

int CWntTipPage::ShowTip(int tip) {
    if (!this || tip < 0 || tip >= GetTipCount())
        return 0;
    turn_to(tip);
    return 1;
}

std::wstring CWntTipPage::shown_text() const {
    if (tip_ < 0)
        return opened_ ? no_tips : no_file;
    return wide(file_->tips[static_cast<std::size_t>(tip_)], file_->utf8 ? CP_UTF8 : CP_ACP);
}

CString CWntTipPage::GetTipText() const {
    CString text(this ? shown_text().c_str() : L"");
    text.Replace("\n", "\r\n");
    return text;
}

void CWntTipPage::store(const char* key, int value) {
    const wnt::ProfileSection to = {profile_, section_};
    if (to.named())
        to.write(key, value);
}

// Lines are broken here: the control takes seconds for a long tip of few blanks. The bar is there only where it is
// needed.
void CWntTipPage::show_text() {
    if (!m_hWnd || !::IsWindow(text_))
        return;
    const CRect place = places().text;
    const std::wstring text = shown_text();
    const std::vector<int> right = right_edges(text, font_->font());
    const auto width = [](int pixels) { return std::max(pixels, narrowest); };
    int lines = 0;
    std::wstring broken = wnt::break_lines(text, right, width(place.Width()), lines);
    const bool bar = lines * font_->row() > place.Height();
    if (bar)
        broken =
            wnt::break_lines(text, right, width(place.Width() - ::GetSystemMetrics(SM_CXVSCROLL) - margin / 2), lines);
    ::ShowScrollBar(text_, SB_VERT, bar);
    ::SetWindowTextW(text_, broken.c_str());
    for (CButton* button : {&previous_, &next_})
        button->EnableWindow(IsWindowEnabled() && GetTipCount() > 1);
}

CWntTipPage::Places CWntTipPage::places() const {
    const auto scaled = [this](int pixels) { return ::MulDiv(pixels, scale_, 100); };
    CRect client;
    GetClientRect(&client);
    const int m = scaled(margin);
    const int row = font_->row() + scaled(10);
    const int wide = std::max(font_->width("Previous"), font_->width("Next")) + scaled(24);
    Places p;
    const int top = std::max<int>(client.bottom - m - row, m);
    p.next = CRect(client.right - m - wide, top, client.right - m, top + row);
    p.previous = p.next - CPoint(wide + scaled(6), 0);
    const int start = font_->width("Show tips at start") + scaled(28);
    const bool one_row = m + start <= p.previous.left;
    const int start_top = one_row ? top : std::max(top - row, m); // above the buttons
    p.start = CRect(m, start_top, m + start, start_top + row);
    p.box = CRect(m, m, std::max<int>(client.right - m, m), std::max(start_top - (one_row ? m : m / 2), m));
    CRect inside = p.box;
    inside.DeflateRect(1, 1);
    if (inside.Width() - scaled(band) - 2 * m >= heading_->width(heading)) // or else the texts need all the room
        p.band = scaled(band);
    inside.left = std::min<int>(inside.left + p.band, inside.right);
    inside.DeflateRect(m, m);
    p.text = inside;
    if (inside.Height() >= heading_->row() + m + 2 * font_->row()) {
        p.heading = CRect(inside.left, inside.top, inside.right, inside.top + heading_->row());
        p.text.top = p.heading.bottom + m;
    }
    if (const int rows = p.text.Height() / font_->row(); rows > 0) // no line is cut
        p.text.bottom = p.text.top + rows * font_->row();
    return p;
}

void CWntTipPage::lay_out(int, int) {
    if (!font_ || !::IsWindow(text_))
        return;
    const Places p = places();
    ::SetWindowPos(text_, nullptr, p.text.left, p.text.top, std::max(p.text.Width(), 0), std::max(p.text.Height(), 0),
                   SWP_NOZORDER | SWP_NOACTIVATE);
    wnt::place_child(at_start_, p.start.left, p.start.top, p.start.Width(), p.start.Height());
    wnt::place_child(previous_, p.previous.left, p.previous.top, p.previous.Width(), p.previous.Height());
    wnt::place_child(next_, p.next.left, p.next.top, p.next.Width(), p.next.Height());
    show_text();
    Invalidate(FALSE);
}

BOOL CWntTipPage::OnEraseBkgnd(CDC*) {
    return TRUE;
}

// A glass and its socket.
void CWntTipPage::paint_bulb(wnt::PaintPass& pass, const CRect& place) {
    const int size = std::min(place.Width(), place.Height()) / 2;
    if (size < 8)
        return;
    const auto up = [&](int y) { return pass.area().Height() - 1 - y; };
    const CPoint middle(place.CenterPoint().x, place.top + size);
    const int reach = size / 2;
    pass.out().linecolour(RGB(128, 96, 0), 0);
    pass.out().fillcolour(RGB(255, 208, 64), 0);
    pass.out().fillcircle(middle.x, up(middle.y), reach, reach);
    pass.out().fillcolour(RGB(255, 240, 176), 0);
    pass.out().fillcircle(middle.x - reach / 3, up(middle.y - reach / 3), reach / 4, reach / 4);
    CRect socket(middle.x - reach / 2, middle.y + reach - reach / 6, middle.x + reach / 2 + 1, middle.y + 2 * reach);
    const int turn = std::max(reach / 5, 2);
    for (int y = socket.top; y + turn - 1 <= socket.bottom; y += turn)
        pass.fill(CRect(socket.left, y, socket.right, y + turn - 1), RGB(112, 112, 112));
}

void CWntTipPage::OnPaint() {
    wnt::PaintPass pass(*this);
    pass.fill(pass.area(), ::GetSysColor(COLOR_BTNFACE));
    const Places p = places();
    pass.fill(p.box, ::GetSysColor(COLOR_WINDOW));
    CRect side = p.box;
    side.right = side.left + p.band;
    pass.fill(side, ::GetSysColor(COLOR_BTNSHADOW));
    paint_bulb(pass, side);
    pass.text(p.heading, heading, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS,
              ::GetSysColor(COLOR_WINDOWTEXT), &heading_->font());
    pass.edge(p.box, false);
}

HBRUSH CWntTipPage::OnCtlColor(CDC* dc, CWnd* control, UINT) {
    const bool paper = control->GetSafeHwnd() == text_;
    dc->SetTextColor(::GetSysColor(paper ? COLOR_WINDOWTEXT : COLOR_BTNTEXT));
    dc->SetBkColor(::GetSysColor(paper ? COLOR_WINDOW : COLOR_BTNFACE));
    return ::GetSysColorBrush(paper ? COLOR_WINDOW : COLOR_BTNFACE);
}

void CWntTipPage::OnSetFocus(CWnd* old) {
    wnt::PaneWindow::OnSetFocus(old);
    if (next_.IsWindowEnabled())
        next_.SetFocus();
    else
        at_start_.SetFocus();
}

void CWntTipPage::OnEnable(BOOL enabled) {
    wnt::PaneWindow::OnEnable(enabled);
    at_start_.EnableWindow(enabled);
    show_text();
}

void CWntTipPage::OnSettingChange(UINT flags, LPCTSTR section) {
    wnt::PaneWindow::OnSettingChange(flags, section);
    rescale(true);
    lay_out(0, 0);
}

void CWntTipPage::turn_by_user(int step) {
    const int count = GetTipCount();
    if (count < 2)
        return;
    ShowTip((tip_ + step + count) % count);
    wnt::notify_parent(*this, WNT_TIP_TURNED);
}

void CWntTipPage::choose_by_user() {
    store("ShowAtStart", at_start_.GetCheck() == BST_CHECKED);
    wnt::notify_parent(*this, WNT_TIP_START);
}

BOOL CWntTipPage::OnCommand(WPARAM wParam, LPARAM lParam) {
    const HWND control = reinterpret_cast<HWND>(lParam);
    if (!control || HIWORD(wParam) != BN_CLICKED)
        return control == text_ || wnt::PaneWindow::OnCommand(wParam, lParam);
    if (control == next_.m_hWnd)
        turn_by_user(1);
    else if (control == previous_.m_hWnd)
        turn_by_user(-1);
    else if (control == at_start_.m_hWnd)
        choose_by_user();
    else
        return wnt::PaneWindow::OnCommand(wParam, lParam);
    return TRUE;
}

// Access keys work in hosts that are no dialogs, too.
BOOL CWntTipPage::PreTranslateMessage(MSG* message) {
    CButton* pressed = nullptr;
    if (message && message->message == WM_SYSCHAR)
        switch (message->wParam | 0x20) {
        case 'n':
            pressed = &next_;
            break;
        case 'p':
            pressed = &previous_;
            break;
        case 's':
            pressed = &at_start_;
        }
    if (!pressed || !pressed->m_hWnd || !pressed->IsWindowEnabled())
        return wnt::PaneWindow::PreTranslateMessage(message);
    pressed->SendMessage(BM_CLICK);
    return TRUE;
}
