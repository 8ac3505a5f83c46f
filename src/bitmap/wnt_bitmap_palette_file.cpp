// Loading and saving of CWntBitmapPalette.
#include "bitmap/file_choice.h"
#include "bitmap/log_palette.h"
#include "bitmap/wnt_bitmap_palette.h"

#include <algorithm>
#include <climits>
#include <cstdint>

namespace {

constexpr FOURCC palette_form = mmioFOURCC('P', 'A', 'L', ' ');
constexpr FOURCC data_id = mmioFOURCC('d', 'a', 't', 'a');
constexpr char filter[] = "Palette files (*.PAL)|*.PAL|All files (*.*)|*.*||";

// The multimedia layer over an open file, which stays open. Without a buffer: reading would run ahead of what is asked
// for, and closing does not report what failed when a written one was emptied.
class OverFile {
public:
    OverFile(HANDLE file, DWORD mode) {
        MMIOINFO info = {};
        info.adwInfo[0] = static_cast<DWORD>(reinterpret_cast<ULONG_PTR>(file));
        if (file && file != INVALID_HANDLE_VALUE)
            riff_ = ::mmioOpenA(nullptr, &info, mode);
    }
    ~OverFile() {
        if (riff_)
            ::mmioClose(riff_, MMIO_FHOPEN);
    }
    OverFile(const OverFile&) = delete;
    OverFile& operator=(const OverFile&) = delete;
    HMMIO riff() const { return riff_; }

private:
    HMMIO riff_ = nullptr;
};

bool find_data(HMMIO riff, MMCKINFO& form, MMCKINFO& data) {
    form.fccType = palette_form;
    data.ckid = data_id;
    return riff && ::mmioDescend(riff, &form, nullptr, MMIO_FINDRIFF) == MMSYSERR_NOERROR &&
           ::mmioDescend(riff, &data, &form, MMIO_FINDCHUNK) == MMSYSERR_NOERROR;
}

bool write_palette(HMMIO riff, const wnt::LogPalette& colours) {
    MMCKINFO form = {};
    form.fccType = palette_form;
    MMCKINFO data = {};
    data.ckid = data_id;
    data.cksize = colours.size();
    const LONG size = static_cast<LONG>(colours.size());
    return ::mmioCreateChunk(riff, &form, MMIO_CREATERIFF) == MMSYSERR_NOERROR &&
           ::mmioCreateChunk(riff, &data, 0) == MMSYSERR_NOERROR &&
           ::mmioWrite(riff, reinterpret_cast<const char*>(colours.get()), size) == size &&
           ::mmioAscend(riff, &data, 0) == MMSYSERR_NOERROR && ::mmioAscend(riff, &form, 0) == MMSYSERR_NOERROR;
}

// Whether a chunk ends inside its file.
bool whole(HMMIO riff, const MMCKINFO& chunk) {
    const std::uint64_t last = std::uint64_t{chunk.dwDataOffset} + chunk.cksize - 1;
    char byte;
    return last <= LONG_MAX && ::mmioSeek(riff, static_cast<LONG>(last), SEEK_SET) >= 0 &&
           ::mmioRead(riff, &byte, 1) == 1;
}

} // namespace

BOOL CWntBitmapPalette::Load(HMMIO riff) {
    MMCKINFO form = {}, data = {};
    if (!find_data(riff, form, data) || data.cksize < wnt::LogPalette::bytes_of(1))
        return FALSE;
    const DWORD most = wnt::LogPalette::bytes_of(wnt::LogPalette::most_colours);
    const DWORD bytes = std::min(data.cksize, most); // no more can be colours
    const wnt::HeapBytes block = wnt::zeroed_bytes(bytes);
    const LONG size = static_cast<LONG>(bytes);
    if (!block || ::mmioRead(riff, reinterpret_cast<char*>(block.get()), size) != size ||
        (bytes < data.cksize && !whole(riff, data)))
        return FALSE;
    auto* colours = reinterpret_cast<LOGPALETTE*>(block.get());
    if (colours->palVersion != wnt::LogPalette::version || colours->palNumEntries == 0 ||
        wnt::LogPalette::bytes_of(colours->palNumEntries) > bytes)
        return FALSE;
    ::mmioAscend(riff, &form, 0); // what stands behind the palette comes next
    return replace(colours);
}

BOOL CWntBitmapPalette::Save(HMMIO riff) const {
    const wnt::LogPalette colours(static_cast<UINT>(GetNumColors()));
    if (!riff || !colours.get())
        return FALSE;
    GetPaletteEntries(0, colours.get()->palNumEntries, colours.get()->palPalEntry);
    return write_palette(riff, colours);
}

BOOL CWntBitmapPalette::Load(HANDLE file) {
    const OverFile layer(file, MMIO_READ);
    return layer.riff() && Load(layer.riff());
}

BOOL CWntBitmapPalette::Save(HANDLE file) const {
    const OverFile layer(file, MMIO_WRITE);
    return layer.riff() && Save(layer.riff());
}

BOOL CWntBitmapPalette::Load(CFile* file) {
    return file && Load(static_cast<HANDLE>(file->m_hFile));
}

BOOL CWntBitmapPalette::Save(CFile* file) const {
    return file && Save(static_cast<HANDLE>(file->m_hFile));
}

BOOL CWntBitmapPalette::Load(LPCTSTR path) {
    return wnt::through_chosen_file(path, true, filter, [this](CFile& file) { return Load(&file); });
}
