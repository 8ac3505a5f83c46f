#pragma once

#include <memory>

#include "controls/pane_window.h"

namespace wnt {
class SashModel;
} // namespace wnt

/// Notifications of a sash, as WM_NOTIFY with a WntSashNotify.
enum WntSashCode : UINT {
    WNT_SASH_MOVING = 120, ///< before a move by the user: the host may change `position`, or answer 1 to refuse it
    WNT_SASH_MOVED = 121,  ///< after a move by the user, or when one that panes followed was given up
    WNT_SASH_FOLDED = 122, ///< after the user folded or unfolded a pane, by a move, too
};

struct WntSashNotify {
    NMHDR hdr;
    int position; ///< of the bar's upper or left edge, in pixels
    int folded;   ///< the folded pane, 1 or 2; 0: none
};

/// Two windows of the host's and a bar between them that the user drags.
///
///     CWntSash sash;
///     sash.Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 600, 400), this, 1);
///     tree.Create(..., &sash, 2);
///     list.Create(..., &sash, 3);
///     sash.SetPanes(&tree, &list);
///
/// Sizes and positions are pixels along the way the bar moves. Panes become children of the sash and stay the host's;
/// what their controls tell their parent reaches the parent of the sash. A sash may be a pane of another one. The Tab
/// key enters panes unless the sash has WS_TABSTOP and stops it itself. A new sash has an upright bar in the middle,
/// keeps the panes' shares, moves live and folds nothing. In a dialog template its class is "WntSash".
///
/// The bar is dragged with the left button; Escape, and a lost capture, take it back. A double click folds the pane
/// that SetFoldPane() names, and brings it back. With WS_TABSTOP a click gives it the focus: arrows move it by 8
/// pixels, with Control by 1, Home and End to its limits, Space and Return fold.
///
/// Operations answer 1, or 0 when they did nothing.
class ZOPWNT_API CWntSash : public wnt::PaneWindow {
public:
    CWntSash();
    ~CWntSash() override;

    /// Left and right, or upper and lower pane; null leaves that place empty. A pane that was there before stays a
    /// child of the sash and is hidden. 0 for a window that cannot be a pane: one that holds the sash, or is twice
    /// there.
    int SetPanes(CWnd* first, CWnd* second);
    /// 1: an upright bar between left and right; 0: a lying one between upper and lower.
    void SetUpright(int upright);
    /// The first pane's length. It is kept as it was asked for where the sash is too small for it at present.
    int SetPosition(int position);
    int GetPosition() const;
    /// The first pane's part of both, 0 to 1.
    int SetShare(double share);
    double GetShare() const;
    /// Whose length stays when the sash is resized: 1 the first pane's, 2 the second's, 0 both keep their shares.
    int SetKeptPane(int pane);
    /// Where both cannot have theirs, they share what there is, and the bar cannot be moved.
    int SetLeastSizes(int first, int second);
    /// From 1 to 64 pixels; 5 at 96 dots an inch unless set.
    int SetBarSize(int pixels);
    /// 1: panes follow the drag; 0: a line shows where the bar would go.
    void SetLiveDrag(int live);
    /// The pane that a double click folds, 1 or 2; 0: none. The other one, if it is folded, comes back.
    int SetFoldPane(int pane);
    /// Folds that pane, or brings it back.
    int Fold(int folded);
    /// The pane that is folded, or 0.
    int GetFolded() const;

    /// Writes position and folding into section `name` of a profile file. 0 when that fails.
    int StoreState(const char* profile, const char* name) const;
    /// Takes them from there, within what the present size allows. 0 when there is nothing.
    int RestoreState(const char* profile, const char* name);

protected:
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    afx_msg BOOL OnSetCursor(CWnd* window, UINT hit, UINT message);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* other);
    afx_msg void OnCancelMode();
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg void OnKillFocus(CWnd* next);
    afx_msg UINT OnGetDlgCode();
    DECLARE_MESSAGE_MAP()

private:
    struct Drag;

    bool build() override;
    void lay_out(int cx, int cy) override;

    int along(CPoint point) const { return upright_ ? point.x : point.y; }
    int length() const;
    CRect bar_at(int position) const;
    CRect bar() const { return bar_at(GetPosition()); }
    void place_panes();
    bool keep_focus();
    /// Asks the host; false when it refused, or when nothing is left to go on with.
    bool allowed(int& position);
    bool tell(UINT code);
    void tell_moved(int folded_before);
    void move_by_user(int position);
    void fold_by_user();
    void drag_to(int position);
    void end_drag(bool keep);
    void draw_track(int position);

    std::unique_ptr<wnt::SashModel> model_;
    HWND panes_[2] = {};
    bool upright_ = true;
    bool live_ = true;
    bool own_bar_ = false; // its thickness was set
    int fold_pane_ = 0;
    std::unique_ptr<Drag> drag_;
};
