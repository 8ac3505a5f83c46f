#pragma once

#include <zopwnt.h>

/// A widget's button that sends its number to the main window as a command, and shows by its colour whether what it
/// switches is on. It writes its title itself, in points: the widget's would grow with the screen's resolution.
class CCommandButton : public CWntButton {
public:
    bool Open(const char* title, CWnd* parent, UINT command);
    /// The state of a switch; shown at once where it changes.
    void Show(const char* title, bool on);

protected:
    afx_msg void OnPaint();
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    void DrawTitle();

    CString title_;
    bool on_ = false;
    CFont font_;
};
