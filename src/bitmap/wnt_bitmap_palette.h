#pragma once

#include <afxwin.h>
#include <mmsystem.h>

#include "zopwnt_api.h"

class CWntBitmap;

/// A palette that comes from a bitmap's colours or from a palette file (RIFF, *.PAL), and goes into such a file, onto a
/// device context as a grid of cells, or into the system palette.
///
///     CWntBitmapPalette palette;
///     if (palette.Load("heat.pal"))
///         palette.Draw(&dc, &rect, FALSE);
///
/// Operations answer non-zero for success and 0 for failure. Creating and loading replace the palette that the object
/// holds, failures leave it. Handles and files given to Load() and Save() stay open.
class ZOPWNT_API CWntBitmapPalette : public CPalette {
public:
    /// Of a bitmap without a colour table nothing is made.
    BOOL Create(CWntBitmap* bitmap);
    /// 0 without a palette.
    int GetNumColors() const;

    /// A null or empty path asks the user; failures are shown in a message box.
    BOOL Load(LPCTSTR path);
    /// From the present position of an open file.
    BOOL Load(CFile* file);
    /// From the present position of an open file.
    BOOL Load(HANDLE file);
    /// From an open multimedia file.
    BOOL Load(HMMIO riff);
    /// To the present position of an open file. 0 without a palette, as in the two below.
    BOOL Save(CFile* file) const;
    /// To the present position of an open file.
    BOOL Save(HANDLE file) const;
    /// To an open multimedia file.
    BOOL Save(HMMIO riff) const;

    /// 16 cells a row, as many as there are colours, at most 256; a full grid fills the rectangle and one pixel
    /// beyond it, right and below. `background` tells how the palette is selected.
    void Draw(CDC* dc, const RECT* rect, BOOL background);
    /// On a screen with a palette: makes this palette the system's and takes over what the system made of it.
    BOOL SetSysPalColors();

private:
    BOOL replace(LOGPALETTE* colours);
};
