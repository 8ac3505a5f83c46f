#pragma once

#include <unknwn.h>

#include "zopwnt_api.h"

// The front end's font service as this library calls it: a COM class that hands out its collection of fonts, which
// in turn hands out a font object by identifier. The font object offers the system's IFont. A front end that wants
// its labels and this library's in one font registers a class object under CLSID_ZopFontService.

/// Identifiers of the service's fonts; the library asks for proportional text only.
enum tagZopFontId : int {
    ZOPFONT_PROPORTIONAL = 2,
};

struct IZopFontCollection : IUnknown {
    /// The font object with this identifier, with a reference for the caller.
    virtual HRESULT STDMETHODCALLTYPE GetFont(tagZopFontId id, IUnknown** font) = 0;
};

struct IZopFontService : IUnknown {
    /// The service's fonts, with a reference for the caller.
    virtual HRESULT STDMETHODCALLTYPE GetFonts(IZopFontCollection** fonts) = 0;
};

// {6C1F43A0-52B7-4E0D-9B55-2F6A4E1D7C01} and its two neighbours
inline constexpr CLSID CLSID_ZopFontService = {
    0x6C1F43A0, 0x52B7, 0x4E0D, {0x9B, 0x55, 0x2F, 0x6A, 0x4E, 0x1D, 0x7C, 0x01}};
inline constexpr IID IID_IZopFontService = {
    0x6C1F43A1, 0x52B7, 0x4E0D, {0x9B, 0x55, 0x2F, 0x6A, 0x4E, 0x1D, 0x7C, 0x01}};
inline constexpr IID IID_IZopFontCollection = {
    0x6C1F43A2, 0x52B7, 0x4E0D, {0x9B, 0x55, 0x2F, 0x6A, 0x4E, 0x1D, 0x7C, 0x01}};
