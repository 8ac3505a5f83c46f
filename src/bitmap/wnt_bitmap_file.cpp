// Loading and saving of CWntBitmap.
#include <algorithm>

#include "bitmap/bitmap_format.h"
#include "bitmap/file_choice.h"
#include "bitmap/wnt_bitmap.h"
#include "library_resources.h"

namespace {

// Files are saved as of 8 bits with a full table, whatever the bitmap is.
constexpr DWORD block_bytes = wnt::info_header_bytes + 256 * sizeof(RGBQUAD);
constexpr DWORD pixel_offset = wnt::file_header_bytes + block_bytes;
constexpr char filter[] = "Image files (*.DIB, *.BMP)|*.DIB;*.BMP|All files (*.*)|*.*||";

class FileSource final : public wnt::BitmapSource {
public:
    explicit FileSource(CFile& file) : file_(file), start_(file.GetPosition()) {}

    std::uint32_t read(void* to, std::uint32_t count) override { return file_.Read(to, count); }
    void seek(std::uint64_t position) override { file_.Seek(static_cast<LONGLONG>(start_ + position), CFile::begin); }
    std::uint64_t remaining() override {
        const ULONGLONG length = file_.GetLength();
        const ULONGLONG at = file_.GetPosition();
        return at < length ? length - at : 0;
    }

private:
    CFile& file_;
    ULONGLONG start_;
};

class DataSource final : public wnt::BitmapSource {
public:
    DataSource(const BYTE* data, DWORD size) : data_(data), size_(size) {}

    std::uint32_t read(void* to, std::uint32_t count) override {
        count = static_cast<std::uint32_t>(std::min<std::uint64_t>(count, remaining()));
        std::copy_n(data_ + at_, count, static_cast<BYTE*>(to));
        at_ += count;
        return count;
    }
    void seek(std::uint64_t position) override { at_ = std::min<std::uint64_t>(position, size_); }
    std::uint64_t remaining() override { return size_ - at_; }

private:
    const BYTE* data_;
    std::uint64_t size_;
    std::uint64_t at_ = 0;
};

// A file operation whose exception is a failure.
template <class Operation> BOOL succeeds(Operation operation) {
    try {
        return operation();
    } catch (CFileException* exception) {
        exception->Delete();
        return FALSE;
    }
}

void write_zeros(CFile& file, ULONGLONG count) {
    const BYTE zeros[4096] = {};
    for (; count > 0; count -= std::min<ULONGLONG>(count, sizeof zeros))
        file.Write(zeros, static_cast<UINT>(std::min<ULONGLONG>(count, sizeof zeros)));
}

} // namespace

void CWntBitmap::Serialize(CArchive& archive) {
    archive.Flush();
    if (archive.IsLoading())
        Load(archive.GetFile());
    else
        Save(archive.GetFile());
}

BOOL CWntBitmap::Load(LPCTSTR path) {
    const CString name = wnt::chosen_path(path, true, filter);
    CFile file;
    return !name.IsEmpty() && file.Open(name, CFile::modeRead | CFile::shareDenyWrite) && Load(&file);
}

BOOL CWntBitmap::Save(LPCTSTR path) {
    return wnt::through_chosen_file(path, false, filter, [this](CFile& file) { return Save(&file); });
}

BOOL CWntBitmap::Load(CFile* file) {
    return file && succeeds([&] { return load_file(*file); });
}

BOOL CWntBitmap::load_file(CFile& file) {
    FileSource source(file);
    wnt::BitmapHead head;
    wnt::BitmapPixels pixels;
    if (!wnt::read_bitmap_head(source, head) || !wnt::read_bitmap_pixels(source, head, pixels))
        return FALSE;
    take(reinterpret_cast<BITMAPINFO*>(head.block.release()), pixels.bytes.release(), TRUE, pixels.size);
    m_bits_given = pixels.given;
    return TRUE;
}

BOOL CWntBitmap::Save(CFile* file) {
    return file && m_pBMI && succeeds([&] { return save_file(*file); });
}

BOOL CWntBitmap::save_file(CFile& file) {
    const auto counted = wnt::storage_bytes(wnt::header_of(reinterpret_cast<std::uint8_t*>(m_pBMI)));
    if (counted > wnt::most_picture_bytes)
        return FALSE;
    const auto head =
        wnt::encode_file_header({wnt::bitmap_mark, static_cast<std::uint32_t>(counted + pixel_offset), pixel_offset});
    file.Write(head.data(), wnt::file_header_bytes);
    file.Write(m_pBMI, block_bytes);
    const ULONGLONG held = stored_bytes();
    file.Write(m_pBits, static_cast<UINT>(held));
    write_zeros(file, counted - held);
    return TRUE;
}

BOOL CWntBitmap::Load(UINT id) {
    HINSTANCE module = wnt::library_module();
    const LPCTSTR name = MAKEINTRESOURCE(id);
    for (const LPCTSTR type : {static_cast<LPCTSTR>("DIB"), static_cast<LPCTSTR>(RT_BITMAP)}) {
        HRSRC found = ::FindResource(module, name, type);
        HGLOBAL loaded = found ? ::LoadResource(module, found) : nullptr;
        if (auto* data = static_cast<BYTE*>(loaded ? ::LockResource(loaded) : nullptr))
            return load_data(data, ::SizeofResource(module, found));
    }
    return FALSE;
}

// The pixels stay where they are; they are made writable, since colours are mapped in place. A standard bitmap is
// mostly stored without a file header and is refused.
BOOL CWntBitmap::load_data(BYTE* data, DWORD size) {
    DataSource source(data, size);
    wnt::BitmapHead head;
    if (!wnt::read_bitmap_head(source, head) || head.pixel_offset > size)
        return FALSE;
    const auto placed = wnt::placed_bytes(wnt::header_of(head.block.get()));
    const DWORD held = size - head.pixel_offset;
    DWORD previous = 0;
    if (!placed || *placed > held || !::VirtualProtect(data, size, PAGE_READWRITE, &previous))
        return FALSE;
    take(reinterpret_cast<BITMAPINFO*>(head.block.release()), data + head.pixel_offset, FALSE, *placed);
    return TRUE;
}
