#include <zopwnt.h>

namespace {

//! [host]
/// A window that is painted through a surface which covers it.
class PlotWindow : public CWnd {
protected:
    afx_msg int OnCreate(LPCREATESTRUCT create) {
        if (CWnd::OnCreate(create) == -1)
            return -1;
        return out_.Create(nullptr, "Plot", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this, 100) ? 0 : -1;
    }
    afx_msg void OnSize(UINT type, int cx, int cy) {
        CWnd::OnSize(type, cx, cy);
        out_.SetWindowPos(nullptr, 0, 0, cx, cy, SWP_NOZORDER | SWP_NOACTIVATE);
        Invalidate();
    }
    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; }
    afx_msg void OnPaint() {
        CPaintDC validate(this);
        if (!out_.reset())
            return;
        out_.fillcolour(RGB(252, 252, 252), 0);
        out_.boxa2(0, 0, out_.xmax, out_.ymax);
        out_.linecolour(6, 0); // red, solid
        out_.line(0, 0, out_.xmax, out_.ymax);
        out_.settext(0, 0, 0, 15, 0, 0); // 9 points
        char title[] = "Inflow";
        out_.chars(8, out_.ymax - 8 - out_.fontsize / 10, title, 4); // its top 8 pixels below the window's
        out_.endpaint();
    }
    afx_msg void OnDestroy() {
        out_.ReleaseDrawing();
        CWnd::OnDestroy();
    }
    DECLARE_MESSAGE_MAP()

private:
    CWntOut out_;
};

BEGIN_MESSAGE_MAP(PlotWindow, CWnd)
ON_WM_CREATE()
ON_WM_SIZE()
ON_WM_ERASEBKGND()
ON_WM_PAINT()
ON_WM_DESTROY()
END_MESSAGE_MAP()
//! [host]

void draw(CWntOut& out) {
    out.boxr1(10, 10, 20, 20);
}

} // namespace

void surface_snippets(CWnd* parent, HDC printer) {
    PlotWindow plot;
    plot.Create(nullptr, "Plot", WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 100), parent, 9);

    //! [device]
    CWntOut out;        // without a window
    out.targetmode = 1; // reset() leaves the clip alone
    if (out.reset(printer)) {
        out.xmax = ::GetDeviceCaps(printer, HORZRES) - 1;
        out.ymax = ::GetDeviceCaps(printer, VERTRES) - 1; // the row that y counts up from
        draw(out);
        out.endpaint(); // the device context has its own pen and brush again
    }
    //! [device]

    //! [print]
    MakeHardcopy(&plot, "Inflow of today");
    //! [print]
}
