// CSize, CPoint and CRect: the platform's records with constructors, comparison and arithmetic.
#pragma once

#include "afx_base.h"

class CRect;

class CSize : public tagSIZE {
public:
    CSize() : tagSIZE{0, 0} {}
    CSize(int initCX, int initCY) : tagSIZE{initCX, initCY} {}
    CSize(SIZE size) : tagSIZE(size) {}
    CSize(POINT point) : tagSIZE{point.x, point.y} {}
    CSize(DWORD packed) : tagSIZE{static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed))} {}

    void SetSize(int CX, int CY) { cx = CX, cy = CY; }
    bool operator==(SIZE size) const { return cx == size.cx && cy == size.cy; }
    bool operator!=(SIZE size) const { return !(*this == size); }
    // Of the same class: otherwise the conversion of one side or of the other would do equally well.
    bool operator==(const CSize& size) const { return cx == size.cx && cy == size.cy; }
    bool operator!=(const CSize& size) const { return !(*this == size); }
    void operator+=(SIZE size) { cx += size.cx, cy += size.cy; }
    void operator-=(SIZE size) { cx -= size.cx, cy -= size.cy; }
    CSize operator+(SIZE size) const { return CSize(cx + size.cx, cy + size.cy); }
    CSize operator-(SIZE size) const { return CSize(cx - size.cx, cy - size.cy); }
    CSize operator-() const { return CSize(-cx, -cy); }
    class CPoint operator+(POINT point) const;
    class CPoint operator-(POINT point) const;
    CRect operator+(const RECT* lpRect) const;
    CRect operator-(const RECT* lpRect) const;
};

class CPoint : public tagPOINT {
public:
    CPoint() : tagPOINT{0, 0} {}
    CPoint(int initX, int initY) : tagPOINT{initX, initY} {}
    CPoint(POINT point) : tagPOINT(point) {}
    CPoint(SIZE size) : tagPOINT{size.cx, size.cy} {}
    // The packed coordinates of a mouse message, each with its sign.
    CPoint(LPARAM packed) : tagPOINT{static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed))} {}

    void SetPoint(int X, int Y) { x = X, y = Y; }
    void Offset(int xOffset, int yOffset) { x += xOffset, y += yOffset; }
    void Offset(POINT point) { Offset(point.x, point.y); }
    void Offset(SIZE size) { Offset(size.cx, size.cy); }
    bool operator==(POINT point) const { return x == point.x && y == point.y; }
    bool operator!=(POINT point) const { return !(*this == point); }
    bool operator==(const CPoint& point) const { return x == point.x && y == point.y; }
    bool operator!=(const CPoint& point) const { return !(*this == point); }
    void operator+=(SIZE size) { Offset(size); }
    void operator-=(SIZE size) { Offset(-size.cx, -size.cy); }
    void operator+=(POINT point) { Offset(point); }
    void operator-=(POINT point) { Offset(-point.x, -point.y); }
    CPoint operator+(SIZE size) const { return CPoint(x + size.cx, y + size.cy); }
    CPoint operator-(SIZE size) const { return CPoint(x - size.cx, y - size.cy); }
    CPoint operator+(POINT point) const { return CPoint(x + point.x, y + point.y); }
    CSize operator-(POINT point) const { return CSize(x - point.x, y - point.y); }
    CPoint operator-() const { return CPoint(-x, -y); }
    CRect operator+(const RECT* lpRect) const;
    CRect operator-(const RECT* lpRect) const;
};

// Right and bottom lie outside.
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
    const CPoint& TopLeft() const { return *reinterpret_cast<const CPoint*>(&left); }
    const CPoint& BottomRight() const { return *reinterpret_cast<const CPoint*>(&right); }
    CPoint CenterPoint() const { return CPoint((left + right) / 2, (top + bottom) / 2); }
    operator LPRECT() { return this; }
    operator LPCRECT() const { return this; }

    BOOL IsRectEmpty() const { return ::IsRectEmpty(this); }
    BOOL IsRectNull() const { return left == 0 && right == 0 && top == 0 && bottom == 0; }
    BOOL PtInRect(POINT point) const { return ::PtInRect(this, point); }
    BOOL EqualRect(LPCRECT rect) const { return ::EqualRect(this, rect); }

    void SetRect(int l, int t, int r, int b) { left = l, top = t, right = r, bottom = b; }
    void SetRect(POINT topLeft, POINT bottomRight) { *this = CRect(topLeft, bottomRight); }
    void SetRectEmpty() { SetRect(0, 0, 0, 0); }
    void CopyRect(LPCRECT rect) { *this = *rect; }
    void SwapLeftRight() { SetRect(right, top, left, bottom); }
    static void PASCAL SwapLeftRight(LPRECT rect) {
        const LONG before = rect->left;
        rect->left = rect->right;
        rect->right = before;
    }
    void InflateRect(int l, int t, int r, int b) { SetRect(left - l, top - t, right + r, bottom + b); }
    void InflateRect(int x, int y) { InflateRect(x, y, x, y); }
    void InflateRect(SIZE size) { InflateRect(size.cx, size.cy); }
    void InflateRect(LPCRECT rect) { InflateRect(rect->left, rect->top, rect->right, rect->bottom); }
    void DeflateRect(int l, int t, int r, int b) { InflateRect(-l, -t, -r, -b); }
    void DeflateRect(int x, int y) { InflateRect(-x, -y); }
    void DeflateRect(SIZE size) { DeflateRect(size.cx, size.cy); }
    void DeflateRect(LPCRECT rect) { DeflateRect(rect->left, rect->top, rect->right, rect->bottom); }
    void OffsetRect(int x, int y) { SetRect(left + x, top + y, right + x, bottom + y); }
    void OffsetRect(SIZE size) { OffsetRect(size.cx, size.cy); }
    void OffsetRect(POINT point) { OffsetRect(point.x, point.y); }
    void MoveToX(int x) { OffsetRect(x - left, 0); }
    void MoveToY(int y) { OffsetRect(0, y - top); }
    void MoveToXY(int x, int y) { OffsetRect(x - left, y - top); }
    void MoveToXY(POINT point) { MoveToXY(point.x, point.y); }
    // Left before right and top before bottom; what the other operations take for granted.
    void NormalizeRect() {
        if (left > right)
            SwapLeftRight();
        if (top > bottom)
            SetRect(left, bottom, right, top);
    }
    // FALSE, with an empty rectangle, where nothing is left.
    BOOL IntersectRect(LPCRECT a, LPCRECT b) { return ::IntersectRect(this, a, b); }
    BOOL UnionRect(LPCRECT a, LPCRECT b) { return ::UnionRect(this, a, b); }
    BOOL SubtractRect(LPCRECT a, LPCRECT b) { return ::SubtractRect(this, a, b); }

    void operator=(const RECT& rect) { SetRect(rect.left, rect.top, rect.right, rect.bottom); }
    bool operator==(const RECT& rect) const { return ::EqualRect(this, &rect); }
    bool operator!=(const RECT& rect) const { return !::EqualRect(this, &rect); }
    bool operator==(const CRect& rect) const { return ::EqualRect(this, &rect); }
    bool operator!=(const CRect& rect) const { return !::EqualRect(this, &rect); }
    void operator+=(POINT point) { OffsetRect(point); }
    void operator+=(SIZE size) { OffsetRect(size); }
    void operator+=(LPCRECT rect) { InflateRect(rect); }
    void operator-=(POINT point) { OffsetRect(-point.x, -point.y); }
    void operator-=(SIZE size) { OffsetRect(-size.cx, -size.cy); }
    void operator-=(LPCRECT rect) { DeflateRect(rect); }
    void operator&=(const RECT& rect) { IntersectRect(this, &rect); }
    void operator|=(const RECT& rect) { UnionRect(this, &rect); }
    template <class Change> CRect operator+(Change change) const {
        CRect result(*this);
        result += change;
        return result;
    }
    template <class Change> CRect operator-(Change change) const {
        CRect result(*this);
        result -= change;
        return result;
    }
    CRect operator&(const RECT& rect) const {
        CRect result;
        result.IntersectRect(this, &rect);
        return result;
    }
    CRect operator|(const RECT& rect) const {
        CRect result;
        result.UnionRect(this, &rect);
        return result;
    }
    CRect MulDiv(int nMultiplier, int nDivisor) const {
        return CRect(::MulDiv(left, nMultiplier, nDivisor), ::MulDiv(top, nMultiplier, nDivisor),
                     ::MulDiv(right, nMultiplier, nDivisor), ::MulDiv(bottom, nMultiplier, nDivisor));
    }
};

inline CPoint CSize::operator+(POINT point) const {
    return CPoint(cx + point.x, cy + point.y);
}
inline CPoint CSize::operator-(POINT point) const {
    return CPoint(cx - point.x, cy - point.y);
}
inline CRect CSize::operator+(const RECT* lpRect) const {
    return CRect(lpRect) + *this;
}
inline CRect CSize::operator-(const RECT* lpRect) const {
    return CRect(lpRect) - *this;
}
inline CRect CPoint::operator+(const RECT* lpRect) const {
    return CRect(lpRect) + *this;
}
inline CRect CPoint::operator-(const RECT* lpRect) const {
    return CRect(lpRect) - *this;
}
