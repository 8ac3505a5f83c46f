// What files tell about their versions, and the sheet that shows it.
#include "modal.h"
#include "pixels.h"
#include "resource_file.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

using testing::_;
using testing::ElementsAre;
using testing::MatchesRegex;
using Texts = std::vector<std::string>;

namespace {

constexpr const char* subject = "version test.dll";

std::string fact(const char* path, int kind) {
    BSTR text = CWntVersionZOPDlg().GetFileInfo(path, kind);
    const CString narrow(text);
    ::SysFreeString(text);
    return narrow.GetString();
}

VS_FIXEDFILEINFO fixed_info() {
    VS_FIXEDFILEINFO info = {};
    info.dwSignature = 0xFEEF04BD;
    info.dwFileVersionMS = 0x00010002;
    info.dwFileVersionLS = 0x0003FFFF;
    info.dwProductVersionMS = 0x000A0000;
    info.dwProductVersionLS = 0x00000007;
    return info;
}

std::string fact_of(const VS_FIXEDFILEINFO& info, int kind, const std::vector<DWORD>& translations = {0x04B00409}) {
    EXPECT_TRUE(write_version_file(subject, version_block(info, translations)));
    return fact(subject, kind);
}

std::string language_name(DWORD code) {
    char text[512] = "";
    ::VerLanguageNameA(code, text, sizeof text);
    return text;
}

} // namespace

TEST(VersionFacts, NameEveryValue) {
    EXPECT_EQ(fact_of(fixed_info(), 1), "1.2.3.65535");
    EXPECT_EQ(fact_of(fixed_info(), 2), "10.0.0.7");
    const auto check = [](int kind, DWORD VS_FIXEDFILEINFO::*field, std::vector<DWORD> values, const Texts& texts) {
        ASSERT_EQ(values.size(), texts.size());
        for (std::size_t i = 0; i < values.size(); ++i) {
            VS_FIXEDFILEINFO info = fixed_info();
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
    EXPECT_EQ(fact_of(fixed_info(), 6), language_name(0x409)); // the first one's name as the system spells it
    EXPECT_EQ(fact_of(fixed_info(), 6, {0x04B00407, 0x04B00409}), language_name(0x407));
    EXPECT_EQ(fact_of(fixed_info(), 6, {}), "");
    for (const int kind : {0, 7, -1})
        EXPECT_EQ(fact(subject, kind), "");
}

TEST(VersionFacts, AreEmptyWhereTheBlockDoesNotHoldThem) {
    const Bytes good = version_block(fixed_info(), {0x04B00409});
    constexpr std::size_t info_end = 40 + sizeof(VS_FIXEDFILEINFO);
    const auto check = [](const Bytes& block, bool has_info) {
        ASSERT_TRUE(write_version_file(subject, block));
        for (int kind = 2; kind <= 6; ++kind)
            fact(subject, kind);
        EXPECT_TRUE(has_info || fact(subject, 1).empty()) << block.size();
    };
    check(Bytes(good.begin(), good.begin() + 20), true); // what is missing counts as zeros
    for (const std::size_t at : {std::size_t{0}, std::size_t{2}, info_end, info_end + 32}) { // a wrong length
        for (const WORD told : {51, 0xFFFF}) {
            Bytes block = good;
            std::memcpy(&block[at], &told, sizeof told);
            check(block, at > 2 || told == 0xFFFF);
        }
    }
    Bytes endless = good; // no name has an end
    std::fill(endless.begin() + 6, endless.end(), 'x');
    check(endless, false);
    EXPECT_TRUE(::DeleteFileA(subject));
    const std::string long_path(5000, 'x');
    for (const char* path : {subject, "", "version_test.exe", "C:\\", "*", long_path.c_str(), (const char*)nullptr})
        EXPECT_EQ(fact(path, 1), "");
}

namespace {

/// The report list with that id on the sheet's current page.
class Table {
public:
    Table(HWND sheet, int id) : list_(::GetDlgItem(PropSheet_GetCurrentPageHwnd(sheet), id)) {}

    explicit operator bool() const { return list_ != nullptr; }
    int rows() const { return ListView_GetItemCount(list_); }
    Texts row(int row) const {
        Texts cells;
        for (int column = 0; column < Header_GetItemCount(ListView_GetHeader(list_)); ++column) {
            char text[1024] = "";
            LVITEMA item = {};
            item.iSubItem = column;
            item.pszText = text;
            item.cchTextMax = sizeof text;
            ::SendMessageA(list_, LVM_GETITEMTEXTA, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
            cells.push_back(text);
        }
        return cells;
    }
    std::string images() const {
        std::string all;
        for (int row = 0; row < rows(); ++row) {
            LVITEMA item = {};
            item.mask = LVIF_IMAGE;
            item.iItem = row;
            ::SendMessageA(list_, LVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&item));
            all += std::to_string(item.iImage);
        }
        return all + "/" + std::to_string(ImageList_GetImageCount(ListView_GetImageList(list_, LVSIL_SMALL)));
    }

private:
    HWND list_;
};

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

TEST(VersionSheet, ShowsTheComponents) {
    const auto set_attributes = [](DWORD attributes) { ::SetFileAttributesA("zopfdraw.dll", attributes); };
    set_attributes(FILE_ATTRIBUTE_NORMAL); // an interrupted run left it behind
    ASSERT_TRUE(write_version_file("zopfdraw.dll", version_block(fixed_info(), {0x04B00409})));
    set_times("zopfdraw.dll", CTime(2003, 2, 1, 13, 4, 5).GetTime());
    set_attributes(FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
    std::ofstream("zopcal.ocx") << "12345";
    set_times("zopcal.ocx", -86'400);
    const std::string earliest = CTime(0).Format("%d.%m.%Y, %H:%M:%S").GetString();
    CWntVersion sheet("Versions");
    const INT_PTR result = run(sheet, PSBTN_CANCEL, [&](HWND window) {
        const Table table(window, 1001);
        EXPECT_EQ(AfxGetResourceHandle(), ::GetModuleHandle(nullptr)); // the host's again
        ASSERT_EQ(table.rows(), 9);
        EXPECT_EQ(table.images(), "400001110/5");
        EXPECT_EQ(table.row(0)[1], working_folder());
        const auto moment = MatchesRegex("\\d\\d.\\d\\d.20\\d\\d, \\d\\d:\\d\\d:\\d\\d");
        EXPECT_THAT(table.row(1),
                    ElementsAre(_, "ZOPWNT.dll", _, MatchesRegex("\\d\\d\\d\\d+ bytes"), moment, moment, "1.0.0.0",
                                "1.0.0.0", "      ", "NT-Win32", "Dynamic Link Library", language_name(0x409)));
        const Texts drawing = table.row(3);
        EXPECT_EQ(drawing[2].substr(0, 5), "rhs--");
        // The file version under "Product".
        EXPECT_THAT(Texts(drawing.begin() + 4, drawing.begin() + 8),
                    ElementsAre("01.02.2003, 13:04:05", "01.02.2003, 13:04:05", "1.2.3.65535", "10.0.0.7"));
        EXPECT_THAT(table.row(5), ElementsAre(_, "zopgauge.ocx", "------", "0 bytes", _, _, "", "", "", "", "", ""));
        EXPECT_THAT(table.row(8),
                    ElementsAre(_, "zopcal.ocx", _, "5 bytes", earliest, earliest, "", "", "", "", "", ""));
    });
    EXPECT_EQ(result, IDCANCEL);
    set_attributes(FILE_ATTRIBUTE_NORMAL);
    EXPECT_TRUE(::DeleteFileA("zopfdraw.dll") && ::DeleteFileA("zopcal.ocx"));
}

TEST(VersionSheet, ShowsTheEnvironmentEachTimeItOpens) {
    const std::string old_path = std::getenv("PATH");
    ::SetEnvironmentVariableA("HOSTNAME", "machine");
    CWntVersion sheet("Versions", nullptr, 1);
    for (const bool cut : {false, true}) {
        const std::string path(cut ? 80 : 79, 'p');
        ::SetEnvironmentVariableA("PATH", path.c_str());
        std::string labels;
        Texts contents;
        const INT_PTR result = run(sheet, PSBTN_OK, [&](HWND window) {
            const Table table(window, 1005);
            EXPECT_EQ(table.images(), "0124433305/6");
            for (int row = 0; row < table.rows(); ++row) {
                labels += table.row(row)[0] + ",";
                contents.push_back(table.row(row)[1]);
            }
        });
        ::SetEnvironmentVariableA("PATH", old_path.c_str());
        EXPECT_EQ(result, IDOK);
        EXPECT_EQ(labels, "Computer,Username,Plattform,Version,Build Nummer,Windows directory,"
                          "Windows System directory,Current workdirectory,Hostname,Path,");
        EXPECT_THAT(contents, ElementsAre(testing::Ne(""), testing::Ne(""), "Win32 on Windows NT",
                                          MatchesRegex("\\d+\\.\\d+"), MatchesRegex("\\d+"), "C:\\windows",
                                          "C:\\windows\\system32", working_folder(), "machine", cut ? "" : path));
    }
    EXPECT_EQ(sheet.GetPageCount(), 2);
}

TEST(VersionSheet, GivesEverythingBack) {
    Counts before;
    for (int i = 0; i < 22; ++i) {
        CWntVersion sheet("Versions", nullptr, i % 2);
        run(sheet, PSBTN_CANCEL, [](HWND) {});
        if (i == 1) // some objects are made once
            before = {};
    }
    EXPECT_LT(before.grown(), 10);
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
