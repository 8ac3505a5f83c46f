#include <zopwnt.h>

namespace {

//! [watched]
/// Calls back when it is pressed and released inside.
class StartButton : public CWntButton {
public:
    void (*pressed)() = nullptr;

protected:
    afx_msg void OnLButtonUp(UINT flags, CPoint point) {
        Tcbtn_properties before;
        getproperties(&before);
        CWntButton::OnLButtonUp(flags, point);
        Tcbtn_properties after;
        getproperties(&after);
        if (before.bordertype == 3 && after.bordertype == 2 && pressed)
            pressed();
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(StartButton, CWntButton)
ON_WM_LBUTTONUP()
END_MESSAGE_MAP()
//! [watched]

void start_pump() {}

} // namespace

void button_snippets(CWnd* parent) {
    //! [script]
    static StartButton button;
    button.pressed = start_pump;
    button.Create(nullptr, "Start", WS_CHILD | WS_VISIBLE, CRect(10, 10, 110, 44), parent, 2);
    for (const char* line : {":TITLE=Start", ":TITLESTYLE=PLAIN", ":ALIGN=CENTERCENTER", ":CLRBACK=GRAY",
                             ":CLRSUN=WHITE", ":CLRSHADOW=DARKGRAY", ":CLRTEXT=BLACK", ":BORDERHEIGHT=2"})
        button.load(line, 0);
    button.load("", 2);
    //! [script]

    //! [block]
    Tcbtn_properties look;
    button.getproperties(&look);
    look.fixed = 1; // no reaction to the mouse
    look.clrtext = 8;
    button.setproperties(&look);
    //! [block]
}
