#include "controls/wnt_tabs.h"

#include "controls/tabs_model.h"
#include "controls/tabs_painter.h"
#include "controls/tabs_strip.h"
#include "controls/pixel_rects.h"
#include "script/script_on_disk.h"
#include "widgets/painting/paint_pass.h"
#include "widgets/painting/surface_owner.h"

#include <utility>

namespace {

constexpr UINT strip_id = 0xE7AB; // out of the way of the pages'

bool has_focus(HWND window) {
    const HWND focus = ::GetFocus();
    return focus && (focus == window || ::IsChild(window, focus));
}

} // namespace

BEGIN_MESSAGE_MAP(CWntTabs, wnt::ControlWindow)
ON_WM_ERASEBKGND()
ON_WM_PAINT()
ON_WM_SETFOCUS()
ON_WM_SETTINGCHANGE()
END_MESSAGE_MAP()

CWntTabs::CWntTabs()
    : PaneWindow("WntTabs"), model_(std::make_unique<wnt::TabsModel>()),
      strip_(std::make_unique<wnt::TabsStrip>(*this)) {}

CWntTabs::~CWntTabs() {
    DestroyWindow(); // while its handlers and what they use still exist
}

bool CWntTabs::build() {
    ModifyStyleEx(0, WS_EX_CONTROLPARENT); // the strip and the page's controls are places of the tab order
    if (!strip_->Create(nullptr, "", WS_CHILD | WS_VISIBLE | (GetStyle() & WS_TABSTOP), CRect(0, 0, 0, 0), this,
                        strip_id))
        return false;
    strip_->rescale(false);
    return true;
}

void CWntTabs::leave() {
    strip_->DestroyWindow();
}

void CWntTabs::take_text(const CString& text) {
    if (wnt::names_script(text))
        LoadFromFile(text);
}

unsigned char CWntTabs::LoadLine(const char* line, int mode) {
    if (!this || !line)
        return 0;
    if (mode == wnt::script_begin) {
        model_->begin_script();
    } else if (mode == wnt::script_line) {
        model_->load_line(line);
    } else if (mode == wnt::script_end) {
        end_script();
    }
    return 0;
}

void CWntTabs::end_script() {
    std::vector<HWND> pages;
    for (int i = 0; i < model_->count(); ++i)
        pages.push_back(page_window(i));
    model_->end_script();
    if (!m_hWnd)
        return;
    const wnt::StillThere self(*this);
    changed();
    for (std::size_t i = static_cast<std::size_t>(self ? model_->count() : 0); self && i < pages.size(); ++i)
        retire(pages[i]);
    if (self)
        UpdateWindow();
}

unsigned char CWntTabs::LoadFromFile(const char* path) {
    if (!this || !path)
        return 0;
    LoadLine("", wnt::script_begin);
    return wnt::feed_script_on_disk(path, [this](const char* line, int mode) { LoadLine(line, mode); });
}

HWND CWntTabs::page_window(int tab) const {
    return model_->has(tab) ? living(static_cast<HWND>(model_->at(tab).page)) : nullptr;
}

bool CWntTabs::can_be_page(CWnd* page) {
    return !page || (FindPage(page) < 0 && page != strip_.get() && wnt::adopt_child(*this, page));
}

int CWntTabs::AddTab(const char* text, CWnd* page) {
    return this ? InsertTab(model_->count(), text, page) : 0;
}

int CWntTabs::InsertTab(int tab, const char* text, CWnd* page) {
    if (!this || !m_hWnd || tab < 0 || model_->count() >= wnt::TabsModel::most_tabs || !can_be_page(page))
        return 0;
    wnt::Tab added;
    added.text = wnt::text_of(text);
    added.page = page->GetSafeHwnd();
    if (page)
        page->ShowWindow(SW_HIDE);
    model_->insert(tab, std::move(added));
    changed();
    return 1;
}

int CWntTabs::RemoveTab(int tab) {
    if (!this || !model_->has(tab))
        return 0;
    const HWND page = page_window(tab);
    model_->remove(tab);
    const wnt::StillThere self(*this);
    changed();
    if (self)
        retire(page);
    return 1;
}

int CWntTabs::MoveTab(int from, int to) {
    if (!this || !model_->move(from, to))
        return 0;
    changed();
    return 1;
}

int CWntTabs::GetTabCount() const {
    return this ? model_->count() : 0;
}

int CWntTabs::Select(int tab) {
    if (!this || !model_->select(tab))
        return 0;
    changed();
    return 1;
}

int CWntTabs::GetSelected() const {
    return this ? model_->selected() : -1;
}

int CWntTabs::SetPage(int tab, CWnd* page) {
    if (!this || !model_->has(tab))
        return 0;
    const HWND before = page_window(tab);
    if (before == page->GetSafeHwnd())
        return 1;
    if (!can_be_page(page))
        return 0;
    if (page)
        page->ShowWindow(SW_HIDE);
    model_->at(tab).page = page->GetSafeHwnd();
    const wnt::StillThere self(*this);
    show_page();
    if (self)
        retire(before);
    return 1;
}

CWnd* CWntTabs::GetPage(int tab) const {
    const HWND page = this ? page_window(tab) : nullptr;
    return page ? CWnd::FromHandle(page) : nullptr;
}

int CWntTabs::FindPage(const CWnd* page) const {
    if (!this || !page->GetSafeHwnd())
        return -1;
    for (int i = 0; i < model_->count(); ++i)
        if (page_window(i) == page->m_hWnd)
            return i;
    return -1;
}

int CWntTabs::SetTabText(int tab, const char* text) {
    if (!this || !model_->set_text(tab, wnt::text_of(text)))
        return 0;
    changed();
    return 1;
}

CString CWntTabs::GetTabText(int tab) const {
    return this && model_->has(tab) ? model_->at(tab).text.c_str() : "";
}

int CWntTabs::SetTabTip(int tab, const char* tip) {
    if (!this || !model_->set_tip(tab, wnt::text_of(tip)))
        return 0;
    changed();
    return 1;
}

int CWntTabs::SetTabIcon(int tab, HICON icon) {
    if (!this || !model_->has(tab))
        return 0;
    model_->at(tab).icon = icon;
    changed();
    return 1;
}

int CWntTabs::SetClosable(int tab, int closable) {
    if (!this || !model_->has(tab))
        return 0;
    model_->at(tab).closable = closable != 0;
    changed();
    return 1;
}

int CWntTabs::EnableTab(int tab, int enabled) {
    if (!this || !model_->enable(tab, enabled != 0))
        return 0;
    changed();
    return 1;
}

int CWntTabs::SetSide(int side) {
    if (!this || side < at_top || side > at_right)
        return 0;
    model_->side = static_cast<wnt::TabsSide>(side);
    changed();
    return 1;
}

int CWntTabs::SetOverflow(int overflow) {
    if (!this || overflow < by_arrows || overflow > by_menu)
        return 0;
    model_->overflow = static_cast<wnt::TabsOverflow>(overflow);
    changed();
    return 1;
}

void CWntTabs::SetMovable(int movable) {
    if (this)
        model_->movable = movable != 0;
}

int CWntTabs::ShowTab(int tab) {
    if (!this || !m_hWnd || !model_->has(tab))
        return 0;
    arrange(tab);
    return 1;
}

CRect CWntTabs::GetPageRect() const {
    return this && m_hWnd ? wnt::rect_of(strip_->layout().page) : CRect(0, 0, 0, 0);
}

CRect CWntTabs::GetTabRect(int tab) const {
    if (!this || !m_hWnd || !model_->has(tab) || !strip_->layout().shows(tab))
        return CRect(0, 0, 0, 0);
    return wnt::rect_of(strip_->layout().tabs[static_cast<std::size_t>(tab)]);
}

int CWntTabs::GetScale() const {
    return this ? strip_->scale() : 0;
}

void CWntTabs::lay_out(int, int) {
    changed();
}

void CWntTabs::arrange(int wanted) {
    if (!m_hWnd || !strip_->m_hWnd)
        return;
    CRect client;
    GetClientRect(&client);
    strip_->measure();
    strip_->arrange(client.Width(), client.Height(), wanted);
    Invalidate(FALSE);
    show_page();
}

// The new page covers the old one before that is hidden: nothing else is seen between them. It lies behind the strip,
// so that the strip comes first in the tab order.
void CWntTabs::show_page() {
    if (!m_hWnd || !strip_->m_hWnd)
        return;
    const HWND wanted = page_window(model_->selected());
    const wnt::StillThere self(*this);
    // Who loses the focus may end the tabs, or select another one.
    const auto goes_on = [&] { return self && wanted == page_window(model_->selected()); };
    const CRect place = GetPageRect();
    if (wanted)
        ::SetWindowPos(wanted, strip_->m_hWnd, place.left, place.top, place.Width(), place.Height(),
                       SWP_NOACTIVATE | SWP_SHOWWINDOW);
    for (int i = 0; goes_on() && i < model_->count(); ++i) {
        const HWND page = page_window(i);
        if (!page || page == wanted || !(::GetWindowLongPtr(page, GWL_STYLE) & WS_VISIBLE))
            continue;
        if (has_focus(page))
            focus_into(wanted);
        if (goes_on())
            ::ShowWindow(page, SW_HIDE);
    }
}

// A page that is none any more.
void CWntTabs::retire(HWND page) {
    const wnt::StillThere self(*this);
    if (page && has_focus(page))
        focus_into(page_window(model_->selected()));
    if (page && self)
        ::ShowWindow(page, SW_HIDE);
}

void CWntTabs::focus_into(HWND page) {
    const HWND first = page ? ::GetNextDlgTabItem(page, nullptr, FALSE) : nullptr;
    if (first && ::IsChild(page, first))
        ::SetFocus(first);
    else
        strip_->SetFocus();
}

BOOL CWntTabs::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void CWntTabs::OnPaint() {
    wnt::PaintPass pass(*this);
    wnt::paint_page_border(pass, *model_, strip_->layout());
}

void CWntTabs::OnSetFocus(CWnd* old) {
    wnt::PaneWindow::OnSetFocus(old);
    strip_->SetFocus();
}

void CWntTabs::OnSettingChange(UINT flags, LPCTSTR section) {
    wnt::PaneWindow::OnSettingChange(flags, section);
    strip_->rescale(true);
    changed();
}

bool CWntTabs::tell(UINT code, int tab, int other, HWND page, LRESULT* refused) {
    WntTabsNotify notification = {{}, tab, other, page};
    bool alive = true;
    const LRESULT answer = wnt::notify_parent(*this, notification.hdr, code, alive);
    if (refused)
        *refused = answer;
    return alive;
}

CWntTabs::Answer CWntTabs::ask(UINT code, int& tab, int other) {
    const int id = model_->at(tab).id;
    LRESULT refused = 0;
    if (!tell(code, tab, other, page_window(tab), &refused))
        return Answer::destroyed;
    tab = model_->position_of(id);
    return refused || tab < 0 ? Answer::refused : Answer::allowed;
}

bool CWntTabs::select_by_user(int tab) {
    const int before = model_->selected();
    if (tab == before || !model_->has(tab) || !model_->at(tab).enabled)
        return true;
    const Answer answer = ask(WNT_TABS_SELECTING, tab, before);
    if (answer != Answer::allowed)
        return answer != Answer::destroyed;
    const int id = model_->at(tab).id;
    const wnt::StillThere self(*this);
    if (!Select(tab) || !self)
        return static_cast<bool>(self);
    tab = model_->position_of(id);
    if (tab < 0 || tab != model_->selected())
        return true; // the page that was left brought another one forward
    return tell(WNT_TABS_SELECTED, tab, before, page_window(tab));
}

bool CWntTabs::close_by_user(int tab) {
    const HWND page = page_window(tab);
    const Answer answer = ask(WNT_TABS_CLOSING, tab, model_->selected());
    if (answer != Answer::allowed)
        return answer != Answer::destroyed;
    const wnt::StillThere self(*this);
    if (!RemoveTab(tab) || !self)
        return static_cast<bool>(self);
    return tell(WNT_TABS_CLOSED, tab, model_->selected(), page);
}

bool CWntTabs::move_by_user(int from, int to) {
    if (from == to)
        return true;
    const Answer answer = ask(WNT_TABS_ORDERING, from, to);
    if (answer != Answer::allowed)
        return answer != Answer::destroyed;
    const wnt::StillThere self(*this);
    if (!MoveTab(from, to) || !self)
        return static_cast<bool>(self);
    return tell(WNT_TABS_ORDERED, to, from, page_window(to));
}

bool CWntTabs::translate_key(const MSG& message) {
    int tab = -1;
    if (message.message == WM_SYSCHAR) {
        tab = model_->with_access_key(static_cast<char>(message.wParam));
    } else if (message.message == WM_KEYDOWN && ::GetKeyState(VK_CONTROL) < 0 && ::GetKeyState(VK_MENU) >= 0) {
        const WPARAM key = message.wParam;
        const bool back = key == VK_PRIOR || (key == VK_TAB && ::GetKeyState(VK_SHIFT) < 0);
        if (key == VK_TAB || key == VK_PRIOR || key == VK_NEXT)
            tab = model_->enabled_from(model_->selected() + (back ? -1 : 1), !back, true);
    }
    if (tab < 0 || tab == model_->selected())
        return false;
    select_by_user(tab);
    return true;
}

BOOL CWntTabs::PreTranslateMessage(MSG* message) {
    return (message && translate_key(*message)) || wnt::PaneWindow::PreTranslateMessage(message);
}
