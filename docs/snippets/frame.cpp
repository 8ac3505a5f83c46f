#include <zopwnt.h>

void frame_snippets(CWnd* parent) {
    //! [host]
    static CWntFrame frame; // before its children, so that they go first
    static CWntGauge gauge;
    static CButton reset;
    frame.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(10, 10, 310, 260), parent, 1);
    frame.LoadLine("", 1);
    frame.LoadLine(":TITLE=Boiler", 0);
    frame.LoadLine(":ALIGN=TOPLEFT", 0);
    frame.LoadLine(":BORDERTYPE=3DDOWN", 0);
    frame.LoadLine("", 2);

    CRect content = frame.GetContentRect();
    content.bottom -= 34;
    gauge.Create(nullptr, "", WS_CHILD | WS_VISIBLE, content, &frame, 2);
    reset.Create("Reset", WS_CHILD | WS_VISIBLE,
                 CRect(content.right - 80, content.bottom + 6, content.right - 8, content.bottom + 30), &frame, 3);
    frame.SetAnchor(&gauge, 0, 0, 1, 1); // grows with the frame
    frame.SetAnchor(&reset, 1, 1, 1, 1); // keeps to its lower right corner
    //! [host]
}
