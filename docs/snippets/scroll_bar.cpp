#include <zopwnt.h>

namespace {

//! [host]
class ListWindow : public CWnd {
public:
    bool open(CWnd* parent) {
        if (!Create(nullptr, "List", WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 300), parent, 6) ||
            !bar_.Create(WS_CHILD | WS_VISIBLE | SBS_VERT, CRect(180, 0, 200, 300), this, 7))
            return false;
        SCROLLINFO info = {};
        info.cbSize = sizeof info;
        info.fMask = SIF_RANGE | SIF_PAGE;
        info.nMax = 99;
        info.nPage = 10;
        bar_.SetScrollInfo(&info);
        return true;
    }

protected:
    afx_msg void OnVScroll(UINT code, UINT pos, CScrollBar* bar) {
        bar_.SetThumb(code, pos, bar);
        first_shown_ = bar_.GetScrollPos();
        Invalidate();
    }
    DECLARE_MESSAGE_MAP()

private:
    CWntScrollBar bar_;
    int first_shown_ = 0;
};

BEGIN_MESSAGE_MAP(ListWindow, CWnd)
ON_WM_VSCROLL()
END_MESSAGE_MAP()
//! [host]

} // namespace

void scroll_bar_snippets(CWnd* parent) {
    ListWindow list;
    list.open(parent);
}
