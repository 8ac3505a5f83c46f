#include <afxdlgs.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <string>
#include <utility>

#include "out/hardcopy.h"
#include "script/colours.h"
#include "widgets/colour_selector/wnt_color_sel.h"
#include "widgets/painting/memory_bitmap.h"
#include "widgets/painting/surface_owner.h"
#include "widgets/pulse/pulse_state.h"

using namespace wnt;

namespace {

constexpr __int64 least_part = 4096; // more than what a file begins with
constexpr int records_at_once = 200;
constexpr auto piece = std::chrono::milliseconds(20); // of reading, between two looks at the window's messages
constexpr std::size_t most_copied = 2'000'000;        // lines of values

constexpr const char* file_filter = "Samples (*.txt)|*.txt|All files (*.*)|*.*||";

// One picture or text, which the clipboard owns from then on.
bool put_on_clipboard(CWnd& owner, UINT format, HANDLE content) {
    if (!content || !owner.OpenClipboard())
        return false;
    ::EmptyClipboard();
    const bool taken = ::SetClipboardData(format, content) != nullptr;
    ::CloseClipboard();
    return taken;
}

HGLOBAL text_block(const std::string& text) {
    const HGLOBAL block = ::GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
    if (void* const to = block ? ::GlobalLock(block) : nullptr) {
        std::memcpy(to, text.c_str(), text.size() + 1);
        ::GlobalUnlock(block);
    }
    return block;
}

void append_line(std::string& text, const PulsePoint& sample, const std::string& title) {
    char value[32];
    std::snprintf(value, sizeof value, "%.9g", sample.value);
    text += text_of_axis_time(sample.time) + '\t' + title + '\t' + value + "\r\n";
}

// A box with nothing but a colour selector.
class ColourBox : public CDialog {
public:
    ColourBox(CWnd* parent, const char* title) : title_(title) { InitModalIndirect(&template_.header, parent); }
    COLORREF colour = CLR_NONE;

protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        SetWindowText(title_);
        CRect client;
        GetClientRect(&client);
        selector_.Create(nullptr, "", WS_CHILD | WS_VISIBLE, client, this, 100);
        return TRUE;
    }
    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        const auto* const told = reinterpret_cast<NMHDR*>(lParam);
        if (told->hwndFrom != selector_.m_hWnd || told->code != 1)
            return CDialog::OnNotify(wParam, lParam, result);
        if (const int picked = selector_.GetSelectedColorID(); 0 <= picked && picked < colour_count) {
            colour = colour_values[picked];
            EndDialog(IDOK);
        }
        return TRUE;
    }

private:
    struct {
        DLGTEMPLATE header = {WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | DS_CENTER, 0, 0, 0, 0, 160, 90};
        WORD menu = 0, window_class = 0, title = 0;
    } template_;
    CString title_;
    CWntColorSel selector_;
};

void print_client(CWnd& window, CDC& dc, CPoint corner) {
    const CPoint before = dc.SetViewportOrg(corner);
    window.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc.m_hDC), PRF_CLIENT);
    dc.SetViewportOrg(before);
}

} // namespace

int CWntPulse::StartRecording(const char* path) {
    if (!this || !path || !*path)
        return 0;
    std::vector<std::string> titles;
    for (const ChartCurve& curve : state_->chart.curves())
        titles.push_back(curve.title);
    if (titles.empty() || !state_->recorder.start(path, std::move(titles)).empty())
        return 0;
    return 1;
}

int CWntPulse::StopRecording() {
    if (!this || !state_->recorder.running())
        return 0;
    state_->recorder.stop();
    return 1;
}

int CWntPulse::StopReading() {
    if (!IsReading())
        return 0;
    end_reading(0);
    return 1;
}

int CWntPulse::IsRecording() const {
    return this && state_->recorder.running();
}

int CWntPulse::SetRecordingParts(__int64 bytes, int daily) {
    if (!this || bytes < 0 || (bytes > 0 && bytes < least_part))
        return 0;
    state_->recorder.set_parts(bytes, daily != 0);
    return 1;
}

const char* CWntPulse::GetRecordingError() const {
    return this ? state_->recorder.error().c_str() : "";
}

int CWntPulse::OpenFile(const char* path, int spread) {
    if (!this || !path || !m_hWnd || state_->recorder.running())
        return 0;
    State& s = *state_;
    PulseReader reader;
    if (!reader.open(path).empty() || reader.titles().empty())
        return 0;
    s.reader = std::move(reader);
    s.reader.set_spread(spread != 0);
    constexpr COLORREF colours[] = {RGB(0, 0, 200),   RGB(200, 0, 0),   RGB(0, 130, 0),  RGB(160, 0, 160),
                                    RGB(0, 130, 150), RGB(200, 110, 0), RGB(90, 90, 90), RGB(110, 60, 20),
                                    RGB(60, 90, 200), RGB(0, 0, 0)};
    int number = 0;
    for (const std::string& title : s.reader.titles()) {
        if (!s.chart.has(number) && s.chart.add_curve(title, colours[number], 0, 100) == PulseChart::no_curve)
            break;
        s.chart.curve(number++).title = title;
    }
    RemoveSamples();
    s.chart.fit = true;
    s.reading = true;
    SetTimer(pulse_read_timer, 1, nullptr);
    return 1;
}

int CWntPulse::IsReading() const {
    return this && state_->reading;
}

void CWntPulse::read_on() {
    State& s = *state_;
    if (!s.reading)
        return;
    const auto begun = std::chrono::steady_clock::now();
    bool more = true;
    while (more && std::chrono::steady_clock::now() - begun < piece)
        more = s.reader.read(records_at_once, [&](int curve, std::int64_t time, double value) {
            if (s.chart.has(curve))
                s.chart.curve(curve).samples->append(time, value);
        });
    if (!more)
        return end_reading(s.reader.broken() ? 2 : 1);
    samples_arrived();
}

// Shows all that was read. What is slow is not torn apart: a gap is far longer than the time between most samples.
void CWntPulse::end_reading(int whole) {
    State& s = *state_;
    s.reading = false;
    s.chart.longest_pause = std::max(PulseChart::default_pause, 10 * s.chart.usual_pause());
    KillTimer(pulse_read_timer);
    s.reader = PulseReader();
    const auto oldest = s.chart.oldest(), newest = s.chart.newest();
    if (newest) {
        s.know_history();
        s.view.show(*oldest, *newest + std::max<std::int64_t>((*newest - *oldest) / 50, 1));
        s.chart.span = s.view.span();
    }
    restyle();
    tell(WNT_PULSE_READ, whole);
}

int CWntPulse::CopyPicture() {
    if (!this || !m_hWnd)
        return 0;
    CRect client;
    GetClientRect(&client);
    CClientDC screen(this);
    CBitmap bitmap; // goes after what it may be selected into
    CDC memory;
    if (!memory.CreateCompatibleDC(&screen) || !bitmap.CreateCompatibleBitmap(&screen, client.Width(), client.Height()))
        return 0;
    CBitmap* const before = memory.SelectObject(&bitmap);
    // Not from the screen, where other windows may lie over it.
    print_client(*this, memory, CPoint(0, 0));
    for (CWnd* const child : {static_cast<CWnd*>(&left_), static_cast<CWnd*>(&right_), static_cast<CWnd*>(&time_)}) {
        if (!child->m_hWnd || !(child->GetStyle() & WS_VISIBLE))
            continue;
        CPoint corner(0, 0);
        child->MapWindowPoints(this, &corner, 1);
        print_client(*child, memory, corner);
    }
    memory.SelectObject(before);
    if (!put_on_clipboard(*this, CF_BITMAP, bitmap.m_hObject))
        return 0;
    bitmap.Detach();
    return 1;
}

int CWntPulse::CopyValues() {
    if (!this || !m_hWnd)
        return 0;
    const State& s = *state_;
    std::string text;
    std::size_t lines = 0;
    for (const ChartCurve& curve : s.chart.curves()) {
        const PulseSeries& samples = *curve.samples;
        const std::uint64_t end = samples.seek(s.view.end(), samples.end());
        for (std::uint64_t i = samples.seek(s.view.start(), end); curve.shown && i != end && lines <= most_copied;
             ++i, ++lines)
            append_line(text, samples[i], curve.title);
    }
    if (lines > most_copied)
        return 0;
    const HGLOBAL block = text_block(text);
    if (put_on_clipboard(*this, CF_TEXT, block))
        return 1;
    ::GlobalFree(block);
    return 0;
}

int CWntPulse::Print() {
    if (!this || !m_hWnd)
        return 0;
    if (std::exchange(state_->tip_shown, false)) // what is on the screen is printed
        tip_.HideTip();
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    MakeHardcopy(this, state_->chart.title.empty() ? "Chart" : state_->chart.title.c_str());
    return 1;
}

void CWntPulse::choose_recording() {
    const StillThere self(*this);
    if (!StopRecording()) {
        CFileDialog dialog(FALSE, "txt", nullptr, OFN_HIDEREADONLY, file_filter, this);
        if (dialog.DoModal() != IDOK || !self)
            return;
        if (!StartRecording(dialog.GetPathName())) {
            const std::string& error = state_->recorder.error();
            MessageBox(error.empty() ? "There is nothing to record." : error.c_str(), nullptr, MB_ICONEXCLAMATION);
            return;
        }
    }
    tell(WNT_PULSE_RECORDING);
}

void CWntPulse::choose_file() {
    const StillThere self(*this);
    CFileDialog dialog(TRUE, "txt", nullptr, OFN_HIDEREADONLY | OFN_FILEMUSTEXIST, file_filter, this);
    if (dialog.DoModal() == IDOK && self && !OpenFile(dialog.GetPathName(), 1))
        MessageBox("The file holds no samples.", nullptr, MB_ICONEXCLAMATION);
}

void CWntPulse::choose_colour(int curve) {
    if (!state_->chart.has(curve))
        return;
    const StillThere self(*this);
    ColourBox box(this, state_->chart.curve(curve).title.c_str());
    if (box.DoModal() == IDOK && self)
        SetColour(curve, box.colour);
}

void CWntPulse::show_menu(CPoint screen) {
    const State& s = *state_;
    CMenu menu, colours;
    menu.CreatePopupMenu();
    colours.CreatePopupMenu();
    const auto item = [&](UINT command, const char* text, bool checked = false) {
        menu.AppendMenu(MF_STRING | (checked ? MF_CHECKED : 0), command, text);
    };
    item(WNT_PULSE_CMD_LIVE, "&Live\tEnd", s.view.live());
    item(WNT_PULSE_CMD_PAUSE, "&Pause\tSpace", !s.view.live());
    item(WNT_PULSE_CMD_FIT, "&Fit values", s.chart.fit);
    item(WNT_PULSE_CMD_CURSORS, "&Cursors", s.cursors[0] || s.cursors[1]);
    double from = 0, to = 0;
    item(WNT_PULSE_CMD_ZOOM, "&Zoom control", time_.GetZoom(&from, &to) != 0);
    menu.AppendMenu(MF_SEPARATOR);
    item(WNT_PULSE_CMD_RECORD, s.recorder.running() ? "End &recording" : "&Record...", s.recorder.running());
    menu.AppendMenu(MF_STRING | (s.recorder.running() ? MF_GRAYED : 0), WNT_PULSE_CMD_OPEN, "&Open...");
    menu.AppendMenu(MF_SEPARATOR);
    for (int i = 0; i < GetCurveCount(); ++i) {
        CString title = (state_->chart.curve(i).title + "...").c_str();
        title.Replace("&", "&&");
        colours.AppendMenu(MF_STRING, WNT_PULSE_CMD_CURVE + static_cast<UINT>(i), title);
    }
    menu.AppendMenu(MF_POPUP | (GetCurveCount() ? 0 : MF_GRAYED), reinterpret_cast<UINT_PTR>(colours.m_hMenu),
                    "Colo&urs");
    menu.AppendMenu(MF_SEPARATOR);
    item(WNT_PULSE_CMD_COPY_PICTURE, "Copy p&icture");
    item(WNT_PULSE_CMD_COPY_VALUES, "Copy &values");
    item(WNT_PULSE_CMD_PRINT, "Pri&nt");
    colours.Detach(); // the menu's
    menu.TrackPopupMenu(TPM_LEFTALIGN | TPM_RIGHTBUTTON, screen.x, screen.y, this);
}

void CWntPulse::toggle_cursors() {
    const State& s = *state_;
    if (s.cursors[0] || s.cursors[1])
        return remove_cursors();
    const int width = s.view.columns().width;
    const std::int64_t first = s.view.time(width / 3), second = s.view.time(2 * width / 3);
    const StillThere self(*this);
    put_cursor(0, first);
    if (self)
        put_cursor(1, second);
}

BOOL CWntPulse::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT command = LOWORD(wParam);
    State& s = *state_;
    if (lParam != 0 || command < WNT_PULSE_CMD_LIVE || command > WNT_PULSE_CMD_LAST)
        return ControlWindow::OnCommand(wParam, lParam);
    switch (command) {
    case WNT_PULSE_CMD_LIVE:
        s.view.set_live(true);
        view_changed();
        break;
    case WNT_PULSE_CMD_PAUSE:
        s.view.set_live(!s.view.live());
        view_changed();
        break;
    case WNT_PULSE_CMD_FIT:
        SetFit(!s.chart.fit);
        break;
    case WNT_PULSE_CMD_CURSORS:
        toggle_cursors();
        break;
    case WNT_PULSE_CMD_ZOOM:
        time_.cover();
        time_.SendMessage(WM_COMMAND, axis_zoom_command);
        break;
    case WNT_PULSE_CMD_RECORD:
        choose_recording();
        break;
    case WNT_PULSE_CMD_OPEN:
        choose_file();
        break;
    case WNT_PULSE_CMD_PRINT:
        Print();
        break;
    case WNT_PULSE_CMD_COPY_PICTURE:
        CopyPicture();
        break;
    case WNT_PULSE_CMD_COPY_VALUES:
        CopyValues();
        break;
    default:
        choose_colour(static_cast<int>(command - WNT_PULSE_CMD_CURVE));
    }
    return TRUE;
}

// A file of samples, or else a script.
void CWntPulse::OnDropFiles(HDROP drop) {
    char path[MAX_PATH] = "";
    ::DragQueryFileA(drop, 0, path, sizeof path);
    ::DragFinish(drop);
    const StillThere self(*this);
    SetFocus(); // for Escape
    if (self && !OpenFile(path, 1))
        LoadFromFile(path);
}
