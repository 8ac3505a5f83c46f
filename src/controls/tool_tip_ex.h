#pragma once

#include <afxcmn.h>

#include <memory>
#include <vector>

#include "zopwnt_api.h"

namespace wnt {
struct TipLayout;
} // namespace wnt

/// What a tip shows. Everything is copied but the icon, which stays the host's and is kept as long as the tip may show.
struct WntTip {
    CString title;              ///< bold, above the text
    CString text;               ///< lines end with "\n"; long ones are broken at blanks
    HICON icon = nullptr;       ///< shown in its own size, at most 64 pixels wide and high
    COLORREF colour = CLR_NONE; ///< of a square before the first line

    bool IsEmpty() const { return title.IsEmpty() && text.IsEmpty() && !icon && colour == CLR_NONE; }
};

/// WM_NOTIFY with a WntTipNotify, to the window that has the tool, just before the tip of a tool shows that was added
/// to be asked for: the host fills `tip` in. A tip that is left empty does not show.
inline constexpr UINT WNT_TIP_NEEDED = 150;

struct WntTipNotify {
    NMHDR hdr; ///< idFrom: the tool's id, or its window
    WntTip tip;
};

/// A tooltip of several lines with a bold title, an icon and a sample of a colour.
///
///     CToolTipCtrlEx tips;
///     tips.Create(this);
///     tips.AddTip(&button, {"Save", "Writes the document to its file.\nCtrl+S"});
///     tips.AddTool(this, LPSTR_TEXTCALLBACK, CRect(0, 0, 40, 40), 7); // asks when it shows
///     ...
///     BOOL View::PreTranslateMessage(MSG* message) {
///         tips.RelayEvent(message);
///         return CWnd::PreTranslateMessage(message);
///     }
///
/// A CToolTipCtrl's members work, save that titles and margins of its own (TTM_SETTITLE, TTM_SETMARGIN) are not shown
/// and what enumerates or hits tools tells no texts. Tools are windows or, with an id, rectangles of one in its client
/// coordinates, which move with it; delays, greatest width and colours are set by its members. Tools that were added
/// with LPSTR_TEXTCALLBACK are asked for at the moment of showing: TTN_NEEDTEXT, then WNT_TIP_NEEDED with what that
/// answered. Without SetMaxTipWidth() lines are up to 320 pixels wide at 96 dots an inch; its fonts follow the main
/// frame's scaling. Balloons are plain tips here. The window's text is what is shown.
///
/// Operations answer 1, or 0 when they did nothing.
class ZOPWNT_API CToolTipCtrlEx : public CToolTipCtrl {
public:
    CToolTipCtrlEx();
    ~CToolTipCtrlEx() override;
    CToolTipCtrlEx(const CToolTipCtrlEx&) = delete;
    CToolTipCtrlEx& operator=(const CToolTipCtrlEx&) = delete;

    /// A window as a tool, or with an id other than 0 a rectangle of it.
    int AddTip(CWnd* window, const WntTip& tip, LPCRECT part = nullptr, UINT_PTR id = 0);
    /// What a tool that there is shows from now on, also while it shows. A tool that was asked for no longer is.
    int SetTip(CWnd* window, const WntTip& tip, UINT_PTR id = 0);
    /// Shows a tool's tip below it now, for users of the keyboard: until a key or button is pressed (which RelayEvent()
    /// tells), the time is over, or another one shows.
    int ShowTip(CWnd* window, UINT_PTR id = 0);
    /// Shows a tip beside a point of the screen, or moves and changes the one that is there: once a mouse message for
    /// one that follows the pointer. It never narrows, so that changing numbers leave its edges alone. No other tip
    /// shows until HideTip().
    int TrackTip(const WntTip& tip, CPoint screen);
    void HideTip();
    /// What shows; 0 when nothing does. Null only asks.
    int GetShownTip(WntTip* tip) const;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg LRESULT OnAddTool(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnDelTool(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetTool(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSetTool(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnUpdateText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetTipText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnRelay(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnPop(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnTrackActivate(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnTrackPosition(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnWindowText(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnWindowTextLength(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnShowSoon(WPARAM wParam, LPARAM lParam);
    afx_msg void OnWindowPosChanging(WINDOWPOS* position);
    afx_msg void OnSettingChange(UINT flags, LPCTSTR section);
    afx_msg void OnTimer(UINT_PTR timer);
    afx_msg void OnDestroy();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    enum class Shown { nothing, by_pointer, by_keyboard, tracked };
    enum class Outcome { shown, empty, destroyed };
    struct Tool;
    struct Fonts;

    Tool* find(const TOOLINFO& info);
    bool is_current(const Tool& tool);
    void refresh(const Tool& tool);
    Outcome show_keyed();
    /// Asks the tool's window; false when nothing is left to go on with.
    bool ask(const Tool& tool, WntTip& tip);
    void let_clicks_through();
    bool present(const WntTip& tip, const CRect& around, Shown how, bool centred = false);
    Outcome show_tool(const TOOLINFO& info, Shown how);
    CRect around_tool(const TOOLINFO& info) const;
    CRect around_pointer(CPoint at);
    int widest();
    void track_tool();
    Fonts& fonts();

    std::vector<Tool> tools_;
    std::unique_ptr<Fonts> fonts_;
    std::unique_ptr<wnt::TipLayout> layout_;
    WntTip tip_;
    Shown shown_ = Shown::nothing;
    bool presenting_ = false;
    CSize least_;           // of a tracked tip
    TOOLINFO keyed_ = {};   // the one that was shown by the keyboard last
    TOOLINFO tracked_ = {}; // by the framework's messages; without a window: none
    CPoint track_at_;
};
