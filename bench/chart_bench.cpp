// The strip chart beside raw drawing calls: all samples as polylines, and a picture that is moved with lines added.
#include <zopwnt.h>

#include <cmath>
#include <memory>
#include <vector>

#include "bench_table.h"
#include "pixels.h"

namespace {

constexpr int width = 1012, height = 530; // the plot is about 1000 x 500
constexpr int curves = 10;
constexpr int samples = 1'000'000;

double wave(int curve, __int64 time, double length) {
    return 10 * curve + 5 * std::sin(static_cast<double>(time) / length * 60) +
           static_cast<double>(time * 7919 % 17) / 4;
}

std::vector<COLORREF> shown(CWnd& window) {
    Picture picture(width, height);
    picture.capture(window.m_hWnd);
    return picture.values();
}

struct Chart {
    CWntPulse pulse;
    __int64 time = 0;
    ULONGLONG painted = 0;

    Chart(CWnd& host, int count, bool furnished) {
        pulse.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, width, height), &host, 1);
        if (!furnished) {
            pulse.LoadLine(":AXES=NONE", 0);
            pulse.LoadLine(":LEGEND=OFF", 0);
            pulse.LoadLine(":GRID=OFF", 0);
        }
        pulse.SetCapacity(samples);
        for (int curve = 0; curve < curves; ++curve)
            pulse.AddCurve("Curve", RGB(20 * curve, 40, 200 - 20 * curve), 0, 110);
        for (; time < count; ++time)
            for (int curve = 0; curve < curves; ++curve)
                pulse.AddSample(curve, wave(curve, time, count), time);
        pulse.SetSpan(count);
    }
    void tick(int steps) {
        for (int curve = 0; curve < curves; ++curve)
            pulse.AddSample(curve, wave(curve, time, 5000), time);
        time += steps;
        pulse.SendMessage(WM_TIMER, 1, 0);
        if (const ULONGLONG now = ::GetTickCount64(); now - painted >= 200) { // the legend changes as often
            painted = now;
            pulse.UpdateWindow();
        }
    }
    void repaint(int i) { // in other colours, so that every picture is seen to be drawn
        pulse.SetColours(RGB(255, 255, 255 - i % 2), 0, 0);
        pulse.UpdateWindow();
    }
};

// Raw calls on a window of the same size.
struct Plain {
    CWnd window;
    std::vector<POINT> points;
    std::vector<HPEN> pens;

    explicit Plain(CWnd& host) {
        window.Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, height, width, 2 * height), &host, 2);
        for (int curve = 0; curve < curves; ++curve)
            pens.push_back(::CreatePen(PS_SOLID, 1, RGB(20 * curve, 40, 200 - 20 * curve)));
    }
    ~Plain() {
        for (const HPEN pen : pens)
            ::DeleteObject(pen);
    }
    void all_samples(int i) {
        CClientDC dc(&window);
        dc.FillSolidRect(CRect(0, 0, width, height), RGB(255, 255, 255 - i % 2));
        for (int curve = 0; curve < curves; ++curve) {
            points.resize(samples);
            for (int k = 0; k < samples; ++k)
                points[static_cast<std::size_t>(k)] = {static_cast<LONG>(std::int64_t{k} * 1000 / samples),
                                                       500 - static_cast<LONG>(wave(curve, k, samples) * 500 / 110)};
            dc.SelectObject(CPen::FromHandle(pens[static_cast<std::size_t>(curve)]));
            dc.Polyline(points.data(), samples);
        }
        dc.SelectStockObject(BLACK_PEN);
    }
    void move(int i) {
        CClientDC dc(&window);
        dc.BitBlt(0, 0, 998, 500, &dc, 2, 0, SRCCOPY);
        dc.FillSolidRect(CRect(998, 0, 1000, 500), RGB(255, 255, 255));
        for (int curve = 0; curve < curves; ++curve) {
            dc.SelectObject(CPen::FromHandle(pens[static_cast<std::size_t>(curve)]));
            dc.MoveTo(997, 40 + 45 * curve + i % 7);
            dc.LineTo(1000, 40 + 45 * curve + (i + 1) % 7);
        }
        dc.SelectStockObject(BLACK_PEN);
    }
};

} // namespace

int main(int argc, char** argv) {
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), 0))
        return 1;
    CWnd host;
    if (!host.CreateEx(0, nullptr, "host", WS_POPUP, CRect(0, 0, width, 2 * height), nullptr, 0))
        return 1;
    host.ShowWindow(SW_SHOWNOACTIVATE);
    BenchTable table("chart");
    {
        Plain plain(host);
        for (const bool furnished : {false, true}) {
            Chart chart(host, 10'000, furnished);
            chart.pulse.SetSpan(6000);
            chart.pulse.UpdateWindow();
            const auto ours = [&](int) { chart.tick(12); };
            table.measure_shown(
                furnished ? "a tick of ten samples, axes, legend" : "a tick of ten samples", ours,
                [&] { return shown(chart.pulse); }, [&](int i) { plain.move(i); }, [&] { return shown(plain.window); },
                7);
        }
        auto chart = std::make_unique<Chart>(host, samples, false);
        table.measure_shown(
            "ten curves of 1,000,000 samples", [&](int i) { chart->repaint(i); }, [&] { return shown(chart->pulse); },
            [&](int i) { plain.all_samples(i); }, [&] { return shown(plain.window); }, 2);
    }
    const int result = table.finish(argc, argv);
    host.DestroyWindow();
    return result;
}
