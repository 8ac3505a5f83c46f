#pragma once

#include "controls/wnt_frame.h"
#include "controls/wnt_scroll_bar.h"

/// Notification of a folding frame, as WM_NOTIFY with a WntFrameNotify: after the user folded or unfolded it.
inline constexpr UINT WNT_FRAME_FOLDED = 130;

struct WntFrameNotify {
    NMHDR hdr;
    int folded; ///< 1: only the header is left
    int height; ///< of the window now, in pixels
};

/// A frame with a header that folds it, and a content that scrolls where it does not fit.
///
///     CWntFrameEx panel;
///     panel.Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 240, 300), this, 1);
///     panel.SetTitle("Limits");
///     edit.Create(..., panel.GetContent(), 2);
///     panel.SetContentSize(220, 400);
///
/// Children have GetContent() as their parent; anchors count from the content, which is as large as the room below the
/// header, and at least as large as SetContentSize() says. The title stands in the header, whatever its alignment. A
/// click on the header folds and unfolds; with WS_TABSTOP it takes the focus, Space and Return do, too, and arrows,
/// Page Up and Down, Home and End scroll. The Tab key enters the content unless the frame has WS_TABSTOP. Folding
/// changes the height of the window: who placed it there is told, and may move what lies below. In a dialog template
/// its class is "WntFrameEx".
class ZOPWNT_API CWntFrameEx : public CWntFrame {
public:
    CWntFrameEx();
    ~CWntFrameEx() override;

    /// The parent for the children; null without a window.
    CWnd* GetContent();
    /// The least size of the content, in pixels; 0: as large as there is room. 0 for negative sizes.
    int SetContentSize(int width, int height);
    /// Scrolls so that this part of the content is seen, its upper left corner first.
    void ShowContent(const CRect& part);
    /// A window at the header's right end, as wide as it is, and as high where the header is; null: none. It becomes a
    /// child of the frame and stays the host's.
    int SetTool(CWnd* tool);
    /// 1 when that changed it.
    int Fold(int folded);
    int IsFolded() const;
    /// In pixels, in force now.
    int GetHeaderHeight() const;

protected:
    bool build() override;
    void leave() override;
    CWnd* GetHolder() override;
    CRect ContentRect() const override;
    CRect GetAnchorArea() const override;
    void StyleChanged() override;

    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg void OnKillFocus(CWnd* next);
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    class Content;

    CRect header() const;
    CRect inside() const;
    void place_parts();
    void place_tool();
    void move_content(CSize way);
    int folded_height() const;
    void set_height(int height);
    /// As near to it as the content's size allows.
    void scroll_to(CPoint offset);
    void fold_by_user();

    std::unique_ptr<Content> content_;
    CWntScrollBar across_;
    CWntScrollBar down_;
    HWND tool_ = nullptr;
    CSize least_;
    CSize size_;    // of the content
    CPoint offset_; // of the content's part that is seen
    bool folded_ = false;
    int unfolded_height_ = 0;
    int folded_height_ = 0;
    int tool_height_ = -1; // as the host wants it; it may get less
    int placed_tool_height_ = -1;
    int wheel_ = 0; // turned, and not scrolled by yet
};
