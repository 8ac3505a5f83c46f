#include "diag/wnt_shmem.h"

#include "diag/scramble.h"

CWntShMem::CWntShMem(const char* name, std::int32_t size) : name_(name), size_(size) {
    if (size <= 0)
        return;
    const auto bytes = static_cast<DWORD>(size);
    mapping_ = ::CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, bytes, name_);
    if (mapping_) // the whole size, not what is there: a smaller block of that name is refused
        view_ = ::MapViewOfFile(mapping_, FILE_MAP_READ | FILE_MAP_WRITE, 0, 0, bytes);
}

CWntShMem::~CWntShMem() {
    if (view_)
        ::UnmapViewOfFile(view_);
    if (mapping_)
        ::CloseHandle(mapping_);
}

void CWntShMem::Scramble() {
    if (view_)
        wnt::scramble(static_cast<std::uint8_t*>(view_), static_cast<std::size_t>(size_));
}
