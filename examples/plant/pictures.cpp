#include "pictures.h"

#include "main_frame.h"
#include "past_days.h"
#include "plant_model.h"
#include "resource.h"

#include <memory>

namespace {

constexpr const char* names[] = {"overview", "trend", "history", "report"};

void PumpPending() {
    MSG message;
    while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE)) {
        ::TranslateMessage(&message);
        ::DispatchMessage(&message);
    }
    AfxGetApp()->OnIdle(0); // states of menus and tools
}

// From the menu downwards, as the screen shows it; the system has its own way with captions. Rows of a bitmap file are
// whole multiples of four pixels here, so that they need no padding.
bool Shoot(CWnd& window, const CString& path) {
    PumpPending();
    window.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_FRAME | RDW_ALLCHILDREN);
    PumpPending();
    CRect place;
    window.GetClientRect(place);
    const int menu = ::GetSystemMetrics(SM_CYMENU), width = place.Width() / 4 * 4, height = place.Height() + menu;
    CClientDC from(nullptr);
    window.ClientToScreen(place);
    CDibFile picture;
    if (!picture.CreateNewTrueColor(width, height, 0) ||
        !::BitBlt(picture.GetDC(), 0, 0, width, height, from.m_hDC, place.left, place.top - menu, SRCCOPY))
        return false;
    ::GdiFlush();
    return picture.Save(path) != 0 && ::GetFileAttributes(path) != INVALID_FILE_ATTRIBUTES;
}

// Ten minutes of the plant, of which the last end with an alarm: the furnace was set higher.
class Rehearsal {
public:
    explicit Rehearsal(FrontEnd& front_end, ReadingsBlock& block) : front_end_(front_end), block_(block) {}

    void Play(CMainFrame& frame) {
        constexpr int seconds = 600;
        const __int64 end = CWntPulse::Now();
        for (int second = 0; second < seconds; ++second) {
            wanted_.furnace_target = second < seconds - 90 ? 850 : 980;
            wanted_.steam_valve = 45 + second / 20 % 3 * 5;
            plant_.Step(1, wanted_);
            const PlantReadings readings = plant_.Measure();
            block_.Write(readings);
            front_end_.station.Poll(::GetTickCount64(), front_end_.settings.limits);
            frame.Overview().ShowReadings();
            for (std::size_t i = 0; i < plant_channels; ++i)
                frame.Trend().Chart().AddSample(static_cast<int>(i), readings.values[i],
                                                end - 100 * (seconds - second));
        }
        front_end_.station.Want(wanted_);
    }

    void Hold() { block_.Write(plant_.Measure()); }

private:
    FrontEnd& front_end_;
    ReadingsBlock& block_;
    PlantModel plant_;
    PlantSetPoints wanted_;
};

} // namespace

CString PaintPictures(const CString& program_folder, const CString& data_folder, const CString& folder, CSize size) {
    auto readings = std::make_unique<ReadingsBlock>();
    PlantStation station(readings.get(), nullptr);
    FrontEndSettings settings;
    settings.folder = data_folder + "\\recordings";
    settings.sound = 0;
    if (const CString fault = WritePastDays(settings.folder, 12); !fault.IsEmpty())
        return fault;
    FrontEnd front_end{station, settings, program_folder, data_folder + "\\pictures.ini"};
    ::CreateDirectory(folder, nullptr);
    auto* frame = new CMainFrame(front_end);
    if (!frame->LoadFrame(IDR_MAINFRAME))
        return "the window cannot be made";
    AfxGetApp()->m_pMainWnd = frame;
    frame->SetWindowPos(&CWnd::wndTopMost, 0, 0, size.cx, size.cy, SWP_SHOWWINDOW);
    Rehearsal rehearsal(front_end, *readings);
    rehearsal.Play(*frame);
    if (!frame->History().Days().empty())
        frame->History().OpenDay(*frame->History().Days().rbegin());
    CString fault;
    for (int page = 0; page < frame->Tabs().GetTabCount() && fault.IsEmpty(); ++page) {
        frame->Tabs().Select(page);
        rehearsal.Hold();
        frame->Update();
        while (frame->History().Chart().IsReading())
            PumpPending();
        const CString path = folder + "\\plant-" + names[page] + ".bmp";
        if (!Shoot(*frame, path))
            fault = "cannot write " + path;
        station.Alarms().Acknowledge(); // the first page shows it as it is raised
    }
    frame->DestroyWindow();
    return fault;
}
