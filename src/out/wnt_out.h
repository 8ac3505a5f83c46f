#pragma once

#include <afxwin.h>

#include "out/font_service.h"
#include "out/tpt.h"
#include "zopwnt_api.h"

/// The drawing surface: a child window that a widget lays over its client area and paints through.
///
/// Units are device pixels of the client area; the origin is the lower-left corner and y grows upwards. A library y
/// becomes the device y `ymax - y`. In a RECT in library coordinates `top` is the upper, larger y.
///
///     if (out.reset()) {                  // or reset(hdc) inside a paint handler or for printing
///         out.linecolour(6, 0);           // red, solid
///         out.line(0, 0, out.xmax, out.ymax);
///         out.endpaint();
///     }
///
/// No operation reports an error: without a device context, with a null argument or on a null object an operation
/// does nothing and returns 0 where it returns a value. Use it on the thread that owns the window.
///
/// Ownership: pens and brushes made by `linecolour` and `fillcolour` belong to the surface; each one is deleted when
/// the next replaces it, and what the caller had selected is never deleted. On the window's own device context the
/// last pen and brush stay selected and outlive the object: the owner may end them with `ReleaseDrawing`.
class ZOPWNT_API CWntOut : public CWnd {
public:
    CWntOut();
    ~CWntOut() override;

    CWntOut(const CWntOut&) = delete;
    CWntOut& operator=(const CWntOut&) = delete;

    // -- Device context ---------------------------------------------------------------------------------------------

    /// Does nothing.
    void initialise();
    /// Prepares drawing into the window: 1, or 0 when no device context can be had (hidden window, mode word set).
    /// White lines and black fills count as already in force afterwards.
    int reset();
    /// The same on a device context that belongs to the caller, who keeps it alive until endpaint(). Extent and clip
    /// are still the window's: to draw on another device, or without a window, set `targetmode` to 1 before, which
    /// leaves the clip alone, and `xmax` and `ymax` after.
    int reset(HDC hdc);
    /// Ends a drawing pass. The window's own device context stays, and with it `dc`; an external one gets its pen and
    /// brush back and is forgotten. Its clip region, text colour, alignment, background mode and polygon filling stay
    /// as drawing left them.
    void endpaint();
    /// Gives back the window's device context and the pens and brushes made for it. For the owner, before it goes.
    void ReleaseDrawing();

    // -- Input and pointer ------------------------------------------------------------------------------------------

    /// Turns a keyboard message into out[0] = category (1 character, 2 function key, 3 editing key, 4 Control+letter,
    /// 5 Alt+letter or digit) and out[1] = value; 0 when the message is to be ignored.
    int Whelper_translatekeyboardinput(int* out, unsigned message, WPARAM key, LPARAM flags);
    /// Pointer position in library coordinates: pt[0] = x, pt[1] = y.
    void getmousepos(int* pt);
    /// One of the 29 built-in pointer shapes, 0 to 28; other numbers are ignored.
    void setmouseshape(short id);
    /// A pointer of the caller's, who keeps owning it.
    void setmouseshape(HICON h);

    // -- Background and contents ------------------------------------------------------------------------------------

    /// Stored only: the surface paints no background.
    void setbackground(COLORREF colour, int flag);
    /// Stored only.
    void setbackgroundbitmap(unsigned id);
    /// The window's update rectangle in library coordinates; untouched without a window.
    void queryupdaterect(RECT* r);
    /// Moves the w x h block with lower-left corner (x, y) right by dx and up by dy; 0 means the whole width, height.
    void scroll(int x, int y, int w, int h, int dx, int dy, int unused);

    // -- Colours ----------------------------------------------------------------------------------------------------

    /// Entry i of the built-in table of 16 colours.
    COLORREF rgbcolor(int i);
    /// Installs the caller's table, which must outlive its use; null or a negative count means none.
    void setcolorpalette(COLORREF* table, int count);
    /// The number of entries of the table in force, and its address unless `out` is null.
    int getcolorpalette(COLORREF** out);
    /// Pen colour (and text colour) and style: 0, 1 solid; 2, 5 dotted; 3, 6 dashed; 4 dash-dot; 7 dash-dot-dot.
    /// A colour that is already in force changes nothing, not even the style.
    void linecolour(int index, int style);
    /// The same for a colour instead of an entry of the table.
    void linecolour(COLORREF colour, int style);
    /// Brush colour and style: below 2 solid; 2 vertical, 3 horizontal, 4, 5 diagonal cross, 6, 7 cross hatch.
    void fillcolour(int index, int style);
    /// The same for a colour instead of an entry of the table.
    void fillcolour(COLORREF colour, int style);

    // -- Lines and boxes --------------------------------------------------------------------------------------------

    /// Both end points included, whatever the pen's pattern.
    void line(int x1, int y1, int x2, int y2);
    /// len + 1 pixels to the right of (x, y), which is the first.
    void hline(int x, int y, int len);
    /// len + 1 pixels upwards from (x, y), which is the first.
    void vline(int x, int y, int len);
    /// All pixels between two corners, inclusive: outline in the line colour, interior in the fill colour.
    void boxa1(int x1, int y1, int x2, int y2);
    /// All pixels between two corners, inclusive, in the fill colour.
    void boxa2(int x1, int y1, int x2, int y2);
    /// The outline of (w + 1) x (h + 1) pixels with the lower-left corner (x, y), in the line colour.
    void boxr0(int x, int y, int w, int h);
    /// Outline and interior of such a box.
    void boxr1(int x, int y, int w, int h);
    /// Such a box in the fill colour.
    void boxr2(int x, int y, int w, int h);

    // -- Polygons ---------------------------------------------------------------------------------------------------

    /// Filled in the fill colour, outlined in the line colour; at most the first 20 points.
    void fillpoly(Tpt* pts, int n);
    /// The same for any number of points. The POINT forms flip the caller's array in place during the call.
    void fillpoly(POINT* pts, int n);
    /// Filled and outlined in the fill colour; at most the first 20 points.
    void solidpoly(Tpt* pts, int n);
    /// The same for any number of points.
    void solidpoly(POINT* pts, int n);
    /// The outline in the line colour, for a fill of 0 in the fill colour.
    void dopoly(POINT* pts, int n, long fill);
    /// An open polyline; width 0 takes the current pen, otherwise width + 1 pixels, at most 32767, in the fill colour.
    void geomline(Tpt* pts, int n, int width);
    /// The same; flips the caller's array during the call.
    void geomline(POINT* pts, int n, int width);
    /// n lines, each from point i to point i + step; the array holds n + step points.
    void crosslines(Tpt* pts, int n, int step);
    /// The same; the array is only read.
    void crosslines(POINT* pts, int n, int step);

    // -- Circles and pies -------------------------------------------------------------------------------------------
    // Figures that reach farther than 131072 pixels from the origin are not drawn.

    /// The outline only, with the current pen.
    void drawcircle(int x, int y, int r);
    /// An ellipse in the fill colour, its outline in the line colour.
    void fillcircle(int x, int y, int rx, int ry);
    /// The slice of the ellipse with the radii rx and ry, counter-clockwise from a1 to a2 in 1/16384 of a turn from
    /// +x. Ends that share a pixel draw nothing up to a quarter of a turn and the whole ellipse beyond.
    void pieslice(int x, int y, int rx, int ry, int a1, int a2);
    /// The same; `extra` is ignored.
    void piesection(int x, int y, int rx, int ry, int a1, int a2, int extra);

    // -- Markers and frames -----------------------------------------------------------------------------------------

    /// Diagonals, s pixels in each direction from the centre.
    void drawcross(int x, int y, int s);
    /// The same, upright.
    void drawplus(int x, int y, int s);
    /// 0 cross, 1 plus, 2 circle, 3 star, 4 square, 5 dot; other shapes draw nothing.
    void drawmarker(int x, int y, int size, int shape);
    /// A marker of size 5, two pixels wide, at each point.
    void markers(POINT* pts, int n, int shape);
    /// A frame lit from the top left when raised, given (x1, y1) as the lower-left corner.
    void drawshadow(int x1, int y1, int x2, int y2, int raised);
    /// Does nothing: the surface draws no bitmaps.
    void drawbitmap(unsigned id, RECT* src, RECT* dst, int mode);
    /// Does nothing: the surface draws no bitmaps.
    void drawtransparentbitmap(unsigned id, RECT* src, RECT* dst, int mode, COLORREF key, COLORREF other);

    // -- Rubber bands: drawing the same figure twice removes it -----------------------------------------------------

    /// A line.
    void trackline(int x1, int y1, int x2, int y2);
    /// Bits 8 and 9 of flags are the box mode; a box without width or height is a line.
    void trackbox(int x, int y, int w, int h, int flags);
    /// A solid polygon of at most 20 points.
    void trackpoly(Tpt* pts, int n);
    /// A solid polygon.
    void trackpoly(POINT* pts, int n);

    // -- Integer geometry -------------------------------------------------------------------------------------------

    /// r times the sine, truncated; 65536 units a turn.
    int intsin(unsigned short angle, int r);
    /// r times the cosine, truncated; 65536 units a turn.
    int intcos(unsigned short angle, int r);
    /// a * b / c with a 64-bit product; 0 for c = 0.
    int muldiv(int a, int b, int c);
    /// Square root rounded to nearest, at least 1; 1 for negative n.
    int aproxroot(long n);
    /// Direction of (dx * num / den, dy) in whole degrees, 0 to 360, counter-clockwise from +x.
    int getangle(int dy, int dx, int num, int den);
    /// Middle of the overlap of the intervals 0 to a and b to b + c; either may run backwards.
    int points_center(int a, int b, int c);
    /// The point of the segment 1-2 where it meets the line through 3 and 4, clamped to the segment; for parallels the
    /// middle of their overlap.
    void points_intersect(POINT* out, int x1, int y1, int x2, int y2, int x3, int y3, int x4, int y4);
    /// Moves the end (x1, y1) of the segment onto the rectangle; 0 when the segment is seen to miss it.
    int points_partclip(POINT* out, RECT* r, int x1, int y1, int x2, int y2);
    /// Clips the segment: 1, its ends in out[0] and out[1], or 0 when nothing of it is inside.
    int points_clipline(POINT* out, RECT* r, int x1, int y1, int x2, int y2);
    /// For three points and sense 0: 1 when the way p[1], p[0], p[2] turns clockwise; sense 1: 1 when it does not; any
    /// other sense: always 1.
    int points_testclock(POINT* p, int sense);
    /// 1 inside the convex polygon of n clockwise vertices, its edges excluded.
    int points_testinpoly(int x, int y, POINT* poly, int n);
    /// 1 when dx * dx + dy * dy < r * r, in 32 bits.
    int points_testincircle(int dx, int dy, int r);
    /// The point's y is flipped to device form while the rectangle is taken as it is; right edge excluded.
    int points_testinrect(int x, int y, RECT r);
    /// Bounding rectangle of the points; the first point for n below 2.
    void calcpolywind(RECT* out, POINT* pts, int n);

    // -- Clipping ---------------------------------------------------------------------------------------------------

    /// Corners inclusive, y1 the lower edge. `cliprect` then holds device coordinates.
    void setclip(int x1, int y1, int x2, int y2);
    /// The same for a rectangle in library coordinates; null changes nothing.
    void setclip(RECT* r);
    /// Clips to the client area.
    void resetclip();
    /// The window's update rectangle in library coordinates, also kept in `cliprect`; the next reset() keeps the clip.
    void queryclip(RECT* r);
    /// 1 when the box, corners inclusive, touches the clip box.
    int testclip(int x1, int y1, int x2, int y2);
    /// Always 1: the device clips.
    int clipit(int x1, int y1, int x2, int y2);
    /// Takes a box out of the clip area, unless `outmode` is set.
    void excludeclip(int x1, int y1, int x2, int y2);

    // -- Text -------------------------------------------------------------------------------------------------------

    /// Sets the text size to size / 10 x 6 points; the other values are kept, not used.
    void settext(int a, int b, int c, int size, int e, int f);
    /// Does nothing.
    void setdeftext();
    /// Stored only.
    void setfont(CFont* f);
    /// x is the text's left end, right end or middle for align 0, 1, 2. The lower edge of its cell lies on y. With 4,
    /// 5, 6 the upper edge lies `fontsize / 10` pixels above y; with 8, 9, 10 half as many, which is roughly centred on
    /// y. Fonts are at most 4096 pixels high.
    void chars(int x, int y, char* text, int align);
    /// The same for the first len characters.
    void chars_len(int x, int y, int len, char* text, int align);
    /// Centred in the box (x, y, w, h), h * 4 tenths of a point high, the baseline halfway up.
    void titlechars(int x, int y, int w, int h, char* text);
    /// Description of a font of the front end's font service; 0 (out untouched) when there is no such service.
    int getZopguiFont(LOGFONTA* out, tagZopFontId id);
    /// The code page of that font's characters; the process's own without the service.
    unsigned getZopguiFontCodepage();

    // -- State, in the order that hosts rely on ---------------------------------------------------------------------

    int reserved = 0;                ///< not read
    int xmax = 0;                    ///< client width - 1 after reset(); the width itself after a size message
    int ymax = 0;                    ///< client height - 1 after reset(); the height itself after a size message
    RECT cliprect;                   ///< device coordinates after setclip(), library coordinates after queryclip()
    int clipset = 0;                 ///< 1 while an explicit clip is in force
    int outmode = 0;                 ///< non-zero: no device context is fetched
    int targetmode = 0;              ///< non-zero: no device context is fetched and the clip is left alone
    int textparams[6];               ///< what settext() was given
    COLORREF* palette;               ///< the table that index colours come from; not owned
    int palettecount;                ///< its entries
    HCURSOR cursor = nullptr;        ///< the last pointer of the caller's
    HDC dc = nullptr;                ///< where drawing goes, null: nowhere; the window's own one stays after endpaint()
    int externaldc = 0;              ///< 1 while `dc` is the caller's
    int bkflag = 0;                  ///< what setbackground() was given
    COLORREF bkcolour = 0xFFFFFF;    ///< what setbackground() was given
    COLORREF fillcolour_ = 0xFF0000; ///< colour of the last brush
    HBRUSH brush = nullptr;          ///< the last brush
    CFont* font;                     ///< what setfont() was given; not read
    void* reserved2 = nullptr;       ///< not read
    COLORREF linecolour_ = 0;        ///< colour of the last pen, and the text colour
    HPEN pen = nullptr;              ///< the last pen
    unsigned bkbitmap;               ///< what setbackgroundbitmap() was given
    CString facename;                ///< the face of titlechars(): Arial once the window exists, the default before
    int fontsize = 80;               ///< tenths of a point

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    afx_msg void OnChar(UINT key, UINT repeat, UINT flags);
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnClose();
    afx_msg void OnDestroy();
    afx_msg void OnFontChange();
    afx_msg void OnPaint();
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnSysColorChange();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg void OnKillFocus(CWnd* next);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    DECLARE_MESSAGE_MAP()

private:
    // What this surface made and selected into one device context, and what it found there.
    struct Selection {
        HGDIOBJ pen = nullptr;
        HGDIOBJ brush = nullptr;
        HGDIOBJ foreign_pen = nullptr;
        HGDIOBJ foreign_brush = nullptr;
    };

    bool ready() const { return this && dc; }
    int flip(int y) const { return static_cast<int>(static_cast<unsigned>(ymax) - static_cast<unsigned>(y)); }
    COLORREF palette_colour(int index) const;
    Selection& selection() { return dc && dc == windowdc_ ? window_ : external_; }
    void select_made(HGDIOBJ made, HGDIOBJ Selection::*ours, HGDIOBJ Selection::*foreign);
    static void give_back(HDC target, Selection& s);
    void end_external();
    void forget_lost_window();
    RECT device_rect(int x1, int y1, int x2, int y2) const;
    RECT library_rect(const RECT& device) const;
    RECT update_rect() const;
    void box(int x1, int y1, int x2, int y2, int mode);
    void flip_points(POINT* pts, int n) const;
    void poly_copy(const Tpt* pts, int n, long fill);
    template <class Point> void draw_crosslines(const Point* pts, int n, int step);

    HDC windowdc_ = nullptr;  // fetched once; kept while an external one stands in `dc`
    HWND dcwindow_ = nullptr; // the window that it belongs to
    Selection window_;
    Selection external_;
};
