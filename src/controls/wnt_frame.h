#pragma once

#include <memory>
#include <vector>

#include "controls/pane_window.h"

namespace wnt {
struct Anchor;
struct FrameModel;
class PaintPass;
} // namespace wnt

/// A panel with a border, a title and a ground of its own, which holds windows of the host's and keeps them at their
/// anchors when it is resized.
///
///     CWntFrame frame;
///     frame.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(10, 10, 310, 210), this, 1);
///     frame.LoadLine(":TITLE=Boiler", 0);
///     gauge.Create(nullptr, "", WS_CHILD | WS_VISIBLE, frame.GetContentRect(), &frame, 2);
///     frame.SetAnchor(&gauge, 0, 0, 1, 1); // grows with the frame
///
/// Coordinates are its client coordinates, y downwards. Border, title and their distances follow the main frame's
/// scaling, which is asked for when the frame is created and when it is told that settings changed. What its children
/// tell their parent, and it does not handle, reaches its own parent. Its window always has WS_CLIPCHILDREN. In a
/// dialog template its class is "WntFrame" and its text the name of a script or else the title.
///
/// Unknown script keys and values are ignored (sides without a known word are none, a height without digits is 0, as in
/// all scripts); a colour that no script sets is the system's.
class ZOPWNT_API CWntFrame : public wnt::PaneWindow {
public:
    CWntFrame();
    ~CWntFrame() override;

    /// mode 1 begins a script, 0 applies one line, 2 ends the script and repaints. Always 0.
    unsigned char LoadLine(const char* line, int mode);
    /// Reads a whole script; quotes around the path are taken off. 1, or 0 when there is no such file.
    unsigned char LoadFromFile(const char* path);
    /// At most 49 characters; null empties. Shown with the next paint message, which it asks for.
    void SetTitle(const char* title);

    /// What border and title leave to the children; empty in a frame that is too small.
    CRect GetContentRect() const;
    /// Keeps each edge of a child where it is, seen from a share of the content's width or height: 0 its left or upper
    /// edge, 1 its right or lower one. A window of another parent becomes a child. Shares out of 0..1 are clamped.
    /// 0 for a window that cannot be a child.
    int SetAnchor(CWnd* child, double left, double top, double right, double bottom);
    /// The child stays where it is from now on. 0 when it had no anchor.
    int RemoveAnchor(CWnd* child);
    /// The percentage of the sizes at 96 dots an inch that is in force.
    int GetScale() const;

protected:
    explicit CWntFrame(const char* class_name);

    /// Ground and border, and the title where it belongs to them.
    void PaintPanel(wnt::PaintPass& pass, bool titled);
    COLORREF TitleColour() const;
    /// The window that holds the children.
    virtual CWnd* GetHolder() { return this; }
    virtual CRect ContentRect() const;
    /// In the holder's client coordinates, what anchors count from.
    virtual CRect GetAnchorArea() const { return GetContentRect(); }
    /// After title, border, colours, scaling or size changed: places everything, and asks for a repaint.
    virtual void StyleChanged();

    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    afx_msg void OnSettingChange(UINT flags, LPCTSTR section);
    DECLARE_MESSAGE_MAP()

    bool build() override;
    void lay_out(int cx, int cy) override;
    const wnt::FrameModel& model() const { return *model_; }
    CFont& title_font() { return title_font_; }
    void place_children();

private:
    struct Anchored;

    void take_text(const CString& text) override;
    void rescale(bool settings_changed);
    int title_rows() const;

    std::unique_ptr<wnt::FrameModel> model_;
    std::vector<Anchored> anchored_;
    CFont title_font_;
    int scale_ = 100;
};
