// What files tell about their versions, and the sheet that shows it.
#include "modal.h"
#include "quiet_program.h"
#include "pixels.h"
#include "resource_file.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

using namespace testing;
using Texts = std::vector<std::string>;

namespace {

constexpr const char* subject = "version test.dll";

std::string fact(const char* path, int kind) {
    BSTR text = CWntVersionZOPDlg().GetFileInfo(path, kind);
    const CString narrow(text);
    ::SysFreeString(text);
    return narrow.GetString();
}

// The file's version, then the product's.
constexpr VS_FIXEDFILEINFO fixed_info = {0xFEEF04BD, 0, 0x00010002, 0x0003FFFF, 0x000A0000, 0x00000007, 0,
                                         0,          0, 0,          0,          0,          0};

std::string fact_of(const VS_FIXEDFILEINFO& info, int kind, const std::vector<DWORD>& translations = {0x04B00409}) {
    EXPECT_TRUE(write_version_file(subject, version_block(info, translations)));
    return fact(subject, kind);
}

std::string language_name(DWORD code) {
    char text[512] = "";
    ::VerLanguageNameA(code, text, sizeof text);
    return text;
}

/// The cells of a report list on the sheet's current page, each row behind the number of its image.
std::vector<Texts> rows_of(HWND sheet, int id) {
    HWND list = ::GetDlgItem(PropSheet_GetCurrentPageHwnd(sheet), id);
    const int images = ImageList_GetImageCount(ListView_GetImageList(list, LVSIL_SMALL));
    std::vector<Texts> rows(static_cast<std::size_t>(ListView_GetItemCount(list)));
    for (int i = 0; i < ListView_GetItemCount(list) * Header_GetItemCount(ListView_GetHeader(list)); ++i) {
        Texts& row = rows[i % rows.size()];
        char text[1024] = "";
        LVITEMA item = {};
        item.mask = LVIF_TEXT | LVIF_IMAGE;
        item.iItem = static_cast<int>(i % rows.size());
        item.iSubItem = static_cast<int>(i / rows.size());
        item.pszText = text, item.cchTextMax = sizeof text;
        ::SendMessageA(list, LVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&item));
        if (row.empty())
            row.push_back(item.iImage < images ? std::to_string(item.iImage) : "none");
        row.push_back(text);
    }
    return rows;
}

/// Title, width and alignment of each of its columns.
std::string columns_of(HWND sheet, int id) {
    HWND list = ::GetDlgItem(PropSheet_GetCurrentPageHwnd(sheet), id);
    std::string texts;
    char text[64] = "";
    LVCOLUMNA column = {};
    column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
    column.pszText = text;
    column.cchTextMax = sizeof text;
    for (int i = 0; ::SendMessageA(list, LVM_GETCOLUMNA, i, reinterpret_cast<LPARAM>(&column)); ++i)
        texts += text + std::string(" ") + std::to_string(column.cx) + (column.fmt & LVCFMT_RIGHT ? " right|" : "|");
    return texts;
}

/// Runs the sheet: the function sees the page that it opens on, then the button is pressed.
INT_PTR run(CWntVersion& sheet, WPARAM button, const std::function<void(HWND)>& page) {
    WhileModal modal([&] {
        if (!sheet.m_hWnd || !PropSheet_GetCurrentPageHwnd(sheet.m_hWnd))
            return false;
        page(sheet.m_hWnd);
        PropSheet_PressButton(sheet.m_hWnd, button);
        return true;
    });
    return sheet.DoModal();
}

/// Both times to one moment, in seconds since 1970: not every system keeps two.
void set_times(const char* path, std::int64_t seconds) {
    const std::int64_t ticks = (seconds + 11'644'473'600) * 10'000'000;
    const FILETIME time = {static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
    CFile file;
    ASSERT_TRUE(file.Open(path, CFile::modeReadWrite));
    EXPECT_TRUE(::SetFileTime(file, &time, nullptr, &time));
}

std::string working_folder() {
    return std::filesystem::current_path().string();
}

} // namespace

TEST(VersionFacts, NameEveryValue) {
    EXPECT_EQ(fact_of(fixed_info, 1) + " " + fact_of(fixed_info, 2), "1.2.3.65535 10.0.0.7");
    const auto check = [](int kind, DWORD VS_FIXEDFILEINFO::*field, std::vector<DWORD> values, const Texts& texts) {
        ASSERT_EQ(values.size(), texts.size());
        for (std::size_t i = 0; i < values.size(); ++i) {
            VS_FIXEDFILEINFO info = fixed_info;
            info.*field = values[i];
            EXPECT_EQ(fact_of(info, kind), texts[i]) << kind << ": " << values[i];
        }
    };
    check(3, &VS_FIXEDFILEINFO::dwFileFlags, {0, 0x3F, 0x01, 0x0A, 0x14, 0xE0, 0x100, 0x80000000},
          {"      ", "Debug PreRel Patched Private Info Special ", "Debug     Special ", " PreRel  Private   ",
           "  Patched  Info  ", "      ", "      Unknown", "      Unknown"});
    check(4, &VS_FIXEDFILEINFO::dwFileOS, {0x10001, 0x10004, 4, 0x40004, 0x20002, 0x30003, 0x40000, 0},
          {"DOS-Win16", "DOS-Win32", "NT-Win32", "NT-Win32", "OS/2-16 PM-16", "OS/2-32 PM-32", "Unknown", "Unknown"});
    check(5, &VS_FIXEDFILEINFO::dwFileType, {0, 1, 2, 3, 4, 5, 6, 7, 8},
          {"Unknown", "Application", "Dynamic Link Library", "Driver", "Font", "Virtual Device Driver", "Unknown",
           "Static Link Library", "Unknown"});
    check(1, &VS_FIXEDFILEINFO::dwSignature, {0}, {"1.2.3.65535"}); // any signature will do
    ASSERT_NE(language_name(0x407), language_name(0x409));
    EXPECT_EQ(fact_of(fixed_info, 6), language_name(0x409)); // the first one's name as the system spells it
    EXPECT_EQ(fact_of(fixed_info, 6, {0x04B00407, 0x04B00409}), language_name(0x407));
    EXPECT_EQ(fact_of(fixed_info, 6, {}), "");
    for (const int kind : {0, 7, -1})
        EXPECT_EQ(fact(subject, kind), "");
}

TEST(VersionFacts, AreEmptyWhereTheBlockDoesNotHoldThem) {
    const Bytes good = version_block(fixed_info, {0x04B00409});
    constexpr std::size_t info_end = 40 + sizeof(VS_FIXEDFILEINFO);
    const auto check = [](const Bytes& block, bool has_info) {
        ASSERT_TRUE(write_version_file(subject, block));
        for (int kind = 2; kind <= 6; ++kind)
            fact(subject, kind);
        EXPECT_TRUE(has_info || fact(subject, 1).empty()) << block.size();
    };
    check(Bytes(good.begin(), good.begin() + 20), true); // what is missing counts as zeros
    for (const std::size_t at : {std::size_t{0}, std::size_t{2}, info_end, info_end + 32}) // a wrong length
        for (const WORD told : {51, 0xFFFF}) {
            Bytes block = good;
            std::memcpy(&block[at], &told, sizeof told);
            check(block, at > 2 || told == 0xFFFF);
        }
    Bytes endless = good; // no name has an end
    std::fill(endless.begin() + 6, endless.end(), 'x');
    check(endless, false);
    EXPECT_TRUE(::DeleteFileA(subject));
    const std::string long_path(5000, 'x');
    for (const char* path : {subject, "", "version_test.exe", "C:\\", "*", long_path.c_str(), (const char*)nullptr})
        EXPECT_EQ(fact(path, 1), "");
}

TEST(VersionSheet, ShowsTheComponents) {
    ASSERT_TRUE(write_version_file("zopfdraw.dll", version_block(fixed_info, {0x04B00409})));
    set_times("zopfdraw.dll", CTime(2003, 2, 1, 13, 4, 5).GetTime());
    ::SetFileAttributesA("zopfdraw.dll", FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_SYSTEM);
    std::ofstream("zopcal.ocx") << "12345";
    CWntVersion sheet("Versions");
    const INT_PTR result = run(sheet, PSBTN_CANCEL, [&](HWND window) {
        const auto rows = rows_of(window, 1001);
        EXPECT_EQ(AfxGetResourceHandle(), ::GetModuleHandle(nullptr)); // the host's again
        ASSERT_EQ(rows.size(), 9u);
        std::string names;
        for (const Texts& row : rows)
            names += row[0] + " " + row[1] + ": " + row[2] + "\n";
        EXPECT_EQ(names, "4 Installation: " + working_folder() +
                             "\n0 Widget Library: ZOPWNT.dll\n0 Framework Subset: zopafx.dll\n"
                             "0 Drawing Support: zopfdraw.dll\n0 Widget Gallery: zopgallery.exe\n"
                             "1 Gauge Control: zopgauge.ocx\n1 Button Control: zopbutton.ocx\n"
                             "1 Axis Control: zopaxis.ocx\n0 Calendar Control: zopcal.ocx\n");
        EXPECT_EQ(columns_of(window, 1001),
                  "Component 150|Executable 150|Flags 40|Size 100 right|Created 150|Modified 150|Product 50|File 50|"
                  "Additional Info 200|OS Type 100|Filetype 100|Language/Codepage 100|");
        EXPECT_FALSE(::IsWindowVisible(::GetDlgItem(window, ID_APPLY_NOW)));
        const auto moment = MatchesRegex("\\d\\d.\\d\\d.20\\d\\d, \\d\\d:\\d\\d:\\d\\d");
        EXPECT_THAT(rows[1],
                    ElementsAre(_, _, _, _, MatchesRegex("\\d\\d\\d\\d+ bytes"), moment, moment, "1.1.0.0", "1.1.0.0",
                                "      ", "NT-Win32", "Dynamic Link Library", language_name(0x409)));
        // Intended: the file version under "Product".
        EXPECT_THAT(rows[3], ElementsAre(_, _, _, StartsWith("r-s--"), _, "01.02.2003, 13:04:05",
                                         "01.02.2003, 13:04:05", "1.2.3.65535", "10.0.0.7", _, _, _, _));
        EXPECT_THAT(rows[5], ElementsAre(_, _, _, "------", "0 bytes", _, _, "", "", "", "", "", ""));
        EXPECT_THAT(rows[8], ElementsAre(_, _, _, _, "5 bytes", moment, moment, "", "", "", "", "", ""));
    });
    EXPECT_EQ(result, IDCANCEL);
    ::SetFileAttributesA("zopfdraw.dll", FILE_ATTRIBUTE_NORMAL);
    EXPECT_TRUE(::DeleteFileA("zopfdraw.dll") && ::DeleteFileA("zopcal.ocx"));
}

TEST(VersionSheet, ShowsTheEnvironmentEachTimeItOpens) {
    const std::string old_path = std::getenv("PATH");
    ::SetEnvironmentVariableA("HOSTNAME", "machine");
    CWntVersion sheet(114, nullptr, 1);
    for (const std::string& path : {std::string(79, 'p'), std::string(80, 'p')}) {
        ::SetEnvironmentVariableA("PATH", path.c_str());
        std::string shown;
        const auto read = [&](HWND window) {
            EXPECT_FALSE(::IsWindowVisible(::GetDlgItem(window, ID_APPLY_NOW)));
            CString caption;
            sheet.GetWindowText(caption);
            shown = caption + ", " + std::to_string(sheet.GetPageCount()).c_str() + " pages: ";
            shown += columns_of(window, 1005) + "\n";
            for (const Texts& row : rows_of(window, 1005))
                shown += row[0] + " " + row[1] + ": " + row[2] + "\n";
        };
        EXPECT_EQ(run(sheet, PSBTN_OK, read), IDOK);
        ::SetEnvironmentVariableA("PATH", old_path.c_str());
        EXPECT_THAT(
            shown,
            MatchesRegex("Host, 2 pages: Description 200\\|Content 800\\|\n"
                         "0 Computer: " +
                         std::string(std::getenv("COMPUTERNAME")) + "\n1 Username: " + std::getenv("USERNAME") +
                         "\n2 Plattform: Win32 on Windows NT\n4 Version: " + std::to_string(LOBYTE(::GetVersion())) +
                         "\\." + std::to_string(HIBYTE(::GetVersion())) +
                         "\n4 Build Nummer: \\d+\n"
                         "3 Windows directory: C:.windows\n3 Windows System directory: .*system32\n"
                         "3 Current workdirectory: .+\n0 Hostname: machine\n5 Path: p*\n"));
        EXPECT_EQ(shown.find(path) != shown.npos, path.size() < 80); // longer ones are left out
    }
}

TEST(WithoutPrinter, NothingIsPrintedAndNothingShown) {
    CWnd window;
    ASSERT_TRUE(window.CreateEx(0, nullptr, "w", WS_POPUP | WS_VISIBLE, CRect(20, 30, 120, 130), nullptr, 0));
    CWntVersion sheet("Versions");
    int calls = 0; // a second one comes from the loop of a window that was not to be
    const auto try_both = [&](HWND shown) {
        if (++calls > 1)
            return;
        MakeHardcopy(&window, "not printed");
        ::SendMessage(::GetDlgItem(PropSheet_GetCurrentPageHwnd(shown), 1002), BM_CLICK, 0, 0);
    };
    EXPECT_EQ(run(sheet, PSBTN_CANCEL, try_both), IDCANCEL);
    EXPECT_EQ(calls, 1);
}
