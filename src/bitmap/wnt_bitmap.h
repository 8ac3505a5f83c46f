#pragma once

#include <afxwin.h>

#include "zopwnt_api.h"

// What reads a bitmap through its pointer is exported like the bitmap.
#undef AFX_API
#define AFX_API ZOPWNT_API

/// A bitmap in plain memory, made for 8 bits a pixel with 256 colours: loaded from bitmap files, resources and
/// archives, drawn, copied in blocks and mapped to a palette. New bitmaps are 16 x 16 and grey.
///
///     CWntBitmap picture;
///     if (picture.Load("boiler.bmp"))
///         picture.Draw(&dc, 10, 10);
///
/// Rows are padded to four bytes of 8-bit pixels, the lower row first. Other depths are loaded and drawn; what handles
/// single pixels takes a byte for a pixel. Operations answer 1 for success and 0 for failure; a failed load leaves the
/// bitmap as it was. Loading and saving by path and from archives go through the operations on file objects.
class ZOPWNT_API CWntBitmap : public CObject {
    DECLARE_SERIAL(CWntBitmap)

public:
    CWntBitmap();
    ~CWntBitmap() override;

    /// A bitmap file in an archive. Results are dropped; a refused bitmap leaves this one as it was.
    void Serialize(CArchive& archive) override;

    /// Null or an empty path asks the user. A file that cannot be opened is refused silently.
    virtual BOOL Load(LPCTSTR path);
    /// A bitmap file at the present position: uncompressed, with bit fields or run lengths; one with another header
    /// than those of 12 and of 40 bytes is refused. Rows that the file promises beyond its own length are drawn as
    /// zeros.
    virtual BOOL Load(CFile* file);
    /// A bitmap file of 8 bits at the present position.
    virtual BOOL Save(CFile* file);
    /// Null or an empty path asks the user; failures are shown in a message box.
    virtual BOOL Save(LPCTSTR path);
    /// Stretched to cx x cy pixels.
    virtual void Draw(CDC* dc, int x, int y, int cx, int cy);
    /// At its own size.
    virtual void Draw(CDC* dc, int x, int y);
    /// 0 for an empty bitmap.
    virtual int GetWidth();
    /// Negative where the upper row comes first.
    virtual int GetHeight();
    /// Replaces each pixel by the nearest colour of the palette, whose first 256 colours become the bitmap's. Refused
    /// for bit fields.
    virtual BOOL MapColorsToPalette(CPalette* palette);
    /// From (0, 0) to width and height.
    virtual void GetRect(CRect* rect);
    /// Copies the w x h block at (xs, ys) to (xd, yd) of a bitmap, y counting downwards, row by row from the lowest
    /// one. Pixels equal to the low byte of `transparent` are left out; 0xFFFFFFFF leaves none out. Not clipped: a
    /// block that is not inside both bitmaps is not copied.
    virtual void CopyBits(CWntBitmap* destination, int xd, int yd, int w, int h, int xs, int ys,
                          DWORD transparent = 0xFFFFFFFF);

    /// A blank bitmap of 8 bits with a ramp of greys. Refused below 0 and from 2 GB on; the bitmap is empty then.
    BOOL Create(int width, int height);
    /// Copies the header and its colours, refused above 65536; the pixels stay the caller's and must outlive their use,
    /// but the bitmap's own stay its own.
    /// Compressed ones are biSizeImage bytes and are drawn only where that is set.
    BOOL Create(BITMAPINFO* info, void* bits);
    /// A bitmap file that is a resource of the library, of the type "DIB" or else a standard bitmap's. The pixels are
    /// used where they lie and become writable.
    BOOL Load(UINT id);

    /// Header and colour table, which stay the bitmap's; null for an empty one.
    BITMAPINFO* GetBitmapInfoAddress() const { return m_pBMI; }
    /// The pixels; null for an empty bitmap.
    void* GetBitsAddress() const;
    /// The colour table, or the masks in front of it; null for an empty bitmap.
    RGBQUAD* GetClrTabAddress() const { return m_pBMI ? m_pBMI->bmiColors : nullptr; }
    /// The colours of the table, as the header tells them, at most 256 up to 8 bits. The three masks in front of them
    /// that a bitmap with bit fields has do not count.
    UINT GetNumClrEntries() const;
    /// The place of an 8-bit pixel, y counting downwards from 0; null right of and below the bitmap, so everywhere
    /// where the upper row comes first. Values below 0, and other depths, are the caller's to avoid.
    BYTE* GetPixelAddress(int x, int y) const;
    /// The length in bytes that a row of 8-bit pixels has, whatever the depth.
    UINT StorageWidth() const;

private:
    void take(BITMAPINFO* info, BYTE* bits, BOOL own, ULONGLONG size);
    void release();
    BOOL load_file(CFile& file);
    BOOL save_file(CFile& file);
    BOOL load_data(BYTE* data, DWORD size);
    void stretch(HDC dc, const RECT& place, int rows, const BITMAPINFO* info) const;
    void draw_given(HDC dc, const RECT& place, int given) const;
    bool holds_block(int x, int y, int w, int h) const;
    ULONGLONG stored_bytes() const;

    BITMAPINFO* m_pBMI = nullptr;
    BYTE* m_pBits = nullptr;
    BOOL m_bMyBits = TRUE;
    ULONGLONG m_bits_size = 0; // what the pixel buffer holds, whatever the header says
    // What a file filled of it; the rest is zeros, until others can write to it.
    mutable ULONGLONG m_bits_given = 0;
};

#undef AFX_API
#define AFX_API
