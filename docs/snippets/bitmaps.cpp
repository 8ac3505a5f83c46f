#include <zopwnt.h>

#include <cstdio>

void dib_snippet(HDC dc) {
    //! [dib]
    CDibFile picture;
    if (!picture.CreateNewTrueColor(320, 200, 255)) { // every byte 255: white
        std::printf("step %d failed\n", picture.GetLastError());
        return;
    }
    picture.SetColor(200, 0, 0);
    picture.Line(0, 0, 319, 199); // from the lower left corner
    picture.Draw(dc, 10, 10, 0, 0);
    picture.Save("line.bmp");
    //! [dib]
}

void gdi_snippet() {
    //! [gdi]
    CDibFile picture;
    if (picture.CreateNew256Color(320, 200, 1, 0)) {
        ::Ellipse(picture.GetDC(), 10, 10, 100, 60);
        ::GdiFlush(); // before the pixels are read
        const auto* pixels = static_cast<const BYTE*>(picture.GetPtrBits());
        std::printf("%d\n", pixels[0]);
    }
    //! [gdi]
}

void bitmap_snippet(CDC& dc, CPalette* palette) {
    //! [bitmap]
    CWntBitmap boiler;
    CWntBitmap plan;
    if (boiler.Load("boiler.bmp") && plan.Create(640, 480)) {
        boiler.MapColorsToPalette(palette);
        boiler.CopyBits(&plan, 100, 80, 32, 32, 0, 0, 0); // pixels of index 0 are left out
        plan.Draw(&dc, 0, 0);
        plan.Save("plan.bmp");
    }
    //! [bitmap]
}

void palette_snippet(CDC& dc, CWntBitmap& bitmap) {
    //! [palette]
    CWntBitmapPalette palette;
    if (palette.Load("heat.pal") || palette.Create(&bitmap)) {
        const CRect place(0, 0, 160, 160);
        palette.Draw(&dc, &place, FALSE);
    }
    //! [palette]
}
