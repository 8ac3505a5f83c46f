#pragma once

#include "colour_bar.h"

/// The window with toolbar, colours and status bar around the view.
class CMainFrame : public CFrameWnd {
    DECLARE_DYNCREATE(CMainFrame)

public:
    void ShowColours(int line, int fill) { colours_.Show(line, fill); }

protected:
    CMainFrame() = default;
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnClose();
    DECLARE_MESSAGE_MAP()

private:
    CToolBar tools_;
    CColourBar colours_;
    CStatusBar status_;
};
