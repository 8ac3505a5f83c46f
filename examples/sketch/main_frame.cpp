#include "main_frame.h"

#include "resource.h"

#include <iterator>

IMPLEMENT_DYNCREATE(CMainFrame, CFrameWnd)

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWnd)
ON_WM_CREATE()
ON_WM_CLOSE()
ON_COMMAND_EX(ID_VIEW_COLOURS, &CMainFrame::OnBarCheck)
ON_UPDATE_COMMAND_UI(ID_VIEW_COLOURS, &CMainFrame::OnUpdateControlBarMenu)
END_MESSAGE_MAP()

namespace {

constexpr UINT panes[] = {ID_SEPARATOR, ID_INDICATOR_POSITION, ID_INDICATOR_ZOOM};
constexpr char bar_settings[] = "Bars";

// The pictures' size follows the screen's resolution.
UINT tools_for_screen() {
    const CWindowDC screen(nullptr);
    return screen.GetDeviceCaps(LOGPIXELSX) < 132 ? IDR_MAINFRAME : IDR_MAINFRAME_LARGE;
}

} // namespace

int CMainFrame::OnCreate(LPCREATESTRUCT create) {
    if (CFrameWnd::OnCreate(create) == -1 ||
        !tools_.CreateEx(this, TBSTYLE_FLAT,
                         WS_CHILD | WS_VISIBLE | CBRS_TOP | CBRS_GRIPPER | CBRS_TOOLTIPS | CBRS_FLYBY |
                             CBRS_SIZE_DYNAMIC) ||
        !tools_.LoadToolBar(tools_for_screen()) || !colours_.Create(this) || !status_.Create(this) ||
        !status_.SetIndicators(panes, static_cast<int>(std::size(panes))))
        return -1;
    tools_.EnableDocking(CBRS_ALIGN_ANY);
    colours_.EnableDocking(CBRS_ALIGN_LEFT | CBRS_ALIGN_RIGHT);
    EnableDocking(CBRS_ALIGN_ANY);
    DockControlBar(&tools_);
    DockControlBar(&colours_);
    LoadBarState(bar_settings);
    return 0;
}

void CMainFrame::OnClose() {
    SaveBarState(bar_settings);
    CFrameWnd::OnClose();
}
