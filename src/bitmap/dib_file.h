#pragma once

#include <afxwin.h>

#include "zopwnt_api.h"

class CDirtyPixelManipulator;

/// A bitmap in memory as a DIB section that stays selected into a memory device context of its own: created blank, read
/// from and written to uncompressed bitmap files, drawn into any device context and drawn on, by GDI, by OpenGL or
/// pixel by pixel.
///
///     CDibFile picture;
///     if (picture.CreateNewTrueColor(320, 200, 255)) {
///         picture.SetColor(200, 0, 0);
///         picture.Line(0, 0, 319, 199);
///         picture.Save("line.bmp");
///     }
///
/// Operations answer 1 for success and 0 for failure; GetLastError() then tells the step that failed, by the numbers
/// given with each operation. Creating and reading empty the object first, so that a failure leaves it empty.
///
/// Rows count as not padded: files, copies, ClearBits() and pixels take bits x planes x width x height / 8 bytes, in
/// 32-bit arithmetic, and never more than the section holds. Of rows that are no multiple of four bytes the section
/// therefore has some more. Use an object on the thread that made it.
class ZOPWNT_API CDibFile {
public:
    /// Colours of new 8-bit bitmaps: the twenty static system colours around mostly dark blues and browns.
    static const RGBQUAD rgbQuadDefaultTable[256];
    /// A cube of 8 reds, 8 greens and 4 blues for OpenGL, red in the low bits of the index.
    static const RGBQUAD rgbQuadDefaultTableOpenGL[256];

    CDibFile();
    CDibFile(const CDibFile& other);
    /// A deep copy; errors 1 what was held could not be released, 3 header, 4 device context, 5 section, 6 palette.
    CDibFile& operator=(const CDibFile& other);
    ~CDibFile();

    /// Empties the object: 1 when every handle could be released.
    int Delete();

    /// A blank bitmap of the screen's depth, every byte of its pixels set to `fill`. With 256 colours the table is one
    /// of the two above. Errors: 3 size below 1, 4 device context, 5 header, 6 section, 8 palette.
    int CreateNew(int width, int height, int fill, int openGL);
    /// 8 bits. Errors: 2 size below 1, 3 header, 4 device context, 5 section, 6 palette.
    int CreateNew256Color(int width, int height, int fill, int openGL);
    /// 16 bits, with the same errors.
    int CreateNewHighColor(int width, int height, int fill);
    /// 24 bits, with the same errors.
    int CreateNewTrueColor(int width, int height, int fill);

    /// A null path or a file that cannot be opened leaves the object empty, without an error.
    int Load(const char* path);
    /// Saving an empty object leaves an empty file and error 1. A path that cannot be opened is no error.
    int Save(const char* path) const;
    /// A bitmap at the present position of an open file. Missing bytes are no error and read as 0. Errors: 2 handle or
    /// position, 3 file header, 4 no bitmap, 5 information header, 6 another header than the 40-byte one, or
    /// compressed, 8 colour table, 9 device context or section, 10 pixels, 11 palette.
    int StreamIn(HANDLE file);
    /// Writes a bitmap file at the present position. Errors: 1 empty object, 2 handle, 4 writing.
    int StreamOut(HANDLE file) const;
    /// Writes header and colour table as text.
    void SaveBitmapInfo(const char* path) const;

    /// Copies the bitmap to (x, y), stretched where cx and cy are 1 and more. A bitmap with a palette selects it and
    /// answers 0 with error 1 although all went well. Other errors: 1 no target, 2 palette not realised, 3 copying.
    int Draw(HDC dc, int x, int y, int cx, int cy) const;
    /// The same, the palette realised: its colours are asked of the system.
    int DrawRealized(HDC dc, int x, int y, int cx, int cy) const;
    /// Gives the memory device context a pixel format for OpenGL, with 24 bits of depth; non-zero on success. Refused
    /// where the closest format has wider pixels than the bitmap.
    int PrepareOpenGL();

    /// Sets every byte of the pixels.
    void ClearBits(int value);
    /// The colour of the pixels and lines that follow, components from 0 to 255. Bitmaps of 8, 16 and 24 bits are drawn
    /// on; at 8 bits the colour is a table index made of green and blue, at 16 it is packed from the low bits of the
    /// components, so that only 0 and 255 come out as one would expect.
    void SetColor(int r, int g, int b);
    /// y counts rows as stored: 0 is the lower one. Nothing is drawn outside the bitmap, and where its height is
    /// negative.
    void SetPixel(int x, int y);
    /// Both ends included, clipped; as for pixels nothing where the height is negative.
    void Line(int x1, int y1, int x2, int y2);

    /// 0 for an empty object.
    int GetWidth() const;
    /// Negative where the upper row comes first; 0 for an empty object.
    int GetHeight() const;
    /// 0 for an empty object.
    int GetBitsPerPixel() const;
    /// The section, which stays the object's; null for an empty one.
    HBITMAP GetHBitmap() const { return m_hBitmap; }
    /// The memory device context with the section, which stays the object's; null for an empty one. After drawing into
    /// it, GdiFlush() comes before pixels are set or looked at.
    HDC GetDC() const { return m_hDC; }
    /// The pixels, which stay the object's; null for an empty one.
    void* GetPtrBits() const { return m_pBits; }
    /// 1 where there is a bitmap, 0 for an empty object.
    int IsValid() const;
    /// The last error, which it forgets.
    int GetLastError() const;

private:
    int GetBitmapInfoSize() const { return static_cast<int>(sizeof(BITMAPINFOHEADER)) + GetColorTableSize(); }
    int GetColorTableSize() const { return 4 * m_nColors; }
    DWORD GetPixelArraySize() const;
    void SetAllNull();
    void SetLastError(int code) const { m_nLastError = code; }
    void AllocPixelManipulator();

    const BITMAPINFOHEADER& header() const { return m_pBitmapInfo->bmiHeader; }
    int fail(int code);
    bool release(HGDIOBJ handle);
    int create(int width, int height, int bits, int fill, const RGBQUAD* table);
    bool fill_header(int width, int height, int bits, const RGBQUAD* table);
    bool make_dc();
    bool make_section();
    bool make_palette();
    int copy(const CDibFile& other);
    bool read_pixels(HANDLE file, long long position);
    int draw(HDC dc, const RECT& place, bool realise) const;
    bool copy_to(HDC dc, const RECT& place) const;

    HBITMAP m_hBitmap;
    HPALETTE m_hPalette;
    HDC m_hDC;
    BITMAPINFO* m_pBitmapInfo;
    int m_nColors; // -1: empty
    void* m_pBits;
    mutable int m_nLastError;
    CDirtyPixelManipulator* m_pPixelManipulator; // owned
};
