#include "atlimage.h"
#include "atlconv.h"
#include "com_ptr.h"
#include "image_codecs.h"

#include <algorithm>
#include <climits>
#include <memory>
#include <mutex>
#include <new>
#include <shlwapi.h>
#include <wincodec.h>
#include <utility>
#include <vector>

// Which the toolchain's header leaves out; unlike the class factory it asks for no COM in the thread.
extern "C" HRESULT WINAPI WICCreateImagingFactory_Proxy(UINT version, IWICImagingFactory** factory);

namespace {

// GDI+ runs from the first file until the last image goes.
struct codec {
    std::mutex lock;
    int images = 0, working = 0;
    ULONG_PTR token = 0;

    void stop() {
        if (working == 0 && token != 0)
            Gdiplus::GdiplusShutdown(std::exchange(token, 0));
    }
};
// Never destroyed: a program's images may live until its end.
codec& the_codec() {
    static auto& one = *new codec;
    return one;
}

} // namespace

codec_use::codec_use() {
    const std::lock_guard guard(the_codec().lock);
    ++the_codec().working;
    const Gdiplus::GdiplusStartupInput input;
    if (the_codec().token == 0 && Gdiplus::GdiplusStartup(&the_codec().token, &input, nullptr) != Gdiplus::Ok)
        the_codec().token = 0;
}

codec_use::~codec_use() {
    const std::lock_guard guard(the_codec().lock);
    if (--the_codec().working == 0 && the_codec().images == 0)
        the_codec().stop();
}

bool codec_use::runs() const {
    return the_codec().token != 0;
}

namespace ATL {

namespace flat = Gdiplus::DllExports;

namespace {

struct dispose {
    void operator()(Gdiplus::GpBitmap* bitmap) const { flat::GdipDisposeImage(bitmap); }
};
using bitmap_ptr = std::unique_ptr<Gdiplus::GpBitmap, dispose>;

HRESULT read_all(IStream& stream, std::vector<BYTE>& bytes) try {
    constexpr std::size_t piece = 0x10000;
    for (ULONG read = 1; read > 0;) {
        const std::size_t before = bytes.size();
        if (before > INT_MAX)
            return E_OUTOFMEMORY;
        bytes.resize(before + piece);
        read = 0;
        const HRESULT result = stream.Read(bytes.data() + before, piece, &read);
        bytes.resize(before + std::min<std::size_t>(read, piece));
        if (FAILED(result))
            return result;
    }
    return S_OK;
} catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
}

HRESULT result_of(Gdiplus::GpStatus status) {
    switch (status) {
    case Gdiplus::Ok:
        return S_OK;
    case Gdiplus::InvalidParameter:
        return E_INVALIDARG;
    case Gdiplus::OutOfMemory:
        return E_OUTOFMEMORY;
    case Gdiplus::NotImplemented:
        return E_NOTIMPL;
    case Gdiplus::AccessDenied:
        return E_ACCESSDENIED;
    default:
        return E_FAIL;
    }
}

// Pictures of more bytes than an int counts are refused before GDI+ makes room for them.
HRESULT check_size(IStream& stream) {
    IWICImagingFactory* factory = nullptr;
    IWICBitmapDecoder* decoder = nullptr;
    IWICBitmapFrameDecode* frame = nullptr;
    UINT width = 0, height = 0;
    HRESULT result = ::WICCreateImagingFactory_Proxy(WINCODEC_SDK_VERSION, &factory);
    const com_ptr<IWICImagingFactory> owned_factory(factory);
    if (SUCCEEDED(result))
        result = factory->CreateDecoderFromStream(&stream, nullptr, WICDecodeMetadataCacheOnDemand, &decoder);
    const com_ptr<IWICBitmapDecoder> owned_decoder(decoder);
    if (SUCCEEDED(result))
        result = decoder->GetFrame(0, &frame);
    const com_ptr<IWICBitmapFrameDecode> owned_frame(frame);
    if (SUCCEEDED(result))
        result = frame->GetSize(&width, &height);
    if (SUCCEEDED(result) && (width > INT_MAX / 4 || height > INT_MAX / 4 / std::max(width, 1u)))
        result = E_OUTOFMEMORY;
    return SUCCEEDED(result) ? stream.Seek({}, STREAM_SEEK_SET, nullptr) : result;
}

// As the file has them where a DIB section can; partly transparent and unusual ones as the nearest that it can.
int section_format(int format) {
    switch (format) {
    case PixelFormat1bppIndexed:
    case PixelFormat4bppIndexed:
    case PixelFormat8bppIndexed:
    case PixelFormat16bppRGB555:
    case PixelFormat32bppRGB:
        return format;
    default:
        return (format & PixelFormatAlpha) != 0 ? PixelFormat32bppARGB : PixelFormat24bppRGB;
    }
}

int bits_of(int format) {
    return format >> 8 & 0xFF;
}

// GDI+ ends a colour table with an array of one.
struct palette {
    Gdiplus::ColorPalette head{};
    Gdiplus::ARGB rest[255]{};
    Gdiplus::ARGB* entries() { return head.Entries; }
};

// The encoder of the type, or of the name's extension.
struct encoder_id {
    CLSID code;
    GUID type;
};
bool find_encoder(REFGUID type, LPCWSTR name, encoder_id* found) {
    const codec_list encoders(false);
    const auto* const fits =
        std::find_if(encoders.begin(), encoders.end(), [&](const Gdiplus::ImageCodecInfo& encoder) {
            return name != nullptr ? ::PathMatchSpecW(name, encoder.FilenameExtension) : encoder.FormatID == type;
        });
    if (fits == encoders.end())
        return false;
    *found = {fits->Clsid, fits->FormatID};
    return true;
}

} // namespace

CImage::CImage() {
    const std::lock_guard guard(the_codec().lock);
    ++the_codec().images;
}

CImage::~CImage() {
    Destroy();
    const std::lock_guard guard(the_codec().lock);
    if (--the_codec().images == 0)
        the_codec().stop();
}

void CImage::ReleaseGDIPlus() {
    const std::lock_guard guard(the_codec().lock);
    the_codec().stop();
}

HRESULT CImage::Load(LPCTSTR pszFileName) {
    if (pszFileName == nullptr)
        return E_INVALIDARG;
    IStream* file = nullptr;
    constexpr DWORD mode = STGM_READ | STGM_SHARE_DENY_WRITE;
    const HRESULT result = ::SHCreateStreamOnFileEx(CA2W(pszFileName), mode, 0, FALSE, nullptr, &file);
    const com_ptr<IStream> owned(file);
    return SUCCEEDED(result) ? Load(file) : result;
}

// From memory: GDI+ may keep a stream that is no picture, and some streams do not bear to be read behind their end.
HRESULT CImage::Load(IStream* pStream) {
    const codec_use codec;
    if (pStream == nullptr)
        return E_INVALIDARG;
    std::vector<BYTE> bytes;
    HRESULT result = read_all(*pStream, bytes);
    if (FAILED(result))
        return result;
    const com_ptr<IStream> memory(::SHCreateMemStream(bytes.data(), static_cast<UINT>(bytes.size())));
    if (memory == nullptr || !codec.runs())
        return E_FAIL;
    if (result = check_size(*memory); FAILED(result))
        return result;
    Gdiplus::GpBitmap* source = nullptr;
    result = result_of(flat::GdipCreateBitmapFromStream(memory.get(), &source));
    return SUCCEEDED(result) ? Take(source) : result;
}

HRESULT CImage::Take(Gdiplus::GpBitmap* source) {
    const bitmap_ptr owned(source);
    UINT width = 0, height = 0;
    Gdiplus::PixelFormat format = 0;
    flat::GdipGetImageWidth(source, &width);
    flat::GdipGetImageHeight(source, &height);
    if (const auto status = flat::GdipGetImagePixelFormat(source, &format); status != Gdiplus::Ok)
        return result_of(status);
    format = section_format(format);
    const bool alpha = format == PixelFormat32bppARGB;
    CImage taken;
    if (width > INT_MAX || height > INT_MAX ||
        !taken.Create(static_cast<int>(width), static_cast<int>(height), bits_of(format),
                      alpha ? createAlphaChannel : 0))
        return E_OUTOFMEMORY;
    if (!taken.TakePixels(source, format))
        return E_FAIL;
    taken.TakePalette(source);
    taken.m.straight = alpha;
    Destroy();
    std::swap(m, taken.m);
    return S_OK;
}

bool CImage::TakePixels(Gdiplus::GpBitmap* source, int format) {
    const Gdiplus::GpRect all(0, 0, m.width, m.height);
    Gdiplus::BitmapData data{};
    if (flat::GdipBitmapLockBits(source, &all, Gdiplus::ImageLockModeRead, format, &data) != Gdiplus::Ok)
        return false;
    const auto* from = static_cast<const BYTE*>(data.Scan0);
    const int count = std::min(std::abs(data.Stride), std::abs(m.pitch));
    for (int y = 0; y < m.height; ++y)
        std::copy_n(from + static_cast<std::ptrdiff_t>(y) * data.Stride, count, Row(y));
    return flat::GdipBitmapUnlockBits(source, &data) == Gdiplus::Ok;
}

// The first entry that is fully transparent becomes the transparent colour.
void CImage::TakePalette(Gdiplus::GpBitmap* source) {
    palette colours;
    INT size = 0;
    if (!IsIndexed() || flat::GdipGetImagePaletteSize(source, &size) != Gdiplus::Ok || size < 0 ||
        static_cast<std::size_t>(size) > sizeof(colours) ||
        flat::GdipGetImagePalette(source, &colours.head, size) != Gdiplus::Ok)
        return;
    const UINT count = std::min(colours.head.Count, static_cast<UINT>(GetMaxColorTableEntries()));
    RGBQUAD table[256]{};
    for (UINT i = 0; i < count; ++i) {
        const Gdiplus::ARGB colour = colours.entries()[i];
        table[i] = {static_cast<BYTE>(colour), static_cast<BYTE>(colour >> 8), static_cast<BYTE>(colour >> 16), 0};
        if (colour >> 24 == 0 && m.transparent < 0)
            m.transparent = static_cast<LONG>(i);
    }
    SetColorTable(0, count, table);
}

HRESULT CImage::Save(LPCTSTR pszFileName, REFGUID guidFileType) const {
    if (pszFileName == nullptr)
        return E_INVALIDARG;
    const CA2W name(pszFileName);
    const bool by_name = guidFileType == GUID_NULL && *::PathFindExtensionW(name) != L'\0';
    const GUID type = guidFileType == GUID_NULL ? Gdiplus::ImageFormatBMP : guidFileType;
    return SaveBy(type, by_name ? static_cast<LPCWSTR>(name) : nullptr,
                  [&](Gdiplus::GpBitmap* source, const CLSID& encoder) {
                      return flat::GdipSaveImageToFile(source, name, &encoder, nullptr);
                  });
}

HRESULT CImage::Save(IStream* pStream, REFGUID guidFileType) const {
    if (pStream == nullptr)
        return E_INVALIDARG;
    return SaveBy(guidFileType, nullptr, [&](Gdiplus::GpBitmap* source, const CLSID& encoder) {
        return flat::GdipSaveImageToStream(source, pStream, &encoder, nullptr);
    });
}

template <class Write> HRESULT CImage::SaveBy(REFGUID type, LPCWSTR name, Write write) const {
    const codec_use codec;
    encoder_id encoder;
    if (IsNull() || !codec.runs())
        return E_FAIL;
    if (!find_encoder(type, name, &encoder))
        return E_INVALIDARG;
    // A copy of what GDI+ cannot read where it lies, or cannot write in this type.
    const bool few_colours = encoder.type == Gdiplus::ImageFormatGIF && !IsIndexed();
    const bool copied = few_colours || FileFormat() == 0;
    CImage copy;
    if (copied && (!copy.Create(m.width, m.height, few_colours ? 8 : 24)))
        return E_FAIL;
    copy.SetCube();
    if (copied && !CopyColours(copy))
        return E_FAIL;
    Gdiplus::GpBitmap* source = nullptr;
    auto status = (copied ? copy : *this).MakeSource(&source);
    const bitmap_ptr owned(source);
    if (status == Gdiplus::Ok)
        status = write(source, encoder.code);
    return result_of(status);
}

// Six shades of each colour.
void CImage::SetCube() {
    RGBQUAD table[216];
    for (int i = 0; i < 216; ++i)
        table[i] = {static_cast<BYTE>(i % 6 * 51), static_cast<BYTE>(i / 6 % 6 * 51), static_cast<BYTE>(i / 36 * 51),
                    0};
    SetColorTable(0, 216, table);
}

int CImage::FileFormat() const {
    if (!IsDIBSection() || m.masks)
        return 0;
    switch (m.bpp) {
    case 1:
        return PixelFormat1bppIndexed;
    case 4:
        return PixelFormat4bppIndexed;
    case 8:
        return PixelFormat8bppIndexed;
    case 16:
        return PixelFormat16bppRGB555;
    case 24:
        return PixelFormat24bppRGB;
    default:
        return m.alpha ? PixelFormat32bppARGB : PixelFormat32bppRGB;
    }
}

// Reads the bits where they lie.
Gdiplus::GpStatus CImage::MakeSource(Gdiplus::GpBitmap** source) const {
    ::GdiFlush();
    const auto status = flat::GdipCreateBitmapFromScan0(m.width, m.height, m.pitch, FileFormat(), m.bits, source);
    if (status != Gdiplus::Ok || !IsIndexed())
        return status;
    RGBQUAD table[256]{};
    GetColorTable(0, 256, table);
    palette colours;
    colours.head.Count = static_cast<UINT>(GetMaxColorTableEntries());
    for (UINT i = 0; i < colours.head.Count; ++i) {
        const RGBQUAD& colour = table[i];
        const bool clear = static_cast<LONG>(i) == m.transparent;
        colours.entries()[i] =
            (clear ? 0 : 0xFFu << 24) | UINT(colour.rgbRed) << 16 | UINT(colour.rgbGreen) << 8 | colour.rgbBlue;
    }
    colours.head.Flags = m.transparent >= 0 ? Gdiplus::PaletteFlagsHasAlpha : 0;
    return flat::GdipSetImagePalette(*source, &colours.head);
}

} // namespace ATL
