// Reading and writing of CDibFile: bitmap files and the textual dump.
#include <algorithm>
#include <cstdio>

#include "bitmap/bitmap_format.h"
#include "bitmap/dib_file.h"

namespace {

bool read_some(HANDLE file, void* to, DWORD count) {
    DWORD done = 0;
    return ::ReadFile(file, to, count, &done, nullptr);
}

bool write_all(HANDLE file, const void* from, DWORD count) {
    DWORD done = 0;
    return ::WriteFile(file, from, count, &done, nullptr) && done == count;
}

bool seek_to(HANDLE file, long long position) {
    LARGE_INTEGER distance;
    distance.QuadPart = position;
    return ::SetFilePointerEx(file, distance, nullptr, FILE_BEGIN);
}

bool position_of(HANDLE file, long long& position) {
    LARGE_INTEGER at = {};
    if (file == INVALID_HANDLE_VALUE || !::SetFilePointerEx(file, at, &at, FILE_CURRENT))
        return false;
    position = at.QuadPart;
    return true;
}

// No more than the file has: systems touch the whole buffer of a read first, and headers promise much.
DWORD available(HANDLE file, long long position, DWORD count) {
    LARGE_INTEGER size;
    if (!::GetFileSizeEx(file, &size))
        return count;
    return static_cast<DWORD>(std::clamp<long long>(size.QuadPart - position, 0, count));
}

void write_header(std::FILE* file, const BITMAPINFOHEADER& h) {
    const struct {
        const char* name;
        unsigned value;
    } lines[] = {
        {"m_pBitmapInfo->bmiHeader.biSize", h.biSize},
        {"m_pBitmapInfo->bmiHeader.biWidth", static_cast<unsigned>(h.biWidth)},
        {"m_pBitmapInfo->bmiHeader.biHeight", static_cast<unsigned>(h.biHeight)},
        {"m_pBitmapInfo->bmiHeader.biPlanes", h.biPlanes},
        {"m_pBitmapInfo->bmiHeader.biBitCount", h.biBitCount},
        {"m_pBitmapInfo->bmiHeader.biCompression", h.biCompression},
        {"m_pBitmapInfo->bmiHeader.biSizeImage", h.biSizeImage},
        {"m_pBitmapInfo->bmiHeader.biXPelsPerMeter", static_cast<unsigned>(h.biXPelsPerMeter)},
        {"m_pBitmapInfo->bmiHeader.biYPelsPerMeter", static_cast<unsigned>(h.biYPelsPerMeter)},
        {"m_pBitmapInfo->bmiHeader.biClrUsed", h.biClrUsed},
        {"m_pBitmapInfo->bmiHeader.biClrImportant", h.biClrImportant},
    };
    for (const auto& line : lines)
        std::fprintf(file, "%s\t = %u ;\n", line.name, line.value);
}

void write_table(std::FILE* file, const RGBQUAD* table, int count) {
    std::fprintf(file, "\n\nRGBQUAD  rgbQuadTable[%d] =\n\t{\n\t\t", count);
    for (int i = 0; i < count; ++i) {
        const RGBQUAD& colour = table[i];
        std::fprintf(file, "%s%3u,%3u,%3u,%3u   %s", i % 4 == 0 ? "\n\t\t" : "", colour.rgbBlue, colour.rgbGreen,
                     colour.rgbRed, colour.rgbReserved, i < count - 1 ? "," : "");
    }
    std::fputs("\n\t}\n\n", file);
}

} // namespace

int CDibFile::Load(const char* path) {
    Delete();
    if (!path)
        return 0;
    HANDLE file =
        ::CreateFileA(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return 0;
    const int result = StreamIn(file);
    ::CloseHandle(file);
    return result;
}

int CDibFile::Save(const char* path) const {
    if (!path)
        return 0;
    HANDLE file = ::CreateFileA(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return 0;
    const int result = StreamOut(file);
    ::CloseHandle(file);
    return result;
}

int CDibFile::StreamIn(HANDLE file) {
    Delete();
    long long start = 0;
    if (!position_of(file, start))
        return fail(2);
    wnt::DibHead head;
    const auto read = [file](void* to, std::uint32_t count) { return read_some(file, to, count); };
    if (const int code = wnt::read_dib_head(read, head))
        return fail(code);
    m_nColors = static_cast<int>(head.colours);
    m_pBitmapInfo = reinterpret_cast<BITMAPINFO*>(head.block.release());
    if (!make_dc() || !make_section())
        return fail(9);
    if (!read_pixels(file, start + head.pixel_offset))
        return fail(10);
    ::SelectObject(m_hDC, m_hBitmap);
    if (m_nColors > 0 && !make_palette())
        return fail(11);
    AllocPixelManipulator();
    return 1;
}

bool CDibFile::read_pixels(HANDLE file, long long position) {
    return seek_to(file, position) && read_some(file, m_pBits, available(file, position, GetPixelArraySize()));
}

int CDibFile::StreamOut(HANDLE file) const {
    if (!IsValid() || file == INVALID_HANDLE_VALUE) {
        SetLastError(IsValid() ? 2 : 1);
        return 0;
    }
    ::GdiFlush();
    const DWORD block = static_cast<DWORD>(GetBitmapInfoSize());
    const DWORD pixels = GetPixelArraySize();
    const auto head = wnt::encode_file_header(
        {wnt::bitmap_mark, wnt::file_header_bytes + block + pixels, wnt::file_header_bytes + block});
    if (write_all(file, head.data(), wnt::file_header_bytes) && write_all(file, m_pBitmapInfo, block) &&
        write_all(file, m_pBits, pixels))
        return 1;
    SetLastError(4);
    return 0;
}

void CDibFile::SaveBitmapInfo(const char* path) const {
    std::FILE* file = path ? std::fopen(path, "wt") : nullptr;
    if (!file)
        return;
    std::fputs("// Bitmap Info\n\n\n", file);
    if (!IsValid()) {
        std::fputs("// Bitmap NOT valid !\n", file);
    } else {
        write_header(file, header());
        if (m_nColors < 1)
            std::fputs("\n// no color table used.\n\n", file);
        else
            write_table(file, m_pBitmapInfo->bmiColors, m_nColors);
    }
    std::fclose(file);
}
