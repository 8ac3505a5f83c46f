#pragma once

#include <unknwn.h>

#include "zopwnt_api.h"

/// Identifiers of the service's fonts; the library asks for proportional text only.
enum tagZopFontId : int {
    ZOPFONT_PROPORTIONAL = 2,
};

/// The fonts of the front end's font service, by identifier. A font object offers the system's IFont.
struct IZopFontCollection : IUnknown {
    /// The font object with this identifier, with a reference for the caller.
    virtual HRESULT STDMETHODCALLTYPE GetFont(tagZopFontId id, IUnknown** font) = 0;
};

/// The front end's font service as this library calls it. A front end that wants its labels and this library's in one
/// font registers a class object under CLSID_ZopFontService.
struct IZopFontService : IUnknown {
    /// The service's fonts, with a reference for the caller.
    virtual HRESULT STDMETHODCALLTYPE GetFonts(IZopFontCollection** fonts) = 0;
};

/// The class that a front end registers: {6C1F43A0-52B7-4E0D-9B55-2F6A4E1D7C01}.
inline constexpr CLSID CLSID_ZopFontService = {
    0x6C1F43A0, 0x52B7, 0x4E0D, {0x9B, 0x55, 0x2F, 0x6A, 0x4E, 0x1D, 0x7C, 0x01}};
/// The interface of its objects: {6C1F43A1-52B7-4E0D-9B55-2F6A4E1D7C01}.
inline constexpr IID IID_IZopFontService = {
    0x6C1F43A1, 0x52B7, 0x4E0D, {0x9B, 0x55, 0x2F, 0x6A, 0x4E, 0x1D, 0x7C, 0x01}};
/// The interface of its collections: {6C1F43A2-52B7-4E0D-9B55-2F6A4E1D7C01}.
inline constexpr IID IID_IZopFontCollection = {
    0x6C1F43A2, 0x52B7, 0x4E0D, {0x9B, 0x55, 0x2F, 0x6A, 0x4E, 0x1D, 0x7C, 0x01}};
