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
    int GetNumColors() const;

    /// A null or empty path asks the user; failures are shown in a message box.
    BOOL Load(LPCTSTR path);
    BOOL Load(CFile* file);
    BOOL Load(HANDLE file);
    BOOL Load(HMMIO riff);
    /// There is nothing to save without a palette: 0.
    BOOL Save(CFile* file) const;
    BOOL Save(HANDLE file) const;
    BOOL Save(HMMIO riff) const;

    /// 16 cells a row, as many as there are colours, at most 256; a full grid fills the rectangle and one pixel
    /// beyond it, right and below. `background` tells how the palette is selected.
    void Draw(CDC* dc, const RECT* rect, BOOL background);
    /// On a screen with a palette: makes this palette the system's and takes over what the system made of it.
    BOOL SetSysPalColors();

private:
    BOOL replace(LOGPALETTE* colours);
};
