#include "diag/wnt_version.h"

#include <algorithm>
#include <cstdint>

#include "diag/file_version.h"
#include "diag/report_list.h"
#include "library_resources.h"
#include "out/default_printer.h"
#include "res/resource.h"

IMPLEMENT_DYNCREATE(CWntVersionZOPDlg, CPropertyPage)

BEGIN_MESSAGE_MAP(CWntVersionZOPDlg, CPropertyPage)
ON_WM_DESTROY()
ON_BN_CLICKED(IDC_VERSION_PRINT, &CWntVersionZOPDlg::OnWntverzopPrint)
END_MESSAGE_MAP()

namespace {

struct Component {
    const char* name;
    const char* file;
};

constexpr Component components[] = {
    // Graphics
    {"Widget Library", "ZOPWNT.dll"},
    {"Framework Subset", "zopafx.dll"},
    {"Drawing Support", "zopfdraw.dll"},
    {"Widget Gallery", "zopgallery.exe"},
    // Controls
    {"Gauge Control", "zopgauge.ocx"},
    {"Button Control", "zopbutton.ocx"},
    {"Axis Control", "zopaxis.ocx"},
    {"Calendar Control", "zopcal.ocx"},
};

// Intended: the file version stands under "Product" and the product version under "File".
constexpr wnt::ReportColumn columns[] = {
    {"Component", 150},       {"Executable", 150}, {"Flags", 40},     {"Size", 100, LVCFMT_RIGHT},
    {"Created", 150},         {"Modified", 150},   {"Product", 50},   {"File", 50},
    {"Additional Info", 200}, {"OS Type", 100},    {"Filetype", 100}, {"Language/Codepage", 100},
};
constexpr int flags_column = 2;
constexpr int first_fact_column = 6;

constexpr int present_image = 0;
constexpr int missing_image = 1;
constexpr int installation_image = 4;

constexpr int path_limit = 256;

/// All zero where the status cannot be read: the file may be gone since it was opened.
WIN32_FILE_ATTRIBUTE_DATA file_status(const char* path) {
    WIN32_FILE_ATTRIBUTE_DATA status = {};
    return ::GetFileAttributesExA(path, GetFileExInfoStandard, &status) ? status : WIN32_FILE_ATTRIBUTE_DATA{};
}

CString attributes_text(DWORD attributes) {
    constexpr DWORD volume = 0x08; // of the attributes' byte in directories; the platform's headers have no name for it
    const auto letter = [attributes](DWORD bit, char shown) { return attributes & bit ? shown : '-'; };
    CString text;
    text.Format("%c%c%c%c%c%c", letter(FILE_ATTRIBUTE_READONLY, 'r'), letter(FILE_ATTRIBUTE_HIDDEN, 'h'),
                letter(FILE_ATTRIBUTE_SYSTEM, 's'), letter(volume, 'v'), letter(FILE_ATTRIBUTE_DIRECTORY, 'd'),
                letter(FILE_ATTRIBUTE_ARCHIVE, 'a'));
    return text;
}

CString time_text(const FILETIME& time) {
    constexpr std::int64_t ticks_a_second = 10'000'000;
    constexpr std::int64_t years_1601_to_1970 = 11'644'473'600;
    const auto ticks = static_cast<std::int64_t>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
    const std::int64_t seconds = std::max<std::int64_t>(ticks / ticks_a_second - years_1601_to_1970, 0);
    return CTime(seconds).Format("%d.%m.%Y, %H:%M:%S");
}

bool can_open(const char* path) {
    CFile file;
    return file.Open(path, CFile::modeRead | CFile::shareDenyNone);
}

CString path_of_module() {
    char path[path_limit + 1] = "";
    ::GetModuleFileNameA(wnt::library_module(), path, sizeof path);
    path[path_limit] = '\0'; // a longer one is cut, by some systems without an end
    return path;
}

CString full_path_of(const CString& path) {
    char full[path_limit + 1] = "";
    const DWORD length = ::GetFullPathNameA(path, sizeof full, full, nullptr);
    return length < sizeof full ? CString(full) : path;
}

CString directory_of(const CString& path) {
    const int separator = std::max(path.ReverseFind('\\'), path.ReverseFind('/'));
    return separator < 0 ? path : path.Left(separator);
}

} // namespace

CWntVersionZOPDlg::CWntVersionZOPDlg() : CPropertyPage(IDD_VERSION_COMPONENTS) {
    m_psp.hInstance = wnt::library_module(); // whatever a host's resources hold under the same number
}

BSTR CWntVersionZOPDlg::GetFileInfo(const char* path, int kind) {
    return wnt::version_fact(path, kind).AllocSysString();
}

BOOL CWntVersionZOPDlg::OnInitDialog() {
    CPropertyPage::OnInitDialog();
    FindInstallation();
    wnt::LibraryResources current;
    images_.Create(IDB_VERSION_COMPONENTS, 16, 4, 0x808000);
    if (HWND list = ::GetDlgItem(m_hWnd, IDC_VERSION_COMPONENTS))
        ShowComponents(list);
    return 1;
}

void CWntVersionZOPDlg::FindInstallation() {
    module_ = path_of_module();
    full_path_ = full_path_of(module_);
    directory_ = directory_of(full_path_);
    directory_line_.Format("Installation Directory: %s", directory_.GetString());
    summary_.RemoveAll();
    summary_.Add("ZOP Version Control Summary");
    summary_.Add(CString('-', 71));
    summary_.Add(directory_line_);
}

void CWntVersionZOPDlg::ShowComponents(HWND control) {
    wnt::ReportList list(control);
    list.set_images(images_);
    list.add_columns(columns);
    list.set_cell(list.add_row("Installation", installation_image), 1, directory_);
    for (const Component& component : components) {
        CString path;
        path.Format("%s\\%s", directory_.GetString(), component.file);
        const int row = list.add_row(component.name, can_open(path) ? present_image : missing_image);
        const WIN32_FILE_ATTRIBUTE_DATA status = file_status(path);
        CString size;
        size.Format("%ld bytes", static_cast<long>(status.nFileSizeLow));
        int column = flags_column - 1;
        for (const CString& cell : {CString(component.file), attributes_text(status.dwFileAttributes), size,
                                    time_text(status.ftCreationTime), time_text(status.ftLastWriteTime)})
            list.set_cell(row, column++, cell);
        column = first_fact_column;
        for (const CString& fact : wnt::version_facts(path))
            list.set_cell(row, column++, fact);
    }
}

void CWntVersionZOPDlg::OnDestroy() {
    CPropertyPage::OnDestroy();
    wnt::ReportList(::GetDlgItem(m_hWnd, IDC_VERSION_COMPONENTS)).set_images(nullptr);
    images_.DeleteImageList();
}

void CWntVersionZOPDlg::OnWntverzopPrint() {
    wnt::DefaultPrinter printer;
    if (!printer.begin("ZOP Version Control"))
        return;
    printer.page().SetBkMode(TRANSPARENT); // the lines stand closer than the default font is high
    for (INT_PTR i = 0; i < summary_.GetSize(); ++i)
        printer.page().TextOut(100, 100 + 50 * static_cast<int>(i), summary_[i]);
    printer.end();
}
