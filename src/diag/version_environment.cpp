#include "diag/wnt_version.h"

#include <iterator>

#include "diag/report_list.h"
#include "library_resources.h"
#include "res/resource.h"

IMPLEMENT_DYNCREATE(CWntVersionWinDlg, CPropertyPage)

BEGIN_MESSAGE_MAP(CWntVersionWinDlg, CPropertyPage)
ON_WM_DESTROY()
END_MESSAGE_MAP()

namespace {

constexpr int folder_limit = 255;
constexpr int variable_limit = 80;

constexpr wnt::ReportColumn columns[] = {{"Description", 200}, {"Content", 800}};

// The platform's calls answer the length of what they copied, or of what they would have needed.
template <int limit, class Call> CString copied_text(Call call) {
    char text[limit] = {};
    const DWORD length = call(text, limit);
    return length > 0 && length < limit ? CString(text) : CString();
}

CString folder_of(UINT(WINAPI* call)(LPSTR, UINT)) {
    return copied_text<folder_limit>([call](char* text, int limit) { return call(text, static_cast<UINT>(limit)); });
}

CString working_folder() {
    return copied_text<MAX_PATH>([](char* text, DWORD limit) { return ::GetCurrentDirectoryA(limit, text); });
}

CString variable(const char* name) {
    return copied_text<variable_limit>(
        [name](char* text, DWORD limit) { return ::GetEnvironmentVariableA(name, text, limit); });
}

CString registered_name(BOOL(WINAPI* call)(LPSTR, LPDWORD)) {
    char text[256] = "";
    DWORD size = sizeof text;
    return call(text, &size) ? CString(text) : CString();
}

struct System {
    CString platform;
    CString version;
    CString build;
};

CString platform_name(DWORD id) {
    constexpr const char* names[] = {"Win32s on Windows 3.1.", "Win32 on Windows 95", "Win32 on Windows NT"};
    return id < std::size(names) ? names[id] : "Win32 on Apple MacIntosh";
}

System system_facts() {
    OSVERSIONINFOA record = {};
    record.dwOSVersionInfoSize = sizeof record;
    if (!::GetVersionExA(&record))
        return {};
    System facts;
    facts.platform = platform_name(record.dwPlatformId);
    facts.version.Format("%ld.%ld", record.dwMajorVersion, record.dwMinorVersion);
    facts.build.Format("%ld", record.dwBuildNumber);
    return facts;
}

struct Row {
    CString label;
    CString content;
    int image;
};

CString label(UINT id) {
    return CString(MAKEINTRESOURCE(id));
}

} // namespace

CWntVersionWinDlg::CWntVersionWinDlg() : CPropertyPage(IDD_VERSION_ENVIRONMENT) {
    m_psp.hInstance = wnt::library_module(); // whatever a host's resources hold under the same number
}

BOOL CWntVersionWinDlg::OnInitDialog() {
    CPropertyPage::OnInitDialog();
    wnt::LibraryResources current;
    images_.Create(IDB_VERSION_ENVIRONMENT, 16, 5, 0x808000);
    wnt::ReportList list(::GetDlgItem(m_hWnd, IDC_VERSION_ENVIRONMENT));
    list.set_images(images_);
    list.add_columns(columns);
    const System system = system_facts();
    const Row rows[] = {
        {label(IDS_VERSION_COMPUTER), registered_name(::GetComputerNameA), 0},
        {label(IDS_VERSION_USER), registered_name(::GetUserNameA), 1},
        {label(IDS_VERSION_PLATFORM), system.platform, 2},
        {label(IDS_VERSION_NUMBER), system.version, 4},
        {label(IDS_VERSION_BUILD), system.build, 4},
        {label(IDS_VERSION_WINDOWS_FOLDER), folder_of(::GetWindowsDirectoryA), 3},
        {label(IDS_VERSION_SYSTEM_FOLDER), folder_of(::GetSystemDirectoryA), 3},
        {label(IDS_VERSION_WORKING_FOLDER), working_folder(), 3},
        {"Hostname", variable("HOSTNAME"), 0},
        {"Path", variable("PATH"), 5},
    };
    for (const Row& row : rows)
        list.set_cell(list.add_row(row.label, row.image), 1, row.content);
    return TRUE;
}

void CWntVersionWinDlg::OnDestroy() {
    CPropertyPage::OnDestroy();
    wnt::ReportList(::GetDlgItem(m_hWnd, IDC_VERSION_ENVIRONMENT)).set_images(nullptr);
    images_.DeleteImageList();
}
