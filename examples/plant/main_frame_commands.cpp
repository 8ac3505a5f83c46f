// The main window's commands and the states that menus, toolbar and status bar show of them.
#include "main_frame.h"

#include "resource.h"
#include "settings_sheet.h"
#include "tip_dialog.h"

#include <memory>

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWnd)
ON_WM_CREATE()
ON_WM_TIMER()
ON_WM_CLOSE()
ON_WM_ENDSESSION()
ON_WM_GETMINMAXINFO()
ON_WM_SETTINGCHANGE()
ON_COMMAND(ID_SIMULATOR_START, &CMainFrame::OnSimulatorStart)
ON_UPDATE_COMMAND_UI(ID_SIMULATOR_START, &CMainFrame::OnUpdateSimulatorStart)
ON_COMMAND(ID_SIMULATOR_END, &CMainFrame::OnSimulatorEnd)
ON_UPDATE_COMMAND_UI(ID_SIMULATOR_END, &CMainFrame::OnUpdateSimulatorEnd)
ON_COMMAND_RANGE(ID_PUMP, ID_BURNER, &CMainFrame::OnSwitch)
ON_UPDATE_COMMAND_UI_RANGE(ID_PUMP, ID_BURNER, &CMainFrame::OnUpdateSwitch)
ON_COMMAND_RANGE(ID_FAULT_FIRST, ID_FAULT_LAST, &CMainFrame::OnFault)
ON_UPDATE_COMMAND_UI_RANGE(ID_FAULT_FIRST, ID_FAULT_LAST, &CMainFrame::OnUpdateFault)
ON_COMMAND(ID_ACKNOWLEDGE, &CMainFrame::OnAcknowledge)
ON_UPDATE_COMMAND_UI(ID_ACKNOWLEDGE, &CMainFrame::OnUpdateAcknowledge)
ON_COMMAND(ID_SOUND, &CMainFrame::OnSound)
ON_UPDATE_COMMAND_UI(ID_SOUND, &CMainFrame::OnUpdateSound)
ON_MESSAGE(WM_RECORDING_FAILED, &CMainFrame::OnRecordingFailed)
ON_COMMAND(ID_RECORD, &CMainFrame::OnRecord)
ON_UPDATE_COMMAND_UI(ID_RECORD, &CMainFrame::OnUpdateRecord)
ON_COMMAND(ID_REPORT_CLEAR, &CMainFrame::OnReportClear)
ON_COMMAND(ID_FILE_PRINT, &CMainFrame::OnPrint)
ON_COMMAND(ID_SETTINGS, &CMainFrame::OnSettings)
ON_COMMAND_RANGE(ID_PAGE_FIRST, ID_PAGE_LAST, &CMainFrame::OnPage)
ON_UPDATE_COMMAND_UI_RANGE(ID_PAGE_FIRST, ID_PAGE_LAST, &CMainFrame::OnUpdatePage)
ON_COMMAND(ID_TRACE, &CMainFrame::OnTrace)
ON_UPDATE_COMMAND_UI(ID_TRACE, &CMainFrame::OnUpdateTrace)
ON_COMMAND(ID_TIP, &CMainFrame::OnTip)
ON_COMMAND(ID_VERSIONS, &CMainFrame::OnVersions)
ON_UPDATE_COMMAND_UI(ID_INDICATOR_LINK, &CMainFrame::OnUpdateLink)
ON_UPDATE_COMMAND_UI(ID_INDICATOR_RECORDING, &CMainFrame::OnUpdateRecording)
END_MESSAGE_MAP()

// -- The simulator ----------------------------------------------------------------------------------------------------

// One that runs already tells the new one to go. The order to hang is taken back: one that hangs by it lives on, and
// where it was killed, the next one would find the order and hang at once.
void CMainFrame::OnSimulatorStart() {
    PlantSetPoints wanted = front_end_.station.SetPoints();
    wanted.faults &= ~static_cast<std::uint32_t>(simulator_hangs);
    front_end_.station.Want(wanted);
    CString command = '"' + front_end_.folder + "\\plant_simulator.exe\"";
    STARTUPINFO start = {};
    start.cb = sizeof start;
    PROCESS_INFORMATION made = {};
    const BOOL started = ::CreateProcess(nullptr, command.GetBuffer(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW,
                                         nullptr, front_end_.folder, &start, &made);
    command.ReleaseBuffer();
    if (!started) {
        CWntErrorBox("Simulator", "The simulator does not start.", command).DoModal();
        return;
    }
    ::CloseHandle(made.hThread);
    ::CloseHandle(made.hProcess);
}

void CMainFrame::OnUpdateSimulatorStart(CCmdUI* ui) {
    const LinkState state = front_end_.station.Link().State();
    ui->Enable(state == LinkState::absent || state == LinkState::silent);
}

// A simulator that hangs looks for this, too. The next one begins without faults.
void CMainFrame::OnSimulatorEnd() {
    PlantSetPoints wanted = front_end_.station.SetPoints();
    ++wanted.end_requests;
    wanted.faults = 0;
    front_end_.station.Want(wanted);
}

void CMainFrame::OnUpdateSimulatorEnd(CCmdUI* ui) {
    ui->Enable(front_end_.station.Link().State() != LinkState::absent);
}

void CMainFrame::OnSwitch(UINT id) {
    PlantSetPoints wanted = front_end_.station.SetPoints();
    wanted.switches ^= id == ID_PUMP ? pump_on : burner_on;
    front_end_.station.Want(wanted);
    overview_.ShowReadings();
}

void CMainFrame::OnUpdateSwitch(CCmdUI* ui) {
    ui->SetCheck((front_end_.station.SetPoints().switches & (ui->m_nID == ID_PUMP ? pump_on : burner_on)) != 0);
}

void CMainFrame::OnFault(UINT id) {
    PlantSetPoints wanted = front_end_.station.SetPoints();
    wanted.faults ^= 1u << (id - ID_FAULT_FIRST);
    front_end_.station.Want(wanted);
}

void CMainFrame::OnUpdateFault(CCmdUI* ui) {
    ui->SetCheck(front_end_.station.SetPoints().faults >> (ui->m_nID - ID_FAULT_FIRST) & 1);
}

// -- Alarms -----------------------------------------------------------------------------------------------------------

void CMainFrame::OnAcknowledge() {
    front_end_.station.Alarms().Acknowledge();
    Update();
}

void CMainFrame::OnUpdateAcknowledge(CCmdUI* ui) {
    ui->Enable(front_end_.station.Alarms().IsCalling());
}

void CMainFrame::OnSound() {
    front_end_.settings.sound = !front_end_.settings.sound;
}

void CMainFrame::OnUpdateSound(CCmdUI* ui) {
    ui->SetCheck(front_end_.settings.sound);
}

// -- Recording and report ---------------------------------------------------------------------------------------------

void CMainFrame::OnRecord() {
    CString fault;
    if (trend_.Chart().StopRecording())
        fault = trend_.Chart().GetRecordingError(); // of what was not yet on the disk
    else
        fault = trend_.StartRecording();
    if (!fault.IsEmpty())
        TellRecordingFault(fault);
}

LRESULT CMainFrame::OnRecordingFailed(WPARAM, LPARAM) {
    TellRecordingFault(trend_.Chart().GetRecordingError());
    return 0;
}

void CMainFrame::TellRecordingFault(const CString& fault) {
    overview_.AddEvent("Not recorded: " + fault);
    CWntErrorBox("Recording", fault, front_end_.settings.folder).DoModal();
}

void CMainFrame::OnUpdateRecord(CCmdUI* ui) {
    ui->SetCheck(trend_.Chart().IsRecording());
}

void CMainFrame::OnReportClear() {
    front_end_.station.ClearStatistics();
    report_.Invalidate(FALSE);
}

// What a window shows is printed: the page has to be in front.
void CMainFrame::OnPrint() {
    tabs_.Select(tabs_.FindPage(&report_));
    UpdateWindow();
    PRINTDLG printer = {};
    if (AfxGetApp()->GetPrinterDeviceDefaults(&printer)) {
        MakeHardcopy(&report_, "Plant report");
        return;
    }
    overview_.AddEvent("Not printed: there is no printer");
    SetMessageText("There is no printer: nothing was printed");
}

// -- Settings, pages, help --------------------------------------------------------------------------------------------

void CMainFrame::OnSettings() {
    CSettingsSheet sheet(front_end_.settings, this);
    if (sheet.DoModal() != IDOK)
        return;
    const bool moved = sheet.Chosen().folder != front_end_.settings.folder;
    front_end_.settings = sheet.Chosen();
    StoreSettings();
    if (moved && trend_.Chart().IsRecording()) {
        OnRecord(); // ends in the old folder
        OnRecord(); // goes on in the new one
    }
    ShowSettings();
}

void CMainFrame::OnPage(UINT id) {
    tabs_.Select(static_cast<int>(id - ID_PAGE_FIRST));
    LookForDays();
}

void CMainFrame::OnUpdatePage(CCmdUI* ui) {
    ui->SetRadio(tabs_.GetSelected() == static_cast<int>(ui->m_nID - ID_PAGE_FIRST));
}

// Made after all gauges: each of those begins a trace of its own.
void CMainFrame::OnTrace() {
    if (trace_) {
        trace_->SetFlags(0);
        trace_.reset();
        return;
    }
    trace_ = std::make_unique<CWntTrace>();
    trace_->SetTitle("Plant trace");
    trace_->SetFlags(2); // the window; before Create(), which opens it
    trace_->Create(nullptr, "", WS_CHILD, CRect(0, 0, 0, 0), this, 1);
    trace_->Trace("The trace begins.\n");
}

void CMainFrame::OnUpdateTrace(CCmdUI* ui) {
    ui->SetCheck(trace_ != nullptr);
}

void CMainFrame::OnTip() {
    CTipDialog(front_end_.folder + "\\tips.txt", front_end_.profile, this).DoModal();
}

void CMainFrame::OnVersions() {
    CWntVersion("Plant front end: versions", this).DoModal();
}

void CMainFrame::OnUpdateLink(CCmdUI* ui) {
    constexpr const char* states[] = {"No plant", "Plant live", "Plant silent", "Bad values"};
    ui->Enable();
    ui->SetText(states[static_cast<int>(front_end_.station.Link().State())]);
}

void CMainFrame::OnUpdateRecording(CCmdUI* ui) {
    ui->Enable();
    ui->SetText(trend_.Chart().IsRecording() ? "Recording" : "");
}
