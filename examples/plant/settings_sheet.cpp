#include "settings_sheet.h"

#include "recorded_days.h"
#include "resource.h"

// -- Limits -----------------------------------------------------------------------------------------------------------

CLimitsPage::CLimitsPage(FrontEndSettings& settings) : CPropertyPage(IDD_LIMITS), settings_(settings) {}

void CLimitsPage::DoDataExchange(CDataExchange* exchange) {
    CPropertyPage::DoDataExchange(exchange);
    for (std::size_t i = 0; i < plant_channels; ++i) {
        const ChannelRange& range = plant_ranges[i];
        ChannelLimits& limits = settings_.limits[i];
        DDX_Text(exchange, static_cast<int>(IDC_LOW_FIRST + i), limits.low);
        DDV_MinMaxInt(exchange, limits.low, range.least, range.greatest - 1);
        DDX_Text(exchange, static_cast<int>(IDC_HIGH_FIRST + i), limits.high);
        DDV_MinMaxInt(exchange, limits.high, limits.low + 1, range.greatest);
    }
}

// -- Colours ----------------------------------------------------------------------------------------------------------

BEGIN_MESSAGE_MAP(CColoursPage, CPropertyPage)
ON_LBN_SELCHANGE(IDC_CHANNELS, &CColoursPage::OnChannel)
ON_NOTIFY(1, IDC_COLOURS, &CColoursPage::OnColour)
END_MESSAGE_MAP()

CColoursPage::CColoursPage(FrontEndSettings& settings) : CPropertyPage(IDD_COLOURS), settings_(settings) {}

void CColoursPage::DoDataExchange(CDataExchange* exchange) {
    CPropertyPage::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_CHANNELS, channels_);
    DDX_Control(exchange, IDC_COLOURS, selector_);
}

BOOL CColoursPage::OnInitDialog() {
    CPropertyPage::OnInitDialog();
    for (const ChannelRange& range : plant_ranges)
        channels_.AddString(range.name);
    selector_.SetColorPalette(FrontEndSettings::Palette(), FrontEndSettings::palette_size);
    channels_.SetCurSel(0);
    OnChannel();
    return TRUE;
}

void CColoursPage::OnChannel() {
    if (const int channel = channels_.GetCurSel(); channel != LB_ERR)
        selector_.SetSelectedColorID(settings_.colours[static_cast<std::size_t>(channel)]);
}

// The strip above the colours is none of them.
void CColoursPage::OnColour(NMHDR*, LRESULT* result) {
    const int channel = channels_.GetCurSel(), colour = selector_.GetSelectedColorID();
    if (channel != LB_ERR && 0 <= colour && colour < FrontEndSettings::palette_size)
        settings_.colours[static_cast<std::size_t>(channel)] = colour;
    *result = 0;
}

// -- Recording --------------------------------------------------------------------------------------------------------

BEGIN_MESSAGE_MAP(CRecordingPage, CPropertyPage)
ON_BN_CLICKED(IDC_BROWSE, &CRecordingPage::OnBrowse)
END_MESSAGE_MAP()

CRecordingPage::CRecordingPage(FrontEndSettings& settings) : CPropertyPage(IDD_RECORDING), settings_(settings) {}

void CRecordingPage::DoDataExchange(CDataExchange* exchange) {
    CPropertyPage::DoDataExchange(exchange);
    DDX_Text(exchange, IDC_FOLDER, settings_.folder);
    DDV_MaxChars(exchange, settings_.folder, MAX_PATH - 30); // room for a recording's name
    DDX_Check(exchange, IDC_SOUND, settings_.sound);
    if (!exchange->m_bSaveAndValidate)
        return;
    ::CreateDirectory(settings_.folder, nullptr);
    const DWORD attributes = ::GetFileAttributes(settings_.folder);
    if (attributes != INVALID_FILE_ATTRIBUTES && attributes & FILE_ATTRIBUTE_DIRECTORY)
        return;
    exchange->PrepareEditCtrl(IDC_FOLDER);
    AfxMessageBox("This folder cannot be made.", MB_ICONEXCLAMATION);
    exchange->Fail();
}

// A file of the folder stands for it.
void CRecordingPage::OnBrowse() {
    CString folder;
    GetDlgItemText(IDC_FOLDER, folder);
    CWntFileSel choice(FALSE, "txt", recording_name, OFN_HIDEREADONLY | OFN_NOCHANGEDIR, "Recordings|*.txt||", this);
    choice.m_ofn.lpstrInitialDir = folder;
    if (choice.DoModal() != IDOK)
        return;
    const CString path = choice.GetPathName();
    SetDlgItemText(IDC_FOLDER, path.Left(path.ReverseFind('\\')));
}

// -- The sheet --------------------------------------------------------------------------------------------------------

CSettingsSheet::CSettingsSheet(const FrontEndSettings& settings, CWnd* parent)
    : CPropertySheet("Settings", parent), chosen_(settings), limits_(chosen_), colours_(chosen_), recording_(chosen_) {
    m_psh.dwFlags |= PSH_NOAPPLYNOW;
    AddPage(&limits_);
    AddPage(&colours_);
    AddPage(&recording_);
}
