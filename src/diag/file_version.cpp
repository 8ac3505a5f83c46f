#include "diag/file_version.h"

#include <cstddef>
#include <cstring>
#include <memory>
#include <optional>

namespace {

constexpr int text_limit = 512;

/// A file's version block as the system reads it.
class VersionBlock {
public:
    explicit VersionBlock(const char* path) {
        DWORD ignored = 0;
        const DWORD size = ::GetFileVersionInfoSizeA(path, &ignored);
        if (size == 0)
            return;
        // The lengths inside a block are not to be trusted: three nested ones of 16 bits lead this far past its end at
        // the most. That much room follows it, all zeros, in pages that cost nothing until they are looked at.
        constexpr std::size_t deepest_reach = 3 * 0x10000;
        bytes_.reset(::VirtualAlloc(nullptr, size + deepest_reach, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE));
        if (bytes_ && !::GetFileVersionInfoA(path, 0, size, bytes_.get()))
            bytes_.reset();
    }

    /// A copy of the value with that name, where it lies with its whole length in what the block says it has.
    template <class Value> std::optional<Value> value(const char* name) const {
        void* found = nullptr;
        UINT length = 0;
        if (!bytes_ || !::VerQueryValueA(bytes_.get(), name, &found, &length) || length < sizeof(Value))
            return {};
        const auto offset = static_cast<std::size_t>(static_cast<const std::byte*>(found) -
                                                     static_cast<const std::byte*>(bytes_.get()));
        WORD told = 0;
        std::memcpy(&told, bytes_.get(), sizeof told);
        if (offset > told || told - offset < sizeof(Value))
            return {};
        Value copy;
        std::memcpy(&copy, found, sizeof copy);
        return copy;
    }

private:
    struct Release {
        void operator()(void* pages) const { ::VirtualFree(pages, 0, MEM_RELEASE); }
    };
    std::unique_ptr<void, Release> bytes_;
};

struct Name {
    DWORD value;
    const char* text;
};

constexpr Name system_names[] = {
    {0x00010001, "DOS-Win16"}, {0x00010004, "DOS-Win32"},     {0x00000004, "NT-Win32"},
    {0x00040004, "NT-Win32"},  {0x00020002, "OS/2-16 PM-16"}, {0x00030003, "OS/2-32 PM-32"},
};

constexpr Name type_names[] = {
    {VFT_APP, "Application"}, {VFT_DLL, "Dynamic Link Library"},  {VFT_DRV, "Driver"},
    {VFT_FONT, "Font"},       {VFT_VXD, "Virtual Device Driver"}, {VFT_STATIC_LIB, "Static Link Library"},
};

template <std::size_t count> const char* name_of(const Name (&names)[count], DWORD value) {
    for (const Name& name : names) {
        if (name.value == value)
            return name.text;
    }
    return "Unknown";
}

// Intended: "Special" tests the bit of "Debug", and the file's own mask of valid bits does not count.
constexpr Name flag_names[] = {
    {0x01, "Debug"}, {0x02, "PreRel"}, {0x04, "Patched"}, {0x08, "Private"}, {0x10, "Info"}, {0x01, "Special"},
};
constexpr DWORD unknown_flags = 0xFFFFFF00;

CString flags_text(DWORD flags) {
    CString text;
    for (const Name& flag : flag_names) {
        text += flags & flag.value ? flag.text : "";
        text += ' ';
    }
    text += flags & unknown_flags ? "Unknown" : "";
    return text;
}

CString number_text(DWORD high, DWORD low) {
    CString text;
    text.Format("%d.%d.%d.%d", HIWORD(high), LOWORD(high), HIWORD(low), LOWORD(low));
    return text;
}

CString language_text(const VersionBlock& block) {
    const auto code = block.value<WORD>("\\VarFileInfo\\Translation");
    char text[text_limit] = "";
    if (!code || ::VerLanguageNameA(*code, text, sizeof text) == 0)
        return "";
    text[text_limit - 1] = '\0';
    return text;
}

CString fixed_text(const VS_FIXEDFILEINFO& info, int kind) {
    switch (kind) {
    case wnt::fact_file_version:
        return number_text(info.dwFileVersionMS, info.dwFileVersionLS);
    case wnt::fact_product_version:
        return number_text(info.dwProductVersionMS, info.dwProductVersionLS);
    case wnt::fact_file_flags:
        return flags_text(info.dwFileFlags);
    case wnt::fact_operating_system:
        return name_of(system_names, info.dwFileOS);
    case wnt::fact_file_type:
        return name_of(type_names, info.dwFileType);
    default:
        return "";
    }
}

CString fact_of(const VersionBlock& block, int kind) {
    const auto info = block.value<VS_FIXEDFILEINFO>("\\");
    if (!info)
        return "";
    return kind == wnt::fact_language ? language_text(block) : fixed_text(*info, kind);
}

} // namespace

CString wnt::version_fact(const char* path, int kind) {
    return path && kind >= fact_file_version && kind <= fact_language ? fact_of(VersionBlock(path), kind) : CString();
}

std::array<CString, wnt::fact_count> wnt::version_facts(const char* path) {
    const VersionBlock block(path);
    std::array<CString, fact_count> facts;
    for (int kind = fact_file_version; kind <= fact_language; ++kind)
        facts[kind - fact_file_version] = fact_of(block, kind);
    return facts;
}
