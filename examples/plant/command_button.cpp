#include "command_button.h"

BEGIN_MESSAGE_MAP(CCommandButton, CWntButton)
ON_WM_PAINT()
ON_WM_LBUTTONUP()
END_MESSAGE_MAP()

bool CCommandButton::Open(const char* title, CWnd* parent, UINT command) {
    if (!Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), parent, command))
        return false;
    font_.CreatePointFont(100, "Arial");
    Show(title, false);
    return true;
}

void CCommandButton::Show(const char* title, bool on) {
    if (title_ == title && on_ == on)
        return;
    title_ = title;
    on_ = on;
    load("", 1);
    for (const char* line : {":TITLE=", ":BORDERTYPE=3DUP", ":BORDERSTYLE=LEFT RIGHT TOP BOTTOM", ":BORDERHEIGHT=2",
                             ":CLRSUN=WHITE", ":CLRSHADOW=DARKGRAY", on ? ":CLRBACK=DARKGREEN" : ":CLRBACK=GRAY"})
        load(line, 0);
    load("", 2);
    DrawTitle();
}

void CCommandButton::OnPaint() {
    CWntButton::OnPaint();
    DrawTitle();
}

// Over what the widget has painted on its surface; a press moves it along with the rest.
void CCommandButton::DrawTitle() {
    CWnd* const surface = GetWindow(GW_CHILD);
    if (!surface)
        return;
    CClientDC dc(surface);
    CRect place;
    surface->GetClientRect(place);
    CFont* const before = dc.SelectObject(&font_);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(on_ ? RGB(255, 255, 255) : RGB(0, 0, 0));
    dc.DrawText(title_, place, DT_SINGLELINE | DT_CENTER | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
    dc.SelectObject(before);
}

// The widget tells nobody; pressed (3) and up again (2) is a click.
void CCommandButton::OnLButtonUp(UINT flags, CPoint point) {
    Tcbtn_properties before = {}, after = {};
    getproperties(&before);
    CWntButton::OnLButtonUp(flags, point);
    getproperties(&after);
    if (before.bordertype == 3 && after.bordertype == 2)
        AfxGetMainWnd()->PostMessage(WM_COMMAND, static_cast<WPARAM>(GetDlgCtrlID()));
}
