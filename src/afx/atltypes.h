// CSize, CPoint and CRect: the platform's records with constructors and comparison.
#pragma once

#include "afx_base.h"

class CSize : public tagSIZE {
public:
    CSize() : tagSIZE{0, 0} {}
    CSize(int initCX, int initCY) : tagSIZE{initCX, initCY} {}
    CSize(SIZE size) : tagSIZE(size) {}

    bool operator==(SIZE size) const { return cx == size.cx && cy == size.cy; }
    bool operator!=(SIZE size) const { return !(*this == size); }
};

class CPoint : public tagPOINT {
public:
    CPoint() : tagPOINT{0, 0} {}
    CPoint(int initX, int initY) : tagPOINT{initX, initY} {}
    CPoint(POINT point) : tagPOINT(point) {}
    // The packed coordinates of a mouse message, each with its sign.
    explicit CPoint(LPARAM packed) : tagPOINT{static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed))} {}

    bool operator==(POINT point) const { return x == point.x && y == point.y; }
    bool operator!=(POINT point) const { return !(*this == point); }
};

// Right and bottom lie outside.
class CRect : public tagRECT {
public:
    CRect() : tagRECT{0, 0, 0, 0} {}
    CRect(int l, int t, int r, int b) : tagRECT{l, t, r, b} {}
    CRect(const RECT& rect) : tagRECT(rect) {}
    CRect(LPCRECT rect) : tagRECT(*rect) {}
    CRect(POINT point, SIZE size) : tagRECT{point.x, point.y, point.x + size.cx, point.y + size.cy} {}

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    CSize Size() const { return CSize(Width(), Height()); }
    CPoint CenterPoint() const { return CPoint((left + right) / 2, (top + bottom) / 2); }
    operator LPRECT() { return this; }
    operator LPCRECT() const { return this; }

    BOOL IsRectEmpty() const { return ::IsRectEmpty(this); }
    void SetRect(int l, int t, int r, int b) { left = l, top = t, right = r, bottom = b; }

    void operator=(const RECT& rect) { SetRect(rect.left, rect.top, rect.right, rect.bottom); }
    bool operator==(const RECT& rect) const { return ::EqualRect(this, &rect); }
    bool operator!=(const RECT& rect) const { return !::EqualRect(this, &rect); }
};
