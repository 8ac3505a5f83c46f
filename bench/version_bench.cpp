// What a file tells about its version against the system's own calls for the same words.
#include <zopwnt.h>

#include "bench_table.h"

#include <cstring>

namespace {

// Like most components of the version sheet, no part of this process.
constexpr const char* file = "version_bench.dll";

// The plain way to the file version: block, root, four numbers, a system string.
BSTR plain_file_version() {
    DWORD ignored = 0;
    std::vector<char> block(::GetFileVersionInfoSizeA(file, &ignored));
    void* found = nullptr;
    UINT length = 0;
    if (block.empty() || !::GetFileVersionInfoA(file, 0, static_cast<DWORD>(block.size()), block.data()) ||
        !::VerQueryValueA(block.data(), "\\", &found, &length))
        return nullptr;
    const auto& info = *static_cast<const VS_FIXEDFILEINFO*>(found);
    char text[512];
    std::snprintf(text, sizeof text, "%d.%d.%d.%d", HIWORD(info.dwFileVersionMS), LOWORD(info.dwFileVersionMS),
                  HIWORD(info.dwFileVersionLS), LOWORD(info.dwFileVersionLS));
    wchar_t wide[512];
    ::MultiByteToWideChar(CP_ACP, 0, text, -1, wide, 512);
    return ::SysAllocString(wide);
}

BSTR plain_language() {
    DWORD ignored = 0;
    std::vector<char> block(::GetFileVersionInfoSizeA(file, &ignored));
    void* found = nullptr;
    UINT length = 0;
    if (block.empty() || !::GetFileVersionInfoA(file, 0, static_cast<DWORD>(block.size()), block.data()) ||
        !::VerQueryValueA(block.data(), "\\VarFileInfo\\Translation", &found, &length))
        return nullptr;
    wchar_t wide[512] = L"";
    ::VerLanguageNameW(*static_cast<const WORD*>(found), wide, 512);
    return ::SysAllocString(wide);
}

void row(BenchTable& table, const char* name, int kind, BSTR (*plain)()) {
    CWntVersionZOPDlg page;
    BSTR ours = page.GetFileInfo(file, kind);
    BSTR theirs = plain();
    const bool same = theirs && std::wcscmp(ours, theirs) == 0;
    ::SysFreeString(ours);
    ::SysFreeString(theirs);
    if (!same) {
        table.wrong(name);
        return;
    }
    table.measure(
        name, [&](int) { ::SysFreeString(page.GetFileInfo(file, kind)); }, [=](int) { ::SysFreeString(plain()); });
}

} // namespace

int main(int argc, char** argv) {
    AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), 0);
    char folder[MAX_PATH + 1] = "";
    ::GetModuleFileNameA(nullptr, folder, MAX_PATH);
    *std::strrchr(folder, '\\') = '\0';
    ::SetCurrentDirectoryA(folder);
    ::CopyFileA("ZOPWNT.dll", file, FALSE);
    BenchTable table("version");
    row(table, "GetFileInfo, file version", 1, plain_file_version);
    row(table, "GetFileInfo, language", 6, plain_language);
    ::DeleteFileA(file);
    return table.finish(argc, argv);
}
