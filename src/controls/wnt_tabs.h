#pragma once

#include <memory>

#include "controls/pane_window.h"

namespace wnt {
class TabsModel;
class TabsStrip;
} // namespace wnt

/// Notifications of tabs, as WM_NOTIFY with a WntTabsNotify.
enum WntTabsCode : UINT {
    WNT_TABS_SELECTING = 140, ///< before the user selects a tab: the host may answer 1 to refuse it
    WNT_TABS_SELECTED = 141,  ///< after that; `other` was selected before
    WNT_TABS_CLOSING = 142,   ///< before the user closes a tab: the host may answer 1 to keep it
    WNT_TABS_CLOSED = 143,    ///< after that; `tab` is where it was, `other` is selected now
    WNT_TABS_ORDERING = 144,  ///< before the user moves a tab to position `other`: the host may answer 1 to refuse it
    WNT_TABS_ORDERED = 145,   ///< after that; `tab` is where it is now, `other` where it was
};

struct WntTabsNotify {
    NMHDR hdr;
    int tab;
    int other; ///< -1: none
    HWND page; ///< of the tab; null: it has none
};

/// Pages one behind the other, and a strip of tabs at one of the four sides that brings them to the front.
///
///     CWntTabs tabs;
///     tabs.Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 400, 300), this, 1);
///     curve.Create(..., &tabs, 2);
///     table.Create(..., &tabs, 3);
///     tabs.AddTab("&Curve", &curve);
///     tabs.AddTab("&Table", &table);
///
/// Tabs are counted from 0. Pages become children of the tabs and stay the host's; what their controls tell their
/// parent reaches the parent of the tabs. Only the page of the selected tab is shown; the window of a page may go at
/// any time, its tab stays. A tab without a page shows the ground. In a dialog template the class is "WntTabs" and
/// the text the name of a script.
///
/// Ctrl+Tab and Ctrl+PageDown select the next tab, with Shift and Ctrl+PageUp the one before, Alt with the character
/// behind an `&` its tab, while the focus is within tabs or page. With WS_TABSTOP a click gives the strip the focus:
/// arrows along it, Home and End select, Delete closes a tab that has a close mark.
///
/// Operations answer 1, or 0 when they did nothing, unless said otherwise.
class ZOPWNT_API CWntTabs : public wnt::PaneWindow {
public:
    enum Side { at_top, at_bottom, at_left, at_right };
    enum Overflow { by_arrows, by_menu };

    CWntTabs();
    ~CWntTabs() override;

    /// mode 1 begins a script, 0 applies one line, 2 ends the script and repaints. Always 0. A script names
    /// tabs from the first one on, which keep their pages and icons, and removes those that it does not name.
    unsigned char LoadLine(const char* line, int mode);
    /// Reads a whole script; quotes around the path are taken off. 1, or 0 when there is no such file.
    unsigned char LoadFromFile(const char* path);

    /// Behind the others; at most 1000. The first one is selected. 0 for a page that cannot be one: it holds the tabs
    /// or is there already. Of the text 99 characters count, an `&` before a character makes that its access key.
    int AddTab(const char* text, CWnd* page);
    /// Before the tab that is there, or behind the last one.
    int InsertTab(int tab, const char* text, CWnd* page);
    /// Its page is hidden.
    int RemoveTab(int tab);
    int MoveTab(int from, int to);
    int GetTabCount() const;

    /// 0 for a disabled tab.
    int Select(int tab);
    /// -1: none, since there is no enabled tab.
    int GetSelected() const;

    /// Null takes it away; a page that was there before is hidden.
    int SetPage(int tab, CWnd* page);
    /// Null where there is none, or its window is gone.
    CWnd* GetPage(int tab) const;
    /// The tab with this page, or -1.
    int FindPage(const CWnd* page) const;

    int SetTabText(int tab, const char* text);
    CString GetTabText(int tab) const;
    /// Shown while the pointer rests on the tab; at most 255 characters.
    int SetTabTip(int tab, const char* tip);
    /// It stays the host's; null: none.
    int SetTabIcon(int tab, HICON icon);
    /// 1: it has a close mark.
    int SetClosable(int tab, int closable);
    /// A selected tab that is disabled gives the selection to the nearest enabled one.
    int EnableTab(int tab, int enabled);

    /// One of Side.
    int SetSide(int side);
    /// What happens with tabs that do not fit: one of Overflow.
    int SetOverflow(int overflow);
    /// 1: the user may change the order, by dragging, and on the focused strip with Control and arrows.
    void SetMovable(int movable);
    /// Scrolls the strip so that the tab is seen.
    int ShowTab(int tab);

    /// In client coordinates: where the pages lie; empty in a window that is too small.
    CRect GetPageRect() const;
    /// Where a tab lies; empty for one that is not seen.
    CRect GetTabRect(int tab) const;
    /// The percentage of the sizes at 96 dots an inch that is in force.
    int GetScale() const;

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    bool build() override;
    void leave() override;
    void lay_out(int cx, int cy) override;

    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg void OnSettingChange(UINT flags, LPCTSTR section);
    DECLARE_MESSAGE_MAP()

private:
    friend class wnt::TabsStrip;

    void take_text(const CString& text) override;
    void end_script();
    HWND page_window(int tab) const;
    bool can_be_page(CWnd* page);
    /// After tabs, texts or sizes changed: places everything; the tab is to be seen (-1: none).
    void arrange(int wanted);
    void changed() { arrange(GetSelected()); }
    void show_page();
    void retire(HWND page);
    void focus_into(HWND page);
    bool translate_key(const MSG& message);

    // What the user does, told before and after. False when nothing is left to go on with.
    bool tell(UINT code, int tab, int other, HWND page, LRESULT* refused = nullptr);
    enum class Answer { allowed, refused, destroyed };
    /// Before it; `tab` is where that tab is afterwards.
    Answer ask(UINT code, int& tab, int other);
    bool select_by_user(int tab);
    bool close_by_user(int tab);
    bool move_by_user(int from, int to);

    std::unique_ptr<wnt::TabsModel> model_;
    std::unique_ptr<wnt::TabsStrip> strip_;
};
