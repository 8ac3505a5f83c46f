// The picture of a calendar by plain GDI calls, from the standard library's calendar.
#pragma once

#include <windows.h>

#include <chrono>
#include <string>

struct CalendarReference {
    using Days = std::chrono::sys_days;

    /// The process must be in a zone without daylight saving, at UTC.
    static Days today() { return std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now()); }

    /// The first day of the grid: on a Sunday the Monday that follows.
    static Days monday_of(Days shown) {
        return shown + std::chrono::days(1 - static_cast<int>(std::chrono::weekday(shown).c_encoding()));
    }

    CalendarReference(int width, int height) : width_(width), height_(height) {}

    /// Everything but the two strips.
    void paint(HDC dc, Days shown, Days today) const {
        const int saved = ::SaveDC(dc);
        ::SetBkMode(dc, TRANSPARENT);
        headline(dc, std::chrono::year_month_day(shown));
        const int rows = (height_ - 35 - 17) / 30 + 1;
        months(dc, monday_of(shown), rows);
        ::IntersectClipRect(dc, 17, 34, width_, height_ - 17);
        box(dc, 17, 34, width_ - 1, height_ - 18, grey, grey);
        for (int i = 0; i < 7 * rows; ++i)
            cell(dc, monday_of(shown) + std::chrono::days(i / 7 * 7), i % 7, 17 + i % 7 * column(), 34 + i / 7 * 30,
                 today);
        ::RestoreDC(dc, saved);
    }

    int column() const { return (width_ - 18) / 7; }

    static constexpr COLORREF grey = RGB(192, 192, 192);
    static constexpr COLORREF today_fill = RGB(255, 255, 0);
    static constexpr COLORREF month_line = RGB(255, 0, 0);

private:
    // Corners inclusive, y downwards.
    static void box(HDC dc, int left, int top, int right, int bottom, COLORREF line, COLORREF fill) {
        const HPEN pen = ::CreatePen(PS_SOLID, 1, line);
        const HBRUSH brush = ::CreateSolidBrush(fill);
        const HGDIOBJ old_pen = ::SelectObject(dc, pen), old_brush = ::SelectObject(dc, brush);
        ::Rectangle(dc, left, top, right + 1, bottom + 1);
        ::SelectObject(dc, old_pen);
        ::SelectObject(dc, old_brush);
        ::DeleteObject(pen);
        ::DeleteObject(brush);
    }
    static void hline(HDC dc, int x1, int x2, int y, COLORREF line) { box(dc, x1, y, x2, y, line, line); }
    static void text(HDC dc, int size, UINT align, int x, int y, COLORREF colour, const std::string& what) {
        const HFONT font =
            ::CreateFontA(-::MulDiv(size, 96, 720), 0, 0, 0, 0, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, "Arial");
        const HGDIOBJ previous = ::SelectObject(dc, font);
        ::SetTextAlign(dc, align);
        ::SetTextColor(dc, colour);
        ::TextOutA(dc, x, y, what.c_str(), static_cast<int>(what.size()));
        ::SelectObject(dc, previous);
        ::DeleteObject(font);
    }

    void headline(HDC dc, std::chrono::year_month_day shown) const {
        constexpr COLORREF blue = RGB(0, 0, 128);
        static constexpr const char* names[7] = {"Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"};
        box(dc, 0, 17, width_ - 1, 33, blue, grey);
        const auto centred = [&](int x, const std::string& what) {
            text(dc, 72, TA_TOP | TA_CENTER, x, 25 - 3, blue, what);
        };
        centred(8, std::to_string(int{shown.year()}).substr(2));
        const int step = (width_ - 1) / 7;
        for (int i = 0; i < 7; ++i)
            centred(16 + i * step + step / 2, names[i]);
    }

    void months(HDC dc, Days monday, int rows) const {
        const auto month = [](Days day) { return std::chrono::year_month_day(day).month(); };
        box(dc, 0, 34, 16, height_ - 18, grey, grey);
        for (int row = 1; row < rows; ++row) {
            const Days week = monday + std::chrono::weeks(row);
            const auto ended = month(week - std::chrono::weeks(1));
            if (month(week) == ended)
                continue;
            hline(dc, 0, 16, 34 + row * 30, 0);
            text(dc, 80, TA_BASELINE | TA_CENTER, 8, 34 + row * 30 - 10, 0, std::to_string(unsigned{ended}));
        }
    }

    void cell(HDC dc, Days monday, int weekday, int x, int y, Days today) const {
        const Days day = monday + std::chrono::days(weekday);
        const std::chrono::year_month_day date(day);
        const bool weekend = weekday >= 5;
        box(dc, x, y, x + column(), y + 30, RGB(128, 128, 128),
            day == today ? today_fill
            : weekend    ? grey
                         : RGB(255, 255, 255));
        const COLORREF ink = day == today ? RGB(0, 128, 0) : weekend ? RGB(128, 0, 0) : 0;
        text(dc, 72, TA_LEFT | TA_BOTTOM, x + 2, y + 12, ink, std::to_string(unsigned{date.day()}));
        if (weekday == 0) {
            const int days = static_cast<int>((day - Days(date.year() / 1 / 1)).count());
            text(dc, 144, TA_LEFT | TA_BOTTOM, x + 10, y + 29, grey, std::to_string(days / 7 + 2));
        }
        const std::chrono::year_month_day first(monday), next(monday + std::chrono::weeks(1));
        if (first.month() != next.month())
            hline(dc, x, x + column(), date.month() == first.month() ? y + 29 : y + 1, month_line);
    }

    int width_;
    int height_;
};
