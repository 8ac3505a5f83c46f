#include <zopwnt.h>

// The smallest host: a window with a gauge in it. Ends with 0 when the gauge has painted its face and its value.
namespace {

class HostWindow : public CFrameWnd {
public:
    CWntGauge gauge;

    bool open() {
        return Create(nullptr, "Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(20, 20, 260, 280)) &&
               gauge.Create(nullptr, "Gauge", WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 200), this, 1);
    }

    int colours_shown() {
        CClientDC dc(this);
        COLORREF seen[3] = {};
        int count = 0;
        for (int y = 0; y < 200 && count < 3; y += 2) {
            for (int x = 0; x < 200 && count < 3; x += 2) {
                const COLORREF colour = dc.GetPixel(x, y);
                bool known = false;
                for (int i = 0; i < count; ++i)
                    known = known || seen[i] == colour;
                if (!known)
                    seen[count++] = colour;
            }
        }
        return count;
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
        return shown_ == 3 ? 0 : 1;
    }

private:
    int shown_ = 0;
};

HostApp app;

} // namespace
