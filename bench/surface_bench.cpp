// The drawing surface's operations against the plain calls of the platform that do the same work into the same
// device context. A row is timed only after both have left the same pixels.
#include <zopwnt.h>

#include "bench_table.h"
#include "pixels.h"

#include <utility>

namespace {

constexpr int width = 300;
constexpr int height = 200;
constexpr COLORREF line_colour = RGB(200, 30, 40);
constexpr COLORREF fill_colour = RGB(20, 150, 60);

// Positions wander, so that no run finds its own pixels unchanged.
constexpr int cycle = 100;
constexpr int wander(int i) {
    return i * 7 % cycle;
}
constexpr COLORREF changing(int i) {
    return RGB(i & 0xFF, i >> 8 & 0xFF, 77);
}

/// The surface, the picture under both, and the same figures given to each.
class SurfaceBench {
public:
    explicit SurfaceBench(CWnd& host) : picture(width, height) {
        out.Create(nullptr, "Out", WS_CHILD, CRect(0, 0, width, height), &host, 100);
        dc = picture.dc();
        ::SetTextColor(dc, line_colour);
    }
    ~SurfaceBench() { out.ReleaseDrawing(); }

    /// Both draw with the same pen and brush: the surface's own.
    template <class Operation, class Yardstick> void row(const char* name, Operation run, Yardstick yardstick) {
        begin();
        const auto drawn = pixels(run);
        begin();
        const auto expected = pixels(yardstick);
        begin();
        const auto one = [&](int i) { pixels_of(i, i + 1, run); };
        if (drawn != expected || !table.always_changes(
                                     one, [&] { return picture.values(); }, cycle)) {
            table.wrong(name);
            return;
        }
        begin();
        table.measure(name, run, yardstick, cycle);
    }

    Picture picture;
    CWntOut out;
    HDC dc;
    BenchTable table{"surface"};

private:
    void begin() {
        out.reset(dc);
        out.linecolour(line_colour, 0);
        out.fillcolour(fill_colour, 0);
    }
    template <class Draw> std::vector<COLORREF> pixels(Draw draw) { return pixels_of(0, 50, draw); }
    template <class Draw> std::vector<COLORREF> pixels_of(int first, int end, Draw& draw) {
        ::SelectClipRgn(dc, nullptr);
        picture.clear(RGB(90, 90, 90));
        ::Rectangle(dc, 40, 120, 60, 150); // something to move
        for (int i = first; i < end; ++i)
            draw(i);
        ::Rectangle(dc, 0, 0, width, 20); // shows which pen, brush and clip are left behind
        return picture.values();
    }
};

int flipped(int y) {
    return height - 1 - y;
}

void plain_line(HDC dc, int x1, int y1, int x2, int y2) {
    const POINT ends[4] = {{x1, flipped(y1)}, {x2, flipped(y2)}, {x2, flipped(y2)}, {x2 + 1, flipped(y2)}};
    constexpr DWORD counts[2] = {2, 2};
    ::PolyPolyline(dc, ends, counts, 2);
}

/// A pen or brush for one figure, selected and put back.
template <class Draw> void with(HDC dc, HGDIOBJ made, Draw draw) {
    HGDIOBJ previous = ::SelectObject(dc, made);
    draw();
    ::SelectObject(dc, previous);
    ::DeleteObject(made);
}

/// Selects a pen or brush for good and ends the one before.
class Held {
public:
    explicit Held(HDC dc) : dc_(dc) {}
    ~Held() { ::DeleteObject(made_); }
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;

    void replace(HGDIOBJ made) {
        ::SelectObject(dc_, made);
        ::DeleteObject(std::exchange(made_, made));
    }

private:
    HDC dc_;
    HGDIOBJ made_ = nullptr;
};

void lines_and_boxes(SurfaceBench& b) {
    CWntOut& o = b.out;
    const HDC dc = b.dc;
    b.row(
        "line", [&](int i) { o.line(wander(i), 10, 120, 90 + wander(i)); },
        [=](int i) { plain_line(dc, wander(i), 10, 120, 90 + wander(i)); });
    b.row(
        "hline", [&](int i) { o.hline(5, wander(i), 100); },
        [=](int i) { plain_line(dc, 5, wander(i), 105, wander(i)); });
    const auto rectangle = [=](int i, int extra) {
        const int x = wander(i);
        ::Rectangle(dc, x, flipped(x + 40), x + 61 + extra, flipped(x) + 1 + extra);
    };
    b.row(
        "box, outline", [&](int i) { o.boxr0(wander(i), wander(i), 60, 40); },
        [=](int i) {
            HGDIOBJ previous = ::SelectObject(dc, ::GetStockObject(NULL_BRUSH));
            rectangle(i, 0);
            ::SelectObject(dc, previous);
        });
    b.row(
        "box, outline and interior", [&](int i) { o.boxr1(wander(i), wander(i), 60, 40); },
        [=](int i) { rectangle(i, 0); });
    b.row(
        "box, interior", [&](int i) { o.boxr2(wander(i), wander(i), 60, 40); },
        [=](int i) {
            HGDIOBJ previous = ::SelectObject(dc, ::GetStockObject(NULL_PEN));
            rectangle(i, 1);
            ::SelectObject(dc, previous);
        });
    Held pen(dc);
    b.row(
        "drawshadow", [&](int i) { o.drawshadow(wander(i), 5, wander(i) + 50, 60, 1); },
        [&](int i) {
            const int x = wander(i);
            pen.replace(::CreatePen(PS_SOLID, 1, ::GetSysColor(COLOR_3DHIGHLIGHT)));
            plain_line(dc, x, 5, x, 60);
            plain_line(dc, x, 60, x + 50, 60);
            pen.replace(::CreatePen(PS_SOLID, 1, ::GetSysColor(COLOR_3DDKSHADOW)));
            plain_line(dc, x + 50, 5, x + 50, 60);
            plain_line(dc, x, 5, x + 50, 5);
        });
}

void polygons(SurfaceBench& b) {
    CWntOut& o = b.out;
    const HDC dc = b.dc;
    const auto shape = [](int i) { return std::vector<POINT>{{10 + wander(i), 10}, {150, 40}, {120, 90}, {40, 70}}; };
    static std::vector<std::vector<POINT>> library;
    static std::vector<std::vector<POINT>> device;
    for (int i = 0; i < 100; ++i) {
        library.push_back(shape(i));
        device.push_back(shape(i));
        for (POINT& p : device.back())
            p.y = flipped(p.y);
    }
    const auto points = [](int i) { return library[i % 100].data(); };
    const auto copied = [](int i) { return reinterpret_cast<Tpt*>(library[i % 100].data()); };
    const auto polygon = [=](int i) { ::Polygon(dc, device[i % 100].data(), 4); };
    b.row(
        "fillpoly, points", [&](int i) { o.fillpoly(points(i), 4); }, polygon);
    b.row(
        "fillpoly, copied points", [&](int i) { o.fillpoly(copied(i), 4); }, polygon);
    const auto solid = [=](int i) { with(dc, ::CreatePen(PS_SOLID, 1, fill_colour), [=] { polygon(i); }); };
    b.row(
        "solidpoly", [&](int i) { o.solidpoly(points(i), 4); }, solid);
    b.row(
        "trackpoly", [&](int i) { o.trackpoly(points(i), 4); },
        [=](int i) {
            ::SetROP2(dc, R2_XORPEN);
            solid(i);
            ::SetROP2(dc, R2_COPYPEN);
        });
    b.row(
        "geomline", [&](int i) { o.geomline(points(i), 4, 0); },
        [=](int i) { ::Polyline(dc, device[i % 100].data(), 4); });
    b.row(
        "geomline, wide", [&](int i) { o.geomline(points(i), 4, 3); },
        [=](int i) {
            with(dc, ::CreatePen(PS_SOLID, 4, fill_colour), [=] { ::Polyline(dc, device[i % 100].data(), 4); });
        });
    b.row(
        "crosslines", [&](int i) { o.crosslines(points(i), 2, 2); },
        [=](int i) {
            const POINT* p = device[i % 100].data();
            for (int k = 0; k < 2; ++k) {
                ::MoveToEx(dc, p[k].x, p[k].y, nullptr);
                ::LineTo(dc, p[k + 2].x, p[k + 2].y);
            }
        });
    b.row(
        "markers", [&](int i) { o.markers(points(i), 4, 1); },
        [=](int i) {
            with(dc, ::CreatePen(PS_SOLID, 2, line_colour), [=] {
                for (const POINT& p : library[i % 100]) {
                    plain_line(dc, p.x - 5, p.y, p.x + 5, p.y);
                    plain_line(dc, p.x, p.y + 5, p.x, p.y - 5);
                }
            });
        });
}

void round_figures(SurfaceBench& b) {
    CWntOut& o = b.out;
    const HDC dc = b.dc;
    const auto arc = [=](int x, int y, int r) {
        y = flipped(y);
        ::Arc(dc, x - r, y - r, x + r, y + r, x + r, y, x + r, y);
    };
    b.row(
        "drawcircle", [&](int i) { o.drawcircle(60 + wander(i), 60, 40); },
        [=](int i) { arc(60 + wander(i), 60, 40); });
    b.row(
        "fillcircle", [&](int i) { o.fillcircle(60 + wander(i), 60, 40, 30); },
        [=](int i) {
            const int x = 60 + wander(i);
            const int y = flipped(60);
            HRGN region = ::CreateEllipticRgn(x - 40, y - 30, x + 42, y + 31);
            HBRUSH frame = ::CreateSolidBrush(line_colour);
            ::PaintRgn(dc, region);
            ::FrameRgn(dc, region, frame, 1, 1);
            ::DeleteObject(frame);
            ::DeleteObject(region);
        });
    b.row(
        "pieslice", [&](int i) { o.pieslice(60 + wander(i), 60, 40, 30, 0, 4096); },
        [=](int i) {
            const int x = 60 + wander(i);
            const int y = flipped(60);
            ::Pie(dc, x - 40, y - 29, x + 41, y + 30, x + 40, y, x, y - 30);
        });
    b.row(
        "drawmarker, circle", [&](int i) { o.drawmarker(wander(i), 60, 5, 2); }, [=](int i) { arc(wander(i), 60, 5); });
    b.row(
        "drawmarker, square", [&](int i) { o.drawmarker(wander(i), 60, 5, 4); },
        [=](int i) {
            const int x = wander(i);
            plain_line(dc, x - 5, 55, x - 5, 65);
            plain_line(dc, x - 5, 65, x + 5, 65);
            plain_line(dc, x + 5, 65, x + 5, 55);
            plain_line(dc, x + 5, 55, x - 5, 55);
        });
}

void rubber_bands(SurfaceBench& b) {
    CWntOut& o = b.out;
    const HDC dc = b.dc;
    b.row(
        "trackline", [&](int i) { o.trackline(wander(i), 10, 120, 90); },
        [=](int i) {
            ::SetROP2(dc, R2_XORPEN);
            plain_line(dc, wander(i), 10, 120, 90);
            ::SetROP2(dc, R2_COPYPEN);
        });
    b.row(
        "trackbox", [&](int i) { o.trackbox(wander(i), 20, 60, 40, 0x100); },
        [=](int i) {
            ::SetROP2(dc, R2_XORPEN);
            ::Rectangle(dc, wander(i), flipped(60), wander(i) + 61, flipped(20) + 1);
            ::SetROP2(dc, R2_COPYPEN);
        });
}

void text(SurfaceBench& b) {
    CWntOut& o = b.out;
    const HDC dc = b.dc;
    static char label[] = "-1234.5 rpm";
    const auto plain = [=](int tenths, UINT align, int x, int y) {
        LOGFONTA description = {};
        description.lfHeight = -::MulDiv(tenths, 96, 720);
        description.lfCharSet = DEFAULT_CHARSET;
        ::lstrcpyA(description.lfFaceName, "Arial");
        with(dc, ::CreateFontIndirectA(&description), [=] {
            ::SetTextAlign(dc, align);
            ::TextOutA(dc, x, y, label, sizeof label - 1);
        });
    };
    b.row(
        "chars", [&](int i) { o.chars(wander(i), 50, label, 0); },
        [=](int i) { plain(80, TA_LEFT | TA_BOTTOM, wander(i), flipped(50)); });
    b.row(
        "titlechars", [&](int i) { o.titlechars(wander(i), 50, 100, 40, label); },
        [=](int i) { plain(160, TA_CENTER | TA_BASELINE, wander(i) + 50, height - 1 - 20 - 50); });
}

void state(SurfaceBench& b) {
    CWntOut& o = b.out;
    const HDC dc = b.dc;
    b.row(
        "scroll", [&](int i) { o.scroll(10, 10, 120, 90, wander(i), 5, 0); },
        [=](int i) { ::BitBlt(dc, 10 + wander(i), 95, 120, 90, dc, 10, 100, SRCCOPY); });
    b.row(
        "setclip", [&](int i) { o.setclip(wander(i), 10, 150, 195); },
        [=](int i) {
            RECT box;
            HRGN region = ::CreateRectRgn(wander(i), flipped(195), 151, flipped(10) + 1);
            ::SelectClipRgn(dc, region);
            ::GetClipBox(dc, &box);
            ::DeleteObject(region);
        });
    o.resetclip();
    Held pen(dc);
    Held brush(dc);
    const auto change_pen = [&](int i) {
        pen.replace(::CreatePen(PS_SOLID, 1, changing(i)));
        ::SetTextColor(dc, changing(i));
    };
    const auto change_brush = [&](int i) { brush.replace(::CreateSolidBrush(changing(i))); };
    b.row(
        "linecolour, change", [&](int i) { o.linecolour(changing(i), 0); }, change_pen);
    b.row(
        "fillcolour, change", [&](int i) { o.fillcolour(changing(i), 0); }, change_brush);
    o.ReleaseDrawing();
    ::SelectObject(dc, ::GetStockObject(BLACK_PEN));
    ::SelectObject(dc, ::GetStockObject(WHITE_BRUSH));
}

} // namespace

int main(int argc, char** argv) {
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), 0))
        return 1;
    CWnd host;
    if (!host.CreateEx(0, nullptr, "host", WS_POPUP, CRect(0, 0, width, height), nullptr, 0))
        return 1;
    int result;
    {
        SurfaceBench bench(host);
        lines_and_boxes(bench);
        polygons(bench);
        round_figures(bench);
        rubber_bands(bench);
        text(bench);
        state(bench);
        result = bench.table.finish(argc, argv);
    }
    host.DestroyWindow();
    return result;
}
