// What files tell about their versions, and the sheet that shows it.
#include "modal.h"
#include "resource_file.h"

#include <gmock/gmock.h>

#include <fstream>
#include <string>

using testing::ElementsAre;
using testing::MatchesRegex;
using Texts = std::vector<std::string>;

namespace {

ModalProgram program;

class Framework : public testing::Environment {
    void SetUp() override {
        ASSERT_TRUE(AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), 0));
        char path[MAX_PATH] = "";
        ::GetModuleFileNameA(nullptr, path, sizeof path);
        *std::strrchr(path, '\\') = '\0';
        ASSERT_TRUE(::SetCurrentDirectoryA(path));
    }
};
const testing::Environment* const environment = testing::AddGlobalTestEnvironment(new Framework);

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
    info.dwStrucVersion = 0x10000;
    info.dwFileVersionMS = 0x00010002;
    info.dwFileVersionLS = 0x0003FFFF;
    info.dwProductVersionMS = 0x000A0000;
    info.dwProductVersionLS = 0x00000007;
    return info;
}

std::string fact_of(const VS_FIXEDFILEINFO& info, int kind, const std::vector<DWORD>& translations = {0x04B00409}) {
    EXPECT_TRUE(write_version_file(subject, VersionBlockWriter().block(info, translations)));
    return fact(subject, kind);
}

std::string language_name(DWORD code) {
    char text[512] = "";
    ::VerLanguageNameA(code, text, sizeof text);
    return text;
}

} // namespace

TEST(VersionFacts, NameEveryValue) {
    VS_FIXEDFILEINFO info = fixed_info();
    EXPECT_EQ(fact_of(info, 1), "1.2.3.65535");
    EXPECT_EQ(fact_of(info, 2), "10.0.0.7");

    const struct {
        DWORD value;
        const char* text;
    } flags[] = {{0, "      "},
                 {0x3F, "Debug PreRel Patched Private Info Special "},
                 {0x01, "Debug     Special "},
                 {0x20, "      "},
                 {0x0A, " PreRel  Private   "},
                 {0x14, "  Patched  Info  "},
                 {0x80, "      "},
                 {0x100, "      Unknown"},
                 {0x80000000, "      Unknown"}};
    for (const auto& c : flags) {
        info.dwFileFlags = c.value;
        EXPECT_EQ(fact_of(info, 3), c.text) << c.value;
    }
    const struct {
        DWORD value;
        const char* text;
    } systems[] = {
        {0x00010001, "DOS-Win16"},     {0x00010004, "DOS-Win32"},     {4, "NT-Win32"},         {0x00040004, "NT-Win32"},
        {0x00020002, "OS/2-16 PM-16"}, {0x00030003, "OS/2-32 PM-32"}, {0x00040000, "Unknown"}, {0, "Unknown"}};
    for (const auto& c : systems) {
        info.dwFileOS = c.value;
        EXPECT_EQ(fact_of(info, 4), c.text) << c.value;
    }
    const char* types[] = {"Unknown",
                           "Application",
                           "Dynamic Link Library",
                           "Driver",
                           "Font",
                           "Virtual Device Driver",
                           "Unknown",
                           "Static Link Library",
                           "Unknown"};
    for (DWORD type = 0; type < std::size(types); ++type) {
        info.dwFileType = type;
        EXPECT_EQ(fact_of(info, 5), types[type]);
    }
    EXPECT_EQ(fact_of(info, 6), language_name(0x409)); // the first one's name as the system spells it
    EXPECT_EQ(fact_of(info, 6, {0x04B00407, 0x04B00409}), language_name(0x407));
    EXPECT_NE(language_name(0x407), language_name(0x409));
    for (const int kind : {0, 7, -1})
        EXPECT_EQ(fact(subject, kind), "");
    EXPECT_TRUE(::DeleteFileA(subject));
}

TEST(VersionFacts, AreEmptyWhereTheBlockDoesNotHoldThem) {
    const VS_FIXEDFILEINFO info = fixed_info();
    EXPECT_EQ(fact_of(info, 6, {}), "");
    const Bytes good = VersionBlockWriter().block(info, {0x04B00409});
    constexpr std::size_t info_end = 40 + sizeof info;
    const auto facts_hold = [](const Bytes& block, bool has_info) {
        ASSERT_TRUE(write_version_file(subject, block));
        for (int kind = 1; kind <= 6; ++kind)
            fact(subject, kind);
        if (!has_info) {
            EXPECT_EQ(fact(subject, 1), "") << block.size();
        }
    };
    for (std::size_t size = 2; size < good.size(); size += 9) { // ends early, and says so or not
        Bytes block(good.begin(), good.begin() + static_cast<std::ptrdiff_t>(size));
        facts_hold(block, size >= 44); // the bytes that are missing count as zeros
        const auto told = static_cast<WORD>(size);
        std::memcpy(block.data(), &told, sizeof told);
        facts_hold(block, size >= info_end);
    }
    for (const std::size_t at : {std::size_t{0}, std::size_t{2}, info_end, info_end + 2, info_end + 32}) {
        for (const WORD told : {0, 1, 51, 0x7FFF, 0xFFFF}) {
            Bytes block = good;
            std::memcpy(&block[at], &told, sizeof told);
            const bool system_decides = at == 0 && told == 0; // some put their own mark behind the length
            facts_hold(block, system_decides || at > 2 || told >= (at == 0 ? info_end : sizeof info));
        }
    }
    Bytes endless = good; // no name has an end
    std::fill(endless.begin() + 6, endless.end(), 'x');
    facts_hold(endless, false);
    EXPECT_TRUE(::DeleteFileA(subject));
    for (const char* path : {"no such file", "", "version_test.exe", "C:\\", "*", subject})
        EXPECT_EQ(fact(path, 1), "") << path;
    EXPECT_EQ(fact(nullptr, 1), "");
    EXPECT_EQ(fact(std::string(5000, 'x').c_str(), 1), "");
}

namespace {

// The cells of the report list with that id on the sheet's current page.
class Table {
public:
    Table(HWND sheet, int id) : list_(::GetDlgItem(PropSheet_GetCurrentPageHwnd(sheet), id)) {}

    explicit operator bool() const { return list_ != nullptr; }
    int rows() const { return ListView_GetItemCount(list_); }
    int columns() const { return Header_GetItemCount(ListView_GetHeader(list_)); }
    std::string at(int row, int column) const {
        char text[1024] = "";
        LVITEMA item = {};
        item.iSubItem = column;
        item.pszText = text;
        item.cchTextMax = sizeof text;
        ::SendMessageA(list_, LVM_GETITEMTEXTA, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
        return text;
    }
    Texts row(int row) const {
        Texts cells;
        for (int column = 0; column < columns(); ++column)
            cells.push_back(at(row, column));
        return cells;
    }
    int image(int row) const {
        LVITEMA item = {};
        item.mask = LVIF_IMAGE;
        item.iItem = row;
        ::SendMessageA(list_, LVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&item));
        return item.iImage;
    }
    std::string heads() const {
        std::string all;
        for (int column = 0; column < columns(); ++column) {
            char text[64] = "";
            LVCOLUMNA record = {};
            record.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
            record.pszText = text;
            record.cchTextMax = sizeof text;
            ::SendMessageA(list_, LVM_GETCOLUMNA, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&record));
            all += std::string(text) + (record.fmt & LVCFMT_RIGHT ? ">" : ":") + std::to_string(record.cx) + " ";
        }
        return all;
    }
    int image_count() const { return ImageList_GetImageCount(ListView_GetImageList(list_, LVSIL_SMALL)); }

private:
    HWND list_;
};

/// Runs the sheet; the function sees each page, then the button is pressed.
INT_PTR run(CWntVersion& sheet, WPARAM button, const std::function<void(HWND)>& page = {}) {
    int shown = 0;
    WhileModal modal([&] {
        if (!sheet.m_hWnd || !PropSheet_GetCurrentPageHwnd(sheet.m_hWnd))
            return false;
        if (page)
            page(sheet.m_hWnd);
        if (shown++ == 0 && page) {
            PropSheet_SetCurSel(sheet.m_hWnd, nullptr, 1);
            return false;
        }
        PropSheet_PressButton(sheet.m_hWnd, button);
        return true;
    });
    return sheet.DoModal();
}

} // namespace

TEST(VersionSheet, ShowsTheComponents) {
    // Set before the sheet looks: a component that is a folder, one that is read-only, one without a version.
    ASSERT_TRUE(write_version_file("zopfdraw.dll", VersionBlockWriter().block(fixed_info(), {0x04B00409})));
    ASSERT_TRUE(::SetFileAttributesA("zopfdraw.dll", FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_ARCHIVE));
    std::ofstream("zopcal.ocx") << "12345";
    char folder[MAX_PATH] = "";
    ::GetCurrentDirectoryA(sizeof folder, folder);
    CWntVersion sheet("Versions");
    int seen = 0;
    const INT_PTR result = run(sheet, PSBTN_CANCEL, [&](HWND window) {
        const Table table(window, 1001);
        if (!table)
            return;
        ++seen;
        EXPECT_EQ(AfxGetResourceHandle(), ::GetModuleHandle(nullptr)); // the host's again
        EXPECT_EQ(table.heads(), "Component:150 Executable:150 Flags:40 Size>100 Created:150 Modified:150 Product:50 "
                                 "File:50 Additional Info:200 OS Type:100 Filetype:100 Language/Codepage:100 ");
        EXPECT_EQ(table.image_count(), 5);
        EXPECT_EQ(table.at(0, 0), "Installation");
        EXPECT_EQ(table.at(0, 1), folder);
        EXPECT_EQ(table.image(0), 4);
        const std::string moment = "\\d\\d.\\d\\d.20\\d\\d, \\d\\d:\\d\\d:\\d\\d";
        ASSERT_EQ(table.rows(), 9);
        EXPECT_THAT(table.row(1), ElementsAre(testing::_, "ZOPWNT.dll", testing::_, MatchesRegex("\\d\\d\\d\\d+ bytes"),
                                              MatchesRegex(moment), MatchesRegex(moment), "1.0.0.0", "1.0.0.0",
                                              "      ", "NT-Win32", "Dynamic Link Library", language_name(0x409)));
        EXPECT_EQ(table.image(1), 0);
        EXPECT_EQ(table.at(3, 2).substr(0, 5), "r----");
        EXPECT_EQ(table.at(3, 6), "1.2.3.65535"); // file version under "Product"
        EXPECT_EQ(table.at(3, 7), "10.0.0.7");
        EXPECT_EQ(table.at(8, 3), "5 bytes");
        EXPECT_THAT(table.row(5), ElementsAre(testing::_, "zopgauge.ocx", "------", "0 bytes", testing::_, testing::_,
                                              "", "", "", "", "", ""));
        EXPECT_EQ(table.image(5), 1);
    });
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_EQ(seen, 1);
    ::SetFileAttributesA("zopfdraw.dll", FILE_ATTRIBUTE_NORMAL);
    EXPECT_TRUE(::DeleteFileA("zopfdraw.dll"));
    EXPECT_TRUE(::DeleteFileA("zopcal.ocx"));
}

TEST(VersionSheet, ShowsTheEnvironment) {
    const std::string fits(79, 'p'), longer(80, 'p');
    const std::string old_path = std::getenv("PATH");
    for (const bool cut : {false, true}) {
        ::SetEnvironmentVariableA("HOSTNAME", "machine");
        ::SetEnvironmentVariableA("PATH", cut ? longer.c_str() : fits.c_str());
        CWntVersion sheet("Versions");
        Texts contents;
        const INT_PTR result = run(sheet, PSBTN_OK, [&](HWND window) {
            const Table table(window, 1005);
            if (!table)
                return;
            EXPECT_EQ(table.heads(), "Description:200 Content:800 ");
            EXPECT_EQ(table.image_count(), 6);
            std::string labels, images;
            for (int row = 0; row < table.rows(); ++row) {
                labels += table.at(row, 0) + ",";
                images += std::to_string(table.image(row));
                contents.push_back(table.at(row, 1));
            }
            EXPECT_EQ(labels, "Computer,Username,Plattform,Version,Build Nummer,Windows directory,"
                              "Windows System directory,Current workdirectory,Hostname,Path,");
            EXPECT_EQ(images, "0124433305");
        });
        EXPECT_EQ(result, IDOK);
        ::SetEnvironmentVariableA("PATH", old_path.c_str());
        char folder[MAX_PATH] = "";
        ::GetCurrentDirectoryA(sizeof folder, folder);
        EXPECT_THAT(contents, ElementsAre(testing::Not(""), testing::Not(""), "Win32 on Windows NT",
                                          MatchesRegex("\\d+\\.\\d+"), MatchesRegex("\\d+"), "C:\\windows",
                                          "C:\\windows\\system32", folder, "machine", cut ? "" : fits));
    }
}

TEST(VersionSheet, OpensAgainAndOnEitherPage) {
    ::SetEnvironmentVariableA("HOSTNAME", nullptr);
    CWntVersion sheet("Versions", nullptr, 1);
    for (int i = 0; i < 2; ++i) {
        bool environment_first = false;
        CRect place;
        WhileModal modal([&] {
            if (!sheet.m_hWnd)
                return false;
            environment_first = static_cast<bool>(Table(sheet.m_hWnd, 1005));
            sheet.GetWindowRect(&place);
            sheet.PostMessage(WM_KEYDOWN, VK_ESCAPE); // goes through the sheet's own keys
            return true;
        });
        EXPECT_EQ(sheet.DoModal(), IDCANCEL);
        EXPECT_TRUE(environment_first);
        EXPECT_EQ(sheet.GetPageCount(), 2);
        EXPECT_GT(place.Width(), 300);
    }
}
