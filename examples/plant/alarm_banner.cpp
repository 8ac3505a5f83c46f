#include "alarm_banner.h"

#include "resource.h"

namespace {

struct ToneColours {
    COLORREF ground, text;
};
constexpr ToneColours tones[] = {{RGB(226, 236, 228), RGB(36, 84, 48)},
                                 {RGB(250, 232, 190), RGB(110, 70, 0)},
                                 {RGB(246, 218, 214), RGB(130, 24, 20)},
                                 {RGB(190, 40, 36), RGB(255, 255, 255)}};

} // namespace

BEGIN_MESSAGE_MAP(CAlarmBanner, CFrontPage)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

bool CAlarmBanner::CreateContents() {
    font_.CreatePointFont(120, "Arial");
    return acknowledge_.Open("Acknowledge", this, ID_ACKNOWLEDGE);
}

void CAlarmBanner::Arrange(int width, int height) {
    const int margin = Scaled(6), wide = Scaled(140);
    acknowledge_.MoveWindow(width - wide - margin, margin, wide, height - 2 * margin);
    Invalidate();
}

CAlarmBanner::Message CAlarmBanner::Present() const {
    AlarmBoard& alarms = front_end_.station.Alarms();
    const PlantLink& link = front_end_.station.Link();
    const CString alarm = alarms.Text().c_str();
    if (alarms.IsCalling())
        return {Tone::alarm, alarm};
    switch (link.State()) {
    case LinkState::absent:
        return {Tone::notice, "No plant is connected. Plant > Start Simulator starts one."};
    case LinkState::silent:
        return {Tone::notice, "The plant is silent: these are its last values."};
    case LinkState::nonsense:
        return {Tone::notice, "A transmitter fails: its last good value is shown."};
    default:
        return alarm.IsEmpty() ? Message{Tone::calm, "The plant runs without alarms."} : Message{Tone::seen, alarm};
    }
}

void CAlarmBanner::ShowReadings() {
    const Message message = Present();
    if (message == shown_)
        return;
    shown_ = message;
    WntTrace("%s\n", message.text.GetString());
    acknowledge_.ShowWindow(message.tone == Tone::alarm ? SW_SHOWNA : SW_HIDE);
    Invalidate();
}

void CAlarmBanner::OnPaint() {
    CPaintDC dc(this);
    CRect place;
    GetClientRect(place);
    const ToneColours& colours = tones[static_cast<int>(shown_.tone)];
    dc.FillSolidRect(place, colours.ground);
    CFont* const before = dc.SelectObject(&font_);
    dc.SetTextColor(colours.text);
    dc.SetBkMode(TRANSPARENT);
    place.left += Scaled(12);
    place.right -= shown_.tone == Tone::alarm ? Scaled(156) : Scaled(12);
    dc.DrawText(shown_.text, place, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
    dc.SelectObject(before);
}
