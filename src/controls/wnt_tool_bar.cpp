#include "controls/wnt_tool_bar.h"

#include <algorithm>
#include <string>
#include <utility>

#include "controls/control_font.h"
#include "controls/tool_bar_drag.h"
#include "controls/tool_bar_model.h"
#include "controls/tool_bar_parts.h"
#include "controls/tool_pictures.h"
#include "screen_scale.h"
#include "script/keywords.h"
#include "script/script_on_disk.h"
#include "widgets/painting/surface_owner.h"

namespace {

static_assert(WNT_TOOL_WINDOW == static_cast<int>(wnt::ToolKind::window));
static_assert(WNT_TOOL_TEXT_BELOW == static_cast<int>(wnt::ToolText::below));

// Pixels at 96 dots an inch.
constexpr int padding = 3;
constexpr int text_gap = 4;
constexpr int arrow_width = 12;
constexpr int separator_width = 8;
constexpr int margin = 2;
constexpr int chevron_width = 13;

constexpr int longest_order = 16384;

bool is_good(const CWntToolItem& item) {
    if (item.kind < WNT_TOOL_PUSH || item.kind > WNT_TOOL_WINDOW)
        return false;
    const bool commands = item.kind <= WNT_TOOL_SPLIT;
    return item.id <= wnt::highest_command && (!commands || item.id > 0) &&
           (item.kind != WNT_TOOL_WINDOW || item.window->GetSafeHwnd());
}

void describe(wnt::ToolItem& to, const CWntToolItem& from) {
    to.id = static_cast<int>(from.id);
    to.text = from.text.Left(wnt::longest_tool_text).GetString();
    to.tip = from.tip.GetString();
    to.picture = std::max(from.picture, -1);
    to.icons[0] = from.icon;
    to.icons[1] = from.large;
    to.group = std::max(from.group, 0);
    to.host_menu = from.menu;
    to.window = from.window->GetSafeHwnd();
    to.enabled = from.enabled;
}

int check_of(const CWntToolItem& item) {
    return std::clamp<int>(item.check, wnt::unchecked, wnt::undecided);
}

// As the last thing: who loses the focus by it may end the bar.
void hide_all(const std::vector<HWND>& windows) {
    for (const HWND window : windows)
        ::ShowWindow(window, SW_HIDE);
}

bool named(const char* profile, const char* name) {
    return profile && *profile && name && *name;
}

} // namespace

CWntToolBar::CWntToolBar()
    : PaneWindow("WntToolBar"), model_(std::make_unique<wnt::ToolBarModel>()),
      places_(std::make_unique<wnt::ToolPlaces>()), pictures_(std::make_unique<wnt::ToolPictures>()),
      tips_(std::make_unique<CToolTipCtrlEx>()) {}

CWntToolBar::~CWntToolBar() {
    DestroyWindow(); // while its handlers and what they use still exist
}

bool CWntToolBar::build() {
    hot_ = pressed_ = focused_ = wnt::no_tool;
    drag_.reset();
    tip_count_ = 0;
    rescale(false);
    items_changed();
    return tips_->Create(this, TTS_ALWAYSTIP) != FALSE;
}

void CWntToolBar::leave() {
    tips_->DestroyWindow();
}

void CWntToolBar::take_text(const CString& text) {
    if (wnt::names_script(text))
        LoadFromFile(text);
}

void CWntToolBar::rescale(bool settings_changed) {
    scale_ = wnt::screen_scale(settings_changed);
    font_ = std::make_unique<wnt::ControlFont>(scale_, false);
    for (int i = 0; i < model_->count(); ++i)
        model_->item(i).text_width = font_->width(model_->item(i).text);
    pictures_->forget();
}

int CWntToolBar::GetScale() const {
    return this ? scale_ : 0;
}

CToolTipCtrlEx* CWntToolBar::GetTips() {
    return this && tips_->m_hWnd ? tips_.get() : nullptr;
}

unsigned char CWntToolBar::LoadLine(const char* line, int mode) {
    if (!this || !line)
        return 0;
    if (mode == wnt::script_begin) {
        RemoveAll();
    } else if (mode == wnt::script_line) {
        const int before = model_->count();
        model_->load_line(line);
        if (font_ && model_->count() > before)
            model_->item(before).text_width = font_->width(model_->item(before).text);
    } else if (mode == wnt::script_end) {
        load_named_pictures();
        const wnt::StillThere there(*this);
        items_changed();
        if (there)
            UpdateWindow();
    }
    return 0;
}

unsigned char CWntToolBar::LoadFromFile(const char* path) {
    if (!this || !path)
        return 0;
    const wnt::ScriptOnDisk file{std::string(wnt::script_file_name(path))};
    if (!file.is_open())
        return 0; // the items stay
    const wnt::StillThere there(*this);
    const bool has_window = m_hWnd != nullptr;
    LoadLine("", wnt::script_begin);
    if (has_window && !there)
        return 0;
    return wnt::feed_script_on_disk(path, [this](const char* line, int mode) { LoadLine(line, mode); });
}

void CWntToolBar::load_named_pictures() {
    for (int which = 0; which < 2; ++which) {
        const std::string name = std::exchange(model_->pictures[which], {});
        if (name.empty())
            continue;
        const auto bitmap = static_cast<HBITMAP>(
            ::LoadImageA(nullptr, name.c_str(), IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE | LR_CREATEDIBSECTION));
        pictures_->set_strip(which, bitmap, CLR_NONE);
        if (bitmap)
            ::DeleteObject(bitmap);
    }
}

int CWntToolBar::AddItem(const CWntToolItem& item) {
    return this ? InsertItem(model_->count(), item) : 0;
}

int CWntToolBar::InsertItem(int index, const CWntToolItem& item) {
    if (!this || !is_good(item) || !model_->takes(index) ||
        (item.kind == WNT_TOOL_WINDOW && !wnt::adopt_child(*this, item.window)))
        return 0;
    wnt::ToolItem added;
    added.kind = static_cast<wnt::ToolKind>(item.kind);
    describe(added, item);
    added.text_width = font_ ? font_->width(added.text) : 0;
    model_->insert(index, std::move(added));
    model_->set_check(index, check_of(item));
    items_changed();
    return 1;
}

int CWntToolBar::SetItem(int index, const CWntToolItem& item) {
    if (!this || !model_->has(index))
        return 0;
    CWntToolItem same_kind = item;
    same_kind.kind = static_cast<WntToolKind>(model_->item(index).kind);
    if (!is_good(same_kind) || (same_kind.kind == WNT_TOOL_WINDOW && !wnt::adopt_child(*this, item.window)))
        return 0;
    wnt::ToolItem& changed = model_->item(index);
    std::vector<HWND> left;
    if (changed.window && changed.window != item.window->GetSafeHwnd())
        left.push_back(living(static_cast<HWND>(changed.window)));
    describe(changed, item);
    changed.check = wnt::unchecked;
    model_->set_check(index, check_of(item)); // one of its group
    changed.text_width = font_ ? font_->width(changed.text) : 0;
    items_changed();
    hide_all(left);
    return 1;
}

int CWntToolBar::RemoveItem(int index) {
    if (!this || !model_->has(index))
        return 0;
    const HWND embedded = living(static_cast<HWND>(model_->item(index).window));
    model_->remove(index);
    items_changed();
    hide_all({embedded});
    return 1;
}

int CWntToolBar::RemoveAll() {
    if (!this)
        return 0;
    std::vector<HWND> embedded;
    for (const wnt::ToolItem& item : model_->items())
        embedded.push_back(living(static_cast<HWND>(item.window)));
    model_->clear();
    items_changed();
    hide_all(embedded);
    return 1;
}

int CWntToolBar::GetItemCount() const {
    return this ? model_->count() : 0;
}

int CWntToolBar::GetItem(int index, CWntToolItem* item) const {
    if (!this || !item || !model_->has(index))
        return 0;
    const wnt::ToolItem& from = model_->item(index);
    *item = CWntToolItem(static_cast<UINT>(from.id), from.text.c_str(), static_cast<WntToolKind>(from.kind));
    item->tip = from.tip.c_str();
    item->picture = from.picture;
    item->icon = static_cast<HICON>(from.icons[0]);
    item->large = static_cast<HICON>(from.icons[1]);
    item->group = from.group;
    item->menu = static_cast<HMENU>(from.host_menu);
    item->window = from.window ? CWnd::FromHandle(static_cast<HWND>(from.window)) : nullptr;
    item->enabled = from.enabled;
    item->check = from.check;
    return 1;
}

int CWntToolBar::FindItem(UINT id) const {
    return this && id <= wnt::highest_command ? model_->find(static_cast<int>(id)) : wnt::no_tool;
}

int CWntToolBar::EnableItem(UINT id, int enabled) {
    const int index = FindItem(id);
    if (index < 0)
        return 0;
    wnt::ToolItem& item = model_->item(index);
    if (item.enabled != (enabled != 0)) {
        item.enabled = enabled != 0;
        if (const HWND embedded = living(static_cast<HWND>(item.window)))
            ::EnableWindow(embedded, item.enabled);
        invalidate_item(index);
    }
    return 1;
}

int CWntToolBar::CheckItem(UINT id, int check) {
    const int index = FindItem(id);
    if (index < 0 || check < wnt::unchecked || check > wnt::undecided)
        return 0;
    change_checks([=, this] { model_->set_check(index, check); });
    return 1;
}

int CWntToolBar::AddMenuEntry(UINT id, const char* text) {
    if (!this || model_->count() == 0 || !wnt::has_menu(model_->items().back().kind) || id > wnt::highest_command)
        return 0;
    wnt::ToolItem& last = model_->item(model_->count() - 1);
    if (last.menu.size() == wnt::most_tools)
        return 0;
    last.menu.push_back({static_cast<int>(id), std::string(wnt::text_of(text))});
    return 1;
}

int CWntToolBar::SetPictures(HBITMAP small_strip, HBITMAP large_strip, COLORREF key) {
    if (!this)
        return 0;
    pictures_->set_strip(0, small_strip, key);
    pictures_->set_strip(1, large_strip, key);
    const bool taken =
        (small_strip == nullptr || pictures_->has_strip(0)) && (large_strip == nullptr || pictures_->has_strip(1));
    items_changed();
    return taken;
}

int CWntToolBar::SetTextPlace(int place) {
    if (!this || place < WNT_TOOL_TEXT_NONE || place > WNT_TOOL_TEXT_BELOW)
        return 0;
    model_->text = static_cast<wnt::ToolText>(place);
    items_changed();
    return 1;
}

void CWntToolBar::SetUpright(int upright) {
    if (!this)
        return;
    model_->upright = upright != 0;
    items_changed();
}

void CWntToolBar::SetWrapping(int wrapping) {
    if (!this)
        return;
    model_->wraps = wrapping != 0;
    items_changed();
}

void CWntToolBar::SetDragging(int dragging) {
    if (this)
        model_->movable = dragging != 0;
}

void CWntToolBar::SetAutoDisable(int disable) {
    if (this)
        auto_disable_ = disable != 0;
}

void CWntToolBar::SetAccelerators(HACCEL keys) {
    if (this)
        keys_ = keys;
}

// -- Layout -----------------------------------------------------------------------------------------------------------

wnt::ToolLook CWntToolBar::look() const {
    const auto scaled = [this](int pixels) { return ::MulDiv(pixels, scale_, 100); };
    wnt::ToolLook look;
    look.text = model_->text;
    look.upright = model_->upright;
    look.picture = picture_size_;
    look.row = font_ ? font_->row() : 0;
    look.padding = scaled(padding);
    look.gap = scaled(text_gap);
    look.arrow = scaled(arrow_width);
    look.separator = scaled(separator_width);
    return look;
}

wnt::ToolContent CWntToolBar::content_of(int index) const {
    const wnt::ToolItem& item = model_->item(index);
    wnt::ToolContent content = {item.kind, pictures_->has(item), item.text_width, 0, 0};
    if (item.kind == wnt::ToolKind::window) {
        CRect place;
        if (const HWND embedded = living(static_cast<HWND>(item.window)))
            ::GetWindowRect(embedded, &place);
        content.window_width = place.Width();
        content.window_height = place.Height();
    }
    return content;
}

wnt::ToolPlaces CWntToolBar::places_in(int width, int height) const {
    const wnt::ToolLook shown = look();
    std::vector<wnt::ToolSpace> spaces;
    for (int i = 0; i < model_->count(); ++i) {
        const wnt::ToolContent content = content_of(i);
        spaces.push_back({content.kind, wnt::tool_size(content, shown)});
    }
    const wnt::ToolFlow flow = {model_->upright, model_->wraps, ::MulDiv(margin, scale_, 100),
                                ::MulDiv(chevron_width, scale_, 100)};
    return wnt::place_tools(spaces, flow, width, height);
}

int CWntToolBar::GetThickness(int length) const {
    if (!this || !m_hWnd)
        return 0;
    return model_->upright ? places_in(0, length).thickness : places_in(length, 0).thickness;
}

// An embedded window of a script is the child of that number.
void CWntToolBar::find_windows() {
    for (int i = 0; i < model_->count(); ++i) {
        wnt::ToolItem& item = model_->item(i);
        if (item.kind == wnt::ToolKind::window && !living(static_cast<HWND>(item.window)))
            item.window = item.id > 0 ? ::GetDlgItem(m_hWnd, item.id) : nullptr;
    }
}

void CWntToolBar::items_changed() {
    pictures_->forget();
    if (!m_hWnd)
        return;
    if (::GetCapture() == m_hWnd)
        ::ReleaseCapture(); // what was pressed may be another one now
    hot_ = pressed_ = wnt::no_tool;
    tips_wanted_ = true;
    find_windows();
    picture_size_ = pictures_->size(*model_, scale_);
    if (focused_ >= model_->count())
        focused_ = wnt::no_tool;
    place_items();
}

void CWntToolBar::place_items() {
    CRect client;
    GetClientRect(&client);
    *places_ = places_in(client.Width(), client.Height());
    tips_wanted_ = true;
    const HWND focus = ::GetFocus();
    bool focus_hidden = false;
    HDWP moves = ::BeginDeferWindowPos(8);
    for (int i = 0; i < model_->count(); ++i) {
        const HWND embedded = living(static_cast<HWND>(model_->item(i).window));
        if (!embedded || !moves)
            continue;
        const CRect place = place_of(i);
        focus_hidden |= place.IsRectEmpty() && focus && (focus == embedded || ::IsChild(embedded, focus));
        // Hidden ones keep their size, by which they are given room again.
        const UINT flags = place.IsRectEmpty() ? SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE : SWP_SHOWWINDOW | SWP_NOSIZE;
        moves = ::DeferWindowPos(moves, embedded, nullptr, place.left, place.top, 0, 0,
                                 SWP_NOZORDER | SWP_NOACTIVATE | flags);
    }
    if (moves)
        ::EndDeferWindowPos(moves);
    Invalidate(FALSE);
    if (focus_hidden)
        give_focus_back(); // the last thing: who loses it may end the bar
}

void CWntToolBar::lay_out(int, int) {
    place_items();
}

CRect CWntToolBar::place_of(int index) const {
    if (index == wnt::tool_chevron)
        return wnt::rect_of(places_->chevron);
    if (index < 0 || index >= static_cast<int>(places_->items.size()))
        return CRect(0, 0, 0, 0);
    return wnt::rect_of(places_->items[static_cast<std::size_t>(index)]);
}

int CWntToolBar::GetItemRect(int index, RECT* place) const {
    const CRect found = this ? place_of(std::max(index, wnt::no_tool)) : CRect(0, 0, 0, 0);
    if (place)
        *place = found.IsRectEmpty() ? CRect(0, 0, 0, 0) : found;
    return !found.IsRectEmpty();
}

void CWntToolBar::invalidate_item(int index) {
    const CRect place = place_of(index);
    if (m_hWnd && !place.IsRectEmpty())
        InvalidateRect(place, FALSE);
}

// Shows what became of each item, of which most stay as they are.
void CWntToolBar::change_checks(const std::function<void()>& change) {
    std::vector<int> before;
    for (const wnt::ToolItem& item : model_->items())
        before.push_back(item.check);
    change();
    CRgn changed; // told at once
    changed.CreateRectRgn(0, 0, 0, 0);
    for (int i = 0; i < model_->count(); ++i) {
        CRgn one;
        if (model_->item(i).check != before[static_cast<std::size_t>(i)] && one.CreateRectRgnIndirect(place_of(i)))
            changed.CombineRgn(&changed, &one, RGN_OR);
    }
    if (m_hWnd)
        InvalidateRgn(&changed, FALSE);
}

void CWntToolBar::OnSettingChange(UINT flags, LPCTSTR section) {
    wnt::PaneWindow::OnSettingChange(flags, section);
    rescale(true);
    items_changed();
}

// -- The order that the user made -------------------------------------------------------------------------------------

int CWntToolBar::StoreOrder(const char* profile, const char* name) const {
    return this && named(profile, name) &&
           ::WritePrivateProfileStringA(name, "Order", model_->order().c_str(), profile);
}

int CWntToolBar::RestoreOrder(const char* profile, const char* name) {
    if (!this || !named(profile, name))
        return 0;
    std::vector<char> text(longest_order);
    const DWORD length = ::GetPrivateProfileStringA(name, "Order", "", text.data(), longest_order, profile);
    if (!model_->set_order({text.data(), length}))
        return 0;
    items_changed();
    return 1;
}
