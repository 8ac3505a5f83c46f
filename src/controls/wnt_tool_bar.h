#pragma once

#include <functional>
#include <memory>

#include "controls/pane_window.h"
#include "controls/tool_tip_ex.h"

namespace wnt {
class ControlFont;
class PaintPass;
class ToolBarModel;
class ToolPictures;
struct PixelRect;
struct ToolContent;
struct ToolLook;
struct ToolPlaces;
} // namespace wnt

enum WntToolKind {
    WNT_TOOL_PUSH,
    WNT_TOOL_CHECK,
    WNT_TOOL_RADIO,     ///< one of those of its group
    WNT_TOOL_DROPDOWN,  ///< opens a menu
    WNT_TOOL_SPLIT,     ///< a push item with an arrow beside it that opens a menu
    WNT_TOOL_SEPARATOR, ///< a line
    WNT_TOOL_LABEL,     ///< a text
    WNT_TOOL_STRETCH,   ///< takes the room that the others leave
    WNT_TOOL_WINDOW,    ///< a window of the host's
};

enum WntToolText { WNT_TOOL_TEXT_NONE, WNT_TOOL_TEXT_BESIDE, WNT_TOOL_TEXT_BELOW };

/// Describes an item of a toolbar. Texts are copied; handles and windows stay the host's, and must live as long as the
/// item.
class ZOPWNT_API CWntToolItem {
public:
    explicit CWntToolItem(UINT command = 0, const char* label = "", WntToolKind of_kind = WNT_TOOL_PUSH)
        : id(command), text(label), kind(of_kind) {}

    UINT id;               ///< the command, 1 to 0xFFFF
    CString text;          ///< at most 100 characters; the tip's title, too
    WntToolKind kind;      ///< an item keeps its kind
    CString tip;           ///< further lines of the tip
    int picture = -1;      ///< its number in the bar's pictures; -1: none
    HICON icon = nullptr;  ///< shown instead, where the bar's pictures are small ones
    HICON large = nullptr; ///< and where they are large
    int group = 0;         ///< of WNT_TOOL_RADIO; those of scripts are above 0xFFFF
    HMENU menu = nullptr;  ///< a popup menu
    CWnd* window = nullptr;
    bool enabled = true;
    int check = 0; ///< 1: checked, 2: neither
};

/// Notifications of a toolbar, as WM_NOTIFY with a WntToolNotify.
enum WntToolCode : UINT {
    WNT_TOOL_DROPPING = 160, ///< before a menu opens, also as part of the chevron's: the host may set `menu`, or open
                             ///< one itself and answer 1
    WNT_TOOL_MOVING = 161,   ///< before the user's drag moves an item: the host may change `to`, or answer 1 to refuse
    WNT_TOOL_MOVED = 162,    ///< after it
};

struct WntToolNotify {
    NMHDR hdr;
    UINT id;    ///< the item's command
    int index;  ///< its place now
    int to;     ///< the place of the item before which it goes
    HMENU menu; ///< what opens; stays the host's
    RECT place; ///< of the item, on the screen
};

/// A toolbar.
///
///     CWntToolBar bar;
///     bar.Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 600, 28), this, 1);
///     bar.SetPictures(small_strip, large_strip, RGB(255, 0, 255));
///     CWntToolItem save(ID_FILE_SAVE, "Save");
///     save.picture = 1;
///     bar.AddItem(save);
///     bar.LoadFromFile("tools.dat"); // or all that by a script
///
/// A press sends its command to the owner, as WM_COMMAND with the bar as its control; where the bar is a pane of the
/// library's, to the one that holds that. States come from the owner's update handlers (CCmdUI) whenever the program
/// is idle and before a menu opens; WM_IDLEUPDATECMDUI asks for it elsewhere, as in dialogs. Items without a command
/// handler are then disabled, unless SetAutoDisable(0). Without update handlers, check items check themselves.
///
/// Sizes follow the main frame's scaling. The host gives the bar its place: GetThickness() tells how high (or, of an
/// upright one, how wide) it wants to be. In a dialog template its class is "WntToolBar" and its text may name a
/// script.
///
/// With WS_TABSTOP it takes the focus by Tab, by FilterKey() with F6. Arrows, Home and End go from item to item, Space
/// and Return press, Alt+Down opens a menu, Escape and F6 give the focus back.
///
/// Operations answer 1, or 0 when they did nothing. Unknown script keys and bad values are ignored.
class ZOPWNT_API CWntToolBar : public wnt::PaneWindow {
public:
    CWntToolBar();
    ~CWntToolBar() override;

    /// mode 1 begins a script and takes all items away, 0 applies one line, 2 ends the script and repaints. Always 0.
    unsigned char LoadLine(const char* line, int mode);
    /// Reads a whole script; quotes around the path are taken off. 1, or 0 when there is no such file.
    unsigned char LoadFromFile(const char* path);

    /// At most 1000. 0 for a command out of range, or a window that cannot be a child.
    int AddItem(const CWntToolItem& item);
    /// Before the one at `index`; their number: behind all.
    int InsertItem(int index, const CWntToolItem& item);
    /// An embedded window stays a child of the bar and is hidden.
    int RemoveItem(int index);
    int RemoveAll();
    int GetItemCount() const;
    int GetItem(int index, CWntToolItem* item) const;
    /// Everything but its kind.
    int SetItem(int index, const CWntToolItem& item);
    /// The place of the first item with this command, or -1.
    int FindItem(UINT id) const;
    int EnableItem(UINT id, int enabled);
    /// 1: checked, which no other of its group stays then; 0: not; 2: neither.
    int CheckItem(UINT id, int check);
    /// 0, and an empty rectangle, for one that is not shown.
    int GetItemRect(int index, RECT* place) const;
    /// Adds an entry to the own menu of the last item, a drop-down or split one; id 0: a separator.
    int AddMenuEntry(UINT id, const char* text);

    /// Square pictures side by side in one bitmap each, as high as they are; null: none in that size. They are copied.
    /// The one whose size comes nearest to 16 pixels at 96 dots an inch is shown. Where no pixel has an opacity, those
    /// of the key colour are transparent; CLR_NONE: of the colour at the upper left.
    int SetPictures(HBITMAP small_strip, HBITMAP large_strip, COLORREF key = CLR_NONE);
    /// A WntToolText; items without a picture show their text in any case.
    int SetTextPlace(int place);
    /// 1: items stand one below the other.
    void SetUpright(int upright);
    /// 1: what does not fit goes to further lines; 0: into a menu behind a chevron.
    void SetWrapping(int wrapping);
    /// 1: the user may drag items to other places.
    void SetDragging(int dragging);
    void SetAutoDisable(int disable);
    /// The keys that tips show, and which stay the host's; null: those of the frame that holds the bar.
    void SetAccelerators(HACCEL keys);
    /// What the bar needs across, in pixels, when it is so long.
    int GetThickness(int length) const;
    int GetScale() const;
    CToolTipCtrlEx* GetTips();

    /// As if the user pressed it: sends the command of an enabled item.
    int PressItem(UINT id);
    /// Asks the update handlers of the owner.
    int UpdateItems();
    /// F6 gives the bar the focus, or gives it back: for the PreTranslateMessage() of who holds it. 1 when it was that.
    int FilterKey(const MSG* message);

    /// Writes the order of the items into section `name` of a profile file. 0 when that fails.
    int StoreOrder(const char* profile, const char* name) const;
    /// Takes it from there; items that it does not know stay behind their neighbours. 0 when there is none.
    int RestoreOrder(const char* profile, const char* name);

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;

    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    afx_msg void OnSettingChange(UINT flags, LPCTSTR section);
    afx_msg void OnSysColorChange();
    afx_msg void OnEnable(BOOL enabled);
    afx_msg void OnDestroy();
    afx_msg LRESULT OnIdleUpdate(WPARAM wParam, LPARAM lParam);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg LRESULT OnMouseLeave(WPARAM wParam, LPARAM lParam);
    afx_msg void OnCaptureChanged(CWnd* other);
    afx_msg void OnCancelMode();
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnSysKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg void OnKillFocus(CWnd* next);
    afx_msg LRESULT OnDialogCode(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    class ItemState;
    class PopupMenu;
    struct Drag;
    struct Painting;

    bool build() override;
    void leave() override;
    void take_text(const CString& text) override;
    void lay_out(int cx, int cy) override;

    // Items and layout.
    void rescale(bool settings_changed);
    void load_named_pictures();
    void items_changed();
    void find_windows();
    void place_items();
    wnt::ToolLook look() const;
    wnt::ToolContent content_of(int index) const;
    wnt::ToolPlaces places_in(int width, int height) const;
    CRect place_of(int index) const; ///< of the chevron for `chevron`
    void invalidate_item(int index);
    void change_checks(const std::function<void()>& change);
    void sync_tips();
    bool fill_tip(const NMHDR& header, WntTip& tip);
    CString shortcut_of(UINT id) const;

    // Painting.
    void paint_item(const Painting& all, int index, const CRect& place);
    void paint_ground(wnt::PaintPass& pass, int index, const CRect& place, const CRect& arrow) const;
    void paint_separator(wnt::PaintPass& pass, CRect place) const;
    void paint_chevron(wnt::PaintPass& pass, const CRect& place) const;

    // Commands and menus. Where they answer false, the host destroyed the bar.
    CWnd* target() const;
    CWnd* handlers() const;
    bool update_items(bool disable);
    bool update_menu(HMENU menu, int depth);
    bool send_command(UINT id);
    bool press(int index);
    bool ask_menu(int added, const CRect& place, PopupMenu& own, HMENU& menu);
    bool drop_menu(int index);
    bool add_hidden(PopupMenu& all, int added, const CRect& place);
    bool open_overflow();
    UINT track_menu(HMENU menu, const CRect& place, HWND owner);
    bool tell(UINT code, WntToolNotify& told, LRESULT& answer);

    // Pointer and keyboard.
    bool is_usable(int index) const;
    int hit(CPoint point) const;
    bool opens_menu(int index, CPoint point) const;
    void set_hot(int index);
    std::vector<int> focus_stops() const;
    void set_focused(int index);
    void step_focus(int step);
    bool activate(int index, bool menu);
    void open_focused();
    bool give_focus(HWND to);
    void give_focus_back();
    bool filter_embedded(const MSG& message);
    void start_drag(CPoint point);
    void drag_to(CPoint point);
    CRect mark_at(int index) const;
    void end_press(CPoint point, bool keep);
    void drop_item(int from, int to);

    std::unique_ptr<wnt::ToolBarModel> model_;
    std::unique_ptr<wnt::ToolPlaces> places_;
    std::unique_ptr<wnt::ToolPictures> pictures_;
    std::unique_ptr<wnt::ControlFont> font_;
    std::unique_ptr<CToolTipCtrlEx> tips_;
    HACCEL keys_ = nullptr;
    int scale_ = 100;
    int picture_size_ = 16;
    int tip_count_ = 0;
    bool auto_disable_ = true;
    bool tips_wanted_ = false; // their tools have to be made anew
    int hot_ = -1;             // -1: none
    int pressed_ = -1;
    bool pressed_inside_ = false;
    CPoint pressed_at_;
    int focused_ = -1;
    HWND focus_before_ = nullptr;
    std::unique_ptr<Drag> drag_;
};
