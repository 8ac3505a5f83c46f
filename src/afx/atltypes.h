// CSize, CPoint and CRect: the platform's records with arithmetic.
#pragma once

#include "afx_base.h"

class CSize : public tagSIZE {
public:
    CSize() : tagSIZE{0, 0} {}
    CSize(int initCX, int initCY) : tagSIZE{initCX, initCY} {}
    CSize(SIZE size) : tagSIZE(size) {}
    explicit CSize(POINT point) : tagSIZE{point.x, point.y} {}
    explicit CSize(DWORD packed) : tagSIZE{static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed))} {}

    bool operator==(SIZE size) const { return cx == size.cx && cy == size.cy; }
    bool operator!=(SIZE size) const { return !(*this == size); }
    void operator+=(SIZE size) { cx += size.cx, cy += size.cy; }
    void operator-=(SIZE size) { cx -= size.cx, cy -= size.cy; }
    CSize operator+(SIZE size) const { return CSize(cx + size.cx, cy + size.cy); }
    CSize operator-(SIZE size) const { return CSize(cx - size.cx, cy - size.cy); }
    CSize operator-() const { return CSize(-cx, -cy); }
};

class CPoint : public tagPOINT {
public:
    CPoint() : tagPOINT{0, 0} {}
    CPoint(int initX, int initY) : tagPOINT{initX, initY} {}
    CPoint(POINT point) : tagPOINT(point) {}
    explicit CPoint(SIZE size) : tagPOINT{size.cx, size.cy} {}
    // The packed coordinates of a mouse message, each with its sign.
    explicit CPoint(LPARAM packed) : tagPOINT{static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed))} {}

    void SetPoint(int X, int Y) { x = X, y = Y; }
    void Offset(int xOffset, int yOffset) { x += xOffset, y += yOffset; }
    void Offset(POINT point) { Offset(point.x, point.y); }
    void Offset(SIZE size) { Offset(size.cx, size.cy); }
    bool operator==(POINT point) const { return x == point.x && y == point.y; }
    bool operator!=(POINT point) const { return !(*this == point); }
    void operator+=(SIZE size) { Offset(size); }
    void operator-=(SIZE size) { Offset(-size.cx, -size.cy); }
    void operator+=(POINT point) { Offset(point); }
    void operator-=(POINT point) { Offset(-point.x, -point.y); }
    CPoint operator+(SIZE size) const { return CPoint(x + size.cx, y + size.cy); }
    CPoint operator-(SIZE size) const { return CPoint(x - size.cx, y - size.cy); }
    CPoint operator+(POINT point) const { return CPoint(x + point.x, y + point.y); }
    CSize operator-(POINT point) const { return CSize(x - point.x, y - point.y); }
    CPoint operator-() const { return CPoint(-x, -y); }
};

// Right and bottom lie outside. Set operations want normalised rectangles (left <= right, top <= bottom).
class CRect : public tagRECT {
public:
    CRect() : tagRECT{0, 0, 0, 0} {}
    CRect(int l, int t, int r, int b) : tagRECT{l, t, r, b} {}
    CRect(const RECT& rect) : tagRECT(rect) {}
    CRect(LPCRECT rect) : tagRECT(*rect) {}
    CRect(POINT point, SIZE size) : tagRECT{point.x, point.y, point.x + size.cx, point.y + size.cy} {}
    CRect(POINT topLeft, POINT bottomRight) : tagRECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y} {}

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    CSize Size() const { return CSize(Width(), Height()); }
    CPoint& TopLeft() { return *reinterpret_cast<CPoint*>(&left); }
    CPoint& BottomRight() { return *reinterpret_cast<CPoint*>(&right); }
    CPoint TopLeft() const { return CPoint(left, top); }
    CPoint BottomRight() const { return CPoint(right, bottom); }
    CPoint CenterPoint() const { return CPoint((left + right) / 2, (top + bottom) / 2); }
    operator LPRECT() { return this; }
    operator LPCRECT() const { return this; }

    BOOL IsRectEmpty() const { return ::IsRectEmpty(this); }
    BOOL IsRectNull() const { return left == 0 && right == 0 && top == 0 && bottom == 0; }
    BOOL PtInRect(POINT point) const { return ::PtInRect(this, point); }
    void SetRect(int l, int t, int r, int b) { left = l, top = t, right = r, bottom = b; }
    void SetRectEmpty() { SetRect(0, 0, 0, 0); }
    void CopyRect(LPCRECT rect) { ::CopyRect(this, rect); }
    void InflateRect(int x, int y) { ::InflateRect(this, x, y); }
    void InflateRect(SIZE size) { ::InflateRect(this, size.cx, size.cy); }
    void InflateRect(int l, int t, int r, int b) { left -= l, top -= t, right += r, bottom += b; }
    void DeflateRect(int x, int y) { ::InflateRect(this, -x, -y); }
    void DeflateRect(SIZE size) { ::InflateRect(this, -size.cx, -size.cy); }
    void DeflateRect(int l, int t, int r, int b) { left += l, top += t, right -= r, bottom -= b; }
    void OffsetRect(int x, int y) { ::OffsetRect(this, x, y); }
    void OffsetRect(POINT point) { ::OffsetRect(this, point.x, point.y); }
    void OffsetRect(SIZE size) { ::OffsetRect(this, size.cx, size.cy); }
    void MoveToXY(int x, int y) { OffsetRect(x - left, y - top); }
    BOOL IntersectRect(LPCRECT a, LPCRECT b) { return ::IntersectRect(this, a, b); }
    BOOL UnionRect(LPCRECT a, LPCRECT b) { return ::UnionRect(this, a, b); }
    BOOL SubtractRect(LPCRECT a, LPCRECT b) { return ::SubtractRect(this, a, b); }
    BOOL EqualRect(LPCRECT rect) const { return ::EqualRect(this, rect); }
    void NormalizeRect() {
        if (left > right)
            SetRect(right, top, left, bottom);
        if (top > bottom)
            SetRect(left, bottom, right, top);
    }

    void operator=(const RECT& rect) { SetRect(rect.left, rect.top, rect.right, rect.bottom); }
    bool operator==(const RECT& rect) const { return ::EqualRect(this, &rect); }
    bool operator!=(const RECT& rect) const { return !::EqualRect(this, &rect); }
    void operator+=(POINT point) { OffsetRect(point); }
    void operator-=(POINT point) { OffsetRect(-point.x, -point.y); }
    void operator&=(const RECT& rect) { ::IntersectRect(this, this, &rect); }
    void operator|=(const RECT& rect) { ::UnionRect(this, this, &rect); }
    CRect operator+(POINT point) const {
        return CRect(left + point.x, top + point.y, right + point.x, bottom + point.y);
    }
    CRect operator-(POINT point) const {
        return CRect(left - point.x, top - point.y, right - point.x, bottom - point.y);
    }
    CRect operator&(const RECT& rect) const {
        CRect result;
        ::IntersectRect(&result, this, &rect);
        return result;
    }
    CRect operator|(const RECT& rect) const {
        CRect result;
        ::UnionRect(&result, this, &rect);
        return result;
    }
};
