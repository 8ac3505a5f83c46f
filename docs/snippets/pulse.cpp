#include <zopwnt.h>

namespace {

//! [host]
class BoilerView : public CWnd {
public:
    bool Open() {
        if (!chart_.Create(nullptr, "", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 800, 400), this, 1))
            return false;
        chart_.SetTitle("Boiler 2");
        chart_.SetSpan(60 * 100); // a minute
        flow_ = chart_.AddCurve("Flow", RGB(200, 0, 0), 40, 100);
        pressure_ = chart_.AddCurve("Pressure", RGB(0, 0, 200), 0, 4);
        SetTimer(1, 100, nullptr);
        return true;
    }

protected:
    afx_msg void OnTimer(UINT_PTR) {
        chart_.AddSample(flow_, MeasuredFlow());
        chart_.AddSample(pressure_, MeasuredPressure());
    }
    DECLARE_MESSAGE_MAP()

private:
    static double MeasuredFlow() { return 70; }
    static double MeasuredPressure() { return 2; }

    CWntPulse chart_;
    int flow_ = -1, pressure_ = -1;
};

BEGIN_MESSAGE_MAP(BoilerView, CWnd)
ON_WM_TIMER()
END_MESSAGE_MAP()
//! [host]

//! [told]
/// Says what ended a recording.
class RecordingHost : public CWnd {
protected:
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        const auto* told = reinterpret_cast<NMHDR*>(lParam);
        if (told->code == WNT_PULSE_RECORDING) {
            auto* chart = static_cast<CWntPulse*>(CWnd::FromHandlePermanent(told->hwndFrom));
            if (chart && !chart->IsRecording() && *chart->GetRecordingError())
                SetWindowText(CString("Recording ended: ") + chart->GetRecordingError());
        }
        return CWnd::OnNotify(wParam, lParam, result);
    }
};
//! [told]

} // namespace

void pulse_snippets() {
    BoilerView view;
    view.Open();
    RecordingHost host;
}
