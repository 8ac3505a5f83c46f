#include <algorithm>
#include <utility>
#include <vector>

#include "controls/tool_bar_drag.h"
#include "controls/tool_bar_model.h"
#include "controls/tool_bar_parts.h"
#include "controls/wnt_tool_bar.h"
#include "widgets/painting/surface_owner.h"

// What presses do: commands, menus, and what the owner says about them.

namespace {

constexpr UINT first_hidden = 0x10000; // in the chevron's menu: beyond all commands

// Items have no access keys: a menu shows an & only where there are two.
CString menu_text(const wnt::ToolItem& item) {
    CString text = item.text.empty() ? CString(item.tip.c_str()).SpanExcluding("\r\n") : CString(item.text.c_str());
    if (text.IsEmpty())
        text.Format("%d", item.id);
    text.Replace("&", "&&");
    return text;
}

UINT flags_of(const wnt::ToolItem& item) {
    return (item.enabled ? 0u : UINT{MF_GRAYED}) | (item.check == wnt::checked ? UINT{MF_CHECKED} : 0u);
}

} // namespace

/// A popup menu that may hold some of the host's.
class CWntToolBar::PopupMenu {
public:
    PopupMenu() : menu_(::CreatePopupMenu()) {}
    ~PopupMenu() {
        for (int i = ::GetMenuItemCount(menu_) - 1; i >= 0; --i)
            if (std::find(borrowed_.begin(), borrowed_.end(), ::GetSubMenu(menu_, i)) != borrowed_.end())
                ::RemoveMenu(menu_, static_cast<UINT>(i), MF_BYPOSITION);
        ::DestroyMenu(menu_);
    }
    PopupMenu(const PopupMenu&) = delete;
    PopupMenu& operator=(const PopupMenu&) = delete;

    HMENU handle() const { return menu_; }
    void add(UINT id, const CString& text, UINT flags = 0) { ::AppendMenuA(menu_, MF_STRING | flags, id, text); }
    void add_separator() {
        if (::GetMenuItemCount(menu_) > 0)
            ::AppendMenuA(menu_, MF_SEPARATOR, 0, nullptr);
    }
    void add_entries(const std::vector<wnt::ToolMenuEntry>& entries) {
        for (const wnt::ToolMenuEntry& entry : entries)
            if (entry.id > 0)
                add(static_cast<UINT>(entry.id), entry.text.c_str());
            else
                add_separator();
    }
    void borrow(HMENU menu, const CString& text, UINT flags) {
        borrowed_.push_back(menu);
        ::AppendMenuA(menu_, MF_POPUP | flags, reinterpret_cast<UINT_PTR>(menu), text);
    }
    void take(PopupMenu& popup, const CString& text, UINT flags) {
        ::AppendMenuA(menu_, MF_POPUP | flags, reinterpret_cast<UINT_PTR>(std::exchange(popup.menu_, nullptr)), text);
    }

private:
    HMENU menu_;
    std::vector<HMENU> borrowed_;
};

/// Tells the owner's handlers about one item, and the item what they say.
class CWntToolBar::ItemState : public CCmdUI {
public:
    ItemState(CWntToolBar& bar, int index) : bar_(bar), bar_there_(bar) {
        m_nIndex = static_cast<UINT>(index);
        m_nIndexMax = static_cast<UINT>(bar.model_->count());
        m_nID = static_cast<UINT>(bar.model_->item(index).id);
        m_pOther = &bar;
    }
    void Enable(BOOL on) override {
        m_bEnableChanged = TRUE;
        if (is_there() && item().enabled != (on != FALSE)) {
            item().enabled = on != FALSE;
            bar_.invalidate_item(index());
        }
    }
    // The owner knows what goes together: no group is looked at.
    void SetCheck(int check) override {
        check = std::clamp<int>(check, wnt::unchecked, wnt::undecided);
        if (is_there() && item().check != check) {
            item().check = check;
            bar_.invalidate_item(index());
        }
    }
    void SetRadio(BOOL on) override { SetCheck(on ? wnt::checked : wnt::unchecked); }
    void SetText(LPCTSTR) override {} // which is a menu's, with its keys

private:
    int index() const { return static_cast<int>(m_nIndex); }
    wnt::ToolItem& item() { return bar_.model_->item(index()); }
    // A handler may have changed the items, or ended the bar.
    bool is_there() { return bar_there_ && bar_.model_->has(index()) && item().id == static_cast<int>(m_nID); }

    CWntToolBar& bar_;
    const wnt::StillThere bar_there_;
};

// Panes of the library's only hand on what they are told.
CWnd* CWntToolBar::target() const {
    CWnd* owner = GetOwner();
    while (dynamic_cast<wnt::PaneWindow*>(owner))
        owner = owner->GetParent();
    return owner;
}

// A window of another kind has no handlers: null. Asked anew after each of them, which may end it.
CWnd* CWntToolBar::handlers() const {
    CWnd* const owner = target();
    return owner && CWnd::FromHandlePermanent(owner->m_hWnd) == owner ? owner : nullptr;
}

bool CWntToolBar::update_items(bool disable) {
    const wnt::StillThere self(*this);
    for (int i = 0; i < model_->count(); ++i) {
        const wnt::ToolKind kind = model_->item(i).kind;
        if (!wnt::is_button(kind))
            continue;
        CWnd* const owner = handlers();
        if (!owner)
            break;
        ItemState(*this, i).DoUpdate(owner, disable && kind != wnt::ToolKind::drop_down);
        if (!self)
            return false;
    }
    return true;
}

int CWntToolBar::UpdateItems() {
    if (!this || !m_hWnd)
        return 0;
    update_items(auto_disable_);
    return 1;
}

LRESULT CWntToolBar::OnIdleUpdate(WPARAM wParam, LPARAM) {
    if (GetStyle() & WS_VISIBLE)
        update_items(wParam && auto_disable_);
    return 0;
}

bool CWntToolBar::send_command(UINT id) {
    const wnt::StillThere self(*this);
    if (CWnd* const owner = target())
        owner->SendMessage(WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(m_hWnd));
    return static_cast<bool>(self);
}

bool CWntToolBar::press(int index) {
    change_checks([=, this] { model_->press(index); });
    return send_command(static_cast<UINT>(model_->item(index).id));
}

int CWntToolBar::PressItem(UINT id) {
    const int index = FindItem(id);
    if (index < 0 || !m_hWnd || !wnt::is_button(model_->item(index).kind) || !model_->item(index).enabled)
        return 0;
    press(index);
    return 1;
}

bool CWntToolBar::tell(UINT code, WntToolNotify& told, LRESULT& answer) {
    bool alive = true;
    answer = wnt::notify_parent(*this, told.hdr, code, alive);
    return alive;
}

// A frame does that itself for a menu of its own.
bool CWntToolBar::update_menu(HMENU menu, int depth) {
    constexpr int deepest = 8;
    const wnt::StillThere self(*this);
    if (depth > deepest)
        return true;
    CCmdUI state;
    state.m_pMenu = CMenu::FromHandle(menu);
    state.m_nIndexMax = static_cast<UINT>(std::max(::GetMenuItemCount(menu), 0));
    for (; state.m_nIndex < state.m_nIndexMax; ++state.m_nIndex) {
        const int position = static_cast<int>(state.m_nIndex);
        if (const HMENU popup = ::GetSubMenu(menu, position)) {
            if (!update_menu(popup, depth + 1))
                return false;
            continue;
        }
        state.m_nID = ::GetMenuItemID(menu, position);
        if (state.m_nID == 0 || state.m_nID >= first_hidden)
            continue;
        CWnd* const owner = handlers();
        if (!owner)
            break;
        state.DoUpdate(owner, auto_disable_);
        if (!self)
            return false;
    }
    return true;
}

// The command that was chosen; 0: none. Nothing is left when the bar was destroyed meanwhile.
UINT CWntToolBar::track_menu(HMENU menu, const CRect& place, HWND owner) {
    const wnt::StillThere self(*this);
    if (!update_menu(menu, 0) || !::IsWindow(owner))
        return 0;
    TPMPARAMS around = {};
    around.cbSize = sizeof around;
    around.rcExclude = place;
    const bool upright = model_->upright;
    const UINT flags = TPM_LEFTALIGN | TPM_TOPALIGN | TPM_LEFTBUTTON | TPM_RETURNCMD | (upright ? 0 : TPM_VERTICAL);
    UpdateWindow();
    const UINT chosen = static_cast<UINT>(::TrackPopupMenuEx(menu, flags, upright ? place.right : place.left,
                                                             upright ? place.top : place.bottom, owner, &around));
    if (!self)
        return 0;
    // The click on the item that closes its menu does not open it again.
    MSG click;
    CPoint pointer;
    ::GetCursorPos(&pointer);
    if (place.PtInRect(pointer))
        ::PeekMessageA(&click, m_hWnd, WM_LBUTTONDOWN, WM_LBUTTONDOWN, PM_REMOVE);
    return chosen;
}

// The menu of an item: what the host says, the item's own (put into `own`), or null when the host refuses or shows one
// itself. False when nothing is left.
bool CWntToolBar::ask_menu(int added, const CRect& place, PopupMenu& own, HMENU& menu) {
    const int index = model_->position_of(added);
    const wnt::ToolItem& item = model_->item(index);
    WntToolNotify told = {{}, static_cast<UINT>(item.id), index, index, static_cast<HMENU>(item.host_menu), place};
    LRESULT answer = 0;
    menu = nullptr;
    if (!tell(WNT_TOOL_DROPPING, told, answer))
        return false;
    const int now = model_->position_of(added);
    if (answer || now < 0)
        return true;
    menu = told.menu;
    if (!menu || !::IsMenu(menu)) {
        own.add_entries(model_->item(now).menu);
        menu = own.handle();
    }
    return true;
}

bool CWntToolBar::drop_menu(int index) {
    const wnt::StillThere self(*this);
    CRect place = place_of(index);
    if (place.IsRectEmpty())
        place = place_of(wnt::tool_chevron); // behind which it is
    ClientToScreen(&place);
    const int added = model_->item(index).added;
    PopupMenu own;
    HMENU menu = nullptr;
    if (!ask_menu(added, place, own, menu))
        return false;
    CWnd* const owner = target();
    if (!owner || !menu || ::GetMenuItemCount(menu) < 1)
        return true;
    pressed_ = model_->position_of(added);
    pressed_inside_ = true;
    invalidate_item(pressed_);
    const UINT chosen = track_menu(menu, place, owner->m_hWnd);
    if (!self)
        return false;
    pressed_ = wnt::no_tool;
    invalidate_item(model_->position_of(added));
    return !chosen || send_command(chosen);
}

// What is behind the chevron. Only menus that are known beforehand become submenus: another one the host may open
// itself.
bool CWntToolBar::add_hidden(PopupMenu& all, int added, const CRect& place) {
    int index = model_->position_of(added);
    if (index < 0 || !place_of(index).IsRectEmpty())
        return true;
    const wnt::ToolKind kind = model_->item(index).kind;
    if (kind == wnt::ToolKind::separator)
        all.add_separator();
    if (!wnt::is_button(kind))
        return true;
    PopupMenu own;
    HMENU menu = nullptr;
    const wnt::ToolItem& asked = model_->item(index);
    const bool known = ::IsMenu(static_cast<HMENU>(asked.host_menu)) || !asked.menu.empty();
    if (wnt::has_menu(kind) && known) {
        if (!ask_menu(added, place, own, menu))
            return false;
        index = model_->position_of(added);
        if (index < 0)
            return true;
    }
    const wnt::ToolItem& item = model_->item(index);
    const CString text = menu_text(item);
    const CString keys = shortcut_of(static_cast<UINT>(item.id));
    if (kind != wnt::ToolKind::drop_down || !menu)
        all.add(first_hidden + static_cast<UINT>(added), keys.IsEmpty() ? text : text + "\t" + keys, flags_of(item));
    if (menu && menu == own.handle())
        all.take(own, text, flags_of(item));
    else if (menu)
        all.borrow(menu, text, flags_of(item));
    return true;
}

bool CWntToolBar::open_overflow() {
    const wnt::StillThere self(*this);
    if (!update_items(auto_disable_))
        return false;
    CRect place = place_of(wnt::tool_chevron);
    ClientToScreen(&place);
    PopupMenu menu;
    std::vector<int> items;
    for (const wnt::ToolItem& item : model_->items())
        items.push_back(item.added);
    for (const int added : items)
        if (!add_hidden(menu, added, place))
            return false;
    if (::GetMenuItemCount(menu.handle()) < 1)
        return true;
    pressed_ = wnt::tool_chevron;
    pressed_inside_ = true;
    invalidate_item(pressed_);
    const UINT chosen = track_menu(menu.handle(), place, m_hWnd);
    if (!self)
        return false;
    pressed_ = wnt::no_tool;
    invalidate_item(wnt::tool_chevron);
    if (chosen < first_hidden)
        return !chosen || send_command(chosen);
    const int index = model_->position_of(static_cast<int>(chosen - first_hidden));
    if (index < 0 || !model_->item(index).enabled)
        return true;
    return model_->item(index).kind == wnt::ToolKind::drop_down ? drop_menu(index) : press(index);
}
