#include <zopwnt.h>

#include <set>

// The smallest host: a window with a gauge in it. Ends with 0 when the gauge has painted its face and its value.
namespace {

class HostWindow : public CFrameWnd {
public:
    CWntGauge gauge;

    bool open() {
        return Create(nullptr, "Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(20, 20, 260, 280)) &&
               gauge.Create(nullptr, "Gauge", WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 200), this, 1);
    }

    std::size_t colours_shown() {
        CClientDC dc(this);
        std::set<COLORREF> seen;
        for (int y = 0; y < 200; y += 2)
            for (int x = 0; x < 200; x += 2)
                seen.insert(dc.GetPixel(x, y));
        return seen.size();
    }
};

class HostApp : public CWinApp {
public:
    BOOL InitInstance() override {
        auto* window = new HostWindow;
        if (!window->open())
            return FALSE;
        m_pMainWnd = window;
        window->gauge.LoadLine(":TYPE=ANALOG", 0);
        window->gauge.LoadLine("", 2);
        window->gauge.SetCurVal(42);
        shown_ = window->colours_shown();
        window->PostMessage(WM_CLOSE);
        return TRUE;
    }

    int ExitInstance() override {
        CWinApp::ExitInstance();
        return shown_ > 2 ? 0 : 1;
    }

private:
    std::size_t shown_ = 0;
};

HostApp app;

} // namespace
