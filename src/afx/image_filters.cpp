// What file dialogs are told of the kinds of picture files.
#include "image_codecs.h"

#include <utility>

codec_list::codec_list(bool decoders) {
    namespace flat = Gdiplus::DllExports;
    UINT count = 0, size = 0;
    auto* const measure = decoders ? &flat::GdipGetImageDecodersSize : &flat::GdipGetImageEncodersSize;
    auto* const fill = decoders ? &flat::GdipGetImageDecoders : &flat::GdipGetImageEncoders;
    if (measure(&count, &size) != Gdiplus::Ok || size == 0)
        return;
    m_room.resize(size);
    if (fill(count, size, reinterpret_cast<Gdiplus::ImageCodecInfo*>(m_room.data())) == Gdiplus::Ok)
        m_count = count;
}

namespace ATL {

namespace {

constexpr GUID format_emf{0xb96b3cac, 0x0728, 0x11d3, {0x9d, 0x7b, 0, 0, 0xf8, 0x1e, 0xf3, 0x2e}};
constexpr GUID format_wmf{0xb96b3cad, 0x0728, 0x11d3, {0x9d, 0x7b, 0, 0, 0xf8, 0x1e, 0xf3, 0x2e}};
constexpr GUID format_icon{0xb96b3cb5, 0x0728, 0x11d3, {0x9d, 0x7b, 0, 0, 0xf8, 0x1e, 0xf3, 0x2e}};

DWORD exclusion_of(REFGUID format) {
    const std::pair<GUID, DWORD> kinds[] = {
        {Gdiplus::ImageFormatGIF, CImage::excludeGIF},
        {Gdiplus::ImageFormatBMP, CImage::excludeBMP},
        {format_emf, CImage::excludeEMF},
        {format_wmf, CImage::excludeWMF},
        {Gdiplus::ImageFormatJPEG, CImage::excludeJPEG},
        {Gdiplus::ImageFormatPNG, CImage::excludePNG},
        {Gdiplus::ImageFormatTIFF, CImage::excludeTIFF},
        {format_icon, CImage::excludeIcon},
    };
    for (const auto& [kind, exclusion] : kinds)
        if (kind == format)
            return exclusion;
    return CImage::excludeOther;
}

HRESULT build_filters(bool decoders, CSimpleString& filters, CSimpleArray<GUID>& types, LPCTSTR all, DWORD excluded,
                      char separator) {
    const codec_use codec;
    if (!codec.runs())
        return E_FAIL;
    CString every, single;
    types.RemoveAll();
    if (all != nullptr)
        types.Add(GUID_NULL);
    for (const Gdiplus::ImageCodecInfo& kind : codec_list(decoders)) {
        if ((exclusion_of(kind.FormatID) & excluded) != 0)
            continue;
        const CString name(kind.FormatDescription), patterns(kind.FilenameExtension);
        single += name + " (" + patterns + ")" + separator + patterns + separator;
        every += (every.IsEmpty() ? "" : ";") + patterns;
        types.Add(kind.FormatID);
    }
    CString text;
    if (all != nullptr)
        text = all + CString(separator) + every + separator;
    text += single + separator;
    filters.SetString(text, text.GetLength());
    return S_OK;
}

} // namespace

HRESULT CImage::GetImporterFilterString(CSimpleString& strImporters, CSimpleArray<GUID>& aguidFileTypes,
                                        LPCTSTR pszAllFilesDescription, DWORD dwExclude, TCHAR chSeparator) {
    return build_filters(true, strImporters, aguidFileTypes, pszAllFilesDescription,
                         dwExclude | excludeEMF | excludeWMF, chSeparator);
}

HRESULT CImage::GetExporterFilterString(CSimpleString& strExporters, CSimpleArray<GUID>& aguidFileTypes,
                                        LPCTSTR pszAllFilesDescription, DWORD dwExclude, TCHAR chSeparator) {
    return build_filters(false, strExporters, aguidFileTypes, pszAllFilesDescription, dwExclude, chSeparator);
}

} // namespace ATL
